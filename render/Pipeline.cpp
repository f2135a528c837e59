// The plot pipeline: the paint handler of the graph window, the virtual Plot
// that puts the whole graph on a context in a fixed order from bottom to top
// (background and frame, tics, grid, reference lines, axis text, floating
// labels, then the series), and the loop over the series under the lock.
// Everything is drawn straight onto the context; no picture is kept.
#include "graph/GraphPrv.h"
#include "render/DrawerPen.h"
#include "series/PlotData.h"

void CGraphPrv::OnPaint()
{
    // The update region must be read before BeginPaint validates it.
    CRgn rgnUpdate;
    rgnUpdate.CreateRectRgnIndirect(&m_rectGraph);
    const int nRegionType = ::GetUpdateRgn(m_hWnd, (HRGN)rgnUpdate.m_hObject, FALSE);
    CPaintDC dc(this);
    if (nRegionType == NULLREGION)
        return;

    HCURSOR hOldCursor = ::SetCursor(NULL);
    dc.SetBkColor(::GetSysColor(COLOR_WINDOW));
    dc.SetTextColor(m_crText);

    // The test counts the plot's last column and row, which Rectangle
    // reaches with right + 1 and bottom + 1.
    CRect rectPlotArea(m_rectPlot.left, m_rectPlot.top, m_rectPlot.right + 1, m_rectPlot.bottom + 1);
    if (::RectInRegion((HRGN)rgnUpdate.m_hObject, &rectPlotArea)) {
        CRect rectDirty;
        rectDirty.IntersectRect(&dc.m_ps.rcPaint, &m_rectPlot);
        Plot(&dc, 0);
        // Plot leaves the context clipped as it found it before the series,
        // which can be nothing at all: what follows draws on the whole graph.
        ::SetRectRgn((HRGN)rgnUpdate.m_hObject, m_rectGraph.left, m_rectGraph.top, m_rectGraph.right,
                     m_rectGraph.bottom);
        dc.SelectClipRgn(&rgnUpdate);
        RedrawOverlays(&dc, rectDirty);
    } else {
        // Only the margins need paint: the text, and nothing in the plot.
        PutLabels(&dc);
        DrawFloatingLabel(&dc);
    }
    ::SetCursor(hOldCursor);
}

void CGraphPrv::RedrawOverlays(CDC* pDC, const CRect& rectDirty)
{
    // The paint wiped what was inverted inside rectDirty, and only that.
    m_crossHair.Repaint(pDC, rectDirty.left, rectDirty.top, rectDirty.right, rectDirty.bottom);
    RedrawMarkerLine(pDC, rectDirty);
}

int CGraphPrv::Plot(CDC* pDC, int bPointsOnly)
{
    if (pDC == NULL)
        return GRAPH_BADARG;
    if (m_dwStyle & GS_NOPLOT)
        return GRAPH_NOTAVAILABLE;
    // The scan and the series loop each hold the series lock; what is drawn
    // between them (a derived class's PutLabels among it) holds none.
    if (m_nAutoScaleMode)
        Radar(RADAR_X | RADAR_YLEFT | RADAR_YRIGHT);   // always all three axes

    if (!bPointsOnly) {
        const BOOL bColor = IsColorDevice(pDC);
        {
            // Frame and background in one: the pen is 1 wide whatever the
            // grid's width.
            CBrush brushBackground;
            brushBackground.CreateSolidBrush(bColor ? m_crBackground : RGB(255, 255, 255));
            CDrawerPen penFrame(PS_SOLID, 1, m_crGrid, bColor);
            CSaveDCGuard saveDC(pDC);
            pDC->SetTextColor(bColor ? m_crText : 0);
            pDC->SelectObject(&brushBackground);
            pDC->SelectObject(&penFrame);
            pDC->Rectangle(m_rectPlot.left, m_rectPlot.top, m_rectPlot.right + 1, m_rectPlot.bottom + 1);

            // Floating left tics and a shown right axis allow no grid, for good.
            if (m_nYTicType[0] == 1 && m_bRightAxisDisplayed)
                m_dwGridType = GRID_NONE;
            PlotTics(pDC);
            if (!(m_dwGridType & GRID_NONE))
                PlotGrid(pDC);
            DrawReferenceLines(pDC);
        }
        PutLabels(pDC);
        DrawFloatingLabel(pDC);
    }

    if (!m_mapPlotData.IsEmpty())
        PlotPoints(pDC);
    return GRAPH_OK;
}

void CGraphPrv::PlotPoints(CDC* pDC)
{
    // A host thread may swap a series' data while the window paints: the
    // swap waits for the end of this loop.
    CSingleLock lock(&m_csPlotData, TRUE);

    // The context's own clip goes back at the end. Without one, GetClipRgn
    // leaves the region empty, and selecting that clips everything away.
    // A region the system refuses could not give the clip back: then the
    // series are not drawn.
    CRgn rgnSaved;
    if (!rgnSaved.CreateRectRgn(0, 0, 0, 0))
        return;
    ::GetClipRgn(pDC->m_hDC, (HRGN)rgnSaved.m_hObject);

    const int nClip = pDC->IntersectClipRect(m_rectPlot.left, m_rectPlot.top, m_rectPlot.right + 1,
                                             m_rectPlot.bottom + 1);
    if (nClip != ERROR && nClip != NULLREGION) {
        bool bAnyArea = false;
        ForEachSeries([&](CPlotData* pData) {
            if (!pData->m_listAreas.IsEmpty())
                bAnyArea = true;
            if (pData->m_nLineStyle != LINESTYLE_NONE && pData->m_lPoints >= 1)
                PlotPixels(pDC, pData);
            if (pData->m_nAnnotate != 0)
                AnnotatePlotData(pDC, pData);
            pData->DrawLabels(pDC, this);
            pData->DrawPointHighlights(pDC, this);
        });
        m_bPointsStale = FALSE;
        if (bAnyArea)
            PlotAreas(pDC);
    }
    pDC->SelectClipRgn(&rgnSaved);
}

void CGraphPrv::OptimizePlotData()
{
    CSingleLock lock(&m_csPlotData, TRUE);
    m_bPointsStale = FALSE;
    ForEachSeries([this](CPlotData* pData) {
        if (pData->m_lPoints >= 1)
            OptimizePoints(pData);
    });
}
