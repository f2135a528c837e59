// Placeholder tic tables until the tic code lands: a linear table.
#include "graph/GraphPrv.h"

void CGraphPrv::CalcXTicValues()
{
    for (int i = 0; i <= 10; i++)
        m_dXTicValue[i] = m_dXMin + (m_dXMax - m_dXMin) * i / 10.0;
}

void CGraphPrv::CalcYTicValues(int nAxis)
{
    for (int i = 0; i <= 10; i++)
        m_dYTicValue[nAxis][i] = m_dYMin[nAxis] + (m_dYMax[nAxis] - m_dYMin[nAxis]) * i / 10.0;
}

void CGraphPrv::CalcTicMarkPixels() {}
