// Floating labels of a graph: adding them, selecting them with a press and
// moving them with the tracker, the messages of their editors, keeping them
// at their data positions, drawing them, and releasing them.
//
// The focus moves synchronously: hiding or destroying a focused editor gives
// the graph the focus at once, so the editor's kill-focus report (finished
// editing, or delete an empty label) and OnSetFocus run inside the call that
// hid or destroyed it. Each path below clears the selection before it hides
// an editor and removes a label from the map before it deletes it, so that
// what re-enters finds a consistent state.
#include "graph/GraphPrv.h"
#include "interact/FloatingLabel.h"
#include "afx/afxext.h"

namespace {

// The tracker round a selected label: hatched border, handles outside.
const UINT LABEL_TRACKER_STYLE = CRectTracker::hatchedBorder | CRectTracker::resizeOutside;

// Extents a new label is kept in (KeepRectInArea).
const int AREA_PLOT = 1;

} // namespace

// --- Adding and removing ---------------------------------------------------------

int CGraphPrv::AddFloatingLabel()
{
    CPoint point;
    ::GetCursorPos(&point);
    return AddFloatingLabel(point);
}

int CGraphPrv::AddFloatingLabel(CPoint ptScreen)
{
    CPoint point = ptScreen;
    ScreenToClient(&point);
    double dX = PixelToDataX(point.x);
    double dY = PixelToDataY(point.y, 0);

    const WORD wId = ++m_wNextLabelId;
    CFloatingLabel* pLabel = NULL;
    try {
        pLabel = new CFloatingLabel(this, wId, point.x, point.y, dX, dY);
    } catch (CMemoryException* e) {
        e->Delete();
        return GRAPH_NOMEMORY;
    }
    m_mapFloatingLabels.SetAt(wId, pLabel);

    // Inside the plot's extents; the data position stays the point's.
    CRect rect = pLabel->m_rect;
    KeepRectInArea(rect, AREA_PLOT);
    pLabel->SetPosition(&rect, &dX, &dY);

    // The label selected before ends its editing as the graph takes the
    // focus (or goes, when it was left empty).
    if (m_pLabelTracker != NULL || m_pSelectedLabel != NULL) {
        delete m_pLabelTracker;
        m_pLabelTracker = NULL;
        if (m_hWnd != NULL)
            SetFocus();
        if (m_pSelectedLabel != NULL)
            DropLabelSelection();
    }

    try {
        m_pLabelTracker = new CRectTracker(&rect, LABEL_TRACKER_STYLE);
    } catch (CMemoryException* e) {
        e->Delete();
        m_pLabelTracker = NULL;   // selected without a tracker
    }
    m_pSelectedLabel = pLabel;
    pLabel->Select(TRUE);
    Replot();
    Update();
    return GRAPH_OK;
}

void CGraphPrv::RemoveAllFloatingLabels()
{
    // The selection goes first: hiding the focused editor re-enters here
    // (and an empty label may go on the way).
    if (m_pLabelTracker != NULL || m_pSelectedLabel != NULL)
        DropLabelSelection();
    while (!m_mapFloatingLabels.IsEmpty()) {
        POSITION pos = m_mapFloatingLabels.GetStartPosition();
        WORD wId;
        CFloatingLabel* pLabel = NULL;
        m_mapFloatingLabels.GetNextAssoc(pos, wId, pLabel);
        m_mapFloatingLabels.RemoveKey(wId);
        delete pLabel;
    }
}

// --- Selection ---------------------------------------------------------------------

