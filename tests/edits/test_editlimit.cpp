// The inline limit editor: its text rules, the order bits, Return, Escape
// and loss of focus, the growth of the box, and its life.
#include "EditsTestUtil.h"
#include "sheet/EditLimit.h"
#include "resources/resource.h"

namespace {

// Counts the editors that went, whichever way.
int g_nEditorsDeleted = 0;

class CountedEditLimit : public CEditLimit
{
public:
    explicit CountedEditLimit(CGraphPrv* pGraph) : CEditLimit(pGraph) {}
    virtual ~CountedEditLimit() { g_nEditorsDeleted++; }
};

// Opens an editor the way a click on a limit does: a child of the graph
// with the style of the limit boxes, the graph's font, the focus, the text
// selected, at most 10 characters typed.
HWND OpenEditor(WindowGraph& g, UINT nID, const CRect& rect, const char* pszText)
{
    CEditLimit* pEdit = new CountedEditLimit(g.Prv());
    if (!pEdit->Create(0x50800081, rect, g.Prv(), nID)) {
        delete pEdit;
        return NULL;
    }
    pEdit->SetFont(&g.Prv()->m_font, TRUE);
    pEdit->ShowWindow(SW_SHOW);
    pEdit->SetFocus();
    pEdit->ReplaceSel(pszText);
    pEdit->SetSel(0, -1);
    pEdit->LimitText(10);
    return pEdit->m_hWnd;
}

// The window rectangle of a child in the graph's client coordinates.
CRect ChildRect(WindowGraph& g, HWND hWnd)
{
    CRect rect;
    ::GetWindowRect(hWnd, &rect);
    g.Prv()->ScreenToClient(&rect);
    return rect;
}

struct Limits
{
    double dMin, dMax;
};

Limits XLimits(WindowGraph& g)
{
    Limits l;
    g.m_graph.m_pGraphPrv->GetXAxisLimits(&l.dMin, &l.dMax);
    return l;
}

Limits YLimits(WindowGraph& g, int nAxis)
{
    Limits l;
    g.m_graph.m_pGraphPrv->GetYAxisLimits(&l.dMin, &l.dMax, nAxis);
    return l;
}

// Puts a text into an open editor and closes it by moving the focus to the
// graph; the limits are then those the editor left.
void ApplyText(WindowGraph& g, HWND hEdit, const char* pszText)
{
    ::SetWindowTextA(hEdit, pszText);
    g.Prv()->SetFocus();
    TestHost::Pump();
}

const CRect rectBox(100, 250, 150, 270);

} // namespace

TEST(EditLimit, ReturnTakesTheTypedNumberAndNotifiesOnce)
{
    WindowGraph g;
    ASSERT_NE(0, g.m_nCreated);
    g.Prv()->SetXAxisLimits(0.0, 5000.0);
    g_nEditorsDeleted = 0;
    HWND hEdit = OpenEditor(g, IDC_LIMIT_EDIT_X_MIN, rectBox, "0");
    ASSERT_TRUE(hEdit != NULL);
    ASSERT_EQ(hEdit, ::GetFocus());
    EXPECT_EQ("0", TextOf(hEdit));
    Type(hEdit, "1e3");   // replaces the selected text
    EXPECT_EQ("1e3", TextOf(hEdit));
    EXPECT_EQ(0, g.m_sink.m_nLimits);
    ::SendMessageA(hEdit, WM_CHAR, VK_RETURN, 1);
    TestHost::Pump();
    EXPECT_FALSE(::IsWindow(hEdit));
    EXPECT_EQ(1, g_nEditorsDeleted);
    EXPECT_EQ(g.Prv()->m_hWnd, ::GetFocus());
    EXPECT_EQ(1000.0, XLimits(g).dMin);
    EXPECT_EQ(5000.0, XLimits(g).dMax);
    EXPECT_EQ(1, g.m_sink.m_nLimits);
}

TEST(EditLimit, KeysThroughTheMessageQueue)
{
    // Return and Escape pressed as keys: the queue turns them into characters.
    WindowGraph g;
    g.Prv()->SetXAxisLimits(0.0, 10.0);
    HWND hEdit = OpenEditor(g, IDC_LIMIT_EDIT_X_MAX, rectBox, "10");
    Type(hEdit, "42");
    ::PostMessageA(hEdit, WM_KEYDOWN, VK_RETURN, 0x001C0001);
    TestHost::Pump();
    EXPECT_FALSE(::IsWindow(hEdit));
    EXPECT_EQ(42.0, XLimits(g).dMax);
    EXPECT_EQ(1, g.m_sink.m_nLimits);

    hEdit = OpenEditor(g, IDC_LIMIT_EDIT_X_MAX, rectBox, "42");
    Type(hEdit, "7");
    ::PostMessageA(hEdit, WM_KEYDOWN, VK_ESCAPE, 0x00010001);
    TestHost::Pump();
    EXPECT_FALSE(::IsWindow(hEdit));
    EXPECT_EQ(42.0, XLimits(g).dMax);
    EXPECT_EQ(1, g.m_sink.m_nLimits);
}

