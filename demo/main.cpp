// graphdemo: a host program of ZPXGraph. It opens a top-level window with one
// graph child showing several series on both Y axes (one of a million
// points, one of ten million drawn per pixel column), with marks and point
// labels, reference lines, a grid and titles, shaded and hatched areas, a
// highlighted stretch, point highlights, the legend at the right and a pair
// of marker lines whose positions the host shows in its title bar.
// The user zooms with the left button, scales back with a double click,
// edits a limit by clicking it, drags the marker lines, and has the context
// menu on the right button (with the cross hair, the legend, the copy, and
// an entry of the host's own, "Reset view"). The context menu's properties
// entry opens the graph's property sheet, with a page of the host's own that
// sets the graph's title. Every notification the host hears is printed.
//
//   graphdemo.exe               the window, until the user closes it
//   graphdemo.exe --headless    drives the same window with real messages
//                               (a zoom, a double click, a limit typed into
//                               its box, the menu's scaling entry), prints
//                               the limits after each step, writes the
//                               zoomed graph as a picture file; then opens
//                               the legend, drags a marker line, locks the
//                               cross hair, writes the graph's own bitmap and
//                               a capture of the window; then opens the
//                               property sheet, gives the graph a new
//                               background, grid and X limits through its
//                               pages, writes a capture of the sheet and the
//                               graph's new look, and exits
//   --english                   looks for the English resource satellite
#include "graph/Graph.h"
#include "graph/GraphPrv.h"
#include "render/AnnotationMark.h"
#include "resources/messages.h"
#include "resources/resource.h"
#include <math.h>
#include <stdarg.h>
#include <stdio.h>
#include <string.h>
#include <string>
#include <vector>
#include "demo/Copies.h"
#include "demo/DemoPage.h"
#include "demo/demo_resource.h"
#include "demo/PictureFile.h"

namespace {

const int kGraphId = 100;          // the first graph; the two below it follow
const int kLowerHeight = 230;      // height of the two small graphs under the first
const UINT kResetViewId = 40001;   // the host's own entry of the context menu
const DWORD kDemoPageId = 501;     // the host's own page of the property sheet

// The host's variables of the two marker lines: the graph writes them.
double g_dMarker1 = 2.0, g_dMarker2 = 4.0;

// What an event code of the graph stands for, for the printout.
const char* EventName(int nCode)
{
    switch (nCode) {
    case GN_LIMITS: return " (limits changed)";
    case GN_RADAR: return " (scaled to the data)";
    case GN_ZOOM: return " (zoomed)";
    case GN_LINECOLORS: return " (line colours page applied)";
    case GN_APPEARANCE: return " (appearance page applied)";
    case GN_SETTINGS: return " (settings page applied)";
    case GN_COPY: return " (copied)";
    }
    return "";
}

// Prints what the host hears. Moves are only counted: there are many.
// After OK in the property sheet the graph names the host's page: the host
// then gives the graph the title typed on it.
class PrintingSink : public CGraphNotify
{
public:
    virtual void OnGraphMouse(UINT, UINT nMessage, UINT, CPoint pt)
    {
        if (nMessage == WM_MOUSEMOVE)
            m_nMoves++;
        else
            Print("mouse message 0x%04X at %ld,%ld (screen)", nMessage, pt.x, pt.y);
    }
    virtual void OnGraphEvent(UINT, int nCode) { Print("event %d%s", nCode, EventName(nCode)); }
    virtual void OnGraphPage(UINT, UINT nPage)
    {
        Print("property page %u (OK pressed)", nPage);
        if (nPage == kDemoPageId && m_pGraph != NULL && m_pDemoPage != NULL) {
            m_pGraph->SetGraphTitle(m_pDemoPage->m_strTitle);
            m_pGraph->Replot();
        }
    }
    virtual void OnGraphCommand(UINT, UINT wParam, long) { Print("command %u", wParam); }
    virtual void OnGraphContextMenu(UINT, CPoint pt) { Print("context menu at %ld,%ld", pt.x, pt.y); }

