// The plot pipeline and the series lines on a 32-bit DIB section through
// CGraph::Plot: frame and background, reference lines, series on both axes,
// black and white, dashes, highlight regions, a scaled context, the state of
// the context and the GDI objects after a paint, and the series lock.
#include "Surface.h"
#include "render/AnnotationMark.h"
#include <limits>
#include <thread>

namespace {

// A horizontal series at left-axis value dY from X 0.1 to 0.9, 9 points.
std::vector<float> Xs()
{
    return { 0.1f, 0.2f, 0.3f, 0.4f, 0.5f, 0.6f, 0.7f, 0.8f, 0.9f };
}
std::vector<float> Flat(float dY)
{
    return std::vector<float>(9, dY);
}

// Pixels of colour cr in column x, or in row y, of the plot rectangle.
int InColumn(PlotFixture& f, int x, COLORREF cr)
{
    return f.m_dib.Count(x, f.m_rectPlot.top, x + 1, f.m_rectPlot.bottom + 1, cr);
}
int InRow(PlotFixture& f, int y, COLORREF cr)
{
    return f.m_dib.Count(f.m_rectPlot.left, y, f.m_rectPlot.right + 1, y + 1, cr);
}

} // namespace

TEST(Pipeline, FrameAndBackgroundCoverThePlotRectangleInclusive)
{
    PlotFixture f;
    const CRect& r = f.m_rectPlot;
    ASSERT_GT(r.Width(), 100);
    EXPECT_EQ(GRAPH_OK, f.Plot());
    // The frame runs along all four edges, right and bottom included.
    EXPECT_EQ(r.Width() + 1, InRow(f, r.top, FRAME));
    EXPECT_EQ(r.Width() + 1, InRow(f, r.bottom, FRAME));
    EXPECT_EQ(r.Height() + 1, InColumn(f, r.left, FRAME));
    EXPECT_EQ(r.Height() + 1, InColumn(f, r.right, FRAME));
    // Inside, the background (tic marks stand only near the edges).
    const CRect rInner(r.left + r.Width() / 4, r.top + r.Height() / 4, r.right - r.Width() / 4,
                       r.bottom - r.Height() / 4);
    EXPECT_EQ(rInner.Width() * rInner.Height(),
              f.m_dib.Count(rInner.left, rInner.top, rInner.right, rInner.bottom, BACKGROUND));
    // Around it nothing: no texts, no numbers, no grid beyond the frame.
    EXPECT_EQ(0, f.m_dib.CountOtherOutside(r, CANVAS));
}

TEST(Pipeline, NothingOfASeriesLandsOutsideThePlot)
{
    PlotFixture f;
    // Far beyond every edge, infinite and not a number, with a wide pen,
    // and dashed too.
    const float fInf = std::numeric_limits<float>::infinity();
    const float fNaN = std::numeric_limits<float>::quiet_NaN();
    std::vector<float> x = { -5.0f, 0.5f, 6.0f, 0.2f, -3.0f, 0.9f, fInf, 0.4f, fNaN, 0.6f, 1e30f, 0.5f };
    std::vector<float> y = { 50.0f, 5.0f, -40.0f, 80.0f, 5.0f, -70.0f, 5.0f, -fInf, 2.0f, fNaN, 8.0f, 3.0f };
    f.Add("wild", x, y, BLUE);
    f.m_graph.SetPlotDataAttributes("wild", BLUE, PS_SOLID, 7, 0, BLUE);
    f.Add("dash", y, x, MAGENTA, PS_DASH, PLOT_YRIGHT);
    EXPECT_EQ(GRAPH_OK, f.Plot());
    EXPECT_EQ(0, f.m_dib.CountOtherOutside(f.m_rectPlot, CANVAS));
    EXPECT_GT(f.m_dib.CountAll(BLUE), 500);
}

