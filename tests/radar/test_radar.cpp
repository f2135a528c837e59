// Automatic scaling: limits from all series with the margins in percent, the
// axes the flags choose, one series from its stored extent, reversed axes,
// and the scaling that Plot runs first in the automatic mode.
#include "TestUtil.h"
#include "Surface.h"

namespace {

const int X = -1;   // axis number of the X axis in ExpectLimits; 0 and 1 are the Y axes

// The limits of one axis, minimum field then maximum field.
void ExpectLimits(CGraph& g, int nAxis, double dMin, double dMax)
{
    double dGotMin = 0, dGotMax = 0;
    if (nAxis == X)
        g.GetXAxisLimits(&dGotMin, &dGotMax);
    else
        g.GetYAxisLimits(&dGotMin, &dGotMax, nAxis);
    EXPECT_NEAR(dMin, dGotMin, 1e-6) << "axis " << nAxis;
    EXPECT_NEAR(dMax, dGotMax, 1e-6) << "axis " << nAxis;
}

// The fixture's starting limits: X 0 to 1, left Y 0 to 10, right Y 100 to 200.
void ExpectUnmoved(CGraph& g)
{
    ExpectLimits(g, X, 0, 1), ExpectLimits(g, 0, 0, 10), ExpectLimits(g, 1, 100, 200);
}

} // namespace

TEST(Radar, ScalesAllSeriesOnTheAxesOfTheFlags)
{
    static float afBig[] = {1e6f};
    PlotFixture f;
    CGraph& g = f.m_graph;
    WORD wType = 0;
    double dXPct = -1, dYPct = -1;
    EXPECT_EQ(2, g.GetRadarType(&wType) + g.GetRadarPercent(dXPct, dYPct));
    EXPECT_TRUE(wType == 7 && dXPct == 0.0 && dYPct == 10.0);

    f.Add("a", {0, 50, 100}, {0, 100, 40}, BLUE);
    f.Add("b", {-20, 50}, {30, 150}, BLUE);
    f.Add("r", {10, 200, 30}, {-5, 5, 0}, BLUE, PS_SOLID, PLOT_YRIGHT);
    g.AddPlotData("e", PLOT_YLEFT, afBig, afBig, 0, BLUE, PS_SOLID, 0);   // no points: not looked at
    EXPECT_EQ(1, g.Radar());   // extents -20 to 200, 0 to 150, -5 to 5; margins 0 %, 10 %, 10 %
    ExpectLimits(g, X, -20, 200), ExpectLimits(g, 0, -15, 165), ExpectLimits(g, 1, -6, 6);
    EXPECT_EQ(0.0f, f.Series("e")->m_fXMax);

    EXPECT_EQ(2, g.SetRadarPercent(5, 20) + g.SetRadarType(RADAR_YRIGHT));
    EXPECT_EQ(1, g.Radar());   // the right axis alone, with 20 %
    ExpectLimits(g, X, -20, 200), ExpectLimits(g, 0, -15, 165), ExpectLimits(g, 1, -7, 7);
    EXPECT_EQ(1, g.Radar(RADAR_X));   // 5 % of 220 on each side
    ExpectLimits(g, X, -31, 211), ExpectLimits(g, 0, -15, 165);

    g.SetXAxisLimits(0, 1), g.SetYAxisLimits(0, 10, 0), g.SetYAxisLimits(100, 200, 1);
    EXPECT_EQ(1, g.Radar(0));
    ExpectUnmoved(g);
}

