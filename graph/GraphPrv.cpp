// CGraphPrv: construction with the defaults of every field, creation with
// or without a window, the first layout of a new graph, the window
// operations, destruction.
#include "graph/GraphPrv.h"
#include "graph/Globals.h"
#include "afx/afxext.h"
#include "resources/resource.h"
#include <string.h>

IMPLEMENT_DYNCREATE(CGraphPrv, CWnd)

namespace {

// The metrics of pFont in the context of pWnd (null: the screen); FALSE,
// with tm untouched, when the window has no context.
BOOL FontMetricsIn(CWnd* pWnd, CFont* pFont, TEXTMETRIC& tm)
{
    try {
        CClientDC dc(pWnd);
        CSelectGuard selectFont(&dc, pFont);
        dc.GetTextMetrics(&tm);
    } catch (CException* e) {
        e->Delete();
        return FALSE;
    }
    return TRUE;
}

} // namespace

CGraphPrv::CGraphPrv()
    : m_dwState(GST_RADAR_DBLCLK), m_bFGPlot(false), m_bBGPlot(false), m_dwStyle(0x71),
      m_nGridPenWidth(1), m_crBackground(0xFFFFFF), m_nAutoScaleMode(0), m_dwGridType(1),
      m_crGrid(0), m_dwGridStyle(0), m_nGraphColorsMode(GRAPH_COLORS_FIXED),
      m_pGraphColors(g_pDefaultLineColors), m_nGraphColors(DEFAULT_LINE_COLORS),
      m_nNextRotatingColor(0), m_bStopIncrementColor(FALSE),
      m_dXMax(1.0), m_dXMin(0.0), m_bZoomEnabled(TRUE), m_bRightAxisDisplayed(FALSE),
      m_nXTicCount(0), m_nXTicType(1), m_fXResolution(0.0f), m_mapRefLines(10),
      m_nMinorTics(0), m_nLogPixelsX(0), m_nLogPixelsY(0), m_pMarkerLine(NULL),
      m_bPointsStale(FALSE), m_nPointSize(80), m_crText(0), m_lFontWeight(0), m_bFontItalic(0),
      m_pNotify(NULL), m_mapPlotData(10), m_bMenuEnabled(TRUE), m_wRadarType(RADAR_X | RADAR_YLEFT | RADAR_YRIGHT),
      m_dRadarXPercent(0.0), m_dRadarYPercent(10.0), m_bRadarPercentControls(TRUE),
      m_bRadarAxisControls(TRUE), m_hPlotCursor(NULL), m_mapFloatingLabels(10),
      m_pLabelTracker(NULL), m_wNextLabelId(2001), m_lPropPageConfig(15), m_lMenuConfig(63),
      m_strMaxLenFormat("%.3E"), m_bColumnReduction(FALSE)
{
    m_dYMax[0] = m_dYMax[1] = 1.0;
    m_dYMin[0] = m_dYMin[1] = 0.0;
    m_nYTicCount[0] = m_nYTicCount[1] = 0;
    m_nYTicType[0] = m_nYTicType[1] = 1;
    m_fYResolution[0] = m_fYResolution[1] = 0.0f;
    // Fields that their operations fill before use get a harmless value
    // meanwhile: an early Rpt conversion maps a pixel to itself.
    m_dXScale = 1.0;
    m_dXOffset = 0.0;
    m_dYScale[0] = m_dYScale[1] = 1.0;
    m_dYOffset[0] = m_dYOffset[1] = 0.0;
    m_lNotifyMask = 0;
    m_pSelectedLabel = NULL;
    m_nCursorHitTest = 0;
    // Filled by the first tic pixel computation; zero until then so that no
    // copy of one axis to another reads indeterminate values.
    memset(m_nMinorTicCount, 0, sizeof(m_nMinorTicCount));
    memset(&m_MinorX, 0, sizeof(m_MinorX));
    memset(&m_MinorYLeft, 0, sizeof(m_MinorYLeft));
    memset(&m_MinorYRight, 0, sizeof(m_MinorYRight));

    g_bGraphCreated = TRUE;

    // Tic tables of a graph without layout, in steps of an eleventh of the
    // span, until the first layout or limit change replaces them.
    const double dEleventh = 0.09090909090909091;
    for (int i = 0; i <= 10; i++) {
        m_dXTicValue[i] = (m_dXMax - m_dXMin) * dEleventh * i;
        m_dYTicValue[0][i] = (m_dYMax[0] - m_dYMin[0]) * dEleventh * i;
        m_dYTicValue[1][i] = (m_dYMax[1] - m_dYMin[1]) * dEleventh * i;
        m_nXTicPixel[i] = 0;
        m_nYTicPixel[0][i] = 0;
        m_nYTicPixel[1][i] = 0;   // zero too, so that nothing reads an indeterminate value
    }

    // The plot cursor always comes from the library itself.
    m_hPlotCursor = ::LoadCursorA(g_hGraphInstance, MAKEINTRESOURCEA(IDC_PLOT_CURSOR));

    m_strFaceName.LoadString(IDS_FONT_FACE);
    m_font.CreatePointFont(m_nPointSize, m_strFaceName);
    memset(&m_logFont, 0, sizeof(m_logFont));
    m_font.GetLogFont(&m_logFont);
    m_lFontWeight = m_logFont.lfWeight;
    m_bFontItalic = m_logFont.lfItalic;
}

