// Hostile data paths: a host thread replacing a series while the window
// paints scaled to the data, and allocations that fail inside the double
// overloads.
#include "TestUtil.h"
#include <atomic>
#include <thread>
#include <vector>

namespace {

// Room for n floats that ends where a page without access begins: a reader
// that takes a longer count with this array faults at once.
struct GuardedFloats
{
    explicit GuardedFloats(int n)
    {
        DWORD dwOld;
        ::VirtualProtect(m_pBase + 4096, 4096, PAGE_NOACCESS, &dwOld);
        m_pf = (float*)(m_pBase + 4096) - n;
    }
    ~GuardedFloats() { ::VirtualFree(m_pBase, 0, MEM_RELEASE); }
    BYTE* m_pBase = (BYTE*)::VirtualAlloc(NULL, 2 * 4096, MEM_COMMIT, PAGE_READWRITE);
    float* m_pf;
};

// Access violations anywhere in the process, counted before any handler
// sees them: the system's dispatch of a paint would swallow them silently.
std::atomic<int> g_nFaults(0);

LONG CALLBACK CountFault(EXCEPTION_POINTERS* pInfo)
{
    g_nFaults += pInfo->ExceptionRecord->ExceptionCode == EXCEPTION_ACCESS_VIOLATION;
    return EXCEPTION_CONTINUE_SEARCH;
}

void Repaint(HWND hWnd)
{
    ::RedrawWindow(hWnd, NULL, NULL, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

} // namespace

TEST(HostileData, HostThreadUpdatesWhileTheWindowPaintsScaledToTheData)
{
    GraphInHost g;
    g.Show();
    CGraph& graph = g.m_graph;
    const HWND hWnd = g.Prv()->m_hWnd;
    EXPECT_EQ(GRAPH_OK, graph.SetAutoScaleMode(1));
    EXPECT_EQ(GRAPH_OK, graph.SetRadarPercent(0.0, 0.0));   // limits equal to the data's extent

    // Each series of floats has the same array for X and Y.
    GuardedFloats f16(16), f8(8);
    for (int i = 0; i < 16; i++)
        f16.m_pf[i] = (float)i;
    for (int i = 0; i < 8; i++)
        f8.m_pf[i] = (float)(100 + i);
    // The owned copies of the doubles are large enough for the heap to give
    // their pages back when they are freed: a reader still in them faults.
    const long nDoubles = 1 << 18;
    std::vector<double> ad(nDoubles);
    for (long i = 0; i < nDoubles; i++)
        ad[i] = (double)i;
    ASSERT_EQ(GRAPH_OK, graph.AddPlotData("s", PLOT_YLEFT, f16.m_pf, f16.m_pf, 16, 0xFF0000, PS_SOLID, 0));
    CPlotData* pData = FindSeries(graph, "s");
    double dMin = 0, dMax = 0;
    PVOID pFaultHandler = ::AddVectoredExceptionHandler(1, CountFault);

    // An update caught half done, as UpdatePlotData leaves it between its
    // stores: the arrays of 8 points with the count of 16 still standing. A
    // paint that reads the series without the lock faults on the guard page;
    // one that takes the lock waits and then scales to the 8 points.
    std::atomic<bool> bHeld(false);
    std::thread updater([&] {
        CSingleLock lock(&g.Prv()->m_csPlotData, TRUE);
        pData->m_pfXData = pData->m_pfYData = f8.m_pf;
        bHeld = true;
        ::Sleep(300);
        pData->m_lPoints = 8;
    });
    while (!bHeld)
        ::Sleep(1);
    const DWORD dwStart = ::GetTickCount();
    Repaint(hWnd);
    EXPECT_GE(::GetTickCount() - dwStart, 200u);
    updater.join();
    EXPECT_EQ(GRAPH_OK, graph.GetXAxisLimits(&dMin, &dMax));
    EXPECT_EQ("100 107", Str("%g %g", dMin, dMax));

    // The host thread swaps arrays of 16 and 8 floats and owned copies of
    // doubles while the window paints, for at most 400 paints or a second;
    // its last update is 12 of the doubles, from 1000.
    std::atomic<bool> bStop(false);
    int nUpdates = 0, nRefused = 0;
    std::thread host([&] {
        for (; !bStop && nUpdates < 5000000; nUpdates++) {
            int nResult;
            switch (nUpdates % 4) {
            case 0: nResult = graph.UpdatePlotData("s", f16.m_pf, f16.m_pf, 0, 16); break;
            case 1: nResult = graph.UpdatePlotData("s", f8.m_pf, f8.m_pf, 0, 8); break;
            default: nResult = graph.UpdatePlotData("s", ad.data(), ad.data(), 0, nDoubles); break;
            }
            nRefused += nResult != GRAPH_OK;
            // The lock is not fair: without a pause a waiting paint could
            // starve while this thread takes the lock again and again.
            if (nUpdates % 4 == 3)
                ::Sleep(1);
        }
        nRefused += graph.UpdatePlotData("s", ad.data() + 1000, ad.data() + 1000, 0, 12) != GRAPH_OK;
    });
    int nPaints = 0;
    for (const DWORD dwBegin = ::GetTickCount(); nPaints < 400 && ::GetTickCount() - dwBegin < 1000; nPaints++)
        Repaint(hWnd);
    bStop = true;
    host.join();
    ::RemoveVectoredExceptionHandler(pFaultHandler);
    EXPECT_EQ(0, g_nFaults.load());
    EXPECT_EQ(0, nRefused);
    EXPECT_GT(nUpdates, nPaints);

    // The series holds the last update's data, and a paint scales to it.
    ASSERT_EQ(pData, FindSeries(graph, "s"));
    EXPECT_EQ(12, pData->m_lPoints);
    EXPECT_TRUE(pData->m_bOwnXData && pData->m_bOwnYData);
    Repaint(hWnd);
    EXPECT_EQ(GRAPH_OK, graph.GetXAxisLimits(&dMin, &dMax));
    EXPECT_EQ("1000 1011", Str("%g %g", dMin, dMax));
    EXPECT_EQ(GRAPH_OK, graph.GetYAxisLimits(&dMin, &dMax, 0));
    EXPECT_EQ("1000 1011", Str("%g %g", dMin, dMax));
}

TEST(HostileData, FailedAllocationsOfTheDoubleOverloads)
{
    GraphInHost g;   // with a window: the legend takes part
    CGraph& graph = g.m_graph;
    CGraphPrv* p = g.Prv();
    // 4 MB for each float copy: one copy leaked shows in the committed memory.
    const long nPoints = 1 << 20;
    std::vector<double> adOld(nPoints, 3.0), adNew(nPoints, 7.0);
    auto addOld = [&] { return graph.AddPlotData("old", PLOT_YLEFT, adOld.data(), adOld.data(), nPoints, 0xFF, 0, 0); };
    const SIZE_T nBytesEmpty = CommittedBytes();

    // An update without memory for its first or its second copy costs the
    // series: gone from the map and the legend, its old copies freed.
    for (int nAfter = 0; nAfter < 2; nAfter++) {
        ASSERT_EQ(GRAPH_OK, addOld());
        AfxSetAllocFailure(nAfter);
        const int nResult = graph.UpdatePlotData("old", adNew.data(), adNew.data(), 0, nPoints / 2);
        AfxSetAllocFailure(-1);
        EXPECT_EQ(GRAPH_NOMEMORY, nResult) << nAfter;
        EXPECT_TRUE(FindSeries(graph, "old") == NULL) << nAfter;
        EXPECT_EQ(0, p->m_mapPlotData.GetCount()) << nAfter;
        EXPECT_EQ(0, p->m_legend.GetCount()) << nAfter;
        EXPECT_LT(CommittedBytes(), nBytesEmpty + 2 * 1024 * 1024) << nAfter;
    }
    ASSERT_EQ(GRAPH_OK, addOld());
    CPlotData* pOld = FindSeries(graph, "old");

    // An add fails at each of its allocations in turn (the series, its two
    // copies, its pixel array) and leaves the graph as it was, until it has
    // memory enough; the next allocation, its legend entry's, fails quietly
    // and leaves the series without an entry.
    const SIZE_T nBytesBefore = CommittedBytes();
    int nFailures = 0;
    for (int nAfter = 0; nAfter < 20; nAfter++) {
        AfxSetAllocFailure(nAfter);
        const int nResult = graph.AddPlotData("new", PLOT_YLEFT, adNew.data(), adNew.data(), nPoints / 2, 0xFF00,
                                              PS_SOLID, 0);
        AfxSetAllocFailure(-1);
        if (nResult == GRAPH_OK)
            break;
        nFailures++;
        ASSERT_EQ(GRAPH_NOMEMORY, nResult) << nAfter;
        EXPECT_EQ(1, p->m_mapPlotData.GetCount()) << nAfter;
        EXPECT_EQ(1, p->m_legend.GetCount()) << nAfter;
        EXPECT_EQ(pOld, FindSeries(graph, "old")) << nAfter;
        EXPECT_LT(CommittedBytes(), nBytesBefore + 2 * 1024 * 1024) << nAfter;
    }
    EXPECT_GE(nFailures, 4);
    EXPECT_TRUE(FindSeries(graph, "new") != NULL);
    EXPECT_EQ(1, p->m_legend.GetCount());
}
