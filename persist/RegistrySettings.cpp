// The graph's settings under a registry key the host owns, and the custom
// colours under the library's own key. A save or load runs its groups in a
// fixed order and stops at the first group that reports 0.
#include "graph/GraphPrv.h"
#include "graph/Globals.h"
#include "persist/Registry.h"
#include <math.h>
#include <stdio.h>

static_assert(sizeof(LOGFONTA) == 60, "the font value is the 60-byte narrow LOGFONT");

namespace {

const char AXIS_FONT_KEY[] = "Axis Label Font";
const int MAX_POINT_SIZE = 10000;   // tenths of a point; a larger stored size is not taken

// A double read from the registry replaces the present one only when it is a number.
void TakeFinite(double dRead, double& dField)
{
    if (isfinite(dRead))
        dField = dRead;
}

} // namespace

// ---- Custom colours, under the library's key -----------------------------------

int CGraphPrv::SaveCustomColors()
{
    HKEY hFixed = NULL;
    if (::RegCreateKeyExA(HKEY_LOCAL_MACHINE, GRAPH_FIXED_KEY, 0, NULL, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS,
                          NULL, &hFixed, NULL) != ERROR_SUCCESS)
        return 0;
    // The library's own colours, also while a host's array is in force.
    for (int i = 0; g_pOwnCustomColors != NULL && i < CUSTOM_COLORS; i++) {
        char szName[16];
        sprintf(szName, "Color%d", i);
        RegWriteDword(hFixed, "Custom Colors", szName, g_pOwnCustomColors[i]);
    }
    ::RegCloseKey(hFixed);
    return 1;
}

int CGraphPrv::LoadCustomColors()
{
    HKEY hFixed = NULL;
    if (::RegOpenKeyExA(HKEY_LOCAL_MACHINE, GRAPH_FIXED_KEY, 0, KEY_ALL_ACCESS, &hFixed) != ERROR_SUCCESS)
        return 0;
    for (int i = 0; g_pOwnCustomColors != NULL && i < CUSTOM_COLORS; i++) {
        char szName[16];
        sprintf(szName, "Color%d", i);
        DWORD dw = g_pOwnCustomColors[i];
        RegReadDword(hFixed, "Custom Colors", szName, &dw, dw);   // a missing colour keeps its value
        g_pOwnCustomColors[i] = dw;
    }
    ::RegCloseKey(hFixed);
    return 1;
}

// ---- The groups under the host's key -------------------------------------------

int CGraphPrv::SaveBackgroundColor(HKEY hKey)
{
    if (hKey == NULL)
        return 0;
    RegWriteDword(hKey, NULL, "Background Color", m_crBackground);   // a failure is not reported
    return 1;
}

int CGraphPrv::LoadBackgroundColor(HKEY hKey)
{
    if (hKey == NULL)
        return 0;
    DWORD dw = m_crBackground;
    RegReadDword(hKey, NULL, "Background Color", &dw, m_crBackground);
    m_crBackground = dw;
    return 1;
}

int CGraphPrv::SaveLimitsToRegistry(HKEY hKey)
{
    if (hKey == NULL)
        return 1;
    const struct { const char* pszName; const double* pd; } values[] = {
        { "XMin", &m_dXMin },         { "XMax", &m_dXMax },         { "YLeftMin", &m_dYMin[0] },
        { "YLeftMax", &m_dYMax[0] }, { "YRightMin", &m_dYMin[1] }, { "YRightMax", &m_dYMax[1] },
    };
    for (const auto& v : values) {
        if (!RegWriteBinary(hKey, "Limits", v.pszName, v.pd, sizeof(double)))
            return 0;
    }
    return 1;
}

