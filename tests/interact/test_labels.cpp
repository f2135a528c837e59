// Floating labels through the real windows: adding, sizing by the text,
// editing and its end, following the data, selection by a press, moving with
// the tracker's Track loop, the editor's menu and delete command, removal
// under re-entering focus changes, the colour and font dialogs with the
// defaults they leave in the registry, and the resources over many labels.
#include "MouseGraph.h"
#include "interact/FloatingEditWnd.h"
#include "interact/FloatingLabel.h"
#include "afx/afxext.h"
#include "persist/Registry.h"
#include "resources/messages.h"
#include "resources/resource.h"

namespace {

// The label defaults of the fixed key saved and cleared, so that labels
// start from the built-in look, and put back as they were.
class SavedDefaults
{
public:
    SavedDefaults()
    {
        ::RegCreateKeyExA(HKEY_LOCAL_MACHINE, GRAPH_FIXED_KEY, 0, NULL, 0, KEY_ALL_ACCESS, NULL, &m_hKey, NULL);
        for (int i = 0; i < 3; i++) {
            m_cb[i] = sizeof(m_ab[i]);
            m_bPresent[i] = ::RegQueryValueExA(m_hKey, s_names[i], NULL, &m_dwType[i], m_ab[i], &m_cb[i]) == 0;
            ::RegDeleteValueA(m_hKey, s_names[i]);
        }
    }
    ~SavedDefaults()
    {
        for (int i = 0; i < 3; i++) {
            if (m_bPresent[i])
                ::RegSetValueExA(m_hKey, s_names[i], 0, m_dwType[i], m_ab[i], m_cb[i]);
            else
                ::RegDeleteValueA(m_hKey, s_names[i]);
        }
        ::RegCloseKey(m_hKey);
    }
    DWORD Read(int i, BYTE* pb, DWORD cb)
    {
        ::RegQueryValueExA(m_hKey, s_names[i], NULL, NULL, pb, &cb);
        return cb;
    }
    static const char* const s_names[3];

private:
    HKEY m_hKey = NULL;
    bool m_bPresent[3];
    DWORD m_dwType[3], m_cb[3];
    BYTE m_ab[3][128];
};
const char* const SavedDefaults::s_names[3] = { "DefaultLabelColor", "DefaultLabelPointSize", "DefaultLabelFont" };

class LabelGraph : public MouseGraph
{
public:
    // A label added at a client point, its posted font messages handled.
    CFloatingLabel* Add(CPoint pt)
    {
        m_graph.AddFloatingLabel(Screen(pt));
        TestHost::Pump();
        return Label(Prv()->m_wNextLabelId);
    }
    CFloatingLabel* Label(WORD wId)
    {
        CFloatingLabel* pLabel = NULL;
        Prv()->m_mapFloatingLabels.Lookup(wId, pLabel);
        return pLabel;
    }
    static HWND Edit(CFloatingLabel* pLabel) { return pLabel->m_pEdit->m_hWnd; }
    SavedDefaults m_saved;
    // The text set and the editing ended with Escape.
    static void Finish(CFloatingLabel* pLabel, const char* psz)
    {
        ::SetWindowTextA(Edit(pLabel), psz);
        ::SendMessageA(Edit(pLabel), WM_CHAR, VK_ESCAPE, 1);
    }
    // Width of a text in the label's font.
    static int Extent(CFloatingLabel* pLabel, const char* psz)
    {
        CClientDC dc(pLabel->m_pEdit);
        CSelectGuard select(&dc, &pLabel->m_font);
        return dc.GetTextExtent(psz, (int)strlen(psz)).cx;
    }
    // The real pointer at a point, the cursor settled there.
    void Hover(CPoint pt)
    {
        const CPoint ptScreen = Screen(pt);
        ::SetCursorPos(ptScreen.x, ptScreen.y);
        ::SendMessageA(Hwnd(), WM_SETCURSOR, (WPARAM)Hwnd(), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        Send(WM_MOUSEMOVE, pt);
    }
    // A drag of the tracker from a point on its border, the way Track sees
    // it: the real pointer there, the cursor settled, then the press with
    // the move and the release already waiting for the loop.
    void DragTracker(CPoint pt, CSize d)
    {
        Hover(pt);
        EXPECT_TRUE(Prv()->m_dwState & GST_OVER_TRACKER);
        ::PostMessageA(Hwnd(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(pt.x + d.cx, pt.y + d.cy));
        ::PostMessageA(Hwnd(), WM_LBUTTONUP, 0, MAKELPARAM(pt.x + d.cx, pt.y + d.cy));
        Send(WM_LBUTTONDOWN, pt, MK_LBUTTON);
        ::ClipCursor(NULL);
    }
};

std::string Item(const wchar_t* pszText, UINT nId, const char* pszState = "")
{
    return Str("%s|%u%s", (LPCSTR)AnsiOf(pszText), nId, pszState);
}


// Ends the system's dialog that is up from a thread timer: fn sets its
// controls, then OK is pressed.
template <class Fn> class DialogEnder
{
public:
    explicit DialogEnder(Fn fn) : m_fn(fn)
    {
        s_pThis = this;
        m_nTimer = ::SetTimer(NULL, 0, 50, OnTimer);
    }
    ~DialogEnder() { ::KillTimer(NULL, m_nTimer); }
    int m_nEnded = 0;

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD)
    {
        HWND hDlg = ::FindWindowA("#32770", NULL);
        if (hDlg == NULL || !::IsWindowVisible(hDlg) || s_pThis->m_nEnded++ > 0)
            return;
        s_pThis->m_fn(hDlg);
        ::PostMessageA(hDlg, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), (LPARAM)::GetDlgItem(hDlg, IDOK));
    }
    static DialogEnder* s_pThis;
    Fn m_fn;
    UINT_PTR m_nTimer;
};
template <class Fn> DialogEnder<Fn>* DialogEnder<Fn>::s_pThis = NULL;

// Selects the entry of a combo box whose item data or text matches, and
// tells the dialog as a user's choice would.
void ChooseInCombo(HWND hDlg, int nId, LRESULT nIndex)
{
    ::SendDlgItemMessageA(hDlg, nId, CB_SETCURSEL, (WPARAM)nIndex, 0);
    ::SendMessageA(hDlg, WM_COMMAND, MAKEWPARAM(nId, CBN_SELCHANGE), (LPARAM)::GetDlgItem(hDlg, nId));
}

} // namespace

