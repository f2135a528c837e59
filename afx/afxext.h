// CRectTracker: the frame around a selected item, with its hatched border
// and resize handles, the cursor over it, the hit test of a point, and Track,
// the modal loop in which the user moves the item or drags one of its handles.
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
    // The user moves the item (a press on it or on the hatched border) or
    // drags the handle under point (client coordinates of pWnd, which takes
    // the capture) until the left button goes up; Escape or a right press
    // cancels. The outline is drawn inverted on pWndClipTo, or on pWnd when
    // that is null. TRUE when m_rect changed. Nothing happens when point is
    // on no part of the tracker or another window holds the capture.
    BOOL Track(CWnd* pWnd, CPoint point, BOOL bAllowInvert = FALSE, CWnd* pWndClipTo = NULL);

    // Called during Track: the rectangle may be corrected (the default keeps
    // m_sizeMin), and is told of each change.
    virtual void AdjustRect(int nHandle, LPRECT lpRect);
    virtual void OnChangedRect(const CRect& rectOld);
    // The inverted outline of a Track: drawn at lpRect, the last one erased.
    virtual void DrawTrackerRect(LPCRECT lpRect, CWnd* pWndClipTo, CDC* pDC, CWnd* pWnd);

protected:
    virtual UINT GetHandleMask() const;
    void GetHandleRect(int nHandle, CRect* pHandleRect) const;
    int HitTestHandles(CPoint point) const;
    // The loop of Track for one handle (hitMiddle moves the whole item).
    BOOL TrackHandle(int nHandle, CWnd* pWnd, CPoint point, CWnd* pWndClipTo);
    // The fields of m_rect a handle moves (null for none along that axis),
    // and where the handle stands.
    void GetModifyPointers(int nHandle, LONG** ppx, LONG** ppy, int* px, int* py);

    BOOL m_bAllowInvert;    // Track may turn the rectangle inside out
    BOOL m_bErase;          // DrawTrackerRect only remembers: the outline is being erased
    BOOL m_bFinalErase;     // the last outline goes, none comes
    CRect m_rectLast;       // the outline now on the screen
    CSize m_sizeLast;       // its thickness

private:
    void Construct();
};
