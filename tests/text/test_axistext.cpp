// Axis text: titles, where the numbers along the axes land (their drop
// rules are tested without a window in test_numbers.cpp), the limit
// rectangles, refused formats, the locale's decimal sign, rotated titles.
// What is written is read back from a metafile recording (text and
// reference point), where it is drawn from the pixels of a DIB section.
#include "Surface.h"
#include <algorithm>

namespace {

// One text call as a metafile keeps it: the reference point and the text in
// the ANSI code page.
struct TextCall
{
    int x, y;
    std::string text;
};

int CALLBACK RecordProc(HDC, HANDLETABLE*, const ENHMETARECORD* pRecord, int, LPARAM lParam)
{
    if (pRecord->iType == EMR_EXTTEXTOUTW) {
        const EMRTEXT& t = ((const EMREXTTEXTOUTW*)pRecord)->emrtext;
        char sz[512];
        const int n = ::WideCharToMultiByte(CP_ACP, 0, (LPCWSTR)((const BYTE*)pRecord + t.offString), (int)t.nChars,
                                            sz, sizeof(sz), NULL, NULL);
        const TextCall call = { t.ptlReference.x, t.ptlReference.y, std::string(sz, n > 0 ? n : 0) };
        ((std::vector<TextCall>*)lParam)->push_back(call);
    }
    return 1;
}

// What PutLabels writes on a metafile context (which refers to the screen,
// so metrics and fonts are those of a screen context).
std::vector<TextCall> Labels(CGraphPrv* p)
{
    std::vector<TextCall> calls;
    HDC hMeta = ::CreateEnhMetaFileA(NULL, NULL, NULL, NULL);
    CDC dc;
    dc.Attach(hMeta);
    p->PutLabels(&dc);
    dc.Detach();
    HENHMETAFILE hEmf = ::CloseEnhMetaFile(hMeta);
    ::EnumEnhMetaFile(NULL, hEmf, RecordProc, &calls, NULL);
    ::DeleteEnhMetaFile(hEmf);
    return calls;
}

// Where the first call with the text wrote it; far off when none did.
CPoint Where(const std::vector<TextCall>& calls, const std::string& str)
{
    for (const TextCall& c : calls)
        if (c.text == str)
            return CPoint(c.x, c.y);
    return CPoint(-9999, -9999);
}

int CountText(const std::vector<TextCall>& calls, const std::string& str)
{
    return (int)std::count_if(calls.begin(), calls.end(), [&](const TextCall& c) { return c.text == str; });
}

// The line height of the graph's font, and the width GetLabelWExtent gives
// a number.
int LineOf(CanvasGraph& g)
{
    const TEXTMETRIC tm = g.Metrics();
    return tm.tmHeight + tm.tmExternalLeading;
}

int LabelWidth(CanvasGraph& g, const std::string& str)
{
    return g.TextWidth(str.c_str()) + g.Metrics().tmOverhang + 3;
}

// A floating X or Y table set by hand: values and pixels.
void SetTable(CGraphPrv* p, int nAxis, int nCount, const double* pdValues, const int* pnPixels)
{
    const bool bX = nAxis < 0;
    (bX ? p->m_nXTicType : p->m_nYTicType[nAxis]) = 1;
    (bX ? p->m_nXTicCount : p->m_nYTicCount[nAxis]) = nCount;
    std::copy(pdValues, pdValues + nCount + 1, bX ? p->m_dXTicValue : p->m_dYTicValue[nAxis]);
    std::copy(pnPixels, pnPixels + nCount + 1, bX ? p->m_nXTicPixel : p->m_nYTicPixel[nAxis]);
    (bX ? p->m_dXMin : p->m_dYMin[nAxis]) = pdValues[0];
    (bX ? p->m_dXMax : p->m_dYMax[nAxis]) = pdValues[nCount];
}

const int X = -1;

} // namespace

// ---------------------------------------------------------------------------
// End numbers and limit rectangles
// ---------------------------------------------------------------------------

