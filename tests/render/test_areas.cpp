// Shaded areas and highlights: the list operations and their statuses, areas
// painted over the series on colour, black-and-white and scaled contexts,
// the brushes an area keeps, a region's pen, and point highlights inverted
// on a graph window by each paint.
#include "Surface.h"
#include "render/AnnotationMark.h"
#include "render/AreaData.h"

namespace {

const COLORREF TEAL = RGB(0, 200, 200);

std::vector<float> Xs() { return { 0.1f, 0.2f, 0.3f, 0.4f, 0.5f, 0.6f, 0.7f, 0.8f, 0.9f }; }
std::vector<float> Flat(float fY) { return std::vector<float>(9, fY); }

// The areas of a series as "id:start-end ", then its regions likewise, in list order.
std::string Lists(CPlotData* pData)
{
    std::string str;
    for (POSITION pos = pData->m_listAreas.GetHeadPosition(); pos != NULL;) {
        CAreaData* p = pData->m_listAreas.GetNext(pos);
        str += Str("%d:%ld-%ld ", p->m_nAreaId, p->m_lStart, p->m_lEnd);
    }
    for (POSITION pos = pData->m_listHighlights.GetHeadPosition(); pos != NULL;) {
        CHighlightRegionData* p = pData->m_listHighlights.GetNext(pos);
        str += Str("r%d:%ld-%ld ", p->m_nRegionId, p->m_lStart, p->m_lEnd);
    }
    return str;
}

// Series "a" at Y 5 in blue and "b" at Y 2 in magenta, 9 points each; Paint
// draws them with one area on "a".
struct AreaPlot : PlotFixture
{
    AreaPlot() { Add("a", Xs(), Flat(5.0f), BLUE), Add("b", Xs(), Flat(2.0f), MAGENTA); }
    void Paint(long lStart, long lEnd, int nBase, int nBrush = AREA_BRUSH_SOLID)
    {
        m_graph.RemoveAllAreaData("a");
        m_graph.AddAreaData("a", 1, lStart, lEnd, nBase, TEAL, nBrush);
        m_dib.Fill(CANVAS);
        Plot();
    }
    // Pixels of colour cr in the data box X 0.32 to 0.58, Y 1 to 4.8 (inside "a"'s stretch 2 to 5).
    int InBox(COLORREF cr) { return m_dib.Count(Px(0.32, 0).x, Px(0, 4.8).y, Px(0.58, 0).x, Px(0, 1.0).y, cr); }
    int Box() { return (Px(0.58, 0).x - Px(0.32, 0).x) * (Px(0, 1.0).y - Px(0, 4.8).y); }
};

} // namespace

