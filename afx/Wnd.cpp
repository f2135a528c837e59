// CWnd: binding objects to windows, creation through a thread's CBT hook
// (which subclasses the new window), the window procedure and message-map
// dispatch, reflection of control notifications, and window classes.
#include "afx/afxwnd.h"
#include "afx/afxmodule.h"
#include <stdio.h>
#include <string.h>

namespace {

const char s_szPropWnd[] = "ZPXAfxWnd";   // window property holding the CWnd*

thread_local CWnd* t_pWndInit = NULL;     // object waiting for the window being created
thread_local HHOOK t_hHookCbt = NULL;
thread_local MSG t_lastSentMsg = {};      // the message being dispatched

// Temporary objects for foreign windows: a small ring per thread, each slot
// reused by a later call. Detached before destruction so that no foreign
// window is ever destroyed by them.
class CTempWnd : public CWnd
{
public:
    ~CTempWnd() { m_hWnd = NULL; }
};
thread_local CTempWnd t_tempWnds[8];
thread_local int t_nNextTemp = 0;

// DestroyWindow watches for the WM_NCDESTROY of its own object: after it the
// object is unbound and may have deleted itself in PostNcDestroy, so it must
// not be touched any more. Nested calls each have their own record.
struct DestroyWatch
{
    CWnd* pWnd;
    bool bNcDestroyed;
    DestroyWatch* pPrev;
};
thread_local DestroyWatch* t_pDestroyWatch = NULL;

// What a window procedure answers after a handler threw: a window that fails
// in WM_CREATE is not made, and a failed WM_PAINT validates the window, or
// the system would send WM_PAINT again for ever.
LRESULT ResultAfterException(HWND hWnd, UINT nMsg)
{
    if (nMsg == WM_CREATE)
        return -1;
    if (nMsg == WM_PAINT)
        ::ValidateRect(hWnd, NULL);
    return 0;
}

// The input method may make a window of its own while another is created;
// the creation hook leaves it alone.
bool IsImeWindow(HWND hWnd)
{
    if (::GetClassLongA(hWnd, GCL_STYLE) & CS_IME)
        return true;
    char szClass[8];
    return ::GetClassNameA(hWnd, szClass, sizeof(szClass)) > 0 && lstrcmpiA(szClass, "ime") == 0;
}

} // namespace

// ---------------------------------------------------------------------------
// CCmdTarget
// ---------------------------------------------------------------------------

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

CCmdTarget::CCmdTarget() {}
CCmdTarget::~CCmdTarget() {}

const AFX_MSGMAP* PASCAL CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY _messageEntries[] = { { 0, 0, 0, 0, AfxSig_end, (AFX_PMSG)0 } };
    static const AFX_MSGMAP messageMap = { NULL, &_messageEntries[0] };
    return &messageMap;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

const AFX_MSGMAP_ENTRY* PASCAL CCmdTarget::FindMessageEntry(const AFX_MSGMAP_ENTRY* lpEntry,
                                                            UINT nMsg, UINT nCode, UINT nID)
{
    for (; lpEntry->nSig != AfxSig_end; ++lpEntry) {
        if (lpEntry->nMessage == nMsg && lpEntry->nCode == nCode &&
            nID >= lpEntry->nID && nID <= lpEntry->nLastID)
            return lpEntry;
    }
    return NULL;
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, void*)
{
    // A notification or a reflected message carries its message in the high
    // word of the code; a plain command or control notification has none.
    UINT nMsg = HIWORD((DWORD)nCode);
    nCode = LOWORD((DWORD)nCode);
    if (nMsg == 0)
        nMsg = WM_COMMAND;
    for (const AFX_MSGMAP* pMap = GetMessageMap(); pMap != NULL;
         pMap = pMap->pfnGetBaseMap != NULL ? pMap->pfnGetBaseMap() : NULL) {
        const AFX_MSGMAP_ENTRY* lpEntry = FindMessageEntry(pMap->lpEntries, nMsg, (UINT)nCode, nID);
        if (lpEntry == NULL)
            continue;
        switch (lpEntry->nSig) {
        case AfxSig_vv:
            (this->*lpEntry->pfn)();
            return TRUE;
        case AfxSig_vwv:
            (this->*reinterpret_cast<void (CCmdTarget::*)(UINT)>(lpEntry->pfn))(nID);
            return TRUE;
        case AfxSig_vNMHDRpl: {
            AFX_NOTIFY* pNotify = (AFX_NOTIFY*)pExtra;
            (this->*reinterpret_cast<void (CCmdTarget::*)(NMHDR*, LRESULT*)>(lpEntry->pfn))(
                pNotify->pNMHDR, pNotify->pResult);
            return TRUE;
        }
        default:
            return FALSE;
        }
    }
    return FALSE;
}

