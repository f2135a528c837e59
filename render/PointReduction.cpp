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

bool CpuHasAvx2()
{
    __builtin_cpu_init();
    return __builtin_cpu_supports("avx2");
}

#endif

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

} // namespace

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
