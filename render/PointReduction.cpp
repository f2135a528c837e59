// Point reduction: the float data of a series become its pixel array, and a
// point that lands on the same pixel as the point kept before it is dropped.
// Only consecutive duplicates go; nothing else is thinned out.
//
// A dropped point equals the kept point before it in both coordinates, so
// "differs from the last kept point" is the same test as "differs from the
// point just before it". The loop therefore needs no branch per point: it
// stores every point at the write index and advances the index by the result
// of that comparison. Pixels are computed a block at a time into a small
// buffer first, a loop the compiler turns into vector code.
#include "graph/GraphPrv.h"
#include "series/PlotData.h"
#include "render/HighlightRegionData.h"
#include <algorithm>
#include <string.h>
#include <vector>

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
template <bool bClamp>
void ReduceRange(const float* pfX, const float* pfY, long iFrom, long iTo, const PIXELXFORM& xf,
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
        delete[] pPlotData->m_pPointArray;
        pPlotData->m_pPointArray = NULL;
        pPlotData->m_pPointArray = new POINT[(size_t)pPlotData->m_lPoints];
    } catch (CMemoryException* e) {
        // The series draws no line until it gets a new array.
        e->Delete();
        return;
    }

    PIXELXFORM xf;
    HorzXform(&xf.dXScale, &xf.dXOffset);
    xf.dXOffset += 0.50001;
    VertXform(&xf.dYScale, &xf.dYOffset, pPlotData->m_nYAxis);
    xf.dYOffset += 0.50001;

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
