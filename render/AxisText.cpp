// Axis text: the graph title, the axis titles (rotated for a TrueType font,
// stacked otherwise) and the numbers along the axes in the locale's
// notation. Every number is formatted through FormatNumber; which middle
// numbers are left out, the rules of AxisNumbers.h decide. The rectangles
// of the printed limits are kept in m_rectLimit for the mouse.
//
// [SECTION] Number texts and extents
// [SECTION] Horizontal and vertical strings
// [SECTION] Numbers of the X axis
// [SECTION] Numbers of the Y axes
// [SECTION] PutLabels
#include "graph/GraphPrv.h"
#include "axes/AxesMath.h"
#include "render/AxisNumbers.h"
#include "render/DrawerPen.h"
#include "render/NumberFormat.h"
#include "render/TextFont.h"
#include "sheet/IntlString.h"
#include <stdlib.h>
#include <string.h>

namespace {

// What the numbers of one PutLabels call share.
struct LabelContext
{
    CGraphPrv* pGraph;
    CDC* pDC;
    int nLine;        // tmHeight + tmExternalLeading
    int nCharW;       // average width of a digit, with the overhang
    int nTicOut;      // length of a tic extension below the X axis
    CIntlString intl;
    char szBuffer[NUMFMT_BUFFER];

    // Formats a value, and gives it in the locale's notation.
    CString Format(const CString& strFormat, double dValue)
    {
        pGraph->FormatLabelSuitably(szBuffer, strFormat, dValue);
        intl.LocalizeDecimal(szBuffer);
        return CString(szBuffer);
    }
    // Formats a value for a middle number: the plain text read back as a
    // float into f, then the text in the locale's notation.
    CString FormatMiddle(const CString& strFormat, double dValue, float& f)
    {
        pGraph->FormatLabelSuitably(szBuffer, strFormat, dValue);
        f = (float)atof(szBuffer);
        intl.LocalizeDecimal(szBuffer);
        return CString(szBuffer);
    }
};

// The last index of a tic table inside its slots; a negative count stays,
// and shows no middle number.
int ClampTicCount(int nCount)
{
    return nCount > AXES_TIC_SLOTS - 1 ? AXES_TIC_SLOTS - 1 : nCount;
}

} // namespace

// ---------------------------------------------------------------------------
// [SECTION] Number texts and extents
// ---------------------------------------------------------------------------

void CGraphPrv::FormatLabelSuitably(char* pszBuffer, CString strFormat, double dValue)
{
    // A refused format gives no text, and no number of last resort either.
    // A text too long for the buffer counts as long: it is written again.
    const int nLength = FormatNumber(pszBuffer, NUMFMT_BUFFER, strFormat, dValue);
    const int nMax = dValue < 0.0 ? 11 : 10;
    if (nLength > nMax)
        FormatNumber(pszBuffer, NUMFMT_BUFFER, m_strMaxLenFormat, dValue);
}

void CGraphPrv::GetLabelWExtent(CDC* pDC, CString& str, int bStrip, int* pnWidth)
{
    if (bStrip) {
        int n = 0;
        while (n < str.GetLength() && str[n] == ' ')
            n++;
        if (n > 0)
            str = str.Mid(n);
    }
    TEXTMETRIC tm;
    pDC->GetTextMetrics(&tm);
    *pnWidth = pDC->GetTextExtent(str).cx + tm.tmOverhang + 3;
}

// ---------------------------------------------------------------------------
// [SECTION] Horizontal and vertical strings
// ---------------------------------------------------------------------------

void CGraphPrv::PlaceStringHorizontal(CDC* pDC, int x, int y, CString& str, long lFlags)
{
    if (str.IsEmpty())
        return;
    if (lFlags & PLACE_HCENTER)
        x = m_rectPlot.left + (m_rectPlot.Width() - pDC->GetTextExtent(str).cx) / 2;
    pDC->TextOut(x, y, str);
}

