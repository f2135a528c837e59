// Axis limits: the pair of values at the edges of the plot for X and for
// each Y axis, the rule that keeps a pair at least one resolution apart, and
// what follows every change (tic tables, the cross hair's transform, the
// marker line, the floating labels). Also the limit order bits and the
// automatic scaling switch.
#include "graph/GraphPrv.h"
#include "axes/AxesMath.h"
#include "axes/AxisView.h"
#include <math.h>

namespace {

// A pair narrower than the resolution R: the maximum dF stays, the minimum
// dS moves one resolution away from it. Equal values (and values that do not
// compare, not-a-number) take the direction of the old limits. Ends that came
// within the tolerance of zero become zero.
void KeepPairApart(double& dF, double& dS, double dR, BOOL bOldRising)
{
    if (fabs(dF - dS) >= dR)
        return;
    if (dF > dS)
        dS = dF - dR;
    else if (dF < dS)
        dS = dF + dR;
    else
        dS = bOldRising ? dF - dR : dF + dR;
    if (fabs(dF) < AXES_TOLERANCE)
        dF = 0.0;
    if (fabs(dS) < AXES_TOLERANCE)
        dS = 0.0;
}

} // namespace

void CGraphPrv::StoreLimits(int iAxis, double dMax, double dMin, BOOL bRange)
{
    CAxisView axis = Axis(iAxis);
    m_bPointsStale = TRUE;
    KeepPairApart(dMax, dMin, (double)axis.fResolution, axis.dMax > axis.dMin);
    axis.dMax = dMax;
    axis.dMin = dMin;
    CalcTicValues(iAxis);
    // A change of limits frees a locked cross hair, and renews the transform
    // its read-outs work from.
    if (m_dwState & GST_CROSSHAIR) {
        if (iAxis == AXIS_X)
            HorzXform(&axis.dScale, &axis.dOffset);
        else
            VertXform(&axis.dScale, &axis.dOffset, iAxis - AXIS_YLEFT);
        m_dwState &= ~GST_CROSSHAIR_LOCKED;
    }
    if (bRange && m_pMarkerLine != NULL)
        UpdateMarkerLinePos();
    UpdateAllFloatingLabelPositions();
}

int CGraphPrv::SetXAxisLimits(double dMin, double dMax)
{
    StoreLimits(AXIS_X, dMax, dMin, FALSE);
    return GRAPH_OK;
}

int CGraphPrv::GetXAxisLimits(double* pdMin, double* pdMax)
{
    if (pdMin == NULL || pdMax == NULL)
        return GRAPH_BADARG;
    *pdMin = m_dXMin;
    *pdMax = m_dXMax;
    return GRAPH_OK;
}

int CGraphPrv::SetYAxisLimits(double dMin, double dMax, int nAxis)
{
    StoreLimits(AxisOfY(nAxis), dMax, dMin, FALSE);
    return GRAPH_OK;
}

int CGraphPrv::GetYAxisLimits(double* pdMin, double* pdMax, int nAxis)
{
    if ((nAxis != 0 && nAxis != 1) || pdMin == NULL || pdMax == NULL)
        return GRAPH_BADARG;
    *pdMin = m_dYMin[nAxis];
    *pdMax = m_dYMax[nAxis];
    return GRAPH_OK;
}

void CGraphPrv::sg_xrange(double dMax, double dMin)
{
    StoreLimits(AXIS_X, dMax, dMin, TRUE);
}

void CGraphPrv::sg_yrange(double dMax, double dMin, int nAxis)
{
    StoreLimits(AxisOfY(nAxis), dMax, dMin, TRUE);
}

int CGraphPrv::SetLimitFlip(DWORD dwFlags)
{
    const DWORD dwOrderBits = GS_XLIMITORDER | GS_YLIMITORDER | GS_RESERVED40;
    m_dwStyle = (m_dwStyle & ~dwOrderBits) | (dwFlags & dwOrderBits);
    return GRAPH_OK;
}

int CGraphPrv::GetLimitFlip(DWORD* pdwFlags)
{
    if (pdwFlags == NULL)
        return GRAPH_BADARG;
    *pdwFlags = m_dwStyle;
    return GRAPH_OK;
}

int CGraphPrv::SetAutoScaleMode(int nMode)
{
    m_nAutoScaleMode = nMode;
    return GRAPH_OK;
}
