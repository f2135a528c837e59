// Point labels: a mark with a vertical text beside it. The labels a series
// remembers (AddPlotDataLabel and its removers) are drawn by each paint
// through CPlotData::DrawLabels; LabelPoint draws one at once, into a given
// context or straight onto the window.
#include "graph/GraphPrv.h"
#include "render/DrawerPen.h"
#include "render/AnnotationMark.h"
#include "series/PlotData.h"

// ---------------------------------------------------------------------------
// [SECTION] Remembered labels of a series
// ---------------------------------------------------------------------------

int CGraphPrv::AddPlotDataLabel(const CString& strName, const CString& strLabel, double dX, double dY, int nMark,
                                const CString& strText)
{
    CPlotData* pData = FindPlotData(strName);
    if (pData == NULL)
        return GRAPH_NOSERIES;
    // The series' labels take its line colour of this moment.
    pData->AddLabel(strLabel, dX, dY, nMark, strText);
    return GRAPH_OK;
}

int CGraphPrv::RemovePlotDataLabel(const CString& strName, const CString& strLabel)
{
    CPlotData* pData = FindPlotData(strName);
    if (pData == NULL)
        return GRAPH_NOSERIES;
    pData->RemoveLabel(strLabel);   // an unknown label name is no failure
    return GRAPH_OK;
}

int CGraphPrv::RemoveAllPlotDataLabels(const CString& strName)
{
    CPlotData* pData = FindPlotData(strName);
    if (pData == NULL)
        return GRAPH_NOSERIES;
    pData->RemoveAllLabels();
    return GRAPH_OK;
}

int CPlotData::DrawLabels(CDC* pDC, CGraphPrv* pGraph)
{
    for (int i = 0; i < m_aLabelNames.GetSize(); i++)
        pGraph->LabelPoint(m_aLabelX[i], m_aLabelY[i], m_nYAxis, m_crAnnotate, m_aLabelStyles[i], m_aLabelTexts[i], pDC);
    return GRAPH_OK;
}

// ---------------------------------------------------------------------------
// [SECTION] One label
// ---------------------------------------------------------------------------

int CGraphPrv::LabelPoint(double dX, double dY, int nYAxis, DWORD crColor, int nMark, const CString& strText,
                          CDC* pDC)
{
    if (pDC != NULL) {
        DrawPointLabel(pDC, dX, dY, nYAxis, crColor, nMark, strText);
        return GRAPH_OK;
    }
    if (m_hWnd == NULL)
        return GRAPH_OK;   // a graph without a window has no screen to draw on
    try {
        CClientDC dc(this);
        DrawPointLabel(&dc, dX, dY, nYAxis, crColor, nMark, strText);
    } catch (CException* e) {
        e->Delete();   // no context for the window: nothing drawn
    }
    return GRAPH_OK;
}

void CGraphPrv::DrawPointLabel(CDC* pDC, double dX, double dY, int nYAxis, COLORREF crColor, int nMark,
                               const CString& strText)
{
    const BOOL bColor = IsColorDevice(pDC);
    const COLORREF crMark = bColor ? crColor : 0;
    CBrush brush;
    brush.CreateSolidBrush(crMark);
    CDrawerPen pen(PS_SOLID, m_nGridPenWidth, crMark);
    CSelectGuard selectBrush(pDC, &brush);
    CSelectGuard selectPen(pDC, &pen);

    // The frame's left and top stay clear of the label. This clip is left
    // standing on purpose: on a context of PlotPoints it holds for the rest
    // of the series loop, whose end puts the context's own clip back.
    pDC->IntersectClipRect(m_rectPlot.left + 1, m_rectPlot.top + 1, m_rectPlot.right + 1, m_rectPlot.bottom + 1);

    const int px = DataToPixelX(dX);
    const int py = DataToPixelY(dY, nYAxis);
    {
        CFont fontMark;
        CreateDeviceFont(fontMark, pDC, 0);
        CSelectGuard selectFont(pDC, &fontMark);
        DrawAnnotationMark(pDC, px, py, nMark);
    }
    if (strText.IsEmpty())
        return;

    // The text runs upward: its metrics are those of the turned mark font.
    CFont fontTurned;
    CreateDeviceFont(fontTurned, pDC, 900);
    CSelectGuard selectFont(pDC, &fontTurned);
    pDC->SetTextColor(crMark);   // stays as set, like the clip
    CSaveDCGuard saveModes(pDC);  // background colour and mode go back
    pDC->SetBkColor(bColor ? m_crBackground : RGB(255, 255, 255));
    pDC->SetBkMode(TRANSPARENT);

    TEXTMETRIC tm;
    pDC->GetTextMetrics(&tm);
    const int nLine = tm.tmHeight + tm.tmExternalLeading;
    const int nAve = tm.tmAveCharWidth;
    // The arrows need a whole line to clear their shaft; other marks a
    // thirty-second of an inch.
    const int nGap = nMark > MARK_CROSS ? nLine : pDC->GetDeviceCaps(LOGPIXELSY) / 32;

    CString str(strText);
    int x, y;
    if (tm.tmPitchAndFamily & TMPF_TRUETYPE) {
        // Turned text, read upward from y: below an upward arrow it ends
        // under the arrow's tail, elsewhere it starts just above the mark.
        x = px - nLine / 2;
        if (nMark == MARK_ARROWUP)
            y = py + pDC->GetTextExtent(str).cx + nGap + nAve;
        else
            y = py - (nGap + nAve);
    } else {
        // Stacked text, one character a line, from y downward.
        x = px - nAve / 2;
        if (nMark == MARK_ARROWUP)
            y = py + nGap + nLine;
        else
            y = py - (nGap + nLine + str.GetLength() * nLine);
    }
    PlaceStringVertical(pDC, x, y, str, PLACE_AT_POINT);
}
