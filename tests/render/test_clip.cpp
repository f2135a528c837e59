// Line clipping and the polyline walk: ClipDrawLine on the cases of the
// outcode method, the device calls the walk makes (recorded through a sink
// that stands where the device context stands in production), and the walk
// on a real context, where nothing may land outside the plot rectangle.
#include "RenderTestUtil.h"
#include "render/PolylineClip.h"
#include <string>

namespace {

// The clip rectangle of these tests, inclusive on all sides.
const CRect RECT_CLIP(10, 20, 110, 220);

struct ClipResult
{
    int nVisible;
    POINT a, b;
    DWORD dwFlags;
};

ClipResult Clip(CGraphPrv& graph, POINT a, POINT b)
{
    ClipResult r;
    r.a = a;
    r.b = b;
    r.dwFlags = 0xDEAD;
    r.nVisible = graph.ClipDrawLine(RECT_CLIP, r.a, r.b, r.dwFlags);
    return r;
}

POINT Pt(LONG x, LONG y)
{
    POINT pt = { x, y };
    return pt;
}

// One device call of the walk.
struct Call
{
    char cKind;           // 'M' MoveTo, 'P' PolylineTo, 'L' LineTo
    POINT pt;             // MoveTo and LineTo
    const POINT* pFirst;  // PolylineTo: where its points start
    int nCount;           // PolylineTo: how many
};

// Records the walk's calls instead of drawing; each call reports bResult.
class RecordingSink : public CPolylineSink
{
public:
    virtual void MoveTo(const POINT& pt) { m_aCalls.push_back(Call{ 'M', pt, NULL, 0 }); }
    virtual BOOL PolylineTo(const POINT* pPoints, int nCount)
    {
        m_aCalls.push_back(Call{ 'P', Pt(0, 0), pPoints, nCount });
        return m_bPolylineResult;
    }
    virtual BOOL LineTo(const POINT& pt)
    {
        m_aCalls.push_back(Call{ 'L', pt, NULL, 0 });
        return m_bLineResult;
    }

    // The kinds of the calls in order, as "MPPL".
    std::string Kinds() const
    {
        std::string s;
        for (const Call& c : m_aCalls)
            s += c.cKind;
        return s;
    }

    std::vector<Call> m_aCalls;
    BOOL m_bPolylineResult = TRUE;
    BOOL m_bLineResult = TRUE;
};

// A graph whose plot rectangle is RECT_CLIP.
class WalkFixture
{
public:
    WalkFixture() { m_graph.m_rectPlot = RECT_CLIP; }
    int Walk(const std::vector<POINT>& points) { return m_graph.DrawClippedPolyline(m_sink, points.data(), (int)points.size()); }
    CGraphPrv m_graph;
    RecordingSink m_sink;
};

} // namespace

TEST(ClipDrawLine, InsideSegmentsAndEdgePointsAreLeftAlone)
{
    CGraphPrv graph;
    ClipResult r = Clip(graph, Pt(20, 30), Pt(100, 200));
    EXPECT_EQ(1, r.nVisible);
    EXPECT_EQ(0u, r.dwFlags);
    // The right and bottom edges belong to the rectangle.
    r = Clip(graph, Pt(110, 220), Pt(10, 20));
    EXPECT_EQ(1, r.nVisible);
    EXPECT_EQ(0u, r.dwFlags);
    EXPECT_EQ(110, r.a.x);
    EXPECT_EQ(220, r.a.y);
}

TEST(ClipDrawLine, SegmentsBeyondOneSideAreRejectedByTheOutcodes)
{
    CGraphPrv graph;
    ClipResult r = Clip(graph, Pt(5, 30), Pt(5, 100));        // vertical, left of the rectangle
    EXPECT_EQ(0, r.nVisible);
    EXPECT_EQ(0u, r.dwFlags);
    r = Clip(graph, Pt(0, 0), Pt(300, 19));                   // above it
    EXPECT_EQ(0, r.nVisible);
    r = Clip(graph, Pt(111, 0), Pt(200, 400));                // right of it
    EXPECT_EQ(0, r.nVisible);
}

TEST(ClipDrawLine, AnEnteringSegmentHasItsFirstPointMovedOntoTheEdge)
{
    CGraphPrv graph;
    // Vertical through the top: only the top test applies, no division by the x difference.
    ClipResult r = Clip(graph, Pt(50, 0), Pt(50, 100));
    EXPECT_EQ(1, r.nVisible);
    EXPECT_EQ((DWORD)CLIP_MOVED_FIRST, r.dwFlags);
    EXPECT_EQ(50, r.a.x);
    EXPECT_EQ(20, r.a.y);
    EXPECT_EQ(50, r.b.x);
    EXPECT_EQ(100, r.b.y);

    // Two outcode bits: the left test moves the point first, the top test
    // then starts from there. Left: y = 0 + (10 - 0) * 130 / 60 = 21.
    // Top, from (10, 21): x = 10 + (20 - 21) * (60 - 10) / (130 - 21) = 10.
    r = Clip(graph, Pt(0, 0), Pt(60, 130));
    EXPECT_EQ(1, r.nVisible);
    EXPECT_EQ((DWORD)CLIP_MOVED_FIRST, r.dwFlags);
    EXPECT_EQ(10, r.a.x);
    EXPECT_EQ(20, r.a.y);
}

