// The sheet and page frame: the question mark in the title bar, and context
// help for a control asked by right click or F1, handed to the host.
#include "sheet/BasePropSheet.h"
#include "afx/afxapp.h"

namespace {

// Hands the help record of a control to the host's application object.
void HandToHost(DWORD dwCtrlId, DWORD dwHelpId, HWND hWndCtrl, UINT nCmd)
{
    CTRL_HELP_RECORD record = { dwCtrlId, dwHelpId, 0, (DWORD)(DWORD_PTR)hWndCtrl };
    CWinApp* pApp = AfxGetApp();
    if (pApp != NULL)
        pApp->WinHelp((DWORD_PTR)&record, nCmd);
}

// Context menu help for a control, when it has a help id.
void ContextHelpFor(HWND hWndCtrl)
{
    const DWORD dwHelpId = ::GetWindowContextHelpId(hWndCtrl);
    if ((int)dwHelpId <= 0)
        return;
    HandToHost((DWORD)::GetDlgCtrlID(hWndCtrl), dwHelpId, hWndCtrl, HELP_CONTEXTMENU);
}

} // namespace

void SetCtrlHelpId(CWnd* pDlg, int nCtrlId, DWORD dwHelpId)
{
    HWND hWndCtrl = ::GetDlgItem(pDlg->GetSafeHwnd(), nCtrlId);
    if (hWndCtrl != NULL)
        ::SetWindowContextHelpId(hWndCtrl, dwHelpId);
}

// ---------------------------------------------------------------------------
// CBasePropSheet
// ---------------------------------------------------------------------------

IMPLEMENT_DYNAMIC(CBasePropSheet, CPropertySheet)

BEGIN_MESSAGE_MAP(CBasePropSheet, CPropertySheet)
    ON_WM_CONTEXTMENU()
    ON_WM_HELPINFO()
END_MESSAGE_MAP()

CBasePropSheet::CBasePropSheet(LPCSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(pszCaption, pParentWnd, iSelectPage)
{
}

CBasePropSheet::CBasePropSheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(nIDCaption, pParentWnd, iSelectPage)
{
}

BOOL CBasePropSheet::OnInitDialog()
{
    const BOOL bResult = CPropertySheet::OnInitDialog();
    // The question mark shows only without the modal frame; the caption is
    // drawn anew with it.
    ModifyStyleEx(WS_EX_DLGMODALFRAME, WS_EX_CONTEXTHELP, SWP_FRAMECHANGED);
    return bResult;
}

void CBasePropSheet::OnContextMenu(CWnd* pWnd, CPoint)
{
    if (pWnd != NULL && pWnd->m_hWnd != m_hWnd)
        ContextHelpFor(pWnd->m_hWnd);
}

BOOL CBasePropSheet::OnHelpInfo(HELPINFO* pHelpInfo)
{
    if (pHelpInfo->iContextType != HELPINFO_WINDOW)
        return CPropertySheet::OnHelpInfo(pHelpInfo);
    if (pHelpInfo->dwContextId == 0)
        return FALSE;
    HandToHost((DWORD)pHelpInfo->iCtrlId, (DWORD)pHelpInfo->dwContextId, (HWND)pHelpInfo->hItemHandle, HELP_WM_HELP);
    return TRUE;
}

// ---------------------------------------------------------------------------
// CBasePropPage
// ---------------------------------------------------------------------------

IMPLEMENT_DYNAMIC(CBasePropPage, CPropertyPage)

BEGIN_MESSAGE_MAP(CBasePropPage, CPropertyPage)
    ON_WM_CONTEXTMENU()
END_MESSAGE_MAP()

CBasePropPage::CBasePropPage(UINT nIDTemplate) : CPropertyPage(nIDTemplate) {}

void CBasePropPage::DoDataExchange(CDataExchange*) {}

void CBasePropPage::OnContextMenu(CWnd*, CPoint point)
{
    // Disabled and hidden controls count: only transparent ones are skipped.
    CPoint ptClient = point;
    ::ScreenToClient(m_hWnd, &ptClient);
    HWND hWndChild = ::ChildWindowFromPointEx(m_hWnd, ptClient, CWP_SKIPTRANSPARENT);
    if (hWndChild == NULL || hWndChild == m_hWnd)
        return;
    ContextHelpFor(hWndChild);
}
