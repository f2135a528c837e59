// Reference lines of a graph: adding, moving and removing them by name, and
// drawing them across the plot.
#include "graph/GraphPrv.h"
#include "render/RefLineData.h"
#include "afx/afxarch.h"

IMPLEMENT_SERIAL(CRefLineData, CObject, 0)

CRefLineData::CRefLineData() : m_dwFlags(REFLINE_VERTICAL), m_fPosition(0.0f) {}
CRefLineData::~CRefLineData() {}

// Flags and position; the graph writes the name before them.
void CRefLineData::Serialize(CArchive& ar)
{
    if (ar.IsStoring())
        ar << m_dwFlags << m_fPosition;
    else
        ar >> m_dwFlags >> m_fPosition;
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

void CGraphPrv::DrawReferenceLines(CDC* pDC)
{
    // Drawn with the frame's pen and brush, which Plot has selected.
    POSITION pos = m_mapRefLines.GetStartPosition();
    while (pos != NULL) {
        CString strName;
        CRefLineData* pLine = NULL;
        m_mapRefLines.GetNextAssoc(pos, strName, pLine);
        const double dPosition = pLine->m_fPosition;
        const bool bVertical = (pLine->m_dwFlags & REFLINE_VERTICAL) != 0;
        // A horizontal line always stands on the left axis.
        const double dMin = bVertical ? m_dXMin : m_dYMin[0];
        const double dMax = bVertical ? m_dXMax : m_dYMax[0];
        // Strictly between the limits, in either order: a line on a limit
        // would lie on the frame.
        const bool bVisible = (dPosition > dMin && dPosition < dMax) || (dPosition < dMin && dPosition > dMax);
        if (!bVisible)
            continue;
        if (bVertical) {
            const int x = DataToPixelX(dPosition);
            pDC->MoveTo(x, m_rectPlot.top);
            pDC->LineTo(x, m_rectPlot.bottom);
        } else {
            const int y = DataToPixelY(dPosition, 0);
            pDC->MoveTo(m_rectPlot.left, y);
            pDC->LineTo(m_rectPlot.right, y);
        }
    }
}
