// Annotation marks: the shared mark routine, the marks on every point of a
// series (drawn by each paint), and the marks a host stamps straight onto
// the window (AnnotatePoint, AnnotateLine), which the next paint wipes.
#include "graph/GraphPrv.h"
#include "render/AnnotationMark.h"
#include "series/PlotData.h"

// ---------------------------------------------------------------------------
// [SECTION] The mark routine
// ---------------------------------------------------------------------------

namespace {

// Four strokes out of the centre; each stroke stops one pixel short of its
// end, as LineTo does.
void DrawSpokes(CDC* pDC, int x, int y, const POINT* pEnds)
{
    for (int i = 0; i < 4; i++) {
        pDC->MoveTo(x, y);
        pDC->LineTo(pEnds[i]);
    }
}

// The arrow of marks 8 and 9: a shaft of a line's height out of the tip,
// and a head of five vertices; nSign +1 sends the shaft down, -1 up.
void DrawArrow(CDC* pDC, int x, int y, int nSign)
{
    TEXTMETRIC tm;
    pDC->GetTextMetrics(&tm);   // the attribute context
    const int h = tm.tmHeight;
    const int w = tm.tmAveCharWidth / 3;
    pDC->MoveTo(x, y);
    pDC->LineTo(x, y + nSign * h);
    const POINT head[5] = {
        { x, y }, { x + w, y + nSign * (h / 2) }, { x, y + nSign * (h / 3) }, { x - w, y + nSign * (h / 2) }, { x, y },
    };
    pDC->Polygon(head, 5);
}

} // namespace

void DrawAnnotationMark(CDC* pDC, int x, int y, int nMark)
{
    if (pDC == NULL || nMark < MARK_TRIANGLE || nMark > MARK_ARROWDOWN)
        return;

    // The strokes move the current position; it is put back at the end.
    const CPoint ptOld = pDC->GetCurrentPosition();
    if (nMark == MARK_ARROWUP || nMark == MARK_ARROWDOWN) {
        DrawArrow(pDC, x, y, nMark == MARK_ARROWUP ? 1 : -1);
        pDC->MoveTo(ptOld);
        return;
    }

    // The size follows the font of the output context.
    TEXTMETRIC tm;
    pDC->GetOutputTextMetrics(&tm);
    const int q = tm.tmHeight / 4;
    const int r = (int)(tm.tmHeight * 0.25 + 0.5);

    switch (nMark) {
    case MARK_TRIANGLE: {
        const POINT pts[3] = { { x, y - q }, { x - q, y + q }, { x + q, y + q } };
        pDC->Polygon(pts, 3);
        break;
    }
    case MARK_DIAMOND: {
        const POINT pts[4] = { { x, y - q }, { x + q, y }, { x, y + q }, { x - q, y } };
        pDC->Polygon(pts, 4);
        break;
    }
    case MARK_SQUARE: {
        const POINT pts[4] = { { x + q, y - q }, { x + q, y + q }, { x - q, y + q }, { x - q, y - q } };
        pDC->Polygon(pts, 4);
        break;
    }
    case MARK_SHORTBAR:
        pDC->MoveTo(x, y - q);
        pDC->LineTo(x, y + q + 1);
        break;
    case MARK_LONGBAR:
        pDC->MoveTo(x, y - 2 * q);
        pDC->LineTo(x, y + 2 * q + 1);
        break;
    case MARK_PLUS: {
        const POINT ends[4] = { { x, y + r }, { x - r, y }, { x, y - r }, { x + r, y } };
        DrawSpokes(pDC, x, y, ends);
        break;
    }
    case MARK_CROSS: {
        const POINT ends[4] = { { x + r, y + r }, { x - r, y + r }, { x + r, y - r }, { x - r, y - r } };
        DrawSpokes(pDC, x, y, ends);
        break;
    }
    }
    pDC->MoveTo(ptOld);
}

// ---------------------------------------------------------------------------
// [SECTION] Marks of the graph
// ---------------------------------------------------------------------------

