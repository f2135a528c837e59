// graphdemo: a host program of ZPXGraph. It opens a top-level window with one
// graph child showing several series on both Y axes (one of a million
// points), reference lines, a grid and titles.
//
//   graphdemo.exe               the window, until the user closes it
//   graphdemo.exe --headless    renders the same graph through CGraph::Plot
//                               into a memory bitmap, writes it as a picture
//                               file, prints where, and exits
//   --english                   looks for the English resource satellite
#include "graph/Graph.h"
#include <math.h>
#include <stdio.h>
#include <string.h>
#include <vector>
#include "demo/PictureFile.h"

namespace {

const int kGraphId = 100;

// The data lives as long as the graph: float series refer to these arrays.
struct DemoData
{
    std::vector<float> waveX, waveY;      // a million points of a damped wave
    std::vector<double> stepX, stepY;     // a staircase on the right axis (copied by the graph)
    std::vector<float> noiseX, noiseY;    // a noisy trace
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
    graph.AddPlotData("level", PLOT_YRIGHT, data.stepX.data(), data.stepY.data(),
                      (long)data.stepX.size(), RGB(200, 0, 0), PS_SOLID, 0);

    graph.SetXAxisLimits(0.0, 10.0);
    graph.SetYAxisLimits(-10.0, 10.0, 0);
    graph.SetYAxisLimits(0.0, 250.0, 1);
    // Fixed tics with minor tics: the grid lines of both Y axes then agree.
    graph.SetTicMarkType(0, 1, NULL);
    graph.SetGridAttributes(GRID_MINOR | GRID_BOTHWAYS, RGB(128, 128, 128), PS_DOT);
    graph.AddReferenceLine("t = 5", REFLINE_VERTICAL, 5.0);
    graph.AddReferenceLine("zero", REFLINE_HORIZONTAL, 0.0);
}

LRESULT CALLBACK FrameProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    CGraph* pGraph = (CGraph*)::GetWindowLongPtrA(hWnd, GWLP_USERDATA);
    switch (nMsg) {
    case WM_SIZE:
        if (pGraph != NULL && pGraph->m_pGraphPrv != NULL) {
            CRect rect(8, 8, LOWORD(lParam) - 8, HIWORD(lParam) - 8);
            pGraph->ReSizeGraph(&rect);
            pGraph->Replot();
        }
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
    return ::CreateWindowExA(0, wc.lpszClassName, "ZPXGraph demo", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                             CW_USEDEFAULT, CW_USEDEFAULT, nWidth, nHeight, NULL, NULL, wc.hInstance, NULL);
}

// Renders the graph headless into a 32-bit bitmap and writes it to a file.
int RenderToFile(CWnd* pParent, DemoData& data)
{
    const int nWidth = 1000, nHeight = 600;
    CGraph graph;
    CRect rect(0, 0, nWidth, nHeight);
    graph.CreateGraph(pParent, NULL, rect, GS_NOWINDOW | GS_RIGHTAXIS, kGraphId, 63);
    SetUpGraph(graph, data);

    BITMAPINFO bmi;
    memset(&bmi, 0, sizeof(bmi));
    bmi.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    bmi.bmiHeader.biWidth = nWidth;
    bmi.bmiHeader.biHeight = -nHeight;
    bmi.bmiHeader.biPlanes = 1;
    bmi.bmiHeader.biBitCount = 32;
    void* pBits = NULL;
    HBITMAP hBitmap = ::CreateDIBSection(NULL, &bmi, DIB_RGB_COLORS, &pBits, NULL, 0);
    CDC dc;
    dc.CreateCompatibleDC(NULL);
    HGDIOBJ hOld = dc.SelectObject(hBitmap);
    dc.FillSolidRect(0, 0, nWidth, nHeight, RGB(240, 240, 240));
    graph.SizeGraph(&dc, 0, 0, nWidth, nHeight, TRUE);
    int nResult = graph.Plot(&dc, FALSE);
    dc.SelectObject(hOld);

    char szPath[MAX_PATH];
    ::GetFullPathNameA("graphdemo.png", MAX_PATH, szPath, NULL);
    BOOL bWritten = WritePictureFile(hBitmap, szPath, sizeof(szPath));
    ::DeleteObject(hBitmap);
    graph.RemoveAllPlotData();
    if (!bWritten) {
        printf("graphdemo: could not write the picture\n");
        return 1;
    }
    printf("graphdemo: Plot returned %d; picture written to %s\n", nResult, szPath);
    return 0;
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

    HWND hFrame = CreateFrame(1040, 680);
    CWnd frame;
    frame.Attach(hFrame);

    int nExit = 0;
    if (bHeadless) {
        nExit = RenderToFile(&frame, data);
    } else {
        CGraph graph;
        RECT rcClient;
        ::GetClientRect(hFrame, &rcClient);
        CRect rect(8, 8, rcClient.right - 8, rcClient.bottom - 8);
        graph.CreateGraph(&frame, NULL, rect, GS_RIGHTAXIS, kGraphId, 63);
        SetUpGraph(graph, data);
        ::SetWindowLongPtrA(hFrame, GWLP_USERDATA, (LONG_PTR)&graph);
        graph.ShowGraph();
        ::ShowWindow(hFrame, SW_SHOW);
        MSG msg;
        while (::GetMessageA(&msg, NULL, 0, 0) > 0) {
            ::TranslateMessage(&msg);
            ::DispatchMessageA(&msg);
        }
        ::SetWindowLongPtrA(hFrame, GWLP_USERDATA, 0);
    }
    frame.Detach();
    if (::IsWindow(hFrame))
        ::DestroyWindow(hFrame);
    return nExit;
}
