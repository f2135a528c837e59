// Colour modes, the rotating and matching tables, custom colours, and the
// graph's font.
#include "gtest/gtest.h"
#include "graph/Graph.h"
#include "graph/GraphPrv.h"
#include "series/PlotData.h"
#include "TestUtil.h"

namespace {

void FillEntry(CLineColor& entry, const char* pszName, DWORD crLine, int nStyle, int nAnnotate, int nWidth)
{
    entry.m_strName = pszName;
    entry.m_crLine = crLine;
    entry.m_nLineStyle = nStyle;
    entry.m_nAnnotate = nAnnotate;
    entry.m_nLineWidth = nWidth;
}

float g_afX[2] = { 0, 1 };
float g_afY[2] = { 0, 1 };

int Add(CGraph& graph, const char* pszName, DWORD dwAxis = PLOT_YLEFT)
{
    return graph.AddPlotData(pszName, dwAxis, g_afX, g_afY, 2, 0xEEEEEE, 4, 9);
}

} // namespace

TEST(Colors, DefaultRotatingTable)
{
    CGraph graph;
    const CLineColor* pTable = graph.m_pGraphPrv->m_pGraphColors;
    ASSERT_TRUE(pTable != NULL);
    const DWORD acr[16] = { 0x000000, 0x0000FF, 0xFF0000, 0x00FF00, 0xFF00FF, 0x0066FF, 0xFFFF00, 0x006400,
                            0xA000A0, 0x000080, 0x808080, 0x979700, 0xFF0080, 0x4387C3, 0x00CC99, 0x00CCFF };
    for (int i = 0; i < 16; i++) {
        wchar_t szName[16];
        swprintf(szName, 16, L"\u7EBF %d", i + 1);   // "线 n" from the library's own strings
        EXPECT_STREQ(AnsiOf(szName), pTable[i].m_strName) << i;
        EXPECT_EQ(acr[i], pTable[i].m_crLine) << i;
        EXPECT_EQ(0, pTable[i].m_nLineStyle);
        EXPECT_EQ(0, pTable[i].m_nAnnotate);
        EXPECT_EQ(1, pTable[i].m_nLineWidth);
    }
}

TEST(Colors, ModesAndTheirRefusals)
{
    CGraph graph;
    EXPECT_EQ(GRAPH_BADARG, graph.SetGraphColorsMode(0));
    EXPECT_EQ(GRAPH_BADARG, graph.SetGraphColorsMode(4));
    EXPECT_EQ(1, graph.m_pGraphPrv->m_nGraphColorsMode);
    CLineColor entry;
    EXPECT_EQ(GRAPH_WRONGCOLORMODE, graph.GetNextRotatingColor(entry));
    EXPECT_EQ(GRAPH_WRONGCOLORMODE, graph.ResetRotatingColors());

    CLineColor table[1];
    FillEntry(table[0], "x", 1, 1, 1, 1);
    EXPECT_EQ(GRAPH_BADARG, graph.SetGraphColors(table, 0));
    EXPECT_TRUE(graph.m_pGraphPrv->m_pGraphColors != table);
    EXPECT_EQ(1, graph.SetGraphColors(table, 1));
    EXPECT_EQ(table, graph.m_pGraphPrv->m_pGraphColors);
}

TEST(Colors, RotatingModeAdvancesOncePerAddedSeries)
{
    CGraph graph;
    CLineColor table[3];
    FillEntry(table[0], "r0", 0x0000AA, 1, 2, 3);
    FillEntry(table[1], "r1", 0x00BB00, 2, 3, 4);
    FillEntry(table[2], "r2", 0xCC0000, 3, 4, 5);
    ASSERT_EQ(1, graph.SetGraphColors(table, 3));
    ASSERT_EQ(1, graph.SetGraphColorsMode(GRAPH_COLORS_ROTATING));

    const char* apszNames[] = { "a", "b", "c", "d", "e" };
    for (int i = 0; i < 5; i++) {
        CLineColor next, again;
        ASSERT_EQ(1, graph.GetNextRotatingColor(next));
        ASSERT_EQ(1, graph.GetNextRotatingColor(again));   // does not advance
        EXPECT_STREQ(next.m_strName, again.m_strName);
        EXPECT_STREQ(table[i % 3].m_strName, next.m_strName);

        ASSERT_EQ(1, Add(graph, apszNames[i]));
        CPlotData* pData = FindSeries(graph, apszNames[i]);
        EXPECT_EQ(next.m_crLine, pData->m_crLine);   // the caller's colour is ignored
        EXPECT_EQ(table[i % 3].m_nLineWidth, pData->m_nLineWidth);
        EXPECT_EQ(table[i % 3].m_nLineStyle, pData->m_nLineStyle);
        EXPECT_EQ(table[i % 3].m_crLine, pData->m_crAnnotate);
        EXPECT_EQ((i + 1) % 3, graph.m_pGraphPrv->m_nNextRotatingColor);

        // A failed add moves nothing: not at the flags, not at the name.
        EXPECT_EQ(GRAPH_BADARG, Add(graph, "refused", 0));
        EXPECT_EQ(GRAPH_SERIESEXISTS, Add(graph, apszNames[i]));
        EXPECT_EQ((i + 1) % 3, graph.m_pGraphPrv->m_nNextRotatingColor);
    }

    EXPECT_EQ(1, graph.ResetRotatingColors());
    EXPECT_EQ(0, graph.m_pGraphPrv->m_nNextRotatingColor);

    // Held rotation: every new series takes the same entry.
    graph.SetStopIncrementColor(1);
    EXPECT_EQ(1, graph.GetStopIncrementColor());
    ASSERT_EQ(1, Add(graph, "held1"));
    ASSERT_EQ(1, Add(graph, "held2"));
    EXPECT_EQ(table[0].m_crLine, FindSeries(graph, "held1")->m_crLine);
    EXPECT_EQ(table[0].m_crLine, FindSeries(graph, "held2")->m_crLine);
    graph.SetStopIncrementColor(0);
    EXPECT_EQ(0, graph.GetStopIncrementColor());
}

