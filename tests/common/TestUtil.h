// Small helpers shared by the test programs.
#pragma once

#include "afx/afx.h"
#include <string.h>

// The ANSI bytes of a wide text in the given code page.
inline CString AnsiOf(const wchar_t* pszWide, UINT nCodePage = CP_ACP)
{
    char szBuffer[512];
    int n = ::WideCharToMultiByte(nCodePage, 0, pszWide, -1, szBuffer, sizeof(szBuffer), NULL, NULL);
    return n > 0 ? CString(szBuffer) : CString();
}

// The bits of a float, for exact comparisons.
inline unsigned int BitsOf(float f)
{
    unsigned int n;
    memcpy(&n, &f, sizeof(n));
    return n;
}

#include "graph/Graph.h"
#include "graph/GraphPrv.h"

// The series of that name in a graph, or null.
inline CPlotData* FindSeries(CGraph& graph, const char* pszName)
{
    CPlotData* pData = NULL;
    graph.m_pGraphPrv->m_mapPlotData.Lookup(pszName, pData);
    return pData;
}
