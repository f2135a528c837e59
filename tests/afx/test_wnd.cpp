// Tests of windows with message maps: real messages reach the handlers of a
// derived class with their arguments cracked, control notifications reach
// the parent or are reflected to the control, Default() reaches the default
// procedure, destruction runs its handlers in order and unbinds the object,
// existing windows can be subclassed and released again, nothing thrown in
// a handler leaves the window procedure, and owner-drawn list boxes draw,
// measure and free their own items.
#include "gtest/gtest.h"
#include "afx/afxwin.h"
#include "afx/afxctrl.h"

#include <commctrl.h>
#include <algorithm>
#include <thread>
#include <string.h>
#include <string>
#include <vector>

namespace {

const UINT IDC_TEST_BUTTON = 101;
const UINT IDC_TEST_EDIT = 102;    // reflects its own EN_CHANGE
const UINT IDC_PLAIN_EDIT = 103;   // leaves EN_CHANGE to the parent
const UINT IDC_FOREIGN_EDIT = 104;
const UINT IDC_OWNER_LIST = 105;
const UINT IDM_TEST_COMMAND = 200;
const UINT IDM_RANGE_FIRST = 300;
const UINT IDM_RANGE_LAST = 305;
const UINT WM_TEST_CUSTOM = WM_APP + 17;   // answers wParam * 1000 + lParam

// Pumps this thread's messages until done() holds or nMs pass.
template <class PRED>
bool PumpUntil(PRED done, int nMs = 2000)
{
    DWORD dwStart = ::GetTickCount();
    for (;;) {
        MSG msg;
        while (::PeekMessageA(&msg, NULL, 0, 0, PM_REMOVE)) {
            ::TranslateMessage(&msg);
            ::DispatchMessageA(&msg);
        }
        if (done())
            return true;
        if ((int)(::GetTickCount() - dwStart) > nMs)
            return false;
        ::Sleep(5);
    }
}

void Pump()
{
    PumpUntil([] { return true; }, 0);
}

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
    int m_nReflectedChanges = 0;
    int m_nReflectedNotifies = 0;

protected:
    afx_msg void OnReflectChange() { ++m_nReflectedChanges; }
    afx_msg void OnReflectRClick(NMHDR* pNMHDR, LRESULT* pResult)
    {
        ++m_nReflectedNotifies;
        *pResult = pNMHDR->code == (UINT)NM_RCLICK ? 55 : 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CReflectEdit, CEdit)
    ON_CONTROL_REFLECT(EN_CHANGE, OnReflectChange)
    ON_NOTIFY_REFLECT(NM_RCLICK, OnReflectRClick)
END_MESSAGE_MAP()

// An edit control that counts the characters it is given and passes them on.
class CCountingEdit : public CEdit
{
public:
    int m_nChars = 0;
    UINT m_nLastChar = 0;
    UINT m_nLastRepeat = 0;

protected:
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
    {
        ++m_nChars;
        m_nLastChar = nChar;
        m_nLastRepeat = nRepCnt;
        CEdit::OnChar(nChar, nRepCnt, nFlags);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CCountingEdit, CEdit)
    ON_WM_CHAR()
END_MESSAGE_MAP()

// The window under test: records what each handler was given.
class CTestWnd : public CWnd
{
public:
    std::vector<std::string> m_events;

    bool m_bThrowInCreate = false;
    int m_nCreates = 0;
    std::string m_strCreateName;

    int m_nLButtonDowns = 0;
    UINT m_nLButtonFlags = 0;
    CPoint m_ptLButton;

    int m_nTimers = 0;
    UINT_PTR m_nLastTimer = 0;

    int m_nSizes = 0;
    UINT m_nSizeType = 99;
    int m_cx = -1;
    int m_cy = -1;

    int m_nButtonClicks = 0;
    int m_nParentEditChanges = 0;   // must stay 0: the edit reflects it
    int m_nPlainEditChanges = 0;
    int m_nCommands = 0;
    UINT m_nRangeId = 0;

    int m_nNotifies = 0;
    NMHDR m_lastNotify = {};

    int m_nCustom = 0;
    int m_nGetTexts = 0;

    int m_nSetCursors = 0;
    CWnd* m_pCursorWnd = NULL;
    UINT m_nHitTest = 0;
    UINT m_nMouseMessage = 0;

    int m_nContextMenus = 0;
    CWnd* m_pContextWnd = NULL;
    CPoint m_ptContext;

    bool m_bThrowInPaint = false;
    int m_nPaints = 0;
    CRect m_rcPaint;

    HWND m_hWndAtNcDestroy = NULL;
    bool m_bBoundAfterNcDestroy = true;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct)
    {
        ++m_nCreates;
        m_events.push_back("create");
        m_strCreateName = lpCreateStruct->lpszName != NULL ? lpCreateStruct->lpszName : "";
        if (m_bThrowInCreate)
            throw new CTestException;
        return CWnd::OnCreate(lpCreateStruct);
    }
    afx_msg void OnDestroy()
    {
        m_events.push_back("destroy");
        CWnd::OnDestroy();
    }
    afx_msg void OnNcDestroy()
    {
        m_events.push_back("ncdestroy");
        m_hWndAtNcDestroy = m_hWnd;
        CWnd::OnNcDestroy();
        m_bBoundAfterNcDestroy = m_hWnd != NULL;
        m_events.push_back("after-ncdestroy");
    }
    void PostNcDestroy() override { m_events.push_back("postncdestroy"); }

