// The drop buttons, the line list with its tip and the custom colour
// dialog, through their windows: buttons and lists attached to controls of
// a host as a page attaches them, pixels read from their windows, mouse
// messages sent, the modal dialog driven from a timer in its loop.
#include "TestUtil.h"
#include "ModalScript.h"
#include "sheet/ColorPalette.h"
#include "sheet/DropButtons.h"
#include "sheet/LineColorList.h"
#include "sheet/MyColorDialog.h"
#include "interact/Legend.h"
#include "render/AnnotationMark.h"
#include <vector>

namespace {

COLORREF Sys(int nIndex) { return ::GetSysColor(nIndex); }

COLORREF PixelOf(HWND hWnd, int x, int y)
{
    HDC hDC = ::GetDC(hWnd);
    const COLORREF cr = ::GetPixel(hDC, x, y);
    ::ReleaseDC(hWnd, hDC);
    return cr;
}

int CountPixels(HWND hWnd, const CRect& rect, COLORREF cr)
{
    int n = 0;
    HDC hDC = ::GetDC(hWnd);
    for (int y = rect.top; y < rect.bottom; y++)
        for (int x = rect.left; x < rect.right; x++)
            n += ::GetPixel(hDC, x, y) == cr;
    ::ReleaseDC(hWnd, hDC);
    return n;
}

void Send(HWND hWnd, UINT nMsg, int x, int y, WPARAM nFlags = 0) { ::SendMessageA(hWnd, nMsg, nFlags, MAKELPARAM(x, y)); }

// A page stand-in: a visible top-level window that makes controls by id,
// answers the list's item height and keeps the pickers' messages. Added
// colours go into a palette of 16 cells, as the custom colour page does.
class Host : public CWnd
{
public:
    struct Note { UINT nMsg; WPARAM wParam; LPARAM lParam; };

    explicit Host(int x = 100, int y = 100)
    {
        LPCSTR lpszClass = AfxRegisterWndClass(0, ::LoadCursorA(NULL, (LPCSTR)IDC_ARROW), (HBRUSH)(COLOR_BTNFACE + 1));
        CreateEx(0, lpszClass, "host", WS_POPUP | WS_VISIBLE, x, y, 420, 320, NULL, NULL);
    }
    ~Host() { DestroyWindow(); TestHost::Pump(); }

    HWND Control(LPCSTR lpszClass, DWORD dwStyle, const CRect& r, UINT nID)
    {
        HWND h = ::CreateWindowExA(0, lpszClass, "", WS_CHILD | WS_VISIBLE | dwStyle, r.left, r.top, r.Width(),
                                   r.Height(), m_hWnd, (HMENU)(UINT_PTR)nID, NULL, NULL);
        ::SendMessageA(h, WM_SETFONT, (WPARAM)::GetStockObject(DEFAULT_GUI_FONT), TRUE);
        return h;
    }
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_MEASUREITEM) {
            ((LPMEASUREITEMSTRUCT)lParam)->itemHeight = 17;
            return TRUE;
        }
        if (message >= WM_PICKER_COLOR && message <= WM_PICKER_ADDCOLOR)
            m_notes.push_back(Note{ message, wParam, lParam });
        if (message == WM_PICKER_ADDCOLOR && m_pPalette != NULL)
            m_pPalette->AddColor((DWORD)lParam);
        return CWnd::WindowProc(message, wParam, lParam);
    }

    std::vector<Note> m_notes;
    CColorPalette* m_pPalette = NULL;
};

// The width of a text in the default GUI font, and its widest character (the room of a drop arrow).
int TextWidth(LPCSTR psz, int* pnMaxChar = NULL)
{
    HDC hDC = ::GetDC(NULL);
    HGDIOBJ hOld = ::SelectObject(hDC, ::GetStockObject(DEFAULT_GUI_FONT));
    CRect r(0, 0, 0, 0);
    ::DrawTextA(hDC, psz, -1, &r, DT_CALCRECT | DT_NOPREFIX);
    TEXTMETRICA tm;
    ::GetTextMetricsA(hDC, &tm);
    ::SelectObject(hDC, hOld);
    ::ReleaseDC(NULL, hDC);
    if (pnMaxChar != NULL)
        *pnMaxChar = tm.tmMaxCharWidth;
    return r.Width();
}

} // namespace

