// ZPXGraph public interface: the CGraph facade that a host creates for each
// graph, and the library's initialisation. Every CGraph operation forwards
// to the CGraphPrv it owns, with the same arguments and result.
#pragma once

#include "afx/afxwin.h"
#include "graph/GraphDefs.h"
#include "interact/GraphNotify.h"
#include "persist/LineColor.h"

class CGraphPrv;

// Call once after loading the library, before the first CGraph: finds the
// resource satellite of the thread's locale and joins the resource chain.
AFX_EXT_API void InitializeZPXGraph();

class AFX_EXT_CLASS CGraph : public CObject
{
    DECLARE_DYNCREATE(CGraph)
public:
    CGraph();
    virtual ~CGraph();
    virtual void Serialize(CArchive& ar);

    // ---- Lifetime and window ------------------------------------------------
    int CreateGraph(CWnd* pParent, HINSTANCE hInstance, CRect& rect, DWORD dwStyle, UINT nID, long lMenuConfig);
    int ShowGraph();
    int HideGraph();
    int Update();
    int Replot();
    int Plot(CDC* pDC, int bSeriesOnly);
    int GetGraphClientRect(RECT* pRect);
    int GetGraphScreenRect(RECT* pRect);
    int GetPlotRect(CRect& rect);
    int HaveRightAxis();
    int RightAxisDisplayed();

    // ---- Texts and formats --------------------------------------------------
    int SetGraphTitle(const CString& strTitle);
    int GetGraphTitle(CString& strTitle);
    int SetXAxisLabel(const CString& strLabel);
    int GetXAxisLabel(CString& strLabel);
    int SetYAxisLabel(int nAxis, const CString& strLabel);
    int GetYAxisLabel(int nAxis, CString& strLabel);
    int SetXAxisNumFmt(const CString& strFormat);
    int SetYAxisNumFmt(int nAxis, const CString& strFormat);

    // ---- Series ---------------------------------------------------------------
    int AddPlotData(const CString& strName, DWORD dwAxis, float* pfX, float* pfY, long lPoints,
                    DWORD crColor, int nLineStyle, int nAnnotate);
    int AddPlotData(const CString& strName, DWORD dwAxis, double* pdX, double* pdY, long lPoints,
                    DWORD crColor, int nLineStyle, int nAnnotate);
    int UpdatePlotData(const CString& strName, float* pfX, float* pfY, long lFirst, long lPoints);
    int UpdatePlotData(const CString& strName, double* pdX, double* pdY, long lFirst, long lPoints);
    int RemovePlotData(const CString& strName);
    int RemoveAllPlotData();
    int SetPlotDataAttributes(const CString& strName, DWORD crColor, int nLineStyle, int nLineWidth,
                              int nAnnotate, DWORD crAnnotate);
    int GetPlotDataAttributes(const CString& strName, DWORD& crColor, int& nLineStyle, int& nLineWidth,
                              int& nAnnotate, DWORD& crAnnotate);

    // ---- Colours and font -----------------------------------------------------
    int SetBackgroundColor(DWORD crColor);
    int GetBackgroundColor(DWORD& crColor);
    int SetGraphColorsMode(int nMode);
    int SetGraphColors(CLineColor* pColors, long lCount);
    int GetMatchingColor(const CString& strName, CLineColor& color);
    int GetNextRotatingColor(CLineColor& color);
    int ResetRotatingColors();
    void SetStopIncrementColor(int bStop);
    int GetStopIncrementColor();
    int SetCustomColors(DWORD* pColors);
    int GetCustomColors(DWORD* pColors);
    int ReleaseCustomColors();
    int SetLogFont(LOGFONT* pLogFont, int nPointSize, DWORD crText);
    int GetLogFont(LOGFONT* pLogFont, int* pnPointSize, DWORD* pcrText);

    // ---- Axes -----------------------------------------------------------------
    // (axes section)

    // ---- Interaction ----------------------------------------------------------
    // (interact section)

    // ---- Drawing --------------------------------------------------------------
    // (render section)

    CGraphPrv* m_pGraphPrv;   // the implementation, made here, destroyed here, never replaced

private:
    CGraph(const CGraph&) = delete;
};
