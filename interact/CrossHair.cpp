// The cross hair: the graph's switches, and CCrossHair, which inverts its
// two lines over the finished picture and keeps a read-out window of its
// value at each axis. The lines are never part of the picture: every paint
// of the plot puts them back (Repaint), and drawing them twice removes them.
#include "interact/CrossHair.h"
#include "graph/GraphPrv.h"
#include "afx/afxmodule.h"
#include "sheet/IntlString.h"
#include <cstdio>
#include <cstdlib>

// ---- The graph's switches ----------------------------------------------------

int CGraphPrv::DisplayCrossHair()
{
    m_crossHair.Show(this, !(m_dwState & GST_CROSSHAIR));
    return GRAPH_OK;
}

int CGraphPrv::DisplayCrossHair(int bShow)
{
    // A call that would not change the state does nothing: showing twice
    // would make the read-outs again, hiding twice would invert the lines.
    if ((bShow != 0) != ((m_dwState & GST_CROSSHAIR) != 0))
        m_crossHair.Show(this, bShow);
    return GRAPH_OK;
}

int CGraphPrv::IsCrossHairVisible()
{
    return (m_dwState & GST_CROSSHAIR) ? 1 : 0;
}

int CGraphPrv::IsCrossHairLocked()
{
    return (m_dwState & GST_CROSSHAIR_LOCKED) ? 1 : 0;
}

int CGraphPrv::LockCrossHair()
{
    m_crossHair.m_pGraph = this;
    m_crossHair.Lock(!(m_dwState & GST_CROSSHAIR_LOCKED));
    return GRAPH_OK;
}

int CGraphPrv::LockCrossHair(int bLock)
{
    m_crossHair.m_pGraph = this;
    m_crossHair.Lock(bLock);
    return GRAPH_OK;
}

// ---- CCrossHair --------------------------------------------------------------

namespace {

const DWORD LABEL_STYLE = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS;

// One inverted stroke from (x1, y1) to (x2, y2), the end excluded.
void InvertStroke(CDC* pDC, int x1, int y1, int x2, int y2)
{
    const int nOldRop = pDC->SetROP2(R2_NOT);
    HGDIOBJ hOldPen = ::SelectObject(pDC->m_hDC, ::GetStockObject(WHITE_PEN));
    pDC->MoveTo(x1, y1);
    pDC->LineTo(x2, y2);
    ::SelectObject(pDC->m_hDC, hOldPen);
    pDC->SetROP2(nOldRop);
}

} // namespace

CCrossHair::CCrossHair()
    : m_pGraph(NULL), m_nX(0), m_nY(0), m_nLastMouseX(0), m_nLastMouseY(0), m_nCharWidth(0),
      m_nLabelHeight(0), m_nXLabelWidth(0), m_nYLabelWidth(0), m_nRightLabelWidth(0)
{
}

CCrossHair::~CCrossHair() {}

void CCrossHair::Show(CGraphPrv* pGraph, BOOL bShow)
{
    m_pGraph = pGraph;
    if (bShow) {
        CPoint point(pGraph->m_rectPlot.right / 2, pGraph->m_rectPlot.bottom / 2);
        if (pGraph->m_hWnd != NULL) {
            CPoint ptCursor;
            ::GetCursorPos(&ptCursor);
            pGraph->ScreenToClient(&ptCursor);
            if (pGraph->m_rectPlot.PtInRect(ptCursor))
                point = ptCursor;
            // The picture must be whole before the first inverted stroke.
            ::UpdateWindow(pGraph->m_hWnd);
        }
        pGraph->m_dwState |= GST_CROSSHAIR;
        pGraph->m_dwState &= ~GST_CROSSHAIR_LOCKED;
        m_nX = point.x;
        m_nY = point.y;
        Display();
    } else {
        pGraph->m_dwState &= ~(GST_CROSSHAIR | GST_CROSSHAIR_LOCKED);
        Hide();
        if (pGraph->m_hWnd != NULL) {
            // The axis text comes back where the read-outs stood.
            CClientDC dc(pGraph);
            CSaveDCGuard saved(&dc);
            dc.SetBkColor(::GetSysColor(COLOR_WINDOW));
            dc.SetTextColor(pGraph->m_crText);
            pGraph->PutLabels(&dc);
        }
    }
}

void CCrossHair::Lock(BOOL bLock)
{
    if (m_pGraph == NULL || !(m_pGraph->m_dwState & GST_CROSSHAIR))
        return;
    if (bLock)
        m_pGraph->m_dwState |= GST_CROSSHAIR_LOCKED;
    else
        m_pGraph->m_dwState &= ~GST_CROSSHAIR_LOCKED;
}

