// The legend: a sorted list of the series beside the graph that hides
// itself as a sliver, slides out when the pointer rests on it and back when
// it has left; docked, it takes its room from the graph on any side.
#include "MouseGraph.h"
#include "render/AnnotationMark.h"
#include "resources/messages.h"
#include "resources/resource.h"

namespace {

HWND LegendOf(MouseGraph& g)
{
    return ::FindWindowExA(g.Hwnd(), NULL, "ListBox", "Legend");
}

// The legend's rectangle in the graph's client coordinates.
CRect Placed(HWND hLegend)
{
    CRect rect;
    ::GetWindowRect(hLegend, &rect);
    ::MapWindowPoints(NULL, ::GetParent(hLegend), (LPPOINT)&rect, 2);
    return rect;
}

LRESULT HitTest(HWND hLegend, int x, int y)
{
    return ::SendMessageA(hLegend, WM_NCHITTEST, 0, MAKELPARAM(x, y));
}

// The pointer rests on the legend: a move over it, then the reveal delay.
void RestOn(HWND hLegend)
{
    CRect rect;
    ::GetWindowRect(hLegend, &rect);
    ::SetCursorPos(rect.CenterPoint().x, rect.CenterPoint().y);
    HitTest(hLegend, rect.CenterPoint().x, rect.CenterPoint().y);
    MouseGraph::PumpFor(300);
}

HWND s_hReleased;

void CALLBACK PostRelease(HWND, UINT, UINT_PTR nTimer, DWORD)
{
    ::KillTimer(NULL, nTimer);
    ::PostMessageA(s_hReleased, WM_LBUTTONUP, 0, 0);
}

void PointerAway(MouseGraph& g)
{
    const CPoint pt = g.Screen(CPoint(20, 20));
    ::SetCursorPos(pt.x, pt.y);
}

} // namespace

TEST(Legend, OpensSlidesAwayAndShowsTheSeriesSorted)
{
    MouseGraph g;
    g.m_graph.SetBackgroundColor(BACKGROUND);
    static float afX[] = { 0, 10 }, afY[] = { 5, 5 };
    g.m_graph.AddPlotData("b", PLOT_YLEFT, afX, afY, 2, BLUE, PS_SOLID, 0);
    g.m_graph.AddPlotData("a", PLOT_YLEFT, afX, afY, 2, MAGENTA, PS_SOLID, MARK_SQUARE);
    HWND hLegend = LegendOf(g);
    ASSERT_TRUE(hLegend != NULL);
    EXPECT_FALSE(::IsWindowVisible(hLegend));
    EXPECT_EQ(0, g.m_graph.IsLegendVisible());
    EXPECT_EQ(LEGEND_RIGHT, g.Prv()->m_legend.GetPosition());

    // On: it opens and slides away at once, over 400 ms of the clock, to a
    // sliver at the right edge; the plot keeps its place.
    PointerAway(g);
    const CRect rectPlot = g.m_rectPlot;
    const DWORD t0 = ::GetTickCount();
    g.m_graph.ShowLegend(TRUE);
    EXPECT_GE(::GetTickCount() - t0, 400u);
    EXPECT_TRUE(::IsWindowVisible(hLegend));
    EXPECT_EQ(1, g.m_graph.IsLegendVisible());
    EXPECT_TRUE(g.Prv()->m_legend.m_bHidden);
    EXPECT_EQ(400 - ::GetSystemMetrics(SM_CXFRAME) - 1, Placed(hLegend).left);
    EXPECT_EQ(rectPlot, g.Prv()->m_rectPlot);

    // Sorted by name, 20 pixels an entry; an entry the list cannot take
    // memory for is left out quietly.
    char sz[16];
    ::SendMessageA(hLegend, LB_GETTEXT, 0, (LPARAM)sz);
    EXPECT_STREQ("a", sz);
    ::SendMessageA(hLegend, LB_GETTEXT, 1, (LPARAM)sz);
    EXPECT_STREQ("b", sz);
    EXPECT_EQ(20, ::SendMessageA(hLegend, LB_GETITEMHEIGHT, 1, 0));
    AfxSetAllocFailure(0);
    EXPECT_FALSE(g.Prv()->m_legend.AddEntry("c", BLUE, PS_SOLID, 1, 0, WHITE));
    AfxSetAllocFailure(-1);
    EXPECT_EQ(2, ::SendMessageA(hLegend, LB_GETCOUNT, 0, 0));

    // The samples, printed from the open list: a black box filled with the
    // graph's background, the line through its middle, the mark on it.
    RestOn(hLegend);
    Dib dib(200, 60, WHITE);
    ::SendMessageA(hLegend, WM_PRINTCLIENT, (WPARAM)dib.DC()->m_hDC, PRF_CLIENT);
    EXPECT_EQ(BLACK, dib.At(5, 22));          // frame of the second box
    EXPECT_EQ(BACKGROUND, dib.At(8, 25));     // inside it
    EXPECT_EQ(BLUE, dib.At(8, 30));           // its line, at the box's middle
    EXPECT_EQ(BACKGROUND, dib.At(20, 25));    // no mark on "b"
    EXPECT_EQ(MAGENTA, dib.At(20, 10));       // the square of "a"
    EXPECT_EQ(MAGENTA, dib.At(20, 7));
    EXPECT_EQ(BACKGROUND, dib.At(30, 7));
}

