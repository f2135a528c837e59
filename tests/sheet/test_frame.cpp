// The frame of the graph's property sheet, run for real: what OK, Cancel
// and the close box return and whom they tell, the order of the apply
// steps, the host's pages, the title and the question mark, and context
// help for the controls reaching the host's application object.
#include "SheetGraph.h"
#include "TestAccess.h"
#include "afx/afxapp.h"
#include "interact/Legend.h"

namespace {

const int PAGE_LINE_COLORS = 0, PAGE_LIMITS = 1, PAGE_APPEARANCE = 2, PAGE_SETTINGS = 3;

std::vector<std::string> Lines(std::initializer_list<const char*> list) { return std::vector<std::string>(list.begin(), list.end()); }

class CHelpApp : public CWinApp
{
public:
    struct Call { DWORD record[4]; UINT nCmd; };
    std::vector<Call> m_calls;
    void WinHelp(DWORD_PTR dwData, UINT nCmd) override
    {
        Call call;
        memcpy(call.record, (const void*)dwData, sizeof(call.record));
        call.nCmd = nCmd;
        m_calls.push_back(call);
    }
};

} // namespace

TEST(Sheet, OkCancelAndCloseTellTheHostOnlyAfterOk)
{
    SheetGraph g;
    CHostPage host1, host2;
    g.m_graph.AddPropertyPage(&host1, 7);
    g.m_graph.AddPropertyPage(&host2, 9);

    // Cancel and the close box: 2, and nobody hears anything.
    bool bOwnerDisabled = false;
    EXPECT_EQ(2, g.Run({ [&](HWND hSheet) {
        bOwnerDisabled = !::IsWindowEnabled(::GetAncestor(g.Hwnd(), GA_ROOT));
        ShowPage(hSheet, 4);
        Press(hSheet, PSBTN_CANCEL);
        return true;
    } }));
    EXPECT_TRUE(bOwnerDisabled);
    EXPECT_TRUE(::IsWindowEnabled(::GetAncestor(g.Hwnd(), GA_ROOT)));
    EXPECT_EQ(0u, g.m_sink.m_lines.size());
    EXPECT_EQ(2, g.Run({ [](HWND hSheet) { ::PostMessageA(hSheet, WM_SYSCOMMAND, SC_CLOSE, 0); return true; } }));
    EXPECT_EQ(0u, g.m_sink.m_lines.size());
    EXPECT_EQ(0, host1.m_nOK);

    // OK at once: only the first page was opened; host pages hear of OK in order.
    EXPECT_EQ(1, g.Run({ [](HWND hSheet) { Press(hSheet, PSBTN_OK); return true; } }));
    EXPECT_EQ(Lines({ "event 256", "page 7", "page 9" }), g.m_sink.m_lines);

    // Every page opened: the fixed order of the apply steps.
    EXPECT_EQ(1, g.Run({ [](HWND hSheet) {
        for (int nPage = 5; nPage >= 0; nPage--)
            ShowPage(hSheet, nPage);
        Press(hSheet, PSBTN_OK);
        return true;
    } }));
    EXPECT_EQ(Lines({ "event 256", "event 512", "event 1024", "event 1", "page 7", "page 9" }), g.m_sink.m_lines);
    EXPECT_EQ(1, host1.m_nOK);

    // Of two pages with one identifier the first goes.
    CHostPage host3;
    g.m_graph.AddPropertyPage(&host3, 7);
    EXPECT_EQ(GRAPH_OK, g.m_graph.RemovePropertyPage(7));
    int nTabs = 0;
    bool bSecondTwinStayed = false;
    EXPECT_EQ(1, g.Run({ [&](HWND hSheet) {
        nTabs = (int)::SendMessageA(PropSheet_GetTabControl(hSheet), TCM_GETITEMCOUNT, 0, 0);
        bSecondTwinStayed = ShowPage(hSheet, 4) == host2.m_hWnd;
        Press(hSheet, PSBTN_OK);
        return true;
    } }));
    EXPECT_EQ(6, nTabs);
    EXPECT_TRUE(bSecondTwinStayed);
    EXPECT_EQ(Lines({ "event 256", "page 9", "page 7" }), g.m_sink.m_lines);
    EXPECT_EQ(0, g.m_graph.RemovePropertyPage(42));

    // Without any page nothing opens.
    g.m_graph.RemovePropertyPage(9);
    g.m_graph.RemovePropertyPage(7);
    g.m_graph.SetPropertyPageConfiguration(0);
    EXPECT_EQ(2, g.Run({}));
    EXPECT_TRUE(g.m_bFinished);
    EXPECT_EQ(0u, g.m_sink.m_lines.size());
}

