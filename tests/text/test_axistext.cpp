// Axis text: titles, the numbers along the axes with their drop rules, the
// limit rectangles, the locale's decimal sign, rotated and stacked titles.
// What is written is read back from a metafile recording (text and
// reference point), where it is drawn from the pixels of a DIB section.
#include "TextTestUtil.h"
#include <math.h>

namespace {

// Metrics of the graph's font as the drawers use them.
struct Measures
{
    int nLine;      // tmHeight + tmExternalLeading
    int nCharW;     // average digit width + overhang
    TEXTMETRIC tm;
};

Measures Measure(GraphOnCanvas& g)
{
    Measures m;
    m.tm = g.Metrics();
    m.nLine = m.tm.tmHeight + m.tm.tmExternalLeading;
    m.nCharW = g.TextWidth("0123456789") / 10 - 2 + m.tm.tmOverhang;
    return m;
}

// The width GetLabelWExtent gives a number.
int LabelWidth(GraphOnCanvas& g, const std::string& str)
{
    return g.TextWidth(str.c_str()) + g.Metrics().tmOverhang + 3;
}

std::vector<TextCall> Labels(GraphOnCanvas& g)
{
    return RecordText([&](CDC* pDC) { g.Prv()->PutLabels(pDC); });
}

// A floating X table set by hand: values and pixels.
void SetXTable(CGraphPrv* p, int nCount, const double* pdValues, const int* pnPixels)
{
    p->m_nXTicType = 1;
    p->m_nXTicCount = nCount;
    for (int i = 0; i <= nCount; i++) {
        p->m_dXTicValue[i] = pdValues[i];
        p->m_nXTicPixel[i] = pnPixels[i];
    }
    p->m_dXMin = pdValues[0];
    p->m_dXMax = pdValues[nCount];
}

void SetYTable(CGraphPrv* p, int nAxis, int nCount, const double* pdValues, const int* pnPixels)
{
    p->m_nYTicType[nAxis] = 1;
    p->m_nYTicCount[nAxis] = nCount;
    for (int i = 0; i <= nCount; i++) {
        p->m_dYTicValue[nAxis][i] = pdValues[i];
        p->m_nYTicPixel[nAxis][i] = pnPixels[i];
    }
    p->m_dYMin[nAxis] = pdValues[0];
    p->m_dYMax[nAxis] = pdValues[nCount];
}

// The thread's locale for the time of a test.
class ThreadLocale
{
public:
    explicit ThreadLocale(LCID lcid) : m_lcidOld(::GetThreadLocale()) { ::SetThreadLocale(lcid); }
    ~ThreadLocale() { ::SetThreadLocale(m_lcidOld); }
private:
    LCID m_lcidOld;
};

} // namespace

// ---------------------------------------------------------------------------
// Formatting and measuring
// ---------------------------------------------------------------------------

TEST(AxisText, FormatLabelSuitablyKeepsTenCharactersOrElevenBelowZero)
{
    CGraph graph;
    CGraphPrv* p = graph.m_pGraphPrv;
    char sz[256];
    p->FormatLabelSuitably(sz, "%.4f", -12345.6789);
    EXPECT_STREQ("-12345.6789", sz);   // 11 characters, negative: stays
    p->FormatLabelSuitably(sz, "%.5f", 12345.6789);
    EXPECT_EQ(Fmt("%.3E", 12345.6789), sz);   // 11 characters, positive: the widest format
    p->FormatLabelSuitably(sz, "%.4f", 12345.6789);
    EXPECT_STREQ("12345.6789", sz);    // 10 characters
    p->FormatLabelSuitably(sz, "%.5f", -12345.6789);
    EXPECT_EQ(Fmt("%.3E", -12345.6789), sz);   // 12 characters
    p->FormatLabelSuitably(sz, "%g", 0.5);
    EXPECT_STREQ("0.5", sz);
}

TEST(AxisText, FormatLabelSuitablyStaysInsideItsBuffer)
{
    CGraph graph;
    CGraphPrv* p = graph.m_pGraphPrv;
    // A host format that writes 300 characters: the text is cut at the
    // buffer of 256 bytes and then written again in the widest format.
    char sz[400];
    memset(sz, 'Z', sizeof(sz));
    p->m_strMaxLenFormat = "%300.1f";
    p->FormatLabelSuitably(sz, "%299.1f", 1.0);
    EXPECT_EQ(255u, strlen(sz));
    for (size_t i = 256; i < sizeof(sz); i++)
        ASSERT_EQ('Z', sz[i]) << i;
}

