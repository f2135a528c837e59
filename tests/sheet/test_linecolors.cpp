// The line colours page in its three colour modes: which list it shows,
// what the palettes, wells and the width edit do to the line selected, what
// OK writes into the series and the colour table, and the custom colours,
// which change in place at once and reach the registry only with OK.
#include "SheetGraph.h"
#include "sheet/ColorPalette.h"
#include "series/PlotData.h"
#include "persist/Registry.h"

namespace {

const COLORREF RED = RGB(255, 0, 0);

CColorPalette* PaletteOf(HWND hPage, int nID)
{
    return (CColorPalette*)CWnd::FromHandlePermanent(::GetDlgItem(hPage, nID));
}

// A click on cell nCell of a palette; the colour of that cell.
COLORREF ClickCell(HWND hPage, int nID, int nCell)
{
    CColorPalette* pPalette = PaletteOf(hPage, nID);
    const CPoint pt = pPalette->m_pCellRects[nCell].CenterPoint();
    ::SendMessageA(pPalette->m_hWnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(pt.x, pt.y));
    ::SendMessageA(pPalette->m_hWnd, WM_LBUTTONUP, 0, MAKELPARAM(pt.x, pt.y));
    return pPalette->m_pColors[nCell];
}

// Whether a palette frames cell nCell in black.
bool Framed(HWND hPage, int nID, int nCell)
{
    CColorPalette* pPalette = PaletteOf(hPage, nID);
    ::UpdateWindow(pPalette->m_hWnd);
    const CRect& r = pPalette->m_pCellRects[nCell];
    return WindowPixel(pPalette->m_hWnd, CPoint(r.left - 1, r.top - 1)) == RGB(0, 0, 0);
}

void SelectLine(HWND hPage, int nList, int nLine)
{
    HWND hList = ::GetDlgItem(hPage, nList);
    ::SendMessageA(hList, LB_SETCURSEL, (WPARAM)nLine, 0);
    ::SendMessageA(hPage, WM_COMMAND, MAKEWPARAM(nList, LBN_SELCHANGE), (LPARAM)hList);
}

std::vector<std::string> LinesOf(HWND hPage, int nList)
{
    std::vector<std::string> lines;
    HWND hList = ::GetDlgItem(hPage, nList);
    for (int i = 0; i < (int)::SendMessageA(hList, LB_GETCOUNT, 0, 0); i++) {
        char sz[64];
        ::SendMessageA(hList, LB_GETTEXT, (WPARAM)i, (LPARAM)sz);
        lines.push_back(sz);
    }
    return lines;
}

// Whether the sample of line nLine of a list shows colour cr.
bool SampleShows(HWND hPage, int nList, int nLine, COLORREF cr)
{
    HWND hList = ::GetDlgItem(hPage, nList);
    ::UpdateWindow(hList);
    RECT rc;
    ::SendMessageA(hList, LB_GETITEMRECT, (WPARAM)nLine, (LPARAM)&rc);
    for (int y = rc.top; y < rc.bottom; y++) {
        if (WindowPixel(hList, CPoint(12, y)) == cr)
            return true;
    }
    return false;
}

class LineGraph : public SheetGraph
{
public:
    explicit LineGraph(DWORD dwStyle = 0) : SheetGraph(dwStyle)
    {
        m_graph.SetPropertyPageConfiguration(0x02);
        for (const char* pszName : { "b", "a", "c" }) {
            double adX[] = { 0, 10 }, adY[] = { 1, 9 };
            m_graph.AddPlotData(pszName, PLOT_YLEFT, adX, adY, 2, RED, PS_SOLID, 0);
        }
    }
    CPlotData* Series(const char* pszName) { return FindSeries(Prv(), pszName); }
};

} // namespace

