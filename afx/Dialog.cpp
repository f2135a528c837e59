// CDialog: templates through the resource chain, the modal run over the
// system's dialog manager, initialisation and UpdateData.
#include "afx/afxdialog.h"
#include "afx/afxmodule.h"

namespace {

// The dialog whose controls UpdateData is writing: their notifications are
// not handled meanwhile.
thread_local HWND t_hWndLockoutNotify = NULL;

} // namespace

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, OnOK)
    ON_COMMAND(IDCANCEL, OnCancel)
    ON_MESSAGE(WM_INITDIALOG, HandleInitDialog)
END_MESSAGE_MAP()

CDialog::CDialog()
    : m_lpszTemplateName(NULL), m_nIDHelp(0), m_lpDialogTemplate(NULL), m_pParentWnd(NULL)
{
}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd)
    : m_lpszTemplateName(MAKEINTRESOURCEA(nIDTemplate)), m_nIDHelp(nIDTemplate),
      m_lpDialogTemplate(NULL), m_pParentWnd(pParentWnd)
{
}

CDialog::CDialog(LPCSTR lpszTemplateName, CWnd* pParentWnd)
    : m_lpszTemplateName(lpszTemplateName), m_nIDHelp(0), m_lpDialogTemplate(NULL),
      m_pParentWnd(pParentWnd)
{
    if (IS_INTRESOURCE(lpszTemplateName))
        m_nIDHelp = (UINT)(UINT_PTR)lpszTemplateName;
}

CDialog::~CDialog() {}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd)
{
    m_lpDialogTemplate = lpDialogTemplate;
    m_lpszTemplateName = NULL;
    m_pParentWnd = pParentWnd;
    return lpDialogTemplate != NULL;
}

LPCDLGTEMPLATE CDialog::LoadTemplate(HINSTANCE* phInst) const
{
    *phInst = AfxGetResourceHandle();
    if (m_lpszTemplateName == NULL)
        return m_lpDialogTemplate;
    // Satellites and libraries of the chain first; the resource of a loaded
    // module needs no freeing.
    HINSTANCE hInst = AfxFindResourceHandle(m_lpszTemplateName, (LPCSTR)RT_DIALOG);
    HRSRC hResource = ::FindResourceA(hInst, m_lpszTemplateName, (LPCSTR)RT_DIALOG);
    HGLOBAL hTemplate = hResource != NULL ? ::LoadResource(hInst, hResource) : NULL;
    *phInst = hInst;
    return hTemplate != NULL ? (LPCDLGTEMPLATE)::LockResource(hTemplate) : NULL;
}

int CDialog::DoModal()
{
    HINSTANCE hInst;
    LPCDLGTEMPLATE lpTemplate = LoadTemplate(&hInst);
    if (lpTemplate == NULL)
        return -1;
    HWND hWndTop = NULL;
    HWND hWndOwner = GetSafeOwner_(m_pParentWnd != NULL ? m_pParentWnd->GetSafeHwnd() : NULL, &hWndTop);
    // The system's modal loop disables the owner; the window it makes first
    // is the dialog, bound to this object before its first message.
    AfxHookWindowCreate(this);
    INT_PTR nResult = ::DialogBoxIndirectParamA(hInst, lpTemplate, hWndOwner, AfxDlgProc, 0);
    AfxUnhookWindowCreate();
    if (hWndTop != NULL)
        ::EnableWindow(hWndTop, TRUE);
    return (int)nResult;
}

void CDialog::EndDialog(int nResult)
{
    ::EndDialog(m_hWnd, nResult);
}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM)
{
    // The dialog manager answers WM_INITDIALOG by calling AfxDlgProc, which
    // calls OnInitDialog.
    return Default();
}

BOOL CDialog::OnInitDialog()
{
    UpdateData(FALSE);
    return TRUE;
}

void CDialog::OnOK()
{
    if (!UpdateData(TRUE))
        return;   // the user has been told and is back on the field
    EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

void CDialog::DoDataExchange(CDataExchange*) {}

BOOL CDialog::UpdateData(BOOL bSaveAndValidate)
{
    CDataExchange dx(this, bSaveAndValidate);
    HWND hWndOldLockout = t_hWndLockoutNotify;
    t_hWndLockoutNotify = m_hWnd;
    BOOL bOK = FALSE;
    try {
        DoDataExchange(&dx);
        bOK = TRUE;
    } catch (CUserException* e) {
        e->Delete();   // a validation failed; the message is shown already
    } catch (...) {
        t_hWndLockoutNotify = hWndOldLockout;
        throw;
    }
    t_hWndLockoutNotify = hWndOldLockout;
    return bOK;
}

BOOL CDialog::OnCommand(WPARAM wParam, LPARAM lParam)
{
    if (lParam != 0 && t_hWndLockoutNotify == m_hWnd)
        return TRUE;
    return CWnd::OnCommand(wParam, lParam);
}

INT_PTR CALLBACK AfxDlgProc(HWND hWnd, UINT nMsg, WPARAM, LPARAM)
{
    if (nMsg != WM_INITDIALOG)
        return FALSE;
    CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
    CDialog* pDlg = pWnd != NULL && pWnd->IsKindOf(RUNTIME_CLASS(CDialog)) ? (CDialog*)pWnd : NULL;
    if (pDlg == NULL)
        return TRUE;
    // Nothing thrown may cross the system's dialog manager.
    try {
        return pDlg->OnInitDialog();
    } catch (CException* e) {
        TRACE("AfxDlgProc: exception in OnInitDialog\n");
        e->Delete();
    } catch (...) {
        TRACE("AfxDlgProc: unknown exception in OnInitDialog\n");
    }
    return TRUE;
}
