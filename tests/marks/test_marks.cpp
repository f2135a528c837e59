// Annotation marks and point labels: each mark drawn into a DIB section and
// measured against its geometry, the marks and remembered labels of a series
// through Plot, the label operations, and the marks stamped on the window.
#include "Surface.h"
#include "render/AnnotationMark.h"

namespace {

const COLORREF PEN = RGB(200, 0, 0), FILL = RGB(0, 0, 200), LINE = RGB(0, 160, 0);

bool NotWhite(COLORREF c) { return c != WHITE; }
bool NotGrey(COLORREF c) { return GetRValue(c) != GetGValue(c) || GetGValue(c) != GetBValue(c); }

// A windowless graph laid out on a white 300 x 200 DIB section of 32 bits:
// X and Y from 0 to 10, black frame, white background.
class Canvas : public CanvasGraph
{
public:
    Canvas() : CanvasGraph(300, 200)
    {
        m_graph.SetXAxisLimits(0.0, 10.0);
        m_graph.SetYAxisLimits(0.0, 10.0, 0);
        m_graph.GetPlotRect(m_rectPlot);
    }
    void Clear() { DC()->SelectClipRgn(NULL), m_dib.Fill(WHITE); }
    int Plot() { return Clear(), CanvasGraph::Plot(); }
    CPoint Px(double x, double y) { return CPoint(m_graph.DataToPixelX(x), m_graph.DataToPixelY(y, 0)); }
    COLORREF At(int x, int y) const { return m_dib.At(x, y); }
    COLORREF AtData(double x, double y) { return At(Px(x, y).x, Px(x, y).y); }
    // Box of the pixels unlike white in r (inclusive; the whole bitmap by default).
    CRect Box(const CRect& r = CRect(0, 0, INT_MAX, INT_MAX)) const { return m_dib.Box(NotWhite, r); }
    // Metrics of the graph's mark font here, turned by nEscapement, and the width of "ABC" in it.
    TEXTMETRIC MarkMetrics(int nEscapement = 0, int* pnWidth = NULL)
    {
        CFont font;
        Prv()->CreateDeviceFont(font, DC(), nEscapement);
        CSelectGuard select(DC(), &font);
        TEXTMETRIC tm;
        DC()->GetTextMetrics(&tm);
        if (pnWidth != NULL)
            *pnWidth = DC()->GetTextExtent(CString("ABC")).cx;
        return tm;
    }

    CRect m_rectPlot;
};

} // namespace

TEST(AnnotationMark, EachMarkHasItsGeometryAndLeavesTheContextAsItWas)
{
    Canvas c;
    CDC* pDC = c.DC();
    // A font whose cells are 16 pixels high, whatever the face makes of the request.
    CFont font;
    TEXTMETRIC tm = {};
    for (int n = 16; n > 8 && tm.tmHeight != 16; n--) {
        font.DeleteObject();
        font.CreateFont(n, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, "Arial");
        CSelectGuard select(pDC, &font);
        pDC->GetTextMetrics(&tm);
    }
    CPen pen(PS_SOLID, 1, PEN);
    CBrush brush(FILL);
    CSelectGuard s1(pDC, &font), s2(pDC, &pen), s3(pDC, &brush);
    ASSERT_EQ(16, tm.tmHeight);   // the font of 16 pixels: q = 4, r = 4
    const int h = tm.tmHeight, q = h / 4, r = (int)(h * 0.25 + 0.5), w = tm.tmAveCharWidth / 3, x = 32, y = 32;
    const CRect square(x - q, y - q, x + q, y + q), spokes(x - r + 1, y - r + 1, x + r - 1, y + r - 1);
    const CRect boxes[10] = {
        CRect(INT_MAX, INT_MAX, INT_MIN, INT_MIN), square, square, square, CRect(x, y - q, x, y + q),
        CRect(x, y - 2 * q, x, y + 2 * q), spokes, spokes, CRect(x - w, y, x + w, y + h - 1), CRect(x - w, y - h + 1, x + w, y),
    };
    for (int nMark = -1; nMark <= 10; nMark++) {
        c.Clear();
        pDC->MoveTo(3, 5);
        DrawAnnotationMark(pDC, x, y, nMark);
        EXPECT_EQ((nMark >= 0 && nMark <= 9) ? boxes[nMark] : boxes[0], c.Box()) << "mark " << nMark;
        EXPECT_EQ(CPoint(3, 5), pDC->GetCurrentPosition());
        if (nMark >= 1 && nMark <= 3) {   // filled with the brush, outlined with the pen
            EXPECT_TRUE(FILL == c.At(x, y + 1) && PEN == c.At(x, y - q)) << nMark;
        } else if (nMark >= 4 && nMark <= 9) {
            EXPECT_EQ(PEN, c.At(x, y)) << nMark;
        }
    }
    EXPECT_TRUE(boxes[4].Height() == 8 && boxes[5].Height() == 16);   // bars of 9 and 17 pixels
    EXPECT_EQ((HGDIOBJ)pen, ::GetCurrentObject(pDC->m_hDC, OBJ_PEN));   // neither pen nor brush moved
    EXPECT_EQ((HGDIOBJ)brush, ::GetCurrentObject(pDC->m_hDC, OBJ_BRUSH));
}

