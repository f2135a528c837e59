// Coordinate transforms: data to pixels with the 0.50001 rounding, the
// truncation toward zero and the bounds; the widening of equal limits; the
// conversions back with the exact tic values; the whole-series transform and
// its bounds on the float's bits; the plot rectangle test.
#include "AxesTestUtil.h"
#include "series/PlotData.h"

#include <math.h>
#include <string.h>

namespace {

// A graph whose plot runs from 50 to 550 across and from 20 to 220 down.
struct KnownPlot : GraphInHost
{
    KnownPlot()
    {
        Prv()->m_rectPlot.SetRect(50, 20, 550, 220);
    }
};

CPlotData* FindSeries(CGraphPrv* p, const char* pszName)
{
    CPlotData* pData = NULL;
    p->m_mapPlotData.Lookup(pszName, pData);
    return pData;
}

} // namespace

TEST(Transforms, DataToPixelX)
{
    KnownPlot g;
    g.m_graph.SetXAxisLimits(0.0, 100.0);
    EXPECT_EQ(50, g.m_graph.DataToPixelX(0.0));
    EXPECT_EQ(550, g.m_graph.DataToPixelX(100.0));
    EXPECT_EQ(300, g.m_graph.DataToPixelX(50.0));
    // 5 pixels per unit: 10.1 lies at 100.5, which rounds up.
    EXPECT_EQ(101, g.m_graph.DataToPixelX(10.1));
    // A reversed pair puts 0 on the right.
    g.m_graph.SetXAxisLimits(100.0, 0.0);
    EXPECT_EQ(550, g.m_graph.DataToPixelX(0.0));
    EXPECT_EQ(50, g.m_graph.DataToPixelX(100.0));
    double dScale, dOffset;
    g.Prv()->HorzXform(&dScale, &dOffset);
    EXPECT_EQ(-5.0, dScale);
    EXPECT_EQ(550.0, dOffset);
}

TEST(Transforms, DataToPixelY)
{
    KnownPlot g;
    g.m_graph.SetYAxisLimits(0.0, 10.0, 0);
    EXPECT_EQ(220, g.m_graph.DataToPixelY(0.0, 0));
    EXPECT_EQ(20, g.m_graph.DataToPixelY(10.0, 0));
    EXPECT_EQ(120, g.m_graph.DataToPixelY(5.0, 0));
    // Each axis has its own limits.
    g.m_graph.SetYAxisLimits(-100.0, 100.0, 1);
    EXPECT_EQ(120, g.m_graph.DataToPixelY(0.0, 1));
    EXPECT_EQ(20, g.m_graph.DataToPixelY(100.0, 1));
    double dScale, dOffset;
    g.Prv()->VertXform(&dScale, &dOffset, 1);
    EXPECT_EQ(1.0, dScale);
    EXPECT_EQ(120.0, dOffset);
}

TEST(Transforms, RoundingAndTruncation)
{
    GraphInHost g;
    // One pixel per unit from pixel 0: the pixel is the value plus 0.50001,
    // truncated toward zero.
    g.Prv()->m_rectPlot.SetRect(0, 0, 100, 100);
    g.m_graph.SetXAxisLimits(0.0, 100.0);
    EXPECT_EQ(3, g.m_graph.DataToPixelX(2.5));      // 3.00001
    EXPECT_EQ(2, g.m_graph.DataToPixelX(2.49998));  // 2.99999
    EXPECT_EQ(3, g.m_graph.DataToPixelX(2.49999));  // the constant is not 0.5
    EXPECT_EQ(0, g.m_graph.DataToPixelX(0.49998));
    EXPECT_EQ(0, g.m_graph.DataToPixelX(-1.5));     // -0.99999 truncates to 0
    EXPECT_EQ(-1, g.m_graph.DataToPixelX(-1.50001));
    EXPECT_EQ(-3, g.m_graph.DataToPixelX(-3.7));
}

TEST(Transforms, Bounds)
{
    KnownPlot g;
    g.m_graph.SetXAxisLimits(0.0, 100.0);
    g.m_graph.SetYAxisLimits(0.0, 10.0, 0);
    EXPECT_EQ(8192, g.m_graph.DataToPixelX(1e12));
    EXPECT_EQ(-8191, g.m_graph.DataToPixelX(-1e12));
    EXPECT_EQ(8192, g.m_graph.DataToPixelX(HUGE_VAL));
    EXPECT_EQ(-8191, g.m_graph.DataToPixelX(-HUGE_VAL));
    EXPECT_EQ(-8191, g.m_graph.DataToPixelX(sqrt(-1.0)));
    // Near the upper bound: 8192 is not above 8192 and rounds to 8192.
    EXPECT_EQ(8192, g.m_graph.DataToPixelX((8192.0 - 50.0) / 5.0));
    EXPECT_EQ(8191, g.m_graph.DataToPixelX((8191.4 - 50.0) / 5.0));
    // Y: far up is a small pixel, far down a large one.
    EXPECT_EQ(-8191, g.m_graph.DataToPixelY(1e12, 0));
    EXPECT_EQ(8192, g.m_graph.DataToPixelY(-1e12, 0));
}

