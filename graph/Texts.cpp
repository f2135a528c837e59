// Texts, number formats and rectangles of a graph. None of the setters
// repaints or lays the graph out again: the host follows them with Replot.
#include "graph/GraphPrv.h"
#include <mbstring.h>
#include <stdlib.h>
#include <math.h>

int CGraphPrv::HaveRightAxis()
{
    return (int)(m_dwStyle & GS_RIGHTAXIS);
}

int CGraphPrv::RightAxisDisplayed()
{
    return m_bRightAxisDisplayed;
}

int CGraphPrv::GetGraphClientRect(RECT* pRect)
{
    if (pRect == NULL)
        return GRAPH_BADARG;
    *pRect = m_rectGraph;
    return GRAPH_OK;
}

int CGraphPrv::GetGraphScreenRect(RECT* pRect)
{
    if (pRect == NULL)
        return GRAPH_BADARG;
    *pRect = m_rectGraph;
    ClientToScreen(pRect);
    return GRAPH_OK;
}

int CGraphPrv::GetPlotRect(CRect& rect)
{
    rect = m_rectPlot;
    return GRAPH_OK;
}

int CGraphPrv::GetScrollRect(CRect& rect)
{
    rect = m_rectScroll;
    return GRAPH_OK;
}

int CGraphPrv::SetGraphTitle(const CString& strTitle)
{
    m_strGraphTitle = strTitle;
    return GRAPH_OK;
}

int CGraphPrv::GetGraphTitle(CString& strTitle)
{
    strTitle = m_strGraphTitle;
    return GRAPH_OK;
}

int CGraphPrv::SetXAxisLabel(const CString& strLabel)
{
    m_strXAxisLabel = strLabel;
    return GRAPH_OK;
}

int CGraphPrv::GetXAxisLabel(CString& strLabel)
{
    strLabel = m_strXAxisLabel;
    return GRAPH_OK;
}

int CGraphPrv::SetYAxisLabel(int nAxis, const CString& strLabel)
{
    if (nAxis != 1) {
        m_strYAxisLabel[0] = strLabel;
        return GRAPH_OK;
    }
    // The right label decides whether the right axis shows; the cross hair is
    // taken down meanwhile, since its read-outs depend on it.
    BOOL bCrossHair = (m_dwState & GST_CROSSHAIR) != 0;
    if (bCrossHair)
        m_crossHair.Show(this, FALSE);
    m_strYAxisLabel[1] = strLabel;
    m_bRightAxisDisplayed = !strLabel.IsEmpty();
    if (bCrossHair)
        m_crossHair.Show(this, TRUE);
    return GRAPH_OK;
}

int CGraphPrv::GetYAxisLabel(int nAxis, CString& strLabel)
{
    strLabel = m_strYAxisLabel[nAxis == 1 ? 1 : 0];
    return GRAPH_OK;
}

int CGraphPrv::SetXAxisNumFmt(const CString& strFormat)
{
    m_strXAxisNumFmt = strFormat;
    m_fXResolution = ResolutionFromFormat(strFormat);
    return GRAPH_OK;
}

int CGraphPrv::SetYAxisNumFmt(int nAxis, const CString& strFormat)
{
    int n = nAxis == 1 ? 1 : 0;
    m_strYAxisNumFmt[n] = strFormat;
    m_fYResolution[n] = ResolutionFromFormat(strFormat);
    return GRAPH_OK;
}

float CGraphPrv::ResolutionFromFormat(CString strFormat)
{
    // The digits after the first point give the smallest span: 10^-digits,
    // at most 6 digits; no point or no digits gives 1.
    int nPoint = strFormat.Find('.');
    if (nPoint < 0)
        return 1.0f;
    int nDigits = atoi((LPCSTR)strFormat + nPoint + 1);
    if (nDigits == 0)
        return 1.0f;
    if (nDigits > 6)
        nDigits = 6;
    return (float)pow(10.0, -nDigits);
}
