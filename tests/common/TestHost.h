// A host window for the tests: a visible top-level window that graphs can be
// children of, and helpers to pump its messages.
#pragma once

#include "afx/afxwin.h"

class TestHost
{
public:
    explicit TestHost(int nWidth = 640, int nHeight = 480);
    ~TestHost();

    CWnd* Wnd() { return &m_wnd; }
    HWND Hwnd() const { return m_wnd.m_hWnd; }

    // Dispatches every message waiting on this thread.
    static void Pump();

private:
    CWnd m_wnd;
};
