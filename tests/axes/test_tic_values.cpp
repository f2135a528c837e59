// Tic values: the floating tables for the example limits (with the small
// constant the third and later entries carry), the narrow, equal and scaled
// spans, the fixed tables, and the switch between the modes.
#include "AxesTestUtil.h"

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
// the working scale of the span (5.1e-8 for the row scaled by 10).
const TicRow g_rows[] = {
    { 0, 1, { 0, 0.2, 0.40000051, 0.60000051, 0.80000051, 1 } },
    { 0, 100, { 0, 20, 40.00000051, 60.00000051, 80.00000051, 100 } },
    { 0, 0.5, { 0, 0.1, 0.20000051, 0.30000051, 0.40000051, 0.5 } },
    { 0, 260, { 0, 100, 200.00000051, 260 } },
    { -3, 7, { -3, -2, 5.1e-7, 2.00000051, 4.00000051, 6.00000051, 7 } },
    { 100, 0, { 100, 80.00000051, 60.00000051, 40.00000051, 20, 0 } },
    { 1.5, 1.6, { 1.5, 1.52, 1.540000051, 1.560000051, 1.580000051, 1.6 } },
    { -1.425, 1003.44, { -1.425, 0, 200.00000051, 400.00000051, 600.00000051, 800.00000051, 1000.00000051, 1003.44 } },
};

void ExpectTable(CGraphPrv* pPrv, double dFirst, double dSecond, const std::vector<double>& expected)
{
    double table[11];
    for (double& d : table)
        d = -12345.0;
    const int nLast = pPrv->CalcFloatingTics(dFirst, dSecond, table);
    ASSERT_EQ((int)expected.size() - 1, nLast) << "limits " << dFirst << ", " << dSecond;
    for (int i = 0; i <= nLast; i++)
        EXPECT_DOUBLE_EQ(expected[i], table[i]) << "limits " << dFirst << ", " << dSecond << " index " << i;
    // Nothing is written behind the last entry.
    for (int i = nLast + 1; i < 11; i++)
        EXPECT_EQ(-12345.0, table[i]);
}

} // namespace

TEST(TicValues, ExampleRows)
{
    GraphInHost g(GS_NOWINDOW);
    for (const TicRow& row : g_rows)
        ExpectTable(g.Prv(), row.dFirst, row.dSecond, row.table);
}

TEST(TicValues, ConstantOnlyFromTheThirdEntry)
{
    GraphInHost g(GS_NOWINDOW);
    double table[11];
    ASSERT_EQ(5, g.Prv()->CalcFloatingTics(0.0, 1.0, table));
    // Entry 1 is the plain multiple; entry 2 carries the constant exactly.
    EXPECT_EQ(0.2, table[1]);
    EXPECT_EQ(1 * 0.2 + 0.2 + 5.1e-7, table[2]);
    EXPECT_NE(0.4, table[2]);
    ASSERT_EQ(6, g.Prv()->CalcFloatingTics(-3.0, 7.0, table));
    EXPECT_EQ(-2.0, table[1]);
    EXPECT_EQ(1 * 2.0 + -2.0 + 5.1e-7, table[2]);
    // The limits themselves end the table, exactly.
    EXPECT_EQ(-3.0, table[0]);
    EXPECT_EQ(7.0, table[6]);
}

TEST(TicValues, NarrowAndEqualLimits)
{
    GraphInHost g(GS_NOWINDOW);
    double table[11];
    ASSERT_EQ(1, g.Prv()->CalcFloatingTics(5.0, 5.0, table));
    EXPECT_EQ(5.0, table[0]);
    EXPECT_EQ(5.0, table[1]);
    // Below the tolerance of 2^-23: two tics at the limits.
    ASSERT_EQ(1, g.Prv()->CalcFloatingTics(5.0, 5.0000001, table));
    EXPECT_EQ(5.0, table[0]);
    EXPECT_EQ(5.0000001, table[1]);
    // The same reversed keeps the limits in the order given.
    ASSERT_EQ(1, g.Prv()->CalcFloatingTics(5.0000001, 5.0, table));
    EXPECT_EQ(5.0000001, table[0]);
    EXPECT_EQ(5.0, table[1]);
}

