// Automatic scaling ("Radar"): the extent of each series, the limits that
// take in all of the data (or one series) with a margin in percent, and the
// settings of the scaling.
//
// The stored extent of a series has the smaller value in the minimum field,
// whatever the direction of the axes, with one exception: a series whose
// points share one X value reaches from 0 to that value, which for a value
// below 0 is a falling extent and gives a reversed X axis. The scaling keeps
// the direction an axis has when it is scaled: a reversed axis (minimum field
// above the maximum field) stays reversed, and the margin lies outside the
// data on every axis.
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

// The limits that take in dLo - dPad to dHi + dPad in the direction an axis
// has now (bReversed: minimum field above the maximum field), in the order
// the range setters take them, maximum first. Equal limits have no direction
// and count as rising.
struct RadarRange
{
    double dMax;
    double dMin;
};

RadarRange RadarLimits(BOOL bReversed, double dLo, double dHi, double dPad)
{
    if (bReversed)
        return RadarRange{dLo - dPad, dHi + dPad};
    return RadarRange{dHi + dPad, dLo - dPad};
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
    // A series whose points share one X value reaches from 0 to that value.
    if (fXMin == fXMax)
        fXMin = 0.0f;
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
        // A host thread may swap a series' arrays at any time: the scan
        // holds the series lock.
        CSingleLock lock(&m_csPlotData, TRUE);
        ForEachSeries([&](CPlotData* pData) {
            if (!HasPoints(pData))
                return;
            GetRadarValues(pData);
            x.Widen(pData->m_fXMin, pData->m_fXMax);
            y[AxesYIndex(pData->m_nYAxis)].Widen(pData->m_fYMin, pData->m_fYMax);
        });
    }

    // An axis without a series keeps its limits.
    if ((wFlags & RADAR_X) && x.bSeen) {
        const double dPad = RadarPad(x.dHi - x.dLo, m_fXResolution, m_dRadarXPercent);
        const RadarRange r = RadarLimits(m_dXMin > m_dXMax, x.dLo, x.dHi, dPad);
        sg_xrange(r.dMax, r.dMin);
    }
    for (int nAxis = 0; nAxis < 2; nAxis++) {
        const WORD wAxisFlag = nAxis == 0 ? RADAR_YLEFT : RADAR_YRIGHT;
        const RadarExtent& e = y[nAxis];
        if ((wFlags & wAxisFlag) && e.bSeen) {
            const double dPad = RadarPad(e.dHi - e.dLo, m_fYResolution[nAxis], m_dRadarYPercent);
            const RadarRange r = RadarLimits(m_dYMin[nAxis] > m_dYMax[nAxis], e.dLo, e.dHi, dPad);
            sg_yrange(r.dMax, r.dMin, nAxis);
        }
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
    if (lFlags & RADAR_X) {
        const RadarRange r = RadarLimits(m_dXMin > m_dXMax, pData->m_fXMin, pData->m_fXMax, 0.0);
        sg_xrange(r.dMax, r.dMin);
    }
    const double dYLo = pData->m_fYMin, dYHi = pData->m_fYMax;
    const double dPad = RadarPad(dYHi - dYLo, m_fYResolution[0], m_dRadarYPercent);
    for (int nAxis = 0; nAxis < 2; nAxis++) {
        if (lFlags & (nAxis == 0 ? RADAR_YLEFT : RADAR_YRIGHT)) {
            const RadarRange r = RadarLimits(m_dYMin[nAxis] > m_dYMax[nAxis], dYLo, dYHi, dPad);
            sg_yrange(r.dMax, r.dMin, nAxis);
        }
    }
    return GRAPH_OK;
}

int CGraphPrv::SetRadarType(WORD wFlags)
{
    m_wRadarType = wFlags;
    return GRAPH_OK;
}

int CGraphPrv::GetRadarType(WORD* pwFlags)
{
    if (pwFlags == NULL)
        return GRAPH_BADARG;
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
