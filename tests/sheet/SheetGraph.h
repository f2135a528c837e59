// The graph's property sheet run for real: Properties (or the legend's
// sheet) opens modally, and a script of steps drives it from a thread timer
// through the windows of the sheet and its pages, reading what they show.
#pragma once

#include "MouseGraph.h"
#include "ModalScript.h"
#include "afx/afxprop.h"
#include "graph/GraphDefs.h"
#include "resources/resource.h"
#include "host_pages.h"

// The sheet of this thread that is up, or null.
inline HWND FindSheet()
{
    HWND hSheet = NULL;
    ::EnumThreadWindows(::GetCurrentThreadId(), [](HWND hWnd, LPARAM lParam) CALLBACK -> BOOL {
        if (::IsWindowVisible(hWnd) && ::FindWindowExA(hWnd, NULL, "SysTabControl32", NULL) != NULL) {
            *(HWND*)lParam = hWnd;
            return FALSE;
        }
        return TRUE;
    }, (LPARAM)&hSheet);
    return hSheet;
}

inline HWND CurrentPage(HWND hSheet) { return (HWND)::SendMessageA(hSheet, PSM_GETCURRENTPAGEHWND, 0, 0); }

// Shows page nPage and returns its window.
inline HWND ShowPage(HWND hSheet, int nPage)
{
    ::SendMessageA(hSheet, PSM_SETCURSEL, (WPARAM)nPage, 0);
    return CurrentPage(hSheet);
}

inline void Press(HWND hSheet, int nButton) { ::PostMessageA(hSheet, PSM_PRESSBUTTON, (WPARAM)nButton, 0); }

// Chooses entry nIndex of a drop-down list as the user would.
inline void ChooseEntry(HWND hPage, int nID, int nIndex)
{
    HWND hCombo = ::GetDlgItem(hPage, nID);
    ::SendMessageA(hCombo, CB_SETCURSEL, (WPARAM)nIndex, 0);
    ::SendMessageA(hPage, WM_COMMAND, MAKEWPARAM(nID, CBN_SELCHANGE), (LPARAM)hCombo);
}

inline void Click(HWND hPage, int nID) { ::SendMessageA(::GetDlgItem(hPage, nID), BM_CLICK, 0, 0); }
inline bool Checked(HWND hPage, int nID) { return ::IsDlgButtonChecked(hPage, nID) == BST_CHECKED; }
inline bool Enabled(HWND hPage, int nID) { return ::IsWindowEnabled(::GetDlgItem(hPage, nID)) != FALSE; }
inline bool Visible(HWND hPage, int nID) { return (::GetWindowLongA(::GetDlgItem(hPage, nID), GWL_STYLE) & WS_VISIBLE) != 0; }
inline int EntryCount(HWND hPage, int nID) { return (int)::SendDlgItemMessageA(hPage, nID, CB_GETCOUNT, 0, 0); }
inline int Selection(HWND hPage, int nID) { return (int)::SendDlgItemMessageA(hPage, nID, CB_GETCURSEL, 0, 0); }

// Centres of the cells of the wells, in the well's client area.
inline CPoint ColorWellCell(int n) { return CPoint(4 + 18 * (n % 4) + 8, 4 + 18 * (n / 4) + 8); }
inline CPoint LineWellCell(int n) { return CPoint(20, 4 + 18 * n + 8); }
inline CPoint AnnotationWellCell(int n) { return CPoint(4 + 24 * (n % 2) + 11, 4 + 18 * (n / 2) + 8); }

// Opens the well of a drop button with a click and picks the cell at pt.
inline bool PickInWell(HWND hPage, int nButton, CPoint pt)
{
    HWND hButton = ::GetDlgItem(hPage, nButton);
    ::SendMessageA(hButton, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
    ::SendMessageA(hButton, WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
    HWND hWell = NULL;
    ::EnumThreadWindows(::GetCurrentThreadId(), [](HWND hWnd, LPARAM lParam) CALLBACK -> BOOL {
        char sz[32];
        ::GetWindowTextA(hWnd, sz, sizeof(sz));
        if (strstr(sz, "Well") != NULL && ::IsWindowVisible(hWnd))
            *(HWND*)lParam = hWnd;
        return TRUE;
    }, (LPARAM)&hWell);
    if (hWell == NULL)
        return false;
    ::SendMessageA(hWell, WM_MOUSEMOVE, 0, MAKELPARAM(pt.x, pt.y));
    ::SendMessageA(hWell, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(pt.x, pt.y));
    return !::IsWindow(hWell);
}

// A host page that counts its OK.
class CHostPage : public CPropertyPage
{
public:
    CHostPage() : CPropertyPage(IDD_HOST_PAGE) {}
    virtual void OnOK() { m_nOK++; }
    int m_nOK = 0;
};

// A shown graph with a recording sink whose sheet a script drives. Each step
// gets the sheet's window; the script presses Cancel (or closes a message
// box left over) when its steps are done.
class SheetGraph : public MouseGraph
{
public:
    explicit SheetGraph(DWORD dwStyle = 0) : MouseGraph(dwStyle) {}

    typedef std::function<bool(HWND hSheet)> SheetStep;

    // Runs fnOpen (by default Properties with an empty title) under the steps.
    int Run(std::vector<SheetStep> steps, std::function<int()> fnOpen = nullptr)
    {
        std::vector<Script::Step> script;
        for (auto& step : steps) {
            script.push_back([step] {
                HWND hSheet = FindSheet();
                return hSheet != NULL && step(hSheet);
            });
        }
        Script runner(script, [] {
            HWND hSheet = FindSheet();
            std::string strIgnored;
            if (hSheet != NULL && !CloseMessageBox(hSheet, strIgnored))
                Press(hSheet, PSBTN_CANCEL);
        });
        m_sink.m_lines.clear();
        const int nResult = runner.Run(fnOpen ? fnOpen : [this] {
            CString strTitle;
            return m_graph.Properties(strTitle);
        });
        m_bFinished = runner.Finished();
        return nResult;
    }

    bool m_bFinished = false;
};
