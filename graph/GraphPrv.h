// CGraphPrv: the whole state of one graph, and the child window that shows
// it. One class written across the subsystem folders, one topic per file:
//   graph/    construction, creation, texts and rectangles
//   series/   adding, updating and removing series
//   axes/     limits, transforms, tic tables and layout
//   render/   the plot pipeline and the drawers
//   interact/ mouse, tools, notifications, legend
//   persist/  colours, fonts and the stores
//   sheet/    the property sheet
// The fields are public: the operations of every topic read them directly,
// as do the small helper classes of the graph.
#pragma once

#include "afx/afxwin.h"
#include "afx/afxcoll.h"
#include "afx/afxtempl.h"
#include "graph/GraphDefs.h"
#include "interact/CrossHair.h"
#include "interact/GraphNotify.h"
#include "interact/Legend.h"
#include "persist/LineColor.h"

class CPlotData;
class CAreaData;
class CRefLineData;
class CFloatingLabel;
class CMarkerLine;
class CRectTracker;
class CPropertyPage;

// Minor tics of one axis: pixel distance of two major tics, and the offsets
// of the minor tics from the major one before them.
struct MINORTICS
{
    int nSpacing;
    int nOffset[9];
};

class AFX_EXT_CLASS CGraphPrv : public CWnd
{
    DECLARE_DYNCREATE(CGraphPrv)
public:
    CGraphPrv();
    virtual ~CGraphPrv();

    // ---- Replaceable by a derived class (called through the virtual table) --
    virtual int Plot(CDC* pDC, int bPointsOnly);
    virtual void PutLabels(CDC* pDC);
    virtual int Replot();
    virtual int ReSizeGraph(CRect* pRect);
    virtual int ShowGraph();
    virtual void Serialize(CArchive& ar);

    // ---- graph/: creation, window, texts and rectangles -----------------------
    int CreateGraph(CWnd* pParent, HINSTANCE hInstance, CRect& rect, DWORD dwStyle, UINT nID, long lMenuConfig);
    int HideGraph();
    int Update();
    int HaveRightAxis();
    int RightAxisDisplayed();
    int GetGraphClientRect(RECT* pRect);
    int GetGraphScreenRect(RECT* pRect);
    int GetPlotRect(CRect& rect);
    int SetGraphTitle(const CString& strTitle);
    int GetGraphTitle(CString& strTitle);
    int SetXAxisLabel(const CString& strLabel);
    int GetXAxisLabel(CString& strLabel);
    int SetYAxisLabel(int nAxis, const CString& strLabel);
    int GetYAxisLabel(int nAxis, CString& strLabel);
    int SetXAxisNumFmt(const CString& strFormat);
    int SetYAxisNumFmt(int nAxis, const CString& strFormat);

    // ---- graph/: copying ----------------------------------------------------
    // A windowless drawing copy of src: its frame, limits and tic tables,
    // without data. The language's copy construction stays unavailable.
    CGraphPrv& operator=(const CGraphPrv& src);
    CGraphPrv(const CGraphPrv&) = delete;
    // The look and the limits of this graph onto dest, through dest's setters.
    void CopyAppearance(CGraphPrv& dest) const;

    // ---- series/: the series of the graph -----------------------------------
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

    // ---- persist/: colours and the font -------------------------------------
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
    int SetLogFont(const LOGFONT* pLogFont, int nPointSize, DWORD crText);
    int GetLogFont(LOGFONT* pLogFont, int* pnPointSize, DWORD* pcrText);
    // The settings under a key the host owns (and the custom colours under
    // the library's key): 1, or 0 where a step could not be done.
    int SaveToRegistry(HKEY hKey);
    int LoadFromRegistry(HKEY hKey);

