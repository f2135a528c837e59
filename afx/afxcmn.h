// Controls of the system's common-controls library: the up-down control.
#pragma once

#include "afx/afxwnd.h"
#include <commctrl.h>

class AFX_EXT_CLASS CSpinButtonCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSpinButtonCtrl)
public:
    CSpinButtonCtrl();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    void SetRange(short nLower, short nUpper)
        { ::SendMessageA(m_hWnd, UDM_SETRANGE, 0, MAKELPARAM(nUpper, nLower)); }
    void GetRange(int& nLower, int& nUpper) const;
    // The old position; GetPos has an error flag in its high word when the
    // buddy's text is no valid position.
    int SetPos(int nPos) { return (short)LOWORD(::SendMessageA(m_hWnd, UDM_SETPOS, 0, MAKELPARAM(nPos, 0))); }
    int GetPos() const { return (int)::SendMessageA(m_hWnd, UDM_GETPOS, 0, 0); }
    // The window whose text shows the position; the previous one is returned.
    CWnd* SetBuddy(CWnd* pWndBuddy)
        { return CWnd::FromHandle((HWND)::SendMessageA(m_hWnd, UDM_SETBUDDY, (WPARAM)pWndBuddy->GetSafeHwnd(), 0)); }
    CWnd* GetBuddy() const { return CWnd::FromHandle((HWND)::SendMessageA(m_hWnd, UDM_GETBUDDY, 0, 0)); }
    UINT GetBase() const { return (UINT)::SendMessageA(m_hWnd, UDM_GETBASE, 0, 0); }
    int SetBase(int nBase) { return (int)::SendMessageA(m_hWnd, UDM_SETBASE, (WPARAM)nBase, 0); }
};
