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
int CGraph::CreateGraph(CWnd* pParent, HINSTANCE hInstance, CRect& rect, DWORD dwStyle, UINT nID, long lMenuConfig)
    { return m_pGraphPrv->CreateGraph(pParent, hInstance, rect, dwStyle, nID, lMenuConfig); }
int CGraph::ShowGraph() { return m_pGraphPrv->ShowGraph(); }
int CGraph::HideGraph() { return m_pGraphPrv->HideGraph(); }
int CGraph::Update() { return m_pGraphPrv->Update(); }
int CGraph::Replot() { return m_pGraphPrv->Replot(); }
int CGraph::Plot(CDC* pDC, int bSeriesOnly) { return m_pGraphPrv->Plot(pDC, bSeriesOnly); }
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
int CGraph::GetLogFont(LOGFONT* pLogFont, int* pnPointSize, DWORD* pcrText) { return m_pGraphPrv->GetLogFont(pLogFont, pnPointSize, pcrText); }

// Axes
// (axes section)

// Interaction
// (interact section)

// Drawing
// (render section)