int CGraphPrv::LoadLimitsFromRegistry(HKEY hKey)
{
    if (hKey == NULL)
        return 1;
    // Each pair goes through its setter, with its checks and side effects.
    // A pair read only in part still gets its setter when it is the last one.
    const char* apszNames[3][2] = { { "XMin", "XMax" }, { "YLeftMin", "YLeftMax" }, { "YRightMin", "YRightMax" } };
    for (int iPair = 0; iPair < 3; iPair++) {
        double dMin = iPair == 0 ? m_dXMin : m_dYMin[iPair - 1];
        double dMax = iPair == 0 ? m_dXMax : m_dYMax[iPair - 1];
        double dRead = dMin;
        if (!RegReadBinary(hKey, "Limits", apszNames[iPair][0], &dRead, &dMin, sizeof(double)))
            return 0;
        TakeFinite(dRead, dMin);
        dRead = dMax;
        const int nRead = RegReadBinary(hKey, "Limits", apszNames[iPair][1], &dRead, &dMax, sizeof(double));
        if (!nRead && iPair < 2)
            return 0;
        TakeFinite(dRead, dMax);
        if (iPair == 0)
            SetXAxisLimits(dMin, dMax);
        else
            SetYAxisLimits(dMin, dMax, iPair - 1);
        if (!nRead)
            return 0;
    }
    return 1;
}

int CGraphPrv::SaveRadarSettingsToRegistry(HKEY hKey)
{
    if (hKey == NULL)
        return 1;
    return RegWriteBinary(hKey, NULL, "RadarType", &m_wRadarType, sizeof(WORD)) &&
           RegWriteBinary(hKey, NULL, "RadarXPercent", &m_dRadarXPercent, sizeof(double)) &&
           RegWriteBinary(hKey, NULL, "RadarYPercent", &m_dRadarYPercent, sizeof(double));
}

int CGraphPrv::LoadRadarSettingsFromRegistry(HKEY hKey)
{
    if (hKey == NULL)
        return 1;
    // Straight into the fields, each its own default; no setter runs.
    WORD wType = m_wRadarType;
    if (!RegReadBinary(hKey, NULL, "RadarType", &wType, &m_wRadarType, sizeof(WORD)))
        return 0;
    m_wRadarType = wType;
    double d = m_dRadarXPercent;
    if (!RegReadBinary(hKey, NULL, "RadarXPercent", &d, &m_dRadarXPercent, sizeof(double)))
        return 0;
    TakeFinite(d, m_dRadarXPercent);
    d = m_dRadarYPercent;
    if (!RegReadBinary(hKey, NULL, "RadarYPercent", &d, &m_dRadarYPercent, sizeof(double)))
        return 0;
    TakeFinite(d, m_dRadarYPercent);
    return 1;
}

int CGraphPrv::SaveGridToRegistry(HKEY hKey)
{
    if (hKey == NULL)
        return 1;
    return RegWriteDword(hKey, NULL, "GridStyle", m_dwGridType) &&
           RegWriteDword(hKey, NULL, "GridColor", m_crGrid) &&
           RegWriteDword(hKey, NULL, "GridLineType", (DWORD)m_dwGridStyle);
}

int CGraphPrv::LoadGridFromRegistry(HKEY hKey)
{
    if (hKey == NULL)
        return 1;
    DWORD dwType, crColor;
    int nStyle;
    GetGridAttributes(&dwType, &crColor, &nStyle);
    DWORD dwStyle = (DWORD)nStyle;
    if (!RegReadDword(hKey, NULL, "GridStyle", &dwType, dwType) ||
        !RegReadDword(hKey, NULL, "GridColor", &crColor, crColor))
        return 0;
    const int nLast = RegReadDword(hKey, NULL, "GridLineType", &dwStyle, dwStyle);
    SetGridAttributes(dwType, crColor, (int)dwStyle);
    return nLast;
}

int CGraphPrv::SaveTicMarksToRegistry(HKEY hKey)
{
    if (hKey == NULL)
        return 1;
    return RegWriteDword(hKey, NULL, "TicStyle", (DWORD)m_nXTicType) &&
           RegWriteDword(hKey, NULL, "MinorTics", (DWORD)m_nMinorTics);
}

