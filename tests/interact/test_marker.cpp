// The marker line: set up, placed and snapped by the host, held and dragged
// with real mouse messages, heard by a host window through its variables and
// the two moved messages, and seen as inverted pixels on the window.
#include "MouseGraph.h"
#include "TestAccess.h"
#include "interact/MarkerLine.h"
#include "resources/messages.h"
#include "resources/resource.h"

namespace {

// The host's window: records each moved message with the host's two
// variables as they stand when it arrives.
class MarkerHost : public CWnd
{
public:
    explicit MarkerHost(CWnd* pParent)
    {
        CreateEx(0, AfxRegisterWndClass(0, NULL, NULL, NULL), "", WS_CHILD, 0, 0, 1, 1, pParent->m_hWnd, NULL);
    }
    virtual LRESULT WindowProc(UINT nMsg, WPARAM wParam, LPARAM lParam)
    {
        if (nMsg == WM_GRAPH_MARKER1MOVED || nMsg == WM_GRAPH_MARKER2MOVED)
            m_heard.push_back(Str("%u %g,%g", nMsg, m_d1, m_d2));
        return CWnd::WindowProc(nMsg, wParam, lParam);
    }
    std::vector<std::string> Heard()
    {
        std::vector<std::string> heard;
        heard.swap(m_heard);
        return heard;
    }
    double m_d1 = 0, m_d2 = 0;
    std::vector<std::string> m_heard;
};

// A graph window without grid, with a series "s" at X 0, 1, ... 10 that
// draws no line, and a host window: the plot is white but for the marker.
class MarkerGraph : public MouseGraph
{
public:
    MarkerGraph() : m_wnd(m_host.Wnd())
    {
        for (int i = 0; i <= 10; i++)
            m_afX[i] = (float)i, m_afY[i] = 5.0f;
        m_graph.AddPlotData("s", PLOT_YLEFT, m_afX, m_afY, 11, BLUE, LINESTYLE_NONE, 0);
        m_graph.SetGridAttributes(GRID_NONE, BLACK, PS_SOLID);
        Paint();
    }
    int Px(double x) { return m_graph.DataToPixelX(x); }
    int Py(double y) { return m_graph.DataToPixelY(y, 0); }
    CPoint AtX(double x) { return CPoint(Px(x), m_rectPlot.CenterPoint().y); }

    // The pixels of the plot's middle row (or column), away from the frame
    // and its tics, that the window does not show white: the lines.
    std::vector<int> Lines(bool bColumn = false)
    {
        std::vector<int> lines;
        HDC hDC = ::GetDC(Hwnd());
        const CPoint c = m_rectPlot.CenterPoint();
        const int nFirst = (bColumn ? m_rectPlot.top : m_rectPlot.left) + 10;
        const int nLast = (bColumn ? m_rectPlot.bottom : m_rectPlot.right) - 10;
        for (int i = nFirst; i <= nLast; i++)
            if (::GetPixel(hDC, bColumn ? c.x : i, bColumn ? i : c.y) != WHITE)
                lines.push_back(i);
        ::ReleaseDC(Hwnd(), hDC);
        return lines;
    }
    // Hover near a line, then drag it from there.
    void DragLine(CPoint a, CPoint b)
    {
        Send(WM_MOUSEMOVE, a);
        Drag(a, b);
    }
    HWND Tip() { return ::GetDlgItem(Hwnd(), IDC_MARKER_VALUE_TIP); }

    MarkerHost m_wnd;
    float m_afX[11], m_afY[11];
};

std::vector<int> V(std::initializer_list<int> l) { return std::vector<int>(l); }
std::vector<std::string> S(std::initializer_list<std::string> l) { return std::vector<std::string>(l); }

} // namespace

