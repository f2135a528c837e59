// CPropertyPage and CPropertySheet over the system's PropertySheet. Each
// page's template is loaded here through the resource chain and handed to
// the system in memory; the page's window, made when the page is first
// shown, is bound to its object as it is created.
#include "afx/afxprop.h"
#include "afx/afxmodule.h"
#include <string.h>

namespace {

// The system calls this just before it makes a page's window.
UINT CALLBACK PropPageCallback(HWND, UINT nMsg, LPPROPSHEETPAGEA ppsp)
{
    if (nMsg == PSPCB_CREATE)
        AfxHookWindowCreate((CPropertyPage*)ppsp->lParam);
    return TRUE;
}

void InitSheetControls()
{
    INITCOMMONCONTROLSEX icc = { sizeof(INITCOMMONCONTROLSEX), ICC_TAB_CLASSES };
    ::InitCommonControlsEx(&icc);
}

} // namespace

// ---------------------------------------------------------------------------
// CPropertyPage
// ---------------------------------------------------------------------------

IMPLEMENT_DYNAMIC(CPropertyPage, CDialog)

CPropertyPage::CPropertyPage(UINT nIDTemplate, UINT nIDCaption)
    : CDialog(nIDTemplate), m_bFirstSetActive(TRUE)
{
    memset(&m_psp, 0, sizeof(m_psp));
    m_psp.dwSize = sizeof(m_psp);
    m_psp.dwFlags = PSP_DLGINDIRECT | PSP_USECALLBACK;
    m_psp.pfnDlgProc = AfxDlgProc;
    m_psp.lParam = (LPARAM)this;
    m_psp.pfnCallback = PropPageCallback;
    if (nIDCaption != 0 && m_strCaption.LoadString(nIDCaption)) {
        m_psp.pszTitle = m_strCaption;
        m_psp.dwFlags |= PSP_USETITLE;
    }
}

CPropertyPage::~CPropertyPage() {}

BOOL CPropertyPage::OnSetActive()
{
    if (m_bFirstSetActive)
        m_bFirstSetActive = FALSE;
    else
        UpdateData(FALSE);
    return TRUE;
}

BOOL CPropertyPage::OnKillActive()
{
    return UpdateData(TRUE);
}

void CPropertyPage::OnOK() {}
void CPropertyPage::OnCancel() {}

void CPropertyPage::SetModified(BOOL bChanged)
{
    HWND hWndSheet = ::GetParent(m_hWnd);
    if (hWndSheet != NULL)
        ::SendMessageA(hWndSheet, bChanged ? PSM_CHANGED : PSM_UNCHANGED, (WPARAM)m_hWnd, 0);
}

BOOL CPropertyPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    // The page's own map comes first.
    if (CDialog::OnNotify(wParam, lParam, pResult))
        return TRUE;
    NMHDR* pNMHDR = (NMHDR*)lParam;
    if (pNMHDR->hwndFrom != m_hWnd && pNMHDR->hwndFrom != ::GetParent(m_hWnd))
        return FALSE;
    switch (pNMHDR->code) {
    case PSN_SETACTIVE:
        *pResult = OnSetActive() ? 0 : -1;
        return TRUE;
    case PSN_KILLACTIVE:
        *pResult = OnKillActive() ? FALSE : TRUE;   // TRUE keeps the page
        return TRUE;
    case PSN_APPLY:
        OnOK();
        *pResult = PSNRET_NOERROR;
        return TRUE;
    case PSN_RESET:
        OnCancel();
        return TRUE;
    default:
        return FALSE;
    }
}

// ---------------------------------------------------------------------------
// CPropertySheet
// ---------------------------------------------------------------------------

IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)

BEGIN_MESSAGE_MAP(CPropertySheet, CWnd)
    ON_MESSAGE(WM_INITDIALOG, HandleInitDialog)
END_MESSAGE_MAP()

CPropertySheet::CPropertySheet()
{
    CommonConstruct(NULL, 0);
}

CPropertySheet::CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
{
    m_strCaption.LoadString(nIDCaption);
    CommonConstruct(pParentWnd, iSelectPage);
}

CPropertySheet::CPropertySheet(LPCSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage)
    : m_strCaption(pszCaption)
{
    CommonConstruct(pParentWnd, iSelectPage);
}

void CPropertySheet::CommonConstruct(CWnd* pParentWnd, UINT iSelectPage)
{
    memset(&m_psh, 0, sizeof(m_psh));
    m_psh.dwSize = sizeof(m_psh);
    m_psh.dwFlags = PSH_PROPSHEETPAGE;
    m_psh.nStartPage = iSelectPage;
    m_pParentWnd = pParentWnd;
}

