// The series operations of a graph: adding with float or double arrays,
// pointing a series at new data under the lock, removing, and reading or
// changing a series' look. They keep the map, the legend and the marker line
// in step; no limit moves and nothing repaints.
#include "graph/GraphPrv.h"
#include "series/PlotData.h"

CPlotData* CGraphPrv::FindPlotData(const CString& strName)
{
    CPlotData* pData = NULL;
    if (!m_mapPlotData.Lookup(strName, pData))
        return NULL;
    return pData;
}

void CGraphPrv::DestroyPlotData(CPlotData* pData)
{
    delete pData;
}

// A new, empty series of that name; null when memory fails.
static CPlotData* NewPlotData(const CString& strName)
{
    CPlotData* pData = NULL;
    try {
        pData = new CPlotData;
        pData->m_strName = strName;
    } catch (CException* e) {
        e->Delete();
        delete pData;
        pData = NULL;
    }
    return pData;
}

int CGraphPrv::AddPlotData(const CString& strName, DWORD dwAxis, float* pfX, float* pfY, long lPoints,
                           DWORD crColor, int nLineStyle, int nAnnotate)
{
    if (FindPlotData(strName) != NULL)
        return GRAPH_SERIESEXISTS;
    CPlotData* pData = NewPlotData(strName);
    if (pData == NULL)
        return GRAPH_NOMEMORY;
    // The host's arrays are kept, not copied: the host owns them.
    pData->m_pfXData = pfX;
    pData->m_pfYData = pfY;
    int nResult = FillPlotData(pData, dwAxis, lPoints, crColor, nLineStyle, nAnnotate);
    if (nResult != GRAPH_OK)
        DestroyPlotData(pData);
    return nResult;
}

int CGraphPrv::AddPlotData(const CString& strName, DWORD dwAxis, double* pdX, double* pdY, long lPoints,
                           DWORD crColor, int nLineStyle, int nAnnotate)
{
    // The doubles are read here and now, unlike float arrays that are kept.
    if (pdX == NULL || pdY == NULL)
        return GRAPH_BADARG;
    if (FindPlotData(strName) != NULL)
        return GRAPH_SERIESEXISTS;
    CPlotData* pData = NewPlotData(strName);
    if (pData == NULL)
        return GRAPH_NOMEMORY;
    // Owned float copies: the host may free its doubles on return.
    if (!pData->SetDoubleData(pdX, pdY, lPoints)) {
        DestroyPlotData(pData);
        return GRAPH_NOMEMORY;
    }
    int nResult = FillPlotData(pData, dwAxis, lPoints, crColor, nLineStyle, nAnnotate);
    if (nResult != GRAPH_OK)
        DestroyPlotData(pData);
    return nResult;
}

int CGraphPrv::FillPlotData(CPlotData* pData, DWORD dwAxis, long lPoints, DWORD crColor, int nLineStyle, int nAnnotate)
{
    pData->m_lPoints = lPoints;
    pData->m_lStartIndex = 0;
    if (dwAxis & PLOT_YLEFT)
        pData->m_nYAxis = 0;
    else if (dwAxis & PLOT_YRIGHT)
        pData->m_nYAxis = 1;
    else
        return GRAPH_BADARG;

    // The look comes from the colour mode.
    if (m_nGraphColorsMode == GRAPH_COLORS_ROTATING) {
        // A table without entries (the library's own could not be built)
        // gives no look, as a name without an entry does in mode 3.
        if (m_pGraphColors == NULL || m_nGraphColors < 1)
            return GRAPH_NOCOLOR;
        const CLineColor& entry = m_pGraphColors[m_nNextRotatingColor];
        pData->m_crLine = entry.m_crLine;
        pData->m_nLineStyle = entry.m_nLineStyle;
        pData->m_nAnnotate = entry.m_nAnnotate;
        pData->m_nLineWidth = entry.m_nLineWidth;
        pData->m_crAnnotate = entry.m_crLine;
        if (!m_bStopIncrementColor)
            m_nNextRotatingColor = m_nNextRotatingColor == m_nGraphColors - 1 ? 0 : m_nNextRotatingColor + 1;
    } else if (m_nGraphColorsMode == GRAPH_COLORS_MATCHING) {
        const CLineColor* pMatch = NULL;
        for (int i = 0; m_pGraphColors != NULL && i < m_nGraphColors && pMatch == NULL; i++) {
            if (m_pGraphColors[i].m_strName == pData->m_strName)
                pMatch = &m_pGraphColors[i];
        }
        if (pMatch == NULL)
            return GRAPH_NOCOLOR;
        pData->m_crLine = pMatch->m_crLine;
        pData->m_nLineStyle = pMatch->m_nLineStyle;
        pData->m_nAnnotate = pMatch->m_nAnnotate;
        pData->m_nLineWidth = pMatch->m_nLineWidth;
        pData->m_crAnnotate = pMatch->m_crLine;
    } else {
        pData->m_crLine = crColor;
        pData->m_nLineStyle = nLineStyle;
        pData->m_nAnnotate = nAnnotate;
        pData->m_crAnnotate = crColor;
        pData->m_nLineWidth = 1;
    }

    GetRadarValues(pData);

    // The map changes under the lock: a host thread's update looks series up
    // in it at any time.
    CSingleLock lock(&m_csPlotData, TRUE);
    BOOL bInMap = FALSE;
    try {
        delete[] pData->m_pPointArray;
        pData->m_pPointArray = NULL;
        pData->m_pPointArray = new POINT[lPoints > 0 ? (size_t)lPoints : 0];
        m_mapPlotData.SetAt(pData->m_strName, pData);
        bInMap = TRUE;
        AddSeriesToLegend(pData);
    } catch (CException* e) {
        // The caller destroys the series: it must not stay in the map. The
        // legend adds nothing when its entry cannot be made.
        e->Delete();
        if (bInMap)
            m_mapPlotData.RemoveKey(pData->m_strName);
        return GRAPH_NOMEMORY;
    }
    return GRAPH_OK;
}

