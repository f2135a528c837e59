// The graph's property sheet: the built-in pages by the configuration, then
// the host's pages; values handed in before the sheet opens, and applied in
// a fixed order after OK. Nothing reaches the graph before OK.
#include "graph/GraphPrv.h"
#include "sheet/AppearancePage.h"
#include "sheet/LimitsPage.h"
#include "sheet/LineColorsPage.h"
#include "sheet/SettingsPage.h"
#include "series/PlotData.h"
#include "resources/resource.h"

namespace {

// Bits of the configuration: which built-in pages the sheet shows.
const long PAGE_APPEARANCE = 0x01;
const long PAGE_LINE_COLORS = 0x02;
const long PAGE_LIMITS = 0x04;
const long PAGE_SETTINGS = 0x08;

} // namespace

int CGraphPrv::Properties(CString& strCaption)
{
    CString strTitle = strCaption;
    if (strTitle.IsEmpty())
        strTitle.LoadString(IDS_GRAPH_PROPERTIES);
    CBasePropSheet sheet(strTitle, NULL, 0);
    sheet.m_psh.dwFlags |= PSH_NOAPPLYNOW;

    // All four pages exist for this call, shown or not.
    CLineColorsPage pageLineColors;
    CLimitsPage pageLimits;
    CAppearancePage pageAppearance;
    CSettingsPage pageSettings;

    if (m_lPropPageConfig & PAGE_LINE_COLORS) {
        LoadCustomColors();
        pageLineColors.m_nMode = m_nGraphColorsMode;
        pageLineColors.m_pPlotMap = &m_mapPlotData;
        pageLineColors.m_crBackground = m_crBackground;
        pageLineColors.m_pColors = m_pGraphColors;
        pageLineColors.m_nColors = m_nGraphColors;
        pageLineColors.m_dwStyle = m_dwStyle;
        sheet.AddPage(&pageLineColors);
    }
    if (m_lPropPageConfig & PAGE_LIMITS) {
        pageLimits.m_graph = *this;
        GetXAxisLimits(&pageLimits.m_dXMin, &pageLimits.m_dXMax);
        GetYAxisLimits(&pageLimits.m_dYLeftMin, &pageLimits.m_dYLeftMax, 0);
        GetYAxisLimits(&pageLimits.m_dYRightMin, &pageLimits.m_dYRightMax, 1);
        pageLimits.m_dRadarXPercent = m_dRadarXPercent;
        pageLimits.m_dRadarYPercent = m_dRadarYPercent;
        pageLimits.m_bRadarX = (m_wRadarType & 0x01) ? TRUE : FALSE;
        pageLimits.m_bRadarY = (m_wRadarType & 0x02) ? TRUE : FALSE;
        pageLimits.m_bAxisControls = m_bRadarAxisControls;
        pageLimits.m_bPercentControls = m_bRadarPercentControls;
        sheet.AddPage(&pageLimits);
    }
    if (m_lPropPageConfig & PAGE_APPEARANCE) {
        pageAppearance.m_graph = *this;   // the page works on its own copy
        sheet.AddPage(&pageAppearance);
    }
    if (m_lPropPageConfig & PAGE_SETTINGS) {
        pageSettings.m_bMajorTics = m_nXTicType != 0;
        pageSettings.m_bMinorTics = m_nMinorTics != 0;
        pageSettings.m_dwGrid = m_dwGridType;
        pageSettings.m_bRightAxis = m_bRightAxisDisplayed;
        sheet.AddPage(&pageSettings);
    }
    for (int i = 0; i < m_aPropPages.GetSize(); i++)
        sheet.AddPage(m_aPropPages[i]);

    // A sheet without pages would show an empty frame: nothing opens.
    if (sheet.GetPageCount() == 0 || sheet.DoModal() != IDOK)
        return 2;

    if (m_lPropPageConfig & PAGE_LINE_COLORS) {
        // The page's OnOK has changed the series; the legend follows, with
        // the background that is about to be in force.
        SaveCustomColors();
        if (pageLineColors.m_bPageOpened)
            NotifyApplication(GN_LINECOLORS);
        const COLORREF crBackground =
            (m_lPropPageConfig & PAGE_APPEARANCE) ? pageAppearance.m_graph.m_crBackground : m_crBackground;
        POSITION pos = m_mapPlotData.GetStartPosition();
        while (pos != NULL) {
            CString strName;
            CPlotData* pData;
            m_mapPlotData.GetNextAssoc(pos, strName, pData);
            m_legend.UpdateEntry(strName, pData->m_crLine, pData->m_nLineStyle, pData->m_nLineWidth,
                                 pData->m_nAnnotate, crBackground);
        }
    }
    if (m_lPropPageConfig & PAGE_APPEARANCE) {
        CGraphPrv& preview = pageAppearance.m_graph;
        SetBackgroundColor(preview.m_crBackground);
        LOGFONT lf;
        int nPointSize;
        DWORD crText;
        preview.GetLogFont(&lf, &nPointSize, &crText);
        SetLogFont(&lf, nPointSize, crText);
        m_crGrid = preview.m_crGrid;
        m_dwGridStyle = preview.m_dwGridStyle;
        if (pageAppearance.m_bPageOpened)
            NotifyApplication(GN_APPEARANCE);
    }
    if (m_lPropPageConfig & PAGE_SETTINGS) {
        m_nXTicType = pageSettings.m_bMajorTics;
        m_nMinorTics = pageSettings.m_bMinorTics;
        // A grid refused here (beside a right axis) leaves the later steps be.
        // Both directions, or only the horizontal lines when no series are plotted.
        const DWORD dwDirections = (m_dwStyle & GS_NOPLOT) ? GRID_HORIZONTAL : GRID_BOTHWAYS;
        SetGridAttributes(pageSettings.m_dwGrid | dwDirections, m_crGrid, m_dwGridStyle);
        SetTicMarkType(pageSettings.m_bMajorTics ? 1 : 0, pageSettings.m_bMinorTics ? 1 : 0, NULL);
        if (pageSettings.m_bPageOpened)
            NotifyApplication(GN_SETTINGS);
    }
    if (m_lPropPageConfig & PAGE_LIMITS) {
        ApplyPageLimits(pageLimits);
        if (pageLimits.m_bPageOpened)
            NotifyApplication(GN_LIMITS);
    }
    Replot();
    for (int i = 0; i < m_aPropPageFlags.GetSize(); i++)
        NotifyApplication((UINT)m_aPropPageFlags[i]);
    return 1;
}

