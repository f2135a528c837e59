// Tic marks: inward on all four edges, major and minor lengths from the
// font's height, minor tics of floating axes strictly inside the plot, the
// width of their pen.
#include "Surface.h"

namespace {

const COLORREF crTic = 0x0000C0;

// Length of the run of crTic pixels from (x, y) in direction (dx, dy).
int RunLength(const Dib& dib, int x, int y, int dx, int dy)
{
    int n = 0;
    while (dib.At(x + n * dx, y + n * dy) == crTic)
        n++;
    return n;
}

} // namespace

TEST(Tics, FixedTicsAlternateMajorAndMinorOnAllFourEdges)
{
    // The lengths are half and a quarter of the font's height (at another
    // size on a printer: test_layout.cpp).
    CanvasGraph g;
    CGraphPrv* p = g.Prv();
    ASSERT_EQ(1, p->SetTicMarkType(0, 0, NULL));
    p->m_crGrid = crTic;
    p->PlotTics(g.DC());

    const TEXTMETRIC tm = g.Metrics();
    const int nMajor = tm.tmHeight / 2, nMinor = tm.tmHeight / 4;
    ASSERT_GT(nMinor, 0);
    const CRect r = p->m_rectPlot;
    for (int i = 1; i <= 9; i++) {
        const int nLen = (i % 2 == 0) ? nMajor : nMinor;
        EXPECT_EQ(nLen, RunLength(g.m_dib, p->m_nXTicPixel[i], r.bottom, 0, -1)) << "bottom " << i;
        EXPECT_EQ(nLen, RunLength(g.m_dib, p->m_nXTicPixel[i], r.top, 0, 1)) << "top " << i;
        EXPECT_EQ(nLen, RunLength(g.m_dib, r.left, p->m_nYTicPixel[0][i], 1, 0)) << "left " << i;
        EXPECT_EQ(nLen, RunLength(g.m_dib, r.right, p->m_nYTicPixel[1][i], -1, 0)) << "right " << i;
    }
    // The end tics lie on the frame and get no mark of their own; nothing
    // but the marks: 4 edges x (5 minor + 4 major).
    EXPECT_EQ(0, RunLength(g.m_dib, p->m_nXTicPixel[0], r.bottom, 0, -1));
    EXPECT_EQ(4 * (5 * nMinor + 4 * nMajor), g.m_dib.CountAll(crTic));
}

TEST(Tics, FloatingTicsAreAllMajorWithShorterMinorTics)
{
    CanvasGraph g(500, 400);
    CGraphPrv* p = g.Prv();
    ASSERT_EQ(1, p->SetTicMarkType(1, 1, g.DC()));
    p->SetXAxisLimits(0.0, 1.0);
    p->SetYAxisLimits(0.0, 1.0, 0);
    p->m_crGrid = crTic;
    p->PlotTics(g.DC());
    const TEXTMETRIC tm = g.Metrics();
    const int nMajor = tm.tmHeight / 2, nMinor = tm.tmHeight / 4;
    const CRect r = p->m_rectPlot;
    const int n = p->m_nXTicCount;
    ASSERT_GE(n, 2);
    for (int i = 1; i < n; i++)
        EXPECT_EQ(nMajor, RunLength(g.m_dib, p->m_nXTicPixel[i], r.bottom, 0, -1)) << i;
    // Minor tics (where they stand at the edges: the next test), of the
    // minor length: after the interior tics of X; upward from those of the
    // left axis.
    ASSERT_GE(p->m_nMinorTicCount[0], 1);
    EXPECT_EQ(nMinor, RunLength(g.m_dib, p->m_nXTicPixel[1] + p->m_MinorX.nOffset[0], r.bottom, 0, -1));
    EXPECT_EQ(nMinor, RunLength(g.m_dib, r.left, p->m_nYTicPixel[0][1] - p->m_MinorYLeft.nOffset[0], 1, 0));
}

TEST(Tics, MinorTicOnTheEdgeIsNotDrawn)
{
    // Tic pixels set by hand: a minor offset that lands exactly on the
    // right edge, and one before tic 1 exactly on the left edge.
    CanvasGraph g(300, 200);
    CGraphPrv* p = g.Prv();
    p->m_rectPlot.SetRect(50, 20, 250, 150);
    p->m_nXTicType = 1;
    p->m_nYTicType[0] = p->m_nYTicType[1] = 0;
    p->m_nYTicCount[0] = p->m_nYTicCount[1] = 0;
    p->m_nMinorTics = 1;
    p->m_nXTicCount = 3;
    const int anPixels[4] = { 50, 100, 200, 250 };
    memcpy(p->m_nXTicPixel, anPixels, sizeof(anPixels));
    p->m_nMinorTicCount[0] = 2;
    p->m_MinorX.nSpacing = 50;
    p->m_MinorX.nOffset[0] = 25;
    p->m_MinorX.nOffset[1] = 50;   // from tic 2 (200) it hits the right edge
    p->m_crGrid = crTic;
    p->PlotTics(g.DC());
    const int nMinor = g.Metrics().tmHeight / 4;
    // Before tic 1, after tic 1, after tic 2; none on either edge.
    const int cases[][2] = { { 75, nMinor }, { 125, nMinor }, { 150, nMinor }, { 225, nMinor }, { 250, 0 }, { 50, 0 } };
    for (const int* c : cases)
        EXPECT_EQ(c[1], RunLength(g.m_dib, c[0], 150, 0, -1)) << c[0];
}

TEST(Tics, PenWidthOfTheGrid)
{
    CanvasGraph g;
    CGraphPrv* p = g.Prv();
    p->SetTicMarkType(0, 0, NULL);
    p->m_crGrid = crTic;
    p->m_nGridPenWidth = 3;
    p->PlotTics(g.DC());
    // A pen of width 3 covers three columns around the tic. (A black-and-
    // white device draws them black: see the pipeline's tests.)
    const int x = p->m_nXTicPixel[4], y = p->m_rectPlot.bottom - 1;
    EXPECT_EQ(3, g.m_dib.Count(x - 3, y, x + 4, y + 1, crTic));
    EXPECT_EQ(crTic, g.m_dib.At(x + 1, y));
}
