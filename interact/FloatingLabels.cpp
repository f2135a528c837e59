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
    // Placeholder: the labels are bound and placed here; the map stays
    // empty until floating labels exist.
}

void CGraphPrv::UpdateAllFloatingLabelPositions()
{
    // Placeholder: the labels move with their data positions here.
}
