// Placeholders until the series decorations, the floating labels and the
// inverted tools draw: point highlights, shaded areas, floating labels,
// cross hair and marker line after a paint. Each piece's own code replaces
// its function here. Every placeholder of the library is marked
// "Placeholder:" where it stands.
#include "graph/GraphPrv.h"
#include "series/PlotData.h"

void CGraphPrv::PlotAreas(CDC*)
{
    // Placeholder: the area shading draws here.
}

void CGraphPrv::DrawFloatingLabel(CDC*)
{
    // Placeholder: the floating labels draw here.
}

void CGraphPrv::RedrawOverlays(CDC* pDC, const CRect& rectDirty)
{
    // Placeholder: the cross hair is inverted again here.
    RedrawMarkerLine(pDC, rectDirty);
}

int CPlotData::DrawPointHighlights(CDC*, CGraphPrv*)
{
    // Placeholder: the point highlights draw here.
    return GRAPH_OK;
}
