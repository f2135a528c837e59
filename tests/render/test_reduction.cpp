// Point reduction: the pixel array of a series against each point's own
// pixel from the public transform with every repeat of the point before it
// left out, and the region edges on the kept point that stands for them; on
// data with many runs of duplicates, in lengths that end in every remainder
// of a group of four.
#include "Surface.h"

namespace {

struct Expected
{
    std::vector<POINT> aPoints;
    std::vector<long> aStart, aEnd;   // region edges, in list order
};

// What the reduction is to give for the points the series shows now.
Expected Reduced(PlotFixture& f, CPlotData* pData)
{
    Expected e;
    std::vector<long> aStandsFor;   // the kept entry that stands for each point
    for (long i = 0; i < pData->m_lPoints; i++) {
        const long j = pData->m_lStartIndex + i;
        const CPoint pt = f.Px(pData->m_pfXData[j], pData->m_pfYData[j]);
        if (e.aPoints.empty() || pt != CPoint(e.aPoints.back()))
            e.aPoints.push_back(pt);
        aStandsFor.push_back((long)e.aPoints.size() - 1);
    }
    // An edge past the last point (left by an update with fewer points)
    // stays inside the array.
    const long nLast = (long)aStandsFor.size() - 1;
    POSITION pos = pData->m_listHighlights.GetHeadPosition();
    while (pos != NULL) {
        CHighlightRegionData* pRegion = pData->m_listHighlights.GetNext(pos);
        e.aStart.push_back(aStandsFor[(size_t)std::min(pRegion->m_lStart, nLast)]);
        e.aEnd.push_back(aStandsFor[(size_t)std::min(pRegion->m_lEnd, nLast)]);
    }
    return e;
}

void ExpectReduced(PlotFixture& f, CPlotData* pData)
{
    f.Prv()->OptimizePoints(pData);
    const Expected e = Reduced(f, pData);
    ASSERT_EQ((long)e.aPoints.size(), pData->m_lPointCount);
    ASSERT_TRUE(pData->m_pPointArray != NULL);
    for (long i = 0; i < pData->m_lPointCount; i++) {
        ASSERT_EQ(e.aPoints[(size_t)i].x, pData->m_pPointArray[i].x) << "point " << i;
        ASSERT_EQ(e.aPoints[(size_t)i].y, pData->m_pPointArray[i].y) << "point " << i;
    }
    size_t r = 0;
    POSITION pos = pData->m_listHighlights.GetHeadPosition();
    while (pos != NULL) {
        CHighlightRegionData* pRegion = pData->m_listHighlights.GetNext(pos);
        EXPECT_EQ(e.aStart[r], pRegion->m_lPixelStart) << "region " << r;
        EXPECT_EQ(e.aEnd[r], pRegion->m_lPixelEnd) << "region " << r;
        r++;
    }
}

// Data that steps along in runs: a run of k points on one pixel, then a jump.
void MakeRuns(long n, std::vector<float>& x, std::vector<float>& y)
{
    unsigned int s = 12345;
    float fX = 0.0f, fY = 5.0f;
    for (long i = 0; i < n; i++) {
        s = s * 1103515245u + 12345u;
        if ((s >> 16) % 4 == 0) {
            fX += 0.01f;
            fY = (float)((s >> 8) % 1000) / 100.0f;
        }
        x.push_back(fX);
        y.push_back(fY);
    }
}

} // namespace

TEST(PointReduction, AllPointsEqualLeaveOneEntryAndCollapseTheRegions)
{
    PlotFixture f;
    std::vector<float> x(50, 0.5f), y(50, 5.0f);
    CPlotData* pData = f.Add("flat", x, y, BLUE);
    CHighlightRegionData* pA = PlotFixture::AddRegion(pData, 0, 10, MAGENTA, PS_SOLID);
    CHighlightRegionData* pB = PlotFixture::AddRegion(pData, 20, 49, MAGENTA, PS_SOLID);
    f.Prv()->OptimizePoints(pData);
    EXPECT_EQ(1, pData->m_lPointCount);
    EXPECT_EQ(0, pA->m_lPixelStart);
    EXPECT_EQ(0, pA->m_lPixelEnd);
    EXPECT_EQ(0, pB->m_lPixelStart);
    EXPECT_EQ(0, pB->m_lPixelEnd);
}

