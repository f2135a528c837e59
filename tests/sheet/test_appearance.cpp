// The appearance page: which controls the chosen item enables, the preview
// that shows a picked background, grid colour and style at once while the
// graph keeps its own, and the font controls, whose results the graph takes
// with OK while its texts stay as they were.
#include "SheetGraph.h"

namespace {

const int PAGE_APPEARANCE = 2;

const COLORREF GREEN = RGB(0, 255, 0);
const int GREEN_CELL = 8, MAGENTA_CELL = 14;   // of the colour well

std::vector<bool> EnabledOf(HWND hPage)
{
    std::vector<bool> states;
    for (int nID : { IDC_ITEM_COLOR_LABEL, IDC_ITEM_COLOR, IDC_GRID_STYLE_LABEL, IDC_GRID_STYLE, IDC_FONT_FAMILY_LABEL,
                     IDC_FONT_FAMILY, IDC_FONT_SIZE, IDC_FONT_SIZE_LABEL, IDC_TEXT_COLOR_LABEL, IDC_TEXT_COLOR, IDC_BOLD,
                     IDC_ITALIC })
        states.push_back(Enabled(hPage, nID));
    return states;
}

// How many pixels of colour cr a row of the page shows, and where the one
// next to the last (left to right) is: a grid line, not the frame.
int CountInRow(HWND hPage, int y, COLORREF cr, int* pxInner = NULL)
{
    ::UpdateWindow(hPage);
    RECT rc;
    ::GetClientRect(hPage, &rc);
    HDC hDC = ::GetDC(hPage);
    int n = 0;
    for (int x = rc.right - 1; x >= 0; x--)
        if (::GetPixel(hDC, x, y) == cr && ++n == 2 && pxInner != NULL)
            *pxInner = x;
    ::ReleaseDC(hPage, hDC);
    return n;
}

// How many pixels of colour cr the column x shows from y0 to y1.
int CountInColumn(HWND hPage, int x, int y0, int y1, COLORREF cr)
{
    ::UpdateWindow(hPage);
    HDC hDC = ::GetDC(hPage);
    int n = 0;
    for (int y = y0; y < y1; y++)
        n += ::GetPixel(hDC, x, y) == cr;
    ::ReleaseDC(hPage, hDC);
    return n;
}

// The middle of the preview: the frame that marks its place, hidden.
int PreviewMiddle(HWND hPage)
{
    RECT rc;
    ::GetWindowRect(::GetDlgItem(hPage, IDC_PREVIEW_FRAME), &rc);
    ::MapWindowPoints(NULL, hPage, (LPPOINT)&rc, 2);
    return (rc.top + rc.bottom) / 2;
}

} // namespace

TEST(AppearancePage, ItemsEnableTheirControlsAndThePreviewShowsPicksAtOnce)
{
    SheetGraph g;
    g.m_graph.ShowGrid(GRID_MAJOR | GRID_BOTHWAYS);
    const COLORREF crBackground = g.Prv()->m_crBackground;
    std::vector<std::vector<bool>> states;
    int nGreen = 0, nMagenta = 0, nSolid = 0, nDotted = 0;
    bool bPicked = true;
    EXPECT_EQ(2, g.Run({ [&](HWND hSheet) {
        HWND hPage = ShowPage(hSheet, PAGE_APPEARANCE);
        states.push_back(EnabledOf(hPage));
        for (int nItem : { 0, 2 }) {
            ChooseEntry(hPage, IDC_ITEM, nItem);
            states.push_back(EnabledOf(hPage));
        }
        // The grid in magenta, a background in green: in the preview at once.
        const int y = PreviewMiddle(hPage);
        bPicked = PickInWell(hPage, IDC_ITEM_COLOR, ColorWellCell(MAGENTA_CELL));
        int xLine = 0;
        nMagenta = CountInRow(hPage, y, MAGENTA, &xLine);
        nSolid = CountInColumn(hPage, xLine, y - 20, y + 20, MAGENTA);
        bPicked = bPicked && PickInWell(hPage, IDC_GRID_STYLE, LineWellCell(PS_DOT));
        nDotted = CountInColumn(hPage, xLine, y - 20, y + 20, MAGENTA);
        ChooseEntry(hPage, IDC_ITEM, 1);
        bPicked = bPicked && PickInWell(hPage, IDC_ITEM_COLOR, ColorWellCell(GREEN_CELL));
        nGreen = CountInRow(hPage, y, GREEN);
        Press(hSheet, PSBTN_CANCEL);
        return true;
    } }));
    const bool T = true, F = false;
    EXPECT_EQ(std::vector<std::vector<bool>>({ { T, T, F, F, F, F, F, F, F, F, F, F },
                                                 { F, F, F, F, T, T, T, T, T, T, T, T },
                                                 { T, T, T, T, F, F, F, F, F, F, F, F } }),
              states);
    EXPECT_TRUE(bPicked);
    EXPECT_GT(nMagenta, 2);   // the frame and vertical grid lines cross the row
    EXPECT_GE(nSolid, 38);    // along one of them: solid, then dotted
    EXPECT_LE(nDotted, 30);
    EXPECT_GT(nGreen, 100);
    EXPECT_EQ(crBackground, g.Prv()->m_crBackground);   // the graph keeps its own
}

