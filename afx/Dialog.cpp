// CDialog: templates through the resource chain, the modal run over the
// system's dialog manager, initialisation (with the entries of the template's data) and UpdateData.
#include "afx/afxdialog.h"
#include "afx/afxmodule.h"
#include <string.h>

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
        // List and combo box entries of the template come before the
        // dialog's own initialisation.
        if (pDlg->m_lpszTemplateName != NULL)
            pDlg->ExecuteDlgInit(pDlg->m_lpszTemplateName);
        return pDlg->OnInitDialog();
    } catch (CException* e) {
        TRACE("AfxDlgProc: exception in OnInitDialog\n");
        e->Delete();
    } catch (...) {
        TRACE("AfxDlgProc: unknown exception in OnInitDialog\n");
    }
    return TRUE;
}

// ---------------------------------------------------------------------------
// Initialisation data of a template
// ---------------------------------------------------------------------------

namespace {

// Message codes of the data, as the resource compiler writes them.
const WORD DLGINIT_LB_ADDSTRING = 0x0401;
const WORD DLGINIT_CB_ADDSTRING = 0x0403;

} // namespace

BOOL CWnd::ExecuteDlgInit(LPCSTR lpszResourceName)
{
    HINSTANCE hInst = AfxFindResourceHandle(lpszResourceName, RT_DLGINIT);
    HRSRC hResource = ::FindResourceA(hInst, lpszResourceName, RT_DLGINIT);
    if (hResource == NULL)
        return TRUE;   // a template without entries
    HGLOBAL hData = ::LoadResource(hInst, hResource);
    const BYTE* pData = hData != NULL ? (const BYTE*)::LockResource(hData) : NULL;
    if (pData == NULL)
        return FALSE;
    return ExecuteDlgInit(pData, ::SizeofResource(hInst, hResource));
}

BOOL CWnd::ExecuteDlgInit(const void* lpResource, DWORD dwSize)
{
    // Records of control id, message, length and text, ended by an id of 0.
    // The texts are UTF-8, as the resource compiler keeps a narrow string,
    // and reach the control as wide text, whatever the code page.
    const BYTE* p = (const BYTE*)lpResource;
    const BYTE* pEnd = p + dwSize;
    const size_t nHeader = 2 * sizeof(WORD) + sizeof(DWORD);
    while ((size_t)(pEnd - p) >= sizeof(WORD)) {
        WORD nIDC, nMsg;
        DWORD nLen;
        memcpy(&nIDC, p, sizeof(WORD));
        if (nIDC == 0)
            return TRUE;
        if ((size_t)(pEnd - p) < nHeader)
            return FALSE;
        memcpy(&nMsg, p + 2, sizeof(WORD));
        memcpy(&nLen, p + 4, sizeof(DWORD));
        p += nHeader;
        if (nLen > (DWORD)(pEnd - p))
            return FALSE;
        UINT nMessage = nMsg == DLGINIT_LB_ADDSTRING ? LB_ADDSTRING : nMsg == DLGINIT_CB_ADDSTRING ? CB_ADDSTRING : 0;
        HWND hWndCtrl = ::GetDlgItem(m_hWnd, nIDC);
        if (nMessage != 0 && hWndCtrl != NULL) {
            const int nBytes = (int)strnlen((const char*)p, nLen);
            const int nWide = ::MultiByteToWideChar(CP_UTF8, 0, (const char*)p, nBytes, NULL, 0);
            WCHAR* pszText = new WCHAR[nWide + 1];
            ::MultiByteToWideChar(CP_UTF8, 0, (const char*)p, nBytes, pszText, nWide);
            pszText[nWide] = 0;
            const LRESULT nResult = ::SendMessageW(hWndCtrl, nMessage, 0, (LPARAM)pszText);
            delete[] pszText;
            if (nResult == LB_ERR || nResult == LB_ERRSPACE)
                return FALSE;
        }
        p += nLen;
    }
    return TRUE;
}