TEST(AxisText, GetLabelWExtentStripsLeadingBlanksInPlace)
{
    GraphOnCanvas g;
    CGraphPrv* p = g.Prv();
    CSelectGuard font(g.DC(), &p->m_font);
    CString str = "   1.25";
    int w = 0;
    p->GetLabelWExtent(g.DC(), str, 0, &w);
    EXPECT_STREQ("   1.25", str);
    EXPECT_EQ(g.TextWidth("   1.25") + g.Metrics().tmOverhang + 3, w);
    p->GetLabelWExtent(g.DC(), str, 1, &w);
    EXPECT_STREQ("1.25", str);
    EXPECT_EQ(g.TextWidth("1.25") + g.Metrics().tmOverhang + 3, w);
}

// ---------------------------------------------------------------------------
// End numbers and limit rectangles
// ---------------------------------------------------------------------------

TEST(AxisText, EndNumbersAndTheSixLimitRectangles)
{
    GraphOnCanvas g(400, 300);
    CGraphPrv* p = g.Prv();
    p->SetXAxisNumFmt("%.1f");
    p->SetYAxisNumFmt(0, "%.2f");
    p->SetYAxisNumFmt(1, "%.3f");
    p->SetYAxisLabel(1, "R");
    p->SetXAxisLimits(-2.0, 3.0);
    p->SetYAxisLimits(-1.0, 10.0, 0);
    p->SetYAxisLimits(0.5, 7.5, 1);
    std::vector<TextCall> calls = Labels(g);

    const Measures m = Measure(g);
    const CRect r = p->m_rectPlot;
    const int yLabel = r.bottom + m.nLine / 2 + 1;
    const int yTop = r.top - m.nLine / 2, yBottom = r.bottom - m.nLine / 2;

    int w = LabelWidth(g, "-2.0");
    EXPECT_EQ(CRect(r.left - w / 2, yLabel, r.left - w / 2 + w, yLabel + m.nLine), p->m_rectLimit[0]);
    w = LabelWidth(g, "3.0");
    EXPECT_EQ(CRect(r.right - w / 2, yLabel, r.right - w / 2 + w, yLabel + m.nLine), p->m_rectLimit[1]);
    w = LabelWidth(g, "10.00");
    EXPECT_EQ(CRect(r.left - w, yTop, r.left, yTop + m.nLine), p->m_rectLimit[2]);
    w = LabelWidth(g, "-1.00");
    EXPECT_EQ(CRect(r.left - w, yBottom, r.left, yBottom + m.nLine), p->m_rectLimit[3]);
    w = LabelWidth(g, "7.500");
    EXPECT_EQ(CRect(r.right + 2, yTop, r.right + 2 + w, yTop + m.nLine), p->m_rectLimit[4]);
    w = LabelWidth(g, "0.500");
    EXPECT_EQ(CRect(r.right + 2, yBottom, r.right + 2 + w, yBottom + m.nLine), p->m_rectLimit[5]);

    // Each end number stands at the top left corner of its rectangle.
    const char* aszEnds[6] = { "-2.0", "3.0", "10.00", "-1.00", "7.500", "0.500" };
    for (int i = 0; i < 6; i++) {
        const TextCall* pCall = FindCall(calls, aszEnds[i]);
        ASSERT_TRUE(pCall != NULL) << aszEnds[i];
        EXPECT_EQ(p->m_rectLimit[i].left, pCall->x) << aszEnds[i];
        EXPECT_EQ(p->m_rectLimit[i].top, pCall->y) << aszEnds[i];
    }
}

TEST(AxisText, NumbersArePaintedInsideTheirRectanglesInTheTextColour)
{
    GraphOnCanvas g(400, 300);
    CGraphPrv* p = g.Prv();
    p->SetXAxisNumFmt("%.1f");
    p->SetYAxisNumFmt(0, "%.1f");
    p->m_crText = 0x800000;
    p->PutLabels(g.DC());
    // Smoothed text blends the colour with the white background: its pixels
    // lean to blue, as 0x800000 does.
    for (int i = 0; i < 4; i++) {
        const CRect& rc = p->m_rectLimit[i];
        int nBlue = 0;
        for (int y = rc.top; y < rc.bottom; y++)
            for (int x = rc.left; x < rc.right; x++) {
                const COLORREF cr = g.m_canvas.At(x, y);
                nBlue += GetBValue(cr) > GetRValue(cr) + 0x20 && GetRValue(cr) == GetGValue(cr);
            }
        EXPECT_GT(nBlue, 0) << i;
    }
    // Left of the X minimum's rectangle, on its rows, nothing is written.
    const CRect& rc0 = p->m_rectLimit[0];
    EXPECT_EQ(0, g.m_canvas.CountOther(rc0.left - 6, rc0.top, rc0.left, rc0.bottom, 0xFFFFFF));
}

