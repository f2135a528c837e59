// Careless host input: a second window for a graph or for a layer object,
// and creation without a usable parent.
#include "TestUtil.h"
#include "resources/messages.h"
#include <stddef.h>

namespace {

// All windows below hWnd, at any depth.
int CountDescendants(HWND hWnd)
{
    int n = 0;
    ::EnumChildWindows(hWnd, [](HWND, LPARAM lParam) -> BOOL { ++*(int*)lParam; return TRUE; }, (LPARAM)&n);
    return n;
}

HWND MakeStatic(HWND hParent)
{
    return ::CreateWindowExA(0, "STATIC", "", WS_CHILD, 0, 0, 10, 10, hParent, NULL, NULL, NULL);
}

// An object that comes to a window while its creation is being prepared:
// the window of the creation is the second one, which the hook must refuse.
class CBoundEarly : public CWnd
{
public:
    explicit CBoundEarly(HWND hFirst) : m_hFirst(hFirst) {}
    BOOL PreCreateWindow(CREATESTRUCT&) override { return Attach(m_hFirst); }
    HWND m_hFirst;
};

} // namespace

TEST(HostileInput, AnObjectWithAWindowRefusesASecond)
{
    TestHost host;
    const HWND hFirst = MakeStatic(host.Hwnd()), hSecond = MakeStatic(host.Hwnd());
    const LONG_PTR procSecond = ::GetWindowLongPtrA(hSecond, GWLP_WNDPROC);
    const int nWindows = CountDescendants(host.Hwnd());

    CWnd wnd;
    ASSERT_TRUE(wnd.Attach(hFirst));
    EXPECT_FALSE(wnd.Attach(hSecond));
    EXPECT_FALSE(wnd.SubclassWindow(hSecond));
    EXPECT_FALSE(wnd.CreateEx(0, "STATIC", "", WS_CHILD, 0, 0, 10, 10, host.Hwnd(), NULL, NULL));
    EXPECT_EQ(hFirst, wnd.m_hWnd);
    EXPECT_EQ(&wnd, CWnd::FromHandlePermanent(hFirst));
    EXPECT_TRUE(CWnd::FromHandlePermanent(hSecond) == NULL);
    EXPECT_EQ(procSecond, ::GetWindowLongPtrA(hSecond, GWLP_WNDPROC));
    wnd.Detach();

    CBoundEarly early(hFirst);
    EXPECT_FALSE(early.CreateEx(0, "STATIC", "", WS_CHILD, 0, 0, 10, 10, host.Hwnd(), NULL, NULL));
    EXPECT_EQ(hFirst, early.m_hWnd);
    EXPECT_EQ(nWindows, CountDescendants(host.Hwnd()));
    early.Detach();
}

TEST(HostileInput, ASecondCreateGraphIsRefusedAndTheFirstWindowStays)
{
    TestHost host(800, 600);
    const int nBefore = CountDescendants(host.Hwnd());
    CGraph* pGraph = new CGraph;
    CGraphPrv* p = pGraph->m_pGraphPrv;
    CRect rect(0, 0, 400, 300);
    ASSERT_NE(0, pGraph->CreateGraph(host.Wnd(), NULL, rect, GS_RIGHTAXIS, 7, 63));
    const HWND hWnd = p->m_hWnd, hLegend = p->m_legend.m_hWnd;
    ASSERT_TRUE(hWnd != NULL && hLegend != NULL);
    const int nCreated = CountDescendants(host.Hwnd());

    CRect rectOther(50, 50, 250, 200);
    EXPECT_EQ(0, pGraph->CreateGraph(host.Wnd(), NULL, rectOther, 0, 8, 1));
    EXPECT_EQ(0, pGraph->CreateGraph(host.Wnd(), NULL, rectOther, GS_NOWINDOW, 8, 1));
    EXPECT_EQ(nCreated, CountDescendants(host.Hwnd()));
    EXPECT_EQ(p, CWnd::FromHandlePermanent(hWnd));
    EXPECT_EQ(&p->m_legend, CWnd::FromHandlePermanent(hLegend));
    EXPECT_EQ(hWnd, ::GetParent(hLegend));
    EXPECT_EQ((DWORD)GS_RIGHTAXIS, p->m_dwStyle);
    EXPECT_EQ(CRect(0, 0, 400, 300), p->m_rectGraph);
    EXPECT_EQ(63, p->m_lMenuConfig);

    delete pGraph;
    EXPECT_FALSE(::IsWindow(hWnd));
    EXPECT_FALSE(::IsWindow(hLegend));
    EXPECT_EQ(nBefore, CountDescendants(host.Hwnd()));
    // What a host sends to the handle it kept reaches nobody.
    const UINT anMessages[] = { WM_PAINT, WM_LBUTTONDOWN, WM_GRAPH_LEGENDPOSCHANGE };
    for (UINT nMsg : anMessages) {
        ::SetLastError(0);
        EXPECT_EQ(0, ::SendMessageA(hWnd, nMsg, 0, 0));
        EXPECT_EQ((DWORD)ERROR_INVALID_WINDOW_HANDLE, ::GetLastError()) << nMsg;
    }
    TestHost::Pump();
}

TEST(HostileInput, CreateGraphWithoutAUsableParentReturnsZero)
{
    TestHost host;
    const HWND hGone = MakeStatic(host.Hwnd());
    ::DestroyWindow(hGone);
    CWnd noWindow;   // an object that was never given a window
    HBRUSH hBrush = ::CreateSolidBrush(RGB(1, 2, 3));
    const struct
    {
        const char* pszCase;
        CWnd* pParent;
    } cases[] = {
        { "no parent", NULL },
        { "an object without a window", &noWindow },
        { "a destroyed window", CWnd::FromHandle(hGone) },
        { "a handle that is no window", CWnd::FromHandle((HWND)hBrush) },
    };
    const int nWindows = CountDescendants(host.Hwnd());
    for (const auto& c : cases) {
        CGraph graph;
        CRect rect(10, 20, 410, 320);
        EXPECT_EQ(0, graph.CreateGraph(c.pParent, NULL, rect, 0, 1, 63)) << c.pszCase;
        CGraphPrv* p = graph.m_pGraphPrv;
        EXPECT_TRUE(p->m_hWnd == NULL && p->m_legend.m_hWnd == NULL) << c.pszCase;
        // The windowless layout: the position kept, a plot inside it.
        EXPECT_EQ(rect, p->m_rectGraph) << c.pszCase;
        EXPECT_FALSE(p->m_rectPlot.IsRectEmpty()) << c.pszCase;
        CRect rectBoth;
        rectBoth.IntersectRect(&p->m_rectPlot, &p->m_rectGraph);
        EXPECT_EQ(p->m_rectPlot, rectBoth) << c.pszCase;
        EXPECT_EQ(nWindows, CountDescendants(host.Hwnd())) << c.pszCase;
    }
    ::DeleteObject(hBrush);
}
