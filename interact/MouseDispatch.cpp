// The graph window's message map and its mouse dispatch: which tool gets a
// press, a move or a release (floating label, marker line, zoom, cross hair,
// limit editor, context menu), the cursor over the plot, the colours of the
// graph's own controls, and the focus. Every mouse event is also told to
// the host's sink, in screen coordinates.
#include "graph/GraphPrv.h"
#include "resources/messages.h"
#include "afx/afxext.h"
#include "interact/FloatingEditWnd.h"

BEGIN_MESSAGE_MAP(CGraphPrv, CWnd)
    ON_WM_PAINT()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDOWN()
    ON_WM_RBUTTONDOWN()
    ON_WM_CTLCOLOR()
    ON_WM_DESTROY()
    ON_WM_SETCURSOR()
    ON_WM_CONTEXTMENU()
    ON_WM_RBUTTONUP()
    ON_MESSAGE(WM_GRAPH_DELETELABEL, OnDeleteLabel)
    ON_MESSAGE(WM_GRAPH_FINISHEDEDITINGLABEL, OnFinishedEditingLabel)
    ON_MESSAGE(WM_GRAPH_SETLABELCOLOR, OnSetLabelColor)
    ON_MESSAGE(WM_GRAPH_SETLABELFONT, OnSetLabelFont)
    ON_MESSAGE(WM_GRAPH_SETLABELPOINTSIZE, OnSetLabelPointSize)
    ON_WM_LBUTTONDBLCLK()
    ON_MESSAGE(WM_GRAPH_LEGENDPOSCHANGE, OnLegendPosChange)
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

namespace {

// The tools that keep a press away from the labels and the zoom.
const DWORD GST_PRESS_TAKEN = GST_MARKER_ACTIVE | GST_LIMIT_EDIT | GST_OVER_TRACKER;

} // namespace

void CGraphPrv::OnMouseMove(UINT nFlags, CPoint point)
{
    // The cursor: the tracker's over a selected label (and the pointer kept
    // on the graph meanwhile), else the plot's cross or the arrow. This also
    // lifts the confinement a zoom press set.
    if (!(m_dwState & GST_MARKER_ACTIVE)) {
        if (m_pLabelTracker != NULL && m_pLabelTracker->SetCursor(this, m_nCursorHitTest)) {
            m_dwState |= GST_OVER_TRACKER;
            CRect rectScreen = m_rectGraph;
            ClientToScreen(&rectScreen);
            ::ClipCursor(&rectScreen);
        } else {
            m_dwState &= ~GST_OVER_TRACKER;
            ::ClipCursor(NULL);
            ::SetCursor(m_rectPlot.PtInRect(point) ? m_hPlotCursor : ::LoadCursorA(NULL, (LPCSTR)IDC_ARROW));
        }
    }

    if (m_dwState & GST_ZOOMING) {
        NotBox();
        if (nFlags & MK_LBUTTON) {
            // The free corner stays inside the plot, both edges included.
            m_rectZoom.right = point.x < m_rectPlot.left ? m_rectPlot.left
                               : (point.x > m_rectPlot.right ? m_rectPlot.right : point.x);
            m_rectZoom.bottom = point.y < m_rectPlot.top ? m_rectPlot.top
                                : (point.y > m_rectPlot.bottom ? m_rectPlot.bottom : point.y);
            NotBox();
        } else {
            // The button went up elsewhere: the drag is over, limits unchanged.
            m_dwState &= ~GST_ZOOMING;
        }
    }
    if (!(m_dwState & GST_ZOOMING) && (m_dwState & GST_CROSSHAIR) && !(m_dwState & GST_CROSSHAIR_LOCKED))
        m_crossHair.Move(point.x, point.y);

    // A shown cross hair, locked or not, keeps the marker line still.
    if (!(m_dwState & (GST_CROSSHAIR | GST_ZOOMING)))
        MoveMarkerLine((long)nFlags, point);

    NotifyApplication((UINT)WM_MOUSEMOVE, nFlags, point);
    Default();
}

void CGraphPrv::OnLButtonDown(UINT nFlags, CPoint point)
{
    // A press on a floating label selects it, and is nobody else's.
    if (!(m_dwState & GST_PRESS_TAKEN)) {
        if (SelectLabelAt(point))
            return;
        if (m_pLabelTracker != NULL)
            DropLabelSelection();
    }

    if (m_rectPlot.PtInRect(point) && !(m_dwState & GST_PRESS_TAKEN)) {
        if (m_bZoomEnabled) {
            m_dwState |= GST_ZOOMING;
            if (m_dwState & GST_CROSSHAIR) {
                m_crossHair.Hide();
                m_dwState |= GST_CROSSHAIR_SUSPENDED;
            }
            StartZoom(&point);
        }
    } else if (m_dwState & GST_LIMIT_EDIT) {
        // The editor closes when it loses the focus; this press only ends it.
        SetFocus();
        m_dwState &= ~GST_LIMIT_EDIT;
    } else {
        FloatingLabelHitTest(nFlags, point);
        Replot();
    }

    NotifyApplication((UINT)WM_LBUTTONDOWN, nFlags, point);
    Default();
}

