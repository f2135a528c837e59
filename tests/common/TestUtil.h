// Small helpers shared by the test programs: texts in the ANSI code page,
// the thread locale for the time of a test, typing into a window, series
// look-up, and a graph window in a host.
#pragma once

#include "gtest/gtest.h"
#include "TestHost.h"
#include "graph/Graph.h"
#include "graph/GraphPrv.h"
#include "series/PlotData.h"
#include <stdarg.h>
#include <stdio.h>
#include <string.h>
#include <string>

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

// A text formatted as the runtime formats it.
inline std::string Str(const char* pszFormat, ...)
{
    char sz[512];
    va_list args;
    va_start(args, pszFormat);
    _vsnprintf(sz, sizeof(sz) - 1, pszFormat, args);
    va_end(args);
    sz[sizeof(sz) - 1] = '\0';
    return sz;
}

// A number formatted as the library's runtime formats it.
inline std::string Fmt(const char* pszFormat, double d)
{
    char sz[256];
    _snprintf(sz, sizeof(sz) - 1, pszFormat, d);
    sz[sizeof(sz) - 1] = '\0';
    return sz;
}

// The series of that name in a graph, or null.
inline CPlotData* FindSeries(CGraphPrv* pGraph, const char* pszName)
{
    CPlotData* pData = NULL;
    pGraph->m_mapPlotData.Lookup(pszName, pData);
    return pData;
}

inline CPlotData* FindSeries(CGraph& graph, const char* pszName)
{
    return FindSeries(graph.m_pGraphPrv, pszName);
}

// The thread's locale for the time of a test.
class ThreadLocale
{
public:
    explicit ThreadLocale(LCID lcid) : m_lcidOld(::GetThreadLocale()) { ::SetThreadLocale(lcid); }
    ~ThreadLocale() { ::SetThreadLocale(m_lcidOld); }

private:
    LCID m_lcidOld;
};

const LCID lcidGerman = MAKELCID(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN), SORT_DEFAULT);
const LCID lcidEnglish = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);

// Types the bytes of a text into a window, one WM_CHAR each.
inline void Type(HWND hWnd, const char* psz)
{
    for (const unsigned char* p = (const unsigned char*)psz; *p != '\0'; ++p)
        ::SendMessageA(hWnd, WM_CHAR, *p, 1);
}

inline std::string TextOf(HWND hWnd)
{
    char sz[512];
    ::GetWindowTextA(hWnd, sz, sizeof(sz));
    return sz;
}

// A graph at rect of a host window, with a window of its own unless the
// style says GS_NOWINDOW.
class GraphInHost
{
public:
    explicit GraphInHost(DWORD dwStyle = 0, CRect rect = CRect(0, 0, 400, 300), UINT nID = 1001)
        : m_host(800, 600)
    {
        m_nCreated = m_graph.CreateGraph(m_host.Wnd(), NULL, rect, dwStyle, nID, 63);
    }

    CGraphPrv* Prv() { return m_graph.m_pGraphPrv; }
    void Show()
    {
        m_graph.ShowGraph();
        TestHost::Pump();
    }

    TestHost m_host;
    CGraph m_graph;
    int m_nCreated;
};

#include <psapi.h>

// Memory committed by this process. (Wine fills the basic counters only: the
// private-usage field of the extended ones stays unset.)
inline SIZE_T CommittedBytes()
{
    PROCESS_MEMORY_COUNTERS counters;
    memset(&counters, 0, sizeof(counters));
    counters.cb = sizeof(counters);
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof(counters));
    return counters.PagefileUsage;
}