TEST(DropButtons, AnEnabledColourButtonShowsItsSwatchAndADisabledOneNone)
{
    Host host;
    CColorListBox on, off;
    host.Control("BUTTON", BS_OWNERDRAW, CRect(10, 10, 110, 34), 201);
    host.Control("BUTTON", BS_OWNERDRAW, CRect(10, 50, 110, 74), 202);
    ASSERT_TRUE(on.SubclassDlgItem(201, &host));
    ASSERT_TRUE(off.SubclassDlgItem(202, &host));
    on.SetValue(RGB(255, 0, 0));
    off.SetValue(RGB(255, 0, 0));
    off.EnableWindow(FALSE);
    TestHost::Pump();
    EXPECT_TRUE(host.m_notes.empty());   // SetValue tells nobody
    EXPECT_EQ(RGB(255, 0, 0), PixelOf(on.m_hWnd, 20, 12));
    EXPECT_EQ(RGB(0, 0, 0), PixelOf(on.m_hWnd, 5, 12));   // the frame of the sample
    EXPECT_EQ(Sys(COLOR_BTNFACE), PixelOf(off.m_hWnd, 20, 12));
    EXPECT_EQ(0, CountPixels(off.m_hWnd, CRect(0, 0, 100, 24), RGB(255, 0, 0)));
    // The arrow: 5, 3 and 1 pixels under each other, right of the etched
    // line; dark when enabled, dimmed when disabled.
    int nMaxChar = 0;
    TextWidth("", &nMaxChar);
    const int e = 100 - 3 - nMaxChar - 1 + 5, m = 12;
    const CRect rectArrow(e + 1, m, e + 6, m + 3);
    EXPECT_EQ(9, CountPixels(on.m_hWnd, rectArrow, Sys(COLOR_3DDKSHADOW)));
    EXPECT_EQ(Sys(COLOR_BTNFACE), PixelOf(on.m_hWnd, e + 1, m + 1));
    EXPECT_EQ(0, CountPixels(off.m_hWnd, rectArrow, Sys(COLOR_3DDKSHADOW)));
    EXPECT_EQ(9, CountPixels(off.m_hWnd, rectArrow, Sys(COLOR_BTNSHADOW)));
}

TEST(DropButtons, AClickOpensTheWellUnderTheButtonAndAPickReachesButtonAndDialog)
{
    Host host;
    CColorListBox color;
    CLineTypeListBox line;
    CAnnotationListBox mark;
    CDropButton* apButtons[] = { &color, &line, &mark };
    const CPoint aptPick[] = { CPoint(3 + 5, 3 + 54 + 5), CPoint(20, 3 + 90 + 5), CPoint(3 + 24 + 3, 3 + 54 + 3) };
    const DWORD adwValue[] = { 0xFF0000, 5, 7 };
    line.SetAllowNone(TRUE);
    for (int i = 0; i < 3; i++) {
        const UINT nID = 210 + i;
        host.Control("BUTTON", BS_OWNERDRAW, CRect(10, 10 + 40 * i, 110, 34 + 40 * i), nID);
        ASSERT_TRUE(apButtons[i]->SubclassDlgItem(nID, &host));
        Send(apButtons[i]->m_hWnd, WM_LBUTTONDOWN, 50, 12, MK_LBUTTON);
        Send(apButtons[i]->m_hWnd, WM_LBUTTONUP, 50, 12);
        CPickerWell* pWell = (CPickerWell*)CWnd::FromHandlePermanent(::GetFocus());
        ASSERT_TRUE(pWell != NULL && pWell->IsKindOf(RUNTIME_CLASS(CPickerWell))) << "button " << i;
        CRect rectButton, rectWell;
        apButtons[i]->GetWindowRect(&rectButton);
        pWell->GetWindowRect(&rectWell);
        EXPECT_EQ(rectButton.left, rectWell.left);
        EXPECT_EQ(rectButton.bottom, rectWell.top);
        HWND hWell = pWell->m_hWnd;
        Send(hWell, WM_MOUSEMOVE, aptPick[i].x, aptPick[i].y);
        Send(hWell, WM_LBUTTONDOWN, aptPick[i].x, aptPick[i].y);
        EXPECT_FALSE(::IsWindow(hWell));
        ASSERT_EQ((size_t)i + 1, host.m_notes.size());
        EXPECT_EQ((UINT)WM_APP + 1000 + i, host.m_notes[i].nMsg);
        EXPECT_EQ(nID, host.m_notes[i].wParam);
        EXPECT_EQ((LPARAM)adwValue[i], host.m_notes[i].lParam);
    }
    EXPECT_EQ(0xFF0000u, color.m_crColor);
    EXPECT_EQ(5, line.m_nLineStyle);
    EXPECT_EQ(7, mark.m_nAnnotate);
    TestHost::Pump();
    EXPECT_EQ(RGB(0, 0, 255), PixelOf(color.m_hWnd, 20, 12));
    line.SetValueAndNotify(2);   // the page may set and tell, too
    EXPECT_EQ((UINT)WM_PICKER_LINESTYLE, host.m_notes.back().nMsg);
    EXPECT_EQ(2, host.m_notes.back().lParam);
}

