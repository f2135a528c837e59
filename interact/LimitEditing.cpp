// The inline limit editor: a release on a limit printed at the end of an
// axis opens a small edit box over it, with the limit's text selected. The
// box (sheet/EditLimit.h) sets the limit when it closes.
#include "graph/GraphPrv.h"
#include "render/TextFont.h"
#include "resources/resource.h"
#include "sheet/EditLimit.h"
#include "sheet/IntlString.h"

namespace {

// The style of the box: a visible, bordered child whose text is centred and
// scrolls sideways.
const DWORD LIMIT_EDIT_STYLE = WS_CHILD | WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL | ES_CENTER;

// The longest text the box takes.
const int LIMIT_EDIT_CHARS = 10;

// The control id of each limit slot, in the order of m_rectLimit.
const UINT g_anLimitEditId[LIMIT_SLOTS] = {
    IDC_LIMIT_EDIT_X_MIN, IDC_LIMIT_EDIT_X_MAX, IDC_LIMIT_EDIT_YLEFT_MAX,
    IDC_LIMIT_EDIT_YLEFT_MIN, IDC_LIMIT_EDIT_YRIGHT_MAX, IDC_LIMIT_EDIT_YRIGHT_MIN,
};

} // namespace

void CGraphPrv::OpenLimitEditor(int iSlot)
{
    ASSERT(iSlot >= 0 && iSlot < LIMIT_SLOTS);
    CRect rect = m_rectLimit[iSlot];

    // The limit, in the number format of its axis.
    const double adLimit[LIMIT_SLOTS] = { m_dXMin, m_dXMax, m_dYMax[0], m_dYMin[0], m_dYMax[1], m_dYMin[1] };
    const CString* apFormat[LIMIT_SLOTS] = { &m_strXAxisNumFmt, &m_strXAxisNumFmt, &m_strYAxisNumFmt[0],
                                             &m_strYAxisNumFmt[0], &m_strYAxisNumFmt[1], &m_strYAxisNumFmt[1] };
    char szText[NUMFMT_BUFFER];
    FormatLabelSuitably(szText, *apFormat[iSlot], adLimit[iSlot]);

    // Room for a few more digits than the number has: X both ways, the left
    // axis to the left, the right axis to the right.
    int w;
    {
        CClientDC dc(this);
        CGraphTextFont font(&dc, this);
        w = GetAveWidthOfNumericChar(&dc);
    }
    if (iSlot == LIMIT_XMIN || iSlot == LIMIT_XMAX) {
        rect.left -= 2 * w;
        rect.right += w;
    } else if (iSlot == LIMIT_YLEFT_MAX || iSlot == LIMIT_YLEFT_MIN) {
        rect.left -= 3 * w;
    } else {
        rect.right += 3 * w;
    }

    const char* pszText = szText;
    while (*pszText == ' ')
        ++pszText;
    CString strText(pszText);
    CIntlString intl;
    intl.LocalizeDecimal(strText);

    // The box owns itself from here: it deletes itself when it closes, or
    // when its window goes with the graph's.
    CEditLimit* pEdit = new CEditLimit(this);
    if (!pEdit->Create(LIMIT_EDIT_STYLE, rect, this, g_anLimitEditId[iSlot])) {
        delete pEdit;
        return;
    }
    pEdit->SendMessage(WM_SETFONT, (WPARAM)m_font.m_hObject, TRUE);
    pEdit->ShowWindow(SW_SHOW);
    pEdit->SetFocus();
    pEdit->SendMessage(EM_REPLACESEL, 0, (LPARAM)(LPCSTR)strText);
    pEdit->SendMessage(EM_SETSEL, 0, -1);
    pEdit->SendMessage(EM_SCROLLCARET, 0, 0);
    pEdit->SendMessage(EM_LIMITTEXT, LIMIT_EDIT_CHARS, 0);
    m_dwState |= GST_LIMIT_EDIT;
}
