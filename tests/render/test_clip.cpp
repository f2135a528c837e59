// Line clipping and the polyline walk: ClipDrawLine on the cases of the
// outcode method, the device calls the walk makes (recorded through a sink
// that stands where the device context stands in production), and the walk
// on a real context, where nothing may land outside the plot rectangle.
#include "Surface.h"
#include "TestAccess.h"
#include "render/PolylineClip.h"

namespace {

// The clip rectangle of these tests, inclusive on all sides.
const CRect RECT_CLIP(10, 20, 110, 220);

POINT Pt(LONG x, LONG y)
{
    POINT pt = { x, y };
    return pt;
}

// Records the walk's calls instead of drawing: "M x,y" for MoveTo,
// "P first+count" for PolylineTo (first as an index into the caller's
// array), "L x,y" for LineTo. Each call reports the result set here.
class RecordingSink : public CPolylineSink
{
public:
    explicit RecordingSink(const POINT* pBase) : m_pBase(pBase) {}
    virtual void MoveTo(const POINT& pt) { m_calls.push_back(Str("M %ld,%ld", pt.x, pt.y)); }
    virtual BOOL PolylineTo(const POINT* pPoints, int nCount)
    {
        m_calls.push_back(Str("P %d+%d", (int)(pPoints - m_pBase), nCount));
        return m_bPolylineResult;
    }
    virtual BOOL LineTo(const POINT& pt)
    {
        m_calls.push_back(Str("L %ld,%ld", pt.x, pt.y));
        return m_bLineResult;
    }

    const POINT* m_pBase;
    std::vector<std::string> m_calls;
    BOOL m_bPolylineResult = TRUE;
    BOOL m_bLineResult = TRUE;
};

// Walks points through a graph whose plot rectangle is RECT_CLIP.
struct Walk
{
    explicit Walk(const std::vector<POINT>& points, BOOL bPolylineResult = TRUE, BOOL bLineResult = TRUE)
        : m_sink(points.data())
    {
        CGraphPrv graph;
        graph.m_rectPlot = RECT_CLIP;
        m_sink.m_bPolylineResult = bPolylineResult;
        m_sink.m_bLineResult = bLineResult;
        m_nResult = graph.DrawClippedPolyline(m_sink, points.data(), (int)points.size());
    }
    RecordingSink m_sink;
    int m_nResult;
};

} // namespace

TEST(ClipDrawLine, OutcodeCases)
{
    CGraphPrv graph;
    const DWORD F = CLIP_MOVED_FIRST, S = CLIP_MOVED_SECOND;
    const struct
    {
        POINT a, b;
        int nVisible;
        DWORD dwFlags;
        POINT aOut, bOut;   // when visible
        const char* pszWhat;
    } cases[] = {
        { Pt(20, 30), Pt(100, 200), 1, 0, Pt(20, 30), Pt(100, 200), "inside" },
        { Pt(110, 220), Pt(10, 20), 1, 0, Pt(110, 220), Pt(10, 20), "the right and bottom edges belong to it" },
        { Pt(5, 30), Pt(5, 100), 0, 0, {}, {}, "left of it" },
        { Pt(0, 0), Pt(300, 19), 0, 0, {}, {}, "above it" },
        { Pt(111, 0), Pt(200, 400), 0, 0, {}, {}, "right of it" },
        { Pt(0, 25), Pt(25, 0), 0, 0, {}, {}, "passing by the corner: no bit in common, no crossing" },
        // Vertical: only the top test applies, no division by the x difference.
        { Pt(50, 0), Pt(50, 100), 1, F, Pt(50, 20), Pt(50, 100), "entering through the top" },
        // Left: y = 0 + (10 - 0) * 130 / 60 = 21; then top, from (10, 21):
        // x = 10 + (20 - 21) * (60 - 10) / (130 - 21) = 10.
        { Pt(0, 0), Pt(60, 130), 1, F, Pt(10, 20), Pt(60, 130), "two outcode bits, left then top" },
        // From the first point: y = 100 + (110 - 60) * (200 - 100) / (200 - 60) = 135.7...,
        // truncated toward zero.
        { Pt(60, 100), Pt(200, 200), 1, S, Pt(60, 100), Pt(110, 135), "leaving through the right" },
        // Both ends clipped: the second from the first as already clipped,
        // (10, 70); y = 70 + (110 - 10) * (271 - 70) / (210 - 10) = 170.5, truncated.
        { Pt(0, 60), Pt(210, 271), 1, F | S, Pt(10, 70), Pt(110, 170), "the second end from the clipped first" },
        { Pt(0, 100), Pt(200, 100), 1, F | S, Pt(10, 100), Pt(110, 100), "crossing" },
    };
    for (const auto& c : cases) {
        POINT a = c.a, b = c.b;
        DWORD dwFlags = 0xDEAD;
        EXPECT_EQ(c.nVisible, CGraphTestAccess::ClipDrawLine(&graph, RECT_CLIP, a, b, dwFlags)) << c.pszWhat;
        EXPECT_EQ(c.dwFlags, dwFlags) << c.pszWhat;
        if (c.nVisible) {
            EXPECT_EQ(Str("%ld,%ld %ld,%ld", c.aOut.x, c.aOut.y, c.bOut.x, c.bOut.y),
                      Str("%ld,%ld %ld,%ld", a.x, a.y, b.x, b.y)) << c.pszWhat;
        }
    }
}

