// The limits, settings and legend options pages, driven through their
// controls: what they show of the graph, how their controls depend on each
// other, what they refuse, and what OK and Cancel leave in the graph.
#include "SheetGraph.h"
#include "afx/afxapp.h"
#include "interact/Legend.h"

namespace {

const int PAGE_LIMITS = 1, PAGE_SETTINGS = 3;

// The message a failed validation shows: its string with the range put in.
std::string Message(UINT nID, const char* pszMin = NULL, const char* pszMax = NULL)
{
    CString str;
    if (pszMin != NULL)
        AfxFormatString2(str, nID, pszMin, pszMax);
    else
        str.LoadString(nID);
    return (LPCSTR)str;
}

} // namespace

TEST(LimitsPage, ShowsLimitsTakesThemBackAndRefusesBadInput)
{
    SheetGraph g;
    g.m_graph.SetXAxisLimits(0.123456789, 5.123456789);
    std::string strXMin, strXMax;
    std::vector<bool> rightEnabled;
    EXPECT_EQ(1, g.Run({ [&](HWND hSheet) {
        HWND hPage = ShowPage(hSheet, PAGE_LIMITS);
        strXMin = TextOf(::GetDlgItem(hPage, IDC_X_MIN));
        strXMax = TextOf(::GetDlgItem(hPage, IDC_X_MAX));
        for (int nID : { IDC_YRIGHT_MAX, IDC_YRIGHT_MIN, IDC_YRIGHT_HEADING, IDC_YRIGHT_MAX_LABEL, IDC_YRIGHT_MIN_LABEL,
                         IDC_YLEFT_MAX })
            rightEnabled.push_back(Enabled(hPage, nID));
        Press(hSheet, PSBTN_OK);
        return true;
    } }));
    EXPECT_EQ("0.1234568", strXMin);
    EXPECT_EQ("5.123456789", strXMax);
    EXPECT_EQ(std::vector<bool>({ false, false, false, false, false, true }), rightEnabled);
    double dMin = 0, dMax = 0;
    g.m_graph.GetXAxisLimits(&dMin, &dMax);
    EXPECT_EQ(0.1234568, dMin);   // the seven digits shown come back
    EXPECT_EQ(5.123456789, dMax);

    // A right axis: its column open, with seven digits. The one box for Y
    // stands for both axes; letters cannot be typed.
    g.m_graph.SetYAxisLabel(1, "right");
    g.m_graph.SetYAxisLimits(1.0 / 3.0, 2.0, 1);
    g.m_graph.SetRadarType(2);
    std::string strRight, strTyped;
    bool bRightEnabled = false, bXChecked = true, bYChecked = false;
    EXPECT_EQ(1, g.Run({ [&](HWND hSheet) {
        HWND hPage = ShowPage(hSheet, PAGE_LIMITS);
        strRight = TextOf(::GetDlgItem(hPage, IDC_YRIGHT_MIN));
        bRightEnabled = Enabled(hPage, IDC_YRIGHT_MIN);
        bXChecked = Checked(hPage, IDC_RADAR_X);
        bYChecked = Checked(hPage, IDC_RADAR_Y);
        HWND hEdit = ::GetDlgItem(hPage, IDC_X_MIN);
        SetText(hEdit, "");
        Type(hEdit, "1a.5x");
        strTyped = TextOf(hEdit);
        Press(hSheet, PSBTN_OK);
        return true;
    } }));
    EXPECT_EQ("0.3333333", strRight);
    EXPECT_TRUE(bRightEnabled);
    EXPECT_FALSE(bXChecked);
    EXPECT_TRUE(bYChecked);
    EXPECT_EQ("1.5", strTyped);
    WORD wRadar = 0;
    g.m_graph.GetRadarType(&wRadar);
    EXPECT_EQ(6, wRadar);

    // A percentage out of range and a text that is no number keep the page,
    // with the message and the focus on the field.
    std::vector<std::string> messages;
    std::vector<bool> focused;
    auto closeMessage = [&](HWND hSheet) {
        std::string strText;
        if (!CloseMessageBox(hSheet, strText))
            return false;
        messages.push_back(strText);
        return true;
    };
    auto stayed = [&](int nID) {
        return [&, nID](HWND hSheet) {
            HWND hPage = CurrentPage(hSheet);
            focused.push_back(hPage == ::GetParent(::GetFocus()) && ::GetFocus() == ::GetDlgItem(hPage, nID) &&
                              ::GetDlgItem(hPage, IDC_X_MIN) != NULL);
            return true;
        };
    };
    EXPECT_EQ(2, g.Run({
        [](HWND hSheet) {
            SetText(::GetDlgItem(ShowPage(hSheet, PAGE_LIMITS), IDC_RADAR_X_PERCENT), "150");
            Press(hSheet, PSBTN_OK);
            return true;
        },
        closeMessage,
        stayed(IDC_RADAR_X_PERCENT),
        [](HWND hSheet) {
            HWND hPage = CurrentPage(hSheet);
            SetText(::GetDlgItem(hPage, IDC_RADAR_X_PERCENT), "10");
            SetText(::GetDlgItem(hPage, IDC_X_MIN), "1.2.3");
            Press(hSheet, PSBTN_OK);
            return true;
        },
        closeMessage,
        stayed(IDC_X_MIN),
        [](HWND hSheet) { Press(hSheet, PSBTN_CANCEL); return true; },
    }));
    EXPECT_EQ(std::vector<std::string>({ Message(AFX_IDP_PARSE_REAL_RANGE, "0", "100"), Message(AFX_IDP_PARSE_REAL) }),
              messages);
    EXPECT_EQ(std::vector<bool>({ true, true }), focused);
    EXPECT_EQ(0u, g.m_sink.m_lines.size());

    // Without the radar controls the lower group is gone, and its values
    // pass through unchanged.
    g.m_graph.EnableRadarPercentControls(0);
    g.m_graph.EnableRadarAxisControls(0);
    g.m_graph.SetRadarType(7);
    g.m_graph.SetRadarPercent(12.5, 30.0);
    std::vector<bool> visible;
    EXPECT_EQ(1, g.Run({ [&](HWND hSheet) {
        HWND hPage = ShowPage(hSheet, PAGE_LIMITS);
        for (int nID : { IDC_RADAR_GROUP, IDC_RADAR_X, IDC_RADAR_Y, IDC_RADAR_X_PERCENT, IDC_RADAR_X_PERCENT_LABEL,
                         IDC_RADAR_Y_PERCENT, IDC_RADAR_Y_PERCENT_LABEL, IDC_X_MIN })
            visible.push_back(Visible(hPage, nID));
        Press(hSheet, PSBTN_OK);
        return true;
    } }));
    EXPECT_EQ(std::vector<bool>({ false, false, false, false, false, false, false, true }), visible);
    g.m_graph.GetRadarType(&wRadar);
    EXPECT_EQ(7, wRadar);
    EXPECT_EQ(12.5, g.Prv()->m_dRadarXPercent);
    EXPECT_EQ(30.0, g.Prv()->m_dRadarYPercent);
}