    afx_msg void OnLButtonDown(UINT nFlags, CPoint point)
    {
        ++m_nLButtonDowns;
        m_nLButtonFlags = nFlags;
        m_ptLButton = point;
    }
    afx_msg void OnRButtonDown(UINT, CPoint) { throw new CTestException; }
    afx_msg void OnRButtonUp(UINT, CPoint) { throw 5; }
    afx_msg void OnRButtonDblClk(UINT, CPoint) { AfxThrowMemoryException(); }
    afx_msg void OnTimer(UINT_PTR nIDEvent)
    {
        ++m_nTimers;
        m_nLastTimer = nIDEvent;
    }
    afx_msg void OnSize(UINT nType, int cx, int cy)
    {
        ++m_nSizes;
        m_nSizeType = nType;
        m_cx = cx;
        m_cy = cy;
    }
    afx_msg void OnButtonClicked() { ++m_nButtonClicks; }
    afx_msg void OnReflectedEditChange() { ++m_nParentEditChanges; }
    afx_msg void OnPlainEditChange() { ++m_nPlainEditChanges; }
    afx_msg void OnTestCommand() { ++m_nCommands; }
    afx_msg void OnRangeCommand(UINT nID) { m_nRangeId = nID; }
    afx_msg void OnButtonNotifyClick(NMHDR* pNMHDR, LRESULT* pResult)
    {
        ++m_nNotifies;
        m_lastNotify = *pNMHDR;
        *pResult = 77;
    }
    afx_msg LRESULT OnCustom(WPARAM wParam, LPARAM lParam)
    {
        ++m_nCustom;
        return (LRESULT)wParam * 1000 + lParam;
    }
    afx_msg LRESULT OnGetText(WPARAM, LPARAM)
    {
        ++m_nGetTexts;
        // A message sent from inside a handler must not change what
        // Default() passes on for the outer one.
        SendMessage(WM_GETTEXTLENGTH);
        return Default();
    }
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message)
    {
        ++m_nSetCursors;
        m_pCursorWnd = pWnd;
        m_nHitTest = nHitTest;
        m_nMouseMessage = message;
        return TRUE;
    }
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos)
    {
        ++m_nContextMenus;
        m_pContextWnd = pWnd;
        m_ptContext = pos;
    }
    afx_msg void OnPaint()
    {
        ++m_nPaints;
        if (m_bThrowInPaint)
            AfxThrowResourceException();   // before the window is validated
        CPaintDC dc(this);
        m_rcPaint = dc.m_ps.rcPaint;
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
    ON_WM_TIMER()
    ON_WM_SIZE()
    ON_WM_SETCURSOR()
    ON_WM_CONTEXTMENU()
    ON_WM_PAINT()
    ON_BN_CLICKED(IDC_TEST_BUTTON, OnButtonClicked)
    ON_EN_CHANGE(IDC_TEST_EDIT, OnReflectedEditChange)
    ON_EN_CHANGE(IDC_PLAIN_EDIT, OnPlainEditChange)
    ON_COMMAND(IDM_TEST_COMMAND, OnTestCommand)
    ON_COMMAND_RANGE(IDM_RANGE_FIRST, IDM_RANGE_LAST, OnRangeCommand)
    ON_NOTIFY(NM_CLICK, IDC_TEST_BUTTON, OnButtonNotifyClick)
    ON_MESSAGE(WM_TEST_CUSTOM, OnCustom)
    ON_MESSAGE(WM_GETTEXT, OnGetText)
END_MESSAGE_MAP()

bool CreateTestWnd(CTestWnd& wnd, DWORD dwStyle = WS_OVERLAPPEDWINDOW | WS_VISIBLE)
{
    return wnd.CreateEx(0, TestWndClass(), "afx test", dwStyle, 10, 10, 320, 240, NULL, NULL) != FALSE;
}

// A window that deletes itself when its window is gone. Its storage is a
// static block, so that the test can see whether anything wrote into the
// object after it was deleted.
class CSelfDeletingWnd : public CWnd
{
public:
    CSelfDeletingWnd() { s_nHWndOffset = (size_t)((char*)&m_hWnd - (char*)this); }
    static void* operator new(size_t nSize)
    {
        EXPECT_LE(nSize, sizeof(s_block));
        return s_block;
    }
    static void operator delete(void* p)
    {
        // Leave the block as freed memory that still names the window.
        memset(p, 0xCD, sizeof(s_block));
        memcpy((char*)p + s_nHWndOffset, &s_hWndLast, sizeof(HWND));
        s_bDeleted = true;
    }
    void PostNcDestroy() override { delete this; }

    static HWND HWndSlot()
    {
        HWND h;
        memcpy(&h, s_block + s_nHWndOffset, sizeof(HWND));
        return h;
    }

    alignas(16) static char s_block[512];
    static size_t s_nHWndOffset;
    static HWND s_hWndLast;
    static bool s_bDeleted;
};
alignas(16) char CSelfDeletingWnd::s_block[512];
size_t CSelfDeletingWnd::s_nHWndOffset = 0;
HWND CSelfDeletingWnd::s_hWndLast = NULL;
bool CSelfDeletingWnd::s_bDeleted = false;

// A window that makes a child window of its own while it is being created.
class CParentWnd : public CWnd
{
public:
    CTestWnd m_child;
    BOOL m_bChildCreated = FALSE;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct)
    {
        if (CWnd::OnCreate(lpCreateStruct) == -1)
            return -1;
        m_bChildCreated = m_child.CreateEx(0, TestWndClass(), "child", WS_CHILD | WS_VISIBLE,
                                           0, 0, 50, 40, m_hWnd, (HMENU)(UINT_PTR)7);
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CParentWnd, CWnd)
    ON_WM_CREATE()
END_MESSAGE_MAP()

// An owner-drawn list box that records the drawing messages reflected to it.
class COwnerList : public CListBox
{
public:
    static const UINT kItemHeight = 19;
    int m_nMeasures = 0;
    UINT m_nMeasureCtlType = 0;
    UINT m_nMeasureCtlID = 0;
    std::vector<UINT> m_drawnItems;
    std::vector<CRect> m_drawnRects;
    bool m_bDrawHwndOk = true;
    std::vector<UINT> m_deletedItems;
    std::vector<ULONG_PTR> m_deletedData;
    bool m_bDeleteHwndOk = true;

    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override
    {
        ++m_nMeasures;
        m_nMeasureCtlType = lpMeasureItemStruct->CtlType;
        m_nMeasureCtlID = lpMeasureItemStruct->CtlID;
        lpMeasureItemStruct->itemHeight = kItemHeight;
    }
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override
    {
        if (lpDrawItemStruct->CtlType != ODT_LISTBOX || lpDrawItemStruct->hwndItem != m_hWnd)
            m_bDrawHwndOk = false;
        if (lpDrawItemStruct->itemID == (UINT)-1)
            return;
        m_drawnItems.push_back(lpDrawItemStruct->itemID);
        m_drawnRects.push_back(CRect(lpDrawItemStruct->rcItem));
        CDC dc;
        dc.Attach(lpDrawItemStruct->hDC);
        dc.FillSolidRect(&lpDrawItemStruct->rcItem, RGB(0, 0, 255));
        dc.Detach();
    }
    void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct) override
    {
        if (lpDeleteItemStruct->CtlType != ODT_LISTBOX || lpDeleteItemStruct->hwndItem != m_hWnd)
            m_bDeleteHwndOk = false;
        m_deletedItems.push_back(lpDeleteItemStruct->itemID);
        m_deletedData.push_back(lpDeleteItemStruct->itemData);
    }
};

} // namespace