namespace {

// A line list of two lines at the host's (10, 10), 140 wide, and the records the page keeps.
struct LineList
{
    explicit LineList(Host& host, LPCSTR pszLong = "a rather long series name that cannot fit")
    {
        host.Control("LISTBOX", LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOTIFY, CRect(10, 10, 150, 110), 300);
        list.SubclassDlgItem(300, &host);
        looks[0].m_crLine = RGB(0, 0, 255), looks[0].m_nLineWidth = 3, looks[0].m_crBackground = RGB(255, 255, 255);
        looks[1].m_crLine = RGB(0, 160, 0), looks[1].m_nAnnotate = MARK_SQUARE, looks[1].m_crBackground = RGB(255, 255, 200);
        list.SetItemDataPtr(list.AddString("short"), &looks[0]);
        list.SetItemDataPtr(list.AddString(pszLong), &looks[1]);
        TestHost::Pump();
    }
    CLineColorListBoxEx list;
    CLegendData looks[2];
};

} // namespace

TEST(LineList, EachLineShowsItsSampleInTheRecordsColoursAndItsText)
{
    Host host;
    LineList l(host);
    HWND h = l.list.m_hWnd;
    EXPECT_EQ(17, l.list.GetItemHeight(0));
    EXPECT_EQ(RGB(0, 0, 0), PixelOf(h, 5, 2));             // frame of the first sample
    EXPECT_EQ(RGB(255, 255, 255), PixelOf(h, 7, 4));       // its background
    EXPECT_EQ(RGB(0, 0, 255), PixelOf(h, 10, 7));          // its line, 3 wide through y 8
    EXPECT_EQ(RGB(0, 160, 0), PixelOf(h, 10, 17 + 8));     // the second line, 1 wide
    EXPECT_EQ(RGB(255, 255, 200), PixelOf(h, 10, 17 + 7));
    EXPECT_EQ(RGB(0, 160, 0), PixelOf(h, 20, 17 + 7));     // its square mark at x 20
    EXPECT_GT(CountPixels(h, CRect(40, 0, 80, 17), Sys(COLOR_WINDOWTEXT)), 5);
    EXPECT_EQ(Sys(COLOR_WINDOW), PixelOf(h, 38, 17 + 8));
    l.list.SetCurSel(1);
    ::UpdateWindow(h);
    EXPECT_EQ(Sys(COLOR_HIGHLIGHT), PixelOf(h, 38, 17 + 8));
    EXPECT_GT(CountPixels(h, CRect(40, 17, 80, 34), Sys(COLOR_HIGHLIGHTTEXT)), 5);
    EXPECT_EQ(0, CountPixels(h, CRect(40, 17, 80, 34), Sys(COLOR_WINDOWTEXT)));
}

