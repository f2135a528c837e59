// Axis text: the graph title, the axis titles (rotated for a TrueType font,
// stacked otherwise) and the numbers along the axes in the locale's
// notation, every one formatted through FormatNumber. A middle number is
// left out when it would touch its neighbour, repeat the text of its
// neighbour, or when rounding has slid its text nearer to the next tic than
// to its own. The rectangles of the printed limits are kept in m_rectLimit
// for the mouse.
//
// [SECTION] Number texts and extents
// [SECTION] Horizontal and vertical strings
// [SECTION] Numbers of the X axis
// [SECTION] Numbers of the Y axes
// [SECTION] PutLabels
#include "graph/GraphPrv.h"
#include "render/NumberFormat.h"
#include "render/TextFont.h"
#include "sheet/IntlString.h"
#include <math.h>
#include <mbstring.h>
#include <stdlib.h>
#include <string.h>

namespace {

BOOL SameText(const CString& str1, const CString& str2)
{
    return _mbscmp((const unsigned char*)(LPCSTR)str1, (const unsigned char*)(LPCSTR)str2) == 0;
}

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

// A middle number stays only if its rounded value is strictly nearer to its
// own tic than to the next one in line.
BOOL NearerToOwnTic(float f, double dOwn, double dNext)
{
    return fabs((double)f - dOwn) < fabs((double)f - dNext);
}

int ClampTicCount(int nCount)
{
    return nCount > 10 ? 10 : nCount;
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
        LOGFONT logFont = m_logFont;
        logFont.lfHeight = m_nPointSize;
        logFont.lfEscapement = 900;
        logFont.lfOrientation = 900;
        CFont fontRotated;
        fontRotated.CreatePointFontIndirect(&logFont, IsPrinterOrPlotter(pDC) ? pDC : NULL);
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

void PutXNumbers(LabelContext& c)
{
    CGraphPrv* g = c.pGraph;
    CDC* pDC = c.pDC;
    const CRect& rectPlot = g->m_rectPlot;
    const int yLabel = rectPlot.bottom + c.nLine / 2 + 1;
    int w = 0;

    // The minimum, centred under the left end of the axis.
    CString strLast = c.Format(g->m_strXAxisNumFmt, g->m_dXMin);
    g->GetLabelWExtent(pDC, strLast, 1, &w);
    int x = rectPlot.left - w / 2;
    g->m_rectLimit[LIMIT_XMIN].SetRect(x, yLabel, x + w, yLabel + c.nLine);
    pDC->TextOut(x, yLabel, strLast);
    int nLeftEnd = x + w + 2;

    // The maximum, under the right end; drawn after the middle numbers.
    CString strEnd = c.Format(g->m_strXAxisNumFmt, g->m_dXMax);
    const int nLastLength = (int)strlen(c.szBuffer);
    g->GetLabelWExtent(pDC, strEnd, 1, &w);
    const int xRight = rectPlot.right - w / 2;
    g->m_rectLimit[LIMIT_XMAX].SetRect(xRight, yLabel, xRight + w, yLabel + c.nLine);

    const int nCount = ClampTicCount(g->m_nXTicCount);
    const int nWidth = rectPlot.Width();
    if (g->m_nXTicType == 0) {
        // Fixed tics: one number in the middle, when three numbers fit.
        if (nCount >= 0 && 3 * nLastLength * c.nCharW <= nWidth) {
            CString str = c.Format(g->m_strXAxisNumFmt, g->m_dXTicValue[nCount / 2]);
            g->GetLabelWExtent(pDC, str, 1, &w);
            pDC->TextOut(rectPlot.left + (int)(nWidth * 0.5) - w / 2, yLabel, str);
        }
    } else {
        // Floating tics: each interior tic, from the left end rightward.
        BOOL bFirstDrawn = FALSE, bLastDrawn = FALSE;
        for (int i = 1; i < nCount; i++) {
            float f = 0.0f;
            CString str = c.FormatMiddle(g->m_strXAxisNumFmt, g->m_dXTicValue[i], f);
            if (SameText(str, strLast) || SameText(str, strEnd))
                continue;
            if (!NearerToOwnTic(f, g->m_dXTicValue[i], g->m_dXTicValue[i + 1]))
                continue;
            g->GetLabelWExtent(pDC, str, 1, &w);
            x = g->m_nXTicPixel[i] - w / 2;
            if (x <= nLeftEnd || x + w + 2 >= xRight)
                continue;
            pDC->TextOut(x, yLabel, str);
            strLast = str;
            nLeftEnd = x + w + 2;
            if (i == 1)
                bFirstDrawn = TRUE;
            if (i == nCount - 1)
                bLastDrawn = TRUE;
        }

        // With minor tics and a grid, the major tics reach below the frame;
        // the outer ones only where their number stands.
        if (!(g->m_dwGridType & GRID_NONE) && g->m_nMinorTics != 0) {
            CPen pen(PS_SOLID, g->m_nGridPenWidth, g->IsColorDevice(pDC) ? g->m_crGrid : 0);
            CSelectGuard selectPen(pDC, &pen);
            for (int i = 1; i < nCount; i++) {
                if ((i == 1 && !bFirstDrawn) || (i == nCount - 1 && !bLastDrawn))
                    continue;
                pDC->MoveTo(g->m_nXTicPixel[i], rectPlot.bottom);
                pDC->LineTo(g->m_nXTicPixel[i], rectPlot.bottom + c.nTicOut);
            }
        }
    }

    pDC->TextOut(xRight, yLabel, strEnd);
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
    CString strLast = c.Format(strFormat, g->m_dYMax[nAxis]);
    g->GetLabelWExtent(pDC, strLast, bLeft, &w);
    int x = bLeft ? rectPlot.left - w : xRightSide;
    if (bLeft)
        g->m_rectLimit[LIMIT_YLEFT_MAX].SetRect(x, yTop, rectPlot.left, yTop + c.nLine);
    else
        g->m_rectLimit[LIMIT_YRIGHT_MAX].SetRect(x, yTop, x + w, yTop + c.nLine);
    pDC->TextOut(x, yTop, strLast);

    // The minimum, at the bottom end; drawn after the middle numbers.
    CString strEnd = c.Format(strFormat, g->m_dYMin[nAxis]);
    g->GetLabelWExtent(pDC, strEnd, bLeft, &w);
    const int xEnd = bLeft ? rectPlot.left - w : xRightSide;
    if (bLeft)
        g->m_rectLimit[LIMIT_YLEFT_MIN].SetRect(xEnd, yBottom, rectPlot.left, yBottom + c.nLine);
    else
        g->m_rectLimit[LIMIT_YRIGHT_MIN].SetRect(xEnd, yBottom, xEnd + w, yBottom + c.nLine);

    const int nHeight = rectPlot.Height();
    const int nCount = ClampTicCount(g->m_nYTicCount[nAxis]);
    const double* pdValues = g->m_dYTicValue[nAxis];
    if (nHeight > 5 * c.nLine) {
        if (g->m_nYTicType[nAxis] == 0) {
            // Fixed tics: one number in the middle of the axis.
            if (nCount >= 0) {
                CString str = c.Format(strFormat, pdValues[nCount / 2]);
                if (bLeft) {
                    if (!SameText(str, strLast) && !SameText(str, strEnd)) {
                        g->GetLabelWExtent(pDC, str, 1, &w);
                        pDC->TextOut(rectPlot.left - w,
                                     rectPlot.bottom - (int)(nHeight * 0.5) - c.nLine / 2, str);
                    }
                } else {
                    pDC->TextOut(xRightSide, rectPlot.bottom - c.nLine / 2 - (int)(nHeight * 0.5) - 2, str);
                }
            }
        } else {
            // Floating tics: each interior tic, from the top end downward.
            for (int i = nCount - 1; i >= 1; i--) {
                float f = 0.0f;
                CString str = c.FormatMiddle(strFormat, pdValues[i], f);
                if (SameText(str, strLast) || SameText(str, strEnd))
                    continue;
                if (!NearerToOwnTic(f, pdValues[i], pdValues[i - 1]))
                    continue;
                const int y = g->m_nYTicPixel[nAxis][i] - c.nLine / 2;
                if (y <= yTop + c.nLine || y >= yBottom - c.nLine)
                    continue;
                if (bLeft) {
                    g->GetLabelWExtent(pDC, str, 1, &w);
                    x = rectPlot.left - w;
                } else {
                    x = xRightSide;
                }
                pDC->TextOut(x, y, str);
                strLast = str;
            }
        }
    }

    pDC->TextOut(xEnd, yBottom, strEnd);
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
