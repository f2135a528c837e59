// The graph frame: status values, defaults of a new graph, creation with and
// without a window, texts, the right axis, and the resolutions of number
// formats.
#include "TestUtil.h"

TEST(GraphFrame, StatusValuesAndNotFoundZeros)
{
    EXPECT_EQ(1, GRAPH_OK);
    const int anStatus[] = { GRAPH_BADARG, GRAPH_NOTAVAILABLE, GRAPH_NOSERIES, GRAPH_NOMEMORY,
                             GRAPH_MARKEREXISTS, GRAPH_NOMARKER, GRAPH_WRONGCOLORMODE, GRAPH_NOCOLOR,
                             GRAPH_NOAREA, GRAPH_NOCUSTOMCOLORS, GRAPH_SERIESEXISTS, GRAPH_NOREGION,
                             GRAPH_NOREFLINE };
    for (int i = 0; i < 13; i++)
        EXPECT_EQ(-3 - i, anStatus[i]);

    CGraph graph;
    // The three not-found results that are 0 and not a negative status.
    EXPECT_EQ(0, graph.RemoveMenuItem(14700));
    EXPECT_EQ(0, graph.RemovePropertyPage(7));
    EXPECT_EQ(0, graph.AddPropertyPage(NULL, 7));
    // A reference line that does not exist is a status, not 0.
    EXPECT_EQ(GRAPH_NOREFLINE, graph.m_pGraphPrv->RemoveReferenceLine("none"));

    CString strText("host entry");
    EXPECT_EQ(1, graph.AddMenuItem(strText, 40001, 0, NULL));
    EXPECT_EQ(1, graph.AddMenuItem(strText, 40002, 1, NULL));
    EXPECT_EQ(1, graph.AddMenuItem(strText, 40001, 2, NULL));
    EXPECT_EQ(1, graph.RemoveMenuItem(40001));   // the first of two with that id
    ASSERT_EQ(2, graph.m_pGraphPrv->m_aMenuIds.GetSize());
    EXPECT_EQ(40002u, graph.m_pGraphPrv->m_aMenuIds[0]);
    EXPECT_EQ(2, graph.m_pGraphPrv->m_aMenuFlags[1]);
    EXPECT_EQ(1, graph.RemoveAllMenuItems());
    EXPECT_EQ(0, graph.m_pGraphPrv->m_aMenuText.GetSize());
}

TEST(GraphFrame, DefaultsOfAConstructedGraph)
{
    CGraph graph;
    CGraphPrv* p = graph.m_pGraphPrv;
    ASSERT_TRUE(p != NULL);
    EXPECT_TRUE(p->IsKindOf(RUNTIME_CLASS(CWnd)));
    // State, style, limits, radar margins and type, menu and page
    // configuration, next label id, background, grid, colour mode and table,
    // tic type, resolution.
    EXPECT_EQ("100 71 | 0 1 0 1 | 0 10 7 | 63 15 2001 | ffffff 1 1 16 1 0",
              Str("%lx %lx | %g %g %g %g | %g %g %d | %ld %ld %d | %06lx %lu %d %d %d %g", p->m_dwState, p->m_dwStyle,
                  p->m_dXMin, p->m_dXMax, p->m_dYMin[1], p->m_dYMax[1], p->m_dRadarXPercent, p->m_dRadarYPercent,
                  (int)p->m_wRadarType, (long)p->m_lMenuConfig, (long)p->m_lPropPageConfig, (int)p->m_wNextLabelId,
                  p->m_crBackground, p->m_dwGridType, p->m_nGraphColorsMode, p->m_nGraphColors, p->m_nXTicType,
                  (double)p->m_fXResolution));
    EXPECT_TRUE(p->m_bZoomEnabled && p->m_bMenuEnabled && !p->m_bRightAxisDisplayed);
    EXPECT_TRUE(p->m_pNotify == NULL && p->m_pMarkerLine == NULL);
    EXPECT_STREQ("%.3E", p->m_strMaxLenFormat);
    EXPECT_TRUE(p->m_hPlotCursor != NULL);
    EXPECT_TRUE(p->m_rectPlot.IsRectNull());
    EXPECT_EQ(0, p->m_nXTicCount);
    // The font: 宋体 at 8 points, its LOGFONT read back from the font.
    LOGFONT lf;
    int nSize = 0;
    DWORD crText = 1;
    EXPECT_EQ(1, graph.GetLogFont(&lf, &nSize, &crText));
    EXPECT_EQ(80, nSize);
    EXPECT_EQ(0u, crText);
    EXPECT_STREQ(AnsiOf(L"\u5B8B\u4F53"), lf.lfFaceName);
    EXPECT_STREQ(AnsiOf(L"\u5B8B\u4F53"), p->m_strFaceName);
    CClientDC dc(NULL);
    EXPECT_EQ(-(dc.GetDeviceCaps(LOGPIXELSY) * 80 / 720), lf.lfHeight);
    EXPECT_EQ(lf.lfWeight, p->m_lFontWeight);
}

TEST(GraphFrame, CreateWithoutWindowReturnsTheStyleWord)
{
    TestHost host;
    CGraph graph, other;
    CRect rect(10, 20, 410, 320);
    EXPECT_EQ(GS_NOWINDOW, graph.CreateGraph(host.Wnd(), NULL, rect, GS_NOWINDOW, 100, 63));
    EXPECT_TRUE(graph.m_pGraphPrv->m_hWnd == NULL);
    EXPECT_TRUE(graph.m_pGraphPrv->m_legend.m_hWnd == NULL);
    // Higher style bits pass through unchanged.
    EXPECT_EQ((int)(GS_NOWINDOW | 0x1000), other.CreateGraph(host.Wnd(), NULL, rect, GS_NOWINDOW | 0x1000, 1, 7));
    EXPECT_EQ(7, other.m_pGraphPrv->m_lMenuConfig);
}

