// Reference lines of a graph: adding, moving and removing them by name.
#include "graph/GraphPrv.h"
#include "render/RefLineData.h"

IMPLEMENT_SERIAL(CRefLineData, CObject, 0)

CRefLineData::CRefLineData() : m_dwFlags(REFLINE_VERTICAL), m_fPosition(0.0f) {}
CRefLineData::~CRefLineData() {}

void CRefLineData::Serialize(CArchive& ar)
{
    CObject::Serialize(ar);
}

int CGraphPrv::AddReferenceLine(CString strName, DWORD dwFlags, double dPosition)
{
    if (strName.IsEmpty())
        return GRAPH_BADARG;
    CRefLineData* pLine = NULL;
    if (!m_mapRefLines.Lookup(strName, pLine)) {
        try {
            pLine = new CRefLineData;
            m_mapRefLines.SetAt(strName, pLine);
        } catch (CException* e) {
            e->Delete();
            delete pLine;
            return GRAPH_NOMEMORY;
        }
    }
    pLine->m_dwFlags = dwFlags;
    pLine->m_fPosition = (float)dPosition;
    return GRAPH_OK;
}

int CGraphPrv::RemoveReferenceLine(CString strName)
{
    CRefLineData* pLine = NULL;
    if (!m_mapRefLines.Lookup(strName, pLine))
        return GRAPH_NOREFLINE;
    m_mapRefLines.RemoveKey(strName);
    delete pLine;
    return GRAPH_OK;
}

int CGraphPrv::RemoveAllReferenceLines()
{
    POSITION pos = m_mapRefLines.GetStartPosition();
    while (pos != NULL) {
        CString strName;
        CRefLineData* pLine = NULL;
        m_mapRefLines.GetNextAssoc(pos, strName, pLine);
        delete pLine;
    }
    m_mapRefLines.RemoveAll();
    return GRAPH_OK;
}
