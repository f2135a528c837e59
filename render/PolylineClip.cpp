// Series lines reach the device through a walk that clips every segment
// against the plot rectangle itself and hands the device runs of at most
// 1000 points: the device never sees a coordinate outside the plot, and
// never a very long point list.
#include "graph/GraphPrv.h"
#include "render/PolylineClip.h"

namespace {

// Longest run of points handed to the device in one PolylineTo.
const int MAX_RUN_POINTS = 1000;

// Outcode bits of a point against the clip rectangle (inclusive edges).
const int OUT_LEFT = 1;
const int OUT_RIGHT = 2;
const int OUT_TOP = 4;
const int OUT_BOTTOM = 8;

inline int OutCode(const CRect& rect, const POINT& pt)
{
    return (pt.x < rect.left ? OUT_LEFT : 0) | (pt.x > rect.right ? OUT_RIGHT : 0) |
           (pt.y < rect.top ? OUT_TOP : 0) | (pt.y > rect.bottom ? OUT_BOTTOM : 0);
}

// a - b in 32 bits, wrapping as the machine does, widened to 64 bits.
inline LONGLONG Diff32(LONG a, LONG b)
{
    return (LONG)((ULONG)a - (ULONG)b);
}

// a + the low 32 bits of q, wrapping.
inline LONG AddLow32(LONG a, LONGLONG q)
{
    return (LONG)((ULONG)a + (ULONG)q);
}

// Where the line through pt1 and pt2 crosses the vertical line x: the y of
// that crossing, from a 64-bit product and a quotient truncated toward zero.
// Always measured from pt1, whichever end is being moved.
inline LONG CrossVertical(const POINT& pt1, const POINT& pt2, LONG x)
{
    return AddLow32(pt1.y, Diff32(x, pt1.x) * Diff32(pt2.y, pt1.y) / Diff32(pt2.x, pt1.x));
}

// The same for the horizontal line y: the x of the crossing.
inline LONG CrossHorizontal(const POINT& pt1, const POINT& pt2, LONG y)
{
    return AddLow32(pt1.x, Diff32(y, pt1.y) * Diff32(pt2.x, pt1.x) / Diff32(pt2.y, pt1.y));
}

// Moves one end of the segment pt1-pt2 (pt1 itself, or pt2 when bSecond)
// onto the rectangle's edge, trying the sides of nCode in the order left,
// right, top, bottom, each from the points as the earlier tries left them.
// The crossing is always computed from pt1, so the second end is clipped
// from the first as already clipped. True when a side moved the end.
inline bool ClipEnd(const CRect& rect, int nCode, POINT& pt1, POINT& pt2, bool bSecond)
{
    POINT& pt = bSecond ? pt2 : pt1;
    bool bMoved = false;
    if ((nCode & OUT_LEFT) && pt2.x != pt1.x) {
        LONG y = CrossVertical(pt1, pt2, rect.left);
        if (y >= rect.top && y <= rect.bottom) {
            pt.x = rect.left;
            pt.y = y;
            bMoved = true;
        }
    }
    if ((nCode & OUT_RIGHT) && pt2.x != pt1.x) {
        LONG y = CrossVertical(pt1, pt2, rect.right);
        if (y >= rect.top && y <= rect.bottom) {
            pt.x = rect.right;
            pt.y = y;
            bMoved = true;
        }
    }
    if ((nCode & OUT_TOP) && pt2.y != pt1.y) {
        LONG x = CrossHorizontal(pt1, pt2, rect.top);
        if (x >= rect.left && x <= rect.right) {
            pt.x = x;
            pt.y = rect.top;
            bMoved = true;
        }
    }
    if ((nCode & OUT_BOTTOM) && pt2.y != pt1.y) {
        LONG x = CrossHorizontal(pt1, pt2, rect.bottom);
        if (x >= rect.left && x <= rect.right) {
            pt.x = x;
            pt.y = rect.bottom;
            bMoved = true;
        }
    }
    return bMoved;
}

} // namespace

int CGraphPrv::ClipDrawLine(const CRect& rect, POINT& pt1, POINT& pt2, DWORD& dwFlags)
{
    dwFlags = 0;
    const int c1 = OutCode(rect, pt1);
    const int c2 = OutCode(rect, pt2);
    if ((c1 | c2) == 0)
        return 1;               // wholly inside
    if (c1 & c2)
        return 0;               // both ends beyond the same side
    if (c1 != 0) {
        if (!ClipEnd(rect, c1, pt1, pt2, false))
            return 0;           // passes by the rectangle
        dwFlags |= CLIP_MOVED_FIRST;
    }
    if (c2 == 0)
        return 1;
    if (!ClipEnd(rect, c2, pt1, pt2, true))
        return 0;
    dwFlags |= CLIP_MOVED_SECOND;
    return 1;
}

int CGraphPrv::DrawClippedPolyline(CPolylineSink& sink, const POINT* pPoints, int nCount)
{
    ASSERT(nCount < 2 || pPoints != NULL);
    if (nCount - 1 < 1)
        return 0;
    const CRect rect(m_rectPlot);
    const int iLastSegment = nCount - 2;
    int iRun = 0;              // the point at which the pending run starts
    bool bPenDown = false;     // the current position lies on that run
    int nResult = 0;
    for (int i = 0; i <= iLastSegment; i++) {
        POINT a = pPoints[i];
        POINT b = pPoints[i + 1];
        DWORD dwFlags;
        if (!ClipDrawLine(rect, a, b, dwFlags))
            continue;
        if ((dwFlags & CLIP_MOVED_FIRST) || !bPenDown) {
            iRun = i;
            sink.MoveTo(a);
            bPenDown = true;
        }
        if (i - iRun >= MAX_RUN_POINTS) {
            nResult = sink.PolylineTo(&pPoints[iRun + 1], i - iRun) ? 0 : 1;
            iRun = i;
        }
        if (dwFlags & CLIP_MOVED_SECOND) {
            // The segment leaves the rectangle: flush the run, end on the edge.
            sink.PolylineTo(&pPoints[iRun + 1], i - iRun);
            nResult = sink.LineTo(b) ? 0 : 1;
            bPenDown = false;
            continue;
        }
        if (i == iLastSegment)
            return sink.PolylineTo(&pPoints[iRun + 1], i - iRun + 1) ? 0 : 1;
    }
    return nResult;
}

int CGraphPrv::Polyline_Win98_Workaround(CDC* pDC, POINT* pPoints, int nCount)
{
    CDCPolylineSink sink(pDC);
    return DrawClippedPolyline(sink, pPoints, nCount);
}
