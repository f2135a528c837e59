// Controls of the system's common-controls library.
#include "afx/afxcmn.h"

IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)

CSpinButtonCtrl::CSpinButtonCtrl() {}

BOOL CSpinButtonCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    INITCOMMONCONTROLSEX icc = { sizeof(INITCOMMONCONTROLSEX), ICC_UPDOWN_CLASS };
    ::InitCommonControlsEx(&icc);
    return CWnd::Create(UPDOWN_CLASSA, NULL, dwStyle, rect, pParentWnd, nID);
}

void CSpinButtonCtrl::GetRange(int& nLower, int& nUpper) const
{
    DWORD dwRange = (DWORD)::SendMessageA(m_hWnd, UDM_GETRANGE, 0, 0);
    nLower = (short)HIWORD(dwRange);
    nUpper = (short)LOWORD(dwRange);
}