TEST(FloatingLabel, NewLabelsAreSelectedKeptInThePlotAndSizedByTheirText)
{
    LabelGraph g;
    const CRect& rp = g.m_rectPlot;
    CFloatingLabel* pFirst = g.Add(CPoint(rp.left + 20, rp.top + 20));
    ASSERT_TRUE(pFirst != NULL);
    EXPECT_EQ(2002, pFirst->m_nId);
    EXPECT_EQ(std::string(AnsiOf(L"文本")), TextOf(g.Edit(pFirst)));
    EXPECT_EQ((LRESULT)MAKELONG(0, 2), ::SendMessageA(g.Edit(pFirst), EM_GETSEL, 0, 0));
    EXPECT_EQ(g.Edit(pFirst), ::GetFocus());
    EXPECT_EQ(pFirst->m_rect, g.Prv()->m_pLabelTracker->m_rect);
    EXPECT_NEAR(g.m_graph.PixelToDataX(rp.left + 20), pFirst->m_dX, 1e-9);

    // Past the right edge: the right side stops at the plot's width counted
    // from 0. The first label is deselected on the way.
    g.m_graph.AddFloatingLabel(g.Screen(CPoint(rp.right - 2, rp.top + 40)));
    CFloatingLabel* pRight = g.Label(2003);
    EXPECT_EQ(rp.Width(), pRight->m_rect.right);
    TestHost::Pump();
    EXPECT_FALSE(::IsWindowVisible(g.Edit(pFirst)));
    EXPECT_EQ(pRight, g.Prv()->m_pSelectedLabel);

    // Typing does not resize; Escape keeps the text, ends the editing and
    // sizes the label: the width follows the text's extent by a constant.
    const CRect rectBefore = pRight->m_rect;
    Type(g.Edit(pRight), "ab");
    EXPECT_EQ(rectBefore, pRight->m_rect);
    ::SendMessageA(g.Edit(pRight), WM_CHAR, VK_ESCAPE, 1);
    EXPECT_EQ("ab", TextOf(g.Edit(pRight)));
    EXPECT_EQ(g.Hwnd(), ::GetFocus());
    EXPECT_TRUE(g.Prv()->m_pLabelTracker == NULL);
    EXPECT_FALSE(::IsWindowVisible(g.Edit(pRight)));
    EXPECT_EQ(rectBefore.Width() - g.Extent(pRight, AnsiOf(L"文本")),
              pRight->m_rect.Width() - g.Extent(pRight, "ab"));

    // Lines of 2, 7 and 3 characters: three lines high, as wide as the
    // second (compared with a two-line label led by that line).
    CFloatingLabel* pThree = g.Add(CPoint(rp.left + 20, rp.top + 60));
    g.Finish(pThree, "ab\r\nabcdefg\r\nabc");
    CFloatingLabel* pTwo = g.Add(CPoint(rp.left + 100, rp.top + 60));
    g.Finish(pTwo, "abcdefg\r\nx");
    EXPECT_EQ(pTwo->m_rect.Width(), pThree->m_rect.Width());
    EXPECT_EQ(pTwo->m_rect.Height() * 3, pThree->m_rect.Height() * 2);
    // Three wide characters after four narrow ones: the line with more
    // characters sets the width, though it is narrower in pixels.
    CFloatingLabel* pWide = g.Add(CPoint(rp.left + 20, rp.top + 120));
    g.Finish(pWide, AnsiOf(L"iiii\r\n文本框"));
    CFloatingLabel* pNarrow = g.Add(CPoint(rp.left + 100, rp.top + 120));
    g.Finish(pNarrow, "iiii\r\nx");
    ASSERT_GT(g.Extent(pWide, AnsiOf(L"文本框")), g.Extent(pWide, "iiii\r"));
    EXPECT_EQ(pNarrow->m_rect.Width(), pWide->m_rect.Width());
}