void CCrossHair::DrawCross(int x, int y, const CRect& rect)
{
    if (m_pGraph == NULL || m_pGraph->m_hWnd == NULL)
        return;
    // The graph's children (the legend open over the plot, the read-outs)
    // keep their own pixels: the strokes go on the graph alone.
    HWND hWnd = m_pGraph->m_hWnd;
    HDC hDC = ::GetDCEx(hWnd, NULL, DCX_CACHE | DCX_CLIPCHILDREN);
    if (hDC == NULL)
        return;
    CDC dc;
    dc.Attach(hDC);
    // The plot's frame at its left and top edge is spared.
    InvertStroke(&dc, rect.left + 1, y, rect.right, y);
    InvertStroke(&dc, x, rect.top + 1, x, rect.bottom);
    ::ReleaseDC(hWnd, hDC);
}

void CCrossHair::MeasureLabels(CDC* pDC)
{
    const int nWidth = pDC->GetTextExtent(m_pGraph->GetMaxLenString()).cx;
    m_nXLabelWidth = nWidth;
    m_nYLabelWidth = nWidth;
    m_nRightLabelWidth = nWidth;
}

void CCrossHair::Metrics()
{
    CClientDC dc(m_pGraph->m_hWnd != NULL ? m_pGraph : NULL);
    CSelectGuard selectFont(&dc, &m_pGraph->m_font);
    TEXTMETRIC tm;
    dc.GetTextMetrics(&tm);
    m_nCharWidth = m_pGraph->GetAveWidthOfNumericChar(&dc);
    MeasureLabels(&dc);
    m_nLabelHeight = tm.tmHeight + tm.tmExternalLeading;
}

void CCrossHair::CreateLabel(CLabelWnd& wnd, UINT nID, const CString& strFormat, int nAlign, const CRect& rect,
                             double dValue)
{
    if (wnd.m_hWnd != NULL)
        wnd.DestroyWindow();
    wnd.SetFormat(strFormat);
    wnd.SetAlign(nAlign);
    wnd.Create(AfxRegisterWndClass(0, ::LoadCursorA(NULL, (LPCSTR)IDC_ARROW)), " ", LABEL_STYLE, rect, m_pGraph,
               nID);
    ShowValue(wnd, dValue);
}

void CCrossHair::ShowValue(CLabelWnd& wnd, double dValue)
{
    wnd.m_dValue = dValue;
    if (wnd.m_hWnd != NULL) {
        wnd.InvalidateRect(NULL, TRUE);
        wnd.UpdateWindow();
    }
}

void CCrossHair::Display()
{
    if (m_pGraph == NULL || m_pGraph->m_hWnd == NULL)
        return;
    CGraphPrv* g = m_pGraph;
    ::UpdateWindow(g->m_hWnd);
    Metrics();
    const int h = m_nLabelHeight;

    int w = m_nXLabelWidth;
    int top = g->m_rectPlot.bottom + h / 2 + 1;
    CreateLabel(m_wndXLabel, CROSSHAIR_XLABEL_ID, g->m_strXAxisNumFmt, 0,
                CRect(m_nX - w / 2, top, m_nX + w / 2, top + h), g->PixelToDataX(m_nX));

    w = m_nYLabelWidth;
    top = m_nY - h / 2;
    CreateLabel(m_wndYLabel, CROSSHAIR_YLABEL_ID, g->m_strYAxisNumFmt[0], 1,
                CRect(g->m_rectPlot.left - w - 1, top, g->m_rectPlot.left - 1, top + h), g->PixelToDataY(m_nY, 0));

    if (g->RightAxisDisplayed()) {
        const int left = g->m_rectPlot.right + 2;
        CreateLabel(m_wndRightLabel, CROSSHAIR_RIGHTLABEL_ID, g->m_strYAxisNumFmt[1], -1,
                    CRect(left, top, left + m_nRightLabelWidth, top + h), g->PixelToDataY(m_nY, 1));
    }
    DrawCross(m_nX, m_nY, g->m_rectPlot);
}

void CCrossHair::Hide()
{
    if (m_pGraph == NULL)
        return;
    DrawCross(m_nX, m_nY, m_pGraph->m_rectPlot);
    if (m_wndXLabel.m_hWnd != NULL)
        m_wndXLabel.DestroyWindow();
    if (m_wndYLabel.m_hWnd != NULL)
        m_wndYLabel.DestroyWindow();
    if (m_wndRightLabel.m_hWnd != NULL)
        m_wndRightLabel.DestroyWindow();
}