TEST(AxisText, AxesWithoutFormatsShowNoNumbersAndKeepTheirRectangles)
{
    GraphOnCanvas g(400, 300);
    CGraphPrv* p = g.Prv();
    const CRect rectSentinel(1, 2, 3, 4);
    for (int i = 0; i < 6; i++)
        p->m_rectLimit[i] = rectSentinel;
    p->SetYAxisLabel(1, "R");
    std::vector<TextCall> calls = Labels(g);
    for (int i = 0; i < 6; i++)
        EXPECT_EQ(rectSentinel, p->m_rectLimit[i]) << i;
    ASSERT_EQ(1u, calls.size());   // the right title alone
    EXPECT_EQ("R", calls[0].text);
}

TEST(AxisText, NoPlotStyleDropsTheXNumbersOnly)
{
    GraphOnCanvas g(400, 300, GS_NOWINDOW | GS_NOPLOT);
    CGraphPrv* p = g.Prv();
    const CRect rectSentinel(1, 2, 3, 4);
    p->m_rectLimit[0] = p->m_rectLimit[1] = rectSentinel;
    p->SetXAxisNumFmt("%.1f");
    p->SetYAxisNumFmt(0, "%.1f");
    p->SetXAxisLimits(5.0, 6.0);
    p->SetYAxisLimits(7.0, 8.0, 0);
    std::vector<TextCall> calls = Labels(g);
    EXPECT_EQ(rectSentinel, p->m_rectLimit[0]);
    EXPECT_EQ(rectSentinel, p->m_rectLimit[1]);
    EXPECT_TRUE(FindCall(calls, "5.0") == NULL);
    EXPECT_TRUE(FindCall(calls, "6.0") == NULL);
    EXPECT_TRUE(FindCall(calls, "7.0") != NULL);
    EXPECT_TRUE(FindCall(calls, "8.0") != NULL);
}

TEST(AxisText, RightNumbersNeedTheRightTitle)
{
    GraphOnCanvas g(400, 300, GS_NOWINDOW | GS_RIGHTAXIS);
    CGraphPrv* p = g.Prv();
    const CRect rectSentinel(1, 2, 3, 4);
    p->m_rectLimit[4] = p->m_rectLimit[5] = rectSentinel;
    p->SetYAxisNumFmt(1, "%.1f");
    p->SetYAxisLimits(3.0, 4.0, 1);
    std::vector<TextCall> calls = Labels(g);
    EXPECT_TRUE(calls.empty());
    EXPECT_EQ(rectSentinel, p->m_rectLimit[4]);

    // With a title but without a format of the left axis, the right numbers
    // still stand at the ends of the axis.
    p->SetYAxisLabel(1, "R");
    calls = Labels(g);
    const Measures m = Measure(g);
    const TextCall* pMax = FindCall(calls, "4.0");
    ASSERT_TRUE(pMax != NULL);
    EXPECT_EQ(p->m_rectPlot.right + 2, pMax->x);
    EXPECT_EQ(p->m_rectPlot.top - m.nLine / 2, pMax->y);
    const TextCall* pMin = FindCall(calls, "3.0");
    ASSERT_TRUE(pMin != NULL);
    EXPECT_EQ(p->m_rectPlot.bottom - m.nLine / 2, pMin->y);
}

// ---------------------------------------------------------------------------
// Middle numbers of fixed tics
// ---------------------------------------------------------------------------

TEST(AxisText, FixedXMiddleNumberWhenThreeNumbersFit)
{
    GraphOnCanvas g(400, 300);
    CGraphPrv* p = g.Prv();
    p->SetTicMarkType(0, 0, NULL);
    p->SetXAxisNumFmt("%.1f");
    p->SetXAxisLimits(0.0, 10.0);
    const Measures m = Measure(g);
    CRect r = p->m_rectPlot;
    // "10.0", the last text formatted before the middle, has 4 characters.
    ASSERT_LE(3 * 4 * m.nCharW, r.Width());
    std::vector<TextCall> calls = Labels(g);
    const TextCall* pMid = FindCall(calls, "5.0");
    ASSERT_TRUE(pMid != NULL);
    EXPECT_EQ(r.left + (int)(r.Width() * 0.5) - LabelWidth(g, "5.0") / 2, pMid->x);
    EXPECT_EQ(r.bottom + m.nLine / 2 + 1, pMid->y);
    EXPECT_EQ(3u, calls.size());

    // One pixel too narrow for the rule: no middle number.
    p->m_rectPlot.right = p->m_rectPlot.left + 3 * 4 * m.nCharW - 1;
    calls = Labels(g);
    EXPECT_TRUE(FindCall(calls, "5.0") == NULL);
    EXPECT_EQ(2u, calls.size());
    p->m_rectPlot.right += 1;
    calls = Labels(g);
    EXPECT_TRUE(FindCall(calls, "5.0") != NULL);
}