    int m_nMoves = 0;
    std::vector<std::string> m_heard;   // everything printed, in order
    CGraph* m_pGraph = NULL;            // the graph whose sheet carries the host's page
    CDemoPage* m_pDemoPage = NULL;

private:
    void Print(const char* pszFormat, ...)
    {
        char sz[256];
        va_list args;
        va_start(args, pszFormat);
        _vsnprintf(sz, sizeof(sz) - 1, pszFormat, args);
        va_end(args);
        sz[sizeof(sz) - 1] = '\0';
        m_heard.push_back(sz);
        printf("  heard: %s\n", sz);
        fflush(stdout);
    }
};

// The data lives as long as the graph: float series refer to these arrays.
struct DemoData
{
    std::vector<float> waveX, waveY;      // a million points of a damped wave
    std::vector<double> stepX, stepY;     // a staircase on the right axis (copied by the graph)
    std::vector<float> noiseX, noiseY;    // a noisy trace
    std::vector<float> denseX, denseY;    // ten million noisy samples
};

void MakeData(DemoData& data)
{
    const int nWave = 1000000;
    data.waveX.resize(nWave);
    data.waveY.resize(nWave);
    for (int i = 0; i < nWave; i++) {
        double t = 10.0 * i / (nWave - 1);
        data.waveX[i] = (float)t;
        data.waveY[i] = (float)(8.0 * exp(-0.15 * t) * sin(6.0 * t));
    }
    for (int i = 0; i <= 20; i++) {
        data.stepX.push_back(i * 0.5);
        data.stepY.push_back(100.0 + 40.0 * ((i / 4) % 3));
        data.stepX.push_back(i * 0.5 + 0.499);
        data.stepY.push_back(100.0 + 40.0 * ((i / 4) % 3));
    }
    unsigned int nSeed = 12345;
    for (int i = 0; i < 400; i++) {
        nSeed = nSeed * 1103515245u + 12345u;
        data.noiseX.push_back((float)(i * 10.0 / 399));
        data.noiseY.push_back((float)(-6.0 + 0.1 * i * 0.025 + ((nSeed >> 16) % 1000) / 500.0));
    }
    const int nDense = 10000000;
    data.denseX.resize(nDense);
    data.denseY.resize(nDense);
    for (int i = 0; i < nDense; i++) {
        nSeed = nSeed * 1103515245u + 12345u;
        data.denseX[i] = (float)(10.0 * i / (nDense - 1));
        data.denseY[i] = (float)(-9.6 + 0.4 * sin(0.6 * data.denseX[i]) + ((nSeed >> 12) % 10000) / 8000.0);
    }
}

// The whole data in view: what the host's own menu entry does.
void ResetView(CGraph& graph)
{
    graph.SetXAxisLimits(0.0, 10.0);
    graph.SetYAxisLimits(-10.0, 10.0, 0);
    graph.SetYAxisLimits(0.0, 250.0, 1);
}

void PrintLimits(CGraph& graph, const char* pszStep)
{
    double d[6];
    graph.GetXAxisLimits(&d[0], &d[1]);
    graph.GetYAxisLimits(&d[2], &d[3], 0);
    graph.GetYAxisLimits(&d[4], &d[5], 1);
    printf("%-34s X %.4g .. %.4g   left Y %.4g .. %.4g   right Y %.4g .. %.4g\n", pszStep, d[0], d[1], d[2], d[3],
           d[4], d[5]);
    fflush(stdout);
}

void SetUpGraph(CGraph& graph, DemoData& data)
{
    graph.SetGraphTitle("ZPXGraph demo");
    graph.SetXAxisLabel("time (s)");
    graph.SetYAxisLabel(0, "signal (V)");
    graph.SetYAxisLabel(1, "level");
    graph.SetXAxisNumFmt("%.1f");
    graph.SetYAxisNumFmt(0, "%.1f");
    graph.SetYAxisNumFmt(1, "%.0f");

    graph.AddPlotData("damped wave", PLOT_YLEFT, data.waveX.data(), data.waveY.data(),
                      (long)data.waveX.size(), RGB(0, 0, 255), PS_SOLID, 0);
    graph.AddPlotData("noise", PLOT_YLEFT, data.noiseX.data(), data.noiseY.data(),
                      (long)data.noiseX.size(), RGB(0, 150, 0), PS_DOT, 0);
    // Ten million samples, drawn per pixel column: the same picture, at
    // interactive speed.
    graph.AddPlotData("dense noise", PLOT_YLEFT, data.denseX.data(), data.denseY.data(), (long)data.denseX.size(),
                      RGB(150, 90, 0), PS_SOLID, 0);
    graph.EnableColumnReduction(TRUE);
    graph.AddPlotData("level", PLOT_YRIGHT, data.stepX.data(), data.stepY.data(),
                      (long)data.stepX.size(), RGB(200, 0, 0), PS_SOLID, 0);

    // Marks on the staircase's corners and on the noise; labels that the
    // graph remembers at the wave's first peaks.
    graph.SetPlotDataAttributes("level", RGB(200, 0, 0), PS_SOLID, 1, MARK_DIAMOND, RGB(200, 0, 0));
    graph.SetPlotDataAttributes("noise", RGB(0, 150, 0), PS_DOT, 1, MARK_PLUS, RGB(0, 110, 0));
    graph.AddPlotDataLabel("damped wave", "peak 1", 0.26, 7.7, MARK_ARROWDOWN, "first peak");
    graph.AddPlotDataLabel("damped wave", "trough 1", 0.78, -7.1, MARK_ARROWUP, "first trough");

    ResetView(graph);
    // Fixed tics with minor tics: the grid lines of both Y axes then agree.
    graph.SetTicMarkType(0, 1, NULL);
    graph.SetGridAttributes(GRID_MINOR | GRID_BOTHWAYS, RGB(128, 128, 128), PS_DOT);
    graph.AddReferenceLine("t = 5", REFLINE_VERTICAL, 5.0);
    graph.AddReferenceLine("zero", REFLINE_HORIZONTAL, 0.0);

    // The wave's first second shaded down to zero; the staircase's middle
    // hatched down to the level 100; a stretch of the noise in a pen of its
    // own; two corners of the staircase highlighted.
    graph.AddAreaData("damped wave", 1, 0, 100000, AREA_BASE_ZERO, RGB(170, 200, 255), AREA_BRUSH_SOLID);
    graph.AddAreaData("level", 2, 8, 23, AREA_BASE_HUNDRED, RGB(200, 0, 0), HS_BDIAGONAL);
    graph.AddHighlightRegion("noise", 1, 240, 300, RGB(255, 0, 255), PS_SOLID);
    graph.AddPlotDataHighlight("level", "rise", data.stepX[7], data.stepY[7], MARK_SQUARE);
    graph.AddPlotDataHighlight("level", "fall", data.stepX[23], data.stepY[23], MARK_SQUARE);
}

void ShowMarkers(HWND hFrame)
{
    char sz[160];
    _snprintf(sz, sizeof(sz) - 1, "ZPXGraph demo - markers at t = %.3f and t = %.3f", g_dMarker1, g_dMarker2);
    sz[sizeof(sz) - 1] = '\0';
    ::SetWindowTextA(hFrame, sz);
}

// The three graphs of the window: the first above, the copies under it.
struct DemoGraphs
{
    CGraph* pMain;
    CGraph* pFromArchive;
    CGraph* pFromRegistry;
};

// Where each graph stands in a client area of nWidth x nHeight.
void GraphRects(int nWidth, int nHeight, CRect& rectMain, CRect& rectLeft, CRect& rectRight)
{
    rectMain.SetRect(8, 8, nWidth - 8, nHeight - kLowerHeight - 16);
    rectLeft.SetRect(8, nHeight - kLowerHeight - 8, nWidth / 2 - 4, nHeight - 8);
    rectRight.SetRect(nWidth / 2 + 4, nHeight - kLowerHeight - 8, nWidth - 8, nHeight - 8);
}

LRESULT CALLBACK FrameProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    DemoGraphs* pGraphs = (DemoGraphs*)::GetWindowLongPtrA(hWnd, GWLP_USERDATA);
    CGraph* pGraph = pGraphs != NULL ? pGraphs->pMain : NULL;
    switch (nMsg) {
    case WM_SIZE:
        if (pGraphs != NULL) {
            CRect aRects[3];
            GraphRects(LOWORD(lParam), HIWORD(lParam), aRects[0], aRects[1], aRects[2]);
            CGraph* apGraphs[3] = { pGraphs->pMain, pGraphs->pFromArchive, pGraphs->pFromRegistry };
            for (int i = 0; i < 3; i++) {
                apGraphs[i]->ReSizeGraph(&aRects[i]);
                apGraphs[i]->Replot();
            }
        }
        return 0;
    case WM_COMMAND:
        // The host's own menu entry comes here, as the graph sends it.
        if (LOWORD(wParam) == kResetViewId && pGraph != NULL) {
            printf("  host: resetting the view\n");
            ResetView(*pGraph);
            pGraph->Replot();
            return 0;
        }
        break;
    case WM_GRAPH_MARKER1MOVED:
    case WM_GRAPH_MARKER2MOVED:
        printf("  host: marker %d moved; markers at %.3f and %.3f\n", nMsg == WM_GRAPH_MARKER1MOVED ? 1 : 2,
               g_dMarker1, g_dMarker2);
        ShowMarkers(hWnd);
        return 0;
    case WM_DESTROY:
        ::PostQuitMessage(0);
        return 0;
    }
    return ::DefWindowProcA(hWnd, nMsg, wParam, lParam);
}

