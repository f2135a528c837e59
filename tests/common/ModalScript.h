// Driving modal loops from a test: steps run one per tick of a thread
// timer inside whatever modal loop is up (a dialog, a property sheet, a
// message box over them), and the message boxes that a dialog shows.
#pragma once

#include "TestUtil.h"
#include <functional>
#include <string>
#include <string.h>
#include <vector>

// Steps run one per tick of a thread timer inside whatever modal loop is up;
// a step that returns false is tried again on the next tick. When the steps
// are done, or after 10 s, `close` runs on every tick.
class Script
{
public:
    typedef std::function<bool()> Step;
    Script(std::vector<Step> steps, std::function<void()> close) : m_steps(steps), m_close(close) {}

    int Run(const std::function<int()>& modal)
    {
        s_pScript = this;
        UINT_PTR nTimer = ::SetTimer(NULL, 0, 20, Tick);
        int nResult = modal();
        ::KillTimer(NULL, nTimer);
        s_pScript = NULL;
        return nResult;
    }
    bool Finished() const { return m_nNext == m_steps.size(); }

private:
    static VOID CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD)
    {
        Script* p = s_pScript;
        if (p == NULL || p->m_bRunning)
            return;
        p->m_bRunning = true;
        if (p->m_nNext < p->m_steps.size() && ++p->m_nTicks < 500) {
            if (p->m_steps[p->m_nNext]())
                p->m_nNext++;
        } else {
            p->m_close();
        }
        p->m_bRunning = false;
    }

    std::vector<Step> m_steps;
    std::function<void()> m_close;
    size_t m_nNext = 0;
    int m_nTicks = 0;
    bool m_bRunning = false;
    static inline Script* s_pScript = NULL;
};

inline void SetText(HWND hWnd, const char* psz)
{
    ::SendMessageA(hWnd, WM_SETTEXT, 0, (LPARAM)psz);
}

// A visible dialog (a message box, a common dialog) of this thread, or null.
inline HWND FindVisibleDialog()
{
    HWND hDialog = NULL;
    ::EnumThreadWindows(::GetCurrentThreadId(), [](HWND hWnd, LPARAM lParam) CALLBACK -> BOOL {
        char szClass[16];
        ::GetClassNameA(hWnd, szClass, sizeof(szClass));
        if (strcmp(szClass, "#32770") == 0 && ::IsWindowVisible(hWnd))
            *(HWND*)lParam = hWnd;
        return TRUE;
    }, (LPARAM)&hDialog);
    return hDialog;
}

// The message box that a dialog of this thread shows, or null.
inline HWND FindMessageBox(HWND hWndDialog)
{
    struct Find { HWND hDialog, hBox; } find = { hWndDialog, NULL };
    ::EnumThreadWindows(::GetCurrentThreadId(), [](HWND hWnd, LPARAM lParam) CALLBACK -> BOOL {
        Find* pFind = (Find*)lParam;
        char szClass[16];
        ::GetClassNameA(hWnd, szClass, sizeof(szClass));
        if (hWnd != pFind->hDialog && strcmp(szClass, "#32770") == 0 && ::IsWindowVisible(hWnd) &&
            ::GetWindow(hWnd, GW_OWNER) == pFind->hDialog)
            pFind->hBox = hWnd;
        return pFind->hBox == NULL;
    }, (LPARAM)&find);
    return find.hBox;
}

// Reads the message box's text into strText and presses its OK button.
inline bool CloseMessageBox(HWND hWndDialog, std::string& strText)
{
    HWND hBox = FindMessageBox(hWndDialog);
    if (hBox == NULL)
        return false;
    strText = TextOf(::GetDlgItem(hBox, 0xFFFF));
    ::SendMessageA(::GetDlgItem(hBox, IDOK), BM_CLICK, 0, 0);
    return true;
}

