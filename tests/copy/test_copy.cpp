// Copying graphs: the windowless drawing copy made by assignment, and
// CopyAppearance, which goes through the destination's own setters.
#include "Surface.h"
#include "render/RefLineData.h"

namespace {

float g_afX[3] = {0, 1, 2}, g_afY[3] = {0, 1, 0};

// A created graph without a window; its series go before it does.
struct Made {
    CGraph g;
    explicit Made(TestHost& host) { CRect r(0, 0, 420, 320); g.CreateGraph(host.Wnd(), NULL, r, GS_NOWINDOW, 1, 63); }
    ~Made() { g.RemoveAllPlotData(); }
};

double LinePos(CGraphPrv* p, const char* psz)
    { CRefLineData* pLine = NULL; return p->m_mapRefLines.Lookup(psz, pLine) ? pLine->m_fPosition : -99.0; }

// A source with floating X tics up to index 3, minor tics, lines A, B, C and
// two series; a destination with minor tics, lines A (at 5.0) and D, one series.
struct CopyTest : testing::Test {
    TestHost host;
    Made src{host}, dst{host};
    CGraphPrv *s = src.g.m_pGraphPrv, *d = dst.g.m_pGraphPrv;
    void SetUp() override
    {
        CClientDC screen(NULL);
        src.g.SetXAxisLimits(0, 260); src.g.SetYAxisLimits(100, 0, 1); src.g.SetTicMarkType(1, 1, &screen);
        src.g.SetBackgroundColor(BACKGROUND); src.g.SetGridAttributes(GRID_NONE, FRAME, 0); src.g.SetRadarPercent(1, 2);
        src.g.AddReferenceLine("A", REFLINE_VERTICAL, 2.0); src.g.AddReferenceLine("B", REFLINE_HORIZONTAL, 0.5); src.g.AddReferenceLine("C", REFLINE_VERTICAL, 0.25);
        src.g.AddPlotData("s1", PLOT_YLEFT, g_afX, g_afY, 3, 0xFF, 0, 0); src.g.AddPlotData("s2", PLOT_YLEFT, g_afX, g_afY, 3, 0xFF, 0, 0);
        dst.g.SetTicMarkType(1, 1, &screen); dst.g.SetGraphTitle("D"); dst.g.AddReferenceLine("A", REFLINE_HORIZONTAL, 5.0);
        dst.g.AddReferenceLine("D", REFLINE_HORIZONTAL, 0.75); dst.g.AddPlotData("own", PLOT_YLEFT, g_afX, g_afY, 3, 0xFF, 0, 0);
        ASSERT_TRUE(s->m_nXTicCount == 3 && d->m_nXTicCount == 5 && s->m_mapPlotData.GetCount() == 2);
        ASSERT_TRUE(s->m_nMinorTicCount[0] != 0 && d->m_nMinorTicCount[0] != 0 && d->m_dwState == GST_RADAR_DBLCLK);
    }
    void ExpectLinesAddedAndSeriesKept()
    {
        EXPECT_TRUE(d->m_mapRefLines.GetCount() == 4 && LinePos(d, "A") == 2.0 && LinePos(d, "D") == 0.75);
        EXPECT_TRUE(d->m_mapPlotData.GetCount() == 1 && FindSeries(d, "own") && s->m_mapPlotData.GetCount() == 2);
        EXPECT_TRUE(d->m_crBackground == BACKGROUND && d->m_crGrid == FRAME && d->m_dRadarYPercent == 2);
    }
};

} // namespace

TEST_F(CopyTest, AssignmentMakesAWindowlessDrawingCopy)
{
    double adOld[11]; memcpy(adOld, d->m_dXTicValue, sizeof(adOld));
    EXPECT_EQ(&dst.g, &(dst.g = src.g));
    ExpectLinesAddedAndSeriesKept();
    EXPECT_TRUE(d->m_dwState == 0 && d->m_dYMax[1] == 0 && d->m_strGraphTitle.IsEmpty());
    for (int i = 0; i <= 10; i++)   // the X table up to its count, the destination's own above it
        EXPECT_EQ(i <= 3 ? s->m_dXTicValue[i] : adOld[i], d->m_dXTicValue[i]) << i;
    EXPECT_TRUE(d->m_nMinorTics == 0 && d->m_nMinorTicCount[0] + d->m_nMinorTicCount[1] + d->m_nMinorTicCount[2] == 0);

    // A copy that was never created draws the source's frame before any SizeGraph.
    CGraph copy;
    Dib dib(420, 320, BLACK);
    copy = src.g;
    ASSERT_EQ(GRAPH_OK, copy.Plot(dib.DC(), 0));
    const CRect r = s->m_rectPlot;   // no pixel of its four sides in another colour
    auto off = [&](int x1, int y1, int x2, int y2) { return dib.Count(x1, y1, x2 + 1, y2 + 1, FRAME, true); };
    EXPECT_EQ(0, off(r.left, r.top, r.right, r.top) + off(r.left, r.bottom, r.right, r.bottom) +
                 off(r.left, r.top, r.left, r.bottom) + off(r.right, r.top, r.right, r.bottom));
    EXPECT_EQ(BACKGROUND, dib.At((s->m_nXTicPixel[1] + s->m_nXTicPixel[2]) / 2, (r.top + r.bottom) / 2));
}

TEST_F(CopyTest, CopyAppearanceGivesAllAxesTheXTicType)
{
    src.g.SetTicMarkType(0, 0, NULL);
    s->m_nYTicType[0] = s->m_nYTicType[1] = 1;   // not looked at
    src.g.CopyAppearance(dst.g);
    ExpectLinesAddedAndSeriesKept();
    EXPECT_TRUE(d->m_dwState == GST_RADAR_DBLCLK && d->m_strGraphTitle == "D");
    const double adMax[3] = {260, 1, 0}, adMin[3] = {0, 0, 100};
    for (int a = 0; a < 3; a++) {
        EXPECT_TRUE((a ? d->m_nYTicType[a - 1] : d->m_nXTicType) == 0 && (a ? d->m_nYTicCount[a - 1] : d->m_nXTicCount) == 10);
        for (int i = 0; i <= 10; i++)
            EXPECT_NEAR(adMin[a] + i / 10.0 * (adMax[a] - adMin[a]), a ? d->m_dYTicValue[a - 1][i] : d->m_dXTicValue[i], 1e-9);
    }
}

TEST_F(CopyTest, SelfAssignmentAndTheFaceName)
{
    s->m_dwStyle = 0x71;                   // the default of a graph never created
    s->m_pNotify = (CGraphNotify*)&host;   // only stored
    ASSERT_NE(80, s->m_logFont.lfHeight);  // device units until the font is made from tenths of a point
    CGraph& alias = src.g; src.g = alias;
    EXPECT_TRUE(s->m_dwStyle == 0x75 && s->m_dwState == 0 && !s->m_pNotify && !s->m_nMinorTics && !s->m_nMinorTicCount[0]);
    EXPECT_TRUE(LinePos(s, "A") == 2.0 && s->m_logFont.lfHeight == 80 && s->m_font.m_hObject != NULL);

    // Assignment takes the font's description, not the face name kept for the stores.
    const CString strFace = d->m_strFaceName;
    LOGFONT lf = s->m_logFont; strcpy(lf.lfFaceName, "Courier New");
    src.g.SetLogFont(&lf, 120, 0xFF);
    dst.g = src.g;
    EXPECT_TRUE(d->m_strFaceName == strFace && strFace != "Courier New" && d->m_crText == 0xFF);
    EXPECT_STREQ("Courier New", d->m_logFont.lfFaceName);
}
