// One axis of a graph seen through the graph's own fields, so that what the
// X axis and the two Y axes do alike is written once. CGraphPrv::Axis makes
// a view; it lives no longer than the statement or block that uses it, and
// its layout values are those of the plot rectangle when it was made.
#pragma once

#include "graph/GraphPrv.h"

// Axes of a view, in the order of the three-entry lists of the graph.
#define AXIS_X        0     // the X axis
#define AXIS_YLEFT    1     // the left Y axis
#define AXIS_YRIGHT   2     // the right Y axis

// The view of a Y axis number: 1 is the right axis, every other value the left.
inline int AxisOfY(int nAxis)
{
    return nAxis == 1 ? AXIS_YRIGHT : AXIS_YLEFT;
}

struct CAxisView
{
    double& dMin;          // value at the left (X) or bottom (Y) edge
    double& dMax;          // value at the right (X) or top (Y) edge
    double& dScale;        // transform kept for the Rpt conversions
    double& dOffset;
    int* pnTicPixel;       // pixel of each tic
    double* pdTicValue;    // value of each tic
    int& nTicCount;        // index of the last tic
    int& nTicType;         // 0 fixed tics, else floating tics
    float& fResolution;    // smallest span
    MINORTICS& minor;      // minor tics of one interval
    int& nMinorCount;      // minor tics per interval
    int nDotsPerInch;      // device resolution along the axis
    int nSign;             // +1: pixels grow with the values (X); -1: they fall (Y)
    int nOrigin;           // pixel of dMin: the plot's left or bottom edge
    int nLowEdge;          // the plot's left or top edge
    double dLength;        // the plot's width or height in pixels
};
