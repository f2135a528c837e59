// graphbench: how long a graph takes to paint long series.
//
// For series of 10^5, 10^6 and 10^7 points in three shapes (a smooth sine, a
// random walk, uniform noise) a 1000 x 600 graph is painted into a memory
// context on a 32-bit DIB section through CGraph::Plot. Reported, as medians
// of several runs: the whole Plot, the transform and point reduction alone
// (CGraphPrv::OptimizePoints), and the points sent to the device, each once
// as the graph draws by default and once with the reduction per pixel
// column switched on. Prints one table and exits 0; no time is asserted.
#include "graph/Graph.h"
#include "graph/GraphPrv.h"
#include "series/PlotData.h"
#include <algorithm>
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <vector>

namespace {

const int GRAPH_WIDTH = 1000;
const int GRAPH_HEIGHT = 600;

double NowMs()
{
    static LARGE_INTEGER s_freq;
    if (s_freq.QuadPart == 0)
        ::QueryPerformanceFrequency(&s_freq);
    LARGE_INTEGER now;
    ::QueryPerformanceCounter(&now);
    return (double)now.QuadPart * 1000.0 / (double)s_freq.QuadPart;
}

double Median(std::vector<double> a)
{
    std::sort(a.begin(), a.end());
    return a[a.size() / 2];
}

// A small reproducible generator (xorshift64*), uniform in [0, 1).
struct Random
{
    unsigned long long s = 0x9E3779B97F4A7C15ull;
    double Next()
    {
        s ^= s >> 12;
        s ^= s << 25;
        s ^= s >> 27;
        return (double)((s * 0x2545F4914F6CDD1Dull) >> 11) * (1.0 / 9007199254740992.0);
    }
};

enum Shape { SHAPE_SINE, SHAPE_WALK, SHAPE_NOISE };
const char* const s_aShapeNames[] = { "sine", "random walk", "noise" };

void MakeSeries(Shape shape, long n, std::vector<float>& x, std::vector<float>& y)
{
    x.resize((size_t)n);
    y.resize((size_t)n);
    Random rnd;
    double dWalk = 0.0;
    for (long i = 0; i < n; i++) {
        x[(size_t)i] = (float)i;
        switch (shape) {
        case SHAPE_SINE:
            y[(size_t)i] = (float)sin(2.0 * 3.14159265358979 * 4.0 * (double)i / (double)n);
            break;
        case SHAPE_WALK:
            dWalk += rnd.Next() - 0.5;
            y[(size_t)i] = (float)dWalk;
            break;
        case SHAPE_NOISE:
            y[(size_t)i] = (float)rnd.Next();
            break;
        }
    }
}

// A memory context on a 32-bit top-down DIB section of the graph's size.
struct DibContext
{
    CDC dc;
    HBITMAP hBitmap = NULL;
    HGDIOBJ hOldBitmap = NULL;

