// The frame of the graph's property sheets: a sheet with the question mark
// in its title bar and pages whose controls carry context help ids. Help
// for a control reaches the host through its CWinApp::WinHelp with a
// CTRL_HELP_RECORD; a host without an application object gets nothing.
#pragma once

#include "afx/afxprop.h"

// What WinHelp receives as dwData for HELP_CONTEXTMENU and HELP_WM_HELP:
// the address of four DWORDs.
struct CTRL_HELP_RECORD
{
    DWORD dwCtrlId;    // dialog id of the control
    DWORD dwHelpId;    // its context help id
    DWORD dwReserved;  // always 0
    DWORD dwWindow;    // handle of the control
};

// Gives control nCtrlId of pDlg the context help id dwHelpId.
AFX_EXT_API void SetCtrlHelpId(CWnd* pDlg, int nCtrlId, DWORD dwHelpId);

// A page's controls and their help ids, given all at once.
struct CTRL_HELP_ID
{
    int nCtrlId;
    DWORD dwHelpId;
};
template <int N>
void SetCtrlHelpIds(CWnd* pDlg, const CTRL_HELP_ID (&ids)[N])
{
    for (const CTRL_HELP_ID& id : ids)
        SetCtrlHelpId(pDlg, id.nCtrlId, id.dwHelpId);
}

class AFX_EXT_CLASS CBasePropSheet : public CPropertySheet
{
    DECLARE_DYNAMIC(CBasePropSheet)
public:
    explicit CBasePropSheet(LPCSTR pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    explicit CBasePropSheet(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);

    virtual BOOL OnInitDialog();

protected:
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
    afx_msg BOOL OnHelpInfo(HELPINFO* pHelpInfo);
    DECLARE_MESSAGE_MAP()
};

class AFX_EXT_CLASS CBasePropPage : public CPropertyPage
{
    DECLARE_DYNAMIC(CBasePropPage)
public:
    explicit CBasePropPage(UINT nIDTemplate);

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
    DECLARE_MESSAGE_MAP()
};
