// The line colours page.
#include "sheet/LineColorsPage.h"
#include "sheet/ColorPalette.h"
#include "sheet/MyColorDialog.h"
#include "series/PlotData.h"
#include "persist/LineColor.h"
#include "interact/Legend.h"
#include "graph/GraphDefs.h"
#include "graph/Globals.h"
#include "resources/resource.h"
#include "afx/afxcmn.h"
#include <mbstring.h>

namespace {

const int MODE_FIXED = 1;
const int MODE_ROTATING = 2;
const int MODE_MATCHING = 3;
const int LIST_SERIES = 1;
const int LIST_TABLE = 2;
const int ITEM_HEIGHT = 17;
const int CUSTOM_COLOR_CELLS = 16;

CLegendData* NewRecord(COLORREF crLine, int nLineStyle, int nLineWidth, int nAnnotate, COLORREF crBackground)
{
    CLegendData* pRecord = new CLegendData;
    pRecord->Set(crLine, nLineStyle, nLineWidth, nAnnotate, crBackground);
    return pRecord;
}

// Adds a line with its record; a line that the list refuses frees it.
BOOL AddLine(CListBox& list, const CString& strName, CLegendData* pRecord)
{
    const int nIndex = list.AddString(strName);
    if (nIndex < 0 || list.SetItemDataPtr(nIndex, pRecord) == LB_ERR) {
        if (nIndex >= 0)
            list.DeleteString(nIndex);
        delete pRecord;
        return FALSE;
    }
    return TRUE;
}

// A line's look into its series; the point labels follow the line colour
// in every mode.
void WriteRecord(const CLegendData& record, CPlotData& series)
{
    series.m_crLine = record.m_crLine;
    series.m_crAnnotate = record.m_crLine;
    series.m_nLineStyle = record.m_nLineStyle;
    series.m_nAnnotate = record.m_nAnnotate;
    series.m_nLineWidth = record.m_nLineWidth;
}

// A line's look into its entry of the colour table.
void WriteRecord(const CLegendData& record, CLineColor& entry)
{
    entry.m_crLine = record.m_crLine;
    entry.m_nLineStyle = record.m_nLineStyle;
    entry.m_nLineWidth = record.m_nLineWidth;
    entry.m_nAnnotate = record.m_nAnnotate;
}

} // namespace

IMPLEMENT_DYNAMIC(CLineColorsPage, CBasePropPage)

BEGIN_MESSAGE_MAP(CLineColorsPage, CBasePropPage)
    ON_BN_CLICKED(IDC_SWITCH_LIST, OnSwitchLists)
    ON_BN_CLICKED(IDC_DEFINE_CUSTOM_COLORS, OnDefineCustomColors)
    ON_LBN_SELCHANGE(IDC_SERIES_LIST, OnSelChange)
    ON_LBN_SELCHANGE(IDC_TABLE_LIST, OnSelChange)
    ON_MESSAGE(WM_PICKER_COLOR, OnColorPicked)
    ON_MESSAGE(WM_PICKER_LINESTYLE, OnLineStylePicked)
    ON_MESSAGE(WM_PICKER_ANNOTATION, OnAnnotationPicked)
    ON_MESSAGE(WM_PICKER_ADDCOLOR, OnAddCustomColor)
    ON_WM_MEASUREITEM()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

CLineColorsPage::CLineColorsPage()
    : CBasePropPage(IDD_LINE_COLORS_PAGE),
      m_nListShown(LIST_SERIES), m_nMode(MODE_FIXED), m_pPlotMap(NULL), m_crBackground(RGB(255, 255, 255)),
      m_pColors(NULL), m_nColors(0), m_bPageOpened(FALSE), m_dwStyle(0), m_nWidth(1), m_bWritingWidth(FALSE)
{
}

void CLineColorsPage::DoDataExchange(CDataExchange* pDX)
{
    CBasePropPage::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_LINE_WIDTH, m_nWidth);
    DDV_MinMaxInt(pDX, m_nWidth, 1, 5);
}

CColorPalette* CLineColorsPage::Palette(int nCtrl) const
{
    CWnd* pWnd = CWnd::FromHandlePermanent(::GetDlgItem(m_hWnd, nCtrl));
    return pWnd != NULL && pWnd->IsKindOf(RUNTIME_CLASS(CColorPalette)) ? (CColorPalette*)pWnd : NULL;
}

