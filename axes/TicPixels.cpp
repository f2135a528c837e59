// Tic mark pixels: the tic value tables placed in the plot rectangle, the
// distance of two major tics, and the minor tics that fit between them at
// the device's resolution.
#include "graph/GraphPrv.h"
#include "axes/AxesMath.h"
#include "axes/AxisView.h"
#include <math.h>

namespace {

// The distance of a whole major interval of a floating table, whose first
// and last intervals the limits cut short. nSign is 1 for pixels that rise
// with the index (X) and -1 for pixels that fall (Y).
int MajorSpacing(const int* pnPixel, int nCount, int nSign)
{
    const int d10 = nSign * (pnPixel[1] - pnPixel[0]);
    if (nCount > 3)
        return nSign * (pnPixel[2] - pnPixel[1]);
    if (nCount == 3) {
        const int d21 = nSign * (pnPixel[2] - pnPixel[1]);
        return d21 > d10 ? d21 : d10;
    }
    return d10;
}

// The offset of each of c minor tics from the major tic before it, which
// cut the spacing into c + 1 parts.
void FillMinorOffsets(MINORTICS& minor, int c)
{
    for (int j = 1; j <= c && j <= 9; j++)
        minor.nOffset[j - 1] = j * minor.nSpacing / (c + 1);
}

} // namespace

int CGraphPrv::NumberOfMinorTicMarks(int nSpacing, int nDotsPerInch)
{
    const int nHalf = AxesRoundPixel(nDotsPerInch * 0.5);
    if (nSpacing < nHalf)
        return 1;                       // under half an inch: halves
    if (nSpacing <= nHalf + nDotsPerInch)
        return 4;                       // up to one and a half inches: fifths
    return 9;                           // tenths
}

void CGraphPrv::CalcAxisTicPixels(int iAxis, BOOL bEmptyPlot)
{
    CAxisView axis = Axis(iAxis);
    int* pnPixel = axis.pnTicPixel;
    const int n = AxesLastTic(axis.nTicCount);
    if (axis.nTicType == 0) {
        // Equal parts from the left edge, or from the top edge counting down.
        for (int i = 0; i <= n; i++)
            pnPixel[i] = axis.nLowEdge + AxesRoundPixel((double)(axis.nSign > 0 ? i : n - i) / n * axis.dLength);
        return;
    }
    if (bEmptyPlot) {
        for (int i = 0; i <= n; i++)
            pnPixel[i] = axis.nOrigin;
    } else {
        double dSpan = axis.dMax - axis.dMin;
        if (dSpan == 0.0)
            dSpan = AXES_TOLERANCE;
        const double dPerPixel = dSpan / axis.dLength;
        for (int i = 0; i <= n; i++)
            pnPixel[i] = axis.nOrigin + axis.nSign * AxesRoundPixel((axis.pdTicValue[i] - axis.dMin) / dPerPixel);
    }
    axis.minor.nSpacing = MajorSpacing(pnPixel, n, axis.nSign);
    if (m_nMinorTics != 0) {
        axis.nMinorCount = NumberOfMinorTicMarks(axis.minor.nSpacing, axis.nDotsPerInch);
        FillMinorOffsets(axis.minor, axis.nMinorCount);
    }
}

void CGraphPrv::CalcTicMarkPixels()
{
    // The X axis, the left Y axis, and the right one when it is shown.
    const BOOL bEmpty = m_rectPlot.IsRectEmpty();
    CalcAxisTicPixels(AXIS_X, bEmpty);
    CalcAxisTicPixels(AXIS_YLEFT, bEmpty);
    if (m_bRightAxisDisplayed)
        CalcAxisTicPixels(AXIS_YRIGHT, bEmpty);

    // Without a right axis of its own, the tics on the right edge stand
    // opposite those of the left axis. The right value table stays as it is.
    if (!m_bRightAxisDisplayed) {
        const int n = AxesLastTic(m_nYTicCount[0]);
        for (int i = 0; i <= n; i++)
            m_nYTicPixel[1][i] = m_nYTicPixel[0][i];
        m_nYTicCount[1] = m_nYTicCount[0];
        m_MinorYRight.nSpacing = m_MinorYLeft.nSpacing;
        if (m_nMinorTics != 0) {
            m_nMinorTicCount[2] = m_nMinorTicCount[1];
            for (int j = 0; j < 9; j++)
                m_MinorYRight.nOffset[j] = m_MinorYLeft.nOffset[j];
        }
    }
}