TEST(Radar, EdgeCases)
{
    {   // No series, only right series with the left flag, GS_NOPLOT: nothing moves.
        PlotFixture f;
        f.m_graph.Radar();
        f.Add("r", {3, 4}, {3, 4}, BLUE, PS_SOLID, PLOT_YRIGHT);
        f.m_graph.Radar(RADAR_YLEFT);
        f.Prv()->m_dwStyle |= GS_NOPLOT;
        f.m_graph.SetAutoScaleMode(1);
        EXPECT_EQ(1, f.m_graph.Radar());
        EXPECT_EQ(GRAPH_NOTAVAILABLE, f.Plot());
        ExpectUnmoved(f.m_graph);
    }
    {   // One X value: from 0 to it. One Y value: half the resolution on each side.
        PlotFixture f;
        CGraph& g = f.m_graph;
        f.Add("p", {5, 5}, {5, 5}, BLUE);
        g.SetYAxisNumFmt(0, "%.2f");
        g.Radar();
        ExpectLimits(g, X, 0, 5), ExpectLimits(g, 0, 4.995, 5.005);
        // All X at -5: the extent runs from 0 to -5, and the X axis comes out
        // reversed, half the resolution (0.1) inside each end.
        f.Add("n", {-5, -5}, {5, 5}, BLUE, PS_SOLID, PLOT_YRIGHT);
        g.RemovePlotData("p");
        g.SetXAxisNumFmt("%.1f");
        g.Radar();
        EXPECT_TRUE(f.Series("n")->m_fXMin == 0.0f && f.Series("n")->m_fXMax == -5.0f);
        ExpectLimits(g, X, -0.05, -4.95);
        ExpectLimits(g, 1, 5, 5);   // resolution 0: both limits 5 ...
        g.DataToPixelY(5, 1);
        ExpectLimits(g, 1, 4.99, 5.01);   // ... until the first transform widens them
    }
}

TEST(Radar, ReversedAxesStayReversedWithTheMarginOutside)
{
    PlotFixture f;
    CGraph& g = f.m_graph;
    f.Add("a", {0, 50, 100}, {0, 100, 40}, BLUE);
    f.Add("r", {10, 200}, {-5, 5}, BLUE, PS_SOLID, PLOT_YRIGHT);
    g.SetRadarPercent(10, 10);
    g.SetXAxisLimits(1, 0), g.SetYAxisLimits(10, 0, 0), g.SetYAxisLimits(200, 100, 1);
    g.Radar();
    ExpectLimits(g, X, 220, -20), ExpectLimits(g, 0, 110, -10), ExpectLimits(g, 1, 6, -6);
    CPlotData* pA = f.Series("a");   // the extent keeps its smaller values first
    EXPECT_TRUE(pA->m_fXMin == 0 && pA->m_fXMax == 100 && pA->m_fYMin == 0 && pA->m_fYMax == 100);

    CString strA("a");   // the same numbers on both Y axes, whichever holds the series
    EXPECT_EQ(1, g.RadarPlotData(strA, RADAR_X | RADAR_YLEFT | RADAR_YRIGHT));
    ExpectLimits(g, X, 100, 0), ExpectLimits(g, 0, 110, -10), ExpectLimits(g, 1, 110, -10);
    g.SetYAxisLimits(3, 3, 0);   // equal limits count as rising
    g.Radar(RADAR_YLEFT);
    ExpectLimits(g, 0, -10, 110);
}

