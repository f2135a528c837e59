// The graph's settings in the registry: every value with its type and size
// under a key of the test's own, loaded back into another graph, partial
// and odd values, and the custom colours under the library's fixed key
// (emptied for the test and put back afterwards).
#include "TestUtil.h"
#include "persist/Registry.h"
#include <map>
#include <string.h>
#include <vector>

namespace {

const char TEST_KEY[] = "Software\\ZPXGraphTests\\Registry";

// A value as read back: its type and bytes.
struct Value
{
    DWORD dwType = 0;
    std::vector<BYTE> bytes;
};

Value Read(HKEY hKey, const char* pszSubkey, const char* pszName)
{
    Value v;
    HKEY hSub = NULL;
    if (::RegOpenKeyExA(hKey, pszSubkey, 0, KEY_READ, &hSub) != ERROR_SUCCESS)
        return v;
    DWORD cb = 0;
    if (::RegQueryValueExA(hSub, pszName, NULL, &v.dwType, NULL, &cb) == ERROR_SUCCESS) {
        v.bytes.resize(cb);
        ::RegQueryValueExA(hSub, pszName, NULL, &v.dwType, v.bytes.data(), &cb);
    }
    ::RegCloseKey(hSub);
    return v;
}

// The library's fixed key is taken away for the test (its values kept
// here) and put back as it was at the end.
class FixedKeyAside
{
public:
    FixedKeyAside()
    {
        Save(GRAPH_FIXED_KEY, m_root);
        Save(GRAPH_FIXED_KEY "\\Custom Colors", m_colors);
        ::RegDeleteTreeA(HKEY_LOCAL_MACHINE, GRAPH_FIXED_KEY);
    }
    ~FixedKeyAside()
    {
        ::RegDeleteTreeA(HKEY_LOCAL_MACHINE, GRAPH_FIXED_KEY);
        Restore(GRAPH_FIXED_KEY, m_root);
        Restore(GRAPH_FIXED_KEY "\\Custom Colors", m_colors);
    }

private:
    typedef std::map<std::string, Value> Values;
    static void Save(const char* pszKey, Values& values)
    {
        HKEY hKey = NULL;
        if (::RegOpenKeyExA(HKEY_LOCAL_MACHINE, pszKey, 0, KEY_READ, &hKey) != ERROR_SUCCESS)
            return;
        char szName[256];
        for (DWORD i = 0;; i++) {
            DWORD cch = sizeof(szName);
            if (::RegEnumValueA(hKey, i, szName, &cch, NULL, NULL, NULL, NULL) != ERROR_SUCCESS)
                break;
            values[szName] = Read(hKey, NULL, szName);
        }
        ::RegCloseKey(hKey);
    }
    static void Restore(const char* pszKey, const Values& values)
    {
        for (const auto& v : values) {
            HKEY hKey = NULL;
            ::RegCreateKeyExA(HKEY_LOCAL_MACHINE, pszKey, 0, NULL, 0, KEY_ALL_ACCESS, NULL, &hKey, NULL);
            ::RegSetValueExA(hKey, v.first.c_str(), 0, v.second.dwType, v.second.bytes.data(),
                             (DWORD)v.second.bytes.size());
            ::RegCloseKey(hKey);
        }
    }
    Values m_root, m_colors;
};

// A fresh key of the test's own, deleted at the end.
class TestKey
{
public:
    TestKey()
    {
        ::RegDeleteTreeA(HKEY_CURRENT_USER, TEST_KEY);
        ::RegCreateKeyExA(HKEY_CURRENT_USER, TEST_KEY, 0, NULL, 0, KEY_ALL_ACCESS, NULL, &m_hKey, NULL);
    }
    ~TestKey()
    {
        ::RegCloseKey(m_hKey);
        ::RegDeleteTreeA(HKEY_CURRENT_USER, TEST_KEY);
    }
    HKEY m_hKey = NULL;
};

double DoubleOf(const Value& v)
{
    double d = 0.0;
    if (v.bytes.size() == sizeof(d))
        memcpy(&d, v.bytes.data(), sizeof(d));
    return d;
}

} // namespace

