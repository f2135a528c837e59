// Windows with message maps: real messages reach the handlers of a derived
// class with their arguments cracked, control notifications reach the parent
// or are reflected to the control, Default() reaches the default procedure,
// destruction runs its handlers in order and unbinds the object, nothing
// thrown in a handler leaves the window procedure. Each handler logs what it was given.
#include "TestUtil.h"
#include "afx/afxctrl.h"

#include <commctrl.h>
#include <algorithm>
#include <string>
#include <vector>

namespace {

const UINT IDC_REFLECT_EDIT = 102;   // reflects its own EN_CHANGE
const UINT IDC_PLAIN_EDIT = 103;     // leaves EN_CHANGE to the parent
const UINT IDM_COMMAND = 200;
const UINT WM_TEST_CUSTOM = WM_APP + 17;   // answers wParam * 1000 + lParam

LPCSTR TestWndClass()
{
    return AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorA(NULL, (LPCSTR)IDC_ARROW), (HBRUSH)(COLOR_WINDOW + 1));
}

// An exception of the layer's kind that counts its deletions.
class CTestException : public CException
{
public:
    ~CTestException() override { ++s_nDeleted; }
    static int s_nDeleted;
};
int CTestException::s_nDeleted = 0;

// An edit control that handles its own change notification and a notify.
class CReflectEdit : public CEdit
{
public:
    std::vector<std::string> m_log;

protected:
    afx_msg void OnReflectChange() { m_log.push_back("change"); }
    afx_msg void OnReflectRClick(NMHDR*, LRESULT* pResult)
    {
        m_log.push_back("rclick");
        *pResult = 55;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CReflectEdit, CEdit)
    ON_CONTROL_REFLECT(EN_CHANGE, OnReflectChange)
    ON_NOTIFY_REFLECT(NM_RCLICK, OnReflectRClick)
END_MESSAGE_MAP()

// The window under test.
class CTestWnd : public CWnd
{
public:
    std::vector<std::string> m_log;
    bool m_bThrowInCreate = false;
    bool m_bThrowInPaint = false;

    void Log(const std::string& str) { m_log.push_back(str); }
    int CountOf(const char* pszPrefix) const
    {
        return (int)std::count_if(m_log.begin(), m_log.end(), [&](const std::string& s) {
            return s.compare(0, strlen(pszPrefix), pszPrefix) == 0;
        });
    }

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpcs)
    {
        Log(Str("create %s", lpcs->lpszName));
        if (m_bThrowInCreate)
            throw new CTestException;
        return CWnd::OnCreate(lpcs);
    }
    afx_msg void OnDestroy()
    {
        Log("destroy");
        CWnd::OnDestroy();
    }
    afx_msg void OnNcDestroy()
    {
        Log("ncdestroy");
        CWnd::OnNcDestroy();
        Log(m_hWnd == NULL ? "unbound" : "still bound");
    }
    void PostNcDestroy() override { Log("postncdestroy"); }

