// Layout of the graph: where the plot rectangle lies in the graph rectangle,
// for a new graph, for a window (ReSizeGraph) and for any device context
// (SizeGraph), and the smallest usable graph. The margins follow the font
// and the widest number the axes can print.
#include "graph/GraphPrv.h"
#include "render/NumberFormat.h"
#include "render/TextFont.h"

namespace {

// Line height L and the width of a vertical axis title: L for a TrueType
// font (printed rotated), else the widest character (printed stacked).
int LineHeight(const TEXTMETRIC& tm)
{
    return tm.tmHeight + tm.tmExternalLeading;
}

int TitleWidth(const TEXTMETRIC& tm)
{
    return (tm.tmPitchAndFamily & TMPF_TRUETYPE) ? LineHeight(tm) : tm.tmMaxCharWidth;
}

} // namespace

int CGraphPrv::GetAveWidthOfNumericChar(CDC* pDC)
{
    return pDC->GetTextExtent("0123456789", 10).cx / 10 - 2;
}

CString CGraphPrv::GetMaxLenString()
{
    // A refused format, or a text longer than the buffer, measures nothing.
    char szBuffer[100];
    FormatNumber(szBuffer, sizeof(szBuffer), m_strMaxLenFormat, -10000.0);
    return CString(szBuffer);
}

void CGraphPrv::LayoutMargins(const TEXTMETRIC& tm, int nNumberWidth, BOOL bRightMargin, BOOL bFirstLayout)
{
    const int L = LineHeight(tm);
    const int nTitle = TitleWidth(tm);
    m_rectPlot.left = m_rectGraph.left + nNumberWidth + nTitle + 3;
    if (bRightMargin)
        m_rectPlot.right = m_rectGraph.right - nNumberWidth - nTitle - (bFirstLayout ? 0 : 3);
    else
        m_rectPlot.right = m_rectGraph.right - nNumberWidth / 2;
    m_rectPlot.top = m_rectGraph.top + (3 * L) / 2;
    m_rectPlot.bottom = m_rectGraph.bottom - (5 * L) / 2 - 1;
    m_rectScroll = m_rectPlot;
    m_rectScroll.left += 1;
    m_rectScroll.top += 1;
}

void CGraphPrv::LayoutFirst(const TEXTMETRIC& tm)
{
    int A = tm.tmAveCharWidth + tm.tmOverhang;
    LayoutMargins(tm, 14 * A, (m_dwStyle & GS_RIGHTAXIS) != 0, TRUE);
}

void CGraphPrv::TakeOffLegend()
{
    if (m_legend.m_hWnd == NULL || !m_legend.IsShown() || m_legend.GetAutoHide())
        return;
    CRect rectLegend;
    m_legend.GetWindowRect(&rectLegend);
    switch (m_legend.GetPosition()) {
    case LEGEND_TOP: m_rectGraph.top += rectLegend.Height(); break;
    case LEGEND_BOTTOM: m_rectGraph.bottom -= rectLegend.Height(); break;
    case LEGEND_LEFT: m_rectGraph.left += rectLegend.Width(); break;
    case LEGEND_RIGHT: m_rectGraph.right -= rectLegend.Width(); break;
    }
}

