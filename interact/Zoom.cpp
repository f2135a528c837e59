// Rubber-band zoom: the box dragged over the plot with the left button
// becomes the limits of the X axis and of the Y axes. The box is an inverted
// outline on the window, never part of the painted picture; drawing it a
// second time removes it. There is no stack of earlier views: the way back
// is the scaling to the data.
#include "graph/GraphPrv.h"

namespace {

// A box smaller than a twentieth of the plot in both directions means
// nothing and is refused.
const int ZOOM_MIN_FRACTION = 20;

} // namespace

int CGraphPrv::EnableZoom(int bEnable)
{
    m_bZoomEnabled = bEnable;
    return GRAPH_OK;
}

void CGraphPrv::StartZoom(CPoint* pPoint)
{
    SetCapture();
    // Confined to the inside of the frame until the first move lifts it.
    CRect rectInside(m_rectPlot.left + 1, m_rectPlot.top + 1, m_rectPlot.right, m_rectPlot.bottom);
    ClientToScreen(&rectInside);
    ::ClipCursor(&rectInside);
    m_rectZoom.SetRect(pPoint->x, pPoint->y, pPoint->x, pPoint->y);
    NotBox();
}

void CGraphPrv::NotBox()
{
    CClientDC dc(this);
    CSelectGuard selectPen(&dc, ::GetStockObject(WHITE_PEN));
    const int nOldRop = dc.SetROP2(R2_NOT);
    dc.MoveTo(m_rectZoom.left, m_rectZoom.top);
    dc.LineTo(m_rectZoom.right, m_rectZoom.top);
    dc.LineTo(m_rectZoom.right, m_rectZoom.bottom);
    dc.LineTo(m_rectZoom.left, m_rectZoom.bottom);
    dc.LineTo(m_rectZoom.left, m_rectZoom.top);
    dc.SetROP2(nOldRop);
}

void CGraphPrv::EndZoom()
{
    ::ReleaseCapture();
    ::ClipCursor(NULL);
    NotBox();

    const int h = abs(m_rectZoom.top - m_rectZoom.bottom);
    const int w = abs(m_rectZoom.left - m_rectZoom.right);
    if (h == 0 || w == 0)
        return;
    const int H = m_rectPlot.bottom - m_rectPlot.top;
    const int W = m_rectPlot.right - m_rectPlot.left;
    if (H / h >= ZOOM_MIN_FRACTION && W / w >= ZOOM_MIN_FRACTION)
        return;

    // The value at the top pixel goes to the top-edge limit and the one at
    // the right pixel to the right-edge limit: a reversed axis stays so. A
    // shown right axis is zoomed to the same pixels through its own transform.
    const int t = m_rectZoom.top < m_rectZoom.bottom ? m_rectZoom.top : m_rectZoom.bottom;
    const int b = m_rectZoom.top < m_rectZoom.bottom ? m_rectZoom.bottom : m_rectZoom.top;
    sg_yrange(PixelToDataY(t, 0), PixelToDataY(b, 0), 0);
    if (m_bRightAxisDisplayed)
        sg_yrange(PixelToDataY(t, 1), PixelToDataY(b, 1), 1);
    const int l = m_rectZoom.left < m_rectZoom.right ? m_rectZoom.left : m_rectZoom.right;
    const int r = m_rectZoom.left < m_rectZoom.right ? m_rectZoom.right : m_rectZoom.left;
    sg_xrange(PixelToDataX(r), PixelToDataX(l));

    Invalidate(TRUE);
    NotifyApplication((int)GN_ZOOM);
}
