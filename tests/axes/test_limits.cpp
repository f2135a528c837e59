// Axis limits: storing and reading, the narrow-pair rule with a resolution,
// the order of the arguments of the range setters, the limit order bits and
// the cross hair's lock and transform.
#include "TestUtil.h"
#include "TestAccess.h"

#include <math.h>

TEST(Limits, StoreAndRead)
{
    GraphInHost g;
    CGraphPrv* p = g.Prv();
    double dMin = -1, dMax = -1;
    p->m_bPointsStale = FALSE;
    ASSERT_EQ(1, g.m_graph.SetXAxisLimits(-2.5, 12.25));
    EXPECT_TRUE(p->m_bPointsStale);
    ASSERT_EQ(1, g.m_graph.GetXAxisLimits(&dMin, &dMax));
    EXPECT_EQ(-2.5, dMin);
    EXPECT_EQ(12.25, dMax);
    for (int nAxis = 0; nAxis < 2; nAxis++) {
        p->m_bPointsStale = FALSE;
        ASSERT_EQ(1, g.m_graph.SetYAxisLimits(10.0 * nAxis, 10.0 * nAxis + 3.0, nAxis));
        EXPECT_TRUE(p->m_bPointsStale);
        ASSERT_EQ(1, g.m_graph.GetYAxisLimits(&dMin, &dMax, nAxis));
        EXPECT_EQ(10.0 * nAxis, dMin);
        EXPECT_EQ(10.0 * nAxis + 3.0, dMax);
    }
    // Other axes are refused and leave the outputs alone.
    EXPECT_EQ(GRAPH_BADARG, g.m_graph.GetYAxisLimits(&dMin, &dMax, 2));
    EXPECT_EQ(GRAPH_BADARG, g.m_graph.GetYAxisLimits(&dMin, &dMax, -1));
    EXPECT_EQ(10.0, dMin);

    // Reversed pairs are stored as given: the public pair takes the
    // minimum first, the range pair the maximum first.
    g.m_graph.SetXAxisLimits(10.0, 0.0);
    EXPECT_EQ(10.0, p->m_dXMin);
    CGraphTestAccess::sg_xrange(p, 10.0, 0.0);
    EXPECT_EQ(0.0, p->m_dXMin);
    EXPECT_EQ(10.0, p->m_dXMax);
    CGraphTestAccess::sg_yrange(p, -4.0, 6.0, 1);
    EXPECT_EQ(6.0, p->m_dYMin[1]);
    EXPECT_EQ(-4.0, p->m_dYMax[1]);
}

TEST(Limits, NarrowPairWithResolution)
{
    GraphInHost g;
    CGraphPrv* p = g.Prv();
    g.m_graph.SetXAxisNumFmt("%.3f");
    const double R3 = (double)0.001f;   // the resolution, a float widened

    // The maximum stays; the minimum moves one resolution below it, or
    // above it for a reversed pair.
    g.m_graph.SetXAxisLimits(5.0, 5.0005);
    EXPECT_EQ(5.0005, p->m_dXMax);
    EXPECT_EQ(5.0005 - R3, p->m_dXMin);
    g.m_graph.SetXAxisLimits(5.0005, 5.0);
    EXPECT_EQ(5.0, p->m_dXMax);
    EXPECT_EQ(5.0 + R3, p->m_dXMin);
    // Equal values: the direction of the old limits decides.
    g.m_graph.SetXAxisLimits(0.0, 1.0);
    g.m_graph.SetXAxisLimits(2.0, 2.0);
    EXPECT_EQ(2.0 - R3, p->m_dXMin);
    g.m_graph.SetXAxisLimits(1.0, 0.0);
    g.m_graph.SetXAxisLimits(2.0, 2.0);
    EXPECT_EQ(2.0 + R3, p->m_dXMin);
    // The tic table follows the moved pair.
    g.m_graph.SetXAxisLimits(5.0, 5.0005);
    EXPECT_EQ(p->m_dXMin, p->m_dXTicValue[0]);
    EXPECT_EQ(p->m_dXMax, p->m_dXTicValue[p->m_nXTicCount]);

    // A narrow pair with a maximum this near zero snaps it to zero; a wide
    // pair keeps it.
    g.m_graph.SetXAxisNumFmt("%.1f");
    g.m_graph.SetXAxisLimits(-0.05, 1e-9);
    EXPECT_EQ(0.0, p->m_dXMax);
    EXPECT_EQ(1e-9 - (double)0.1f, p->m_dXMin);
    g.m_graph.SetXAxisLimits(-5.0, 1e-9);
    EXPECT_EQ(1e-9, p->m_dXMax);

    // Without digits after the point no span is narrower than 1; a pair
    // exactly one resolution wide is not narrow.
    g.m_graph.SetXAxisNumFmt("%.0f");
    CGraphTestAccess::sg_xrange(p, 3.5, 3.0);
    EXPECT_EQ(2.5, p->m_dXMin);
    g.m_graph.SetXAxisLimits(4.0, 3.0);
    EXPECT_EQ(4.0, p->m_dXMin);
    EXPECT_EQ(3.0, p->m_dXMax);
}

