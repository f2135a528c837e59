// The colour palette control: layout and painting of the cells, the
// selection frame and the focus rectangle, mouse and keyboard choice, and
// the operations with which a page shows and edits its colours.
#include "sheet/ColorPalette.h"
#include "graph/Globals.h"

IMPLEMENT_DYNAMIC(CColorPalette, CWnd)

BEGIN_MESSAGE_MAP(CColorPalette, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_LBUTTONDOWN()
    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()
END_MESSAGE_MAP()

CColorPalette::CColorPalette()
    : m_bHasFocus(FALSE), m_nFocusCell(0), m_nSelected(PALETTE_NO_SELECTION),
      m_nCells(PALETTE_MAX_CELLS), m_pColors(g_pBaseColors), m_bErased(FALSE)
{
}

void CColorPalette::PostNcDestroy()
{
    delete this;
}

// ---------------------------------------------------------------------------
// Operations
// ---------------------------------------------------------------------------

void CColorPalette::SetColors(DWORD* pColors, int nCount)
{
    m_pColors = pColors;
    m_nCells = nCount < 0 ? 0 : (nCount > PALETTE_MAX_CELLS ? PALETTE_MAX_CELLS : nCount);
    if (m_nFocusCell >= m_nCells)
        m_nFocusCell = 0;
    if (m_nSelected >= m_nCells)
        m_nSelected = PALETTE_NO_SELECTION;
}

int CColorPalette::SelectColor(DWORD crColor)
{
    if (m_pColors == NULL)
        return 0;
    for (int i = 0; i < m_nCells; i++) {
        if (m_pColors[i] != crColor)
            continue;
        if (i != m_nSelected)
            DrawSelectionFrame(m_nSelected, FALSE);
        DrawSelectionFrame(i, TRUE);
        MoveFocusCell(i);
        m_nSelected = i;
        return 1;
    }
    return 0;
}

int CColorPalette::ClearSelection()
{
    DrawSelectionFrame(m_nSelected, FALSE);
    m_nSelected = PALETTE_NO_SELECTION;
    MoveFocusCell(0);
    return 1;
}

int CColorPalette::AddColor(DWORD crColor)
{
    if (m_pColors == NULL || m_nCells <= 0)
        return 1;
    m_pColors[m_nFocusCell] = crColor;
    Invalidate(FALSE);
    MoveFocusCell(m_nFocusCell + 1 < m_nCells ? m_nFocusCell + 1 : 0);
    return 1;
}

// ---------------------------------------------------------------------------
// Drawing
// ---------------------------------------------------------------------------

void CColorPalette::LayOutCells()
{
    const int nRows = m_nCells / 8;
    if (nRows <= 0)
        return;
    CRect rectClient;
    GetClientRect(&rectClient);
    const int w = (rectClient.Width() - 25) / 8 - 1;
    const int h = (rectClient.Height() - 3 * nRows - 1) / nRows - 1;
    for (int i = 0; i < m_nCells; i++) {
        const int left = (w + 3) * (i % 8) + 3;
        const int top = 3 + (h + 3) * (i / 8);
        m_pCellRects[i].SetRect(left, top, left + w, top + h);
    }
}

BOOL CColorPalette::OnEraseBkgnd(CDC* pDC)
{
    m_bErased = CWnd::OnEraseBkgnd(pDC);
    return m_bErased;
}

void CColorPalette::OnPaint()
{
    CPaintDC dc(this);
    LayOutCells();
    for (int i = 0; i < m_nCells && m_pColors != NULL; i++) {
        CRect rect = m_pCellRects[i];
        dc.DrawEdge(&rect, EDGE_SUNKEN, BF_RECT);
        rect.DeflateRect(2, 2);
        CBrush brush(m_pColors[i]);
        dc.FillRect(&rect, &brush);
    }
    if (m_nSelected >= 0 && m_nSelected < m_nCells) {
        CRect rect = m_pCellRects[m_nSelected];
        rect.InflateRect(1, 1);
        CBrush brush((COLORREF)0);
        dc.FrameRect(&rect, &brush);
    }
    // The focus rectangle lies between the cells: it is gone only where
    // the background was erased.
    if (m_bHasFocus && m_bErased && m_nFocusCell < m_nCells) {
        CRect rect = m_pCellRects[m_nFocusCell];
        rect.InflateRect(3, 3);
        dc.DrawFocusRect(&rect);
    }
    m_bErased = FALSE;
}

void CColorPalette::DrawSelectionFrame(int nCell, BOOL bShow)
{
    if (nCell < 0 || nCell >= m_nCells)
        return;
    CRect rect = m_pCellRects[nCell];
    rect.InflateRect(1, 1);
    CClientDC dc(this);
    CBrush brush(bShow ? (COLORREF)0 : ::GetSysColor(COLOR_BTNFACE));
    dc.FrameRect(&rect, &brush);
}

void CColorPalette::DrawFocusRectangle(int nCell)
{
    if (nCell < 0 || nCell >= m_nCells)
        return;
    CRect rect = m_pCellRects[nCell];
    rect.InflateRect(3, 3);
    CClientDC dc(this);
    dc.DrawFocusRect(&rect);
}

void CColorPalette::MoveFocusCell(int nCell)
{
    if (nCell == m_nFocusCell)
        return;
    if (m_bHasFocus)
        DrawFocusRectangle(m_nFocusCell);
    m_nFocusCell = nCell;
    if (m_bHasFocus)
        DrawFocusRectangle(m_nFocusCell);
}

// ---------------------------------------------------------------------------
// Focus, mouse and keys
// ---------------------------------------------------------------------------

void CColorPalette::OnSetFocus(CWnd* pOldWnd)
{
    CWnd::OnSetFocus(pOldWnd);
    if (!m_bHasFocus)
        DrawFocusRectangle(m_nFocusCell);
    m_bHasFocus = TRUE;
}

void CColorPalette::OnKillFocus(CWnd* pNewWnd)
{
    CWnd::OnKillFocus(pNewWnd);
    if (m_bHasFocus)
        DrawFocusRectangle(m_nFocusCell);
    m_bHasFocus = FALSE;
}

UINT CColorPalette::OnGetDlgCode()
{
    return DLGC_WANTARROWS;
}

int CColorPalette::CellFromPoint(CPoint point) const
{
    for (int i = 0; i < m_nCells; i++) {
        if (m_pCellRects[i].PtInRect(point))
            return i;
    }
    return -1;
}

void CColorPalette::NotifyColor(int nCell)
{
    ::SendMessageA(::GetParent(m_hWnd), WM_PICKER_COLOR, (WPARAM)GetDlgCtrlID(), (LPARAM)m_pColors[nCell]);
}

void CColorPalette::OnLButtonDown(UINT nFlags, CPoint point)
{
    const int nCell = m_pColors != NULL ? CellFromPoint(point) : -1;
    if (nCell >= 0) {
        if (m_bHasFocus) {
            DrawFocusRectangle(m_nFocusCell);
            DrawSelectionFrame(m_nSelected, FALSE);
            m_nFocusCell = m_nSelected = nCell;
            DrawSelectionFrame(nCell, TRUE);
            DrawFocusRectangle(nCell);
        } else {
            DrawSelectionFrame(m_nSelected, FALSE);
            DrawSelectionFrame(nCell, TRUE);
            m_nFocusCell = m_nSelected = nCell;
            SetFocus();   // draws the focus rectangle
        }
        NotifyColor(nCell);
    }
    CWnd::OnLButtonDown(nFlags, point);
}

void CColorPalette::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    switch (nChar) {
    case VK_SPACE:
        if (m_pColors != NULL && m_nFocusCell < m_nCells) {
            DrawSelectionFrame(m_nSelected, FALSE);
            m_nSelected = m_nFocusCell;
            DrawSelectionFrame(m_nSelected, TRUE);
            NotifyColor(m_nSelected);
        }
        break;
    case VK_LEFT:
        if (m_nFocusCell != 0)
            MoveFocusCell(m_nFocusCell - 1);
        break;
    case VK_UP:
        if (m_nFocusCell > 7)
            MoveFocusCell(m_nFocusCell - 8);
        break;
    case VK_RIGHT:
        if (m_nFocusCell < m_nCells - 1)
            MoveFocusCell(m_nFocusCell + 1);
        break;
    case VK_DOWN:
        if (m_nFocusCell < m_nCells - 8)
            MoveFocusCell(m_nFocusCell + 8);
        break;
    }
    CWnd::OnKeyDown(nChar, nRepCnt, nFlags);
}