// ---------------------------------------------------------------------------
// Creation, binding and destruction
// ---------------------------------------------------------------------------

TEST(WndLife, CreateExBindsTheNewWindow)
{
    CTestWnd wnd;
    ASSERT_TRUE(CreateTestWnd(wnd));
    ASSERT_NE(nullptr, wnd.m_hWnd);
    EXPECT_TRUE(::IsWindow(wnd.m_hWnd));
    EXPECT_EQ(&wnd, CWnd::FromHandlePermanent(wnd.m_hWnd));
    EXPECT_EQ(&wnd, CWnd::FromHandle(wnd.m_hWnd));
    EXPECT_EQ(1, wnd.m_nCreates);
    EXPECT_EQ("afx test", wnd.m_strCreateName);
    char szClass[128] = {};
    ::GetClassNameA(wnd.m_hWnd, szClass, sizeof(szClass));
    EXPECT_STREQ(TestWndClass(), szClass);
    EXPECT_EQ((LONG_PTR)&AfxWndProc, ::GetWindowLongPtrA(wnd.m_hWnd, GWLP_WNDPROC));

    // A window of no object: no permanent object, a temporary one on request.
    HWND hForeign = ::CreateWindowExA(0, "STATIC", "x", WS_CHILD, 0, 0, 10, 10, wnd.m_hWnd, NULL, NULL, NULL);
    ASSERT_NE(nullptr, hForeign);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hForeign));
    CWnd* pTemp = CWnd::FromHandle(hForeign);
    ASSERT_NE(nullptr, pTemp);
    EXPECT_EQ(hForeign, pTemp->m_hWnd);
    EXPECT_EQ(nullptr, CWnd::FromHandle(NULL));
    ::DestroyWindow(hForeign);

    EXPECT_TRUE(wnd.DestroyWindow());
}