void CGraphPrv::ApplyPageLimits(const CLimitsPage& page)
{
    // With an order bit the smaller value goes first; without it the values
    // go as typed, and a minimum above the maximum reverses the axis.
    const BOOL bXOrder = (m_dwStyle & GS_XLIMITORDER) != 0;
    const BOOL bYOrder = (m_dwStyle & GS_YLIMITORDER) != 0;
    auto ordered = [](BOOL bOrder, double dMin, double dMax, double& dFirst, double& dSecond) {
        const BOOL bSwap = bOrder && dMin > dMax;
        dFirst = bSwap ? dMax : dMin;
        dSecond = bSwap ? dMin : dMax;
    };
    double dFirst, dSecond;
    ordered(bXOrder, page.m_dXMin, page.m_dXMax, dFirst, dSecond);
    SetXAxisLimits(dFirst, dSecond);
    ordered(bYOrder, page.m_dYLeftMin, page.m_dYLeftMax, dFirst, dSecond);
    SetYAxisLimits(dFirst, dSecond, 0);
    ordered(bYOrder, page.m_dYRightMin, page.m_dYRightMax, dFirst, dSecond);
    SetYAxisLimits(dFirst, dSecond, 1);
    m_dRadarXPercent = page.m_dRadarXPercent;
    m_dRadarYPercent = page.m_dRadarYPercent;
    m_wRadarType = (WORD)(m_wRadarType & ~0x07);
    if (page.m_bRadarX)
        m_wRadarType |= 0x01;
    if (page.m_bRadarY)
        m_wRadarType |= 0x06;   // one box stands for the left and the right axis
}