TEST(EditLimit, EscapeLeavesTheLimitAndSendsNothing)
{
    WindowGraph g;
    g.Prv()->SetYAxisLimits(-1.0, 1.0, 0);
    g_nEditorsDeleted = 0;
    HWND hEdit = OpenEditor(g, IDC_LIMIT_EDIT_YLEFT_MAX, rectBox, "1");
    Type(hEdit, "99");
    ::SendMessageA(hEdit, WM_CHAR, VK_ESCAPE, 1);
    TestHost::Pump();
    EXPECT_FALSE(::IsWindow(hEdit));
    EXPECT_EQ(1, g_nEditorsDeleted);
    EXPECT_EQ(1.0, YLimits(g, 0).dMax);
    EXPECT_EQ(0, g.m_sink.m_nLimits);
}

TEST(EditLimit, TextRules)
{
    WindowGraph g;
    struct Case
    {
        const char* pszText;
        bool bTaken;
        double dValue;
    };
    const Case aCases[] = {
        { "1e3", true, 1000.0 },
        { "12 ", true, 12.0 },            // blanks after the number
        { "  -2.5   ", true, -2.5 },
        { "12 x", false, 0.0 },           // anything else after them
        { "12x", false, 0.0 },
        { "", false, 0.0 },               // empty
        { "   ", false, 0.0 },            // blanks only: no number at all
        { "abc", false, 0.0 },
        { "1e39", false, 0.0 },           // above the largest float
        { "3.4028234663852886e38", true, 3.4028234663852886e38 },
    };
    for (const Case& c : aCases) {
        g.Prv()->SetXAxisLimits(-7.0, 77.0);
        const int nNotified = g.m_sink.m_nLimits;
        HWND hEdit = OpenEditor(g, IDC_LIMIT_EDIT_X_MAX, rectBox, "77");
        ApplyText(g, hEdit, c.pszText);
        EXPECT_FALSE(::IsWindow(hEdit)) << c.pszText;
        // The graph is told in every case.
        EXPECT_EQ(nNotified + 1, g.m_sink.m_nLimits) << c.pszText;
        EXPECT_EQ(c.bTaken ? c.dValue : 77.0, XLimits(g).dMax) << "'" << c.pszText << "'";
        EXPECT_EQ(-7.0, XLimits(g).dMin) << c.pszText;
    }
}

TEST(EditLimit, LongTextsStayInsideTheLineBuffer)
{
    // The line is read into 128 bytes; a text that fills them is taken as
    // no number, however it goes on.
    WindowGraph g;
    const std::string str127 = "5" + std::string(126, ' ');
    const std::string str128 = "5" + std::string(127, ' ');
    const std::string str300 = "5" + std::string(299, ' ');
    const std::string str128Digits(128, '1');

    g.Prv()->SetXAxisLimits(0.0, 10.0);
    HWND hEdit = OpenEditor(g, IDC_LIMIT_EDIT_X_MIN, rectBox, "0");
    ApplyText(g, hEdit, str127.c_str());
    EXPECT_EQ(5.0, XLimits(g).dMin);

    const std::string* apsz[3] = { &str128, &str300, &str128Digits };
    for (const std::string* p : apsz) {
        g.Prv()->SetXAxisLimits(0.0, 10.0);
        hEdit = OpenEditor(g, IDC_LIMIT_EDIT_X_MIN, rectBox, "0");
        ApplyText(g, hEdit, p->c_str());
        EXPECT_FALSE(::IsWindow(hEdit));
        EXPECT_EQ(0.0, XLimits(g).dMin) << p->size();
    }
}

