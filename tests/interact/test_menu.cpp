// The context menu, read from inside its modal loop: the standard entries
// by the configuration, the cross hair's state, the host's entries and
// their positions, and the commands chosen in it or sent to the graph.
#include "MouseGraph.h"
#include "resources/resource.h"

namespace {

// An entry as the reader writes it, from its text in the source.
std::string Item(const wchar_t* pszText, UINT nId, const char* pszState = "")
{
    return Str("%s|%u%s", (LPCSTR)AnsiOf(pszText), nId, pszState);
}

std::string SubMenu(const wchar_t* pszText)
{
    return std::string(">") + (LPCSTR)AnsiOf(pszText);
}

// A host window that notes the commands it gets.
class CommandCatcher : public CWnd
{
public:
    CommandCatcher(CWnd* pParent)
    {
        Create(AfxRegisterWndClass(0), "catcher", WS_CHILD, CRect(0, 0, 10, 10), pParent, 77);
    }
    virtual BOOL OnCommand(WPARAM wParam, LPARAM)
    {
        m_ids.push_back(LOWORD(wParam));
        return TRUE;
    }
    std::vector<UINT> m_ids;
};

} // namespace

TEST(ContextMenu, EntriesByTheConfigurationAndTheCrossHair)
{
    MouseGraph g;
    CPoint pt = g.Screen(g.m_rectPlot.CenterPoint());
    MenuReader reader;
    EXPECT_EQ(GRAPH_OK, g.m_graph.DisplayMenu(&pt));
    const std::string strCopy = Item(L"复制(&O)", 14704), strRadar = Item(L"自动标尺(&A)", 14705);
    const std::string strLabel = Item(L"标注(&L)", 14706), strLegend = Item(L"界限(&E)", 14707);
    const std::string strProperties = Item(L"属性(&R)", 14700);
    EXPECT_EQ((std::vector<std::string>{ strCopy, "-", strRadar, SubMenu(L"十字游标(&H)"),
                                         "  " + Item(L"显示(&D)", 14702), "  " + Item(L"锁定(&K)", 14703, " grayed"),
                                         strLabel, strLegend, "-", strProperties }),
              reader.m_items);

    // The cross hair on, then locked: checked, and the lock entry unlocks.
    g.Command(ID_GRAPH_CROSSHAIR_SHOW);
    g.Command(ID_GRAPH_CROSSHAIR_LOCK);
    ASSERT_EQ(1, g.Prv()->IsCrossHairLocked());
    g.m_graph.DisplayMenu(&pt);
    EXPECT_EQ("  " + Item(L"显示(&D)", 14702, " checked"), reader.m_items[4]);
    EXPECT_EQ("  " + Item(L"解锁(&K)", 14703), reader.m_items[5]);

    // Nothing configured: the separators and the properties stay. The menu
    // disabled does not stop DisplayMenu.
    g.m_graph.SetMenuConfiguration(0);
    g.m_graph.EnableMenu(FALSE);
    EXPECT_EQ(GRAPH_OK, g.m_graph.DisplayMenu(&pt));
    EXPECT_EQ((std::vector<std::string>{ "-", "-", strProperties }), reader.m_items);

    // Without copy and cross hair, host entries at 0, 2 and past the end.
    g.m_graph.SetMenuConfiguration(GM_LABEL | GM_LEGEND | GM_RADAR);
    CString strA("A"), strB("B"), strC("C");
    g.m_graph.AddMenuItem(strA, 15001, 0, NULL);
    g.m_graph.AddMenuItem(strB, 15002, 2, NULL);
    g.m_graph.AddMenuItem(strC, 15003, 99, NULL);
    g.m_graph.DisplayMenu(&pt);
    EXPECT_EQ((std::vector<std::string>{ "A|15001", "-", "B|15002", strRadar, strLabel, strLegend, "-",
                                         strProperties, "C|15003" }),
              reader.m_items);
    EXPECT_EQ(4, reader.m_nMenus);
    EXPECT_FALSE(::IsMenu(reader.m_hMenu));
}

TEST(ContextMenu, ChosenEntriesAndCommands)
{
    MouseGraph g;
    static float afX[] = { 0, 5 }, afY[] = { 1, 3 };
    g.m_graph.AddPlotData("s", PLOT_YLEFT, afX, afY, 2, RGB(0, 0, 255), PS_SOLID, 0);
    g.m_graph.SetRadarType(RADAR_X);
    CPoint pt = g.Screen(g.m_rectPlot.CenterPoint());
    CString strZoomOut("&Zoom out");
    g.m_graph.AddMenuItem(strZoomOut, 15010, 0, NULL);
    g.Heard();

    // Chosen by its mnemonic: the scaling by the radar type, code 64; the
    // host's entry reaches the sink. Both come posted, after the menu.
    {
        MenuReader reader('a');
        g.m_graph.DisplayMenu(&pt);
        TestHost::Pump();
    }
    EXPECT_EQ("x 0 5 | yl 0 10 | yr 0 100", g.Limits());
    {
        MenuReader reader('z');
        g.m_graph.DisplayMenu(&pt);
        TestHost::Pump();
    }
    EXPECT_EQ((std::vector<std::string>{ "event 64", "command 15010" }), g.Heard());

    // A host entry with a built-in id does not reach the host; 14701, free,
    // does. Copy tells the host whatever became of it.
    CString strX("X");
    g.m_graph.AddMenuItem(strX, ID_GRAPH_COPY, 0, NULL);
    g.m_graph.AddMenuItem(strX, 14701, 0, NULL);
    g.Command(ID_GRAPH_COPY);
    g.Command(14701);
    EXPECT_EQ((std::vector<std::string>{ "event 2048", "command 14701" }), g.Heard());
    // A control's notification of that id (a floating label's editor says
    // its text changed) is no menu choice.
    ::SendMessageA(g.Hwnd(), WM_COMMAND, MAKEWPARAM(14701, EN_CHANGE), (LPARAM)g.m_host.Hwnd());
    EXPECT_TRUE(g.Heard().empty());

    // Two entries of one id both fire, to a window and to the sink; removing
    // the id takes the first only; an unknown id removes nothing.
    CommandCatcher catcher(g.m_host.Wnd());
    g.m_graph.AddMenuItem(strX, 15020, 0, &catcher);
    g.m_graph.AddMenuItem(strX, 15020, 0, NULL);
    g.Command(15020);
    EXPECT_EQ(1u, catcher.m_ids.size());
    EXPECT_EQ(GRAPH_OK, g.m_graph.RemoveMenuItem(15020));
    EXPECT_EQ(0, g.m_graph.RemoveMenuItem(31234));
    g.Command(15020);
    EXPECT_EQ(1u, catcher.m_ids.size());
    EXPECT_EQ((std::vector<std::string>{ "command 15020", "command 15020" }), g.Heard());
}
