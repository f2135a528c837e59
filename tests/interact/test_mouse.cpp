// The mouse on the graph window, driven by real messages: what the host
// hears, the cursor, the rubber-band zoom and its refusals, the double click
// that scales to the data, and the limit editor opened by a click.
#include "MouseGraph.h"
#include "resources/resource.h"

namespace {

std::vector<std::string> Lines(std::initializer_list<std::string> lines)
{
    return std::vector<std::string>(lines);
}

// No capture and no confinement of the pointer left behind.
void ExpectPointerFree(const char* pszWhat)
{
    RECT rectClip;
    ::GetClipCursor(&rectClip);
    EXPECT_TRUE(::GetCapture() == NULL) << pszWhat;
    EXPECT_EQ(::GetSystemMetrics(SM_CXVIRTUALSCREEN), rectClip.right - rectClip.left) << pszWhat;
}

} // namespace

TEST(MouseDispatch, WhatTheHostHearsTheCursorAndTheContextMenu)
{
    MouseGraph g;
    const CRect& r = g.m_rectPlot;
    const CPoint ptIn = r.CenterPoint(), ptMargin(ptIn.x, r.top - 3);
    const CPoint sIn = g.Screen(ptIn), sMargin = g.Screen(ptMargin);
    g.Heard();

    // A click that no tool takes: the press is heard, the release is not.
    g.m_graph.EnableZoom(FALSE);
    g.Click(ptIn);
    g.m_graph.EnableZoom(TRUE);
    g.Click(ptMargin);
    EXPECT_EQ(Lines({ Str("mouse 201 %ld,%ld", sIn.x, sIn.y), Str("mouse 201 %ld,%ld", sMargin.x, sMargin.y) }),
              g.Heard());

    // Moves: heard in screen coordinates; the plot's cross over the plot.
    g.Send(WM_MOUSEMOVE, ptIn);
    EXPECT_EQ(g.Prv()->m_hPlotCursor, ::GetCursor());
    g.Send(WM_MOUSEMOVE, ptMargin);
    EXPECT_EQ(::LoadCursorA(NULL, (LPCSTR)IDC_ARROW), ::GetCursor());
    EXPECT_EQ(Lines({ Str("mouse 200 %ld,%ld", sIn.x, sIn.y), Str("mouse 200 %ld,%ld", sMargin.x, sMargin.y) }),
              g.Heard());

    // A right click in the plot: press, release, the menu, then the context
    // notification. Outside the plot, with the menu off, or during a drag,
    // the host hears all the same, and no menu shows.
    MenuReader reader;
    g.Send(WM_RBUTTONDOWN, ptIn, MK_RBUTTON);
    g.Send(WM_RBUTTONUP, ptIn);
    EXPECT_EQ(1, reader.m_nMenus);
    EXPECT_EQ(Lines({ Str("mouse 204 %ld,%ld", sIn.x, sIn.y), Str("mouse 205 %ld,%ld", sIn.x, sIn.y),
                      Str("context %ld,%ld", sIn.x, sIn.y) }),
              g.Heard());
    EXPECT_EQ(sIn, g.Prv()->m_ptContextMenu);
    g.Send(WM_CONTEXTMENU, sMargin);
    g.m_graph.EnableMenu(FALSE);
    g.Send(WM_CONTEXTMENU, sIn);
    g.m_graph.EnableMenu(TRUE);
    g.Drag(ptIn, ptIn + CPoint(30, 30), false);
    g.Send(WM_CONTEXTMENU, sIn);
    g.Send(WM_LBUTTONUP, ptIn + CPoint(30, 30));
    EXPECT_EQ(1, reader.m_nMenus);
    const std::vector<std::string> heard = g.Heard();
    EXPECT_EQ(3, std::count(heard.begin(), heard.end(), Str("context %ld,%ld", sIn.x, sIn.y)) +
                     std::count(heard.begin(), heard.end(), Str("context %ld,%ld", sMargin.x, sMargin.y)));
    // A menu the library made is gone once it closed.
    EXPECT_FALSE(::IsMenu(reader.m_hMenu));
}