TEST(Limits, EachAxisHasItsOwnResolution)
{
    GraphInHost g;
    CGraphPrv* p = g.Prv();
    // The right axis through both pairs.
    g.m_graph.SetYAxisNumFmt(1, "%.2f");
    g.m_graph.SetYAxisLimits(4.0, 4.001, 1);
    EXPECT_EQ(4.001 - (double)0.01f, p->m_dYMin[1]);
    CGraphTestAccess::sg_yrange(p, 4.0, 4.001, 1);
    EXPECT_EQ(4.0, p->m_dYMax[1]);
    EXPECT_EQ(4.0 + (double)0.01f, p->m_dYMin[1]);
    // The left axis has resolution 0 and stores any pair.
    g.m_graph.SetYAxisLimits(4.0, 4.001, 0);
    EXPECT_EQ(4.0, p->m_dYMin[0]);

    // Not a number: unordered, so too narrow; the minimum moves below the
    // maximum and stays not a number, without harm to the tic table.
    g.m_graph.SetXAxisNumFmt("%.3f");
    g.m_graph.SetXAxisLimits(0.0, sqrt(-1.0));
    EXPECT_TRUE(isnan(p->m_dXMax));
    EXPECT_TRUE(isnan(p->m_dXMin));
    EXPECT_EQ(1, p->m_nXTicCount);
}

TEST(Limits, LimitFlipBits)
{
    GraphInHost g(GS_RIGHTAXIS);
    DWORD dw = 0;
    ASSERT_EQ(1, g.m_graph.GetLimitFlip(&dw));
    EXPECT_EQ(2u, dw);
    ASSERT_EQ(1, g.m_graph.SetLimitFlip(0x70));
    g.m_graph.GetLimitFlip(&dw);
    EXPECT_EQ(0x72u, dw);
    // Only 0x10, 0x20 and 0x40 are taken from the argument.
    g.Prv()->m_dwStyle = 0x7F | 0x100;
    ASSERT_EQ(1, g.m_graph.SetLimitFlip(0));
    g.m_graph.GetLimitFlip(&dw);
    EXPECT_EQ(0x10Fu, dw);
    g.m_graph.SetLimitFlip(0xFFFFFFFF & ~GS_YLIMITORDER);
    g.m_graph.GetLimitFlip(&dw);
    EXPECT_EQ(0x10Fu | GS_XLIMITORDER | GS_RESERVED40, dw);
}

TEST(Limits, CrossHairLockAndTransform)
{
    GraphInHost g;
    CGraphPrv* p = g.Prv();
    p->m_rectPlot.SetRect(50, 20, 550, 220);
    // Off: a locked state survives a change of limits, and the stored
    // transform is not touched.
    p->m_dwState |= GST_CROSSHAIR_LOCKED;
    p->m_dXScale = 123.0;
    g.m_graph.SetXAxisLimits(0.0, 100.0);
    EXPECT_TRUE(p->m_dwState & GST_CROSSHAIR_LOCKED);
    EXPECT_EQ(123.0, p->m_dXScale);
    // On: any change unlocks it and renews the transform of that axis.
    p->m_crossHair.Show(p, TRUE);
    p->m_dwState |= GST_CROSSHAIR_LOCKED;
    g.m_graph.SetXAxisLimits(0.0, 250.0);
    EXPECT_FALSE(p->m_dwState & GST_CROSSHAIR_LOCKED);
    EXPECT_TRUE(p->m_dwState & GST_CROSSHAIR);
    EXPECT_EQ(500.0 / 250.0, p->m_dXScale);
    EXPECT_EQ(550.0 - 2.0 * 250.0, p->m_dXOffset);
    p->m_dwState |= GST_CROSSHAIR_LOCKED;
    CGraphTestAccess::sg_yrange(p, 10.0, 0.0, 1);
    EXPECT_FALSE(p->m_dwState & GST_CROSSHAIR_LOCKED);
    EXPECT_EQ(200.0 / 10.0, p->m_dYScale[1]);
    EXPECT_EQ(220.0, p->m_dYOffset[1]);
}