TEST(AreaShading, OperationsKeepOneAreaPerIdAndReportUnknownSeriesAndIds)
{
    PlotFixture f;
    CPlotData* pData = f.Add("s", Xs(), Flat(5.0f), BLUE);
    CGraph& g = f.m_graph;
    EXPECT_TRUE(GRAPH_NOSERIES == g.AddAreaData("none", 1, 0, 1, 1, TEAL, 4) &&
                GRAPH_NOSERIES == g.UpdateAreaData("none", 1, 0, 1, 1, TEAL, 4) &&
                GRAPH_NOSERIES == g.RemoveAreaData("none", 1, 0, 1) && GRAPH_NOSERIES == g.RemoveAllAreaData("none"));
    EXPECT_EQ(GRAPH_OK, g.AddAreaData("s", 1, 50, 10, 1, TEAL, HS_CROSS));
    EXPECT_EQ(GRAPH_OK, g.AddAreaData("s", 2, 0, 1, 1, TEAL, AREA_BRUSH_SOLID));
    EXPECT_EQ(GRAPH_OK, g.AddAreaData("s", 1, 3, 4, 2, MAGENTA, AREA_BRUSH_SOLID));   // in place
    EXPECT_EQ(GRAPH_NOAREA, g.UpdateAreaData("s", 7, 0, 1, 1, TEAL, AREA_BRUSH_SOLID));
    EXPECT_EQ(GRAPH_OK, g.UpdateAreaData("s", 2, 6, 5, 0, TEAL, HS_VERTICAL));
    EXPECT_EQ("1:3-4 2:5-6 ", Lists(pData));
    EXPECT_TRUE(2 == pData->m_listAreas.GetHead()->m_nBaseMode && MAGENTA == pData->m_listAreas.GetHead()->m_crArea);
    // An add fails at each of its allocations in turn (two brushes, the
    // record) and leaves the list and the GDI objects as they were.
    const LONG nLive = CGdiObject::GetLiveCount();
    const CString strSeries("s");
    int nFailures = 0;
    for (int nAfter = 0; nAfter < 10; nAfter++, nFailures++) {
        AfxSetAllocFailure(nAfter);
        const int nResult = g.AddAreaData(strSeries, 3, 0, 1, 1, TEAL, AREA_BRUSH_SOLID);
        AfxSetAllocFailure(-1);
        if (nResult == GRAPH_OK)
            break;
        EXPECT_TRUE(GRAPH_NOMEMORY == nResult && "1:3-4 2:5-6 " == Lists(pData)) << nAfter;
        EXPECT_EQ(nLive, CGdiObject::GetLiveCount()) << nAfter;
    }
    EXPECT_GE(nFailures, 3);
    // Removal goes by identifier alone.
    EXPECT_EQ(GRAPH_OK, g.RemoveAreaData("s", 1, 99, 99));
    EXPECT_TRUE(GRAPH_NOAREA == g.RemoveAreaData("s", 1, 3, 4) && "2:5-6 3:0-1 " == Lists(pData));
    EXPECT_TRUE(GRAPH_OK == g.RemoveAllAreaData("s") && pData->m_listAreas.IsEmpty());

    // Hundreds of replacements, painted now and then, keep the two brushes of the one area alive, no more.
    const LONG nBefore = CGdiObject::GetLiveCount();
    for (int i = 0; i < 300; i++) {
        g.AddAreaData("s", 9, 1, 7, 1, TEAL, i % 2 ? AREA_BRUSH_SOLID : HS_DIAGCROSS);
        if (i % 60 == 0)
            f.Plot();
    }
    EXPECT_EQ(nBefore + 2, CGdiObject::GetLiveCount());
    g.RemoveAllAreaData("s");
    EXPECT_EQ(nBefore, CGdiObject::GetLiveCount());
}

TEST(AreaShading, AreasLieOverAllSeriesAndCloseAsTheirBaseModeSays)
{
    AreaPlot f;
    // Base line at 0 under X 0.3 to 0.6: over both lines, nothing above the curve.
    f.Paint(2, 5, AREA_BASE_ZERO);
    EXPECT_EQ(f.Box(), f.InBox(TEAL));
    EXPECT_TRUE(TEAL == f.AtData(0.45, 5.0) && BACKGROUND == f.AtData(0.45, 5.5));
    EXPECT_TRUE(MAGENTA == f.AtData(0.2, 2.0) && BLUE == f.AtData(0.7, 5.0));
    // Base line at 100, far above the top: from the curve upward. A mode of 3 acts as 1.
    f.Paint(2, 5, AREA_BASE_HUNDRED);
    EXPECT_TRUE(TEAL == f.AtData(0.45, 9.5) && MAGENTA == f.AtData(0.45, 2.0));
    f.Paint(2, 5, 3);
    EXPECT_TRUE(TEAL == f.AtData(0.45, 2.0) && BACKGROUND == f.AtData(0.45, 9.5));
    // One point: nothing as a bare curve, a vertical line with a base line.
    f.Paint(2, 2, AREA_BASE_CURVE);
    EXPECT_EQ(0, f.m_dib.CountAll(TEAL));
    f.Paint(2, 2, AREA_BASE_ZERO);
    EXPECT_TRUE(TEAL == f.AtData(0.3, 3.5) && BACKGROUND == f.AtData(0.32, 3.5));
    // Indices beyond the series are clamped to its points; wholly beyond, nothing.
    f.Paint(-4, 1000, AREA_BASE_ZERO);
    EXPECT_TRUE(TEAL == f.AtData(0.12, 3.5) && TEAL == f.AtData(0.88, 3.5) && BACKGROUND == f.AtData(0.92, 3.5));
    f.Paint(20, 30, AREA_BASE_ZERO);
    EXPECT_EQ(0, f.m_dib.CountAll(TEAL));
    // A series drawn without a line keeps no areas on screen.
    f.m_graph.SetPlotDataAttributes("a", BLUE, LINESTYLE_NONE, 1, 0, BLUE);
    f.m_graph.AddAreaData("a", 1, 0, 8, AREA_BASE_ZERO, TEAL, AREA_BRUSH_SOLID);
    f.Plot();
    EXPECT_EQ(0, f.m_dib.CountAll(TEAL));
}

