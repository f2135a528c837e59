// The graph's text font in a context, for the time of one drawer: on a
// printer or plotter a point font made for the device from the graph's font
// description, elsewhere the graph's own screen font. The previous font is
// selected back and the device font deleted when the object goes.
#pragma once

#include "graph/GraphPrv.h"

// TRUE for a printer or plotter context, whose text needs a device font.
inline BOOL IsPrinterOrPlotter(CDC* pDC)
{
    const int nTechnology = pDC->GetDeviceCaps(TECHNOLOGY);
    return nTechnology == DT_PLOTTER || nTechnology == DT_RASPRINTER;
}

class CGraphTextFont
{
public:
    CGraphTextFont(CDC* pDC, CGraphPrv* pGraph) : m_select(pDC, Choose(pDC, pGraph)) {}

private:
    CGdiObject* Choose(CDC* pDC, CGraphPrv* pGraph)
    {
        if (!IsPrinterOrPlotter(pDC))
            return &pGraph->m_font;
        LOGFONT logFont = pGraph->m_logFont;
        logFont.lfHeight = pGraph->m_nPointSize;
        m_fontDevice.CreatePointFontIndirect(&logFont, pDC);
        return &m_fontDevice;
    }

    CGraphTextFont(const CGraphTextFont&) = delete;
    void operator=(const CGraphTextFont&) = delete;

    CFont m_fontDevice;       // made here on a printer; deselected before it is deleted
    CSelectGuard m_select;
};
