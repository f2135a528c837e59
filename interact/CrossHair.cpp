// The cross hair: the graph's switches and toggles, and CCrossHair with the
// graph's mode bits. The inverted lines and the read-outs are not drawn yet.
#include "interact/CrossHair.h"
#include "graph/GraphPrv.h"

int CGraphPrv::DisplayCrossHair()
{
    m_crossHair.Show(this, !(m_dwState & GST_CROSSHAIR));
    return GRAPH_OK;
}

int CGraphPrv::DisplayCrossHair(int bShow)
{
    m_crossHair.Show(this, bShow);
    return GRAPH_OK;
}

int CGraphPrv::IsCrossHairVisible()
{
    return (m_dwState & GST_CROSSHAIR) ? 1 : 0;
}

int CGraphPrv::IsCrossHairLocked()
{
    return (m_dwState & GST_CROSSHAIR_LOCKED) ? 1 : 0;
}

int CGraphPrv::LockCrossHair()
{
    m_crossHair.m_pGraph = this;
    m_crossHair.Lock(!(m_dwState & GST_CROSSHAIR_LOCKED));
    return GRAPH_OK;
}

int CGraphPrv::LockCrossHair(int bLock)
{
    m_crossHair.m_pGraph = this;
    m_crossHair.Lock(bLock);
    return GRAPH_OK;
}

CCrossHair::CCrossHair() : m_pGraph(NULL) {}
CCrossHair::~CCrossHair() {}

void CCrossHair::Show(CGraphPrv* pGraph, BOOL bShow)
{
    m_pGraph = pGraph;
    if (bShow)
        pGraph->m_dwState |= GST_CROSSHAIR;
    else
        pGraph->m_dwState &= ~(GST_CROSSHAIR | GST_CROSSHAIR_LOCKED);
}

void CCrossHair::Lock(BOOL bLock)
{
    // Placeholder: the lock also freezes the read-outs; only the mode bit
    // is kept, and only while the cross hair is shown.
    if (m_pGraph == NULL || !(m_pGraph->m_dwState & GST_CROSSHAIR))
        return;
    if (bLock)
        m_pGraph->m_dwState |= GST_CROSSHAIR_LOCKED;
    else
        m_pGraph->m_dwState &= ~GST_CROSSHAIR_LOCKED;
}

void CCrossHair::Display()
{
    // Placeholder: the lines and read-outs are drawn here.
}

void CCrossHair::Hide()
{
    // Placeholder: the lines and read-outs are taken away here.
}

void CCrossHair::Move(int x, int y)
{
    // Placeholder: the inverted lines follow the pointer here.
    m_ptLast = CPoint(x, y);
}

void CCrossHair::Repaint(CDC*, int, int, int, int)
{
    // Placeholder: the inverted lines are drawn into the context here.
}

void CCrossHair::PrintLabels(CDC*)
{
    // Placeholder: the read-out values are written into the context here.
}

void CCrossHair::Resize()
{
    // Placeholder: the read-out windows follow the layout here; nothing
    // stands on the window while they do not exist.
}
