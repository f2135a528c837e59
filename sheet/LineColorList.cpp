// The line list: each line drawn with a sample of its series' look and its
// name; the tip follows the mouse over the lines.
#include "sheet/LineColorList.h"
#include "interact/Legend.h"
#include "render/AnnotationMark.h"
#include "render/DrawerPen.h"

IMPLEMENT_DYNAMIC(CLineColorListBoxEx, CListBox)

BEGIN_MESSAGE_MAP(CLineColorListBoxEx, CListBox)
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_RBUTTONDOWN()
    ON_WM_SETFOCUS()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

namespace {

// Where the parts of a line stand, in pixels from the left of the list.
const int SAMPLE_LEFT = 5, SAMPLE_RIGHT = 35;
const int SAMPLE_LINE_LEFT = 6, SAMPLE_LINE_RIGHT = 34;
const int SAMPLE_MARK_X = 20;
const int TEXT_LEFT = 40;
const int TIP_TEXT_OFFSET = 38;   // the tip starts here, 2 pixels before the text

} // namespace

CLineColorListBoxEx::CLineColorListBoxEx() : m_pTip(NULL), m_bTipEnabled(TRUE)
{
    m_pTip = new CLineColorListToolTip(this);
}

CLineColorListBoxEx::~CLineColorListBoxEx()
{
    // A list whose window never went through WM_DESTROY still has its tip.
    delete m_pTip;
}

void CLineColorListBoxEx::DrawItem(LPDRAWITEMSTRUCT lpDIS)
{
    if (lpDIS->CtlType != ODT_LISTBOX || lpDIS->itemID == (UINT)-1)
        return;

    const BOOL bSelected = (lpDIS->itemState & ODS_SELECTED) != 0;
    const int nBack = bSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW;
    const CRect r(lpDIS->rcItem);

    CDC dc;   // the list's context, borrowed
    dc.Attach(lpDIS->hDC);
    {
        CSaveDCGuard saved(&dc);
        {
            CBrush brushBack(::GetSysColor(nBack));
            dc.FillRect(&r, &brushBack);
        }
        if (lpDIS->itemState & ODS_FOCUS)
            dc.DrawFocusRect(&r);
        dc.SelectStockObject(DEFAULT_GUI_FONT);

        const CLegendData* pLook = (const CLegendData*)lpDIS->itemData;
        if (pLook != NULL && lpDIS->itemData != (ULONG_PTR)LB_ERR) {
            CRect s(SAMPLE_LEFT, r.top + 2, SAMPLE_RIGHT, r.bottom - 2);
            {
                CBrush brushFrame(RGB(0, 0, 0));
                dc.FrameRect(&s, &brushFrame);
            }
            CRect rectFill = s;
            rectFill.DeflateRect(1, 1);
            dc.FillSolidRect(&rectFill, pLook->m_crBackground);

            const int y = (s.top + s.bottom) / 2;
            dc.SetBkColor(pLook->m_crBackground);
            dc.SetBkMode(OPAQUE);
            {
                CDrawerPen pen(pLook->m_nLineStyle, pLook->m_nLineWidth, pLook->m_crLine);
                CSelectGuard selectPen(&dc, &pen);
                dc.MoveTo(SAMPLE_LINE_LEFT, y);
                dc.LineTo(SAMPLE_LINE_RIGHT, y);
            }
            if (pLook->m_nAnnotate != 0) {
                CDrawerPen penMark(PS_SOLID, 1, pLook->m_crLine);
                CBrush brushMark(pLook->m_crLine);
                CSelectGuard selectPen(&dc, &penMark);
                CSelectGuard selectBrush(&dc, &brushMark);
                DrawAnnotationMark(&dc, SAMPLE_MARK_X, y, pLook->m_nAnnotate);
            }
        }

        // The selection's text colour, unless it would vanish in the
        // selection's background.
        const COLORREF crHighlightText = ::GetSysColor(COLOR_HIGHLIGHTTEXT);
        const COLORREF crText = bSelected && crHighlightText != ::GetSysColor(COLOR_HIGHLIGHT)
                                    ? crHighlightText : ::GetSysColor(COLOR_WINDOWTEXT);
        dc.SetBkColor(::GetSysColor(nBack));
        dc.SetTextColor(crText);
        CString strText;
        GetText((int)lpDIS->itemID, strText);
        TEXTMETRIC tm;
        dc.GetTextMetrics(&tm);
        dc.TextOut(r.left + TEXT_LEFT, r.top + (r.Height() - tm.tmHeight) / 2, strText);
    }
    dc.Detach();
}

void CLineColorListBoxEx::OnMouseMove(UINT nFlags, CPoint point)
{
    // The nearest line: while the tip holds the capture the point may lie
    // outside the list, and the tip then goes.
    const int nItem = (int)LOWORD(::SendMessageA(m_hWnd, LB_ITEMFROMPOINT, 0, MAKELPARAM(point.x, point.y)));
    CRect rect;
    if (m_pTip != NULL && GetItemRect(nItem, &rect) != LB_ERR) {
        rect.left += TIP_TEXT_OFFSET;
        ClientToScreen(&rect);
        CString strText;
        GetText(nItem, strText);
        m_pTip->SetText(strText);
        ClientToScreen(&point);
        if (m_bTipEnabled && !(nFlags & MK_LBUTTON))
            m_pTip->ShowFor(rect, point, nItem);
    }
    Default();
}

void CLineColorListBoxEx::OnLButtonDown(UINT, CPoint)
{
    Default();
    if (::GetFocus() != m_hWnd)
        SetFocus();
    // The click may have selected the line under the tip: it changes its colours.
    if (m_pTip != NULL && m_pTip->m_hWnd != NULL) {
        m_pTip->Invalidate();
        m_pTip->UpdateWindow();
        m_bTipEnabled = TRUE;
    } else {
        m_bTipEnabled = FALSE;
    }
}

void CLineColorListBoxEx::OnRButtonDown(UINT, CPoint)
{
    m_bTipEnabled = FALSE;
    if (m_pTip != NULL && m_pTip->m_hWnd != NULL) {
        m_pTip->ShowWindow(SW_HIDE);
        // Without a tip the list has no reason to keep the mouse.
        if (::GetCapture() == m_hWnd)
            ::ReleaseCapture();
    }
    Default();
}

void CLineColorListBoxEx::OnSetFocus(CWnd*)
{
    Default();
    m_bTipEnabled = TRUE;
}

void CLineColorListBoxEx::OnDestroy()
{
    CListBox::OnDestroy();
    delete m_pTip;
    m_pTip = NULL;
}
