// The appearance page.
#include "sheet/AppearancePage.h"
#include "sheet/ColorPalette.h"
#include "resources/resource.h"
#include <stdio.h>
#include <stdlib.h>

namespace {

const int ITEM_TEXT = 0;
const int ITEM_BACKGROUND = 1;
const int ITEM_GRID = 2;
const int WEIGHT_BOLD = 700;
const int WEIGHT_NORMAL = 400;
// The sizes offered for a scalable font, in points.
const int s_scalableSizes[] = { 8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24 };

// One entry per family, with its font type as item data.
int CALLBACK AddFamily(const LOGFONTA* pLogFont, const TEXTMETRICA*, DWORD dwFontType, LPARAM lParam)
{
    HWND hWndFamily = (HWND)lParam;
    if (::SendMessageA(hWndFamily, CB_FINDSTRINGEXACT, (WPARAM)-1, (LPARAM)pLogFont->lfFaceName) == CB_ERR) {
        const LRESULT nIndex = ::SendMessageA(hWndFamily, CB_ADDSTRING, 0, (LPARAM)pLogFont->lfFaceName);
        if (nIndex >= 0)
            ::SendMessageA(hWndFamily, CB_SETITEMDATA, (WPARAM)nIndex, (LPARAM)dwFontType);
    }
    return 1;
}

struct SizeSink
{
    HWND hWndSizes;
    int nLogPixelsY;
};

void AddSize(HWND hWndSizes, int nPoints)
{
    char szSize[16];
    sprintf(szSize, "%d", nPoints);
    if (::SendMessageA(hWndSizes, CB_FINDSTRINGEXACT, (WPARAM)-1, (LPARAM)szSize) == CB_ERR)
        ::SendMessageA(hWndSizes, CB_ADDSTRING, 0, (LPARAM)szSize);
}

// The sizes of a raster family, in points.
int CALLBACK AddRasterSize(const LOGFONTA*, const TEXTMETRICA* pMetric, DWORD, LPARAM lParam)
{
    const SizeSink* pSink = (const SizeSink*)lParam;
    const int nPixels = abs((int)pMetric->tmHeight) - (int)pMetric->tmInternalLeading;
    AddSize(pSink->hWndSizes, ::MulDiv(nPixels, 72, pSink->nLogPixelsY));
    return 1;
}

// The text of the entry selected in a drop-down list, when it fits.
BOOL SelectedEntryText(HWND hWndList, char* pszText, int nSize)
{
    const LRESULT nEntry = ::SendMessageA(hWndList, CB_GETCURSEL, 0, 0);
    if (nEntry < 0 || ::SendMessageA(hWndList, CB_GETLBTEXTLEN, (WPARAM)nEntry, 0) >= nSize)
        return FALSE;
    ::SendMessageA(hWndList, CB_GETLBTEXT, (WPARAM)nEntry, (LPARAM)pszText);
    return TRUE;
}

} // namespace

// The font of the preview, as the graph describes it.
struct CAppearancePage::PreviewFont
{
    LOGFONT lf;
    int nPointSize;   // tenths of a point
    DWORD crText;
};

CAppearancePage::PreviewFont CAppearancePage::GetPreviewFont()
{
    PreviewFont font;
    m_graph.GetLogFont(&font.lf, &font.nPointSize, &font.crText);
    return font;
}

void CAppearancePage::SetPreviewFont(const PreviewFont& font)
{
    m_graph.SetLogFont(&font.lf, font.nPointSize, font.crText);
}

IMPLEMENT_DYNAMIC(CAppearancePage, CBasePropPage)

BEGIN_MESSAGE_MAP(CAppearancePage, CBasePropPage)
    ON_WM_PAINT()
    ON_CBN_SELCHANGE(IDC_FONT_FAMILY, OnFamilyChanged)
    ON_CBN_SELCHANGE(IDC_FONT_SIZE, OnSizeChanged)
    ON_CBN_SELCHANGE(IDC_ITEM, OnItemChanged)
    ON_BN_CLICKED(IDC_BOLD, OnBold)
    ON_BN_CLICKED(IDC_ITALIC, OnItalic)
    ON_MESSAGE(WM_PICKER_COLOR, OnColorPicked)
    ON_MESSAGE(WM_PICKER_LINESTYLE, OnLineStylePicked)
END_MESSAGE_MAP()

