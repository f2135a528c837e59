// Series: float series referring to the host's arrays, double series with
// owned float copies, updates under the lock, removal, look and extent.
#include "TestUtil.h"
#include <atomic>
#include <chrono>
#include <cmath>
#include <thread>
#include <vector>

TEST(Series, FloatSeriesKeepsTheHostsArrays)
{
    CGraph graph;
    float afX[4] = { 1, 2, 3, 4 };
    float afY[4] = { 5, -6, 7, 8 };
    EXPECT_EQ(1, graph.AddPlotData("a", PLOT_YLEFT, afX, afY, 4, 0x123456, 2, 3));
    CPlotData* pData = FindSeries(graph, "a");
    ASSERT_TRUE(pData != NULL);
    EXPECT_EQ(afX, pData->m_pfXData);
    EXPECT_EQ(afY, pData->m_pfYData);
    EXPECT_FALSE(pData->m_bOwnXData);
    EXPECT_FALSE(pData->m_bOwnYData);
    EXPECT_EQ(4, pData->m_lPoints);
    EXPECT_EQ(0, pData->m_lStartIndex);
    EXPECT_EQ(0, pData->m_nYAxis);
    // Colour mode 1: the caller's look, width 1; the extent of the points,
    // while the limits do not move.
    EXPECT_EQ("123456 123456 2 3 1", Str("%06lx %06lx %d %d %d", pData->m_crLine, pData->m_crAnnotate,
                                          pData->m_nLineStyle, pData->m_nAnnotate, pData->m_nLineWidth));
    EXPECT_EQ("1 4 -6 8", Str("%g %g %g %g", pData->m_fXMin, pData->m_fXMax, pData->m_fYMin, pData->m_fYMax));
    EXPECT_EQ(1.0, graph.m_pGraphPrv->m_dXMax);

    // Points that share one X value reach from 0 to it.
    float afSame[2] = { 3, 3 };
    EXPECT_EQ(1, graph.AddPlotData("same", PLOT_YRIGHT, afSame, afY, 2, 0, 0, 0));
    EXPECT_EQ(0.0f, FindSeries(graph, "same")->m_fXMin);
    EXPECT_EQ(3.0f, FindSeries(graph, "same")->m_fXMax);
    EXPECT_EQ(1, FindSeries(graph, "same")->m_nYAxis);
    // A series on the right axis does not show that axis.
    EXPECT_EQ(0, graph.RightAxisDisplayed());

    // A series of no points draws nothing and has no extent of its own.
    EXPECT_EQ(1, graph.AddPlotData("empty", PLOT_YLEFT, afX, afY, 0, 0, 0, 0));
    EXPECT_EQ(0, FindSeries(graph, "empty")->m_lPoints);
    EXPECT_EQ(0.0f, FindSeries(graph, "empty")->m_fXMax);
}