TEST(GraphFrame, CreateWithWindowShowsHidesAndLaysOut)
{
    GraphInHost g(GS_RIGHTAXIS, CRect(30, 40, 430, 340), 123);
    EXPECT_NE(0, g.m_nCreated);
    CGraphPrv* p = g.Prv();
    ASSERT_TRUE(p->m_hWnd != NULL);
    EXPECT_EQ(g.m_host.Hwnd(), ::GetParent(p->m_hWnd));
    EXPECT_EQ(123, ::GetDlgCtrlID(p->m_hWnd));
    EXPECT_FALSE(::IsWindowVisible(p->m_hWnd));   // hidden until ShowGraph
    EXPECT_EQ(p->m_hWnd, ::GetParent(p->m_legend.m_hWnd));
    EXPECT_EQ(4, p->m_legend.GetPosition());

    EXPECT_EQ(1, g.m_graph.ShowGraph());
    EXPECT_TRUE(::IsWindowVisible(p->m_hWnd));
    EXPECT_EQ(1, g.m_graph.Replot());
    RECT rcUpdate;
    EXPECT_TRUE(::GetUpdateRect(p->m_hWnd, &rcUpdate, FALSE));
    EXPECT_EQ(1, g.m_graph.Update());
    EXPECT_EQ(1, g.m_graph.HideGraph());
    EXPECT_FALSE(::IsWindowVisible(p->m_hWnd));

    RECT rcScreen;
    EXPECT_EQ(1, g.m_graph.GetGraphScreenRect(&rcScreen));
    POINT pt = { 0, 300 };
    ::ClientToScreen(p->m_hWnd, &pt);
    EXPECT_EQ(pt.x, rcScreen.left);
    EXPECT_EQ(pt.y, rcScreen.bottom);
    // The window goes with the graph.
    HWND hWnd = p->m_hWnd;
    p->DestroyWindow();
    EXPECT_FALSE(::IsWindow(hWnd));
}

TEST(GraphFrame, RightAxisFollowsTheRightLabel)
{
    CGraph graph;
    EXPECT_EQ(0, graph.HaveRightAxis());   // default style 0x71 has no right-axis bit
    graph.m_pGraphPrv->m_dwStyle = GS_RIGHTAXIS | GS_RESERVED1;
    EXPECT_EQ(2, graph.HaveRightAxis());
    EXPECT_EQ(0, graph.RightAxisDisplayed());
    EXPECT_EQ(1, graph.SetYAxisLabel(1, "right"));
    EXPECT_NE(0, graph.RightAxisDisplayed());
    EXPECT_EQ(1, graph.SetYAxisLabel(1, ""));
    EXPECT_EQ(0, graph.RightAxisDisplayed());
    // Any axis but 1 is the left one.
    EXPECT_EQ(1, graph.SetYAxisLabel(5, "x"));
    CString str;
    EXPECT_EQ(1, graph.GetYAxisLabel(-1, str));
    EXPECT_STREQ("x", str);
    EXPECT_EQ(0, graph.RightAxisDisplayed());
    // The cross hair is taken down and put up again around the change.
    graph.m_pGraphPrv->m_dwState |= GST_CROSSHAIR;
    EXPECT_EQ(1, graph.SetYAxisLabel(1, "again"));
    EXPECT_NE(0u, graph.m_pGraphPrv->m_dwState & GST_CROSSHAIR);

    EXPECT_EQ(1, graph.SetGraphTitle("title"));
    EXPECT_EQ(1, graph.GetGraphTitle(str));
    EXPECT_STREQ("title", str);
    EXPECT_EQ(1, graph.SetXAxisLabel("time"));
    EXPECT_EQ(1, graph.GetXAxisLabel(str));
    EXPECT_STREQ("time", str);
}

TEST(GraphFrame, ResolutionsFromNumberFormats)
{
    CGraph graph;
    CGraphPrv* p = graph.m_pGraphPrv;
    const struct
    {
        const char* pszFormat;
        float fResolution;
    } cases[] = {
        { "%.3f", 0.001f }, { "%.9f", 0.000001f }, { "%.12f", 0.000001f }, { "%d", 1.0f },
        { "%g", 1.0f },     { "%.0f", 1.0f },      { "%.2f and %.5f", 0.01f }, { "%6.1E", 0.1f },
    };
    for (const auto& c : cases) {
        EXPECT_EQ(1, graph.SetXAxisNumFmt(c.pszFormat));
        EXPECT_EQ(c.fResolution, p->m_fXResolution) << c.pszFormat;
    }
    EXPECT_EQ(1, graph.SetYAxisNumFmt(1, "%.2f"));
    EXPECT_EQ(0.01f, p->m_fYResolution[1]);
    EXPECT_EQ(0.0f, p->m_fYResolution[0]);
    EXPECT_EQ(1, graph.SetYAxisNumFmt(9, "%.4f"));   // any axis but 1 is the left one
    EXPECT_EQ(0.0001f, p->m_fYResolution[0]);
    EXPECT_STREQ("%.4f", p->m_strYAxisNumFmt[0]);
    EXPECT_STREQ("%.2f", p->m_strYAxisNumFmt[1]);
}
