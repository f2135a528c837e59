// A shown graph window in a shown host, driven by real mouse messages, with
// a sink that records what the host hears, and a reader of popup menus that
// runs inside a menu's modal loop.
#pragma once

#include "Surface.h"
#include <algorithm>
#include <vector>

// The colour of a pixel of a window as it stands.
inline COLORREF WindowPixel(HWND hWnd, CPoint pt)
{
    HDC hDC = ::GetDC(hWnd);
    COLORREF cr = ::GetPixel(hDC, pt.x, pt.y);
    ::ReleaseDC(hWnd, hDC);
    return cr;
}

// Records every notification as a line: "mouse 201 x,y", "event 64",
// "command 14750", "context x,y", with the graph's id checked on the way.
class RecordingSink : public CGraphNotify
{
public:
    virtual void OnGraphMouse(UINT nId, UINT nMessage, UINT, CPoint pt)
    {
        Add(nId, Str("mouse %x %ld,%ld", nMessage, pt.x, pt.y));
    }
    virtual void OnGraphEvent(UINT nId, int nCode) { Add(nId, Str("event %d", nCode)); }
    virtual void OnGraphPage(UINT nId, UINT nPage) { Add(nId, Str("page %u", nPage)); }
    virtual void OnGraphCommand(UINT nId, UINT wParam, long) { Add(nId, Str("command %u", wParam)); }
    virtual void OnGraphContextMenu(UINT nId, CPoint pt) { Add(nId, Str("context %ld,%ld", pt.x, pt.y)); }

    void Add(UINT nId, const std::string& str) { m_lines.push_back(nId == 1001 ? str : "wrong id " + str); }
    std::vector<std::string> m_lines;
};

// X 0..10, left Y 0..10, right Y 0..100, every notification wanted.
class MouseGraph : public GraphInHost
{
public:
    explicit MouseGraph(DWORD dwStyle = 0) : GraphInHost(dwStyle)
    {
        m_graph.EnableNotifications(&m_sink, 0x1FFF);
        Show();
        m_graph.SetXAxisNumFmt("%.1f");
        m_graph.SetYAxisNumFmt(0, "%.1f");
        m_graph.SetXAxisLimits(0.0, 10.0);
        m_graph.SetYAxisLimits(0.0, 10.0, 0);
        m_graph.SetYAxisLimits(0.0, 100.0, 1);
        Paint();
        m_graph.GetPlotRect(m_rectPlot);
    }

    HWND Hwnd() { return Prv()->m_hWnd; }
    void Paint()
    {
        ::RedrawWindow(Hwnd(), NULL, NULL, RDW_INVALIDATE | RDW_UPDATENOW);
        TestHost::Pump();
    }
    LRESULT Send(UINT nMessage, CPoint pt, UINT nFlags = 0)
    {
        return ::SendMessageA(Hwnd(), nMessage, nFlags, MAKELPARAM(pt.x, pt.y));
    }
    LRESULT Command(UINT nId) { return ::SendMessageA(Hwnd(), WM_COMMAND, nId, 0); }
    CPoint Screen(CPoint pt)
    {
        ::ClientToScreen(Hwnd(), &pt);
        return pt;
    }
    // A press, moves and a release, with the real pointer parked on the
    // press and no messages pumped in between.
    void Drag(CPoint a, CPoint b, bool bRelease = true)
    {
        const CPoint ptScreen = Screen(a);
        ::SetCursorPos(ptScreen.x, ptScreen.y);
        Send(WM_LBUTTONDOWN, a, MK_LBUTTON);
        Send(WM_MOUSEMOVE, CPoint((a.x + b.x) / 2, (a.y + b.y) / 2), MK_LBUTTON);
        Send(WM_MOUSEMOVE, b, MK_LBUTTON);
        if (bRelease)
            Send(WM_LBUTTONUP, b);
    }
    void Click(CPoint pt)
    {
        Send(WM_LBUTTONDOWN, pt, MK_LBUTTON);
        Send(WM_LBUTTONUP, pt);
    }
    // Dispatches this thread's messages for nMs milliseconds of the clock.
    static void PumpFor(DWORD nMs)
    {
        const DWORD t0 = ::GetTickCount();
        while (::GetTickCount() - t0 < nMs) {
            TestHost::Pump();
            ::Sleep(5);
        }
    }
    std::string Limits()
    {
        double d[6];
        m_graph.GetXAxisLimits(&d[0], &d[1]);
        m_graph.GetYAxisLimits(&d[2], &d[3], 0);
        m_graph.GetYAxisLimits(&d[4], &d[5], 1);
        return Str("x %.6g %.6g | yl %.6g %.6g | yr %.6g %.6g", d[0], d[1], d[2], d[3], d[4], d[5]);
    }
    // The notifications heard since the last call.
    std::vector<std::string> Heard()
    {
        std::vector<std::string> lines;
        lines.swap(m_sink.m_lines);
        return lines;
    }