CAppearancePage::CAppearancePage() : CBasePropPage(IDD_APPEARANCE_PAGE), m_bPageOpened(FALSE), m_nItem(ITEM_BACKGROUND) {}

void CAppearancePage::DoDataExchange(CDataExchange*) {}

BOOL CAppearancePage::OnInitDialog()
{
    CBasePropPage::OnInitDialog();
    static const CTRL_HELP_ID s_help[] = {
        { IDC_PREVIEW_FRAME, IDH_PREVIEW },
        { IDC_ITEM_LABEL, IDH_ITEM }, { IDC_ITEM, IDH_ITEM },
        { IDC_ITEM_COLOR_LABEL, IDH_ITEM_COLOR }, { IDC_ITEM_COLOR, IDH_ITEM_COLOR },
        { IDC_GRID_STYLE_LABEL, IDH_GRID_STYLE }, { IDC_GRID_STYLE, IDH_GRID_STYLE },
        { IDC_FONT_FAMILY_LABEL, IDH_FONT_FAMILY }, { IDC_FONT_FAMILY, IDH_FONT_FAMILY },
        { IDC_FONT_SIZE_LABEL, IDH_FONT_SIZE }, { IDC_FONT_SIZE, IDH_FONT_SIZE },
        { IDC_TEXT_COLOR_LABEL, IDH_TEXT_COLOR }, { IDC_TEXT_COLOR, IDH_TEXT_COLOR },
        { IDC_BOLD, IDH_BOLD }, { IDC_ITALIC, IDH_ITALIC },
    };
    SetCtrlHelpIds(this, s_help);
    m_bPageOpened = TRUE;

    // The preview takes the place of the frame.
    HWND hWndFrame = ::GetDlgItem(m_hWnd, IDC_PREVIEW_FRAME);
    ::GetWindowRect(hWndFrame, &m_rectPreview);
    ::MapWindowPoints(NULL, m_hWnd, (LPPOINT)&m_rectPreview, 2);
    {
        CClientDC dcFrame(CWnd::FromHandle(hWndFrame));
        m_graph.SizeGraph(&dcFrame, m_rectPreview.left, m_rectPreview.top, m_rectPreview.Width(),
                          m_rectPreview.Height(), 0);
    }
    ::ShowWindow(hWndFrame, SW_HIDE);

    m_wellColor.SubclassDlgItem(IDC_ITEM_COLOR, this);
    m_wellTextColor.SubclassDlgItem(IDC_TEXT_COLOR, this);
    m_wellLineType.SubclassDlgItem(IDC_GRID_STYLE, this);
    DWORD dwGridType, crGrid;
    int nGridStyle;
    m_graph.GetGridAttributes(&dwGridType, &crGrid, &nGridStyle);
    m_wellColor.SetValue(m_graph.m_crBackground);
    m_wellLineType.SetValue(nGridStyle);

    // The preview shows the look, not the graph's texts.
    m_graph.SetGraphTitle(CString());
    m_graph.SetXAxisNumFmt(CString("%6.2f"));
    m_graph.SetYAxisLabel(1, CString());
    m_graph.SetYAxisNumFmt(0, CString("%6.2f"));

    m_nItem = ITEM_BACKGROUND;
    SendDlgItemMessageA(m_hWnd, IDC_ITEM, CB_SETCURSEL, ITEM_BACKGROUND, 0);
    ApplyEnableRule(TRUE);

    SetButtonFont(IDC_BOLD, m_fontBold, TRUE);
    SetButtonFont(IDC_ITALIC, m_fontItalic, FALSE);
    FillFontControls();
    return TRUE;
}

void CAppearancePage::SetButtonFont(int nCtrl, CFont& font, BOOL bBold)
{
    HWND hWndButton = ::GetDlgItem(m_hWnd, nCtrl);
    HFONT hFont = (HFONT)::SendMessageA(hWndButton, WM_GETFONT, 0, 0);
    LOGFONT lf;
    if (hFont == NULL || ::GetObjectA(hFont, sizeof(lf), &lf) == 0)
        return;
    if (bBold)
        lf.lfWeight = WEIGHT_BOLD;
    else
        lf.lfItalic = 1;
    font.DeleteObject();
    if (font.CreateFontIndirect(&lf))
        ::SendMessageA(hWndButton, WM_SETFONT, (WPARAM)(HFONT)font.m_hObject, TRUE);
}

