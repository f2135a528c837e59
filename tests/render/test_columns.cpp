// The reduction per pixel column: a graph painted with it and without it
// colours the very same pixels, for dense data of every kind, at plot sizes
// down to a few dozen pixels, beyond the limits, on reversed axes and the
// right axis, with values the transform bounds; series it does not apply to
// keep their pixel arrays as they were.
#include "Surface.h"
#include <functional>
#include <math.h>
#include <limits>

namespace {

enum { NOISE, WALK, SINE };

// n points of a shape over X from x0 to x1, Y around 5 (left axis 0..10).
void MakeShape(int nShape, long n, float x0, float x1, float yScale, std::vector<float>& x, std::vector<float>& y)
{
    x.resize(n);
    y.resize(n);
    unsigned int nSeed = 7;
    float fWalk = 5.0f;
    for (long i = 0; i < n; i++) {
        nSeed = nSeed * 1103515245u + 12345u;
        const float fRandom = ((nSeed >> 8) % 10000) / 10000.0f;
        x[i] = x0 + (x1 - x0) * i / (float)(n - 1 > 0 ? n - 1 : 1);
        fWalk += (fRandom - 0.5f) * 0.05f;
        const float fValue = nShape == NOISE ? 10.0f * fRandom : (nShape == WALK ? fWalk : 5.0f + 4.0f * sinf(40.0f * x[i]));
        y[i] = 5.0f + (fValue - 5.0f) * yScale;
    }
}

// Pixels that differ between two bitmaps of one size.
int Differences(const Dib& a, const Dib& b)
{
    int nDiffer = 0;
    for (int y = 0; y < a.m_nHeight; y++)
        for (int x = 0; x < a.m_nWidth; x++)
            nDiffer += a.At(x, y) != b.At(x, y);
    return nDiffer;
}

// Paints what set-up puts on a graph of the size twice, the second time with
// the reduction per column; every pixel must be equal. Returns the points
// of series "s" in each mode.
std::pair<long, long> ExpectSamePixels(const char* pszWhat, int nWidth, int nHeight,
                                       const std::function<void(PlotFixture&)>& setUp)
{
    PlotFixture plain(nWidth, nHeight), reduced(nWidth, nHeight);
    setUp(plain);
    setUp(reduced);
    EXPECT_EQ(GRAPH_OK, reduced.m_graph.EnableColumnReduction(TRUE));
    EXPECT_EQ(GRAPH_OK, plain.Plot());
    EXPECT_EQ(GRAPH_OK, reduced.Plot());
    const int nDiffer = Differences(plain.m_dib, reduced.m_dib);
    EXPECT_EQ(0, nDiffer) << pszWhat;
    return std::make_pair(plain.Series("s")->m_lPointCount, reduced.Series("s")->m_lPointCount);
}

} // namespace

TEST(ColumnReduction, TheSamePixelsForDenseDataOfEveryKind)
{
    const struct
    {
        const char* pszWhat;
        long n;
        int nShape, nWidth, nHeight;
        float x0, x1, yScale;
    } cases[] = {
        { "noise", 200000, NOISE, 400, 300, 0.0f, 1.0f, 1.0f },
        { "random walk", 200000, WALK, 400, 300, 0.0f, 1.0f, 1.0f },
        { "sine", 200000, SINE, 400, 300, 0.0f, 1.0f, 1.0f },
        { "noise, narrow plot", 200000, NOISE, 150, 120, 0.0f, 1.0f, 1.0f },
        { "sine, narrow plot", 200000, SINE, 150, 120, 0.0f, 1.0f, 1.0f },
        { "beyond every side", 200000, NOISE, 400, 300, -0.5f, 1.5f, 3.0f },
        { "walk beyond every side", 200000, WALK, 300, 200, -0.3f, 1.2f, 20.0f },
        // Long enough for two threads: runs go on across the cut between them.
        { "two threads, beyond the edges", 1200000, WALK, 300, 200, -0.3f, 1.2f, 20.0f },
        { "two threads, narrow plot", 1200000, SINE, 150, 120, 0.0f, 1.0f, 1.0f },
    };
    for (const auto& c : cases) {
        std::vector<float> x, y;
        MakeShape(c.nShape, c.n, c.x0, c.x1, c.yScale, x, y);
        const auto counts = ExpectSamePixels(c.pszWhat, c.nWidth, c.nHeight,
                                             [&](PlotFixture& f) { f.Add("s", x, y, BLUE); });
        if (c.nShape != SINE && c.yScale == 1.0f) {
            EXPECT_LT(counts.second * 10, counts.first) << c.pszWhat;   // far fewer points to the device
        }
    }
    ASSERT_GT(PlotFixture(150, 120).m_rectPlot.Width(), 10);
    EXPECT_LT(PlotFixture(150, 120).m_rectPlot.Width(), 50);
}