TEST(Transforms, EqualLimitsAreWidenedByTheFirstTransform)
{
    KnownPlot g;
    CGraphPrv* p = g.Prv();
    g.m_graph.SetXAxisLimits(3.0, 3.0);
    ASSERT_EQ(3.0, p->m_dXMin);
    ASSERT_EQ(3.0, p->m_dXMax);
    g.m_graph.DataToPixelX(3.0);
    EXPECT_DOUBLE_EQ(2.994, p->m_dXMin);
    EXPECT_DOUBLE_EQ(3.006, p->m_dXMax);
    EXPECT_EQ(3.0 * 1.002, p->m_dXMax);
    EXPECT_EQ(3.0 - 3.0 * 0.002, p->m_dXMin);
    // The tic table was recomputed for the widened pair.
    EXPECT_EQ(p->m_dXMin, p->m_dXTicValue[0]);
    EXPECT_EQ(p->m_dXMax, p->m_dXTicValue[p->m_nXTicCount]);
    EXPECT_GT(p->m_nXTicCount, 1);
    // And the value lies in the middle of the plot.
    EXPECT_EQ(300, g.m_graph.DataToPixelX(3.0));

    // Zero: the maximum becomes 2^-23, the minimum stays 0.
    g.m_graph.SetXAxisLimits(0.0, 0.0);
    g.m_graph.DataToPixelX(0.0);
    EXPECT_EQ(1.1920928955078125e-7, p->m_dXMax);
    EXPECT_EQ(0.0, p->m_dXMin);

    // Equal negative limits come out reversed.
    g.m_graph.SetYAxisLimits(-2.0, -2.0, 1);
    g.m_graph.DataToPixelY(-2.0, 1);
    EXPECT_EQ(-2.0 * 1.002, p->m_dYMax[1]);
    EXPECT_EQ(-2.0 - -2.0 * 0.002, p->m_dYMin[1]);
    EXPECT_GT(p->m_dYMin[1], p->m_dYMax[1]);

    // Zero on a Y axis, through the conversion back.
    g.m_graph.SetYAxisLimits(0.0, 0.0, 0);
    g.m_graph.PixelToDataY(100, 0);
    EXPECT_EQ(1.1920928955078125e-7, p->m_dYMax[0]);
    EXPECT_EQ(0.0, p->m_dYMin[0]);
}

TEST(Transforms, PixelToDataPrefersExactTics)
{
    KnownPlot g;
    CGraphPrv* p = g.Prv();
    g.m_graph.SetXAxisLimits(0.0, 1.0);
    ASSERT_EQ(5, p->m_nXTicCount);
    ASSERT_EQ(350, p->m_nXTicPixel[3]);
    // On tic 3 the table's own value, which carries the small constant.
    EXPECT_EQ(p->m_dXTicValue[3], g.m_graph.PixelToDataX(350));
    EXPECT_DOUBLE_EQ(0.60000051, g.m_graph.PixelToDataX(350));
    EXPECT_NE(0.6, g.m_graph.PixelToDataX(350));
    // Between tics, and on the last tic, the formula.
    EXPECT_DOUBLE_EQ(0.1, g.m_graph.PixelToDataX(100));
    EXPECT_DOUBLE_EQ((550 - p->m_dXOffset) / p->m_dXScale, g.m_graph.PixelToDataX(550));
    // Left of the first tic, the formula too.
    EXPECT_DOUBLE_EQ(-0.1, g.m_graph.PixelToDataX(0));

    g.m_graph.SetYAxisLimits(0.0, 1.0, 0);
    ASSERT_EQ(140, p->m_nYTicPixel[0][2]);
    EXPECT_EQ(p->m_dYTicValue[0][2], g.m_graph.PixelToDataY(140, 0));
    EXPECT_DOUBLE_EQ(0.40000051, g.m_graph.PixelToDataY(140, 0));
    EXPECT_NE(0.4, g.m_graph.PixelToDataY(140, 0));
    EXPECT_DOUBLE_EQ(0.5, g.m_graph.PixelToDataY(120, 0));
    // Below the first (bottom) tic the formula.
    EXPECT_DOUBLE_EQ(-0.1, g.m_graph.PixelToDataY(240, 0));
}

