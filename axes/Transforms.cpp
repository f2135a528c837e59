// Coordinate transforms: the linear maps between data values and pixels for
// the X axis and each Y axis, the bounded and rounded conversions to pixels,
// the conversions back that prefer the exact tic values, the whole-series
// transform, and the tests of a value against the plot rectangle.
#include "graph/GraphPrv.h"
#include "axes/AxesMath.h"
#include "axes/AxisView.h"
#include "series/PlotData.h"
#include <string.h>

namespace {

// The pixel of a transformed value: values beyond 8192 stop at 8192, values
// below -8192 (and not-a-number) at -8192, which rounds to -8191.
int BoundedPixel(double dValue)
{
    if (dValue > 8192.0)
        return (int)(8192.0 + AXES_ROUNDING);
    if (!(dValue >= -8192.0))
        dValue = -8192.0;
    return (int)(dValue + AXES_ROUNDING);
}

// The pixel of a value already rounded to float, bounded by its bits: a
// magnitude of 8192 or more, or no finite number (the top seven bits of the
// exponent above 0x45), gives +8192 or -8192 by the sign; anything else is
// truncated toward zero. Written without branches, so that the loop over a
// series vectorises.
inline int FloatBitsPixel(float fValue)
{
    unsigned int uBits;
    memcpy(&uBits, &fValue, sizeof(uBits));
    const unsigned int uBig = 0u - (unsigned int)(((uBits >> 24) & 0x7Fu) > 0x45u);   // all ones if out of range
    const unsigned int uSafeBits = uBits & ~uBig;                                      // 0.0f if out of range
    float fSafe;
    memcpy(&fSafe, &uSafeBits, sizeof(fSafe));
    const int nInside = (int)fSafe;
    const int nBound = 8192 - (int)((uBits >> 31) << 14);                             // 8192 or -8192
    return (int)(((unsigned int)nInside & ~uBig) | ((unsigned int)nBound & uBig));
}

// A pixel right on a tic gives the tic's own value: the tics are scanned
// from index 0 while their pixels lead up to nPixel (rising on X, falling
// on Y); the last tic is not scanned. FALSE when no tic stands there.
BOOL TicValueAtPixel(const CAxisView& axis, int nPixel, double& dValue)
{
    const int s = axis.nSign;
    const int* pnPixel = axis.pnTicPixel;
    if (s * nPixel < s * pnPixel[0])
        return FALSE;
    const int nLast = AxesLastTic(axis.nTicCount);
    for (int i = 0; i < nLast; i++) {
        if (nPixel == pnPixel[i]) {
            dValue = axis.pdTicValue[i];
            return TRUE;
        }
        if (s * nPixel < s * pnPixel[i + 1])
            break;
    }
    return FALSE;
}

} // namespace

void CGraphPrv::WidenEqualLimits(int iAxis)
{
    CAxisView axis = Axis(iAxis);
    if (axis.dMax != axis.dMin)
        return;
    axis.dMax = axis.dMax * 1.002;
    axis.dMin = axis.dMin - axis.dMin * 0.002;
    if (axis.dMax == 0.0)
        axis.dMax += AXES_TOLERANCE;
    CalcTicValues(iAxis);
}

void CGraphPrv::HorzXform(double* pdScale, double* pdOffset)
{
    WidenEqualLimits(AXIS_X);
    *pdScale = (double)(m_rectPlot.right - m_rectPlot.left) / (m_dXMax - m_dXMin);
    *pdOffset = m_rectPlot.right - *pdScale * m_dXMax;
}

void CGraphPrv::VertXform(double* pdScale, double* pdOffset, int nAxis)
{
    const int n = AxesYIndex(nAxis);
    WidenEqualLimits(AxisOfY(n));
    *pdScale = (double)(m_rectPlot.bottom - m_rectPlot.top) / (m_dYMax[n] - m_dYMin[n]);
    *pdOffset = *pdScale * m_dYMin[n] + m_rectPlot.bottom;
}

int CGraphPrv::DataToPixelX(double dX)
{
    double dScale, dOffset;
    HorzXform(&dScale, &dOffset);
    return BoundedPixel(dScale * dX + dOffset);
}

int CGraphPrv::DataToPixelY(double dY, int nAxis)
{
    double dScale, dOffset;
    VertXform(&dScale, &dOffset, nAxis);
    return BoundedPixel(dOffset - dScale * dY);
}

double CGraphPrv::PixelToDataX(int nX)
{
    HorzXform(&m_dXScale, &m_dXOffset);
    return PixelToDataXRpt(nX);
}

double CGraphPrv::PixelToDataY(int nY, int nAxis)
{
    const int n = AxesYIndex(nAxis);
    VertXform(&m_dYScale[n], &m_dYOffset[n], n);
    return PixelToDataYRpt(nY, n);
}

double CGraphPrv::PixelToDataXRpt(int nX)
{
    double dValue;
    if (TicValueAtPixel(Axis(AXIS_X), nX, dValue))
        return dValue;
    return (nX - m_dXOffset) / m_dXScale;
}

double CGraphPrv::PixelToDataYRpt(int nY, int nAxis)
{
    const int n = AxesYIndex(nAxis);
    double dValue;
    if (TicValueAtPixel(Axis(AxisOfY(n)), nY, dValue))
        return dValue;
    return (m_dYOffset[n] - nY) / m_dYScale[n];
}

void CGraphPrv::XformPlotData(CPlotData* pData, POINT* pPoints)
{
    // pPoints holds m_lPoints entries: the caller holds the lock from reading
    // the count to here, as a host thread may change it.
    ASSERT(pData != NULL && pPoints != NULL);
    CSingleLock lock(&m_csPlotData, TRUE);   // a host thread may swap the arrays
    if (pData->m_pfXData == NULL || pData->m_pfYData == NULL)
        return;
    double dXScale, dXOffset, dYScale, dYOffset;
    HorzXform(&dXScale, &dXOffset);
    dXOffset += AXES_ROUNDING;
    VertXform(&dYScale, &dYOffset, pData->m_nYAxis);
    dYOffset += AXES_ROUNDING;

    const float* __restrict pfX = pData->m_pfXData + pData->m_lStartIndex;
    const float* __restrict pfY = pData->m_pfYData + pData->m_lStartIndex;
    POINT* __restrict pOut = pPoints;
    const long lPoints = pData->m_lPoints;
    for (long i = 0; i < lPoints; i++) {
        pOut[i].x = FloatBitsPixel((float)(dXScale * pfX[i] + dXOffset));
        pOut[i].y = FloatBitsPixel((float)(dYOffset - dYScale * pfY[i]));
    }
}

int CGraphPrv::IsPointInPlotRect(double& dValue, int nKind)
{
    // Kinds 0 and 1 are the Y axes, 2 the X axis; the test is PtInRect, which
    // counts the left and top edges in and the right and bottom edges out.
    CPoint point;
    if (nKind == 0 || nKind == 1)
        point = CPoint(m_rectPlot.left + 1, DataToPixelY(dValue, nKind));
    else if (nKind == 2)
        point = CPoint(DataToPixelX(dValue), m_rectPlot.top + 1);
    else
        return 0;
    return m_rectPlot.PtInRect(point) ? 1 : 0;
}

int CGraphPrv::IsPointInPlotRect(int& nPixel, int nKind)
{
    CPoint point;
    if (nKind == 0 || nKind == 1)
        point = CPoint(m_rectPlot.left + 1, nPixel);
    else if (nKind == 2)
        point = CPoint(nPixel, m_rectPlot.top + 1);
    else
        return 0;
    return m_rectPlot.PtInRect(point) ? 1 : 0;
}