void CGraphPrv::PlaceStringVertical(CDC* pDC, int x, int y, CString& str, long lFlags)
{
    if (str.IsEmpty())
        return;
    CGraphTextFont font(pDC, this);
    TEXTMETRIC tm;
    pDC->GetTextMetrics(&tm);
    const int nLength = str.GetLength();   // bytes, also for double-byte text

    if (tm.tmPitchAndFamily & TMPF_TRUETYPE) {
        // A TrueType font turns: the text reads upward from its lower end.
        CFont fontRotated;
        CreateDeviceFont(fontRotated, IsPrinterOrPlotter(pDC) ? pDC : NULL, 900);
        CSelectGuard selectRotated(pDC, &fontRotated);
        pDC->GetTextMetrics(&tm);
        const int nLine = tm.tmHeight + tm.tmExternalLeading;
        if (lFlags & PLACE_VCENTER) {
            y = (m_rectPlot.top + m_rectPlot.bottom + tm.tmAveCharWidth * (nLength - 1)) / 2;
            if (y < m_rectPlot.top || y > m_rectPlot.bottom)
                y = m_rectPlot.bottom;
        }
        if (lFlags & PLACE_RIGHTSIDE)
            x = m_rectGraph.right - nLine - 1;
        else if (lFlags & PLACE_LEFTSIDE)
            x = m_rectGraph.left + 1;
        pDC->TextOut(x, y, str);
        return;
    }

    // Any other font is stacked, one character under the other.
    const int nLine = tm.tmHeight + tm.tmExternalLeading;
    if (lFlags & PLACE_VCENTER) {
        y = (m_rectPlot.top + m_rectPlot.bottom - nLine * (nLength + 1)) / 2;
        if (y < m_rectPlot.top || y > m_rectPlot.bottom)
            y = m_rectPlot.top;
    }
    if (lFlags & PLACE_RIGHTSIDE)
        x = m_rectGraph.right - tm.tmMaxCharWidth - 1;
    else if (lFlags & PLACE_LEFTSIDE)
        x = m_rectGraph.left + 1;
    for (LPCSTR p = str; *p != '\0'; p = ::CharNextA(p)) {
        const int n = (::IsDBCSLeadByte((BYTE)*p) && p[1] != '\0') ? 2 : 1;
        pDC->TextOut(x, y, p, n);
        y += nLine;
    }
}

// ---------------------------------------------------------------------------
// [SECTION] Numbers of the X axis
// ---------------------------------------------------------------------------