TEST(Sheet, TitleQuestionMarkAndContextHelp)
{
    SheetGraph g;
    CHelpApp app;
    std::string strTitle;
    DWORD dwExStyle = 0;
    std::vector<std::pair<int, DWORD>> missing;
    HWND hDisabled = NULL, hHidden = NULL, hEdit = NULL;
    EXPECT_EQ(2, g.Run({ [&](HWND hSheet) {
        strTitle = TextOf(hSheet);
        dwExStyle = (DWORD)::GetWindowLongA(hSheet, GWL_EXSTYLE);
        // Every control of every page carries its help id.
        static const std::vector<std::vector<std::pair<int, DWORD>>> s_pages = {
            { { 1022, 5024 }, { 1003, 5024 }, { 1064, 5025 }, { 1026, 5025 }, { 1023, 5031 }, { 1007, 5031 },
              { 1067, 5030 }, { 1006, 5030 }, { 1066, 5029 }, { 1036, 5029 }, { 1042, 5029 }, { 1065, 5026 },
              { 1005, 5026 }, { 1025, 5027 }, { 1024, 5028 } },
            { { 1052, 5000 }, { 1009, 5000 }, { 1053, 5001 }, { 1008, 5001 }, { 1058, 5010 }, { 1054, 5002 },
              { 1011, 5002 }, { 1055, 5003 }, { 1010, 5003 }, { 1043, 5011 }, { 1045, 5005 }, { 1013, 5005 },
              { 1044, 5004 }, { 1012, 5004 }, { 1014, 5006 }, { 1016, 5007 }, { 1056, 5008 }, { 1018, 5008 },
              { 1057, 5009 }, { 1021, 5009 } },
            { { 1035, 5015 }, { 1063, 5016 }, { 1032, 5016 }, { 1040, 5017 }, { 1033, 5017 }, { 1041, 5018 },
              { 1034, 5018 }, { 1037, 5019 }, { 1027, 5019 }, { 1038, 5020 }, { 1028, 5020 }, { 1039, 5021 },
              { 1029, 5021 }, { 1030, 5022 }, { 1031, 5023 } },
            { { 1062, 5012 }, { 1000, 5012 }, { 1001, 5013 }, { 1002, 5014 } },
        };
        for (int nPage = 0; nPage < 4; nPage++) {
            HWND hPage = ShowPage(hSheet, nPage);
            for (auto& control : s_pages[nPage]) {
                if (::GetWindowContextHelpId(::GetDlgItem(hPage, control.first)) != control.second)
                    missing.push_back(control);
            }
        }
        // A right click on a disabled and on a hidden control, then F1.
        HWND hPage = ShowPage(hSheet, PAGE_LIMITS);
        hDisabled = ::GetDlgItem(hPage, IDC_YRIGHT_MAX);
        hHidden = ::GetDlgItem(hPage, IDC_RADAR_X);
        ::ShowWindow(hHidden, SW_HIDE);
        for (HWND hCtrl : { hDisabled, hHidden }) {
            RECT rc;
            ::GetWindowRect(hCtrl, &rc);
            ::SendMessageA(hPage, WM_CONTEXTMENU, (WPARAM)hPage, MAKELPARAM(rc.left + 2, rc.top + 2));
        }
        hEdit = ::GetDlgItem(hPage, IDC_X_MIN);
        HELPINFO info = { sizeof(HELPINFO), HELPINFO_WINDOW, IDC_X_MIN, hEdit, IDH_X_MIN, { 0, 0 } };
        ::SendMessageA(hEdit, WM_HELP, 0, (LPARAM)&info);
        // A control without an id of its own asks nothing.
        HWND hGroup = ::GetDlgItem(hPage, IDC_X_AXIS_GROUP);
        ::SendMessageA(hSheet, WM_CONTEXTMENU, (WPARAM)hGroup, 0);
        Press(hSheet, PSBTN_CANCEL);
        return true;
    } }));
    EXPECT_EQ((LPCSTR)AnsiOf(L"图象属性"), strTitle);
    EXPECT_TRUE(dwExStyle & WS_EX_CONTEXTHELP);
    EXPECT_FALSE(dwExStyle & WS_EX_DLGMODALFRAME);
    EXPECT_TRUE(missing.empty()) << missing.size() << " controls without their help id, first " << missing[0].first;
    ASSERT_EQ(3u, app.m_calls.size());
    const DWORD expected[3][4] = { { IDC_YRIGHT_MAX, IDH_YRIGHT_MAX, 0, (DWORD)(DWORD_PTR)hDisabled },
                                   { IDC_RADAR_X, IDH_RADAR_X, 0, (DWORD)(DWORD_PTR)hHidden },
                                   { IDC_X_MIN, IDH_X_MIN, 0, (DWORD)(DWORD_PTR)hEdit } };
    for (int i = 0; i < 3; i++) {
        EXPECT_EQ(0, memcmp(expected[i], app.m_calls[i].record, sizeof(expected[i]))) << i;
        EXPECT_EQ(i < 2 ? (UINT)HELP_CONTEXTMENU : (UINT)HELP_WM_HELP, app.m_calls[i].nCmd) << i;
    }
}