TEST(AnnotationMark, SeriesMarksComeWithEveryPointInTheLineColourAndAreClippedAtTheFrame)
{
    Canvas c;
    float x[] = { 2, 4, 6, 10 }, y[] = { 5, 5, 5, 5 };
    ASSERT_EQ(1, c.m_graph.AddPlotData("s", PLOT_YLEFT, x, y, 4, LINE, 5, 3));   // no line, squares
    c.m_graph.SetPlotDataAttributes("s", LINE, 5, 1, 3, MAGENTA);           // the labels' colour is not used
    const int q = c.MarkMetrics().tmHeight / 4;
    ASSERT_EQ(1, c.Plot());
    for (int i = 0; i < 3; i++) {
        const CPoint p = c.Px(x[i], 5);
        EXPECT_TRUE(LINE == c.At(p.x, p.y) && LINE == c.At(p.x + q, p.y - q)) << i;
        EXPECT_TRUE(WHITE == c.At(p.x + q + 1, p.y) && WHITE == c.AtData(x[i] + 1, 5.0)) << i;   // no line
    }
    // The last mark stands on the right edge: what lies beyond is clipped away.
    const CPoint p = c.Px(10, 5);
    EXPECT_EQ(c.m_rectPlot.right, p.x);
    EXPECT_TRUE(LINE == c.At(p.x, p.y) && WHITE == c.At(p.x + 1, p.y));
    // Marks start at the series' first index.
    c.m_graph.UpdatePlotData("s", x, y, 1, 2);
    c.Plot();
    EXPECT_EQ(WHITE, c.AtData(2.0, 5.0));
    EXPECT_TRUE(LINE == c.AtData(4.0, 5.0) && LINE == c.AtData(6.0, 5.0));
    EXPECT_EQ(BLACK, c.AtData(10.0, 5.0));   // the frame, whole
}

