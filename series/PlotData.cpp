// CPlotData: conversion of double data to owned floats, the remembered point
// labels and point highlights, and the release of everything a series owns.
#include "series/PlotData.h"
#include "graph/GraphDefs.h"
#include "render/AreaData.h"
#include "render/HighlightRegionData.h"
#include <string.h>

namespace {

// The largest float, as a double: values at or above it cannot be rounded.
const double s_dFloatMax = 3.4028234663852886e38;

float FloatFromBits(unsigned int nBits)
{
    float f;
    memcpy(&f, &nBits, sizeof(f));
    return f;
}

// Converts n doubles to floats; values at or above the largest float become
// the replacement value. A branch-free select keeps the loop vectorisable.
void ConvertToFloat(const double* pdSrc, float* pfDst, long n, float fReplacement)
{
    for (long i = 0; i < n; i++) {
        double d = pdSrc[i];
        pfDst[i] = d < s_dFloatMax || d != d ? (float)d : fReplacement;
    }
}

} // namespace

CPlotData::CPlotData()
    : m_lPoints(0), m_crLine(0), m_nLineStyle(0), m_nLineWidth(1),
      m_fXMin(0.0f), m_fXMax(0.0f), m_fYMin(0.0f), m_fYMax(0.0f),
      m_pfXData(NULL), m_pfYData(NULL), m_bOwnXData(FALSE), m_bOwnYData(FALSE),
      m_pdXData(NULL), m_pdYData(NULL), m_pPointArray(NULL), m_lPointCount(0), m_lStartIndex(0),
      m_nYAxis(0), m_nAnnotate(0), m_listAreas(10), m_listHighlights(10), m_crAnnotate(0)
{
}

CPlotData::~CPlotData()
{
    if (m_bOwnXData && m_pfXData != NULL)
        delete[] m_pfXData;
    if (m_bOwnYData && m_pfYData != NULL)
        delete[] m_pfYData;
    delete[] m_pPointArray;
    while (!m_listAreas.IsEmpty())
        delete m_listAreas.RemoveHead();   // the area deletes both of its brushes
    while (!m_listHighlights.IsEmpty())
        delete m_listHighlights.RemoveHead();
}

BOOL CPlotData::SetDoubleData(double* pdX, double* pdY, long lPoints)
{
    // Both copies are made before anything of the series changes: without
    // memory for either, the series keeps its arrays and count.
    const size_t nCount = lPoints > 0 ? (size_t)lPoints : 0;
    float* pfX = NULL;
    float* pfY = NULL;
    try {
        pfX = new float[nCount];
        pfY = new float[nCount];
    } catch (CException* e) {
        e->Delete();
        delete[] pfX;
        return FALSE;
    }
    m_pdXData = pdX;
    m_pdYData = pdY;
    ConvertToFloat(pdX, pfX, lPoints, FloatFromBits(PLOTDATA_X_OVERFLOW_BITS));
    ConvertToFloat(pdY, pfY, lPoints, FloatFromBits(PLOTDATA_Y_OVERFLOW_BITS));
    m_pdXData = NULL;
    m_pdYData = NULL;

    if (m_bOwnXData)
        delete[] m_pfXData;
    if (m_bOwnYData)
        delete[] m_pfYData;
    m_pfXData = pfX;
    m_pfYData = pfY;
    m_bOwnXData = TRUE;
    m_bOwnYData = TRUE;
    m_lPoints = lPoints;
    return TRUE;
}

int CPlotData::SetAnnotateColor(COLORREF crAnnotate)
{
    m_crAnnotate = crAnnotate;
    return GRAPH_OK;
}

COLORREF CPlotData::GetAnnotateColor()
{
    return m_crAnnotate;
}

int CPlotData::FindLabel(const CString& strName) const
{
    for (int i = 0; i < m_aLabelNames.GetSize(); i++) {
        if (m_aLabelNames[i] == strName)
            return i;
    }
    return -1;
}

int CPlotData::AddLabel(const CString& strName, double x, double y, int nStyle, const CString& strText)
{
    int i = FindLabel(strName);
    if (i < 0) {
        m_aLabelNames.Add(strName);
        m_aLabelTexts.Add(strText);
        m_aLabelX.Add(x);
        m_aLabelY.Add(y);
        m_aLabelStyles.Add(nStyle);
    } else {
        m_aLabelTexts[i] = strText;
        m_aLabelX[i] = x;
        m_aLabelY[i] = y;
        m_aLabelStyles[i] = nStyle;
    }
    m_crAnnotate = m_crLine;
    return GRAPH_OK;
}

int CPlotData::RemoveLabel(const CString& strName)
{
    int i = FindLabel(strName);
    if (i < 0)
        return 0;
    m_aLabelNames.RemoveAt(i);
    m_aLabelTexts.RemoveAt(i);
    m_aLabelX.RemoveAt(i);
    m_aLabelY.RemoveAt(i);
    m_aLabelStyles.RemoveAt(i);
    return GRAPH_OK;
}

void CPlotData::RemoveAllLabels()
{
    m_aLabelNames.RemoveAll();
    m_aLabelTexts.RemoveAll();
    m_aLabelX.RemoveAll();
    m_aLabelY.RemoveAll();
    m_aLabelStyles.RemoveAll();
}

int CPlotData::FindPointHighlight(const CString& strName) const
{
    for (int i = 0; i < m_aPointHighlightNames.GetSize(); i++) {
        if (m_aPointHighlightNames[i] == strName)
            return i;
    }
    return -1;
}

int CPlotData::AddPointHighlight(const CString& strName, double x, double y, int nMarker)
{
    int i = FindPointHighlight(strName);
    if (i < 0) {
        m_aPointHighlightNames.Add(strName);
        m_aPointHighlightX.Add(x);
        m_aPointHighlightY.Add(y);
        m_aPointHighlightStyles.Add(nMarker);
    } else {
        m_aPointHighlightX[i] = x;
        m_aPointHighlightY[i] = y;
        m_aPointHighlightStyles[i] = nMarker;
    }
    return GRAPH_OK;
}

int CPlotData::RemovePointHighlight(const CString& strName)
{
    int i = FindPointHighlight(strName);
    if (i < 0)
        return 0;
    m_aPointHighlightNames.RemoveAt(i);
    m_aPointHighlightX.RemoveAt(i);
    m_aPointHighlightY.RemoveAt(i);
    m_aPointHighlightStyles.RemoveAt(i);
    return GRAPH_OK;
}

void CPlotData::RemoveAllPointHighlights()
{
    m_aPointHighlightNames.RemoveAll();
    m_aPointHighlightX.RemoveAll();
    m_aPointHighlightY.RemoveAll();
    m_aPointHighlightStyles.RemoveAll();
}