TEST(AxisText, EndNumbersAndTheSixLimitRectangles)
{
    CanvasGraph g;
    CGraphPrv* p = g.Prv();
    p->SetXAxisNumFmt("%.1f");
    p->SetYAxisNumFmt(0, "%.2f");
    p->SetYAxisNumFmt(1, "%.3f");
    p->SetYAxisLabel(1, "R");
    p->SetXAxisLimits(-2.0, 3.0);
    p->SetYAxisLimits(-1.0, 10.0, 0);
    p->SetYAxisLimits(0.5, 7.5, 1);
    const std::vector<TextCall> calls = Labels(p);
    const int L = LineOf(g);
    const CRect r = p->m_rectPlot;
    const int yLabel = r.bottom + L / 2 + 1, yTop = r.top - L / 2, yBottom = r.bottom - L / 2;
    const char* aszEnds[LIMIT_SLOTS] = { "-2.0", "3.0", "10.00", "-1.00", "7.500", "0.500" };
    int w[LIMIT_SLOTS];
    for (int i = 0; i < LIMIT_SLOTS; i++)
        w[i] = LabelWidth(g, aszEnds[i]);
    const CRect expected[LIMIT_SLOTS] = {
        CRect(r.left - w[0] / 2, yLabel, r.left - w[0] / 2 + w[0], yLabel + L),
        CRect(r.right - w[1] / 2, yLabel, r.right - w[1] / 2 + w[1], yLabel + L),
        CRect(r.left - w[2], yTop, r.left, yTop + L),
        CRect(r.left - w[3], yBottom, r.left, yBottom + L),
        CRect(r.right + 2, yTop, r.right + 2 + w[4], yTop + L),
        CRect(r.right + 2, yBottom, r.right + 2 + w[5], yBottom + L),
    };
    // Each end number stands at the top left corner of its rectangle.
    for (int i = 0; i < LIMIT_SLOTS; i++) {
        EXPECT_EQ(expected[i], p->m_rectLimit[i]) << aszEnds[i];
        EXPECT_EQ(expected[i].TopLeft(), Where(calls, aszEnds[i])) << aszEnds[i];
    }

    // Painted inside its rectangle in the text colour: smoothed text blends
    // 0x800000 with the white background, so its pixels lean to blue.
    p->m_crText = 0x800000;
    p->PutLabels(g.DC());
    auto blue = [](COLORREF cr) { return GetBValue(cr) > GetRValue(cr) + 0x20 && GetRValue(cr) == GetGValue(cr); };
    for (int i = 0; i < 4; i++)
        EXPECT_NE(INT_MAX, g.m_dib.Box(blue, p->m_rectLimit[i]).left) << i;   // some pixel of it
    const CRect& rc0 = p->m_rectLimit[LIMIT_XMIN];
    EXPECT_EQ(0, g.m_dib.Count(rc0.left - 6, rc0.top, rc0.left, rc0.bottom, WHITE, true));
}

TEST(AxisText, WhichAxesWriteTheirNumbers)
{
    // Without a format, or with a refused one ("%s" would read the double
    // as a pointer, "%n" write through it): the graph paints, no numbers,
    // and the rectangles keep what they held.
    CanvasGraph g(400, 300, GS_RIGHTAXIS);
    CGraphPrv* p = g.Prv();
    const CRect rectSentinel(1, 2, 3, 4);
    for (int i = 0; i < LIMIT_SLOTS; i++)
        p->m_rectLimit[i] = rectSentinel;
    p->SetYAxisLabel(1, "R");
    EXPECT_EQ(GRAPH_OK, p->SetXAxisNumFmt("%s"));
    EXPECT_EQ(GRAPH_OK, p->SetYAxisNumFmt(0, "%n"));
    EXPECT_EQ(GRAPH_OK, g.Plot());
    std::vector<TextCall> calls = Labels(p);
    ASSERT_EQ(1u, calls.size());   // the right title alone
    EXPECT_EQ("R", calls[0].text);
    for (int i = 0; i < LIMIT_SLOTS; i++)
        EXPECT_EQ(rectSentinel, p->m_rectLimit[i]) << i;

    // The right numbers need the right title, not a left format; they
    // stand at the ends of the axis.
    p->SetYAxisNumFmt(1, "%.1f");
    p->SetYAxisLimits(3.0, 4.0, 1);
    p->SetYAxisLabel(1, "");
    EXPECT_TRUE(Labels(p).empty());
    p->SetYAxisLabel(1, "R");
    calls = Labels(p);
    EXPECT_EQ(CPoint(p->m_rectPlot.right + 2, p->m_rectPlot.top - LineOf(g) / 2), Where(calls, "4.0"));
    EXPECT_EQ(p->m_rectPlot.bottom - LineOf(g) / 2, Where(calls, "3.0").y);
    for (int i = 0; i < LIMIT_SLOTS; i++)
        EXPECT_EQ(i < LIMIT_YRIGHT_MAX, rectSentinel == p->m_rectLimit[i]) << i;

    // The no-plot style drops the X numbers only.
    CanvasGraph h(400, 300, GS_NOPLOT);
    h.Prv()->m_rectLimit[LIMIT_XMIN] = rectSentinel;
    h.Prv()->SetXAxisNumFmt("%.1f");
    h.Prv()->SetYAxisNumFmt(0, "%.1f");
    h.Prv()->SetXAxisLimits(5.0, 6.0);
    h.Prv()->SetYAxisLimits(7.0, 8.0, 0);
    calls = Labels(h.Prv());
    EXPECT_EQ(rectSentinel, h.Prv()->m_rectLimit[LIMIT_XMIN]);
    EXPECT_EQ(0, CountText(calls, "5.0") + CountText(calls, "6.0"));
    EXPECT_EQ(2, CountText(calls, "7.0") + CountText(calls, "8.0"));
}