void CAppearancePage::ApplyEnableRule(BOOL bColorGroup)
{
    static const int s_textGroup[] = { IDC_FONT_FAMILY_LABEL, IDC_FONT_FAMILY, IDC_FONT_SIZE, IDC_FONT_SIZE_LABEL,
                                       IDC_TEXT_COLOR_LABEL, IDC_TEXT_COLOR, IDC_BOLD, IDC_ITALIC };
    ::EnableWindow(::GetDlgItem(m_hWnd, IDC_ITEM_COLOR_LABEL), bColorGroup);
    ::EnableWindow(::GetDlgItem(m_hWnd, IDC_ITEM_COLOR), bColorGroup);
    ::EnableWindow(::GetDlgItem(m_hWnd, IDC_GRID_STYLE_LABEL), m_nItem == ITEM_GRID);
    ::EnableWindow(::GetDlgItem(m_hWnd, IDC_GRID_STYLE), m_nItem == ITEM_GRID);
    for (int nCtrl : s_textGroup)
        ::EnableWindow(::GetDlgItem(m_hWnd, nCtrl), !bColorGroup);
}

void CAppearancePage::FillFontControls()
{
    HWND hWndFamily = ::GetDlgItem(m_hWnd, IDC_FONT_FAMILY);
    {
        CClientDC dc(this);
        ::EnumFontFamiliesA(dc.m_hDC, NULL, AddFamily, (LPARAM)hWndFamily);
    }
    const PreviewFont font = GetPreviewFont();
    const LOGFONT& lf = font.lf;
    m_wellTextColor.SetValue(font.crText);

    const LRESULT nFace = ::SendMessageA(hWndFamily, CB_FINDSTRINGEXACT, (WPARAM)-1, (LPARAM)lf.lfFaceName);
    ::SendMessageA(hWndFamily, CB_SETCURSEL, (WPARAM)nFace, 0);
    FillSizes();
    char szSize[16];
    sprintf(szSize, "%d", font.nPointSize / 10);
    HWND hWndSizes = ::GetDlgItem(m_hWnd, IDC_FONT_SIZE);
    const LRESULT nSize = ::SendMessageA(hWndSizes, CB_FINDSTRINGEXACT, (WPARAM)-1, (LPARAM)szSize);
    if (nSize != CB_ERR)
        ::SendMessageA(hWndSizes, CB_SETCURSEL, (WPARAM)nSize, 0);
    CheckDlgButton(m_hWnd, IDC_BOLD, lf.lfWeight >= WEIGHT_BOLD ? BST_CHECKED : BST_UNCHECKED);
    CheckDlgButton(m_hWnd, IDC_ITALIC, lf.lfItalic == 1 ? BST_CHECKED : BST_UNCHECKED);
}

void CAppearancePage::FillSizes()
{
    HWND hWndFamily = ::GetDlgItem(m_hWnd, IDC_FONT_FAMILY);
    HWND hWndSizes = ::GetDlgItem(m_hWnd, IDC_FONT_SIZE);
    char szKept[64] = "";
    ::GetWindowTextA(hWndSizes, szKept, sizeof(szKept));
    ::SendMessageA(hWndSizes, CB_RESETCONTENT, 0, 0);

    const LRESULT nFamily = ::SendMessageA(hWndFamily, CB_GETCURSEL, 0, 0);
    const DWORD dwFontType = nFamily >= 0 ? (DWORD)::SendMessageA(hWndFamily, CB_GETITEMDATA, (WPARAM)nFamily, 0) : 0;
    char szFace[LF_FACESIZE];
    if (nFamily >= 0 && (dwFontType & RASTER_FONTTYPE) && SelectedEntryText(hWndFamily, szFace, LF_FACESIZE)) {
        CClientDC dc(this);
        SizeSink sink = { hWndSizes, ::GetDeviceCaps(dc.m_hDC, LOGPIXELSY) };
        ::EnumFontFamiliesA(dc.m_hDC, szFace, AddRasterSize, (LPARAM)&sink);
    } else {
        for (int nPoints : s_scalableSizes)
            AddSize(hWndSizes, nPoints);
    }
    LRESULT nKept = ::SendMessageA(hWndSizes, CB_FINDSTRINGEXACT, (WPARAM)-1, (LPARAM)szKept);
    ::SendMessageA(hWndSizes, CB_SETCURSEL, nKept != CB_ERR ? (WPARAM)nKept : 0, 0);
}