TEST(LineList, TheTipShowsALongNameOverItsTextInTheLinesColours)
{
    Host host;
    LineList l(host);
    HWND h = l.list.m_hWnd;
    Send(h, WM_MOUSEMOVE, 60, 8);   // the short line: no tip
    HWND hTip = l.list.m_pTip->m_hWnd;
    ASSERT_TRUE(hTip != NULL);
    EXPECT_FALSE(::IsWindowVisible(hTip));
    EXPECT_EQ((DWORD)0x0823, (DWORD)::GetClassLongPtrA(hTip, GCL_STYLE));
    EXPECT_EQ((DWORD)(WS_POPUP | WS_BORDER), (DWORD)::GetWindowLongA(hTip, GWL_STYLE) & ~WS_CLIPSIBLINGS);

    Send(h, WM_MOUSEMOVE, 60, 17 + 8);
    ASSERT_TRUE(::IsWindowVisible(hTip));
    CRect rectList, rectTip;
    l.list.GetWindowRect(&rectList);
    ::GetWindowRect(hTip, &rectTip);
    CPoint ptClient(0, 0);
    ::ClientToScreen(h, &ptClient);
    EXPECT_EQ(CPoint(ptClient.x + 38, ptClient.y + 17), rectTip.TopLeft());
    EXPECT_EQ(TextWidth("a rather long series name that cannot fit") + 5, rectTip.Width());
    EXPECT_EQ(h, ::GetCapture());
    EXPECT_EQ(Sys(COLOR_INFOBK), PixelOf(hTip, 1, 1));
    EXPECT_GT(CountPixels(hTip, CRect(0, 0, 40, rectTip.Height() - 2), Sys(COLOR_INFOTEXT)), 5);

    Send(h, WM_LBUTTONDOWN, 60, 17 + 8, MK_LBUTTON);   // selects the line: the tip takes its colours
    Send(h, WM_LBUTTONUP, 60, 17 + 8);
    EXPECT_EQ(1, l.list.GetCurSel());
    EXPECT_EQ(Sys(COLOR_HIGHLIGHT), PixelOf(hTip, 1, 1));
    EXPECT_GT(CountPixels(hTip, CRect(0, 0, 40, rectTip.Height() - 2), Sys(COLOR_HIGHLIGHTTEXT)), 5);

    Send(h, WM_MOUSEMOVE, 60, 8);   // the short line again: the tip goes with the capture
    EXPECT_FALSE(::IsWindowVisible(hTip));
    EXPECT_NE(h, ::GetCapture());
    Send(h, WM_MOUSEMOVE, 60, 17 + 8, MK_LBUTTON);   // the button down: none
    EXPECT_FALSE(::IsWindowVisible(hTip));
    Send(h, WM_MOUSEMOVE, 60, 17 + 8);
    EXPECT_TRUE(::IsWindowVisible(hTip));
    Send(h, WM_MOUSEMOVE, 60, 200);   // out of the list, the capture leads it here
    EXPECT_FALSE(::IsWindowVisible(hTip));
    EXPECT_NE(h, ::GetCapture());

    Send(h, WM_RBUTTONDOWN, 60, 17 + 8, MK_RBUTTON);   // after a right click no tip
    Send(h, WM_RBUTTONUP, 60, 17 + 8);
    Send(h, WM_MOUSEMOVE, 60, 17 + 8);
    EXPECT_FALSE(::IsWindowVisible(hTip));
    ::SetFocus(host.m_hWnd);
    l.list.SetFocus();                  // until the focus comes back
    Send(h, WM_MOUSEMOVE, 60, 17 + 8);
    EXPECT_TRUE(::IsWindowVisible(hTip));
    Send(h, WM_MOUSEMOVE, 60, 200);
}

TEST(LineList, ATipAtTheScreensRightEdgeMovesLeft)
{
    const int cxScreen = ::GetSystemMetrics(SM_CXSCREEN);
    Host host(cxScreen - 200, 100);
    LineList l(host);
    Send(l.list.m_hWnd, WM_MOUSEMOVE, 60, 17 + 8);
    HWND hTip = l.list.m_pTip->m_hWnd;
    ASSERT_TRUE(::IsWindowVisible(hTip));
    CRect rectTip;
    ::GetWindowRect(hTip, &rectTip);
    EXPECT_EQ(cxScreen, rectTip.right);
    EXPECT_EQ(TextWidth("a rather long series name that cannot fit") + 5, rectTip.Width());
    Send(l.list.m_hWnd, WM_MOUSEMOVE, 60, 200);
}

namespace {

// Drives the custom colour dialog from a timer in its loop: checks its
// template, adds red, green and blue, and closes it.
struct AddScript { bool bTemplate, bDisabled, bDone; } s_add;

void CALLBACK AddColors(HWND, UINT, UINT_PTR nTimer, DWORD)
{
    HWND hDlg = FindVisibleDialog();
    if (hDlg == NULL)
        return;
    ::KillTimer(NULL, nTimer);
    s_add.bTemplate = TextOf(hDlg) == std::string(AnsiOf(L"对话框")) && TextOf(::GetDlgItem(hDlg, 14807)) == std::string(AnsiOf(L"加入颜色(&A)"));
    s_add.bDisabled = !::IsWindowEnabled(::GetDlgItem(hDlg, 720)) && !::IsWindowEnabled(::GetDlgItem(hDlg, 710)) &&
                      !::IsWindowEnabled(::GetDlgItem(hDlg, 721)) && ::IsWindowEnabled(::GetDlgItem(hDlg, 706));
    const char* apszRgb[3][3] = { { "255", "0", "0" }, { "0", "255", "0" }, { "0", "0", "255" } };
    for (const auto& rgb : apszRgb) {
        for (int i = 0; i < 3; i++)
            ::SetDlgItemTextA(hDlg, 706 + i, rgb[i]);
        ::SendMessageA(hDlg, WM_COMMAND, MAKEWPARAM(14807, BN_CLICKED), (LPARAM)::GetDlgItem(hDlg, 14807));
    }
    ::PostMessageA(hDlg, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), (LPARAM)::GetDlgItem(hDlg, IDOK));
    s_add.bDone = true;
}

} // namespace

