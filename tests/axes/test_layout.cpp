// Layout: the plot rectangle of a new graph, of a window after ReSizeGraph
// (with the too-low and too-narrow cases and the docked legend), of a memory
// context and of a printer context after SizeGraph, and the smallest graph.
// Every expectation comes from the metrics of the graph's font read here
// from the same kind of context.
#include "Surface.h"

namespace {

// The measures the layout takes from a font, read from a context.
struct FontMeasures
{
    int L;    // line height: tmHeight + tmExternalLeading
    int A;    // tmAveCharWidth + tmOverhang
    int M;    // tmMaxCharWidth
    int O;    // tmOverhang
    BOOL T;   // a TrueType font
    int D;    // width of "0123456789" / 10 - 2
    int S;    // width of the widest number, -10000 in "%.3E"
    int Title() const { return T ? L : M; }   // width of a vertical axis title
};

FontMeasures MeasureFont(HDC hDC, HFONT hFont)
{
    HGDIOBJ hOld = ::SelectObject(hDC, hFont);
    TEXTMETRICA tm;
    ::GetTextMetricsA(hDC, &tm);
    SIZE digits, widest;
    ::GetTextExtentPoint32A(hDC, "0123456789", 10, &digits);
    const std::string str = Fmt("%.3E", -10000.0);
    ::GetTextExtentPoint32A(hDC, str.c_str(), (int)str.size(), &widest);
    ::SelectObject(hDC, hOld);
    return FontMeasures{ tm.tmHeight + tm.tmExternalLeading, tm.tmAveCharWidth + tm.tmOverhang, tm.tmMaxCharWidth,
                         tm.tmOverhang, (tm.tmPitchAndFamily & TMPF_TRUETYPE) != 0, digits.cx / 10 - 2, widest.cx };
}

FontMeasures MeasureOn(HWND hWnd, CGraphPrv* p)
{
    HDC hDC = ::GetDC(hWnd);
    FontMeasures m = MeasureFont(hDC, (HFONT)p->m_font.m_hObject);
    ::ReleaseDC(hWnd, hDC);
    return m;
}

// The plot rectangle the margin rules give inside rectGraph for a number
// width N, with or without a right margin (which leaves out the 3 of the
// left one on the first layout).
CRect ExpectedPlot(const CRect& rectGraph, const FontMeasures& m, int N, bool bRightMargin = false, bool bFirst = false)
{
    return CRect(rectGraph.left + N + m.Title() + 3, rectGraph.top + (3 * m.L) / 2,
                 bRightMargin ? rectGraph.right - N - m.Title() - (bFirst ? 0 : 3) : rectGraph.right - N / 2,
                 rectGraph.bottom - (5 * m.L) / 2 - 1);
}

// The plot rectangle, and the scroll rectangle inside its frame.
void ExpectPlot(CGraphPrv* p, const CRect& expected)
{
    EXPECT_EQ(expected, p->m_rectPlot);
    EXPECT_EQ(CRect(p->m_rectPlot.left + 1, p->m_rectPlot.top + 1, p->m_rectPlot.right, p->m_rectPlot.bottom),
              p->m_rectScroll);
}

CRect WindowInParent(CGraphPrv* p)
{
    CRect r;
    ::GetWindowRect(p->m_hWnd, &r);
    ::MapWindowPoints(NULL, ::GetParent(p->m_hWnd), (LPPOINT)&r, 2);
    return r;
}

// A derived graph that opens the measuring helper to the test.
class CLayoutProbe : public CGraphPrv
{
public:
    using CGraphPrv::GetMaxLenString;
};

// A printer for the length of a test: Wine's PostScript driver with a small
// description file of our own, added and removed through the spooler, which
// is loaded at run time.
class TemporaryPrinter
{
public:
    TemporaryPrinter() : m_hSpool(::LoadLibraryA("winspool.drv")), m_hPrinter(NULL), m_bDriver(FALSE)
    {
        m_szPpd[0] = '\0';
        auto pfnDir = (BOOL(WINAPI*)(LPSTR, LPSTR, DWORD, LPBYTE, DWORD, LPDWORD))Proc("GetPrinterDriverDirectoryA");
        auto pfnAddDriver = (BOOL(WINAPI*)(LPSTR, DWORD, LPBYTE))Proc("AddPrinterDriverA");
        auto pfnAddPrinter = (HANDLE(WINAPI*)(LPSTR, DWORD, LPBYTE))Proc("AddPrinterA");
        char szDir[MAX_PATH];
        DWORD cb = 0;
        if (!pfnDir || !pfnAddDriver || !pfnAddPrinter || !pfnDir(NULL, NULL, 1, (LPBYTE)szDir, sizeof(szDir), &cb))
            return;
        ::CreateDirectoryA(szDir, NULL);
        lstrcatA(szDir, "\\3");
        ::CreateDirectoryA(szDir, NULL);
        wsprintfA(m_szPpd, "%s\\zpxaxes.ppd", szDir);
        static const char szPpd[] =
            "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*LanguageVersion: English\n"
            "*LanguageEncoding: ISOLatin1\n*ModelName: \"ZPX Axes Test\"\n*NickName: \"ZPX Axes Test\"\n"
            "*ShortNickName: \"ZPX Axes Test\"\n*LanguageLevel: \"2\"\n*ColorDevice: False\n"
            "*DefaultColorSpace: Gray\n*DefaultResolution: 300dpi\n*OpenUI *PageSize: PickOne\n"
            "*DefaultPageSize: A4\n*PageSize A4/A4: \"<</PageSize[595 842]>>setpagedevice\"\n"
            "*CloseUI: *PageSize\n*DefaultImageableArea: A4\n*ImageableArea A4/A4: \"18 36 577 806\"\n"
            "*DefaultPaperDimension: A4\n*PaperDimension A4/A4: \"595 842\"\n"
            "*DefaultFont: Courier\n*Font Courier: Standard \"(001.000)\" Standard ROM\n";
        HANDLE hFile = ::CreateFileA(m_szPpd, GENERIC_WRITE, 0, NULL, CREATE_ALWAYS, 0, NULL);
        if (hFile == INVALID_HANDLE_VALUE)
            return;
        DWORD dwWritten = 0;
        ::WriteFile(hFile, szPpd, sizeof(szPpd) - 1, &dwWritten, NULL);
        ::CloseHandle(hFile);

        DRIVER_INFO_3A di;
        memset(&di, 0, sizeof(di));
        di.cVersion = 3;
        di.pName = (LPSTR)s_pszDriver;
        di.pDriverPath = di.pConfigFile = (LPSTR)"wineps.drv";
        di.pDataFile = m_szPpd;
        m_bDriver = pfnAddDriver(NULL, 3, (LPBYTE)&di);
        PRINTER_INFO_2A pi;
        memset(&pi, 0, sizeof(pi));
        pi.pPrinterName = (LPSTR)s_pszPrinter;
        pi.pPortName = (LPSTR)"FILE:";
        pi.pDriverName = (LPSTR)s_pszDriver;
        pi.pPrintProcessor = (LPSTR)"WinPrint";
        pi.pDatatype = (LPSTR)"RAW";
        m_hPrinter = pfnAddPrinter(NULL, 2, (LPBYTE)&pi);
        if (m_hPrinter != NULL)
            m_dc.CreateDC("WINSPOOL", s_pszPrinter, NULL, NULL);
    }
    ~TemporaryPrinter()
    {
        m_dc.DeleteDC();
        auto pfnDelete = (BOOL(WINAPI*)(HANDLE))Proc("DeletePrinter");
        auto pfnClose = (BOOL(WINAPI*)(HANDLE))Proc("ClosePrinter");
        auto pfnDeleteDriver = (BOOL(WINAPI*)(LPSTR, LPSTR, LPSTR))Proc("DeletePrinterDriverA");
        if (m_hPrinter != NULL && pfnDelete && pfnClose) {
            pfnDelete(m_hPrinter);
            pfnClose(m_hPrinter);
        }
        if (m_bDriver && pfnDeleteDriver)
            pfnDeleteDriver(NULL, NULL, (LPSTR)s_pszDriver);
        if (m_szPpd[0] != '\0')
            ::DeleteFileA(m_szPpd);
        if (m_hSpool != NULL)
            ::FreeLibrary(m_hSpool);
    }

