// Grid lines at the tic pixels by the bits of the grid type, their pen and
// background, the rule of ShowGrid, and the device-pixel grid of a scaled
// context.
#include "TextTestUtil.h"

namespace {

const COLORREF crGrid = 0x00A000;
const COLORREF crWhite = 0xFFFFFF;

// A vertical grid line at x: every pixel from top + 1 to bottom - 1.
bool HasVerticalLine(const DibCanvas& c, const CRect& r, int x)
{
    for (int y = r.top + 1; y < r.bottom; y++)
        if (c.At(x, y) != crGrid)
            return false;
    return c.At(x, r.top) != crGrid && c.At(x, r.bottom) != crGrid;
}

bool HasHorizontalLine(const DibCanvas& c, const CRect& r, int y)
{
    for (int x = r.left + 1; x < r.right; x++)
        if (c.At(x, y) != crGrid)
            return false;
    return c.At(r.left, y) != crGrid && c.At(r.right, y) != crGrid;
}

// Columns of the plot's middle row that carry the grid colour.
std::vector<int> GridColumns(const DibCanvas& c, const CRect& r, int y)
{
    std::vector<int> columns;
    for (int x = r.left; x <= r.right; x++)
        if (c.At(x, y) == crGrid)
            columns.push_back(x);
    return columns;
}

void SetUpFixed(GraphOnCanvas& g, DWORD dwType)
{
    CGraphPrv* p = g.Prv();
    ASSERT_EQ(1, p->SetTicMarkType(0, 0, NULL));
    ASSERT_EQ(1, p->SetGridAttributes(dwType, crGrid, PS_SOLID));
}

} // namespace

TEST(Grid, MajorOnlyOnFixedTicsTakesEverySecondTicFromTwo)
{
    GraphOnCanvas g(400, 300);
    SetUpFixed(g, 0x0A);
    CGraphPrv* p = g.Prv();
    p->PlotGrid(g.DC());
    const CRect r = p->m_rectPlot;
    for (int i = 1; i <= 9; i++)
        EXPECT_EQ(i % 2 == 0, HasVerticalLine(g.m_canvas, r, p->m_nXTicPixel[i])) << i;
    // Bit 0x10 is not set: no horizontal line.
    const int yMid = (p->m_nYTicPixel[0][4] + p->m_nYTicPixel[0][5]) / 2;
    std::vector<int> columns = GridColumns(g.m_canvas, r, yMid);
    ASSERT_EQ(4u, columns.size());
    EXPECT_EQ(p->m_nXTicPixel[2], columns[0]);
    EXPECT_EQ(p->m_nXTicPixel[8], columns[3]);
    for (int i = 1; i <= 9; i++)
        EXPECT_FALSE(HasHorizontalLine(g.m_canvas, r, p->m_nYTicPixel[0][i])) << i;
}

TEST(Grid, BothDirectionsAtEveryFixedTic)
{
    GraphOnCanvas g(400, 300);
    SetUpFixed(g, 0x18);
    CGraphPrv* p = g.Prv();
    p->PlotGrid(g.DC());
    const CRect r = p->m_rectPlot;
    for (int i = 1; i <= 9; i++) {
        EXPECT_TRUE(HasVerticalLine(g.m_canvas, r, p->m_nXTicPixel[i])) << i;
        EXPECT_TRUE(HasHorizontalLine(g.m_canvas, r, p->m_nYTicPixel[0][i])) << i;
    }
    // The end tics lie on the frame: no line there, and none outside the plot.
    EXPECT_EQ(0, g.m_canvas.Count(0, 0, 400, r.top + 1, crGrid));
    EXPECT_EQ(0, g.m_canvas.Count(0, r.bottom, 400, 300, crGrid));
    EXPECT_EQ(0, g.m_canvas.Count(0, 0, r.left + 1, 300, crGrid));
    EXPECT_EQ(0, g.m_canvas.Count(r.right, 0, 400, 300, crGrid));
}

TEST(Grid, TypesThatDrawNothing)
{
    // 0: PlotGrid runs and draws no line; 0x02 or 0x04 without a direction
    // bit likewise.
    const DWORD adw[3] = { 0, 0x02, 0x04 };
    for (DWORD dw : adw) {
        GraphOnCanvas g(400, 300);
        SetUpFixed(g, dw);
        g.Prv()->PlotGrid(g.DC());
        EXPECT_EQ(0, g.m_canvas.Count(0, 0, 400, 300, crGrid)) << dw;
    }
}

