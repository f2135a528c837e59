// Helpers of the edit control tests: a graph with a window in a host, a
// counting notification sink, a raw parent window that records the
// commands its children send, and the thread locale for a test.
#pragma once

#include "gtest/gtest.h"
#include "TestHost.h"
#include "TestUtil.h"
#include "graph/Graph.h"
#include "graph/GraphPrv.h"
#include <string>
#include <vector>

class CountingSink : public CGraphNotify
{
public:
    CountingSink() : m_nLimits(0), m_nOther(0) {}
    virtual void OnGraphMouse(UINT, UINT, UINT, CPoint) {}
    virtual void OnGraphEvent(UINT, int nCode) { (nCode == GN_LIMITS ? m_nLimits : m_nOther)++; }
    virtual void OnGraphPage(UINT, UINT) {}
    virtual void OnGraphCommand(UINT, UINT, long) {}
    virtual void OnGraphContextMenu(UINT, CPoint) {}
    int m_nLimits;
    int m_nOther;
};

// A shown graph window in a host, with a sink for GN_LIMITS.
class WindowGraph
{
public:
    explicit WindowGraph(DWORD dwStyle = 0, int nWidth = 400, int nHeight = 300)
        : m_host(600, 400)
    {
        CRect rect(0, 0, nWidth, nHeight);
        m_nCreated = m_graph.CreateGraph(m_host.Wnd(), NULL, rect, dwStyle & ~(DWORD)GS_NOWINDOW, 1234, 63);
        m_graph.EnableNotifications(&m_sink, GN_LIMITS);
        m_graph.ShowGraph();
        TestHost::Pump();
    }
    CGraphPrv* Prv() { return m_graph.m_pGraphPrv; }

    TestHost m_host;
    CountingSink m_sink;
    CGraph m_graph;
    int m_nCreated;
};

// The thread's locale for the time of a test.
class ThreadLocale
{
public:
    explicit ThreadLocale(LCID lcid) : m_lcidOld(::GetThreadLocale()) { ::SetThreadLocale(lcid); }
    ~ThreadLocale() { ::SetThreadLocale(m_lcidOld); }
private:
    LCID m_lcidOld;
};

const LCID lcidGerman = MAKELCID(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN), SORT_DEFAULT);

// A plain parent window that records the WM_COMMAND messages of its
// children and answers them with m_lAnswer.
class CommandRecorder
{
public:
    CommandRecorder() : m_lAnswer(0)
    {
        WNDCLASSA wc;
        memset(&wc, 0, sizeof(wc));
        wc.lpfnWndProc = Proc;
        wc.hInstance = ::GetModuleHandleA(NULL);
        wc.lpszClassName = "ZPXTestCommandRecorder";
        wc.hbrBackground = (HBRUSH)(COLOR_WINDOW + 1);
        ::RegisterClassA(&wc);
        m_hWnd = ::CreateWindowExA(0, "ZPXTestCommandRecorder", "", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                   0, 0, 300, 200, NULL, NULL, wc.hInstance, NULL);
        ::SetWindowLongPtrA(m_hWnd, GWLP_USERDATA, (LONG_PTR)this);
    }
    ~CommandRecorder() { ::DestroyWindow(m_hWnd); }

    // Commands with the given notification code.
    int Count(WORD wCode) const
    {
        int n = 0;
        for (size_t i = 0; i < m_commands.size(); i++)
            n += HIWORD(m_commands[i].wParam) == wCode;
        return n;
    }

    struct Command
    {
        WPARAM wParam;
        LPARAM lParam;
    };
    HWND m_hWnd;
    LRESULT m_lAnswer;
    std::vector<Command> m_commands;

private:
    static LRESULT CALLBACK Proc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
    {
        CommandRecorder* pThis = (CommandRecorder*)::GetWindowLongPtrA(hWnd, GWLP_USERDATA);
        if (nMsg == WM_COMMAND && pThis != NULL) {
            Command c = { wParam, lParam };
            pThis->m_commands.push_back(c);
            return pThis->m_lAnswer;
        }
        return ::DefWindowProcA(hWnd, nMsg, wParam, lParam);
    }
};

// Types the bytes of a text into a window, one WM_CHAR each.
inline void Type(HWND hWnd, const char* psz)
{
    for (const unsigned char* p = (const unsigned char*)psz; *p != '\0'; ++p)
        ::SendMessageA(hWnd, WM_CHAR, *p, 1);
}

inline std::string TextOf(HWND hWnd)
{
    char sz[512];
    ::GetWindowTextA(hWnd, sz, sizeof(sz));
    return sz;
}