TEST(ClipDrawLine, ALeavingSegmentHasItsSecondPointMoved)
{
    CGraphPrv graph;
    // From (60, 100) out to (200, 200): right edge at
    // y = 200 + (110 - 200) * (100 - 200) / (60 - 200) = 200 - 64.28..., truncated toward zero.
    ClipResult r = Clip(graph, Pt(60, 100), Pt(200, 200));
    EXPECT_EQ(1, r.nVisible);
    EXPECT_EQ((DWORD)CLIP_MOVED_SECOND, r.dwFlags);
    EXPECT_EQ(110, r.b.x);
    EXPECT_EQ(136, r.b.y);
    EXPECT_EQ(60, r.a.x);
    EXPECT_EQ(100, r.a.y);
}

TEST(ClipDrawLine, ACrossingSegmentHasBothPointsMoved)
{
    CGraphPrv graph;
    ClipResult r = Clip(graph, Pt(0, 100), Pt(200, 100));
    EXPECT_EQ(1, r.nVisible);
    EXPECT_EQ((DWORD)(CLIP_MOVED_FIRST | CLIP_MOVED_SECOND), r.dwFlags);
    EXPECT_EQ(10, r.a.x);
    EXPECT_EQ(100, r.a.y);
    EXPECT_EQ(110, r.b.x);
    EXPECT_EQ(100, r.b.y);
}

TEST(ClipDrawLine, ASegmentPassingByTheCornerIsNotVisible)
{
    CGraphPrv graph;
    // Left of the rectangle to above it, missing its top left corner: no
    // outcode bit in common, and no side gives a crossing within the edges.
    ClipResult r = Clip(graph, Pt(0, 25), Pt(25, 0));
    EXPECT_EQ(0, r.nVisible);
    EXPECT_EQ(0u, r.dwFlags);
}

TEST(ClipDrawLine, ProductsBeyondThirtyTwoBitsAreExact)
{
    CGraphPrv graph;
    const LONG xFar = 1000000000;
    ClipResult r = Clip(graph, Pt(-xFar, 20), Pt(xFar, 220));
    EXPECT_EQ(1, r.nVisible);
    EXPECT_EQ((DWORD)(CLIP_MOVED_FIRST | CLIP_MOVED_SECOND), r.dwFlags);
    // First point: y = 20 + (10 + xFar) * 200 / (2 xFar), a product of about 2e11.
    const LONG y1 = (LONG)(20 + (10LL + xFar) * 200 / (2LL * xFar));
    EXPECT_EQ(10, r.a.x);
    EXPECT_EQ(y1, r.a.y);
    // Second point, toward the clipped first: truncation toward zero.
    const LONG y2 = (LONG)(220 + (110LL - xFar) * (y1 - 220) / (10LL - xFar));
    EXPECT_EQ(110, r.b.x);
    EXPECT_EQ(y2, r.b.y);
}

TEST(PolylineWalk, FewerThanTwoPointsMakeNoCall)
{
    WalkFixture f;
    EXPECT_EQ(0, f.Walk(std::vector<POINT>{ Pt(50, 50) }));
    EXPECT_EQ(0, f.m_graph.DrawClippedPolyline(f.m_sink, NULL, 0));
    EXPECT_TRUE(f.m_sink.m_aCalls.empty());
}

TEST(PolylineWalk, TwoPointsGiveAMoveAndOnePoint)
{
    WalkFixture f;
    std::vector<POINT> points = { Pt(20, 30), Pt(40, 50) };
    EXPECT_EQ(0, f.Walk(points));
    ASSERT_EQ("MP", f.m_sink.Kinds());
    EXPECT_EQ(20, f.m_sink.m_aCalls[0].pt.x);
    EXPECT_EQ(30, f.m_sink.m_aCalls[0].pt.y);
    EXPECT_EQ(&points[1], f.m_sink.m_aCalls[1].pFirst);
    EXPECT_EQ(1, f.m_sink.m_aCalls[1].nCount);
}

TEST(PolylineWalk, LongRunsGoOutInCallsOfAtMostAThousandPoints)
{
    WalkFixture f;
    std::vector<POINT> points;
    for (int i = 0; i < 2500; i++)
        points.push_back(Pt(10 + i % 101, 20 + (i * 7) % 201));
    EXPECT_EQ(0, f.Walk(points));
    ASSERT_EQ("MPPP", f.m_sink.Kinds());
    EXPECT_EQ(points[0].x, f.m_sink.m_aCalls[0].pt.x);
    // Points 1 to 1000, 1001 to 2000, 2001 to 2499, straight from the caller's array.
    EXPECT_EQ(&points[1], f.m_sink.m_aCalls[1].pFirst);
    EXPECT_EQ(1000, f.m_sink.m_aCalls[1].nCount);
    EXPECT_EQ(&points[1001], f.m_sink.m_aCalls[2].pFirst);
    EXPECT_EQ(1000, f.m_sink.m_aCalls[2].nCount);
    EXPECT_EQ(&points[2001], f.m_sink.m_aCalls[3].pFirst);
    EXPECT_EQ(499, f.m_sink.m_aCalls[3].nCount);
}

