// CCrossHair: showing and hiding, with the graph's mode bits.
#include "interact/CrossHair.h"
#include "graph/GraphPrv.h"

CCrossHair::CCrossHair() {}
CCrossHair::~CCrossHair() {}

void CCrossHair::Show(CGraphPrv* pGraph, BOOL bShow)
{
    if (bShow)
        pGraph->m_dwState |= GST_CROSSHAIR;
    else
        pGraph->m_dwState &= ~(GST_CROSSHAIR | GST_CROSSHAIR_LOCKED);
}

void CCrossHair::Resize()
{
    // Placeholder: the read-out windows follow the layout here; nothing
    // stands on the window while they do not exist.
}
