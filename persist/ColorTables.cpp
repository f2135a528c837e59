// The process-wide colour tables (rotating line colours, base colours,
// custom colours) and the colour operations of a graph: background, colour
// modes, rotating and matching look-up, custom colours.
#include "graph/GraphPrv.h"
#include "graph/Globals.h"
#include "resources/resource.h"

CLineColor* g_pDefaultLineColors = NULL;
COLORREF* g_pBaseColors = NULL;
COLORREF* g_pOwnCustomColors = NULL;
COLORREF* g_pCustomColors = NULL;

namespace {

const COLORREF s_crDefaultLines[DEFAULT_LINE_COLORS] = {
    0x000000, 0x0000FF, 0xFF0000, 0x00FF00, 0xFF00FF, 0x0066FF, 0xFFFF00, 0x006400,
    0xA000A0, 0x000080, 0x808080, 0x979700, 0xFF0080, 0x4387C3, 0x00CC99, 0x00CCFF,
};

// The palette, 8 columns by 6 rows, row by row.
const COLORREF s_crBase[BASE_COLORS] = {
    0x8080FF, 0x80FFFF, 0x80FF80, 0x80FF00, 0xFFFF80, 0xFF8000, 0xC080FF, 0xFF80FF,
    0x0000FF, 0x00FFFF, 0x00FF80, 0x40FF00, 0xFFFF00, 0xC08000, 0xC08080, 0xFF00FF,
    0x404080, 0x4080FF, 0x00FF00, 0x808000, 0x804000, 0xFF8080, 0x400080, 0x8000FF,
    0x000080, 0x0080FF, 0x008000, 0x408000, 0xFF0000, 0xA00000, 0x800080, 0xFF0080,
    0x000040, 0x004080, 0x004000, 0x404000, 0x800000, 0x400000, 0x400040, 0x800040,
    0x000000, 0x008080, 0x408080, 0x808080, 0x808040, 0xC0C0C0, 0x400040, 0xFFFFFF,
};

} // namespace

BOOL BuildDefaultLineColors()
{
    try {
        g_pDefaultLineColors = new CLineColor[DEFAULT_LINE_COLORS];
    } catch (CException* e) {
        e->Delete();
        return FALSE;
    }
    // The name pattern comes from the library itself: no satellite is known yet.
    char szFormat[64];
    if (::LoadStringA(g_hGraphInstance, IDS_LINE_NAME_FORMAT, szFormat, sizeof(szFormat)) == 0)
        lstrcpyA(szFormat, "%d");
    for (int i = 0; i < DEFAULT_LINE_COLORS; i++) {
        CLineColor& entry = g_pDefaultLineColors[i];
        entry.m_strName.Format(szFormat, i + 1);
        entry.m_crLine = s_crDefaultLines[i];
        entry.m_nLineStyle = 0;
        entry.m_nAnnotate = 0;
        entry.m_nLineWidth = 1;
    }
    return TRUE;
}

BOOL BuildBaseColors()
{
    try {
        g_pBaseColors = new COLORREF[BASE_COLORS];
    } catch (CException* e) {
        e->Delete();
        return FALSE;
    }
    memcpy(g_pBaseColors, s_crBase, sizeof(s_crBase));
    return TRUE;
}

BOOL BuildCustomColors()
{
    try {
        g_pOwnCustomColors = new COLORREF[CUSTOM_COLORS];
    } catch (CException* e) {
        e->Delete();
        return FALSE;
    }
    for (int i = 0; i < CUSTOM_COLORS; i++)
        g_pOwnCustomColors[i] = 0xFFFFFF;
    g_pCustomColors = g_pOwnCustomColors;
    return TRUE;
}

void FreeColorTables()
{
    delete[] g_pDefaultLineColors;
    g_pDefaultLineColors = NULL;
    delete[] g_pBaseColors;
    g_pBaseColors = NULL;
    delete[] g_pOwnCustomColors;
    g_pOwnCustomColors = NULL;
    g_pCustomColors = NULL;
}

// ---------------------------------------------------------------------------
// Colour operations of a graph
// ---------------------------------------------------------------------------

int CGraphPrv::SetBackgroundColor(DWORD crColor)
{
    m_crBackground = crColor;
    return GRAPH_OK;
}

int CGraphPrv::GetBackgroundColor(DWORD& crColor)
{
    crColor = m_crBackground;
    return GRAPH_OK;
}

int CGraphPrv::SetGraphColorsMode(int nMode)
{
    if (nMode < GRAPH_COLORS_FIXED || nMode > GRAPH_COLORS_MATCHING)
        return GRAPH_BADARG;
    m_nGraphColorsMode = nMode;
    return GRAPH_OK;
}

int CGraphPrv::SetGraphColors(CLineColor* pColors, long lCount)
{
    if (lCount < 1 || pColors == NULL)
        return GRAPH_BADARG;
    m_pGraphColors = pColors;
    m_nGraphColors = (int)lCount;
    m_nNextRotatingColor = 0;
    return GRAPH_OK;
}

int CGraphPrv::GetMatchingColor(const CString& strName, CLineColor& color)
{
    for (int i = 0; m_pGraphColors != NULL && i < m_nGraphColors; i++) {
        const CLineColor& entry = m_pGraphColors[i];
        if (entry.m_strName == strName) {
            color.m_crLine = entry.m_crLine;
            color.m_nLineStyle = entry.m_nLineStyle;
            color.m_nAnnotate = entry.m_nAnnotate;
            return GRAPH_OK;
        }
    }
    return GRAPH_NOCOLOR;
}

int CGraphPrv::GetNextRotatingColor(CLineColor& color)
{
    if (m_nGraphColorsMode != GRAPH_COLORS_ROTATING)
        return GRAPH_WRONGCOLORMODE;
    if (m_pGraphColors == NULL || m_nGraphColors < 1)
        return GRAPH_NOCOLOR;
    const CLineColor& entry = m_pGraphColors[m_nNextRotatingColor];
    color.m_strName = entry.m_strName;
    color.m_crLine = entry.m_crLine;
    color.m_nLineStyle = entry.m_nLineStyle;
    color.m_nAnnotate = entry.m_nAnnotate;
    return GRAPH_OK;
}

int CGraphPrv::ResetRotatingColors()
{
    if (m_nGraphColorsMode != GRAPH_COLORS_ROTATING)
        return GRAPH_WRONGCOLORMODE;
    m_nNextRotatingColor = 0;
    return GRAPH_OK;
}

void CGraphPrv::SetStopIncrementColor(int bStop)
{
    m_bStopIncrementColor = bStop;
}

int CGraphPrv::GetStopIncrementColor()
{
    return m_bStopIncrementColor;
}

int CGraphPrv::SetCustomColors(DWORD* pColors)
{
    // No array is no custom colours: the ones in force stay.
    if (pColors == NULL)
        return GRAPH_BADARG;
    g_pCustomColors = (COLORREF*)pColors;
    return GRAPH_OK;
}

int CGraphPrv::GetCustomColors(DWORD*)
{
    // Only tells whether a host array is in force; the argument is not written.
    return g_pCustomColors != g_pOwnCustomColors ? GRAPH_OK : GRAPH_NOCUSTOMCOLORS;
}

int CGraphPrv::ReleaseCustomColors()
{
    g_pCustomColors = g_pOwnCustomColors;
    return GRAPH_OK;
}