TEST(ColumnReduction, TheSamePixelsOnOtherAxesAndForOddValues)
{
    std::vector<float> x, y;
    MakeShape(NOISE, 100000, 0.0f, 1.0f, 1.0f, x, y);
    // Reversed axes; the right axis.
    ExpectSamePixels("reversed", 400, 300, [&](PlotFixture& f) {
        f.m_graph.SetXAxisLimits(1.0, 0.0);
        f.m_graph.SetYAxisLimits(10.0, 0.0, 0);
        f.Add("s", x, y, BLUE);
    });
    std::vector<float> yRight(y);
    for (float& v : yRight)
        v = 100.0f + 10.0f * v;
    ExpectSamePixels("right axis", 400, 300, [&](PlotFixture& f) { f.Add("s", x, yRight, BLUE, PS_SOLID, PLOT_YRIGHT); });

    // Not a number and huge values, which the transform bounds.
    std::vector<float> yOdd(y);
    const float fNaN = std::numeric_limits<float>::quiet_NaN();
    for (size_t i = 0; i < yOdd.size(); i += 997)
        yOdd[i] = (i / 997) % 3 == 0 ? fNaN : ((i / 997) % 3 == 1 ? 1e30f : -1e30f);
    ExpectSamePixels("odd values", 400, 300, [&](PlotFixture& f) { f.Add("s", x, yOdd, BLUE); });

    // One point; all points equal; a first index other than 0.
    ExpectSamePixels("one point", 400, 300, [&](PlotFixture& f) { f.Add("s", { 0.5f }, { 5.0f }, BLUE); });
    const auto counts = ExpectSamePixels("all equal", 400, 300, [&](PlotFixture& f) {
        f.Add("s", std::vector<float>(5000, 0.5f), std::vector<float>(5000, 5.0f), BLUE);
    });
    EXPECT_EQ(1, counts.second);
    ExpectSamePixels("first index", 400, 300, [&](PlotFixture& f) {
        f.Add("s", x, y, BLUE);
        f.Series("s")->m_lStartIndex = 5000;
        f.Series("s")->m_lPoints -= 5000;
    });
}

TEST(ColumnReduction, OtherPensAndHighlightRegionsKeepTheirPixelArrays)
{
    // A dashed line, a wide one and a series with highlight regions (one of
    // them on points a column pass would drop) keep the same pixel array, so
    // the device gets the same calls.
    std::vector<float> x, y;
    MakeShape(NOISE, 50000, 0.0f, 1.0f, 1.0f, x, y);
    for (int nCase = 0; nCase < 3; nCase++) {
        PlotFixture plain, reduced;
        for (PlotFixture* f : { &plain, &reduced }) {
            CPlotData* pData = f->Add("s", x, y, BLUE, nCase == 0 ? PS_DASH : PS_SOLID);
            if (nCase == 1)
                f->m_graph.SetPlotDataAttributes("s", BLUE, PS_SOLID, 3, 0, BLUE);
            if (nCase == 2) {
                PlotFixture::AddRegion(pData, 100, 20000, MAGENTA, PS_SOLID);
                PlotFixture::AddRegion(pData, 30001, 30003, RGB(0, 200, 0), PS_SOLID);
            }
        }
        reduced.m_graph.EnableColumnReduction(TRUE);
        plain.Plot();
        reduced.Plot();
        const CPlotData* a = plain.Series("s");
        const CPlotData* b = reduced.Series("s");
        ASSERT_EQ(a->m_lPointCount, b->m_lPointCount) << nCase;
        EXPECT_EQ(0, memcmp(a->m_pPointArray, b->m_pPointArray, (size_t)a->m_lPointCount * sizeof(POINT))) << nCase;
        EXPECT_EQ(0, Differences(plain.m_dib, reduced.m_dib)) << nCase;
    }
}
