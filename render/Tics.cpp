// Tic marks on the four edges of the plot, pointing inward. Major and minor
// lengths follow the text font's height; positions come from the tic tables.
#include "graph/GraphPrv.h"
#include "render/DrawerPen.h"
#include "render/TextFont.h"

namespace {

// One edge: where its marks start and which way they point.
struct TicEdge
{
    BOOL bVertical;   // marks are vertical lines (the X axis, at bottom and top)
    int nBase;        // the edge: a y for vertical marks, an x for horizontal ones
    int nDir;         // +1 or -1: the direction into the plot
};

void DrawMark(CDC* pDC, const TicEdge& edge, int nPos, int nLength)
{
    if (edge.bVertical) {
        pDC->MoveTo(nPos, edge.nBase);
        pDC->LineTo(nPos, edge.nBase + edge.nDir * nLength);
    } else {
        pDC->MoveTo(edge.nBase, nPos);
        pDC->LineTo(edge.nBase + edge.nDir * nLength, nPos);
    }
}

// The tics of one axis on one edge.
//   pPixels, nCount    the tic pixels and the index of the last tic
//   nTicType           0 fixed (every second tic major), else floating (all major)
//   bMinor             minor tics between the majors
//   nMinorCount, minor the minor tics of one interval
//   bRising            pixels rise with the index (X) or fall (Y)
//   nLow, nHigh        the plot's extent along the edge: a minor mark stays strictly
//                      short of the far edge after a tic, of the near edge before tic 1
void DrawAxisTics(CDC* pDC, const TicEdge& edge, const int* pPixels, int nCount, int nTicType,
                  BOOL bMinor, int nMinorCount, const MINORTICS& minor, BOOL bRising,
                  int nLow, int nHigh, int nMajorLength, int nMinorLength)
{
    if (nCount > 10)
        nCount = 10;
    const int nDivisor = nTicType == 0 ? 2 : 1;
    for (int i = 1; i < nCount; i++)
        DrawMark(pDC, edge, pPixels[i], (i % nDivisor) == 0 ? nMajorLength : nMinorLength);

    if (!bMinor || nCount < 1)
        return;
    if (nMinorCount < 0)
        nMinorCount = 0;
    if (nMinorCount > 9)
        nMinorCount = 9;
    // Minor tics run from each interior tic away from index 0: rightward on
    // X, upward on Y; and in the interval before tic 1.
    const int nSign = bRising ? 1 : -1;
    for (int i = 1; i < nCount; i++) {
        for (int k = 0; k < nMinorCount; k++) {
            const int nPos = pPixels[i] + nSign * minor.nOffset[k];
            if (bRising ? nPos < nHigh : nPos > nLow)
                DrawMark(pDC, edge, nPos, nMinorLength);
        }
    }
    for (int k = 0; k < nMinorCount; k++) {
        const int nPos = pPixels[1] - nSign * minor.nSpacing + nSign * minor.nOffset[k];
        if (bRising ? nPos > nLow : nPos < nHigh)
            DrawMark(pDC, edge, nPos, nMinorLength);
    }
}

} // namespace

void CGraphPrv::PlotTics(CDC* pDC)
{
    CDrawerPen pen(PS_SOLID, m_nGridPenWidth, m_crGrid, IsColorDevice(pDC));
    CSelectGuard selectPen(pDC, &pen);

    // The length of a tic follows the height of the text font.
    TEXTMETRIC tm;
    {
        CGraphTextFont font(pDC, this);
        pDC->GetOutputTextMetrics(&tm);
    }
    const int nMinorLength = tm.tmHeight / 4;
    const int nMajorLength = tm.tmHeight / 2;

    const BOOL bMinorX = m_nXTicType != 0 && m_nMinorTics != 0;
    const BOOL bMinorYLeft = m_nYTicType[0] != 0 && m_nMinorTics != 0;
    const BOOL bMinorYRight = m_nYTicType[1] != 0 && m_nMinorTics != 0;

    const TicEdge bottom = { TRUE, m_rectPlot.bottom, -1 };
    const TicEdge left = { FALSE, m_rectPlot.left, 1 };
    const TicEdge top = { TRUE, m_rectPlot.top, 1 };
    const TicEdge right = { FALSE, m_rectPlot.right, -1 };

    DrawAxisTics(pDC, bottom, m_nXTicPixel, m_nXTicCount, m_nXTicType, bMinorX, m_nMinorTicCount[0],
                 m_MinorX, TRUE, m_rectPlot.left, m_rectPlot.right, nMajorLength, nMinorLength);
    DrawAxisTics(pDC, left, m_nYTicPixel[0], m_nYTicCount[0], m_nYTicType[0], bMinorYLeft, m_nMinorTicCount[1],
                 m_MinorYLeft, FALSE, m_rectPlot.top, m_rectPlot.bottom, nMajorLength, nMinorLength);
    DrawAxisTics(pDC, top, m_nXTicPixel, m_nXTicCount, m_nXTicType, bMinorX, m_nMinorTicCount[0],
                 m_MinorX, TRUE, m_rectPlot.left, m_rectPlot.right, nMajorLength, nMinorLength);
    DrawAxisTics(pDC, right, m_nYTicPixel[1], m_nYTicCount[1], m_nYTicType[1], bMinorYRight, m_nMinorTicCount[2],
                 m_MinorYRight, FALSE, m_rectPlot.top, m_rectPlot.bottom, nMajorLength, nMinorLength);
}