TEST(Grid, MinorBitWithoutMinorTicsGivesMajorLinesOnly)
{
    GraphOnCanvas g(500, 400);
    CGraphPrv* p = g.Prv();
    ASSERT_EQ(1, p->SetTicMarkType(1, 0, NULL));
    p->SetXAxisLimits(0.0, 1.0);
    p->SetGridAttributes(0x0C, crGrid, PS_SOLID);
    p->PlotGrid(g.DC());
    const CRect r = p->m_rectPlot;
    std::vector<int> columns = GridColumns(g.m_canvas, r, (r.top + r.bottom) / 2);
    ASSERT_EQ((size_t)(p->m_nXTicCount - 1), columns.size());
    for (int i = 1; i < p->m_nXTicCount; i++)
        EXPECT_EQ(p->m_nXTicPixel[i], columns[i - 1]);
}

TEST(Grid, MajorBitWithFloatingTicsDrawsEveryTic)
{
    GraphOnCanvas g(500, 400);
    CGraphPrv* p = g.Prv();
    ASSERT_EQ(1, p->SetTicMarkType(1, 0, NULL));
    p->SetXAxisLimits(0.0, 1.0);
    p->SetGridAttributes(0x0A, crGrid, PS_SOLID);
    p->PlotGrid(g.DC());
    const CRect r = p->m_rectPlot;
    ASSERT_GE(p->m_nXTicCount, 3);
    for (int i = 1; i < p->m_nXTicCount; i++)
        EXPECT_TRUE(HasVerticalLine(g.m_canvas, r, p->m_nXTicPixel[i])) << i;
}

TEST(Grid, MinorLinesOfFloatingTics)
{
    // Tables by hand: X tics at 50, 100, 200, 250 (count 3) with minor
    // offsets 25 and 50 in an interval of 50; left Y tics at 150, 100, 20.
    GraphOnCanvas g(300, 200);
    CGraphPrv* p = g.Prv();
    p->m_rectPlot.SetRect(50, 20, 250, 150);
    p->m_nXTicType = 1;
    p->m_nMinorTics = 1;
    p->m_nXTicCount = 3;
    const int anX[4] = { 50, 100, 200, 250 };
    for (int i = 0; i < 4; i++)
        p->m_nXTicPixel[i] = anX[i];
    p->m_nMinorTicCount[0] = 2;
    p->m_MinorX.nSpacing = 50;
    p->m_MinorX.nOffset[0] = 25;
    p->m_MinorX.nOffset[1] = 50;
    p->m_nYTicCount[0] = 2;
    p->m_nYTicPixel[0][0] = 150;
    p->m_nYTicPixel[0][1] = 100;
    p->m_nYTicPixel[0][2] = 20;
    p->m_nMinorTicCount[1] = 1;
    p->m_MinorYLeft.nSpacing = 50;
    p->m_MinorYLeft.nOffset[0] = 25;
    p->m_dwGridType = 0x1C;
    p->m_crGrid = crGrid;
    p->PlotGrid(g.DC());

    const CRect r = p->m_rectPlot;
    // Vertical: before tic 1 at 75 (100 - 50 + 25) and at 100 itself (the
    // major tic, drawn again); tic 1 at 100, minors 125 and 150; tic 2 at
    // 200 and its minor 225; 250 lies on the right edge and is left out.
    std::vector<int> columns = GridColumns(g.m_canvas, r, 60);
    const int anExpected[6] = { 75, 100, 125, 150, 200, 225 };
    ASSERT_EQ(6u, columns.size());
    for (int i = 0; i < 6; i++)
        EXPECT_EQ(anExpected[i], columns[i]);
    // Horizontal: under tic 1 at 125 (100 + 50 - 25), tic 1 at 100, above
    // it at 75.
    EXPECT_TRUE(HasHorizontalLine(g.m_canvas, r, 125));
    EXPECT_TRUE(HasHorizontalLine(g.m_canvas, r, 100));
    EXPECT_TRUE(HasHorizontalLine(g.m_canvas, r, 75));
    EXPECT_FALSE(HasHorizontalLine(g.m_canvas, r, 50));
}

TEST(Grid, DashedGridGapsTakeThePlotBackground)
{
    GraphOnCanvas g(400, 300);
    SetUpFixed(g, 0x08);
    CGraphPrv* p = g.Prv();
    p->m_dwGridStyle = PS_DASH;
    p->m_crBackground = 0x00E0E0;
    p->PlotGrid(g.DC());
    const CRect r = p->m_rectPlot;
    const int x = p->m_nXTicPixel[5];
    const int nLine = g.m_canvas.Count(x, r.top + 1, x + 1, r.bottom, crGrid);
    const int nGap = g.m_canvas.Count(x, r.top + 1, x + 1, r.bottom, 0x00E0E0);
    EXPECT_GT(nLine, 0);
    EXPECT_GT(nGap, 0);
    EXPECT_EQ(r.bottom - r.top - 1, nLine + nGap);
    // The context's background colour is given back.
    EXPECT_EQ(0xFFFFFFu, ::GetBkColor(g.DC()->m_hDC));
}

