// The cross hair: two inverted lines through the pointer over the plot,
// with a read-out of its value at each axis, locked in place until the
// limits change, and put back exactly where a paint wiped it.
#include "MouseGraph.h"
#include "interact/CrossHair.h"
#include "resources/resource.h"

namespace {

// The pixel at pt is the background's inverse: the cross passes there.
bool Inverted(MouseGraph& g, CPoint pt)
{
    return WindowPixel(g.Hwnd(), pt) == (~g.Prv()->m_crBackground & 0xFFFFFF);
}

CRect ChildRect(MouseGraph& g, int nId)
{
    CRect rect(-1, -1, -1, -1);
    HWND hChild = ::GetDlgItem(g.Hwnd(), nId);
    if (hChild != NULL) {
        ::GetWindowRect(hChild, &rect);
        ::MapWindowPoints(NULL, g.Hwnd(), (LPPOINT)&rect, 2);
    }
    return rect;
}

// The user's decimal sign for the time of a test.
class UserDecimal
{
public:
    explicit UserDecimal(const char* psz)
    {
        ::GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, m_szOld, sizeof(m_szOld));
        ::SetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, psz);
    }
    ~UserDecimal() { ::SetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, m_szOld); }

private:
    char m_szOld[8];
};

} // namespace

TEST(CrossHair, ShowsMovesAndReadsOut)
{
    MouseGraph g;
    CGraphPrv* p = g.Prv();
    const CRect& r = g.m_rectPlot;
    CCrossHair& ch = p->m_crossHair;

    // Locking while off does nothing. With the pointer off the plot the
    // cross stands at half of the plot's right and bottom coordinates.
    g.m_graph.LockCrossHair(TRUE);
    EXPECT_EQ(0, g.m_graph.IsCrossHairLocked());
    const CPoint ptAway = g.Screen(CPoint(2, 2));
    ::SetCursorPos(ptAway.x, ptAway.y);
    g.m_graph.DisplayCrossHair(TRUE);
    ASSERT_EQ(1, g.m_graph.IsCrossHairVisible());
    const CPoint c(r.right / 2, r.bottom / 2);
    EXPECT_EQ(c, CPoint(ch.m_nX, ch.m_nY));
    EXPECT_TRUE(Inverted(g, CPoint(c.x, r.top + 1)));
    EXPECT_TRUE(Inverted(g, CPoint(c.x, r.bottom - 1)));
    EXPECT_TRUE(Inverted(g, CPoint(r.left + 1, c.y)));
    EXPECT_FALSE(Inverted(g, CPoint(c.x + 1, r.top + 40)));

    // The read-outs: X centred under the plot, Y 1 pixel off the frame;
    // no right one without a right axis.
    const int w = ch.m_nXLabelWidth, h = ch.m_nLabelHeight;
    EXPECT_EQ(CRect(c.x - w / 2, r.bottom + h / 2 + 1, c.x + w / 2, r.bottom + h / 2 + 1 + h),
              ChildRect(g, CROSSHAIR_XLABEL_ID));
    EXPECT_EQ(r.left - 1, ChildRect(g, CROSSHAIR_YLABEL_ID).right);
    EXPECT_EQ(CRect(-1, -1, -1, -1), ChildRect(g, CROSSHAIR_RIGHTLABEL_ID));

    // A move: the old lines go, the new ones come; the left read-out now
    // stands 3 pixels off the frame, and the text is the axis' format.
    const CPoint d(g.m_graph.DataToPixelX(2.5), g.m_graph.DataToPixelY(7.5, 0));
    g.Send(WM_MOUSEMOVE, d);
    TestHost::Pump();
    EXPECT_FALSE(Inverted(g, CPoint(c.x, r.top + 40)));
    EXPECT_TRUE(Inverted(g, CPoint(d.x, r.top + 40)));
    EXPECT_EQ(r.left - 3, ChildRect(g, CROSSHAIR_YLABEL_ID).right - w + ch.m_nYLabelWidth);
    EXPECT_EQ(r.left - 3 - ch.m_nYLabelWidth, ChildRect(g, CROSSHAIR_YLABEL_ID).left);
    EXPECT_STREQ("2.5", ch.m_wndXLabel.m_szText);
    EXPECT_STREQ("7.5", ch.m_wndYLabel.m_szText);

    // Outside the scroll rectangle (the frame included) a move is dropped.
    g.Send(WM_MOUSEMOVE, CPoint(r.left, d.y));
    g.Send(WM_MOUSEMOVE, CPoint(r.right + 5, d.y));
    EXPECT_EQ(d, CPoint(ch.m_nX, ch.m_nY));

    // Locked it stands; any change of the limits unlocks it, and the
    // read-outs show the new values at the same pixel.
    g.m_graph.LockCrossHair(TRUE);
    g.Send(WM_MOUSEMOVE, c);
    EXPECT_EQ(d, CPoint(ch.m_nX, ch.m_nY));
    g.m_graph.SetXAxisLimits(0.0, 20.0);
    EXPECT_EQ(0, g.m_graph.IsCrossHairLocked());
    g.Paint();
    EXPECT_STREQ("5.0", ch.m_wndXLabel.m_szText);
    EXPECT_TRUE(Inverted(g, CPoint(d.x, r.top + 40)));

    // A comma locale gives a comma.
    {
        UserDecimal comma(",");
        ch.m_wndXLabel.InvalidateRect(NULL, TRUE);
        ch.m_wndXLabel.UpdateWindow();
        EXPECT_STREQ("5,0", ch.m_wndXLabel.m_szText);
    }

    // A right axis gets its read-out, 2 pixels right of the plot.
    g.m_graph.SetYAxisLabel(1, "R");
    g.Paint();
    EXPECT_EQ(g.m_rectPlot.right + 2, ChildRect(g, CROSSHAIR_RIGHTLABEL_ID).left);

    // Off: the lines and the read-outs go.
    g.m_graph.DisplayCrossHair(FALSE);
    EXPECT_FALSE(Inverted(g, CPoint(ch.m_nX, r.top + 40)));
    EXPECT_TRUE(::GetDlgItem(g.Hwnd(), CROSSHAIR_XLABEL_ID) == NULL);
    EXPECT_TRUE(::GetDlgItem(g.Hwnd(), CROSSHAIR_RIGHTLABEL_ID) == NULL);
}

