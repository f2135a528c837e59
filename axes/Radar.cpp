// Automatic scaling ("Radar"): the extent of each series and the limits that
// take in all of the data.
#include "graph/GraphPrv.h"
#include "series/PlotData.h"

void CGraphPrv::GetRadarValues(CPlotData* pData)
{
    const long n = pData->m_lPoints;
    if (n == 0)
        return;
    // The extent covers indices 0 to n-1 of the arrays, whatever the first
    // index of the series.
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

    // On a reversed axis the minimum field holds the larger value, as the
    // limits of that axis do; the right axis always keeps the smaller first.
    if (m_dXMin > m_dXMax) {
        pData->m_fXMin = fXMax;
        pData->m_fXMax = fXMin;
    } else {
        pData->m_fXMin = fXMin;
        pData->m_fXMax = fXMax;
    }
    if (pData->m_nYAxis == 0 && m_dYMin[0] > m_dYMax[0]) {
        pData->m_fYMin = fYMax;
        pData->m_fYMax = fYMin;
    } else {
        pData->m_fYMin = fYMin;
        pData->m_fYMax = fYMax;
    }
}