// ---------------------------------------------------------------------------
// CWnd: objects and windows
// ---------------------------------------------------------------------------

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_NCDESTROY()
    ON_WM_CTLCOLOR()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
END_MESSAGE_MAP()

CWnd::CWnd() : m_hWnd(NULL), m_pfnSuper(NULL) {}

CWnd::~CWnd()
{
    if (m_hWnd != NULL && ::IsWindow(m_hWnd) && FromHandlePermanent(m_hWnd) == this)
        DestroyWindow();
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND hWnd)
{
    if (hWnd == NULL)
        return NULL;
    return (CWnd*)::GetPropA(hWnd, s_szPropWnd);
}

CWnd* PASCAL CWnd::FromHandle(HWND hWnd)
{
    if (hWnd == NULL)
        return NULL;
    CWnd* pWnd = FromHandlePermanent(hWnd);
    if (pWnd != NULL)
        return pWnd;
    CTempWnd& temp = t_tempWnds[t_nNextTemp];
    t_nNextTemp = (t_nNextTemp + 1) % 8;
    temp.m_hWnd = hWnd;
    return &temp;
}

BOOL CWnd::Attach(HWND hWndNew)
{
    // An object stands for one window: a second one is refused, or the
    // first would lose its object while still sending it messages.
    if (m_hWnd != NULL || hWndNew == NULL)
        return FALSE;
    m_hWnd = hWndNew;
    ::SetPropA(hWndNew, s_szPropWnd, (HANDLE)this);
    return TRUE;
}

HWND CWnd::Detach()
{
    HWND hWnd = m_hWnd;
    if (hWnd != NULL && FromHandlePermanent(hWnd) == this)
        ::RemovePropA(hWnd, s_szPropWnd);
    m_hWnd = NULL;
    return hWnd;
}

BOOL CWnd::SubclassWindow(HWND hWnd)
{
    if (!Attach(hWnd))
        return FALSE;
    PreSubclassWindow();
    WNDPROC oldWndProc = (WNDPROC)::SetWindowLongPtrA(hWnd, GWLP_WNDPROC, (LONG_PTR)AfxWndProc);
    if (oldWndProc != AfxWndProc)
        m_pfnSuper = oldWndProc;
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent)
{
    HWND hWndControl = ::GetDlgItem(pParent->m_hWnd, (int)nID);
    return hWndControl != NULL && SubclassWindow(hWndControl);
}

HWND CWnd::UnsubclassWindow()
{
    if (m_pfnSuper != NULL)
        ::SetWindowLongPtrA(m_hWnd, GWLP_WNDPROC, (LONG_PTR)m_pfnSuper);
    m_pfnSuper = NULL;
    return Detach();
}

LRESULT CALLBACK AfxCbtFilterHook(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == HCBT_CREATEWND && t_pWndInit != NULL && !IsImeWindow((HWND)wParam)) {
        // The first window made after CreateEx armed the hook is its window.
        // An object that has a window already refuses it, and a nonzero
        // answer makes the system abandon the creation.
        CWnd* pWnd = t_pWndInit;
        t_pWndInit = NULL;
        if (!pWnd->SubclassWindow((HWND)wParam))
            return 1;
    }
    return ::CallNextHookEx(t_hHookCbt, code, wParam, lParam);
}