    DibContext()
    {
        BITMAPINFO bmi;
        memset(&bmi, 0, sizeof(bmi));
        bmi.bmiHeader.biSize = sizeof(bmi.bmiHeader);
        bmi.bmiHeader.biWidth = GRAPH_WIDTH;
        bmi.bmiHeader.biHeight = -GRAPH_HEIGHT;
        bmi.bmiHeader.biPlanes = 1;
        bmi.bmiHeader.biBitCount = 32;
        bmi.bmiHeader.biCompression = BI_RGB;
        void* pBits = NULL;
        hBitmap = ::CreateDIBSection(NULL, &bmi, DIB_RGB_COLORS, &pBits, NULL, 0);
        dc.CreateCompatibleDC(NULL);
        hOldBitmap = ::SelectObject(dc.m_hDC, hBitmap);
    }
    ~DibContext()
    {
        ::SelectObject(dc.m_hDC, hOldBitmap);
        dc.DeleteDC();
        ::DeleteObject(hBitmap);
    }
};

struct Result
{
    double dPlotMs;
    double dReduceMs;
    long nKept;
};

Result Measure(Shape shape, long n, int nRuns, BOOL bColumns)
{
    std::vector<float> x, y;
    MakeSeries(shape, n, x, y);
    const float fYMin = *std::min_element(y.begin(), y.end());
    const float fYMax = *std::max_element(y.begin(), y.end());

    DibContext target;
    CGraph graph;
    CRect rect(0, 0, GRAPH_WIDTH, GRAPH_HEIGHT);
    graph.CreateGraph(NULL, NULL, rect, GS_NOWINDOW, 0, 0);
    graph.SizeGraph(&target.dc, 0, 0, GRAPH_WIDTH, GRAPH_HEIGHT, FALSE);
    graph.SetXAxisNumFmt("%g");
    graph.SetYAxisNumFmt(0, "%g");
    graph.SetXAxisLimits(0.0, (double)(n - 1));
    graph.SetYAxisLimits(fYMin, fYMax, 0);
    graph.AddPlotData("series", PLOT_YLEFT, x.data(), y.data(), n, RGB(0, 0, 255), PS_SOLID, 0);
    graph.EnableColumnReduction(bColumns);

    CPlotData* pData = NULL;
    graph.m_pGraphPrv->m_mapPlotData.Lookup("series", pData);

    // Plot leaves the context with the clip region it found, which for a
    // fresh memory context is an empty one: each paint starts unclipped.
    // The first paint warms up (fonts, first allocations) and is not
    // counted, unless it took a second or more. Paints of dense noise draw
    // millions of long lines and take seconds: after three counted runs, no
    // more are started once ten seconds have gone.
    std::vector<double> aPlot, aReduce;
    double dSpent = 0.0;
    for (int r = 0; (int)aPlot.size() < nRuns && ((int)aPlot.size() < 3 || dSpent < 10000.0); r++) {
        target.dc.SelectClipRgn(NULL);
        double t0 = NowMs();
        graph.Plot(&target.dc, 0);
        double dMs = NowMs() - t0;
        if (r > 0 || dMs >= 1000.0)
            aPlot.push_back(dMs);
        dSpent += dMs;
    }
    for (int r = 0; r < nRuns; r++) {
        double t0 = NowMs();
        graph.m_pGraphPrv->OptimizePoints(pData);
        aReduce.push_back(NowMs() - t0);
    }
    Result result = { Median(aPlot), Median(aReduce), pData->m_lPointCount };
    graph.RemoveAllPlotData();
    return result;
}

} // namespace

// Arguments, if any: the series lengths to run instead of the three standard ones.
int main(int argc, char** argv)
{
    InitializeZPXGraph();
    const double dStart = NowMs();
    printf("ZPXGraph paint of a %d x %d graph into a 32-bit DIB section (medians)\n\n", GRAPH_WIDTH, GRAPH_HEIGHT);
    printf("%-12s %9s | %10s %9s %9s | %10s %9s %9s\n", "", "", "default", "", "", "by column", "", "");
    printf("%-12s %9s | %10s %9s %9s | %10s %9s %9s\n", "shape", "points", "Plot ms", "reduce ms", "sent",
           "Plot ms", "reduce ms", "sent");
    std::vector<long> aSizes = { 100000L, 1000000L, 10000000L };
    if (argc > 1) {
        aSizes.clear();
        for (int i = 1; i < argc; i++)
            aSizes.push_back(atol(argv[i]));
    }
    for (long n : aSizes) {
        for (int s = 0; s < 3; s++) {
            const int nRuns = 9;
            Result r = Measure((Shape)s, n, nRuns, FALSE);
            Result c = Measure((Shape)s, n, nRuns, TRUE);
            printf("%-12s %9ld | %10.2f %9.2f %9ld | %10.2f %9.2f %9ld\n", s_aShapeNames[s], n, r.dPlotMs,
                   r.dReduceMs, r.nKept, c.dPlotMs, c.dReduceMs, c.nKept);
            fflush(stdout);
        }
    }
    printf("\n(%.1f s in all)\n", (NowMs() - dStart) / 1000.0);
    return 0;
}