    CDC m_dc;

private:
    void* Proc(const char* pszName) { return m_hSpool ? (void*)::GetProcAddress(m_hSpool, pszName) : NULL; }

    static constexpr const char* s_pszDriver = "ZPX Axes Test Driver";
    static constexpr const char* s_pszPrinter = "ZPX Axes Test Printer";
    HMODULE m_hSpool;
    HANDLE m_hPrinter;
    BOOL m_bDriver;
    char m_szPpd[MAX_PATH];
};

} // namespace

TEST(Layout, MeasuringHelpers)
{
    TestHost host;
    CLayoutProbe probe;
    // The widest number: -10000 in the format, by the runtime's sprintf.
    EXPECT_EQ(Fmt("%.3E", -10000.0), (LPCSTR)probe.GetMaxLenString());
    probe.m_strMaxLenFormat = "%.1f";
    EXPECT_STREQ("-10000.0", (LPCSTR)probe.GetMaxLenString());
    probe.m_strMaxLenFormat = "%s";   // not a format of one number: nothing to measure
    EXPECT_STREQ("", (LPCSTR)probe.GetMaxLenString());

}

TEST(Layout, FirstLayoutWithAndWithoutWindow)
{
    // The first layout takes 14 average characters for a number.
    for (DWORD dwStyle : { (DWORD)0, (DWORD)GS_RIGHTAXIS }) {
        GraphInHost g(dwStyle);
        const FontMeasures m = MeasureOn(g.Prv()->m_hWnd, g.Prv());
        EXPECT_EQ(CRect(0, 0, 400, 300), g.Prv()->m_rectGraph);
        ExpectPlot(g.Prv(), ExpectedPlot(CRect(0, 0, 400, 300), m, 14 * m.A, dwStyle != 0, true));
    }
    // Without a window the graph rectangle stays as given, and ReSizeGraph
    // has nothing to work on.
    const CRect rect(30, 40, 530, 440);
    GraphInHost g(GS_NOWINDOW, rect);
    ASSERT_EQ(GS_NOWINDOW, g.m_nCreated);
    EXPECT_EQ(rect, g.Prv()->m_rectGraph);
    const FontMeasures m = MeasureOn(g.m_host.Hwnd(), g.Prv());
    ExpectPlot(g.Prv(), ExpectedPlot(rect, m, 14 * m.A, false, true));
    CRect rectNew(0, 0, 100, 100);
    EXPECT_EQ(0, g.m_graph.ReSizeGraph(&rectNew));
    EXPECT_EQ(rect, g.Prv()->m_rectGraph);
}