int CGraphPrv::ReSizeGraph(CRect* pRect)
{
    if (pRect == NULL)
        return GRAPH_BADARG;
    if (m_hWnd == NULL)
        return 0;

    {
        // The metrics of the graph's font on the window: line height, the
        // width of a digit D (with the overhang) and of the widest number S.
        CClientDC dc(this);
        TEXTMETRIC tm;
        int D, S;
        {
            CGraphTextFont font(&dc, this);
            dc.GetTextMetrics(&tm);
            D = GetAveWidthOfNumericChar(&dc) + tm.tmOverhang;
            S = dc.GetTextExtent(GetMaxLenString()).cx;
        }

        MoveWindow(pRect, TRUE);
        GetClientRect(&m_rectGraph);
        TakeOffLegend();
        LayoutMargins(tm, S, (m_dwStyle & GS_RIGHTAXIS) != 0, FALSE);

        // Too low or too narrow for the margins: the plot takes the whole graph.
        const int L = LineHeight(tm);
        if (m_rectPlot.bottom - m_rectPlot.top < 3 * L) {
            m_rectPlot.top = m_rectGraph.top;
            m_rectPlot.bottom = m_rectGraph.bottom - 1;
        }
        if (m_rectPlot.right - m_rectPlot.left < 3 * (D + tm.tmOverhang)) {
            m_rectPlot.left = m_rectGraph.left;
            m_rectPlot.right = m_rectGraph.right - 1;
        }
        m_rectScroll = m_rectPlot;
        m_rectScroll.left += 1;
        m_rectScroll.top += 1;

        CalcTicMarkPixels();
        m_bPointsStale = TRUE;
    }

    m_legend.Reposition();
    UpdateAllFloatingLabelPositions();
    if (m_dwState & GST_CROSSHAIR)
        m_crossHair.Resize();
    if (m_dwState & GST_LIMIT_EDIT)
        SetFocus();   // ends an open limit editor
    return GRAPH_OK;
}

void CGraphPrv::LayOutInPlace()
{
    // The window keeps its place in its parent (a graph need not sit at the
    // parent's origin); only the layout inside it is computed again.
    CRect rect;
    GetWindowRect(&rect);
    HWND hParent = ::GetParent(m_hWnd);
    if (hParent != NULL)
        ::MapWindowPoints(NULL, hParent, (LPPOINT)&rect, 2);
    ReSizeGraph(&rect);
}

int CGraphPrv::SizeGraph(CDC* pDC, int x, int y, int nWidth, int nHeight, int bRightAxis)
{
    if (pDC == NULL)
        return GRAPH_BADARG;
    m_rectGraph.SetRect(x, y, x + nWidth, y + nHeight);
    TakeOffLegend();

    {
        CGraphTextFont font(pDC, this);
        TEXTMETRIC tm;
        pDC->GetTextMetrics(&tm);
        int S = pDC->GetTextExtent(GetMaxLenString()).cx;
        LayoutMargins(tm, S, bRightAxis, FALSE);
        CalcTicMarkPixels();
        m_bPointsStale = TRUE;
    }

    UpdateAllFloatingLabelPositions();
    if (m_strXAxisNumFmt != m_strLastXNumFmt || m_strYAxisNumFmt[0] != m_strLastYNumFmt) {
        m_strLastXNumFmt = m_strXAxisNumFmt;
        m_strLastYNumFmt = m_strYAxisNumFmt[0];
        if (m_dwState & GST_CROSSHAIR)
            m_crossHair.Resize();
    }
    return GRAPH_OK;
}

int CGraphPrv::GetMinimumGraphSize(CDC* pDC, int* pnWidth, int* pnHeight)
{
    if (pDC == NULL || pnWidth == NULL || pnHeight == NULL)
        return GRAPH_BADARG;
    TEXTMETRIC tm;
    int D, S;
    {
        CGraphTextFont font(pDC, this);
        pDC->GetTextMetrics(&tm);
        D = GetAveWidthOfNumericChar(pDC);
        S = pDC->GetTextExtent(GetMaxLenString()).cx;
    }

    const int L = LineHeight(tm);
    const BOOL bTrueType = (tm.tmPitchAndFamily & TMPF_TRUETYPE) != 0;
    int nLeft = bTrueType ? S + L : S + tm.tmOverhang + tm.tmMaxCharWidth;
    int nRight = RightAxisDisplayed() ? nLeft : S / 2;
    *pnWidth = nLeft + nRight + 3 * D;
    *pnHeight = 3 * L + ((5 * L) / 2 + 1) + (3 * L) / 2;
    return GRAPH_OK;
}