TEST(Transforms, RptUsesTheStoredTransform)
{
    KnownPlot g;
    CGraphPrv* p = g.Prv();
    g.m_graph.SetXAxisLimits(0.0, 100.0);
    g.m_graph.SetYAxisLimits(0.0, 10.0, 0);
    g.m_graph.PixelToDataX(0);
    g.m_graph.PixelToDataY(0, 0);
    EXPECT_EQ(5.0, p->m_dXScale);
    EXPECT_EQ(50.0, p->m_dXOffset);
    EXPECT_EQ(20.0, p->m_dYScale[0]);
    EXPECT_EQ(220.0, p->m_dYOffset[0]);

    // The plot moves, but the Rpt forms keep the old transform.
    p->m_rectPlot.SetRect(0, 0, 1000, 1000);
    EXPECT_DOUBLE_EQ(10.0, g.m_graph.PixelToDataXRpt(100));
    EXPECT_DOUBLE_EQ(5.0, g.m_graph.PixelToDataYRpt(120, 0));
    // A new PixelToDataX renews it.
    EXPECT_DOUBLE_EQ(10.0, g.m_graph.PixelToDataX(100));
    EXPECT_EQ(10.0, p->m_dXScale);
    EXPECT_EQ(0.0, p->m_dXOffset);
}

TEST(Transforms, XformPlotData)
{
    KnownPlot g;
    CGraphPrv* p = g.Prv();
    g.m_graph.SetXAxisLimits(0.0, 100.0);
    g.m_graph.SetYAxisLimits(0.0, 10.0, 0);
    g.m_graph.SetYAxisLimits(-100.0, 100.0, 1);

    const float fInf = (float)HUGE_VAL;
    float x[] = { 0.0f, 100.0f, 50.0f, 10.1f, -1e6f, 1e6f, fInf, -fInf, 1628.4f, 1628.5f, -1648.0f, -11.6f };
    float y[] = { 0.0f, 10.0f, 5.0f, 2.5f, 1e6f, -1e6f, -fInf, fInf, 0.0f, 0.0f, 0.0f, 0.0f };
    const long n = sizeof(x) / sizeof(x[0]);
    ASSERT_EQ(1, g.m_graph.AddPlotData("s", PLOT_YLEFT, x, y, n, 0, 0, 0));
    CPlotData* pData = FindSeries(p, "s");
    ASSERT_TRUE(pData != NULL);

    POINT pts[n + 1];
    memset(pts, 0x5A, sizeof(pts));
    p->XformPlotData(pData, pts);

    // Inside the bounds: the float of scale * v + offset + 0.50001, truncated.
    double dXs, dXo, dYs, dYo;
    p->HorzXform(&dXs, &dXo);
    p->VertXform(&dYs, &dYo, 0);
    for (int i : { 0, 1, 2, 3, 11 }) {
        EXPECT_EQ((int)(float)(dXs * x[i] + (dXo + 0.50001)), pts[i].x) << i;
        EXPECT_EQ((int)(float)((dYo + 0.50001) - dYs * y[i]), pts[i].y) << i;
    }
    EXPECT_EQ(50, pts[0].x);
    EXPECT_EQ(220, pts[0].y);
    EXPECT_EQ(550, pts[1].x);
    EXPECT_EQ(20, pts[1].y);
    EXPECT_EQ(-7, pts[11].x);   // -7.49999 truncated toward zero
    // Far out, and infinite: the bounds, both reached.
    EXPECT_EQ(-8192, pts[4].x);
    EXPECT_EQ(-8192, pts[4].y);
    EXPECT_EQ(8192, pts[5].x);
    EXPECT_EQ(8192, pts[5].y);
    EXPECT_EQ(8192, pts[6].x);
    EXPECT_EQ(8192, pts[6].y);
    EXPECT_EQ(-8192, pts[7].x);
    EXPECT_EQ(-8192, pts[7].y);
    // 8192 itself is out (its exponent says so), 8191.x is in.
    EXPECT_EQ(8192, pts[9].x);    // 50 + 5 * 1628.5 + 0.50001 = 8193.0
    EXPECT_EQ(8192, pts[8].x);    // 8192.50001
    EXPECT_EQ(-8189, pts[10].x);  // -8189.49999
    // Nothing is written behind the series.
    EXPECT_EQ(0x5A5A5A5A, pts[n].x);

    // DataToPixelX stops at -8191 where the series transform gives -8192.
    EXPECT_EQ(-8191, g.m_graph.DataToPixelX(-1e6));

    // A series of the right axis, from its first index.
    ASSERT_EQ(1, g.m_graph.AddPlotData("r", PLOT_YRIGHT, x, y, 3, 0, 0, 0));
    CPlotData* pRight = FindSeries(p, "r");
    ASSERT_TRUE(pRight != NULL);
    pRight->m_lStartIndex = 1;
    POINT pr[3];
    p->XformPlotData(pRight, pr);
    EXPECT_EQ(550, pr[0].x);
    EXPECT_EQ(110, pr[0].y);   // 10 on -100..100: 120 - 10 + 0.50001
    EXPECT_EQ(300, pr[1].x);
    EXPECT_EQ(115, pr[1].y);
    EXPECT_EQ(101, pr[2].x);   // 10.1f lies a hair above 10.1
    g.m_graph.RemoveAllPlotData();
}

