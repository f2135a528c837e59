// The plot pipeline and the series lines on a 32-bit DIB section through
// CGraph::Plot: frame and background, reference lines, series on both axes,
// black and white, dashes, highlight regions, a scaled context, the state of
// the context and the GDI objects after many paints.
#include "RenderTestUtil.h"
#include <limits>
#include <thread>

namespace {

// A horizontal series at left-axis value dY from X 0.1 to 0.9, 9 points.
std::vector<float> Xs() { return { 0.1f, 0.2f, 0.3f, 0.4f, 0.5f, 0.6f, 0.7f, 0.8f, 0.9f }; }
std::vector<float> Flat(float dY) { return std::vector<float>(9, dY); }

// Pixels of colour cr in column x between the plot's top and bottom rows.
int CountInColumn(const Dib& dib, int x, const CRect& r, COLORREF cr)
{
    return dib.Count(x, r.top, x + 1, r.bottom + 1, cr);
}

int CountInRow(const Dib& dib, int y, const CRect& r, COLORREF cr)
{
    return dib.Count(r.left, y, r.right + 1, y + 1, cr);
}

} // namespace

TEST(Pipeline, FrameAndBackgroundCoverThePlotRectangleInclusive)
{
    PlotFixture f;
    const CRect& r = f.m_rectPlot;
    ASSERT_GT(r.Width(), 100);
    EXPECT_EQ(GRAPH_OK, f.Plot());
    // The frame runs along all four edges, right and bottom included.
    for (int x = r.left; x <= r.right; x++) {
        ASSERT_EQ(FRAME, f.m_dib.At(x, r.top)) << x;
        ASSERT_EQ(FRAME, f.m_dib.At(x, r.bottom)) << x;
    }
    for (int y = r.top; y <= r.bottom; y++) {
        ASSERT_EQ(FRAME, f.m_dib.At(r.left, y)) << y;
        ASSERT_EQ(FRAME, f.m_dib.At(r.right, y)) << y;
    }
    // Inside, the background (tic marks stand only near the edges).
    const CPoint c = r.CenterPoint();
    EXPECT_EQ((r.Width() / 2) * (r.Height() / 2), f.m_dib.Count(c.x - r.Width() / 4, c.y - r.Height() / 4,
                                                             c.x - r.Width() / 4 + r.Width() / 2,
                                                             c.y - r.Height() / 4 + r.Height() / 2, BACKGROUND));
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
    EXPECT_GT(f.m_dib.Count(0, 0, f.m_dib.m_nWidth, f.m_dib.m_nHeight, BLUE), 500);
}

TEST(Pipeline, ReferenceLinesStandStrictlyBetweenTheLimits)
{
    PlotFixture f;
    const CRect& r = f.m_rectPlot;
    f.m_graph.AddReferenceLine("on min", 1, 0.0);
    f.m_graph.AddReferenceLine("on max", 1, 1.0);
    f.m_graph.AddReferenceLine("middle", 1, 0.5);
    f.m_graph.AddReferenceLine("level", 0, 2.5);
    f.m_graph.AddReferenceLine("on y max", 0, 10.0);

    // Drawn alone with a pen of the test's own, the lines on a limit would
    // show on the frame's place.
    {
        CPen pen(PS_SOLID, 1, MAGENTA);
        CSelectGuard selectPen(f.DC(), &pen);
        f.Prv()->DrawReferenceLines(f.DC());
    }
    const int xMiddle = f.m_graph.DataToPixelX(0.5);
    const int yLevel = f.m_graph.DataToPixelY(2.5, 0);
    // Vertical: top to bottom, LineTo leaving out the last pixel.
    EXPECT_EQ(r.Height(), CountInColumn(f.m_dib, xMiddle, r, MAGENTA));
    EXPECT_EQ(CANVAS, f.m_dib.At(xMiddle, r.bottom));
    EXPECT_EQ(r.Width(), CountInRow(f.m_dib, yLevel, r, MAGENTA));
    // The limits themselves get none: only the crossings of the two drawn lines.
    EXPECT_EQ(1, CountInColumn(f.m_dib, r.left, r, MAGENTA));
    EXPECT_EQ(0, CountInColumn(f.m_dib, r.right, r, MAGENTA));
    EXPECT_EQ(1, CountInRow(f.m_dib, r.top, r, MAGENTA));

    // In a paint they take the frame's pen, and a points-only paint has none.
    f.m_dib.Fill(CANVAS);
    f.Plot(1);
    EXPECT_EQ(0, CountInColumn(f.m_dib, xMiddle, r, FRAME));
    f.Plot();
    EXPECT_EQ(FRAME, f.m_dib.At(xMiddle, r.CenterPoint().y));
    EXPECT_EQ(FRAME, f.m_dib.At(r.CenterPoint().x, yLevel));

    // A horizontal line keeps to the left axis, and a reversed axis still shows it.
    f.m_graph.SetXAxisLimits(1.0, 0.0);
    f.m_graph.SetYAxisLimits(0.0, 1.0, 1);
    f.m_dib.Fill(CANVAS);
    f.Plot();
    EXPECT_EQ(FRAME, f.m_dib.At(f.m_graph.DataToPixelX(0.5), r.CenterPoint().y));
    EXPECT_EQ(FRAME, f.m_dib.At(r.CenterPoint().x, f.m_graph.DataToPixelY(2.5, 0)));
}

