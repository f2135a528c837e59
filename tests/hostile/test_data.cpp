// Hostile data paths: allocations that fail inside the double overloads.
#include "TestUtil.h"
#include <vector>

TEST(HostileData, FailedAllocationsOfTheDoubleOverloadsChangeNothing)
{
    GraphInHost g;   // with a window: the legend takes part
    CGraph& graph = g.m_graph;
    CGraphPrv* p = g.Prv();
    // 4 MB for each float copy: one copy leaked shows in the committed memory.
    const long nPoints = 1 << 20;
    std::vector<double> adX(nPoints), adY(nPoints), adNew(nPoints, 7.0);
    for (long i = 0; i < nPoints; i++) {
        adX[i] = (double)i;
        adY[i] = 2.0 * i;
    }
    ASSERT_EQ(GRAPH_OK, graph.AddPlotData("old", PLOT_YLEFT, adX.data(), adY.data(), nPoints, 0xFF, PS_SOLID, 0));
    CPlotData* pOld = FindSeries(graph, "old");

    // Each allocation of a call fails in turn, the first and the second copy
    // among them, until the call has memory enough.
    const char* apszCalls[] = { "UpdatePlotData", "AddPlotData" };
    int anFailures[2] = { 0, 0 };
    for (int nCall = 0; nCall < 2; nCall++) {
        const float* pfX = pOld->m_pfXData;
        const float* pfY = pOld->m_pfYData;
        const long lPoints = pOld->m_lPoints;
        const std::string strLast = Str("%.0f %.0f", pfX[lPoints - 1], pfY[lPoints - 1]);
        const SIZE_T nBytesBefore = CommittedBytes();
        for (int nAfter = 0; nAfter < 20; nAfter++) {
            AfxSetAllocFailure(nAfter);
            const int nResult = nCall == 0 ? graph.UpdatePlotData("old", adNew.data(), adNew.data(), 0, nPoints / 2)
                                           : graph.AddPlotData("new", PLOT_YLEFT, adNew.data(), adNew.data(),
                                                               nPoints / 2, 0xFF00, PS_SOLID, 0);
            AfxSetAllocFailure(-1);
            if (nResult == GRAPH_OK)
                break;
            anFailures[nCall]++;
            const std::string strCase = Str("%s, allocation %d", apszCalls[nCall], nAfter + 1);
            ASSERT_EQ(GRAPH_NOMEMORY, nResult) << strCase;
            // The graph and the old series as they were, its data readable.
            EXPECT_EQ(1, p->m_mapPlotData.GetCount()) << strCase;
            EXPECT_EQ(1, p->m_legend.GetCount()) << strCase;
            ASSERT_EQ(pOld, FindSeries(graph, "old")) << strCase;
            ASSERT_TRUE(pOld->m_pfXData == pfX && pOld->m_pfYData == pfY) << strCase;
            ASSERT_EQ(lPoints, pOld->m_lPoints) << strCase;
            EXPECT_EQ(strLast, Str("%.0f %.0f", pfX[lPoints - 1], pfY[lPoints - 1])) << strCase;
            EXPECT_LT(CommittedBytes(), nBytesBefore + 2 * 1024 * 1024) << strCase;
        }
    }
    EXPECT_GE(anFailures[0], 2);   // the two copies
    EXPECT_GE(anFailures[1], 4);   // the series, its two copies and its pixel array
    // Both calls went through at last: new copies for the old series, a new series.
    EXPECT_EQ(nPoints / 2, pOld->m_lPoints);
    EXPECT_EQ(7.0f, pOld->m_pfYData[nPoints / 2 - 1]);
    EXPECT_TRUE(FindSeries(graph, "new") != NULL);
    EXPECT_EQ(2, p->m_legend.GetCount());
}
