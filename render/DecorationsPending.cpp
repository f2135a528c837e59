// Placeholders until the series decorations and the floating labels draw:
// markers and point labels, point highlights, shaded areas, floating labels.
// Each piece's own code replaces its function here.
#include "graph/GraphPrv.h"
#include "series/PlotData.h"

void CGraphPrv::AnnotatePlotData(CDC*, CPlotData*) {}

void CGraphPrv::PlotAreas(CDC*) {}

void CGraphPrv::DrawFloatingLabel(CDC*) {}

int CPlotData::DrawLabels(CDC*, CGraphPrv*)
{
    return 1;
}

int CPlotData::DrawPointHighlights(CDC*, CGraphPrv*)
{
    return 1;
}
