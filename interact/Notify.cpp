// Notifications to the host: the sink and its mask, and the calls on the
// sink that the message handlers, the tools and the property sheet make.
// Every call names the graph by its window's control identifier.
#include "graph/GraphPrv.h"

namespace {

// The control identifier of the graph window (0 without a window).
UINT GraphControlId(const CWnd* pWnd)
{
    return (UINT)::GetWindowLongA(pWnd->m_hWnd, GWL_ID);
}

} // namespace

int CGraphPrv::EnableNotifications(CGraphNotify* pNotify, long lMask)
{
    m_pNotify = pNotify;
    m_lNotifyMask = lMask;
    return GRAPH_OK;
}

void CGraphPrv::NotifyApplication(int nCode)
{
    // Any of the eight event bits opens the gate for all event codes: a host
    // that wants only some of them filters in OnGraphEvent.
    if (m_pNotify != NULL && (m_lNotifyMask & GN_EVENTS) != 0)
        m_pNotify->OnGraphEvent(GraphControlId(this), nCode);
}

void CGraphPrv::NotifyApplication(UINT wParam, long lParam)
{
    // A host menu entry without a target window: whatever the mask holds.
    if (m_pNotify != NULL)
        m_pNotify->OnGraphCommand(GraphControlId(this), wParam, lParam);
}

void CGraphPrv::NotifyApplication(UINT nMessage, UINT nFlags, CPoint point)
{
    if (m_pNotify == NULL)
        return;
    long lBit;
    switch (nMessage) {
    case WM_MOUSEMOVE:     lBit = GN_MOUSEMOVE; break;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:     lBit = GN_LBUTTON; break;
    case WM_LBUTTONDBLCLK: lBit = GN_LDBLCLK; break;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:     lBit = GN_RBUTTON; break;
    default:               return;
    }
    if ((m_lNotifyMask & lBit) == 0)
        return;
    // The handlers work in client coordinates; the host hears screen ones.
    ClientToScreen(&point);
    m_pNotify->OnGraphMouse(GraphControlId(this), nMessage, nFlags, point);
}

void CGraphPrv::NotifyApplication(UINT nPageId)
{
    // OK in the property sheet, for a host page: whatever the mask holds.
    if (m_pNotify != NULL)
        m_pNotify->OnGraphPage(GraphControlId(this), nPageId);
}

void CGraphPrv::NotifyApplication(CPoint point)
{
    // The point came in screen coordinates and goes on as it came.
    if (m_pNotify != NULL && (m_lNotifyMask & GN_CONTEXTMENU) != 0)
        m_pNotify->OnGraphContextMenu(GraphControlId(this), point);
}
