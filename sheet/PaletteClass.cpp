// The global window class of the colour palette, registered when the library
// loads so that dialog templates can name it. Its procedure turns each new
// window of the class into a CColorPalette, which frees itself with it.
#include "graph/Globals.h"
#include "sheet/ColorPalette.h"

namespace {

HBRUSH s_hbrPaletteBackground = NULL;   // the class's brush, owned here

} // namespace

LRESULT CALLBACK PaletteWindowProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    // A window that already has its object (made here, or by CWnd::CreateEx)
    // gets here only for the default handling.
    if (nMsg == WM_NCCREATE && CWnd::FromHandlePermanent(hWnd) == NULL) {
        CColorPalette* pPalette = NULL;
        try {
            pPalette = new CColorPalette;
        } catch (CException* e) {
            e->Delete();
            return FALSE;   // the window is not made
        }
        if (!pPalette->SubclassWindow(hWnd)) {
            delete pPalette;
            return FALSE;
        }
        return AfxWndProc(hWnd, nMsg, wParam, lParam);
    }
    return ::DefWindowProcA(hWnd, nMsg, wParam, lParam);
}

BOOL RegisterPaletteWindowClass()
{
    WNDCLASSA wc;
    if (::GetClassInfoA(g_hGraphInstance, PALETTE_WINDOW_CLASS, &wc))
        return TRUE;
    s_hbrPaletteBackground = ::CreateSolidBrush(::GetSysColor(COLOR_BTNFACE));
    memset(&wc, 0, sizeof(wc));
    wc.style = CS_GLOBALCLASS | CS_SAVEBITS;
    wc.lpfnWndProc = PaletteWindowProc;
    wc.hInstance = g_hGraphInstance;
    wc.hCursor = ::LoadCursorA(NULL, (LPCSTR)IDC_ARROW);
    wc.hbrBackground = s_hbrPaletteBackground;
    wc.lpszClassName = PALETTE_WINDOW_CLASS;
    if (::RegisterClassA(&wc) != 0)
        return TRUE;
    ::DeleteObject(s_hbrPaletteBackground);
    s_hbrPaletteBackground = NULL;
    return FALSE;
}

void UnregisterPaletteWindowClass()
{
    // A class with windows left cannot go, and then neither can its brush.
    if (::UnregisterClassA(PALETTE_WINDOW_CLASS, g_hGraphInstance) && s_hbrPaletteBackground != NULL) {
        ::DeleteObject(s_hbrPaletteBackground);
        s_hbrPaletteBackground = NULL;
    }
}
