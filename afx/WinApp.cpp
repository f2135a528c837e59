// The application object, the owners of modal windows, and message boxes.
#include "afx/afxapp.h"
#include <string.h>

namespace {

CWinApp* s_pApp = NULL;   // the host's application object

// The program's file name without folder and extension.
CString ProgramName()
{
    char szPath[MAX_PATH];
    DWORD n = ::GetModuleFileNameA(NULL, szPath, sizeof(szPath));
    szPath[n < sizeof(szPath) ? n : sizeof(szPath) - 1] = '\0';
    CString strName(szPath);
    int nSlash = strName.ReverseFind('\\');
    if (nSlash >= 0)
        strName = strName.Mid(nSlash + 1);
    int nDot = strName.ReverseFind('.');
    if (nDot > 0)
        strName = strName.Left(nDot);
    return strName;
}

// A message box owned by the window that has the user's attention, which
// stays disabled while the box is up.
int ShowMessageBox(LPCSTR lpszCaption, LPCSTR lpszPrompt, UINT nType)
{
    HWND hWndTop = NULL;
    HWND hWndOwner = CWnd::GetSafeOwner_(NULL, &hWndTop);
    if ((nType & MB_ICONMASK) == 0 && (nType & MB_TYPEMASK) == MB_OK)
        nType |= MB_ICONEXCLAMATION;
    int nResult = ::MessageBoxA(hWndOwner, lpszPrompt, lpszCaption, nType);
    if (hWndTop != NULL)
        ::EnableWindow(hWndTop, TRUE);
    return nResult;
}

} // namespace

IMPLEMENT_DYNAMIC(CWinApp, CCmdTarget)

CWinApp::CWinApp(LPCSTR lpszAppName)
    : m_pszAppName(lpszAppName), m_pszHelpFilePath(NULL), m_pMainWnd(NULL)
{
    s_pApp = this;
}

CWinApp::~CWinApp()
{
    if (s_pApp == this)
        s_pApp = NULL;
}

void CWinApp::WinHelp(DWORD_PTR dwData, UINT nCmd)
{
    if (m_pszHelpFilePath == NULL)
        return;
    HWND hWndMain = m_pMainWnd != NULL ? m_pMainWnd->GetSafeHwnd() : NULL;
    ::WinHelpA(hWndMain, m_pszHelpFilePath, nCmd, dwData);
}

int CWinApp::DoMessageBox(LPCSTR lpszPrompt, UINT nType, UINT)
{
    CString strCaption = m_pszAppName != NULL ? CString(m_pszAppName) : ProgramName();
    return ShowMessageBox(strCaption, lpszPrompt, nType);
}

CWinApp* AFXAPI AfxGetApp()
{
    return s_pApp;
}

CWnd* AFXAPI AfxGetMainWnd()
{
    return s_pApp != NULL ? s_pApp->m_pMainWnd : NULL;
}

HWND PASCAL CWnd::GetSafeOwner_(HWND hParent, HWND* pWndTop)
{
    HWND hWnd = hParent;
    if (hWnd == NULL) {
        CWnd* pMainWnd = AfxGetMainWnd();
        hWnd = pMainWnd != NULL ? pMainWnd->GetSafeHwnd() : ::GetActiveWindow();
    }
    // A popup cannot be owned by a child window.
    while (hWnd != NULL && (::GetWindowLongA(hWnd, GWL_STYLE) & WS_CHILD))
        hWnd = ::GetParent(hWnd);
    HWND hWndTop = hWnd;
    for (HWND h = hWnd; h != NULL; h = ::GetParent(h))
        hWndTop = h;
    if (hParent == NULL && hWnd != NULL)
        hWnd = ::GetLastActivePopup(hWnd);
    if (pWndTop != NULL) {
        *pWndTop = NULL;
        if (hWndTop != NULL && hWndTop != hWnd && ::IsWindowEnabled(hWndTop)) {
            *pWndTop = hWndTop;
            ::EnableWindow(hWndTop, FALSE);
        }
    }
    return hWnd;
}

int AFXAPI AfxMessageBox(LPCSTR lpszText, UINT nType, UINT nIDHelp)
{
    if (s_pApp != NULL)
        return s_pApp->DoMessageBox(lpszText, nType, nIDHelp);
    return ShowMessageBox(ProgramName(), lpszText, nType);
}

int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp)
{
    CString strPrompt;
    strPrompt.LoadString(nIDPrompt);
    return AfxMessageBox(strPrompt, nType, nIDHelp == (UINT)-1 ? nIDPrompt : nIDHelp);
}

void AFXAPI AfxFormatString1(CString& rString, UINT nIDS, LPCSTR lpsz1)
{
    AfxFormatString2(rString, nIDS, lpsz1, NULL);
}

void AFXAPI AfxFormatString2(CString& rString, UINT nIDS, LPCSTR lpsz1, LPCSTR lpsz2)
{
    CString strFormat;
    strFormat.LoadString(nIDS);
    rString.Empty();
    // Walk by characters so that a trail byte of a double-byte character
    // is never taken for the '%' of a marker.
    for (LPCSTR p = strFormat; *p != '\0'; p = ::CharNextA(p)) {
        if (p[0] == '%' && (p[1] == '1' || p[1] == '2')) {
            LPCSTR lpszArg = p[1] == '1' ? lpsz1 : lpsz2;
            if (lpszArg != NULL)
                rString += lpszArg;
            p++;
            continue;
        }
        rString += CString(p, (int)(::CharNextA(p) - p));
    }
}
