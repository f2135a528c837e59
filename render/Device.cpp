// What the drawers ask of the device and the system: colour or black and
// white, and the Windows 9x family with its cooperative plotting flags.
#include "graph/GraphPrv.h"

int CGraphPrv::IsColorDevice(CDC* pDC)
{
    if (pDC->IsPrinting())
        // A printout is in colour unless the host selected WINDING.
        return ::GetPolyFillMode(pDC->m_hAttribDC) == ALTERNATE ? 1 : 0;
    const int nColors = pDC->GetDeviceCaps(NUMCOLORS);
    return (nColors > 2 || nColors == -1) ? 1 : 0;
}

bool CGraphPrv::IsWin98()
{
    return (::GetVersion() & 0x80000000u) != 0;
}

void CGraphPrv::SetFGPlot(bool bPlotting)
{
    m_bFGPlot = IsWin98() ? bPlotting : false;
}

void CGraphPrv::SetBGPlot(bool bPlotting)
{
    m_bBGPlot = IsWin98() ? bPlotting : false;
}

bool CGraphPrv::IsFGPlotting()
{
    return m_bFGPlot;
}

bool CGraphPrv::IsBGPlotting()
{
    return m_bBGPlot;
}

// The flags are plain bytes that another thread clears; the volatile reads
// make each turn of the wait look at memory again.
void CGraphPrv::DelayBG()
{
    if (!IsWin98() || !m_bFGPlot)
        return;
    ::OutputDebugStringA("DelayBG - foreground working\n");
    while (*(volatile bool*)&m_bFGPlot)
        ::Sleep(5);
    ::OutputDebugStringA("DelayBG - foreground stopped\n");
}

void CGraphPrv::DelayFG()
{
    if (!IsWin98() || !m_bBGPlot)
        return;
    ::OutputDebugStringA("DelayFG - background working\n");
    while (*(volatile bool*)&m_bBGPlot)
        ::Sleep(5);
    ::OutputDebugStringA("DelayFG - background stopped\n");
}
