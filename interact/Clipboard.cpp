// The picture of the graph out of the window: as a bitmap the host owns, and
// on the clipboard. The picture is painted afresh into a memory context, as
// Plot paints the window; nothing is read back from the screen. What stands
// on the window between paints (marker lines, the zoom box, the value tip)
// is not in it; a shown cross hair is.
#include "graph/GraphPrv.h"

HBITMAP CGraphPrv::GetBitmap()
{
    CClientDC dcWindow(m_hWnd != NULL ? this : NULL);
    CDC dcMemory;
    if (!dcMemory.CreateCompatibleDC(&dcWindow))
        return NULL;
    // The bitmap has the graph's size; its origin is the client origin.
    HBITMAP hBitmap = ::CreateCompatibleBitmap(dcWindow.m_hDC, m_rectGraph.Width(), m_rectGraph.Height());
    if (hBitmap == NULL)
        return NULL;
    {
        CSelectGuard selectBitmap(&dcMemory, (HGDIOBJ)hBitmap);
        dcMemory.FillSolidRect(&m_rectGraph, ::GetSysColor(COLOR_WINDOW));
        Plot(&dcMemory, 0);
        dcMemory.SelectClipRgn(NULL);
        m_crossHair.Repaint(&dcMemory, m_rectPlot.left, m_rectPlot.top, m_rectPlot.right, m_rectPlot.bottom);
        m_crossHair.PrintLabels(&dcMemory);
    }
    return hBitmap;
}

int CGraphPrv::CopyToClipboard()
{
    HBITMAP hBitmap = GetBitmap();
    if (hBitmap == NULL)
        return GRAPH_NOMEMORY;
    // The clipboard takes the bitmap over; what it held before goes.
    ::OpenClipboard(m_hWnd);
    ::EmptyClipboard();
    if (::SetClipboardData(CF_BITMAP, hBitmap) == NULL)
        ::DeleteObject(hBitmap);
    ::CloseClipboard();
    return GRAPH_OK;
}