TEST(WndLife, RegisteredClassNameStaysValid)
{
    LPCSTR lpszFirst = AfxRegisterWndClass(0);
    std::string first(lpszFirst);
    LPCSTR lpszSecond = AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, NULL, (HBRUSH)(COLOR_BTNFACE + 1));
    EXPECT_NE(first, std::string(lpszSecond));
    // The first name is still the first class's name.
    EXPECT_EQ(first, std::string(lpszFirst));
    // The same attributes give the same class.
    EXPECT_STREQ(lpszFirst, AfxRegisterWndClass(0));
    WNDCLASSA wc;
    ASSERT_TRUE(::GetClassInfoA(AfxGetInstanceHandle(), lpszSecond, &wc));
    EXPECT_EQ((UINT)(CS_HREDRAW | CS_VREDRAW), wc.style);
    EXPECT_EQ((HBRUSH)(COLOR_BTNFACE + 1), wc.hbrBackground);
}

TEST(WndLife, DestroyWindowRunsHandlersInOrderAndUnbinds)
{
    CTestWnd wnd;
    ASSERT_TRUE(CreateTestWnd(wnd));
    HWND hWnd = wnd.m_hWnd;
    wnd.m_events.clear();
    EXPECT_TRUE(wnd.DestroyWindow());
    std::vector<std::string> expected = { "destroy", "ncdestroy", "postncdestroy", "after-ncdestroy" };
    EXPECT_EQ(expected, wnd.m_events);
    EXPECT_EQ(hWnd, wnd.m_hWndAtNcDestroy);
    EXPECT_FALSE(wnd.m_bBoundAfterNcDestroy);
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_FALSE(::IsWindow(hWnd));
    EXPECT_FALSE(wnd.DestroyWindow());   // nothing left to destroy
}

TEST(WndLife, WindowDestroyedFromOutsideUnbinds)
{
    CTestWnd wnd;
    ASSERT_TRUE(CreateTestWnd(wnd));
    HWND hWnd = wnd.m_hWnd;
    wnd.m_events.clear();
    ::DestroyWindow(hWnd);
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    ASSERT_EQ(4u, wnd.m_events.size());
    EXPECT_EQ("destroy", wnd.m_events[0]);
}

TEST(WndLife, ObjectDestructorDestroysItsWindow)
{
    HWND hWnd = NULL;
    {
        CTestWnd wnd;
        ASSERT_TRUE(CreateTestWnd(wnd));
        hWnd = wnd.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(hWnd));
}

TEST(WndLife, SelfDeletingWindowIsNotTouchedAfterDelete)
{
    CSelfDeletingWnd::s_bDeleted = false;
    CSelfDeletingWnd* pWnd = new CSelfDeletingWnd;
    ASSERT_TRUE(pWnd->CreateEx(0, TestWndClass(), "self", WS_OVERLAPPED, 0, 0, 50, 50, NULL, NULL));
    HWND hWnd = pWnd->m_hWnd;
    CSelfDeletingWnd::s_hWndLast = hWnd;
    EXPECT_TRUE(pWnd->DestroyWindow());
    EXPECT_TRUE(CSelfDeletingWnd::s_bDeleted);
    EXPECT_FALSE(::IsWindow(hWnd));
    // DestroyWindow must not have written into the deleted object.
    EXPECT_EQ(hWnd, CSelfDeletingWnd::HWndSlot());
}

TEST(WndLife, ExceptionInCreateFailsTheCreation)
{
    int nDeleted = CTestException::s_nDeleted;
    CTestWnd wnd;
    wnd.m_bThrowInCreate = true;
    EXPECT_FALSE(CreateTestWnd(wnd));
    EXPECT_EQ(1, wnd.m_nCreates);
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_EQ(nDeleted + 1, CTestException::s_nDeleted);

    // The object can make a window afterwards.
    wnd.m_bThrowInCreate = false;
    EXPECT_TRUE(CreateTestWnd(wnd));
    EXPECT_TRUE(wnd.DestroyWindow());
}

TEST(WndLife, CreateExOfAMissingClassFails)
{
    CTestWnd wnd;
    EXPECT_FALSE(wnd.CreateEx(0, "ZPXNoSuchClass", "", WS_OVERLAPPED, 0, 0, 10, 10, NULL, NULL));
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_EQ(0, wnd.m_nCreates);
    // The next window made on this thread is not taken by this object.
    HWND hPlain = ::CreateWindowExA(0, "STATIC", "", WS_OVERLAPPED, 0, 0, 10, 10, NULL, NULL, NULL, NULL);
    ASSERT_NE(nullptr, hPlain);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hPlain));
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    ::DestroyWindow(hPlain);
}

TEST(WndLife, WindowCreatedInsideCreationIsBoundToItsOwnObject)
{
    CParentWnd parent;
    ASSERT_TRUE(parent.CreateEx(0, TestWndClass(), "parent", WS_OVERLAPPEDWINDOW, 0, 0, 200, 150, NULL, NULL));
    EXPECT_TRUE(parent.m_bChildCreated);
    ASSERT_NE(nullptr, parent.m_child.m_hWnd);
    EXPECT_NE(parent.m_hWnd, parent.m_child.m_hWnd);
    EXPECT_EQ(&parent, CWnd::FromHandlePermanent(parent.m_hWnd));
    EXPECT_EQ(&parent.m_child, CWnd::FromHandlePermanent(parent.m_child.m_hWnd));
    EXPECT_EQ(parent.m_hWnd, ::GetParent(parent.m_child.m_hWnd));
    EXPECT_EQ("child", parent.m_child.m_strCreateName);
    EXPECT_EQ(12034, parent.m_child.SendMessage(WM_TEST_CUSTOM, 12, 34));

    // Destroying the parent takes the child with it, and unbinds both.
    EXPECT_TRUE(parent.DestroyWindow());
    EXPECT_EQ(nullptr, parent.m_child.m_hWnd);
    EXPECT_EQ(nullptr, parent.m_hWnd);
}