TEST(AxisText, FixedYMiddleNumbersLeftTestsEqualTextRightDoesNot)
{
    GraphOnCanvas g(400, 300, GS_NOWINDOW | GS_RIGHTAXIS);
    CGraphPrv* p = g.Prv();
    p->SetYAxisLabel(1, "R");
    p->SetTicMarkType(0, 0, NULL);
    // Limits before formats: a format's resolution would widen a pair
    // this narrow.
    p->SetYAxisLimits(1.0, 1.01, 0);   // all three texts read "1.0"
    p->SetYAxisLimits(1.0, 1.01, 1);
    p->SetYAxisNumFmt(0, "%.1f");
    p->SetYAxisNumFmt(1, "%.1f");
    const Measures m = Measure(g);
    const CRect r = p->m_rectPlot;
    ASSERT_GT(r.Height(), 5 * m.nLine);
    std::vector<TextCall> calls = Labels(g);
    // Left: the ends only. Right: the ends and the middle, 2 pixels higher
    // than the left axis would place it.
    int nLeft = 0, nRight = 0;
    const TextCall* pRightMid = NULL;
    for (const TextCall& c : calls) {
        if (c.text != "1.0")
            continue;
        if (c.x < r.left)
            nLeft++;
        else if (c.x == r.right + 2) {
            nRight++;
            if (c.y != r.top - m.nLine / 2 && c.y != r.bottom - m.nLine / 2)
                pRightMid = &c;
        }
    }
    EXPECT_EQ(2, nLeft);
    EXPECT_EQ(3, nRight);
    ASSERT_TRUE(pRightMid != NULL);
    EXPECT_EQ(r.bottom - m.nLine / 2 - (int)(r.Height() * 0.5) - 2, pRightMid->y);

    // Three decimals tell them apart: the left middle number appears.
    p->SetYAxisNumFmt(0, "%.3f");
    calls = Labels(g);
    const TextCall* pMid = FindCall(calls, Fmt("%.3f", p->m_dYTicValue[0][5]).c_str());
    ASSERT_TRUE(pMid != NULL);
    EXPECT_EQ(r.left - LabelWidth(g, pMid->text), pMid->x);
    EXPECT_EQ(r.bottom - (int)(r.Height() * 0.5) - m.nLine / 2, pMid->y);
}

// ---------------------------------------------------------------------------
// Middle numbers of floating tics and the drop rules
// ---------------------------------------------------------------------------

TEST(AxisText, FloatingXNumberSlidByRoundingIsDropped)
{
    // Tics 0, 0.05, 0.10000051, 0.15000051, 0.2 with one decimal: tic 1
    // reads "0.1", nearer to tic 2 than to its own value, and is dropped;
    // tic 2 shows "0.1"; tic 3 reads "0.2", the text of the end, dropped.
    GraphOnCanvas g(500, 300);
    CGraphPrv* p = g.Prv();
    p->SetXAxisNumFmt("%.1f");
    const CRect r = p->m_rectPlot;
    const double ad[5] = { 0.0, 0.05, 0.10000051, 0.15000051, 0.2 };
    const int an[5] = { r.left, r.left + r.Width() / 4, r.left + r.Width() / 2, r.left + 3 * r.Width() / 4, r.right };
    SetXTable(p, 4, ad, an);
    std::vector<TextCall> calls = Labels(g);
    ASSERT_EQ(1, CountText(calls, "0.1"));
    EXPECT_EQ(an[2] - LabelWidth(g, "0.1") / 2, FindCall(calls, "0.1")->x);
    EXPECT_EQ(1, CountText(calls, "0.2"));
    EXPECT_EQ(1, CountText(calls, "0.0"));
    EXPECT_EQ(3u, calls.size());
}

TEST(AxisText, FloatingXNumbersEqualToTheEndsAreDropped)
{
    GraphOnCanvas g(500, 300);
    CGraphPrv* p = g.Prv();
    p->SetXAxisNumFmt("%.0f");
    p->SetXAxisLimits(0.0, 1.0);   // 0, 0.2, 0.4, 0.6, 0.8, 1 -> "0" and "1"
    ASSERT_EQ(5, p->m_nXTicCount);
    std::vector<TextCall> calls = Labels(g);
    EXPECT_EQ(1, CountText(calls, "0"));
    EXPECT_EQ(1, CountText(calls, "1"));
    EXPECT_EQ(2u, calls.size());
}