BOOL CGraphPrv::SelectLabelAt(CPoint point)
{
    // The first label in the map's order whose rectangle holds the point.
    WORD wHit = 0;
    CFloatingLabel* pHit = NULL;
    for (POSITION pos = m_mapFloatingLabels.GetStartPosition(); pos != NULL && pHit == NULL;) {
        WORD wId;
        CFloatingLabel* pLabel = NULL;
        m_mapFloatingLabels.GetNextAssoc(pos, wId, pLabel);
        if (pLabel->HitTest(point.x, point.y)) {
            wHit = wId;
            pHit = pLabel;
        }
    }
    if (pHit == NULL)
        return FALSE;

    if (m_pLabelTracker != NULL || m_pSelectedLabel != NULL) {
        DropLabelSelection();
        // An emptied label deselected here is gone, and so is the press.
        if (!m_mapFloatingLabels.Lookup(wHit, pHit))
            return TRUE;
    }
    CRect rect = pHit->m_rect;
    try {
        m_pLabelTracker = new CRectTracker(&rect, LABEL_TRACKER_STYLE);
    } catch (CMemoryException* e) {
        e->Delete();
        m_pLabelTracker = NULL;
    }
    m_pSelectedLabel = pHit;
    pHit->Select(TRUE);
    Replot();
    return TRUE;
}

void CGraphPrv::DropLabelSelection()
{
    // Cleared before the editor is hidden: its report re-enters with no
    // selection left to end, and may delete the label.
    CFloatingLabel* pLabel = m_pSelectedLabel;
    delete m_pLabelTracker;
    m_pLabelTracker = NULL;
    m_pSelectedLabel = NULL;
    if (pLabel != NULL)
        pLabel->Select(FALSE);
    Replot();
}

void CGraphPrv::FloatingLabelHitTest(UINT, CPoint point)
{
    if (m_mapFloatingLabels.IsEmpty() || m_pLabelTracker == NULL)
        return;
    if (m_pLabelTracker->HitTest(point) == CRectTracker::hitNothing)
        return;
    // The drag runs on a copy: the loop dispatches other messages, and one
    // of them may end the selection meanwhile.
    CRectTracker tracker(&m_pLabelTracker->m_rect, m_pLabelTracker->m_nStyle);
    if (!tracker.Track(this, point, FALSE, NULL) || m_pLabelTracker == NULL || m_pSelectedLabel == NULL)
        return;
    m_pLabelTracker->m_rect = tracker.m_rect;

    // A drag that began outside the plot pins the label to (0, 0).
    double dX = 0.0, dY = 0.0;
    if (m_rectPlot.PtInRect(point)) {
        dX = PixelToDataX(tracker.m_rect.left);
        dY = PixelToDataY(tracker.m_rect.top, 0);
    }
    CRect rect = tracker.m_rect;
    m_pSelectedLabel->SetPosition(&rect, &dX, &dY);
}

// --- Messages of the editors ----------------------------------------------------------
// wParam is the label's identifier; an unknown one is ignored. All give 1.

LRESULT CGraphPrv::OnDeleteLabel(WPARAM wParam, LPARAM)
{
    CFloatingLabel* pLabel = NULL;
    if (!m_mapFloatingLabels.Lookup((WORD)wParam, pLabel))
        return 1;
    if (pLabel == m_pSelectedLabel) {
        m_pSelectedLabel = NULL;
        delete m_pLabelTracker;
        m_pLabelTracker = NULL;
    }
    // Out of the map first: its editor, destroyed with the focus, reports
    // once more and must find nothing.
    m_mapFloatingLabels.RemoveKey((WORD)wParam);
    delete pLabel;
    Replot();
    return 1;
}

LRESULT CGraphPrv::OnFinishedEditingLabel(WPARAM wParam, LPARAM lParam)
{
    CFloatingLabel* pLabel = NULL;
    if (!m_mapFloatingLabels.Lookup((WORD)wParam, pLabel))
        return 1;
    // The size follows the text, and the data position is taken afresh.
    pLabel->AdjustSize();
    CRect rect = pLabel->m_rect;
    double dX = PixelToDataX(rect.left);
    double dY = PixelToDataY(rect.top, 0);
    pLabel->SetPosition(&rect, &dX, &dY);
    if (pLabel == m_pSelectedLabel && m_pLabelTracker != NULL)
        m_pLabelTracker->m_rect = rect;
    if (lParam != 0 && m_pLabelTracker != NULL)
        DropLabelSelection();
    return 1;
}

