// Coordinate transforms: data to pixels with the 0.50001 rounding, the
// truncation toward zero and the bounds; the widening of equal limits; the
// conversions back with the exact tic values; the whole-series transform and
// its bounds on the float's bits.
#include "TestUtil.h"
#include "TestAccess.h"

#include <math.h>

namespace {

// A graph whose plot runs from 50 to 550 across and from 20 to 220 down,
// with X 0..100 (5 pixels a unit), left Y 0..10 and right Y -100..100.
struct KnownPlot : GraphInHost
{
    KnownPlot()
    {
        Prv()->m_rectPlot.SetRect(50, 20, 550, 220);
        m_graph.SetXAxisLimits(0.0, 100.0);
        m_graph.SetYAxisLimits(0.0, 10.0, 0);
        m_graph.SetYAxisLimits(-100.0, 100.0, 1);
    }
    ~KnownPlot() { m_graph.RemoveAllPlotData(); }
};

} // namespace

TEST(Transforms, DataToPixelRoundsTruncatesAndBounds)
{
    KnownPlot g;
    const struct
    {
        double d;
        int nX;
    } xs[] = {
        { 0.0, 50 }, { 100.0, 550 }, { 50.0, 300 },
        { 10.1, 101 },   // 100.5 rounds up
        { (8192.0 - 50.0) / 5.0, 8192 }, { (8191.4 - 50.0) / 5.0, 8191 },
        { 1e12, 8192 }, { -1e12, -8191 }, { HUGE_VAL, 8192 }, { -HUGE_VAL, -8191 }, { sqrt(-1.0), -8191 },
    };
    for (const auto& c : xs)
        EXPECT_EQ(c.nX, g.m_graph.DataToPixelX(c.d)) << c.d;
    EXPECT_EQ(220, g.m_graph.DataToPixelY(0.0, 0));
    EXPECT_EQ(120, g.m_graph.DataToPixelY(5.0, 0));
    EXPECT_EQ(20, g.m_graph.DataToPixelY(100.0, 1));   // each axis its own limits
    EXPECT_EQ(120, g.m_graph.DataToPixelY(0.0, 1));
    EXPECT_EQ(-8191, g.m_graph.DataToPixelY(1e12, 0));   // far up is a small pixel
    EXPECT_EQ(8192, g.m_graph.DataToPixelY(-1e12, 0));

    // One pixel a unit from pixel 0: the value plus 0.50001, truncated
    // toward zero.
    g.Prv()->m_rectPlot.SetRect(0, 0, 100, 100);
    g.m_graph.SetXAxisLimits(0.0, 100.0);
    const double ad[] = { 2.5, 2.49998, 2.49999, 0.49998, -1.5, -1.50001, -3.7 };
    const int an[] = { 3, 2, 3 /* the constant is not 0.5 */, 0, 0, -1, -3 };
    for (int i = 0; i < 7; i++)
        EXPECT_EQ(an[i], g.m_graph.DataToPixelX(ad[i])) << ad[i];

    // A reversed pair puts 0 on the right.
    g.Prv()->m_rectPlot.SetRect(50, 20, 550, 220);
    g.m_graph.SetXAxisLimits(100.0, 0.0);
    EXPECT_EQ(550, g.m_graph.DataToPixelX(0.0));
    double dScale, dOffset;
    CGraphTestAccess::HorzXform(g.Prv(), &dScale, &dOffset);
    EXPECT_EQ(-5.0, dScale);
    EXPECT_EQ(550.0, dOffset);
    CGraphTestAccess::VertXform(g.Prv(), &dScale, &dOffset, 1);
    EXPECT_EQ(1.0, dScale);
    EXPECT_EQ(120.0, dOffset);
}

TEST(Transforms, EqualLimitsAreWidenedByTheFirstTransform)
{
    KnownPlot g;
    CGraphPrv* p = g.Prv();
    g.m_graph.SetXAxisLimits(3.0, 3.0);
    ASSERT_EQ(3.0, p->m_dXMin);
    EXPECT_EQ(300, g.m_graph.DataToPixelX(3.0));   // in the middle of the plot
    EXPECT_DOUBLE_EQ(2.994, p->m_dXMin);
    EXPECT_DOUBLE_EQ(3.006, p->m_dXMax);
    // The tic table was recomputed for the widened pair.
    EXPECT_EQ(p->m_dXMax, p->m_dXTicValue[p->m_nXTicCount]);
    EXPECT_GT(p->m_nXTicCount, 1);

    // Zero: the maximum becomes 2^-23, the minimum stays 0.
    g.m_graph.SetXAxisLimits(0.0, 0.0);
    g.m_graph.DataToPixelX(0.0);
    EXPECT_EQ(1.1920928955078125e-7, p->m_dXMax);
    EXPECT_EQ(0.0, p->m_dXMin);
    // Equal negative limits come out reversed.
    g.m_graph.SetYAxisLimits(-2.0, -2.0, 1);
    g.m_graph.DataToPixelY(-2.0, 1);
    EXPECT_DOUBLE_EQ(-2.004, p->m_dYMax[1]);
    EXPECT_DOUBLE_EQ(-1.996, p->m_dYMin[1]);
    // Zero on a Y axis, through the conversion back.
    g.m_graph.SetYAxisLimits(0.0, 0.0, 0);
    g.m_graph.PixelToDataY(100, 0);
    EXPECT_EQ(1.1920928955078125e-7, p->m_dYMax[0]);
}