HWND CreateFrame(int nWidth, int nHeight)
{
    WNDCLASSA wc;
    memset(&wc, 0, sizeof(wc));
    wc.lpfnWndProc = FrameProc;
    wc.hInstance = ::GetModuleHandleA(NULL);
    wc.hCursor = ::LoadCursorA(NULL, (LPCSTR)IDC_ARROW);
    wc.hbrBackground = (HBRUSH)(COLOR_BTNFACE + 1);
    wc.lpszClassName = "ZPXGraphDemoFrame";
    ::RegisterClassA(&wc);
    return ::CreateWindowExA(0, wc.lpszClassName,
                             "ZPXGraph demo - 10,000,000 noisy samples drawn per pixel column",
                             WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                             CW_USEDEFAULT, CW_USEDEFAULT, nWidth, nHeight, NULL, NULL, wc.hInstance, NULL);
}

// A 32-bit top-down bitmap of nWidth x nHeight pixels.
HBITMAP NewDib(int nWidth, int nHeight)
{
    BITMAPINFO bmi;
    memset(&bmi, 0, sizeof(bmi));
    bmi.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    bmi.bmiHeader.biWidth = nWidth;
    bmi.bmiHeader.biHeight = -nHeight;
    bmi.bmiHeader.biPlanes = 1;
    bmi.bmiHeader.biBitCount = 32;
    void* pBits = NULL;
    return ::CreateDIBSection(NULL, &bmi, DIB_RGB_COLORS, &pBits, NULL, 0);
}

// A 32-bit copy of nWidth x nHeight pixels of hSource from (x, y).
HBITMAP CopyToDib(HDC hSource, int x, int y, int nWidth, int nHeight)
{
    HBITMAP hDib = NewDib(nWidth, nHeight);
    HDC hDC = ::CreateCompatibleDC(NULL);
    HGDIOBJ hOld = ::SelectObject(hDC, hDib);
    ::BitBlt(hDC, 0, 0, nWidth, nHeight, hSource, x, y, SRCCOPY);
    ::SelectObject(hDC, hOld);
    ::DeleteDC(hDC);
    return hDib;
}