    // ---- axes/: limits, transforms, tic tables, layout ----------------------
    int SetXAxisLimits(double dMin, double dMax);
    int GetXAxisLimits(double* pdMin, double* pdMax);
    int SetYAxisLimits(double dMin, double dMax, int nAxis);
    int GetYAxisLimits(double* pdMin, double* pdMax, int nAxis);
    int SetLimitFlip(DWORD dwFlags);
    int GetLimitFlip(DWORD* pdwFlags);
    int SetAutoScaleMode(int nMode);
    int SetTicMarkType(int nTicType, int nMinorTics, CDC* pDC);
    int GetTicMarkType(int* pnTicType, int* pnMinorTics);
    int SizeGraph(CDC* pDC, int x, int y, int nWidth, int nHeight, int bRightAxis);
    int GetMinimumGraphSize(CDC* pDC, int* pnWidth, int* pnHeight);
    // Automatic scaling ("Radar"): limits from the data with a margin in
    // percent. Radar() scales the axes of m_wRadarType, Radar(flags) those of
    // the RADAR_ bits, RadarPlotData one series from its stored extent.
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

    // ---- interact/: notifications, tools, legend ----------------------------
    void RemoveAllFloatingLabels();
    // Host entries of the context menu and host pages of the property sheet.
    int EnableMenu(int bEnable);
    int SetMenuConfiguration(long lConfig);
    int AddMenuItem(CString& strText, DWORD dwId, int nPosition, CWnd* pWnd);
    int RemoveMenuItem(DWORD dwId);
    int RemoveAllMenuItems();
    int AddPropertyPage(CPropertyPage* pPage, DWORD dwId);
    int RemovePropertyPage(DWORD dwId);
    int SetPropertyPageConfiguration(long lConfig);
    // The host's notification sink and the notifications it wants (GN_ bits).
    int EnableNotifications(CGraphNotify* pNotify, long lMask);
    // Rubber-band zoom allowed; read at each press, so a drag under way ends
    // normally.
    int EnableZoom(int bEnable);
    // The context menu at a point in screen coordinates, whether or not the
    // menu is enabled; 1, also when the menu resource cannot be had.
    int DisplayMenu(POINT* pPoint);
    // The cross hair: the toggles, the switches, and its state (0 or 1).
    int DisplayCrossHair();
    int DisplayCrossHair(int bShow);
    int IsCrossHairVisible();
    int IsCrossHairLocked();
    int LockCrossHair();
    int LockCrossHair(int bLock);
    // The legend: the toggle, the switch, and whether the host or the user
    // has it on (not whether its window is visible).
    int ShowLegend();
    int ShowLegend(int bShow);
    int IsLegendVisible();
    // The picture of the graph, painted afresh: a bitmap the caller owns
    // (null when none could be made), or on the clipboard.
    HBITMAP GetBitmap();
    int CopyToClipboard();
    // A floating label at the pointer, or at a point in screen coordinates.
    int AddFloatingLabel();
    int AddFloatingLabel(CPoint ptScreen);
    // The property sheet with the configured pages and the host's.
    int Properties(CString& strCaption);
    // The marker line: one or two lines the user drags, vertical on a series
    // (snapped to its X samples) or horizontal on a Y axis (ML_ bits); the
    // host hears through its variables and WM_GRAPH_MARKER1MOVED/2MOVED.
    int AddMarkerLine(CWnd* pWnd, long lStyle, const CString& strSeries, double* pdPos1, double* pdPos2,
                      BOOL bContinuous);
    int RemoveMarkerLine();
    int IsMarkerLineEnabled();
    int SetMarkerLinePos(long nLine, double* pdPos);
    int GetMarkerLinePos(double& dPos1, double& dPos2);
    int GetMarkerLineStyle(long& lStyle, CString& strSeries);
    // The value tip beside a dragged line: nMode 2 under the plot, 0 left of
    // it, 1 right of it.
    void DisplayMLValue(int nMode, int nPixel, double dValue);
    // After a paint of the plot: the marker's lines inverted again inside
    // rectDirty, their pixels taken anew from their data positions.
    void RedrawMarkerLine(CDC* pDC, const CRect& rectDirty);

