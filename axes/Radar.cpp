// Automatic scaling ("Radar"): the extent of each series, the limits that
// take in all of the data (or one series) with a margin in percent, and the
// settings of the scaling.
//
// The stored extent of a series always has the smaller value in the minimum
// field, whatever the direction of the axes. The scaling keeps the direction
// an axis has when it is scaled: a reversed axis (minimum field above the
// maximum field) stays reversed, and the margin lies outside the data on
// every axis.
#include "graph/GraphPrv.h"
#include "axes/AxesMath.h"
#include "series/PlotData.h"

namespace {

// Start of the running extent: a tenth of the largest double.
const double RADAR_START = 1.7976931348623158e307;

// A series with points to scan. A negative count or a missing array (host
// misuse) counts as empty rather than reading outside an array.
BOOL HasPoints(const CPlotData* pData)
{
    return pData->m_lPoints > 0 && pData->m_pfXData != NULL && pData->m_pfYData != NULL;
}

// The running extent of the series on one axis.
struct RadarExtent
{
    double dLo = RADAR_START;
    double dHi = -RADAR_START;
    BOOL bSeen = FALSE;

    void Widen(float fLo, float fHi)
    {
        if (fLo < dLo)
            dLo = fLo;
        if (fHi > dHi)
            dHi = fHi;
        bSeen = TRUE;
    }
};

// The margin on each side of a span: a span narrower than the resolution
// gets half a resolution on each side, just enough for the narrow-pair rule
// of the limit setters; any other span its percent.
double RadarPad(double dSpan, float fResolution, double dPercent)
{
    return dSpan < (double)fResolution ? (double)fResolution * 0.5 : dSpan * dPercent * 0.01;
}

// Limits from dLo - dPad to dHi + dPad, in the direction the axis has now.
// Equal limits have no direction and count as rising.
void RangeX(CGraphPrv* pGraph, double dLo, double dHi, double dPad)
{
    if (pGraph->m_dXMin > pGraph->m_dXMax)
        pGraph->sg_xrange(dLo - dPad, dHi + dPad);
    else
        pGraph->sg_xrange(dHi + dPad, dLo - dPad);
}

void RangeY(CGraphPrv* pGraph, double dLo, double dHi, double dPad, int nAxis)
{
    if (pGraph->m_dYMin[nAxis] > pGraph->m_dYMax[nAxis])
        pGraph->sg_yrange(dLo - dPad, dHi + dPad, nAxis);
    else
        pGraph->sg_yrange(dHi + dPad, dLo - dPad, nAxis);
}

// The wait cursor, shown while a graph with a window scans its series.
class RadarWaitCursor
{
public:
    explicit RadarWaitCursor(BOOL bShow) : m_bShow(bShow), m_hOld(NULL)
    {
        if (m_bShow) {
            m_hOld = ::SetCursor(::LoadCursor(NULL, IDC_WAIT));
            ::ShowCursor(TRUE);
        }
    }
    ~RadarWaitCursor()
    {
        if (m_bShow) {
            ::SetCursor(m_hOld);
            ::ShowCursor(FALSE);
        }
    }

private:
    RadarWaitCursor(const RadarWaitCursor&) = delete;
    RadarWaitCursor& operator=(const RadarWaitCursor&) = delete;
    BOOL m_bShow;
    HCURSOR m_hOld;
};

} // namespace

void CGraphPrv::GetRadarValues(CPlotData* pData)
{
    if (!HasPoints(pData))
        return;
    // The extent covers indices 0 to n-1 of the arrays, whatever the first
    // index of the series.
    const long n = pData->m_lPoints;
    const float* pfX = pData->m_pfXData;
    const float* pfY = pData->m_pfYData;
    float fXMin = 3.4028235e38f, fXMax = -3.4028235e38f;
    float fYMin = 3.4028235e38f, fYMax = -3.4028235e38f;
    for (long i = 0; i < n; i++) {
        fXMin = pfX[i] < fXMin ? pfX[i] : fXMin;
        fXMax = pfX[i] > fXMax ? pfX[i] : fXMax;
        fYMin = pfY[i] < fYMin ? pfY[i] : fYMin;
        fYMax = pfY[i] > fYMax ? pfY[i] : fYMax;
    }
    // A series whose points share one X value reaches from 0 to that value
    // (a negative value from that value to 0).
    if (fXMin == fXMax) {
        if (fXMin > 0.0f)
            fXMin = 0.0f;
        else
            fXMax = 0.0f;
    }
    pData->m_fXMin = fXMin;
    pData->m_fXMax = fXMax;
    pData->m_fYMin = fYMin;
    pData->m_fYMax = fYMax;
}