TEST(Series, AddRulesNamesAndAxisFlags)
{
    GraphInHost g;
    CGraph& graph = g.m_graph;
    float afX[2] = { 0, 1 }, afY[2] = { 0, 1 };
    EXPECT_EQ(1, graph.AddPlotData("s", PLOT_YLEFT, afX, afY, 2, 0xFF, 0, 0));
    float afOther[2] = { 9, 9 };
    EXPECT_EQ(GRAPH_SERIESEXISTS, graph.AddPlotData("s", PLOT_YRIGHT, afOther, afOther, 2, 0, 0, 0));
    EXPECT_EQ(afX, FindSeries(graph, "s")->m_pfXData);   // the first series stays
    EXPECT_EQ(1, graph.m_pGraphPrv->m_legend.GetCount());   // one legend entry

    // Names are case-sensitive.
    EXPECT_EQ(1, graph.AddPlotData("S", PLOT_YLEFT, afX, afY, 2, 0, 0, 0));
    EXPECT_EQ(2, graph.m_pGraphPrv->m_legend.GetCount());

    // Both bits: the left axis wins. Neither bit: refused, nothing added.
    EXPECT_EQ(1, graph.AddPlotData("both", PLOT_YLEFT | PLOT_YRIGHT, afX, afY, 2, 0, 0, 0));
    EXPECT_EQ(0, FindSeries(graph, "both")->m_nYAxis);
    EXPECT_EQ(GRAPH_BADARG, graph.AddPlotData("bad", 4, afX, afY, 2, 0, 0, 0));
    EXPECT_TRUE(FindSeries(graph, "bad") == NULL);
    EXPECT_EQ(3, graph.m_pGraphPrv->m_mapPlotData.GetCount());
    EXPECT_EQ(3, graph.m_pGraphPrv->m_legend.GetCount());

    EXPECT_EQ(GRAPH_NOSERIES, graph.RemovePlotData("nobody"));
    EXPECT_EQ(1, graph.RemovePlotData("S"));
    EXPECT_EQ(2, graph.m_pGraphPrv->m_legend.GetCount());
    EXPECT_EQ(-1, graph.m_pGraphPrv->m_legend.FindEntry("S"));
    EXPECT_LE(0, graph.m_pGraphPrv->m_legend.FindEntry("s"));
    EXPECT_EQ(1, graph.RemoveAllPlotData());
    EXPECT_EQ(0, graph.m_pGraphPrv->m_mapPlotData.GetCount());
    EXPECT_EQ(0, graph.m_pGraphPrv->m_legend.GetCount());
    EXPECT_EQ(1, graph.RemoveAllPlotData());   // an empty graph too
}

TEST(Series, DoubleSeriesOwnsFloatCopiesWithReplacements)
{
    CGraph graph;
    std::vector<double> x = { 1e39, -1e39, 0.1, std::nan(""), 3.4028234663852886e38, 3.4e38 };
    std::vector<double> y = { 1e39, -1e39, 0.1, 2.5, 3.4028234663852886e38, -3.4028234663852886e38 };
    ASSERT_EQ(1, graph.AddPlotData("d", PLOT_YLEFT, x.data(), y.data(), (long)x.size(), 0, 0, 0));
    CPlotData* pData = FindSeries(graph, "d");
    ASSERT_TRUE(pData != NULL);
    EXPECT_TRUE(pData->m_bOwnXData);
    EXPECT_TRUE(pData->m_bOwnYData);
    EXPECT_NE((void*)x.data(), (void*)pData->m_pfXData);
    // The host may free its doubles now.
    x.assign(x.size(), 0.0);
    y.assign(y.size(), 0.0);

    // Beyond the float range a fixed value of about 1.7e37 (3.4e32 for Y),
    // the largest float itself included; below it minus infinity.
    EXPECT_EQ(0x7D4CCCCCu, BitsOf(pData->m_pfXData[0]));
    EXPECT_EQ(0x758637BCu, BitsOf(pData->m_pfYData[0]));
    EXPECT_EQ(0x7D4CCCCCu, BitsOf(pData->m_pfXData[4]));
    EXPECT_EQ(0x758637BCu, BitsOf(pData->m_pfYData[4]));
    EXPECT_TRUE(std::isinf(pData->m_pfXData[1]) && pData->m_pfXData[1] < 0);
    EXPECT_TRUE(std::isinf(pData->m_pfYData[1]) && pData->m_pfYData[1] < 0);
    EXPECT_EQ(0.1f, pData->m_pfXData[2]);
    EXPECT_TRUE(std::isnan(pData->m_pfXData[3]));
    EXPECT_EQ(3.4e38f, pData->m_pfXData[5]);
    EXPECT_EQ(-3.4028234663852886e38f, pData->m_pfYData[5]);
}

