#include "TestHost.h"

TestHost::TestHost(int nWidth, int nHeight)
{
    LPCSTR lpszClass = AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, ::LoadCursorA(NULL, (LPCSTR)IDC_ARROW),
                                           (HBRUSH)(COLOR_WINDOW + 1), NULL);
    m_wnd.CreateEx(0, lpszClass, "ZPXGraph test host", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN | WS_VISIBLE,
                   0, 0, nWidth, nHeight, NULL, NULL, NULL);
    Pump();
}

TestHost::~TestHost()
{
    m_wnd.DestroyWindow();
    Pump();
}

void TestHost::Pump()
{
    MSG msg;
    while (::PeekMessageA(&msg, NULL, 0, 0, PM_REMOVE)) {
        ::TranslateMessage(&msg);
        ::DispatchMessageA(&msg);
    }
}
