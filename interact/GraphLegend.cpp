// The graph's side of the legend: switching it on and off, and what a
// docked legend takes from the graph's room.
#include "graph/GraphPrv.h"

int CGraphPrv::ShowLegend()
{
    // The toggle lays the graph out again in every case.
    if (m_legend.IsShown())
        m_legend.Show(FALSE);
    else
        m_legend.Show(TRUE);
    if (m_hWnd != NULL) {
        CRect rect;
        GetClientRect(&rect);
        ReSizeGraph(&rect);
        Replot();
    }
    return GRAPH_OK;
}

int CGraphPrv::ShowLegend(int bShow)
{
    m_legend.Show(bShow);
    // A legend that hides itself takes no room: the layout stays.
    if (!m_legend.GetAutoHide() && m_hWnd != NULL) {
        CRect rect;
        GetClientRect(&rect);
        ReSizeGraph(&rect);
        Replot();
    }
    return GRAPH_OK;
}

int CGraphPrv::IsLegendVisible()
{
    return m_legend.IsShown();
}

LRESULT CGraphPrv::OnLegendPosChange(WPARAM, LPARAM)
{
    // Placeholder: the graph follows a legend that moved or changed size here.
    return 0;
}