LRESULT CGraphPrv::OnSetLabelColor(WPARAM wParam, LPARAM lParam)
{
    CFloatingLabel* pLabel = NULL;
    if (m_mapFloatingLabels.Lookup((WORD)wParam, pLabel))
        pLabel->SetColor((COLORREF)lParam);   // shown at the next paint
    return 1;
}

LRESULT CGraphPrv::OnSetLabelPointSize(WPARAM wParam, LPARAM lParam)
{
    // Comes before the font, which is built at this size.
    CFloatingLabel* pLabel = NULL;
    if (m_mapFloatingLabels.Lookup((WORD)wParam, pLabel))
        pLabel->SetPointSize((int)lParam);
    return 1;
}

LRESULT CGraphPrv::OnSetLabelFont(WPARAM wParam, LPARAM lParam)
{
    CFloatingLabel* pLabel = NULL;
    if (!m_mapFloatingLabels.Lookup((WORD)wParam, pLabel))
        return 1;
    pLabel->SetFont((LOGFONT*)lParam);
    pLabel->AdjustSize();
    if (pLabel == m_pSelectedLabel && m_pLabelTracker != NULL)
        m_pLabelTracker->m_rect = pLabel->m_rect;
    Invalidate();
    Update();
    return 1;
}

// --- Places ---------------------------------------------------------------------------

void CGraphPrv::KeepRectInArea(CRect& rect, int nArea)
{
    // The extents count from client coordinate 0, not from the area's edges.
    const CRect& rectArea = nArea == AREA_PLOT ? m_rectPlot : m_rectGraph;
    const int nWidth = rectArea.Width(), nHeight = rectArea.Height();
    if (rect.right > nWidth)
        rect.OffsetRect(nWidth - rect.right, 0);
    else if (rect.left < 0)
        rect.OffsetRect(-rect.left, 0);
    if (rect.bottom > nHeight)
        rect.OffsetRect(0, nHeight - rect.bottom);
    else if (rect.top < 0)
        rect.OffsetRect(0, -rect.top);
}

void CGraphPrv::UpdateAllFloatingLabelPositions()
{
    for (POSITION pos = m_mapFloatingLabels.GetStartPosition(); pos != NULL;) {
        WORD wId;
        CFloatingLabel* pLabel = NULL;
        m_mapFloatingLabels.GetNextAssoc(pos, wId, pLabel);
        int x = DataToPixelX(pLabel->m_dX);
        int y = DataToPixelY(pLabel->m_dY, 0);
        pLabel->MoveTo(&x, &y);
    }
    if (m_pLabelTracker != NULL && m_pSelectedLabel != NULL)
        m_pLabelTracker->m_rect = m_pSelectedLabel->m_rect;
}

void CGraphPrv::PlaceFloatingLabels()
{
    // Labels read before the graph had a window get their editors now.
    for (POSITION pos = m_mapFloatingLabels.GetStartPosition(); pos != NULL;) {
        WORD wId;
        CFloatingLabel* pLabel = NULL;
        m_mapFloatingLabels.GetNextAssoc(pos, wId, pLabel);
        pLabel->CreateEditWindow(this);
        int x = DataToPixelX(pLabel->m_dX);
        int y = DataToPixelY(pLabel->m_dY, 0);
        pLabel->MoveTo(&x, &y);
    }
}

// --- Drawing ----------------------------------------------------------------------------

void CGraphPrv::DrawFloatingLabel(CDC* pDC)
{
    // A selected label is drawn too: its editor covers the drawing.
    for (POSITION pos = m_mapFloatingLabels.GetStartPosition(); pos != NULL;) {
        WORD wId;
        CFloatingLabel* pLabel = NULL;
        m_mapFloatingLabels.GetNextAssoc(pos, wId, pLabel);
        pLabel->Draw(pDC);
    }
    if (m_pLabelTracker != NULL)
        m_pLabelTracker->Draw(pDC);
}