    RecordingSink m_sink;
    CRect m_rectPlot;
};

// Reads the popup menu that is up from a thread timer inside its modal
// loop: each entry as "text|id" with " checked", " grayed" added, "-" for a
// separator and ">text" for a sub-menu, then chooses the entry of the
// mnemonic cChoose, or closes the menu with Escape when it is 0. With
// nHoldTicks the menu stays up that many more ticks of 30 ms first.
class MenuReader
{
public:
    explicit MenuReader(char cChoose = 0, int nHoldTicks = 0)
    {
        s_pThis = this;
        m_cChoose = cChoose;
        m_nHold = nHoldTicks;
        m_nTimer = ::SetTimer(NULL, 0, 30, OnTimer);
    }
    ~MenuReader()
    {
        ::KillTimer(NULL, m_nTimer);
        s_pThis = NULL;
    }

    std::vector<std::string> m_items;   // the entries of the last menu read
    HMENU m_hMenu = NULL;                // its handle
    int m_nMenus = 0;                    // menus seen

private:
    // One entry of a menu, as the class comment says.
    static std::string Entry(HMENU hMenu, int i)
    {
        char sz[128] = "";
        ::GetMenuStringA(hMenu, i, sz, sizeof(sz), MF_BYPOSITION);
        const UINT nState = ::GetMenuState(hMenu, i, MF_BYPOSITION);
        if (::GetSubMenu(hMenu, i) != NULL)
            return std::string(">") + sz;
        if (nState & MF_SEPARATOR)
            return "-";
        return Str("%s|%u%s%s", sz, ::GetMenuItemID(hMenu, i), (nState & MF_CHECKED) ? " checked" : "",
                   (nState & MF_GRAYED) ? " grayed" : "");
    }

    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD)
    {
        HWND hPopup = ::FindWindowA("#32768", NULL);
        if (s_pThis == NULL || hPopup == NULL || !::IsWindowVisible(hPopup))
            return;
        MenuReader& r = *s_pThis;
        if (r.m_nHold-- > 0)
            return;
        r.m_hMenu = (HMENU)::SendMessageA(hPopup, MN_GETHMENU, 0, 0);
        r.m_items.clear();
        for (int i = 0; i < ::GetMenuItemCount(r.m_hMenu); i++) {
            r.m_items.push_back(Entry(r.m_hMenu, i));
            // A sub-menu's entries follow it, indented.
            HMENU hSub = ::GetSubMenu(r.m_hMenu, i);
            for (int j = 0; hSub != NULL && j < ::GetMenuItemCount(hSub); j++)
                r.m_items.push_back("  " + Entry(hSub, j));
        }
        r.m_nMenus++;
        if (r.m_cChoose != 0)
            ::PostMessageA(hPopup, WM_CHAR, (WPARAM)r.m_cChoose, 0);
        else
            ::PostMessageA(hPopup, WM_KEYDOWN, VK_ESCAPE, 0);
    }

    static MenuReader* s_pThis;
    char m_cChoose;
    int m_nHold;
    UINT_PTR m_nTimer;
};

inline MenuReader* MenuReader::s_pThis = NULL;