void CGraphPrv::AddSeriesToLegend(CPlotData* pData)
{
    if (m_legend.m_hWnd != NULL)
        m_legend.AddEntry(pData->m_strName, pData->m_crLine, pData->m_nLineStyle, pData->m_nLineWidth,
                          pData->m_nAnnotate, m_crBackground);
}

int CGraphPrv::UpdatePlotData(const CString& strName, float* pfX, float* pfY, long lFirst, long lPoints)
{
    CSingleLock lock(&m_csPlotData, TRUE);
    CPlotData* pData = FindPlotData(strName);
    if (pData == NULL)
        return GRAPH_NOSERIES;
    // A series made from doubles now refers to the host's floats.
    if (pData->m_bOwnXData && pData->m_pfXData != NULL) {
        delete[] pData->m_pfXData;
        pData->m_bOwnXData = FALSE;
    }
    if (pData->m_bOwnYData && pData->m_pfYData != NULL) {
        delete[] pData->m_pfYData;
        pData->m_bOwnYData = FALSE;
    }
    pData->m_pfXData = pfX;
    pData->m_pfYData = pfY;
    pData->m_lPoints = lPoints;
    pData->m_lStartIndex = lFirst;
    OnSeriesDataReplaced(pData);
    return GRAPH_OK;
}

int CGraphPrv::UpdatePlotData(const CString& strName, double* pdX, double* pdY, long lFirst, long lPoints)
{
    if (pdX == NULL || pdY == NULL)
        return GRAPH_BADARG;
    CPlotData* pData;
    {
        // The old copies are freed under the lock, when no paint can be
        // reading them.
        CSingleLock lock(&m_csPlotData, TRUE);
        pData = FindPlotData(strName);
        if (pData == NULL)
            return GRAPH_NOSERIES;
        if (pData->SetDoubleData(pdX, pdY, lPoints)) {
            // The copies hold exactly the points converted: a first index
            // other than 0 would make the readers run past their end.
            (void)lFirst;
            pData->m_lStartIndex = 0;
            OnSeriesDataReplaced(pData);
            return GRAPH_OK;
        }
        // Without memory for the copies the series is lost, under the lock,
        // so that no paint finds it any more.
        m_mapPlotData.RemoveKey(strName);
        OnSeriesRemoved(pData);
        DestroyPlotData(pData);
    }
    // The legend is a window of the graph's thread, which may be waiting for
    // the lock in a paint: it hears of the loss after the lock is given back.
    if (m_legend.m_hWnd != NULL)
        m_legend.RemoveEntry(strName);
    return GRAPH_NOMEMORY;
}

int CGraphPrv::RemovePlotData(const CString& strName)
{
    CSingleLock lock(&m_csPlotData, TRUE);
    CPlotData* pData = FindPlotData(strName);
    if (pData == NULL)
        return GRAPH_NOSERIES;
    OnSeriesRemoved(pData);
    if (m_legend.m_hWnd != NULL)
        m_legend.RemoveEntry(strName);
    m_mapPlotData.RemoveKey(strName);
    DestroyPlotData(pData);
    return GRAPH_OK;
}

int CGraphPrv::RemoveAllPlotData()
{
    CSingleLock lock(&m_csPlotData, TRUE);
    ForEachSeries([this](CPlotData* pData) {
        OnSeriesRemoved(pData);
        if (m_legend.m_hWnd != NULL)
            m_legend.RemoveEntry(pData->m_strName);
        DestroyPlotData(pData);
    });
    m_mapPlotData.RemoveAll();
    return GRAPH_OK;
}

int CGraphPrv::SetPlotDataAttributes(const CString& strName, DWORD crColor, int nLineStyle, int nLineWidth,
                                     int nAnnotate, DWORD crAnnotate)
{
    CPlotData* pData = FindPlotData(strName);
    if (pData == NULL)
        return GRAPH_NOSERIES;
    pData->m_crLine = crColor;
    pData->m_nLineStyle = nLineStyle;
    pData->m_nLineWidth = nLineWidth;
    pData->m_nAnnotate = nAnnotate;
    pData->m_crAnnotate = crAnnotate;
    if (m_legend.m_hWnd != NULL)
        m_legend.UpdateEntry(strName, crColor, nLineStyle, nLineWidth, nAnnotate, m_crBackground);
    return GRAPH_OK;
}

int CGraphPrv::GetPlotDataAttributes(const CString& strName, DWORD& crColor, int& nLineStyle, int& nLineWidth,
                                     int& nAnnotate, DWORD& crAnnotate)
{
    CPlotData* pData = FindPlotData(strName);
    if (pData == NULL)
        return GRAPH_NOSERIES;
    crColor = pData->m_crLine;
    nLineStyle = pData->m_nLineStyle;
    nLineWidth = pData->m_nLineWidth;
    nAnnotate = pData->m_nAnnotate;
    crAnnotate = pData->m_crAnnotate;
    return GRAPH_OK;
}
