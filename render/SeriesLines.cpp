// The line of one series: its pixels, its pen, the stretches of its
// highlight regions in their own pens; and PlotLine, a one-off line drawn
// straight onto the window.
#include "graph/GraphPrv.h"
#include "render/DrawerPen.h"
#include "series/PlotData.h"
#include "render/HighlightRegionData.h"
#include <memory>
#include <string.h>

namespace {

// Puts the plot rectangle back when a scaled paint has put it in device pixels.
class CPlotRectRestore
{
public:
    explicit CPlotRectRestore(CRect& rect) : m_rect(rect), m_saved(rect) {}
    ~CPlotRectRestore() { m_rect = m_saved; }
private:
    CPlotRectRestore(const CPlotRectRestore&) = delete;
    void operator=(const CPlotRectRestore&) = delete;
    CRect& m_rect;
    CRect m_saved;
};

// A region edge as an index inside the pixel array of nCount entries.
inline long ClampIndex(long nIndex, long nCount)
{
    return nIndex < 0 ? 0 : (nIndex >= nCount ? nCount - 1 : nIndex);
}

} // namespace

int CGraphPrv::PlotPixels(CDC* pDC, CPlotData* pPlotData)
{
    ASSERT(pDC != NULL && pPlotData != NULL);
    // The count read below must be the one the pixels were made from.
    CSingleLock lock(&m_csPlotData, TRUE);
    const bool bScaled = pDC->GetMapMode() == MM_ANISOTROPIC;
    CPlotRectRestore restorePlot(m_rectPlot);
    std::unique_ptr<POINT[]> pCopy;   // the scaled paint draws from a copy of the pixels
    POINT* pPoints;
    long nCount;

    if (bScaled) {
        // The series is computed in device pixels, at the device's full
        // resolution, and drawn without the mapping.
        pDC->LPtoDP(&m_rectPlot);
        OptimizePoints(pPlotData);
        if (pPlotData->m_pPointArray == NULL)
            return 1;
        nCount = pPlotData->m_lPointCount;
        try {
            pCopy.reset(new POINT[nCount > 0 ? (size_t)nCount : 1]);
        } catch (CMemoryException* e) {
            e->Delete();
            return 1;
        }
        memcpy(pCopy.get(), pPlotData->m_pPointArray, (size_t)nCount * sizeof(POINT));
        pPoints = pCopy.get();
    } else {
        OptimizePoints(pPlotData);
        if (pPlotData->m_pPointArray == NULL)
            return 1;   // no array after a failed allocation: no line
        pPoints = pPlotData->m_pPointArray;
        nCount = pPlotData->m_lPointCount;
    }

    const BOOL bColor = IsColorDevice(pDC);
    int nResult = 0;
    {
        // A pen the system refuses is not selected: the line then takes the
        // context's own pen.
        CDrawerPen penSeries(pPlotData->m_nLineStyle, pPlotData->m_nLineWidth, pPlotData->m_crLine, bColor);
        CRgn rgnClip;
        CSaveDCGuard saveDC(pDC);
        if (bScaled) {
            pDC->SetMapMode(MM_TEXT);
            pDC->SetWindowOrg(0, 0);
            pDC->SetViewportOrg(0, 0);
            rgnClip.CreateRectRgnIndirect(&m_rectPlot);
            pDC->SelectClipRgn(&rgnClip);
        }
        // Transparent: the gaps of a dashed line show what lies under them.
        pDC->SetBkMode(TRANSPARENT);
        pDC->SelectObject(&penSeries);

        CTypedPtrList<CPtrList, CHighlightRegionData*>& listRegions = pPlotData->m_listHighlights;
        if (nCount < 1) {
            // Nothing computed yet (the series never had data): no line.
        } else if (listRegions.IsEmpty()) {
            if (pPlotData->m_lPoints >= 2)
                nResult = Polyline_Win98_Workaround(pDC, pPoints, (int)nCount);
        } else {
            // Stretches share their end points, so the line has no gap at
            // the edges of a region.
            long iDone = 0;
            POSITION pos = listRegions.GetHeadPosition();
            while (pos != NULL) {
                CHighlightRegionData* pRegion = listRegions.GetNext(pos);
                const long iFirst = ClampIndex(pRegion->m_lPixelStart, nCount);
                const long iLast = ClampIndex(pRegion->m_lPixelEnd, nCount);
                if (iFirst != iDone)
                    nResult = Polyline_Win98_Workaround(pDC, pPoints + iDone, (int)(iFirst - iDone + 1));
                if (nResult == 0 && iLast > iFirst) {
                    CDrawerPen penRegion(pRegion->m_nRegionStyle, pPlotData->m_nLineWidth, pRegion->m_crRegion,
                                         bColor);
                    CSelectGuard selectRegion(pDC, &penRegion);
                    nResult = Polyline_Win98_Workaround(pDC, pPoints + iFirst, (int)(iLast - iFirst + 1));
                }
                iDone = iLast;
            }
            nResult = Polyline_Win98_Workaround(pDC, pPoints + iDone, (int)(nCount - iDone));
        }
    }
    return nResult;
}

int CGraphPrv::PlotLine(double x1, double y1, double x2, double y2, DWORD crColor, int nStyle, int nYAxis)
{
    if (m_hWnd == NULL)
        return GRAPH_OK;   // a graph without a window has no screen to draw on
    try {
        CClientDC dc(this);
        CDrawerPen pen(nStyle, m_nGridPenWidth, crColor);
        CSelectGuard selectPen(&dc, &pen);
        dc.IntersectClipRect(m_rectPlot.left, m_rectPlot.top, m_rectPlot.right + 1, m_rectPlot.bottom + 1);
        int y = DataToPixelY(y1, nYAxis);
        int x = DataToPixelX(x1);
        dc.MoveTo(x, y);
        y = DataToPixelY(y2, nYAxis);
        x = DataToPixelX(x2);
        dc.LineTo(x, y);
    } catch (CException* e) {
        e->Delete();   // no context for the window: nothing drawn
    }
    return GRAPH_OK;
}