TEST(AxisText, FloatingXNumbersThatWouldTouchAreDropped)
{
    GraphOnCanvas g(500, 300);
    CGraphPrv* p = g.Prv();
    p->SetXAxisNumFmt("%.1f");
    const CRect r = p->m_rectPlot;
    const int w2 = LabelWidth(g, "0.2"), w4 = LabelWidth(g, "0.4"), w6 = LabelWidth(g, "0.6");
    const int w9 = LabelWidth(g, "0.9");
    const int wEnd0 = LabelWidth(g, "0.0");
    const int nLeftEnd = r.left - wEnd0 / 2 + wEnd0 + 2;
    // Tic 1 so close to the left end that its number would start on
    // nLeftEnd; tic 2 free; tic 3 starting where tic 2's number ends + 2;
    // tic 4 free; tic 5 ending 2 pixels before the right end number.
    const int x2 = r.left + 150, x4 = r.left + 300;
    const int nEnd2 = x2 - w4 / 2 + w4 + 2;
    const int wRight = LabelWidth(g, "1.0");
    const int xRight = r.right - wRight / 2;
    const double ad[7] = { 0.0, 0.2, 0.4, 0.6, 0.8, 0.9, 1.0 };
    const int an[7] = { r.left, nLeftEnd + w2 / 2, x2, nEnd2 + w6 / 2, x4, xRight - 2 - w9 + w9 / 2, r.right };
    SetXTable(p, 6, ad, an);
    std::vector<TextCall> calls = Labels(g);
    EXPECT_TRUE(FindCall(calls, "0.2") == NULL);   // x equals nLeftEnd
    ASSERT_TRUE(FindCall(calls, "0.4") != NULL);
    EXPECT_EQ(x2 - w4 / 2, FindCall(calls, "0.4")->x);
    EXPECT_TRUE(FindCall(calls, "0.6") == NULL);   // x equals the end of "0.4" + 2
    EXPECT_TRUE(FindCall(calls, "0.8") != NULL);
    EXPECT_TRUE(FindCall(calls, "0.9") == NULL);   // x + w + 2 equals xRight

    // One pixel more room at each place: all of them stand.
    const int anWider[7] = { r.left, nLeftEnd + 1 + w2 / 2, x2, nEnd2 + 1 + w6 / 2, x4, xRight - 3 - w9 + w9 / 2, r.right };
    SetXTable(p, 6, ad, anWider);
    calls = Labels(g);
    const char* asz[5] = { "0.2", "0.4", "0.6", "0.8", "0.9" };
    for (const char* psz : asz)
        EXPECT_TRUE(FindCall(calls, psz) != NULL) << psz;
}

TEST(AxisText, FloatingYMiddleNumbersNeedMoreThanFiveLines)
{
    GraphOnCanvas g(400, 300);
    CGraphPrv* p = g.Prv();
    p->SetYAxisNumFmt(0, "%.1f");
    const Measures m = Measure(g);
    p->m_rectPlot.top = 40;
    p->m_rectPlot.bottom = 40 + 5 * m.nLine;
    const double ad[3] = { 0.0, 0.5, 1.0 };
    int an[3] = { p->m_rectPlot.bottom, (p->m_rectPlot.top + p->m_rectPlot.bottom) / 2, p->m_rectPlot.top };
    SetYTable(p, 0, 2, ad, an);
    std::vector<TextCall> calls = Labels(g);
    EXPECT_TRUE(FindCall(calls, "0.5") == NULL);
    EXPECT_EQ(2u, calls.size());

    p->m_rectPlot.bottom += 1;
    an[0] = p->m_rectPlot.bottom;
    SetYTable(p, 0, 2, ad, an);
    calls = Labels(g);
    const TextCall* pMid = FindCall(calls, "0.5");
    ASSERT_TRUE(pMid != NULL);
    EXPECT_EQ(an[1] - m.nLine / 2, pMid->y);
    EXPECT_EQ(p->m_rectPlot.left - LabelWidth(g, "0.5"), pMid->x);
}

TEST(AxisText, FloatingYNumbersNearTheEndsAreDropped)
{
    GraphOnCanvas g(400, 300, GS_NOWINDOW | GS_RIGHTAXIS);
    CGraphPrv* p = g.Prv();
    p->SetYAxisLabel(1, "R");
    p->SetYAxisNumFmt(0, "%.1f");
    p->SetYAxisNumFmt(1, "%.1f");
    const Measures m = Measure(g);
    const CRect r = p->m_rectPlot;
    const int yTop = r.top - m.nLine / 2, yBottom = r.bottom - m.nLine / 2;
    // Tic 1 sits where its number would reach yBottom - nLine, tic 3 where
    // its number would reach yTop + nLine: both dropped; tic 2 stands.
    const double ad[5] = { 0.0, 0.25, 0.5, 0.75, 1.0 };
    const int an[5] = { r.bottom, yBottom - m.nLine + m.nLine / 2, (r.top + r.bottom) / 2,
                        yTop + m.nLine + m.nLine / 2, r.top };
    SetYTable(p, 0, 4, ad, an);
    SetYTable(p, 1, 4, ad, an);
    std::vector<TextCall> calls = Labels(g);
    EXPECT_EQ(0, CountText(calls, "0.2") + CountText(calls, "0.3"));   // 0.25 in either rounding
    EXPECT_EQ(0, CountText(calls, "0.8"));
    EXPECT_EQ(2, CountText(calls, "0.5"));
    // The right axis writes its middle numbers at right + 2, unmeasured.
    int nRightMid = 0;
    for (const TextCall& c : calls)
        nRightMid += c.text == "0.5" && c.x == r.right + 2;
    EXPECT_EQ(1, nRightMid);
}

