// Which numbers along an axis are drawn, as functions of texts, values and
// pixels. PutLabels formats and measures the numbers, asks these rules, and
// draws what they leave. The end numbers (the limits) are always drawn; a
// middle number is left out when it would touch its neighbour, repeat the
// text of a neighbour, or when rounding has slid its text nearer to the
// next tic than to its own.
#pragma once

#include "afx/afx.h"

// The number of one interior tic of a floating-tic axis.
struct AxisTicNumber
{
    CString strText;    // as formatted, in the locale's notation
    CString strDrawn;   // as it would be drawn: without leading blanks where the axis measures its numbers
    float fRead;        // the plain text (before the locale's decimal sign) read back
    int nWidth;         // width of strDrawn as GetLabelWExtent gives it (X axis only)
};

// Where a number stands: an X number centred on its tic, a Y number with
// its line centred on its tic.
inline int AxisXNumberLeft(int nTicPixel, int nWidth)
{
    return nTicPixel - nWidth / 2;
}

inline int AxisYNumberTop(int nTicPixel, int nLine)
{
    return nTicPixel - nLine / 2;
}

// The middle numbers of a floating-tic X axis. The tic table runs from 0
// to nCount (values pdTic, pixels pnPixel); pNumbers holds the numbers of
// tics 1 to nCount - 1, tried from left to right. strMin and strMax are
// the drawn texts of the end numbers, nLeftEnd the first pixel right of
// the minimum's number plus its gap of 2, xRight the left edge of the
// maximum's number. Returns a mask with bit i set when tic i gets its
// number.
AFX_EXT_API UINT AFXAPI ChooseXTicNumbers(int nCount, const double* pdTic, const int* pnPixel,
                                         const AxisTicNumber* pNumbers, const CString& strMin,
                                         const CString& strMax, int nLeftEnd, int xRight);

// The middle numbers of a floating-tic Y axis, tried from tic nCount - 1 down
// to 1. strMax and strMin are the drawn texts of the top and bottom
// numbers, yTop and yBottom their tops, nLine the line height. Returns the
// mask as above.
AFX_EXT_API UINT AFXAPI ChooseYTicNumbers(int nCount, const double* pdTic, const int* pnPixel,
                                         const AxisTicNumber* pNumbers, const CString& strMax,
                                         const CString& strMin, int yTop, int yBottom, int nLine);

// A Y axis shows middle numbers only when its plot is higher than five lines.
AFX_EXT_API BOOL AFXAPI AxisYHasMiddleNumbers(int nPlotHeight, int nLine);

// Fixed tics: the one middle number of X stands when three numbers as long
// as the last text formatted (nLastLength bytes, the maximum's) fit the plot
// width at nCharW each.
AFX_EXT_API BOOL AFXAPI FixedXMiddleNumberShown(int nLastLength, int nCharW, int nPlotWidth);

// Fixed tics: the middle number of the left Y axis stands when its text
// repeats neither end number; that of the right axis always stands.
AFX_EXT_API BOOL AFXAPI FixedYMiddleNumberShown(BOOL bLeftAxis, const CString& strText, const CString& strMax,
                                               const CString& strMin);

// The short tic extensions under a floating-tic X axis: every interior tic
// when the grid is on (dwGridType without GRID_NONE) and there are minor
// tics, except that tics 1 and nCount - 1 need their number drawn
// (nNumbers, the mask of ChooseXTicNumbers). Returns the mask of tics.
AFX_EXT_API UINT AFXAPI ChooseXTicExtensions(DWORD dwGridType, int nMinorTics, int nCount, UINT nNumbers);