TEST(AxisText, TheThreadsLocaleDoesNotChangeTheDecimalSign)
{
    // The numbers take the user's decimal sign (a point under zh_CN, see
    // test_numberedits.cpp); a host that sets German on its thread gets no
    // commas.
    ThreadLocale locale(lcidGerman);
    CanvasGraph g;
    g.Prv()->SetXAxisNumFmt("%.1f");
    g.Prv()->SetXAxisLimits(0.5, 1.5);
    const std::vector<TextCall> calls = Labels(g.Prv());
    EXPECT_EQ(2, CountText(calls, "0.5") + CountText(calls, "1.5"));
}

// ---------------------------------------------------------------------------
// Middle numbers
// ---------------------------------------------------------------------------

TEST(AxisText, FixedMiddleNumbersStandAtTheMiddleOfTheAxes)
{
    CanvasGraph g(400, 300, GS_RIGHTAXIS);
    CGraphPrv* p = g.Prv();
    p->SetYAxisLabel(1, "R");
    p->SetTicMarkType(0, 0, NULL);
    // Limits before formats: a format's resolution would widen a pair this
    // narrow. All three texts of each Y axis read "1.0".
    p->SetXAxisLimits(0.0, 10.0);
    p->SetYAxisLimits(1.0, 1.01, 0);
    p->SetYAxisLimits(1.0, 1.01, 1);
    p->SetXAxisNumFmt("%.1f");
    p->SetYAxisNumFmt(0, "%.1f");
    p->SetYAxisNumFmt(1, "%.1f");
    const int L = LineOf(g);
    const CRect r = p->m_rectPlot;
    ASSERT_GT(r.Height(), 5 * L);
    const std::vector<TextCall> calls = Labels(p);
    // X: centred on the plot, under no tic of its own.
    EXPECT_EQ(CPoint(r.left + (int)(r.Width() * 0.5) - LabelWidth(g, "5.0") / 2, r.bottom + L / 2 + 1),
              Where(calls, "5.0"));
    // Left: the ends only. Right: the ends and the middle, 2 pixels higher
    // than the left axis would place it.
    std::vector<int> left, right;
    for (const TextCall& c : calls)
        if (c.text == "1.0")
            (c.x < r.left ? left : right).push_back(c.y);
    EXPECT_EQ(2u, left.size());
    std::sort(right.begin(), right.end());
    EXPECT_EQ((std::vector<int>{ r.top - L / 2, r.bottom - L / 2 - (int)(r.Height() * 0.5) - 2, r.bottom - L / 2 }),
              right);
    // Three decimals tell them apart: the left middle number appears.
    p->SetYAxisNumFmt(0, "%.3f");
    const std::string strMid = Fmt("%.3f", p->m_dYTicValue[0][5]);
    EXPECT_EQ(CPoint(r.left - LabelWidth(g, strMid), r.bottom - (int)(r.Height() * 0.5) - L / 2),
              Where(Labels(p), strMid));
}