TEST(AppearancePage, FontControlsSetTheFontAndOkKeepsTheTexts)
{
    SheetGraph g;
    g.m_graph.SetGraphTitle("Title");
    g.m_graph.SetXAxisNumFmt("%.3f");
    g.m_graph.SetYAxisLabel(1, "Right");
    LOGFONT lf;
    int nPointSize;
    DWORD crText;
    g.m_graph.GetLogFont(&lf, &nPointSize, &crText);
    lf.lfWeight = 800;
    g.m_graph.SetLogFont(&lf, 130, crText);   // a size that no list offers

    // Size 12 gives 120 tenths; bold on shows checked and gives exactly 700.
    bool bBoldShown = false;
    std::string strSizeShown;
    EXPECT_EQ(1, g.Run({ [&](HWND hSheet) {
        HWND hPage = ShowPage(hSheet, PAGE_APPEARANCE);
        bBoldShown = Checked(hPage, IDC_BOLD);
        strSizeShown = TextOf(::GetDlgItem(hPage, IDC_FONT_SIZE));
        ChooseEntry(hPage, IDC_ITEM, 0);
        Click(hPage, IDC_BOLD);
        Click(hPage, IDC_BOLD);
        Press(hSheet, PSBTN_OK);
        return true;
    } }));
    EXPECT_TRUE(bBoldShown);
    EXPECT_EQ("8", strSizeShown);   // the first size, as 13 is not offered
    g.m_graph.GetLogFont(&lf, &nPointSize, &crText);
    EXPECT_EQ(700, lf.lfWeight);
    EXPECT_EQ(130, nPointSize);     // shown as 8, but not changed

    // Another face keeps the size; a size chosen is taken; bold off gives 400.
    std::string strFace;
    EXPECT_EQ(1, g.Run({ [&](HWND hSheet) {
        HWND hPage = ShowPage(hSheet, PAGE_APPEARANCE);
        ChooseEntry(hPage, IDC_ITEM, 0);
        const int nFaces = EntryCount(hPage, IDC_FONT_FAMILY);
        ChooseEntry(hPage, IDC_FONT_FAMILY, (Selection(hPage, IDC_FONT_FAMILY) + 1) % nFaces);
        strFace = TextOf(::GetDlgItem(hPage, IDC_FONT_FAMILY));
        Click(hPage, IDC_BOLD);
        Press(hSheet, PSBTN_OK);
        return true;
    } }));
    g.m_graph.GetLogFont(&lf, &nPointSize, &crText);
    EXPECT_EQ(strFace, lf.lfFaceName);
    EXPECT_EQ(130, nPointSize);
    EXPECT_EQ(400, lf.lfWeight);
    EXPECT_EQ(1, g.Run({ [&](HWND hSheet) {
        HWND hPage = ShowPage(hSheet, PAGE_APPEARANCE);
        ChooseEntry(hPage, IDC_ITEM, 0);
        HWND hSizes = ::GetDlgItem(hPage, IDC_FONT_SIZE);
        ChooseEntry(hPage, IDC_FONT_SIZE, (int)::SendMessageA(hSizes, CB_FINDSTRINGEXACT, (WPARAM)-1, (LPARAM)"12"));
        Press(hSheet, PSBTN_OK);
        return true;
    } }));
    g.m_graph.GetLogFont(&lf, &nPointSize, &crText);
    EXPECT_EQ(120, nPointSize);

    CString strTitle, strRight;
    g.m_graph.GetGraphTitle(strTitle);
    g.m_graph.GetYAxisLabel(1, strRight);
    EXPECT_STREQ("Title", strTitle);
    EXPECT_STREQ("Right", strRight);
    EXPECT_STREQ("%.3f", g.Prv()->m_strXAxisNumFmt);
}