TEST(Pipeline, ReferenceLinesStandStrictlyBetweenTheLimits)
{
    PlotFixture f;
    const CRect& r = f.m_rectPlot;
    f.m_graph.AddReferenceLine("on min", REFLINE_VERTICAL, 0.0);
    f.m_graph.AddReferenceLine("on max", REFLINE_VERTICAL, 1.0);
    f.m_graph.AddReferenceLine("middle", REFLINE_VERTICAL, 0.5);
    f.m_graph.AddReferenceLine("level", REFLINE_HORIZONTAL, 2.5);
    f.m_graph.AddReferenceLine("on y max", REFLINE_HORIZONTAL, 10.0);
    // Drawn alone with a pen of the test's own, the lines on a limit would
    // show on the frame's place.
    {
        CPen pen(PS_SOLID, 1, MAGENTA);
        CSelectGuard selectPen(f.DC(), &pen);
        f.Prv()->DrawReferenceLines(f.DC());
    }
    const CPoint pt = f.Px(0.5, 2.5);
    // Top to bottom and left to right, LineTo leaving out the last pixel.
    EXPECT_EQ(r.Height(), InColumn(f, pt.x, MAGENTA));
    EXPECT_EQ(CANVAS, f.m_dib.At(pt.x, r.bottom));
    EXPECT_EQ(r.Width(), InRow(f, pt.y, MAGENTA));
    // The limits themselves get none: only the crossings of the two drawn lines.
    EXPECT_EQ(1, InColumn(f, r.left, MAGENTA));
    EXPECT_EQ(0, InColumn(f, r.right, MAGENTA));
    EXPECT_EQ(1, InRow(f, r.top, MAGENTA));

    // In a paint they take the frame's pen, and a points-only paint has none.
    f.m_dib.Fill(CANVAS);
    f.Plot(1);
    EXPECT_EQ(0, InColumn(f, pt.x, FRAME));
    f.Plot();
    EXPECT_EQ(FRAME, f.m_dib.At(pt.x, r.CenterPoint().y));
    EXPECT_EQ(FRAME, f.m_dib.At(r.CenterPoint().x, pt.y));
    // A horizontal line keeps to the left axis, and a reversed axis still shows it.
    f.m_graph.SetXAxisLimits(1.0, 0.0);
    f.m_graph.SetYAxisLimits(0.0, 1.0, 1);
    f.m_dib.Fill(CANVAS);
    f.Plot();
    EXPECT_EQ(FRAME, f.m_dib.At(f.Px(0.5, 0).x, r.CenterPoint().y));
    EXPECT_EQ(FRAME, f.m_dib.At(r.CenterPoint().x, f.Px(0, 2.5).y));
}

TEST(Pipeline, SeriesFollowTheirOwnAxes)
{
    PlotFixture f;
    f.Add("left", Xs(), Flat(5.0f), BLUE);
    f.Add("right", Xs(), Flat(125.0f), MAGENTA, PS_SOLID, PLOT_YRIGHT);
    f.Plot();
    const CPoint ptLeft = f.Px(0.5, 5.0), ptRight = f.Px(0.5, 125.0, 1);
    ASSERT_NE(ptLeft.y, ptRight.y);
    EXPECT_EQ(BLUE, f.m_dib.At(ptLeft.x, ptLeft.y));
    EXPECT_EQ(MAGENTA, f.m_dib.At(ptRight.x, ptRight.y));
    // New limits on the left axis leave the right-axis series where it was.
    f.m_graph.SetYAxisLimits(0.0, 40.0, 0);
    f.m_dib.Fill(CANVAS);
    f.Plot();
    EXPECT_EQ(MAGENTA, f.m_dib.At(ptRight.x, ptRight.y));
    EXPECT_EQ(BLUE, f.AtData(0.5, 5.0));
    EXPECT_NE(BLUE, f.m_dib.At(ptLeft.x, ptLeft.y));

    // A single point, or line style 5, draws no line; the pixels of the
    // point were computed all the same.
    PlotFixture g;
    g.Add("single", std::vector<float>{ 0.5f }, std::vector<float>{ 5.0f }, BLUE);
    g.Add("hidden", Xs(), Flat(3.0f), BLUE, 5);
    EXPECT_EQ(GRAPH_OK, g.Plot());
    EXPECT_EQ(0, g.m_dib.CountAll(BLUE));
    EXPECT_EQ(1, g.Series("single")->m_lPointCount);
    EXPECT_FALSE(g.Prv()->m_bPointsStale);
}