TEST(Pipeline, SeriesFollowTheirOwnAxes)
{
    PlotFixture f;
    f.Add("left", Xs(), Flat(5.0f), BLUE);
    f.Add("right", Xs(), Flat(125.0f), MAGENTA, PS_SOLID, PLOT_YRIGHT);
    f.Plot();
    const int x = f.m_graph.DataToPixelX(0.5);
    const int yLeft = f.m_graph.DataToPixelY(5.0, 0);
    const int yRight = f.m_graph.DataToPixelY(125.0, 1);
    ASSERT_NE(yLeft, yRight);
    EXPECT_EQ(BLUE, f.m_dib.At(x, yLeft));
    EXPECT_EQ(MAGENTA, f.m_dib.At(x, yRight));
    EXPECT_EQ(BLUE, f.m_dib.At(f.m_graph.DataToPixelX(0.1), yLeft));

    // New limits on the left axis leave the right-axis series where it was.
    f.m_graph.SetYAxisLimits(0.0, 40.0, 0);
    f.m_dib.Fill(CANVAS);
    f.Plot();
    EXPECT_EQ(MAGENTA, f.m_dib.At(x, yRight));
    EXPECT_EQ(BLUE, f.m_dib.At(x, f.m_graph.DataToPixelY(5.0, 0)));
    EXPECT_NE(BLUE, f.m_dib.At(x, yLeft));
}

TEST(Pipeline, SeriesWithoutALineDrawNone)
{
    PlotFixture f;
    f.Add("single", std::vector<float>{ 0.5f }, std::vector<float>{ 5.0f }, BLUE);
    f.Add("hidden", Xs(), Flat(3.0f), BLUE, 5);
    EXPECT_EQ(GRAPH_OK, f.Plot());
    EXPECT_EQ(0, f.m_dib.Count(0, 0, f.m_dib.m_nWidth, f.m_dib.m_nHeight, BLUE));
    // The pixels of the single point were computed all the same.
    EXPECT_EQ(1, f.Series("single")->m_lPointCount);
    EXPECT_FALSE(f.Prv()->m_bPointsStale);
}

TEST(Pipeline, ABlackAndWhiteContextDrawsBlackOnWhite)
{
    PlotFixture f;
    f.Add("line", Xs(), Flat(5.0f), BLUE);
    PlotFixture::AddRegion(f.Series("line"), 2, 5, MAGENTA, PS_DOT);
    f.m_graph.AddReferenceLine("middle", 1, 0.55);
    // A printout with WINDING fill mode is black and white.
    f.DC()->SetPrinting(TRUE);
    ::SetPolyFillMode(f.DC()->m_hDC, WINDING);
    EXPECT_EQ(0, f.Prv()->IsColorDevice(f.DC()));
    f.Plot();
    f.DC()->SetPrinting(FALSE);
    ::SetPolyFillMode(f.DC()->m_hDC, ALTERNATE);

    const CRect& r = f.m_rectPlot;
    const int nArea = (r.Width() + 1) * (r.Height() + 1);
    EXPECT_EQ(nArea, f.m_dib.Count(r.left, r.top, r.right + 1, r.bottom + 1, WHITE) +
                         f.m_dib.Count(r.left, r.top, r.right + 1, r.bottom + 1, BLACK));
    EXPECT_EQ(BLACK, f.m_dib.At(r.left, r.top));
    EXPECT_EQ(WHITE, f.m_dib.At(r.CenterPoint().x + 3, r.CenterPoint().y + 7));
    const int y = f.m_graph.DataToPixelY(5.0, 0);
    EXPECT_EQ(BLACK, f.m_dib.At(f.m_graph.DataToPixelX(0.15), y));
    // The region keeps only its dotted style: black and white along its stretch.
    const int x1 = f.m_graph.DataToPixelX(0.3) + 2, x2 = f.m_graph.DataToPixelX(0.6) - 2;
    EXPECT_GT(f.m_dib.Count(x1, y, x2, y + 1, WHITE), 0);
    EXPECT_GT(f.m_dib.Count(x1, y, x2, y + 1, BLACK), 0);

    // A screen-like memory context is in colour.
    EXPECT_EQ(1, f.Prv()->IsColorDevice(f.DC()));
}