TEST(LineColorsPage, EachModeShowsItsListAndOkWritesIt)
{
    // Fixed colours: the series list alone, sorted; a pick reaches the line's
    // sample at once and the series with OK, the point labels with it.
    {
        LineGraph g;
        g.m_graph.SetGraphColorsMode(1);
        std::vector<std::string> lines;
        bool bTableShown = true, bSwitchShown = true;
        COLORREF crPicked = 0;
        bool bSampleShows = false;
        EXPECT_EQ(1, g.Run({ [&](HWND hSheet) {
            HWND hPage = CurrentPage(hSheet);
            lines = LinesOf(hPage, IDC_SERIES_LIST);
            bTableShown = Visible(hPage, IDC_TABLE_LIST) || EntryCount(hPage, IDC_TABLE_LIST) > 0;
            bSwitchShown = Visible(hPage, IDC_SWITCH_LIST) || Enabled(hPage, IDC_SWITCH_LIST);
            SelectLine(hPage, IDC_SERIES_LIST, 1);
            crPicked = ClickCell(hPage, IDC_BASE_PALETTE, 9);
            bSampleShows = SampleShows(hPage, IDC_SERIES_LIST, 1, crPicked);
            PickInWell(hPage, IDC_LINE_STYLE, LineWellCell(2));
            PickInWell(hPage, IDC_ANNOTATION, AnnotationWellCell(0));
            Press(hSheet, PSBTN_OK);
            return true;
        } }));
        EXPECT_EQ(std::vector<std::string>({ "a", "b", "c" }), lines);
        EXPECT_FALSE(bTableShown);
        EXPECT_FALSE(bSwitchShown);
        EXPECT_TRUE(bSampleShows);
        EXPECT_EQ(crPicked, g.Series("b")->m_crLine);
        EXPECT_EQ(crPicked, g.Series("b")->m_crAnnotate);
        EXPECT_EQ(PS_DOT, g.Series("b")->m_nLineStyle);
        EXPECT_EQ(RED, g.Series("a")->m_crLine);
    }

    // Rotating colours: the table behind the switch, with its texts; OK
    // writes both lists.
    CLineColor table[3];
    const char* names[] = { "a", "x", "c" };
    for (int i = 0; i < 3; i++) {
        table[i].m_strName = names[i];
        table[i].m_crLine = BLUE;
        table[i].m_nLineWidth = 1;
    }
    {
        LineGraph g;
        g.m_graph.SetGraphColors(table, 3);
        g.m_graph.SetGraphColorsMode(2);
        std::string strButton, strLabel;
        std::vector<std::string> tableLines;
        bool bSeriesHidden = false;
        EXPECT_EQ(1, g.Run({ [&](HWND hSheet) {
            HWND hPage = CurrentPage(hSheet);
            Click(hPage, IDC_SWITCH_LIST);
            strButton = TextOf(::GetDlgItem(hPage, IDC_SWITCH_LIST));
            strLabel = TextOf(::GetDlgItem(hPage, IDC_LIST_LABEL));
            bSeriesHidden = !Visible(hPage, IDC_SERIES_LIST) && !Enabled(hPage, IDC_SERIES_LIST);
            tableLines = LinesOf(hPage, IDC_TABLE_LIST);
            SelectLine(hPage, IDC_TABLE_LIST, 1);
            ClickCell(hPage, IDC_BASE_PALETTE, 0);
            Press(hSheet, PSBTN_OK);
            return true;
        } }));
        EXPECT_EQ((LPCSTR)AnsiOf(L"数据(&A):"), strButton);
        EXPECT_EQ((LPCSTR)AnsiOf(L"缺省(&E):"), strLabel);
        EXPECT_TRUE(bSeriesHidden);
        EXPECT_EQ(std::vector<std::string>({ "a", "x", "c" }), tableLines);
        EXPECT_NE(BLUE, table[1].m_crLine);
        EXPECT_EQ(BLUE, table[0].m_crLine);
    }

    // Matching colours: the table list alone; OK writes the entries whose
    // names still match and the series of the same names.
    for (auto& entry : table)
        entry.m_crLine = BLUE;
    {
        LineGraph g;
        g.m_graph.SetGraphColors(table, 3);
        g.m_graph.SetGraphColorsMode(3);
        const COLORREF crB = g.Series("b")->m_crLine;
        std::string strLabel;
        bool bSeriesEmpty = false;
        COLORREF crPicked = 0;
        EXPECT_EQ(1, g.Run({ [&](HWND hSheet) {
            HWND hPage = CurrentPage(hSheet);
            strLabel = TextOf(::GetDlgItem(hPage, IDC_LIST_LABEL));
            bSeriesEmpty = LinesOf(hPage, IDC_SERIES_LIST).empty() && !Visible(hPage, IDC_SERIES_LIST);
            for (int nLine = 0; nLine < 3; nLine++) {
                SelectLine(hPage, IDC_TABLE_LIST, nLine);
                crPicked = ClickCell(hPage, IDC_BASE_PALETTE, 20);
            }
            table[2].m_strName = "renamed";   // by the host, while the sheet is open
            Press(hSheet, PSBTN_OK);
            return true;
        } }));
        EXPECT_EQ((LPCSTR)AnsiOf(L"数据(&T):"), strLabel);
        EXPECT_TRUE(bSeriesEmpty);
        EXPECT_EQ(crPicked, table[0].m_crLine);
        EXPECT_EQ(crPicked, table[1].m_crLine);
        EXPECT_EQ(BLUE, table[2].m_crLine);
        EXPECT_EQ(crPicked, g.Series("a")->m_crLine);
        EXPECT_EQ(crPicked, g.Series("c")->m_crLine);
        EXPECT_EQ(crB, g.Series("b")->m_crLine);
    }
}