TEST(MarkerLine, StatusesSetUpAndSnapping)
{
    CanvasGraph noPlot(400, 300, GS_NOPLOT);
    double d1 = 1, d2 = 2;
    EXPECT_EQ(GRAPH_NOTAVAILABLE, noPlot.m_graph.AddMarkerLine(NULL, ML_SINGLE | ML_HORIZONTAL, "", &d1, &d2, FALSE));

    MarkerGraph g;
    CGraph& gr = g.m_graph;
    long lStyle = 0;
    CString strSeries;
    EXPECT_EQ(GRAPH_NOMARKER, gr.RemoveMarkerLine());
    EXPECT_EQ(GRAPH_NOMARKER, gr.SetMarkerLinePos(1, &d1));
    EXPECT_EQ(GRAPH_NOMARKER, gr.GetMarkerLinePos(d1, d2));
    EXPECT_EQ(GRAPH_NOMARKER, gr.GetMarkerLineStyle(lStyle, strSeries));
    EXPECT_EQ(GRAPH_BADARG, gr.AddMarkerLine(&g.m_wnd, ML_HORIZONTAL, "", &d1, &d2, FALSE));
    EXPECT_EQ(GRAPH_NOSERIES, gr.AddMarkerLine(&g.m_wnd, ML_DOUBLE, "t", &d1, &d2, FALSE));
    EXPECT_EQ(0, gr.IsMarkerLineEnabled());

    // Given in the wrong order: swapped first; line 1 stands where the host
    // said and only its variable snaps, line 2 snaps at once.
    g.m_wnd.m_d1 = 7.2, g.m_wnd.m_d2 = 2.6;
    ASSERT_EQ(GRAPH_OK, gr.AddMarkerLine(&g.m_wnd, ML_DOUBLE | ML_SINGLE, "s", &g.m_wnd.m_d1, &g.m_wnd.m_d2, FALSE));
    EXPECT_EQ(GRAPH_MARKEREXISTS, gr.AddMarkerLine(&g.m_wnd, ML_SINGLE | ML_HORIZONTAL, "", &d1, &d2, FALSE));
    EXPECT_EQ(1, gr.IsMarkerLineEnabled());
    EXPECT_EQ(3.0, g.m_wnd.m_d1);
    EXPECT_EQ(7.0, g.m_wnd.m_d2);
    EXPECT_EQ(V({ g.Px(2.6), g.Px(7) }), g.Lines());
    EXPECT_EQ(GRAPH_OK, gr.GetMarkerLineStyle(lStyle, strSeries));
    EXPECT_EQ(ML_DOUBLE | ML_SINGLE, lStyle);
    EXPECT_EQ("s", std::string(strSeries));

    // Snapping in sample steps, within 0.4 step of an end the end; line 3
    // only snaps the value.
    const double adIn[] = { 2.6, 2.4, 0.35, 0.45, 9.55, 9.65, -5, 50 }, adOut[] = { 3, 2, 0, 0, 10, 10, 0, 10 };
    for (int i = 0; i < 8; i++) {
        double d = adIn[i];
        EXPECT_EQ(GRAPH_OK, gr.SetMarkerLinePos(3, &d));
        EXPECT_EQ(adOut[i], d) << adIn[i];
    }

    // Scaled far out, the two values fall on one pixel: one line; back, two
    // (line 3 above changed nothing).
    CGraphTestAccess::sg_xrange(g.Prv(), 1e6, -5e5);
    g.Paint();
    EXPECT_EQ(V({ g.Px(7) }), g.Lines());
    CGraphTestAccess::sg_xrange(g.Prv(), 10.0, 0.0);
    g.Paint();
    EXPECT_EQ(V({ g.Px(2.6), g.Px(7) }), g.Lines());

    // Line 2 set onto line 1's pixel shows one line; the host's variables
    // are not written by SetMarkerLinePos.
    d1 = 4.4;
    EXPECT_EQ(GRAPH_OK, gr.SetMarkerLinePos(1, &d1));
    EXPECT_EQ(4.0, d1);
    d2 = 4.2;
    gr.SetMarkerLinePos(2, &d2);
    EXPECT_EQ(V({ g.Px(4) }), g.Lines());
    EXPECT_EQ(GRAPH_OK, gr.GetMarkerLinePos(d1, d2));
    EXPECT_EQ(3.0, d1);
    EXPECT_EQ(7.0, d2);

    // New limits move the lines with their values (through a paint, or at
    // once through the scaling's setter); a line beyond them is not drawn.
    gr.SetXAxisLimits(0.0, 20.0);
    g.Paint();
    EXPECT_EQ(V({ g.Px(4) }), g.Lines());
    CGraphTestAccess::sg_xrange(g.Prv(), 5.0, 0.0);
    EXPECT_EQ(g.Px(4), g.Prv()->m_pMarkerLine->m_nPixel1);
    gr.SetXAxisLimits(0.0, 3.0);
    g.Paint();
    EXPECT_EQ(V({}), g.Lines());

    // A series whose X falls counts from its larger end; uneven or short
    // series keep the index within the samples.
    gr.SetXAxisLimits(0.0, 10.0);
    g.Paint();
    float afFalling[11], afUneven[] = { 0, 1, 5 };
    for (int i = 0; i <= 10; i++)
        afFalling[i] = (float)(10 - i);
    const struct { float* pfX; long lPoints; double dIn, dOut; } series[] = {
        { afFalling, 11, 2.6, 3 }, { afFalling, 11, 0.45, 0 }, { afFalling, 11, 9.7, 10 },
        { afUneven, 3, 4.0, 5 },   { afUneven, 1, 8.0, 0 },
    };
    for (const auto& c : series) {
        gr.UpdatePlotData("s", c.pfX, g.m_afY, 0, c.lPoints);
        double d = c.dIn;
        gr.SetMarkerLinePos(3, &d);
        EXPECT_EQ(c.dOut, d) << c.lPoints << " " << c.dIn;
    }

    // The series goes, and the marker with it, off the screen.
    EXPECT_EQ(GRAPH_OK, gr.RemovePlotData("s"));
    EXPECT_EQ(0, gr.IsMarkerLineEnabled());
    EXPECT_EQ(V({}), g.Lines());
}

