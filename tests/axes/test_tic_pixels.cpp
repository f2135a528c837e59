// Tic mark pixels: fixed and floating tables placed on a known plot, the
// major spacing, the minor tics at a given resolution, the right axis that
// copies the left one, and the empty plot.
#include "TestUtil.h"
#include "TestAccess.h"

// A graph whose plot runs from 50 to 550 across and from 20 to 220 down,
// until a test gives it another.
class TicPixels : public ::testing::Test
{
protected:
    void SetUp() override { p->m_rectPlot.SetRect(50, 20, 550, 220); }
    GraphInHost g;
    CGraphPrv* p = g.Prv();
};

TEST_F(TicPixels, FixedModeIgnoresTheLimits)
{
    ASSERT_EQ(1, g.m_graph.SetTicMarkType(0, 0, NULL));
    g.m_graph.SetXAxisLimits(-7.0, 3.3);
    g.m_graph.SetYAxisLimits(1e6, -1e6, 0);
    for (int i = 0; i <= 10; i++) {
        EXPECT_EQ(50 + 50 * i, p->m_nXTicPixel[i]) << i;
        EXPECT_EQ(220 - 20 * i, p->m_nYTicPixel[0][i]) << i;
    }
    // Odd sizes: a tenth of the size, rounded by adding 0.50001.
    p->m_rectPlot.SetRect(3, 7, 336, 180);
    CGraphTestAccess::CalcTicMarkPixels(p);
    EXPECT_EQ(3 + 33, p->m_nXTicPixel[1]);    // 33.3
    EXPECT_EQ(3 + 167, p->m_nXTicPixel[5]);   // 166.5
    EXPECT_EQ(7 + 87, p->m_nYTicPixel[0][5]);   // 86.5
    EXPECT_EQ(7 + 156, p->m_nYTicPixel[0][1]);   // 155.7
}

TEST_F(TicPixels, FloatingMode)
{
    g.m_graph.SetXAxisLimits(0.0, 1.0);
    g.m_graph.SetYAxisLimits(0.0, 1.0, 0);
    const int xExpected[] = { 50, 150, 250, 350, 450, 550 };
    const int yExpected[] = { 220, 180, 140, 100, 60, 20 };   // from the bottom up
    ASSERT_EQ(5, p->m_nXTicCount);
    for (int i = 0; i <= 5; i++) {
        EXPECT_EQ(xExpected[i], p->m_nXTicPixel[i]) << i;
        EXPECT_EQ(yExpected[i], p->m_nYTicPixel[0][i]) << i;
    }
    EXPECT_EQ(100, p->m_MinorX.nSpacing);
    EXPECT_EQ(40, p->m_MinorYLeft.nSpacing);
    // A reversed axis: index 0 holds the minimum field, 100, at the left
    // edge, and the pixels still rise with the index.
    g.m_graph.SetXAxisLimits(100.0, 0.0);
    ASSERT_EQ(100.0, p->m_dXTicValue[0]);
    for (int i = 0; i <= 5; i++)
        EXPECT_EQ(xExpected[i], p->m_nXTicPixel[i]) << i;
}

TEST_F(TicPixels, SpacingOfShortEnds)
{
    p->m_rectPlot.SetRect(0, 0, 260, 260);
    // 0, 100, 200, 260: the short last interval does not count.
    g.m_graph.SetXAxisLimits(0.0, 260.0);
    ASSERT_EQ(3, p->m_nXTicCount);
    EXPECT_EQ(200, p->m_nXTicPixel[2]);
    EXPECT_EQ(260, p->m_nXTicPixel[3]);
    EXPECT_EQ(100, p->m_MinorX.nSpacing);
    // -80, 0, 100, 180: intervals 80, 100 and 80, spacing 100.
    g.m_graph.SetXAxisLimits(-80.0, 180.0);
    EXPECT_EQ(80, p->m_nXTicPixel[1]);
    EXPECT_EQ(100, p->m_MinorX.nSpacing);
    // Count above 3: pixel[2] - pixel[1], whatever the first interval.
    g.m_graph.SetXAxisLimits(-3.0, 7.0);
    ASSERT_EQ(6, p->m_nXTicCount);
    EXPECT_EQ(52, p->m_MinorX.nSpacing);
    // Count 1 (two tics): the whole width.
    g.m_graph.SetXAxisLimits(5.0, 5.0000001);
    ASSERT_EQ(1, p->m_nXTicCount);
    EXPECT_EQ(260, p->m_nXTicPixel[1]);
    EXPECT_EQ(260, p->m_MinorX.nSpacing);
    // Y runs the other way: pixel[1] - pixel[2].
    g.m_graph.SetYAxisLimits(0.0, 260.0, 0);
    EXPECT_EQ(160, p->m_nYTicPixel[0][1]);
    EXPECT_EQ(60, p->m_nYTicPixel[0][2]);
    EXPECT_EQ(100, p->m_MinorYLeft.nSpacing);

    // An empty plot puts all tics on one pixel, with no spacing.
    p->m_rectPlot.SetRect(40, 90, 40, 90);
    CGraphTestAccess::CalcTicMarkPixels(p);
    for (int i = 0; i <= p->m_nXTicCount; i++)
        EXPECT_EQ(40, p->m_nXTicPixel[i]);
    for (int i = 0; i <= p->m_nYTicCount[0]; i++)
        EXPECT_EQ(90, p->m_nYTicPixel[0][i]);
    EXPECT_EQ(0, p->m_MinorX.nSpacing);
    EXPECT_EQ(0, p->m_MinorYLeft.nSpacing);
}

