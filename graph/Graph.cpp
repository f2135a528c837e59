// The CGraph facade: each operation forwards to the CGraphPrv that the
// facade owns, unchanged in arguments and result.
#include "graph/Graph.h"
#include "graph/GraphPrv.h"

IMPLEMENT_DYNCREATE(CGraph, CObject)

CGraph::CGraph() : m_pGraphPrv(NULL)
{
    try {
        m_pGraphPrv = new CGraphPrv;
    } catch (CException* e) {
        e->Delete();
        m_pGraphPrv = NULL;
    }
}

CGraph::~CGraph()
{
    delete m_pGraphPrv;
}

void CGraph::Serialize(CArchive& ar) { m_pGraphPrv->Serialize(ar); }

// Lifetime and window
CGraph& CGraph::operator=(const CGraph& src)
{
    *m_pGraphPrv = *src.m_pGraphPrv;
    return *this;
}
void CGraph::CopyAppearance(CGraph& dest) const { m_pGraphPrv->CopyAppearance(*dest.m_pGraphPrv); }
int CGraph::CreateGraph(CWnd* pParent, HINSTANCE hInstance, CRect& rect, DWORD dwStyle, UINT nID, long lMenuConfig)
    { return m_pGraphPrv->CreateGraph(pParent, hInstance, rect, dwStyle, nID, lMenuConfig); }
int CGraph::ShowGraph() { return m_pGraphPrv->ShowGraph(); }
int CGraph::HideGraph() { return m_pGraphPrv->HideGraph(); }
int CGraph::Update() { return m_pGraphPrv->Update(); }
int CGraph::Replot() { return m_pGraphPrv->Replot(); }
int CGraph::Plot(CDC* pDC, int bPointsOnly) { return m_pGraphPrv->Plot(pDC, bPointsOnly); }
int CGraph::GetGraphClientRect(RECT* pRect) { return m_pGraphPrv->GetGraphClientRect(pRect); }
int CGraph::GetGraphScreenRect(RECT* pRect) { return m_pGraphPrv->GetGraphScreenRect(pRect); }
int CGraph::GetPlotRect(CRect& rect) { return m_pGraphPrv->GetPlotRect(rect); }
int CGraph::HaveRightAxis() { return m_pGraphPrv->HaveRightAxis(); }
int CGraph::RightAxisDisplayed() { return m_pGraphPrv->RightAxisDisplayed(); }

// Texts and formats
int CGraph::SetGraphTitle(const CString& strTitle) { return m_pGraphPrv->SetGraphTitle(strTitle); }
int CGraph::GetGraphTitle(CString& strTitle) { return m_pGraphPrv->GetGraphTitle(strTitle); }
int CGraph::SetXAxisLabel(const CString& strLabel) { return m_pGraphPrv->SetXAxisLabel(strLabel); }
int CGraph::GetXAxisLabel(CString& strLabel) { return m_pGraphPrv->GetXAxisLabel(strLabel); }
int CGraph::SetYAxisLabel(int nAxis, const CString& strLabel) { return m_pGraphPrv->SetYAxisLabel(nAxis, strLabel); }
int CGraph::GetYAxisLabel(int nAxis, CString& strLabel) { return m_pGraphPrv->GetYAxisLabel(nAxis, strLabel); }
int CGraph::SetXAxisNumFmt(const CString& strFormat) { return m_pGraphPrv->SetXAxisNumFmt(strFormat); }
int CGraph::SetYAxisNumFmt(int nAxis, const CString& strFormat) { return m_pGraphPrv->SetYAxisNumFmt(nAxis, strFormat); }

// Series
int CGraph::AddPlotData(const CString& strName, DWORD dwAxis, float* pfX, float* pfY, long lPoints,
                        DWORD crColor, int nLineStyle, int nAnnotate)
    { return m_pGraphPrv->AddPlotData(strName, dwAxis, pfX, pfY, lPoints, crColor, nLineStyle, nAnnotate); }
int CGraph::AddPlotData(const CString& strName, DWORD dwAxis, double* pdX, double* pdY, long lPoints,
                        DWORD crColor, int nLineStyle, int nAnnotate)
    { return m_pGraphPrv->AddPlotData(strName, dwAxis, pdX, pdY, lPoints, crColor, nLineStyle, nAnnotate); }
