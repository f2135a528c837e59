// The smallest complete host of ZPXGraph: a window with one graph and two
// series. Drag a box to zoom, double-click to see all the data again, and
// use the right mouse button for the graph's menu.
//
//   minimal.exe                  shows the window until it is closed
//   minimal.exe --picture FILE   draws the graph, writes it as a .bmp, exits
#include "graph/Graph.h"
#include <math.h>
#include <stdio.h>
#include <string.h>

namespace {

const int kPoints = 200;
double g_x[kPoints], g_sine[kPoints], g_cosine[kPoints];

// Writes a bitmap as a 24-bit .bmp file.
bool WriteBmp(HBITMAP hBitmap, const char* pszPath)
{
    BITMAP bm;
    if (::GetObjectA(hBitmap, sizeof(bm), &bm) == 0)
        return false;
    BITMAPINFOHEADER info = {};
    info.biSize = sizeof(info);
    info.biWidth = bm.bmWidth;
    info.biHeight = bm.bmHeight;
    info.biPlanes = 1;
    info.biBitCount = 24;
    const DWORD dwStride = ((DWORD)bm.bmWidth * 3 + 3) & ~3u;
    info.biSizeImage = dwStride * (DWORD)bm.bmHeight;
    BYTE* pBits = new BYTE[info.biSizeImage];
    HDC hDC = ::GetDC(NULL);
    const int nLines = ::GetDIBits(hDC, hBitmap, 0, (UINT)bm.bmHeight, pBits, (BITMAPINFO*)&info, DIB_RGB_COLORS);
    ::ReleaseDC(NULL, hDC);
    BITMAPFILEHEADER file = {};
    file.bfType = 0x4D42;
    file.bfOffBits = sizeof(file) + sizeof(info);
    file.bfSize = file.bfOffBits + info.biSizeImage;
    FILE* f = fopen(pszPath, "wb");
    const bool bWritten = nLines == bm.bmHeight && f != NULL && fwrite(&file, sizeof(file), 1, f) == 1 &&
                          fwrite(&info, sizeof(info), 1, f) == 1 && fwrite(pBits, info.biSizeImage, 1, f) == 1;
    if (f != NULL)
        fclose(f);
    delete[] pBits;
    return bWritten;
}

LRESULT CALLBACK FrameProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    if (nMsg == WM_DESTROY)
        ::PostQuitMessage(0);
    return ::DefWindowProcA(hWnd, nMsg, wParam, lParam);
}

} // namespace

int main(int argc, char** argv)
{
    const char* pszPicture = argc == 3 && strcmp(argv[1], "--picture") == 0 ? argv[2] : NULL;
    InitializeZPXGraph();

    WNDCLASSA wc = {};
    wc.lpfnWndProc = FrameProc;
    wc.hInstance = ::GetModuleHandleA(NULL);
    wc.hCursor = ::LoadCursorA(NULL, IDC_ARROW);
    wc.hbrBackground = (HBRUSH)(COLOR_WINDOW + 1);
    wc.lpszClassName = "ZPXGraphMinimalHost";
    ::RegisterClassA(&wc);
    HWND hFrame = ::CreateWindowExA(0, wc.lpszClassName, "ZPXGraph minimal host",
                                    WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT, CW_USEDEFAULT, 660, 480,
                                    NULL, NULL, wc.hInstance, NULL);

    for (int i = 0; i < kPoints; i++) {
        g_x[i] = i * 0.05;
        g_sine[i] = sin(g_x[i]);
        g_cosine[i] = cos(g_x[i]) * 0.5;
    }

    CGraph graph;
    CRect rect(10, 10, 630, 420);
    if (graph.CreateGraph(CWnd::FromHandle(hFrame), NULL, rect, 0, 100, 63) != GRAPH_OK) {
        printf("minimal: the graph could not be made\n");
        return 1;
    }
    graph.SetGraphTitle("Two series");
    graph.SetXAxisNumFmt("%.1f");
    graph.SetYAxisNumFmt(0, "%.1f");
    graph.AddPlotData("sine", PLOT_YLEFT, g_x, g_sine, kPoints, RGB(200, 0, 0), PS_SOLID, 0);
    graph.AddPlotData("cosine", PLOT_YLEFT, g_x, g_cosine, kPoints, RGB(0, 0, 200), PS_SOLID, 0);
    graph.SetXAxisLimits(0.0, 10.0);
    graph.SetYAxisLimits(-1.0, 1.0, 0);
    graph.EnableZoom(TRUE);
    graph.EnableMenu(TRUE);
    graph.ShowGraph();

    if (pszPicture != NULL) {
        HBITMAP hBitmap = graph.GetBitmap();
        const bool bWritten = hBitmap != NULL && WriteBmp(hBitmap, pszPicture);
        if (hBitmap != NULL)
            ::DeleteObject(hBitmap);
        ::DestroyWindow(hFrame);
        printf("minimal: %s %s\n", bWritten ? "wrote" : "could not write", pszPicture);
        return bWritten ? 0 : 1;
    }

    ::ShowWindow(hFrame, SW_SHOW);
    MSG msg;
    while (::GetMessageA(&msg, NULL, 0, 0) > 0) {
        ::TranslateMessage(&msg);
        ::DispatchMessageA(&msg);
    }
    return 0;
}
