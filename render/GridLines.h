// Where the grid lines of one axis go, as a computation on the tic pixels:
// PlotGrid draws what this returns.
#pragma once

#include "graph/GraphPrv.h"

// Most lines one axis can have: ten interior tics with nine minor lines
// after each, and nine before the first.
const int GRID_MAX_LINES = 10 * 10 + 9;

// The pixels along one axis at which its grid lines cross the plot, in
// drawing order, into pnPixels (GRID_MAX_LINES entries); returns the count.
//   pnTicPixel, nTicCount  the tic pixels, index 0 and nTicCount on the edges
//   iStep                  a line at every tic (1) or every second tic (2)
//   pMinor, nMinorCount    the minor tics of an interval; null for none
//   nSign                  +1 where pixels grow with the tic index (X), -1
//                          where they fall (Y)
//   nLow, nHigh            the plot's edges along the axis
// Major lines stand at the interior tics iStep, 2 iStep, ... Minor lines
// follow each major one, and those of the interval before tic 1 come first;
// a minor line on or beyond an edge is left out.
AFX_EXT_API int CalcGridLines(const int* pnTicPixel, int nTicCount, int iStep, const MINORTICS* pMinor,
                              int nMinorCount, int nSign, int nLow, int nHigh, int* pnPixels);