TEST(WndLife, WindowsOfAnotherThread)
{
    // Creation and dispatch keep their state per thread.
    LRESULT lResult = 0;
    bool bCreated = false;
    bool bUnbound = false;
    std::thread worker([&]() {
        CTestWnd wnd;
        bCreated = CreateTestWnd(wnd, WS_OVERLAPPED);
        if (!bCreated)
            return;
        lResult = wnd.SendMessage(WM_TEST_CUSTOM, 3, 4);
        wnd.DestroyWindow();
        bUnbound = wnd.m_hWnd == NULL && wnd.m_events.back() == "after-ncdestroy";
    });
    worker.join();
    EXPECT_TRUE(bCreated);
    EXPECT_EQ(3004, lResult);
    EXPECT_TRUE(bUnbound);
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
        Pump();
    }
    void TearDown() override
    {
        if (m_wnd.m_hWnd != NULL)
            m_wnd.DestroyWindow();
        Pump();
    }
    CTestWnd m_wnd;
};

TEST_F(WndMessages, MouseButtonCarriesFlagsAndSignedPoint)
{
    m_wnd.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, MAKELPARAM(37, 52));
    EXPECT_EQ(1, m_wnd.m_nLButtonDowns);
    EXPECT_EQ((UINT)(MK_LBUTTON | MK_SHIFT), m_wnd.m_nLButtonFlags);
    EXPECT_EQ(CPoint(37, 52), m_wnd.m_ptLButton);
    // Captured moves outside the client area come with negative coordinates.
    m_wnd.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(-5, -600));
    EXPECT_EQ(2, m_wnd.m_nLButtonDowns);
    EXPECT_EQ(CPoint(-5, -600), m_wnd.m_ptLButton);
}

TEST_F(WndMessages, TimerFromTheSystemAndSent)
{
    ASSERT_NE(0u, m_wnd.SetTimer(7, 10));
    EXPECT_TRUE(PumpUntil([this] { return m_wnd.m_nTimers > 0; }));
    m_wnd.KillTimer(7);
    EXPECT_EQ(7u, m_wnd.m_nLastTimer);
    int nTimers = m_wnd.m_nTimers;
    m_wnd.SendMessage(WM_TIMER, 9, 0);
    EXPECT_EQ(nTimers + 1, m_wnd.m_nTimers);
    EXPECT_EQ(9u, m_wnd.m_nLastTimer);
}

