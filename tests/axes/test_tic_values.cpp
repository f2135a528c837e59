// Tic values: the floating tables for the example limits (with the small
// constant the third and later entries carry), the narrow, equal, scaled and
// undividable spans, the fixed tables, and the switch between the modes.
#include "TestUtil.h"
#include "axes/AxesMath.h"

#include <math.h>
#include <vector>

namespace {

struct TicRow
{
    double dFirst;
    double dSecond;
    std::vector<double> table;
};

// Each row as the steps give it: entries from the third on carry 5.1e-7 in
// the working scale of the span.
const TicRow g_rows[] = {
    { 0, 1, { 0, 0.2, 0.40000051, 0.60000051, 0.80000051, 1 } },
    { 0, 100, { 0, 20, 40.00000051, 60.00000051, 80.00000051, 100 } },
    { 0, 0.5, { 0, 0.1, 0.20000051, 0.30000051, 0.40000051, 0.5 } },
    { 0, 260, { 0, 100, 200.00000051, 260 } },
    { -3, 7, { -3, -2, 5.1e-7, 2.00000051, 4.00000051, 6.00000051, 7 } },
    { 100, 0, { 100, 80.00000051, 60.00000051, 40.00000051, 20, 0 } },
    { 1.5, 1.6, { 1.5, 1.52, 1.540000051, 1.560000051, 1.580000051, 1.6 } },
    { -1.425, 1003.44, { -1.425, 0, 200.00000051, 400.00000051, 600.00000051, 800.00000051, 1000.00000051, 1003.44 } },
    // Scaled spans: multiplier 10, then 10000 (the constant shrinks with it).
    { 0, 0.1, { 0, 0.02, 0.040000051, 0.060000051, 0.080000051, 0.1 } },
    { 0, 0.0001, { 0, 2e-5, 4.0000051e-5, 6.0000051e-5, 8.0000051e-5, 0.0001 } },
    // A span of exactly 0.2 is not scaled: mant 0.2 takes the fraction 0.05.
    { 0, 0.2, { 0, 0.05, 0.10000051, 0.15000051, 0.2 } },
    // 1000: exponent 3 and mant 1.0, not 0.1 with exponent 4.
    { 0, 1000, { 0, 200, 400.00000051, 600.00000051, 800.00000051, 1000 } },
    // mant 0.25004 prints as 0.250 (fraction 0.05); 0.2506 as 0.251 (0.1).
    { 0, 250.04, { 0, 50, 100.00000051, 150.00000051, 200.00000051, 250.00000051, 250.04 } },
    { 0, 250.6, { 0, 100, 200.00000051, 250.6 } },
    // Narrower than 2^-23 or equal: two tics at the limits, as given.
    { 5, 5.0000001, { 5, 5.0000001 } },
    { 5.0000001, 5, { 5.0000001, 5 } },
    { 5, 5, { 5, 5 } },
};

} // namespace

TEST(TicValues, ExampleRows)
{
    for (const TicRow& row : g_rows) {
        double table[11];
        for (double& d : table)
            d = -12345.0;
        const int nLast = CalcFloatingTics(row.dFirst, row.dSecond, table);
        ASSERT_EQ((int)row.table.size() - 1, nLast) << "limits " << row.dFirst << ", " << row.dSecond;
        for (int i = 0; i <= nLast; i++)
            EXPECT_DOUBLE_EQ(row.table[i], table[i]) << "limits " << row.dFirst << ", " << row.dSecond << " #" << i;
        for (int i = nLast + 1; i < 11; i++)
            EXPECT_EQ(-12345.0, table[i]);   // nothing written behind the last entry
    }
}

TEST(TicValues, ExactEndsAndUndividableSpans)
{
    // The limits themselves end the table.
    double table[11];
    ASSERT_EQ(6, CalcFloatingTics(-3.0, 7.0, table));
    EXPECT_EQ(-3.0, table[0]);
    EXPECT_EQ(7.0, table[6]);

    // Limits that cannot be divided keep two entries; a very wide span
    // stays within the table.
    EXPECT_EQ(1, CalcFloatingTics(0.0, HUGE_VAL, table));
    EXPECT_EQ(HUGE_VAL, table[1]);
    EXPECT_EQ(1, CalcFloatingTics(sqrt(-1.0), 1.0, table));
    EXPECT_EQ(1.0, table[1]);
    const int nLast = CalcFloatingTics(-1.7e308, 1.7e308, table);
    ASSERT_GE(nLast, 1);
    ASSERT_LE(nLast, 10);
    EXPECT_EQ(1.7e308, table[nLast]);
}