TEST(LineColorsPage, PalettesWidthAndHiddenControlsFollowTheLine)
{
    LineGraph g;
    g.m_graph.SetGraphColorsMode(1);
    DWORD adwCustom[16] = {};
    adwCustom[3] = RGB(1, 2, 3);
    g.m_graph.SetCustomColors(adwCustom);
    FindSeries(g.Prv(), "c")->m_crLine = RGB(9, 9, 9);   // in neither palette
    std::vector<bool> framed, styleEnabled;
    EXPECT_EQ(1, g.Run({ [&](HWND hSheet) {
        HWND hPage = CurrentPage(hSheet);
        CColorPalette* pBase = PaletteOf(hPage, IDC_BASE_PALETTE);
        CColorPalette* pCustom = PaletteOf(hPage, IDC_CUSTOM_PALETTE);
        int nRedCell = 0;
        while (nRedCell < 47 && pBase->m_pColors[nRedCell] != RED)
            nRedCell++;
        // The line's colour is framed in the palette that has it, the other
        // palette shows none; a colour in neither leaves both as they were.
        SelectLine(hPage, IDC_SERIES_LIST, 0);
        framed.push_back(Framed(hPage, IDC_BASE_PALETTE, nRedCell) && pCustom->m_nSelected == PALETTE_NO_SELECTION);
        ClickCell(hPage, IDC_CUSTOM_PALETTE, 3);
        framed.push_back(pBase->m_nSelected == PALETTE_NO_SELECTION);
        SelectLine(hPage, IDC_SERIES_LIST, 1);
        framed.push_back(Framed(hPage, IDC_BASE_PALETTE, nRedCell) && pCustom->m_nSelected == PALETTE_NO_SELECTION);
        SelectLine(hPage, IDC_SERIES_LIST, 0);
        framed.push_back(Framed(hPage, IDC_CUSTOM_PALETTE, 3) && pBase->m_nSelected == PALETTE_NO_SELECTION);
        SelectLine(hPage, IDC_SERIES_LIST, 2);
        framed.push_back(Framed(hPage, IDC_CUSTOM_PALETTE, 3) && pBase->m_nSelected == PALETTE_NO_SELECTION);
        // Width 2 takes the style away, 1 gives it back.
        for (const char* pszWidth : { "2", "1" }) {
            SetText(::GetDlgItem(hPage, IDC_LINE_WIDTH), pszWidth);
            styleEnabled.push_back(Enabled(hPage, IDC_LINE_STYLE) && Enabled(hPage, IDC_LINE_STYLE_LABEL));
        }
        SetText(::GetDlgItem(hPage, IDC_LINE_WIDTH), "4");
        g.m_graph.RemovePlotData("a");   // gone before OK: its line is skipped
        Press(hSheet, PSBTN_OK);
        return true;
    } }));
    g.m_graph.ReleaseCustomColors();
    EXPECT_EQ(std::vector<bool>({ true, true, true, true, true }), framed);
    EXPECT_EQ(std::vector<bool>({ false, true }), styleEnabled);
    EXPECT_EQ(4, g.Series("c")->m_nLineWidth);
    EXPECT_EQ(1, g.Series("b")->m_nLineWidth);

    // Without plotted series there is no style and no mark; the width stays.
    LineGraph noPlot(GS_NOPLOT);
    std::vector<bool> visible;
    EXPECT_EQ(2, noPlot.Run({ [&](HWND hSheet) {
        HWND hPage = CurrentPage(hSheet);
        for (int nID : { IDC_LINE_STYLE, IDC_ANNOTATION, IDC_ANNOTATION_LABEL, IDC_LINE_WIDTH })
            visible.push_back(Visible(hPage, nID));
        Press(hSheet, PSBTN_CANCEL);
        return true;
    } }));
    EXPECT_EQ(std::vector<bool>({ false, false, false, true }), visible);
}

