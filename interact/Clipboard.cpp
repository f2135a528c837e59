// The picture of the graph on the clipboard.
#include "graph/GraphPrv.h"

int CGraphPrv::CopyToClipboard()
{
    // Placeholder: the graph's bitmap goes to the clipboard here.
    return GRAPH_OK;
}