    // ---- render/: the plot pipeline and drawers -----------------------------
    int AddReferenceLine(CString strName, DWORD dwFlags, double dPosition);
    int RemoveReferenceLine(CString strName);
    int RemoveAllReferenceLines();
    // Draws the open polyline clipped to m_rectPlot, in runs of at most 1000
    // points; 0 when the last device call that counts succeeded, else 1.
    int Polyline_Win98_Workaround(CDC* pDC, POINT* pPoints, int nCount);
    // The same walk with its device calls sent to sink (render/PolylineClip.h).
    int DrawClippedPolyline(class CPolylineSink& sink, const POINT* pPoints, int nCount);
    // The series' pixel array from its data, consecutive duplicates dropped,
    // highlight region edges moved onto the reduced array; reduced per pixel
    // column instead where ReducesByColumn says so.
    void OptimizePoints(CPlotData* pPlotData);
    // Lines of a solid pen one pixel wide sent to the device reduced per
    // pixel column (the same pixels, far fewer points); off by default.
    int EnableColumnReduction(BOOL bEnable);
    // The one decision whether a series is reduced per column: the switch,
    // a solid pen of width 0 or 1, and no highlight regions (their stretches
    // have pens of their own).
    BOOL ReducesByColumn(const CPlotData* pPlotData) const;
    // True on the Windows 9x family (top bit of GetVersion).
    bool IsWin98();
    // 1 when pDC draws in colour, 0 for black and white.
    int IsColorDevice(CDC* pDC);
    // Grid settings; ShowGrid refuses a grid (-4) with floating left tics
    // and a shown right axis.
    int ShowGrid(DWORD dwGridType);
    int SetGridAttributes(DWORD dwGridType, DWORD crColor, int nStyle);
    int GetGridAttributes(DWORD* pdwGridType, DWORD* pcrColor, int* pnStyle);
    // Tic marks on the four edges, and the grid lines (called by Plot).
    void PlotTics(CDC* pDC);
    void PlotGrid(CDC* pDC);
    // A value as axis text into pszBuffer (256 bytes): with strFormat, or with
    // m_strMaxLenFormat when that gives more than 10 characters (11 below 0).
    void FormatLabelSuitably(char* pszBuffer, CString strFormat, double dValue);
    // Width of a number: text + overhang + 3; bStrip drops its leading blanks, in place.
    void GetLabelWExtent(CDC* pDC, CString& str, int bStrip, int* pnWidth);
    // Text at (x, y); lFlags 1 centres it on the plot.
    void PlaceStringHorizontal(CDC* pDC, int x, int y, CString& str, long lFlags);
    // Text read upward (TrueType) or stacked; lFlags 8 centres it on the
    // plot, 2 puts it at the graph's right side, 4 at its left side.
    void PlaceStringVertical(CDC* pDC, int x, int y, CString& str, long lFlags);
    // The series, under m_csPlotData and clipped to the plot; leaves the
    // context's own clip region selected again (none: clipped to nothing).
    void PlotPoints(CDC* pDC);
    // The line of one series with its highlight regions; 0 when the last
    // polyline call succeeded.
    int PlotPixels(CDC* pDC, CPlotData* pPlotData);
    // One line between two data points, straight onto the window; 1.
    int PlotLine(double x1, double y1, double x2, double y2, DWORD crColor, int nStyle, int nYAxis);
    // The pixel arrays of all series, without drawing.
    void OptimizePlotData();
    // The reference lines across the plot, in the pen Plot has selected.
    void DrawReferenceLines(CDC* pDC);
    // Markers at every point of a series.
    void AnnotatePlotData(CDC* pDC, CPlotData* pPlotData);
    // All shaded areas of all series.
    void PlotAreas(CDC* pDC);
    // Shaded areas of a series, by the host's identifier; none repaints.
    int AddAreaData(const CString& strName, short nId, long lStart, long lEnd, int nBaseMode, DWORD crColor,
                    int nBrushStyle);
    int UpdateAreaData(const CString& strName, short nId, long lStart, long lEnd, int nBaseMode, DWORD crColor,
                       int nBrushStyle);
    int RemoveAreaData(const CString& strName, short nId, long lStart, long lEnd);
    int RemoveAllAreaData(const CString& strName);
    // Highlight regions of a series, kept in order of their first point; none repaints.
    int AddHighlightRegion(const CString& strName, short nId, long lStart, long lEnd, DWORD crColor, int nStyle);
    int RemoveHighlightRegion(const CString& strName, short nId);
    int RemoveAllHighlightRegions(const CString& strName);
    // A mark inverted on the window at once (a second call takes it away),
    // and the point highlights a series remembers and each paint inverts again.
    int HighlightPoint(double dX, double dY, int nYAxis, int nMark);
    // The inverted mark of a point highlight on a context of the window,
    // clipped to the plot, in the size of a window context's default font.
    void InvertMark(CDC* pDC, double dX, double dY, int nYAxis, int nMark);
    int AddPlotDataHighlight(const CString& strName, const CString& strHighlight, double dX, double dY, int nMark);
    int RemovePlotDataHighlight(const CString& strName, const CString& strHighlight);
    int RemoveAllPlotDataHighlights(const CString& strName);
    // Every floating label, then the tracker of the selected one.
    void DrawFloatingLabel(CDC* pDC);
    // After a paint of the plot: the cross hair and the marker line inverted
    // again over the finished picture, inside rectDirty.
    void RedrawOverlays(CDC* pDC, const CRect& rectDirty);
    // Point labels a series remembers and draws at each paint; an unknown
    // label name is no failure for the remover.
    int AddPlotDataLabel(const CString& strName, const CString& strLabel, double dX, double dY, int nMark,
                         const CString& strText);
    int RemovePlotDataLabel(const CString& strName, const CString& strLabel);
    int RemoveAllPlotDataLabels(const CString& strName);
    // Marks and labels drawn once: on the window (wiped by the next paint),
    // or for LabelPoint into pDC when it is given. AnnotateLine marks every
    // nStep-th point; a step below 1 is refused with GRAPH_BADARG.
    int AnnotatePoint(double dX, double dY, int nYAxis, DWORD crColor, int nMark);
    int AnnotateLine(CString& strName, int nMark, int nStep);
    int LabelPoint(double dX, double dY, int nYAxis, DWORD crColor, int nMark, const CString& strText, CDC* pDC);
    // The graph's font at its point size for the device of pDC (null: the
    // screen), turned by nEscapement tenths of a degree: the font of marks,
    // point labels, rotated titles, and of all text on a printer.
    void CreateDeviceFont(CFont& font, CDC* pDC, int nEscapement);

protected:
    // ---- graph/ ---------------------------------------------------------------
    void InitMemberVariables(CWnd* pParent);
    // Releases what the graph owns besides its series: tracker, reference
    // lines and floating labels.
    void DestroyOwnedTools();
    int GetScrollRect(CRect& rect);
    float ResolutionFromFormat(CString strFormat);