void AFXAPI AfxHookWindowCreate(CWnd* pWnd)
{
    if (t_hHookCbt == NULL)
        t_hHookCbt = ::SetWindowsHookExA(WH_CBT, AfxCbtFilterHook, NULL, ::GetCurrentThreadId());
    t_pWndInit = pWnd;
}

BOOL AFXAPI AfxUnhookWindowCreate()
{
    if (t_hHookCbt != NULL) {
        ::UnhookWindowsHookEx(t_hHookCbt);
        t_hHookCbt = NULL;
    }
    BOOL bBound = t_pWndInit == NULL;
    t_pWndInit = NULL;
    return bBound;
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle,
                    int x, int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu,
                    LPVOID lpParam)
{
    CREATESTRUCT cs;
    cs.dwExStyle = dwExStyle;
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = (LONG)dwStyle;
    cs.x = x;
    cs.y = y;
    cs.cx = nWidth;
    cs.cy = nHeight;
    cs.hwndParent = hWndParent;
    cs.hMenu = nIDorHMenu;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = lpParam;
    // A second window for an object that has one is refused before anything
    // is made; the object and its window stay as they are.
    if (m_hWnd != NULL)
        return FALSE;
    if (!PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }

    HHOOK hOldHook = t_hHookCbt;
    CWnd* pOldInit = t_pWndInit;
    t_hHookCbt = ::SetWindowsHookExA(WH_CBT, AfxCbtFilterHook, NULL, ::GetCurrentThreadId());
    t_pWndInit = this;
    HWND hWnd = ::CreateWindowExA(cs.dwExStyle, cs.lpszClass, cs.lpszName, (DWORD)cs.style,
                                  cs.x, cs.y, cs.cx, cs.cy, cs.hwndParent, cs.hMenu,
                                  cs.hInstance, cs.lpCreateParams);
    // The hook clears t_pWndInit when it binds the window to this object.
    BOOL bBound = t_pWndInit != this;
    if (t_hHookCbt != NULL)
        ::UnhookWindowsHookEx(t_hHookCbt);
    t_hHookCbt = hOldHook;
    t_pWndInit = pOldInit;

    if (hWnd == NULL) {
        // A window that failed in WM_NCCREATE or WM_CREATE was bound and has
        // been destroyed again: its WM_NCDESTROY unbound this object and ran
        // PostNcDestroy, after which the object may be gone. A window that
        // the hook refused leaves the object bound to its first window. A
        // window that was never made gets the final clean-up here.
        if (!bBound)
            PostNcDestroy();
        return FALSE;
    }
    ASSERT(hWnd == m_hWnd);
    return TRUE;
}

BOOL CWnd::Create(LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, CCreateContext*)
{
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD,
                    rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                    pParentWnd != NULL ? pParentWnd->m_hWnd : NULL, (HMENU)(UINT_PTR)nID, NULL);
}

BOOL CWnd::DestroyWindow()
{
    if (m_hWnd == NULL)
        return FALSE;
    HWND hWnd = m_hWnd;
    DestroyWatch watch = { this, false, t_pDestroyWatch };
    t_pDestroyWatch = &watch;
    BOOL bResult = ::DestroyWindow(hWnd);
    t_pDestroyWatch = watch.pPrev;
    // After its WM_NCDESTROY the object may have deleted itself. A window
    // bound without our procedure never sees WM_NCDESTROY: unbind it here.
    if (!watch.bNcDestroyed && m_hWnd == hWnd)
        Detach();
    return bResult;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT&)
{
    return TRUE;
}

void CWnd::PreSubclassWindow() {}
void CWnd::PostNcDestroy() {}