TEST(Registry, AFirstRunLoadsNothingAndASaveWritesEveryValue)
{
    FixedKeyAside aside;
    TestKey key;
    GraphInHost g;
    CGraphPrv* p = g.Prv();

    // No fixed key yet: the load ends at once and changes nothing.
    RegWriteDword(key.m_hKey, NULL, "Background Color", 0x123456);
    const DWORD crBefore = p->m_crBackground;
    EXPECT_EQ(0, g.m_graph.LoadFromRegistry(key.m_hKey));
    EXPECT_EQ(crBefore, p->m_crBackground);

    // A save on a fresh key: every value of the table, with its type and size.
    LOGFONT lf;
    int nSize;
    DWORD crText;
    g.m_graph.GetLogFont(&lf, &nSize, &crText);
    g.m_graph.SetLogFont(&lf, 120, crText);
    ASSERT_EQ(1, g.m_graph.SaveToRegistry(key.m_hKey));
    const struct { const char* pszSubkey; const char* pszName; DWORD dwType; size_t nBytes; } table[] = {
        { NULL, "Background Color", REG_DWORD, 4 },   { "Legend", "AutoHide", REG_DWORD, 4 },
        { "Legend", "Position", REG_DWORD, 4 },       { "Legend", "Height", REG_DWORD, 4 },
        { "Legend", "Width", REG_DWORD, 4 },          { "Limits", "XMin", REG_BINARY, 8 },
        { "Limits", "XMax", REG_BINARY, 8 },          { "Limits", "YLeftMin", REG_BINARY, 8 },
        { "Limits", "YLeftMax", REG_BINARY, 8 },      { "Limits", "YRightMin", REG_BINARY, 8 },
        { "Limits", "YRightMax", REG_BINARY, 8 },     { NULL, "RadarType", REG_BINARY, 2 },
        { NULL, "RadarXPercent", REG_BINARY, 8 },     { NULL, "RadarYPercent", REG_BINARY, 8 },
        { NULL, "GridStyle", REG_DWORD, 4 },          { NULL, "GridColor", REG_DWORD, 4 },
        { NULL, "GridLineType", REG_DWORD, 4 },       { NULL, "TicStyle", REG_DWORD, 4 },
        { NULL, "MinorTics", REG_DWORD, 4 },          { "Axis Label Font", "Font Color", REG_DWORD, 4 },
        { "Axis Label Font", "Point Size", REG_DWORD, 4 }, { "Axis Label Font", "Font", REG_BINARY, 60 },
    };
    for (const auto& t : table) {
        const Value v = Read(key.m_hKey, t.pszSubkey, t.pszName);
        EXPECT_EQ(t.dwType, v.dwType) << t.pszName;
        EXPECT_EQ(t.nBytes, v.bytes.size()) << t.pszName;
    }
    const Value radar = Read(key.m_hKey, NULL, "RadarType");
    EXPECT_EQ((std::vector<BYTE>{ 7, 0 }), radar.bytes);
    EXPECT_EQ(p->m_dXMax, DoubleOf(Read(key.m_hKey, "Limits", "XMax")));
    EXPECT_EQ(p->m_dYMin[1], DoubleOf(Read(key.m_hKey, "Limits", "YRightMin")));
    const Value font = Read(key.m_hKey, "Axis Label Font", "Font");
    LONG lHeight = 0;
    memcpy(&lHeight, font.bytes.data(), sizeof(lHeight));
    EXPECT_EQ(120, lHeight);   // tenths of a point
    EXPECT_EQ(0, strncmp((const char*)font.bytes.data() + 28, lf.lfFaceName, 32));

    // The custom colours written are the library's own (here one just
    // loaded), also while a host's array is in force.
    RegWriteDword(HKEY_LOCAL_MACHINE, GRAPH_FIXED_KEY "\\Custom Colors", "Color3", 0x030303);
    ASSERT_EQ(1, g.m_graph.LoadFromRegistry(key.m_hKey));
    DWORD adwHost[16];
    for (int i = 0; i < 16; i++)
        adwHost[i] = 0xAA0000 + i;
    g.m_graph.SetCustomColors(adwHost);
    ASSERT_EQ(1, g.m_graph.SaveToRegistry(key.m_hKey));
    g.m_graph.ReleaseCustomColors();
    const Value color3 = Read(HKEY_LOCAL_MACHINE, GRAPH_FIXED_KEY "\\Custom Colors", "Color3");
    EXPECT_EQ((std::vector<BYTE>{ 3, 3, 3, 0 }), color3.bytes);

    // A null key writes the custom colours and reports 0; so does a deleted
    // key, which refuses every write.
    ::RegDeleteTreeA(HKEY_LOCAL_MACHINE, GRAPH_FIXED_KEY);
    EXPECT_EQ(0, g.m_graph.SaveToRegistry(NULL));
    EXPECT_EQ(4u, Read(HKEY_LOCAL_MACHINE, GRAPH_FIXED_KEY "\\Custom Colors", "Color15").bytes.size());
    ::RegDeleteTreeA(HKEY_LOCAL_MACHINE, GRAPH_FIXED_KEY);
    HKEY hGone = NULL;
    ::RegCreateKeyExA(HKEY_CURRENT_USER, "Software\\ZPXGraphTests\\Gone", 0, NULL, 0, KEY_ALL_ACCESS, NULL, &hGone,
                      NULL);
    ::RegDeleteTreeA(HKEY_CURRENT_USER, "Software\\ZPXGraphTests\\Gone");
    EXPECT_EQ(0, g.m_graph.SaveToRegistry(hGone));
    EXPECT_EQ(4u, Read(HKEY_LOCAL_MACHINE, GRAPH_FIXED_KEY "\\Custom Colors", "Color0").bytes.size());
    ::RegCloseKey(hGone);
}