TEST(PointLabels, OperationsKeepOneEntryPerNameAndReportUnknownSeries)
{
    Canvas c;
    float x[] = { 0, 5 }, y[] = { 1, 1 };
    c.m_graph.AddPlotData("s", PLOT_YLEFT, x, y, 2, LINE, 5, 3);
    CPlotData* pData = FindSeries(c.m_graph, "s");
    EXPECT_EQ(GRAPH_NOSERIES, c.m_graph.AddPlotDataLabel("t", "a", 1, 1, 3, "x"));
    EXPECT_TRUE(GRAPH_NOSERIES == c.m_graph.RemovePlotDataLabel("t", "a") && GRAPH_NOSERIES == c.m_graph.RemoveAllPlotDataLabels("t"));
    EXPECT_EQ(1, c.m_graph.AddPlotDataLabel("s", "a", 3, 5, 3, "first"));
    EXPECT_EQ(1, c.m_graph.AddPlotDataLabel("s", "a", 0, 8, 3, "second"));
    ASSERT_EQ(1, pData->m_aLabelNames.GetSize());
    EXPECT_STREQ("second", pData->m_aLabelTexts[0]);
    EXPECT_TRUE(1 == c.m_graph.RemovePlotDataLabel("s", "zz") && 1 == pData->m_aLabelNames.GetSize());   // unknown name
    // The label keeps the line colour of the moment it was added; the
    // series' own marks follow the line. Many paints make no GDI objects.
    pData->m_crLine = BLUE;
    const LONG nLive = CGdiObject::GetLiveCount();
    for (int i = 0; i < 20; i++)
        c.Plot();
    EXPECT_EQ(nLive, CGdiObject::GetLiveCount());
    const CPoint p = c.Px(0, 8), s = c.Px(0, 1);
    EXPECT_EQ(LINE, c.At(p.x + 1, p.y));
    // The label's clip spares the frame's left column; the series mark does not.
    EXPECT_TRUE(BLACK == c.At(p.x, p.y) && BLUE == c.At(s.x, s.y));
    EXPECT_TRUE(1 == c.m_graph.RemovePlotDataLabel("s", "a") && 0 == pData->m_aLabelTexts.GetSize());
    c.m_graph.AddPlotDataLabel("s", "b", 1, 1, 1, "");
    EXPECT_TRUE(1 == c.m_graph.RemoveAllPlotDataLabels("s") && 0 == pData->m_aLabelStyles.GetSize());
}

TEST(PointLabels, TextStandsAboveTheMarkOrBelowAnUpwardArrow)
{
    Canvas c;
    int nWidth;
    const TEXTMETRIC tm = c.MarkMetrics(900, &nWidth);
    ASSERT_TRUE(tm.tmPitchAndFamily & TMPF_TRUETYPE);
    ASSERT_EQ(96, c.DC()->GetDeviceCaps(LOGPIXELSY));   // the gap of marks 1 to 7 is 3 pixels
    const int nLine = tm.tmHeight + tm.tmExternalLeading, nAve = tm.tmAveCharWidth;
    const int h = c.MarkMetrics().tmHeight, q = h / 4;
    const CPoint p = c.Px(5, 5);
    for (int nMark : { 1, 8, 9 }) {
        c.Clear();
        EXPECT_EQ(1, c.m_graph.LabelPoint(5, 5, 0, BLUE, nMark, "ABC", c.DC()));
        // The text's lower end; its box in the rows past the arrow's shaft or above the mark.
        const int yText = nMark == 8 ? p.y + nWidth + nLine + nAve : p.y - ((nMark == 9 ? nLine : 3) + nAve);
        const CRect text = c.Box(nMark == 8 ? CRect(0, p.y + h, 299, 199) : CRect(0, 0, 299, nMark == 9 ? p.y - h : p.y - q - 1));
        EXPECT_TRUE(text.left >= p.x - nLine / 2 - 1 && text.right <= p.x - nLine / 2 + nLine) << nMark;
        EXPECT_TRUE(text.bottom <= yText + 1 && text.bottom >= yText - 3) << nMark << " " << text.bottom - yText;
        EXPECT_TRUE(text.top >= yText - nWidth - 1 && text.Height() > nWidth / 2) << nMark;
        // The mark in the colour; text colour and the label clip stay; the background mode goes back.
        EXPECT_TRUE(BLUE == c.At(p.x, p.y) && BLUE == c.DC()->GetTextColor() && OPAQUE == c.DC()->GetBkMode());
        CRect clip;
        c.DC()->GetClipBox(&clip);
        EXPECT_EQ(CRect(c.m_rectPlot.left + 1, c.m_rectPlot.top + 1, c.m_rectPlot.right + 1, c.m_rectPlot.bottom + 1), clip);
    }
    c.Clear();   // an empty text: the mark alone
    c.m_graph.LabelPoint(5, 5, 0, BLUE, 3, "", c.DC());
    EXPECT_EQ(CRect(p.x - q, p.y - q, p.x + q, p.y + q), c.Box());
}

