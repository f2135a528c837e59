// The marker line of a graph: setting it up and taking it away, placing its
// lines by value, following the limits and its series, and drawing it. The
// lines are inverted pixels over the finished picture: a second identical
// stroke takes a line away again, and every paint of the plot puts them back.
// The mouse side (hold, drag, value tip) is in interact/MarkerDrag.cpp.
#include "graph/GraphPrv.h"
#include "interact/MarkerLine.h"
#include "series/PlotData.h"

int CGraphPrv::AddMarkerLine(CWnd* pWnd, long lStyle, const CString& strSeries, double* pdPos1, double* pdPos2,
                             BOOL bContinuous)
{
    if (m_dwStyle & GS_NOPLOT)
        return GRAPH_NOTAVAILABLE;
    if (m_pMarkerLine != NULL)
        return GRAPH_MARKEREXISTS;

    CMarkerLine* pLine = NULL;
    try {
        pLine = new CMarkerLine;
        pLine->m_pNotifyWnd = pWnd;
        const BOOL bDouble = (lStyle & ML_DOUBLE) != 0;
        // A marker needs a line count, and a host variable for each line.
        if (!(lStyle & (ML_SINGLE | ML_DOUBLE)) || pdPos1 == NULL || (bDouble && pdPos2 == NULL)) {
            delete pLine;
            return GRAPH_BADARG;
        }
        pLine->m_lStyle = lStyle;
        pLine->m_bContinuous = bContinuous;

        if (pLine->IsHorizontal()) {
            pLine->m_nAxis = (lStyle & ML_RIGHTAXIS) ? 1 : 0;
        } else {
            pLine->m_nAxis = 2;
            CPlotData* pData = FindPlotData(strSeries);
            if (pData == NULL) {
                delete pLine;
                return GRAPH_NOSERIES;
            }
            pLine->m_strSeries = strSeries;
            pLine->TakeSamples(pData->m_pfXData, pData->m_lPoints);
        }

        // The host's two values come in order, the smaller first.
        pLine->m_pdPos1 = pdPos1;
        if (bDouble) {
            pLine->m_pdPos2 = pdPos2;
            if (*pdPos1 > *pdPos2) {
                const double d = *pdPos1;
                *pdPos1 = *pdPos2;
                *pdPos2 = d;
            }
        }

        // Line 1 of a vertical marker stands where the host said; only the
        // host's variable is snapped to a sample. Line 2 is snapped at once.
        pLine->m_dPos1 = *pdPos1;
        if (pLine->IsHorizontal()) {
            pLine->m_nPixel1 = DataToPixelY(pLine->m_dPos1, pLine->m_nAxis);
        } else {
            pLine->m_nPixel1 = DataToPixelX(pLine->m_dPos1);
            *pdPos1 = FindNearestPoint(pLine, *pdPos1);
        }
        if (bDouble) {
            if (pLine->IsHorizontal()) {
                pLine->m_dPos2 = *pdPos2;
                pLine->m_nPixel2 = DataToPixelY(pLine->m_dPos2, pLine->m_nAxis);
            } else {
                *pdPos2 = FindNearestPoint(pLine, *pdPos2);
                pLine->m_dPos2 = *pdPos2;
                pLine->m_nPixel2 = DataToPixelX(pLine->m_dPos2);
            }
            pLine->m_bCoincide = pLine->m_nPixel1 == pLine->m_nPixel2;
        } else {
            pLine->m_dPos2 = -1.0;
            pLine->m_nPixel2 = -1;
            pLine->m_bCoincide = FALSE;
        }
    } catch (CException* e) {
        e->Delete();
        delete pLine;
        return GRAPH_NOMEMORY;
    }

    m_pMarkerLine = pLine;
    InvertMarkerLine(pLine->m_nPixel1, m_rectPlot, pLine->Orientation());
    if (pLine->IsDouble() && !pLine->m_bCoincide)
        InvertMarkerLine(pLine->m_nPixel2, m_rectPlot, pLine->Orientation());
    return GRAPH_OK;
}

int CGraphPrv::RemoveMarkerLine()
{
    CMarkerLine* pLine = m_pMarkerLine;
    if (pLine == NULL)
        return GRAPH_NOMARKER;
    InvertMarkerLine(pLine->m_nPixel1, m_rectPlot, pLine->Orientation());
    if (pLine->IsDouble() && !pLine->m_bCoincide)
        InvertMarkerLine(pLine->m_nPixel2, m_rectPlot, pLine->Orientation());
    // A hold on a line that is gone would keep presses from the zoom and
    // the labels until the next move; a drag's confinement goes with it.
    if (m_dwState & GST_MARKER_ACTIVE) {
        m_dwState &= ~GST_MARKER_ACTIVE;
        ::ClipCursor(NULL);
    }
    m_pMarkerLine = NULL;
    delete pLine;
    return GRAPH_OK;
}

