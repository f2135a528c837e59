// The graph's one text font: setting it from a LOGFONT and a size in tenths
// of a point, and reading it back.
#include "graph/GraphPrv.h"
#include <string.h>

int CGraphPrv::SetLogFont(const LOGFONT* pLogFont, int nPointSize, DWORD crText)
{
    if (pLogFont == NULL)
        return GRAPH_BADARG;
    m_crText = crText;
    m_nPointSize = nPointSize;

    CClientDC dc(m_hWnd != NULL ? this : NULL);

    // From here on lfHeight holds tenths of a point, not device units. A
    // host's face name may fill all of its bytes without a terminator: the
    // last byte of the field always ends it.
    m_logFont = *pLogFont;
    m_logFont.lfFaceName[LF_FACESIZE - 1] = '\0';
    m_logFont.lfHeight = m_nPointSize;
    m_strFaceName = m_logFont.lfFaceName;
    m_lFontWeight = m_logFont.lfWeight;
    m_bFontItalic = m_logFont.lfItalic;
    m_font.DeleteObject();
    m_font.CreatePointFontIndirect(&m_logFont, NULL);

    if (m_hWnd != NULL) {
        LayOutInPlace();
    } else {
        // A windowless graph is laid out again over the area it has, for the
        // screen; its owner lays it out for its own context before drawing.
        SizeGraph(&dc, m_rectGraph.left, m_rectGraph.top, m_rectGraph.Width(), m_rectGraph.Height(),
                  (m_dwStyle & GS_RIGHTAXIS) != 0);
    }
    return GRAPH_OK;
}

int CGraphPrv::GetLogFont(LOGFONT* pLogFont, int* pnPointSize, DWORD* pcrText)
{
    if (pLogFont == NULL || pnPointSize == NULL || pcrText == NULL)
        return GRAPH_BADARG;
    *pLogFont = m_logFont;
    *pnPointSize = m_nPointSize;
    *pcrText = m_crText;
    return GRAPH_OK;
}
