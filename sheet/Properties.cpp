// The graph's property sheet.
#include "graph/GraphPrv.h"

int CGraphPrv::Properties(CString&)
{
    // Placeholder: the tabbed sheet with the configured and the host's pages
    // opens here.
    return GRAPH_OK;
}