TEST(Zoom, TheBoxBecomesTheLimitsOfTheAxesThatShow)
{
    // Each case on a fresh graph: the box from a to b (plot-relative), the
    // limits the pixels had before, and what the right axis does.
    const struct
    {
        const char* pszWhat;
        CPoint a, b;
        bool bReversedX, bRightShown;
    } cases[] = {
        { "box", CPoint(20, 30), CPoint(120, 100), false, false },
        { "reverse drag", CPoint(120, 100), CPoint(20, 30), false, false },
        { "reversed X", CPoint(20, 30), CPoint(120, 100), true, false },
        { "right axis shown", CPoint(20, 30), CPoint(120, 100), false, true },
    };
    for (const auto& c : cases) {
        MouseGraph g(GS_RIGHTAXIS);   // room for a right axis, shown only with its title
        if (c.bReversedX)
            g.m_graph.SetXAxisLimits(10.0, 0.0);
        if (c.bRightShown)
            g.m_graph.SetYAxisLabel(1, "R");
        const CRect& r = g.m_rectPlot;
        const CPoint a = r.TopLeft() + c.a, b = r.TopLeft() + c.b;
        const CPoint tl(std::min(a.x, b.x), std::min(a.y, b.y)), br(std::max(a.x, b.x), std::max(a.y, b.y));
        const std::string strExpected =
            Str("x %.6g %.6g | yl %.6g %.6g | yr %.6g %.6g", g.m_graph.PixelToDataX(tl.x),
                g.m_graph.PixelToDataX(br.x), g.m_graph.PixelToDataY(br.y, 0), g.m_graph.PixelToDataY(tl.y, 0),
                c.bRightShown ? g.m_graph.PixelToDataY(br.y, 1) : 0.0,
                c.bRightShown ? g.m_graph.PixelToDataY(tl.y, 1) : 100.0);
        g.Heard();
        ::ValidateRect(g.Hwnd(), NULL);
        g.Drag(a, b);
        EXPECT_EQ(strExpected, g.Limits()) << c.pszWhat;
        const CPoint mid((a.x + b.x) / 2, (a.y + b.y) / 2);
        EXPECT_EQ(Lines({ Str("mouse 201 %ld,%ld", g.Screen(a).x, g.Screen(a).y),
                          Str("mouse 200 %ld,%ld", g.Screen(mid).x, g.Screen(mid).y),
                          Str("mouse 200 %ld,%ld", g.Screen(b).x, g.Screen(b).y), "event 128",
                          Str("mouse 202 %ld,%ld", g.Screen(b).x, g.Screen(b).y) }),
                  g.Heard())
            << c.pszWhat;
        EXPECT_TRUE(::GetUpdateRect(g.Hwnd(), NULL, FALSE)) << c.pszWhat;   // a repaint is due
        ExpectPointerFree(c.pszWhat);
    }
}

