// Notifications: a sink of the test's own records every call; the tests
// check the gates of the mask, the control identifier, the screen
// coordinates of mouse events and the calls that ignore the mask.
#include "AxesTestUtil.h"

#include <vector>

namespace {

struct Call
{
    enum Kind { Mouse, Event, Page, Command, ContextMenu } kind;
    UINT nId;
    UINT a;      // message, code, page, wParam
    UINT b;      // flags, lParam
    CPoint pt;
};

class RecordingSink : public CGraphNotify
{
public:
    void OnGraphMouse(UINT nId, UINT nMessage, UINT nFlags, CPoint ptScreen) override
        { m_calls.push_back({ Call::Mouse, nId, nMessage, nFlags, ptScreen }); }
    void OnGraphEvent(UINT nId, int nCode) override
        { m_calls.push_back({ Call::Event, nId, (UINT)nCode, 0, CPoint() }); }
    void OnGraphPage(UINT nId, UINT nPageId) override
        { m_calls.push_back({ Call::Page, nId, nPageId, 0, CPoint() }); }
    void OnGraphCommand(UINT nId, UINT wParam, long lParam) override
        { m_calls.push_back({ Call::Command, nId, wParam, (UINT)lParam, CPoint() }); }
    void OnGraphContextMenu(UINT nId, CPoint ptScreen) override
        { m_calls.push_back({ Call::ContextMenu, nId, 0, 0, ptScreen }); }

    std::vector<Call> m_calls;
};

const int g_codes[] = { GN_LIMITS, GN_RESERVED2, GN_RADAR, GN_ZOOM, GN_LINECOLORS, GN_APPEARANCE, GN_SETTINGS, GN_COPY };
const UINT g_mouse[] = { WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN, WM_RBUTTONUP };

// A graph window placed away from its parent's corner, with control id 4321.
struct NotifyGraph
{
    NotifyGraph() : m_host(800, 600)
    {
        CRect rect(30, 40, 430, 340);
        m_graph.CreateGraph(m_host.Wnd(), NULL, rect, 0, 4321, 63);
        m_graph.ShowGraph();
        TestHost::Pump();
    }
    CGraphPrv* Prv() { return m_graph.m_pGraphPrv; }

    // Sends every kind of notification once.
    void SendAll()
    {
        for (int nCode : g_codes)
            Prv()->NotifyApplication(nCode);
        for (UINT nMessage : g_mouse)
            Prv()->NotifyApplication(nMessage, (UINT)MK_LBUTTON, CPoint(5, 6));
        Prv()->NotifyApplication((UINT)77);
        Prv()->NotifyApplication((UINT)14750, 99L);
        Prv()->NotifyApplication(CPoint(300, 400));
    }

    TestHost m_host;
    CGraph m_graph;
};

int Count(const RecordingSink& sink, Call::Kind kind)
{
    int n = 0;
    for (const Call& c : sink.m_calls)
        n += c.kind == kind;
    return n;
}

} // namespace

TEST(Notify, EnableStoresSinkAndMask)
{
    NotifyGraph g;
    RecordingSink sink;
    EXPECT_TRUE(g.Prv()->m_pNotify == NULL);
    ASSERT_EQ(1, g.m_graph.EnableNotifications(&sink, 0x0805));
    EXPECT_EQ(&sink, g.Prv()->m_pNotify);
    EXPECT_EQ(0x0805, g.Prv()->m_lNotifyMask);
}

TEST(Notify, MouseMoveMaskAlone)
{
    NotifyGraph g;
    RecordingSink sink;
    g.m_graph.EnableNotifications(&sink, GN_MOUSEMOVE);
    g.SendAll();
    // The move arrives; no event code, no other mouse message, no context menu.
    EXPECT_EQ(1, Count(sink, Call::Mouse));
    EXPECT_EQ(0, Count(sink, Call::Event));
    EXPECT_EQ(0, Count(sink, Call::ContextMenu));
    for (const Call& c : sink.m_calls) {
        if (c.kind == Call::Mouse) {
            EXPECT_EQ((UINT)WM_MOUSEMOVE, c.a);
            EXPECT_EQ((UINT)MK_LBUTTON, c.b);
        }
    }
}

TEST(Notify, AnyEventBitOpensAllCodes)
{
    for (long lBit : { GN_LIMITS, GN_RESERVED2, GN_RADAR, GN_ZOOM, GN_LINECOLORS, GN_APPEARANCE, GN_SETTINGS, GN_COPY }) {
        NotifyGraph g;
        RecordingSink sink;
        g.m_graph.EnableNotifications(&sink, lBit);
        for (int nCode : g_codes)
            g.Prv()->NotifyApplication(nCode);
        ASSERT_EQ(8u, sink.m_calls.size()) << lBit;
        for (size_t i = 0; i < 8; i++) {
            EXPECT_EQ(Call::Event, sink.m_calls[i].kind);
            EXPECT_EQ((UINT)g_codes[i], sink.m_calls[i].a);
            EXPECT_EQ(4321u, sink.m_calls[i].nId);
        }
    }
    // The mouse bits do not open it.
    NotifyGraph g;
    RecordingSink sink;
    g.m_graph.EnableNotifications(&sink, GN_MOUSEMOVE | GN_LBUTTON | GN_RBUTTON | GN_CONTEXTMENU | GN_LDBLCLK);
    g.Prv()->NotifyApplication(GN_ZOOM);
    EXPECT_EQ(0, Count(sink, Call::Event));
}