int CGraphPrv::IsMarkerLineEnabled()
{
    return m_pMarkerLine != NULL ? 1 : 0;
}

int CGraphPrv::SetMarkerLinePos(long nLine, double* pdPos)
{
    CMarkerLine* pLine = m_pMarkerLine;
    if (pLine == NULL)
        return GRAPH_NOMARKER;
    if (pdPos == NULL)
        return GRAPH_BADARG;

    // The value goes through a float: a horizontal line takes it as it is,
    // a vertical one the nearest sample.
    float v;
    if (pLine->IsHorizontal())
        v = (float)*pdPos;
    else
        v = FindNearestPoint(pLine, *pdPos);
    const int p = MarkerLinePixel(v);

    if (nLine == 1 || (nLine == 2 && pLine->IsDouble())) {
        int& q = nLine == 1 ? pLine->m_nPixel1 : pLine->m_nPixel2;
        const int o = nLine == 1 ? pLine->m_nPixel2 : pLine->m_nPixel1;
        double& dPos = nLine == 1 ? pLine->m_dPos1 : pLine->m_dPos2;
        if (p != q) {
            // The old stroke goes unless the other line shares it, or the
            // line stood outside the plot and was never drawn.
            double dOld = dPos;
            if (q != o && IsPointInPlotRect(dOld, pLine->m_nAxis))
                InvertMarkerLine(q, m_rectPlot, pLine->Orientation());
            q = p;
            if (p != o) {
                InvertMarkerLine(p, m_rectPlot, pLine->Orientation());
                pLine->m_bCoincide = FALSE;
            } else {
                pLine->m_bCoincide = TRUE;
            }
        }
        dPos = v;
    }
    // The host's stored variable stays as it is; the value taken comes back
    // through pdPos, also for a line the marker does not have.
    *pdPos = v;
    return GRAPH_OK;
}

int CGraphPrv::GetMarkerLinePos(double& dPos1, double& dPos2)
{
    CMarkerLine* pLine = m_pMarkerLine;
    if (pLine == NULL)
        return GRAPH_NOMARKER;
    dPos1 = *pLine->m_pdPos1;
    // A single line has no second variable: dPos2 keeps what it holds.
    if (pLine->IsDouble())
        dPos2 = *pLine->m_pdPos2;
    return GRAPH_OK;
}

int CGraphPrv::GetMarkerLineStyle(long& lStyle, CString& strSeries)
{
    if (m_pMarkerLine == NULL)
        return GRAPH_NOMARKER;
    lStyle = m_pMarkerLine->m_lStyle;
    strSeries = m_pMarkerLine->m_strSeries;
    return GRAPH_OK;
}

float CGraphPrv::FindNearestPoint(CMarkerLine* pLine, double x)
{
    // An empty series has nothing to snap to; one sample takes everything.
    if (pLine->m_pfXData == NULL || pLine->m_lPoints < 1)
        return (float)x;
    if (pLine->m_lPoints < 2)
        return pLine->m_pfXData[0];

    // Within four tenths of a step of either end, the end itself.
    const double dStep = pLine->m_fStep;
    if (pLine->m_fMaxX - 0.4 * dStep < x)
        return pLine->m_fMaxX;
    if (x < pLine->m_fMinX + 0.4 * dStep)
        return pLine->m_fMinX;

    // Samples that fall count from the end with the larger value.
    const double dOffset = pLine->m_pfXData[0] < pLine->m_pfXData[1] ? x - pLine->m_fMinX : pLine->m_fMaxX - x;
    // Unevenly spaced samples, or two equal first samples, can give an
    // index beyond the array (or none at all): it is kept within the series.
    const double dIndex = (dOffset + 0.5 * dStep) / dStep;
    long lIndex = 0;
    if (dIndex >= (double)(pLine->m_lPoints - 1))
        lIndex = pLine->m_lPoints - 1;
    else if (dIndex > 0.0)
        lIndex = (long)dIndex;
    return pLine->m_pfXData[lIndex];
}