TEST(FloatingLabel, FollowsItsDataSelectsByAPressAndMovesWithTheTracker)
{
    LabelGraph g;
    const CRect& rp = g.m_rectPlot;
    CFloatingLabel* pLabel = g.Add(CPoint(g.m_graph.DataToPixelX(2.0), g.m_graph.DataToPixelY(8.0, 0)));
    ::SendMessageA(g.Edit(pLabel), WM_CHAR, VK_ESCAPE, 1);
    const int nLeft = pLabel->m_rect.left;
    g.m_graph.SetXAxisLimits(0.0, 20.0);
    g.m_graph.SetYAxisLimits(4.0, 14.0, 0);
    EXPECT_EQ(g.m_graph.DataToPixelX(pLabel->m_dX), pLabel->m_rect.left);
    EXPECT_EQ(g.m_graph.DataToPixelY(pLabel->m_dY, 0), pLabel->m_rect.top);
    EXPECT_LT(pLabel->m_rect.left, nLeft);

    // A press on the label selects it, and the host hears nothing of it.
    g.Heard();
    g.Send(WM_LBUTTONDOWN, pLabel->m_rect.CenterPoint(), MK_LBUTTON);
    g.Send(WM_LBUTTONUP, pLabel->m_rect.CenterPoint());
    EXPECT_TRUE(g.Heard().empty());
    ASSERT_EQ(pLabel, g.Prv()->m_pSelectedLabel);
    EXPECT_EQ(g.Edit(pLabel), ::GetFocus());

    // Dragged by its border, inside the plot: the label keeps the data
    // position of its new place through a change of limits and back.
    const CRect rect = pLabel->m_rect;
    const CPoint ptBorder(rect.left + 6, rect.top - 2);
    ASSERT_EQ(CRectTracker::hitMiddle, g.Prv()->m_pLabelTracker->HitTest(ptBorder));
    g.DragTracker(ptBorder, CSize(30, 20));
    EXPECT_EQ(CRect(rect.left + 30, rect.top + 20, rect.right + 30, rect.bottom + 20), pLabel->m_rect);
    EXPECT_EQ(pLabel->m_rect, g.Prv()->m_pLabelTracker->m_rect);
    g.m_graph.SetXAxisLimits(0.0, 40.0);
    g.m_graph.SetXAxisLimits(0.0, 20.0);
    EXPECT_NEAR(rect.left + 30, pLabel->m_rect.left, 1);
    EXPECT_NEAR(rect.top + 20, pLabel->m_rect.top, 1);
    EXPECT_EQ(pLabel->m_rect, g.Prv()->m_pLabelTracker->m_rect);

    // A drag that begins outside the plot pins the label to (0, 0), where it
    // goes at the next change of limits.
    CFloatingLabel* pTop = g.Add(CPoint(rp.left + 40, 4));
    const CPoint ptOutside(pTop->m_rect.left + 6, pTop->m_rect.top - 2);
    ASSERT_FALSE(rp.PtInRect(ptOutside));
    g.DragTracker(ptOutside, CSize(10, 10));
    EXPECT_EQ(0.0, pTop->m_dX);
    EXPECT_EQ(0.0, pTop->m_dY);
    EXPECT_EQ(4 + 10, pTop->m_rect.top);
    g.m_graph.SetYAxisLimits(0.0, 10.0, 0);
    EXPECT_EQ(CPoint(rp.left, rp.bottom), pTop->m_rect.TopLeft());
    ::ClipCursor(NULL);
}