// Writes a 32-bit bitmap to a picture file named pszName, and says where.
int WriteNamedPicture(HBITMAP hDib, const char* pszName, const char* pszWhat)
{
    char szPath[MAX_PATH];
    ::GetFullPathNameA(pszName, MAX_PATH, szPath, NULL);
    if (!WritePictureFile(hDib, szPath, sizeof(szPath))) {
        printf("graphdemo: could not write %s\n", pszName);
        return 1;
    }
    printf("graphdemo: %s written to %s\n", pszWhat, szPath);
    return 0;
}

// Writes the graph's own bitmap (GetBitmap) to a picture file: 0 when
// written, 1 when the file failed, -1 without a bitmap.
int WriteGraphBitmap(CGraph& graph, const char* pszName, const char* pszWhat)
{
    HBITMAP hBitmap = graph.GetBitmap();
    if (hBitmap == NULL) {
        printf("graphdemo: GetBitmap gave no bitmap\n");
        return -1;
    }
    BITMAP bm;
    ::GetObjectA(hBitmap, sizeof(bm), &bm);
    HDC hMemory = ::CreateCompatibleDC(NULL);
    HGDIOBJ hOld = ::SelectObject(hMemory, hBitmap);
    HBITMAP hDib = CopyToDib(hMemory, 0, 0, bm.bmWidth, bm.bmHeight);
    ::SelectObject(hMemory, hOld);
    ::DeleteDC(hMemory);
    ::DeleteObject(hBitmap);
    const int nFailed = WriteNamedPicture(hDib, pszName, pszWhat);
    ::DeleteObject(hDib);
    return nFailed;
}

// Writes what the graph shows, laid out as in its window, to a picture file.
int WriteGraphPicture(CGraph& graph, int nWidth, int nHeight)
{
    HBITMAP hBitmap = NewDib(nWidth, nHeight);
    CDC dc;
    dc.CreateCompatibleDC(NULL);
    HGDIOBJ hOld = dc.SelectObject(hBitmap);
    dc.FillSolidRect(0, 0, nWidth, nHeight, ::GetSysColor(COLOR_WINDOW));
    graph.SizeGraph(&dc, 0, 0, nWidth, nHeight, TRUE);
    int nResult = graph.Plot(&dc, FALSE);
    dc.SelectObject(hOld);
    printf("graphdemo: Plot returned %d\n", nResult);
    const int nWritten = WriteNamedPicture(hBitmap, "graphdemo.png", "the zoomed graph");
    ::DeleteObject(hBitmap);
    return nWritten;
}

// Chooses an entry of the popup menu that is up, by its mnemonic, from a
// thread timer inside the menu's loop.
char g_cMenuChoice = 0;

void CALLBACK ChooseFromMenu(HWND, UINT, UINT_PTR nTimer, DWORD)
{
    HWND hPopup = ::FindWindowA("#32768", NULL);
    if (hPopup == NULL || !::IsWindowVisible(hPopup))
        return;
    ::KillTimer(NULL, nTimer);
    ::PostMessageA(hPopup, WM_CHAR, (WPARAM)g_cMenuChoice, 0);
}

void Pump()
{
    MSG msg;
    while (::PeekMessageA(&msg, NULL, 0, 0, PM_REMOVE)) {
        ::TranslateMessage(&msg);
        ::DispatchMessageA(&msg);
    }
}

// Dispatches messages for nMs milliseconds: the legend's timers run.
void PumpFor(DWORD nMs)
{
    const DWORD t0 = ::GetTickCount();
    while (::GetTickCount() - t0 < nMs) {
        Pump();
        ::Sleep(5);
    }
}

// The first graph's labels: one dropped through the context menu (or, in
// the window demo, by the host), one in a font and colour of its own. The
// new label's editor has the focus; it takes the text (as a paste would:
// typed text stays within the editor's present size) and Escape ends the
// editing, which sizes the label to its text.
void TypeIntoLabel(const char* pszText)
{
    HWND hEdit = ::GetFocus();
    ::SetWindowTextA(hEdit, pszText);
    ::SendMessageA(hEdit, WM_CHAR, VK_ESCAPE, 1);
}

void AddDemoLabels(CGraph& graph, bool bThroughMenu)
{
    HWND hGraph = graph.m_pGraphPrv->m_hWnd;
    auto screenAt = [&graph, hGraph](double x, double y) {
        CPoint pt(graph.DataToPixelX(x), graph.DataToPixelY(y, 0));
        ::ClientToScreen(hGraph, &pt);
        return pt;
    };
    const CPoint ptFirst = screenAt(1.6, 9.0);
    if (bThroughMenu) {
        printf("right click in the plot: the context menu, its label entry chosen\n");
        g_cMenuChoice = 'l';
        ::SetCursorPos(ptFirst.x, ptFirst.y);
        ::SetTimer(NULL, 0, 50, ChooseFromMenu);
        CPoint ptClient = ptFirst;
        ::ScreenToClient(hGraph, &ptClient);
        ::SendMessageA(hGraph, WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(ptClient.x, ptClient.y));
        ::SendMessageA(hGraph, WM_RBUTTONUP, 0, MAKELPARAM(ptClient.x, ptClient.y));
        Pump();
    } else {
        graph.AddFloatingLabel(ptFirst);
        Pump();
    }
    TypeIntoLabel("damped, 6 rad/s");

    // The second label: larger, italic, dark red, as the label's own font
    // and colour dialogs would set it.
    static LOGFONT s_lf;   // lives until the posted message is handled
    graph.AddFloatingLabel(screenAt(6.2, 8.2));
    Pump();
    const WORD wId = (WORD)::GetDlgCtrlID(::GetFocus());
    TypeIntoLabel("level steps");
    memset(&s_lf, 0, sizeof(s_lf));
    lstrcpyA(s_lf.lfFaceName, "Arial");
    s_lf.lfWeight = FW_BOLD;
    s_lf.lfItalic = TRUE;
    ::PostMessageA(hGraph, WM_GRAPH_SETLABELCOLOR, wId, RGB(160, 0, 0));
    ::PostMessageA(hGraph, WM_GRAPH_SETLABELPOINTSIZE, wId, 140);
    ::PostMessageA(hGraph, WM_GRAPH_SETLABELFONT, wId, (LPARAM)&s_lf);
    Pump();
    graph.Replot();
    ::UpdateWindow(hGraph);
}

