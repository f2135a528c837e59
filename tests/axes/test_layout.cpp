// Layout: the plot rectangle of a new graph, of a window after ReSizeGraph
// (with the too-low and too-narrow cases and the docked legend), of a memory
// context and of a printer context after SizeGraph, and the smallest graph.
// Every expectation comes from the metrics of the graph's font read here
// from the same kind of context.
#include "AxesTestUtil.h"

#include <string.h>

namespace {

// Metrics of the graph's own font on the graph window.
FontMeasures WindowMeasures(CGraphPrv* p)
{
    HDC hDC = ::GetDC(p->m_hWnd);
    FontMeasures m = MeasureFont(hDC, (HFONT)p->m_font.m_hObject);
    ::ReleaseDC(p->m_hWnd, hDC);
    return m;
}

// The plot rectangle the margin rules give inside rectGraph for a number
// width N, with or without a right margin.
CRect ExpectedPlot(const CRect& rectGraph, const FontMeasures& m, int N, bool bRightMargin, bool bFirst)
{
    CRect r;
    r.left = rectGraph.left + N + TitleWidth(m) + 3;
    r.right = bRightMargin ? rectGraph.right - N - TitleWidth(m) - (bFirst ? 0 : 3) : rectGraph.right - N / 2;
    r.top = rectGraph.top + (3 * m.L) / 2;
    r.bottom = rectGraph.bottom - (5 * m.L) / 2 - 1;
    return r;
}

void ExpectRect(const CRect& expected, const CRect& actual, const char* pszWhat)
{
    EXPECT_EQ(expected.left, actual.left) << pszWhat;
    EXPECT_EQ(expected.top, actual.top) << pszWhat;
    EXPECT_EQ(expected.right, actual.right) << pszWhat;
    EXPECT_EQ(expected.bottom, actual.bottom) << pszWhat;
}

void ExpectScroll(CGraphPrv* p)
{
    EXPECT_EQ(p->m_rectPlot.left + 1, p->m_rectScroll.left);
    EXPECT_EQ(p->m_rectPlot.top + 1, p->m_rectScroll.top);
    EXPECT_EQ(p->m_rectPlot.right, p->m_rectScroll.right);
    EXPECT_EQ(p->m_rectPlot.bottom, p->m_rectScroll.bottom);
}

// The window rectangle of the graph in its parent's client coordinates.
CRect WindowInParent(CGraphPrv* p)
{
    CRect r;
    ::GetWindowRect(p->m_hWnd, &r);
    ::MapWindowPoints(NULL, ::GetParent(p->m_hWnd), (LPPOINT)&r, 2);
    return r;
}

// A derived graph that opens the two measuring helpers to the test.
class CLayoutProbe : public CGraphPrv
{
public:
    using CGraphPrv::GetAveWidthOfNumericChar;
    using CGraphPrv::GetMaxLenString;
};

// A 32-bit DIB section in a memory context.
class MemoryContext
{
public:
    MemoryContext(int nWidth, int nHeight)
    {
        m_dc.CreateCompatibleDC(NULL);
        BITMAPINFO bmi;
        memset(&bmi, 0, sizeof(bmi));
        bmi.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
        bmi.bmiHeader.biWidth = nWidth;
        bmi.bmiHeader.biHeight = -nHeight;
        bmi.bmiHeader.biPlanes = 1;
        bmi.bmiHeader.biBitCount = 32;
        bmi.bmiHeader.biCompression = BI_RGB;
        void* pBits = NULL;
        m_hBitmap = ::CreateDIBSection(m_dc.m_hDC, &bmi, DIB_RGB_COLORS, &pBits, NULL, 0);
        m_hOld = ::SelectObject(m_dc.m_hDC, m_hBitmap);
    }
    ~MemoryContext()
    {
        ::SelectObject(m_dc.m_hDC, m_hOld);
        ::DeleteObject(m_hBitmap);
    }
    CDC m_dc;
private:
    HBITMAP m_hBitmap;
    HGDIOBJ m_hOld;
};

// A printer for the length of a test: Wine's PostScript driver with a small
// description file of our own, put in and taken out again through the
// spooler. The spooler is loaded at run time.
class TemporaryPrinter
{
public:
    TemporaryPrinter() : m_hSpool(NULL), m_hPrinter(NULL), m_bDriver(FALSE)
    {
        m_szPpd[0] = '\0';
        m_hSpool = ::LoadLibraryA("winspool.drv");
        if (m_hSpool == NULL)
            return;
        typedef BOOL (WINAPI *PFNDIR)(LPSTR, LPSTR, DWORD, LPBYTE, DWORD, LPDWORD);
        typedef BOOL (WINAPI *PFNADDDRV)(LPSTR, DWORD, LPBYTE);
        typedef HANDLE (WINAPI *PFNADDPRN)(LPSTR, DWORD, LPBYTE);
        typedef BOOL (WINAPI *PFNOPEN)(LPSTR, LPHANDLE, LPVOID);
        PFNDIR pfnDir = (PFNDIR)(void*)::GetProcAddress(m_hSpool, "GetPrinterDriverDirectoryA");
        PFNADDDRV pfnAddDriver = (PFNADDDRV)(void*)::GetProcAddress(m_hSpool, "AddPrinterDriverA");
        PFNADDPRN pfnAddPrinter = (PFNADDPRN)(void*)::GetProcAddress(m_hSpool, "AddPrinterA");
        PFNOPEN pfnOpen = (PFNOPEN)(void*)::GetProcAddress(m_hSpool, "OpenPrinterA");
        if (pfnDir == NULL || pfnAddDriver == NULL || pfnAddPrinter == NULL || pfnOpen == NULL)
            return;

        char szDir[MAX_PATH];
        DWORD cb = 0;
        if (!pfnDir(NULL, NULL, 1, (LPBYTE)szDir, sizeof(szDir), &cb))
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
        di.pDriverPath = (LPSTR)"wineps.drv";
        di.pDataFile = m_szPpd;
        di.pConfigFile = (LPSTR)"wineps.drv";
        m_bDriver = pfnAddDriver(NULL, 3, (LPBYTE)&di);

        PRINTER_INFO_2A pi;
        memset(&pi, 0, sizeof(pi));
        pi.pPrinterName = (LPSTR)s_pszPrinter;
        pi.pPortName = (LPSTR)"FILE:";
        pi.pDriverName = (LPSTR)s_pszDriver;
        pi.pPrintProcessor = (LPSTR)"WinPrint";
        pi.pDatatype = (LPSTR)"RAW";
        m_hPrinter = pfnAddPrinter(NULL, 2, (LPBYTE)&pi);
        if (m_hPrinter == NULL)
            pfnOpen((LPSTR)s_pszPrinter, &m_hPrinter, NULL);
        if (m_hPrinter != NULL)
            m_dc.CreateDC("WINSPOOL", s_pszPrinter, NULL, NULL);
    }