TEST(PointLabels, ABlackAndWhiteContextDrawsMarksAndLabelsInBlack)
{
    Canvas c;
    float x[] = { 3 }, y[] = { 3 };
    c.m_graph.AddPlotData("s", PLOT_YLEFT, x, y, 1, LINE, 5, 2);
    c.m_graph.AddPlotDataLabel("s", "a", 7, 3, 3, "Label");
    c.DC()->SetPrinting(TRUE);
    ::SetPolyFillMode(c.DC()->m_hDC, WINDING);
    c.Plot();
    c.DC()->SetPrinting(FALSE);
    EXPECT_TRUE(BLACK == c.AtData(3.0, 3.0) && BLACK == c.AtData(7.0, 3.0));
    EXPECT_GT(c.Box(c.m_rectPlot).Height(), 10);   // the text above the label's mark
    EXPECT_TRUE(c.m_dib.Box(NotGrey).IsRectEmpty());
}

TEST(AnnotationMark, WindowMarksComeAtOnceAndGoWithTheNextPaint)
{
    TestHost host(800, 600);
    CGraph g;
    CRect rect(0, 0, 400, 300);
    g.CreateGraph(host.Wnd(), NULL, rect, 0, 1, 63);
    g.SetXAxisLimits(0, 9);
    g.SetYAxisLimits(0, 10, 0);
    float x[10] = { 0, 1, 2, 3, 4, 5, 6, 7, 8, 9 }, y[10] = { 5, 5, 5, 5, 5, 5, 5, 5, 5, 5 };
    g.AddPlotData("w", PLOT_YLEFT, x, y, 10, LINE, 5, 0);
    g.AddPlotData("e", PLOT_YLEFT, x, y, 0, LINE, 5, 0);
    g.ShowGraph();
    TestHost::Pump();
    auto pixel = [&](double dx, double dy) {
        CClientDC dc(g.m_pGraphPrv);
        return dc.GetPixel(g.DataToPixelX(dx), g.DataToPixelY(dy, 0));
    };
    CString strNone("none"), strEmpty("e"), strName("w");
    EXPECT_TRUE(GRAPH_NOSERIES == g.AnnotateLine(strNone, 3, 3) && GRAPH_NOSERIES == g.AnnotateLine(strEmpty, 3, 3));
    EXPECT_EQ(GRAPH_BADARG, g.AnnotateLine(strName, 3, 0));
    EXPECT_EQ(1, g.AnnotateLine(strName, 3, 3));
    for (int i = 0; i < 10; i++)
        EXPECT_EQ(i % 3 == 0 ? LINE : WHITE, pixel(i, 5)) << i;   // indices 0, 3, 6, 9
    EXPECT_TRUE(1 == g.AnnotatePoint(4.5, 8, 0, MAGENTA, 2) && 1 == g.LabelPoint(2.5, 2, 0, BLUE, 3, "", NULL));
    EXPECT_EQ(1, g.AnnotatePoint(50, 8, 0, MAGENTA, 2));   // outside: nothing, still 1
    EXPECT_TRUE(MAGENTA == pixel(4.5, 8) && BLUE == pixel(2.5, 2));
    g.Replot();
    ::UpdateWindow(g.m_pGraphPrv->m_hWnd);
    EXPECT_TRUE(WHITE == pixel(4.5, 8) && WHITE == pixel(3, 5));
    g.RemoveAllPlotData();
}
