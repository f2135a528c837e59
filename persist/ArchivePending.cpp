// Placeholder until the archive code lands.
#include "graph/GraphPrv.h"

void CGraphPrv::Serialize(CArchive& ar)
{
    // Placeholder: the graph's archive format is written and read here.
    CWnd::Serialize(ar);
}
