// The grid: its settings, and the lines across the plot at the tics of the
// X axis and of the left Y axis.
#include "graph/GraphPrv.h"
#include "render/DrawerPen.h"

namespace {

// End points of the grid lines of one paint, two per line. At most ten
// interior tics with nine minor lines after each, and nine before the first,
// on each of the two axes.
class CGridLines
{
public:
    enum { nMaxLines = 2 * (10 * 10 + 9) };
    CGridLines() : m_nLines(0) {}

    void Add(int x1, int y1, int x2, int y2)
    {
        if (m_nLines >= nMaxLines)
            return;
        m_points[2 * m_nLines].x = x1;
        m_points[2 * m_nLines].y = y1;
        m_points[2 * m_nLines + 1].x = x2;
        m_points[2 * m_nLines + 1].y = y2;
        m_nLines++;
    }
    int GetCount() const { return m_nLines; }
    POINT* GetPoints() { return m_points; }

private:
    POINT m_points[2 * nMaxLines];
    int m_nLines;
};

int ClampMinorCount(int nCount)
{
    return nCount < 0 ? 0 : (nCount > 9 ? 9 : nCount);
}

} // namespace

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

    CGridLines lines;
    if (m_dwGridType & GRID_VERTICAL) {
        const int nTop = m_rectPlot.top + 1;
        const int nBottom = m_rectPlot.bottom;
        const int nCount = m_nXTicCount > 10 ? 10 : m_nXTicCount;
        const int nMinor = ClampMinorCount(m_nMinorTicCount[0]);
        if (bMinor && nCount >= 1) {
            for (int k = 0; k < nMinor; k++) {
                int x = m_nXTicPixel[1] - m_MinorX.nSpacing + m_MinorX.nOffset[k];
                if (x > m_rectPlot.left)
                    lines.Add(x, nTop, x, nBottom);
            }
        }
        for (int i = iStep; i <= nCount - 1; i += iStep) {
            int x = m_nXTicPixel[i];
            lines.Add(x, nTop, x, nBottom);
            if (!bMinor)
                continue;
            for (int k = 0; k < nMinor; k++) {
                int xMinor = x + m_MinorX.nOffset[k];
                if (xMinor < m_rectPlot.right)
                    lines.Add(xMinor, nTop, xMinor, nBottom);
            }
        }
    }
    if (m_dwGridType & GRID_HORIZONTAL) {
        const int nLeft = m_rectPlot.left + 1;
        const int nRight = m_rectPlot.right;
        const int nCount = m_nYTicCount[0] > 10 ? 10 : m_nYTicCount[0];
        const int nMinor = ClampMinorCount(m_nMinorTicCount[1]);
        if (bMinor && nCount >= 1) {
            for (int k = 0; k < nMinor; k++) {
                int y = m_nYTicPixel[0][1] + m_MinorYLeft.nSpacing - m_MinorYLeft.nOffset[k];
                if (y < m_rectPlot.bottom)
                    lines.Add(nLeft, y, nRight, y);
            }
        }
        for (int i = iStep; i <= nCount - 1; i += iStep) {
            int y = m_nYTicPixel[0][i];
            lines.Add(nLeft, y, nRight, y);
            if (!bMinor)
                continue;
            for (int k = 0; k < nMinor; k++) {
                int yMinor = y - m_MinorYLeft.nOffset[k];
                if (yMinor > m_rectPlot.top)
                    lines.Add(nLeft, yMinor, nRight, yMinor);
            }
        }
    }

    // On a scaled context the lines are placed in device pixels, so that
    // the pen keeps its width in pixels.
    POINT* pPoints = lines.GetPoints();
    const int nPoints = 2 * lines.GetCount();
    if (pDC->GetMapMode() == MM_ANISOTROPIC) {
        for (int n = 0; n < nPoints; n++)
            pDC->LPtoDP(&pPoints[n], 1);
        pDC->SetMapMode(MM_TEXT);
        pDC->SetWindowOrg(0, 0);
        pDC->SetViewportOrg(0, 0);
    }

    // The gaps of a dashed grid take the plot's background.
    pDC->SetBkColor(bColor ? m_crBackground : 0xFFFFFF);
    for (int n = 0; n < nPoints; n += 2) {
        pDC->MoveTo(pPoints[n]);
        pDC->LineTo(pPoints[n + 1]);
    }
}