// The legend, the marker lines and the cross hair, driven as a user would;
// then the graph's own bitmap (with the locked cross hair) and a capture of
// the host window (the legend, marker lines and point highlights stand on
// the window only).
int DriveTools(CGraph& graph, HWND hFrame)
{
    HWND hGraph = graph.m_pGraphPrv->m_hWnd;
    auto send = [hGraph](UINT nMessage, CPoint pt, UINT nFlags) {
        ::SendMessageA(hGraph, nMessage, nFlags, MAKELPARAM(pt.x, pt.y));
    };
    auto park = [](HWND hWnd, CPoint pt) {
        ::ClientToScreen(hWnd, &pt);
        ::SetCursorPos(pt.x, pt.y);
        return pt;
    };
    RECT rcGraph;
    ::GetClientRect(hGraph, &rcGraph);
    // The picture file laid the graph out for a context: the window's layout again.
    CRect rectWindow(8, 8, 8 + rcGraph.right, 8 + rcGraph.bottom);
    graph.ReSizeGraph(&rectWindow);
    ResetView(graph);
    graph.Replot();
    ::UpdateWindow(hGraph);
    CRect r;
    graph.GetPlotRect(r);

    printf("the pointer rests on the legend's sliver at the right\n");
    HWND hLegend = ::FindWindowExA(hGraph, NULL, "ListBox", "Legend");
    auto restOnLegend = [hLegend]() {
        CRect rect;
        ::GetWindowRect(hLegend, &rect);
        const CPoint pt = rect.CenterPoint();
        ::SetCursorPos(pt.x, pt.y);
        ::SendMessageA(hLegend, WM_NCHITTEST, 0, MAKELPARAM(pt.x, pt.y));
        PumpFor(400);
    };
    restOnLegend();
    printf("legend: %s\n", graph.m_pGraphPrv->m_legend.m_bHidden ? "still collapsed" : "open");

    printf("drag marker line 1 from t = %.3f to t = 3\n", g_dMarker1);
    const CPoint a(graph.DataToPixelX(g_dMarker1), r.CenterPoint().y), b(graph.DataToPixelX(3.0), a.y);
    park(hGraph, a);
    send(WM_MOUSEMOVE, a, 0);
    send(WM_LBUTTONDOWN, a, MK_LBUTTON);
    send(WM_MOUSEMOVE, CPoint((a.x + b.x) / 2, a.y), MK_LBUTTON);
    send(WM_MOUSEMOVE, b, MK_LBUTTON);
    send(WM_LBUTTONUP, b, 0);
    Pump();

    printf("the cross hair at t = 7, locked\n");
    park(hGraph, CPoint(graph.DataToPixelX(7.0), graph.DataToPixelY(5.0, 0)));
    graph.DisplayCrossHair(TRUE);
    graph.LockCrossHair(TRUE);
    Pump();

    int nFailed = WriteGraphBitmap(graph, "graphdemo-bitmap.png", "the graph's bitmap (with the cross hair)");
    if (nFailed < 0)
        return 1;

    // The bitmap's plot inverted the point highlights on the window, as any
    // plot into memory does: a paint puts them back. The legend slid back
    // meanwhile; it is opened again for the capture.
    graph.Replot();
    ::UpdateWindow(hGraph);
    restOnLegend();
    ::UpdateWindow(hFrame);
    RECT rcFrame;
    ::GetClientRect(hFrame, &rcFrame);
    HDC hFrameDC = ::GetDC(hFrame);
    HBITMAP hDib = CopyToDib(hFrameDC, 0, 0, rcFrame.right, rcFrame.bottom);
    ::ReleaseDC(hFrame, hFrameDC);
    nFailed += WriteNamedPicture(hDib, "graphdemo-window.png", "the window (legend, marker lines, highlights)");
    ::DeleteObject(hDib);
    return nFailed;
}

