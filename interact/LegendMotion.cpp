// How the legend moves: opening on its side, collapsing to a sliver and
// sliding out again when the pointer rests on it, the timers that decide
// when, the one border that sizes it, and following the graph's size.
#include "interact/Legend.h"
#include "graph/GraphDefs.h"
#include "resources/messages.h"

namespace {

const UINT_PTR TIMER_LEAVE = 1;      // an open legend checks whether the pointer has left
const UINT_PTR TIMER_REVEAL = 2;     // the pointer has rested on the legend
const UINT LEAVE_PERIOD = 500;       // ms
const UINT REVEAL_DELAY = 50;        // ms after the pointer's last move
const DWORD SLIDE_OPEN_MS = 200;     // a slide that grows the window
const DWORD SLIDE_CLOSE_MS = 400;    // a slide that shrinks it
const int MIN_TRACK_WIDTH = 25;
const int MIN_TRACK_HEIGHT = 30;
// Moves and sizes without activation or a change of z-order; the frame is recomputed.
const UINT SWP_PLACE = SWP_FRAMECHANGED | SWP_NOACTIVATE | SWP_NOZORDER;
const UINT SWP_SHIFT = SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE;

// The pointer lies inside the window, in screen coordinates.
BOOL PointerInside(const CWnd* pWnd)
{
    POINT pt;
    ::GetCursorPos(&pt);
    CRect rect;
    pWnd->GetWindowRect(&rect);
    return rect.PtInRect(pt);
}

} // namespace

CRect CLegend::StripAtSide(CRect rect, int nThickness) const
{
    switch (m_nPosition) {
    case LEGEND_TOP: rect.bottom = rect.top + nThickness; break;
    case LEGEND_BOTTOM: rect.top = rect.bottom - nThickness; break;
    case LEGEND_LEFT: rect.right = rect.left + nThickness; break;
    default: rect.left = rect.right - nThickness; break;
    }
    return rect;
}

BOOL CLegend::IsAcross() const
{
    return m_nPosition == LEGEND_TOP || m_nPosition == LEGEND_BOTTOM;
}

CRect CLegend::OpenRect(const CRect& rectClient) const
{
    return StripAtSide(rectClient, IsAcross() ? m_nHeight : m_nWidth);
}

CRect CLegend::OpenRect() const
{
    CRect rect;
    ::GetClientRect(::GetParent(m_hWnd), &rect);
    return OpenRect(rect);
}

CRect CLegend::SliverOf(const CRect& rect, int nExtra) const
{
    return StripAtSide(rect, ::GetSystemMetrics(IsAcross() ? SM_CYFRAME : SM_CXFRAME) + nExtra);
}

CRect CLegend::RectInParent() const
{
    CRect rect;
    GetWindowRect(&rect);
    ::MapWindowPoints(NULL, ::GetParent(m_hWnd), (LPPOINT)&rect, 2);
    return rect;
}

void CLegend::Show(BOOL bShow)
{
    if (!bShow) {
        if (m_hWnd != NULL)
            ShowWindow(SW_HIDE);
        m_bShown = FALSE;
        return;
    }
    if (m_bShown)
        return;
    if (m_hWnd == NULL) {
        m_bShown = TRUE;
        return;
    }
    m_rectFull = OpenRect();
    SetWindowPos(NULL, m_rectFull.left, m_rectFull.top, m_rectFull.Width(), m_rectFull.Height(), SWP_PLACE);
    ShowWindow(SW_SHOW);
    m_bShown = TRUE;
    // A legend that hides itself opens only to slide away at once.
    HideAway();
}

void CLegend::HideAway()
{
    if (!m_bAutoHide || m_hWnd == NULL)
        return;
    // The sliver at the bottom or the right keeps one pixel more than
    // the one a new layout gives (Reposition).
    const BOOL bFar = m_nPosition == LEGEND_BOTTOM || m_nPosition == LEGEND_RIGHT;
    const CRect rect = SliverOf(RectInParent(), bFar ? 1 : 0);
    m_bHidden = TRUE;
    Slide(rect);
}

void CLegend::Unhide()
{
    // Still "hidden" while sliding: the slide's sizes are not the user's.
    Slide(m_rectFull);
    m_bHidden = FALSE;
    SetTimer(TIMER_LEAVE, LEAVE_PERIOD);
}

