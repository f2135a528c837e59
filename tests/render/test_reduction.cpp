// Point reduction: the pixel array of a series against a literal walk of the
// reduction's steps (transform with the rounding term 0.50001, drop a point
// equal to the one kept before it, move the region edges down as points are
// dropped), on data with many runs of duplicates.
#include "Surface.h"
#include "TestAccess.h"
#include <limits>

namespace {

struct Expected
{
    std::vector<POINT> aPoints;
    std::vector<long> aStart, aEnd;   // region edges, in list order
};

// The reduction walk written out step by step, with the edges kept inside
// the array.
Expected Reference(CGraphPrv* pGraph, CPlotData* pData)
{
    Expected e;
    double dXScale, dXOffset, dYScale, dYOffset;
    CGraphTestAccess::HorzXform(pGraph, &dXScale, &dXOffset);
    dXOffset += 0.50001;
    CGraphTestAccess::VertXform(pGraph, &dYScale, &dYOffset, pData->m_nYAxis);
    dYOffset += 0.50001;

    std::vector<long> aStart, aEnd;
    POSITION pos = pData->m_listHighlights.GetHeadPosition();
    while (pos != NULL) {
        CHighlightRegionData* pRegion = pData->m_listHighlights.GetNext(pos);
        aStart.push_back(pRegion->m_lStart);
        aEnd.push_back(pRegion->m_lEnd);
    }

    std::vector<POINT> a((size_t)pData->m_lPoints);
    long iOut = 0;
    for (long i = 0; i < pData->m_lPoints; i++, iOut++) {
        const long j = pData->m_lStartIndex + i;
        a[(size_t)iOut].x = (int)(dXScale * pData->m_pfXData[j] + dXOffset);
        a[(size_t)iOut].y = (int)(dYOffset - dYScale * pData->m_pfYData[j]);
        if (iOut > 0 && a[(size_t)iOut].x == a[(size_t)iOut - 1].x && a[(size_t)iOut].y == a[(size_t)iOut - 1].y) {
            iOut--;
            for (size_t r = 0; r < aStart.size(); r++) {
                if (iOut < aStart[r])
                    aStart[r]--;
                if (iOut < aEnd[r])
                    aEnd[r]--;
            }
        }
    }
    a.resize((size_t)iOut);
    e.aPoints = a;
    for (size_t r = 0; r < aStart.size(); r++) {
        e.aStart.push_back(std::max(0L, std::min(aStart[r], iOut - 1)));
        e.aEnd.push_back(std::max(0L, std::min(aEnd[r], iOut - 1)));
    }
    return e;
}

void ExpectMatches(const Expected& e, CPlotData* pData)
{
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
    f.Prv()->OptimizePoints(pData);
    ExpectMatches(Reference(f.Prv(), pData), pData);

    // A region past the end (left by an update with fewer points) stays inside the array.
    float* pfX = pData->m_pfXData;
    float* pfY = pData->m_pfYData;
    ASSERT_EQ(1, f.m_graph.UpdatePlotData("regions", pfX, pfY, 0, 1000));
    f.Prv()->OptimizePoints(pData);
    ExpectMatches(Reference(f.Prv(), pData), pData);
    POSITION pos = pData->m_listHighlights.GetTailPosition();
    CHighlightRegionData* pLast = pData->m_listHighlights.GetPrev(pos);
    EXPECT_EQ(pData->m_lPointCount - 1, pLast->m_lPixelStart);
    EXPECT_EQ(pData->m_lPointCount - 1, pLast->m_lPixelEnd);
}

TEST(PointReduction, TheFirstIndexOfTheSeriesIsHonoured)
{
    PlotFixture f;
    std::vector<float> x, y;
    MakeRuns(2000, x, y);
    CPlotData* pData = f.Add("offset", x, y, BLUE);
    float* pfX = pData->m_pfXData;
    float* pfY = pData->m_pfYData;
    ASSERT_EQ(1, f.m_graph.UpdatePlotData("offset", pfX, pfY, 500, 1200));
    f.Prv()->OptimizePoints(pData);
    Expected e = Reference(f.Prv(), pData);
    ExpectMatches(e, pData);
    EXPECT_EQ(CGraphTestAccess::DataToPixelX(f.Prv(), x[500]), pData->m_pPointArray[0].x);
}

TEST(PointReduction, ExtremeValuesAndOddLengthsMatchTheLiteralWalk)
{
    // Noise with infinities, not-a-numbers and values far beyond the limits,
    // in lengths that end in every remainder of a group of four.
    PlotFixture f;
    const float fInf = std::numeric_limits<float>::infinity();
    const float fNaN = std::numeric_limits<float>::quiet_NaN();
    const float aSpecial[] = { fInf, -fInf, fNaN, 1e30f, -1e30f, 3e9f };
    unsigned int s = 99;
    for (long n = 1; n <= 9; n++) {
        std::vector<float> x, y;
        for (long i = 0; i < 4093 + n; i++) {
            s = s * 1103515245u + 12345u;
            const unsigned int r = s >> 8;
            x.push_back(r % 97 == 0 ? aSpecial[r % 6] : (float)(r % 1000) / 1000.0f);
            y.push_back(r % 89 == 0 ? aSpecial[(r / 7) % 6] : (float)(r % 7));
        }
        CString strName;
        strName.Format("noise %ld", n);
        CPlotData* pData = f.Add(strName, x, y, BLUE);
        PlotFixture::AddRegion(pData, 5, 17 + n, MAGENTA, PS_SOLID);
        PlotFixture::AddRegion(pData, 2000, 4000 + n, MAGENTA, PS_SOLID);
        f.Prv()->OptimizePoints(pData);
        ExpectMatches(Reference(f.Prv(), pData), pData);
    }
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