TEST(FloatingLabel, MenuDeleteEmptyingAndRemovalHoldUpUnderFocusChanges)
{
    LabelGraph g;
    const CRect& rp = g.m_rectPlot;
    CFloatingLabel* pLabel = g.Add(rp.CenterPoint());
    const CPoint ptMenu = g.Screen(rp.CenterPoint());
    auto menu = [&](char cChoose) {
        MenuReader reader(cChoose);
        ::SendMessageA(g.Edit(pLabel), WM_CONTEXTMENU, (WPARAM)g.Edit(pLabel), MAKELPARAM(ptMenu.x, ptMenu.y));
        return reader.m_items;
    };
    // The whole text selected: select all grayed; nothing selected: cut and
    // copy grayed. Paste and delete stay on.
    EXPECT_EQ((std::vector<std::string>{ Item(L"剪切(&T)", 14716), Item(L"复制(&C)", 14704),
                                         Item(L"粘贴(&P)", 14713), Item(L"删除标注(&D)", 14714),
                                         Item(L"全选(&A)", 14715, " grayed"), "-",
                                         Item(L"选择颜色(&O)...", 14717), Item(L"选择字体(&F)...", 14718) }),
              menu(0));
    ::SendMessageA(g.Edit(pLabel), EM_SETSEL, 1, 1);
    const std::vector<std::string> items = menu(0);
    ASSERT_EQ(8u, items.size());
    EXPECT_EQ(Item(L"剪切(&T)", 14716, " grayed"), items[0]);
    EXPECT_EQ(Item(L"复制(&C)", 14704, " grayed"), items[1]);
    EXPECT_EQ(Item(L"粘贴(&P)", 14713), items[2]);
    EXPECT_EQ(Item(L"删除标注(&D)", 14714), items[3]);
    EXPECT_EQ(Item(L"全选(&A)", 14715), items[4]);

    // The delete command: the label and its editor go, the graph has the focus.
    menu('D');
    TestHost::Pump();
    EXPECT_TRUE(g.Prv()->m_mapFloatingLabels.IsEmpty());
    EXPECT_TRUE(::GetDlgItem(g.Hwnd(), 2002) == NULL);
    EXPECT_TRUE(g.Prv()->m_pLabelTracker == NULL && g.Prv()->m_pSelectedLabel == NULL);

    // An emptied label goes at the next click elsewhere.
    g.m_graph.EnableZoom(FALSE);
    pLabel = g.Add(rp.CenterPoint());
    ::SetWindowTextA(g.Edit(pLabel), "");
    g.Click(CPoint(rp.left + 5, rp.top + 5));
    EXPECT_TRUE(g.Prv()->m_mapFloatingLabels.IsEmpty());
    EXPECT_TRUE(::GetDlgItem(g.Hwnd(), 2003) == NULL);
    EXPECT_EQ(g.Hwnd(), ::GetFocus());

    // All labels removed while one is selected and the pointer is on its
    // tracker: no editor is left, and the next presses select and add as before.
    g.Add(CPoint(rp.left + 10, rp.top + 10));
    const CPoint ptBorder = g.Add(rp.CenterPoint())->m_rect.TopLeft() + CSize(6, -2);
    g.Hover(ptBorder);
    ASSERT_TRUE(g.Prv()->m_dwState & GST_OVER_TRACKER);
    g.m_graph.RemoveAllFloatingLabels();
    g.Click(ptBorder);
    g.Send(WM_MOUSEMOVE, rp.CenterPoint());
    EXPECT_TRUE(g.Prv()->m_mapFloatingLabels.IsEmpty());
    EXPECT_TRUE(g.Prv()->m_pLabelTracker == NULL && g.Prv()->m_pSelectedLabel == NULL);
    EXPECT_TRUE(::GetDlgItem(g.Hwnd(), 2004) == NULL && ::GetDlgItem(g.Hwnd(), 2005) == NULL);
    g.Click(rp.CenterPoint());
    pLabel = g.Add(CPoint(rp.left + 10, rp.top + 10));
    EXPECT_EQ(2006, pLabel->m_nId);
    ::SendMessageA(g.Edit(pLabel), WM_CHAR, VK_ESCAPE, 1);
    g.Click(pLabel->m_rect.CenterPoint());
    EXPECT_EQ(pLabel, g.Prv()->m_pSelectedLabel);
    EXPECT_EQ(g.Edit(pLabel), ::GetFocus());

    // Unknown identifiers in the five messages do nothing and give 1.
    const UINT messages[] = { WM_GRAPH_DELETELABEL, WM_GRAPH_FINISHEDEDITINGLABEL, WM_GRAPH_SETLABELCOLOR,
                              WM_GRAPH_SETLABELFONT, WM_GRAPH_SETLABELPOINTSIZE };
    for (UINT nMessage : messages)
        EXPECT_EQ(1, ::SendMessageA(g.Hwnd(), nMessage, 9999, 0)) << nMessage;
    EXPECT_EQ(1, g.Prv()->m_mapFloatingLabels.GetCount());
    EXPECT_EQ(pLabel, g.Prv()->m_pSelectedLabel);
    EXPECT_EQ(80, pLabel->m_nPointSize);

    // The graph's menu entry adds a label where the menu was opened.
    const CPoint ptAt(rp.left + 30, rp.top + 50);
    {
        MenuReader reader('L');
        ::SendMessageA(g.Hwnd(), WM_CONTEXTMENU, (WPARAM)g.Hwnd(), MAKELPARAM(g.Screen(ptAt).x, g.Screen(ptAt).y));
        TestHost::Pump();
    }
    CFloatingLabel* pMenuLabel = g.Label(2007);
    ASSERT_TRUE(pMenuLabel != NULL);
    EXPECT_EQ(ptAt, pMenuLabel->m_rect.TopLeft());
}