    afx_msg void OnLButtonDown(UINT nFlags, CPoint pt) { Log(Str("ldown %u %ld,%ld", nFlags, pt.x, pt.y)); }
    afx_msg void OnRButtonDown(UINT, CPoint) { throw new CTestException; }
    afx_msg void OnRButtonUp(UINT, CPoint) { throw 5; }
    afx_msg void OnRButtonDblClk(UINT, CPoint) { AfxThrowMemoryException(); }
    afx_msg void OnSize(UINT nType, int cx, int cy) { Log(Str("size %u %d,%d", nType, cx, cy)); }
    afx_msg void OnReflectedEditChange() { Log("parent saw the reflected change"); }
    afx_msg void OnPlainEditChange() { Log("plain change"); }
    afx_msg void OnCommand() { Log("command"); }
    afx_msg void OnPlainNotify(NMHDR* pNMHDR, LRESULT* pResult)
    {
        Log(Str("notify %p %u %d", pNMHDR->hwndFrom, (UINT)pNMHDR->idFrom, (int)pNMHDR->code));
        *pResult = 77;
    }
    afx_msg LRESULT OnCustom(WPARAM wParam, LPARAM lParam) { return (LRESULT)wParam * 1000 + lParam; }
    afx_msg LRESULT OnGetText(WPARAM, LPARAM)
    {
        Log("gettext");
        // A message sent from inside a handler must not change what
        // Default() passes on for the outer one.
        SendMessage(WM_GETTEXTLENGTH);
        return Default();
    }
    afx_msg void OnPaint()
    {
        if (m_bThrowInPaint) {
            Log("paint throws");
            AfxThrowResourceException();   // before the window is validated
        }
        CPaintDC dc(this);
        const RECT& r = dc.m_ps.rcPaint;
        Log(Str("paint %ld,%ld,%ld,%ld", r.left, r.top, r.right, r.bottom));
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CTestWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_NCDESTROY()
    ON_WM_LBUTTONDOWN()
    ON_WM_RBUTTONDOWN()
    ON_WM_RBUTTONUP()
    ON_WM_RBUTTONDBLCLK()
    ON_WM_SIZE()
    ON_WM_PAINT()
    ON_EN_CHANGE(IDC_REFLECT_EDIT, OnReflectedEditChange)
    ON_EN_CHANGE(IDC_PLAIN_EDIT, OnPlainEditChange)
    ON_COMMAND(IDM_COMMAND, OnCommand)
    ON_NOTIFY(NM_CLICK, IDC_PLAIN_EDIT, OnPlainNotify)
    ON_MESSAGE(WM_TEST_CUSTOM, OnCustom)
    ON_MESSAGE(WM_GETTEXT, OnGetText)
END_MESSAGE_MAP()

bool CreateTestWnd(CWnd& wnd, DWORD dwStyle = WS_OVERLAPPEDWINDOW | WS_VISIBLE)
{
    return wnd.CreateEx(0, TestWndClass(), "afx test", dwStyle, 10, 10, 320, 240, NULL, NULL) != FALSE;
}

// A window that makes a child window of its own while it is being created.
class CParentWnd : public CWnd
{
public:
    CTestWnd m_child;
    BOOL m_bChildCreated = FALSE;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpcs)
    {
        if (CWnd::OnCreate(lpcs) == -1)
            return -1;
        m_bChildCreated = m_child.CreateEx(0, TestWndClass(), "child", WS_CHILD | WS_VISIBLE, 0, 0, 50, 40, m_hWnd,
                                           (HMENU)(UINT_PTR)7);
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CParentWnd, CWnd)
    ON_WM_CREATE()
END_MESSAGE_MAP()

} // namespace

// ---------------------------------------------------------------------------
// Creation, binding and destruction
// ---------------------------------------------------------------------------

TEST(WndLife, CreateExBindsAndDestroyRunsTheHandlersInOrder)
{
    CTestWnd wnd;
    ASSERT_TRUE(CreateTestWnd(wnd));
    const HWND hWnd = wnd.m_hWnd;
    EXPECT_EQ(&wnd, CWnd::FromHandlePermanent(hWnd));
    EXPECT_EQ((LONG_PTR)&AfxWndProc, ::GetWindowLongPtrA(hWnd, GWLP_WNDPROC));
    EXPECT_EQ("create afx test", wnd.m_log.front());

    wnd.m_log.clear();
    EXPECT_TRUE(wnd.DestroyWindow());
    const std::vector<std::string> expected = { "destroy", "ncdestroy", "postncdestroy", "unbound" };
    EXPECT_EQ(expected, wnd.m_log);
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_FALSE(::IsWindow(hWnd));
    EXPECT_FALSE(wnd.DestroyWindow());   // nothing left to destroy

    // Destroyed from outside: unbound all the same; the object's destructor
    // destroys a window still bound.
    ASSERT_TRUE(CreateTestWnd(wnd));
    ::DestroyWindow(wnd.m_hWnd);
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    HWND hLast = NULL;
    {
        CTestWnd other;
        ASSERT_TRUE(CreateTestWnd(other));
        hLast = other.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(hLast));
}

TEST(WndLife, FailedCreationsLeaveTheObjectFree)
{
    // An exception in OnCreate fails the creation and is deleted.
    CTestWnd wnd;
    const int nDeleted = CTestException::s_nDeleted;
    wnd.m_bThrowInCreate = true;
    EXPECT_FALSE(CreateTestWnd(wnd));
    EXPECT_EQ(1, wnd.CountOf("create"));
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_EQ(nDeleted + 1, CTestException::s_nDeleted);
    wnd.m_bThrowInCreate = false;
    EXPECT_TRUE(CreateTestWnd(wnd));
}

TEST(WndLife, WindowCreatedInsideCreationIsBoundToItsOwnObject)
{
    CParentWnd parent;
    ASSERT_TRUE(CreateTestWnd(parent, WS_OVERLAPPEDWINDOW));
    EXPECT_TRUE(parent.m_bChildCreated);
    EXPECT_EQ(&parent, CWnd::FromHandlePermanent(parent.m_hWnd));
    EXPECT_EQ(&parent.m_child, CWnd::FromHandlePermanent(parent.m_child.m_hWnd));
    EXPECT_EQ(parent.m_hWnd, ::GetParent(parent.m_child.m_hWnd));
    EXPECT_EQ("create child", parent.m_child.m_log.front());
    EXPECT_EQ(12034, parent.m_child.SendMessage(WM_TEST_CUSTOM, 12, 34));
    // Destroying the parent takes the child with it, and unbinds both.
    EXPECT_TRUE(parent.DestroyWindow());
    EXPECT_EQ(nullptr, parent.m_child.m_hWnd);
    EXPECT_EQ(nullptr, parent.m_hWnd);
}

// ---------------------------------------------------------------------------
// Messages with cracked arguments
// ---------------------------------------------------------------------------

class WndMessages : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(CreateTestWnd(m_wnd));
        TestHost::Pump();
        m_wnd.m_log.clear();
    }
    CTestWnd m_wnd;
};