TEST(PointReduction, RegionEdgesFollowTheDroppedPoints)
{
    PlotFixture f;
    std::vector<float> x, y;
    MakeRuns(3000, x, y);
    CPlotData* pData = f.Add("regions", x, y, BLUE);
    // Edges on kept and on dropped points, a region inside one run, a
    // region at the very start and one reaching the last point.
    const long aEdges[][2] = { { 0, 7 }, { 13, 14 }, { 100, 400 }, { 401, 402 }, { 1500, 2999 }, { 2998, 2999 } };
    for (const long* pEdge : aEdges)
        PlotFixture::AddRegion(pData, pEdge[0], pEdge[1], MAGENTA, PS_SOLID);
    ExpectReduced(f, pData);
    ASSERT_LT(pData->m_lPointCount, 1500);   // the data has runs to drop

    // Fewer points, ending in each remainder of four, and regions past the end.
    for (long n = 1; n <= 8; n++) {
        ASSERT_EQ(1, f.m_graph.UpdatePlotData("regions", x.data(), y.data(), 0, 990 + n));
        ExpectReduced(f, pData);
    }
    ASSERT_EQ(1, f.m_graph.UpdatePlotData("regions", x.data(), y.data(), 500, 1200));
    ExpectReduced(f, pData);
    EXPECT_EQ(f.Px(x[500], y[500]).x, pData->m_pPointArray[0].x);
}

TEST(PointReduction, EverySeriesOnceAndMissingDataKeepsTheOldPixels)
{
    PlotFixture f;
    CPlotData* pA = f.Add("a", std::vector<float>{ 0.1f, 0.1f, 0.9f }, std::vector<float>{ 1.0f, 1.0f, 9.0f }, BLUE);
    CPlotData* pB = f.Add("b", std::vector<float>{ 0.2f, 0.8f }, std::vector<float>{ 2.0f, 8.0f }, BLUE);
    f.Prv()->m_bPointsStale = TRUE;
    f.Prv()->OptimizePlotData();
    EXPECT_FALSE(f.Prv()->m_bPointsStale);
    EXPECT_EQ(2, pA->m_lPointCount);
    EXPECT_EQ(f.Px(0.8, 8.0).y, pB->m_pPointArray[1].y);

    POINT* pBefore = pA->m_pPointArray;
    const POINT ptFirst = pBefore[0];
    ASSERT_EQ(1, f.m_graph.UpdatePlotData("a", (float*)NULL, (float*)NULL, 0, 3));
    f.Prv()->OptimizePoints(pA);
    EXPECT_EQ(pBefore, pA->m_pPointArray);
    EXPECT_EQ(2, pA->m_lPointCount);
    EXPECT_EQ(ptFirst.x, pA->m_pPointArray[0].x);
}

TEST(PointReduction, WindowsNtFamilyHasNoPlottingFlagsAndNoClamp)
{
    class CFlagProbe : public CGraphPrv
    {
    public:
        using CGraphPrv::SetFGPlot;
        using CGraphPrv::IsFGPlotting;
        using CGraphPrv::DelayFG;
    };
    CFlagProbe graph;
    ASSERT_FALSE(graph.IsWin98());
    ASSERT_EQ(0u, ::GetVersion() & 0x80000000u);
    graph.SetFGPlot(true);
    EXPECT_FALSE(graph.IsFGPlotting());
    graph.m_bFGPlot = true;   // even with a flag set by hand the wait returns at once
    graph.DelayFG();
    // Far-away points are not clamped to the 16-bit range.
    PlotFixture f;
    CPlotData* pData = f.Add("far", std::vector<float>{ 0.5f, 1000.0f }, std::vector<float>{ 5.0f, 5.0f }, BLUE);
    f.Prv()->OptimizePoints(pData);
    EXPECT_GT(pData->m_pPointArray[1].x, 8192);
}