TEST(Registry, AnotherGraphLoadsEverySettingBack)
{
    FixedKeyAside aside;
    TestKey key;
    GraphInHost a, b;
    CGraphPrv* pa = a.Prv();
    CGraphPrv* pb = b.Prv();
    pa->m_crBackground = 0x102030;
    pa->m_legend.m_bAutoHide = FALSE;
    pa->m_legend.m_nPosition = LEGEND_TOP;
    pa->m_legend.m_nHeight = 70;
    pa->m_legend.m_nWidth = 130;
    a.m_graph.SetXAxisLimits(-3.0, 7.0);
    a.m_graph.SetYAxisLimits(1.0, 2.0, 0);
    a.m_graph.SetYAxisLimits(-50.0, 50.0, 1);
    pa->m_wRadarType = 3;
    pa->m_dRadarXPercent = 12.5;
    pa->m_dRadarYPercent = 7.25;
    a.m_graph.SetGridAttributes(GRID_MINOR | GRID_BOTHWAYS, 0x00FF00, PS_DASH);
    a.m_graph.SetTicMarkType(1, 1, NULL);
    LOGFONT lf;
    int nSize;
    DWORD crText;
    a.m_graph.GetLogFont(&lf, &nSize, &crText);
    lf.lfWeight = FW_BOLD;
    a.m_graph.SetLogFont(&lf, 140, 0x0000C0);
    ASSERT_EQ(1, a.m_graph.SaveToRegistry(key.m_hKey));

    ASSERT_EQ(1, b.m_graph.LoadFromRegistry(key.m_hKey));
    EXPECT_EQ(0x102030u, pb->m_crBackground);
    EXPECT_FALSE(pb->m_legend.m_bAutoHide);
    EXPECT_EQ(LEGEND_TOP, pb->m_legend.m_nPosition);
    EXPECT_EQ(70, pb->m_legend.m_nHeight);
    EXPECT_EQ(130, pb->m_legend.m_nWidth);
    EXPECT_EQ(std::vector<double>({ -3.0, 7.0, 1.0, 2.0, -50.0, 50.0 }),
              std::vector<double>({ pb->m_dXMin, pb->m_dXMax, pb->m_dYMin[0], pb->m_dYMax[0], pb->m_dYMin[1],
                                    pb->m_dYMax[1] }));
    EXPECT_EQ(3, pb->m_wRadarType);
    EXPECT_EQ(12.5, pb->m_dRadarXPercent);
    EXPECT_EQ(7.25, pb->m_dRadarYPercent);
    EXPECT_EQ((DWORD)(GRID_MINOR | GRID_BOTHWAYS), pb->m_dwGridType);
    EXPECT_EQ(0x00FF00u, pb->m_crGrid);
    EXPECT_EQ(PS_DASH, pb->m_dwGridStyle);
    EXPECT_EQ(1, pb->m_nXTicType);
    EXPECT_EQ(1, pb->m_nMinorTics);
    EXPECT_EQ(140, pb->m_nPointSize);
    EXPECT_EQ(0x0000C0u, pb->m_crText);
    EXPECT_EQ(FW_BOLD, pb->m_logFont.lfWeight);

    // Only "Limits"\"XMin": the minimum moves, the maximum stays. Limits
    // from the registry go through the setter: a pair too narrow is
    // widened as SetXAxisLimits widens it.
    TestKey partial;
    const double dMin = 2.0;
    RegWriteBinary(partial.m_hKey, "Limits", "XMin", &dMin, sizeof(dMin));
    ASSERT_EQ(1, b.m_graph.LoadFromRegistry(partial.m_hKey));
    EXPECT_EQ(2.0, pb->m_dXMin);
    EXPECT_EQ(7.0, pb->m_dXMax);
    // With one decimal on X, the pair 7, 7 comes apart by a tenth.
    b.m_graph.SetXAxisNumFmt("%.1f");
    const double dSame = 7.0;
    RegWriteBinary(partial.m_hKey, "Limits", "XMin", &dSame, sizeof(dSame));
    b.m_graph.LoadFromRegistry(partial.m_hKey);
    EXPECT_NEAR(6.9, pb->m_dXMin, 1e-6);   // the resolution is kept as a float
    EXPECT_EQ(7.0, pb->m_dXMax);
}