TEST(Zoom, BoxesThatChangeNothingAndTheBandOnTheWindow)
{
    MouseGraph g;
    const CRect& r = g.m_rectPlot;
    const int H = r.Height(), W = r.Width();
    const CPoint a = r.TopLeft() + CPoint(10, 10);
    const std::string strBefore = g.Limits();

    // While dragging, the outline inverts the plot's pixels; a refused box
    // takes it away at once, with no code and no repaint.
    const CPoint onEdge(a.x + W / 40, a.y);
    ASSERT_EQ(WHITE, WindowPixel(g.Hwnd(), onEdge));
    g.Drag(a, a + CPoint(W / 20, H / 20), false);
    EXPECT_EQ(RGB(0, 0, 0), WindowPixel(g.Hwnd(), onEdge));
    ::ValidateRect(g.Hwnd(), NULL);
    g.Send(WM_LBUTTONUP, a + CPoint(W / 20, H / 20));
    EXPECT_EQ(WHITE, WindowPixel(g.Hwnd(), onEdge));
    EXPECT_FALSE(::GetUpdateRect(g.Hwnd(), NULL, FALSE));

    // One pixel, a pure horizontal drag, a release outside the graph, a move
    // without the button: nothing changes.
    g.Drag(a, a);
    g.Drag(a, a + CPoint(W / 2, 0));
    g.Drag(a, a + CPoint(W / 2, H / 2), false);
    g.Send(WM_LBUTTONUP, CPoint(-40, -40));
    ExpectPointerFree("released outside");
    g.Drag(a, a + CPoint(W / 2, H / 2), false);
    g.Send(WM_MOUSEMOVE, a + CPoint(W / 2, H / 2));
    g.Send(WM_LBUTTONUP, a + CPoint(W / 2, H / 2));
    ::ReleaseCapture();
    EXPECT_EQ(strBefore, g.Limits());
    const std::vector<std::string> heard = g.Heard();
    EXPECT_EQ(0, std::count(heard.begin(), heard.end(), "event 128"));

    // The free corner stays in the plot; a box one pixel wide but tall
    // enough is taken, X held at its smallest span (the format's 0.1).
    g.Drag(a, r.BottomRight() + CPoint(50, 50));
    double dMin = 0, dMax = 0, dLow = 0, dHigh = 0;
    g.m_graph.GetYAxisLimits(&dLow, &dHigh, 0);
    EXPECT_DOUBLE_EQ(0.0, dLow);
    g.Drag(a, a + CPoint(1, H / 20 + 1));
    g.m_graph.GetXAxisLimits(&dMin, &dMax);
    EXPECT_NEAR(0.1, dMax - dMin, 1e-6);

    // Turning the zoom off during a drag does not end it.
    g.m_graph.SetXAxisLimits(0.0, 10.0);
    g.Drag(a, a + CPoint(W / 2, H / 2), false);
    g.m_graph.EnableZoom(FALSE);
    g.Send(WM_LBUTTONUP, a + CPoint(W / 2, H / 2));
    g.m_graph.GetXAxisLimits(&dMin, &dMax);
    EXPECT_LT(dMax - dMin, 6.0);
}

TEST(DoubleClick, ScalesToTheDataAndTellsTheHostFirst)
{
    MouseGraph g;
    static float afX[] = { 0, 2, 5 }, afY[] = { 1, 3, 2 };
    g.m_graph.AddPlotData("s", PLOT_YLEFT, afX, afY, 3, RGB(0, 0, 255), PS_SOLID, 0);
    const CPoint ptIn = g.m_rectPlot.CenterPoint(), sIn = g.Screen(ptIn);
    g.Heard();
    g.Send(WM_LBUTTONDBLCLK, ptIn, MK_LBUTTON);
    EXPECT_EQ("x 0 5 | yl 0.8 3.2 | yr 0 100", g.Limits());   // 10 % of the Y span on each side
    EXPECT_EQ(Lines({ "event 64", Str("mouse 203 %ld,%ld", sIn.x, sIn.y) }), g.Heard());

    // With only the double-click bit in the mask the event codes stay away.
    g.m_graph.EnableNotifications(&g.m_sink, GN_LDBLCLK);
    g.Send(WM_LBUTTONDBLCLK, ptIn, MK_LBUTTON);
    EXPECT_EQ(Lines({ Str("mouse 203 %ld,%ld", sIn.x, sIn.y) }), g.Heard());

    // Off, or outside the plot: no scaling.
    g.m_graph.SetXAxisLimits(1.0, 2.0);
    g.m_graph.EnableRadarDblClick(0);
    g.Send(WM_LBUTTONDBLCLK, ptIn, MK_LBUTTON);
    g.m_graph.EnableRadarDblClick(1);
    g.Send(WM_LBUTTONDBLCLK, CPoint(ptIn.x, g.m_rectPlot.top - 3), MK_LBUTTON);
    EXPECT_EQ("x 1 2 | yl 0.8 3.2 | yr 0 100", g.Limits());

    // After a zoom, a radar type of X alone brings X back and leaves Y.
    g.Drag(g.m_rectPlot.TopLeft() + CPoint(10, 10), g.m_rectPlot.CenterPoint());
    const std::string strZoomedY = g.Limits().substr(g.Limits().find('|'));
    g.m_graph.SetRadarType(RADAR_X);
    g.Send(WM_LBUTTONDBLCLK, ptIn, MK_LBUTTON);
    EXPECT_EQ("x 0 5 " + strZoomedY, g.Limits());
}