TEST(Layout, ReSizeGraph)
{
    GraphInHost g;
    CGraphPrv* p = g.Prv();
    const FontMeasures m = MeasureOn(p->m_hWnd, p);
    ASSERT_TRUE(m.T);
    p->m_bPointsStale = FALSE;
    CRect rect(10, 20, 410, 320);
    ASSERT_EQ(1, g.m_graph.ReSizeGraph(&rect));
    EXPECT_EQ(rect, WindowInParent(p));
    EXPECT_EQ(CRect(0, 0, 400, 300), p->m_rectGraph);
    ExpectPlot(p, ExpectedPlot(p->m_rectGraph, m, m.S));
    EXPECT_TRUE(p->m_bPointsStale);

    // With the right-axis bit the right margin matches the left one.
    GraphInHost gr(GS_RIGHTAXIS);
    ASSERT_EQ(1, gr.m_graph.ReSizeGraph(&rect));
    ExpectPlot(gr.Prv(), ExpectedPlot(p->m_rectGraph, m, m.S, true));
}

TEST(Layout, ReSizeGraphTooLowAndTooNarrow)
{
    GraphInHost g;
    CGraphPrv* p = g.Prv();
    const FontMeasures m = MeasureOn(p->m_hWnd, p);
    const int nMarginsHigh = (3 * m.L) / 2 + (5 * m.L) / 2 + 1;
    const int nLeft = m.S + m.Title() + 3;

    // Exactly three lines of plot keep the margins; one pixel less and the
    // plot takes the whole height, the width unaffected.
    CRect rect(0, 0, 400, nMarginsHigh + 3 * m.L);
    g.m_graph.ReSizeGraph(&rect);
    ExpectPlot(p, CRect(nLeft, (3 * m.L) / 2, 400 - m.S / 2, (3 * m.L) / 2 + 3 * m.L));
    rect.bottom -= 1;
    g.m_graph.ReSizeGraph(&rect);
    ExpectPlot(p, CRect(nLeft, 0, 400 - m.S / 2, rect.Height() - 1));

    // Narrow: the threshold is 3 (D + O) with D already holding O.
    const int nThreshold = 3 * ((m.D + m.O) + m.O);
    rect.SetRect(0, 0, nLeft + m.S / 2 + nThreshold, 300);
    g.m_graph.ReSizeGraph(&rect);
    ExpectPlot(p, ExpectedPlot(rect, m, m.S));
    EXPECT_EQ(nThreshold, p->m_rectPlot.Width());
    rect.right -= 1;
    g.m_graph.ReSizeGraph(&rect);
    ExpectPlot(p, CRect(0, (3 * m.L) / 2, rect.Width() - 1, 300 - (5 * m.L) / 2 - 1));
}