TEST(AxisText, FloatingYNumbersRunDownwardAndCompareWithTheTicBelow)
{
    // Tics 0, 0.1, 0.14, 0.3 with one decimal, tried from tic 2 down: tic 2
    // reads "0.1", which lies on tic 1 rather than near 0.14, and is dropped;
    // tic 1 then shows "0.1" at its own place.
    GraphOnCanvas g(400, 400);
    CGraphPrv* p = g.Prv();
    p->SetYAxisNumFmt(0, "%.1f");
    const CRect r = p->m_rectPlot;
    const double ad[4] = { 0.0, 0.1, 0.14, 0.3 };
    const int an[4] = { r.bottom, r.bottom - r.Height() / 3, r.bottom - 2 * r.Height() / 3, r.top };
    SetYTable(p, 0, 3, ad, an);
    std::vector<TextCall> calls = Labels(g);
    ASSERT_EQ(1, CountText(calls, "0.1"));
    EXPECT_EQ(an[1] - Measure(g).nLine / 2, FindCall(calls, "0.1")->y);
    EXPECT_EQ(3u, calls.size());

    // Tics 0, 0.05, 0.10000051, 0.15000051, 0.2: tic 3 reads "0.2", the top
    // end's text; tic 2 shows "0.1"; tic 1 reads "0.1" as well, the text
    // last drawn, and is dropped.
    const double ad2[5] = { 0.0, 0.05, 0.10000051, 0.15000051, 0.2 };
    const int an2[5] = { r.bottom, r.bottom - r.Height() / 4, r.bottom - r.Height() / 2,
                         r.bottom - 3 * r.Height() / 4, r.top };
    SetYTable(p, 0, 4, ad2, an2);
    calls = Labels(g);
    ASSERT_EQ(1, CountText(calls, "0.1"));
    EXPECT_EQ(an2[2] - Measure(g).nLine / 2, FindCall(calls, "0.1")->y);
    EXPECT_EQ(1, CountText(calls, "0.2"));
    EXPECT_EQ(3u, calls.size());
}

// ---------------------------------------------------------------------------
// Locale
// ---------------------------------------------------------------------------

TEST(AxisText, CommaLocaleWritesCommasAndKeepsTheDropRules)
{
    ThreadLocale locale(MAKELCID(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN), SORT_DEFAULT));
    char szDecimal[8];
    ASSERT_GT(::GetLocaleInfoA(::GetThreadLocale(), LOCALE_SDECIMAL, szDecimal, sizeof(szDecimal)), 0);
    ASSERT_STREQ(",", szDecimal);

    GraphOnCanvas g(500, 300);
    CGraphPrv* p = g.Prv();
    p->SetXAxisNumFmt("%.1f");
    const CRect r = p->m_rectPlot;
    // The slide test reads the plain text back ("0.1" -> 0.1): with the
    // comma text it would read 0 and drop every middle number.
    const double ad[5] = { 0.0, 0.05, 0.10000051, 0.15000051, 0.2 };
    const int an[5] = { r.left, r.left + r.Width() / 4, r.left + r.Width() / 2, r.left + 3 * r.Width() / 4, r.right };
    SetXTable(p, 4, ad, an);
    std::vector<TextCall> calls = Labels(g);
    EXPECT_EQ(1, CountText(calls, "0,0"));
    EXPECT_EQ(1, CountText(calls, "0,2"));   // the end; tic 3 dropped as equal localised text
    ASSERT_EQ(1, CountText(calls, "0,1"));
    EXPECT_EQ(an[2] - LabelWidth(g, "0,1") / 2, FindCall(calls, "0,1")->x);
    EXPECT_EQ(3u, calls.size());
    for (const TextCall& c : calls)
        EXPECT_EQ(std::string::npos, c.text.find('.')) << c.text;
}

// ---------------------------------------------------------------------------
// Titles
// ---------------------------------------------------------------------------