TEST(Sheet, OkAppliesLimitsGridAndBackgroundInOrder)
{
    // A typed minimum above the maximum: swapped with the order bit, as
    // typed (a reversed axis) without it.
    for (DWORD dwStyle : { (DWORD)GS_XLIMITORDER, (DWORD)0 }) {
        SheetGraph g(dwStyle);
        EXPECT_EQ(1, g.Run({ [](HWND hSheet) {
            HWND hPage = ShowPage(hSheet, PAGE_LIMITS);
            SetText(::GetDlgItem(hPage, IDC_X_MIN), "8");
            SetText(::GetDlgItem(hPage, IDC_X_MAX), "2");
            Press(hSheet, PSBTN_OK);
            return true;
        } }));
        double dMin = 0, dMax = 0;
        g.m_graph.GetXAxisLimits(&dMin, &dMax);
        EXPECT_EQ(dwStyle ? 2.0 : 8.0, dMin);
        EXPECT_EQ(dwStyle ? 8.0 : 2.0, dMax);
    }

    // A grid refused beside a right axis with floating tics; the limits
    // after it still apply.
    SheetGraph g;
    g.m_graph.ShowGrid(GRID_MAJOR | GRID_BOTHWAYS);
    g.m_graph.SetYAxisLabel(1, "right");
    g.m_graph.SetTicMarkType(1, 0, NULL);
    EXPECT_EQ(1, g.Run({ [](HWND hSheet) {
        HWND hPage = ShowPage(hSheet, PAGE_SETTINGS);
        ::EnableWindow(::GetDlgItem(hPage, IDC_GRID_TYPE), TRUE);
        ChooseEntry(hPage, IDC_GRID_TYPE, 2);
        SetText(::GetDlgItem(ShowPage(hSheet, PAGE_LIMITS), IDC_X_MAX), "20");
        Press(hSheet, PSBTN_OK);
        return true;
    } }));
    EXPECT_EQ((DWORD)GRID_NONE, g.Prv()->m_dwGridType);   // what a refused grid leaves
    double dMin = 0, dMax = 0;
    g.m_graph.GetXAxisLimits(&dMin, &dMax);
    EXPECT_EQ(20.0, dMax);

    // A background picked on the appearance page reaches the legend's
    // samples in the same OK.
    double adX[] = { 1, 2 }, adY[] = { 1, 2 };
    g.m_graph.AddPlotData("one", PLOT_YLEFT, adX, adY, 2, RGB(255, 0, 0), PS_SOLID, 0);
    g.m_graph.ShowLegend(TRUE);
    const COLORREF crNew = RGB(10, 200, 30);
    EXPECT_EQ(1, g.Run({ [&](HWND hSheet) {
        HWND hPage = ShowPage(hSheet, PAGE_APPEARANCE);
        ::SendMessageA(hPage, WM_APP + 1000, IDC_ITEM_COLOR, crNew);
        Press(hSheet, PSBTN_OK);
        return true;
    } }));
    EXPECT_EQ(crNew, g.Prv()->m_crBackground);
    CLegend& legend = g.Prv()->m_legend;
    ASSERT_EQ(1, legend.GetCount());
    EXPECT_EQ(crNew, ((CLegendData*)legend.GetItemDataPtr(0))->m_crBackground);
}