CPropertySheet::~CPropertySheet() {}

void CPropertySheet::AddPage(CPropertyPage* pPage)
{
    ASSERT(pPage != NULL);
    m_pages.Add(pPage);
}

void CPropertySheet::RemovePage(CPropertyPage* pPage)
{
    int nPage = GetPageIndex(pPage);
    if (nPage >= 0)
        m_pages.RemoveAt(nPage);
}

int CPropertySheet::GetPageIndex(CPropertyPage* pPage) const
{
    for (int i = 0; i < m_pages.GetSize(); i++) {
        if (m_pages[i] == pPage)
            return i;
    }
    return -1;
}

CPropertyPage* CPropertySheet::GetActivePage() const
{
    if (m_hWnd == NULL)
        return NULL;
    HWND hWndPage = (HWND)::SendMessageA(m_hWnd, PSM_GETCURRENTPAGEHWND, 0, 0);
    CWnd* pWnd = CWnd::FromHandlePermanent(hWndPage);
    return pWnd != NULL && pWnd->IsKindOf(RUNTIME_CLASS(CPropertyPage)) ? (CPropertyPage*)pWnd : NULL;
}

int CPropertySheet::GetActiveIndex() const
{
    if (m_hWnd == NULL)
        return (int)m_psh.nStartPage;
    return GetPageIndex(GetActivePage());
}

BOOL CPropertySheet::SetActivePage(int nPage)
{
    if (m_hWnd == NULL) {
        m_psh.nStartPage = (UINT)nPage;
        return TRUE;
    }
    return (BOOL)::SendMessageA(m_hWnd, PSM_SETCURSEL, (WPARAM)nPage, 0);
}

void CPropertySheet::SetTitle(LPCSTR lpszText, UINT nStyle)
{
    m_strCaption = lpszText;
    m_psh.dwFlags = (m_psh.dwFlags & ~PSH_PROPTITLE) | (nStyle & PSH_PROPTITLE);
    if (m_hWnd != NULL)
        ::SendMessageA(m_hWnd, PSM_SETTITLEA, nStyle, (LPARAM)lpszText);
}

int CPropertySheet::DoModal()
{
    InitSheetControls();
    // The system takes a copy of each page's record as it stands now, with
    // the template that the resource chain finds for it.
    const int nPages = GetPageCount();
    PROPSHEETPAGEA* pPages = new PROPSHEETPAGEA[nPages > 0 ? nPages : 1];
    for (int i = 0; i < nPages; i++) {
        CPropertyPage* pPage = m_pages[i];
        HINSTANCE hInst;
        pPage->m_psp.pResource = pPage->LoadTemplate(&hInst);
        pPage->m_psp.hInstance = hInst;
        if (m_psh.dwFlags & PSH_HASHELP)
            pPage->m_psp.dwFlags |= PSP_HASHELP;
        pPage->m_bFirstSetActive = TRUE;
        pPages[i] = pPage->m_psp;
    }
    m_psh.dwFlags |= PSH_PROPSHEETPAGE;
    m_psh.dwFlags &= ~PSH_MODELESS;
    m_psh.ppsp = pPages;
    m_psh.nPages = (UINT)nPages;
    m_psh.pszCaption = m_strCaption;
    m_psh.hInstance = AfxGetResourceHandle();

    HWND hWndTop = NULL;
    m_psh.hwndParent = GetSafeOwner_(m_pParentWnd != NULL ? m_pParentWnd->GetSafeHwnd() : NULL, &hWndTop);
    // The first window the system makes is the sheet.
    AfxHookWindowCreate(this);
    INT_PTR nResult = ::PropertySheetA(&m_psh);
    AfxUnhookWindowCreate();
    if (hWndTop != NULL)
        ::EnableWindow(hWndTop, TRUE);

    m_psh.ppsp = NULL;
    delete[] pPages;
    // The system answers a positive number when OK closed the sheet and all
    // pages accepted it, 0 when it was cancelled or closed.
    if (nResult < 0)
        return -1;
    return nResult > 0 ? IDOK : IDCANCEL;
}

LRESULT CPropertySheet::HandleInitDialog(WPARAM, LPARAM)
{
    return OnInitDialog();
}

BOOL CPropertySheet::OnInitDialog()
{
    // The system builds the tabs, the buttons and the first page.
    return (BOOL)Default();
}
