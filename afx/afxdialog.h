// Dialogs from templates: CDialog, modal over the system's dialog manager,
// and dialog data exchange (DDX_ moves a value between a member and a
// control, DDV_ checks it), run by UpdateData in both directions.
#pragma once

#include "afx/afxwnd.h"

class CDataExchange;

class AFX_EXT_CLASS CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)
public:
    CDialog();   // for InitModalIndirect
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = NULL);
    explicit CDialog(LPCSTR lpszTemplateName, CWnd* pParentWnd = NULL);
    virtual ~CDialog();

    // A template in memory, kept by the caller while the dialog runs.
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = NULL);

    // Runs the dialog; the result given to EndDialog, or -1 when the
    // template cannot be found (through the resource chain) or the window
    // cannot be made. The owner is disabled while the dialog runs.
    virtual int DoModal();
    void EndDialog(int nResult);

    // Moves the values of the members into the controls (FALSE) or from the
    // controls into the members with validation (TRUE). FALSE when a
    // validation failed: the user has been told and the focus is on the field.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);

    // Called for WM_INITDIALOG: fills the controls; TRUE lets the system
    // put the focus on the first control.
    virtual BOOL OnInitDialog();

    LPCSTR m_lpszTemplateName;   // a resource name or MAKEINTRESOURCE(id)
    UINT m_nIDHelp;              // the template id, for help

protected:
    virtual void OnOK();       // IDOK: saves and validates, then ends with IDOK
    virtual void OnCancel();   // IDCANCEL: ends with IDCANCEL
    virtual void DoDataExchange(CDataExchange* pDX);
    // Control notifications are held back while UpdateData writes the controls.
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);

    // The template to run: from memory or found through the resource chain.
    LPCDLGTEMPLATE LoadTemplate(HINSTANCE* phInst) const;

    LPCDLGTEMPLATE m_lpDialogTemplate;
    CWnd* m_pParentWnd;

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};

// The dialog procedure of every dialog and page of the layer: the window's
// messages reach the object's map first, and WM_INITDIALOG ends in OnInitDialog.
AFX_EXT_API INT_PTR CALLBACK AfxDlgProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);

// ---------------------------------------------------------------------------
// Dialog data exchange
// ---------------------------------------------------------------------------

class AFX_EXT_CLASS CDataExchange
{
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate);

    BOOL m_bSaveAndValidate;   // TRUE: controls to members, with validation
    CWnd* m_pDlgWnd;           // the dialog or page

    // The control that the next exchange works on, remembered so that a
    // failed validation can return to it.
    HWND PrepareCtrl(int nIDC);
    HWND PrepareEditCtrl(int nIDC);
    // Puts the focus on the last control (selecting an edit's whole text)
    // and throws CUserException; the message has been shown before.
    void Fail();

    HWND m_hWndLastControl;
    BOOL m_bEditLastControl;
};

// Binds a control of the dialog to an object (once: the first exchange).
AFX_EXT_API void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);
// A check box's state: 0, 1, or 2 (indeterminate).
AFX_EXT_API void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value);
// An edit's text as a string, a whole number, or a number shown with 15
// significant digits. Text that is no number fails with a message.
AFX_EXT_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
AFX_EXT_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value);
AFX_EXT_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value);
// Range checks of the value just exchanged, when saving.
AFX_EXT_API void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);
AFX_EXT_API void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, double const& value, double minVal, double maxVal);
