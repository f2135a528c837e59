// The paint handler of the graph window, driven by real invalidation and
// WM_PAINT: which parts it draws for which update region, the cursor hidden
// while it paints, and PlotLine straight onto the window.
#include "RenderTestUtil.h"

namespace {

// A graph that counts the calls of its two replaceable drawers and notes the
// cursor that stands while the plot is drawn.
class CPaintProbe : public CGraphPrv
{
public:
    virtual int Plot(CDC* pDC, int bPointsOnly)
    {
        m_nPlots++;
        m_hCursorDuringPlot = ::GetCursor();
        return CGraphPrv::Plot(pDC, bPointsOnly);
    }
    virtual int PutLabels(CDC* pDC)
    {
        m_nLabels++;
        return CGraphPrv::PutLabels(pDC);
    }
    void Reset()
    {
        m_nPlots = 0;
        m_nLabels = 0;
    }

    int m_nPlots = 0;
    int m_nLabels = 0;
    HCURSOR m_hCursorDuringPlot = (HCURSOR)1;
};

// A shown graph window with nothing left to paint.
class PaintFixture
{
public:
    PaintFixture()
    {
        CRect rect(10, 10, 410, 310);
        m_graph.CreateGraph(m_host.Wnd(), NULL, rect, 0, 1, 63);
        m_graph.ShowGraph();
        TestHost::Pump();
        m_graph.GetPlotRect(m_rectPlot);
        m_graph.Reset();
    }
    ~PaintFixture() { m_graph.DestroyWindow(); }

    // Invalidates r alone (without erasing) and lets the window paint it.
    void PaintOnly(const CRect& r)
    {
        ::ValidateRect(m_graph.m_hWnd, NULL);
        ::InvalidateRect(m_graph.m_hWnd, &r, FALSE);
        ::UpdateWindow(m_graph.m_hWnd);
    }

    TestHost m_host;
    CPaintProbe m_graph;
    CRect m_rectPlot;
};

} // namespace

TEST(PaintHandler, APaintThatTouchesThePlotDrawsEverything)
{
    PaintFixture f;
    ASSERT_TRUE(f.m_graph.m_hWnd != NULL);
    ASSERT_GT(f.m_rectPlot.Width(), 50);
    f.PaintOnly(CRect(f.m_rectPlot.left + 5, f.m_rectPlot.top + 5, f.m_rectPlot.left + 20, f.m_rectPlot.top + 20));
    EXPECT_EQ(1, f.m_graph.m_nPlots);
    EXPECT_EQ(1, f.m_graph.m_nLabels);   // from inside Plot
}

TEST(PaintHandler, ThePlotsLastColumnCountsAsThePlot)
{
    PaintFixture f;
    const CRect& r = f.m_rectPlot;
    f.PaintOnly(CRect(r.right, r.top, r.right + 1, r.bottom + 1));
    EXPECT_EQ(1, f.m_graph.m_nPlots);
    f.m_graph.Reset();
    f.PaintOnly(CRect(r.left, r.bottom, r.right, r.bottom + 1));
    EXPECT_EQ(1, f.m_graph.m_nPlots);
}

TEST(PaintHandler, AMarginOnlyPaintDrawsTheTextAlone)
{
    PaintFixture f;
    const CRect& r = f.m_rectPlot;
    f.PaintOnly(CRect(0, 0, r.left, r.bottom));             // left of the plot
    EXPECT_EQ(0, f.m_graph.m_nPlots);
    EXPECT_EQ(1, f.m_graph.m_nLabels);
    f.m_graph.Reset();
    f.PaintOnly(CRect(r.right + 1, r.top, r.right + 5, r.bottom));   // just right of it
    EXPECT_EQ(0, f.m_graph.m_nPlots);
    EXPECT_EQ(1, f.m_graph.m_nLabels);
}

TEST(PaintHandler, AnEmptyUpdateRegionDrawsNothing)
{
    PaintFixture f;
    ::ValidateRect(f.m_graph.m_hWnd, NULL);
    f.m_graph.SendMessage(WM_PAINT);
    EXPECT_EQ(0, f.m_graph.m_nPlots);
    EXPECT_EQ(0, f.m_graph.m_nLabels);
}

TEST(PaintHandler, TheCursorIsHiddenWhileThePlotIsDrawn)
{
    PaintFixture f;
    HCURSOR hArrow = ::LoadCursorA(NULL, (LPCSTR)IDC_ARROW);
    ::SetCursor(hArrow);
    f.PaintOnly(f.m_rectPlot);
    ASSERT_EQ(1, f.m_graph.m_nPlots);
    EXPECT_EQ(NULL, f.m_graph.m_hCursorDuringPlot);
    EXPECT_EQ(hArrow, ::GetCursor());
}

TEST(PaintHandler, ASeriesIsPaintedOnTheWindow)
{
    PaintFixture f;
    std::vector<float> x = { 0.1f, 0.9f }, y = { 0.5f, 0.5f };
    f.m_graph.AddPlotData("line", PLOT_YLEFT, x.data(), y.data(), 2, BLUE, PS_SOLID, 0);
    f.m_graph.Replot();
    ::UpdateWindow(f.m_graph.m_hWnd);
    EXPECT_EQ(1, f.m_graph.m_nPlots);
    // The pixel arrays are those of the window's plot rectangle.
    CPlotData* pData = NULL;
    f.m_graph.m_mapPlotData.Lookup("line", pData);
    ASSERT_TRUE(pData != NULL);
    EXPECT_EQ(2, pData->m_lPointCount);
    EXPECT_EQ(f.m_graph.DataToPixelX(0.1), pData->m_pPointArray[0].x);
    EXPECT_EQ(f.m_graph.DataToPixelY(0.5, 0), pData->m_pPointArray[0].y);
    HDC hDC = ::GetDC(f.m_graph.m_hWnd);
    EXPECT_EQ(BLUE, ::GetPixel(hDC, f.m_graph.DataToPixelX(0.5), f.m_graph.DataToPixelY(0.5, 0)));
    ::ReleaseDC(f.m_graph.m_hWnd, hDC);
    f.m_graph.RemoveAllPlotData();
}

TEST(PaintHandler, PlotLineDrawsStraightOntoTheWindowInsideThePlot)
{
    PaintFixture f;
    EXPECT_EQ(1, f.m_graph.PlotLine(-1.0, 0.5, 2.0, 0.5, MAGENTA, PS_SOLID, 0));
    EXPECT_EQ(0, f.m_graph.m_nPlots);
    const int y = f.m_graph.DataToPixelY(0.5, 0);
    HDC hDC = ::GetDC(f.m_graph.m_hWnd);
    EXPECT_EQ(MAGENTA, ::GetPixel(hDC, f.m_graph.DataToPixelX(0.5), y));
    EXPECT_EQ(MAGENTA, ::GetPixel(hDC, f.m_rectPlot.right, y));
    EXPECT_NE(MAGENTA, ::GetPixel(hDC, f.m_rectPlot.right + 1, y));
    EXPECT_NE(MAGENTA, ::GetPixel(hDC, f.m_rectPlot.left - 1, y));
    ::ReleaseDC(f.m_graph.m_hWnd, hDC);

    // It is part of no picture: the next paint takes it away.
    f.m_graph.Replot();
    ::UpdateWindow(f.m_graph.m_hWnd);
    hDC = ::GetDC(f.m_graph.m_hWnd);
    EXPECT_NE(MAGENTA, ::GetPixel(hDC, f.m_graph.DataToPixelX(0.5), y));
    ::ReleaseDC(f.m_graph.m_hWnd, hDC);
}