TEST(Pipeline, DashGapsShowWhatLiesUnderThem)
{
    PlotFixture f;
    f.Add("dashed", Xs(), Flat(5.0f), BLUE, PS_DASH);
    f.DC()->SetBkMode(OPAQUE);
    f.DC()->SetBkColor(MAGENTA);
    f.Plot();
    const int y = f.m_graph.DataToPixelY(5.0, 0);
    const int x1 = f.m_graph.DataToPixelX(0.1), x2 = f.m_graph.DataToPixelX(0.9);
    const int nBlue = f.m_dib.Count(x1, y, x2, y + 1, BLUE);
    const int nGaps = f.m_dib.Count(x1, y, x2, y + 1, BACKGROUND);
    EXPECT_GT(nBlue, (x2 - x1) / 3);
    EXPECT_GT(nGaps, (x2 - x1) / 10);
    EXPECT_EQ(x2 - x1, nBlue + nGaps);
    EXPECT_EQ(0, f.m_dib.Count(0, 0, f.m_dib.m_nWidth, f.m_dib.m_nHeight, MAGENTA));
    // The context's own mode is back.
    EXPECT_EQ(OPAQUE, f.DC()->GetBkMode());
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
    CHighlightRegionData* pRegion = PlotFixture::AddRegion(pData, 30, 60, MAGENTA, PS_SOLID);
    PlotFixture::AddRegion(pData, 75, 75, BLACK, PS_SOLID);   // one pixel: nothing in its pen
    f.Plot();
    EXPECT_EQ(30, pRegion->m_lPixelStart);
    EXPECT_EQ(60, pRegion->m_lPixelEnd);
    const POINT* p = pData->m_pPointArray;
    EXPECT_EQ(BLUE, f.m_dib.At(p[15].x, p[15].y));
    EXPECT_EQ(MAGENTA, f.m_dib.At(p[45].x, p[45].y));
    EXPECT_EQ(BLUE, f.m_dib.At(p[70].x, p[70].y));
    EXPECT_EQ(BLUE, f.m_dib.At(p[80].x, p[80].y));
    // The region's pen has the series' width.
    EXPECT_EQ(MAGENTA, f.m_dib.At(p[45].x, p[45].y - 1));
    EXPECT_EQ(MAGENTA, f.m_dib.At(p[45].x, p[45].y + 1));
    EXPECT_EQ(0, f.m_dib.Count(0, 0, f.m_dib.m_nWidth, f.m_dib.m_nHeight, BLACK));
}

TEST(Pipeline, AScaledContextDrawsSeriesInDevicePixels)
{
    // Logical 400 x 300 on a device twice as large.
    PlotFixture f(800, 600);
    CDC* pDC = f.DC();
    pDC->SetMapMode(MM_ANISOTROPIC);
    pDC->SetWindowExt(400, 300);
    pDC->SetViewportExt(800, 600);
    f.m_graph.SizeGraph(pDC, 0, 0, 400, 300, FALSE);
    CRect rLogical;
    f.m_graph.GetPlotRect(rLogical);
    CPlotData* pData = f.Add("wide", Xs(), Flat(5.0f), BLUE);
    pData->m_nLineWidth = 3;
    f.Plot();
    CRect rGot;
    f.m_graph.GetPlotRect(rGot);
    EXPECT_TRUE(rGot == rLogical);
    EXPECT_EQ(MM_ANISOTROPIC, pDC->GetMapMode());

    // The series computed on the device's plot rectangle (its corners doubled).
    const CRect rDevice(rLogical.left * 2, rLogical.top * 2, rLogical.right * 2, rLogical.bottom * 2);
    const double dScale = (double)(rDevice.bottom - rDevice.top) / 10.0;
    const int yDevice = (int)(dScale * 0.0 + rDevice.bottom + 0.50001 - dScale * 5.0);
    EXPECT_EQ(yDevice, pData->m_pPointArray[0].y);
    // A pen 3 wide in device pixels: exactly 3 rows, not 6.
    const int x = (rDevice.left + rDevice.right) / 2;
    int nRows = 0;
    for (int yy = yDevice - 8; yy <= yDevice + 8; yy++)
        nRows += f.m_dib.At(x, yy) == BLUE;
    EXPECT_EQ(3, nRows);
    EXPECT_EQ(BLUE, f.m_dib.At(x, yDevice));
}