namespace {

// The colour test of the functions that take a window context of their own:
// the device caps alone, as a window context is never printing.
COLORREF WindowMarkColor(CDC* pDC, COLORREF crColor)
{
    const int nColors = pDC->GetDeviceCaps(NUMCOLORS);
    return (nColors > 2 || nColors == -1) ? crColor : 0;
}

// Brush, pen (when nPenWidth is above 0) and mark font of one drawing call,
// selected into the context for the life of the object. The context is
// saved before the selections and restored before the objects are deleted,
// so that a clip set while the object lives goes with it.
class CMarkTools
{
public:
    CMarkTools(CDC* pDC, CGraphPrv* pGraph, COLORREF crColor, int nPenWidth) : m_save(pDC)
    {
        m_brush.CreateSolidBrush(crColor);
        if (nPenWidth > 0)
            m_pen.CreatePen(PS_SOLID, nPenWidth, crColor);
        pGraph->CreateDeviceFont(m_font, pDC, 0);
        pDC->SelectObject(&m_brush);
        pDC->SelectObject(&m_pen);   // nothing happens without a pen
        pDC->SelectObject(&m_font);
    }

private:
    CMarkTools(const CMarkTools&) = delete;
    void operator=(const CMarkTools&) = delete;

    CBrush m_brush;
    CPen m_pen;
    CFont m_font;
    CSaveDCGuard m_save;   // declared last: restores before the objects go
};

} // namespace

void CGraphPrv::Annotate(CDC* pDC, double dX, double dY, int nYAxis, int nMark)
{
    // No test against the plot: the caller has set a clip.
    DrawAnnotationMark(pDC, DataToPixelX(dX), DataToPixelY(dY, nYAxis), nMark);
}

void CGraphPrv::AnnotatePlotData(CDC* pDC, CPlotData* pPlotData)
{
    CSingleLock lock(&m_csPlotData, TRUE);   // a host thread may swap the arrays
    const long lPoints = pPlotData->m_lPoints;
    if (lPoints < 1 || pPlotData->m_pfXData == NULL || pPlotData->m_pfYData == NULL)
        return;
    const int nMark = pPlotData->m_nAnnotate;
    if (nMark < MARK_TRIANGLE || nMark > MARK_ARROWDOWN)
        return;   // draws nothing: no tools are made

    // The line's colour, not m_crAnnotate, which is the labels' colour.
    CMarkTools tools(pDC, this, IsColorDevice(pDC) ? pPlotData->m_crLine : 0, 1);
    const float* pfX = pPlotData->m_pfXData + pPlotData->m_lStartIndex;
    const float* pfY = pPlotData->m_pfYData + pPlotData->m_lStartIndex;
    const int nYAxis = pPlotData->m_nYAxis;
    // Every point gets its mark: no reduction here.
    for (long i = 0; i < lPoints; i++)
        Annotate(pDC, pfX[i], pfY[i], nYAxis, nMark);
}

int CGraphPrv::AnnotatePoint(double dX, double dY, int nYAxis, DWORD crColor, int nMark)
{
    if (m_hWnd == NULL)
        return GRAPH_OK;   // a graph without a window has no screen to draw on
    try {
        CClientDC dc(this);
        CMarkTools tools(&dc, this, WindowMarkColor(&dc, crColor), m_nGridPenWidth);
        dc.IntersectClipRect(m_rectPlot.left, m_rectPlot.top, m_rectPlot.right + 1, m_rectPlot.bottom + 1);
        Annotate(&dc, dX, dY, nYAxis, nMark);
    } catch (CException* e) {
        e->Delete();   // no context for the window: nothing drawn
    }
    return GRAPH_OK;
}

int CGraphPrv::AnnotateLine(CString& strName, int nMark, int nStep)
{
    CSingleLock lock(&m_csPlotData, TRUE);   // a host thread may swap the arrays
    CPlotData* pData = FindPlotData(strName);
    if (pData == NULL || pData->m_lPoints < 1)
        return GRAPH_NOSERIES;
    // A step below 1 would walk forever or backward.
    if (nStep < 1)
        return GRAPH_BADARG;
    if (m_hWnd == NULL || pData->m_pfXData == NULL || pData->m_pfYData == NULL)
        return GRAPH_OK;
    try {
        CClientDC dc(this);
        // A brush alone: outlines take the context's default pen.
        CMarkTools tools(&dc, this, WindowMarkColor(&dc, pData->m_crLine), 0);
        dc.IntersectClipRect(m_rectPlot.left, m_rectPlot.top, m_rectPlot.right + 1, m_rectPlot.bottom + 1);
        const float* pfX = pData->m_pfXData + pData->m_lStartIndex;
        const float* pfY = pData->m_pfYData + pData->m_lStartIndex;
        const long lPoints = pData->m_lPoints;
        for (long i = 0;; i += nStep) {
            Annotate(&dc, pfX[i], pfY[i], pData->m_nYAxis, nMark);
            if (nStep >= lPoints - i)
                break;   // the next index would reach the end (and could overflow)
        }
    } catch (CException* e) {
        e->Delete();
    }
    return GRAPH_OK;
}
