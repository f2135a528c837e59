// Resources over many lives of a graph: memory and GDI objects come back to
// where they were after thousands of create/destroy cycles with series and
// the tools on them (cross hair, marker lines, areas, highlights, bitmaps).
#include "TestUtil.h"
#include "render/AnnotationMark.h"
#include <vector>

namespace {

void OneLife(CWnd* pParent, bool bWindow, bool bTools, std::vector<float>& x, std::vector<double>& d)
{
    double dMarker1 = 0.2, dMarker2 = 0.6;   // outlive the graph that writes them
    CGraph graph;
    CRect rect(0, 0, 320, 240);
    graph.CreateGraph(pParent, NULL, rect, bWindow ? 0 : GS_NOWINDOW, 1, 63);
    graph.AddPlotData("float", PLOT_YLEFT, x.data(), x.data(), (long)x.size(), 0xFF, 0, 0);
    graph.AddPlotData("double", PLOT_YRIGHT, d.data(), d.data(), (long)d.size(), 0xFF00, 0, 0);
    graph.m_pGraphPrv->AddReferenceLine("ref", REFLINE_VERTICAL, 0.5);
    LOGFONT lf;
    int nSize;
    DWORD crText;
    graph.GetLogFont(&lf, &nSize, &crText);
    graph.SetLogFont(&lf, 90, crText);
    double adX[2] = { 1, 2 };
    graph.UpdatePlotData("double", adX, adX, 0, 2);
    graph.AddAreaData("float", 1, 0, 10, AREA_BASE_ZERO, 0xFF, HS_CROSS);
    graph.AddAreaData("float", 1, 5, 20, AREA_BASE_HUNDRED, 0xFF, AREA_BRUSH_SOLID);
    graph.AddPlotDataHighlight("float", "h", 1.0, 1.0, MARK_SQUARE);
    if (bWindow && bTools) {
        graph.ShowGraph();
        graph.DisplayCrossHair(TRUE);
        graph.DisplayCrossHair(FALSE);
        graph.AddMarkerLine(pParent, ML_DOUBLE, "float", &dMarker1, &dMarker2, FALSE);
        ::DeleteObject(graph.GetBitmap());
    }
    if (!bWindow)
        graph.RemoveAllPlotData();   // without a window the host frees the series
}

} // namespace

TEST(Leaks, ThousandsOfGraphLivesReturnMemoryAndGdiObjects)
{
    TestHost host;
    std::vector<float> x(1000, 1.0f);
    std::vector<double> d(1000, 2.0);

    // Warm up: first-time allocations of the system and the run time.
    for (int i = 0; i < 50; i++)
        OneLife(host.Wnd(), i % 2 == 0, i % 10 == 0, x, d);
    TestHost::Pump();

    const LONG nGdiBefore = CGdiObject::GetLiveCount();
    const SIZE_T nBytesBefore = CommittedBytes();
    for (int i = 0; i < 2000; i++) {
        OneLife(host.Wnd(), i % 2 == 0, i % 10 == 0, x, d);
        if (i % 100 == 0)
            TestHost::Pump();
    }
    TestHost::Pump();
    EXPECT_EQ(nGdiBefore, CGdiObject::GetLiveCount());
    // A leak of even one series' pixel array per life (8 kB) would add 16 MB.
    const SIZE_T nBytesAfter = CommittedBytes();
    EXPECT_LT(nBytesAfter, nBytesBefore + 2 * 1024 * 1024)
        << "before " << nBytesBefore << " after " << nBytesAfter;
}