TEST(Registry, OddValuesAreReadAsBytesOrLeftAside)
{
    FixedKeyAside aside;
    TestKey key;
    GraphInHost g;
    CGraphPrv* p = g.Prv();
    ASSERT_EQ(1, g.m_graph.SaveToRegistry(key.m_hKey));
    const LONG nSizeBefore = p->m_nPointSize;

    // "Background Color" as a 4-byte string is taken as its bytes; a limit
    // of 20 bytes is too long and its default stands; a custom colour gone
    // from the fixed key keeps its value.
    ::RegSetValueExA(key.m_hKey, "Background Color", 0, REG_SZ, (const BYTE*)"abc", 4);
    const BYTE abLong[20] = { 1, 2, 3 };
    const double dXMax = p->m_dXMax;
    RegWriteBinary(key.m_hKey, "Limits", "XMax", abLong, sizeof(abLong));
    RegWriteDword(HKEY_LOCAL_MACHINE, GRAPH_FIXED_KEY "\\Custom Colors", "Color9", 0x090909);
    g.m_graph.LoadFromRegistry(key.m_hKey);
    HKEY hColors = NULL;
    ::RegOpenKeyExA(HKEY_LOCAL_MACHINE, GRAPH_FIXED_KEY "\\Custom Colors", 0, KEY_ALL_ACCESS, &hColors);
    ::RegDeleteValueA(hColors, "Color9");
    ::RegCloseKey(hColors);
    // "Font" gone from under "Axis Label Font": the load reports 0 and the
    // size and colour read there are dropped.
    RegWriteDword(key.m_hKey, "Axis Label Font", "Point Size", 333);
    HKEY hFont = NULL;
    ::RegOpenKeyExA(key.m_hKey, "Axis Label Font", 0, KEY_ALL_ACCESS, &hFont);
    ::RegDeleteValueA(hFont, "Font");
    ::RegCloseKey(hFont);

    EXPECT_EQ(0, g.m_graph.LoadFromRegistry(key.m_hKey));
    EXPECT_EQ(RGB('a', 'b', 'c'), p->m_crBackground);
    EXPECT_EQ(dXMax, p->m_dXMax);
    EXPECT_EQ(nSizeBefore, p->m_nPointSize);
    g.m_graph.SaveToRegistry(NULL);   // writes the custom colours only
    EXPECT_EQ((std::vector<BYTE>{ 9, 9, 9, 0 }), Read(HKEY_LOCAL_MACHINE, GRAPH_FIXED_KEY "\\Custom Colors", "Color9").bytes);

    // A legend side or size no legend could stand on is left aside.
    RegWriteDword(key.m_hKey, "Legend", "Position", 9);
    RegWriteDword(key.m_hKey, "Legend", "Width", 0xFFFFFFFF);
    p->m_legend.LoadFromRegistry(key.m_hKey);
    EXPECT_EQ(LEGEND_RIGHT, p->m_legend.m_nPosition);
    EXPECT_EQ(100, p->m_legend.m_nWidth);

    // Saves and loads (each cycle makes some fifty registry calls): no GDI
    // object and no memory left behind.
    const LONG nGdi = CGdiObject::GetLiveCount();
    const SIZE_T nBytes = CommittedBytes();
    for (int i = 0; i < 150; i++) {
        g.m_graph.SaveToRegistry(key.m_hKey);
        g.m_graph.LoadFromRegistry(key.m_hKey);
    }
    EXPECT_EQ(nGdi, CGdiObject::GetLiveCount());
    EXPECT_LT(CommittedBytes(), nBytes + 2 * 1024 * 1024);
}
