// The paint handler of the graph window, driven by real invalidation and
// WM_PAINT: which parts it draws for which update region, the cursor hidden
// while it paints, and PlotLine straight onto the window.
#include "Surface.h"
#include "TestAccess.h"

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
    virtual void PutLabels(CDC* pDC)
    {
        m_nLabels++;
        CGraphPrv::PutLabels(pDC);
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
    }
    ~PaintFixture()
    {
        m_graph.RemoveAllPlotData();
        m_graph.DestroyWindow();
    }

    // Invalidates r alone (without erasing), lets the window paint it and
    // tells what was drawn: "plots labels".
    std::string PaintOnly(const CRect& r)
    {
        ::ValidateRect(m_graph.m_hWnd, NULL);
        m_graph.m_nPlots = m_graph.m_nLabels = 0;
        if (r.IsRectEmpty()) {
            m_graph.SendMessage(WM_PAINT);
        } else {
            ::InvalidateRect(m_graph.m_hWnd, &r, FALSE);
            ::UpdateWindow(m_graph.m_hWnd);
        }
        return Str("%d %d", m_graph.m_nPlots, m_graph.m_nLabels);
    }
    COLORREF Pixel(int x, int y)
    {
        CClientDC dc(&m_graph);
        return dc.GetPixel(x, y);
    }

    TestHost m_host;
    CPaintProbe m_graph;
    CRect m_rectPlot;
};

} // namespace

TEST(PaintHandler, TheUpdateRegionChoosesWhatIsDrawn)
{
    PaintFixture f;
    const CRect& r = f.m_rectPlot;
    ASSERT_GT(r.Width(), 50);
    // Touching the plot: everything, the labels from inside Plot. The plot's
    // last column and row count as the plot.
    EXPECT_EQ("1 1", f.PaintOnly(CRect(r.left + 5, r.top + 5, r.left + 20, r.top + 20)));
    EXPECT_EQ("1 1", f.PaintOnly(CRect(r.right, r.top, r.right + 1, r.bottom + 1)));
    EXPECT_EQ("1 1", f.PaintOnly(CRect(r.left, r.bottom, r.right, r.bottom + 1)));
    // The margins only: the text alone.
    EXPECT_EQ("0 1", f.PaintOnly(CRect(0, 0, r.left, r.bottom)));
    EXPECT_EQ("0 1", f.PaintOnly(CRect(r.right + 1, r.top, r.right + 5, r.bottom)));
    // Nothing to update: nothing drawn.
    EXPECT_EQ("0 0", f.PaintOnly(CRect()));
}

TEST(PaintHandler, TheCursorIsHiddenWhileThePlotIsDrawn)
{
    PaintFixture f;
    HCURSOR hArrow = ::LoadCursorA(NULL, (LPCSTR)IDC_ARROW);
    ::SetCursor(hArrow);
    ASSERT_EQ("1 1", f.PaintOnly(f.m_rectPlot));
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
    // The pixel arrays are those of the window's plot rectangle.
    CPlotData* pData = FindSeries(&f.m_graph, "line");
    ASSERT_EQ(2, pData->m_lPointCount);
    EXPECT_EQ(CGraphTestAccess::DataToPixelX(&f.m_graph, 0.1), pData->m_pPointArray[0].x);
    EXPECT_EQ(CGraphTestAccess::DataToPixelY(&f.m_graph, 0.5, 0), pData->m_pPointArray[0].y);
    EXPECT_EQ(BLUE, f.Pixel(CGraphTestAccess::DataToPixelX(&f.m_graph, 0.5), CGraphTestAccess::DataToPixelY(&f.m_graph, 0.5, 0)));
}

TEST(PaintHandler, PlotLineDrawsStraightOntoTheWindowInsideThePlot)
{
    PaintFixture f;
    f.m_graph.m_nPlots = 0;
    EXPECT_EQ(1, f.m_graph.PlotLine(-1.0, 0.5, 2.0, 0.5, MAGENTA, PS_SOLID, 0));
    EXPECT_EQ(0, f.m_graph.m_nPlots);
    const int x = CGraphTestAccess::DataToPixelX(&f.m_graph, 0.5), y = CGraphTestAccess::DataToPixelY(&f.m_graph, 0.5, 0);
    EXPECT_EQ(MAGENTA, f.Pixel(x, y));
    EXPECT_EQ(MAGENTA, f.Pixel(f.m_rectPlot.right, y));
    EXPECT_NE(MAGENTA, f.Pixel(f.m_rectPlot.right + 1, y));
    EXPECT_NE(MAGENTA, f.Pixel(f.m_rectPlot.left - 1, y));
    // It is part of no picture: the next paint takes it away.
    f.m_graph.Replot();
    ::UpdateWindow(f.m_graph.m_hWnd);
    EXPECT_NE(MAGENTA, f.Pixel(x, y));
}