int CGraph::UpdatePlotData(const CString& strName, float* pfX, float* pfY, long lFirst, long lPoints)
    { return m_pGraphPrv->UpdatePlotData(strName, pfX, pfY, lFirst, lPoints); }
int CGraph::UpdatePlotData(const CString& strName, double* pdX, double* pdY, long lFirst, long lPoints)
    { return m_pGraphPrv->UpdatePlotData(strName, pdX, pdY, lFirst, lPoints); }
int CGraph::RemovePlotData(const CString& strName) { return m_pGraphPrv->RemovePlotData(strName); }
int CGraph::RemoveAllPlotData() { return m_pGraphPrv->RemoveAllPlotData(); }
int CGraph::SetPlotDataAttributes(const CString& strName, DWORD crColor, int nLineStyle, int nLineWidth,
                                  int nAnnotate, DWORD crAnnotate)
    { return m_pGraphPrv->SetPlotDataAttributes(strName, crColor, nLineStyle, nLineWidth, nAnnotate, crAnnotate); }
int CGraph::GetPlotDataAttributes(const CString& strName, DWORD& crColor, int& nLineStyle, int& nLineWidth,
                                  int& nAnnotate, DWORD& crAnnotate)
    { return m_pGraphPrv->GetPlotDataAttributes(strName, crColor, nLineStyle, nLineWidth, nAnnotate, crAnnotate); }

// Colours and font
int CGraph::SetBackgroundColor(DWORD crColor) { return m_pGraphPrv->SetBackgroundColor(crColor); }
int CGraph::GetBackgroundColor(DWORD& crColor) { return m_pGraphPrv->GetBackgroundColor(crColor); }
int CGraph::SetGraphColorsMode(int nMode) { return m_pGraphPrv->SetGraphColorsMode(nMode); }
int CGraph::SetGraphColors(CLineColor* pColors, long lCount) { return m_pGraphPrv->SetGraphColors(pColors, lCount); }
int CGraph::GetMatchingColor(const CString& strName, CLineColor& color) { return m_pGraphPrv->GetMatchingColor(strName, color); }
int CGraph::GetNextRotatingColor(CLineColor& color) { return m_pGraphPrv->GetNextRotatingColor(color); }
int CGraph::ResetRotatingColors() { return m_pGraphPrv->ResetRotatingColors(); }
void CGraph::SetStopIncrementColor(int bStop) { m_pGraphPrv->SetStopIncrementColor(bStop); }
int CGraph::GetStopIncrementColor() { return m_pGraphPrv->GetStopIncrementColor(); }
int CGraph::SetCustomColors(DWORD* pColors) { return m_pGraphPrv->SetCustomColors(pColors); }
int CGraph::GetCustomColors(DWORD* pColors) { return m_pGraphPrv->GetCustomColors(pColors); }
int CGraph::ReleaseCustomColors() { return m_pGraphPrv->ReleaseCustomColors(); }
int CGraph::SetLogFont(LOGFONT* pLogFont, int nPointSize, DWORD crText) { return m_pGraphPrv->SetLogFont(pLogFont, nPointSize, crText); }
int CGraph::SaveToRegistry(HKEY hKey) { return m_pGraphPrv->SaveToRegistry(hKey); }
int CGraph::LoadFromRegistry(HKEY hKey) { return m_pGraphPrv->LoadFromRegistry(hKey); }
int CGraph::GetLogFont(LOGFONT* pLogFont, int* pnPointSize, DWORD* pcrText) { return m_pGraphPrv->GetLogFont(pLogFont, pnPointSize, pcrText); }