TEST(Pipeline, ABlackAndWhiteContextDrawsBlackOnWhite)
{
    PlotFixture f;
    f.Add("line", Xs(), Flat(5.0f), BLUE);
    PlotFixture::AddRegion(f.Series("line"), 2, 5, MAGENTA, PS_DOT);
    f.m_graph.AddReferenceLine("middle", REFLINE_VERTICAL, 0.55);
    EXPECT_EQ(1, f.Prv()->IsColorDevice(f.DC()));   // a screen-like memory context
    // A printout with WINDING fill mode is black and white.
    f.DC()->SetPrinting(TRUE);
    ::SetPolyFillMode(f.DC()->m_hDC, WINDING);
    EXPECT_EQ(0, f.Prv()->IsColorDevice(f.DC()));
    f.Plot();
    f.DC()->SetPrinting(FALSE);
    ::SetPolyFillMode(f.DC()->m_hDC, ALTERNATE);

    const CRect& r = f.m_rectPlot;
    EXPECT_EQ((r.Width() + 1) * (r.Height() + 1), f.m_dib.Count(r.left, r.top, r.right + 1, r.bottom + 1, WHITE) +
                                                        f.m_dib.Count(r.left, r.top, r.right + 1, r.bottom + 1, BLACK));
    EXPECT_EQ(BLACK, f.m_dib.At(r.left, r.top));
    EXPECT_EQ(WHITE, f.m_dib.At(r.CenterPoint().x + 3, r.CenterPoint().y + 7));
    EXPECT_EQ(BLACK, f.AtData(0.15, 5.0));
    // The region keeps only its dotted style: black and white along its stretch.
    const int y = f.Px(0, 5.0).y, x1 = f.Px(0.3, 0).x + 2, x2 = f.Px(0.6, 0).x - 2;
    EXPECT_GT(f.m_dib.Count(x1, y, x2, y + 1, WHITE), 0);
    EXPECT_GT(f.m_dib.Count(x1, y, x2, y + 1, BLACK), 0);
}

TEST(Pipeline, DashGapsShowWhatLiesUnderThem)
{
    PlotFixture f;
    f.Add("dashed", Xs(), Flat(5.0f), BLUE, PS_DASH);
    f.DC()->SetBkMode(OPAQUE);
    f.DC()->SetBkColor(MAGENTA);
    f.Plot();
    const int y = f.Px(0, 5.0).y, x1 = f.Px(0.1, 0).x, x2 = f.Px(0.9, 0).x;
    const int nBlue = f.m_dib.Count(x1, y, x2, y + 1, BLUE);
    const int nGaps = f.m_dib.Count(x1, y, x2, y + 1, BACKGROUND);
    EXPECT_GT(nBlue, (x2 - x1) / 3);
    EXPECT_GT(nGaps, (x2 - x1) / 10);
    EXPECT_EQ(x2 - x1, nBlue + nGaps);
    EXPECT_EQ(0, f.m_dib.CountAll(MAGENTA));
    EXPECT_EQ(OPAQUE, f.DC()->GetBkMode());   // the context's own mode is back
}

TEST(Pipeline, HighlightRegionsAreDrawnInTheirOwnPen)
{
    PlotFixture f;
    // A rising diagonal of 91 distinct pixels.
    std::vector<float> x, y;
    for (int i = 0; i <= 90; i++) {
        x.push_back(0.05f + 0.01f * i);
        y.push_back(0.5f + 0.1f * i);
    }
    CPlotData* pData = f.Add("diagonal", x, y, BLUE);
    pData->m_nLineWidth = 3;
    PlotFixture::AddRegion(pData, 30, 60, MAGENTA, PS_SOLID);
    PlotFixture::AddRegion(pData, 75, 75, BLACK, PS_SOLID);   // one pixel: nothing in its pen
    f.Plot();
    const POINT* p = pData->m_pPointArray;
    for (int i : { 15, 70, 80 })
        EXPECT_EQ(BLUE, f.m_dib.At(p[i].x, p[i].y)) << i;
    // The region's pen has the series' width.
    for (int dy : { -1, 0, 1 })
        EXPECT_EQ(MAGENTA, f.m_dib.At(p[45].x, p[45].y + dy)) << dy;
    EXPECT_EQ(0, f.m_dib.CountAll(BLACK));
}

TEST(Pipeline, AScaledContextDrawsSeriesInDevicePixels)
{
    // Logical 400 x 300 on a device twice as large.
    PlotFixture f(800, 600);
    const CRect rLogical = f.ScaleToLogical400x300();
    CRect rAfter;
    CPlotData* pData = f.Add("wide", Xs(), Flat(5.0f), BLUE);
    pData->m_nLineWidth = 3;
    f.Plot();
    f.m_graph.GetPlotRect(rAfter);
    EXPECT_TRUE(rAfter == rLogical);
    EXPECT_EQ(MM_ANISOTROPIC, f.DC()->GetMapMode());
    // The series computed on the device's plot rectangle (its corners
    // doubled), drawn with a pen 3 device pixels wide: 3 rows, not 6.
    const int yDevice = (int)(2 * rLogical.bottom + 0.50001 - (2.0 * rLogical.Height() / 10.0) * 5.0);
    EXPECT_EQ(yDevice, pData->m_pPointArray[0].y);
    const int x = rLogical.left + rLogical.right;
    EXPECT_EQ(3, f.m_dib.Count(x, yDevice - 8, x + 1, yDevice + 9, BLUE));
    EXPECT_EQ(BLUE, f.m_dib.At(x, yDevice));
}