BOOL CLineColorsPage::OnInitDialog()
{
    // The width shown first is the selection's; the exchange must not
    // complain about it.
    m_bWritingWidth = TRUE;
    CBasePropPage::OnInitDialog();
    m_bWritingWidth = FALSE;
    static const CTRL_HELP_ID s_help[] = {
        { IDC_LIST_LABEL, IDH_SERIES_LIST }, { IDC_SERIES_LIST, IDH_SERIES_LIST },
        { IDC_BASE_PALETTE_LABEL, IDH_BASE_PALETTE }, { IDC_BASE_PALETTE, IDH_BASE_PALETTE },
        { IDC_ANNOTATION_LABEL, IDH_ANNOTATION }, { IDC_ANNOTATION, IDH_ANNOTATION },
        { IDC_LINE_STYLE_LABEL, IDH_LINE_STYLE }, { IDC_LINE_STYLE, IDH_LINE_STYLE },
        { IDC_LINE_WIDTH_LABEL, IDH_LINE_WIDTH }, { IDC_LINE_WIDTH, IDH_LINE_WIDTH },
        { IDC_LINE_WIDTH_SPIN, IDH_LINE_WIDTH },
        { IDC_CUSTOM_PALETTE_LABEL, IDH_CUSTOM_PALETTE }, { IDC_CUSTOM_PALETTE, IDH_CUSTOM_PALETTE },
        { IDC_DEFINE_CUSTOM_COLORS, IDH_DEFINE_CUSTOM_COLORS }, { IDC_SWITCH_LIST, IDH_SWITCH_LIST },
    };
    SetCtrlHelpIds(this, s_help);
    m_bPageOpened = TRUE;

    // The custom palette works on the array in force, so an added colour is
    // there at once; the base palette has its colours from its constructor.
    if (CColorPalette* pCustom = Palette(IDC_CUSTOM_PALETTE))
        pCustom->SetColors(g_pCustomColors, CUSTOM_COLOR_CELLS);

    m_wellAnnotate.SubclassDlgItem(IDC_ANNOTATION, this);
    m_wellLineType.SubclassDlgItem(IDC_LINE_STYLE, this);
    m_wellLineType.SetAllowNone(TRUE);
    m_listData.SubclassDlgItem(IDC_SERIES_LIST, this);
    m_listDefaults.SubclassDlgItem(IDC_TABLE_LIST, this);
    CSpinButtonCtrl* pSpin = (CSpinButtonCtrl*)GetDlgItem(IDC_LINE_WIDTH_SPIN);
    ::SendMessageA(pSpin->m_hWnd, UDM_SETRANGE, 0, MAKELPARAM(5, 1));
    SendDlgItemMessageA(m_hWnd, IDC_LINE_WIDTH, EM_LIMITTEXT, 1, 0);

    // The lists by mode: the one on show, and the other hidden and disabled.
    HWND hWndSwitch = ::GetDlgItem(m_hWnd, IDC_SWITCH_LIST);
    if (m_nMode == MODE_MATCHING) {
        FillTableList();
        m_listData.ShowWindow(SW_HIDE);
        m_listData.EnableWindow(FALSE);
        m_nListShown = LIST_TABLE;
    } else {
        FillSeriesList();
        if (m_nMode == MODE_ROTATING)
            FillTableList();
        m_listDefaults.ShowWindow(SW_HIDE);
        m_listDefaults.EnableWindow(FALSE);
        m_nListShown = LIST_SERIES;
    }
    if (m_nMode != MODE_ROTATING) {
        ::ShowWindow(hWndSwitch, SW_HIDE);
        ::EnableWindow(hWndSwitch, FALSE);
    }
    if (m_dwStyle & GS_NOPLOT) {
        m_wellLineType.ShowWindow(SW_HIDE);
        m_wellAnnotate.ShowWindow(SW_HIDE);
        ::ShowWindow(::GetDlgItem(m_hWnd, IDC_ANNOTATION_LABEL), SW_HIDE);
    }
    ShowSelection();
    return TRUE;
}

void CLineColorsPage::FillSeriesList()
{
    if (m_pPlotMap == NULL)
        return;
    POSITION pos = m_pPlotMap->GetStartPosition();
    while (pos != NULL) {
        CString strName;
        CPlotData* pData;
        m_pPlotMap->GetNextAssoc(pos, strName, pData);
        CLegendData* pRecord =
            NewRecord(pData->m_crLine, pData->m_nLineStyle, pData->m_nLineWidth, pData->m_nAnnotate, m_crBackground);
        if (!AddLine(m_listData, strName, pRecord))
            break;
    }
    m_listData.SetCurSel(0);
}