void CGraphPrv::OnLButtonUp(UINT nFlags, CPoint point)
{
    if (m_dwState & GST_ZOOMING) {
        // Released on this graph: the box becomes the limits. Anywhere else
        // (another window, the legend, a label's editor): the drag is undone.
        CPoint ptScreen = point;
        ClientToScreen(&ptScreen);
        if (CWnd::WindowFromPoint(ptScreen) == this) {
            EndZoom();
        } else {
            NotBox();
            ::ReleaseCapture();
            ::ClipCursor(NULL);
        }
        m_dwState &= ~GST_ZOOMING;
        if (m_dwState & GST_CROSSHAIR) {
            m_crossHair.Display();
            m_dwState &= ~GST_CROSSHAIR_SUSPENDED;
        }
    } else if (m_dwState & GST_MARKER_ACTIVE) {
        EndDisplayingMLValue();
    } else if (!(m_dwState & GST_LIMIT_EDIT)) {
        // A release on a printed limit opens its editor; elsewhere the
        // release is nobody's, and the host does not hear of it.
        int iSlot = 0;
        while (iSlot < LIMIT_SLOTS && !m_rectLimit[iSlot].PtInRect(point))
            iSlot++;
        if (iSlot == LIMIT_SLOTS)
            return;
        OpenLimitEditor(iSlot);
    }

    NotifyApplication((UINT)WM_LBUTTONUP, nFlags, point);
    Default();
}

void CGraphPrv::OnLButtonDblClk(UINT nFlags, CPoint point)
{
    if ((m_dwState & GST_RADAR_DBLCLK) && m_rectPlot.PtInRect(point) &&
        !(m_dwState & (GST_MARKER_ACTIVE | GST_LIMIT_EDIT))) {
        Radar();
        NotifyApplication((int)GN_RADAR);
        Replot();
    }
    NotifyApplication((UINT)WM_LBUTTONDBLCLK, nFlags, point);
    Default();
}

void CGraphPrv::OnRButtonDown(UINT nFlags, CPoint point)
{
    if (m_pLabelTracker != NULL)
        DropLabelSelection();
    NotifyApplication((UINT)WM_RBUTTONDOWN, nFlags, point);
    Default();
}

void CGraphPrv::OnRButtonUp(UINT nFlags, CPoint point)
{
    // The default handling brings WM_CONTEXTMENU.
    NotifyApplication((UINT)WM_RBUTTONUP, nFlags, point);
    Default();
}

void CGraphPrv::OnContextMenu(CWnd*, CPoint point)
{
    // In the plot only, and not while a tool has the mouse. The point is
    // kept after the menu has closed: a chosen command arrives later, as a
    // message, and the label command reads it.
    CPoint ptClient = point;
    ScreenToClient(&ptClient);
    if (!(m_dwState & (GST_ZOOMING | GST_MARKER_ACTIVE)) && m_bMenuEnabled && m_rectPlot.PtInRect(ptClient)) {
        DisplayMenu(&point);
        m_ptContextMenu = point;
    }
    NotifyApplication(point);
}

BOOL CGraphPrv::OnSetCursor(CWnd*, UINT nHitTest, UINT)
{
    // The tracker reads the hit-test code at the next move.
    m_nCursorHitTest = nHitTest;
    return (BOOL)Default();
}

HBRUSH CGraphPrv::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    HBRUSH hBrush;
    if (nCtlColor == CTLCOLOR_STATIC) {
        if (m_brushCtlStatic.m_hObject == NULL)
            m_brushCtlStatic.CreateSysColorBrush(COLOR_WINDOW);
        hBrush = (HBRUSH)m_brushCtlStatic.m_hObject;
    } else {
        hBrush = CWnd::OnCtlColor(pDC, pWnd, nCtlColor);
    }
    pDC->SetBkColor(::GetSysColor(COLOR_WINDOW));
    // A label's editor keeps its own font and colour; the limit editor and
    // the value tips write in the graph's.
    if (pWnd != NULL && pWnd->IsKindOf(RUNTIME_CLASS(CFloatingEditWnd)))
        return hBrush;
    pDC->SetTextColor(m_crText);
    pDC->SelectObject(&m_font);
    return hBrush;
}

void CGraphPrv::OnSetFocus(CWnd* pOldWnd)
{
    // A graph that gets the focus has no selected label.
    CWnd::OnSetFocus(pOldWnd);
    if (m_pLabelTracker != NULL)
        DropLabelSelection();
}