TEST(Pipeline, NoPlotStyleAndPointsOnlyPaints)
{
    {
        PlotFixture f;
        f.Prv()->m_dwStyle |= GS_NOPLOT;
        f.Add("line", Xs(), Flat(5.0f), BLUE);
        EXPECT_EQ(GRAPH_NOTAVAILABLE, f.Plot());
        EXPECT_EQ(0, f.m_dib.Count(0, 0, 400, 300, CANVAS, true));
    }
    PlotFixture f;
    // No series: a points-only paint draws nothing at all.
    EXPECT_EQ(GRAPH_OK, f.Plot(1));
    EXPECT_EQ(0, f.m_dib.Count(0, 0, 400, 300, CANVAS, true));
    // With a series: the series alone, over what the context shows.
    f.Add("line", Xs(), Flat(5.0f), BLUE);
    EXPECT_EQ(GRAPH_OK, f.Plot(1));
    EXPECT_EQ(CANVAS, f.m_dib.At(f.m_rectPlot.left, f.m_rectPlot.top));
    EXPECT_EQ(BLUE, f.AtData(0.5, 5.0));
}

TEST(Pipeline, TheContextIsGivenBackAsItWas)
{
    PlotFixture f;
    f.Add("dashed", Xs(), Flat(5.0f), BLUE, PS_DASH);
    PlotFixture::AddRegion(f.Series("dashed"), 2, 4, MAGENTA, PS_SOLID);
    f.m_graph.AddReferenceLine("middle", REFLINE_VERTICAL, 0.5);
    f.m_graph.SetTicMarkType(0, 1, NULL);
    f.m_graph.SetGridAttributes(GRID_MINOR | GRID_BOTHWAYS, MAGENTA, PS_DASH);
    f.m_graph.SetXAxisNumFmt("%.1f");
    f.m_graph.SetXAxisLabel("X");
    f.m_graph.SetYAxisLabel(0, "Y");
    const HDC hDC = f.DC()->m_hDC;
    CPen pen(PS_SOLID, 2, MAGENTA);
    CBrush brush(MAGENTA);
    CSelectGuard selectPen(f.DC(), &pen);
    CSelectGuard selectBrush(f.DC(), &brush);
    CSelectGuard selectFont(f.DC(), ::GetStockObject(ANSI_VAR_FONT));
    ::SetBkMode(hDC, OPAQUE);
    ::SetBkColor(hDC, RGB(1, 2, 3));
    ::SetTextColor(hDC, RGB(4, 5, 6));
    ::SetTextAlign(hDC, TA_BASELINE | TA_CENTER);
    HRGN hClip = ::CreateRectRgn(5, 5, 390, 290), hAfter = ::CreateRectRgn(0, 0, 0, 0);
    ::SelectClipRgn(hDC, hClip);
    // The objects, modes and colours of the context, and whether its clip
    // region is hClip.
    auto state = [&] {
        const int nClip = ::GetClipRgn(hDC, hAfter);
        return Str("%p %p %p %d %06lx %06lx %d %u %d %d %d", ::GetCurrentObject(hDC, OBJ_PEN),
                   ::GetCurrentObject(hDC, OBJ_BRUSH), ::GetCurrentObject(hDC, OBJ_FONT), ::GetBkMode(hDC),
                   ::GetBkColor(hDC), ::GetTextColor(hDC), ::GetROP2(hDC), ::GetTextAlign(hDC), ::GetMapMode(hDC),
                   nClip, nClip == 1 && ::EqualRgn(hAfter, hClip));
    };
    const std::string strBefore = state();
    const LONG nLive = CGdiObject::GetLiveCount();
    for (int i = 0; i < 4; i++) {
        f.DC()->SetPrinting(i >= 2);
        EXPECT_EQ(GRAPH_OK, f.m_graph.Plot(f.DC(), i % 2));
        EXPECT_EQ(strBefore, state()) << i;
    }
    f.DC()->SetPrinting(FALSE);
    EXPECT_EQ(nLive, CGdiObject::GetLiveCount());   // no pen, brush or font left behind

    // Thousands of paints leave no object and no memory behind.
    const SIZE_T nBytesBefore = CommittedBytes();
    for (int i = 0; i < 2000; i++) {
        ::SelectClipRgn(hDC, hClip);
        f.m_graph.Plot(f.DC(), 0);
    }
    EXPECT_EQ(nLive, CGdiObject::GetLiveCount());
    EXPECT_LT(CommittedBytes(), nBytesBefore + 1024 * 1024);
    ::SelectClipRgn(hDC, hClip);
    // A context without a clip region of its own gets back the empty region
    // that stood for it, which clips everything: a caller that draws on sets
    // its own.
    ::SelectClipRgn(hDC, NULL);
    f.m_graph.Plot(f.DC(), 0);
    RECT rBox;
    EXPECT_EQ(1, ::GetClipRgn(hDC, hAfter));
    EXPECT_EQ(NULLREGION, ::GetRgnBox(hAfter, &rBox));
    ::SelectClipRgn(hDC, NULL);
    ::DeleteObject(hClip);
    ::DeleteObject(hAfter);
}