TEST(AreaShading, AHatchShowsWhatLiesUnderItAndStaysAHatchInBlack)
{
    AreaPlot f;
    f.DC()->SetBkMode(OPAQUE);
    f.DC()->SetBkColor(RGB(1, 2, 3));
    f.Paint(2, 5, AREA_BASE_ZERO, HS_CROSS);
    const int nBox = f.Box(), nTeal = f.InBox(TEAL), nMagenta = f.InBox(MAGENTA);
    EXPECT_TRUE(nTeal > nBox / 20 && nTeal < nBox / 2) << nTeal;
    EXPECT_GT(nMagenta, 0);   // the line of "b" in the gaps
    EXPECT_EQ(nBox, nTeal + nMagenta + f.InBox(BACKGROUND));
    EXPECT_EQ(OPAQUE, f.DC()->GetBkMode());
    // A printout with WINDING fill mode: the hatch in black, a solid area all black.
    f.DC()->SetPrinting(TRUE);
    ::SetPolyFillMode(f.DC()->m_hDC, WINDING);
    f.Paint(2, 5, AREA_BASE_ZERO, HS_CROSS);
    const int nBlack = f.InBox(BLACK);
    EXPECT_TRUE(nBlack > nBox / 20 && nBlack < nBox / 2 && nBox == nBlack + f.InBox(WHITE)) << nBlack;
    f.Paint(2, 5, AREA_BASE_ZERO);
    EXPECT_TRUE(nBox == f.InBox(BLACK) && WHITE == f.AtData(0.45, 7.0));
    f.DC()->SetPrinting(FALSE);
}

TEST(AreaShading, AScaledContextShadesInDevicePixels)
{
    // Logical 400 x 300 on a device twice as large; the outline 3 device pixels wide.
    PlotFixture f(800, 600);
    const CRect rLogical = f.ScaleToLogical400x300();
    CRect rAfter;
    f.Prv()->m_nGridPenWidth = 3;
    f.Add("flat", Xs(), Flat(5.0f), BLUE);
    // A bare curve on one line encloses nothing: its outline alone.
    f.m_graph.AddAreaData("flat", 1, 0, 8, AREA_BASE_CURVE, TEAL, AREA_BRUSH_SOLID);
    f.Plot();
    f.m_graph.GetPlotRect(rAfter);
    EXPECT_TRUE(rAfter == rLogical && MM_ANISOTROPIC == f.DC()->GetMapMode());
    const int yDevice = (int)(2 * rLogical.bottom + 0.50001 - (2.0 * rLogical.Height() / 10.0) * 5.0);
    const int x = rLogical.left + rLogical.right;
    EXPECT_EQ(3, f.m_dib.Count(x, yDevice - 8, x + 1, yDevice + 9, TEAL));
    EXPECT_EQ(TEAL, f.m_dib.At(x, yDevice));
}

TEST(Highlights, RegionsKeepTheirOrderAndDrawInTheSeriesWidth)
{
    PlotFixture f;
    std::vector<float> x, y;   // a rising diagonal of 91 distinct pixels
    for (int i = 0; i <= 90; i++)
        x.push_back(0.05f + 0.01f * i), y.push_back(0.5f + 0.1f * i);
    CPlotData* pData = f.Add("d", x, y, BLUE);
    CGraph& g = f.m_graph;
    EXPECT_TRUE(GRAPH_NOSERIES == g.AddHighlightRegion("none", 1, 0, 1, TEAL, PS_SOLID) &&
                GRAPH_NOSERIES == g.RemoveHighlightRegion("none", 1) && GRAPH_NOSERIES == g.RemoveAllHighlightRegions("none"));
    EXPECT_EQ(GRAPH_NOREGION, g.RemoveHighlightRegion("d", 1));
    EXPECT_EQ(GRAPH_OK, g.AddHighlightRegion("d", 1, 1000, 50, TEAL, PS_SOLID));   // end limited to the last point
    EXPECT_EQ(GRAPH_OK, g.AddHighlightRegion("d", 2, 20, 30, MAGENTA, PS_SOLID));  // earlier: inserted before
    EXPECT_EQ(GRAPH_OK, g.AddHighlightRegion("d", 3, 50, 60, TEAL, PS_SOLID));     // equal start: after the older
    EXPECT_EQ("r2:20-30 r1:50-90 r3:50-60 ", Lists(pData));
    EXPECT_TRUE(GRAPH_OK == g.RemoveHighlightRegion("d", 3) && GRAPH_NOREGION == g.RemoveHighlightRegion("d", 3));
    g.AddHighlightRegion("d", 2, 70, 80, MAGENTA, PS_SOLID);   // changed in place, out of order
    EXPECT_EQ("r2:70-80 r1:50-90 ", Lists(pData));
    g.AddHighlightRegion("d", 2, 20, 30, MAGENTA, PS_SOLID);
    pData->m_nLineWidth = 3;
    f.Plot();
    const POINT* p = pData->m_pPointArray;
    EXPECT_TRUE(BLUE == f.m_dib.At(p[10].x, p[10].y) && BLUE == f.m_dib.At(p[40].x, p[40].y));
    for (int dy : { -1, 0, 1 })   // the regions' pens have the series' width
        EXPECT_TRUE(MAGENTA == f.m_dib.At(p[25].x, p[25].y + dy) && TEAL == f.m_dib.At(p[70].x, p[70].y + dy)) << dy;
    EXPECT_TRUE(GRAPH_OK == g.RemoveAllHighlightRegions("d") && pData->m_listHighlights.IsEmpty());
}

