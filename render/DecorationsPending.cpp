// Placeholders until the floating labels and the inverted tools draw:
// floating labels, cross hair and marker line after a paint. Each piece's
// own code replaces its function here. Every placeholder of the library is
// marked "Placeholder:" where it stands.
#include "graph/GraphPrv.h"

void CGraphPrv::DrawFloatingLabel(CDC*)
{
    // Placeholder: the floating labels draw here.
}

void CGraphPrv::RedrawOverlays(CDC*, const CRect&)
{
    // Placeholder: cross hair and marker line are inverted again here.
}
