// Placeholder until the archive code lands.
#include "graph/GraphPrv.h"

void CGraphPrv::Serialize(CArchive& ar)
{
    CWnd::Serialize(ar);
}