TEST(CrossHair, RepaintsWhatAPaintWipedAndStaysOffTheLegend)
{
    MouseGraph g;
    CGraphPrv* p = g.Prv();
    const CRect& r = g.m_rectPlot;
    const CPoint c = r.CenterPoint();
    ::SetCursorPos(g.Screen(c).x, g.Screen(c).y);
    g.m_graph.DisplayCrossHair(TRUE);
    ASSERT_EQ(c, CPoint(p->m_crossHair.m_nX, p->m_crossHair.m_nY));

    // A partial repaint across both lines: every pixel of them inverted once.
    ::RedrawWindow(g.Hwnd(), CRect(c.x - 20, c.y - 20, c.x + 20, c.y + 20), NULL,
                   RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    // (Where they cross, the pixel is inverted twice.)
    for (int i = -30; i <= 30; i += 3) {
        if (i == 0)
            continue;
        EXPECT_TRUE(Inverted(g, CPoint(c.x, c.y + i))) << i;
        EXPECT_TRUE(Inverted(g, CPoint(c.x + i, c.y))) << i;
    }

    // A zoom press takes it down for the drag; the release brings it back.
    g.Drag(c, c + CPoint(1, 1), false);
    EXPECT_FALSE(Inverted(g, CPoint(c.x, r.top + 40)));
    g.Send(WM_LBUTTONUP, c + CPoint(1, 1));
    EXPECT_TRUE(Inverted(g, CPoint(p->m_crossHair.m_nX, r.top + 40)));

    // The auto-hide legend open at the top: the vertical line starts below
    // it, and a horizontal line that stood under it is not inverted back.
    const CPoint ptHigh(c.x, r.top + 10);
    g.Send(WM_MOUSEMOVE, ptHigh);
    ::SendMessageA(::FindWindowExA(g.Hwnd(), NULL, "ListBox", "Legend"), WM_COMMAND, ID_GRAPH_LEGEND_TOP, 0);
    g.m_graph.ShowLegend(TRUE);
    g.Prv()->m_legend.Unhide();
    const int nLegendBottom = p->m_legend.m_nHeight;
    g.Send(WM_MOUSEMOVE, c + CPoint(7, 7));
    EXPECT_TRUE(Inverted(g, CPoint(c.x + 7, nLegendBottom + 2)));
    // Over the legend (empty rows) neither the new vertical line nor the old
    // horizontal one shows: each pixel is like its neighbour.
    const int yOld = ptHigh.y, yFree = ptHigh.y + 2;
    EXPECT_EQ(WindowPixel(g.Hwnd(), CPoint(c.x + 8, yFree)), WindowPixel(g.Hwnd(), CPoint(c.x + 7, yFree)));
    EXPECT_EQ(WindowPixel(g.Hwnd(), CPoint(c.x - 30, yFree)), WindowPixel(g.Hwnd(), CPoint(c.x - 30, yOld)));
}

TEST(CrossHair, InTheBitmapWhenShownNotWhenSuspended)
{
    MouseGraph g;
    const CRect& r = g.m_rectPlot;
    const CPoint c = r.CenterPoint();
    ::SetCursorPos(g.Screen(c).x, g.Screen(c).y);
    g.m_graph.DisplayCrossHair(TRUE);
    g.m_graph.LockCrossHair(TRUE);
    const COLORREF crInverse = ~g.Prv()->m_crBackground & 0xFFFFFF;

    // The picture as it comes from the graph, in a context to read.
    auto picture = [&g](Dib& dib) {
        HBITMAP hBitmap = g.m_graph.GetBitmap();
        HDC hDC = ::CreateCompatibleDC(NULL);
        HGDIOBJ hOld = ::SelectObject(hDC, hBitmap);
        ::BitBlt(dib.DC()->m_hDC, 0, 0, dib.m_nWidth, dib.m_nHeight, hDC, 0, 0, SRCCOPY);
        ::SelectObject(hDC, hOld);
        ::DeleteDC(hDC);
        ::DeleteObject(hBitmap);
    };
    Dib locked(400, 300), suspended(400, 300);
    picture(locked);
    EXPECT_EQ(crInverse, locked.At(c.x, r.top + 3));
    EXPECT_EQ(crInverse, locked.At(r.left + 3, c.y));

    // Suspended by a zoom press, it is not in the picture, lines nor values.
    g.Drag(c, c + CPoint(1, 1), false);
    picture(suspended);
    g.Send(WM_LBUTTONUP, c + CPoint(1, 1));
    EXPECT_NE(crInverse, suspended.At(c.x, r.top + 3));
    const CCrossHair& ch = g.Prv()->m_crossHair;
    const int xText = ch.m_nX - 5 * ch.m_nCharWidth, yText = r.bottom + ch.m_nLabelHeight / 2 + 1;
    int nDiffering = 0;
    for (int y = yText; y < yText + ch.m_nLabelHeight; y++)
        for (int x = xText; x < xText + 10 * ch.m_nCharWidth; x++)
            nDiffering += locked.At(x, y) != suspended.At(x, y);
    EXPECT_GT(nDiffering, 10);

    // Up and down many times: no GDI object or window is left behind.
    const LONG nGdi = CGdiObject::GetLiveCount();
    for (int i = 0; i < 200; i++) {
        g.m_graph.DisplayCrossHair();
        g.Send(WM_MOUSEMOVE, c + CPoint(i % 7, i % 5));
    }
    EXPECT_EQ(nGdi, CGdiObject::GetLiveCount());
    EXPECT_EQ(1, g.m_graph.IsCrossHairVisible());
}