TEST_F(WndMessages, HandlersGetCrackedArguments)
{
    const struct
    {
        UINT nMessage;
        WPARAM wParam;
        LPARAM lParam;
        const char* pszLog;   // "" when no handler may run
    } cases[] = {
        { WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, MAKELPARAM(37, 52), "ldown 5 37,52" },
        { WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(-5, -600), "ldown 1 -5,-600" },   // captured, outside
        { WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(40000, 35000), "size 2 40000,35000" },   // unsigned sizes
        { WM_COMMAND, MAKEWPARAM(IDM_COMMAND, 0), 0, "command" },
        { WM_COMMAND, MAKEWPARAM(IDM_COMMAND + 1, 0), 0, "" },
    };
    for (const auto& c : cases) {
        m_wnd.m_log.clear();
        m_wnd.SendMessage(c.nMessage, c.wParam, c.lParam);
        EXPECT_EQ(c.pszLog, m_wnd.m_log.empty() ? "" : m_wnd.m_log.back()) << c.pszLog;
    }
    EXPECT_EQ(12034, m_wnd.SendMessage(WM_TEST_CUSTOM, 12, 34));
    EXPECT_EQ(-2995, m_wnd.SendMessage(WM_TEST_CUSTOM, 0, -2995));
}

TEST_F(WndMessages, EditChangeIsReflectedOrGoesToTheParent)
{
    CReflectEdit reflect;
    ASSERT_TRUE(
        reflect.Create(WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL, CRect(5, 40, 150, 60), &m_wnd, IDC_REFLECT_EDIT));
    CEdit plain;
    ASSERT_TRUE(plain.Create(WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL, CRect(5, 70, 150, 90), &m_wnd, IDC_PLAIN_EDIT));

    reflect.ReplaceSel("abc");
    CString s;
    reflect.GetWindowText(s);
    EXPECT_STREQ("abc", s);   // the edit's own procedure did its work
    plain.ReplaceSel("xyz");
    EXPECT_EQ(std::vector<std::string>{ "change" }, reflect.m_log);
    EXPECT_EQ(std::vector<std::string>{ "plain change" }, m_wnd.m_log);

    // A reflected notify answers through the parent's procedure.
    NMHDR nm = { reflect.m_hWnd, IDC_REFLECT_EDIT, (UINT)NM_RCLICK };
    EXPECT_EQ(55, m_wnd.SendMessage(WM_NOTIFY, IDC_REFLECT_EDIT, (LPARAM)&nm));
    EXPECT_EQ("rclick", reflect.m_log.back());
    EXPECT_EQ(1u, m_wnd.m_log.size());
    // A notify the control does not reflect reaches the parent's handler for
    // that code and id, which answers it.
    NMHDR nmPlain = { plain.m_hWnd, IDC_PLAIN_EDIT, (UINT)NM_CLICK };
    EXPECT_EQ(77, m_wnd.SendMessage(WM_NOTIFY, IDC_PLAIN_EDIT, (LPARAM)&nmPlain));
    EXPECT_EQ(Str("notify %p 103 %d", plain.m_hWnd, NM_CLICK), m_wnd.m_log.back());
    NMHDR nmOther = { plain.m_hWnd, IDC_PLAIN_EDIT + 50, (UINT)NM_CLICK };
    EXPECT_EQ(0, m_wnd.SendMessage(WM_NOTIFY, IDC_PLAIN_EDIT + 50, (LPARAM)&nmOther));
    EXPECT_EQ(1, m_wnd.CountOf("notify"));
}