TEST(EditLimit, EachBoxSetsItsOwnLimit)
{
    WindowGraph g;
    CGraphPrv* p = g.Prv();
    p->SetYAxisLabel(1, "R");
    p->SetXAxisLimits(0.0, 10.0);
    p->SetYAxisLimits(0.0, 20.0, 0);
    p->SetYAxisLimits(0.0, 30.0, 1);
    struct Box
    {
        UINT nID;
        const char* pszText;
    };
    const Box aBoxes[6] = { { IDC_LIMIT_EDIT_X_MIN, "1" }, { IDC_LIMIT_EDIT_X_MAX, "9" },
                            { IDC_LIMIT_EDIT_YLEFT_MAX, "19" }, { IDC_LIMIT_EDIT_YLEFT_MIN, "2" },
                            { IDC_LIMIT_EDIT_YRIGHT_MAX, "29" }, { IDC_LIMIT_EDIT_YRIGHT_MIN, "3" } };
    for (const Box& box : aBoxes) {
        HWND hEdit = OpenEditor(g, box.nID, rectBox, "");
        ApplyText(g, hEdit, box.pszText);
    }
    EXPECT_EQ(1.0, XLimits(g).dMin);
    EXPECT_EQ(9.0, XLimits(g).dMax);
    EXPECT_EQ(19.0, YLimits(g, 0).dMax);
    EXPECT_EQ(2.0, YLimits(g, 0).dMin);
    EXPECT_EQ(29.0, YLimits(g, 1).dMax);
    EXPECT_EQ(3.0, YLimits(g, 1).dMin);
    EXPECT_EQ(6, g.m_sink.m_nLimits);
}

TEST(EditLimit, OrderBitsSwapACrossedPair)
{
    // Without the bits a new value may cross the other limit: the axis
    // turns round.
    {
        WindowGraph g(0x01);
        g.Prv()->SetXAxisLimits(0.0, 10.0);
        g.Prv()->SetYAxisLimits(0.0, 10.0, 0);
        ApplyText(g, OpenEditor(g, IDC_LIMIT_EDIT_X_MIN, rectBox, ""), "20");
        EXPECT_EQ(20.0, XLimits(g).dMin);
        EXPECT_EQ(10.0, XLimits(g).dMax);
        ApplyText(g, OpenEditor(g, IDC_LIMIT_EDIT_YLEFT_MAX, rectBox, ""), "-5");
        EXPECT_EQ(0.0, YLimits(g, 0).dMin);
        EXPECT_EQ(-5.0, YLimits(g, 0).dMax);
    }
    // GS_XLIMITORDER keeps the X minimum below the maximum; the Y axes are
    // not concerned.
    {
        WindowGraph g(GS_XLIMITORDER);
        g.Prv()->SetXAxisLimits(0.0, 10.0);
        g.Prv()->SetYAxisLimits(0.0, 10.0, 0);
        ApplyText(g, OpenEditor(g, IDC_LIMIT_EDIT_X_MIN, rectBox, ""), "20");
        EXPECT_EQ(10.0, XLimits(g).dMin);
        EXPECT_EQ(20.0, XLimits(g).dMax);
        ApplyText(g, OpenEditor(g, IDC_LIMIT_EDIT_X_MAX, rectBox, ""), "-3");
        EXPECT_EQ(-3.0, XLimits(g).dMin);
        EXPECT_EQ(10.0, XLimits(g).dMax);
        ApplyText(g, OpenEditor(g, IDC_LIMIT_EDIT_YLEFT_MIN, rectBox, ""), "15");
        EXPECT_EQ(15.0, YLimits(g, 0).dMin);
        EXPECT_EQ(10.0, YLimits(g, 0).dMax);
    }
    // GS_YLIMITORDER covers both Y axes.
    {
        WindowGraph g(GS_YLIMITORDER);
        g.Prv()->SetYAxisLabel(1, "R");
        g.Prv()->SetXAxisLimits(0.0, 10.0);
        g.Prv()->SetYAxisLimits(0.0, 10.0, 0);
        g.Prv()->SetYAxisLimits(0.0, 10.0, 1);
        ApplyText(g, OpenEditor(g, IDC_LIMIT_EDIT_YLEFT_MAX, rectBox, ""), "-5");
        EXPECT_EQ(-5.0, YLimits(g, 0).dMin);
        EXPECT_EQ(0.0, YLimits(g, 0).dMax);
        ApplyText(g, OpenEditor(g, IDC_LIMIT_EDIT_YRIGHT_MIN, rectBox, ""), "12");
        EXPECT_EQ(10.0, YLimits(g, 1).dMin);
        EXPECT_EQ(12.0, YLimits(g, 1).dMax);
        ApplyText(g, OpenEditor(g, IDC_LIMIT_EDIT_X_MIN, rectBox, ""), "11");
        EXPECT_EQ(11.0, XLimits(g).dMin);
        EXPECT_EQ(10.0, XLimits(g).dMax);
    }
}