TEST_F(WndMessages, SizeGivesTheClientSize)
{
    m_wnd.m_nSizes = 0;
    m_wnd.SetWindowPos(NULL, 0, 0, 333, 211, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_GE(m_wnd.m_nSizes, 1);
    CRect rc;
    m_wnd.GetClientRect(&rc);
    EXPECT_EQ((UINT)SIZE_RESTORED, m_wnd.m_nSizeType);
    EXPECT_EQ(rc.Width(), m_wnd.m_cx);
    EXPECT_EQ(rc.Height(), m_wnd.m_cy);
    EXPECT_GT(m_wnd.m_cx, 0);

    // Sizes are unsigned 16-bit values.
    m_wnd.SendMessage(WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(40000, 35000));
    EXPECT_EQ((UINT)SIZE_MAXIMIZED, m_wnd.m_nSizeType);
    EXPECT_EQ(40000, m_wnd.m_cx);
    EXPECT_EQ(35000, m_wnd.m_cy);
}

TEST_F(WndMessages, ButtonClickReachesTheParent)
{
    CButton button;
    ASSERT_TRUE(button.Create("Go", WS_VISIBLE | BS_PUSHBUTTON, CRect(5, 5, 80, 30), &m_wnd, IDC_TEST_BUTTON));
    EXPECT_EQ((int)IDC_TEST_BUTTON, button.GetDlgCtrlID());
    EXPECT_EQ(&m_wnd, button.GetParent());
    button.SendMessage(BM_CLICK);
    Pump();
    EXPECT_EQ(1, m_wnd.m_nButtonClicks);
    EXPECT_EQ(0, m_wnd.m_nCommands);
}

TEST_F(WndMessages, EditChangeIsReflectedOrGoesToTheParent)
{
    CReflectEdit reflect;
    ASSERT_TRUE(reflect.Create(WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL, CRect(5, 40, 150, 60), &m_wnd, IDC_TEST_EDIT));
    CEdit plain;
    ASSERT_TRUE(plain.Create(WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL, CRect(5, 70, 150, 90), &m_wnd, IDC_PLAIN_EDIT));

    reflect.ReplaceSel("abc");
    CString s;
    reflect.GetWindowText(s);
    EXPECT_STREQ("abc", s);   // the edit's own procedure did its work
    EXPECT_EQ(1, reflect.m_nReflectedChanges);
    EXPECT_EQ(0, m_wnd.m_nParentEditChanges);

    plain.ReplaceSel("xyz");
    EXPECT_EQ(1, m_wnd.m_nPlainEditChanges);
    EXPECT_EQ(1, reflect.m_nReflectedChanges);

    // A reflected notify answers through the parent's procedure.
    NMHDR nm = { reflect.m_hWnd, IDC_TEST_EDIT, (UINT)NM_RCLICK };
    EXPECT_EQ(55, m_wnd.SendMessage(WM_NOTIFY, IDC_TEST_EDIT, (LPARAM)&nm));
    EXPECT_EQ(1, reflect.m_nReflectedNotifies);
    EXPECT_EQ(0, m_wnd.m_nNotifies);
}

TEST_F(WndMessages, NotifyReachesTheParentHandler)
{
    CButton button;
    ASSERT_TRUE(button.Create("N", WS_VISIBLE | BS_PUSHBUTTON, CRect(5, 5, 80, 30), &m_wnd, IDC_TEST_BUTTON));
    NMHDR nm = { button.m_hWnd, IDC_TEST_BUTTON, (UINT)NM_CLICK };
    EXPECT_EQ(77, m_wnd.SendMessage(WM_NOTIFY, IDC_TEST_BUTTON, (LPARAM)&nm));
    EXPECT_EQ(1, m_wnd.m_nNotifies);
    EXPECT_EQ(button.m_hWnd, m_wnd.m_lastNotify.hwndFrom);
    EXPECT_EQ((UINT_PTR)IDC_TEST_BUTTON, m_wnd.m_lastNotify.idFrom);
    EXPECT_EQ((UINT)NM_CLICK, m_wnd.m_lastNotify.code);

    // Another code or another id finds no handler.
    NMHDR other = { button.m_hWnd, IDC_TEST_BUTTON, (UINT)NM_DBLCLK };
    EXPECT_EQ(0, m_wnd.SendMessage(WM_NOTIFY, IDC_TEST_BUTTON, (LPARAM)&other));
    NMHDR otherId = { button.m_hWnd, IDC_TEST_BUTTON + 50, (UINT)NM_CLICK };
    EXPECT_EQ(0, m_wnd.SendMessage(WM_NOTIFY, IDC_TEST_BUTTON + 50, (LPARAM)&otherId));
    EXPECT_EQ(1, m_wnd.m_nNotifies);
}

TEST_F(WndMessages, MenuCommandsAndRanges)
{
    m_wnd.SendMessage(WM_COMMAND, MAKEWPARAM(IDM_TEST_COMMAND, 0), 0);
    EXPECT_EQ(1, m_wnd.m_nCommands);
    m_wnd.SendMessage(WM_COMMAND, MAKEWPARAM(IDM_TEST_COMMAND, 1), 0);   // accelerator
    EXPECT_EQ(2, m_wnd.m_nCommands);
    m_wnd.SendMessage(WM_COMMAND, MAKEWPARAM(IDM_RANGE_FIRST + 3, 0), 0);
    EXPECT_EQ(IDM_RANGE_FIRST + 3, m_wnd.m_nRangeId);
    m_wnd.SendMessage(WM_COMMAND, MAKEWPARAM(IDM_RANGE_LAST + 1, 0), 0);
    EXPECT_EQ(IDM_RANGE_FIRST + 3, m_wnd.m_nRangeId);
    EXPECT_EQ(2, m_wnd.m_nCommands);
}

TEST_F(WndMessages, CustomMessageReturnsItsResult)
{
    EXPECT_EQ(12034, m_wnd.SendMessage(WM_TEST_CUSTOM, 12, 34));
    EXPECT_EQ(-2995, m_wnd.SendMessage(WM_TEST_CUSTOM, 0, -2995));
    EXPECT_EQ(2, m_wnd.m_nCustom);
}

TEST_F(WndMessages, DefaultReachesTheDefaultProcedure)
{
    const char* pszTitle = "Title \xCB\xCE\xCC\xE5";
    m_wnd.SetWindowText(pszTitle);
    m_wnd.m_nGetTexts = 0;
    char buf[64] = {};
    EXPECT_EQ((int)strlen(pszTitle), m_wnd.GetWindowText(buf, sizeof(buf)));
    EXPECT_STREQ(pszTitle, buf);
    EXPECT_GE(m_wnd.m_nGetTexts, 1);

    CString s;
    m_wnd.GetWindowText(s);
    EXPECT_STREQ(pszTitle, s);
    // The length may be an upper bound under a double-byte code page.
    EXPECT_GE(m_wnd.GetWindowTextLength(), (int)strlen(pszTitle));
}

TEST_F(WndMessages, SetCursorCarriesWindowHitTestAndMessage)
{
    EXPECT_EQ(TRUE, m_wnd.SendMessage(WM_SETCURSOR, (WPARAM)m_wnd.m_hWnd, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)));
    EXPECT_EQ(1, m_wnd.m_nSetCursors);
    EXPECT_EQ(&m_wnd, m_wnd.m_pCursorWnd);
    EXPECT_EQ((UINT)HTCLIENT, m_wnd.m_nHitTest);
    EXPECT_EQ((UINT)WM_MOUSEMOVE, m_wnd.m_nMouseMessage);
    // HTERROR (-2) arrives as the low word, as the class library passes it.
    m_wnd.SendMessage(WM_SETCURSOR, (WPARAM)m_wnd.m_hWnd, MAKELPARAM(HTERROR, WM_LBUTTONDOWN));
    EXPECT_EQ(HTERROR, (short)m_wnd.m_nHitTest);
    EXPECT_EQ((UINT)WM_LBUTTONDOWN, m_wnd.m_nMouseMessage);
}