void CLegend::Slide(const CRect& rcTarget)
{
    CRect rectFrom = RectInParent();
    const BOOL bGrow = rcTarget.Height() > rectFrom.Height() || rcTarget.Width() > rectFrom.Width();
    const int dx = (rcTarget.left + rcTarget.right) - (rectFrom.left + rectFrom.right);
    const int dy = (rcTarget.top + rcTarget.bottom) - (rectFrom.top + rectFrom.bottom);
    DWORD dwDuration = SLIDE_CLOSE_MS;
    if (bGrow) {
        // Full size at once, shifted outward, and then in.
        dwDuration = SLIDE_OPEN_MS;
        rectFrom = rcTarget;
        rectFrom.OffsetRect(-dx, -dy);
        SetWindowPos(NULL, rectFrom.left, rectFrom.top, rectFrom.Width(), rectFrom.Height(), SWP_PLACE);
    }

    // The slide is timed by the clock, on this thread, which does nothing else meanwhile.
    HANDLE hThread = ::GetCurrentThread();
    const int nOldPriority = ::GetThreadPriority(hThread);
    ::SetThreadPriority(hThread, THREAD_PRIORITY_HIGHEST);
    const DWORD t0 = ::GetTickCount();
    DWORD t = t0;
    while (t - t0 < dwDuration) {
        const int nElapsed = (int)(t - t0);
        SetWindowPos(NULL, nElapsed * dx / (int)dwDuration + rectFrom.left,
                     nElapsed * dy / (int)dwDuration + rectFrom.top, 0, 0, SWP_SHIFT);
        ::UpdateWindow(bGrow ? m_hWnd : ::GetParent(m_hWnd));
        t = ::GetTickCount();
    }
    ::SetThreadPriority(hThread, nOldPriority);
    SetWindowPos(NULL, rcTarget.left, rcTarget.top, rcTarget.Width(), rcTarget.Height(), SWP_PLACE);
}

void CLegend::Reposition()
{
    if (m_hWnd == NULL)
        return;
    CRect rectClient;
    ::GetClientRect(::GetParent(m_hWnd), &rectClient);
    m_rectFull = OpenRect(rectClient);
    const CRect rect = m_bHidden ? SliverOf(rectClient, 0) : m_rectFull;
    if (m_bShown)
        MoveWindow(&rect, TRUE);
}

// ---- Timers and the pointer --------------------------------------------------

UINT CLegend::OnNcHitTest(CPoint point)
{
    // Each move of the pointer over the window restarts the reveal delay.
    SetTimer(TIMER_REVEAL, REVEAL_DELAY);
    UINT nHit = CListBox::OnNcHitTest(point);
    // Only the border that faces the plot sizes the legend; no other
    // border, corner or caption sizes or moves it.
    static const UINT s_nInnerBorder[] = { 0, HTBOTTOM, HTTOP, HTRIGHT, HTLEFT };
    const BOOL bInner = m_nPosition >= LEGEND_TOP && m_nPosition <= LEGEND_RIGHT &&
                        nHit == s_nInnerBorder[m_nPosition];
    if (bInner || nHit == HTVSCROLL)
        return nHit;
    return HTCLIENT;
}

void CLegend::OnTimer(UINT_PTR nIDEvent)
{
    if (nIDEvent == TIMER_REVEAL) {
        KillTimer(TIMER_REVEAL);
        if (m_bAutoHide && m_bHidden && PointerInside(this))
            Unhide();
    } else if (nIDEvent == TIMER_LEAVE) {
        if (m_bAutoHide && !m_bHidden && !PointerInside(this) && !m_bInMenu && !m_bSizing) {
            KillTimer(TIMER_LEAVE);
            HideAway();
        }
    } else {
        CListBox::OnTimer(nIDEvent);
    }
}

void CLegend::OnGetMinMaxInfo(MINMAXINFO* lpMMI)
{
    CListBox::OnGetMinMaxInfo(lpMMI);
    if (!m_bHidden) {
        lpMMI->ptMinTrackSize.x = MIN_TRACK_WIDTH;
        lpMMI->ptMinTrackSize.y = MIN_TRACK_HEIGHT;
    }
}

void CLegend::OnSize(UINT nType, int cx, int cy)
{
    CListBox::OnSize(nType, cx, cy);
    // Sizes while collapsed or sliding are the legend's own, not the user's.
    if (m_bHidden)
        return;
    const CRect rect = RectInParent();
    if (IsAcross())
        m_nHeight = rect.Height();
    else
        m_nWidth = rect.Width();
    m_rectFull = rect;
    if (IsWindowVisible())
        ::PostMessageA(::GetParent(m_hWnd), WM_GRAPH_LEGENDPOSCHANGE, 0, 0);
}

// ---- Sizing by the frame -------------------------------------------------------

void CLegend::OnNcLButtonDown(UINT nHitTest, CPoint point)
{
    m_bSizing = nHitTest == HTLEFT || nHitTest == HTRIGHT || nHitTest == HTTOP || nHitTest == HTBOTTOM;
    CListBox::OnNcLButtonDown(nHitTest, point);
}

void CLegend::OnNcLButtonUp(UINT nHitTest, CPoint point)
{
    m_bSizing = FALSE;
    CListBox::OnNcLButtonUp(nHitTest, point);
}

void CLegend::OnLButtonUp(UINT nFlags, CPoint point)
{
    m_bSizing = FALSE;
    CListBox::OnLButtonUp(nFlags, point);
}

void CLegend::OnNcMouseMove(UINT nHitTest, CPoint point)
{
    // Inside the list the pointer is held while a drag of the frame lasts;
    // on the frame without a drag it is let go.
    CPoint ptClient = point;
    ScreenToClient(&ptClient);
    CRect rectClient;
    GetClientRect(&rectClient);
    if (rectClient.PtInRect(ptClient)) {
        m_bSizing = TRUE;
        SetCapture();
    } else {
        m_bSizing = FALSE;
        if (::GetCapture() == m_hWnd)
            ::ReleaseCapture();
    }
    CListBox::OnNcMouseMove(nHitTest, point);
}