TEST(Notify, DoubleClickMaskAlone)
{
    NotifyGraph g;
    RecordingSink sink;
    g.m_graph.EnableNotifications(&sink, GN_LDBLCLK);
    g.Prv()->NotifyApplication(WM_LBUTTONDOWN, 0u, CPoint(1, 1));
    g.Prv()->NotifyApplication(GN_RADAR);
    g.Prv()->NotifyApplication(WM_LBUTTONDBLCLK, 0u, CPoint(1, 1));
    ASSERT_EQ(1u, sink.m_calls.size());
    EXPECT_EQ(Call::Mouse, sink.m_calls[0].kind);
    EXPECT_EQ((UINT)WM_LBUTTONDBLCLK, sink.m_calls[0].a);
}

TEST(Notify, MouseBitsAndScreenCoordinates)
{
    NotifyGraph g;
    RecordingSink sink;
    g.m_graph.EnableNotifications(&sink, GN_LBUTTON | GN_RBUTTON);
    g.SendAll();
    ASSERT_EQ(4, Count(sink, Call::Mouse));
    POINT ptExpected = { 5, 6 };
    ::ClientToScreen(g.Prv()->m_hWnd, &ptExpected);
    // The graph lies at (30, 40) in its parent: screen and client differ.
    POINT ptParent = { 5, 6 };
    ::ClientToScreen(g.m_host.Hwnd(), &ptParent);
    EXPECT_EQ(ptParent.x + 30, ptExpected.x);
    EXPECT_EQ(ptParent.y + 40, ptExpected.y);
    std::vector<UINT> messages;
    for (const Call& c : sink.m_calls) {
        if (c.kind != Call::Mouse)
            continue;
        messages.push_back(c.a);
        EXPECT_EQ(4321u, c.nId);
        EXPECT_EQ(ptExpected.x, c.pt.x);
        EXPECT_EQ(ptExpected.y, c.pt.y);
    }
    std::vector<UINT> expected = { WM_LBUTTONDOWN, WM_LBUTTONUP, WM_RBUTTONDOWN, WM_RBUTTONUP };
    EXPECT_EQ(expected, messages);

    // Messages outside 0x200 to 0x205 (and the right double click) are ignored.
    sink.m_calls.clear();
    g.m_graph.EnableNotifications(&sink, 0xFFFF);
    g.Prv()->NotifyApplication((UINT)WM_RBUTTONDBLCLK, 0u, CPoint(1, 1));
    g.Prv()->NotifyApplication((UINT)WM_MOUSEWHEEL, 0u, CPoint(1, 1));
    g.Prv()->NotifyApplication((UINT)WM_KEYDOWN, 0u, CPoint(1, 1));
    EXPECT_TRUE(sink.m_calls.empty());
}

TEST(Notify, PageAndCommandIgnoreTheMask)
{
    NotifyGraph g;
    RecordingSink sink;
    g.m_graph.EnableNotifications(&sink, 0);
    g.SendAll();
    ASSERT_EQ(2u, sink.m_calls.size());
    EXPECT_EQ(Call::Page, sink.m_calls[0].kind);
    EXPECT_EQ(77u, sink.m_calls[0].a);
    EXPECT_EQ(4321u, sink.m_calls[0].nId);
    EXPECT_EQ(Call::Command, sink.m_calls[1].kind);
    EXPECT_EQ(14750u, sink.m_calls[1].a);
    EXPECT_EQ(99u, sink.m_calls[1].b);
    EXPECT_EQ(4321u, sink.m_calls[1].nId);
}

TEST(Notify, ContextMenuPointAsGiven)
{
    NotifyGraph g;
    RecordingSink sink;
    g.m_graph.EnableNotifications(&sink, GN_CONTEXTMENU);
    g.Prv()->NotifyApplication(CPoint(300, 400));
    ASSERT_EQ(1u, sink.m_calls.size());
    EXPECT_EQ(Call::ContextMenu, sink.m_calls[0].kind);
    EXPECT_EQ(CPoint(300, 400), sink.m_calls[0].pt);
    EXPECT_EQ(4321u, sink.m_calls[0].nId);
    // Without the bit: nothing.
    g.m_graph.EnableNotifications(&sink, GN_EVENTS | GN_MOUSEMOVE);
    g.Prv()->NotifyApplication(CPoint(300, 400));
    EXPECT_EQ(1u, sink.m_calls.size());
}

TEST(Notify, NullSinkStopsEverything)
{
    NotifyGraph g;
    RecordingSink sink;
    g.m_graph.EnableNotifications(&sink, 0xFFFF);
    g.SendAll();
    EXPECT_EQ(8 + 6 + 3u, sink.m_calls.size());
    sink.m_calls.clear();
    ASSERT_EQ(1, g.m_graph.EnableNotifications(NULL, 0));
    g.SendAll();
    EXPECT_TRUE(sink.m_calls.empty());
    // A null sink with a full mask does not call anything either.
    g.m_graph.EnableNotifications(NULL, 0xFFFF);
    g.SendAll();
    EXPECT_TRUE(sink.m_calls.empty());
}

TEST(Notify, GraphWithoutWindow)
{
    TestHost host;
    CGraph graph;
    CRect rect(0, 0, 200, 100);
    graph.CreateGraph(host.Wnd(), NULL, rect, GS_NOWINDOW, 55, 63);
    RecordingSink sink;
    graph.EnableNotifications(&sink, 0xFFFF);
    graph.m_pGraphPrv->NotifyApplication(GN_COPY);
    graph.m_pGraphPrv->NotifyApplication((UINT)WM_MOUSEMOVE, 0u, CPoint(7, 8));
    ASSERT_EQ(2u, sink.m_calls.size());
    // No window: no identifier, and the point stays as it came.
    EXPECT_EQ(0u, sink.m_calls[0].nId);
    EXPECT_EQ((UINT)GN_COPY, sink.m_calls[0].a);
    EXPECT_EQ(CPoint(7, 8), sink.m_calls[1].pt);
}