TEST(Colors, MatchingModeLooksUpTheSeriesName)
{
    CGraph graph;
    CLineColor table[3];
    FillEntry(table[0], "pressure", 0x0000AA, 1, 2, 3);
    FillEntry(table[1], "Flow", 0x00BB00, 2, 3, 4);
    FillEntry(table[2], "pressure", 0xCC0000, 3, 4, 5);
    ASSERT_EQ(1, graph.SetGraphColors(table, 3));

    // Works in every mode; the first of two entries of one name wins.
    CLineColor found;
    found.m_strName = "untouched";
    found.m_nLineWidth = 77;
    EXPECT_EQ(1, graph.GetMatchingColor("pressure", found));
    EXPECT_EQ(0x0000AAu, found.m_crLine);
    EXPECT_EQ(1, found.m_nLineStyle);
    EXPECT_EQ(2, found.m_nAnnotate);
    EXPECT_STREQ("untouched", found.m_strName);   // neither name nor width is copied
    EXPECT_EQ(77, found.m_nLineWidth);
    EXPECT_EQ(GRAPH_NOCOLOR, graph.GetMatchingColor("flow", found));   // case counts

    ASSERT_EQ(1, graph.SetGraphColorsMode(GRAPH_COLORS_MATCHING));
    EXPECT_EQ(1, Add(graph, "Flow"));
    EXPECT_EQ(0x00BB00u, FindSeries(graph, "Flow")->m_crLine);
    EXPECT_EQ(4, FindSeries(graph, "Flow")->m_nLineWidth);
    EXPECT_EQ(GRAPH_NOCOLOR, Add(graph, "unknown"));
    EXPECT_TRUE(FindSeries(graph, "unknown") == NULL);
}

TEST(Colors, CustomColorsAndBackground)
{
    CGraph graph;
    DWORD adwOut[16] = { 0 };
    EXPECT_EQ(GRAPH_NOCUSTOMCOLORS, graph.GetCustomColors(adwOut));
    DWORD adwHost[16];
    for (int i = 0; i < 16; i++)
        adwHost[i] = (DWORD)i;
    EXPECT_EQ(1, graph.SetCustomColors(adwHost));
    EXPECT_EQ(1, graph.GetCustomColors(adwOut));
    EXPECT_EQ(0u, adwOut[5]);   // the argument is not written
    // Process-wide: another graph sees the host's array too.
    CGraph other;
    EXPECT_EQ(1, other.GetCustomColors(adwOut));
    EXPECT_EQ(1, graph.ReleaseCustomColors());
    EXPECT_EQ(GRAPH_NOCUSTOMCOLORS, other.GetCustomColors(adwOut));

    DWORD crBack = 0;
    EXPECT_EQ(1, graph.SetBackgroundColor(0x102030));
    EXPECT_EQ(1, graph.GetBackgroundColor(crBack));
    EXPECT_EQ(0x102030u, crBack);
}

TEST(Colors, FontRoundTrip)
{
    CGraph graph;
    LOGFONT lf;
    memset(&lf, 0, sizeof(lf));
    lf.lfWeight = FW_BOLD;
    lf.lfItalic = 1;
    lf.lfCharSet = DEFAULT_CHARSET;
    lstrcpyA(lf.lfFaceName, "Arial");
    EXPECT_EQ(1, graph.SetLogFont(&lf, 120, 0x0000FF));

    LOGFONT out;
    int nSize = 0;
    DWORD crText = 0;
    EXPECT_EQ(1, graph.GetLogFont(&out, &nSize, &crText));
    EXPECT_EQ(120, nSize);
    EXPECT_EQ(0x0000FFu, crText);
    EXPECT_EQ(120, out.lfHeight);   // tenths of a point from now on
    EXPECT_STREQ("Arial", out.lfFaceName);
    EXPECT_EQ(FW_BOLD, out.lfWeight);
    EXPECT_STREQ("Arial", graph.m_pGraphPrv->m_strFaceName);
    EXPECT_EQ(FW_BOLD, graph.m_pGraphPrv->m_lFontWeight);
    EXPECT_EQ(1, graph.m_pGraphPrv->m_bFontItalic);

    // The font object is made at 12 points for the screen.
    LOGFONT made;
    graph.m_pGraphPrv->m_font.GetLogFont(&made);
    CClientDC dc(NULL);
    EXPECT_EQ(-(dc.GetDeviceCaps(LOGPIXELSY) * 120 / 720), made.lfHeight);
    EXPECT_EQ(1, made.lfItalic);
}