TEST(MarkerLine, DraggingSnapsCrossesCoincidesAndTellsTheHost)
{
    MarkerGraph g;
    MarkerHost& h = g.m_wnd;
    h.m_d1 = 3, h.m_d2 = 7;
    ASSERT_EQ(GRAPH_OK, g.m_graph.AddMarkerLine(&h, ML_DOUBLE, "s", &h.m_d1, &h.m_d2, FALSE));

    // A hover near a line takes hold and shows the sizing arrows; a click
    // without a move tells nothing.
    g.Send(WM_MOUSEMOVE, g.AtX(3) + CPoint(4, 0));
    EXPECT_TRUE(g.Prv()->m_dwState & GST_MARKER_ACTIVE);
    EXPECT_EQ(::LoadCursorA(NULL, (LPCSTR)IDC_SIZEWE), ::GetCursor());
    g.Click(g.AtX(3));
    EXPECT_EQ(S({}), h.Heard());
    EXPECT_EQ(3.0, h.m_d1);

    // A drag snaps to the samples; the variable follows every step, the
    // messages come at the release only, both, in order.
    g.Drag(g.AtX(3), g.AtX(5.3), false);
    EXPECT_EQ(5.0, h.m_d1);
    EXPECT_EQ("   5.000", TextOf(g.Tip()));
    EXPECT_EQ(S({}), h.Heard());
    g.Send(WM_LBUTTONUP, g.AtX(5.3));
    EXPECT_EQ(S({ "1324 5,7", "1325 5,7" }), h.Heard());
    EXPECT_TRUE(g.Tip() == NULL);
    EXPECT_EQ(V({ g.Px(5), g.Px(7) }), g.Lines());

    // Dragged past line 2 it becomes line 2: the host gets lower, upper.
    g.DragLine(g.AtX(5), g.AtX(9));
    EXPECT_EQ(S({ "1324 7,9", "1325 7,9" }), h.Heard());
    EXPECT_EQ(V({ g.Px(7), g.Px(9) }), g.Lines());

    // Onto the other line: one line; the pointer there takes line 2, and
    // moving it away shows two lines again, without a gap.
    g.DragLine(g.AtX(9), g.AtX(7));
    EXPECT_EQ(V({ g.Px(7) }), g.Lines());
    g.Send(WM_MOUSEMOVE, g.AtX(1));
    EXPECT_FALSE(g.Prv()->m_dwState & GST_MARKER_ACTIVE);
    g.Send(WM_MOUSEMOVE, g.AtX(7));
    EXPECT_TRUE(g.Prv()->m_pMarkerLine->m_bActive2);
    h.Heard();
    g.Drag(g.AtX(7), g.AtX(8));
    EXPECT_EQ(S({ "1324 7,8", "1325 7,8" }), h.Heard());
    EXPECT_EQ(V({ g.Px(7), g.Px(8) }), g.Lines());

    // Leaving the plot drops the hold; removing takes the lines away.
    g.Send(WM_MOUSEMOVE, g.AtX(8));
    g.Send(WM_MOUSEMOVE, CPoint(2, 2));
    EXPECT_FALSE(g.Prv()->m_dwState & GST_MARKER_ACTIVE);
    EXPECT_EQ(GRAPH_OK, g.m_graph.RemoveMarkerLine());
    EXPECT_EQ(V({}), g.Lines());
}

