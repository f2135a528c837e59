// How the marker line follows the series it belongs to.
#include "graph/GraphPrv.h"

void CGraphPrv::OnSeriesRemoved(CPlotData*)
{
    // A graph has a marker line only through AddMarkerLine; without one
    // there is nothing to follow.
    if (m_pMarkerLine == NULL)
        return;
}

void CGraphPrv::OnSeriesDataReplaced(CPlotData*)
{
    if (m_pMarkerLine == NULL)
        return;
}