namespace {

// The settings page as it stands: the entries of the grid list, the one
// selected, and the check and enabled states of the two tic boxes.
struct Settings
{
    int nEntries, nSelected;
    bool bMajor, bMinor, bMinorEnabled, bListEnabled;
    bool operator==(const Settings& o) const
    {
        return nEntries == o.nEntries && nSelected == o.nSelected && bMajor == o.bMajor && bMinor == o.bMinor &&
               bMinorEnabled == o.bMinorEnabled && bListEnabled == o.bListEnabled;
    }
};

std::ostream& operator<<(std::ostream& os, const Settings& s)
{
    return os << s.nEntries << " entries, " << s.nSelected << " selected, major " << s.bMajor << " minor " << s.bMinor
              << (s.bMinorEnabled ? " enabled" : " disabled") << ", list " << (s.bListEnabled ? "enabled" : "disabled");
}

Settings Read(HWND hPage)
{
    return { EntryCount(hPage, IDC_GRID_TYPE), Selection(hPage, IDC_GRID_TYPE), Checked(hPage, IDC_MAJOR_TICS),
             Checked(hPage, IDC_MINOR_TICS), Enabled(hPage, IDC_MINOR_TICS), Enabled(hPage, IDC_GRID_TYPE) };
}

// Opens the settings page, records its state after each action, presses OK.
std::vector<Settings> Drive(SheetGraph& g, std::vector<std::function<void(HWND)>> actions)
{
    std::vector<Settings> states;
    EXPECT_EQ(1, g.Run({ [&](HWND hSheet) {
        HWND hPage = ShowPage(hSheet, PAGE_SETTINGS);
        states.push_back(Read(hPage));
        for (auto& action : actions) {
            action(hPage);
            states.push_back(Read(hPage));
        }
        Press(hSheet, PSBTN_OK);
        return true;
    } }));
    return states;
}

} // namespace

