// Grid lines at the tic pixels by the bits of the grid type, their pen and
// background, the rule of ShowGrid, the device-pixel grid of a scaled
// context, and the grid in a whole paint.
#include "Surface.h"
#include "render/GridLines.h"

namespace {

const COLORREF crGrid = 0x00A000;

// The columns of row y inside the plot that carry the grid colour.
std::vector<int> GridColumns(const Dib& dib, const CRect& r, int y)
{
    std::vector<int> columns;
    for (int x = r.left; x <= r.right; x++)
        if (dib.At(x, y) == crGrid)
            columns.push_back(x);
    return columns;
}

// A whole line strictly inside the plot, from edge to edge.
bool HasVerticalLine(const Dib& dib, const CRect& r, int x)
{
    return dib.Count(x, r.top + 1, x + 1, r.bottom, crGrid) == r.Height() - 1;
}

bool HasHorizontalLine(const Dib& dib, const CRect& r, int y)
{
    return dib.Count(r.left + 1, y, r.right, y + 1, crGrid) == r.Width() - 1;
}

} // namespace

TEST(Grid, FixedTicsByTheBitsOfTheType)
{
    // Major and vertical: lines at every second tic from 2; both ways: at
    // every tic; no direction bit, or 0: nothing. The end tics lie on the
    // frame and get no line; nothing lands outside the plot.
    const struct
    {
        DWORD dwType;
        std::vector<int> vertical, horizontal;
    } cases[] = {
        { GRID_MAJOR | GRID_VERTICAL, { 2, 4, 6, 8 }, {} },
        { GRID_BOTHWAYS, { 1, 2, 3, 4, 5, 6, 7, 8, 9 }, { 1, 2, 3, 4, 5, 6, 7, 8, 9 } },
        { GRID_MAJOR, {}, {} },
        { 0, {}, {} },
    };
    for (const auto& c : cases) {
        CanvasGraph g;
        CGraphPrv* p = g.Prv();
        ASSERT_EQ(1, p->SetTicMarkType(0, 0, NULL));
        ASSERT_EQ(1, p->SetGridAttributes(c.dwType, crGrid, PS_SOLID));
        p->PlotGrid(g.DC());
        const CRect r = p->m_rectPlot;
        std::vector<int> vertical, horizontal;
        for (int i = 0; i <= 10; i++) {
            if (HasVerticalLine(g.m_dib, r, p->m_nXTicPixel[i]))
                vertical.push_back(i);
            if (HasHorizontalLine(g.m_dib, r, p->m_nYTicPixel[0][i]))
                horizontal.push_back(i);
        }
        EXPECT_EQ(c.vertical, vertical) << std::hex << c.dwType;
        EXPECT_EQ(c.horizontal, horizontal) << std::hex << c.dwType;
        EXPECT_EQ((int)(c.vertical.size() * (r.Height() - 1) + c.horizontal.size() * (r.Width() - 1) -
                        c.vertical.size() * c.horizontal.size()),
                  g.m_dib.CountAll(crGrid))
            << std::hex << c.dwType;
    }
}

TEST(Grid, FloatingTicsDrawEveryMajorTic)
{
    // The major bit and the minor bit without minor tics both
    // give a line at every interior tic.
    for (DWORD dwType : { (DWORD)(GRID_MAJOR | GRID_VERTICAL), (DWORD)(GRID_MINOR | GRID_VERTICAL) }) {
        CanvasGraph g(500, 400);
        CGraphPrv* p = g.Prv();
        ASSERT_EQ(1, p->SetTicMarkType(1, 0, NULL));
        p->SetXAxisLimits(0.0, 1.0);
        p->SetGridAttributes(dwType, crGrid, PS_SOLID);
        p->PlotGrid(g.DC());
        const CRect r = p->m_rectPlot;
        ASSERT_GE(p->m_nXTicCount, 3);
        std::vector<int> expected(p->m_nXTicPixel + 1, p->m_nXTicPixel + p->m_nXTicCount);
        EXPECT_EQ(expected, GridColumns(g.m_dib, r, (r.top + r.bottom) / 2)) << dwType;
    }
}

