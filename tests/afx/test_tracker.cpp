// CRectTracker around a selected item, in the style the graph gives it (a
// hatched border with resize handles outside): what a point hits, what it
// draws, the cursor only for the client area, and the Track loop.
#include "Surface.h"
#include "afx/afxext.h"
#include <vector>

TEST(RectTracker, HitsAndDrawingOfAHatchedTrackerWithHandlesOutside)
{
    const CRectTracker tracker(CRect(50, 50, 150, 100), CRectTracker::hatchedBorder | CRectTracker::resizeOutside);
    // Handles of 4 pixels stand outside the item, the border 3 pixels wide.
    CRect rectTrue;
    tracker.GetTrueRect(&rectTrue);
    EXPECT_EQ(CRect(47, 47, 153, 103), rectTrue);
    const struct
    {
        CPoint pt;
        int nHit;
    } cases[] = {
        { CPoint(100, 75), CRectTracker::hitMiddle },         // the item
        { CPoint(70, 48), CRectTracker::hitMiddle },          // the border between handles
        { CPoint(48, 48), CRectTracker::hitTopLeft },
        { CPoint(151, 101), CRectTracker::hitBottomRight },
        { CPoint(100, 48), CRectTracker::hitTop },            // sides long enough get a handle
        { CPoint(151, 75), CRectTracker::hitRight },
        { CPoint(46, 75), CRectTracker::hitNothing },
        { CPoint(200, 200), CRectTracker::hitNothing },
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.nHit, tracker.HitTest(c.pt)) << c.pt.x << "," << c.pt.y;

    // The border is hatched, the handles are solid (reaching one pixel into
    // the item), the rest of the item is untouched, and the context keeps
    // its objects.
    Dib dib(200, 150, WHITE);
    HGDIOBJ hBrush = ::GetCurrentObject(dib.DC()->m_hDC, OBJ_BRUSH);
    tracker.Draw(dib.DC());
    EXPECT_EQ(hBrush, ::GetCurrentObject(dib.DC()->m_hDC, OBJ_BRUSH));
    const int nHatch = dib.Count(60, 47, 90, 50, BLACK);
    EXPECT_GT(nHatch, 0);
    EXPECT_LT(nHatch, 30 * 3);
    EXPECT_EQ(16, dib.Count(47, 47, 51, 51, BLACK));
    EXPECT_EQ(98 * 48, dib.Count(51, 51, 149, 99, WHITE));

    // The cursor is the tracker's only over the client area.
    TestHost host;
    EXPECT_FALSE(tracker.SetCursor(host.Wnd(), HTCAPTION));
}

TEST(RectTracker, TrackMovesResizesKeepsTheMinimumAndCancels)
{
    TestHost host;
    HWND hWnd = host.Hwnd();
    // The loop takes what waits in the queue: moves, then a release or Escape.
    struct Queued
    {
        UINT nMessage;
        WPARAM wParam;
        LPARAM lParam;
    };
    auto track = [&](CRectTracker& tracker, CPoint pt, std::vector<Queued> msgs) {
        for (const Queued& msg : msgs)
            ::PostMessageA(hWnd, msg.nMessage, msg.wParam, msg.lParam);
        return tracker.Track(host.Wnd(), pt);
    };
    auto at = [](UINT nMessage, int x, int y) { return Queued{ nMessage, 0, MAKELPARAM(x, y) }; };
    CRectTracker tracker(CRect(50, 50, 150, 100), CRectTracker::hatchedBorder | CRectTracker::resizeOutside);

    // The bottom right handle drags that corner alone.
    EXPECT_TRUE(track(tracker, CPoint(151, 101), { at(WM_MOUSEMOVE, 171, 111), at(WM_LBUTTONUP, 171, 111) }));
    EXPECT_EQ(CRect(50, 50, 170, 110), tracker.m_rect);
    // The right side dragged past the left one stops at the minimum width.
    EXPECT_TRUE(track(tracker, CPoint(171, 80), { at(WM_MOUSEMOVE, 20, 80), at(WM_LBUTTONUP, 20, 80) }));
    EXPECT_EQ(CRect(50, 50, 50 + tracker.m_sizeMin.cx, 110), tracker.m_rect);
    // Escape puts the rectangle back; a press on nothing tracks nothing; the
    // capture is given back each time.
    const CRect rect = tracker.m_rect;
    EXPECT_FALSE(track(tracker, CPoint(48, 75), { at(WM_MOUSEMOVE, 90, 90), Queued{ WM_KEYDOWN, VK_ESCAPE, 0 } }));
    EXPECT_EQ(rect, tracker.m_rect);
    EXPECT_FALSE(tracker.Track(host.Wnd(), CPoint(300, 300)));
    EXPECT_TRUE(::GetCapture() == NULL);
}
