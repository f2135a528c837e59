// The English satellite: a second InitializeZPXGraph under an English thread
// locale puts the satellite at the head of the resource chain.
#include "TestUtil.h"
#include "resources/resource.h"

TEST(Satellite, EnglishLocaleSwitchesTheTexts)
{
    // The test program's main ran InitializeZPXGraph under the Chinese
    // locale, which has no satellite: the library's own texts are in force.
    CString str;
    ASSERT_TRUE(str.LoadString(IDS_LOCK));
    EXPECT_STREQ(AnsiOf(L"\u9501\u5B9A(&K)"), str);
    // Menus come through the same chain; the first entry of the graph's menu.
    auto firstEntry = [] {
        CMenu menu;
        CString strEntry;
        if (menu.LoadMenu(IDR_GRAPH_MENU) && menu.GetSubMenu(0) != NULL)
            menu.GetSubMenu(0)->GetMenuString(0, strEntry, MF_BYPOSITION);
        return strEntry;
    };
    EXPECT_STREQ(AnsiOf(L"\u590D\u5236(&O)"), firstEntry());

    {
        ThreadLocale locale(lcidEnglish);
        InitializeZPXGraph();
    }

    ASSERT_TRUE(str.LoadString(IDS_LOCK));
    EXPECT_STREQ("&Lock", str);
    ASSERT_TRUE(str.LoadString(IDS_LINE_NAME_FORMAT));
    EXPECT_STREQ("Line %d", str);
    EXPECT_STREQ("C&opy", firstEntry());

    // A graph made now takes its face name through the chain...
    CGraph graph;
    EXPECT_STREQ("Arial", graph.m_pGraphPrv->m_strFaceName);
    // ...but the default line names were made at load from the library itself.
    EXPECT_STREQ(AnsiOf(L"\u7EBF 1"), graph.m_pGraphPrv->m_pGraphColors[0].m_strName);
    EXPECT_TRUE(graph.m_pGraphPrv->m_hPlotCursor != NULL);
}
