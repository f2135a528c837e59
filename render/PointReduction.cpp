// Point reduction: the float data of a series become its pixel array, and a
// point that lands on the same pixel as the point kept before it is dropped.
// Only consecutive duplicates go; nothing else is thinned out.
//
// A dropped point equals the kept point before it in both coordinates, so
// "differs from the last kept point" is the same test as "differs from the
// point just before it". The loop therefore needs no branch per point: it
// stores every point at the write index and advances the index by the result
// of that comparison. Where the processor has 256-bit integer registers the
// walk goes four points at a time; elsewhere the pixels of a block are
// computed into a small buffer first, a loop the compiler turns into vector
// code. Both make the same double products and sums as the plain formula:
// neither instruction set used here has a fused multiply-add to round them
// differently.
#include "graph/GraphPrv.h"
#include "axes/AxesMath.h"
#include "series/PlotData.h"
#include "render/HighlightRegionData.h"
#include <algorithm>
#include <malloc.h>
#include <string.h>
#include <thread>
#include <vector>

// The vector walk needs 256-bit integer registers (AVX2). It is compiled for
// them on GCC for x86-64 and chosen at run time where the processor has them.
#if defined(__GNUC__) && defined(__x86_64__)
#include <immintrin.h>
#define ZPX_HAVE_AVX2_KERNEL 1
#define ZPX_TARGET_AVX2 __attribute__((target("avx2")))
#else
#define ZPX_HAVE_AVX2_KERNEL 0
#endif

