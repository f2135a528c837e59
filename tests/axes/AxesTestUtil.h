// Helpers of the axis tests: a graph in a host window, made through the
// facade, and the text measures of a font read from a real context.
#pragma once

#include "gtest/gtest.h"
#include "TestHost.h"
#include "graph/Graph.h"
#include "graph/GraphPrv.h"

// A graph of the given size at (0,0) of a host window, with or without a
// window of its own.
class GraphInHost
{
public:
    explicit GraphInHost(DWORD dwStyle = 0, int nWidth = 400, int nHeight = 300, UINT nID = 1001)
        : m_host(800, 600)
    {
        CRect rect(0, 0, nWidth, nHeight);
        m_nCreated = m_graph.CreateGraph(m_host.Wnd(), NULL, rect, dwStyle, nID, 63);
    }

    CGraphPrv* Prv() { return m_graph.m_pGraphPrv; }

    TestHost m_host;
    CGraph m_graph;
    int m_nCreated;
};

// The measures the layout takes from a font, read from a context with the
// font selected.
struct FontMeasures
{
    int L;        // line height: tmHeight + tmExternalLeading
    int A;        // tmAveCharWidth + tmOverhang
    int M;        // tmMaxCharWidth
    int O;        // tmOverhang
    BOOL T;       // a TrueType font
    int D;        // width of "0123456789" / 10 - 2
    int S;        // width of the widest number, -10000 in "%.3E"
    int nDigits;  // width of "0123456789"
};

inline FontMeasures MeasureFont(HDC hDC, HFONT hFont)
{
    FontMeasures m;
    HGDIOBJ hOld = ::SelectObject(hDC, hFont);
    TEXTMETRICA tm;
    ::GetTextMetricsA(hDC, &tm);
    SIZE size;
    ::GetTextExtentPoint32A(hDC, "0123456789", 10, &size);
    m.nDigits = size.cx;
    char szWidest[100];
    _snprintf(szWidest, sizeof(szWidest) - 1, "%.3E", -10000.0);
    szWidest[sizeof(szWidest) - 1] = '\0';
    ::GetTextExtentPoint32A(hDC, szWidest, (int)strlen(szWidest), &size);
    m.S = size.cx;
    ::SelectObject(hDC, hOld);
    m.L = tm.tmHeight + tm.tmExternalLeading;
    m.A = tm.tmAveCharWidth + tm.tmOverhang;
    m.M = tm.tmMaxCharWidth;
    m.O = tm.tmOverhang;
    m.T = (tm.tmPitchAndFamily & TMPF_TRUETYPE) != 0;
    m.D = m.nDigits / 10 - 2;
    return m;
}

// Width of a vertical axis title beside the numbers: L for TrueType, else M.
inline int TitleWidth(const FontMeasures& m)
{
    return m.T ? m.L : m.M;
}
