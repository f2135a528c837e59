// The global window class of the colour palette, registered when the library
// loads so that dialog templates can name it.
#include "graph/Globals.h"

#define PALETTE_WINDOW_CLASS "ZPXGraphMFCPaletteWindow"

BOOL RegisterPaletteWindowClass()
{
    WNDCLASSA wc;
    if (::GetClassInfoA(g_hGraphInstance, PALETTE_WINDOW_CLASS, &wc))
        return TRUE;
    memset(&wc, 0, sizeof(wc));
    wc.style = CS_GLOBALCLASS | CS_DBLCLKS;
    wc.lpfnWndProc = ::DefWindowProcA;   // Placeholder: the palette control's own procedure
    wc.hInstance = g_hGraphInstance;
    wc.hCursor = ::LoadCursorA(NULL, (LPCSTR)IDC_ARROW);
    wc.lpszClassName = PALETTE_WINDOW_CLASS;
    return ::RegisterClassA(&wc) != 0;
}
