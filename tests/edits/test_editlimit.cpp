// The inline limit editor: its text rules, the order bits, Return, Escape
// and loss of focus, the growth of the box, and its life.
#include "TestUtil.h"
#include "sheet/EditLimit.h"
#include "resources/resource.h"

namespace {

class CountingSink : public CGraphNotify
{
public:
    virtual void OnGraphMouse(UINT, UINT, UINT, CPoint) {}
    virtual void OnGraphEvent(UINT, int nCode) { m_nLimits += nCode == GN_LIMITS; }
    virtual void OnGraphPage(UINT, UINT) {}
    virtual void OnGraphCommand(UINT, UINT, long) {}
    virtual void OnGraphContextMenu(UINT, CPoint) {}
    int m_nLimits = 0;
};

// A shown graph window in a host, with a sink for GN_LIMITS and the limits
// X 0..10, left Y 0..20, right Y 0..30 (the right axis shown).
class WindowGraph : public GraphInHost
{
public:
    explicit WindowGraph(DWORD dwStyle = 0) : GraphInHost(dwStyle)
    {
        m_graph.EnableNotifications(&m_sink, GN_LIMITS);
        Show();
        m_graph.SetYAxisLabel(1, "R");
        m_graph.SetXAxisLimits(0.0, 10.0);
        m_graph.SetYAxisLimits(0.0, 20.0, 0);
        m_graph.SetYAxisLimits(0.0, 30.0, 1);
    }
    // The limits of the three axes, as "x min max | yl min max | yr min max".
    std::string Limits()
    {
        double d[6];
        m_graph.GetXAxisLimits(&d[0], &d[1]);
        m_graph.GetYAxisLimits(&d[2], &d[3], 0);
        m_graph.GetYAxisLimits(&d[4], &d[5], 1);
        return Str("x %g %g | yl %g %g | yr %g %g", d[0], d[1], d[2], d[3], d[4], d[5]);
    }
    CountingSink m_sink;
};

// Counts the editors that went, whichever way.
int g_nEditorsDeleted = 0;

class CountedEditLimit : public CEditLimit
{
public:
    explicit CountedEditLimit(CGraphPrv* pGraph) : CEditLimit(pGraph) {}
    virtual ~CountedEditLimit() { g_nEditorsDeleted++; }
};

const CRect rectBox(100, 250, 150, 270);

// Opens an editor the way a click on a limit does: a visible child of the
// graph with the style of the limit boxes, the graph's font, the focus, the
// text selected.
HWND OpenEditor(WindowGraph& g, UINT nID, const char* pszText = "", const CRect& rect = rectBox)
{
    CEditLimit* pEdit = new CountedEditLimit(g.Prv());
    EXPECT_TRUE(pEdit->Create(0x50800081, rect, g.Prv(), nID));
    pEdit->SetFont(&g.Prv()->m_font, TRUE);
    pEdit->SetFocus();
    pEdit->ReplaceSel(pszText);
    pEdit->SetSel(0, -1);
    return pEdit->m_hWnd;
}

// Puts a text into an open editor and closes it by moving the focus to the
// graph; the limits are then those the editor left.
void ApplyText(WindowGraph& g, HWND hEdit, const std::string& str)
{
    ::SetWindowTextA(hEdit, str.c_str());
    g.Prv()->SetFocus();
    TestHost::Pump();
}

CRect ChildRect(WindowGraph& g, HWND hWnd)
{
    CRect rect;
    ::GetWindowRect(hWnd, &rect);
    g.Prv()->ScreenToClient(&rect);
    return rect;
}

} // namespace

