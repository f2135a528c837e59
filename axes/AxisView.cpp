// The view of one axis through the graph's fields.
#include "axes/AxisView.h"
#include <math.h>

CAxisView CGraphPrv::Axis(int iAxis)
{
    ASSERT(iAxis == AXIS_X || iAxis == AXIS_YLEFT || iAxis == AXIS_YRIGHT);
    const double dWidth = fabs((double)(m_rectPlot.right - m_rectPlot.left));
    const double dHeight = fabs((double)(m_rectPlot.bottom - m_rectPlot.top));
    if (iAxis == AXIS_X) {
        return CAxisView{ m_dXMin, m_dXMax, m_dXScale, m_dXOffset, m_nXTicPixel, m_dXTicValue, m_nXTicCount,
                          m_nXTicType, m_fXResolution, m_MinorX, m_nMinorTicCount[0], m_nLogPixelsX, 1,
                          m_rectPlot.left, m_rectPlot.left, dWidth };
    }
    const int n = iAxis == AXIS_YRIGHT ? 1 : 0;
    return CAxisView{ m_dYMin[n], m_dYMax[n], m_dYScale[n], m_dYOffset[n], m_nYTicPixel[n], m_dYTicValue[n],
                      m_nYTicCount[n], m_nYTicType[n], m_fYResolution[n], n == 0 ? m_MinorYLeft : m_MinorYRight,
                      m_nMinorTicCount[1 + n], m_nLogPixelsY, -1, m_rectPlot.bottom, m_rectPlot.top, dHeight };
}
