// CRectTracker: the frame around a selected item, with its hatched border
// and resize handles, the cursor over it and the hit test of a point. The
// interactive Track loop is not part of this layer yet.
#pragma once

#include "afx/afxwnd.h"

class AFX_EXT_CLASS CRectTracker
{
public:
    // Styles, combined by OR.
    enum StyleFlags
    {
        solidLine = 1,        // a solid line one pixel outside the rectangle
        dottedLine = 2,       // a dotted line one pixel outside the rectangle
        hatchedBorder = 4,    // a hatched border outside the rectangle
        resizeInside = 8,     // resize handles inside the rectangle
        resizeOutside = 16,   // resize handles outside the rectangle
        hatchInside = 32,     // the rectangle itself hatched
    };
    // Results of HitTest.
    enum TrackerHit
    {
        hitNothing = -1,
        hitTopLeft = 0,
        hitTopRight = 1,
        hitBottomRight = 2,
        hitBottomLeft = 3,
        hitTop = 4,
        hitRight = 5,
        hitBottom = 6,
        hitLeft = 7,
        hitMiddle = 8,
    };

    CRectTracker();
    CRectTracker(LPCRECT lpSrcRect, UINT nStyle);
    virtual ~CRectTracker();

    CRect m_rect;           // the item's rectangle, in client coordinates
    UINT m_nStyle;          // StyleFlags
    int m_nHandleSize;      // side of a resize handle and width of the hatched border
    CSize m_sizeMin;        // smallest size a Track may leave

    // Draws lines, hatching and handles by the style; the context is given
    // back as it was.
    void Draw(CDC* pDC) const;
    // The rectangle with everything the style draws outside it.
    void GetTrueRect(LPRECT lpTrueRect) const;
    // Shows the cursor of the part under the pointer when nHitTest (of
    // WM_SETCURSOR) is HTCLIENT and the pointer is on the tracker; TRUE then.
    BOOL SetCursor(CWnd* pWnd, UINT nHitTest) const;
    // The part of the tracker at point (client coordinates): a TrackerHit.
    int HitTest(CPoint point) const;
    // The hit code of a handle as it stands on screen, for a rectangle whose
    // width or height is negative.
    int NormalizeHit(int nHandle) const;

protected:
    virtual UINT GetHandleMask() const;
    void GetHandleRect(int nHandle, CRect* pHandleRect) const;
    int HitTestHandles(CPoint point) const;

private:
    void Construct();
};