int CGraphPrv::Radar()
{
    return Radar(m_wRadarType);
}

int CGraphPrv::Radar(WORD wFlags)
{
    RadarWaitCursor wait(m_hWnd != NULL);

    RadarExtent x, y[2];
    if (!(m_dwStyle & GS_NOPLOT)) {
        POSITION pos = m_mapPlotData.GetStartPosition();
        while (pos != NULL) {
            CString strName;
            CPlotData* pData = NULL;
            m_mapPlotData.GetNextAssoc(pos, strName, pData);
            if (!HasPoints(pData))
                continue;
            GetRadarValues(pData);
            x.Widen(pData->m_fXMin, pData->m_fXMax);
            y[AxesYIndex(pData->m_nYAxis)].Widen(pData->m_fYMin, pData->m_fYMax);
        }
    }

    // An axis without a series keeps its limits.
    if ((wFlags & RADAR_X) && x.bSeen)
        RangeX(this, x.dLo, x.dHi, RadarPad(x.dHi - x.dLo, m_fXResolution, m_dRadarXPercent));
    for (int nAxis = 0; nAxis < 2; nAxis++) {
        const WORD wAxisFlag = nAxis == 0 ? RADAR_YLEFT : RADAR_YRIGHT;
        const RadarExtent& e = y[nAxis];
        if ((wFlags & wAxisFlag) && e.bSeen)
            RangeY(this, e.dLo, e.dHi, RadarPad(e.dHi - e.dLo, m_fYResolution[nAxis], m_dRadarYPercent), nAxis);
    }
    return GRAPH_OK;
}

int CGraphPrv::RadarPlotData(CString& strName, long lFlags)
{
    CPlotData* pData = FindPlotData(strName);
    if (pData == NULL)
        return GRAPH_NOSERIES;
    // The stored extent, without a new scan. X has no margin here, and the
    // left axis's resolution serves both Y axes.
    if (lFlags & RADAR_X)
        RangeX(this, pData->m_fXMin, pData->m_fXMax, 0.0);
    const double dYLo = pData->m_fYMin, dYHi = pData->m_fYMax;
    const double dPad = RadarPad(dYHi - dYLo, m_fYResolution[0], m_dRadarYPercent);
    if (lFlags & RADAR_YLEFT)
        RangeY(this, dYLo, dYHi, dPad, 0);
    if (lFlags & RADAR_YRIGHT)
        RangeY(this, dYLo, dYHi, dPad, 1);
    return GRAPH_OK;
}

int CGraphPrv::SetRadarType(WORD wFlags)
{
    m_wRadarType = wFlags;
    return GRAPH_OK;
}

int CGraphPrv::GetRadarType(WORD* pwFlags)
{
    *pwFlags = m_wRadarType;
    return GRAPH_OK;
}

int CGraphPrv::SetRadarPercent(double dXPercent, double dYPercent)
{
    m_dRadarXPercent = dXPercent;
    m_dRadarYPercent = dYPercent;
    return GRAPH_OK;
}

int CGraphPrv::GetRadarPercent(double& dXPercent, double& dYPercent)
{
    dXPercent = m_dRadarXPercent;
    dYPercent = m_dRadarYPercent;
    return GRAPH_OK;
}

int CGraphPrv::EnableRadarDblClick(int bEnable)
{
    if (bEnable)
        m_dwState |= GST_RADAR_DBLCLK;
    else
        m_dwState &= ~GST_RADAR_DBLCLK;
    return GRAPH_OK;
}

int CGraphPrv::EnableRadarPercentControls(int bEnable)
{
    m_bRadarPercentControls = bEnable;
    return GRAPH_OK;
}

int CGraphPrv::IsRadarPercentControlsEnabled()
{
    return m_bRadarPercentControls;
}

int CGraphPrv::EnableRadarAxisControls(int bEnable)
{
    m_bRadarAxisControls = bEnable;
    return GRAPH_OK;
}

int CGraphPrv::IsRadarAxisControlsEnabled()
{
    return m_bRadarAxisControls;
}