TEST(Layout, SizeGraphOnMemoryContext)
{
    GraphInHost g;
    CGraphPrv* p = g.Prv();
    Dib mem(640, 480);
    const FontMeasures m = MeasureFont(mem.DC()->m_hDC, (HFONT)p->m_font.m_hObject);
    p->m_bPointsStale = FALSE;
    ASSERT_EQ(1, g.m_graph.SizeGraph(mem.DC(), 10, 20, 400, 300, 0));
    EXPECT_EQ(CRect(10, 20, 410, 320), p->m_rectGraph);
    ExpectPlot(p, ExpectedPlot(p->m_rectGraph, m, m.S));
    EXPECT_TRUE(p->m_bPointsStale);
    // The tic pixels follow the new plot.
    EXPECT_EQ(p->m_rectPlot.left, p->m_nXTicPixel[0]);
    EXPECT_EQ(p->m_rectPlot.right, p->m_nXTicPixel[p->m_nXTicCount]);
    EXPECT_EQ(p->m_rectPlot.top, p->m_nYTicPixel[0][p->m_nYTicCount[0]]);
    EXPECT_EQ(CRect(0, 0, 400, 300), WindowInParent(p));   // the window is not touched

    // A right margin by the sixth argument, not by the style.
    ASSERT_EQ(1, g.m_graph.SizeGraph(mem.DC(), 10, 20, 400, 300, 1));
    ExpectPlot(p, ExpectedPlot(p->m_rectGraph, m, m.S, true));
    // Too small an area gives an inverted rectangle, left as it is.
    ASSERT_EQ(1, g.m_graph.SizeGraph(mem.DC(), 0, 0, 60, 20, 0));
    ExpectPlot(p, ExpectedPlot(CRect(0, 0, 60, 20), m, m.S));
    EXPECT_LT(p->m_rectPlot.bottom, p->m_rectPlot.top);

    // A shown, docked legend comes off here too.
    CRect rectLegend;
    ::GetWindowRect(p->m_legend.m_hWnd, &rectLegend);
    p->m_legend.m_bShown = TRUE;
    p->m_legend.m_bAutoHide = FALSE;
    p->m_legend.m_nPosition = LEGEND_RIGHT;
    g.m_graph.SizeGraph(mem.DC(), 0, 0, 400, 300, 0);
    EXPECT_EQ(400 - rectLegend.Width(), p->m_rectGraph.right);
    p->m_legend.m_bShown = FALSE;

    // The number formats in force are remembered; the right one does not count.
    g.m_graph.SetXAxisNumFmt("%.2f");
    g.m_graph.SetYAxisNumFmt(0, "%.1f");
    g.m_graph.SetYAxisNumFmt(1, "%.4f");
    g.m_graph.SizeGraph(mem.DC(), 0, 0, 400, 300, 0);
    EXPECT_STREQ("%.2f", (LPCSTR)p->m_strLastXNumFmt);
    EXPECT_STREQ("%.1f", (LPCSTR)p->m_strLastYNumFmt);
}