TEST(EditLimit, ReturnTakesTheNumberEscapeLeavesTheLimit)
{
    WindowGraph g;
    ASSERT_NE(0, g.m_nCreated);
    g_nEditorsDeleted = 0;
    HWND hEdit = OpenEditor(g, IDC_LIMIT_EDIT_X_MIN, "0");
    ASSERT_EQ(hEdit, ::GetFocus());
    Type(hEdit, "1e3");   // replaces the selected text
    EXPECT_EQ("1e3", TextOf(hEdit));
    EXPECT_EQ(0, g.m_sink.m_nLimits);
    ::SendMessageA(hEdit, WM_CHAR, VK_RETURN, 1);
    TestHost::Pump();
    EXPECT_FALSE(::IsWindow(hEdit));
    EXPECT_EQ(1, g_nEditorsDeleted);
    EXPECT_EQ(g.Prv()->m_hWnd, ::GetFocus());
    EXPECT_EQ("x 1000 10 | yl 0 20 | yr 0 30", g.Limits());
    EXPECT_EQ(1, g.m_sink.m_nLimits);

    // Escape: the editor goes, the limit stays, nothing is sent.
    hEdit = OpenEditor(g, IDC_LIMIT_EDIT_YLEFT_MAX, "20");
    Type(hEdit, "99");
    ::SendMessageA(hEdit, WM_CHAR, VK_ESCAPE, 1);
    TestHost::Pump();
    EXPECT_FALSE(::IsWindow(hEdit));
    EXPECT_EQ(2, g_nEditorsDeleted);
    EXPECT_EQ("x 1000 10 | yl 0 20 | yr 0 30", g.Limits());
    EXPECT_EQ(1, g.m_sink.m_nLimits);
}

TEST(EditLimit, TextRules)
{
    WindowGraph g;
    // The line is read into 128 bytes: a text that fills them is no number,
    // however it goes on.
    const struct
    {
        std::string str;
        bool bTaken;
        double dValue;
    } cases[] = {
        { "  -2.5   ", true, -2.5 },   // blanks around the number
        { "12 x", false, 0 },          // anything else after them
        { "", false, 0 },
        { "   ", true, 0.0 },   // blanks only: 0, with nothing behind it
        { "1,5", false, 0 },    // plain notation only, whatever the locale
        { "1.5", true, 1.5 },
        { "1e39", false, 0 },   // above the largest float
        { "3.4028234663852886e38", true, 3.4028234663852886e38 },
        { "5" + std::string(126, ' '), true, 5.0 },
        { "5" + std::string(127, ' '), false, 0 },
        { std::string(128, '1'), false, 0 },
    };
    for (const auto& c : cases) {
        g.m_graph.SetXAxisLimits(-7.0, 77.0);
        const int nNotified = g.m_sink.m_nLimits;
        HWND hEdit = OpenEditor(g, IDC_LIMIT_EDIT_X_MAX, "77");
        ApplyText(g, hEdit, c.str);
        EXPECT_FALSE(::IsWindow(hEdit)) << c.str;
        EXPECT_EQ(nNotified + 1, g.m_sink.m_nLimits) << c.str;   // told in every case
        double dMin, dMax;
        g.m_graph.GetXAxisLimits(&dMin, &dMax);
        EXPECT_EQ(c.bTaken ? c.dValue : 77.0, dMax) << "'" << c.str << "' " << c.str.size();
        EXPECT_EQ(-7.0, dMin) << c.str;
    }
}