TEST(Pipeline, TheSeriesLoopHoldsTheSeriesLock)
{
    PlotFixture f;
    f.Add("line", Xs(), Flat(5.0f), BLUE);
    f.DC()->SelectClipRgn(NULL);
    // While another thread holds the lock, a paint stops before the series.
    f.Prv()->m_csPlotData.Lock();
    HANDLE hDone = ::CreateEventA(NULL, TRUE, FALSE, NULL);
    std::thread painter([&] {
        f.m_graph.Plot(f.DC(), 0);
        ::SetEvent(hDone);
    });
    EXPECT_EQ((DWORD)WAIT_TIMEOUT, ::WaitForSingleObject(hDone, 200));
    EXPECT_EQ(FRAME, f.m_dib.At(f.m_rectPlot.left, f.m_rectPlot.top));   // the frame came first
    EXPECT_NE(BLUE, f.AtData(0.5, 5.0));
    f.Prv()->m_csPlotData.Unlock();
    EXPECT_EQ((DWORD)WAIT_OBJECT_0, ::WaitForSingleObject(hDone, 5000));
    painter.join();
    ::CloseHandle(hDone);
    EXPECT_EQ(BLUE, f.AtData(0.5, 5.0));
}

TEST(Pipeline, AnObjectTheSystemRefusesNeitherThrowsNorLeaks)
{
    // An unknown pen style becomes a solid pen here; every pen, brush, font
    // or region of a whole paint refused in turn: Plot still returns, and
    // gives the context back as it was.
    PlotFixture f;
    f.Add("odd", Xs(), Flat(5.0f), BLUE, 9);
    f.m_graph.SetPlotDataAttributes("odd", BLUE, 9, -4, MARK_SQUARE, BLUE);
    f.m_graph.SetGridAttributes(GRID_BOTHWAYS, MAGENTA, 9);
    f.m_graph.SetXAxisNumFmt("%.1f");
    f.m_graph.SetYAxisLabel(0, "Y");
    const HDC hDC = f.DC()->m_hDC;
    HRGN hClip = ::CreateRectRgn(5, 5, 390, 290);
    auto state = [&] {
        HRGN hNow = ::CreateRectRgn(0, 0, 0, 0);
        const int nClip = ::GetClipRgn(hDC, hNow);
        const bool bSame = nClip == 1 && ::EqualRgn(hNow, hClip);
        ::DeleteObject(hNow);
        return Str("%p %p %p %06lx %d", ::GetCurrentObject(hDC, OBJ_PEN), ::GetCurrentObject(hDC, OBJ_BRUSH),
                   ::GetCurrentObject(hDC, OBJ_FONT), ::GetTextColor(hDC), (int)bSame);
    };
    ::SelectClipRgn(hDC, hClip);
    const std::string strBefore = state();
    const LONG nBefore = CGdiObject::GetLiveCount();
    EXPECT_EQ(GRAPH_OK, f.m_graph.Plot(f.DC(), 0));
    const LONG nMade = CGdiObject::GetLiveCount() - nBefore;   // 0: all deleted again
    for (LONG n = 0; n < 40; n++) {
        CGdiObject::RefuseAfter(n);
        ::SelectClipRgn(hDC, hClip);
        EXPECT_EQ(GRAPH_OK, f.m_graph.Plot(f.DC(), 0)) << n;
        CGdiObject::RefuseAfter(-1);
        EXPECT_EQ(strBefore, state()) << n;
        EXPECT_EQ(nBefore + nMade, CGdiObject::GetLiveCount()) << n;
    }
    ::SelectClipRgn(hDC, NULL);
    ::DeleteObject(hClip);
}