TEST(AxisText, FloatingMiddleNumbersAndTicExtensionsStandAtTheirTics)
{
    // X numbers centred on their tics; left Y numbers against the frame,
    // without their leading blanks; right Y numbers at right + 2 as
    // formatted, blanks and all.
    CanvasGraph g(500, 400, GS_RIGHTAXIS);
    CGraphPrv* p = g.Prv();
    const COLORREF crGrid = 0x0000C0;
    p->m_nMinorTics = 1;
    p->m_dwGridType = GRID_BOTHWAYS;
    p->m_crGrid = crGrid;
    p->SetYAxisLabel(1, "R");
    p->SetXAxisNumFmt("%.2f");
    p->SetYAxisNumFmt(0, "%5.1f");
    p->SetYAxisNumFmt(1, "%5.1f");
    const CRect r = p->m_rectPlot;
    const int L = LineOf(g);
    // X tic 1 next to the left end: its number is dropped, and with it its
    // extension below the frame; tic 2 keeps both.
    const double adX[4] = { 0.0, 0.2, 0.5, 1.0 }, adY[3] = { 0.0, 0.5, 1.0 };
    const int anX[4] = { r.left, r.left + 2, (r.left + r.right) / 2, r.right };
    const int anY[3] = { r.bottom, (r.top + r.bottom) / 2, r.top };
    SetTable(p, X, 3, adX, anX);
    SetTable(p, 0, 2, adY, anY);
    SetTable(p, 1, 2, adY, anY);
    const std::vector<TextCall> calls = Labels(p);
    EXPECT_EQ(0, CountText(calls, "0.20"));
    EXPECT_EQ(CPoint(anX[2] - LabelWidth(g, "0.50") / 2, r.bottom + L / 2 + 1), Where(calls, "0.50"));
    EXPECT_EQ(CPoint(r.left - LabelWidth(g, "0.5"), anY[1] - L / 2), Where(calls, "0.5"));
    EXPECT_EQ(CPoint(r.right + 2, anY[1] - L / 2), Where(calls, "  0.5"));

    p->PutLabels(g.DC());
    const int nTicOut = g.Metrics().tmHeight / 4 + 1;
    EXPECT_EQ(nTicOut, g.m_dib.Count(anX[2], r.bottom, anX[2] + 1, r.bottom + 20, crGrid));
    EXPECT_EQ(crGrid, g.m_dib.At(anX[2], r.bottom + nTicOut - 1));
    EXPECT_EQ(0, g.m_dib.Count(anX[1], r.bottom, anX[1] + 1, r.bottom + 20, crGrid));
}

// ---------------------------------------------------------------------------
// Titles
// ---------------------------------------------------------------------------

TEST(AxisText, TitlesAreCentredOnThePlot)
{
    CanvasGraph g;
    CGraphPrv* p = g.Prv();
    p->SetGraphTitle("Graph title");
    p->SetXAxisLabel("Seconds");
    std::vector<TextCall> calls = Labels(p);
    const int L = LineOf(g);
    const CRect r = p->m_rectPlot;
    EXPECT_EQ(CPoint(r.left + (r.Width() - g.TextWidth("Graph title")) / 2, r.top - (3 * L) / 2),
              Where(calls, "Graph title"));
    EXPECT_EQ(CPoint(r.left + (r.Width() - g.TextWidth("Seconds")) / 2, r.bottom + (3 * L) / 2),
              Where(calls, "Seconds"));
    // No room over the plot: no graph title.
    p->m_rectPlot.top = p->m_rectGraph.top;
    calls = Labels(p);
    EXPECT_EQ(0, CountText(calls, "Graph title"));
    EXPECT_EQ(1, CountText(calls, "Seconds"));

    // Before the first layout (both rectangles empty) only the X title.
    CGraph graph;
    graph.SetGraphTitle("T");
    graph.SetXAxisLabel("X");
    graph.SetYAxisLabel(0, "L");
    calls = Labels(graph.m_pGraphPrv);
    ASSERT_EQ(1u, calls.size());
    EXPECT_EQ("X", calls[0].text);
}

TEST(AxisText, TrueTypeAxisTitlesAreRotatedAndReadUpward)
{
    CanvasGraph g;
    CGraphPrv* p = g.Prv();
    const TEXTMETRIC tm = g.Metrics();
    ASSERT_TRUE(tm.tmPitchAndFamily & TMPF_TRUETYPE);
    const int L = LineOf(g);
    p->SetYAxisLabel(0, "Volts");
    p->SetYAxisLabel(1, "Amperes");
    std::vector<TextCall> calls = Labels(p);
    const CRect r = p->m_rectPlot;
    const CPoint ptLeft = Where(calls, "Volts");
    EXPECT_EQ(CPoint(p->m_rectGraph.left + 1, (r.top + r.bottom + tm.tmAveCharWidth * 4) / 2), ptLeft);
    EXPECT_EQ(p->m_rectGraph.right - L - 1, Where(calls, "Amperes").x);

    // On the pixels: the left title is a tall, narrow column above its start.
    p->PutLabels(g.DC());
    const CRect ink = g.m_dib.Box([](COLORREF cr) { return cr != WHITE; }, CRect(0, 0, r.left - 2, 299));
    ASSERT_GE(ink.right, ink.left);
    EXPECT_GT(ink.Height(), 2 * ink.Width());
    EXPECT_LE(ink.bottom, ptLeft.y);
    EXPECT_GE(ink.left, 1);
    EXPECT_LE(ink.right, 1 + L);

    // Too long for the plot: it starts at the plot's bottom.
    const CString strLong('W', 80);
    p->SetYAxisLabel(0, strLong);
    EXPECT_EQ(r.bottom, Where(Labels(p), (LPCSTR)strLong).y);
}