TEST(AxisText, TitlesAreCentredOnThePlot)
{
    GraphOnCanvas g(400, 300);
    CGraphPrv* p = g.Prv();
    p->SetGraphTitle("Graph title");
    p->SetXAxisLabel("Seconds");
    std::vector<TextCall> calls = Labels(g);
    const Measures m = Measure(g);
    const CRect r = p->m_rectPlot;
    const TextCall* pTitle = FindCall(calls, "Graph title");
    ASSERT_TRUE(pTitle != NULL);
    EXPECT_EQ(r.left + (r.Width() - g.TextWidth("Graph title")) / 2, pTitle->x);
    EXPECT_EQ(r.top - (3 * m.nLine) / 2, pTitle->y);
    const TextCall* pX = FindCall(calls, "Seconds");
    ASSERT_TRUE(pX != NULL);
    EXPECT_EQ(r.left + (r.Width() - g.TextWidth("Seconds")) / 2, pX->x);
    EXPECT_EQ(r.bottom + (3 * m.nLine) / 2, pX->y);

    // No room over the plot: no graph title.
    p->m_rectPlot.top = p->m_rectGraph.top;
    calls = Labels(g);
    EXPECT_TRUE(FindCall(calls, "Graph title") == NULL);
    EXPECT_TRUE(FindCall(calls, "Seconds") != NULL);
}

TEST(AxisText, BeforeTheFirstLayoutOnlyTheXTitleIsWritten)
{
    TestHost host(200, 100);
    CGraph graph;   // constructed, never created: both rectangles empty
    graph.SetGraphTitle("T");
    graph.SetXAxisLabel("X");
    graph.SetYAxisLabel(0, "L");
    std::vector<TextCall> calls = RecordText([&](CDC* pDC) { graph.m_pGraphPrv->PutLabels(pDC); });
    ASSERT_EQ(1u, calls.size());
    EXPECT_EQ("X", calls[0].text);
}

TEST(AxisText, TrueTypeAxisTitlesAreRotatedAndReadUpward)
{
    GraphOnCanvas g(400, 300);
    CGraphPrv* p = g.Prv();
    const Measures m = Measure(g);
    ASSERT_TRUE(m.tm.tmPitchAndFamily & TMPF_TRUETYPE);
    p->SetYAxisLabel(0, "Volts");
    p->SetYAxisLabel(1, "Amperes");
    std::vector<TextCall> calls = Labels(g);
    const CRect r = p->m_rectPlot;
    const TextCall* pLeft = FindCall(calls, "Volts");
    ASSERT_TRUE(pLeft != NULL);
    EXPECT_EQ(p->m_rectGraph.left + 1, pLeft->x);
    EXPECT_EQ((r.top + r.bottom + m.tm.tmAveCharWidth * 4) / 2, pLeft->y);
    const TextCall* pRight = FindCall(calls, "Amperes");
    ASSERT_TRUE(pRight != NULL);
    EXPECT_EQ(p->m_rectGraph.right - m.nLine - 1, pRight->x);

    // On the pixels: the left title is a tall, narrow column above its start.
    p->PutLabels(g.DC());
    int nMinX = 1000, nMaxX = -1, nMinY = 1000, nMaxY = -1;
    for (int y = 0; y < 300; y++)
        for (int x = 0; x < r.left - 1; x++)
            if (g.m_canvas.At(x, y) != 0xFFFFFF) {
                nMinX = std::min(nMinX, x);
                nMaxX = std::max(nMaxX, x);
                nMinY = std::min(nMinY, y);
                nMaxY = std::max(nMaxY, y);
            }
    ASSERT_GE(nMaxX, nMinX);
    EXPECT_GT(nMaxY - nMinY, 2 * (nMaxX - nMinX));
    EXPECT_LE(nMaxY, pLeft->y);
    EXPECT_GE(nMinX, 1);
    EXPECT_LE(nMaxX, 1 + m.nLine);
}

TEST(AxisText, RotatedTitleTooLongForThePlotStartsAtItsBottom)
{
    GraphOnCanvas g(400, 120);
    CGraphPrv* p = g.Prv();
    CString str('W', 80);
    p->SetYAxisLabel(0, str);
    std::vector<TextCall> calls = Labels(g);
    const TextCall* pCall = FindCall(calls, (LPCSTR)str);
    ASSERT_TRUE(pCall != NULL);
    EXPECT_EQ(p->m_rectPlot.bottom, pCall->y);
}

