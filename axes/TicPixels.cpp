// Tic mark pixels: the tic value tables placed in the plot rectangle, the
// distance of two major tics, and the minor tics that fit between them at
// the device's resolution.
#include "graph/GraphPrv.h"
#include "axes/AxesMath.h"
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

void CGraphPrv::CalcTicMarkPixels()
{
    // The tic value code keeps every count inside its table.
    ASSERT(m_nXTicCount >= 0 && m_nXTicCount < AXES_TIC_SLOTS);
    ASSERT(m_nYTicCount[0] >= 0 && m_nYTicCount[0] < AXES_TIC_SLOTS);
    ASSERT(m_nYTicCount[1] >= 0 && m_nYTicCount[1] < AXES_TIC_SLOTS);
    const double W = fabs((double)(m_rectPlot.right - m_rectPlot.left));
    const double H = fabs((double)(m_rectPlot.bottom - m_rectPlot.top));
    const BOOL bEmpty = m_rectPlot.IsRectEmpty();

    // ---- X axis ----
    {
        const int n = AxesLastTic(m_nXTicCount);
        if (m_nXTicType == 0) {
            for (int i = 0; i <= n; i++)
                m_nXTicPixel[i] = m_rectPlot.left + AxesRoundPixel((double)i / n * W);
        } else {
            if (bEmpty) {
                for (int i = 0; i <= n; i++)
                    m_nXTicPixel[i] = m_rectPlot.left;
            } else {
                double dSpan = m_dXMax - m_dXMin;
                if (dSpan == 0.0)
                    dSpan = AXES_TOLERANCE;
                const double dPerPixel = dSpan / W;
                for (int i = 0; i <= n; i++)
                    m_nXTicPixel[i] = m_rectPlot.left + AxesRoundPixel((m_dXTicValue[i] - m_dXMin) / dPerPixel);
            }
            m_MinorX.nSpacing = MajorSpacing(m_nXTicPixel, n, 1);
            if (m_nMinorTics != 0) {
                m_nMinorTicCount[0] = NumberOfMinorTicMarks(m_MinorX.nSpacing, m_nLogPixelsX);
                FillMinorOffsets(m_MinorX, m_nMinorTicCount[0]);
            }
        }
    }

    // ---- Y axes: the left one, and the right one when it is shown ----
    const int nYAxes = m_bRightAxisDisplayed ? 2 : 1;
    for (int nAxis = 0; nAxis < nYAxes; nAxis++) {
        int* pnPixel = m_nYTicPixel[nAxis];
        MINORTICS& minor = nAxis == 0 ? m_MinorYLeft : m_MinorYRight;
        const int n = AxesLastTic(m_nYTicCount[nAxis]);
        if (m_nYTicType[nAxis] == 0) {
            for (int i = 0; i <= n; i++)
                pnPixel[i] = m_rectPlot.top + AxesRoundPixel((double)(n - i) / n * H);
        } else {
            if (bEmpty) {
                for (int i = 0; i <= n; i++)
                    pnPixel[i] = m_rectPlot.bottom;
            } else {
                double dSpan = m_dYMax[nAxis] - m_dYMin[nAxis];
                if (dSpan == 0.0)
                    dSpan = AXES_TOLERANCE;
                const double dPerPixel = dSpan / H;
                for (int i = 0; i <= n; i++)
                    pnPixel[i] = m_rectPlot.bottom -
                                 AxesRoundPixel((m_dYTicValue[nAxis][i] - m_dYMin[nAxis]) / dPerPixel);
            }
            minor.nSpacing = MajorSpacing(pnPixel, n, -1);
            if (m_nMinorTics != 0) {
                m_nMinorTicCount[1 + nAxis] = NumberOfMinorTicMarks(minor.nSpacing, m_nLogPixelsY);
                FillMinorOffsets(minor, m_nMinorTicCount[1 + nAxis]);
            }
        }
    }

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