// Drives the graph window as a user would, with real messages, and prints
// the limits after each step.
int DriveHeadless(CGraph& graph, PrintingSink& sink)
{
    HWND hGraph = graph.m_pGraphPrv->m_hWnd;
    auto send = [hGraph](UINT nMessage, CPoint pt, UINT nFlags) {
        ::SendMessageA(hGraph, nMessage, nFlags, MAKELPARAM(pt.x, pt.y));
    };
    auto zoom = [&](CPoint a, CPoint b) {
        // The real pointer waits on the press, as a hand's would.
        CPoint ptScreen = a;
        ::ClientToScreen(hGraph, &ptScreen);
        ::SetCursorPos(ptScreen.x, ptScreen.y);
        send(WM_LBUTTONDOWN, a, MK_LBUTTON);
        send(WM_MOUSEMOVE, CPoint((a.x + b.x) / 2, (a.y + b.y) / 2), MK_LBUTTON);
        send(WM_MOUSEMOVE, b, MK_LBUTTON);
        send(WM_LBUTTONUP, b, 0);
        Pump();
    };
    CRect r;
    graph.GetPlotRect(r);
    auto at = [&r](double fx, double fy) {
        return CPoint(r.left + (int)(fx * r.Width()), r.top + (int)(fy * r.Height()));
    };
    PrintLimits(graph, "start:");

    printf("zoom: a box from 5 %% to 40 %% across, 20 %% to 80 %% down\n");
    zoom(at(0.05, 0.2), at(0.4, 0.8));
    PrintLimits(graph, "after the zoom:");

    printf("double click in the plot: the whole data\n");
    send(WM_LBUTTONDBLCLK, r.CenterPoint(), MK_LBUTTON);
    Pump();
    PrintLimits(graph, "after the double click:");

    printf("click on the X maximum, type 6 and Return\n");
    graph.Replot();
    ::UpdateWindow(hGraph);
    const CPoint ptLimit = graph.m_pGraphPrv->m_rectLimit[LIMIT_XMAX].CenterPoint();
    send(WM_LBUTTONDOWN, ptLimit, MK_LBUTTON);
    send(WM_LBUTTONUP, ptLimit, 0);
    HWND hEdit = ::GetFocus();
    ::SendMessageA(hEdit, WM_CHAR, '6', 1);
    ::SendMessageA(hEdit, WM_CHAR, VK_RETURN, 1);
    Pump();
    PrintLimits(graph, "after the limit was typed:");
    // The editing ends with the next press, which does nothing else.
    send(WM_LBUTTONDOWN, r.CenterPoint(), MK_LBUTTON);
    send(WM_LBUTTONUP, r.CenterPoint(), 0);

    // A right click opens the menu; the entry of cChoice is taken from it.
    auto chooseFromMenu = [&](char cChoice) {
        g_cMenuChoice = cChoice;
        ::SetTimer(NULL, 0, 50, ChooseFromMenu);
        send(WM_RBUTTONDOWN, r.CenterPoint(), MK_RBUTTON);
        send(WM_RBUTTONUP, r.CenterPoint(), 0);
        Pump();
    };
    printf("right click: the context menu, its scaling entry chosen\n");
    chooseFromMenu('a');
    PrintLimits(graph, "after the menu's scaling:");

    printf("the host's own entry, Reset view\n");
    chooseFromMenu('v');
    PrintLimits(graph, "after Reset view:");

    printf("zoom on the first peaks, with their marks and labels\n");
    zoom(at(0.01, 0.02), at(0.13, 0.97));
    PrintLimits(graph, "zoomed:");
    printf("(%d moves heard)\n", sink.m_nMoves);

    RECT rcGraph;
    ::GetClientRect(hGraph, &rcGraph);
    return WriteGraphPicture(graph, rcGraph.right, rcGraph.bottom);
}

// The graph's property sheet, driven from a thread timer inside its modal
// loop: the pages are the four of the graph and the host's own.
const int kSheetLimits = 1, kSheetAppearance = 2, kSheetHostPage = 4;
const COLORREF kNewBackground = RGB(255, 246, 214);
const COLORREF kNewGrid = RGB(0, 140, 170);
const double kNewXMin = 2.0, kNewXMax = 8.0;
const DWORD kSheetPatienceMs = 10000;   // then the sheet is cancelled

// The visible top-level window of this thread with a tab control: the sheet.
HWND FindSheet()
{
    HWND hSheet = NULL;
    ::EnumThreadWindows(::GetCurrentThreadId(), [](HWND hWnd, LPARAM lParam) CALLBACK -> BOOL {
        if (::IsWindowVisible(hWnd) && ::FindWindowExA(hWnd, NULL, "SysTabControl32", NULL) != NULL) {
            *(HWND*)lParam = hWnd;
            return FALSE;
        }
        return TRUE;
    }, (LPARAM)&hSheet);
    return hSheet;
}

// A message box the sheet opened (a value it refused), or null.
HWND FindMessageBox(HWND hSheet)
{
    struct Search { HWND hSheet, hBox; } search = { hSheet, NULL };
    ::EnumThreadWindows(::GetCurrentThreadId(), [](HWND hWnd, LPARAM lParam) CALLBACK -> BOOL {
        Search* pSearch = (Search*)lParam;
        char szClass[16];
        ::GetClassNameA(hWnd, szClass, sizeof(szClass));
        if (hWnd != pSearch->hSheet && ::IsWindowVisible(hWnd) && strcmp(szClass, "#32770") == 0 &&
            ::GetWindow(hWnd, GW_OWNER) == pSearch->hSheet) {
            pSearch->hBox = hWnd;
            return FALSE;
        }
        return TRUE;
    }, (LPARAM)&search);
    return search.hBox;
}

struct SheetRun
{
    int nStep;
    DWORD dwStart;
    bool bGaveUp;
    int nPictureFailed;
};
SheetRun g_sheetRun;