TEST(Series, UpdateSwitchesBetweenOwnedAndHostArrays)
{
    CGraph graph;
    double adX[3] = { 1, 2, 3 }, adY[3] = { 4, 5, 6 };
    ASSERT_EQ(1, graph.AddPlotData("u", PLOT_YLEFT, adX, adY, 3, 0, 0, 0));
    CPlotData* pData = FindSeries(graph, "u");

    // Float update: the copies go, the host's long array is shown from index 100.
    std::vector<float> fX(200), fY(200);
    for (int i = 0; i < 200; i++) {
        fX[i] = (float)i;
        fY[i] = (float)(2 * i);
    }
    EXPECT_EQ(1, graph.UpdatePlotData("u", fX.data(), fY.data(), 100, 50));
    EXPECT_FALSE(pData->m_bOwnXData);
    EXPECT_FALSE(pData->m_bOwnYData);
    EXPECT_EQ(fX.data(), pData->m_pfXData);
    EXPECT_EQ(100, pData->m_lStartIndex);
    EXPECT_EQ(50, pData->m_lPoints);
    EXPECT_EQ(149.0f, pData->m_pfXData[pData->m_lStartIndex + pData->m_lPoints - 1]);
    // The extent is that of the series as added: updates do not scan.
    EXPECT_EQ(3.0f, pData->m_fXMax);

    // Double update: owned copies again. A first index other than 0 would
    // make the readers run past the copies, so it is not kept.
    double adX2[2] = { 7, 8 }, adY2[2] = { 9, 10 };
    EXPECT_EQ(1, graph.UpdatePlotData("u", adX2, adY2, 5, 2));
    EXPECT_TRUE(pData->m_bOwnXData);
    EXPECT_EQ(0, pData->m_lStartIndex);
    EXPECT_EQ(2, pData->m_lPoints);
    EXPECT_EQ(8.0f, pData->m_pfXData[1]);
    EXPECT_EQ(10.0f, pData->m_pfYData[1]);

    EXPECT_EQ(GRAPH_NOSERIES, graph.UpdatePlotData("nobody", fX.data(), fY.data(), 0, 1));
    EXPECT_EQ(GRAPH_NOSERIES, graph.UpdatePlotData("nobody", adX2, adY2, 0, 1));
}

TEST(Series, UpdateFromAnotherThreadWaitsForTheLock)
{
    CGraph graph;
    float afX[2] = { 0, 1 }, afY[2] = { 0, 1 };
    float afX2[3] = { 5, 6, 7 }, afY2[3] = { 8, 9, 10 };
    ASSERT_EQ(1, graph.AddPlotData("t", PLOT_YLEFT, afX, afY, 2, 0, 0, 0));
    CPlotData* pData = FindSeries(graph, "t");

    std::atomic<int> nResult(0);
    std::thread worker;
    {
        // The painting thread holds the series lock.
        CSingleLock lock(&graph.m_pGraphPrv->m_csPlotData, TRUE);
        worker = std::thread([&] { nResult = graph.UpdatePlotData("t", afX2, afY2, 0, 3); });
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        EXPECT_EQ(0, nResult.load());          // still waiting
        EXPECT_EQ(afX, pData->m_pfXData);      // nothing changed under the lock
        EXPECT_EQ(2, pData->m_lPoints);
    }
    worker.join();
    EXPECT_EQ(1, nResult.load());
    EXPECT_EQ(afX2, pData->m_pfXData);
    EXPECT_EQ(3, pData->m_lPoints);
}