namespace {

// Points transformed in one block: small enough to stay in the first-level cache.
const long XFORM_BLOCK = 512;

// Bounds of the pixel coordinates on the 16-bit graphics of Windows 9x.
const int WIN9X_LOW = -8192;
const int WIN9X_HIGH = 8192;
const int WIN9X_HIGH_VALUE = 8191;

// The transform of one series, with the rounding term in both offsets.
struct PIXELXFORM
{
    double dXScale, dXOffset;   // pixel x = (int)(dXScale * x + dXOffset)
    double dYScale, dYOffset;   // pixel y = (int)(dYOffset - dYScale * y)
};

// A pixel as one 64-bit word with the layout of a POINT (x low, y high), so
// that a point is stored and compared in one operation.
typedef unsigned long long PIXELWORD;

inline PIXELWORD MakePixelWord(int x, int y)
{
    return (PIXELWORD)(unsigned int)x | ((PIXELWORD)(unsigned int)y << 32);
}

inline int ClampWin9x(int v)
{
    return v < WIN9X_LOW ? WIN9X_LOW : (v > WIN9X_HIGH ? WIN9X_HIGH_VALUE : v);
}

// The pixels of n points into pWords. Straight-line code over the block.
template <bool bClamp>
void XformBlock(const float* pfX, const float* pfY, long n, const PIXELXFORM& xf, PIXELWORD* pWords)
{
    const double dXScale = xf.dXScale, dXOffset = xf.dXOffset;
    const double dYScale = xf.dYScale, dYOffset = xf.dYOffset;
    for (long i = 0; i < n; i++) {
        int x = (int)(dXScale * (double)pfX[i] + dXOffset);
        int y = (int)(dYOffset - dYScale * (double)pfY[i]);
        if (bClamp) {
            x = ClampWin9x(x);
            y = ClampWin9x(y);
        }
        pWords[i] = MakePixelWord(x, y);
    }
}

// Walks data points [iFrom, iTo) into the pixel array, keeping a point only
// when it differs from the one before it. iOut is the write index, wPrev the
// pixel of the point before iFrom; both are carried from call to call.
// The write index never passes the data index, so every store lands on an
// entry at or below the point being walked.
template <bool bClamp>
void ReduceRangeGeneric(const float* pfX, const float* pfY, long iFrom, long iTo, const PIXELXFORM& xf,
                        POINT* pOut, long& iOut, PIXELWORD& wPrev)
{
    PIXELWORD aBlock[XFORM_BLOCK];
    long k = iOut;
    PIXELWORD wLast = wPrev;
    for (long iBlock = iFrom; iBlock < iTo; iBlock += XFORM_BLOCK) {
        const long n = std::min(XFORM_BLOCK, iTo - iBlock);
        XformBlock<bClamp>(pfX + iBlock, pfY + iBlock, n, xf, aBlock);
        for (long i = 0; i < n; i++) {
            const PIXELWORD w = aBlock[i];
            memcpy(&pOut[k], &w, sizeof(w));
            k += (w != wLast);
            wLast = w;
        }
    }
    iOut = k;
    wPrev = wLast;
}

typedef void (*REDUCERANGEPROC)(const float* pfX, const float* pfY, long iFrom, long iTo, const PIXELXFORM& xf,
                                POINT* pOut, long& iOut, PIXELWORD& wPrev);

#if ZPX_HAVE_AVX2_KERNEL

// How many points ahead of the walk the data are asked for.
const long PREFETCH_AHEAD = 512;

// Entries 0 to 7 of the 32-bit lanes that gather the kept points of a group
// of four to the front, for each mask of kept points (bit j: point j kept).
struct KEEPTABLE
{
    int aLanes[16][8];
    unsigned char aCount[16];
    KEEPTABLE()
    {
        for (int nMask = 0; nMask < 16; nMask++) {
            int n = 0;
            for (int j = 0; j < 4; j++)
                if (nMask & (1 << j)) {
                    aLanes[nMask][2 * n] = 2 * j;
                    aLanes[nMask][2 * n + 1] = 2 * j + 1;
                    n++;
                }
            for (int j = 2 * n; j < 8; j++)
                aLanes[nMask][j] = 0;
            aCount[nMask] = (unsigned char)n;
        }
    }
};
const KEEPTABLE s_keep;

// The same walk four points at a time in 256-bit registers: the same double
// products and sums (no fused multiply-add), the same truncation, the same
// comparison with the point before; the kept points of each group of four
// are gathered to the front and stored at the write index in one go. The
// store may write up to three entries past the kept ones; they lie at or
// below the group's own points and are overwritten or left unused.
ZPX_TARGET_AVX2
void ReduceRangeAvx2(const float* pfX, const float* pfY, long iFrom, long iTo, const PIXELXFORM& xf,
                     POINT* pOut, long& iOut, PIXELWORD& wPrev)
{
    const __m256d vXScale = _mm256_set1_pd(xf.dXScale);
    const __m256d vXOffset = _mm256_set1_pd(xf.dXOffset);
    const __m256d vYScale = _mm256_set1_pd(xf.dYScale);
    const __m256d vYOffset = _mm256_set1_pd(xf.dYOffset);
    __m256i vPrev = _mm256_set1_epi64x((long long)wPrev);
    long k = iOut;
    long i = iFrom;
    for (; i + 4 <= iTo; i += 4) {
        // Ask for the data a little ahead, once per cache line of each array:
        // the walk is bound by memory more than by arithmetic.
        if (((i - iFrom) & 15) == 0) {
            _mm_prefetch((const char*)(pfX + i + PREFETCH_AHEAD), _MM_HINT_T0);
            _mm_prefetch((const char*)(pfY + i + PREFETCH_AHEAD), _MM_HINT_T0);
        }
        const __m256d dX = _mm256_cvtps_pd(_mm_loadu_ps(pfX + i));
        const __m256d dY = _mm256_cvtps_pd(_mm_loadu_ps(pfY + i));
        const __m128i nX = _mm256_cvttpd_epi32(_mm256_add_pd(_mm256_mul_pd(vXScale, dX), vXOffset));
        const __m128i nY = _mm256_cvttpd_epi32(_mm256_sub_pd(vYOffset, _mm256_mul_pd(vYScale, dY)));
        // Four POINTs: (x0 y0) (x1 y1) | (x2 y2) (x3 y3).
        const __m256i vCur = _mm256_inserti128_si256(_mm256_castsi128_si256(_mm_unpacklo_epi32(nX, nY)),
                                                     _mm_unpackhi_epi32(nX, nY), 1);
        // The point before each: p-1 p0 p1 p2.
        const __m256i vBefore = _mm256_blend_epi32(_mm256_permute4x64_epi64(vCur, 0x90), vPrev, 0x03);
        const int nSame = _mm256_movemask_pd(_mm256_castsi256_pd(_mm256_cmpeq_epi64(vCur, vBefore)));
        const int nKeep = ~nSame & 0x0F;
        const __m256i vLanes = _mm256_loadu_si256((const __m256i*)s_keep.aLanes[nKeep]);
        _mm256_storeu_si256((__m256i*)(pOut + k), _mm256_permutevar8x32_epi32(vCur, vLanes));
        k += s_keep.aCount[nKeep];
        vPrev = _mm256_permute4x64_epi64(vCur, 0xFF);
    }
    iOut = k;
    wPrev = (PIXELWORD)_mm256_extract_epi64(vPrev, 0);
    // The last few points one at a time, in the plain instruction set.
    _mm256_zeroupper();
    ReduceRangeGeneric<false>(pfX, pfY, i, iTo, xf, pOut, iOut, wPrev);
}

// The pixels of a block four points at a time: the same products, sums and
// truncation as XformBlock, so the same pixels.
ZPX_TARGET_AVX2
void XformBlockAvx2(const float* pfX, const float* pfY, long n, const PIXELXFORM& xf, PIXELWORD* pWords)
{
    const __m256d vXScale = _mm256_set1_pd(xf.dXScale);
    const __m256d vXOffset = _mm256_set1_pd(xf.dXOffset);
    const __m256d vYScale = _mm256_set1_pd(xf.dYScale);
    const __m256d vYOffset = _mm256_set1_pd(xf.dYOffset);
    long i = 0;
    for (; i + 4 <= n; i += 4) {
        const __m256d dX = _mm256_cvtps_pd(_mm_loadu_ps(pfX + i));
        const __m256d dY = _mm256_cvtps_pd(_mm_loadu_ps(pfY + i));
        const __m128i nX = _mm256_cvttpd_epi32(_mm256_add_pd(_mm256_mul_pd(vXScale, dX), vXOffset));
        const __m128i nY = _mm256_cvttpd_epi32(_mm256_sub_pd(vYOffset, _mm256_mul_pd(vYScale, dY)));
        _mm_storeu_si128((__m128i*)(pWords + i), _mm_unpacklo_epi32(nX, nY));
        _mm_storeu_si128((__m128i*)(pWords + i + 2), _mm_unpackhi_epi32(nX, nY));
    }
    _mm256_zeroupper();
    XformBlock<false>(pfX + i, pfY + i, n - i, xf, pWords + i);
}

bool CpuHasAvx2()
{
    __builtin_cpu_init();
    return __builtin_cpu_supports("avx2");
}

#endif

typedef void (*XFORMBLOCKPROC)(const float* pfX, const float* pfY, long n, const PIXELXFORM& xf, PIXELWORD* pWords);

// The block transform for the unclamped pixels: the vector form where the
// processor has it.
XFORMBLOCKPROC ChooseXformBlock()
{
#if ZPX_HAVE_AVX2_KERNEL
    if (CpuHasAvx2())
        return XformBlockAvx2;
#endif
    return XformBlock<false>;
}

template <bool bClamp>
inline void XformColumnBlock(const float* pfX, const float* pfY, long n, const PIXELXFORM& xf, PIXELWORD* pWords)
{
    if (bClamp) {
        XformBlock<true>(pfX, pfY, n, xf, pWords);
    } else {
        static const XFORMBLOCKPROC s_pfnXform = ChooseXformBlock();
        s_pfnXform(pfX, pfY, n, xf, pWords);
    }
}

// The walk for the unclamped pixels of the NT family: the vector form where
// the processor has it.
REDUCERANGEPROC ChooseReduceRange()
{
#if ZPX_HAVE_AVX2_KERNEL
    if (CpuHasAvx2())
        return ReduceRangeAvx2;
#endif
    return ReduceRangeGeneric<false>;
}

template <bool bClamp>
void ReduceRange(const float* pfX, const float* pfY, long iFrom, long iTo, const PIXELXFORM& xf, POINT* pOut,
                 long& iOut, PIXELWORD& wPrev)
{
    if (bClamp) {
        ReduceRangeGeneric<true>(pfX, pfY, iFrom, iTo, xf, pOut, iOut, wPrev);
    } else {
        static const REDUCERANGEPROC s_pfnReduce = ChooseReduceRange();
        s_pfnReduce(pfX, pfY, iFrom, iTo, xf, pOut, iOut, wPrev);
    }
}

template <bool bClamp>
long ReduceSeries(CPlotData* pPlotData, const PIXELXFORM& xf)
{
    const long nPoints = pPlotData->m_lPoints;
    const float* pfX = pPlotData->m_pfXData + pPlotData->m_lStartIndex;
    const float* pfY = pPlotData->m_pfYData + pPlotData->m_lStartIndex;
    POINT* pOut = pPlotData->m_pPointArray;

    // The first point is always kept.
    PIXELWORD wPrev;
    XformBlock<bClamp>(pfX, pfY, 1, xf, &wPrev);
    memcpy(&pOut[0], &wPrev, sizeof(wPrev));
    long iOut = 1;

    CTypedPtrList<CPtrList, CHighlightRegionData*>& listRegions = pPlotData->m_listHighlights;
    if (listRegions.IsEmpty()) {
        ReduceRange<bClamp>(pfX, pfY, 1, nPoints, xf, pOut, iOut, wPrev);
        return iOut;
    }

    // With highlight regions, each region edge E (a point index before
    // reduction) moves down by the number of points dropped at indices 1 to
    // E, so that it lands on the kept point that stands for E. The walk
    // stops at each edge to read that number off the write index.
    std::vector<long> aStops;
    aStops.reserve((size_t)listRegions.GetCount() * 2);
    POSITION pos = listRegions.GetHeadPosition();
    while (pos != NULL) {
        CHighlightRegionData* pRegion = listRegions.GetNext(pos);
        const long aEdges[2] = { pRegion->m_lStart, pRegion->m_lEnd };
        for (long nEdge : aEdges)
            if (nEdge >= 1)
                aStops.push_back(std::min(nEdge, nPoints - 1));
    }
    std::sort(aStops.begin(), aStops.end());
    aStops.erase(std::unique(aStops.begin(), aStops.end()), aStops.end());

    std::vector<long> aDropped(aStops.size());
    long iNext = 1;
    for (size_t s = 0; s < aStops.size(); s++) {
        ReduceRange<bClamp>(pfX, pfY, iNext, aStops[s] + 1, xf, pOut, iOut, wPrev);
        iNext = aStops[s] + 1;
        aDropped[s] = iNext - iOut;   // points dropped at indices 1 to aStops[s]
    }
    ReduceRange<bClamp>(pfX, pfY, iNext, nPoints, xf, pOut, iOut, wPrev);

    // The edges into the reduced array. An edge beyond the points (left by a
    // later update with fewer points) or before the first is kept inside it.
    const long nLast = iOut - 1;
    pos = listRegions.GetHeadPosition();
    while (pos != NULL) {
        CHighlightRegionData* pRegion = listRegions.GetNext(pos);
        long* aEdges[2] = { &pRegion->m_lPixelStart, &pRegion->m_lPixelEnd };
        const long aData[2] = { pRegion->m_lStart, pRegion->m_lEnd };
        for (int e = 0; e < 2; e++) {
            long nPixel = aData[e];
            if (nPixel >= 1) {
                const long nStop = std::min(nPixel, nPoints - 1);
                const size_t s = std::lower_bound(aStops.begin(), aStops.end(), nStop) - aStops.begin();
                nPixel -= aDropped[s];
            }
            *aEdges[e] = std::max(0L, std::min(nPixel, nLast));
        }
    }
    return iOut;
}

// ---------------------------------------------------------------------------
// [SECTION] Reduction per pixel column
// ---------------------------------------------------------------------------
//
// For a series drawn with a solid pen one pixel wide, every run of
// consecutive points in one pixel column is cut down to its first, its
// lowest, its highest and its last point, in their order in the data. The
// device colours the same pixels: the segments inside a column are vertical,
// and a path through all points of the run covers exactly the pixels from
// its lowest to its highest point, as the path through the four does, with
// the same ends; the segments that join two columns are kept as they are.
// A run in a column of the plot that reaches beyond its top or bottom edge
// is kept whole: there the clip leaves out the edge pixel of a segment that
// leaves the plot but not of one that enters it, and only the whole path
// knows which. Columns left or right of the plot show no vertical segment.

// One pixel column while the walk is in it.
struct COLUMNRUN
{
    unsigned int x;               // the column
    PIXELWORD wFirst, wLast;      // its first and last point so far
    PIXELWORD wLow, wHigh;        // its points of smallest and largest y, first met
    int yLow, yHigh;
    long iLow, iHigh;             // where those two came in the data
    long iFirst, iLast;           // the data indices the run spans
};

// What the walk over a series needs besides the run.
struct COLUMNWALK
{
    const float* pfX;
    const float* pfY;
    PIXELXFORM xf;
    int nLeft, nTop, nRight, nBottom;   // the plot, edges included
};

inline void StartRun(COLUMNRUN& run, PIXELWORD w, long i)
{
    run.x = (unsigned int)w;
    run.wFirst = run.wLast = run.wLow = run.wHigh = w;
    run.yLow = run.yHigh = (int)(w >> 32);
    run.iLow = run.iHigh = run.iFirst = run.iLast = i;
}

// Points [i, j) of a block, all in the run's column, into the run; the
// block starts at data index iBlock.
inline void AddSpanToRun(COLUMNRUN& run, const PIXELWORD* pWords, long i, long j, long iBlock)
{
    int yLow = run.yLow, yHigh = run.yHigh;
    for (long m = i; m < j; m++) {
        const int y = (int)(pWords[m] >> 32);
        yLow = y < yLow ? y : yLow;
        yHigh = y > yHigh ? y : yHigh;
    }
    if (yLow < run.yLow) {
        long m = i;
        while ((int)(pWords[m] >> 32) != yLow)
            m++;
        run.yLow = yLow;
        run.wLow = pWords[m];
        run.iLow = iBlock + m;
    }
    if (yHigh > run.yHigh) {
        long m = i;
        while ((int)(pWords[m] >> 32) != yHigh)
            m++;
        run.yHigh = yHigh;
        run.wHigh = pWords[m];
        run.iHigh = iBlock + m;
    }
    run.wLast = pWords[j - 1];
    run.iLast = iBlock + j - 1;
}

// Joins run b, which followed run a in the same column, into a.
inline void JoinRuns(COLUMNRUN& a, const COLUMNRUN& b)
{
    if (b.yLow < a.yLow) {
        a.yLow = b.yLow;
        a.wLow = b.wLow;
        a.iLow = b.iLow;
    }
    if (b.yHigh > a.yHigh) {
        a.yHigh = b.yHigh;
        a.wHigh = b.wHigh;
        a.iHigh = b.iHigh;
    }
    a.wLast = b.wLast;
    a.iLast = b.iLast;
}

inline void EmitWord(PIXELWORD w, POINT* pOut, long& k)
{
    if (k == 0 || w != MakePixelWord(pOut[k - 1].x, pOut[k - 1].y))
        memcpy(&pOut[k++], &w, sizeof(w));
}

// The kept points of a run, in data order, a point equal to the one before
// it left out: four of them, or all of a run that crosses an edge.
template <bool bClamp>
void EmitRun(const COLUMNRUN& run, const COLUMNWALK& walk, POINT* pOut, long& k)
{
    const int x = (int)run.x;
    const bool bInColumns = x >= walk.nLeft && x <= walk.nRight;
    if (bInColumns && (run.yLow < walk.nTop || run.yHigh > walk.nBottom)) {
        PIXELWORD aBlock[XFORM_BLOCK];
        for (long iBlock = run.iFirst; iBlock <= run.iLast; iBlock += XFORM_BLOCK) {
            const long n = std::min(XFORM_BLOCK, run.iLast + 1 - iBlock);
            XformColumnBlock<bClamp>(walk.pfX + iBlock, walk.pfY + iBlock, n, walk.xf, aBlock);
            for (long i = 0; i < n; i++)
                EmitWord(aBlock[i], pOut, k);
        }
        return;
    }
    const bool bLowFirst = run.iLow <= run.iHigh;
    EmitWord(run.wFirst, pOut, k);
    EmitWord(bLowFirst ? run.wLow : run.wHigh, pOut, k);
    EmitWord(bLowFirst ? run.wHigh : run.wLow, pOut, k);
    EmitWord(run.wLast, pOut, k);
}

// The columns of points [iFrom, iTo), run by run, written at pOut[k...].
// The last run is left open in runLast (it may go on after iTo); with
// bHoldFirst the first is left in runFirst too (it may go on from before
// iFrom). Returns the number of runs, 0 for an empty range.
template <bool bClamp>
long ReduceColumns(const COLUMNWALK& walk, long iFrom, long iTo, POINT* pOut, long& k, bool bHoldFirst,
                   COLUMNRUN& runFirst, COLUMNRUN& runLast)
{
    if (iFrom >= iTo)
        return 0;
    PIXELWORD aBlock[XFORM_BLOCK];
    long nRuns = 1;
    COLUMNRUN run;
    for (long iBlock = iFrom; iBlock < iTo; iBlock += XFORM_BLOCK) {
        const long n = std::min(XFORM_BLOCK, iTo - iBlock);
        XformColumnBlock<bClamp>(walk.pfX + iBlock, walk.pfY + iBlock, n, walk.xf, aBlock);
        long i = 0;
        if (iBlock == iFrom) {
            StartRun(run, aBlock[0], iFrom);
            i = 1;
        }
        while (i < n) {
            // The stretch of the block that stays in the run's column: its
            // lowest and highest y first, their places only when they are new.
            long j = i;
            while (j < n && (unsigned int)aBlock[j] == run.x)
                j++;
            if (j > i) {
                AddSpanToRun(run, aBlock, i, j, iBlock);
                i = j;
                continue;
            }
            if (nRuns == 1 && bHoldFirst)
                runFirst = run;
            else
                EmitRun<bClamp>(run, walk, pOut, k);
            nRuns++;
            StartRun(run, aBlock[i], iBlock + i);
            i++;
        }
    }
    if (nRuns == 1)
        runFirst = run;
    runLast = run;
    return nRuns;
}

// Points below which the second core is not worth its start.
const long COLUMN_SPLIT_MIN = 1L << 20;

// The column reduction of a whole series into its pixel array; returns the
// number of points kept. A long series is cut in two halves, the second
// walked by another thread into the upper part of the array; the runs at
// the cut are joined afterwards, so the result does not depend on the cut.
template <bool bClamp>
long ReduceSeriesColumns(CPlotData* pPlotData, const PIXELXFORM& xf, const CRect& rectPlot)
{
    const long nPoints = pPlotData->m_lPoints;
    const COLUMNWALK walk = { pPlotData->m_pfXData + pPlotData->m_lStartIndex,
                              pPlotData->m_pfYData + pPlotData->m_lStartIndex, xf,
                              rectPlot.left, rectPlot.top, rectPlot.right, rectPlot.bottom };
    POINT* pOut = pPlotData->m_pPointArray;

    long nSplit = nPoints;
    long k2 = 0, nRuns2 = 0;
    COLUMNRUN runFirst2, runLast2;
    std::thread worker;
    if (nPoints >= COLUMN_SPLIT_MIN) {
        nSplit = nPoints / 2;
        try {
            worker = std::thread([&] {
                nRuns2 = ReduceColumns<bClamp>(walk, nSplit, nPoints, pOut + nSplit, k2, true, runFirst2, runLast2);
            });
        } catch (...) {
            nSplit = nPoints;   // no thread to be had: one walk over all
        }
    }
    long k = 0;
    COLUMNRUN runFirst, runLast;
    ReduceColumns<bClamp>(walk, 0, nSplit, pOut, k, false, runFirst, runLast);
    if (worker.joinable())
        worker.join();
    if (nRuns2 == 0) {
        EmitRun<bClamp>(runLast, walk, pOut, k);
        return k;
    }
    // The cut: a run that goes on across it is one run. The second half's
    // points are moved up out of the way first: the runs at the cut, kept
    // whole, can be longer than the room left below them.
    const long nCutPoints = (runLast.iLast - runLast.iFirst + 1) + (runFirst2.iLast - runFirst2.iFirst + 1);
    const long nSecondAt = k + nCutPoints;
    if (nRuns2 > 1)
        memmove(pOut + nSecondAt, pOut + nSplit, (size_t)k2 * sizeof(POINT));
    if (runFirst2.x == runLast.x) {
        JoinRuns(runLast, runFirst2);
        EmitRun<bClamp>(runLast, walk, pOut, k);
    } else {
        EmitRun<bClamp>(runLast, walk, pOut, k);
        EmitRun<bClamp>(runFirst2, walk, pOut, k);
    }
    if (nRuns2 > 1) {
        // The second half's middle runs, then its last one.
        memmove(pOut + k, pOut + nSecondAt, (size_t)k2 * sizeof(POINT));
        k += k2;
        EmitRun<bClamp>(runLast2, walk, pOut, k);
    }
    return k;
}

} // namespace