// Axes
int CGraph::SetXAxisLimits(double dMin, double dMax) { return m_pGraphPrv->SetXAxisLimits(dMin, dMax); }
int CGraph::GetXAxisLimits(double* pdMin, double* pdMax) { return m_pGraphPrv->GetXAxisLimits(pdMin, pdMax); }
int CGraph::SetYAxisLimits(double dMin, double dMax, int nAxis) { return m_pGraphPrv->SetYAxisLimits(dMin, dMax, nAxis); }
int CGraph::GetYAxisLimits(double* pdMin, double* pdMax, int nAxis) { return m_pGraphPrv->GetYAxisLimits(pdMin, pdMax, nAxis); }
int CGraph::SetLimitFlip(DWORD dwFlags) { return m_pGraphPrv->SetLimitFlip(dwFlags); }
int CGraph::GetLimitFlip(DWORD* pdwFlags) { return m_pGraphPrv->GetLimitFlip(pdwFlags); }
int CGraph::SetAutoScaleMode(int nMode) { return m_pGraphPrv->SetAutoScaleMode(nMode); }
int CGraph::SetTicMarkType(int nTicType, int nMinorTics, CDC* pDC) { return m_pGraphPrv->SetTicMarkType(nTicType, nMinorTics, pDC); }
int CGraph::GetTicMarkType(int* pnTicType, int* pnMinorTics) { return m_pGraphPrv->GetTicMarkType(pnTicType, pnMinorTics); }
int CGraph::ReSizeGraph(CRect* pRect) { return m_pGraphPrv->ReSizeGraph(pRect); }
int CGraph::SizeGraph(CDC* pDC, int x, int y, int nWidth, int nHeight, int bRightAxis)
    { return m_pGraphPrv->SizeGraph(pDC, x, y, nWidth, nHeight, bRightAxis); }
int CGraph::GetMinimumGraphSize(CDC* pDC, int* pnWidth, int* pnHeight)
    { return m_pGraphPrv->GetMinimumGraphSize(pDC, pnWidth, pnHeight); }
int CGraph::DataToPixelX(double dX) { return m_pGraphPrv->DataToPixelX(dX); }
int CGraph::DataToPixelY(double dY, int nAxis) { return m_pGraphPrv->DataToPixelY(dY, nAxis); }
double CGraph::PixelToDataX(int nX) { return m_pGraphPrv->PixelToDataX(nX); }
double CGraph::PixelToDataY(int nY, int nAxis) { return m_pGraphPrv->PixelToDataY(nY, nAxis); }
double CGraph::PixelToDataXRpt(int nX) { return m_pGraphPrv->PixelToDataXRpt(nX); }
double CGraph::PixelToDataYRpt(int nY, int nAxis) { return m_pGraphPrv->PixelToDataYRpt(nY, nAxis); }
int CGraph::Radar() { return m_pGraphPrv->Radar(); }
int CGraph::Radar(WORD wFlags) { return m_pGraphPrv->Radar(wFlags); }
int CGraph::RadarPlotData(CString& strName, long lFlags) { return m_pGraphPrv->RadarPlotData(strName, lFlags); }
int CGraph::SetRadarType(WORD wFlags) { return m_pGraphPrv->SetRadarType(wFlags); }
int CGraph::GetRadarType(WORD* pwFlags) { return m_pGraphPrv->GetRadarType(pwFlags); }
int CGraph::SetRadarPercent(double dXPercent, double dYPercent) { return m_pGraphPrv->SetRadarPercent(dXPercent, dYPercent); }
int CGraph::GetRadarPercent(double& dXPercent, double& dYPercent) { return m_pGraphPrv->GetRadarPercent(dXPercent, dYPercent); }
int CGraph::EnableRadarDblClick(int bEnable) { return m_pGraphPrv->EnableRadarDblClick(bEnable); }
int CGraph::EnableRadarPercentControls(int bEnable) { return m_pGraphPrv->EnableRadarPercentControls(bEnable); }
int CGraph::IsRadarPercentControlsEnabled() { return m_pGraphPrv->IsRadarPercentControlsEnabled(); }
int CGraph::EnableRadarAxisControls(int bEnable) { return m_pGraphPrv->EnableRadarAxisControls(bEnable); }
int CGraph::IsRadarAxisControlsEnabled() { return m_pGraphPrv->IsRadarAxisControlsEnabled(); }

// Interaction
int CGraph::EnableMenu(int bEnable) { return m_pGraphPrv->EnableMenu(bEnable); }
int CGraph::SetMenuConfiguration(long lConfig) { return m_pGraphPrv->SetMenuConfiguration(lConfig); }
int CGraph::AddMenuItem(CString& strText, DWORD dwId, int nPosition, CWnd* pWnd)
    { return m_pGraphPrv->AddMenuItem(strText, dwId, nPosition, pWnd); }
