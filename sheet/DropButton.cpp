// What the drop buttons share: drawing the closed combo box around the
// sample, telling the dialog about a new value, and opening the well under
// the button when it is released.
#include "sheet/DropButtons.h"

IMPLEMENT_DYNAMIC(CDropButton, CButton)

BEGIN_MESSAGE_MAP(CDropButton, CButton)
    ON_WM_LBUTTONUP()
END_MESSAGE_MAP()

CDropButton::CDropButton(UINT nNotifyMessage) : m_nNotifyMessage(nNotifyMessage)
{
}

void CDropButton::ShowValue(DWORD dwValue)
{
    StoreValue(dwValue);
    if (m_hWnd != NULL) {
        Invalidate();
        UpdateWindow();
    }
}

void CDropButton::SetValueAndNotify(DWORD dwValue)
{
    ShowValue(dwValue);
    HWND hWndParent = ::GetParent(m_hWnd);
    if (hWndParent != NULL)
        ::SendMessageA(hWndParent, m_nNotifyMessage, (WPARAM)GetDlgCtrlID(), (LPARAM)GetValue());
}

void CDropButton::OnLButtonUp(UINT, CPoint)
{
    // The button ends its click first; the well then opens under it and
    // takes the focus. A well that cannot open has freed itself.
    Default();
    CPickerWell* pWell = MakeWell();
    if (pWell != NULL)
        pWell->OpenUnder(this, this);
}

void CDropButton::DrawItem(LPDRAWITEMSTRUCT lpDIS)
{
    const BOOL bSelected = (lpDIS->itemState & ODS_SELECTED) != 0;
    const BOOL bDisabled = (lpDIS->itemState & ODS_DISABLED) != 0;
    const int p = bSelected ? 1 : 0;

    CDC dc;   // the button's context, borrowed
    dc.Attach(lpDIS->hDC);
    {
        CSaveDCGuard saved(&dc);
        CRect rectClient;
        GetClientRect(&rectClient);
        {
            CBrush brushFace(::GetSysColor(COLOR_BTNFACE));
            dc.FillRect(&rectClient, &brushFace);
        }
        CRect rectEdge = rectClient;
        dc.DrawEdge(&rectEdge, bSelected ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT);

        // The sample area leaves room at the right for the arrow, as wide as
        // the widest character of the button's font.
        TEXTMETRIC tm;
        dc.GetTextMetrics(&tm);
        CRect r = rectClient;
        r.OffsetRect(p, p);
        r.DeflateRect(3, 4);
        r.left += 2;
        r.right -= tm.tmMaxCharWidth;
        if (!bDisabled) {
            DrawSample(&dc, r);
            r.DeflateRect(1, 1);
        } else if (DeflateWhenDisabled()) {
            r.DeflateRect(1, 1);
        }

        // The etched line between the sample and the arrow.
        r.right += 5;
        r.InflateRect(0, 1);
        CRect rectLine = r;
        dc.DrawEdge(&rectLine, EDGE_ETCHED, BF_RIGHT);

        // The arrow: three bottom edges of 5, 3 and 1 pixels, one under the other.
        const int e = r.right;
        const int m = rectClient.Height() / 2 + p;
        const UINT nEdge = bDisabled ? BDR_RAISEDINNER : BDR_RAISEDOUTER;
        for (int i = 1; i <= 3; i++) {
            CRect rectArrow(e + i, m, e + 7 - i, m + i);
            dc.DrawEdge(&rectArrow, nEdge, BF_BOTTOM);
        }

        if (lpDIS->itemState & ODS_FOCUS) {
            CRect rectFocus = rectClient;
            rectFocus.DeflateRect(3, 3);
            rectFocus.OffsetRect(p, p);
            dc.DrawFocusRect(&rectFocus);
        }
    }
    dc.Detach();
}