TEST(FloatingLabel, ColourAndFontDialogsRecolourResizeAndBecomeTheDefaults)
{
    LabelGraph g;
    SavedDefaults& saved = g.m_saved;
    const CRect& rp = g.m_rectPlot;
    CFloatingLabel* pLabel = g.Add(CPoint(rp.left + 20, rp.top + 20));
    // The label's text pixels of a colour, in a picture of the whole graph.
    auto textBox = [&](COLORREF cr) {
        Dib dib(g.Prv()->m_rectGraph.Width(), g.Prv()->m_rectGraph.Height());
        g.m_graph.Plot(dib.DC(), 0);
        return dib.Box([cr](COLORREF c) { return c == cr; }, pLabel->m_rect);
    };

    const COLORREF crChosen = RGB(200, 0, 0);
    {
        DialogEnder ender([](HWND hDlg) {
            ::SetDlgItemInt(hDlg, 706, 200, FALSE);
            ::SetDlgItemInt(hDlg, 707, 0, FALSE);
            ::SetDlgItemInt(hDlg, 708, 0, FALSE);
        });
        ::SendMessageA(g.Edit(pLabel), WM_COMMAND, ID_GRAPH_LABEL_COLOR, 0);
        TestHost::Pump();
        EXPECT_GT(ender.m_nEnded, 0);
    }
    EXPECT_EQ(crChosen, pLabel->m_crText);
    DWORD dw = 0;
    EXPECT_EQ(4u, saved.Read(0, (BYTE*)&dw, 4));
    EXPECT_EQ(crChosen, dw);
    // The selection outlived the dialog (the focus went to the host).
    EXPECT_EQ(pLabel, g.Prv()->m_pSelectedLabel);
    EXPECT_NE(g.Edit(pLabel), ::GetFocus());
    const CRect boxSmall = textBox(crChosen);
    ASSERT_GT(boxSmall.Height(), 0);

    // The font dialog: 20 points and one of its colours.
    const COLORREF crFont = RGB(0, 128, 0);
    g.Click(pLabel->m_rect.CenterPoint());
    const int nHeight = pLabel->m_rect.Height();
    {
        DialogEnder ender([crFont](HWND hDlg) {
            ChooseInCombo(hDlg, 0x472, ::SendDlgItemMessageA(hDlg, 0x472, CB_FINDSTRINGEXACT, (WPARAM)-1, (LPARAM) "20"));
            const LRESULT nColors = ::SendDlgItemMessageA(hDlg, 0x473, CB_GETCOUNT, 0, 0);
            for (LRESULT i = 0; i < nColors; i++)
                if ((COLORREF)::SendDlgItemMessageA(hDlg, 0x473, CB_GETITEMDATA, (WPARAM)i, 0) == crFont)
                    ChooseInCombo(hDlg, 0x473, i);
        });
        ::SendMessageA(g.Edit(pLabel), WM_COMMAND, ID_GRAPH_LABEL_FONT, 0);
        TestHost::Pump();
    }
    EXPECT_EQ(200, pLabel->m_nPointSize);
    EXPECT_EQ(crFont, pLabel->m_crText);
    EXPECT_GT(pLabel->m_rect.Height(), nHeight * 2);
    BYTE abFont[64];
    EXPECT_EQ(60u, saved.Read(2, abFont, sizeof(abFont)));
    EXPECT_EQ(4u, saved.Read(1, (BYTE*)&dw, 4));
    EXPECT_EQ(200u, dw);
    saved.Read(0, (BYTE*)&dw, 4);
    EXPECT_EQ(crFont, dw);
    EXPECT_GT(textBox(crFont).Height(), boxSmall.Height() * 3 / 2);

    // Removed with the selection left on an editor without the focus:
    // nothing of the selection stays behind.
    const int nBigHeight = pLabel->m_rect.Height();
    ASSERT_EQ(pLabel, g.Prv()->m_pSelectedLabel);
    g.m_graph.RemoveAllFloatingLabels();
    EXPECT_TRUE(g.Prv()->m_pLabelTracker == NULL && g.Prv()->m_pSelectedLabel == NULL);

    // A new label comes up in the new colour and size.
    CFloatingLabel* pNext = g.Add(CPoint(rp.left + 20, rp.bottom - 60));
    EXPECT_EQ(crFont, pNext->m_crText);
    EXPECT_EQ(200, pNext->m_nPointSize);
    EXPECT_EQ(nBigHeight, pNext->m_rect.Height());
}

