// Careless host input: a second window for a graph or for a layer object,
// creation without a usable parent, null pointers, and a face name without
// its terminator.
#include "TestUtil.h"
#include <stddef.h>

namespace {

// All windows below hWnd, at any depth.
int CountDescendants(HWND hWnd)
{
    int n = 0;
    ::EnumChildWindows(hWnd, [](HWND, LPARAM lParam) CALLBACK -> BOOL { ++*(int*)lParam; return TRUE; }, (LPARAM)&n);
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
        CRect rectBoth;
        rectBoth.IntersectRect(&p->m_rectPlot, &p->m_rectGraph);
        EXPECT_TRUE(!rectBoth.IsRectEmpty() && rectBoth == p->m_rectPlot) << c.pszCase;
        EXPECT_EQ(nWindows, CountDescendants(host.Hwnd())) << c.pszCase;
    }
    ::DeleteObject(hBrush);
}

namespace {

// Where a refused call could write: every field starts as a pattern that
// must still be there afterwards.
struct Outputs
{
    double d[2];
    DWORD dw;
    int n[2];
    LOGFONT lf;
    double adIn[4];   // double arrays handed in
};

// A call named by its own text, on the graph, a context and the outputs.
#define ROW(call) { #call, [](CGraph& graph, CDC* pDC, Outputs& o) -> int { (void)pDC, (void)o; return graph.call; } }

} // namespace

TEST(HostileInput, NullPointersAreRefusedWithoutWritingAnything)
{
    GraphInHost g;
    CGraph& graph = g.m_graph;
    float afX[4] = { 0, 1, 2, 3 }, afY[4] = { 4, 5, 6, 7 };
    ASSERT_EQ(GRAPH_OK, graph.AddPlotData("s", PLOT_YLEFT, afX, afY, 4, 0xFF, PS_SOLID, 0));
    CClientDC dc(g.m_host.Wnd());

    const struct
    {
        const char* pszCall;
        int (*call)(CGraph& graph, CDC* pDC, Outputs& o);
    } rows[] = {
        ROW(GetXAxisLimits(NULL, &o.d[1])),
        ROW(GetXAxisLimits(&o.d[0], NULL)),
        ROW(GetYAxisLimits(NULL, &o.d[1], 0)),
        ROW(GetYAxisLimits(&o.d[0], NULL, 1)),
        ROW(GetGraphClientRect(NULL)),
        ROW(GetGraphScreenRect(NULL)),
        ROW(GetLimitFlip(NULL)),
        ROW(GetTicMarkType(NULL, &o.n[1])),
        ROW(GetTicMarkType(&o.n[0], NULL)),
        ROW(GetRadarType(NULL)),
        ROW(SetLogFont(NULL, 120, 0xFF)),
        ROW(GetLogFont(NULL, &o.n[0], &o.dw)),
        ROW(GetLogFont(&o.lf, NULL, &o.dw)),
        ROW(GetLogFont(&o.lf, &o.n[0], NULL)),
        ROW(ReSizeGraph(NULL)),
        ROW(SizeGraph(NULL, 5, 5, 200, 100, 0)),
        ROW(GetMinimumGraphSize(NULL, &o.n[0], &o.n[1])),
        ROW(GetMinimumGraphSize(pDC, NULL, &o.n[1])),
        ROW(GetMinimumGraphSize(pDC, &o.n[0], NULL)),
        ROW(Plot(NULL, 0)),
        ROW(AddPlotData("d", PLOT_YLEFT, NULL, o.adIn, 4, 0, 0, 0)),
        ROW(AddPlotData("d", PLOT_YLEFT, o.adIn, NULL, 4, 0, 0, 0)),
        ROW(UpdatePlotData("s", (double*)NULL, o.adIn, 0, 4)),
        ROW(UpdatePlotData("s", o.adIn, (double*)NULL, 0, 4)),
    };
    Outputs pattern;
    memset(&pattern, 0xA5, sizeof(pattern));
    for (const auto& row : rows) {
        Outputs o = pattern;
        EXPECT_EQ(GRAPH_BADARG, row.call(graph, &dc, o)) << row.pszCall;
        EXPECT_EQ(0, memcmp(&o, &pattern, sizeof(o))) << row.pszCall;
    }

    // The refused setters changed nothing either.
    CGraphPrv* p = g.Prv();
    EXPECT_EQ(80, p->m_nPointSize);
    EXPECT_EQ(0u, p->m_crText);
    EXPECT_EQ(CRect(0, 0, 400, 300), p->m_rectGraph);
    CPlotData* pData = FindSeries(graph, "s");
    EXPECT_TRUE(pData->m_pfXData == afX && pData->m_pfYData == afY && pData->m_lPoints == 4);
    EXPECT_TRUE(FindSeries(graph, "d") == NULL);
    EXPECT_EQ(1, p->m_legend.GetCount());
}

TEST(HostileInput, AFaceNameWithoutTerminatorIsCutToThirtyOneBytes)
{
    GraphInHost g;
    // The face name fills its field, and more non-zero bytes follow it.
    struct
    {
        LOGFONT lf;
        char achGuard[8];
    } font = { {}, "ZZZZZZZ" };
    static_assert(offsetof(decltype(font), achGuard) == sizeof(LOGFONT), "the guard follows the face name");
    int nSize = 0;
    DWORD crText = 0;
    ASSERT_EQ(GRAPH_OK, g.m_graph.GetLogFont(&font.lf, &nSize, &crText));
    memcpy(font.lf.lfFaceName, "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdef", LF_FACESIZE);

    EXPECT_EQ(GRAPH_OK, g.m_graph.SetLogFont(&font.lf, 90, RGB(1, 2, 3)));
    LOGFONT lfBack;
    memset(&lfBack, 0x5A, sizeof(lfBack));
    EXPECT_EQ(GRAPH_OK, g.m_graph.GetLogFont(&lfBack, &nSize, &crText));
    EXPECT_EQ(std::string("ABCDEFGHIJKLMNOPQRSTUVWXYZabcde", LF_FACESIZE), std::string(lfBack.lfFaceName, LF_FACESIZE));
    EXPECT_STREQ("ABCDEFGHIJKLMNOPQRSTUVWXYZabcde", g.Prv()->m_strFaceName);
    EXPECT_EQ(90, nSize);
    EXPECT_EQ('f', font.lf.lfFaceName[LF_FACESIZE - 1]);   // the host's structure is left alone
}