    ~TemporaryPrinter()
    {
        m_dc.DeleteDC();
        if (m_hSpool == NULL)
            return;
        typedef BOOL (WINAPI *PFNDEL)(HANDLE);
        typedef BOOL (WINAPI *PFNDELDRV)(LPSTR, LPSTR, LPSTR);
        PFNDEL pfnDelete = (PFNDEL)(void*)::GetProcAddress(m_hSpool, "DeletePrinter");
        PFNDEL pfnClose = (PFNDEL)(void*)::GetProcAddress(m_hSpool, "ClosePrinter");
        PFNDELDRV pfnDeleteDriver = (PFNDELDRV)(void*)::GetProcAddress(m_hSpool, "DeletePrinterDriverA");
        if (m_hPrinter != NULL && pfnDelete != NULL && pfnClose != NULL) {
            pfnDelete(m_hPrinter);
            pfnClose(m_hPrinter);
        }
        if (m_bDriver && pfnDeleteDriver != NULL)
            pfnDeleteDriver(NULL, NULL, (LPSTR)s_pszDriver);
        if (m_szPpd[0] != '\0')
            ::DeleteFileA(m_szPpd);
        ::FreeLibrary(m_hSpool);
    }

    BOOL IsReady() const { return m_dc.m_hDC != NULL; }
    CDC m_dc;

private:
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
    char szExpected[100];
    _snprintf(szExpected, sizeof(szExpected) - 1, "%.3E", -10000.0);
    szExpected[sizeof(szExpected) - 1] = '\0';
    EXPECT_STREQ(szExpected, (LPCSTR)probe.GetMaxLenString());
    probe.m_strMaxLenFormat = "%.1f";
    EXPECT_STREQ("-10000.0", (LPCSTR)probe.GetMaxLenString());

