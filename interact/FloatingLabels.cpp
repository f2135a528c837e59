// Floating labels of a graph: adding them, selecting them with the mouse,
// the messages of their editors, placing them and releasing them.
#include "graph/GraphPrv.h"
#include "afx/afxext.h"

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

int CGraphPrv::AddFloatingLabel()
{
    CPoint point;
    ::GetCursorPos(&point);
    return AddFloatingLabel(point);
}

int CGraphPrv::AddFloatingLabel(CPoint)
{
    // Placeholder: a new label is made at the point, in edit mode, here.
    return GRAPH_OK;
}

BOOL CGraphPrv::SelectLabelAt(CPoint)
{
    // Placeholder: a press on a label selects it with a tracker here; no
    // label exists yet, so no press hits one.
    return FALSE;
}

void CGraphPrv::DropLabelSelection()
{
    // The tracker goes; the selected label is deselected (placeholder: the
    // label's own deselection comes with the labels).
    delete m_pLabelTracker;
    m_pLabelTracker = NULL;
    m_pSelectedLabel = NULL;
    Replot();
}

void CGraphPrv::FloatingLabelHitTest(UINT, CPoint)
{
    // Placeholder: a press on the tracker moves or resizes its label here.
}

LRESULT CGraphPrv::OnDeleteLabel(WPARAM, LPARAM)
{
    // Placeholder: the label named by the editor is deleted here.
    return 0;
}

LRESULT CGraphPrv::OnFinishedEditingLabel(WPARAM, LPARAM)
{
    // Placeholder: the editing of a label ends here.
    return 0;
}

LRESULT CGraphPrv::OnSetLabelColor(WPARAM, LPARAM)
{
    // Placeholder: a label takes its new colour here.
    return 0;
}

LRESULT CGraphPrv::OnSetLabelFont(WPARAM, LPARAM)
{
    // Placeholder: a label takes its new font here.
    return 0;
}

LRESULT CGraphPrv::OnSetLabelPointSize(WPARAM, LPARAM)
{
    // Placeholder: a label takes its new size here.
    return 0;
}