TEST_F(TicPixels, MinorOffsetsAt96Dpi)
{
    p->m_nMinorTics = 1;
    p->m_nLogPixelsX = p->m_nLogPixelsY = 96;
    // Limits 0 to 1 give five equal intervals: a plot five spacings wide.
    struct Case
    {
        int nSpacing;
        int nCount;
        int offsets[9];
    };
    const Case cases[] = {
        { 100, 4, { 20, 40, 60, 80 } },
        { 40, 1, { 20 } },
        { 145, 9, { 14, 29, 43, 58, 72, 87, 101, 116, 130 } },
    };
    for (const Case& c : cases) {
        p->m_rectPlot.SetRect(0, 0, 5 * c.nSpacing, 5 * c.nSpacing);
        g.m_graph.SetXAxisLimits(0.0, 1.0);
        g.m_graph.SetYAxisLimits(0.0, 1.0, 0);
        ASSERT_EQ(c.nSpacing, p->m_MinorX.nSpacing);
        EXPECT_EQ(c.nCount, p->m_nMinorTicCount[0]) << c.nSpacing;
        EXPECT_EQ(c.nCount, p->m_nMinorTicCount[1]) << c.nSpacing;
        for (int j = 0; j < c.nCount; j++) {
            EXPECT_EQ(c.offsets[j], p->m_MinorX.nOffset[j]) << c.nSpacing << " " << j;
            EXPECT_EQ(c.offsets[j], p->m_MinorYLeft.nOffset[j]) << c.nSpacing << " " << j;
        }
    }
    // The Y count follows the Y resolution, the X count the X resolution.
    p->m_nLogPixelsY = 300;
    p->m_rectPlot.SetRect(0, 0, 500, 500);
    CGraphTestAccess::CalcTicMarkPixels(p);
    EXPECT_EQ(4, p->m_nMinorTicCount[0]);
    EXPECT_EQ(1, p->m_nMinorTicCount[1]);
    EXPECT_EQ(50, p->m_MinorYLeft.nOffset[0]);
    // Minor tics off: the spacing is kept, the counts are left alone.
    p->m_nMinorTics = 0;
    p->m_nMinorTicCount[0] = -77;
    CGraphTestAccess::CalcTicMarkPixels(p);
    EXPECT_EQ(100, p->m_MinorX.nSpacing);
    EXPECT_EQ(-77, p->m_nMinorTicCount[0]);
}

TEST_F(TicPixels, RightAxisCopiesLeftWhenNotDisplayed)
{
    p->m_nMinorTics = 1;
    p->m_nLogPixelsX = p->m_nLogPixelsY = 96;
    ASSERT_FALSE(p->m_bRightAxisDisplayed);
    g.m_graph.SetYAxisLimits(0.0, 1.0, 0);
    g.m_graph.SetYAxisLimits(-3.0, 7.0, 1);
    // Its own values, but the left axis's count, pixels and minor tics.
    EXPECT_EQ(5, p->m_nYTicCount[1]);
    EXPECT_EQ(7.0, p->m_dYTicValue[1][6]);
    for (int i = 0; i <= 5; i++)
        EXPECT_EQ(p->m_nYTicPixel[0][i], p->m_nYTicPixel[1][i]) << i;
    EXPECT_EQ(p->m_MinorYLeft.nSpacing, p->m_MinorYRight.nSpacing);
    EXPECT_EQ(p->m_nMinorTicCount[1], p->m_nMinorTicCount[2]);

    // With a right label the right axis has tics of its own.
    g.m_graph.SetYAxisLabel(1, "right");
    ASSERT_TRUE(p->m_bRightAxisDisplayed);
    g.m_graph.SetYAxisLimits(-3.0, 7.0, 1);
    EXPECT_EQ(6, p->m_nYTicCount[1]);
    EXPECT_EQ(5, p->m_nYTicCount[0]);
    EXPECT_EQ(220, p->m_nYTicPixel[1][0]);
    EXPECT_EQ(200, p->m_nYTicPixel[1][1]);   // -2 on 10 units over 200 pixels
    EXPECT_EQ(20, p->m_nYTicPixel[1][6]);
    EXPECT_EQ(40, p->m_MinorYRight.nSpacing);
    EXPECT_EQ(1, p->m_nMinorTicCount[2]);
    // Empty again: the copy returns on the next run.
    g.m_graph.SetYAxisLabel(1, "");
    CGraphTestAccess::CalcTicMarkPixels(p);
    EXPECT_EQ(5, p->m_nYTicCount[1]);
    EXPECT_EQ(p->m_nYTicPixel[0][1], p->m_nYTicPixel[1][1]);
}