TEST(Pipeline, NoPlotStyleAndPointsOnlyPaints)
{
    {
        PlotFixture f;
        f.Prv()->m_dwStyle |= GS_NOPLOT;
        f.Add("line", Xs(), Flat(5.0f), BLUE);
        EXPECT_EQ(GRAPH_NOTAVAILABLE, f.Plot());
        EXPECT_EQ(0, f.m_dib.CountOtherOutside(CRect(-1, -1, -1, -1), CANVAS));
        f.m_graph.RemoveAllPlotData();
    }
    PlotFixture f;
    // No series: a points-only paint draws nothing at all.
    EXPECT_EQ(GRAPH_OK, f.Plot(1));
    EXPECT_EQ(0, f.m_dib.CountOtherOutside(CRect(-1, -1, -1, -1), CANVAS));
    // With a series: the series alone, over what the context shows.
    f.Add("line", Xs(), Flat(5.0f), BLUE);
    EXPECT_EQ(GRAPH_OK, f.Plot(1));
    EXPECT_EQ(CANVAS, f.m_dib.At(f.m_rectPlot.left, f.m_rectPlot.top));
    EXPECT_EQ(BLUE, f.m_dib.At(f.m_graph.DataToPixelX(0.5), f.m_graph.DataToPixelY(5.0, 0)));
}

TEST(Pipeline, FloatingLeftTicsAndAShownRightAxisLoseTheGridForGood)
{
    PlotFixture f;
    ASSERT_EQ(GRAPH_OK, f.m_graph.ShowGrid(0x18));
    ASSERT_EQ(1, f.Prv()->m_nYTicType[0]);
    f.m_graph.SetYAxisLabel(1, "right");
    f.Plot();
    DWORD dwType = 0, crGrid = 0;
    int nStyle = 0;
    f.m_graph.GetGridAttributes(&dwType, &crGrid, &nStyle);
    EXPECT_EQ(1u, dwType);
}

TEST(Pipeline, TheContextIsGivenBackAsItWas)
{
    PlotFixture f;
    f.Add("dashed", Xs(), Flat(5.0f), BLUE, PS_DASH);
    PlotFixture::AddRegion(f.Series("dashed"), 2, 4, MAGENTA, PS_SOLID);
    f.m_graph.AddReferenceLine("middle", 1, 0.5);
    CDC* pDC = f.DC();
    HDC hDC = pDC->m_hDC;

    HPEN hPen = ::CreatePen(PS_SOLID, 2, MAGENTA);
    HBRUSH hBrush = ::CreateSolidBrush(MAGENTA);
    HFONT hFont = (HFONT)::GetStockObject(ANSI_VAR_FONT);
    HGDIOBJ hOldPen = ::SelectObject(hDC, hPen);
    HGDIOBJ hOldBrush = ::SelectObject(hDC, hBrush);
    HGDIOBJ hOldFont = ::SelectObject(hDC, hFont);
    ::SetBkMode(hDC, OPAQUE);
    ::SetBkColor(hDC, RGB(1, 2, 3));
    ::SetTextColor(hDC, RGB(4, 5, 6));
    ::SetROP2(hDC, R2_COPYPEN);
    ::SetTextAlign(hDC, TA_BASELINE | TA_CENTER);
    HRGN hClip = ::CreateRectRgn(5, 5, 390, 290);
    ::SelectClipRgn(hDC, hClip);

    for (int nPointsOnly = 0; nPointsOnly <= 1; nPointsOnly++) {
        EXPECT_EQ(GRAPH_OK, f.m_graph.Plot(pDC, nPointsOnly));
        EXPECT_EQ(hPen, ::GetCurrentObject(hDC, OBJ_PEN));
        EXPECT_EQ(hBrush, ::GetCurrentObject(hDC, OBJ_BRUSH));
        EXPECT_EQ(hFont, ::GetCurrentObject(hDC, OBJ_FONT));
        EXPECT_EQ(OPAQUE, ::GetBkMode(hDC));
        EXPECT_EQ(RGB(1, 2, 3), ::GetBkColor(hDC));
        EXPECT_EQ(RGB(4, 5, 6), ::GetTextColor(hDC));
        EXPECT_EQ(R2_COPYPEN, ::GetROP2(hDC));
        EXPECT_EQ((UINT)(TA_BASELINE | TA_CENTER), ::GetTextAlign(hDC));
        EXPECT_EQ(MM_TEXT, ::GetMapMode(hDC));
        HRGN hAfter = ::CreateRectRgn(0, 0, 0, 0);
        EXPECT_EQ(1, ::GetClipRgn(hDC, hAfter));
        EXPECT_TRUE(::EqualRgn(hAfter, hClip));
        ::DeleteObject(hAfter);
    }

    // A context without a clip region of its own gets back the empty region
    // that stood for it, which clips everything: a caller that draws on sets
    // its own.
    ::SelectClipRgn(hDC, NULL);
    f.m_graph.Plot(pDC, 0);
    HRGN hAfter = ::CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(1, ::GetClipRgn(hDC, hAfter));
    RECT rBox;
    EXPECT_EQ(NULLREGION, ::GetRgnBox(hAfter, &rBox));
    ::DeleteObject(hAfter);

    ::SelectClipRgn(hDC, NULL);
    ::SelectObject(hDC, hOldPen);
    ::SelectObject(hDC, hOldBrush);
    ::SelectObject(hDC, hOldFont);
    ::DeleteObject(hPen);
    ::DeleteObject(hBrush);
    ::DeleteObject(hClip);
}