int CGraph::RemoveMenuItem(DWORD dwId) { return m_pGraphPrv->RemoveMenuItem(dwId); }
int CGraph::RemoveAllMenuItems() { return m_pGraphPrv->RemoveAllMenuItems(); }
int CGraph::Properties(CString& strTitle) { return m_pGraphPrv->Properties(strTitle); }
int CGraph::AddPropertyPage(CPropertyPage* pPage, DWORD dwId) { return m_pGraphPrv->AddPropertyPage(pPage, dwId); }
int CGraph::RemovePropertyPage(DWORD dwId) { return m_pGraphPrv->RemovePropertyPage(dwId); }
int CGraph::SetPropertyPageConfiguration(long lConfig) { return m_pGraphPrv->SetPropertyPageConfiguration(lConfig); }
int CGraph::EnableNotifications(CGraphNotify* pNotify, long lMask) { return m_pGraphPrv->EnableNotifications(pNotify, lMask); }
int CGraph::AddMarkerLine(CWnd* pWnd, long lStyle, const CString& strSeries, double* pdPos1, double* pdPos2,
                          BOOL bContinuous)
    { return m_pGraphPrv->AddMarkerLine(pWnd, lStyle, strSeries, pdPos1, pdPos2, bContinuous); }
int CGraph::RemoveMarkerLine() { return m_pGraphPrv->RemoveMarkerLine(); }
int CGraph::IsMarkerLineEnabled() { return m_pGraphPrv->IsMarkerLineEnabled(); }
int CGraph::SetMarkerLinePos(long nLine, double* pdPos) { return m_pGraphPrv->SetMarkerLinePos(nLine, pdPos); }
int CGraph::GetMarkerLinePos(double& dPos1, double& dPos2) { return m_pGraphPrv->GetMarkerLinePos(dPos1, dPos2); }
int CGraph::GetMarkerLineStyle(long& lStyle, CString& strSeries)
    { return m_pGraphPrv->GetMarkerLineStyle(lStyle, strSeries); }
int CGraph::EnableZoom(int bEnable) { return m_pGraphPrv->EnableZoom(bEnable); }
int CGraph::EnableColumnReduction(BOOL bEnable) { return m_pGraphPrv->EnableColumnReduction(bEnable); }
int CGraph::DisplayMenu(POINT* pPoint) { return m_pGraphPrv->DisplayMenu(pPoint); }
HBITMAP CGraph::GetBitmap() { return m_pGraphPrv->GetBitmap(); }
int CGraph::CopyToClipboard() { return m_pGraphPrv->CopyToClipboard(); }
int CGraph::AddFloatingLabel() { return m_pGraphPrv->AddFloatingLabel(); }
int CGraph::AddFloatingLabel(CPoint ptScreen) { return m_pGraphPrv->AddFloatingLabel(ptScreen); }
void CGraph::RemoveAllFloatingLabels() { m_pGraphPrv->RemoveAllFloatingLabels(); }
int CGraph::ShowLegend() { return m_pGraphPrv->ShowLegend(); }
int CGraph::ShowLegend(int bShow) { return m_pGraphPrv->ShowLegend(bShow); }
int CGraph::IsLegendVisible() { return m_pGraphPrv->IsLegendVisible(); }
int CGraph::DisplayCrossHair() { return m_pGraphPrv->DisplayCrossHair(); }
int CGraph::DisplayCrossHair(int bShow) { return m_pGraphPrv->DisplayCrossHair(bShow); }
int CGraph::IsCrossHairVisible() { return m_pGraphPrv->IsCrossHairVisible(); }
int CGraph::IsCrossHairLocked() { return m_pGraphPrv->IsCrossHairLocked(); }
int CGraph::LockCrossHair() { return m_pGraphPrv->LockCrossHair(); }
int CGraph::LockCrossHair(int bLock) { return m_pGraphPrv->LockCrossHair(bLock); }

// Drawing
int CGraph::ShowGrid(DWORD dwGridType) { return m_pGraphPrv->ShowGrid(dwGridType); }
int CGraph::SetGridAttributes(DWORD dwGridType, DWORD crColor, int nStyle)
    { return m_pGraphPrv->SetGridAttributes(dwGridType, crColor, nStyle); }
int CGraph::GetGridAttributes(DWORD* pdwGridType, DWORD* pcrColor, int* pnStyle)
    { return m_pGraphPrv->GetGridAttributes(pdwGridType, pcrColor, pnStyle); }
