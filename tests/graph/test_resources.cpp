// The library's own resources: strings in Simplified Chinese through the
// resource chain, and the plot cursor.
#include "TestUtil.h"
#include "resources/resource.h"

TEST(Resources, ChineseStringsThroughTheChain)
{
    ASSERT_EQ(936u, ::GetACP()) << "the tests run under the Chinese code page";
    struct { UINT nID; const wchar_t* pszText; } cases[] = {
        { IDS_UNLOCK, L"\u89E3\u9501(&K)" },               // 解锁(&K)
        { IDS_CROSSHAIR_MENU, L"\u5341\u5B57\u6E38\u6807(&H)" },  // 十字游标(&H)
        { IDS_LABEL_TEXT, L"\u6587\u672C" },               // 文本
        { IDS_GRAPH_PROPERTIES, L"\u56FE\u8C61\u5C5E\u6027" },   // 图象属性
        { IDS_LEGEND_PROPERTIES, L"\u56FE\u4F8B\u5C5E\u6027" },  // 图例属性
    };
    for (const auto& c : cases) {
        CString str;
        EXPECT_TRUE(str.LoadString(c.nID)) << c.nID;
        EXPECT_STREQ(AnsiOf(c.pszText), str) << c.nID;
    }
    for (UINT nID = 14500; nID <= 14516; nID++) {
        CString str;
        EXPECT_TRUE(str.LoadString(nID)) << nID;
    }
}

TEST(Resources, PlotCursorIsTheThinCross)
{
    CGraph graph;
    HCURSOR hCursor = graph.m_pGraphPrv->m_hPlotCursor;
    ASSERT_TRUE(hCursor != NULL);
    ICONINFO info;
    ASSERT_TRUE(::GetIconInfo(hCursor, &info));
    EXPECT_FALSE(info.fIcon);
    EXPECT_EQ(12u, info.xHotspot);
    EXPECT_EQ(12u, info.yHotspot);
    BITMAP bm;
    ::GetObjectA(info.hbmMask, sizeof(bm), &bm);
    EXPECT_EQ(32, bm.bmWidth);
    EXPECT_EQ(64, bm.bmHeight);   // AND and XOR masks of a one-bit cursor
    EXPECT_TRUE(info.hbmColor == NULL);
    ::DeleteObject(info.hbmMask);
}
