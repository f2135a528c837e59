// Floating labels of a graph: placing them after creation and releasing them.
#include "graph/GraphPrv.h"

void CGraphPrv::RemoveAllFloatingLabels()
{
    // The labels are owned through the map's CObject pointers.
    POSITION pos = m_mapFloatingLabels.GetStartPosition();
    while (pos != NULL) {
        WORD wId;
        CObject* pLabel = NULL;
        m_mapFloatingLabels.CMapWordToOb::GetNextAssoc(pos, wId, pLabel);
        delete pLabel;
    }
    m_mapFloatingLabels.RemoveAll();
}

void CGraphPrv::PlaceFloatingLabels()
{
    // No label is placed until the label window class binds them (see the
    // floating label code); the map is empty until then.
}

void CGraphPrv::UpdateAllFloatingLabelPositions()
{
    // As for PlaceFloatingLabels: nothing to move while the map is empty.
}