    // ---- series/ ------------------------------------------------------------
    int FillPlotData(CPlotData* pData, DWORD dwAxis, long lPoints, DWORD crColor, int nLineStyle, int nAnnotate);
    CPlotData* FindPlotData(const CString& strName);
    // Calls fn(pData) for every series, in the map's order. fn must not add
    // or remove series.
    template <class Fn> void ForEachSeries(Fn fn)
    {
        POSITION pos = m_mapPlotData.GetStartPosition();
        while (pos != NULL) {
            CString strName;
            CPlotData* pData = NULL;
            m_mapPlotData.GetNextAssoc(pos, strName, pData);
            fn(pData);
        }
    }
    void AddSeriesToLegend(CPlotData* pData);
    void DestroyPlotData(CPlotData* pData);

    // ---- axes/ (protected) --------------------------------------------------
    // The plot rectangle of a new graph, from the metrics of its font.
    void LayoutFirst(const TEXTMETRIC& tm);
    // Places m_rectPlot and m_rectScroll in m_rectGraph by the margin rules.
    void LayoutMargins(const TEXTMETRIC& tm, int nNumberWidth, BOOL bRightMargin, BOOL bFirstLayout);
    // Takes a shown, docked legend off m_rectGraph.
    void TakeOffLegend();
    // ReSizeGraph over the window's present place: the layout after a change
    // of font or legend.
    void LayOutInPlace();
    int GetAveWidthOfNumericChar(CDC* pDC);
    CString GetMaxLenString();
    // The extent of one series, smaller values in the minimum fields.
    void GetRadarValues(CPlotData* pData);
    // The limit setters of one axis (AXIS_X, AXIS_YLEFT, AXIS_YRIGHT): the
    // narrow-pair rule, the store, and what follows a change; bRange is set
    // for sg_xrange and sg_yrange, which also move the marker line.
    void StoreLimits(int iAxis, double dMax, double dMin, BOOL bRange);

