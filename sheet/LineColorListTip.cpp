// The tip of the line list: made on demand, placed over the text of the
// line under the mouse when that text does not fit, kept on the screen.
#include "sheet/LineColorList.h"
#include "afx/afxmodule.h"

IMPLEMENT_DYNAMIC(CLineColorListToolTip, CWnd)

BEGIN_MESSAGE_MAP(CLineColorListToolTip, CWnd)
    ON_WM_PAINT()
    ON_WM_MOUSEMOVE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

CLineColorListToolTip::CLineColorListToolTip(CLineColorListBoxEx* pList) : m_pList(pList), m_nItem(-1)
{
}

HFONT CLineColorListToolTip::GetListFont() const
{
    return (HFONT)::SendMessageA(m_pList->m_hWnd, WM_GETFONT, 0, 0);
}

void CLineColorListToolTip::SetText(LPCSTR lpszText)
{
    m_strText = lpszText;
    if (m_hWnd == NULL) {
        // CS_SAVEBITS | CS_OWNDC | CS_HREDRAW | CS_VREDRAW: the tip comes and
        // goes often over the list and paints all of itself.
        LPCSTR lpszClass = AfxRegisterWndClass(CS_SAVEBITS | CS_OWNDC | CS_HREDRAW | CS_VREDRAW,
                                               ::LoadCursorA(NULL, (LPCSTR)IDC_ARROW));
        if (!CreateEx(0, lpszClass, "", WS_POPUP | WS_BORDER, 0, 0, 0, 0, m_pList->m_hWnd, NULL))
            return;
    }
    Invalidate();
}

void CLineColorListToolTip::ShowFor(CRect rect, CPoint point, int nItem)
{
    m_nItem = nItem;
    if (!rect.PtInRect(point)) {
        if (::GetCapture() == m_pList->m_hWnd)
            ::ReleaseCapture();
        ShowWindow(SW_HIDE);
        return;
    }

    CRect rectText(0, 0, 0, 0);
    {
        CClientDC dc(m_pList);
        CSaveDCGuard saved(&dc);
        HFONT hFont = GetListFont();
        if (hFont != NULL)
            dc.SelectObject(hFont);
        dc.DrawText(m_strText, &rectText, DT_CALCRECT | DT_NOPREFIX);
    }
    if (rectText.Width() < rect.Width() - 4) {
        ::ReleaseCapture();
        ShowWindow(SW_HIDE);
        return;
    }

    rect.right = rect.left + rectText.Width() + 5;
    rect.bottom = rect.top + rectText.Height() + 4;
    const int cxScreen = ::GetSystemMetrics(SM_CXSCREEN);
    if (rect.right > cxScreen)
        rect.OffsetRect(cxScreen - rect.right, 0);
    if (rect.left < 0)
        rect.OffsetRect(-rect.left, 0);
    SetWindowPos(NULL, rect.left, rect.top, rect.Width(), rect.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
    ShowWindow(SW_SHOWNOACTIVATE);
    UpdateWindow();
    m_pList->SetCapture();
}

void CLineColorListToolTip::OnPaint()
{
    CPaintDC dc(this);
    const BOOL bSelected = m_nItem >= 0 && m_nItem == m_pList->GetCurSel();
    const COLORREF crBack = ::GetSysColor(bSelected ? COLOR_HIGHLIGHT : COLOR_INFOBK);
    const COLORREF crText = ::GetSysColor(bSelected ? COLOR_HIGHLIGHTTEXT : COLOR_INFOTEXT);
    CRect rect;
    GetClientRect(&rect);
    // The class keeps one context for the window: everything set here goes back.
    CSaveDCGuard saved(&dc);
    dc.FillSolidRect(&rect, crBack);
    HFONT hFont = GetListFont();
    if (hFont != NULL)
        dc.SelectObject(hFont);
    dc.SetTextColor(crText);
    dc.SetBkMode(TRANSPARENT);
    rect.left += 1;
    dc.DrawText(m_strText, &rect, DT_SINGLELINE | DT_VCENTER | DT_EXPANDTABS | DT_NOPREFIX);
}

void CLineColorListToolTip::OnMouseMove(UINT, CPoint)
{
    // The tip stands over the list: the list keeps following the mouse.
    m_pList->SetCapture();
    Default();
}

void CLineColorListToolTip::OnDestroy()
{
    CWnd::OnDestroy();
    if (::GetCapture() == m_pList->m_hWnd)
        ::ReleaseCapture();
}