TEST(TicValues, ScaledSpans)
{
    GraphInHost g(GS_NOWINDOW);
    // 0, 0.1: multiplier 10, span 1, step 0.2 scaled back to 0.02.
    ExpectTable(g.Prv(), 0.0, 0.1, { 0, 0.02, 0.040000051, 0.060000051, 0.080000051, 0.1 });
    // 0, 0.0001: multiplier 10000, so the constant shrinks to 5.1e-11.
    ExpectTable(g.Prv(), 0.0, 0.0001, { 0, 2e-5, 4.0000051e-5, 6.0000051e-5, 8.0000051e-5, 0.0001 });
    double table[11];
    g.Prv()->CalcFloatingTics(0.0, 0.0001, table);
    EXPECT_NEAR(4e-5 + 5.1e-11, table[2], 1e-15);
    // A span of exactly 0.2 is not scaled: mant 0.2 takes the fraction 0.05.
    ExpectTable(g.Prv(), 0.0, 0.2, { 0, 0.05, 0.10000051, 0.15000051, 0.2 });
}

TEST(TicValues, ExponentAndMantissaRounding)
{
    GraphInHost g(GS_NOWINDOW);
    // 0, 1000: exponent 3 and mant 1.0 (not 0.1 with exponent 4): step 200.
    ExpectTable(g.Prv(), 0.0, 1000.0, { 0, 200, 400.00000051, 600.00000051, 800.00000051, 1000 });
    // mant 0.25004 prints as 0.250: fraction 0.05, step 50.
    ExpectTable(g.Prv(), 0.0, 250.04, { 0, 50, 100.00000051, 150.00000051, 200.00000051, 250.00000051, 250.04 });
    // mant 0.2506 prints as 0.251: fraction 0.1, step 100.
    ExpectTable(g.Prv(), 0.0, 250.6, { 0, 100, 200.00000051, 250.6 });
}

TEST(TicValues, UnorderedLimitsGiveTwoTics)
{
    GraphInHost g(GS_NOWINDOW);
    // Limits that cannot be divided (infinite, not a number) keep a two-entry
    // table and do not run the step search.
    double table[11];
    const double dInf = HUGE_VAL;
    EXPECT_EQ(1, g.Prv()->CalcFloatingTics(0.0, dInf, table));
    EXPECT_EQ(0.0, table[0]);
    EXPECT_EQ(dInf, table[1]);
    const double dNaN = dInf - dInf;
    EXPECT_EQ(1, g.Prv()->CalcFloatingTics(dNaN, 1.0, table));
    EXPECT_EQ(1.0, table[1]);
    // A very wide span stays within the table.
    int nLast = g.Prv()->CalcFloatingTics(-1.7e308, 1.7e308, table);
    EXPECT_GE(nLast, 1);
    EXPECT_LE(nLast, 10);
    EXPECT_EQ(-1.7e308, table[0]);
    EXPECT_EQ(1.7e308, table[nLast]);
}

TEST(TicValues, LimitSettersFillTheTables)
{
    GraphInHost g;
    CGraphPrv* p = g.Prv();
    ASSERT_EQ(1, g.m_graph.SetXAxisLimits(-3.0, 7.0));
    EXPECT_EQ(6, p->m_nXTicCount);
    EXPECT_EQ(-3.0, p->m_dXTicValue[0]);
    EXPECT_DOUBLE_EQ(5.1e-7, p->m_dXTicValue[2]);
    EXPECT_EQ(7.0, p->m_dXTicValue[6]);

    // A reversed pair: index 0 goes with the minimum field, here 100.
    ASSERT_EQ(1, g.m_graph.SetYAxisLimits(100.0, 0.0, 0));
    EXPECT_EQ(100.0, p->m_dYMin[0]);
    EXPECT_EQ(5, p->m_nYTicCount[0]);
    EXPECT_EQ(100.0, p->m_dYTicValue[0][0]);
    EXPECT_DOUBLE_EQ(80.00000051, p->m_dYTicValue[0][1]);
    EXPECT_EQ(0.0, p->m_dYTicValue[0][5]);

    // The right axis gets its values; without a right label its count is
    // then copied from the left axis with the pixels.
    ASSERT_EQ(1, g.m_graph.SetYAxisLimits(0.0, 260.0, 1));
    EXPECT_DOUBLE_EQ(200.00000051, p->m_dYTicValue[1][2]);
    EXPECT_EQ(260.0, p->m_dYTicValue[1][3]);
    EXPECT_EQ(p->m_nYTicCount[0], p->m_nYTicCount[1]);
}