TEST(Layout, SizeGraphAndMinimumSizeOnAPrinter)
{
    TemporaryPrinter printer;
    if (printer.m_dc.m_hDC == NULL)
        GTEST_SKIP() << "no printer context could be made here";
    ASSERT_EQ(DT_RASPRINTER, printer.m_dc.GetDeviceCaps(TECHNOLOGY));
    GraphInHost g(GS_NOWINDOW);
    CGraphPrv* p = g.Prv();
    const LONG lOldHeight = p->m_logFont.lfHeight;

    // The font the graph is to use there: its point size at the printer's
    // resolution, larger than on the screen.
    LOGFONT lf = p->m_logFont;
    lf.lfHeight = p->m_nPointSize;
    CFont font;
    ASSERT_TRUE(font.CreatePointFontIndirect(&lf, &printer.m_dc));
    const FontMeasures m = MeasureFont(printer.m_dc.m_hAttribDC, (HFONT)font.m_hObject);
    EXPECT_GT(m.L, MeasureOn(NULL, p).L);

    ASSERT_EQ(1, g.m_graph.SizeGraph(&printer.m_dc, 100, 200, 2400, 1800, 0));
    EXPECT_EQ(CRect(100, 200, 2500, 2000), p->m_rectGraph);
    ExpectPlot(p, ExpectedPlot(p->m_rectGraph, m, m.S));
    int nMinWidth = 0, nMinHeight = 0;
    ASSERT_EQ(1, g.m_graph.GetMinimumGraphSize(&printer.m_dc, &nMinWidth, &nMinHeight));
    EXPECT_EQ((m.T ? m.S + m.L : m.S + m.O + m.M) + m.S / 2 + 3 * m.D, nMinWidth);
    EXPECT_EQ(3 * m.L + ((5 * m.L) / 2 + 1) + (3 * m.L) / 2, nMinHeight);
    EXPECT_EQ(lOldHeight, p->m_logFont.lfHeight);   // the screen font stays
}

TEST(Layout, TextAndTicsOnAPrinterUseTheDeviceFont)
{
    TemporaryPrinter printer;
    if (printer.m_dc.m_hDC == NULL)
        GTEST_SKIP() << "no printer context could be made here";
    GraphInHost g(GS_NOWINDOW);
    CGraphPrv* p = g.Prv();
    g.m_graph.SetTicMarkType(0, 0, NULL);   // fixed tics: majors at the even indices
    g.m_graph.SetXAxisNumFmt("%.1f");

    // Drawn on a bitmap with the printer as the attribute context, as a
    // print preview draws: metrics and fonts are the printer's.
    Dib dib(2000, 1500);
    CDC dc;
    dc.Attach(dib.DC()->m_hDC);
    dc.SetAttribDC(printer.m_dc.m_hDC);
    ASSERT_EQ(GRAPH_OK, g.m_graph.SizeGraph(&dc, 0, 0, 2000, 1500, 0));
    ASSERT_EQ(GRAPH_OK, g.m_graph.Plot(&dc, 0));
    dc.Detach();

    // The font the graph is to use there, measured on the bitmap, where the
    // tics take their length from.
    LOGFONT lf = p->m_logFont;
    lf.lfHeight = p->m_nPointSize;
    CFont font;
    ASSERT_TRUE(font.CreatePointFontIndirect(&lf, &printer.m_dc));
    const FontMeasures mPrinter = MeasureFont(printer.m_dc.m_hAttribDC, (HFONT)font.m_hObject);
    const FontMeasures mScreen = MeasureOn(NULL, p);
    TEXTMETRICA tm;
    {
        CSelectGuard select(dib.DC(), &font);
        ::GetTextMetricsA(dib.DC()->m_hDC, &tm);
    }
    ASSERT_GT(tm.tmHeight / 2, mScreen.L);

    // A major tic on the bottom edge reaches tmHeight / 2 into the plot, a
    // minor one tmHeight / 4.
    const CRect r = p->m_rectPlot;
    const COLORREF crInk = dib.At(r.left, r.bottom);   // the frame's colour
    for (int i : { 2, 3 }) {
        const int nLength = i % 2 == 0 ? tm.tmHeight / 2 : tm.tmHeight / 4;
        const int x = p->m_nXTicPixel[i];
        EXPECT_EQ(crInk, dib.At(x, r.bottom - nLength + 1)) << i;
        EXPECT_NE(crInk, dib.At(x, r.bottom - nLength)) << i;
    }
    // The number under the left end stands in a line of the printer font,
    // and its ink is taller than a whole line of the screen font.
    const CRect& rc = p->m_rectLimit[LIMIT_XMIN];
    EXPECT_EQ(mPrinter.L, rc.Height());
    int nInkRows = 0;
    for (int y = rc.top; y < rc.bottom; y++)
        nInkRows += dib.Count(rc.left, y, rc.right, y + 1, crInk) > 0;
    EXPECT_GT(nInkRows, mScreen.L);
}

