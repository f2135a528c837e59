// The picture of the graph out of the window: a bitmap the host owns, made
// afresh with the graph's size, and the clipboard's copy of it.
#include "MouseGraph.h"
#include "resources/resource.h"
#include "render/AnnotationMark.h"

namespace {

// The colour at a client point of a bitmap the graph made.
COLORREF BitmapPixel(HBITMAP hBitmap, CPoint pt)
{
    HDC hDC = ::CreateCompatibleDC(NULL);
    HGDIOBJ hOld = ::SelectObject(hDC, hBitmap);
    const COLORREF cr = ::GetPixel(hDC, pt.x, pt.y);
    ::SelectObject(hDC, hOld);
    ::DeleteDC(hDC);
    return cr;
}

} // namespace

TEST(Picture, TheBitmapAndTheClipboardHoldTheGraph)
{
    MouseGraph g;
    static float afX[] = { 0, 10 }, afY[] = { 5, 5 };
    g.m_graph.AddPlotData("s", PLOT_YLEFT, afX, afY, 2, BLUE, PS_SOLID, 0);
    const CRect& r = g.m_rectPlot;
    HBITMAP hBitmap = g.m_graph.GetBitmap();
    ASSERT_TRUE(hBitmap != NULL);
    BITMAP bm;
    ::GetObjectA(hBitmap, sizeof(bm), &bm);
    EXPECT_EQ(g.Prv()->m_rectGraph.Width(), bm.bmWidth);
    EXPECT_EQ(g.Prv()->m_rectGraph.Height(), bm.bmHeight);
    EXPECT_EQ(BLUE, BitmapPixel(hBitmap, CPoint(r.CenterPoint().x, g.m_graph.DataToPixelY(5.0, 0))));
    EXPECT_EQ(RGB(0, 0, 0), BitmapPixel(hBitmap, r.TopLeft()));   // the frame
    ::DeleteObject(hBitmap);

    // What stands on the window only is not in the picture: a marker line
    // and a listed point highlight.
    double dMarker = 2.5;
    ASSERT_EQ(GRAPH_OK, g.m_graph.AddMarkerLine(NULL, ML_SINGLE, "s", &dMarker, NULL, FALSE));
    g.m_graph.AddPlotDataHighlight("s", "h", 7.5, 7.5, MARK_SQUARE);
    g.Paint();
    const CPoint ptMarker(g.m_graph.DataToPixelX(2.5), g.m_graph.DataToPixelY(2.5, 0));
    const CPoint ptHighlight(g.m_graph.DataToPixelX(7.5), g.m_graph.DataToPixelY(7.5, 0));
    ASSERT_EQ(BLACK, WindowPixel(g.Hwnd(), ptMarker));
    ASSERT_EQ(BLACK, WindowPixel(g.Hwnd(), ptHighlight));
    hBitmap = g.m_graph.GetBitmap();
    EXPECT_EQ(WHITE, BitmapPixel(hBitmap, ptMarker));
    EXPECT_EQ(WHITE, BitmapPixel(hBitmap, ptHighlight));
    ::DeleteObject(hBitmap);

    // The menu's copy: the clipboard holds the bitmap and nothing else.
    ::OpenClipboard(NULL);
    ::EmptyClipboard();
    ::SetClipboardData(CF_TEXT, ::GlobalAlloc(GMEM_MOVEABLE, 4));
    ::CloseClipboard();
    g.Command(ID_GRAPH_COPY);
    EXPECT_TRUE(::IsClipboardFormatAvailable(CF_BITMAP));
    EXPECT_FALSE(::IsClipboardFormatAvailable(CF_TEXT));

    // A graph that plots nothing gives the fill alone.
    MouseGraph noPlot(GS_NOPLOT);
    hBitmap = noPlot.m_graph.GetBitmap();
    ASSERT_TRUE(hBitmap != NULL);
    EXPECT_EQ(::GetSysColor(COLOR_WINDOW), BitmapPixel(hBitmap, noPlot.m_rectPlot.TopLeft()));
    ::DeleteObject(hBitmap);
}