void CCrossHair::MoveYLabels()
{
    CGraphPrv* g = m_pGraph;
    const int y = m_nY - m_nLabelHeight / 2;
    if (m_wndYLabel.m_hWnd != NULL)
        m_wndYLabel.SetWindowPos(NULL, g->m_rectPlot.left - m_nYLabelWidth - 3, y, 0, 0,
                                 SWP_NOSIZE | SWP_NOZORDER);
    ShowValue(m_wndYLabel, g->PixelToDataYRpt(m_nY, 0));
    if (g->RightAxisDisplayed()) {
        if (m_wndRightLabel.m_hWnd != NULL)
            m_wndRightLabel.SetWindowPos(NULL, g->m_rectPlot.right + 2, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        ShowValue(m_wndRightLabel, g->PixelToDataYRpt(m_nY, 1));
    }
}

void CCrossHair::Move(int x, int y)
{
    if (m_pGraph == NULL)
        return;
    if (x == m_nLastMouseX && y == m_nLastMouseY)
        return;
    m_nLastMouseX = x;
    m_nLastMouseY = y;

    CGraphPrv* g = m_pGraph;
    CRect P = g->m_rectPlot;
    const CRect& S = g->m_rectScroll;
    BOOL bEraseVertical = TRUE, bEraseHorizontal = TRUE;

    // An open legend that hides itself lies over the plot: the lines stop
    // at its inner edge, and a line that stood under it is not inverted back.
    if (g->IsLegendVisible() && g->m_legend.m_hWnd != NULL) {
        CRect C, L;
        g->GetClientRect(&C);
        g->m_legend.GetWindowRect(&L);
        int e;
        switch (g->m_legend.GetPosition()) {
        case LEGEND_TOP:
            e = C.top + L.Height();
            if (e >= S.top)
                P.top += abs(S.top - e);
            if (e > m_nY)
                bEraseHorizontal = FALSE;
            break;
        case LEGEND_BOTTOM:
            e = C.bottom - L.Height();
            if (S.bottom >= e)
                P.bottom -= abs(S.bottom - e);
            if (m_nY > e)
                bEraseHorizontal = FALSE;
            break;
        case LEGEND_LEFT:
            e = C.left + L.Width();
            if (e >= S.left)
                P.left += abs(S.left - e);
            if (e > m_nX)
                bEraseVertical = FALSE;
            break;
        default:
            e = C.right - L.Width();
            if (S.right >= e)
                P.right -= abs(S.right - e);
            if (m_nX > e)
                bEraseVertical = FALSE;
            break;
        }
    }

    if (!S.PtInRect(CPoint(x, y)))
        return;

    CRect rectErase = P;
    if (!bEraseVertical)
        rectErase.top = rectErase.bottom = -1;
    if (!bEraseHorizontal)
        rectErase.left = rectErase.right = -1;
    DrawCross(m_nX, m_nY, rectErase);

    m_nX = x;
    m_nY = y;
    DrawCross(m_nX, m_nY, P);

    if (m_wndXLabel.m_hWnd != NULL)
        m_wndXLabel.SetWindowPos(NULL, m_nX - m_nXLabelWidth / 2, g->m_rectPlot.bottom + m_nLabelHeight / 2 + 1, 0,
                                 0, SWP_NOSIZE | SWP_NOZORDER);
    ShowValue(m_wndXLabel, g->PixelToDataXRpt(m_nX));
    MoveYLabels();
}

void CCrossHair::Repaint(CDC* pDC, int nLeft, int nTop, int nRight, int nBottom)
{
    if (m_pGraph == NULL || !(m_pGraph->m_dwState & GST_CROSSHAIR) ||
        (m_pGraph->m_dwState & GST_CROSSHAIR_SUSPENDED))
        return;
    CGraphPrv* g = m_pGraph;
    // Where the near edge is the plot's own, its frame is spared.
    if (nLeft <= m_nX && m_nX <= nRight) {
        InvertStroke(pDC, m_nX, nTop + (nTop == g->m_rectPlot.top ? 1 : 0), m_nX, nBottom);
        ShowValue(m_wndXLabel, g->PixelToDataXRpt(m_nX));
    }
    if (nTop <= m_nY && m_nY <= nBottom) {
        InvertStroke(pDC, nLeft + (nLeft == g->m_rectPlot.left ? 1 : 0), m_nY, nRight, m_nY);
        MoveYLabels();
    }
}

void CCrossHair::Resize()
{
    if (m_pGraph == NULL)
        return;
    CGraphPrv* g = m_pGraph;
    Metrics();
    const CRect& plot = g->m_rectPlot;
    if (m_nY < plot.top + 1) m_nY = plot.top + 1;
    if (m_nY > plot.bottom - 1) m_nY = plot.bottom - 1;
    if (m_nX < plot.left + 1) m_nX = plot.left + 1;
    if (m_nX > plot.right - 1) m_nX = plot.right - 1;
    DrawCross(m_nX, m_nY, plot);

    const int h = m_nLabelHeight;
    const int top = m_nY - h / 2;
    if (m_wndXLabel.m_hWnd != NULL) {
        m_wndXLabel.SetFormat(g->m_strXAxisNumFmt);
        m_wndXLabel.SetWindowPos(NULL, m_nX - m_nXLabelWidth / 2, plot.bottom + h / 2 + 1, m_nXLabelWidth, h,
                                 SWP_NOZORDER);
        ShowValue(m_wndXLabel, g->PixelToDataX(m_nX));
    }
    if (m_wndYLabel.m_hWnd != NULL) {
        m_wndYLabel.SetFormat(g->m_strYAxisNumFmt[0]);
        m_wndYLabel.SetWindowPos(NULL, plot.left - m_nYLabelWidth - 3, top, m_nYLabelWidth, h, SWP_NOZORDER);
        ShowValue(m_wndYLabel, g->PixelToDataY(m_nY, 0));
    }
    if (g->RightAxisDisplayed() && m_wndRightLabel.m_hWnd != NULL) {
        m_wndRightLabel.SetFormat(g->m_strYAxisNumFmt[1]);
        m_wndRightLabel.SetWindowPos(NULL, plot.right + 2, top, m_nRightLabelWidth, h, SWP_NOZORDER);
        ShowValue(m_wndRightLabel, g->PixelToDataY(m_nY, 1));
    }
}

void CCrossHair::PrintLabels(CDC* pDC)
{
    if (m_pGraph == NULL)
        return;
    CGraphPrv* g = m_pGraph;
    CSelectGuard selectFont(pDC, &g->m_font);
    const int yBeside = m_nY - m_nLabelHeight / 2;
    // A read-out prints only while its window stands (a suspended or
    // hidden cross hair has none), with the text it showed last.
    if (m_wndXLabel.m_hWnd != NULL && m_wndXLabel.IsWindowVisible()) {
        CString str(m_wndXLabel.m_szText);
        g->PlaceStringHorizontal(pDC, m_nX - 5 * m_nCharWidth, g->m_rectPlot.bottom + m_nLabelHeight / 2 + 1, str, 0);
    }
    if (m_wndYLabel.m_hWnd != NULL && m_wndYLabel.IsWindowVisible()) {
        CString str(m_wndYLabel.m_szText);
        g->PlaceStringHorizontal(pDC, 4 * m_nCharWidth - 2, yBeside, str, 0);
    }
    if (g->RightAxisDisplayed() && m_wndRightLabel.m_hWnd != NULL && m_wndRightLabel.IsWindowVisible()) {
        CString str(m_wndRightLabel.m_szText);
        g->PlaceStringHorizontal(pDC, g->m_rectPlot.right + 2, yBeside, str, 0);
    }
}

// ---- CLabelWnd ---------------------------------------------------------------

BEGIN_MESSAGE_MAP(CLabelWnd, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

CLabelWnd::CLabelWnd() : m_dValue(0.0), m_nAlign(0)
{
    sprintf(m_szText, "%8.3f", 0.0);
}

void CLabelWnd::OnPaint()
{
    CPaintDC dc(this);
    CSaveDCGuard saved(&dc);
    CRect rectClient;
    GetClientRect(&rectClient);
    const COLORREF crWindow = ::GetSysColor(COLOR_WINDOW);
    dc.FillSolidRect(&rectClient, crWindow);
    dc.SetBkColor(crWindow);

    CWnd* pParent = CWnd::FromHandlePermanent(::GetParent(m_hWnd));
    if (pParent == NULL || !pParent->IsKindOf(RUNTIME_CLASS(CGraphPrv)))
        return;
    CGraphPrv* pGraph = static_cast<CGraphPrv*>(pParent);

    // The graph's font and text colour, at its point size.
    LOGFONT lf;
    int nPointSize;
    DWORD crText;
    pGraph->GetLogFont(&lf, &nPointSize, &crText);
    lf.lfHeight = nPointSize;
    CFont font;
    font.CreatePointFontIndirect(&lf, NULL);
    CSelectGuard selectFont(&dc, &font);
    dc.SetTextColor(crText);
    dc.SetBkMode(OPAQUE);

    pGraph->FormatLabelSuitably(m_szText, m_strFormat, m_dValue);
    CIntlString intl;
    intl.LocalizeDecimal(m_szText);

    const int nTextWidth = dc.GetTextExtent(CString(m_szText)).cx;
    int x = 0;
    if (m_nAlign == 0)
        x = (rectClient.right - nTextWidth - rectClient.left) / 2;
    else if (m_nAlign == 1)
        x = rectClient.right - nTextWidth - rectClient.left;
    dc.TextOut(x, 0, CString(m_szText));
}
