// Placeholder pipeline until the drawing code lands.
#include "graph/GraphPrv.h"

int CGraphPrv::Plot(CDC*, int)
{
    return (m_dwStyle & GS_NOPLOT) ? GRAPH_NOTAVAILABLE : GRAPH_OK;
}

int CGraphPrv::PutLabels(CDC*)
{
    return 1;
}

void CGraphPrv::Serialize(CArchive& ar)
{
    CWnd::Serialize(ar);
}
