// The graph's side of the legend: switching it on and off, and following a
// legend that moved or changed its size. A docked legend takes its room
// from the graph in the layout.
#include "graph/GraphPrv.h"

int CGraphPrv::ShowLegend()
{
    // The toggle lays the graph out again in every case.
    if (m_legend.IsShown())
        m_legend.Show(FALSE);
    else
        ShowLegend(TRUE);
    if (m_hWnd != NULL) {
        LayOutInPlace();
        Replot();
    }
    return GRAPH_OK;
}

int CGraphPrv::ShowLegend(int bShow)
{
    m_legend.Show(bShow);
    // A legend that hides itself lies over the plot: the layout stays.
    if (!m_legend.GetAutoHide() && m_hWnd != NULL) {
        LayOutInPlace();
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
    if (m_hWnd != NULL) {
        LayOutInPlace();
        Replot();
    }
    return 1;
}