TEST(Grid, WhereTheLinesOfOneAxisGo)
{
    // X tics at 50, 100, 200, 250 (last index 3) with minor offsets 25 and
    // 50 in an interval of 50, the plot from 50 to 250.
    const int anX[4] = { 50, 100, 200, 250 };
    MINORTICS minorX = { 50, { 25, 50 } };
    int an[GRID_MAX_LINES];
    // Before tic 1 at 75 (100 - 50 + 25) and at 100 (the major tic, again);
    // tic 1 at 100 with minors 125 and 150; tic 2 at 200 with 225; 250 lies
    // on the right edge and is left out.
    int n = CalcGridLines(anX, 3, 1, &minorX, 2, 1, 50, 250, an);
    EXPECT_EQ((std::vector<int>{ 75, 100, 100, 125, 150, 200, 225 }), std::vector<int>(an, an + n));
    // Without minor lines, the interior tics; every second one from tic 2.
    n = CalcGridLines(anX, 3, 1, NULL, 2, 1, 50, 250, an);
    EXPECT_EQ((std::vector<int>{ 100, 200 }), std::vector<int>(an, an + n));
    const int anFixed[11] = { 0, 10, 20, 30, 40, 50, 60, 70, 80, 90, 100 };
    n = CalcGridLines(anFixed, 10, 2, NULL, 0, 1, 0, 100, an);
    EXPECT_EQ((std::vector<int>{ 20, 40, 60, 80 }), std::vector<int>(an, an + n));

    // Left Y tics at 150, 100, 20 (pixels fall as the index rises), one
    // minor at 25 in an interval of 50, the plot from 20 to 150: under tic 1
    // at 125 (100 + 50 - 25), tic 1 at 100, above it at 75.
    const int anY[3] = { 150, 100, 20 };
    MINORTICS minorY = { 50, { 25 } };
    n = CalcGridLines(anY, 2, 1, &minorY, 1, -1, 20, 150, an);
    EXPECT_EQ((std::vector<int>{ 125, 100, 75 }), std::vector<int>(an, an + n));

    // Counts beyond the tables stay inside them: at most ten tics with nine
    // minor lines after each, and none from a count below 1.
    MINORTICS minorMany = { 9, { 1, 2, 3, 4, 5, 6, 7, 8, 9 } };
    EXPECT_EQ(9 + 9 * 10, CalcGridLines(anFixed, 50, 1, &minorMany, 40, 1, -1000, 1000, an));
    EXPECT_EQ(0, CalcGridLines(anFixed, 0, 1, &minorMany, 9, 1, 0, 100, an));
    EXPECT_EQ(0, CalcGridLines(anFixed, -3, 1, &minorMany, 9, 1, 0, 100, an));
}

TEST(Grid, DashedGridGapsTakeThePlotBackground)
{
    CanvasGraph g;
    CGraphPrv* p = g.Prv();
    p->SetTicMarkType(0, 0, NULL);
    p->SetGridAttributes(GRID_VERTICAL, crGrid, PS_DASH);
    p->m_crBackground = 0x00E0E0;
    p->PlotGrid(g.DC());
    const CRect r = p->m_rectPlot;
    const int x = p->m_nXTicPixel[5];
    const int nLine = g.m_dib.Count(x, r.top + 1, x + 1, r.bottom, crGrid);
    const int nGap = g.m_dib.Count(x, r.top + 1, x + 1, r.bottom, 0x00E0E0);
    EXPECT_GT(nLine, 0);
    EXPECT_GT(nGap, 0);
    EXPECT_EQ(r.Height() - 1, nLine + nGap);
}

TEST(Grid, ShowGridRefusesWithFloatingLeftTicsAndARightAxis)
{
    CanvasGraph g;
    CGraph& graph = g.m_graph;
    EXPECT_EQ(GRAPH_OK, graph.ShowGrid(GRID_BOTHWAYS));
    EXPECT_EQ((DWORD)GRID_BOTHWAYS, g.Prv()->m_dwGridType);
    graph.SetYAxisLabel(1, "right");
    ASSERT_EQ(1, g.Prv()->m_nYTicType[0]);
    EXPECT_EQ(GRAPH_NOTAVAILABLE, graph.ShowGrid(GRID_BOTHWAYS));
    EXPECT_EQ((DWORD)GRID_NONE, g.Prv()->m_dwGridType);
    // SetGridAttributes hides the refusal and stores colour and style.
    EXPECT_EQ(GRAPH_OK, graph.SetGridAttributes(GRID_BOTHWAYS, 0x123456, 3));
    DWORD dwType = 0, crColor = 0;
    int nStyle = 0;
    EXPECT_EQ(GRAPH_OK, graph.GetGridAttributes(&dwType, &crColor, &nStyle));
    EXPECT_EQ(Str("%x %06x 3", GRID_NONE, 0x123456), Str("%lx %06lx %d", dwType, crColor, nStyle));
    // Fixed tics on the left axis allow the grid again.
    g.Prv()->SetTicMarkType(0, 0, NULL);
    EXPECT_EQ(GRAPH_OK, graph.ShowGrid(GRID_MAJOR | GRID_BOTHWAYS));
    EXPECT_EQ((DWORD)(GRID_MAJOR | GRID_BOTHWAYS), g.Prv()->m_dwGridType);
}