namespace {

// The numbers of the interior tics 1 to nCount - 1 of a floating-tic axis:
// formatted, read back and, with bMeasure, stripped and measured.
void FormatTicNumbers(LabelContext& c, const CString& strFormat, const double* pdTic, int nCount, BOOL bMeasure,
                      AxisTicNumber* pNumbers)
{
    for (int i = 1; i < nCount; i++) {
        AxisTicNumber& number = pNumbers[i];
        number.strText = c.FormatMiddle(strFormat, pdTic[i], number.fRead);
        number.strDrawn = number.strText;
        number.nWidth = 0;
        if (bMeasure)
            c.pGraph->GetLabelWExtent(c.pDC, number.strDrawn, 1, &number.nWidth);
    }
}

void PutXNumbers(LabelContext& c)
{
    CGraphPrv* g = c.pGraph;
    CDC* pDC = c.pDC;
    const CRect& rectPlot = g->m_rectPlot;
    const int yLabel = rectPlot.bottom + c.nLine / 2 + 1;
    int w = 0;

    // The minimum, centred under the left end of the axis.
    CString strMin = c.Format(g->m_strXAxisNumFmt, g->m_dXMin);
    g->GetLabelWExtent(pDC, strMin, 1, &w);
    const int x = rectPlot.left - w / 2;
    g->m_rectLimit[LIMIT_XMIN].SetRect(x, yLabel, x + w, yLabel + c.nLine);
    pDC->TextOut(x, yLabel, strMin);
    const int nLeftEnd = x + w + 2;

    // The maximum, under the right end; drawn after the middle numbers.
    CString strMax = c.Format(g->m_strXAxisNumFmt, g->m_dXMax);
    const int nLastLength = (int)strlen(c.szBuffer);
    g->GetLabelWExtent(pDC, strMax, 1, &w);
    const int xRight = rectPlot.right - w / 2;
    g->m_rectLimit[LIMIT_XMAX].SetRect(xRight, yLabel, xRight + w, yLabel + c.nLine);

    const int nCount = ClampTicCount(g->m_nXTicCount);
    const int nWidth = rectPlot.Width();
    if (g->m_nXTicType == 0) {
        // Fixed tics: one number in the middle of the axis.
        if (nCount >= 0 && FixedXMiddleNumberShown(nLastLength, c.nCharW, nWidth)) {
            CString str = c.Format(g->m_strXAxisNumFmt, g->m_dXTicValue[nCount / 2]);
            g->GetLabelWExtent(pDC, str, 1, &w);
            pDC->TextOut(rectPlot.left + (int)(nWidth * 0.5) - w / 2, yLabel, str);
        }
    } else {
        // Floating tics: each number at its tic, as the drop rules leave them.
        AxisTicNumber numbers[AXES_TIC_SLOTS];
        FormatTicNumbers(c, g->m_strXAxisNumFmt, g->m_dXTicValue, nCount, TRUE, numbers);
        const UINT nDrawn =
            ChooseXTicNumbers(nCount, g->m_dXTicValue, g->m_nXTicPixel, numbers, strMin, strMax, nLeftEnd, xRight);
        for (int i = 1; i < nCount; i++)
            if (nDrawn & (1u << i))
                pDC->TextOut(AxisXNumberLeft(g->m_nXTicPixel[i], numbers[i].nWidth), yLabel, numbers[i].strDrawn);

        // With minor tics and a grid, the major tics reach below the frame.
        const UINT nTics = ChooseXTicExtensions(g->m_dwGridType, g->m_nMinorTics, nCount, nDrawn);
        if (nTics != 0) {
            CDrawerPen pen(PS_SOLID, g->m_nGridPenWidth, g->m_crGrid, g->IsColorDevice(pDC));
            CSelectGuard selectPen(pDC, &pen);
            for (int i = 1; i < nCount; i++) {
                if (!(nTics & (1u << i)))
                    continue;
                pDC->MoveTo(g->m_nXTicPixel[i], rectPlot.bottom);
                pDC->LineTo(g->m_nXTicPixel[i], rectPlot.bottom + c.nTicOut);
            }
        }
    }

    pDC->TextOut(xRight, yLabel, strMax);
}

// ---------------------------------------------------------------------------
// [SECTION] Numbers of the Y axes
// ---------------------------------------------------------------------------

// The numbers of Y axis nAxis: right-aligned against the frame on the left
// axis, left-aligned beside it on the right one.
void PutYNumbers(LabelContext& c, int nAxis, int yTop, int yBottom)
{
    CGraphPrv* g = c.pGraph;
    CDC* pDC = c.pDC;
    const CRect& rectPlot = g->m_rectPlot;
    const CString& strFormat = g->m_strYAxisNumFmt[nAxis];
    const BOOL bLeft = nAxis == 0;
    const int xRightSide = rectPlot.right + 2;
    int w = 0;

    // The maximum, at the top end.
    CString strMax = c.Format(strFormat, g->m_dYMax[nAxis]);
    g->GetLabelWExtent(pDC, strMax, bLeft, &w);
    const int x = bLeft ? rectPlot.left - w : xRightSide;
    if (bLeft)
        g->m_rectLimit[LIMIT_YLEFT_MAX].SetRect(x, yTop, rectPlot.left, yTop + c.nLine);
    else
        g->m_rectLimit[LIMIT_YRIGHT_MAX].SetRect(x, yTop, x + w, yTop + c.nLine);
    pDC->TextOut(x, yTop, strMax);

    // The minimum, at the bottom end; drawn after the middle numbers.
    CString strMin = c.Format(strFormat, g->m_dYMin[nAxis]);
    g->GetLabelWExtent(pDC, strMin, bLeft, &w);
    const int xEnd = bLeft ? rectPlot.left - w : xRightSide;
    if (bLeft)
        g->m_rectLimit[LIMIT_YLEFT_MIN].SetRect(xEnd, yBottom, rectPlot.left, yBottom + c.nLine);
    else
        g->m_rectLimit[LIMIT_YRIGHT_MIN].SetRect(xEnd, yBottom, xEnd + w, yBottom + c.nLine);

    const int nHeight = rectPlot.Height();
    const int nCount = ClampTicCount(g->m_nYTicCount[nAxis]);
    const double* pdValues = g->m_dYTicValue[nAxis];
    const int* pnPixels = g->m_nYTicPixel[nAxis];
    if (AxisYHasMiddleNumbers(nHeight, c.nLine)) {
        if (g->m_nYTicType[nAxis] == 0) {
            // Fixed tics: one number in the middle of the axis.
            if (nCount >= 0) {
                CString str = c.Format(strFormat, pdValues[nCount / 2]);
                if (FixedYMiddleNumberShown(bLeft, str, strMax, strMin)) {
                    // The right axis's number stands 2 pixels higher, unmeasured.
                    int xMiddle = xRightSide;
                    int yMiddle = rectPlot.bottom - c.nLine / 2 - (int)(nHeight * 0.5) - 2;
                    if (bLeft) {
                        g->GetLabelWExtent(pDC, str, 1, &w);
                        xMiddle = rectPlot.left - w;
                        yMiddle = rectPlot.bottom - (int)(nHeight * 0.5) - c.nLine / 2;
                    }
                    pDC->TextOut(xMiddle, yMiddle, str);
                }
            }
        } else {
            // Floating tics: each number at its tic, as the drop rules leave
            // them. The right axis does not measure its middle numbers.
            AxisTicNumber numbers[AXES_TIC_SLOTS];
            FormatTicNumbers(c, strFormat, pdValues, nCount, bLeft, numbers);
            const UINT nDrawn =
                ChooseYTicNumbers(nCount, pdValues, pnPixels, numbers, strMax, strMin, yTop, yBottom, c.nLine);
            for (int i = nCount - 1; i >= 1; i--)
                if (nDrawn & (1u << i))
                    pDC->TextOut(bLeft ? rectPlot.left - numbers[i].nWidth : xRightSide,
                                 AxisYNumberTop(pnPixels[i], c.nLine), numbers[i].strDrawn);
        }
    }

    pDC->TextOut(xEnd, yBottom, strMin);
}

} // namespace

