// Colour modes, the rotating and matching tables, custom colours, the
// background, and the graph's font.
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

float g_afXY[2] = { 0, 1 };

int Add(CGraph& graph, const char* pszName, DWORD dwAxis = PLOT_YLEFT)
{
    return graph.AddPlotData(pszName, dwAxis, g_afXY, g_afXY, 2, 0xEEEEEE, 4, 9);
}

// The look of a series as "colour style width annotate-colour".
std::string Look(CGraph& graph, const char* pszName)
{
    CPlotData* p = FindSeries(graph, pszName);
    return p ? Str("%06lx %d %d %06lx", p->m_crLine, p->m_nLineStyle, p->m_nLineWidth, p->m_crAnnotate) : "none";
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
        EXPECT_EQ(Str("%06lx 0 0 1", acr[i]), Str("%06lx %d %d %d", pTable[i].m_crLine, pTable[i].m_nLineStyle,
                                                  pTable[i].m_nAnnotate, pTable[i].m_nLineWidth)) << i;
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
    EXPECT_EQ(GRAPH_BADARG, graph.SetGraphColors(NULL, 3));
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
    // The entry's look, its line colour for the annotations; the caller's
    // colour is ignored.
    const char* apszLooks[3] = { "0000aa 1 3 0000aa", "00bb00 2 4 00bb00", "cc0000 3 5 cc0000" };
    const char* apszNames[] = { "a", "b", "c", "d", "e" };
    for (int i = 0; i < 5; i++) {
        CLineColor next, again;
        ASSERT_EQ(1, graph.GetNextRotatingColor(next));
        ASSERT_EQ(1, graph.GetNextRotatingColor(again));   // asking does not advance
        EXPECT_STREQ(table[i % 3].m_strName, again.m_strName);
        ASSERT_EQ(1, Add(graph, apszNames[i]));
        EXPECT_EQ(apszLooks[i % 3], Look(graph, apszNames[i]));
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
    EXPECT_EQ(apszLooks[0], Look(graph, "held1"));
    EXPECT_EQ(apszLooks[0], Look(graph, "held2"));
}

TEST(Colors, MatchingModeLooksUpTheSeriesName)
{
    CGraph graph;
    CLineColor table[3];
    FillEntry(table[0], "pressure", 0x0000AA, 1, 2, 3);
    FillEntry(table[1], "Flow", 0x00BB00, 2, 3, 4);
    FillEntry(table[2], "pressure", 0xCC0000, 3, 4, 5);
    ASSERT_EQ(1, graph.SetGraphColors(table, 3));
    // Works in every mode; the first of two entries of one name wins;
    // neither name nor width is copied; case counts.
    CLineColor found;
    found.m_strName = "untouched";
    found.m_nLineWidth = 77;
    EXPECT_EQ(1, graph.GetMatchingColor("pressure", found));
    EXPECT_EQ(Str("0000aa 1 2 77 untouched"), Str("%06lx %d %d %d %s", found.m_crLine, found.m_nLineStyle,
                                                  found.m_nAnnotate, found.m_nLineWidth, (LPCSTR)found.m_strName));
    EXPECT_EQ(GRAPH_NOCOLOR, graph.GetMatchingColor("flow", found));

    ASSERT_EQ(1, graph.SetGraphColorsMode(GRAPH_COLORS_MATCHING));
    EXPECT_EQ(1, Add(graph, "Flow"));
    EXPECT_EQ("00bb00 2 4 00bb00", Look(graph, "Flow"));
    EXPECT_EQ(GRAPH_NOCOLOR, Add(graph, "unknown"));
    EXPECT_EQ("none", Look(graph, "unknown"));
}

TEST(Colors, CustomColorsBackgroundAndFont)
{
    CGraph graph, other;
    DWORD adwOut[16] = { 0 };
    EXPECT_EQ(GRAPH_NOCUSTOMCOLORS, graph.GetCustomColors(adwOut));
    EXPECT_EQ(GRAPH_BADARG, graph.SetCustomColors(NULL));   // no array: none in force
    EXPECT_EQ(GRAPH_NOCUSTOMCOLORS, graph.GetCustomColors(adwOut));
    DWORD adwHost[16];
    for (int i = 0; i < 16; i++)
        adwHost[i] = (DWORD)i;
    EXPECT_EQ(1, graph.SetCustomColors(adwHost));
    EXPECT_EQ(1, graph.GetCustomColors(adwOut));
    EXPECT_EQ(0u, adwOut[5]);   // the argument is not written
    EXPECT_EQ(1, other.GetCustomColors(adwOut));   // process-wide
    EXPECT_EQ(1, graph.ReleaseCustomColors());
    EXPECT_EQ(GRAPH_NOCUSTOMCOLORS, other.GetCustomColors(adwOut));
    DWORD crBack = 0;
    EXPECT_EQ(1, graph.SetBackgroundColor(0x102030));
    EXPECT_EQ(1, graph.GetBackgroundColor(crBack));
    EXPECT_EQ(0x102030u, crBack);

    // The font: tenths of a point from now on, made at 12 points for the screen.
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
    EXPECT_EQ(Str("120 0000ff 120 Arial 700"),
              Str("%d %06lx %ld %s %ld", nSize, crText, out.lfHeight, out.lfFaceName, out.lfWeight));
    EXPECT_STREQ("Arial", graph.m_pGraphPrv->m_strFaceName);
    LOGFONT made;
    graph.m_pGraphPrv->m_font.GetLogFont(&made);
    CClientDC dc(NULL);
    EXPECT_EQ(-(dc.GetDeviceCaps(LOGPIXELSY) * 120 / 720), made.lfHeight);
    EXPECT_EQ(1, made.lfItalic);
}
