// Placeholder until the floating labels draw: their code replaces this
// file. Every placeholder of the library is marked "Placeholder:" where it
// stands.
#include "graph/GraphPrv.h"

void CGraphPrv::DrawFloatingLabel(CDC*)
{
    // Placeholder: the floating labels draw here.
}
