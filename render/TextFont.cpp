// The graph's font made for one device.
#include "render/TextFont.h"

void CGraphPrv::CreateDeviceFont(CFont& font, CDC* pDC, int nEscapement)
{
    // From the graph's description at its point size: text and marks keep
    // their size relative to each other on screen and on paper.
    LOGFONT logFont = m_logFont;
    logFont.lfHeight = m_nPointSize;
    logFont.lfEscapement = nEscapement;
    font.CreatePointFontIndirect(&logFont, pDC);
}