TEST(ClipDrawLine, ProductsBeyondThirtyTwoBitsAreExact)
{
    CGraphPrv graph;
    const LONG xFar = 1000000000;
    POINT a = Pt(-xFar, 20), b = Pt(xFar, 220);
    DWORD dwFlags = 0;
    EXPECT_EQ(1, CGraphTestAccess::ClipDrawLine(&graph, RECT_CLIP, a, b, dwFlags));
    EXPECT_EQ((DWORD)(CLIP_MOVED_FIRST | CLIP_MOVED_SECOND), dwFlags);
    // First point: y = 20 + (10 + 1e9) * 200 / 2e9 = 120.000001, a product of
    // about 2e11. Second, from the clipped first: y = 120 + 100 * 100 /
    // (1e9 - 10), which truncates to 120.
    EXPECT_EQ(Str("%ld,%ld %ld,%ld", 10L, 120L, 110L, 120L), Str("%ld,%ld %ld,%ld", a.x, a.y, b.x, b.y));
}

TEST(ClipDrawLine, TheSecondEndIsClippedFromTheFirst)
{
    // A segment that leaves through one edge: (50,50)-(150,53) in (0,0)-(100,100)
    // ends at (100,51), not at (100,52) as a clip from the far point would put it.
    CGraphPrv graph;
    POINT a = Pt(50, 50), b = Pt(150, 53);
    DWORD dwFlags = 0;
    EXPECT_EQ(1, CGraphTestAccess::ClipDrawLine(&graph, CRect(0, 0, 100, 100), a, b, dwFlags));
    EXPECT_EQ((DWORD)CLIP_MOVED_SECOND, dwFlags);
    EXPECT_EQ(Str("%ld,%ld %ld,%ld", 50L, 50L, 100L, 51L), Str("%ld,%ld %ld,%ld", a.x, a.y, b.x, b.y));
}

TEST(PolylineWalk, NothingToDraw)
{
    EXPECT_EQ(0, Walk({ Pt(50, 50) }).m_nResult);
    EXPECT_TRUE(Walk({ Pt(50, 50) }).m_sink.m_calls.empty());
    EXPECT_TRUE(Walk({ Pt(0, 0), Pt(5, 300), Pt(300, 300), Pt(300, 0) }).m_sink.m_calls.empty());
    CGraphPrv graph;
    RecordingSink sink(NULL);
    EXPECT_EQ(0, graph.DrawClippedPolyline(sink, NULL, 0));
    EXPECT_TRUE(sink.m_calls.empty());
}

TEST(PolylineWalk, RunsStraightFromTheCallersArray)
{
    EXPECT_EQ((std::vector<std::string>{ "M 20,30", "P 1+1" }), Walk({ Pt(20, 30), Pt(40, 50) }).m_sink.m_calls);

    // At most a thousand points a call: 1 to 1000, 1001 to 2000, 2001 to 2499.
    std::vector<POINT> points;
    for (int i = 0; i < 2500; i++)
        points.push_back(Pt(10 + i % 101, 20 + (i * 7) % 201));
    Walk w(points);
    EXPECT_EQ(0, w.m_nResult);
    EXPECT_EQ((std::vector<std::string>{ "M 10,20", "P 1+1000", "P 1001+1000", "P 2001+499" }), w.m_sink.m_calls);
}

TEST(PolylineWalk, LeavingAndComingBackDrawsTwoRuns)
{
    // Inside, inside, out to the right, back inside, inside: the run ends on
    // the right edge, and the next starts where the way back crosses it,
    // computed from the outer end: y = 100 + (110 - 200) * (150 - 100) / (60 - 200)
    // = 132.1..., truncated.
    Walk w({ Pt(20, 100), Pt(60, 100), Pt(200, 100), Pt(60, 150), Pt(40, 150) });
    EXPECT_EQ((std::vector<std::string>{ "M 20,100", "P 1+1", "L 110,100", "M 110,132", "P 3+2" }),
              w.m_sink.m_calls);

    // A segment across the whole rectangle: a move, an empty run and a line.
    EXPECT_EQ((std::vector<std::string>{ "M 10,100", "P 1+0", "L 110,100" }),
              Walk({ Pt(0, 100), Pt(200, 100) }).m_sink.m_calls);
}

TEST(PolylineWalk, TheResultIsThatOfTheLastCallThatCounts)
{
    const std::vector<POINT> leaving = { Pt(20, 100), Pt(60, 100), Pt(200, 100) };
    // A last segment that leaves ends with LineTo, whose failure is the
    // result; a failed flush of the run before it does not count.
    EXPECT_EQ(1, Walk(leaving, TRUE, FALSE).m_nResult);
    EXPECT_EQ(0, Walk(leaving, FALSE, TRUE).m_nResult);
    // A run that stays inside ends with PolylineTo, whose failure is the result.
    EXPECT_EQ(1, Walk({ Pt(20, 100), Pt(60, 100), Pt(80, 120) }, FALSE, TRUE).m_nResult);
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
    const CRect rectReach(RECT_CLIP.left - 1, RECT_CLIP.top - 1, RECT_CLIP.right + 1, RECT_CLIP.bottom + 1);
    EXPECT_EQ(0, dib.CountOtherOutside(rectReach, WHITE));
    EXPECT_GT(dib.Count(RECT_CLIP.left, RECT_CLIP.top, RECT_CLIP.right + 1, RECT_CLIP.bottom + 1, BLUE), 100);
    // The segment inside from (150, 5) to (60, 60) is there, clipped at the top.
    EXPECT_EQ(BLUE, dib.At(60, 60));
}
