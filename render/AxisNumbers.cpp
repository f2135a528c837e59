// The drop rules of the axis numbers.
#include "render/AxisNumbers.h"
#include "graph/GraphDefs.h"
#include <math.h>

namespace {

// The tests a middle number passes before its place is looked at: its text
// repeats neither the number last drawn nor the end number still to come,
// and its rounded value is strictly nearer to its own tic than to the next
// one in line. The texts are compared in the locale's notation, the values
// from the plain text.
BOOL KeepsItsText(const AxisTicNumber& number, double dOwn, double dNext, const CString& strLast,
                  const CString& strEnd)
{
    if (number.strText == strLast || number.strText == strEnd)
        return FALSE;
    return fabs((double)number.fRead - dOwn) < fabs((double)number.fRead - dNext);
}

} // namespace

UINT AFXAPI ChooseXTicNumbers(int nCount, const double* pdTic, const int* pnPixel, const AxisTicNumber* pNumbers,
                              const CString& strMin, const CString& strMax, int nLeftEnd, int xRight)
{
    // Each number is measured against the one last drawn, from the left end.
    UINT nDrawn = 0;
    CString strLast = strMin;
    for (int i = 1; i < nCount; i++) {
        const AxisTicNumber& number = pNumbers[i];
        if (!KeepsItsText(number, pdTic[i], pdTic[i + 1], strLast, strMax))
            continue;
        const int x = AxisXNumberLeft(pnPixel[i], number.nWidth);
        if (x <= nLeftEnd || x + number.nWidth + 2 >= xRight)
            continue;
        nDrawn |= 1u << i;
        strLast = number.strDrawn;
        nLeftEnd = x + number.nWidth + 2;
    }
    return nDrawn;
}

UINT AFXAPI ChooseYTicNumbers(int nCount, const double* pdTic, const int* pnPixel, const AxisTicNumber* pNumbers,
                              const CString& strMax, const CString& strMin, int yTop, int yBottom, int nLine)
{
    // The place is tested against the two end numbers only; the text also
    // against the number last drawn.
    UINT nDrawn = 0;
    CString strLast = strMax;
    for (int i = nCount - 1; i >= 1; i--) {
        const AxisTicNumber& number = pNumbers[i];
        if (!KeepsItsText(number, pdTic[i], pdTic[i - 1], strLast, strMin))
            continue;
        const int y = AxisYNumberTop(pnPixel[i], nLine);
        if (y <= yTop + nLine || y >= yBottom - nLine)
            continue;
        nDrawn |= 1u << i;
        strLast = number.strDrawn;
    }
    return nDrawn;
}

BOOL AFXAPI AxisYHasMiddleNumbers(int nPlotHeight, int nLine)
{
    return nPlotHeight > 5 * nLine;
}

BOOL AFXAPI FixedXMiddleNumberShown(int nLastLength, int nCharW, int nPlotWidth)
{
    return 3 * nLastLength * nCharW <= nPlotWidth;
}

BOOL AFXAPI FixedYMiddleNumberShown(BOOL bLeftAxis, const CString& strText, const CString& strMax,
                                    const CString& strMin)
{
    return !bLeftAxis || (strText != strMax && strText != strMin);
}

UINT AFXAPI ChooseXTicExtensions(DWORD dwGridType, int nMinorTics, int nCount, UINT nNumbers)
{
    if ((dwGridType & GRID_NONE) || nMinorTics == 0)
        return 0;
    UINT nTics = 0;
    for (int i = 1; i < nCount; i++)
        if ((i != 1 && i != nCount - 1) || (nNumbers & (1u << i)))
            nTics |= 1u << i;
    return nTics;
}