TEST(Grid, ShowGridRefusesWithFloatingLeftTicsAndARightAxis)
{
    GraphOnCanvas g(400, 300);
    CGraph& graph = g.m_graph;
    CGraphPrv* p = g.Prv();
    EXPECT_EQ(GRAPH_OK, graph.ShowGrid(0x18));
    EXPECT_EQ(0x18u, p->m_dwGridType);
    graph.SetYAxisLabel(1, "right");
    ASSERT_EQ(1, p->m_nYTicType[0]);
    EXPECT_EQ(GRAPH_NOTAVAILABLE, graph.ShowGrid(0x18));
    EXPECT_EQ(1u, p->m_dwGridType);
    // SetGridAttributes hides the refusal and stores colour and style.
    EXPECT_EQ(GRAPH_OK, graph.SetGridAttributes(0x18, 0x123456, 3));
    DWORD dwType = 0, crColor = 0;
    int nStyle = 0;
    EXPECT_EQ(GRAPH_OK, graph.GetGridAttributes(&dwType, &crColor, &nStyle));
    EXPECT_EQ(1u, dwType);
    EXPECT_EQ(0x123456u, crColor);
    EXPECT_EQ(3, nStyle);
    // Fixed tics on the left axis allow the grid again.
    p->SetTicMarkType(0, 0, NULL);
    EXPECT_EQ(GRAPH_OK, graph.ShowGrid(0x1A));
    EXPECT_EQ(0x1Au, p->m_dwGridType);
}

TEST(Grid, ScaledContextDrawsGridInDevicePixels)
{
    // The graph is laid out in logical units of 0..200 x 0..150 on a canvas
    // of twice that size. Grid lines land on twice the tic pixels and keep
    // a pen width of one device pixel.
    GraphOnCanvas g(400, 300);
    CGraphPrv* p = g.Prv();
    CDC* pDC = g.DC();
    p->SizeGraph(pDC, 0, 0, 200, 150, FALSE);
    p->SetTicMarkType(0, 0, NULL);
    p->SetGridAttributes(0x08, crGrid, PS_SOLID);
    p->m_nGridPenWidth = 1;
    pDC->SetMapMode(MM_ANISOTROPIC);
    pDC->SetWindowExt(200, 150);
    pDC->SetViewportExt(400, 300);
    p->PlotGrid(pDC);
    EXPECT_EQ(MM_ANISOTROPIC, pDC->GetMapMode());
    pDC->SetMapMode(MM_TEXT);

    const CRect r = p->m_rectPlot;
    const int yDevice = r.top + r.bottom;   // the middle row, in device pixels
    std::vector<int> columns;
    for (int x = 0; x < 400; x++)
        if (g.m_canvas.At(x, yDevice) == crGrid)
            columns.push_back(x);
    ASSERT_EQ(9u, columns.size());
    for (int i = 1; i <= 9; i++)
        EXPECT_EQ(2 * p->m_nXTicPixel[i], columns[i - 1]) << i;
}

TEST(Grid, WholePlotPutsTicsGridAndNumbersOnTheFilledPlot)
{
    GraphOnCanvas g(400, 300, GS_NOWINDOW, 0x808080);
    CGraphPrv* p = g.Prv();
    CGraph& graph = g.m_graph;
    graph.SetTicMarkType(0, 0, NULL);
    graph.SetGridAttributes(0x1A, crGrid, PS_SOLID);
    graph.SetBackgroundColor(0xF0F0F0);
    graph.SetXAxisNumFmt("%.1f");
    graph.SetXAxisLimits(0.0, 10.0);
    ASSERT_EQ(GRAPH_OK, graph.Plot(g.DC(), 0));

    const CRect r = p->m_rectPlot;
    DibCanvas& c = g.m_canvas;
    const int nMinor = g.Metrics().tmHeight / 4;
    // The grid at every second tic over the background; the tics of the
    // odd indices show on the background between the grid lines.
    for (int i = 1; i <= 9; i++) {
        const int x = p->m_nXTicPixel[i];
        const COLORREF crMiddle = c.At(x, (r.top + r.bottom) / 2);
        EXPECT_EQ(i % 2 == 0 ? crGrid : 0xF0F0F0u, crMiddle) << i;
        if (i % 2 == 1) {
            EXPECT_EQ(crGrid, c.At(x, r.bottom - nMinor + 1)) << i;
            EXPECT_EQ(0xF0F0F0u, c.At(x, r.bottom - nMinor)) << i;
        }
    }
    // The X numbers stand in their rectangles outside the plot.
    EXPECT_GT(c.CountOther(p->m_rectLimit[0].left, p->m_rectLimit[0].top, p->m_rectLimit[0].right,
                           p->m_rectLimit[0].bottom, 0x808080), 0);
    EXPECT_GE(p->m_rectLimit[0].top, r.bottom);
}
