// Shaded areas: stretches of a series filled with a solid colour or a hatch,
// either between the curve and a base line or as the closed polygon of the
// curve alone. A series keeps its areas by the host's small identifiers; the
// pipeline draws them after every series, so they lie over all lines.
#include "graph/GraphPrv.h"
#include "render/AreaData.h"
#include "render/DrawerPen.h"
#include "series/PlotData.h"
#include <algorithm>
#include <memory>
#include <string.h>

// ---------------------------------------------------------------------------
// [SECTION] The areas of a series
// ---------------------------------------------------------------------------

namespace {

POSITION FindArea(CPlotData* pData, short nId)
{
    POSITION pos = pData->m_listAreas.GetHeadPosition();
    while (pos != NULL) {
        if (pData->m_listAreas.GetAt(pos)->m_nAreaId == nId)
            return pos;
        pData->m_listAreas.GetNext(pos);
    }
    return NULL;
}

// The brushes of an area: in its colour, and the same pattern in black for
// black-and-white devices. The style lives on in them alone. Throws
// CMemoryException; the pointers then hold what was made so far.
void MakeAreaBrushes(int nBrushStyle, COLORREF crColor, std::unique_ptr<CBrush>& pBrush,
                     std::unique_ptr<CBrush>& pMonoBrush)
{
    pBrush.reset(new CBrush);
    pMonoBrush.reset(new CBrush);
    if (nBrushStyle == AREA_BRUSH_SOLID) {
        pBrush->CreateSolidBrush(crColor);
        pMonoBrush->CreateSolidBrush(0);
    } else {
        pBrush->CreateHatchBrush(nBrushStyle, crColor);
        pMonoBrush->CreateHatchBrush(nBrushStyle, 0);
    }
}

// Stores an area: the one of this identifier in place, with new brushes, or
// (when bMayAdd) a new one at the tail. Without memory the list and the area
// stay as they were.
int StoreArea(CPlotData* pData, short nId, long lStart, long lEnd, int nBaseMode, COLORREF crColor,
              int nBrushStyle, bool bMayAdd)
{
    if (lStart > lEnd)
        std::swap(lStart, lEnd);
    const POSITION pos = FindArea(pData, nId);
    if (pos == NULL && !bMayAdd)
        return GRAPH_NOAREA;

    std::unique_ptr<CBrush> pBrush, pMonoBrush;
    std::unique_ptr<CAreaData> pNew;
    CAreaData* pArea;
    try {
        MakeAreaBrushes(nBrushStyle, crColor, pBrush, pMonoBrush);
        if (pos != NULL) {
            pArea = pData->m_listAreas.GetAt(pos);
        } else {
            pNew.reset(new CAreaData);
            pNew->m_nAreaId = nId;
            pData->m_listAreas.AddTail(pNew.get());
            pArea = pNew.release();
        }
    } catch (CMemoryException* e) {
        e->Delete();
        return GRAPH_NOMEMORY;
    }
    delete pArea->m_pBrush;
    delete pArea->m_pMonoBrush;
    pArea->m_pBrush = pBrush.release();
    pArea->m_pMonoBrush = pMonoBrush.release();
    pArea->m_lStart = lStart;
    pArea->m_lEnd = lEnd;
    pArea->m_nBaseMode = nBaseMode;
    pArea->m_crArea = crColor;
    return GRAPH_OK;
}

} // namespace

int CGraphPrv::AddAreaData(const CString& strName, short nId, long lStart, long lEnd, int nBaseMode, DWORD crColor,
                           int nBrushStyle)
{
    CPlotData* pData = FindPlotData(strName);
    if (pData == NULL)
        return GRAPH_NOSERIES;
    return StoreArea(pData, nId, lStart, lEnd, nBaseMode, crColor, nBrushStyle, true);
}

int CGraphPrv::UpdateAreaData(const CString& strName, short nId, long lStart, long lEnd, int nBaseMode,
                              DWORD crColor, int nBrushStyle)
{
    CPlotData* pData = FindPlotData(strName);
    if (pData == NULL)
        return GRAPH_NOSERIES;
    return StoreArea(pData, nId, lStart, lEnd, nBaseMode, crColor, nBrushStyle, false);
}

int CGraphPrv::RemoveAreaData(const CString& strName, short nId, long, long)
{
    // The stretch the host passes takes no part: the identifier names the area.
    CPlotData* pData = FindPlotData(strName);
    if (pData == NULL)
        return GRAPH_NOSERIES;
    const POSITION pos = FindArea(pData, nId);
    if (pos == NULL)
        return GRAPH_NOAREA;
    CAreaData* pArea = pData->m_listAreas.GetAt(pos);
    pData->m_listAreas.RemoveAt(pos);
    delete pArea;   // with both of its brushes
    return GRAPH_OK;
}

int CGraphPrv::RemoveAllAreaData(const CString& strName)
{
    CPlotData* pData = FindPlotData(strName);
    if (pData == NULL)
        return GRAPH_NOSERIES;
    while (!pData->m_listAreas.IsEmpty())
        delete pData->m_listAreas.RemoveHead();
    return GRAPH_OK;
}

// ---------------------------------------------------------------------------
// [SECTION] Drawing
// ---------------------------------------------------------------------------