    // ---- interact/ (protected) ----------------------------------------------
    // The marker line follows its series: removed with it, and kept on valid
    // data when the series' arrays are replaced.
    void OnSeriesRemoved(CPlotData* pData);
    void OnSeriesDataReplaced(CPlotData* pData);
    // Binds each floating label to this graph and places it by its data position.
    void PlaceFloatingLabels();
    // Moves every floating label to the pixels of its data position.
    void UpdateAllFloatingLabelPositions();
    // Recomputes the marker line's pixels from its data positions; 1.
    int UpdateMarkerLinePos();

    // ---- render/ (protected) ------------------------------------------------
    // Cooperative plotting flags of a derived class with a foreground and a
    // background plotter; they hold only on the Windows 9x family.
    void SetFGPlot(bool bPlotting);
    void SetBGPlot(bool bPlotting);
    bool IsFGPlotting();
    bool IsBGPlotting();
    // Wait, on Windows 9x, until the other plotter has cleared its flag.
    void DelayBG();
    void DelayFG();
    // One mark at a data position, with no test against the plot.
    void Annotate(CDC* pDC, double dX, double dY, int nYAxis, int nMark);
    // LabelPoint on a context: mark, then the text upward beside it.
    void DrawPointLabel(CDC* pDC, double dX, double dY, int nYAxis, COLORREF crColor, int nMark,
                        const CString& strText);

    // ---- interact/: calls on the notification sink -------------------------
    // Calls on the sink, from the message handlers, the tools and the
    // property sheet. Codes are int, host page identifiers UINT: a call picks
    // by the type.
    void NotifyApplication(int nCode);
    void NotifyApplication(UINT wParam, long lParam);
    void NotifyApplication(UINT nMessage, UINT nFlags, CPoint point);
    void NotifyApplication(UINT nPageId);
    void NotifyApplication(CPoint point);