    // The digit width: a tenth of the ten digits, truncated, less 2. The
    // digits of most fonts are all of one width, so a scaled mapping mode
    // gives the extents (in logical units) every last digit.
    CClientDC dc(host.Wnd());
    CSaveDCGuard save(&dc);
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(7, 7);
    dc.SetViewportExt(3, 3);
    int nRemainders = 0;
    for (int nHeight = 8; nHeight <= 60; nHeight++) {
        CFont font;
        ASSERT_TRUE(font.CreateFont(-nHeight, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0,
                                    (LPCSTR)probe.m_strFaceName));
        CSelectGuard select(&dc, &font);
        SIZE size;
        ::GetTextExtentPoint32A(dc.m_hDC, "0123456789", 10, &size);
        EXPECT_EQ(size.cx / 10 - 2, probe.GetAveWidthOfNumericChar(&dc)) << nHeight;
        if (size.cx % 10 >= 5)
            nRemainders++;
    }
    EXPECT_GT(nRemainders, 0);   // widths like 68 that truncate to the lower tenth
}

TEST(Layout, FirstLayout)
{
    for (DWORD dwStyle : { (DWORD)0, (DWORD)GS_RIGHTAXIS }) {
        GraphInHost g(dwStyle, 400, 300);
        CGraphPrv* p = g.Prv();
        FontMeasures m = WindowMeasures(p);
        EXPECT_EQ(CRect(0, 0, 400, 300), p->m_rectGraph);
        // The first layout takes 14 average characters for a number, and
        // leaves the 3 out of the right margin.
        ExpectRect(ExpectedPlot(p->m_rectGraph, m, 14 * m.A, (dwStyle & GS_RIGHTAXIS) != 0, true), p->m_rectPlot,
                   "first layout");
        ExpectScroll(p);
    }

    // Without a window the graph rectangle stays as given.
    TestHost host;
    CGraph graph;
    CRect rect(30, 40, 530, 440);
    ASSERT_EQ(GS_NOWINDOW, graph.CreateGraph(host.Wnd(), NULL, rect, GS_NOWINDOW, 7, 63));
    CGraphPrv* p = graph.m_pGraphPrv;
    EXPECT_EQ(rect, p->m_rectGraph);
    HDC hDC = ::GetDC(host.Hwnd());
    FontMeasures m = MeasureFont(hDC, (HFONT)p->m_font.m_hObject);
    ::ReleaseDC(host.Hwnd(), hDC);
    ExpectRect(ExpectedPlot(rect, m, 14 * m.A, false, true), p->m_rectPlot, "no window");
    // And ReSizeGraph has nothing to work on.
    CRect rectNew(0, 0, 100, 100);
    EXPECT_EQ(0, graph.ReSizeGraph(&rectNew));
    EXPECT_EQ(rect, p->m_rectGraph);
}

TEST(Layout, ReSizeGraph)
{
    GraphInHost g(0, 400, 300);
    CGraphPrv* p = g.Prv();
    FontMeasures m = WindowMeasures(p);
    ASSERT_TRUE(m.T);

    p->m_bPointsStale = FALSE;
    CRect rect(10, 20, 410, 320);
    ASSERT_EQ(1, g.m_graph.ReSizeGraph(&rect));
    EXPECT_EQ(rect, WindowInParent(p));
    EXPECT_EQ(CRect(0, 0, 400, 300), p->m_rectGraph);
    ExpectRect(ExpectedPlot(p->m_rectGraph, m, m.S, false, false), p->m_rectPlot, "resize");
    ExpectScroll(p);
    EXPECT_TRUE(p->m_bPointsStale);
    // The tic pixels follow the new plot.
    EXPECT_EQ(p->m_rectPlot.left, p->m_nXTicPixel[0]);
    EXPECT_EQ(p->m_rectPlot.right, p->m_nXTicPixel[p->m_nXTicCount]);
    EXPECT_EQ(p->m_rectPlot.bottom, p->m_nYTicPixel[0][0]);
    EXPECT_EQ(p->m_rectPlot.top, p->m_nYTicPixel[0][p->m_nYTicCount[0]]);

    // With the right-axis bit the right margin matches the left one.
    GraphInHost gr(GS_RIGHTAXIS, 400, 300);
    ASSERT_EQ(1, gr.m_graph.ReSizeGraph(&rect));
    EXPECT_EQ(400 - m.S - m.L - 3, gr.Prv()->m_rectPlot.right);
    EXPECT_EQ(m.S + m.L + 3, gr.Prv()->m_rectPlot.left);
}

TEST(Layout, ReSizeGraphTooLowAndTooNarrow)
{
    GraphInHost g(0, 400, 300);
    CGraphPrv* p = g.Prv();
    FontMeasures m = WindowMeasures(p);
    const int nMarginsHigh = (3 * m.L) / 2 + (5 * m.L) / 2 + 1;

    // Exactly three lines of plot: the margins stay.
    CRect rect(0, 0, 400, nMarginsHigh + 3 * m.L);
    g.m_graph.ReSizeGraph(&rect);
    EXPECT_EQ((3 * m.L) / 2, p->m_rectPlot.top);
    EXPECT_EQ(3 * m.L, p->m_rectPlot.bottom - p->m_rectPlot.top);
    // One pixel less: the plot takes the whole height.
    rect.bottom -= 1;
    g.m_graph.ReSizeGraph(&rect);
    EXPECT_EQ(0, p->m_rectPlot.top);
    EXPECT_EQ(rect.Height() - 1, p->m_rectPlot.bottom);
    EXPECT_EQ(m.S + TitleWidth(m) + 3, p->m_rectPlot.left);   // the width is unaffected
    ExpectScroll(p);
    // A height of 40 with its L: the margins vanish when 40 leaves less than 3L.
    rect.SetRect(0, 0, 400, 40);
    g.m_graph.ReSizeGraph(&rect);
    if (40 - nMarginsHigh < 3 * m.L) {
        EXPECT_EQ(0, p->m_rectPlot.top);
        EXPECT_EQ(39, p->m_rectPlot.bottom);
    }

    // Narrow: the threshold is 3 (D + O) with D already holding O.
    const int nThreshold = 3 * ((m.D + m.O) + m.O);
    const int nMarginsWide = m.S + TitleWidth(m) + 3 + m.S / 2;
    rect.SetRect(0, 0, nMarginsWide + nThreshold, 300);
    g.m_graph.ReSizeGraph(&rect);
    EXPECT_EQ(nMarginsWide - m.S / 2, p->m_rectPlot.left);
    EXPECT_EQ(nThreshold, p->m_rectPlot.right - p->m_rectPlot.left);
    rect.right -= 1;
    g.m_graph.ReSizeGraph(&rect);
    EXPECT_EQ(0, p->m_rectPlot.left);
    EXPECT_EQ(rect.Width() - 1, p->m_rectPlot.right);
    EXPECT_EQ((3 * m.L) / 2, p->m_rectPlot.top);   // the height is unaffected
    ExpectScroll(p);
}

TEST(Layout, ReSizeGraphTakesOffTheDockedLegend)
{
    GraphInHost g(0, 400, 300);
    CGraphPrv* p = g.Prv();
    FontMeasures m = WindowMeasures(p);
    ASSERT_TRUE(p->m_legend.m_hWnd != NULL);
    CRect rect(0, 0, 400, 300);

    // Absent (not shown): the whole client area.
    p->m_legend.m_bShown = FALSE;
    g.m_graph.ReSizeGraph(&rect);
    EXPECT_EQ(CRect(0, 0, 400, 300), p->m_rectGraph);

    // Shown, docked: its window's width or height comes off its side.
    p->m_legend.m_bShown = TRUE;
    p->m_legend.m_bAutoHide = FALSE;
    for (int nPosition = 1; nPosition <= 4; nPosition++) {
        p->m_legend.m_nPosition = nPosition;
        CRect rectLegend;
        ::GetWindowRect(p->m_legend.m_hWnd, &rectLegend);
        ASSERT_GT(rectLegend.Width(), 0);
        ASSERT_GT(rectLegend.Height(), 0);
        CRect expected(0, 0, 400, 300);
        switch (nPosition) {
        case 1: expected.top += rectLegend.Height(); break;
        case 2: expected.bottom -= rectLegend.Height(); break;
        case 3: expected.left += rectLegend.Width(); break;
        case 4: expected.right -= rectLegend.Width(); break;
        }
        g.m_graph.ReSizeGraph(&rect);
        EXPECT_EQ(expected, p->m_rectGraph) << nPosition;
        ExpectRect(ExpectedPlot(expected, m, m.S, false, false), p->m_rectPlot, "legend");
        CRect rectReported;
        g.m_graph.GetGraphClientRect(&rectReported);
        EXPECT_EQ(expected, rectReported);
    }

    // In auto-hide the legend lies over the plot: the layout ignores it.
    p->m_legend.m_bAutoHide = TRUE;
    g.m_graph.ReSizeGraph(&rect);
    EXPECT_EQ(CRect(0, 0, 400, 300), p->m_rectGraph);
    p->m_legend.m_bShown = FALSE;
}

TEST(Layout, SizeGraphOnMemoryContext)
{
    GraphInHost g(0, 400, 300);
    CGraphPrv* p = g.Prv();
    MemoryContext mem(640, 480);
    FontMeasures m = MeasureFont(mem.m_dc.m_hDC, (HFONT)p->m_font.m_hObject);
    const CRect rectWindowPlot = p->m_rectPlot;

    p->m_bPointsStale = FALSE;
    ASSERT_EQ(1, g.m_graph.SizeGraph(&mem.m_dc, 10, 20, 400, 300, 0));
    EXPECT_EQ(CRect(10, 20, 410, 320), p->m_rectGraph);
    ExpectRect(ExpectedPlot(p->m_rectGraph, m, m.S, false, false), p->m_rectPlot, "memory");
    ExpectScroll(p);
    EXPECT_TRUE(p->m_bPointsStale);
    EXPECT_EQ(p->m_rectPlot.left, p->m_nXTicPixel[0]);
    EXPECT_EQ(p->m_rectPlot.top, p->m_nYTicPixel[0][p->m_nYTicCount[0]]);
    EXPECT_NE(rectWindowPlot, p->m_rectPlot);

    // A right margin by the sixth argument, not by the style.
    ASSERT_EQ(1, g.m_graph.SizeGraph(&mem.m_dc, 10, 20, 400, 300, 1));
    EXPECT_EQ(410 - m.S - TitleWidth(m) - 3, p->m_rectPlot.right);

    // Too small an area gives an inverted rectangle, left as it is.
    ASSERT_EQ(1, g.m_graph.SizeGraph(&mem.m_dc, 0, 0, 60, 20, 0));
    EXPECT_EQ((3 * m.L) / 2, p->m_rectPlot.top);
    EXPECT_EQ(20 - (5 * m.L) / 2 - 1, p->m_rectPlot.bottom);
    EXPECT_LT(p->m_rectPlot.bottom, p->m_rectPlot.top);

    // The window is not touched.
    EXPECT_EQ(CRect(0, 0, 400, 300), WindowInParent(p));

    // A shown, docked legend comes off here too.
    CRect rectLegend;
    ::GetWindowRect(p->m_legend.m_hWnd, &rectLegend);
    p->m_legend.m_bShown = TRUE;
    p->m_legend.m_bAutoHide = FALSE;
    p->m_legend.m_nPosition = 4;
    g.m_graph.SizeGraph(&mem.m_dc, 0, 0, 400, 300, 0);
    EXPECT_EQ(400 - rectLegend.Width(), p->m_rectGraph.right);
    p->m_legend.m_bShown = FALSE;
}

TEST(Layout, SizeGraphRemembersTheNumberFormats)
{
    GraphInHost g(GS_NOWINDOW);
    CGraphPrv* p = g.Prv();
    MemoryContext mem(100, 100);
    g.m_graph.SetXAxisNumFmt("%.2f");
    g.m_graph.SetYAxisNumFmt(0, "%.1f");
    g.m_graph.SizeGraph(&mem.m_dc, 0, 0, 400, 300, 0);
    EXPECT_STREQ("%.2f", (LPCSTR)p->m_strLastXNumFmt);
    EXPECT_STREQ("%.1f", (LPCSTR)p->m_strLastYNumFmt);
    // The right format does not count.
    g.m_graph.SetYAxisNumFmt(1, "%.4f");
    g.m_graph.SizeGraph(&mem.m_dc, 0, 0, 400, 300, 0);
    EXPECT_STREQ("%.1f", (LPCSTR)p->m_strLastYNumFmt);
    g.m_graph.SetXAxisNumFmt("%g");
    g.m_graph.SizeGraph(&mem.m_dc, 0, 0, 400, 300, 0);
    EXPECT_STREQ("%g", (LPCSTR)p->m_strLastXNumFmt);
}

TEST(Layout, SizeGraphOnPrinter)
{
    TemporaryPrinter printer;
    if (!printer.IsReady())
        GTEST_SKIP() << "no printer context could be made here";
    ASSERT_EQ(DT_RASPRINTER, printer.m_dc.GetDeviceCaps(TECHNOLOGY));

    GraphInHost g(GS_NOWINDOW);
    CGraphPrv* p = g.Prv();
    const LONG lOldHeight = p->m_logFont.lfHeight;

    // The font the graph is to use there: its point size at the printer's
    // resolution.
    LOGFONT lf = p->m_logFont;
    lf.lfHeight = p->m_nPointSize;
    CFont font;
    ASSERT_TRUE(font.CreatePointFontIndirect(&lf, &printer.m_dc));
    FontMeasures m = MeasureFont(printer.m_dc.m_hAttribDC, (HFONT)font.m_hObject);
    HDC hScreen = ::GetDC(NULL);
    FontMeasures mScreen = MeasureFont(hScreen, (HFONT)p->m_font.m_hObject);
    ::ReleaseDC(NULL, hScreen);
    EXPECT_GT(m.L, mScreen.L);   // 300 dots per inch against the screen's

    const int nWidth = 2400, nHeight = 1800;
    ASSERT_EQ(1, g.m_graph.SizeGraph(&printer.m_dc, 100, 200, nWidth, nHeight, 0));
    EXPECT_EQ(CRect(100, 200, 100 + nWidth, 200 + nHeight), p->m_rectGraph);
    ExpectRect(ExpectedPlot(p->m_rectGraph, m, m.S, false, false), p->m_rectPlot, "printer");
    ExpectScroll(p);
    EXPECT_EQ(lOldHeight, p->m_logFont.lfHeight);

    // The smallest graph on the printer, by the printer's font.
    int nMinWidth = 0, nMinHeight = 0;
    ASSERT_EQ(1, g.m_graph.GetMinimumGraphSize(&printer.m_dc, &nMinWidth, &nMinHeight));
    const int nLeft = m.T ? m.S + m.L : m.S + m.O + m.M;
    EXPECT_EQ(nLeft + m.S / 2 + 3 * m.D, nMinWidth);
    EXPECT_EQ(3 * m.L + ((5 * m.L) / 2 + 1) + (3 * m.L) / 2, nMinHeight);
    EXPECT_EQ(lOldHeight, p->m_logFont.lfHeight);
}

TEST(Layout, GetMinimumGraphSize)
{
    GraphInHost g(0, 400, 300);
    CGraphPrv* p = g.Prv();
    MemoryContext mem(100, 100);
    FontMeasures m = MeasureFont(mem.m_dc.m_hDC, (HFONT)p->m_font.m_hObject);

    const CRect rectPlot = p->m_rectPlot, rectGraph = p->m_rectGraph;
    LOGFONT lfBefore = p->m_logFont;
    int nWidth = 0, nHeight = 0;
    ASSERT_EQ(1, g.m_graph.GetMinimumGraphSize(&mem.m_dc, &nWidth, &nHeight));
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
    g.m_graph.GetMinimumGraphSize(&mem.m_dc, &nWidth2, &nHeight2);
    EXPECT_EQ(nWidth, nWidth2);
    EXPECT_EQ(nHeight, nHeight2);

    // A displayed right axis takes the left margin on the right too; the
    // style bit alone does not.
    g.m_graph.SetYAxisLabel(1, "right");
    g.m_graph.GetMinimumGraphSize(&mem.m_dc, &nWidth2, &nHeight2);
    EXPECT_EQ(2 * nLeft + 3 * m.D, nWidth2);

    // Such a height, given to ReSizeGraph, gives a plot of exactly three
    // lines, which keeps its margins.
    g.m_graph.SetYAxisLabel(1, "");
    CRect rectMin(0, 0, 400, nHeight);
    g.m_graph.ReSizeGraph(&rectMin);
    EXPECT_EQ((3 * m.L) / 2, p->m_rectPlot.top);
    EXPECT_EQ(3 * m.L, p->m_rectPlot.bottom - p->m_rectPlot.top);
}
