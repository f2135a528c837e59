// The application object of the host: its name, main window and help file,
// the road by which context help and message boxes reach the host. A host
// that derives from CWinApp and overrides WinHelp or DoMessageBox receives
// every help request and message of the layer and the library.
#pragma once

#include "afx/afxwnd.h"

class AFX_EXT_CLASS CWinApp : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinApp)
public:
    // The one application object of the process; constructing it makes it
    // the one that AfxGetApp returns until it is destroyed.
    explicit CWinApp(LPCSTR lpszAppName = NULL);
    virtual ~CWinApp();

    LPCSTR m_pszAppName;        // caption of message boxes; the program's name when null
    LPCSTR m_pszHelpFilePath;   // the help file that WinHelp opens; none when null
    CWnd* m_pMainWnd;           // owner of modal windows that name no parent

    // Context help: nCmd is a HELP_ command of the system, dwData its
    // argument. Without a help file nothing happens.
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);
    // Shows a message for AfxMessageBox; the button pressed.
    virtual int DoMessageBox(LPCSTR lpszPrompt, UINT nType, UINT nIDPrompt);
};

// The host's application object, or null when the host has none.
AFX_EXT_API CWinApp* AFXAPI AfxGetApp();
AFX_EXT_API CWnd* AFXAPI AfxGetMainWnd();

// A message box over the window that has the user's attention, through the
// application object when there is one. The prompt by id is loaded through
// the resource chain.
AFX_EXT_API int AFXAPI AfxMessageBox(LPCSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
AFX_EXT_API int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = (UINT)-1);
// A string resource with %1 (and %2) replaced by the arguments.
AFX_EXT_API void AFXAPI AfxFormatString1(CString& rString, UINT nIDS, LPCSTR lpsz1);
AFX_EXT_API void AFXAPI AfxFormatString2(CString& rString, UINT nIDS, LPCSTR lpsz1, LPCSTR lpsz2);