TEST(TicValues, LimitSettersFillTheTables)
{
    GraphInHost g;
    CGraphPrv* p = g.Prv();
    ASSERT_EQ(1, g.m_graph.SetXAxisLimits(-3.0, 7.0));
    EXPECT_EQ(6, p->m_nXTicCount);
    EXPECT_DOUBLE_EQ(5.1e-7, p->m_dXTicValue[2]);
    EXPECT_EQ(7.0, p->m_dXTicValue[6]);
    // A reversed pair: index 0 goes with the minimum field, here 100.
    ASSERT_EQ(1, g.m_graph.SetYAxisLimits(100.0, 0.0, 0));
    EXPECT_EQ(5, p->m_nYTicCount[0]);
    EXPECT_EQ(100.0, p->m_dYTicValue[0][0]);
    EXPECT_DOUBLE_EQ(80.00000051, p->m_dYTicValue[0][1]);
    // The right axis gets its own values.
    ASSERT_EQ(1, g.m_graph.SetYAxisLimits(0.0, 260.0, 1));
    EXPECT_DOUBLE_EQ(200.00000051, p->m_dYTicValue[1][2]);
}

TEST(TicValues, FixedModeAndBack)
{
    GraphInHost g;
    CGraphPrv* p = g.Prv();
    g.m_graph.SetXAxisLimits(0.0, 1.0);
    ASSERT_EQ(5, p->m_nXTicCount);
    // The fixed mode sets all counts to 10 and fills 11 slots.
    ASSERT_EQ(1, g.m_graph.SetTicMarkType(0, 0, NULL));
    EXPECT_EQ(0, p->m_nYTicType[0]);
    EXPECT_EQ(0, p->m_nYTicType[1]);
    EXPECT_EQ(10, p->m_nXTicCount);
    EXPECT_EQ(10, p->m_nYTicCount[0]);
    EXPECT_EQ(10, p->m_nYTicCount[1]);
    // i / n of the span above the minimum: steps of 0.42.
    g.m_graph.SetXAxisLimits(-1.3, 2.9);
    EXPECT_EQ(-1.3, p->m_dXTicValue[0]);
    EXPECT_NEAR(-0.88, p->m_dXTicValue[1], 1e-12);
    EXPECT_NEAR(2.48, p->m_dXTicValue[9], 1e-12);
    EXPECT_EQ(2.9, p->m_dXTicValue[10]);
    ASSERT_EQ(1, g.m_graph.SetTicMarkType(1, 0, NULL));
    g.m_graph.SetXAxisLimits(0.0, 100.0);
    EXPECT_EQ(5, p->m_nXTicCount);
    EXPECT_DOUBLE_EQ(20.0, p->m_dXTicValue[1]);
}

TEST(TicValues, TicMarkTypeTakesTheResolutionForMinorTics)
{
    GraphInHost g;
    CGraphPrv* p = g.Prv();
    int nType = -1, nMinor = -1;
    // Minor tics other than 1: stored, and no device resolution.
    ASSERT_EQ(1, g.m_graph.SetTicMarkType(1, 2, NULL));
    EXPECT_EQ(0, p->m_nLogPixelsX);
    ASSERT_EQ(1, g.m_graph.GetTicMarkType(&nType, &nMinor));
    EXPECT_EQ(1, nType);
    EXPECT_EQ(2, nMinor);
    // Minor tics 1 with a null context: the screen's resolution.
    HDC hScreen = ::GetDC(NULL);
    const int nDpiY = ::GetDeviceCaps(hScreen, LOGPIXELSY);
    ::ReleaseDC(NULL, hScreen);
    ASSERT_EQ(1, g.m_graph.SetTicMarkType(1, 1, NULL));
    EXPECT_EQ(nDpiY, p->m_nLogPixelsY);
    // With a context: that context's resolution.
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(NULL));
    ASSERT_EQ(1, g.m_graph.SetTicMarkType(1, 1, &dc));
    EXPECT_EQ(dc.GetDeviceCaps(LOGPIXELSX), p->m_nLogPixelsX);
    // The three types are set together, but only X is reported.
    p->m_nYTicType[0] = 7;
    g.m_graph.GetTicMarkType(&nType, &nMinor);
    EXPECT_EQ(1, nType);
    EXPECT_EQ(1, nMinor);
}