void CLineColorsPage::FillTableList()
{
    for (int i = 0; m_pColors != NULL && i < m_nColors; i++) {
        const CLineColor& entry = m_pColors[i];
        CLegendData* pRecord =
            NewRecord(entry.m_crLine, entry.m_nLineStyle, entry.m_nLineWidth, entry.m_nAnnotate, m_crBackground);
        if (!AddLine(m_listDefaults, entry.m_strName, pRecord))
            break;
    }
    m_listDefaults.SetCurSel(0);
}

CLegendData* CLineColorsPage::SelectedRecord()
{
    CLineColorListBoxEx& list = ShownList();
    if (list.m_hWnd == NULL)
        return NULL;
    const int nIndex = list.GetCurSel();
    if (nIndex < 0)
        return NULL;
    void* pData = list.GetItemDataPtr(nIndex);
    return pData != (void*)(LONG_PTR)LB_ERR ? (CLegendData*)pData : NULL;
}

void CLineColorsPage::ShowSelection()
{
    CLegendData* pRecord = SelectedRecord();
    if (pRecord == NULL)
        return;
    // A colour in both palettes is the base palette's; in neither, both
    // keep what they show.
    CColorPalette* pBase = Palette(IDC_BASE_PALETTE);
    CColorPalette* pCustom = Palette(IDC_CUSTOM_PALETTE);
    if (pBase != NULL && pBase->SelectColor(pRecord->m_crLine)) {
        if (pCustom != NULL)
            pCustom->ClearSelection();
    } else if (pCustom != NULL && pCustom->SelectColor(pRecord->m_crLine)) {
        if (pBase != NULL)
            pBase->ClearSelection();
    }
    m_wellAnnotate.SetValue(pRecord->m_nAnnotate);
    m_wellLineType.SetValue(pRecord->m_nLineStyle);
    m_bWritingWidth = TRUE;
    SetDlgItemInt(m_hWnd, IDC_LINE_WIDTH, (UINT)pRecord->m_nLineWidth, FALSE);
    m_bWritingWidth = FALSE;
    EnableLineStyle(pRecord->m_nLineWidth);
}

void CLineColorsPage::EnableLineStyle(int nWidth)
{
    // Only a thin pen has a style.
    const BOOL bEnable = nWidth < 2;
    ::EnableWindow(::GetDlgItem(m_hWnd, IDC_LINE_STYLE_LABEL), bEnable);
    m_wellLineType.EnableWindow(bEnable);
}

void CLineColorsPage::OnSelChange()
{
    ShowSelection();
}

LRESULT CLineColorsPage::OnColorPicked(WPARAM wParam, LPARAM lParam)
{
    if (CLegendData* pRecord = SelectedRecord())
        pRecord->m_crLine = (COLORREF)lParam;
    ShownList().Invalidate();
    // The colour comes from one palette; the other shows no selection.
    CColorPalette* pOther = Palette((int)wParam == IDC_BASE_PALETTE ? IDC_CUSTOM_PALETTE : IDC_BASE_PALETTE);
    if (pOther != NULL)
        pOther->ClearSelection();
    return 0;
}

LRESULT CLineColorsPage::OnLineStylePicked(WPARAM, LPARAM lParam)
{
    if (CLegendData* pRecord = SelectedRecord())
        pRecord->m_nLineStyle = (int)lParam;
    ShownList().Invalidate();
    return 0;
}

LRESULT CLineColorsPage::OnAnnotationPicked(WPARAM, LPARAM lParam)
{
    if (CLegendData* pRecord = SelectedRecord())
        pRecord->m_nAnnotate = (int)lParam;
    ShownList().Invalidate();
    return 0;
}

LRESULT CLineColorsPage::OnAddCustomColor(WPARAM, LPARAM lParam)
{
    if (CColorPalette* pCustom = Palette(IDC_CUSTOM_PALETTE))
        pCustom->AddColor((DWORD)lParam);
    return 0;
}

BOOL CLineColorsPage::OnCommand(WPARAM wParam, LPARAM lParam)
{
    if (LOWORD(wParam) == IDC_LINE_WIDTH && HIWORD(wParam) == EN_CHANGE && !m_bWritingWidth) {
        CLegendData* pRecord = SelectedRecord();
        if (pRecord != NULL && UpdateData(TRUE)) {
            BOOL bRead = FALSE;
            const int nWidth = (int)GetDlgItemInt(m_hWnd, IDC_LINE_WIDTH, &bRead, FALSE);
            if (bRead) {
                pRecord->m_nLineWidth = nWidth;
                EnableLineStyle(nWidth);
            }
            ShownList().Invalidate();
        }
    }
    return CBasePropPage::OnCommand(wParam, lParam);
}

