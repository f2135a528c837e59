// Tic values of the three axes: the fixed tables (ten equal parts) and the
// floating tables (the limits at the ends, even multiples of a chosen step
// between them), and the switch between the two modes.
#include "graph/GraphPrv.h"
#include "axes/AxesMath.h"
#include "axes/AxisView.h"
#include <math.h>
#include <stdio.h>
#include <stdlib.h>

namespace {


// A fixed table: the limits at index 0 and n, the parts between them.
void FillFixedTable(double dFirst, double dSecond, int nCount, double* pdTable)
{
    const int n = AxesLastTic(nCount);
    pdTable[0] = dFirst;
    pdTable[n] = dSecond;
    for (int i = 1; i < n; i++)
        pdTable[i] = (double)i / n * (dSecond - dFirst) + dFirst;
}

} // namespace

int CalcFloatingTics(double dFirst, double dSecond, double* pdTable)
{
    // Work from the smaller limit up; note a reversed axis.
    double dLo = dFirst;
    double dHi = dSecond;
    BOOL bReversed = FALSE;
    if (dLo > dHi) {
        dLo = dSecond;
        dHi = dFirst;
        bReversed = TRUE;
    }

    // A span too small to divide (or none at all, as not-a-number and
    // infinite limits give) gets two tics, at the limits.
    double dSpan = dHi - dLo;
    if (fabs(dSpan) < AXES_TOLERANCE || !(dSpan - dSpan == 0.0)) {
        pdTable[0] = dFirst;
        pdTable[1] = dSecond;
        return 1;
    }

    // A narrow span is scaled up to at least 1, and the table back at the end.
    double dMult = 1.0;
    BOOL bScaled = FALSE;
    if (dSpan < 0.2) {
        double dWork = dSpan;
        while (dWork < 1.0) {
            dWork *= 10.0;
            dMult *= 10.0;
        }
        dSpan *= dMult;
        dHi *= dMult;
        dLo *= dMult;
        bScaled = TRUE;
    }

    // The first power of ten that brings the span to 1 or below.
    double dPower = 1.0;
    double dMant = dSpan;
    while (!(dMant <= 1.0)) {
        dPower *= 10.0;
        dMant = dSpan / dPower;
    }

    // Three decimals, through the printed text.
    char szMantissa[64];
    _snprintf(szMantissa, sizeof(szMantissa) - 1, "%5.3f", dMant);
    szMantissa[sizeof(szMantissa) - 1] = '\0';
    const double dNum = atof(szMantissa);

    // The step: two and a half to five steps across the span.
    double dFraction;
    if (dNum <= 0.1)
        dFraction = 0.02;
    else if (dNum <= 0.25)
        dFraction = 0.05;
    else if (dNum <= 0.5)
        dFraction = 0.1;
    else
        dFraction = 0.2;
    const double dStep = dPower * dFraction;

    // The lower limit, then the first multiple of the step above it; a
    // value a hair below a multiple counts as that multiple.
    pdTable[0] = dLo;
    pdTable[1] = floor(dLo / dStep + 1.00000051) * dStep;

    // Multiples up to the first at or above the upper limit, which
    // then takes the limit's place. The table stops at its last slot in any
    // case; the step never needs more than eight of them.
    int nLast = 1;
    if (dHi > pdTable[1]) {
        for (int i = 1; nLast < AXES_TIC_SLOTS - 1; i++) {
            pdTable[i + 1] = i * dStep + pdTable[1] + 5.1e-7;
            nLast = i + 1;
            if (pdTable[nLast] >= dHi)
                break;
        }
    }
    pdTable[nLast] = dHi;

    // Index 0 goes with the first limit again.
    if (bReversed) {
        for (int i = 0, j = nLast; i < j; i++, j--) {
            double d = pdTable[i];
            pdTable[i] = pdTable[j];
            pdTable[j] = d;
        }
    }

    // Back to the scale of the limits.
    if (bScaled) {
        for (int i = 0; i <= nLast; i++)
            pdTable[i] /= dMult;
    }

    return nLast;
}

int CGraphPrv::CalcFloatingTics(double dFirst, double dSecond, double* pdTable)
{
    return ::CalcFloatingTics(dFirst, dSecond, pdTable);
}

void CGraphPrv::CalcTicValues(int iAxis)
{
    CAxisView axis = Axis(iAxis);
    if (axis.nTicType != 0) {
        axis.nTicCount = CalcFloatingTics(axis.dMin, axis.dMax, axis.pdTicValue);
        CalcTicMarkPixels();
    } else {
        // The pixels of a fixed table depend on the count and the plot
        // rectangle alone, and stay as they are.
        FillFixedTable(axis.dMin, axis.dMax, axis.nTicCount, axis.pdTicValue);
    }
}

void CGraphPrv::CalcXTicValues()
{
    CalcTicValues(AXIS_X);
}

void CGraphPrv::CalcYTicValues(int nAxis)
{
    CalcTicValues(AxisOfY(nAxis));
}

void CGraphPrv::CalcAllTicValues()
{
    CalcXTicValues();
    CalcYTicValues(0);
    CalcYTicValues(1);
}

void CGraphPrv::ResetTicTables()
{
    // Eleven tics on every axis until the tic computation says otherwise.
    m_nXTicCount = 10;
    m_nYTicCount[0] = 10;
    m_nYTicCount[1] = 10;
    CalcAllTicValues();
}

int CGraphPrv::SetTicMarkType(int nTicType, int nMinorTics, CDC* pDC)
{
    m_nXTicType = nTicType;
    m_nYTicType[0] = nTicType;
    m_nYTicType[1] = nTicType;
    if (nTicType == 0)
        ResetTicTables();
    else
        CalcAllTicValues();

    // Minor tics are spaced by the resolution of the device they are drawn
    // on: the caller's (a printer's) or the window's.
    m_nMinorTics = nMinorTics;
    CDC* pWindowDC = NULL;
    if (nMinorTics == 1) {
        CDC* pResolutionDC = pDC;
        if (pResolutionDC == NULL) {
            try {
                pWindowDC = GetDC();
            } catch (CException* e) {
                e->Delete();
            }
            pResolutionDC = pWindowDC;
        }
        if (pResolutionDC != NULL) {
            m_nLogPixelsX = pResolutionDC->GetDeviceCaps(LOGPIXELSX);
            m_nLogPixelsY = pResolutionDC->GetDeviceCaps(LOGPIXELSY);
        } else {
            m_nLogPixelsX = 0;
            m_nLogPixelsY = 0;
        }
    } else {
        m_nLogPixelsX = 0;
        m_nLogPixelsY = 0;
    }

    CalcTicMarkPixels();
    if (pWindowDC != NULL)
        ReleaseDC(pWindowDC);
    return GRAPH_OK;
}

int CGraphPrv::GetTicMarkType(int* pnTicType, int* pnMinorTics)
{
    if (pnTicType == NULL || pnMinorTics == NULL)
        return GRAPH_BADARG;
    *pnTicType = m_nXTicType;
    *pnMinorTics = m_nMinorTics;
    return GRAPH_OK;
}
