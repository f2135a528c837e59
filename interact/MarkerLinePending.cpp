// Placeholders until the marker line lands. No graph has a marker line yet
// (m_pMarkerLine stays null), so there is nothing to move when the limits
// change, nor to follow when a series is removed or gets new arrays. The
// marker line code replaces this file.
#include "graph/GraphPrv.h"

int CGraphPrv::UpdateMarkerLinePos()
{
    // Placeholder: the marker line follows the limits here.
    return GRAPH_OK;
}

void CGraphPrv::OnSeriesRemoved(CPlotData*)
{
    // Placeholder: the marker line goes with its series here.
}

void CGraphPrv::OnSeriesDataReplaced(CPlotData*)
{
    // Placeholder: the marker line stays on valid data here.
}

void CGraphPrv::MoveMarkerLine(long, CPoint)
{
    // Placeholder: the pointer takes hold of a marker line and drags it here.
}

void CGraphPrv::EndDisplayingMLValue()
{
    // Placeholder: the marker's value tip goes and the host is told here.
}
