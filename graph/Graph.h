// ZPXGraph public interface: the CGraph facade that a host creates for each
// graph, and the library's initialisation. Every CGraph operation forwards
// to the CGraphPrv it owns, with the same arguments and result.
#pragma once

#include "afx/afxwin.h"
#include "graph/GraphDefs.h"
#include "interact/GraphNotify.h"
#include "persist/LineColor.h"

class CGraphPrv;
class CPropertyPage;

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
    // A windowless drawing copy of another graph; the look and limits of this
    // graph onto another.
    CGraph& operator=(const CGraph& src);
    void CopyAppearance(CGraph& dest) const;
    int CreateGraph(CWnd* pParent, HINSTANCE hInstance, CRect& rect, DWORD dwStyle, UINT nID, long lMenuConfig);
    int ShowGraph();
    int HideGraph();
    int Update();
    int Replot();
    int Plot(CDC* pDC, int bPointsOnly);
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
    // The graph's settings under a registry key the host has opened (and
    // keeps): 1, or 0 when a step failed.
    int SaveToRegistry(HKEY hKey);
    int LoadFromRegistry(HKEY hKey);

    // ---- Axes -----------------------------------------------------------------
    int SetXAxisLimits(double dMin, double dMax);
    int GetXAxisLimits(double* pdMin, double* pdMax);
    int SetYAxisLimits(double dMin, double dMax, int nAxis);
    int GetYAxisLimits(double* pdMin, double* pdMax, int nAxis);
    int SetLimitFlip(DWORD dwFlags);
    int GetLimitFlip(DWORD* pdwFlags);
    int SetAutoScaleMode(int nMode);
    int SetTicMarkType(int nTicType, int nMinorTics, CDC* pDC);
    int GetTicMarkType(int* pnTicType, int* pnMinorTics);
    // Layout for the window, for a device context, and the smallest usable size.
    int ReSizeGraph(CRect* pRect);
    int SizeGraph(CDC* pDC, int x, int y, int nWidth, int nHeight, int bRightAxis);
    int GetMinimumGraphSize(CDC* pDC, int* pnWidth, int* pnHeight);
    // Transforms between data values and pixels; the Rpt forms reuse the
    // transform of the last PixelToDataX / PixelToDataY.
    int DataToPixelX(double dX);
    int DataToPixelY(double dY, int nAxis);
    double PixelToDataX(int nX);
    double PixelToDataY(int nY, int nAxis);
    double PixelToDataXRpt(int nX);
    double PixelToDataYRpt(int nY, int nAxis);
    // Automatic scaling to the data ("Radar").
    int Radar();
    int Radar(WORD wFlags);
    int RadarPlotData(CString& strName, long lFlags);
    int SetRadarType(WORD wFlags);
    int GetRadarType(WORD* pwFlags);
    int SetRadarPercent(double dXPercent, double dYPercent);
    int GetRadarPercent(double& dXPercent, double& dYPercent);
    int EnableRadarDblClick(int bEnable);
    int EnableRadarPercentControls(int bEnable);
    int IsRadarPercentControlsEnabled();
    int EnableRadarAxisControls(int bEnable);
    int IsRadarAxisControlsEnabled();

    // ---- Interaction ----------------------------------------------------------
    int EnableMenu(int bEnable);
    int SetMenuConfiguration(long lConfig);
    int AddMenuItem(CString& strText, DWORD dwId, int nPosition, CWnd* pWnd);
    int RemoveMenuItem(DWORD dwId);
    int RemoveAllMenuItems();
    // The modal property sheet: 1 after OK, 2 otherwise; an empty title
    // gives the library's own.
    int Properties(CString& strTitle);
    int AddPropertyPage(CPropertyPage* pPage, DWORD dwId);
    int RemovePropertyPage(DWORD dwId);
    int SetPropertyPageConfiguration(long lConfig);
    int EnableNotifications(CGraphNotify* pNotify, long lMask);
    // The marker line: one or two lines the user drags (ML_ bits), told to
    // the host through its variables and WM_GRAPH_MARKER1MOVED/2MOVED.
    int AddMarkerLine(CWnd* pWnd, long lStyle, const CString& strSeries, double* pdPos1, double* pdPos2,
                      BOOL bContinuous);
    int RemoveMarkerLine();
    int IsMarkerLineEnabled();
    int SetMarkerLinePos(long nLine, double* pdPos);
    int GetMarkerLinePos(double& dPos1, double& dPos2);
    int GetMarkerLineStyle(long& lStyle, CString& strSeries);
    // Rubber-band zoom with the left button in the plot (on by default).
    int EnableZoom(int bEnable);
    // Lines of a solid pen one pixel wide go to the device reduced per pixel
    // column: the same pixels, far fewer points (off by default).
    int EnableColumnReduction(BOOL bEnable);
    // The context menu at a point in screen coordinates.
    int DisplayMenu(POINT* pPoint);
    // The picture of the graph as a bitmap the caller owns (null when none
    // could be made), or on the clipboard as CF_BITMAP.
    HBITMAP GetBitmap();
    int CopyToClipboard();
    // A floating label in edit mode at the pointer, or at a point in screen
    // coordinates; and all labels removed.
    int AddFloatingLabel();
    int AddFloatingLabel(CPoint ptScreen);
    void RemoveAllFloatingLabels();
    // The legend of the series: on, off, or the other way round.
    int ShowLegend();
    int ShowLegend(int bShow);
    int IsLegendVisible();
    // The cross hair and its lock: set, or toggled without an argument.
    int DisplayCrossHair();
    int DisplayCrossHair(int bShow);
    int IsCrossHairVisible();
    int IsCrossHairLocked();
    int LockCrossHair();
    int LockCrossHair(int bLock);

    // ---- Drawing --------------------------------------------------------------
    int ShowGrid(DWORD dwGridType);
    int SetGridAttributes(DWORD dwGridType, DWORD crColor, int nStyle);
    int GetGridAttributes(DWORD* pdwGridType, DWORD* pcrColor, int* pnStyle);
    int PlotLine(double x1, double y1, double x2, double y2, DWORD crColor, int nStyle, int nYAxis);
    int AddReferenceLine(CString strName, DWORD dwFlags, double dPosition);
    int RemoveReferenceLine(CString strName);
    int RemoveAllReferenceLines();
    int AddPlotDataLabel(const CString& strName, const CString& strLabel, double dX, double dY, int nMark,
                         const CString& strText);
    int RemovePlotDataLabel(const CString& strName, const CString& strLabel);
    int RemoveAllPlotDataLabels(const CString& strName);
    int AnnotatePoint(double dX, double dY, int nYAxis, DWORD crColor, int nMark);
    int AnnotateLine(CString& strName, int nMark, int nStep);
    int LabelPoint(double dX, double dY, int nYAxis, DWORD crColor, int nMark, const CString& strText, CDC* pDC);
    // Shaded areas and highlights of a series; HighlightPoint inverts a mark on the window at once.
    int AddAreaData(const CString& strName, short nId, long lStart, long lEnd, int nBaseMode, DWORD crColor,
                    int nBrushStyle);
    int UpdateAreaData(const CString& strName, short nId, long lStart, long lEnd, int nBaseMode, DWORD crColor,
                       int nBrushStyle);
    int RemoveAreaData(const CString& strName, short nId, long lStart, long lEnd);
    int RemoveAllAreaData(const CString& strName);
    int AddHighlightRegion(const CString& strName, short nId, long lStart, long lEnd, DWORD crColor, int nStyle);
    int RemoveHighlightRegion(const CString& strName, short nId);
    int RemoveAllHighlightRegions(const CString& strName);
    int HighlightPoint(double dX, double dY, int nYAxis, int nMark);
    int AddPlotDataHighlight(const CString& strName, const CString& strHighlight, double dX, double dY, int nMark);
    int RemovePlotDataHighlight(const CString& strName, const CString& strHighlight);
    int RemoveAllPlotDataHighlights(const CString& strName);

    CGraphPrv* m_pGraphPrv;   // the implementation, made here, destroyed here, never replaced

private:
    CGraph(const CGraph&) = delete;
};