TEST_F(WndMessages, ContextMenuKeepsNegativeScreenPoints)
{
    m_wnd.SendMessage(WM_CONTEXTMENU, (WPARAM)m_wnd.m_hWnd, MAKELPARAM(-20, -300));
    EXPECT_EQ(1, m_wnd.m_nContextMenus);
    EXPECT_EQ(&m_wnd, m_wnd.m_pContextWnd);
    EXPECT_EQ(CPoint(-20, -300), m_wnd.m_ptContext);
    // From the keyboard: -1, -1.
    m_wnd.SendMessage(WM_CONTEXTMENU, (WPARAM)m_wnd.m_hWnd, MAKELPARAM(-1, -1));
    EXPECT_EQ(CPoint(-1, -1), m_wnd.m_ptContext);
    m_wnd.SendMessage(WM_CONTEXTMENU, (WPARAM)m_wnd.m_hWnd, MAKELPARAM(1500, 20));
    EXPECT_EQ(CPoint(1500, 20), m_wnd.m_ptContext);
}

TEST_F(WndMessages, PaintHandlerValidatesThroughPaintDC)
{
    Pump();
    m_wnd.m_nPaints = 0;
    CRect rcInvalid(10, 20, 50, 60);
    m_wnd.InvalidateRect(&rcInvalid, FALSE);
    m_wnd.UpdateWindow();
    EXPECT_EQ(1, m_wnd.m_nPaints);
    EXPECT_EQ(rcInvalid, m_wnd.m_rcPaint);
    CRect rcUpdate;
    EXPECT_FALSE(m_wnd.GetUpdateRect(&rcUpdate));
    // Nothing is left to paint.
    m_wnd.UpdateWindow();
    Pump();
    EXPECT_EQ(1, m_wnd.m_nPaints);
}

// ---------------------------------------------------------------------------
// Exceptions stay inside the window procedure
// ---------------------------------------------------------------------------

TEST_F(WndMessages, ExceptionsInHandlersDoNotEscape)
{
    int nDeleted = CTestException::s_nDeleted;
    EXPECT_EQ(0, m_wnd.SendMessage(WM_RBUTTONDOWN, 0, MAKELPARAM(1, 1)));
    EXPECT_EQ(nDeleted + 1, CTestException::s_nDeleted);   // caught and deleted
    EXPECT_EQ(0, m_wnd.SendMessage(WM_RBUTTONUP, 0, MAKELPARAM(1, 1)));
    EXPECT_EQ(0, m_wnd.SendMessage(WM_RBUTTONDBLCLK, 0, MAKELPARAM(1, 1)));

    // The window goes on working, and Default() sees the right message.
    m_wnd.SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(3, 4));
    EXPECT_EQ(CPoint(3, 4), m_wnd.m_ptLButton);
    m_wnd.SetWindowText("still");
    CString s;
    m_wnd.GetWindowText(s);
    EXPECT_STREQ("still", s);
}

TEST_F(WndMessages, ExceptionInPaintValidatesTheWindow)
{
    Pump();
    m_wnd.m_nPaints = 0;
    m_wnd.m_bThrowInPaint = true;
    m_wnd.Invalidate(FALSE);
    m_wnd.UpdateWindow();
    EXPECT_EQ(1, m_wnd.m_nPaints);
    // No endless stream of WM_PAINT: the failed paint validated the window.
    CRect rcUpdate;
    EXPECT_FALSE(m_wnd.GetUpdateRect(&rcUpdate));
    Pump();
    EXPECT_EQ(1, m_wnd.m_nPaints);
    m_wnd.m_bThrowInPaint = false;
}

// ---------------------------------------------------------------------------
// Subclassing a window made elsewhere
// ---------------------------------------------------------------------------