void CLineColorsPage::ShowList(int nList)
{
    CLineColorListBoxEx& listOld = ShownList();
    listOld.ShowWindow(SW_HIDE);
    listOld.EnableWindow(FALSE);
    m_nListShown = nList;
    CLineColorListBoxEx& listNew = ShownList();
    listNew.ShowWindow(SW_SHOW);
    listNew.EnableWindow(TRUE);
    CString strButton, strLabel;
    strButton.LoadString(nList == LIST_SERIES ? IDS_SHOW_DEFAULTS : IDS_SHOW_DATA);
    strLabel.LoadString(nList == LIST_SERIES ? IDS_DATA_LIST_LABEL : IDS_DEFAULTS_LIST_LABEL);
    SetDlgItemTextA(m_hWnd, IDC_SWITCH_LIST, strButton);
    SetDlgItemTextA(m_hWnd, IDC_LIST_LABEL, strLabel);
    ShowSelection();
}

void CLineColorsPage::OnSwitchLists()
{
    ShowList(m_nListShown == LIST_SERIES ? LIST_TABLE : LIST_SERIES);
}

void CLineColorsPage::OnDefineCustomColors()
{
    CLegendData* pRecord = SelectedRecord();
    CmyColorDialog dlg(pRecord != NULL ? pRecord->m_crLine : RGB(255, 255, 255), 0, this);
    dlg.DoModal();   // the colours it adds arrive one by one, as they are added
}

void CLineColorsPage::OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    lpMeasureItemStruct->itemHeight = ITEM_HEIGHT;
    CBasePropPage::OnMeasureItem(nIDCtl, lpMeasureItemStruct);
}

void CLineColorsPage::WriteSeries()
{
    for (int i = 0; m_pPlotMap != NULL && i < m_listData.GetCount(); i++) {
        CString strName;
        m_listData.GetText(i, strName);
        CPlotData* pData = NULL;
        CLegendData* pRecord = (CLegendData*)m_listData.GetItemDataPtr(i);
        if (!m_pPlotMap->Lookup(strName, pData) || pData == NULL)
            continue;   // removed while the sheet was open
        WriteRecord(*pRecord, *pData);
    }
}

void CLineColorsPage::WriteTable()
{
    for (int i = 0; m_pColors != NULL && i < m_listDefaults.GetCount() && i < m_nColors; i++) {
        const CLegendData* pRecord = (CLegendData*)m_listDefaults.GetItemDataPtr(i);
        WriteRecord(*pRecord, m_pColors[i]);
    }
}

void CLineColorsPage::WriteTableAndSeriesMatching()
{
    for (int i = 0; i < m_listDefaults.GetCount(); i++) {
        CString strName;
        m_listDefaults.GetText(i, strName);
        const CLegendData* pRecord = (CLegendData*)m_listDefaults.GetItemDataPtr(i);
        if (m_pColors != NULL && i < m_nColors &&
            _mbscmp((const unsigned char*)(LPCSTR)strName, (const unsigned char*)(LPCSTR)m_pColors[i].m_strName) == 0) {
            WriteRecord(*pRecord, m_pColors[i]);
        }
        CPlotData* pData = NULL;
        if (m_pPlotMap != NULL && m_pPlotMap->Lookup(strName, pData) && pData != NULL) {
            WriteRecord(*pRecord, *pData);
        }
    }
}

void CLineColorsPage::OnOK()
{
    if (m_nMode == MODE_MATCHING) {
        WriteTableAndSeriesMatching();
    } else {
        WriteSeries();
        if (m_nMode == MODE_ROTATING)
            WriteTable();
    }
    CBasePropPage::OnOK();
}

void CLineColorsPage::FreeRecords(CListBox& list)
{
    if (list.m_hWnd == NULL)
        return;
    for (int i = 0; i < list.GetCount(); i++) {
        delete (CLegendData*)list.GetItemDataPtr(i);
        list.SetItemDataPtr(i, NULL);
    }
}

void CLineColorsPage::OnDestroy()
{
    FreeRecords(m_listData);
    FreeRecords(m_listDefaults);
    CBasePropPage::OnDestroy();
}