TEST(Series, AttributesReadAndWrite)
{
    GraphInHost g;
    CGraph& graph = g.m_graph;
    float afX[2] = { 0, 1 }, afY[2] = { 0, 1 };
    ASSERT_EQ(1, graph.AddPlotData("look", PLOT_YLEFT, afX, afY, 2, 0x10, 1, 2));

    EXPECT_EQ(1, graph.SetPlotDataAttributes("look", 0xABCDEF, 3, 4, 5, 0x654321));
    DWORD crLine = 0, crAnnotate = 0;
    int nStyle = 0, nWidth = 0, nAnnotate = 0;
    EXPECT_EQ(1, graph.GetPlotDataAttributes("look", crLine, nStyle, nWidth, nAnnotate, crAnnotate));
    EXPECT_EQ("abcdef 3 4 5 654321", Str("%06lx %d %d %d %06lx", crLine, nStyle, nWidth, nAnnotate, crAnnotate));

    // The legend entry follows the new look.
    CLegend& legend = graph.m_pGraphPrv->m_legend;
    CLegendData* pEntry = (CLegendData*)legend.GetItemDataPtr(legend.FindEntry("look"));
    ASSERT_TRUE(pEntry != NULL);
    EXPECT_EQ(0xABCDEFu, pEntry->m_crLine);
    EXPECT_EQ(4, pEntry->m_nLineWidth);

    // Unknown series: -5 and the outputs stay.
    crLine = 7;
    nStyle = 8;
    EXPECT_EQ(GRAPH_NOSERIES, graph.GetPlotDataAttributes("none", crLine, nStyle, nWidth, nAnnotate, crAnnotate));
    EXPECT_EQ(7u, crLine);
    EXPECT_EQ(8, nStyle);
    EXPECT_EQ(GRAPH_NOSERIES, graph.SetPlotDataAttributes("none", 0, 0, 0, 0, 0));
}

TEST(Series, PointLabelsAndHighlightsKeepParallelArrays)
{
    CPlotData data;
    data.m_crLine = 0x00FF00;
    data.SetAnnotateColor(0x0000FF);
    EXPECT_EQ(1, data.AddLabel("p", 1.0, 2.0, 1, "first"));
    EXPECT_EQ(0x00FF00u, data.GetAnnotateColor());   // labels take the line colour
    EXPECT_EQ(1, data.AddLabel("q", 3.0, 4.0, 2, "second"));
    EXPECT_EQ(1, data.AddLabel("p", 5.0, 6.0, 3, "moved"));   // the same name replaces
    auto labels = [&] {
        return Str("%d %d %d %d %d", (int)data.m_aLabelNames.GetSize(), (int)data.m_aLabelTexts.GetSize(),
                   (int)data.m_aLabelX.GetSize(), (int)data.m_aLabelY.GetSize(), (int)data.m_aLabelStyles.GetSize());
    };
    EXPECT_EQ("2 2 2 2 2", labels());
    EXPECT_EQ("moved 5 6 3", Str("%s %g %g %d", (LPCSTR)data.m_aLabelTexts[0], data.m_aLabelX[0], data.m_aLabelY[0],
                                 data.m_aLabelStyles[0]));
    EXPECT_EQ(0, data.RemoveLabel("nobody"));
    EXPECT_EQ(1, data.RemoveLabel("p"));
    EXPECT_EQ("second", std::string(data.m_aLabelTexts[0]));
    EXPECT_EQ(1, data.RemoveLabel("q"));
    EXPECT_EQ("0 0 0 0 0", labels());

    EXPECT_EQ(1, data.AddPointHighlight("h", 1, 2, 4));
    EXPECT_EQ(1, data.AddPointHighlight("h", 3, 4, 5));
    EXPECT_EQ(1, data.AddPointHighlight("k", 5, 6, 6));
    ASSERT_EQ(2, data.m_aPointHighlightNames.GetSize());
    EXPECT_EQ("3 4 5", Str("%g %g %d", data.m_aPointHighlightX[0], data.m_aPointHighlightY[0],
                           data.m_aPointHighlightStyles[0]));
    EXPECT_EQ(1, data.RemovePointHighlight("h"));
    EXPECT_EQ(0, data.RemovePointHighlight("h"));
    EXPECT_STREQ("k", data.m_aPointHighlightNames[0]);
    data.RemoveAllPointHighlights();
    EXPECT_EQ(0, data.m_aPointHighlightY.GetSize());
}
