// Notifications: a sink of the test's own records every call; the tests
// check the gates of the mask, the control identifier, the screen
// coordinates of mouse events and the calls that ignore the mask.
#include "TestUtil.h"
#include "TestAccess.h"

#include <vector>

namespace {

class RecordingSink : public CGraphNotify
{
public:
    void OnGraphMouse(UINT nId, UINT nMessage, UINT nFlags, CPoint pt) override
    {
        m_calls.push_back(Str("mouse %u %u %u %ld,%ld", nId, nMessage, nFlags, pt.x, pt.y));
    }
    void OnGraphEvent(UINT nId, int nCode) override { m_calls.push_back(Str("event %u %d", nId, nCode)); }
    void OnGraphPage(UINT nId, UINT nPageId) override { m_calls.push_back(Str("page %u %u", nId, nPageId)); }
    void OnGraphCommand(UINT nId, UINT wParam, long lParam) override
    {
        m_calls.push_back(Str("command %u %u %ld", nId, wParam, lParam));
    }
    void OnGraphContextMenu(UINT nId, CPoint pt) override
    {
        m_calls.push_back(Str("menu %u %ld,%ld", nId, pt.x, pt.y));
    }

    std::vector<std::string> m_calls;
};

const int g_codes[] = { GN_LIMITS,      GN_RESERVED2,  GN_RADAR,    GN_ZOOM,
                        GN_LINECOLORS,  GN_APPEARANCE, GN_SETTINGS, GN_COPY };
const UINT g_mouse[] = { WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN, WM_RBUTTONUP };

// Sends every kind of notification once: 8 event codes, 6 mouse messages,
// a page, a command and a context menu.
void SendAll(CGraphPrv* p)
{
    for (int nCode : g_codes)
        CGraphTestAccess::NotifyApplication(p, nCode);
    for (UINT nMessage : g_mouse)
        CGraphTestAccess::NotifyApplication(p, nMessage, (UINT)MK_LBUTTON, CPoint(5, 6));
    CGraphTestAccess::NotifyApplication(p, (UINT)77);
    CGraphTestAccess::NotifyApplication(p, (UINT)14750, 99L);
    CGraphTestAccess::NotifyApplication(p, CPoint(300, 400));
}

// A graph window at (30, 40) of its parent, with control id 4321.
struct NotifyGraph : GraphInHost
{
    NotifyGraph() : GraphInHost(0, CRect(30, 40, 430, 340), 4321) { Show(); }
};

} // namespace

TEST(Notify, MaskGatesIdsAndScreenCoordinates)
{
    NotifyGraph g;
    // Mouse points arrive in screen coordinates; the graph lies at (30, 40)
    // in its parent, so screen and client differ.
    POINT ptScreen = { 5, 6 }, ptParent = { 5 + 30, 6 + 40 };
    ::ClientToScreen(g.Prv()->m_hWnd, &ptScreen);
    ::ClientToScreen(g.m_host.Hwnd(), &ptParent);
    ASSERT_EQ(ptParent.x, ptScreen.x);
    ASSERT_EQ(ptParent.y, ptScreen.y);
    std::vector<std::string> all;
    for (int nCode : g_codes)
        all.push_back(Str("event 4321 %d", nCode));
    for (UINT nMessage : g_mouse)
        all.push_back(Str("mouse 4321 %u 1 %ld,%ld", nMessage, ptScreen.x, ptScreen.y));
    all.push_back("page 4321 77");
    all.push_back("command 4321 14750 99");
    all.push_back("menu 4321 300,400");

    // '1' marks the calls of SendAll the sink receives. Any event bit opens
    // all codes; pages and commands ignore the mask.
    const struct
    {
        long lMask;
        const char* pszPassed;
    } cases[] = {
        { 0, "00000000 000000 110" },
        { GN_MOUSEMOVE, "00000000 100000 110" },
        { GN_LDBLCLK, "00000000 000100 110" },
        { GN_LBUTTON | GN_RBUTTON, "00000000 011011 110" },
        { GN_CONTEXTMENU, "00000000 000000 111" },
        { GN_MOUSEMOVE | GN_LBUTTON | GN_RBUTTON | GN_CONTEXTMENU | GN_LDBLCLK, "00000000 111111 111" },
        { GN_LIMITS, "11111111 000000 110" },
        { GN_RADAR, "11111111 000000 110" },
        { GN_COPY, "11111111 000000 110" },
        { GN_EVENTS, "11111111 000000 110" },
        { 0xFFFF, "11111111 111111 111" },
    };
    for (const auto& c : cases) {
        RecordingSink sink;
        g.m_graph.EnableNotifications(&sink, c.lMask);
        SendAll(g.Prv());
        std::vector<std::string> expected;
        size_t i = 0;
        for (const char* p = c.pszPassed; *p != '\0'; p++) {
            if (*p == '1')
                expected.push_back(all[i]);
            i += *p != ' ';
        }
        EXPECT_EQ(expected, sink.m_calls) << std::hex << c.lMask;
    }

    // Messages outside 0x200 to 0x205, and the right double click, never pass.
    RecordingSink sink;
    g.m_graph.EnableNotifications(&sink, 0xFFFF);
    for (UINT nMessage : { (UINT)WM_RBUTTONDBLCLK, (UINT)WM_MOUSEWHEEL, (UINT)WM_KEYDOWN })
        CGraphTestAccess::NotifyApplication(g.Prv(), nMessage, 0u, CPoint(1, 1));
    EXPECT_TRUE(sink.m_calls.empty());
    // A null sink stops everything, whatever the mask.
    g.m_graph.EnableNotifications(NULL, 0xFFFF);
    SendAll(g.Prv());
    EXPECT_TRUE(sink.m_calls.empty());
}

TEST(Notify, GraphWithoutWindow)
{
    GraphInHost g(GS_NOWINDOW, CRect(0, 0, 200, 100), 55);
    RecordingSink sink;
    g.m_graph.EnableNotifications(&sink, 0xFFFF);
    CGraphTestAccess::NotifyApplication(g.Prv(), GN_COPY);
    CGraphTestAccess::NotifyApplication(g.Prv(), (UINT)WM_MOUSEMOVE, 0u, CPoint(7, 8));
    // No window: no identifier, and the point stays as it came.
    EXPECT_EQ((std::vector<std::string>{ Str("event 0 %d", GN_COPY), "mouse 0 512 0 7,8" }), sink.m_calls);
}