void CAppearancePage::RepaintPreview()
{
    InvalidateRect(&m_rectPreview, TRUE);
    UpdateWindow();
}

void CAppearancePage::OnPaint()
{
    CPaintDC dc(this);
    CRect rect = m_rectPreview;
    ::DrawEdge(dc.m_hDC, &rect, EDGE_SUNKEN, BF_RECT);
    rect.DeflateRect(2, 2);
    ::FillRect(dc.m_hDC, &rect, ::GetSysColorBrush(COLOR_WINDOW));
    m_graph.SizeGraph(&dc, rect.left, rect.top, rect.Width(), rect.Height(), 0);
    m_graph.Plot(&dc, 0);
}

void CAppearancePage::OnFamilyChanged()
{
    FillSizes();
    if (m_nItem == ITEM_TEXT) {
        PreviewFont font = GetPreviewFont();
        if (SelectedEntryText(::GetDlgItem(m_hWnd, IDC_FONT_FAMILY), font.lf.lfFaceName, LF_FACESIZE))
            SetPreviewFont(font);
    }
    RepaintPreview();
}

void CAppearancePage::OnSizeChanged()
{
    if (m_nItem == ITEM_TEXT) {
        PreviewFont font = GetPreviewFont();
        char szSize[64];
        if (SelectedEntryText(::GetDlgItem(m_hWnd, IDC_FONT_SIZE), szSize, sizeof(szSize))) {
            font.nPointSize = atoi(szSize) * 10;
            SetPreviewFont(font);
        }
    }
    RepaintPreview();
}

void CAppearancePage::OnBold()
{
    PreviewFont font = GetPreviewFont();
    font.lf.lfWeight = IsDlgButtonChecked(m_hWnd, IDC_BOLD) ? WEIGHT_BOLD : WEIGHT_NORMAL;
    SetPreviewFont(font);
    RepaintPreview();
}

void CAppearancePage::OnItalic()
{
    PreviewFont font = GetPreviewFont();
    font.lf.lfItalic = IsDlgButtonChecked(m_hWnd, IDC_ITALIC) ? 1 : 0;
    SetPreviewFont(font);
    RepaintPreview();
}

void CAppearancePage::OnItemChanged()
{
    m_nItem = (int)SendDlgItemMessageA(m_hWnd, IDC_ITEM, CB_GETCURSEL, 0, 0);
    DWORD dwGridType, crGrid;
    int nGridStyle;
    m_graph.GetGridAttributes(&dwGridType, &crGrid, &nGridStyle);
    switch (m_nItem) {
    case ITEM_TEXT:
        ApplyEnableRule(FALSE);
        break;
    case ITEM_BACKGROUND:
        ApplyEnableRule(TRUE);
        m_wellColor.SetValue(m_graph.m_crBackground);
        break;
    case ITEM_GRID:
        ApplyEnableRule(TRUE);
        m_wellColor.SetValue(crGrid);
        m_wellLineType.SetValue(nGridStyle);
        break;
    default:
        break;
    }
}

LRESULT CAppearancePage::OnColorPicked(WPARAM wParam, LPARAM lParam)
{
    const COLORREF crColor = (COLORREF)lParam;
    if ((int)wParam == IDC_TEXT_COLOR) {
        PreviewFont font = GetPreviewFont();
        font.crText = crColor;
        SetPreviewFont(font);
    } else if ((int)wParam == IDC_ITEM_COLOR) {
        if (m_nItem == ITEM_BACKGROUND) {
            m_graph.SetBackgroundColor(crColor);
        } else if (m_nItem == ITEM_GRID) {
            DWORD dwGridType, crGrid;
            int nGridStyle;
            m_graph.GetGridAttributes(&dwGridType, &crGrid, &nGridStyle);
            m_graph.SetGridAttributes(dwGridType, crColor, nGridStyle);
        }
    }
    RepaintPreview();
    return 0;
}

LRESULT CAppearancePage::OnLineStylePicked(WPARAM wParam, LPARAM lParam)
{
    if ((int)wParam == IDC_GRID_STYLE) {
        DWORD dwGridType, crGrid;
        int nGridStyle;
        m_graph.GetGridAttributes(&dwGridType, &crGrid, &nGridStyle);
        m_graph.SetGridAttributes(dwGridType, crGrid, (int)lParam);
    }
    RepaintPreview();
    return 0;
}
