// The graph's one text font: setting it from a LOGFONT and a size in tenths
// of a point, and reading it back.
#include "graph/GraphPrv.h"
#include <string.h>

int CGraphPrv::SetLogFont(const LOGFONT* pLogFont, int nPointSize, DWORD crText)
{
    m_crText = crText;
    m_nPointSize = nPointSize;
    m_strFaceName = pLogFont->lfFaceName;
    m_lFontWeight = pLogFont->lfWeight;
    m_bFontItalic = pLogFont->lfItalic;

    CClientDC dc(m_hWnd != NULL ? this : NULL);

    // From here on lfHeight holds tenths of a point, not device units.
    m_logFont = *pLogFont;
    m_logFont.lfHeight = m_nPointSize;
    m_font.DeleteObject();
    m_font.CreatePointFontIndirect(&m_logFont, NULL);

    if (m_hWnd != NULL) {
        CRect rect;
        GetWindowRect(&rect);
        CWnd* pParent = GetParent();
        if (pParent != NULL)
            pParent->ScreenToClient(&rect);
        ReSizeGraph(&rect);
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
    *pLogFont = m_logFont;
    *pnPointSize = m_nPointSize;
    *pcrText = m_crText;
    return GRAPH_OK;
}