int CGraphPrv::UpdateMarkerLinePos()
{
    // New limits: the lines keep their values and move with them. The
    // paint that follows the change draws them.
    CMarkerLine* pLine = m_pMarkerLine;
    if (pLine != NULL) {
        pLine->m_nPixel1 = MarkerLinePixel(pLine->m_dPos1);
        if (pLine->IsDouble()) {
            pLine->m_nPixel2 = MarkerLinePixel(pLine->m_dPos2);
            // Two values the new limits bring onto one pixel show as one
            // line at the next paint (and two again when they part).
            pLine->m_bCoincide = pLine->m_nPixel1 == pLine->m_nPixel2;
        }
    }
    return GRAPH_OK;
}

int CGraphPrv::MarkerLinePixel(double dPos)
{
    if (m_pMarkerLine->IsHorizontal())
        return DataToPixelY(dPos, m_pMarkerLine->m_nAxis);
    return DataToPixelX(dPos);
}

void CGraphPrv::InvertMarkerLine(int nPixel, const CRect& rect, int nOrient)
{
    // Only on the window; both edges of rect count as inside.
    if (m_hWnd == NULL)
        return;
    if (nOrient == 2 ? (nPixel < rect.top || nPixel > rect.bottom) : (nPixel < rect.left || nPixel > rect.right))
        return;
    CClientDC dc(this);
    CSelectGuard selectPen(&dc, ::GetStockObject(WHITE_PEN));
    const int nOldRop = dc.SetROP2(R2_NOT);
    if (nOrient == 2) {
        dc.MoveTo(rect.left + 1, nPixel);
        dc.LineTo(rect.right, nPixel);
    } else {
        dc.MoveTo(nPixel, rect.top + 1);
        dc.LineTo(nPixel, rect.bottom);
    }
    dc.SetROP2(nOldRop);
}

void CGraphPrv::RedrawMarkerLine(CDC* pDC, const CRect& rectDirty)
{
    CMarkerLine* pLine = m_pMarkerLine;
    if (pLine == NULL || rectDirty.IsRectEmpty())
        return;
    const BOOL bHorizontal = pLine->IsHorizontal();
    const int anPixel[2] = { MarkerLinePixel(pLine->m_dPos1),
                             pLine->IsDouble() ? MarkerLinePixel(pLine->m_dPos2) : -1 };
    // The coincidence is taken as it stands, not from these pixels: a paint
    // in the middle of a drag step draws the lines as the step left them,
    // and the step itself settles whether they are one.
    CSelectGuard selectPen(pDC, ::GetStockObject(WHITE_PEN));
    const int nOldRop = pDC->SetROP2(R2_NOT);
    for (int i = 0; i < (pLine->IsDouble() ? 2 : 1); i++) {
        const int p = anPixel[i];
        // A line outside the repainted part is still on the screen, at the
        // pixel it had.
        if (bHorizontal ? (p < rectDirty.top || p > rectDirty.bottom) : (p < rectDirty.left || p > rectDirty.right))
            continue;
        (i == 0 ? pLine->m_nPixel1 : pLine->m_nPixel2) = p;
        if (i == 1 && pLine->m_bCoincide)
            continue;
        // Across the repainted part, one pixel in from the plot's own frame.
        if (bHorizontal) {
            pDC->MoveTo(rectDirty.left + (rectDirty.left == m_rectPlot.left ? 1 : 0), p);
            pDC->LineTo(rectDirty.right, p);
        } else {
            pDC->MoveTo(p, rectDirty.top + (rectDirty.top == m_rectPlot.top ? 1 : 0));
            pDC->LineTo(p, rectDirty.bottom);
        }
    }
    pDC->SetROP2(nOldRop);
}

void CGraphPrv::OnSeriesRemoved(CPlotData* pData)
{
    // A vertical marker goes with its series.
    if (m_pMarkerLine != NULL && !m_pMarkerLine->IsHorizontal() && m_pMarkerLine->m_strSeries == pData->m_strName)
        RemoveMarkerLine();
}

void CGraphPrv::OnSeriesDataReplaced(CPlotData* pData)
{
    // New arrays for the marker's series: the marker snaps to the new
    // samples from now on and never reads an array that was freed. Its lines
    // keep their values.
    if (m_pMarkerLine != NULL && !m_pMarkerLine->IsHorizontal() && m_pMarkerLine->m_strSeries == pData->m_strName)
        m_pMarkerLine->TakeSamples(pData->m_pfXData, pData->m_lPoints);
}