int CGraph::PlotLine(double x1, double y1, double x2, double y2, DWORD crColor, int nStyle, int nYAxis)
    { return m_pGraphPrv->PlotLine(x1, y1, x2, y2, crColor, nStyle, nYAxis); }
int CGraph::AddReferenceLine(CString strName, DWORD dwFlags, double dPosition)
    { return m_pGraphPrv->AddReferenceLine(strName, dwFlags, dPosition); }
int CGraph::RemoveReferenceLine(CString strName) { return m_pGraphPrv->RemoveReferenceLine(strName); }
int CGraph::RemoveAllReferenceLines() { return m_pGraphPrv->RemoveAllReferenceLines(); }
int CGraph::AddPlotDataLabel(const CString& strName, const CString& strLabel, double dX, double dY, int nMark,
                             const CString& strText)
    { return m_pGraphPrv->AddPlotDataLabel(strName, strLabel, dX, dY, nMark, strText); }
int CGraph::RemovePlotDataLabel(const CString& strName, const CString& strLabel)
    { return m_pGraphPrv->RemovePlotDataLabel(strName, strLabel); }
int CGraph::RemoveAllPlotDataLabels(const CString& strName) { return m_pGraphPrv->RemoveAllPlotDataLabels(strName); }
int CGraph::AnnotatePoint(double dX, double dY, int nYAxis, DWORD crColor, int nMark)
    { return m_pGraphPrv->AnnotatePoint(dX, dY, nYAxis, crColor, nMark); }
int CGraph::AnnotateLine(CString& strName, int nMark, int nStep) { return m_pGraphPrv->AnnotateLine(strName, nMark, nStep); }
int CGraph::LabelPoint(double dX, double dY, int nYAxis, DWORD crColor, int nMark, const CString& strText, CDC* pDC)
    { return m_pGraphPrv->LabelPoint(dX, dY, nYAxis, crColor, nMark, strText, pDC); }
int CGraph::AddAreaData(const CString& strName, short nId, long lStart, long lEnd, int nBaseMode, DWORD crColor,
                        int nBrushStyle)
    { return m_pGraphPrv->AddAreaData(strName, nId, lStart, lEnd, nBaseMode, crColor, nBrushStyle); }
int CGraph::UpdateAreaData(const CString& strName, short nId, long lStart, long lEnd, int nBaseMode, DWORD crColor,
                           int nBrushStyle)
    { return m_pGraphPrv->UpdateAreaData(strName, nId, lStart, lEnd, nBaseMode, crColor, nBrushStyle); }
int CGraph::RemoveAreaData(const CString& strName, short nId, long lStart, long lEnd)
    { return m_pGraphPrv->RemoveAreaData(strName, nId, lStart, lEnd); }
int CGraph::RemoveAllAreaData(const CString& strName) { return m_pGraphPrv->RemoveAllAreaData(strName); }
int CGraph::AddHighlightRegion(const CString& strName, short nId, long lStart, long lEnd, DWORD crColor, int nStyle)
    { return m_pGraphPrv->AddHighlightRegion(strName, nId, lStart, lEnd, crColor, nStyle); }
int CGraph::RemoveHighlightRegion(const CString& strName, short nId) { return m_pGraphPrv->RemoveHighlightRegion(strName, nId); }
int CGraph::RemoveAllHighlightRegions(const CString& strName) { return m_pGraphPrv->RemoveAllHighlightRegions(strName); }
int CGraph::HighlightPoint(double dX, double dY, int nYAxis, int nMark)
    { return m_pGraphPrv->HighlightPoint(dX, dY, nYAxis, nMark); }
int CGraph::AddPlotDataHighlight(const CString& strName, const CString& strHighlight, double dX, double dY, int nMark)
    { return m_pGraphPrv->AddPlotDataHighlight(strName, strHighlight, dX, dY, nMark); }
int CGraph::RemovePlotDataHighlight(const CString& strName, const CString& strHighlight)
    { return m_pGraphPrv->RemovePlotDataHighlight(strName, strHighlight); }
int CGraph::RemoveAllPlotDataHighlights(const CString& strName) { return m_pGraphPrv->RemoveAllPlotDataHighlights(strName); }