TEST(MarkerLine, HorizontalLinesSwapOnTheFirstStepAndContinuousDrags)
{
    MarkerGraph g;
    MarkerHost& h = g.m_wnd;

    // By value line 1 is the lower one, by pixel the upper: the first step
    // swaps them. Continuous: each step is heard, then both at the release.
    h.m_d1 = 8, h.m_d2 = 2;
    ASSERT_EQ(GRAPH_OK, g.m_graph.AddMarkerLine(&h, ML_DOUBLE | ML_HORIZONTAL, "", &h.m_d1, &h.m_d2, TRUE));
    EXPECT_EQ(2.0, h.m_d1);
    EXPECT_EQ(V({ g.Py(8), g.Py(2) }), g.Lines(true));
    const int x = g.m_rectPlot.CenterPoint().x;
    g.DragLine(CPoint(x, g.Py(2)), CPoint(x, g.Py(3)));
    const std::vector<std::string> heard = h.Heard();
    ASSERT_EQ(4u, heard.size());
    EXPECT_EQ("1324", heard[0].substr(0, 4));
    EXPECT_EQ("1325", heard[1].substr(0, 4));
    EXPECT_EQ(Str("1324 8,%g", h.m_d2), heard[2]);
    EXPECT_EQ(Str("1325 8,%g", h.m_d2), heard[3]);
    EXPECT_NEAR(3.0, h.m_d2, 0.1);
    EXPECT_EQ(V({ g.Py(8), g.Py(3) }), g.Lines(true));
    EXPECT_EQ(GRAPH_OK, g.m_graph.RemoveMarkerLine());

    // A single line on the right axis: its value tip stands right of the
    // plot, and reading the positions leaves the second one alone.
    h.m_d1 = 50, h.m_d2 = -1;
    double dSecond = 1234;
    ASSERT_EQ(GRAPH_OK, g.m_graph.AddMarkerLine(&h, ML_SINGLE | ML_HORIZONTAL | ML_RIGHTAXIS, "", &h.m_d1, NULL, TRUE));
    const int y = g.m_graph.DataToPixelY(50, 1);
    g.Send(WM_MOUSEMOVE, CPoint(x, y));
    g.Drag(CPoint(x, y), CPoint(x, y - 20), false);
    CRect rectTip;
    ::GetWindowRect(g.Tip(), &rectTip);
    ::ScreenToClient(g.Hwnd(), (POINT*)&rectTip);
    EXPECT_EQ(g.m_rectPlot.right + 2, rectTip.left);
    g.Send(WM_LBUTTONUP, CPoint(x, y - 20));
    EXPECT_EQ(3u, h.Heard().size());   // two steps and the release
    EXPECT_EQ(GRAPH_OK, g.m_graph.GetMarkerLinePos(h.m_d1, dSecond));
    EXPECT_EQ(1234.0, dSecond);
    EXPECT_GT(h.m_d1, 50.0);
}

TEST(MarkerLine, HundredsOfMarkersLeaveNoGdiObjects)
{
    MarkerGraph g;
    double d1, d2;
    const LONG nBefore = CGdiObject::GetLiveCount();
    for (int i = 0; i < 300; i++) {
        const long lStyle = i % 2 ? ML_DOUBLE : ML_SINGLE | ML_HORIZONTAL;
        d1 = 2, d2 = 6;
        ASSERT_EQ(GRAPH_OK, g.m_graph.AddMarkerLine(&g.m_wnd, lStyle, "s", &d1, &d2, FALSE));
        if (i % 50 == 1) {   // a drag, with its value tip, now and then
            g.Paint();
            g.DragLine(g.AtX(2), g.AtX(4));
        }
        ASSERT_EQ(GRAPH_OK, g.m_graph.RemoveMarkerLine());
    }
    EXPECT_EQ(nBefore, CGdiObject::GetLiveCount());
}