namespace {

BOOL ModifyWindowLong(HWND hWnd, int nIndex, DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    DWORD dwStyle = (DWORD)::GetWindowLongA(hWnd, nIndex);
    DWORD dwNewStyle = (dwStyle & ~dwRemove) | dwAdd;
    if (dwStyle == dwNewStyle)
        return FALSE;
    ::SetWindowLongA(hWnd, nIndex, (LONG)dwNewStyle);
    if (nFlags != 0)
        ::SetWindowPos(hWnd, NULL, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | nFlags);
    return TRUE;
}

} // namespace

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ModifyWindowLong(m_hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ModifyWindowLong(m_hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

void CWnd::ClientToScreen(LPRECT lpRect) const
{
    ::ClientToScreen(m_hWnd, (LPPOINT)lpRect);
    ::ClientToScreen(m_hWnd, ((LPPOINT)lpRect) + 1);
}

void CWnd::ScreenToClient(LPRECT lpRect) const
{
    ::ScreenToClient(m_hWnd, (LPPOINT)lpRect);
    ::ScreenToClient(m_hWnd, ((LPPOINT)lpRect) + 1);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const
{
    ::MapWindowPoints(m_hWnd, pwndTo != NULL ? pwndTo->m_hWnd : NULL, lpPoint, nCount);
}

BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags)
{
    return ::SetWindowPos(m_hWnd, pWndInsertAfter != NULL ? pWndInsertAfter->m_hWnd : NULL,
                          x, y, cx, cy, nFlags);
}

void CWnd::GetWindowText(CString& rString) const
{
    int nLen = ::GetWindowTextLengthA(m_hWnd);
    ::GetWindowTextA(m_hWnd, rString.GetBufferSetLength(nLen), nLen + 1);
    rString.ReleaseBuffer();
}

CDC* CWnd::GetDC()
{
    CDC* pDC = new CDC;
    if (!pDC->Attach(::GetDC(m_hWnd))) {
        delete pDC;
        return NULL;
    }
    return pDC;
}

int CWnd::ReleaseDC(CDC* pDC)
{
    if (pDC == NULL)
        return 0;
    int nResult = ::ReleaseDC(m_hWnd, pDC->Detach());
    delete pDC;
    return nResult;
}

// ---------------------------------------------------------------------------
// CWnd: the window procedure and dispatch
// ---------------------------------------------------------------------------

const MSG* AFXAPI AfxGetCurrentMessage()
{
    return &t_lastSentMsg;
}

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
    if (pWnd == NULL)
        return ::DefWindowProcA(hWnd, nMsg, wParam, lParam);

    MSG oldMsg = t_lastSentMsg;
    t_lastSentMsg.hwnd = hWnd;
    t_lastSentMsg.message = nMsg;
    t_lastSentMsg.wParam = wParam;
    t_lastSentMsg.lParam = lParam;

    LRESULT lResult = 0;
    try {
        lResult = pWnd->WindowProc(nMsg, wParam, lParam);
    } catch (CException* e) {
        // Nothing escapes a window procedure.
        TRACE("AfxWndProc: exception in the handler of message 0x%04X\n", nMsg);
        e->Delete();
        lResult = ResultAfterException(hWnd, nMsg);
    } catch (...) {
        TRACE("AfxWndProc: unknown exception in the handler of message 0x%04X\n", nMsg);
        lResult = ResultAfterException(hWnd, nMsg);
    }

    t_lastSentMsg = oldMsg;
    return lResult;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT lResult = 0;
    if (!OnWndMsg(message, wParam, lParam, &lResult))
        lResult = DefWindowProc(message, wParam, lParam);
    return lResult;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_pfnSuper != NULL)
        return ::CallWindowProcA(m_pfnSuper, m_hWnd, message, wParam, lParam);
    return ::DefWindowProcA(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default()
{
    return DefWindowProc(t_lastSentMsg.message, t_lastSentMsg.wParam, t_lastSentMsg.lParam);
}

UINT PASCAL CWnd::MapCtlColor(UINT message, UINT* pnCtlColor)
{
    // All the WM_CTLCOLOR* messages go to one handler with the kind as argument.
    if (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC) {
        *pnCtlColor = message - WM_CTLCOLORMSGBOX;
        return WM_CTLCOLOR;
    }
    *pnCtlColor = 0;
    return message;
}

const AFX_MSGMAP_ENTRY* CWnd::FindWindowEntry(UINT nMsg) const
{
    for (const AFX_MSGMAP* pMap = GetMessageMap(); pMap != NULL;
         pMap = pMap->pfnGetBaseMap != NULL ? pMap->pfnGetBaseMap() : NULL) {
        const AFX_MSGMAP_ENTRY* lpEntry = FindMessageEntry(pMap->lpEntries, nMsg, 0, 0);
        if (lpEntry != NULL)
            return lpEntry;
    }
    return NULL;
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    LRESULT lResult = 0;
    if (message == WM_COMMAND) {
        if (OnCommand(wParam, lParam)) {
            *pResult = 1;
            return TRUE;
        }
        return FALSE;
    }
    if (message == WM_NOTIFY) {
        NMHDR* pNMHDR = (NMHDR*)lParam;
        if (pNMHDR->hwndFrom != NULL && OnNotify(wParam, lParam, &lResult)) {
            *pResult = lResult;
            return TRUE;
        }
        return FALSE;
    }

    UINT nCtlColor = 0;
    const UINT nMsg = MapCtlColor(message, &nCtlColor);
    const AFX_MSGMAP_ENTRY* lpEntry = FindWindowEntry(nMsg);
    if (lpEntry == NULL) {
        // Owner-drawn lists sort and free their items themselves.
        if (message == WM_COMPAREITEM)
            return ReflectLastMsg(((LPCOMPAREITEMSTRUCT)lParam)->hwndItem, pResult);
        if (message == WM_DELETEITEM)
            return ReflectLastMsg(((LPDELETEITEMSTRUCT)lParam)->hwndItem, pResult);
        return FALSE;
    }

    AFX_PMSG pfn = lpEntry->pfn;
    switch (lpEntry->nSig) {
    case AfxSig_vv:
        (this->*reinterpret_cast<void (CWnd::*)()>(pfn))();
        break;
    case AfxSig_bv:
        lResult = (this->*reinterpret_cast<BOOL (CWnd::*)()>(pfn))();
        break;
    case AfxSig_wv:
        lResult = (this->*reinterpret_cast<UINT (CWnd::*)()>(pfn))();
        break;
    case AfxSig_vw:
        (this->*reinterpret_cast<void (CWnd::*)(UINT)>(pfn))((UINT)wParam);
        break;
    case AfxSig_vt:
        (this->*reinterpret_cast<void (CWnd::*)(UINT_PTR)>(pfn))((UINT_PTR)wParam);
        break;
    case AfxSig_vwp:
        (this->*reinterpret_cast<void (CWnd::*)(UINT, CPoint)>(pfn))(
            (UINT)wParam, CPoint((short)LOWORD(lParam), (short)HIWORD(lParam)));
        break;
    case AfxSig_is:
        lResult = (this->*reinterpret_cast<int (CWnd::*)(LPCREATESTRUCT)>(pfn))((LPCREATESTRUCT)lParam);
        break;
    case AfxSig_bD: {
        CDC dc;
        dc.Attach((HDC)wParam);
        lResult = (this->*reinterpret_cast<BOOL (CWnd::*)(CDC*)>(pfn))(&dc);
        dc.Detach();
        break;
    }
    case AfxSig_bWww:
        lResult = (this->*reinterpret_cast<BOOL (CWnd::*)(CWnd*, UINT, UINT)>(pfn))(
            FromHandle((HWND)wParam), LOWORD(lParam), HIWORD(lParam));
        break;
    case AfxSig_vWp:
        (this->*reinterpret_cast<void (CWnd::*)(CWnd*, CPoint)>(pfn))(
            FromHandle((HWND)wParam), CPoint((short)LOWORD(lParam), (short)HIWORD(lParam)));
        break;
    case AfxSig_vwii:
        // Sizes: unsigned 16-bit values.
        (this->*reinterpret_cast<void (CWnd::*)(UINT, int, int)>(pfn))(
            (UINT)wParam, LOWORD(lParam), HIWORD(lParam));
        break;
    case AfxSig_vwww:
        (this->*reinterpret_cast<void (CWnd::*)(UINT, UINT, UINT)>(pfn))(
            (UINT)wParam, LOWORD(lParam), HIWORD(lParam));
        break;
    case AfxSig_vW:
        (this->*reinterpret_cast<void (CWnd::*)(CWnd*)>(pfn))(FromHandle((HWND)(message == WM_CAPTURECHANGED ? lParam : wParam)));
        break;
    case AfxSig_hDWw: {
        CDC dc;
        dc.Attach((HDC)wParam);
        lResult = (LRESULT)(this->*reinterpret_cast<HBRUSH (CWnd::*)(CDC*, CWnd*, UINT)>(pfn))(
            &dc, FromHandle((HWND)lParam), nCtlColor);
        dc.Detach();
        break;
    }
    case AfxSig_vOWNER:
        (this->*reinterpret_cast<void (CWnd::*)(int, LPARAM)>(pfn))((int)wParam, lParam);
        lResult = TRUE;
        break;
    case AfxSig_bwsp:
        lResult = (this->*reinterpret_cast<BOOL (CWnd::*)(UINT, short, CPoint)>(pfn))(
            LOWORD(wParam), (short)HIWORD(wParam), CPoint((short)LOWORD(lParam), (short)HIWORD(lParam)));
        break;
    case AfxSig_vwwW:
        (this->*reinterpret_cast<void (CWnd::*)(UINT, UINT, CWnd*)>(pfn))(
            LOWORD(wParam), HIWORD(wParam), FromHandle((HWND)lParam));
        break;
    case AfxSig_lwl:
        lResult = (this->*reinterpret_cast<LRESULT (CWnd::*)(WPARAM, LPARAM)>(pfn))(wParam, lParam);
        break;
    case AfxSig_wp:
        lResult = (this->*reinterpret_cast<UINT (CWnd::*)(CPoint)>(pfn))(
            CPoint((short)LOWORD(lParam), (short)HIWORD(lParam)));
        break;
    case AfxSig_vMMI:
        (this->*reinterpret_cast<void (CWnd::*)(MINMAXINFO*)>(pfn))((MINMAXINFO*)lParam);
        break;
    case AfxSig_bHELPINFO:
        lResult = (this->*reinterpret_cast<BOOL (CWnd::*)(HELPINFO*)>(pfn))((HELPINFO*)lParam);
        break;
    default:
        return FALSE;
    }
    *pResult = lResult;
    return TRUE;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    UINT nID = LOWORD(wParam);
    HWND hWndCtrl = (HWND)lParam;
    int nCode = HIWORD(wParam);
    if (hWndCtrl == NULL) {
        if (nID == 0)
            return FALSE;   // no command has the id 0
        nCode = 0;   // menu or accelerator: a plain command
    } else {
        if (ReflectLastMsg(hWndCtrl))
            return TRUE;   // the control handled its own notification
        if (nID == 0)
            return FALSE;
    }
    return OnCmdMsg(nID, nCode, NULL, NULL);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult)
{
    NMHDR* pNMHDR = (NMHDR*)lParam;
    if (ReflectLastMsg(pNMHDR->hwndFrom, pResult))
        return TRUE;
    AFX_NOTIFY notify;
    notify.pResult = pResult;
    notify.pNMHDR = pNMHDR;
    return OnCmdMsg((UINT)pNMHDR->idFrom, MAKELONG(pNMHDR->code, WM_NOTIFY), &notify, NULL);
}

BOOL PASCAL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult)
{
    CWnd* pWnd = FromHandlePermanent(hWndChild);
    if (pWnd == NULL)
        return FALSE;
    return pWnd->OnChildNotify(t_lastSentMsg.message, t_lastSentMsg.wParam, t_lastSentMsg.lParam, pResult);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    LRESULT lResult = 0;
    BOOL bHandled = FALSE;
    if (message == WM_COMMAND) {
        bHandled = OnCmdMsg(0, MAKELONG(HIWORD(wParam), WM_REFLECT_BASE + WM_COMMAND), NULL, NULL);
    } else if (message == WM_NOTIFY) {
        NMHDR* pNMHDR = (NMHDR*)lParam;
        AFX_NOTIFY notify;
        notify.pResult = &lResult;
        notify.pNMHDR = pNMHDR;
        bHandled = OnCmdMsg(0, MAKELONG(pNMHDR->code, WM_REFLECT_BASE + WM_NOTIFY), &notify, NULL);
    } else {
        UINT nCtlColor = 0;
        const UINT nMsg = MapCtlColor(message, &nCtlColor);
        const AFX_MSGMAP_ENTRY* lpEntry = FindWindowEntry(nMsg + WM_REFLECT_BASE);
        if (lpEntry != NULL && lpEntry->nSig == AfxSig_hDw) {
            CDC dc;
            dc.Attach((HDC)wParam);
            HBRUSH hbr = (this->*reinterpret_cast<HBRUSH (CWnd::*)(CDC*, UINT)>(lpEntry->pfn))(&dc, nCtlColor);
            dc.Detach();
            lResult = (LRESULT)hbr;
            bHandled = hbr != NULL;
        } else if (lpEntry != NULL && lpEntry->nSig == AfxSig_vs) {
            (this->*reinterpret_cast<void (CWnd::*)(LPARAM)>(lpEntry->pfn))(lParam);
            lResult = TRUE;
            bHandled = TRUE;
        }
    }
    if (bHandled && pResult != NULL)
        *pResult = lResult;
    return bHandled;
}

// ---------------------------------------------------------------------------
// CWnd: default handlers
// ---------------------------------------------------------------------------

int CWnd::OnCreate(LPCREATESTRUCT) { return (int)Default(); }
void CWnd::OnDestroy() { Default(); }
void CWnd::OnPaint() { Default(); }
BOOL CWnd::OnEraseBkgnd(CDC*) { return (BOOL)Default(); }
void CWnd::OnSize(UINT, int, int) { Default(); }
void CWnd::OnTimer(UINT_PTR) { Default(); }
UINT CWnd::OnNcHitTest(CPoint) { return (UINT)Default(); }
void CWnd::OnGetMinMaxInfo(MINMAXINFO*) { Default(); }
void CWnd::OnNcLButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnNcLButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnNcMouseMove(UINT, CPoint) { Default(); }
BOOL CWnd::OnSetCursor(CWnd*, UINT, UINT) { return (BOOL)Default(); }
void CWnd::OnMouseMove(UINT, CPoint) { Default(); }
void CWnd::OnLButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnLButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnLButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnRButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnRButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnRButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnContextMenu(CWnd*, CPoint) { Default(); }
void CWnd::OnKeyDown(UINT, UINT, UINT) { Default(); }
void CWnd::OnKeyUp(UINT, UINT, UINT) { Default(); }
void CWnd::OnChar(UINT, UINT, UINT) { Default(); }
void CWnd::OnSetFocus(CWnd*) { Default(); }
void CWnd::OnKillFocus(CWnd*) { Default(); }
UINT CWnd::OnGetDlgCode() { return (UINT)Default(); }
BOOL CWnd::OnMouseWheel(UINT, short, CPoint) { return (BOOL)Default(); }
void CWnd::OnHScroll(UINT, UINT, CWnd* pScrollBar)
{
    if (pScrollBar == NULL || !ReflectLastMsg(pScrollBar->m_hWnd))
        Default();
}
void CWnd::OnVScroll(UINT, UINT, CWnd* pScrollBar)
{
    if (pScrollBar == NULL || !ReflectLastMsg(pScrollBar->m_hWnd))
        Default();
}
void CWnd::OnCaptureChanged(CWnd*) { Default(); }
BOOL CWnd::OnHelpInfo(HELPINFO*) { return (BOOL)Default(); }

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT)
{
    LRESULT lResult;
    if (pWnd != NULL && ReflectLastMsg(pWnd->m_hWnd, &lResult))
        return (HBRUSH)lResult;
    return (HBRUSH)Default();
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    if (lpDrawItemStruct->CtlType != ODT_MENU && ReflectLastMsg(lpDrawItemStruct->hwndItem))
        return;
    Default();
}

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    if (lpMeasureItemStruct->CtlType != ODT_MENU) {
        HWND hWndChild = ::GetDlgItem(m_hWnd, (int)lpMeasureItemStruct->CtlID);
        if (hWndChild != NULL && ReflectLastMsg(hWndChild))
            return;
    }
    Default();
}

