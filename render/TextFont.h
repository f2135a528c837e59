// The graph's text font on a device. CreateDeviceFont makes the graph's font
// at its point size for the device of a context (or the screen), turned if
// asked; CGraphTextFont selects the font a drawer writes with for the time
// of one drawer: on a printer or plotter a point font made for the device,
// elsewhere the graph's own screen font. The previous font is selected back
// and a device font deleted when the object goes.
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
    HGDIOBJ Choose(CDC* pDC, CGraphPrv* pGraph)
    {
        // The host's font as it is, turned or not; a font the system refused
        // leaves the system font.
        if (IsPrinterOrPlotter(pDC))
            pGraph->CreateDeviceFont(m_fontDevice, pDC, pGraph->m_logFont.lfEscapement);
        CFont& font = m_fontDevice.m_hObject != NULL ? m_fontDevice : pGraph->m_font;
        return font.m_hObject != NULL ? font.m_hObject : ::GetStockObject(SYSTEM_FONT);
    }

    CGraphTextFont(const CGraphTextFont&) = delete;
    void operator=(const CGraphTextFont&) = delete;

    CFont m_fontDevice;       // made here on a printer; deselected before it is deleted
    CSelectGuard m_select;
};
