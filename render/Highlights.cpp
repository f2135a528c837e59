// Highlights, two unrelated things of one name. A highlight region is a
// stretch of a series drawn in a pen of its own as part of the line
// (PlotPixels walks the regions in order of their first point). A point
// highlight is an annotation mark inverted on the window: HighlightPoint
// inverts one at once, and the ones a series remembers are inverted again by
// each paint, after the series they belong to.
#include "graph/GraphPrv.h"
#include "render/HighlightRegionData.h"
#include "series/PlotData.h"
#include <algorithm>

// ---------------------------------------------------------------------------
// [SECTION] Highlight regions
// ---------------------------------------------------------------------------

namespace {

POSITION FindRegion(CPlotData* pData, short nId)
{
    POSITION pos = pData->m_listHighlights.GetHeadPosition();
    while (pos != NULL) {
        if (pData->m_listHighlights.GetAt(pos)->m_nRegionId == nId)
            return pos;
        pData->m_listHighlights.GetNext(pos);
    }
    return NULL;
}

} // namespace

int CGraphPrv::AddHighlightRegion(const CString& strName, short nId, long lStart, long lEnd, DWORD crColor,
                                  int nStyle)
{
    CPlotData* pData = FindPlotData(strName);
    if (pData == NULL)
        return GRAPH_NOSERIES;
    if (lStart > lEnd)
        std::swap(lStart, lEnd);
    // Limited to the series' present last point. A start below 0 is kept as
    // given: the reduction puts a region edge before the first point onto
    // the first point, and one left beyond the last by a later, shorter
    // update onto the last.
    const long lLast = pData->m_lPoints - 1;
    lStart = std::min(lStart, lLast);
    lEnd = std::min(lEnd, lLast);

    CTypedPtrList<CPtrList, CHighlightRegionData*>& listRegions = pData->m_listHighlights;
    const POSITION pos = FindRegion(pData, nId);
    if (pos != NULL) {
        // Changed in place: the region keeps its place in the list even when
        // its new start no longer fits the order.
        CHighlightRegionData* pRegion = listRegions.GetAt(pos);
        pRegion->m_lStart = lStart;
        pRegion->m_lEnd = lEnd;
        pRegion->m_crRegion = crColor;
        pRegion->m_nRegionStyle = nStyle;
        return GRAPH_OK;
    }

    CHighlightRegionData* pRegion = NULL;
    try {
        pRegion = new CHighlightRegionData;
        pRegion->m_nRegionId = nId;
        pRegion->m_lStart = lStart;
        pRegion->m_lEnd = lEnd;
        pRegion->m_crRegion = crColor;
        pRegion->m_nRegionStyle = nStyle;
        // Before the first region that starts later; among equal starts the
        // newer comes after the older.
        POSITION posBefore = listRegions.GetHeadPosition();
        while (posBefore != NULL && listRegions.GetAt(posBefore)->m_lStart <= lStart)
            listRegions.GetNext(posBefore);
        if (posBefore == NULL)
            listRegions.AddTail(pRegion);
        else
            listRegions.InsertBefore(posBefore, pRegion);
    } catch (CMemoryException* e) {
        e->Delete();
        delete pRegion;
        return GRAPH_NOMEMORY;
    }
    return GRAPH_OK;
}

int CGraphPrv::RemoveHighlightRegion(const CString& strName, short nId)
{
    CPlotData* pData = FindPlotData(strName);
    if (pData == NULL)
        return GRAPH_NOSERIES;
    const POSITION pos = FindRegion(pData, nId);
    if (pos == NULL)
        return GRAPH_NOREGION;
    CHighlightRegionData* pRegion = pData->m_listHighlights.GetAt(pos);
    pData->m_listHighlights.RemoveAt(pos);
    delete pRegion;
    return GRAPH_OK;
}

int CGraphPrv::RemoveAllHighlightRegions(const CString& strName)
{
    CPlotData* pData = FindPlotData(strName);
    if (pData == NULL)
        return GRAPH_NOSERIES;
    while (!pData->m_listHighlights.IsEmpty())
        delete pData->m_listHighlights.RemoveHead();
    return GRAPH_OK;
}

// ---------------------------------------------------------------------------
// [SECTION] Point highlights
// ---------------------------------------------------------------------------

int CGraphPrv::HighlightPoint(double dX, double dY, int nYAxis, int nMark)
{
    if (m_hWnd == NULL)
        return GRAPH_OK;   // a graph without a window has no screen to draw on
    try {
        // An inversion: the same call again at the same place restores the
        // picture.
        CClientDC dc(this);
        InvertMark(&dc, dX, dY, nYAxis, nMark);
    } catch (CException* e) {
        e->Delete();   // no context for the window: nothing drawn
    }
    return GRAPH_OK;
}

void CGraphPrv::InvertMark(CDC* pDC, double dX, double dY, int nYAxis, int nMark)
{
    CSaveDCGuard saveDC(pDC);
    pDC->SetROP2(R2_NOT);
    CSelectGuard selectPen(pDC, ::GetStockObject(WHITE_PEN));
    CSelectGuard selectBrush(pDC, ::GetStockObject(WHITE_BRUSH));
    // A window context's own font sets the mark's size, whatever the
    // context holds now.
    CSelectGuard selectFont(pDC, ::GetStockObject(SYSTEM_FONT));
    pDC->IntersectClipRect(m_rectPlot.left, m_rectPlot.top, m_rectPlot.right + 1, m_rectPlot.bottom + 1);
    Annotate(pDC, dX, dY, nYAxis, nMark);
}

int CGraphPrv::AddPlotDataHighlight(const CString& strName, const CString& strHighlight, double dX, double dY,
                                    int nMark)
{
    CPlotData* pData = FindPlotData(strName);
    if (pData == NULL)
        return GRAPH_NOSERIES;
    pData->AddPointHighlight(strHighlight, dX, dY, nMark);
    return GRAPH_OK;
}

int CGraphPrv::RemovePlotDataHighlight(const CString& strName, const CString& strHighlight)
{
    CPlotData* pData = FindPlotData(strName);
    if (pData == NULL)
        return GRAPH_NOSERIES;
    pData->RemovePointHighlight(strHighlight);   // an unknown highlight name is no failure
    return GRAPH_OK;
}

int CGraphPrv::RemoveAllPlotDataHighlights(const CString& strName)
{
    CPlotData* pData = FindPlotData(strName);
    if (pData == NULL)
        return GRAPH_NOSERIES;
    pData->RemoveAllPointHighlights();
    return GRAPH_OK;
}

int CPlotData::DrawPointHighlights(CDC* pDC, CGraphPrv* pGraph)
{
    // The marks go on the window, inverting what the paint has drawn so far;
    // a printout shows none of them, nor does a picture in memory. A paint
    // of the window inverts them on its own context, which holds only the
    // part being painted: a mark outside it stands already and is left be.
    if (pDC->IsPrinting())
        return GRAPH_OK;
    const BOOL bPaintingWindow = pGraph->m_hWnd != NULL && ::WindowFromDC(pDC->m_hDC) == pGraph->m_hWnd;
    for (int i = 0; i < m_aPointHighlightNames.GetSize(); i++) {
        if (bPaintingWindow)
            pGraph->InvertMark(pDC, m_aPointHighlightX[i], m_aPointHighlightY[i], m_nYAxis, m_aPointHighlightStyles[i]);
        else
            pGraph->HighlightPoint(m_aPointHighlightX[i], m_aPointHighlightY[i], m_nYAxis, m_aPointHighlightStyles[i]);
    }
    return GRAPH_OK;
}