TEST(FloatingLabel, LabelsReadBeforeTheWindowGetTheirEditorsAtCreation)
{
    TestHost host(800, 600);
    CGraph graph;
    CFloatingLabel* pLabel = new CFloatingLabel(graph.m_pGraphPrv, 2002);
    EXPECT_TRUE(pLabel->m_pEdit != NULL && pLabel->m_pEdit->m_hWnd == NULL);
    pLabel->m_dX = 5.0;
    pLabel->m_dY = 5.0;
    pLabel->m_strText = "x";
    graph.m_pGraphPrv->m_mapFloatingLabels.SetAt(2002, pLabel);
    CRect rect(0, 0, 400, 300);
    graph.CreateGraph(host.Wnd(), NULL, rect, 0, 1001, 63);
    EXPECT_EQ("x", TextOf(::GetDlgItem(graph.m_pGraphPrv->m_hWnd, 2002)));
    EXPECT_EQ(CPoint(graph.DataToPixelX(5.0), graph.DataToPixelY(5.0, 0)), pLabel->m_rect.TopLeft());
    EXPECT_GT(pLabel->m_rect.Width(), 0);
}

TEST(FloatingLabel, ThousandsOfLabelsReturnMemoryAndGdiObjects)
{
    LabelGraph g;
    const CRect& rp = g.m_rectPlot;
    g.m_graph.HideGraph();   // no paint in between: the labels alone count
    auto round = [&] {
        for (int i = 0; i < 3; i++)
            g.Add(CPoint(rp.left + 10 * i, rp.top + 10 * i));
        g.m_graph.RemoveAllFloatingLabels();
    };
    for (int i = 0; i < 30; i++)
        round();
    const LONG nGdiBefore = CGdiObject::GetLiveCount();
    const SIZE_T nBytesBefore = CommittedBytes();
    for (int i = 0; i < 340; i++)
        round();
    TestHost::Pump();
    EXPECT_EQ(nGdiBefore, CGdiObject::GetLiveCount());
    // A leaked editor object per label alone would add more than this.
    EXPECT_LT(CommittedBytes(), nBytesBefore + 512 * 1024);
}