TEST_F(WndMessages, DefaultReachesTheDefaultProcedure)
{
    const char* pszTitle = "Title \xCB\xCE\xCC\xE5";
    m_wnd.SetWindowText(pszTitle);
    char buf[64] = {};
    EXPECT_EQ((int)strlen(pszTitle), m_wnd.GetWindowText(buf, sizeof(buf)));
    EXPECT_STREQ(pszTitle, buf);
    EXPECT_GE(m_wnd.CountOf("gettext"), 1);
    // The length may be an upper bound under a double-byte code page.
    EXPECT_GE(m_wnd.GetWindowTextLength(), (int)strlen(pszTitle));
}

TEST_F(WndMessages, PaintValidatesThroughPaintDCEvenWhenItThrows)
{
    for (bool bThrow : { false, true }) {
        m_wnd.m_bThrowInPaint = bThrow;
        m_wnd.m_log.clear();
        CRect rcInvalid(10, 20, 50, 60);
        m_wnd.InvalidateRect(&rcInvalid, FALSE);
        m_wnd.UpdateWindow();
        EXPECT_EQ(bThrow ? "paint throws" : "paint 10,20,50,60", m_wnd.m_log.back());
        // Nothing is left to paint: no endless stream of WM_PAINT.
        CRect rcUpdate;
        EXPECT_FALSE(m_wnd.GetUpdateRect(&rcUpdate));
        m_wnd.UpdateWindow();
        TestHost::Pump();
        EXPECT_EQ(1, m_wnd.CountOf("paint"));
    }
    m_wnd.m_bThrowInPaint = false;
}

TEST_F(WndMessages, ExceptionsInHandlersDoNotEscape)
{
    const int nDeleted = CTestException::s_nDeleted;
    EXPECT_EQ(0, m_wnd.SendMessage(WM_RBUTTONDOWN, 0, MAKELPARAM(1, 1)));
    EXPECT_EQ(nDeleted + 1, CTestException::s_nDeleted);   // caught and deleted
    EXPECT_EQ(0, m_wnd.SendMessage(WM_RBUTTONUP, 0, MAKELPARAM(1, 1)));
    EXPECT_EQ(0, m_wnd.SendMessage(WM_RBUTTONDBLCLK, 0, MAKELPARAM(1, 1)));
    // The window goes on working.
    m_wnd.SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(3, 4));
    EXPECT_EQ("ldown 0 3,4", m_wnd.m_log.back());
}