CGraphPrv::~CGraphPrv()
{
    DestroyOwnedTools();
    DestroyWindow();   // OnDestroy removes the series
    if (m_hPlotCursor != NULL)
        ::DestroyCursor(m_hPlotCursor);
}

int CGraphPrv::CreateGraph(CWnd* pParent, HINSTANCE, CRect& rect, DWORD dwStyle, UINT nID, long lMenuConfig)
{
    // A graph has one window: a second creation is refused and changes
    // nothing, so that the first window and its legend stay bound.
    if (m_hWnd != NULL)
        return 0;
    m_dwStyle = dwStyle;
    m_rectGraph = rect;
    m_lMenuConfig = lMenuConfig;
    if (dwStyle & GS_NOWINDOW) {
        InitMemberVariables(pParent);
        return (int)m_dwStyle;
    }
    LPCSTR lpszClass = NULL;
    try {
        lpszClass = AfxRegisterWndClass(CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS, NULL,
                                        (HBRUSH)(COLOR_WINDOW + 1), NULL);
    } catch (CException* e) {
        e->Delete();
    }
    BOOL bCreated = lpszClass != NULL &&
                    Create(lpszClass, "", WS_CHILD | WS_CLIPSIBLINGS, m_rectGraph, pParent, nID, NULL);
    InitMemberVariables(pParent);
    return bCreated;
}

void CGraphPrv::InitMemberVariables(CWnd* pParent)
{
    // The parent's context gives the metrics of the graph's font. A parent
    // that is no window (the creation then failed) has no context: the
    // screen's stands in, so that the graph still gets its windowless layout.
    TEXTMETRIC tm;
    memset(&tm, 0, sizeof(tm));
    if (!FontMetricsIn(pParent, &m_font, tm))
        FontMetricsIn(NULL, &m_font, tm);

    if (m_hWnd != NULL)
        GetClientRect(&m_rectGraph);
    LayoutFirst(tm);

    ResetTicTables();
    CalcTicMarkPixels();

    if (m_hWnd != NULL)
        m_legend.Create(this, LEGEND_RIGHT);

    // Series and labels that arrived before creation (as from an archive).
    if (m_legend.m_hWnd != NULL) {
        ForEachSeries([this](CPlotData* pData) { AddSeriesToLegend(pData); });
    }
    PlaceFloatingLabels();
}

int CGraphPrv::ShowGraph()
{
    ShowWindow(SW_SHOW);
    Replot();
    UpdateWindow();
    return GRAPH_OK;
}

int CGraphPrv::HideGraph()
{
    ShowWindow(SW_HIDE);
    return GRAPH_OK;
}

int CGraphPrv::Update()
{
    UpdateWindow();
    return GRAPH_OK;
}

int CGraphPrv::Replot()
{
    if (m_hWnd != NULL)
        InvalidateRect(NULL, TRUE);
    return GRAPH_OK;
}

void CGraphPrv::DestroyOwnedTools()
{
    delete m_pLabelTracker;
    m_pLabelTracker = NULL;
    RemoveAllReferenceLines();
    RemoveAllFloatingLabels();
    RemoveMarkerLine();
}

void CGraphPrv::OnDestroy()
{
    CWnd::OnDestroy();
    RemoveAllPlotData();
}