TEST(SettingsPage, GridEntriesFollowTheTicBoxes)
{
    auto clickMajor = [](HWND hPage) { Click(hPage, IDC_MAJOR_TICS); };
    auto clickMinor = [](HWND hPage) { Click(hPage, IDC_MINOR_TICS); };
    auto choose = [](int n) { return [n](HWND hPage) { ChooseEntry(hPage, IDC_GRID_TYPE, n); }; };

    // Major on, minor off: two entries; minor on gives three; minor off with
    // the third chosen falls back to the second.
    {
        SheetGraph g;
        g.m_graph.SetTicMarkType(1, 0, NULL);
        g.m_graph.ShowGrid(GRID_MAJOR | GRID_BOTHWAYS);
        EXPECT_EQ(std::vector<Settings>({ { 2, 1, true, false, true, true }, { 3, 1, true, true, true, true },
                                          { 3, 2, true, true, true, true }, { 2, 1, true, false, true, true } }),
                  Drive(g, { clickMinor, choose(2), clickMinor }));
        EXPECT_EQ((DWORD)(GRID_MAJOR | GRID_BOTHWAYS), g.Prv()->m_dwGridType);
        EXPECT_EQ(1, g.Prv()->m_nXTicType);
        EXPECT_EQ(0, g.Prv()->m_nMinorTics);
    }
    // Major off at the start: minor disabled, three entries to choose from.
    {
        SheetGraph g;
        g.m_graph.SetTicMarkType(0, 0, NULL);
        g.m_graph.ShowGrid(GRID_NONE | GRID_BOTHWAYS);
        EXPECT_EQ(std::vector<Settings>({ { 3, 0, false, false, false, true }, { 3, 2, false, false, false, true } }),
                  Drive(g, { choose(2) }));
        EXPECT_EQ((DWORD)(GRID_MINOR | GRID_BOTHWAYS), g.Prv()->m_dwGridType);
    }
    // Major and minor on, major off: minor off and disabled, three entries;
    // major on again with the third chosen: the second takes its place.
    {
        SheetGraph g;
        g.m_graph.SetTicMarkType(1, 1, NULL);
        g.m_graph.ShowGrid(GRID_MINOR | GRID_BOTHWAYS);
        EXPECT_EQ(std::vector<Settings>({ { 3, 2, true, true, true, true }, { 3, 2, false, false, false, true },
                                          { 2, 1, true, false, true, true } }),
                  Drive(g, { clickMajor, clickMajor }));
        EXPECT_EQ((DWORD)(GRID_MAJOR | GRID_BOTHWAYS), g.Prv()->m_dwGridType);
        EXPECT_EQ(0, g.Prv()->m_nMinorTics);
    }
    // A right axis: the list is fixed, the boxes work, OK writes the entry shown.
    {
        SheetGraph g;
        g.m_graph.SetTicMarkType(0, 0, NULL);
        g.m_graph.ShowGrid(GRID_MAJOR | GRID_BOTHWAYS);
        g.m_graph.SetYAxisLabel(1, "right");
        EXPECT_EQ(std::vector<Settings>({ { 3, 1, false, false, false, false }, { 2, 1, true, false, true, false },
                                          { 3, 1, false, false, false, false } }),
                  Drive(g, { clickMajor, clickMajor }));
        EXPECT_EQ((DWORD)(GRID_MAJOR | GRID_BOTHWAYS), g.Prv()->m_dwGridType);
    }
    // Without plotted series only the horizontal lines; a host's word without
    // a grid entry selects none and survives OK.
    {
        SheetGraph g(GS_NOPLOT);
        g.m_graph.SetTicMarkType(0, 0, NULL);
        Drive(g, { choose(1) });
        EXPECT_EQ((DWORD)(GRID_MAJOR | GRID_HORIZONTAL), g.Prv()->m_dwGridType);
        g.m_graph.ShowGrid(GRID_BOTHWAYS);
        EXPECT_EQ(-1, Drive(g, {})[0].nSelected);
        EXPECT_EQ((DWORD)GRID_BOTHWAYS, g.Prv()->m_dwGridType);
    }
}