TEST(Transforms, PixelToDataPrefersExactTics)
{
    KnownPlot g;
    CGraphPrv* p = g.Prv();
    g.m_graph.SetXAxisLimits(0.0, 1.0);
    ASSERT_EQ(350, p->m_nXTicPixel[3]);
    // On tic 3 the table's own value, which carries the small constant;
    // between tics, on the last tic and outside, the formula.
    EXPECT_EQ(p->m_dXTicValue[3], g.m_graph.PixelToDataX(350));
    EXPECT_DOUBLE_EQ(0.60000051, g.m_graph.PixelToDataX(350));
    EXPECT_DOUBLE_EQ(0.1, g.m_graph.PixelToDataX(100));
    EXPECT_DOUBLE_EQ(1.0, g.m_graph.PixelToDataX(550));
    EXPECT_DOUBLE_EQ(-0.1, g.m_graph.PixelToDataX(0));
    g.m_graph.SetYAxisLimits(0.0, 1.0, 0);
    ASSERT_EQ(140, p->m_nYTicPixel[0][2]);
    EXPECT_DOUBLE_EQ(0.40000051, g.m_graph.PixelToDataY(140, 0));
    EXPECT_DOUBLE_EQ(0.5, g.m_graph.PixelToDataY(120, 0));
    EXPECT_DOUBLE_EQ(-0.1, g.m_graph.PixelToDataY(240, 0));

    // The Rpt forms keep the transform of the last conversion, even after
    // the plot moves; a new PixelToDataX renews it.
    g.m_graph.SetXAxisLimits(0.0, 100.0);
    g.m_graph.SetYAxisLimits(0.0, 10.0, 0);
    g.m_graph.PixelToDataX(0);
    g.m_graph.PixelToDataY(0, 0);
    p->m_rectPlot.SetRect(0, 0, 1000, 1000);
    EXPECT_DOUBLE_EQ(10.0, g.m_graph.PixelToDataXRpt(100));
    EXPECT_DOUBLE_EQ(5.0, g.m_graph.PixelToDataYRpt(120, 0));
    EXPECT_DOUBLE_EQ(10.0, g.m_graph.PixelToDataX(100));
    EXPECT_EQ(10.0, p->m_dXScale);
}

TEST(Transforms, XformPlotDataBoundsOnTheFloatsExponent)
{
    KnownPlot g;
    CGraphPrv* p = g.Prv();
    const float fInf = (float)HUGE_VAL;
    // Inside: the float of scale * v + offset + 0.50001, truncated toward
    // zero. Outside 8192 (by the float's exponent) and infinite: +-8192.
    float x[] = { 0.0f, 100.0f, 10.1f, -11.6f, 1628.4f, 1628.5f, -1648.0f, -1e6f, 1e6f, fInf, -fInf };
    float y[] = { 0.0f, 10.0f, 2.5f, 0.0f, 0.0f, 0.0f, 0.0f, 1e6f, -1e6f, -fInf, fInf };
    const POINT expected[] = { { 50, 220 },   { 550, 20 },   { 101, 170 },   { -7, 220 },   // -7.49999
                               { 8192, 220 }, { 8192, 220 }, { -8189, 220 }, { -8192, -8192 },
                               { 8192, 8192 }, { 8192, 8192 }, { -8192, -8192 } };
    const long n = sizeof(x) / sizeof(x[0]);
    ASSERT_EQ(1, g.m_graph.AddPlotData("s", PLOT_YLEFT, x, y, n, 0, 0, 0));
    POINT pts[n + 1];
    memset(pts, 0x5A, sizeof(pts));
    CGraphTestAccess::XformPlotData(p, FindSeries(p, "s"), pts);
    for (long i = 0; i < n; i++) {
        EXPECT_EQ(expected[i].x, pts[i].x) << i;
        EXPECT_EQ(expected[i].y, pts[i].y) << i;
    }
    EXPECT_EQ(0x5A5A5A5A, pts[n].x);   // nothing written behind the series
    EXPECT_EQ(-8191, g.m_graph.DataToPixelX(-1e6));   // where the series gives -8192

    // One pixel a unit from 0: 8192.00001 as a float is 8192, which is out.
    p->m_rectPlot.SetRect(0, 0, 100, 100);
    g.m_graph.SetXAxisLimits(0.0, 100.0);
    float xb[] = { 8191.4f, 8191.5f, -8191.6f, -8192.6f };
    ASSERT_EQ(1, g.m_graph.AddPlotData("b", PLOT_YLEFT, xb, xb, 4, 0, 0, 0));
    CGraphTestAccess::XformPlotData(p, FindSeries(p, "b"), pts);
    EXPECT_EQ(8191, pts[0].x);
    EXPECT_EQ(8192, pts[1].x);
    EXPECT_EQ(-8191, pts[2].x);
    EXPECT_EQ(-8192, pts[3].x);

    // A series of the right axis, from its first index.
    p->m_rectPlot.SetRect(50, 20, 550, 220);
    ASSERT_EQ(1, g.m_graph.AddPlotData("r", PLOT_YRIGHT, x, y, 3, 0, 0, 0));
    FindSeries(p, "r")->m_lStartIndex = 1;
    CGraphTestAccess::XformPlotData(p, FindSeries(p, "r"), pts);
    EXPECT_EQ(550, pts[0].x);
    EXPECT_EQ(110, pts[0].y);   // 10 on -100..100: 120 - 10 + 0.50001
    EXPECT_EQ(101, pts[1].x);
    EXPECT_EQ(118, pts[1].y);
}