TEST(EditLimit, OrderBitsSwapACrossedPair)
{
    // Each box sets its own limit. Without the bits a new value may cross
    // the other limit: the axis turns round. GS_XLIMITORDER keeps the X
    // minimum below the maximum, GS_YLIMITORDER does so for both Y axes.
    const struct
    {
        DWORD dwStyle;
        UINT nID;
        const char* pszText;
        const char* pszLimits;
    } cases[] = {
        { GS_RESERVED1, IDC_LIMIT_EDIT_X_MIN, "20", "x 20 10 | yl 0 20 | yr 0 30" },
        { GS_RESERVED1, IDC_LIMIT_EDIT_YLEFT_MAX, "-5", "x 0 10 | yl 0 -5 | yr 0 30" },
        { GS_XLIMITORDER, IDC_LIMIT_EDIT_X_MIN, "20", "x 10 20 | yl 0 20 | yr 0 30" },
        { GS_XLIMITORDER, IDC_LIMIT_EDIT_X_MAX, "-3", "x -3 0 | yl 0 20 | yr 0 30" },
        { GS_XLIMITORDER, IDC_LIMIT_EDIT_YLEFT_MIN, "25", "x 0 10 | yl 25 20 | yr 0 30" },
        { GS_YLIMITORDER, IDC_LIMIT_EDIT_YLEFT_MAX, "-5", "x 0 10 | yl -5 0 | yr 0 30" },
        { GS_YLIMITORDER, IDC_LIMIT_EDIT_YRIGHT_MIN, "32", "x 0 10 | yl 0 20 | yr 30 32" },
        { GS_YLIMITORDER, IDC_LIMIT_EDIT_X_MIN, "11", "x 11 10 | yl 0 20 | yr 0 30" },
        { GS_YLIMITORDER, IDC_LIMIT_EDIT_YRIGHT_MAX, "29", "x 0 10 | yl 0 20 | yr 0 29" },
    };
    for (const auto& c : cases) {
        WindowGraph g(c.dwStyle);
        ApplyText(g, OpenEditor(g, c.nID), c.pszText);
        EXPECT_EQ(c.pszLimits, g.Limits()) << std::hex << c.dwStyle << " " << c.pszText;
    }
}

TEST(EditLimit, BoxGrowsWithItsTextByItsId)
{
    // At every keystroke the box takes the width of its text and two more
    // characters (average width of its own context): both ways from the
    // centre (mode 0), to the left (1), or not at all (2); never narrower
    // than it was made.
    WindowGraph g;
    const UINT anID[3] = { IDC_LIMIT_EDIT_X_MIN, IDC_LIMIT_EDIT_YLEFT_MIN, IDC_LIMIT_EDIT_YRIGHT_MAX };
    const CRect rectStart(150, 100, 180, 120);
    for (int nMode = 0; nMode < 3; nMode++) {
        HWND hEdit = OpenEditor(g, anID[nMode], "", rectStart);
        ASSERT_EQ(rectStart, ChildRect(g, hEdit));
        TEXTMETRIC tm;
        CClientDC(CWnd::FromHandle(hEdit)).GetTextMetrics(&tm);
        CRect rectExpected = rectStart;
        int nLength = 0;
        for (const char* pKey = "123456789\b\b\b\b\b\b\b\b"; *pKey != '\0'; ++pKey) {
            ::SendMessageA(hEdit, WM_CHAR, (BYTE)*pKey, 1);
            nLength += *pKey == '\b' ? -1 : 1;
            const int d = rectExpected.Width() - (nLength + 2) * tm.tmAveCharWidth;
            CRect rect = rectExpected;
            rect.left += nMode == 0 ? d / 2 : nMode == 1 ? d : 0;
            rect.right -= nMode == 0 ? d / 2 : 0;
            rectExpected = rect.Width() < rectStart.Width() ? rectStart : rect;
            ASSERT_EQ(rectExpected, ChildRect(g, hEdit)) << nMode << " after " << nLength;
        }
        EXPECT_EQ(rectStart, ChildRect(g, hEdit));   // it grew, and came back
        ::SendMessageA(hEdit, WM_CHAR, VK_ESCAPE, 1);
    }
}

TEST(EditLimit, EditorGoesWithItsGraph)
{
    // With the focus it closes as usual when the graph goes; without the
    // focus its window and the object go with the graph's window.
    g_nEditorsDeleted = 0;
    WindowGraph g;
    const HWND hFocused = OpenEditor(g, IDC_LIMIT_EDIT_X_MIN, "3");
    CEditLimit* pEdit = new CountedEditLimit(g.Prv());
    ASSERT_TRUE(pEdit->Create(0x50800081, rectBox, g.Prv(), IDC_LIMIT_EDIT_X_MAX));
    const HWND hOther = pEdit->m_hWnd;
    ASSERT_EQ(hFocused, ::GetFocus());
    g.Prv()->DestroyWindow();
    EXPECT_FALSE(::IsWindow(hFocused));
    EXPECT_FALSE(::IsWindow(hOther));
    EXPECT_EQ(2, g_nEditorsDeleted);
}