TEST(Layout, SetLogFontLaysTheGraphOutAgain)
{
    // With a window, over the window's rectangle; without one, over the area
    // the graph has. Both with the measures of the new font on the screen.
    GraphInHost g;
    LOGFONT lf = g.Prv()->m_logFont;
    ASSERT_EQ(GRAPH_OK, g.m_graph.SetLogFont(&lf, 160, 0));
    const FontMeasures m = MeasureOn(g.Prv()->m_hWnd, g.Prv());
    EXPECT_EQ(CRect(0, 0, 400, 300), g.Prv()->m_rectGraph);
    ExpectPlot(g.Prv(), ExpectedPlot(g.Prv()->m_rectGraph, m, m.S));

    const CRect rect(30, 40, 530, 440);
    GraphInHost gw(GS_NOWINDOW, rect);
    const int nOldLine = MeasureOn(NULL, gw.Prv()).L;
    ASSERT_EQ(GRAPH_OK, gw.m_graph.SetLogFont(&lf, 160, 0));
    const FontMeasures mw = MeasureOn(NULL, gw.Prv());
    EXPECT_GT(mw.L, nOldLine);   // a larger font than before
    EXPECT_EQ(rect, gw.Prv()->m_rectGraph);
    ExpectPlot(gw.Prv(), ExpectedPlot(rect, mw, mw.S));
}

TEST(Layout, GetMinimumGraphSize)
{
    GraphInHost g;
    CGraphPrv* p = g.Prv();
    Dib mem(100, 100);
    const FontMeasures m = MeasureFont(mem.DC()->m_hDC, (HFONT)p->m_font.m_hObject);
    const CRect rectPlot = p->m_rectPlot, rectGraph = p->m_rectGraph;
    const LOGFONT lfBefore = p->m_logFont;
    int nWidth = 0, nHeight = 0;
    ASSERT_EQ(1, g.m_graph.GetMinimumGraphSize(mem.DC(), &nWidth, &nHeight));
    const int nLeft = m.T ? m.S + m.L : m.S + m.O + m.M;
    EXPECT_EQ(nLeft + m.S / 2 + 3 * m.D, nWidth);
    EXPECT_EQ(3 * m.L + ((5 * m.L) / 2 + 1) + (3 * m.L) / 2, nHeight);
    // Nothing of the graph changes.
    EXPECT_EQ(rectPlot, p->m_rectPlot);
    EXPECT_EQ(rectGraph, p->m_rectGraph);
    EXPECT_EQ(0, memcmp(&lfBefore, &p->m_logFont, sizeof(LOGFONT)));

    // The same answer for a small window.
    CRect rectSmall(0, 0, 50, 30);
    g.m_graph.ReSizeGraph(&rectSmall);
    int nWidth2 = 0, nHeight2 = 0;
    g.m_graph.GetMinimumGraphSize(mem.DC(), &nWidth2, &nHeight2);
    EXPECT_EQ(nWidth, nWidth2);
    EXPECT_EQ(nHeight, nHeight2);
    // A displayed right axis takes the left margin on the right too.
    g.m_graph.SetYAxisLabel(1, "right");
    g.m_graph.GetMinimumGraphSize(mem.DC(), &nWidth2, &nHeight2);
    EXPECT_EQ(2 * nLeft + 3 * m.D, nWidth2);
}