void CWnd::OnNcDestroy()
{
    // The last message of a window: hand the procedure back, unbind, and let
    // the object do its final clean-up.
    LRESULT lResult = Default();
    (void)lResult;
    if (m_pfnSuper != NULL) {
        WNDPROC pfnWndProc = (WNDPROC)::GetWindowLongPtrA(m_hWnd, GWLP_WNDPROC);
        if (pfnWndProc == AfxWndProc)
            ::SetWindowLongPtrA(m_hWnd, GWLP_WNDPROC, (LONG_PTR)m_pfnSuper);
        m_pfnSuper = NULL;
    }
    Detach();
    // A DestroyWindow of this object that is under way must not touch it again.
    for (DestroyWatch* pWatch = t_pDestroyWatch; pWatch != NULL; pWatch = pWatch->pPrev) {
        if (pWatch->pWnd == this)
            pWatch->bNcDestroyed = true;
    }
    PostNcDestroy();
}

// ---------------------------------------------------------------------------
// Window classes
// ---------------------------------------------------------------------------

namespace {

// Names of the classes registered here. A returned name is never written
// again, so a caller may keep it for the life of the library; the table is
// static storage, with a per-thread buffer behind it should it ever fill up.
const int kMaxClassNames = 64;
char s_szClassNames[kMaxClassNames][96];
int s_nClassNames = 0;
SRWLOCK s_lockClassNames = SRWLOCK_INIT;

LPCSTR KeepClassName(LPCSTR lpszName)
{
    LPCSTR lpszKept = NULL;
    ::AcquireSRWLockExclusive(&s_lockClassNames);
    for (int i = 0; i < s_nClassNames && lpszKept == NULL; i++) {
        if (strcmp(s_szClassNames[i], lpszName) == 0)
            lpszKept = s_szClassNames[i];
    }
    if (lpszKept == NULL && s_nClassNames < kMaxClassNames) {
        lstrcpynA(s_szClassNames[s_nClassNames], lpszName, sizeof(s_szClassNames[0]));
        lpszKept = s_szClassNames[s_nClassNames++];
    }
    ::ReleaseSRWLockExclusive(&s_lockClassNames);
    if (lpszKept != NULL)
        return lpszKept;
    thread_local char t_szName[96];
    lstrcpynA(t_szName, lpszName, sizeof(t_szName));
    return t_szName;
}

} // namespace

LPCSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon)
{
    char szName[96];
    HINSTANCE hInst = AfxGetInstanceHandle();
    _snprintf(szName, sizeof(szName) - 1, "Afx:%p:%x:%p:%p:%p", (void*)hInst, nClassStyle,
              (void*)hCursor, (void*)hbrBackground, (void*)hIcon);
    szName[sizeof(szName) - 1] = '\0';

    WNDCLASSA wc;
    if (::GetClassInfoA(hInst, szName, &wc))
        return KeepClassName(szName);   // registered before with the same attributes

    memset(&wc, 0, sizeof(wc));
    wc.style = nClassStyle;
    wc.lpfnWndProc = ::DefWindowProcA;   // the creation hook subclasses every window
    wc.hInstance = hInst;
    wc.hIcon = hIcon;
    wc.hCursor = hCursor;
    wc.hbrBackground = hbrBackground;
    wc.lpszClassName = szName;
    if (!::RegisterClassA(&wc))
        AfxThrowResourceException();
    return KeepClassName(szName);
}
