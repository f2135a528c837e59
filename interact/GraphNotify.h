// CGraphNotify: the sink through which a host hears what the user does to a
// graph. The host derives from it; the graph only holds a pointer.
#pragma once

#include "afx/afxtypes.h"

class CGraphNotify
{
public:
    // The first slot is the destructor, so that a host may delete its sink
    // through this interface. The library never calls it: it does not own
    // the sink, and only calls the five operations that follow, in this order.
    virtual ~CGraphNotify() {}
    // A mouse event; ptScreen in screen coordinates.
    virtual void OnGraphMouse(UINT nId, UINT nMessage, UINT nFlags, CPoint ptScreen) = 0;
    // One of the GN_ event codes.
    virtual void OnGraphEvent(UINT nId, int nCode) = 0;
    // OK in the property sheet, once for each host page, with the host's identifier.
    virtual void OnGraphPage(UINT nId, UINT nPageId) = 0;
    // A host menu entry without a target window; the arguments of its WM_COMMAND.
    virtual void OnGraphCommand(UINT nId, UINT wParam, long lParam) = 0;
    // The context menu key or a right click; ptScreen as the message gave it.
    virtual void OnGraphContextMenu(UINT nId, CPoint ptScreen) = 0;
};