TEST(Sheet, RepeatedRunsLeakNothing)
{
    SheetGraph g;
    double adX[] = { 0, 10 }, adY[] = { 1, 9 };
    for (const char* pszName : { "a", "a rather long name that does not fit into the list" })
        g.m_graph.AddPlotData(pszName, PLOT_YLEFT, adX, adY, 2, RGB(255, 0, 0), PS_SOLID, 0);
    g.m_graph.SetGraphColorsMode(2);
    CHostPage host;
    g.m_graph.AddPropertyPage(&host, 5);
    // Records of both lists, a well opened and picked, the tip of the list
    // shown; every tenth time every page made and the preview painted; OK
    // and Cancel in turn.
    auto cycle = [&](int i) {
        return g.Run({ [i](HWND hSheet) {
            HWND hPage = CurrentPage(hSheet);
            HWND hList = ::GetDlgItem(hPage, IDC_SERIES_LIST);
            ::SendMessageA(hList, WM_MOUSEMOVE, 0, MAKELPARAM(60, 25));
            PickInWell(hPage, IDC_ANNOTATION, AnnotationWellCell(3));
            for (int nPage = 4; nPage >= 1 && i % 10 < 2; nPage--)
                ::UpdateWindow(ShowPage(hSheet, nPage));
            Press(hSheet, i % 2 ? PSBTN_OK : PSBTN_CANCEL);
            return true;
        } });
    };
    auto windows = [] {
        int n = 0;
        ::EnumThreadWindows(::GetCurrentThreadId(), [](HWND, LPARAM lParam) CALLBACK -> BOOL { ++*(int*)lParam; return TRUE; },
                            (LPARAM)&n);
        return n;
    };
    for (int i = 0; i < 4; i++)
        cycle(i);
    const LONG nGdiBefore = CGdiObject::GetLiveCount();
    const LONG nBlocksBefore = AfxGetLiveBlockCount();
    const SIZE_T nBytesBefore = CommittedBytes();
    const int nWindowsBefore = windows();
    int nOK = 0;
    for (int i = 0; i < 200; i++)
        nOK += cycle(i) == 1;
    EXPECT_EQ(100, nOK);
    EXPECT_EQ(nGdiBefore, CGdiObject::GetLiveCount());
    EXPECT_EQ(nWindowsBefore, windows());
    EXPECT_EQ(nBlocksBefore, AfxGetLiveBlockCount());   // pages' records, wells, tips
    EXPECT_LT(CommittedBytes(), nBytesBefore + 2 * 1024 * 1024) << "before " << nBytesBefore;
}