TEST(Pipeline, ThousandsOfPaintsLeaveNoGdiObjectBehind)
{
    PlotFixture f;
    f.Add("solid", Xs(), Flat(5.0f), BLUE);
    f.Add("dashed", Xs(), Flat(7.0f), MAGENTA, PS_DASH, PLOT_YRIGHT);
    PlotFixture::AddRegion(f.Series("solid"), 2, 5, MAGENTA, PS_DOT);
    f.m_graph.AddReferenceLine("middle", 1, 0.5);
    f.m_graph.ShowGrid(0x18);
    f.Plot();   // first-time allocations of the system
    const LONG nBefore = CGdiObject::GetLiveCount();
    for (int i = 0; i < 2000; i++) {
        f.DC()->SetPrinting(i % 3 == 0);
        f.Plot(i % 2);
    }
    f.DC()->SetPrinting(FALSE);
    EXPECT_EQ(nBefore, CGdiObject::GetLiveCount());
    // And the pictures still come: the series is there after the last paint.
    f.m_dib.Fill(CANVAS);
    f.Plot();
    EXPECT_EQ(BLUE, f.m_dib.At(f.m_graph.DataToPixelX(0.15), f.m_graph.DataToPixelY(5.0, 0)));
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
    EXPECT_NE(BLUE, f.m_dib.At(f.m_graph.DataToPixelX(0.5), f.m_graph.DataToPixelY(5.0, 0)));
    f.Prv()->m_csPlotData.Unlock();
    EXPECT_EQ((DWORD)WAIT_OBJECT_0, ::WaitForSingleObject(hDone, 5000));
    painter.join();
    ::CloseHandle(hDone);
    EXPECT_EQ(BLUE, f.m_dib.At(f.m_graph.DataToPixelX(0.5), f.m_graph.DataToPixelY(5.0, 0)));
}

TEST(Pipeline, AStyleTheSystemRefusesNeitherThrowsNorLeaks)
{
    PlotFixture f;
    f.Add("odd", Xs(), Flat(5.0f), BLUE, 9);
    f.m_graph.SetPlotDataAttributes("odd", BLUE, 9, -4, 0, BLUE);
    HGDIOBJ hPen = ::GetCurrentObject(f.DC()->m_hDC, OBJ_PEN);
    const LONG nBefore = CGdiObject::GetLiveCount();
    EXPECT_EQ(GRAPH_OK, f.Plot());
    EXPECT_EQ(hPen, ::GetCurrentObject(f.DC()->m_hDC, OBJ_PEN));
    EXPECT_EQ(nBefore, CGdiObject::GetLiveCount());
    EXPECT_EQ(FRAME, f.m_dib.At(f.m_rectPlot.left, f.m_rectPlot.top));
}
