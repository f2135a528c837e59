// CPlotData: one named series: its points (the host's float arrays, or owned
// float copies of the host's doubles), its look, its pixel array, and the
// decorations that hang on it.
#pragma once

#include "afx/afxwin.h"
#include "afx/afxcoll.h"
#include "afx/afxtempl.h"

class CAreaData;
class CHighlightRegionData;
class CGraphPrv;

// Values a double series cannot hold as float are replaced on conversion.
#define PLOTDATA_X_OVERFLOW_BITS 0x7D4CCCCCu   // about 1.7014117e37
#define PLOTDATA_Y_OVERFLOW_BITS 0x758637BCu   // about 3.4028233e32

class AFX_EXT_CLASS CPlotData : public CObject
{
public:
    CPlotData();
    virtual ~CPlotData();

    // Replaces the arrays and the count with owned float copies of the
    // host's doubles; 1, or 0 when memory fails, with arrays and count left
    // as they were.
    BOOL SetDoubleData(double* pdX, double* pdY, long lPoints);
    int SetAnnotateColor(COLORREF crAnnotate);
    COLORREF GetAnnotateColor();

    // Remembered point labels: five parallel arrays, one entry per name.
    int AddLabel(const CString& strName, double x, double y, int nStyle, const CString& strText);
    int RemoveLabel(const CString& strName);
    void RemoveAllLabels();
    int DrawLabels(CDC* pDC, CGraphPrv* pGraph);

    // Remembered point highlights: four parallel arrays, one entry per name.
    int AddPointHighlight(const CString& strName, double x, double y, int nMarker);
    int RemovePointHighlight(const CString& strName);
    void RemoveAllPointHighlights();
    int DrawPointHighlights(CDC* pDC, CGraphPrv* pGraph);

    CString m_strName;             // the name, equal to the key in the graph's map
    long m_lPoints;                // number of points drawn
    COLORREF m_crLine;             // colour of line and markers
    int m_nLineStyle;              // pen style of the line; 5 draws no line
    int m_nLineWidth;              // pen width of the line
    float m_fXMin, m_fXMax;        // X extent of the points
    float m_fYMin, m_fYMax;        // Y extent of the points
    float* m_pfXData;              // first X value
    float* m_pfYData;              // first Y value
    BOOL m_bOwnXData;              // m_pfXData was allocated here and is freed here
    BOOL m_bOwnYData;              // likewise for m_pfYData
    double* m_pdXData;             // the host's doubles, during SetDoubleData only
    double* m_pdYData;
    POINT* m_pPointArray;          // pixel positions of the points, owned
    long m_lPointCount;            // pixel positions in use after reduction
    long m_lStartIndex;            // index of the first point drawn
    int m_nYAxis;                  // 0 left axis, 1 right axis
    int m_nAnnotate;               // mark drawn at each point, 0 none
    CTypedPtrList<CPtrList, CAreaData*> m_listAreas;                 // shaded areas, owned
    CTypedPtrList<CPtrList, CHighlightRegionData*> m_listHighlights;  // highlighted stretches, owned
    CStringArray m_aLabelNames;    // names of the point labels
    CStringArray m_aLabelTexts;    // their texts
    CArray<double, double> m_aLabelX;
    CArray<double, double> m_aLabelY;
    CArray<int, int> m_aLabelStyles;
    COLORREF m_crAnnotate;         // colour of the point labels
    CStringArray m_aPointHighlightNames;
    CArray<double, double> m_aPointHighlightX;
    CArray<double, double> m_aPointHighlightY;
    CArray<int, int> m_aPointHighlightStyles;

private:
    int FindLabel(const CString& strName) const;
    int FindPointHighlight(const CString& strName) const;
};