TEST(Transforms, XformPlotDataOfFloatBoundaries)
{
    GraphInHost g;
    CGraphPrv* p = g.Prv();
    // One pixel per unit from 0, so the pixel is the value + 0.50001.
    p->m_rectPlot.SetRect(0, 0, 100, 100);
    g.m_graph.SetXAxisLimits(0.0, 100.0);
    g.m_graph.SetYAxisLimits(0.0, 100.0, 0);
    float x[] = { 8190.0f, 8191.4f, 8191.5f, -8191.6f, -8192.6f, 2047.0f };
    float y[] = { 0, 0, 0, 0, 0, 0 };
    const long n = sizeof(x) / sizeof(x[0]);
    ASSERT_EQ(1, g.m_graph.AddPlotData("b", PLOT_YLEFT, x, y, n, 0, 0, 0));
    POINT pts[n];
    p->XformPlotData(FindSeries(p, "b"), pts);
    EXPECT_EQ(8190, pts[0].x);
    EXPECT_EQ(8191, pts[1].x);    // 8191.90001
    EXPECT_EQ(8192, pts[2].x);    // 8192.00001 as float is 8192: out, +8192
    EXPECT_EQ(-8191, pts[3].x);   // -8191.09999
    EXPECT_EQ(-8192, pts[4].x);   // -8192.09999: out, -8192
    EXPECT_EQ(2047, pts[5].x);
    g.m_graph.RemoveAllPlotData();
}

TEST(Transforms, IsPointInPlotRect)
{
    KnownPlot g;
    CGraphPrv* p = g.Prv();
    g.m_graph.SetXAxisLimits(0.0, 100.0);
    g.m_graph.SetYAxisLimits(0.0, 10.0, 0);
    g.m_graph.SetYAxisLimits(0.0, 20.0, 1);
    double d;
    // Y: the bottom edge (value 0) is out, the top edge (value 10) is in.
    d = 0.0;
    EXPECT_FALSE(p->IsPointInPlotRect(d, 0));
    d = 10.0;
    EXPECT_TRUE(p->IsPointInPlotRect(d, 0));
    d = 0.1;
    EXPECT_TRUE(p->IsPointInPlotRect(d, 0));
    d = 10.1;
    EXPECT_FALSE(p->IsPointInPlotRect(d, 0));
    d = 20.0;
    EXPECT_TRUE(p->IsPointInPlotRect(d, 1));
    d = 10.0;
    EXPECT_TRUE(p->IsPointInPlotRect(d, 1));
    // X: the left edge is in, the right edge out.
    d = 0.0;
    EXPECT_TRUE(p->IsPointInPlotRect(d, 2));
    d = 100.0;
    EXPECT_FALSE(p->IsPointInPlotRect(d, 2));
    d = 99.8;
    EXPECT_TRUE(p->IsPointInPlotRect(d, 2));
    d = -0.2;
    EXPECT_FALSE(p->IsPointInPlotRect(d, 2));
    // Pixels directly.
    int n = 219;
    EXPECT_TRUE(p->IsPointInPlotRect(n, 0));
    n = 220;
    EXPECT_FALSE(p->IsPointInPlotRect(n, 1));
    n = 20;
    EXPECT_TRUE(p->IsPointInPlotRect(n, 1));
    n = 50;
    EXPECT_TRUE(p->IsPointInPlotRect(n, 2));
    n = 549;
    EXPECT_TRUE(p->IsPointInPlotRect(n, 2));
    n = 550;
    EXPECT_FALSE(p->IsPointInPlotRect(n, 2));
    // Any other kind is outside.
    n = 100;
    EXPECT_FALSE(p->IsPointInPlotRect(n, 3));
    d = 5.0;
    EXPECT_FALSE(p->IsPointInPlotRect(d, -1));
}
