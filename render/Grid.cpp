// The grid: its settings, and the lines across the plot at the tics of the
// X axis and of the left Y axis.
#include "graph/GraphPrv.h"
#include "render/DrawerPen.h"
#include "render/GridLines.h"

namespace {

int ClampMinorCount(int nCount)
{
    return nCount < 0 ? 0 : (nCount > 9 ? 9 : nCount);
}

} // namespace

int CalcGridLines(const int* pnTicPixel, int nTicCount, int iStep, const MINORTICS* pMinor, int nMinorCount,
                  int nSign, int nLow, int nHigh, int* pnPixels)
{
    const int nCount = nTicCount > 10 ? 10 : nTicCount;
    const int nMinor = pMinor != NULL ? ClampMinorCount(nMinorCount) : 0;
    int n = 0;
    // The minor lines of the interval before tic 1 are only tested against
    // the edge they come from, those after a tic against the edge ahead.
    if (nMinor > 0 && nCount >= 1) {
        for (int k = 0; k < nMinor; k++) {
            const int nPixel = pnTicPixel[1] - nSign * pMinor->nSpacing + nSign * pMinor->nOffset[k];
            if (nSign > 0 ? nPixel > nLow : nPixel < nHigh)
                pnPixels[n++] = nPixel;
        }
    }
    for (int i = iStep; i <= nCount - 1; i += iStep) {
        pnPixels[n++] = pnTicPixel[i];
        for (int k = 0; k < nMinor; k++) {
            const int nPixel = pnTicPixel[i] + nSign * pMinor->nOffset[k];
            if (nSign > 0 ? nPixel < nHigh : nPixel > nLow)
                pnPixels[n++] = nPixel;
        }
    }
    return n;
}


int CGraphPrv::ShowGrid(DWORD dwGridType)
{
    // A grid cannot go with floating tics on the left axis and a shown right axis.
    if (m_nYTicType[0] == 1 && m_bRightAxisDisplayed) {
        m_dwGridType = GRID_NONE;
        return GRAPH_NOTAVAILABLE;
    }
    m_dwGridType = dwGridType;
    return GRAPH_OK;
}

int CGraphPrv::SetGridAttributes(DWORD dwGridType, DWORD crColor, int nStyle)
{
    ShowGrid(dwGridType);
    m_crGrid = crColor;
    m_dwGridStyle = nStyle;
    return GRAPH_OK;
}

int CGraphPrv::GetGridAttributes(DWORD* pdwGridType, DWORD* pcrColor, int* pnStyle)
{
    if (pdwGridType != NULL)
        *pdwGridType = m_dwGridType;
    if (pcrColor != NULL)
        *pcrColor = m_crGrid;
    if (pnStyle != NULL)
        *pnStyle = m_dwGridStyle;
    return GRAPH_OK;
}

void CGraphPrv::PlotGrid(CDC* pDC)
{
    // Pen, background colour and, on a scaled context, the mapping all come
    // back when the guard goes.
    // The pen is made before the guard, so that it is deselected before it
    // is deleted.
    const BOOL bColor = IsColorDevice(pDC);
    CDrawerPen pen(m_dwGridStyle, m_nGridPenWidth, m_crGrid, bColor);
    CSaveDCGuard saveDC(pDC);
    pDC->SelectObject(&pen);

    // Minor lines and the major step follow the X axis' tic type, for the
    // horizontal lines too.
    const BOOL bMinor = (m_dwGridType & GRID_MINOR) && m_nXTicType != 0 && m_nMinorTics != 0;
    const int iStep = ((m_dwGridType & GRID_MAJOR) && m_nXTicType == 0) ? 2 : 1;

    // End points of all lines, two per line, vertical ones first.
    POINT aPoints[2 * 2 * GRID_MAX_LINES];
    int nPoints = 0;
    int anPixels[GRID_MAX_LINES];
    if (m_dwGridType & GRID_VERTICAL) {
        const int n = CalcGridLines(m_nXTicPixel, m_nXTicCount, iStep, bMinor ? &m_MinorX : NULL,
                                    m_nMinorTicCount[0], 1, m_rectPlot.left, m_rectPlot.right, anPixels);
        for (int i = 0; i < n; i++) {
            aPoints[nPoints++] = CPoint(anPixels[i], m_rectPlot.top + 1);
            aPoints[nPoints++] = CPoint(anPixels[i], m_rectPlot.bottom);
        }
    }
    if (m_dwGridType & GRID_HORIZONTAL) {
        const int n = CalcGridLines(m_nYTicPixel[0], m_nYTicCount[0], iStep, bMinor ? &m_MinorYLeft : NULL,
                                    m_nMinorTicCount[1], -1, m_rectPlot.top, m_rectPlot.bottom, anPixels);
        for (int i = 0; i < n; i++) {
            aPoints[nPoints++] = CPoint(m_rectPlot.left + 1, anPixels[i]);
            aPoints[nPoints++] = CPoint(m_rectPlot.right, anPixels[i]);
        }
    }

    // On a scaled context the lines are placed in device pixels, so that
    // the pen keeps its width in pixels.
    if (pDC->GetMapMode() == MM_ANISOTROPIC) {
        pDC->LPtoDP(aPoints, nPoints);
        pDC->SetMapMode(MM_TEXT);
        pDC->SetWindowOrg(0, 0);
        pDC->SetViewportOrg(0, 0);
    }

    // The gaps of a dashed grid take the plot's background.
    pDC->SetBkColor(bColor ? m_crBackground : 0xFFFFFF);
    for (int n = 0; n < nPoints; n += 2) {
        pDC->MoveTo(aPoints[n]);
        pDC->LineTo(aPoints[n + 1]);
    }
}