TEST(EditLimit, CommaLocaleTakesOnlyPlainNotation)
{
    ThreadLocale locale(lcidGerman);
    WindowGraph g;
    g.Prv()->SetXAxisLimits(0.0, 10.0);
    ApplyText(g, OpenEditor(g, IDC_LIMIT_EDIT_X_MAX, rectBox, ""), "1,5");
    EXPECT_EQ(10.0, XLimits(g).dMax);
    ApplyText(g, OpenEditor(g, IDC_LIMIT_EDIT_X_MAX, rectBox, ""), "1.5");
    EXPECT_EQ(1.5, XLimits(g).dMax);
    EXPECT_EQ(2, g.m_sink.m_nLimits);
}

TEST(EditLimit, BoxGrowsWithItsTextByItsId)
{
    WindowGraph g;
    struct Growth
    {
        UINT nID;
        int nMode;   // 0 both ways from the centre, 1 to the left, 2 none
    };
    const Growth aGrowth[3] = { { IDC_LIMIT_EDIT_X_MIN, 0 }, { IDC_LIMIT_EDIT_YLEFT_MIN, 1 },
                                { IDC_LIMIT_EDIT_YRIGHT_MAX, 2 } };
    for (const Growth& growth : aGrowth) {
        const CRect rectStart(150, 100, 180, 120);
        HWND hEdit = OpenEditor(g, growth.nID, rectStart, "");
        ASSERT_EQ(rectStart, ChildRect(g, hEdit));
        // The average width of the box's own context.
        TEXTMETRICA tm;
        HDC hDC = ::GetDC(hEdit);
        ::GetTextMetricsA(hDC, &tm);
        ::ReleaseDC(hEdit, hDC);
        ASSERT_GT(tm.tmAveCharWidth, 0);

        CRect rectExpected = rectStart;
        const char* pszKeys = "123456789\b\b\b\b\b\b\b\b";
        int nLength = 0;
        for (const char* pKey = pszKeys; *pKey != '\0'; ++pKey) {
            ::SendMessageA(hEdit, WM_CHAR, (BYTE)*pKey, 1);
            nLength += *pKey == '\b' ? -1 : 1;
            const int d = rectExpected.Width() - (nLength + 2) * tm.tmAveCharWidth;
            CRect rect = rectExpected;
            if (growth.nMode == 0) {
                rect.left += d / 2;
                rect.right -= d / 2;
            } else if (growth.nMode == 1) {
                rect.left += d;
            }
            rectExpected = rect.Width() < rectStart.Width() ? rectStart : rect;
            ASSERT_EQ(rectExpected, ChildRect(g, hEdit)) << growth.nID << " after " << nLength;
        }
        // It grew on the way, and came back to its first rectangle.
        EXPECT_EQ(rectStart, ChildRect(g, hEdit));
        ::SendMessageA(hEdit, WM_CHAR, VK_ESCAPE, 1);
    }
    CRect rectWide(150, 100, 180, 120);
    HWND hEdit = OpenEditor(g, IDC_LIMIT_EDIT_YLEFT_MAX, rectWide, "");
    Type(hEdit, "12345678");
    CRect rect = ChildRect(g, hEdit);
    EXPECT_EQ(rectWide.right, rect.right);
    EXPECT_LT(rect.left, rectWide.left);
    ::SendMessageA(hEdit, WM_CHAR, VK_ESCAPE, 1);
}

TEST(EditLimit, EditorGoesWithItsGraph)
{
    g_nEditorsDeleted = 0;
    {
        // With the focus: it closes as usual when the graph goes.
        WindowGraph g;
        g.Prv()->SetXAxisLimits(0.0, 10.0);
        HWND hEdit = OpenEditor(g, IDC_LIMIT_EDIT_X_MIN, rectBox, "3");
        ASSERT_TRUE(::IsWindow(hEdit));
        g.Prv()->DestroyWindow();
        EXPECT_FALSE(::IsWindow(hEdit));
    }
    EXPECT_EQ(1, g_nEditorsDeleted);
    {
        // Without the focus: its window goes with the graph's, and the object too.
        WindowGraph g;
        HWND hEdit = OpenEditor(g, IDC_LIMIT_EDIT_X_MIN, rectBox, "3");
        ::SetFocus(NULL);
        TestHost::Pump();
        EXPECT_EQ(2, g_nEditorsDeleted);   // losing the focus closed it
        EXPECT_FALSE(::IsWindow(hEdit));

        CEditLimit* pEdit = new CountedEditLimit(g.Prv());
        ASSERT_TRUE(pEdit->Create(0x50800081, rectBox, g.Prv(), IDC_LIMIT_EDIT_X_MAX));
        hEdit = pEdit->m_hWnd;
        g.Prv()->DestroyWindow();
        EXPECT_FALSE(::IsWindow(hEdit));
        EXPECT_EQ(3, g_nEditorsDeleted);
    }
}