TEST(PolylineWalk, LeavingAndComingBackDrawsTwoRuns)
{
    WalkFixture f;
    // Inside, inside, out to the right, back inside, inside.
    std::vector<POINT> points = { Pt(20, 100), Pt(60, 100), Pt(200, 100), Pt(60, 150), Pt(40, 150) };
    EXPECT_EQ(0, f.Walk(points));
    ASSERT_EQ("MPLMP", f.m_sink.Kinds());
    const std::vector<Call>& c = f.m_sink.m_aCalls;
    EXPECT_EQ(20, c[0].pt.x);
    EXPECT_EQ(&points[1], c[1].pFirst);
    EXPECT_EQ(1, c[1].nCount);
    // The run ends on the right edge...
    EXPECT_EQ(110, c[2].pt.x);
    EXPECT_EQ(100, c[2].pt.y);
    // ...and the next starts where the way back crosses it, computed from
    // the outer end: y = 100 + (110 - 200) * (150 - 100) / (60 - 200).
    EXPECT_EQ(110, c[3].pt.x);
    EXPECT_EQ((LONG)(100 + (110LL - 200) * (150 - 100) / (60 - 200)), c[3].pt.y);
    EXPECT_EQ(&points[3], c[4].pFirst);
    EXPECT_EQ(2, c[4].nCount);
}

TEST(PolylineWalk, ACrossingSegmentGivesAMoveAnEmptyRunAndALine)
{
    WalkFixture f;
    std::vector<POINT> points = { Pt(0, 100), Pt(200, 100) };
    EXPECT_EQ(0, f.Walk(points));
    ASSERT_EQ("MPL", f.m_sink.Kinds());
    EXPECT_EQ(10, f.m_sink.m_aCalls[0].pt.x);
    EXPECT_EQ(0, f.m_sink.m_aCalls[1].nCount);
    EXPECT_EQ(110, f.m_sink.m_aCalls[2].pt.x);
}

TEST(PolylineWalk, SegmentsOutsideDrawNothing)
{
    WalkFixture f;
    std::vector<POINT> points = { Pt(0, 0), Pt(5, 300), Pt(300, 300), Pt(300, 0) };
    EXPECT_EQ(0, f.Walk(points));
    EXPECT_TRUE(f.m_sink.m_aCalls.empty());
}

TEST(PolylineWalk, TheResultIsThatOfTheLastCallThatCounts)
{
    // A last segment that leaves ends with LineTo, whose failure is the result.
    WalkFixture leaving;
    leaving.m_sink.m_bLineResult = FALSE;
    EXPECT_EQ(1, leaving.Walk(std::vector<POINT>{ Pt(20, 100), Pt(60, 100), Pt(200, 100) }));
    EXPECT_EQ("MPL", leaving.m_sink.Kinds());

    // A failed flush of the run before it does not count.
    WalkFixture flushed;
    flushed.m_sink.m_bPolylineResult = FALSE;
    EXPECT_EQ(0, flushed.Walk(std::vector<POINT>{ Pt(20, 100), Pt(60, 100), Pt(200, 100) }));

    // A run that stays inside ends with PolylineTo, whose failure is the result.
    WalkFixture inside;
    inside.m_sink.m_bPolylineResult = FALSE;
    EXPECT_EQ(1, inside.Walk(std::vector<POINT>{ Pt(20, 100), Pt(60, 100), Pt(80, 120) }));
}

TEST(PolylineWalk, OnAContextNothingLandsOutsideThePlot)
{
    Dib dib(200, 300, WHITE);
    CGraphPrv graph;
    graph.m_rectPlot = RECT_CLIP;
    std::vector<POINT> points = { Pt(-50, 10), Pt(60, 120), Pt(190, 280), Pt(150, 5), Pt(60, 60), Pt(0, 250) };
    {
        CPen pen(PS_SOLID, 3, BLUE);
        CSelectGuard selectPen(dib.DC(), &pen);
        EXPECT_EQ(0, graph.Polyline_Win98_Workaround(dib.DC(), points.data(), (int)points.size()));
    }
    // A 3-pixel pen reaches one pixel beyond the coordinates it is given.
    CRect rectReach(RECT_CLIP.left - 1, RECT_CLIP.top - 1, RECT_CLIP.right + 1, RECT_CLIP.bottom + 1);
    EXPECT_EQ(0, dib.CountOtherOutside(rectReach, WHITE));
    EXPECT_GT(dib.Count(RECT_CLIP.left, RECT_CLIP.top, RECT_CLIP.right + 1, RECT_CLIP.bottom + 1, BLUE), 100);
    // The segment inside from (150, 5) to (60, 60) is there, clipped at the top.
    EXPECT_EQ(BLUE, dib.At(60, 60));
}
