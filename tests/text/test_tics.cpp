// Tic marks: inward on all four edges, major and minor lengths from the
// font's height, minor tics of floating axes strictly inside the plot.
#include "TextTestUtil.h"

namespace {

const COLORREF crTic = 0x0000C0;

// Length of the run of crTic pixels from (x, y) in direction (dx, dy).
int RunLength(const DibCanvas& canvas, int x, int y, int dx, int dy)
{
    int n = 0;
    while (canvas.At(x + n * dx, y + n * dy) == crTic)
        n++;
    return n;
}

} // namespace

TEST(Tics, FixedTicsAlternateMajorAndMinorOnAllFourEdges)
{
    GraphOnCanvas g(400, 300);
    CGraphPrv* p = g.Prv();
    ASSERT_EQ(1, p->SetTicMarkType(0, 0, NULL));
    p->m_crGrid = crTic;
    p->PlotTics(g.DC());

    const TEXTMETRIC tm = g.Metrics();
    const int nMajor = tm.tmHeight / 2, nMinor = tm.tmHeight / 4;
    ASSERT_GT(nMinor, 0);
    ASSERT_NE(nMajor, nMinor);
    const CRect r = p->m_rectPlot;
    ASSERT_EQ(10, p->m_nXTicCount);
    for (int i = 1; i <= 9; i++) {
        const int nLen = (i % 2 == 0) ? nMajor : nMinor;
        const int x = p->m_nXTicPixel[i];
        EXPECT_EQ(nLen, RunLength(g.m_canvas, x, r.bottom, 0, -1)) << "bottom " << i;
        EXPECT_EQ(nLen, RunLength(g.m_canvas, x, r.top, 0, 1)) << "top " << i;
        const int yl = p->m_nYTicPixel[0][i];
        EXPECT_EQ(nLen, RunLength(g.m_canvas, r.left, yl, 1, 0)) << "left " << i;
        const int yr = p->m_nYTicPixel[1][i];
        EXPECT_EQ(nLen, RunLength(g.m_canvas, r.right, yr, -1, 0)) << "right " << i;
    }
    // The end tics lie on the frame and get no mark of their own.
    EXPECT_EQ(0, RunLength(g.m_canvas, p->m_nXTicPixel[0], r.bottom, 0, -1));
    EXPECT_EQ(0, RunLength(g.m_canvas, p->m_nXTicPixel[10], r.top, 0, 1));
    // Nothing but the marks: 4 edges x (5 minor + 4 major) marks.
    const int nExpected = 4 * (5 * nMinor + 4 * nMajor);
    EXPECT_EQ(nExpected, g.m_canvas.Count(0, 0, 400, 300, crTic));
}

TEST(Tics, LengthFollowsTheFontHeight)
{
    GraphOnCanvas g(400, 300);
    CGraphPrv* p = g.Prv();
    p->SetTicMarkType(0, 0, NULL);
    LOGFONT lf;
    int nPoint;
    DWORD crText;
    p->GetLogFont(&lf, &nPoint, &crText);
    ASSERT_EQ(1, p->SetLogFont(&lf, 200, crText));   // 20 points
    g.Layout();
    p->m_crGrid = crTic;
    p->PlotTics(g.DC());
    const TEXTMETRIC tm = g.Metrics();
    ASSERT_GT(tm.tmHeight, 20);
    const CRect r = p->m_rectPlot;
    EXPECT_EQ(tm.tmHeight / 2, RunLength(g.m_canvas, p->m_nXTicPixel[2], r.bottom, 0, -1));
    EXPECT_EQ(tm.tmHeight / 4, RunLength(g.m_canvas, p->m_nXTicPixel[3], r.bottom, 0, -1));
}

TEST(Tics, FloatingTicsAreAllMajorAndMinorTicsStayInside)
{
    GraphOnCanvas g(500, 400);
    CGraphPrv* p = g.Prv();
    DibCanvas& c = g.m_canvas;
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
        EXPECT_EQ(nMajor, RunLength(c, p->m_nXTicPixel[i], r.bottom, 0, -1)) << i;

    // Minor tics of X: after each interior tic short of the right edge, and
    // before tic 1 right of the left edge; all of the minor length.
    const int nMinorCount = p->m_nMinorTicCount[0];
    ASSERT_GE(nMinorCount, 1);
    int nMarks = 0;
    for (int i = 1; i < n; i++)
        for (int k = 0; k < nMinorCount; k++) {
            int x = p->m_nXTicPixel[i] + p->m_MinorX.nOffset[k];
            if (x < r.right) {
                EXPECT_EQ(nMinor, RunLength(c, x, r.bottom, 0, -1)) << i << "," << k;
                nMarks++;
            }
        }
    for (int k = 0; k < nMinorCount; k++) {
        int x = p->m_nXTicPixel[1] - p->m_MinorX.nSpacing + p->m_MinorX.nOffset[k];
        if (x > r.left) {
            EXPECT_EQ(nMinor, RunLength(c, x, r.top, 0, 1)) << "before 1, " << k;
            nMarks++;
        }
    }
    EXPECT_GT(nMarks, n);
    // Minor tics of the left axis run upward from each interior tic.
    const int y = p->m_nYTicPixel[0][1] - p->m_MinorYLeft.nOffset[0];
    EXPECT_EQ(nMinor, RunLength(c, r.left, y, 1, 0));
}