namespace {

// The pixels of a bitmap, as 32-bit colours.
std::vector<DWORD> BitsOf(HBITMAP hBitmap, SIZE& size)
{
    BITMAP bm = {};
    ::GetObjectA(hBitmap, sizeof(bm), &bm);
    size = { bm.bmWidth, bm.bmHeight };
    std::vector<DWORD> bits((size_t)bm.bmWidth * bm.bmHeight);
    BITMAPINFO bmi = {};
    bmi.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    bmi.bmiHeader.biWidth = bm.bmWidth;
    bmi.bmiHeader.biHeight = -bm.bmHeight;
    bmi.bmiHeader.biPlanes = 1;
    bmi.bmiHeader.biBitCount = 32;
    HDC hDC = ::GetDC(NULL);
    ::GetDIBits(hDC, hBitmap, 0, bm.bmHeight, bits.data(), &bmi, DIB_RGB_COLORS);
    ::ReleaseDC(NULL, hDC);
    return bits;
}

// Whether a picture control shows the library's bitmap nID.
bool Shows(HWND hPage, int nCtrl, UINT nID)
{
    HBITMAP hShown = (HBITMAP)::SendDlgItemMessageA(hPage, nCtrl, STM_GETIMAGE, IMAGE_BITMAP, 0);
    HBITMAP hResource = ::LoadBitmapA(::GetModuleHandleA("ZPXGraph.dll"), MAKEINTRESOURCEA(nID));
    SIZE sizeShown, sizeResource;
    const bool bSame = hShown != NULL && hResource != NULL && BitsOf(hShown, sizeShown) == BitsOf(hResource, sizeResource) &&
                       sizeShown.cx == sizeResource.cx && sizeShown.cy == sizeResource.cy;
    ::DeleteObject(hResource);
    return bSame;
}

struct Pictures
{
    bool bFull, bUpper, bLegendShown;
    bool operator==(const Pictures& o) const { return bFull == o.bFull && bUpper == o.bUpper && bLegendShown == o.bLegendShown; }
};

std::ostream& operator<<(std::ostream& os, const Pictures& p)
{
    return os << (p.bFull ? "full" : p.bUpper ? "upper" : "no graph") << (p.bLegendShown ? " with legend" : "");
}

Pictures Look(HWND hPage)
{
    return { Shows(hPage, IDC_GRAPH_PICTURE, IDB_GRAPH_FULL), Shows(hPage, IDC_GRAPH_PICTURE, IDB_GRAPH_UPPER),
             Visible(hPage, IDC_LEGEND_PICTURE) && Shows(hPage, IDC_LEGEND_PICTURE, IDB_LEGEND_PANEL) };
}

} // namespace

TEST(LegendOptions, PicturesFollowAutoHideAndOkDocksTheLegend)
{
    SheetGraph g;
    double adX[] = { 0, 10 }, adY[] = { 0, 10 };
    g.m_graph.AddPlotData("one", PLOT_YLEFT, adX, adY, 2, RGB(255, 0, 0), PS_SOLID, 0);
    CLegend& legend = g.Prv()->m_legend;
    legend.m_bAutoHide = TRUE;
    g.m_graph.ShowLegend(TRUE);
    g.Paint();
    CRect rectBefore;
    g.m_graph.GetPlotRect(rectBefore);
    auto openOptions = [&] {
        ::SendMessageA(legend.m_hWnd, WM_COMMAND, ID_GRAPH_LEGEND_PROPERTIES, 0);
        return 0;
    };

    // Auto-hide on: the full graph alone; off: the upper graph with the
    // legend below, placed 2 right of and 129 below the graph picture.
    std::vector<Pictures> looks;
    CPoint ptOffset;
    std::string strTitle;
    auto uncheckAndPress = [&](int nButton) {
        return [&, nButton](HWND hSheet) {
            HWND hPage = CurrentPage(hSheet);
            strTitle = TextOf(hSheet);
            looks.push_back(Look(hPage));
            Click(hPage, IDC_AUTO_HIDE);
            looks.push_back(Look(hPage));
            RECT rcGraph, rcLegend;
            ::GetWindowRect(::GetDlgItem(hPage, IDC_GRAPH_PICTURE), &rcGraph);
            ::GetWindowRect(::GetDlgItem(hPage, IDC_LEGEND_PICTURE), &rcLegend);
            ptOffset = CPoint(rcLegend.left - rcGraph.left, rcLegend.top - rcGraph.top);
            Press(hSheet, nButton);
            return true;
        };
    };
    g.Run({ uncheckAndPress(PSBTN_CANCEL) }, openOptions);
    EXPECT_EQ(std::vector<Pictures>({ { true, false, false }, { false, true, true } }), looks);
    EXPECT_EQ(CPoint(2, 129), ptOffset);
    EXPECT_EQ((LPCSTR)AnsiOf(L"图例属性"), strTitle);
    EXPECT_TRUE(legend.m_bAutoHide);   // Cancel keeps it

    looks.clear();
    g.Run({ uncheckAndPress(PSBTN_OK) }, openOptions);
    EXPECT_FALSE(legend.m_bAutoHide);
    EXPECT_FALSE(legend.m_bHidden);
    g.Paint();
    CRect rectAfter;
    g.m_graph.GetPlotRect(rectAfter);
    EXPECT_LT(rectAfter.Height() * rectAfter.Width(), rectBefore.Height() * rectBefore.Width());   // the plot gives way

    // Auto-hide off at the start: the full graph under the legend; on, then off again.
    looks.clear();
    g.Run({ [&](HWND hSheet) {
        HWND hPage = CurrentPage(hSheet);
        looks.push_back(Look(hPage));
        Click(hPage, IDC_AUTO_HIDE);
        looks.push_back(Look(hPage));
        Click(hPage, IDC_AUTO_HIDE);
        looks.push_back(Look(hPage));
        Press(hSheet, PSBTN_CANCEL);
        return true;
    } }, openOptions);
    EXPECT_EQ(std::vector<Pictures>({ { true, false, true }, { true, false, false }, { false, true, true } }), looks);
}