HWND ShowSheetPage(HWND hSheet, int nPage)
{
    ::SendMessageA(hSheet, PSM_SETCURSEL, (WPARAM)nPage, 0);
    return (HWND)::SendMessageA(hSheet, PSM_GETCURRENTPAGEHWND, 0, 0);
}

// Chooses entry nIndex of a drop-down list as the user would.
void ChooseEntry(HWND hPage, int nID, int nIndex)
{
    HWND hCombo = ::GetDlgItem(hPage, nID);
    ::SendMessageA(hCombo, CB_SETCURSEL, (WPARAM)nIndex, 0);
    ::SendMessageA(hPage, WM_COMMAND, MAKEWPARAM(nID, CBN_SELCHANGE), (LPARAM)hCombo);
}

// Writes what the sheet's window shows to a picture file.
int WriteSheetPicture(HWND hSheet)
{
    RECT rc;
    ::GetWindowRect(hSheet, &rc);
    HDC hDC = ::GetWindowDC(hSheet);
    HBITMAP hDib = CopyToDib(hDC, 0, 0, rc.right - rc.left, rc.bottom - rc.top);
    ::ReleaseDC(hSheet, hDC);
    const int nFailed = WriteNamedPicture(hDib, "graphdemo-sheet.png", "the property sheet");
    ::DeleteObject(hDib);
    return nFailed;
}