    // ---- message handlers (interact/MouseDispatch.cpp holds the map) ---------
    afx_msg void OnPaint();
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnDestroy();
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg LRESULT OnDeleteLabel(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnFinishedEditingLabel(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetLabelColor(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetLabelFont(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetLabelPointSize(WPARAM wParam, LPARAM lParam);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg LRESULT OnLegendPosChange(WPARAM wParam, LPARAM lParam);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    // Commands of the context menu, and the host's entries (interact/Menus.cpp).
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    // ---- persist/ (private) -------------------------------------------------
    // The groups of SaveToRegistry and LoadFromRegistry, in their order.
    int SaveCustomColors();
    int LoadCustomColors();
    int SaveBackgroundColor(HKEY hKey);
    int LoadBackgroundColor(HKEY hKey);
    int SaveLimitsToRegistry(HKEY hKey);
    int LoadLimitsFromRegistry(HKEY hKey);
    int SaveRadarSettingsToRegistry(HKEY hKey);
    int LoadRadarSettingsFromRegistry(HKEY hKey);
    int SaveGridToRegistry(HKEY hKey);
    int LoadGridFromRegistry(HKEY hKey);
    int SaveTicMarksToRegistry(HKEY hKey);
    int LoadTicMarksFromRegistry(HKEY hKey);
    int SaveFontToRegistry(HKEY hKey, const CString& strSubkey, LOGFONT& lf, int nPointSize, DWORD crColor);
    int LoadFontFromRegistry(HKEY hKey, const CString& strSubkey, LOGFONT& lf, int& nPointSize, DWORD& crColor);

    // ---- sheet/ (private) ---------------------------------------------------
    // The limits and scaling settings of the limits page, after OK.
    void ApplyPageLimits(const class CLimitsPage& page);

    // The facade forwards the transforms; the limit editor reports through
    // NotifyApplication. Tests reach the internals through one friend of theirs.
    friend class CGraph;
    friend class CEditLimit;
    friend class CCrossHair;
    friend class CGraphTestAccess;

    // ---- axes/ (private) ----------------------------------------------------
    // Transforms between data values and pixels. The Rpt forms reuse the
    // transform kept by the last PixelToDataX / PixelToDataY.
    int DataToPixelX(double dX);
    int DataToPixelY(double dY, int nAxis);
    double PixelToDataX(int nX);
    double PixelToDataY(int nY, int nAxis);
    double PixelToDataXRpt(int nX);
    double PixelToDataYRpt(int nY, int nAxis);
    // One axis through the graph's fields (axes/AxisView.h).
    struct CAxisView Axis(int iAxis);
    // Equal limits of an axis widened for good before they can divide.
    void WidenEqualLimits(int iAxis);
    // Tic tables and pixels, recomputed after every limit or layout change.
    void CalcXTicValues();
    void CalcYTicValues(int nAxis);
    void CalcTicValues(int iAxis);
    void CalcAxisTicPixels(int iAxis, BOOL bEmptyPlot);
    // The tic values of all three axes; with ResetTicTables, from counts of 10.
    void CalcAllTicValues();
    void ResetTicTables();
    int CalcFloatingTics(double dFirst, double dSecond, double* pdTable);
    void CalcTicMarkPixels();
    int NumberOfMinorTicMarks(int nSpacing, int nDotsPerInch);
    // Limits as the editors, the zoom and the scaling set them (max first).
    void sg_xrange(double dMax, double dMin);
    void sg_yrange(double dMax, double dMin, int nAxis);
    void HorzXform(double* pdScale, double* pdOffset);
    void VertXform(double* pdScale, double* pdOffset, int nAxis);
    // The pixels of all points of a series, into pPoints (m_lPoints entries).
    void XformPlotData(CPlotData* pData, POINT* pPoints);
    int IsPointInPlotRect(double& dValue, int nKind);
    int IsPointInPlotRect(int& nPixel, int nKind);

    // ---- interact/ (private) ------------------------------------------------
    // The rubber band: captured and confined at the press, an inverted
    // outline drawn twice to go, limits from the box at the release.
    void StartZoom(CPoint* pPoint);
    void NotBox();
    void EndZoom();
    // The inline editor over the printed limit of slot iSlot (LIMIT_ slots).
    void OpenLimitEditor(int iSlot);
    // The marker line under the mouse, and the end of its value tip.
    void MoveMarkerLine(long nFlags, CPoint point);
    void EndDisplayingMLValue();
    // The X sample of the marker's series nearest to x, by arithmetic on
    // evenly spaced samples.
    float FindNearestPoint(CMarkerLine* pLine, double x);
    // One inverted marker line across rect at nPixel: nOrient 2 horizontal,
    // 1 vertical; nothing when nPixel lies outside rect.
    void InvertMarkerLine(int nPixel, const CRect& rect, int nOrient);
    // The pixel of a data position on the marker's axis: y on a Y axis, x on X.
    int MarkerLinePixel(double dPos);
    // A press on a floating label selects it (TRUE); DropLabelSelection
    // deletes the tracker and deselects the label.
    BOOL SelectLabelAt(CPoint point);
    void DropLabelSelection();
    void FloatingLabelHitTest(UINT nFlags, CPoint point);
    // Shifts rect into the extents of the plot (nArea 1) or of the graph,
    // counted from client coordinate 0.
    void KeepRectInArea(CRect& rect, int nArea);

    // ---- persist/ (private) -------------------------------------------------
    // The two directions of the archive stream (Serialize catches what they
    // raise for lack of memory), and the font rebuilt from loaded fields.
    void StoreToArchive(CArchive& ar);
    void LoadFromArchive(CArchive& ar);
    void RebuildFontFromArchive();
    // The floating labels' part of the stream: their count, then the labels.
    void SerializeFloatingLabels(CArchive& ar);

    // ---- render/ (private) --------------------------------------------------
    // Clips the segment pt1-pt2 to rect (inclusive edges) in place; 1 when
    // some part is visible. dwFlags gets CLIP_MOVED_FIRST / CLIP_MOVED_SECOND.
    int ClipDrawLine(const CRect& rect, POINT& pt1, POINT& pt2, DWORD& dwFlags);
    // One shaded area, its pixels in pPoints (m_lPoints + 2 entries of the
    // series); 1, or 0 when memory ran out.
    int ShadeArea(CDC* pDC, CAreaData* pArea, POINT* pPoints, CPlotData* pPlotData);

public:
    // ---- Fields, in declaration order ---------------------------------------
    DWORD m_dwState;                  // mode bits GST_ of the mouse tools
    bool m_bFGPlot;                   // foreground drawing under way (old consumer kernel only)
    bool m_bBGPlot;                   // background drawing under way (likewise)
    DWORD m_dwStyle;                  // style word GS_
    CString m_strGraphTitle;          // title over the plot
    CString m_strXAxisLabel;          // text under the X axis
    CString m_strYAxisLabel[2];       // text beside each Y axis
    CString m_strXAxisNumFmt;         // printf format of the X numbers
    CString m_strYAxisNumFmt[2];      // the same for each Y axis
    CRect m_rectGraph;                // the whole graph, less the docked legend
    CRect m_rectPlot;                 // the plot rectangle, inclusive on all sides
    CRect m_rectScroll;               // m_rectPlot with left and top one pixel in
    CPoint m_ptContextMenu;           // screen position of the last context menu
    int m_nGridPenWidth;              // pen width of frame, tics, grid and marks
    COLORREF m_crBackground;          // background of the plot
    int m_nAutoScaleMode;             // nonzero: Plot scales first
    DWORD m_dwGridType;               // grid flags
    COLORREF m_crGrid;                // colour of frame and grid
    int m_dwGridStyle;                // pen style of the grid
    int m_nGraphColorsMode;           // colour mode 1 to 3
    CLineColor* m_pGraphColors;       // colour table, not owned
    int m_nGraphColors;               // entries of that table
    int m_nNextRotatingColor;         // next index in rotation
    BOOL m_bStopIncrementColor;       // holds the rotation
    double m_dXMax;                   // X value at the right edge of the plot
    double m_dXMin;                   // X value at the left edge
    double m_dYMax[2];                // Y value at the top edge
    double m_dYMin[2];                // Y value at the bottom edge
    CRect m_rectZoom;                 // corners of the rubber band
    BOOL m_bZoomEnabled;              // rubber-band zoom allowed
    BOOL m_bRightAxisDisplayed;       // the right axis is shown
    double m_dXScale;                 // transform kept for PixelToDataXRpt
    double m_dXOffset;
    double m_dYScale[2];              // transforms kept for PixelToDataYRpt
    double m_dYOffset[2];
    int m_nXTicPixel[11];             // pixel of each X tic
    int m_nYTicPixel[2][11];          // pixel of each Y tic
    int m_nXTicCount;                 // index of the last X tic
    int m_nYTicCount[2];              // index of the last Y tic
    double m_dXTicValue[11];          // value of each X tic
    double m_dYTicValue[2][11];       // value of each Y tic
    int m_nXTicType;                  // 0 fixed tics, else floating tics
    int m_nYTicType[2];
    float m_fXResolution;             // smallest span of the X axis
    float m_fYResolution[2];          // smallest span of each Y axis
    CTypedPtrMap<CMapStringToOb, CString, CRefLineData*> m_mapRefLines;  // reference lines, owned
    int m_nMinorTics;                 // minor tic switch
    int m_nLogPixelsX;                // device resolution for minor tics
    int m_nLogPixelsY;
    int m_nMinorTicCount[3];          // minor tics per interval: X, left Y, right Y
    MINORTICS m_MinorX;
    MINORTICS m_MinorYLeft;
    MINORTICS m_MinorYRight;
    CMarkerLine* m_pMarkerLine;       // the marker line, owned
    BOOL m_bPointsStale;              // the pixel arrays of the series are out of date
    CFont m_font;                     // text font
    LOGFONT m_logFont;                // its description (lfHeight in tenths of a point after SetLogFont)
    int m_nPointSize;                 // size in tenths of a point
    COLORREF m_crText;                // text colour
    CString m_strFaceName;            // face name, as the archive keeps it
    long m_lFontWeight;               // weight, as the archive keeps it
    int m_bFontItalic;                // italic flag, as the archive keeps it
    CGraphNotify* m_pNotify;          // notification sink, not owned
    long m_lNotifyMask;               // wanted notifications
    CTypedPtrMap<CMapStringToOb, CString, CPlotData*> m_mapPlotData;  // all series, owned
    BOOL m_bMenuEnabled;              // context menu allowed
    WORD m_wRadarType;                // radar flags
    double m_dRadarXPercent;          // margin on X in percent
    double m_dRadarYPercent;          // margin on Y in percent
    BOOL m_bRadarPercentControls;     // limits page shows the percent controls
    BOOL m_bRadarAxisControls;        // limits page shows the axis controls
    CRect m_rectLimit[LIMIT_SLOTS];   // hit rectangles of the printed limits (LIMIT_ slots)
    CLegend m_legend;                 // the legend
    HCURSOR m_hPlotCursor;            // cursor over the plot
    CTypedPtrMap<CMapWordToOb, WORD, CFloatingLabel*> m_mapFloatingLabels;  // floating labels, owned
    CRectTracker* m_pLabelTracker;    // tracker around the selected label, owned
    CFloatingLabel* m_pSelectedLabel; // the selected label, valid while the tracker is set
    UINT m_nCursorHitTest;            // last hit-test code
    WORD m_wNextLabelId;              // raised by one before each new label
    long m_lPropPageConfig;           // pages of the property sheet
    CArray<CPropertyPage*, CPropertyPage*> m_aPropPages;  // host pages
    CArray<DWORD, DWORD> m_aPropPageFlags;                // their identifiers
    long m_lMenuConfig;               // entries of the context menu
    CStringArray m_aMenuText;         // host menu texts
    CArray<DWORD, DWORD> m_aMenuIds;  // their command identifiers
    CArray<CWnd*, CWnd*> m_aMenuWnds; // their target windows
    CArray<int, int> m_aMenuFlags;    // their positions
    CCrossHair m_crossHair;           // the cross hair
    CCriticalSection m_csPlotData;    // guards the series arrays
    CString m_strMaxLenFormat;        // format that gives the widest number
    CString m_strLastXNumFmt;         // X format at the last SizeGraph
    CString m_strLastYNumFmt;         // left Y format at the last SizeGraph
    CBrush m_brushCtlStatic;          // background of the graph's static children, made once
    BOOL m_bColumnReduction;          // solid thin lines reduced per pixel column
};