TEST(Highlights, PointHighlightsAreInvertedOnTheWindowAgainByEachPaint)
{
    GraphInHost h;
    CGraph& g = h.m_graph;
    g.SetXAxisLimits(0, 9);
    g.SetYAxisLimits(0, 10, 0);
    float x[2] = { 0, 9 }, y[2] = { 1, 1 };
    g.AddPlotData("w", PLOT_YLEFT, x, y, 2, BLUE, PS_SOLID, 0);
    h.Show();
    auto pixel = [&](double dx, double dy) {
        CClientDC dc(h.Prv());
        return dc.GetPixel(g.DataToPixelX(dx), g.DataToPixelY(dy, 0));
    };
    auto repaint = [&] { g.Replot(), ::UpdateWindow(h.Prv()->m_hWnd); };
    EXPECT_TRUE(GRAPH_NOSERIES == g.AddPlotDataHighlight("none", "h", 2, 5, MARK_SQUARE) &&
                GRAPH_NOSERIES == g.RemovePlotDataHighlight("none", "h") && GRAPH_NOSERIES == g.RemoveAllPlotDataHighlights("none"));
    EXPECT_TRUE(GRAPH_OK == g.AddPlotDataHighlight("w", "h", 2, 5, MARK_SQUARE) && GRAPH_OK == g.RemovePlotDataHighlight("w", "x"));
    repaint();
    EXPECT_EQ(BLACK, pixel(2, 5));   // white inverted
    // A direct mark comes at once and goes with a second call; mark 10 and a
    // place outside the plot draw nothing.
    EXPECT_TRUE(1 == g.HighlightPoint(6, 5, 0, MARK_SQUARE) && BLACK == pixel(6, 5));
    EXPECT_TRUE(1 == g.HighlightPoint(6, 5, 0, MARK_SQUARE) && WHITE == pixel(6, 5));
    EXPECT_TRUE(1 == g.HighlightPoint(4, 5, 0, 10) && WHITE == pixel(4, 5));
    EXPECT_EQ(1, g.HighlightPoint(50, 5, 0, MARK_SQUARE));
    g.HighlightPoint(6, 5, 0, MARK_SQUARE);
    repaint();
    EXPECT_TRUE(WHITE == pixel(6, 5) && BLACK == pixel(2, 5));
    // A paint of another part of the plot leaves the listed mark standing.
    const CPoint ptMark(g.DataToPixelX(2), g.DataToPixelY(5, 0));
    ::RedrawWindow(h.Prv()->m_hWnd, CRect(ptMark.x + 40, ptMark.y - 10, ptMark.x + 60, ptMark.y + 10), NULL,
                   RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(BLACK, pixel(2, 5));
    // A plot into a memory context inverts the listed marks on the window; a printout does not.
    Dib dib(400, 300);
    g.Plot(dib.DC(), 1);
    EXPECT_EQ(WHITE, pixel(2, 5));
    dib.DC()->SetPrinting(TRUE);
    dib.DC()->SelectClipRgn(NULL);   // the first plot left it clipped to nothing
    g.Plot(dib.DC(), 1);
    EXPECT_EQ(WHITE, pixel(2, 5));
    EXPECT_TRUE(GRAPH_OK == g.RemoveAllPlotDataHighlights("w") && FindSeries(g, "w")->m_aPointHighlightNames.GetSize() == 0);
    repaint();
    EXPECT_EQ(WHITE, pixel(2, 5));
    g.RemoveAllPlotData();
}