int CGraphPrv::LoadTicMarksFromRegistry(HKEY hKey)
{
    if (hKey == NULL)
        return 1;
    int nTicType, nMinorTics;
    GetTicMarkType(&nTicType, &nMinorTics);
    DWORD dwTicType = (DWORD)nTicType, dwMinor = (DWORD)nMinorTics;
    if (!RegReadDword(hKey, NULL, "TicStyle", &dwTicType, dwTicType))
        return 0;
    const int nLast = RegReadDword(hKey, NULL, "MinorTics", &dwMinor, dwMinor);
    SetTicMarkType((int)dwTicType, (int)dwMinor, NULL);
    return nLast;
}

int CGraphPrv::SaveFontToRegistry(HKEY hKey, const CString& strSubkey, LOGFONT& lf, int nPointSize, DWORD crColor)
{
    if (hKey == NULL)
        return 1;
    return RegWriteDword(hKey, strSubkey, "Font Color", crColor) &&
           RegWriteDword(hKey, strSubkey, "Point Size", (DWORD)nPointSize) &&
           RegWriteBinary(hKey, strSubkey, "Font", &lf, sizeof(LOGFONTA));
}

int CGraphPrv::LoadFontFromRegistry(HKEY hKey, const CString& strSubkey, LOGFONT& lf, int& nPointSize,
                                    DWORD& crColor)
{
    if (hKey == NULL)
        return 1;
    HKEY hSub = NULL;
    if (::RegOpenKeyExA(hKey, strSubkey, 0, KEY_READ, &hSub) != ERROR_SUCCESS)
        return 1;   // no font saved: the present one stands
    DWORD dwColor = crColor, dwSize = (DWORD)nPointSize;
    RegReadDword(hSub, NULL, "Font Color", &dwColor, crColor);
    RegReadDword(hSub, NULL, "Point Size", &dwSize, (DWORD)nPointSize);
    LOGFONTA lfRead;
    DWORD dwType = 0, cb = sizeof(lfRead);
    const BOOL bFont = ::RegQueryValueExA(hSub, "Font", NULL, &dwType, (LPBYTE)&lfRead, &cb) == ERROR_SUCCESS &&
                       cb == sizeof(lfRead);
    ::RegCloseKey(hSub);
    if (!bFont)
        return 0;   // the colour and size just read go with it
    lfRead.lfFaceName[LF_FACESIZE - 1] = '\0';
    lf = lfRead;
    crColor = dwColor;
    if (dwSize >= 1 && dwSize <= MAX_POINT_SIZE)
        nPointSize = (int)dwSize;
    return 1;
}

// ---- Save and load ----------------------------------------------------------------

int CGraphPrv::SaveToRegistry(HKEY hKey)
{
    if (!SaveCustomColors() || !SaveBackgroundColor(hKey) || !m_legend.SaveToRegistry(hKey) ||
        !SaveLimitsToRegistry(hKey) || !SaveRadarSettingsToRegistry(hKey) || !SaveGridToRegistry(hKey) ||
        !SaveTicMarksToRegistry(hKey))
        return 0;
    LOGFONT lf = m_logFont;
    int nPointSize = m_nPointSize;
    DWORD crText = m_crText;
    const int nResult = SaveFontToRegistry(hKey, AXIS_FONT_KEY, lf, nPointSize, crText);
    // The font is made once more, and the graph laid out with it.
    SetLogFont(&lf, nPointSize, crText);
    return nResult;
}

int CGraphPrv::LoadFromRegistry(HKEY hKey)
{
    if (!LoadCustomColors() || !LoadBackgroundColor(hKey) || !m_legend.LoadFromRegistry(hKey) ||
        !LoadLimitsFromRegistry(hKey) || !LoadRadarSettingsFromRegistry(hKey) || !LoadGridFromRegistry(hKey) ||
        !LoadTicMarksFromRegistry(hKey))
        return 0;
    LOGFONT lf = m_logFont;
    int nPointSize = m_nPointSize;
    DWORD crText = m_crText;
    if (!LoadFontFromRegistry(hKey, AXIS_FONT_KEY, lf, nPointSize, crText))
        return 0;
    return SetLogFont(&lf, nPointSize, crText);
}