TEST(TicValues, FixedMode)
{
    GraphInHost g;
    CGraphPrv* p = g.Prv();
    g.m_graph.SetXAxisLimits(0.0, 1.0);
    ASSERT_EQ(5, p->m_nXTicCount);

    // Switching to the fixed mode sets all counts to 10 and fills 11 slots.
    ASSERT_EQ(1, g.m_graph.SetTicMarkType(0, 0, NULL));
    EXPECT_EQ(0, p->m_nXTicType);
    EXPECT_EQ(0, p->m_nYTicType[0]);
    EXPECT_EQ(0, p->m_nYTicType[1]);
    EXPECT_EQ(10, p->m_nXTicCount);
    EXPECT_EQ(10, p->m_nYTicCount[0]);
    EXPECT_EQ(10, p->m_nYTicCount[1]);
    for (int i = 0; i <= 10; i++)
        EXPECT_DOUBLE_EQ(i / 10.0, p->m_dXTicValue[i]) << i;

    // Odd limits give odd values: i / n of the span above the minimum.
    g.m_graph.SetXAxisLimits(-1.3, 2.9);
    EXPECT_EQ(-1.3, p->m_dXTicValue[0]);
    EXPECT_EQ(2.9, p->m_dXTicValue[10]);
    for (int i = 1; i < 10; i++)
        EXPECT_EQ((double)i / 10 * (2.9 - -1.3) + -1.3, p->m_dXTicValue[i]) << i;
    EXPECT_EQ(10, p->m_nXTicCount);

    // And back to floating.
    ASSERT_EQ(1, g.m_graph.SetTicMarkType(1, 0, NULL));
    g.m_graph.SetXAxisLimits(0.0, 100.0);
    EXPECT_EQ(5, p->m_nXTicCount);
    EXPECT_DOUBLE_EQ(20.0, p->m_dXTicValue[1]);
}

TEST(TicValues, TicMarkTypeAndMinorTics)
{
    GraphInHost g;
    CGraphPrv* p = g.Prv();
    int nType = -1, nMinor = -1;

    // Minor tics other than 1: stored, and no device resolution.
    ASSERT_EQ(1, g.m_graph.SetTicMarkType(1, 2, NULL));
    EXPECT_EQ(2, p->m_nMinorTics);
    EXPECT_EQ(0, p->m_nLogPixelsX);
    EXPECT_EQ(0, p->m_nLogPixelsY);
    ASSERT_EQ(1, g.m_graph.GetTicMarkType(&nType, &nMinor));
    EXPECT_EQ(1, nType);
    EXPECT_EQ(2, nMinor);

    // Minor tics 1 with a null context: the window's resolution.
    HDC hScreen = ::GetDC(NULL);
    const int nDpiX = ::GetDeviceCaps(hScreen, LOGPIXELSX);
    const int nDpiY = ::GetDeviceCaps(hScreen, LOGPIXELSY);
    ::ReleaseDC(NULL, hScreen);
    ASSERT_EQ(1, g.m_graph.SetTicMarkType(1, 1, NULL));
    EXPECT_EQ(nDpiX, p->m_nLogPixelsX);
    EXPECT_EQ(nDpiY, p->m_nLogPixelsY);

    // Minor tics 1 with a context: that context's resolution.
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(NULL));
    ASSERT_EQ(1, g.m_graph.SetTicMarkType(1, 1, &dc));
    EXPECT_EQ(dc.GetDeviceCaps(LOGPIXELSX), p->m_nLogPixelsX);
    EXPECT_EQ(dc.GetDeviceCaps(LOGPIXELSY), p->m_nLogPixelsY);

    // The three types are set together, but only X is reported.
    p->m_nYTicType[0] = 7;
    ASSERT_EQ(1, g.m_graph.GetTicMarkType(&nType, &nMinor));
    EXPECT_EQ(1, nType);
    EXPECT_EQ(1, nMinor);
    ASSERT_EQ(1, g.m_graph.SetTicMarkType(0, 0, NULL));
    ASSERT_EQ(1, g.m_graph.GetTicMarkType(&nType, &nMinor));
    EXPECT_EQ(0, nType);
    EXPECT_EQ(0, nMinor);
    EXPECT_EQ(0, p->m_nYTicType[0]);
}