int CGraphPrv::EnableColumnReduction(BOOL bEnable)
{
    m_bColumnReduction = bEnable;
    m_bPointsStale = TRUE;
    return GRAPH_OK;
}

BOOL CGraphPrv::ReducesByColumn(const CPlotData* pPlotData) const
{
    // Only a solid line one pixel wide colours the whole vertical stretch
    // between the points of a column and nothing beside it.
    return m_bColumnReduction && pPlotData->m_nLineStyle == PS_SOLID && pPlotData->m_nLineWidth >= 0 &&
           pPlotData->m_nLineWidth <= 1 &&
           pPlotData->m_listHighlights.IsEmpty();
}

void CGraphPrv::OptimizePoints(CPlotData* pPlotData)
{
    // Runs under the series lock or on the window's thread alone.
    ASSERT(pPlotData != NULL);
    // The arrays and the count are read together, as a host thread's update
    // leaves them.
    CSingleLock lock(&m_csPlotData, TRUE);
    if (pPlotData->m_lPoints < 1)
        return;
    if (pPlotData->m_pfXData == NULL) {
        ::OutputDebugStringA("OptimizePoints() - pPlotData->m_pfXData is null.\n");
        return;
    }
    if (pPlotData->m_pfYData == NULL) {
        ::OutputDebugStringA("OptimizePoints() - pPlotData->m_pfYData is null.\n");
        return;
    }
    if (pPlotData->m_pPointArray == NULL) {
        ::OutputDebugStringA("OptimizePoints() - pPlotData->m_pPointArray is null.\n");
        return;
    }

    try {
        // A block of exactly m_lPoints entries is kept rather than freed and
        // made again: its contents are all rewritten below, and a fresh block
        // of many megabytes would fault in page by page at every paint.
        const size_t nBytes = (size_t)pPlotData->m_lPoints * sizeof(POINT);
        if (_msize(pPlotData->m_pPointArray) != nBytes) {
            delete[] pPlotData->m_pPointArray;
            pPlotData->m_pPointArray = NULL;
            pPlotData->m_pPointArray = new POINT[(size_t)pPlotData->m_lPoints];
        }
    } catch (CMemoryException* e) {
        // The series draws no line until it gets a new array.
        e->Delete();
        return;
    }

    PIXELXFORM xf;
    HorzXform(&xf.dXScale, &xf.dXOffset);
    xf.dXOffset += AXES_ROUNDING;
    VertXform(&xf.dYScale, &xf.dYOffset, pPlotData->m_nYAxis);
    xf.dYOffset += AXES_ROUNDING;

    long nKept;
    try {
        if (ReducesByColumn(pPlotData))
            nKept = IsWin98() ? ReduceSeriesColumns<true>(pPlotData, xf, m_rectPlot)
                              : ReduceSeriesColumns<false>(pPlotData, xf, m_rectPlot);
        else
            nKept = IsWin98() ? ReduceSeries<true>(pPlotData, xf) : ReduceSeries<false>(pPlotData, xf);
    } catch (CMemoryException* e) {
        // Only the region bookkeeping allocates: without it the regions
        // cannot be placed, and the series is drawn without a line.
        e->Delete();
        delete[] pPlotData->m_pPointArray;
        pPlotData->m_pPointArray = NULL;
        return;
    }
    pPlotData->m_lPointCount = nKept;
}