TEST(Radar, RadarPlotDataUsesTheStoredExtent)
{
    float afX[3] = {0, 10, 5}, afY[3] = {1, 2, 3}, afX2[2] = {0, 1000};
    PlotFixture f;
    CGraph& g = f.m_graph;
    g.AddPlotData("s", PLOT_YLEFT, afX, afY, 3, BLUE, PS_SOLID, 0);
    CString strNone("none"), strS("s");
    EXPECT_EQ(GRAPH_NOSERIES, g.RadarPlotData(strNone, 7));
    ExpectUnmoved(g);

    g.SetRadarPercent(50, 10);   // no margin on X here
    EXPECT_EQ(1, g.UpdatePlotData(strS, afX2, afY, 0, 2));
    EXPECT_EQ(1, g.RadarPlotData(strS, RADAR_X));
    ExpectLimits(g, X, 0, 10);     // the extent from before the update
    g.Radar(0);                    // scans, moves nothing
    ExpectLimits(g, X, 0, 10);
    afX2[1] = 5000;                // changed in place: unseen until the next Radar
    g.RadarPlotData(strS, RADAR_X);
    ExpectLimits(g, X, 0, 1000);
    g.Radar(RADAR_X);              // the X margin of Radar: 50 %
    ExpectLimits(g, X, -2500, 7500);

    // Flags 6: both Y axes the same numbers, padded by the left resolution.
    float afF[2] = {5, 5};
    g.AddPlotData("right", PLOT_YRIGHT, afF, afF, 2, BLUE, PS_SOLID, 0);
    g.SetYAxisNumFmt(0, "%.1f"), g.SetYAxisNumFmt(1, "%.3f");
    CString strR("right");
    EXPECT_EQ(1, g.RadarPlotData(strR, RADAR_YLEFT | RADAR_YRIGHT));
    ExpectLimits(g, 0, 4.95, 5.05), ExpectLimits(g, 1, 4.95, 5.05);
    g.Radar(RADAR_YRIGHT);
    ExpectLimits(g, 1, 4.9995, 5.0005);
}

TEST(Radar, AutoScaleModeScalesBeforeEveryPlot)
{
    PlotFixture f;
    CGraph& g = f.m_graph;
    f.Add("a", {100, 200}, {100, 200}, BLUE);
    f.Add("r", {150, 300}, {-1, 1}, BLUE, PS_SOLID, PLOT_YRIGHT);
    g.SetRadarType(0);   // no part at painting
    const CRect& r = f.m_rectPlot;
    EXPECT_EQ(1, f.Plot());
    EXPECT_EQ(0, f.m_dib.Count(r.left, r.top, r.right + 1, r.bottom + 1, BLUE));
    ExpectUnmoved(g);
    EXPECT_EQ(1, g.SetAutoScaleMode(1));
    EXPECT_EQ(1, f.Plot());
    ExpectLimits(g, X, 100, 300), ExpectLimits(g, 0, 90, 210), ExpectLimits(g, 1, -1.2, 1.2);
    EXPECT_GT(f.m_dib.Count(r.left, r.top, r.right + 1, r.bottom + 1, BLUE), 0);
}

TEST(Radar, SwitchesAndTheWaitCursorOfAWindow)
{
    float afX[2] = {1, 2}, afY[2] = {3, 4};
    GraphInHost g;
    CGraph& graph = g.m_graph;
    DWORD& dwState = g.Prv()->m_dwState;
    EXPECT_TRUE(dwState & GST_RADAR_DBLCLK);
    EXPECT_TRUE(graph.EnableRadarDblClick(0) && !(dwState & GST_RADAR_DBLCLK));
    EXPECT_TRUE(graph.EnableRadarDblClick(2) && (dwState & GST_RADAR_DBLCLK));
    EXPECT_EQ(2, graph.IsRadarPercentControlsEnabled() + graph.IsRadarAxisControlsEnabled());
    EXPECT_EQ(2, graph.EnableRadarPercentControls(0) + graph.EnableRadarAxisControls(0));
    EXPECT_EQ(0, graph.IsRadarPercentControlsEnabled() + graph.IsRadarAxisControlsEnabled());

    // The wait cursor comes and goes: cursor and display count as before.
    graph.AddPlotData("s", PLOT_YLEFT, afX, afY, 2, BLUE, PS_SOLID, 0);
    HCURSOR hArrow = ::LoadCursor(NULL, IDC_ARROW);
    ::SetCursor(hArrow);
    const int nShown = ::ShowCursor(TRUE) - 1;
    ::ShowCursor(FALSE);
    EXPECT_EQ(1, graph.Radar());
    EXPECT_EQ(hArrow, ::GetCursor());
    EXPECT_EQ(nShown + 1, ::ShowCursor(TRUE));
    ::ShowCursor(FALSE);
    ExpectLimits(graph, 0, 2.9, 4.1);
}