// ---------------------------------------------------------------------------
// [SECTION] PutLabels
// ---------------------------------------------------------------------------

void CGraphPrv::PutLabels(CDC* pDC)
{
    CGraphTextFont font(pDC, this);
    const COLORREF crOldText = pDC->SetTextColor(IsColorDevice(pDC) ? m_crText : 0);

    LabelContext c;
    TEXTMETRIC tm;
    pDC->GetTextMetrics(&tm);
    c.pGraph = this;
    c.pDC = pDC;
    c.nLine = tm.tmHeight + tm.tmExternalLeading;
    c.nTicOut = tm.tmHeight / 4 + 1;
    c.nCharW = GetAveWidthOfNumericChar(pDC) + tm.tmOverhang;
    c.szBuffer[0] = '\0';

    // Titles over and under the plot.
    if (m_rectPlot.top != m_rectGraph.top)
        PlaceStringHorizontal(pDC, 0, m_rectPlot.top - (3 * c.nLine) / 2, m_strGraphTitle, PLACE_HCENTER);
    PlaceStringHorizontal(pDC, 0, m_rectPlot.bottom + (3 * c.nLine) / 2, m_strXAxisLabel, PLACE_HCENTER);

    // An axis whose format is empty, or not a format of one number, shows
    // no numbers and keeps its limit rectangles as they were.
    if (!(m_dwStyle & GS_NOPLOT) && IsNumberFormat(m_strXAxisNumFmt))
        PutXNumbers(c);

    // Each end number of a Y axis is centred on its end; both axes use these.
    const int yTop = m_rectPlot.top - c.nLine / 2;
    const int yBottom = m_rectPlot.bottom - c.nLine / 2;

    if (m_rectPlot.left != m_rectGraph.left)
        PlaceStringVertical(pDC, 0, 0, m_strYAxisLabel[0], PLACE_VCENTER | PLACE_LEFTSIDE);
    if (IsNumberFormat(m_strYAxisNumFmt[0]))
        PutYNumbers(c, 0, yTop, yBottom);

    // The right axis shows only with a title of its own.
    if (!m_strYAxisLabel[1].IsEmpty()) {
        if (m_rectPlot.right + 1 != m_rectGraph.right)
            PlaceStringVertical(pDC, 0, 0, m_strYAxisLabel[1], PLACE_VCENTER | PLACE_RIGHTSIDE);
        if (IsNumberFormat(m_strYAxisNumFmt[1]))
            PutYNumbers(c, 1, yTop, yBottom);
    }

    pDC->SetTextColor(crOldText);
}
