// CColorDialog and CFontDialog over ChooseColor and ChooseFont.
#include "afx/afxdlgs.h"
#include <string.h>

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)
IMPLEMENT_DYNAMIC(CColorDialog, CCommonDialog)
IMPLEMENT_DYNAMIC(CFontDialog, CCommonDialog)

CCommonDialog::CCommonDialog(CWnd* pParentWnd)
{
    m_pParentWnd = pParentWnd;
}

void CCommonDialog::OnOK()
{
    if (!UpdateData(TRUE))
        return;
    Default();
}

void CCommonDialog::OnCancel()
{
    Default();
}

HWND CCommonDialog::PreModal() const
{
    HWND hWnd = m_pParentWnd != NULL ? m_pParentWnd->GetSafeHwnd() : NULL;
    return hWnd != NULL ? ::GetAncestor(hWnd, GA_ROOT) : NULL;
}

// --- CColorDialog -------------------------------------------------------------

CColorDialog::CColorDialog(COLORREF clrInit, DWORD dwFlags, CWnd* pParentWnd) : CCommonDialog(pParentWnd)
{
    memset(&m_cc, 0, sizeof(m_cc));
    m_cc.lStructSize = sizeof(m_cc);
    m_cc.lpCustColors = GetSavedCustomColors();
    m_cc.Flags = dwFlags | CC_ENABLEHOOK;
    m_cc.lpfnHook = AfxCommDlgProc;
    if ((m_cc.rgbResult = clrInit) != 0)
        m_cc.Flags |= CC_RGBINIT;
}

COLORREF* PASCAL CColorDialog::GetSavedCustomColors()
{
    static COLORREF s_crCustom[16] = {
        RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255),
        RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255),
        RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255),
        RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255),
    };
    return s_crCustom;
}

void CColorDialog::SetCurrentColor(COLORREF clr)
{
    m_cc.rgbResult = clr;
    m_cc.Flags |= CC_RGBINIT;
}

int CColorDialog::DoModal()
{
    m_cc.hwndOwner = PreModal();
    // The first window the system makes is the dialog: it is bound to this
    // object before its first message, as a CDialog's is.
    AfxHookWindowCreate(this);
    const BOOL bOK = ::ChooseColorA(&m_cc);
    AfxUnhookWindowCreate();
    return bOK ? IDOK : IDCANCEL;
}

UINT_PTR CALLBACK AfxCommDlgProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    // The window procedure of the bound dialog has run the object's map
    // already; the system's dialog goes on with everything but the start.
    if (nMsg == WM_INITDIALOG)
        return (UINT_PTR)AfxDlgProc(hWnd, nMsg, wParam, lParam);
    return 0;
}

// --- CFontDialog --------------------------------------------------------------

CFontDialog::CFontDialog(LPLOGFONT lplfInitial, DWORD dwFlags, CDC* pdcPrinter, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd)
{
    memset(&m_cf, 0, sizeof(m_cf));
    memset(&m_lf, 0, sizeof(m_lf));
    memset(m_szStyleName, 0, sizeof(m_szStyleName));
    m_cf.lStructSize = sizeof(m_cf);
    m_cf.lpszStyle = m_szStyleName;
    m_cf.Flags = dwFlags;
    if (lplfInitial != NULL) {
        m_cf.lpLogFont = lplfInitial;
        m_cf.Flags |= CF_INITTOLOGFONTSTRUCT;
        m_lf = *lplfInitial;
    } else {
        m_cf.lpLogFont = &m_lf;
    }
    if (pdcPrinter != NULL) {
        m_cf.hDC = pdcPrinter->m_hAttribDC;
        m_cf.Flags |= CF_PRINTERFONTS;
    }
}

int CFontDialog::DoModal()
{
    m_cf.hwndOwner = PreModal();
    if (!::ChooseFontA(&m_cf))
        return IDCANCEL;
    if (m_cf.lpLogFont != NULL)
        m_lf = *m_cf.lpLogFont;
    return IDOK;
}

void CFontDialog::GetCurrentFont(LPLOGFONT lplf)
{
    // Only a dialog of the layer's own would have a window here; the
    // system's dialog is gone when DoModal returns.
    if (m_hWnd != NULL)
        ::SendMessageA(m_hWnd, WM_CHOOSEFONT_GETLOGFONT, 0, (LPARAM)lplf);
    else
        *lplf = m_lf;
}
