// Placeholders until the series decorations, the floating labels and the
// inverted tools draw: markers and point labels, point highlights, shaded
// areas, floating labels, cross hair and marker line after a paint. Each
// piece's own code replaces its function here.
#include "graph/GraphPrv.h"
#include "series/PlotData.h"

void CGraphPrv::PlotAreas(CDC*) {}

void CGraphPrv::DrawFloatingLabel(CDC*) {}

void CGraphPrv::RedrawOverlays(CDC*, const CRect&) {}

int CPlotData::DrawPointHighlights(CDC*, CGraphPrv*)
{
    return GRAPH_OK;
}
