// Archives in memory for the persistence tests: a graph stored into bytes,
// bytes loaded into a graph, and the little-endian fields of a stream.
#pragma once

#include "TestUtil.h"
#include "afx/afxarch.h"
#include "afx/afxole.h"
#include "render/RefLineData.h"
#include <vector>

typedef std::vector<BYTE> Bytes;

inline Bytes Store(CGraphPrv* pGraph)
{
    COleStreamFile file;
    file.CreateMemoryStream();
    CArchive ar(&file, CArchive::store);
    pGraph->Serialize(ar);
    ar.Close();
    Bytes bytes(file.GetLength());
    file.SeekToBegin();
    file.Read(bytes.data(), (UINT)bytes.size());
    return bytes;
}

// Whatever Serialize throws passes on to the caller.
inline void Load(CGraphPrv* pGraph, const Bytes& bytes)
{
    COleStreamFile file;
    file.CreateMemoryStream();
    file.Write(bytes.data(), (UINT)bytes.size());
    file.SeekToBegin();
    CArchive ar(&file, CArchive::load);
    pGraph->Serialize(ar);
}

// The cause of the CArchiveException a load ends with; -1 when it succeeds.
inline int LoadCause(CGraphPrv* pGraph, const Bytes& bytes)
{
    try {
        Load(pGraph, bytes);
    } catch (CArchiveException* e) {
        const int nCause = e->m_cause;
        e->Delete();
        return nCause;
    }
    return -1;
}

template <class T> T Field(const Bytes& bytes, size_t nOffset)
{
    T value;
    memcpy(&value, bytes.data() + nOffset, sizeof(T));
    return value;
}

template <class T> void PutField(Bytes& bytes, size_t nOffset, T value)
{
    memcpy(bytes.data() + nOffset, &value, sizeof(T));
}

// A graph with texts, three reference lines and a font of its own.
inline void Dress(CGraph& graph)
{
    graph.SetGraphTitle(AnsiOf(L"\u6807\u9898 title"));
    graph.SetXAxisLabel("x");
    graph.SetYAxisLabel(0, "left");
    graph.SetYAxisLabel(1, "right");
    graph.SetXAxisNumFmt("%.3f");
    graph.AddReferenceLine("L1", REFLINE_VERTICAL, 0.25);
    graph.AddReferenceLine("L2", REFLINE_HORIZONTAL, -3.5);
    graph.AddReferenceLine("L3", 3, 0.1);
    LOGFONT lf;
    memset(&lf, 0, sizeof(lf));
    lstrcpyA(lf.lfFaceName, "Arial");
    lf.lfWeight = FW_BOLD;
    lf.lfItalic = 1;
    graph.SetLogFont(&lf, 120, RGB(1, 2, 3));
    graph.SetRadarPercent(5.0, 7.5);
}

inline CRefLineData* RefLine(CGraphPrv* pGraph, const char* pszName)
{
    CRefLineData* pLine = NULL;
    pGraph->m_mapRefLines.Lookup(pszName, pLine);
    return pLine;
}