TEST(Legend, RestingOpensLeavingClosesButNotDuringItsMenuOrADrag)
{
    MouseGraph g;
    HWND hLegend = LegendOf(g);
    PointerAway(g);
    g.m_graph.ShowLegend(TRUE);
    RestOn(hLegend);
    CLegend& legend = g.Prv()->m_legend;
    ASSERT_FALSE(legend.m_bHidden);
    EXPECT_EQ(CRect(300, 0, 400, 300), Placed(hLegend));

    // Only the border facing the plot sizes it; the outer ones are client.
    CRect rect;
    ::GetWindowRect(hLegend, &rect);
    const int yMid = rect.CenterPoint().y;
    EXPECT_EQ(HTLEFT, HitTest(hLegend, rect.left + 1, yMid));
    EXPECT_EQ(HTCLIENT, HitTest(hLegend, rect.right - 2, yMid));
    EXPECT_EQ(HTCLIENT, HitTest(hLegend, rect.CenterPoint().x, rect.top + 1));
    EXPECT_EQ(HTCLIENT, HitTest(hLegend, rect.left + 1, rect.top + 1));

    // Its menu stays up for 750 ms with the pointer away: the legend stays
    // open, and the menu checks the present side.
    PointerAway(g);
    {
        MenuReader reader(0, 25);
        ::SendMessageA(hLegend, WM_RBUTTONUP, 0, MAKELPARAM(10, 10));
        EXPECT_EQ(6u, reader.m_items.size());
        if (reader.m_items.size() == 6) {
            EXPECT_EQ(Str("%s|%u checked", (LPCSTR)AnsiOf(L"右边(&H)"), ID_GRAPH_LEGEND_RIGHT), reader.m_items[3]);
            EXPECT_EQ(Str("%s|%u", (LPCSTR)AnsiOf(L"顶端(&T)"), ID_GRAPH_LEGEND_TOP), reader.m_items[0]);
        }
    }
    EXPECT_FALSE(legend.m_bHidden);
    EXPECT_FALSE(legend.m_bInMenu);

    // A drag of its frame: the system's sizing loop runs until a release
    // arrives 750 ms later; the legend stays open meanwhile.
    s_hReleased = hLegend;
    ::SetTimer(NULL, 0, 750, PostRelease);
    ::SendMessageA(hLegend, WM_NCLBUTTONDOWN, HTLEFT, MAKELPARAM(rect.left + 1, yMid));
    EXPECT_TRUE(legend.m_bSizing);
    EXPECT_FALSE(legend.m_bHidden);

    // The pointer on the frame ends the drag; the next tick closes it.
    ::SendMessageA(hLegend, WM_NCMOUSEMOVE, HTLEFT, MAKELPARAM(rect.left + 1, yMid));
    EXPECT_FALSE(legend.m_bSizing);
    MouseGraph::PumpFor(1000);
    EXPECT_TRUE(legend.m_bHidden);
    EXPECT_EQ(400 - ::GetSystemMetrics(SM_CXFRAME) - 1, Placed(hLegend).left);
}

TEST(Legend, ADockedLegendTakesItsRoomOnEachSide)
{
    MouseGraph g;
    HWND hLegend = LegendOf(g);
    CGraphPrv* p = g.Prv();
    p->m_legend.m_bAutoHide = FALSE;
    g.m_graph.ShowLegend(TRUE);
    EXPECT_EQ(CRect(300, 0, 400, 300), Placed(hLegend));
    EXPECT_EQ(300, p->m_rectGraph.right);
    EXPECT_LT(p->m_rectPlot.right, 300);

    // Sized at its inner edge: the width alone is kept, and the graph follows.
    ::SetWindowPos(hLegend, NULL, 250, 0, 150, 300, SWP_NOZORDER | SWP_NOACTIVATE);
    TestHost::Pump();
    EXPECT_EQ(150, p->m_legend.m_nWidth);
    EXPECT_EQ(50, p->m_legend.m_nHeight);
    EXPECT_EQ(250, p->m_rectGraph.right);

    // Each side from its menu's command, with the size kept for that side.
    const struct { UINT nId; CRect rectLegend, rectGraph; } sides[] = {
        { ID_GRAPH_LEGEND_TOP, CRect(0, 0, 400, 50), CRect(0, 50, 400, 300) },
        { ID_GRAPH_LEGEND_BOTTOM, CRect(0, 250, 400, 300), CRect(0, 0, 400, 250) },
        { ID_GRAPH_LEGEND_LEFT, CRect(0, 0, 150, 300), CRect(150, 0, 400, 300) },
        { ID_GRAPH_LEGEND_RIGHT, CRect(250, 0, 400, 300), CRect(0, 0, 250, 300) },
    };
    for (const auto& side : sides) {
        ::SendMessageA(hLegend, WM_COMMAND, side.nId, 0);
        TestHost::Pump();
        EXPECT_EQ(side.rectLegend, Placed(hLegend)) << side.nId;
        EXPECT_EQ(side.rectGraph, p->m_rectGraph) << side.nId;
        EXPECT_TRUE(side.rectGraph.PtInRect(p->m_rectPlot.TopLeft())) << side.nId;
    }

    // The present side again and showing it again lay the graph out: a
    // spoiled plot rectangle comes back. (The properties entry opens the
    // legend's sheet; the sheet tests drive it.)
    const CRect rectPlot = p->m_rectPlot;
    for (UINT nId : { (UINT)ID_GRAPH_LEGEND_RIGHT, 0u }) {
        p->m_rectPlot.SetRect(1, 1, 2, 2);
        if (nId != 0)
            ::SendMessageA(hLegend, WM_COMMAND, nId, 0);
        else
            g.m_graph.ShowLegend(TRUE);
        TestHost::Pump();
        EXPECT_EQ(rectPlot, p->m_rectPlot) << nId;
    }

    // The toggle takes it off and gives the room back.
    g.m_graph.ShowLegend();
    EXPECT_FALSE(::IsWindowVisible(hLegend));
    EXPECT_EQ(400, p->m_rectGraph.right);
}
