// Small arithmetic shared by the axis code: the rounding of values to
// pixels, the tolerance of a zero span, and the index guards that keep the
// tic tables and the per-axis arrays inside their bounds.
#pragma once

#include "afx/afxver.h"

// Tolerance of a zero span: 2 to the power -23.
const double AXES_TOLERANCE = 1.1920928955078125e-7;

// Added before truncation when a value is rounded to a pixel.
const double AXES_ROUNDING = 0.50001;

// Slots of a tic table; the last index of a table is at most this less one.
const int AXES_TIC_SLOTS = 11;

// Rounds a value to a pixel: adds 0.50001 and truncates toward zero. A value
// that no int can hold (or not a number, as a fixed table with a count of 0
// gives) comes out as 0, the pixel of the edge the value is measured from.
inline int AxesRoundPixel(double dValue)
{
    double d = dValue + AXES_ROUNDING;
    if (!(d > -2147483648.0 && d < 2147483648.0))
        return 0;
    return (int)d;
}

// The last index of a tic table, kept inside its 11 slots whatever the
// count field holds.
inline int AxesLastTic(int nCount)
{
    return nCount < 0 ? 0 : (nCount > AXES_TIC_SLOTS - 1 ? AXES_TIC_SLOTS - 1 : nCount);
}

// A Y axis number as an array index: 1 is the right axis, every other value
// the left one, as the label and format setters take it.
inline int AxesYIndex(int nAxis)
{
    return nAxis == 1 ? 1 : 0;
}

// A floating tic table for the limits dFirst and dSecond into pdTable (11
// slots): the limits at the ends, even multiples of a step of 2, 5 or 10
// times a power of ten between them; index 0 goes with dFirst. Returns the
// index of the last entry.
AFX_EXT_API int CalcFloatingTics(double dFirst, double dSecond, double* pdTable);
