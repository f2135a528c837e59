// Placeholder until the marker line lands: the limit setters sg_xrange and
// sg_yrange call UpdateMarkerLinePos when a marker line exists, which no
// graph has yet. The marker line code replaces this file.
#include "graph/GraphPrv.h"

int CGraphPrv::UpdateMarkerLinePos()
{
    return 1;
}
