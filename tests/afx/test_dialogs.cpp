// Dialogs and property sheets run modally on the real dialog manager and
// comctl32, driven from a thread timer: pages are made when first shown,
// data exchange moves values both ways, a failed validation keeps the page
// with its message and the focus on the field, Cancel applies nothing, the
// owner is disabled while the sheet runs, and repeated runs leak nothing.
#include "TestUtil.h"
#include "ModalScript.h"
#include "test_dialogs.h"
#include "afx/afxapp.h"
#include "afx/afxcmn.h"
#include "afx/afxctrl.h"
#include "afx/afxdlgs.h"
#include "resources/resource.h"

#include <functional>
#include <vector>

namespace {

std::string Expected(UINT nID, const char* psz1 = "", const char* psz2 = "")
{
    CString str;
    str.LoadString(nID);
    std::string s = (LPCSTR)str;
    for (auto mark : { std::make_pair("%1", psz1), std::make_pair("%2", psz2) }) {
        size_t n = s.find(mark.first);
        if (n != std::string::npos)
            s.replace(n, 2, mark.second);
    }
    return s;
}

int ThreadWindowCount()
{
    int n = 0;
    ::EnumThreadWindows(::GetCurrentThreadId(), [](HWND, LPARAM lParam) CALLBACK -> BOOL { ++*(int*)lParam; return TRUE; }, (LPARAM)&n);
    return n;
}

class CPageOne : public CPropertyPage
{
public:
    CPageOne() : CPropertyPage(IDD_TEST_PAGE1) {}
    int m_nCount = 7;
    int m_bFlag = TRUE;
    int m_nOK = 0, m_nCancel = 0;
    CEdit m_edit;
    void DoDataExchange(CDataExchange* pDX) override
    {
        DDX_Control(pDX, IDC_TEST_COUNT, m_edit);
        DDX_Text(pDX, IDC_TEST_COUNT, m_nCount);
        DDV_MinMaxInt(pDX, m_nCount, 0, 100);
        DDX_Check(pDX, IDC_TEST_CHECK, m_bFlag);
    }
    void OnOK() override { m_nOK++; }
    void OnCancel() override { m_nCancel++; }
};

class CPageTwo : public CPropertyPage
{
public:
    CPageTwo() : CPropertyPage(IDD_TEST_PAGE2) {}
    double m_dValue = 0.123456789012345678;
    CString m_strName = "abc";
    int m_nOK = 0, m_nCancel = 0;
    void DoDataExchange(CDataExchange* pDX) override
    {
        DDX_Text(pDX, IDC_TEST_NUMBER, m_dValue);
        DDV_MinMaxDouble(pDX, m_dValue, -10.0, 10.0);
        DDX_Text(pDX, IDC_TEST_NAME, m_strName);
    }
    void OnOK() override { m_nOK++; }
    void OnCancel() override { m_nCancel++; }
};

// A sheet with both pages over a host window.
struct SheetFixture
{
    TestHost host;
    CPageOne one;
    CPageTwo two;
    CPropertySheet sheet;
    SheetFixture() : sheet("Sheet", host.Wnd())
    {
        sheet.m_psh.dwFlags |= PSH_NOAPPLYNOW;
        sheet.AddPage(&one);
        sheet.AddPage(&two);
    }
    HWND Item(CWnd& page, int nID) { return ::GetDlgItem(page.m_hWnd, nID); }
    int Run(std::vector<Script::Step> steps, bool* pFinished = NULL)
    {
        HWND* phSheet = &sheet.m_hWnd;
        Script script(steps, [phSheet] {
            std::string strIgnored;
            if (*phSheet && !CloseMessageBox(*phSheet, strIgnored))
                ::PostMessageA(*phSheet, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
        });
        int nResult = script.Run([this] { return sheet.DoModal(); });
        if (pFinished != NULL)
            *pFinished = script.Finished();
        return nResult;
    }
    void Press(int nButton) { ::PostMessageA(sheet.m_hWnd, PSM_PRESSBUTTON, nButton, 0); }
};

} // namespace

TEST(Sheet, PagesAreMadeWhenShownAndExchangeValuesBothWays)
{
    SheetFixture f;
    EXPECT_EQ(2, f.sheet.GetPageCount());
    bool bOwnerDisabled = false, bTwoMadeEarly = true, bChecked = false, bApplyShown = true, bFinished = false;
    std::string strCount, strDouble, strName;
    int nResult = f.Run({
        [&] {
            bOwnerDisabled = !::IsWindowEnabled(f.host.Hwnd());
            bTwoMadeEarly = f.two.m_hWnd != NULL;
            bApplyShown = ::IsWindowVisible(::GetDlgItem(f.sheet.m_hWnd, 0x3021)) != FALSE;
            strCount = TextOf(f.Item(f.one, IDC_TEST_COUNT));
            bChecked = ::IsDlgButtonChecked(f.one.m_hWnd, IDC_TEST_CHECK) == BST_CHECKED;
            ::SendMessageA(f.sheet.m_hWnd, PSM_SETCURSEL, 1, 0);
            return true;
        },
        [&] {
            strDouble = TextOf(f.Item(f.two, IDC_TEST_NUMBER));
            strName = TextOf(f.Item(f.two, IDC_TEST_NAME));
            SetText(f.Item(f.two, IDC_TEST_NUMBER), " 2.5 ");
            SetText(f.Item(f.two, IDC_TEST_NAME), "xyz");
            ::SendMessageA(f.sheet.m_hWnd, PSM_SETCURSEL, 0, 0);
            return true;
        },
        [&] {
            SetText(f.Item(f.one, IDC_TEST_COUNT), "42");
            ::CheckDlgButton(f.one.m_hWnd, IDC_TEST_CHECK, BST_UNCHECKED);
            f.Press(PSBTN_OK);
            return true;
        } }, &bFinished);

    EXPECT_TRUE(bFinished);
    EXPECT_EQ(IDOK, nResult);
    EXPECT_TRUE(bOwnerDisabled);
    EXPECT_TRUE(::IsWindowEnabled(f.host.Hwnd()));
    EXPECT_FALSE(bTwoMadeEarly);
    EXPECT_FALSE(bApplyShown);
    EXPECT_EQ("7", strCount);
    EXPECT_TRUE(bChecked);
    EXPECT_EQ("0.123456789012346", strDouble);   // 15 significant digits
    EXPECT_EQ("abc", strName);
    EXPECT_EQ(42, f.one.m_nCount);
    EXPECT_EQ(FALSE, f.one.m_bFlag);
    EXPECT_EQ(2.5, f.two.m_dValue);
    EXPECT_STREQ("xyz", f.two.m_strName);
    EXPECT_EQ(1, f.one.m_nOK);
    EXPECT_EQ(1, f.two.m_nOK);
    EXPECT_EQ(0, f.one.m_nCancel + f.two.m_nCancel);
    EXPECT_EQ(NULL, f.sheet.m_hWnd);
    EXPECT_EQ(NULL, f.one.m_edit.m_hWnd);   // unbound with its window
}

TEST(Sheet, FailedValidationKeepsThePageWithMessageAndFocus)
{
    SheetFixture f;
    std::string strBad, strRange;
    bool bStayed[2] = {}, bFocus[2] = {}, bFinished = false;
    DWORD dwSel = 0;
    HWND hEdit = NULL;
    int nResult = f.Run({
        [&] {
            hEdit = f.Item(f.one, IDC_TEST_COUNT);
            SetText(hEdit, "4x");
            f.Press(PSBTN_OK);
            return true;
        },
        [&] { return CloseMessageBox(f.sheet.m_hWnd, strBad); },
        [&] {
            bStayed[0] = (HWND)::SendMessageA(f.sheet.m_hWnd, PSM_GETCURRENTPAGEHWND, 0, 0) == f.one.m_hWnd;
            bFocus[0] = ::GetFocus() == hEdit;
            dwSel = (DWORD)::SendMessageA(hEdit, EM_GETSEL, 0, 0);
            SetText(hEdit, "500");
            // Leaving the page validates too; posted, since the message box
            // that follows must find the timer free.
            ::PostMessageA(f.sheet.m_hWnd, PSM_SETCURSEL, 1, 0);
            return true;
        },
        [&] { return CloseMessageBox(f.sheet.m_hWnd, strRange); },
        [&] {
            bStayed[1] = (HWND)::SendMessageA(f.sheet.m_hWnd, PSM_GETCURRENTPAGEHWND, 0, 0) == f.one.m_hWnd;
            bFocus[1] = ::GetFocus() == hEdit;
            SetText(hEdit, "50");
            f.Press(PSBTN_OK);
            return true;
        } }, &bFinished);

    EXPECT_TRUE(bFinished);
    EXPECT_EQ(IDOK, nResult);
    EXPECT_EQ(Expected(AFX_IDP_PARSE_INT), strBad);
    EXPECT_EQ(Expected(AFX_IDP_PARSE_INT_RANGE, "0", "100"), strRange);
    EXPECT_TRUE(bStayed[0] && bStayed[1]);
    EXPECT_TRUE(bFocus[0] && bFocus[1]);
    EXPECT_EQ(MAKELONG(0, 2), (LONG)dwSel);   // the whole field selected
    EXPECT_EQ(50, f.one.m_nCount);
    EXPECT_EQ(1, f.one.m_nOK);
    EXPECT_EQ(0, f.two.m_nOK);   // never shown
}

TEST(Sheet, CancelAppliesNothing)
{
    SheetFixture f;
    bool bFinished = false;
    int nResult = f.Run({ [&] {
        SetText(f.Item(f.one, IDC_TEST_COUNT), "99");
        f.Press(PSBTN_CANCEL);
        return true;
    } }, &bFinished);
    EXPECT_TRUE(bFinished);
    EXPECT_EQ(IDCANCEL, nResult);
    EXPECT_EQ(7, f.one.m_nCount);
    EXPECT_EQ(0, f.one.m_nOK + f.two.m_nOK);
    EXPECT_EQ(1, f.one.m_nCancel);
    EXPECT_EQ(0, f.two.m_nCancel);
    EXPECT_TRUE(::IsWindowEnabled(f.host.Hwnd()));
}

TEST(Sheet, RepeatedRunsLeakNothing)
{
    auto cycle = [] {
        SheetFixture f;
        f.Run({ [&] { ::SendMessageA(f.sheet.m_hWnd, PSM_SETCURSEL, 1, 0); f.Press(PSBTN_CANCEL); return true; } });
    };
    cycle();
    TestHost::Pump();
    const LONG nGdiBefore = CGdiObject::GetLiveCount();
    const SIZE_T nBytesBefore = CommittedBytes();
    const int nWindowsBefore = ThreadWindowCount();
    for (int i = 0; i < 50; i++)
        cycle();
    TestHost::Pump();
    EXPECT_EQ(nGdiBefore, CGdiObject::GetLiveCount());
    EXPECT_EQ(nWindowsBefore, ThreadWindowCount());
    EXPECT_LT(CommittedBytes(), nBytesBefore + 1024 * 1024);
}

namespace {

class CNumberDialog : public CDialog
{
public:
    explicit CNumberDialog(CWnd* pParent) : CDialog(IDD_TEST_DIALOG, pParent) {}
    double m_dValue = 1.5;
    int m_bCheck = FALSE;
    int m_nInit = 0;
    BOOL OnInitDialog() override { m_nInit++; return CDialog::OnInitDialog(); }
    void DoDataExchange(CDataExchange* pDX) override
    {
        DDX_Text(pDX, IDC_TEST_NUMBER, m_dValue);
        DDV_MinMaxDouble(pDX, m_dValue, 0.0, 10.0);
        DDX_Check(pDX, IDC_TEST_CHECK, m_bCheck);
    }
};

} // namespace

TEST(Dialog, ModalFromTemplateValidatesOnOK)
{
    TestHost host;
    CNumberDialog dlg(host.Wnd());
    std::string strShown, strRange;
    bool bOwnerDisabled = false;
    auto click = [&](int nID) { ::PostMessageA(::GetDlgItem(dlg.m_hWnd, nID), BM_CLICK, 0, 0); };
    Script script({
        [&] {
            bOwnerDisabled = !::IsWindowEnabled(host.Hwnd());
            strShown = TextOf(::GetDlgItem(dlg.m_hWnd, IDC_TEST_NUMBER));
            SetText(::GetDlgItem(dlg.m_hWnd, IDC_TEST_NUMBER), "12");
            click(IDOK);
            return true;
        },
        [&] { return CloseMessageBox(dlg.m_hWnd, strRange); },
        [&] {
            SetText(::GetDlgItem(dlg.m_hWnd, IDC_TEST_NUMBER), "3.25");
            click(IDC_TEST_CHECK);
            click(IDOK);
            return true;
        } }, [&] { if (dlg.m_hWnd) click(IDCANCEL); });
    int nResult = script.Run([&] { return dlg.DoModal(); });

    EXPECT_TRUE(script.Finished());
    EXPECT_EQ(IDOK, nResult);
    EXPECT_EQ(1, dlg.m_nInit);
    EXPECT_TRUE(bOwnerDisabled);
    EXPECT_TRUE(::IsWindowEnabled(host.Hwnd()));
    EXPECT_EQ("1.5", strShown);
    EXPECT_EQ(Expected(AFX_IDP_PARSE_REAL_RANGE, "0", "10"), strRange);
    EXPECT_EQ(3.25, dlg.m_dValue);
    EXPECT_EQ(TRUE, dlg.m_bCheck);

    CDialog missing(29999, host.Wnd());
    EXPECT_EQ(-1, missing.DoModal());
}

namespace {

class CHelpApp : public CWinApp
{
public:
    std::vector<std::pair<DWORD_PTR, UINT>> m_calls;
    void WinHelp(DWORD_PTR dwData, UINT nCmd) override { m_calls.push_back({ dwData, nCmd }); }
};

} // namespace

TEST(Controls, ComboSpinPictureAndHelp)
{
    TestHost host;
    CComboBox combo;
    ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWNLIST, CRect(0, 0, 100, 120), host.Wnd(), 10));
    EXPECT_EQ(0, combo.AddString("beta"));
    EXPECT_EQ(1, combo.AddString("alpha"));
    combo.SetItemData(1, 77);
    EXPECT_EQ(1, combo.FindStringExact(-1, "alpha"));
    EXPECT_EQ(CB_ERR, combo.FindStringExact(-1, "alp"));
    EXPECT_EQ(77u, combo.GetItemData(1));
    CString strText;
    combo.GetLBText(0, strText);
    EXPECT_STREQ("beta", strText);
    combo.SetCurSel(1);
    EXPECT_EQ(1, combo.GetCurSel());
    combo.ResetContent();
    EXPECT_EQ(0, combo.GetCount());
    EXPECT_EQ(CB_ERR, combo.GetCurSel());

    CEdit edit;
    CSpinButtonCtrl spin;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 130, 60, 150), host.Wnd(), 11));
    ASSERT_TRUE(spin.Create(WS_CHILD | WS_VISIBLE | UDS_SETBUDDYINT, CRect(60, 130, 75, 150), host.Wnd(), 12));
    spin.SetBuddy(&edit);
    EXPECT_EQ(edit.m_hWnd, spin.GetBuddy()->m_hWnd);
    spin.SetRange(5, 50);
    int nLower = 0, nUpper = 0;
    spin.GetRange(nLower, nUpper);
    EXPECT_EQ(5, nLower);
    EXPECT_EQ(50, nUpper);
    spin.SetPos(20);
    EXPECT_EQ(20, LOWORD(spin.GetPos()));
    EXPECT_EQ("20", TextOf(edit.m_hWnd));

    CStatic picture;
    ASSERT_TRUE(picture.Create("", WS_CHILD | WS_VISIBLE | SS_BITMAP, CRect(0, 160, 20, 180), host.Wnd(), 13));
    HBITMAP hBitmap = ::CreateBitmap(8, 8, 1, 32, NULL);
    EXPECT_EQ(NULL, picture.SetBitmap(hBitmap));
    EXPECT_EQ(hBitmap, picture.GetBitmap());
    EXPECT_EQ(hBitmap, picture.SetBitmap(NULL));
    ::DeleteObject(hBitmap);

    EXPECT_EQ(NULL, AfxGetApp());
    {
        CHelpApp app;
        ASSERT_EQ(&app, AfxGetApp());
        AfxGetApp()->WinHelp(5012, HELP_CONTEXTMENU);
        ASSERT_EQ(1u, app.m_calls.size());
        EXPECT_EQ(5012u, app.m_calls[0].first);
        EXPECT_EQ((UINT)HELP_CONTEXTMENU, app.m_calls[0].second);
    }
    EXPECT_EQ(NULL, AfxGetApp());
}