TEST_F(WndMessages, SubclassAndUnsubclassAnEdit)
{
    HWND hEdit = ::CreateWindowExA(0, "EDIT", "", WS_CHILD | WS_VISIBLE | WS_BORDER, 5, 100, 150, 20,
                                   m_wnd.m_hWnd, (HMENU)(UINT_PTR)IDC_FOREIGN_EDIT, NULL, NULL);
    ASSERT_NE(nullptr, hEdit);
    LONG_PTR pfnOriginal = ::GetWindowLongPtrA(hEdit, GWLP_WNDPROC);

    CCountingEdit edit;
    ASSERT_TRUE(edit.SubclassWindow(hEdit));
    EXPECT_EQ(hEdit, edit.m_hWnd);
    EXPECT_EQ(&edit, CWnd::FromHandlePermanent(hEdit));
    EXPECT_EQ((LONG_PTR)&AfxWndProc, ::GetWindowLongPtrA(hEdit, GWLP_WNDPROC));

    ::SendMessageA(hEdit, WM_CHAR, 'q', 1);
    EXPECT_EQ(1, edit.m_nChars);
    EXPECT_EQ((UINT)'q', edit.m_nLastChar);
    EXPECT_EQ(1u, edit.m_nLastRepeat);
    char buf[16] = {};
    ::GetWindowTextA(hEdit, buf, sizeof(buf));
    EXPECT_STREQ("q", buf);   // the edit's own procedure still runs

    EXPECT_EQ(hEdit, edit.UnsubclassWindow());
    EXPECT_EQ(nullptr, edit.m_hWnd);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hEdit));
    EXPECT_EQ(pfnOriginal, ::GetWindowLongPtrA(hEdit, GWLP_WNDPROC));
    ::SendMessageA(hEdit, WM_CHAR, 'r', 1);
    EXPECT_EQ(1, edit.m_nChars);
    ::GetWindowTextA(hEdit, buf, sizeof(buf));
    EXPECT_STREQ("qr", buf);

    // Subclassed again through the parent, then destroyed with it bound.
    ASSERT_TRUE(edit.SubclassDlgItem(IDC_FOREIGN_EDIT, &m_wnd));
    EXPECT_EQ(hEdit, edit.m_hWnd);
    ::DestroyWindow(hEdit);
    EXPECT_EQ(nullptr, edit.m_hWnd);
}

// ---------------------------------------------------------------------------
// Owner-drawn list box
// ---------------------------------------------------------------------------

TEST(WndOwnerDraw, ListBoxDrawsMeasuresAndDeletesItsItems)
{
    CWnd parent;
    ASSERT_TRUE(parent.CreateEx(0, TestWndClass(), "owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                20, 20, 300, 240, NULL, NULL));
    COwnerList list;
    ASSERT_TRUE(list.Create(WS_VISIBLE | WS_BORDER | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT,
                            CRect(10, 10, 200, 190), &parent, IDC_OWNER_LIST));
    // Measured once while it was made, through the parent.
    EXPECT_GE(list.m_nMeasures, 1);
    EXPECT_EQ((UINT)ODT_LISTBOX, list.m_nMeasureCtlType);
    EXPECT_EQ(IDC_OWNER_LIST, list.m_nMeasureCtlID);

    const char* items[] = { "one", "two", "three" };
    for (int i = 0; i < 3; i++) {
        EXPECT_EQ(i, list.AddString(items[i]));
        list.SetItemData(i, 0x100 + i);
    }
    EXPECT_EQ((int)COwnerList::kItemHeight, list.GetItemHeight(0));
    CString text;
    list.GetText(2, text);
    EXPECT_STREQ("three", text);

    list.m_drawnItems.clear();
    list.m_drawnRects.clear();
    list.Invalidate();
    list.UpdateWindow();
    ASSERT_GE(list.m_drawnItems.size(), 3u);
    EXPECT_TRUE(list.m_bDrawHwndOk);
    for (size_t k = 0; k < list.m_drawnItems.size(); k++) {
        UINT nItem = list.m_drawnItems[k];
        ASSERT_LT(nItem, 3u);
        EXPECT_EQ((int)(nItem * COwnerList::kItemHeight), list.m_drawnRects[k].top);
        EXPECT_EQ((int)COwnerList::kItemHeight, list.m_drawnRects[k].Height());
    }

    // The drawing is on the screen: the middle of item 1 is the item colour.
    {
        CClientDC dc(&list);
        CRect rcItem;
        list.GetItemRect(1, &rcItem);
        EXPECT_EQ(RGB(0, 0, 255), dc.GetPixel(rcItem.left + 5, rcItem.top + 5));
    }

    EXPECT_EQ(2, list.DeleteString(1));
    ASSERT_EQ(1u, list.m_deletedItems.size());
    EXPECT_EQ(1u, list.m_deletedItems[0]);
    EXPECT_EQ((ULONG_PTR)0x101, list.m_deletedData[0]);
    EXPECT_TRUE(list.m_bDeleteHwndOk);

    // Destroying the parent frees the remaining items through the list.
    parent.DestroyWindow();
    EXPECT_EQ(nullptr, list.m_hWnd);
    ASSERT_EQ(3u, list.m_deletedItems.size());
    std::vector<ULONG_PTR> rest(list.m_deletedData.begin() + 1, list.m_deletedData.end());
    std::sort(rest.begin(), rest.end());
    EXPECT_EQ((ULONG_PTR)0x100, rest[0]);
    EXPECT_EQ((ULONG_PTR)0x102, rest[1]);
    EXPECT_TRUE(list.m_bDeleteHwndOk);
}