TEST(Tics, MinorTicOnTheEdgeIsNotDrawn)
{
    // Tic pixels set by hand: a minor offset that lands exactly on the
    // right edge, and one before tic 1 exactly on the left edge.
    GraphOnCanvas g(300, 200);
    CGraphPrv* p = g.Prv();
    DibCanvas& c = g.m_canvas;
    p->m_rectPlot.SetRect(50, 20, 250, 150);
    p->m_nXTicType = 1;
    p->m_nYTicType[0] = p->m_nYTicType[1] = 0;
    p->m_nYTicCount[0] = p->m_nYTicCount[1] = 0;
    p->m_nMinorTics = 1;
    p->m_nXTicCount = 3;
    const int anPixels[4] = { 50, 100, 200, 250 };
    for (int i = 0; i < 4; i++)
        p->m_nXTicPixel[i] = anPixels[i];
    p->m_nMinorTicCount[0] = 2;
    p->m_MinorX.nSpacing = 50;
    p->m_MinorX.nOffset[0] = 25;
    p->m_MinorX.nOffset[1] = 50;   // from tic 2 (200) it hits the right edge
    p->m_crGrid = crTic;
    p->PlotTics(g.DC());

    const int nMinor = g.Metrics().tmHeight / 4;
    EXPECT_EQ(nMinor, RunLength(c, 125, 150, 0, -1));   // after tic 1
    EXPECT_EQ(nMinor, RunLength(c, 150, 150, 0, -1));
    EXPECT_EQ(nMinor, RunLength(c, 225, 150, 0, -1));   // after tic 2
    EXPECT_EQ(0, RunLength(c, 250, 150, 0, -1));        // on the right edge: not drawn
    EXPECT_EQ(nMinor, RunLength(c, 75, 150, 0, -1));    // before tic 1
    EXPECT_EQ(0, RunLength(c, 50, 150, 0, -1));         // on the left edge: not drawn
}

TEST(Tics, PenWidthAndColourOnABlackAndWhiteDevice)
{
    GraphOnCanvas g(400, 300);
    CGraphPrv* p = g.Prv();
    p->SetTicMarkType(0, 0, NULL);
    p->m_crGrid = crTic;
    p->m_nGridPenWidth = 3;
    p->PlotTics(g.DC());
    // A pen of width 3 covers three columns around the tic.
    const CRect r = p->m_rectPlot;
    const int x = p->m_nXTicPixel[4];
    EXPECT_EQ(crTic, g.m_canvas.At(x - 1, r.bottom - 1));
    EXPECT_EQ(crTic, g.m_canvas.At(x + 1, r.bottom - 1));
    EXPECT_EQ(0xFFFFFFu, g.m_canvas.At(x + 3, r.bottom - 1));

    // A printing context with the WINDING fill mode counts as black and
    // white: the tics come in colour 0, whatever m_crGrid is.
    g.m_canvas.Fill(0xFFFFFF);
    CDC* pDC = g.DC();
    pDC->SetPrinting(TRUE);
    ::SetPolyFillMode(pDC->m_hDC, WINDING);
    p->m_nGridPenWidth = 1;
    EXPECT_EQ(0, p->IsColorDevice(pDC));
    p->PlotTics(pDC);
    pDC->SetPrinting(FALSE);
    EXPECT_EQ(0u, g.m_canvas.At(x, r.bottom - 1));
    EXPECT_EQ(0, g.m_canvas.Count(0, 0, 400, 300, crTic));
}

TEST(Tics, ContextStateIsRestored)
{
    GraphOnCanvas g(400, 300);
    CGraphPrv* p = g.Prv();
    HDC hDC = g.DC()->m_hDC;
    HGDIOBJ hPen = ::GetCurrentObject(hDC, OBJ_PEN);
    HGDIOBJ hFont = ::GetCurrentObject(hDC, OBJ_FONT);
    COLORREF crBk = ::GetBkColor(hDC);
    COLORREF crText = ::GetTextColor(hDC);
    LONG nLive = CGdiObject::GetLiveCount();
    p->SetGridAttributes(0x1C, 0x00FF00, 2);
    for (int i = 0; i < 20; i++) {
        p->PlotTics(g.DC());
        p->PlotGrid(g.DC());
        p->PutLabels(g.DC());
    }
    EXPECT_EQ(hPen, ::GetCurrentObject(hDC, OBJ_PEN));
    EXPECT_EQ(hFont, ::GetCurrentObject(hDC, OBJ_FONT));
    EXPECT_EQ(crBk, ::GetBkColor(hDC));
    EXPECT_EQ(crText, ::GetTextColor(hDC));
    EXPECT_EQ(nLive, CGdiObject::GetLiveCount());
}
