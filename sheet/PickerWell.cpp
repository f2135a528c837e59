// What the wells share: opening under a button, the tracking of the hot
// cell, painting the frame of the grid, and closing on a choice or on a lost
// focus. Each well frees itself when its window goes.
#include "sheet/Wells.h"

IMPLEMENT_DYNAMIC(CPickerWell, CWnd)

BEGIN_MESSAGE_MAP(CPickerWell, CWnd)
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

CPickerWell::CPickerWell(int nCells, LPCSTR lpszTitle)
    : m_nHotCell(-1), m_pButton(NULL), m_pOwner(NULL), m_nCells(nCells), m_strTitle(lpszTitle),
      m_bClosing(FALSE), m_bInDialog(FALSE)
{
}

BOOL CPickerWell::OpenUnder(CWnd* pButton, CWellOwner* pOwner)
{
    m_pButton = pButton;
    m_pOwner = pOwner;
    CRect rectButton;
    pButton->GetWindowRect(&rectButton);
    LPCSTR lpszClass = AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, ::LoadCursorA(NULL, (LPCSTR)IDC_ARROW),
                                           (HBRUSH)(COLOR_BTNFACE + 1));
    // The size comes from PreCreateWindow. A window that is not made has
    // taken the object with it.
    if (!CreateEx(0, lpszClass, m_strTitle, WS_POPUP | WS_VISIBLE, rectButton.left, rectButton.bottom, 0, 0,
                  pButton->m_hWnd, NULL))
        return FALSE;
    ShowWindow(SW_SHOW);
    SetFocus();
    return TRUE;
}

BOOL CPickerWell::PreCreateWindow(CREATESTRUCT& cs)
{
    const CSize size = GetWellSize();
    cs.cx = size.cx;
    cs.cy = size.cy;
    return TRUE;
}

void CPickerWell::PostNcDestroy()
{
    delete this;
}

int CPickerWell::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    GetClientRect(&m_rectGrid);
    m_rectGrid.DeflateRect(3, 3);
    m_rectGrid.bottom -= GetBottomMargin();
    return 0;
}

void CPickerWell::DrawHotFrame(int nCell, BOOL bShow)
{
    if (nCell < 0 || nCell >= m_nCells)
        return;
    CRect rect = GetCellRect(nCell);
    rect.InflateRect(1, 1);
    CClientDC dc(this);
    CBrush brush(bShow ? (COLORREF)0 : ::GetSysColor(COLOR_BTNFACE));
    dc.FrameRect(&rect, &brush);
}

void CPickerWell::OnPaint()
{
    CPaintDC dc(this);
    CRect rectClient;
    GetClientRect(&rectClient);
    {
        CBrush brushFace(::GetSysColor(COLOR_BTNFACE));
        dc.FillRect(&rectClient, &brushFace);
    }
    dc.DrawEdge(&rectClient, EDGE_RAISED, BF_RECT);
    for (int i = 0; i < m_nCells; i++) {
        CRect rect = GetCellRect(i);
        dc.DrawEdge(&rect, EDGE_SUNKEN, BF_RECT);
        DrawCell(&dc, i, rect);
    }
    DrawExtras(&dc);
    if (m_nHotCell >= 0) {
        CRect rect = GetCellRect(m_nHotCell);
        rect.InflateRect(1, 1);
        CBrush brushBlack((COLORREF)0);
        dc.FrameRect(&rect, &brushBlack);
    }
}

void CPickerWell::OnMouseMove(UINT nFlags, CPoint point)
{
    if (m_rectGrid.PtInRect(point)) {
        const int nCell = HitTest(point);
        if (nCell != m_nHotCell && nCell >= 0 && nCell < m_nCells) {
            DrawHotFrame(m_nHotCell, FALSE);
            DrawHotFrame(nCell, TRUE);
            m_nHotCell = nCell;
        }
    }
    CWnd::OnMouseMove(nFlags, point);
}

void CPickerWell::OnLButtonDown(UINT, CPoint)
{
    // A click before the mouse has touched any cell chooses nothing.
    const BOOL bChosen = m_nHotCell >= 0;
    ChooseAndClose(bChosen, bChosen ? GetCellValue(m_nHotCell) : 0);
}

void CPickerWell::ChooseAndClose(BOOL bChosen, DWORD dwValue)
{
    if (bChosen) {
        StoreChoice(dwValue);
        if (m_pOwner != NULL)
            m_pOwner->SetValueAndNotify(dwValue);
    }
    Default();
    m_bInDialog = FALSE;
    m_bClosing = TRUE;
    DestroyWindow();   // frees the object
}

void CPickerWell::OnKillFocus(CWnd* pNewWnd)
{
    CWnd::OnKillFocus(pNewWnd);
    if (m_bClosing || m_bInDialog)
        return;
    m_bClosing = TRUE;
    DestroyWindow();   // frees the object
}