namespace {

// A sheet that hands help requests for its controls to the host.
class CHelpSheet : public CPropertySheet
{
public:
    CHelpSheet(CWnd* pParent) : CPropertySheet("Help", pParent) {}

protected:
    afx_msg BOOL OnHelpInfo(HELPINFO* pHelpInfo)
    {
        AfxGetApp()->WinHelp(pHelpInfo->dwContextId, HELP_WM_HELP);
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CHelpSheet, CPropertySheet)
    ON_WM_HELPINFO()
END_MESSAGE_MAP()

} // namespace

TEST(Sheet, HelpReachesTheHostApplication)
{
    TestHost host;
    CHelpApp app;
    CPageOne one;
    CHelpSheet sheet(host.Wnd());
    sheet.m_psh.dwFlags |= PSH_NOAPPLYNOW | PSH_HASHELP;
    sheet.AddPage(&one);
    bool bHelpShown = false;
    Script script({ [&] {
        bHelpShown = ::IsWindowVisible(::GetDlgItem(sheet.m_hWnd, IDHELP)) != FALSE;
        HELPINFO info = { sizeof(HELPINFO), HELPINFO_WINDOW, IDC_TEST_COUNT,
                          ::GetDlgItem(one.m_hWnd, IDC_TEST_COUNT), 5001, { 0, 0 } };
        ::SendMessageA(sheet.m_hWnd, WM_HELP, 0, (LPARAM)&info);
        ::PostMessageA(sheet.m_hWnd, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
        return true;
    } }, [&] { if (sheet.m_hWnd) ::PostMessageA(sheet.m_hWnd, PSM_PRESSBUTTON, PSBTN_CANCEL, 0); });
    EXPECT_EQ(IDCANCEL, script.Run([&] { return sheet.DoModal(); }));
    EXPECT_TRUE(bHelpShown);
    ASSERT_EQ(1u, app.m_calls.size());
    EXPECT_EQ(5001u, app.m_calls[0].first);
    EXPECT_EQ((UINT)HELP_WM_HELP, app.m_calls[0].second);
}