TEST(AxisText, RasterFontTitlesAreStackedWithDoubleByteCharactersWhole)
{
    const CString strWide = AnsiOf(L"\u4E2D");
    if (strWide.GetLength() != 2 || !::IsDBCSLeadByte((BYTE)strWide[0]))
        GTEST_SKIP() << "needs a double-byte code page";
    // A bitmap font of the platform, made available to this process.
    const char* pszFont = "Z:\\usr\\share\\wine\\fonts\\sserife.fon";
    if (::AddFontResourceExA(pszFont, FR_PRIVATE, 0) == 0)
        GTEST_SKIP() << "no bitmap font here";
    GraphOnCanvas g(400, 300);
    CGraphPrv* p = g.Prv();
    LOGFONT lf;
    memset(&lf, 0, sizeof(lf));
    lf.lfCharSet = ANSI_CHARSET;
    lf.lfOutPrecision = OUT_RASTER_PRECIS;
    strcpy(lf.lfFaceName, "MS Sans Serif");
    ASSERT_EQ(1, p->SetLogFont(&lf, 80, 0));
    g.Layout();
    const Measures m = Measure(g);
    ASSERT_FALSE(m.tm.tmPitchAndFamily & TMPF_TRUETYPE);

    // "A", a double-byte character of the code page, "B": three units, the
    // length counted in bytes (4).
    const CString strTitle = CString("A") + strWide + "B";
    ASSERT_EQ(4, strTitle.GetLength());
    p->SetYAxisLabel(0, strTitle);
    p->SetYAxisLabel(1, "RS");
    std::vector<TextCall> calls = Labels(g);
    const CRect r = p->m_rectPlot;
    const int y0 = (r.top + r.bottom - m.nLine * (4 + 1)) / 2;
    std::vector<const TextCall*> left;
    for (const TextCall& c : calls)
        if (c.x == p->m_rectGraph.left + 1)
            left.push_back(&c);
    ASSERT_EQ(3u, left.size());
    EXPECT_EQ("A", left[0]->text);
    EXPECT_EQ(std::string((LPCSTR)AnsiOf(L"\u4E2D")), left[1]->text);
    EXPECT_EQ("B", left[2]->text);
    for (int i = 0; i < 3; i++)
        EXPECT_EQ(y0 + i * m.nLine, left[i]->y) << i;
    // The right title stands one widest character in from the right side.
    const TextCall* pR = FindCall(calls, "R");
    ASSERT_TRUE(pR != NULL);
    EXPECT_EQ(p->m_rectGraph.right - m.tm.tmMaxCharWidth - 1, pR->x);
    const TextCall* pS = FindCall(calls, "S");
    ASSERT_TRUE(pS != NULL);
    EXPECT_EQ(pR->y + m.nLine, pS->y);

    // Too long for the plot: the stack starts at the top of the plot.
    p->SetYAxisLabel(0, CString('Q', 60));
    calls = Labels(g);
    const TextCall* pQ = FindCall(calls, "Q");
    ASSERT_TRUE(pQ != NULL);
    EXPECT_EQ(r.top, pQ->y);
    ::RemoveFontResourceExA(pszFont, FR_PRIVATE, 0);
}

// ---------------------------------------------------------------------------
// Tic extensions below the X axis
// ---------------------------------------------------------------------------

TEST(AxisText, TicExtensionsStandUnderDrawnNumbers)
{
    GraphOnCanvas g(500, 300);
    CGraphPrv* p = g.Prv();
    p->SetXAxisNumFmt("%.1f");
    p->m_nMinorTics = 1;
    p->m_dwGridType = 0x18;
    p->m_crGrid = 0x0000C0;
    const CRect r = p->m_rectPlot;
    const Measures m = Measure(g);
    const int nTicOut = m.tm.tmHeight / 4 + 1;
    // Tic 1 next to the left end: its number is dropped, and with it its
    // extension. Tics 2 and 3 keep theirs.
    const double ad[5] = { 0.0, 0.2, 0.5, 0.7, 1.0 };
    const int an[5] = { r.left, r.left + 2, r.left + r.Width() / 2, r.left + 3 * r.Width() / 4, r.right };
    SetXTable(p, 4, ad, an);
    p->PutLabels(g.DC());
    DibCanvas& c = g.m_canvas;
    EXPECT_EQ(nTicOut, c.Count(an[2], r.bottom, an[2] + 1, r.bottom + 20, 0x0000C0));
    EXPECT_EQ(0x0000C0u, c.At(an[2], r.bottom + nTicOut - 1));
    EXPECT_EQ(nTicOut, c.Count(an[3], r.bottom, an[3] + 1, r.bottom + 20, 0x0000C0));
    EXPECT_EQ(0, c.Count(an[1], r.bottom, an[1] + 1, r.bottom + 20, 0x0000C0));

    // No grid: no extensions at all.
    c.Fill(0xFFFFFF);
    p->m_dwGridType = 0x01;
    p->PutLabels(g.DC());
    EXPECT_EQ(0, c.Count(0, 0, 500, 300, 0x0000C0));
}