TEST(Grid, PlotTurnsTheGridOffForGoodWithFloatingLeftTicsAndARightAxis)
{
    // The grid was allowed while the right axis was hidden; once it shows,
    // with floating tics on the left, Plot takes the grid off, and it stays
    // off when the right axis goes again.
    CanvasGraph g;
    CGraph& graph = g.m_graph;
    CGraphPrv* p = g.Prv();
    ASSERT_NE(0, p->m_nYTicType[0]);
    ASSERT_EQ(GRAPH_OK, graph.SetGridAttributes(GRID_BOTHWAYS, crGrid, PS_SOLID));
    const int nMid = (p->m_rectPlot.top + p->m_rectPlot.bottom) / 2 + 1;
    ASSERT_EQ(GRAPH_OK, g.Plot());
    EXPECT_FALSE(GridColumns(g.m_dib, p->m_rectPlot, nMid).empty());

    graph.SetYAxisLabel(1, "right");
    g.Layout();
    for (const char* pszRight : { "right", "" }) {
        graph.SetYAxisLabel(1, pszRight);
        g.m_dib.Fill(WHITE);
        ASSERT_EQ(GRAPH_OK, g.Plot());
        EXPECT_EQ((DWORD)GRID_NONE, p->m_dwGridType) << pszRight;
        // No line crosses the middle of the plot; the tics keep to the edges.
        const CRect r = p->m_rectPlot;
        const int nTic = g.Metrics().tmHeight / 2 + 1;
        EXPECT_EQ(0, g.m_dib.Count(r.left + nTic, r.top + nTic, r.right - nTic, r.bottom - nTic, crGrid)) << pszRight;
    }
}

TEST(Grid, ScaledContextDrawsGridInDevicePixels)
{
    // Laid out in logical units of 0..200 x 0..150 on a canvas of twice that
    // size: the lines land on twice the tic pixels, one device pixel wide.
    CanvasGraph g;
    CGraphPrv* p = g.Prv();
    CDC* pDC = g.DC();
    p->SizeGraph(pDC, 0, 0, 200, 150, FALSE);
    p->SetTicMarkType(0, 0, NULL);
    p->SetGridAttributes(GRID_VERTICAL, crGrid, PS_SOLID);
    p->m_nGridPenWidth = 1;
    pDC->SetMapMode(MM_ANISOTROPIC);
    pDC->SetWindowExt(200, 150);
    pDC->SetViewportExt(400, 300);
    p->PlotGrid(pDC);
    EXPECT_EQ(MM_ANISOTROPIC, pDC->GetMapMode());
    pDC->SetMapMode(MM_TEXT);
    std::vector<int> expected;
    for (int i = 1; i <= 9; i++)
        expected.push_back(2 * p->m_nXTicPixel[i]);
    EXPECT_EQ(expected, GridColumns(g.m_dib, CRect(0, 0, 399, 299), p->m_rectPlot.top + p->m_rectPlot.bottom));
}

TEST(Grid, AWholePaintPutsTicsOverTheBackgroundBetweenGridLines)
{
    CanvasGraph g(400, 300, 0, 0x808080);
    CGraphPrv* p = g.Prv();
    CGraph& graph = g.m_graph;
    graph.SetTicMarkType(0, 0, NULL);
    graph.SetGridAttributes(GRID_MAJOR | GRID_BOTHWAYS, crGrid, PS_SOLID);
    graph.SetBackgroundColor(0xF0F0F0);
    ASSERT_EQ(GRAPH_OK, graph.Plot(g.DC(), 0));
    const CRect r = p->m_rectPlot;
    const int nMinor = g.Metrics().tmHeight / 4;
    // The grid at every second tic; the tics of the odd indices show on the
    // background between the grid lines.
    for (int i = 1; i <= 9; i++) {
        const int x = p->m_nXTicPixel[i];
        EXPECT_EQ(i % 2 == 0 ? crGrid : 0xF0F0F0u, g.m_dib.At(x, (r.top + r.bottom) / 2)) << i;
        if (i % 2 == 1) {
            EXPECT_EQ(crGrid, g.m_dib.At(x, r.bottom - nMinor + 1)) << i;
            EXPECT_EQ(0xF0F0F0u, g.m_dib.At(x, r.bottom - nMinor)) << i;
        }
    }
}