void CGraphPrv::PlotAreas(CDC* pDC)
{
    CSaveDCGuard saveClip(pDC);
    const int nClip = pDC->IntersectClipRect(m_rectPlot.left, m_rectPlot.top, m_rectPlot.right + 1,
                                             m_rectPlot.bottom + 1);
    if (nClip == ERROR || nClip == NULLREGION)
        return;
    try {
        ForEachSeries([&](CPlotData* pData) {
            // A series drawn without a line shows no areas either.
            if (pData->m_listAreas.IsEmpty() || pData->m_nLineStyle == LINESTYLE_NONE || pData->m_lPoints < 1)
                return;
            // One buffer for all areas of the series: the largest polygon is
            // every point with two base points.
            std::unique_ptr<POINT[]> pPoints(new POINT[(size_t)pData->m_lPoints + 2]);
            POSITION pos = pData->m_listAreas.GetHeadPosition();
            while (pos != NULL)
                ShadeArea(pDC, pData->m_listAreas.GetNext(pos), pPoints.get(), pData);
        });
    } catch (CMemoryException* e) {
        e->Delete();   // no buffer: the remaining areas stay undrawn
    }
}

int CGraphPrv::ShadeArea(CDC* pDC, CAreaData* pArea, POINT* pPoints, CPlotData* pPlotData)
{
    const BOOL bColor = IsColorDevice(pDC);

    // Area indices address the data arrays directly (the series' first drawn
    // index is not added). Indices beyond the points, given so or left by a
    // later update with fewer points, are clamped to the first and last
    // point; an area wholly outside them is not drawn. This also keeps the
    // polygon within the buffer of m_lPoints + 2 entries.
    const long lLast = pPlotData->m_lPoints - 1;
    if (pArea->m_lEnd < 0 || pArea->m_lStart > lLast || pPlotData->m_pfXData == NULL ||
        pPlotData->m_pfYData == NULL)
        return 1;
    const long lStart = std::max(0L, pArea->m_lStart);
    const long lEnd = std::min(lLast, pArea->m_lEnd);
    const bool bBaseLine = pArea->m_nBaseMode > 0;
    const long nCurve = lEnd - lStart + 1;
    const long nVertices = nCurve + (bBaseLine ? 2 : 0);

    std::unique_ptr<float[]> pfX, pfY;
    try {
        pfX.reset(new float[(size_t)nVertices]);
        pfY.reset(new float[(size_t)nVertices]);
    } catch (CMemoryException* e) {
        e->Delete();
        return 0;   // this area is skipped
    }

    // The polygon: base point under the first point, the curve as it
    // stands, base point under the last point. The base values are data
    // values of the series' axis and do not follow its limits.
    const float fBase = pArea->m_nBaseMode == AREA_BASE_HUNDRED ? 100.0f : 0.0f;
    long i = 0;
    if (bBaseLine) {
        pfX[i] = pPlotData->m_pfXData[lStart];
        pfY[i++] = fBase;
    }
    memcpy(pfX.get() + i, pPlotData->m_pfXData + lStart, (size_t)nCurve * sizeof(float));
    memcpy(pfY.get() + i, pPlotData->m_pfYData + lStart, (size_t)nCurve * sizeof(float));
    i += nCurve;
    if (bBaseLine) {
        pfX[i] = pPlotData->m_pfXData[lEnd];
        pfY[i] = fBase;
    }

    // A series of its own for the transform, holding the vertices without
    // owning them.
    CPlotData polygon;
    polygon.m_pfXData = pfX.get();
    polygon.m_pfYData = pfY.get();
    polygon.m_lPoints = nVertices;
    polygon.m_lStartIndex = 0;
    polygon.m_nYAxis = pPlotData->m_nYAxis;

    const CRect rectPlot = m_rectPlot;
    {
        CSaveDCGuard saveDC(pDC);   // clip, modes, objects and mapping go back
        if (pDC->GetMapMode() == MM_ANISOTROPIC) {
            // A scaled context: the area is computed in device pixels and
            // drawn without the mapping, as the series lines are.
            pDC->LPtoDP(&m_rectPlot);
            pDC->SetMapMode(MM_TEXT);
            pDC->SetWindowOrg(0, 0);
            pDC->SetViewportOrg(0, 0);
        }
        XformPlotData(&polygon, pPoints);
        const int nClip = pDC->IntersectClipRect(m_rectPlot.left, m_rectPlot.top, m_rectPlot.right + 1,
                                                 m_rectPlot.bottom + 1);
        if (nClip != NULLREGION) {
            // Transparent: the gaps of a hatch show what lies underneath.
            pDC->SetBkMode(TRANSPARENT);
            CDrawerPen pen(PS_SOLID, m_nGridPenWidth, pArea->m_crArea, bColor);
            CSelectGuard selectPen(pDC, &pen);
            // A brush the system refused (a hatch index it does not know)
            // leaves the outline alone rather than the context's own brush.
            const CBrush* pBrush = bColor ? pArea->m_pBrush : pArea->m_pMonoBrush;
            CSelectGuard selectBrush(pDC, pBrush != NULL && pBrush->m_hObject != NULL ? pBrush->m_hObject
                                                                                      : ::GetStockObject(NULL_BRUSH));
            pDC->Polygon(pPoints, (int)nVertices);
        }
    }
    m_rectPlot = rectPlot;
    polygon.m_pfXData = NULL;   // the arrays are ours, not the temporary's
    polygon.m_pfYData = NULL;
    return 1;
}