TEST(LimitEditor, AClickOnALimitOpensItsBox)
{
    MouseGraph g;
    CGraphPrv* p = g.Prv();
    LOGFONT lf = p->m_logFont;
    g.m_graph.SetLogFont(&lf, 80, RGB(0, 0, 200));
    g.Paint();
    const CRect rectLimit = p->m_rectLimit[LIMIT_YLEFT_MAX];
    const CPoint pt = rectLimit.CenterPoint();
    g.Heard();
    g.Click(pt);

    // Box 1048 over the top number of the left axis: focus, the limit's
    // text selected, at most 10 characters, three digits wider to the left.
    HWND hEdit = ::GetDlgItem(g.Hwnd(), IDC_LIMIT_EDIT_YLEFT_MAX);
    ASSERT_TRUE(hEdit != NULL);
    EXPECT_EQ(hEdit, ::GetFocus());
    EXPECT_EQ("10.0", TextOf(hEdit));
    EXPECT_EQ(MAKELONG(0, 4), (DWORD)::SendMessageA(hEdit, EM_GETSEL, 0, 0));
    EXPECT_EQ(10, (int)::SendMessageA(hEdit, EM_GETLIMITTEXT, 0, 0));
    CRect rectEdit;
    ::GetWindowRect(hEdit, &rectEdit);
    ::MapWindowPoints(NULL, g.Hwnd(), (LPPOINT)&rectEdit, 2);
    HDC hDC = ::GetDC(g.Hwnd());
    HGDIOBJ hOld = ::SelectObject(hDC, p->m_font.m_hObject);
    SIZE size;
    ::GetTextExtentPoint32A(hDC, "0123456789", 10, &size);
    ::SelectObject(hDC, hOld);
    ::ReleaseDC(g.Hwnd(), hDC);
    EXPECT_EQ(CRect(rectLimit.left - 3 * (size.cx / 10 - 2), rectLimit.top, rectLimit.right, rectLimit.bottom),
              rectEdit);
    EXPECT_EQ(Lines({ Str("mouse 201 %ld,%ld", g.Screen(pt).x, g.Screen(pt).y),
                      Str("mouse 202 %ld,%ld", g.Screen(pt).x, g.Screen(pt).y) }),
              g.Heard());

    // It writes in the graph's text colour; the static children's brush is
    // made once.
    Dib dib(4, 4);
    ::SendMessageA(g.Hwnd(), WM_CTLCOLOREDIT, (WPARAM)dib.DC()->m_hDC, (LPARAM)hEdit);
    EXPECT_EQ(RGB(0, 0, 200), ::GetTextColor(dib.DC()->m_hDC));
    const LONG nLive = CGdiObject::GetLiveCount();
    const LRESULT hBrush = ::SendMessageA(g.Hwnd(), WM_CTLCOLORSTATIC, (WPARAM)dib.DC()->m_hDC, (LPARAM)hEdit);
    EXPECT_EQ(hBrush, ::SendMessageA(g.Hwnd(), WM_CTLCOLORSTATIC, (WPARAM)dib.DC()->m_hDC, (LPARAM)hEdit));
    EXPECT_LE(CGdiObject::GetLiveCount(), nLive + 1);

    // Return sets the limit and tells the host; the box is gone.
    Type(hEdit, "5\r");
    EXPECT_EQ("x 0 10 | yl 0 5 | yr 0 100", g.Limits());
    EXPECT_TRUE(::GetDlgItem(g.Hwnd(), IDC_LIMIT_EDIT_YLEFT_MAX) == NULL);
    EXPECT_EQ(Lines({ "event 1" }), g.Heard());

    // The next press only ends the editing; the drag after it zooms.
    const CPoint a = g.m_rectPlot.TopLeft() + CPoint(10, 10), b = g.m_rectPlot.CenterPoint();
    g.Drag(a, b);
    EXPECT_EQ("x 0 10 | yl 0 5 | yr 0 100", g.Limits());
    g.Drag(a, b);
    EXPECT_NE("x 0 10 | yl 0 5 | yr 0 100", g.Limits());
}