TEST(CustomColorDialog, TheAddButtonHandsEachColourToTheOwnersPalette)
{
    ThreadLocale locale(MAKELCID(MAKELANGID(LANG_CHINESE, SUBLANG_CHINESE_SIMPLIFIED), SORT_DEFAULT));
    Host host;
    DWORD adwCustom[16] = {};
    HWND hPalette = ::CreateWindowExA(0, PALETTE_WINDOW_CLASS, "", WS_CHILD | WS_VISIBLE, 10, 10, 193, 40, host.m_hWnd,
                                      (HMENU)1005, NULL, NULL);
    host.m_pPalette = (CColorPalette*)CWnd::FromHandlePermanent(hPalette);
    host.m_pPalette->SetColors(adwCustom, 16);
    const LONG nGdiBefore = CGdiObject::GetLiveCount();
    for (int nRun = 0; nRun < 3; nRun++) {
        CmyColorDialog dlg(0xFFFFFF, 0, &host);
        EXPECT_EQ((DWORD)0x33, dlg.m_cc.Flags);
        EXPECT_EQ(MAKEINTRESOURCEA(14804), dlg.m_cc.lpTemplateName);
        s_add = AddScript{ false, false, false };
        ::SetTimer(NULL, 0, 50, AddColors);
        EXPECT_EQ(IDOK, dlg.DoModal());
        ASSERT_TRUE(s_add.bDone);
        EXPECT_TRUE(s_add.bTemplate);
        EXPECT_TRUE(s_add.bDisabled);
    }
    EXPECT_EQ(nGdiBefore, CGdiObject::GetLiveCount());
    ASSERT_EQ(9u, host.m_notes.size());
    for (int i = 0; i < 9; i++) {
        EXPECT_EQ((UINT)WM_APP + 1003, host.m_notes[i].nMsg);
        EXPECT_EQ(0u, host.m_notes[i].wParam);
    }
    EXPECT_EQ((LPARAM)RGB(255, 0, 0), host.m_notes[0].lParam);
    EXPECT_EQ((LPARAM)RGB(0, 255, 0), host.m_notes[1].lParam);
    EXPECT_EQ((LPARAM)RGB(0, 0, 255), host.m_notes[2].lParam);
    ::UpdateWindow(hPalette);
    const COLORREF acr[3] = { RGB(255, 0, 0), RGB(0, 255, 0), RGB(0, 0, 255) };
    for (int i = 0; i < 9; i++) {
        EXPECT_EQ(acr[i % 3], adwCustom[i]);
        const CPoint c = host.m_pPalette->m_pCellRects[i].CenterPoint();
        EXPECT_EQ(acr[i % 3], PixelOf(hPalette, c.x, c.y)) << "cell " << i;
    }
}

TEST(LineList, TipsButtonsAndListsLeaveNoGdiObjects)
{
    Host host;
    const LONG nBefore = CGdiObject::GetLiveCount();
    for (int i = 0; i < 30; i++) {
        LineList l(host);
        CAnnotationListBox mark;
        host.Control("BUTTON", BS_OWNERDRAW, CRect(200, 10, 300, 34), 400);
        mark.SubclassDlgItem(400, &host);
        mark.SetValue(MARK_SQUARE);
        l.list.SetCurSel(i % 2);
        for (int j = 0; j < 5; j++) {
            Send(l.list.m_hWnd, WM_MOUSEMOVE, 60, 17 + 8);
            ASSERT_TRUE(::IsWindowVisible(l.list.m_pTip->m_hWnd));
            Send(l.list.m_hWnd, WM_MOUSEMOVE, 60, 8);
        }
        ::DestroyWindow(l.list.m_hWnd);
        EXPECT_TRUE(l.list.m_pTip == NULL);   // freed with the window
        mark.DestroyWindow();
    }
    EXPECT_EQ(nBefore, CGdiObject::GetLiveCount());
}