// One step per tick; a step runs only while the sheet is up. After OK the
// sheet is gone and the timer idles until the host kills it.
void CALLBACK DriveSheetStep(HWND, UINT, UINT_PTR, DWORD)
{
    HWND hSheet = FindSheet();
    if (hSheet == NULL)
        return;
    if (::GetTickCount() - g_sheetRun.dwStart > kSheetPatienceMs) {
        // Something held the sheet: close what it shows and cancel it.
        if (!g_sheetRun.bGaveUp)
            printf("graphdemo: the property sheet did not close; cancelling it\n");
        g_sheetRun.bGaveUp = true;
        HWND hBox = FindMessageBox(hSheet);
        if (hBox != NULL)
            ::EndDialog(hBox, IDCANCEL);
        else
            ::PostMessageA(hSheet, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
        return;
    }
    HWND hPage;
    switch (g_sheetRun.nStep) {
    case 0:
        printf("appearance page: the background in a new colour, the grid in a new colour, dotted\n");
        hPage = ShowSheetPage(hSheet, kSheetAppearance);
        ChooseEntry(hPage, IDC_ITEM, 1);
        ::SendMessageA(hPage, WM_PICKER_COLOR, IDC_ITEM_COLOR, kNewBackground);
        ChooseEntry(hPage, IDC_ITEM, 2);
        ::SendMessageA(hPage, WM_PICKER_COLOR, IDC_ITEM_COLOR, kNewGrid);
        ::SendMessageA(hPage, WM_PICKER_LINESTYLE, IDC_GRID_STYLE, PS_DOT);
        // The messages came to the page, not through its buttons: the page
        // shows the item again from what it keeps.
        ChooseEntry(hPage, IDC_ITEM, 2);
        break;
    case 1: {
        printf("limits page: X from %g to %g\n", kNewXMin, kNewXMax);
        hPage = ShowSheetPage(hSheet, kSheetLimits);
        char sz[32];
        _snprintf(sz, sizeof(sz), "%g", kNewXMin);
        ::SetDlgItemTextA(hPage, IDC_X_MIN, sz);
        _snprintf(sz, sizeof(sz), "%g", kNewXMax);
        ::SetDlgItemTextA(hPage, IDC_X_MAX, sz);
        break;
    }
    case 2:
        printf("the host's page: a new title\n");
        hPage = ShowSheetPage(hSheet, kSheetHostPage);
        ::SetDlgItemTextA(hPage, IDC_DEMO_TITLE, "ZPXGraph demo, restyled in the property sheet");
        break;
    case 3:
        // Back to the appearance page for the picture, painted in full.
        ShowSheetPage(hSheet, kSheetAppearance);
        ::RedrawWindow(hSheet, NULL, NULL, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
        break;
    case 4:
        g_sheetRun.nPictureFailed = WriteSheetPicture(hSheet);
        printf("OK\n");
        ::PostMessageA(hSheet, PSM_PRESSBUTTON, PSBTN_OK, 0);
        break;
    default:
        break;   // OK was pressed: the patience above ends a sheet that stays
    }
    g_sheetRun.nStep++;
}

// Opens the property sheet on the graph, drives it, and writes the graph's
// new look. The cross hair goes first: the picture shows the plain graph.
int DriveSheet(CGraph& graph, PrintingSink& sink)
{
    graph.LockCrossHair(FALSE);
    graph.DisplayCrossHair(FALSE);
    Pump();

    printf("the property sheet, through Properties\n");
    g_sheetRun.nStep = 0;
    g_sheetRun.dwStart = ::GetTickCount();
    g_sheetRun.bGaveUp = false;
    g_sheetRun.nPictureFailed = 1;
    sink.m_heard.clear();
    const UINT_PTR nTimer = ::SetTimer(NULL, 0, 150, DriveSheetStep);
    CString strTitle;
    const int nResult = graph.Properties(strTitle);
    ::KillTimer(NULL, nTimer);
    Pump();
    printf("Properties returned %d\n", nResult);
    printf("heard from the sheet:");
    for (size_t i = 0; i < sink.m_heard.size(); i++)
        printf("%s %s", i == 0 ? "" : ",", sink.m_heard[i].c_str());
    printf("\n");
    PrintLimits(graph, "after the property sheet:");

    int nFailed = g_sheetRun.nPictureFailed;
    double dXMin = 0.0, dXMax = 0.0;
    graph.GetXAxisLimits(&dXMin, &dXMax);
    if (nResult != 1 || g_sheetRun.bGaveUp || dXMin != kNewXMin || dXMax != kNewXMax) {
        printf("graphdemo: the property sheet did not apply its pages\n");
        nFailed++;
    }

    const int nWritten = WriteGraphBitmap(graph, "graphdemo-properties.png", "the graph's look after the property sheet");
    return nFailed + (nWritten < 0 ? 1 : nWritten);
}

} // namespace

int main(int argc, char** argv)
{
    bool bHeadless = false;
    for (int i = 1; i < argc; i++) {
        if (strcmp(argv[i], "--headless") == 0)
            bHeadless = true;
        else if (strcmp(argv[i], "--english") == 0)
            ::SetThreadLocale(MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT));
    }
    InitializeZPXGraph();

    DemoData data;
    MakeData(data);

    HWND hFrame = CreateFrame(1040, 900);
    CWnd frame;
    frame.Attach(hFrame);

    int nExit = 0;
    {
        CGraph graph, fromArchive, fromRegistry;
        PrintingSink sink;
        RECT rcClient;
        ::GetClientRect(hFrame, &rcClient);
        CRect rectMain, rectLeft, rectRight;
        GraphRects(rcClient.right, rcClient.bottom, rectMain, rectLeft, rectRight);
        graph.CreateGraph(&frame, NULL, rectMain, GS_RIGHTAXIS, kGraphId, 63);
        SetUpGraph(graph, data);
        graph.EnableNotifications(&sink, 0x1FFF);
        CString strReset("Reset &view");
        graph.AddMenuItem(strReset, kResetViewId, 0, &frame);
        // The host's own page of the property sheet: the graph's title.
        CDemoPage demoPage;
        graph.GetGraphTitle(demoPage.m_strTitle);
        graph.AddPropertyPage(&demoPage, kDemoPageId);
        sink.m_pGraph = &graph;
        sink.m_pDemoPage = &demoPage;
        graph.ShowGraph();
        ::ShowWindow(hFrame, SW_SHOW);
        ::UpdateWindow(hFrame);
        AddDemoLabels(graph, bHeadless);

        // The copies: the noise and the staircase, under the first graph's
        // settings from its archive, and under its look from the registry.
        fromArchive.CreateGraph(&frame, NULL, rectLeft, GS_RIGHTAXIS, kGraphId + 1, 63);
        fromRegistry.CreateGraph(&frame, NULL, rectRight, GS_RIGHTAXIS, kGraphId + 2, 63);
        for (CGraph* pCopy : { &fromArchive, &fromRegistry }) {
            pCopy->AddPlotData("noise", PLOT_YLEFT, data.noiseX.data(), data.noiseY.data(),
                               (long)data.noiseX.size(), RGB(0, 150, 0), PS_DOT, 0);
            pCopy->AddPlotData("level", PLOT_YRIGHT, data.stepX.data(), data.stepY.data(),
                               (long)data.stepX.size(), RGB(200, 0, 0), PS_SOLID, 0);
        }
        nExit |= FillFromArchive(graph, fromArchive);
        fromArchive.SetGraphTitle("from the first graph's archive");
        // The loaded font changes the margins, and the loaded labels go to
        // their data positions in this graph: a new layout does both.
        fromArchive.ReSizeGraph(&rectLeft);
        fromRegistry.SetGraphTitle("the first graph's look, through the registry");
        fromRegistry.SetXAxisNumFmt("%.1f");
        fromRegistry.SetYAxisNumFmt(0, "%.1f");
        fromRegistry.SetYAxisNumFmt(1, "%.0f");
        nExit |= TakeLookThroughRegistry(graph, fromRegistry);
        fromArchive.ShowGraph();
        fromRegistry.ShowGraph();
        DemoGraphs graphs = { &graph, &fromArchive, &fromRegistry };
        ::SetWindowLongPtrA(hFrame, GWLP_USERDATA, (LONG_PTR)&graphs);

        graph.ShowLegend(TRUE);
        graph.AddMarkerLine(&frame, ML_DOUBLE, "noise", &g_dMarker1, &g_dMarker2, FALSE);
        ShowMarkers(hFrame);
        if (bHeadless) {
            if (nExit == 0)
                nExit = DriveHeadless(graph, sink);
            if (nExit == 0)
                nExit = DriveTools(graph, hFrame);
            if (nExit == 0)
                nExit = DriveSheet(graph, sink);
        } else {
            MSG msg;
            while (::GetMessageA(&msg, NULL, 0, 0) > 0) {
                ::TranslateMessage(&msg);
                ::DispatchMessageA(&msg);
            }
        }
        ::SetWindowLongPtrA(hFrame, GWLP_USERDATA, 0);
        graph.RemovePropertyPage(kDemoPageId);
        graph.RemoveAllPlotData();
        fromArchive.RemoveAllPlotData();
        fromRegistry.RemoveAllPlotData();
    }
    frame.Detach();
    if (::IsWindow(hFrame))
        ::DestroyWindow(hFrame);
    return nExit;
}