TEST(LineColorsPage, CustomColorsChangeInPlaceAndOkSavesThem)
{
    LineGraph g;
    // Adds one colour through the custom colour dialog, closes it, then
    // presses nButton on the sheet.
    auto addColor = [](int r, int gr, int b, int nButton) {
        std::vector<SheetGraph::SheetStep> steps;
        steps.push_back([](HWND hSheet) {
            ::PostMessageA(CurrentPage(hSheet), WM_COMMAND, MAKEWPARAM(IDC_DEFINE_CUSTOM_COLORS, BN_CLICKED),
                           (LPARAM)::GetDlgItem(CurrentPage(hSheet), IDC_DEFINE_CUSTOM_COLORS));
            return true;
        });
        steps.push_back([=](HWND hSheet) {
            HWND hDialog = FindMessageBox(hSheet);
            if (hDialog == NULL)
                return false;
            SetText(::GetDlgItem(hDialog, IDC_COLORDLG_RED), std::to_string(r).c_str());
            SetText(::GetDlgItem(hDialog, IDC_COLORDLG_GREEN), std::to_string(gr).c_str());
            SetText(::GetDlgItem(hDialog, IDC_COLORDLG_BLUE), std::to_string(b).c_str());
            Click(hDialog, IDC_ADD_CUSTOM_COLOR);
            Click(hDialog, IDOK);
            return true;
        });
        steps.push_back([=](HWND hSheet) {
            if (FindMessageBox(hSheet) != NULL)
                return false;
            Press(hSheet, nButton);
            return true;
        });
        return steps;
    };
    auto saved = [] {
        std::vector<DWORD> colors(16, 0xFFFFFFFF);
        for (int i = 0; i < 16; i++) {
            DWORD dwSize = sizeof(DWORD);
            ::RegGetValueA(HKEY_LOCAL_MACHINE, GRAPH_FIXED_KEY "\\Custom Colors", ("Color" + std::to_string(i)).c_str(),
                           RRF_RT_REG_DWORD, NULL, &colors[i], &dwSize);
        }
        return colors;
    };
    auto contains = [](const std::vector<DWORD>& colors, COLORREF cr) {
        return std::find(colors.begin(), colors.end(), cr) != colors.end();
    };

    // The library's own colours reach the registry with OK only.
    EXPECT_EQ(2, g.Run(addColor(1, 2, 3, PSBTN_CANCEL)));
    EXPECT_FALSE(contains(saved(), RGB(1, 2, 3)));
    EXPECT_EQ(1, g.Run(addColor(4, 5, 6, PSBTN_OK)));
    EXPECT_TRUE(contains(saved(), RGB(4, 5, 6)));

    // A host's array changes in place, and keeps the colour through Cancel.
    DWORD adwHost[16] = {};
    g.m_graph.SetCustomColors(adwHost);
    EXPECT_EQ(2, g.Run(addColor(7, 8, 9, PSBTN_CANCEL)));
    EXPECT_EQ(RGB(7, 8, 9), adwHost[0]);
    g.m_graph.ReleaseCustomColors();
}
