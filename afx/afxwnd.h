// Windows with message maps: CCmdTarget, the message-map macros and CWnd, a
// thin object over an HWND whose window procedure dispatches each message to
// the handler its class's map names, and otherwise to the default handling.
#pragma once

#include "afx/afx.h"
#include "afx/afxtypes.h"
#include "afx/afxgdi.h"

// Resource type of the list and combo box entries of a dialog template.
#ifndef RT_DLGINIT
#define RT_DLGINIT MAKEINTRESOURCE(240)
#endif

class CWnd;
class CCmdTarget;
struct CCreateContext;

// ---------------------------------------------------------------------------
// Message maps
// ---------------------------------------------------------------------------

typedef void (CCmdTarget::*AFX_PMSG)();
typedef void (CWnd::*AFX_PMSGW)();

// Handler signatures: what a map entry's function takes and returns.
enum AfxSig
{
    AfxSig_end = 0,
    AfxSig_vv,       // void ()                                 commands, OnPaint, OnDestroy
    AfxSig_bv,       // BOOL ()
    AfxSig_wv,       // UINT ()                                 OnGetDlgCode
    AfxSig_vw,       // void (UINT)
    AfxSig_vt,       // void (UINT_PTR)                         OnTimer
    AfxSig_vwp,      // void (UINT, CPoint)                     mouse buttons and moves
    AfxSig_is,       // int (LPCREATESTRUCT)                    OnCreate
    AfxSig_bD,       // BOOL (CDC*)                             OnEraseBkgnd
    AfxSig_bWww,     // BOOL (CWnd*, UINT, UINT)                OnSetCursor
    AfxSig_vWp,      // void (CWnd*, CPoint)                    OnContextMenu
    AfxSig_vwii,     // void (UINT, int, int)                   OnSize
    AfxSig_vwww,     // void (UINT, UINT, UINT)                 keys and characters
    AfxSig_vW,       // void (CWnd*)                            OnSetFocus, OnKillFocus
    AfxSig_hDWw,     // HBRUSH (CDC*, CWnd*, UINT)              OnCtlColor
    AfxSig_hDw,      // HBRUSH (CDC*, UINT)                     reflected WM_CTLCOLOR
    AfxSig_vOWNER,   // void (int, LPARAM struct)               OnDrawItem, OnMeasureItem
    AfxSig_vs,       // void (LPARAM struct)                    reflected owner draw
    AfxSig_bwsp,     // BOOL (UINT, short, CPoint)              OnMouseWheel
    AfxSig_vwwW,     // void (UINT, UINT, CWnd*)                scroll bars
    AfxSig_vWh,      // void (CWnd*, HWND)                      spare
    AfxSig_lwl,      // LRESULT (WPARAM, LPARAM)                ON_MESSAGE
    AfxSig_vNMHDRpl, // void (NMHDR*, LRESULT*)                 ON_NOTIFY
    AfxSig_vwv,      // void (UINT)                             command ranges
    AfxSig_wp,       // UINT (CPoint)                           OnNcHitTest
    AfxSig_vMMI,     // void (MINMAXINFO*)                      OnGetMinMaxInfo
    AfxSig_bHELPINFO, // BOOL (HELPINFO*)                       OnHelpInfo
};

struct AFX_MSGMAP_ENTRY
{
    UINT nMessage;   // window message, or WM_COMMAND / WM_NOTIFY
    UINT nCode;      // control notification code
    UINT nID;        // control or command id, 0 for window messages
    UINT nLastID;    // last id of a range
    UINT_PTR nSig;   // AfxSig value
    AFX_PMSG pfn;    // the handler
};

// What OnNotify hands to a WM_NOTIFY handler.
struct AFX_NOTIFY
{
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

struct AFX_MSGMAP
{
    const AFX_MSGMAP* (PASCAL* pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

// Messages of a parent that a control handles itself ("reflected").
#define WM_REFLECT_BASE 0xBC00
#define WM_CTLCOLOR 0x0019

#ifndef afx_msg
#define afx_msg
#endif

#define DECLARE_MESSAGE_MAP() \
protected: \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap(); \
    virtual const AFX_MSGMAP* GetMessageMap() const;

// The entries between BEGIN_MESSAGE_MAP and END_MESSAGE_MAP see the class as
// ThisClass. Each entry checks the handler's signature against the CWnd
// member type of the same shape before storing it as the common type.
#define BEGIN_MESSAGE_MAP(theClass, baseClass) \
    const AFX_MSGMAP* theClass::GetMessageMap() const { return GetThisMessageMap(); } \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap() \
    { \
        typedef theClass ThisClass; \
        typedef baseClass TheBaseClass; \
        static const AFX_MSGMAP_ENTRY _messageEntries[] = {

#define END_MESSAGE_MAP() \
            { 0, 0, 0, 0, AfxSig_end, (AFX_PMSG)0 } \
        }; \
        static const AFX_MSGMAP messageMap = { &TheBaseClass::GetThisMessageMap, &_messageEntries[0] }; \
        return &messageMap; \
    }

#define _AFX_PMSG(theClass, sigType, member) \
    reinterpret_cast<AFX_PMSG>(static_cast<sigType>(&theClass::member))

#define ON_MESSAGE_CLASS(theClass, message, memberFxn) \
    { message, 0, 0, 0, AfxSig_lwl, _AFX_PMSG(theClass, LRESULT (CWnd::*)(WPARAM, LPARAM), memberFxn) },
#define ON_COMMAND_CLASS(theClass, id, memberFxn) \
    { WM_COMMAND, 0, (UINT)(id), (UINT)(id), AfxSig_vv, _AFX_PMSG(theClass, void (CCmdTarget::*)(), memberFxn) },
#define ON_COMMAND_RANGE_CLASS(theClass, id, idLast, memberFxn) \
    { WM_COMMAND, 0, (UINT)(id), (UINT)(idLast), AfxSig_vwv, _AFX_PMSG(theClass, void (CCmdTarget::*)(UINT), memberFxn) },
#define ON_CONTROL_CLASS(theClass, wNotifyCode, id, memberFxn) \
    { WM_COMMAND, (UINT)(WORD)(wNotifyCode), (UINT)(id), (UINT)(id), AfxSig_vv, _AFX_PMSG(theClass, void (CCmdTarget::*)(), memberFxn) },
#define ON_NOTIFY_CLASS(theClass, wNotifyCode, id, memberFxn) \
    { WM_NOTIFY, (UINT)(WORD)(wNotifyCode), (UINT)(id), (UINT)(id), AfxSig_vNMHDRpl, _AFX_PMSG(theClass, void (CCmdTarget::*)(NMHDR*, LRESULT*), memberFxn) },
#define ON_CONTROL_REFLECT_CLASS(theClass, wNotifyCode, memberFxn) \
    { WM_COMMAND + WM_REFLECT_BASE, (UINT)(WORD)(wNotifyCode), 0, 0, AfxSig_vv, _AFX_PMSG(theClass, void (CCmdTarget::*)(), memberFxn) },
#define ON_NOTIFY_REFLECT_CLASS(theClass, wNotifyCode, memberFxn) \
    { WM_NOTIFY + WM_REFLECT_BASE, (UINT)(WORD)(wNotifyCode), 0, 0, AfxSig_vNMHDRpl, _AFX_PMSG(theClass, void (CCmdTarget::*)(NMHDR*, LRESULT*), memberFxn) },

#define ON_MESSAGE(message, memberFxn) ON_MESSAGE_CLASS(ThisClass, message, memberFxn)
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn) ON_MESSAGE_CLASS(ThisClass, nMessageVariable, memberFxn)
#define ON_COMMAND(id, memberFxn) ON_COMMAND_CLASS(ThisClass, id, memberFxn)
#define ON_COMMAND_RANGE(id, idLast, memberFxn) ON_COMMAND_RANGE_CLASS(ThisClass, id, idLast, memberFxn)
#define ON_CONTROL(wNotifyCode, id, memberFxn) ON_CONTROL_CLASS(ThisClass, wNotifyCode, id, memberFxn)
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_NOTIFY(wNotifyCode, id, memberFxn) ON_NOTIFY_CLASS(ThisClass, wNotifyCode, id, memberFxn)
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn) ON_CONTROL_REFLECT_CLASS(ThisClass, wNotifyCode, memberFxn)
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn) ON_NOTIFY_REFLECT_CLASS(ThisClass, wNotifyCode, memberFxn)

#define _ON_WM(msg, sig, type, member) \
    { msg, 0, 0, 0, sig, _AFX_PMSG(ThisClass, type, member) },
#define ON_WM_CREATE() _ON_WM(WM_CREATE, AfxSig_is, int (CWnd::*)(LPCREATESTRUCT), OnCreate)
#define ON_WM_NCDESTROY() _ON_WM(WM_NCDESTROY, AfxSig_vv, void (CWnd::*)(), OnNcDestroy)
#define ON_WM_DESTROY() _ON_WM(WM_DESTROY, AfxSig_vv, void (CWnd::*)(), OnDestroy)
#define ON_WM_PAINT() _ON_WM(WM_PAINT, AfxSig_vv, void (CWnd::*)(), OnPaint)
#define ON_WM_ERASEBKGND() _ON_WM(WM_ERASEBKGND, AfxSig_bD, BOOL (CWnd::*)(CDC*), OnEraseBkgnd)
#define ON_WM_SIZE() _ON_WM(WM_SIZE, AfxSig_vwii, void (CWnd::*)(UINT, int, int), OnSize)
#define ON_WM_TIMER() _ON_WM(WM_TIMER, AfxSig_vt, void (CWnd::*)(UINT_PTR), OnTimer)
#define ON_WM_SETCURSOR() _ON_WM(WM_SETCURSOR, AfxSig_bWww, BOOL (CWnd::*)(CWnd*, UINT, UINT), OnSetCursor)
#define ON_WM_MOUSEMOVE() _ON_WM(WM_MOUSEMOVE, AfxSig_vwp, void (CWnd::*)(UINT, CPoint), OnMouseMove)
#define ON_WM_LBUTTONDOWN() _ON_WM(WM_LBUTTONDOWN, AfxSig_vwp, void (CWnd::*)(UINT, CPoint), OnLButtonDown)
#define ON_WM_LBUTTONUP() _ON_WM(WM_LBUTTONUP, AfxSig_vwp, void (CWnd::*)(UINT, CPoint), OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() _ON_WM(WM_LBUTTONDBLCLK, AfxSig_vwp, void (CWnd::*)(UINT, CPoint), OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN() _ON_WM(WM_RBUTTONDOWN, AfxSig_vwp, void (CWnd::*)(UINT, CPoint), OnRButtonDown)
#define ON_WM_RBUTTONUP() _ON_WM(WM_RBUTTONUP, AfxSig_vwp, void (CWnd::*)(UINT, CPoint), OnRButtonUp)
#define ON_WM_RBUTTONDBLCLK() _ON_WM(WM_RBUTTONDBLCLK, AfxSig_vwp, void (CWnd::*)(UINT, CPoint), OnRButtonDblClk)
#define ON_WM_CONTEXTMENU() _ON_WM(WM_CONTEXTMENU, AfxSig_vWp, void (CWnd::*)(CWnd*, CPoint), OnContextMenu)
#define ON_WM_KEYDOWN() _ON_WM(WM_KEYDOWN, AfxSig_vwww, void (CWnd::*)(UINT, UINT, UINT), OnKeyDown)
#define ON_WM_KEYUP() _ON_WM(WM_KEYUP, AfxSig_vwww, void (CWnd::*)(UINT, UINT, UINT), OnKeyUp)
#define ON_WM_CHAR() _ON_WM(WM_CHAR, AfxSig_vwww, void (CWnd::*)(UINT, UINT, UINT), OnChar)
#define ON_WM_SETFOCUS() _ON_WM(WM_SETFOCUS, AfxSig_vW, void (CWnd::*)(CWnd*), OnSetFocus)
#define ON_WM_KILLFOCUS() _ON_WM(WM_KILLFOCUS, AfxSig_vW, void (CWnd::*)(CWnd*), OnKillFocus)
#define ON_WM_GETDLGCODE() _ON_WM(WM_GETDLGCODE, AfxSig_wv, UINT (CWnd::*)(), OnGetDlgCode)
#define ON_WM_CTLCOLOR() _ON_WM(WM_CTLCOLOR, AfxSig_hDWw, HBRUSH (CWnd::*)(CDC*, CWnd*, UINT), OnCtlColor)
#define ON_WM_CTLCOLOR_REFLECT() _ON_WM(WM_CTLCOLOR + WM_REFLECT_BASE, AfxSig_hDw, HBRUSH (CWnd::*)(CDC*, UINT), CtlColor)
#define ON_WM_DRAWITEM() _ON_WM(WM_DRAWITEM, AfxSig_vOWNER, void (CWnd::*)(int, LPDRAWITEMSTRUCT), OnDrawItem)
#define ON_WM_MEASUREITEM() _ON_WM(WM_MEASUREITEM, AfxSig_vOWNER, void (CWnd::*)(int, LPMEASUREITEMSTRUCT), OnMeasureItem)
#define ON_WM_MOUSEWHEEL() _ON_WM(WM_MOUSEWHEEL, AfxSig_bwsp, BOOL (CWnd::*)(UINT, short, CPoint), OnMouseWheel)
#define ON_WM_HSCROLL() _ON_WM(WM_HSCROLL, AfxSig_vwwW, void (CWnd::*)(UINT, UINT, CWnd*), OnHScroll)
#define ON_WM_VSCROLL() _ON_WM(WM_VSCROLL, AfxSig_vwwW, void (CWnd::*)(UINT, UINT, CWnd*), OnVScroll)
#define ON_WM_NCHITTEST() _ON_WM(WM_NCHITTEST, AfxSig_wp, UINT (CWnd::*)(CPoint), OnNcHitTest)
#define ON_WM_GETMINMAXINFO() _ON_WM(WM_GETMINMAXINFO, AfxSig_vMMI, void (CWnd::*)(MINMAXINFO*), OnGetMinMaxInfo)
#define ON_WM_NCLBUTTONDOWN() _ON_WM(WM_NCLBUTTONDOWN, AfxSig_vwp, void (CWnd::*)(UINT, CPoint), OnNcLButtonDown)
#define ON_WM_NCLBUTTONUP() _ON_WM(WM_NCLBUTTONUP, AfxSig_vwp, void (CWnd::*)(UINT, CPoint), OnNcLButtonUp)
#define ON_WM_NCMOUSEMOVE() _ON_WM(WM_NCMOUSEMOVE, AfxSig_vwp, void (CWnd::*)(UINT, CPoint), OnNcMouseMove)
#define ON_WM_HELPINFO() _ON_WM(WM_HELP, AfxSig_bHELPINFO, BOOL (CWnd::*)(HELPINFO*), OnHelpInfo)
#define ON_WM_CAPTURECHANGED() _ON_WM(WM_CAPTURECHANGED, AfxSig_vW, void (CWnd::*)(CWnd*), OnCaptureChanged)

// ---------------------------------------------------------------------------
// CCmdTarget
// ---------------------------------------------------------------------------

class AFX_EXT_CLASS CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)
public:
    CCmdTarget();
    virtual ~CCmdTarget();

    // Routes a command (nCode 0) or control notification to this object's map.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, void* pHandlerInfo);

protected:
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
    static const AFX_MSGMAP_ENTRY* PASCAL FindMessageEntry(const AFX_MSGMAP_ENTRY* lpEntry,
                                                           UINT nMsg, UINT nCode, UINT nID);
    friend class CWnd;
};

// ---------------------------------------------------------------------------
// CWnd
// ---------------------------------------------------------------------------

class AFX_EXT_CLASS CWnd : public CCmdTarget
{
    DECLARE_DYNCREATE(CWnd)
public:
    CWnd();
    virtual ~CWnd();     // destroys a window that still exists

    HWND m_hWnd;
    operator HWND() const { return m_hWnd; }
    HWND GetSafeHwnd() const { return m_hWnd; }

    // The object that owns a window of this process, or null.
    static CWnd* PASCAL FromHandlePermanent(HWND hWnd);
    // As above; a foreign window gets a temporary object of this thread that
    // lives until the next call with a foreign window.
    static CWnd* PASCAL FromHandle(HWND hWnd);

    BOOL Attach(HWND hWndNew);   // binds the object without changing the procedure
    HWND Detach();
    // Routes a window's messages through this object's map; the old window
    // procedure becomes the default handling.
    BOOL SubclassWindow(HWND hWnd);
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    HWND UnsubclassWindow();

    virtual BOOL Create(LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle,
                        const RECT& rect, CWnd* pParentWnd, UINT nID, CCreateContext* pContext = NULL);
    BOOL CreateEx(DWORD dwExStyle, LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle,
                  int x, int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu,
                  LPVOID lpParam = NULL);
    virtual BOOL DestroyWindow();

    // Window state and geometry
    DWORD GetStyle() const { return (DWORD)::GetWindowLongA(m_hWnd, GWL_STYLE); }
    DWORD GetExStyle() const { return (DWORD)::GetWindowLongA(m_hWnd, GWL_EXSTYLE); }
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    // Adds the entries of a template's initialisation data (resource type
    // RT_DLGINIT, found through the resource chain) to its list and combo
    // boxes. FALSE when the data is damaged or a control refuses an entry.
    BOOL ExecuteDlgInit(LPCSTR lpszResourceName);
    BOOL ExecuteDlgInit(const void* lpResource, DWORD dwSize);
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    BOOL ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    BOOL EnableWindow(BOOL bEnable = TRUE) { return ::EnableWindow(m_hWnd, bEnable); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    void Invalidate(BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, NULL, bErase); }
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, lpRect, bErase); }
    void ValidateRect(LPCRECT lpRect) { ::ValidateRect(m_hWnd, lpRect); }
    BOOL GetUpdateRect(LPRECT lpRect, BOOL bErase = FALSE) { return ::GetUpdateRect(m_hWnd, lpRect, bErase); }
    void SetRedraw(BOOL bRedraw = TRUE) { ::SendMessageA(m_hWnd, WM_SETREDRAW, bRedraw, 0); }
    void GetClientRect(LPRECT lpRect) const { ::GetClientRect(m_hWnd, lpRect); }
    void GetWindowRect(LPRECT lpRect) const { ::GetWindowRect(m_hWnd, lpRect); }
    void ClientToScreen(LPPOINT lpPoint) const { ::ClientToScreen(m_hWnd, lpPoint); }
    void ClientToScreen(LPRECT lpRect) const;
    void ScreenToClient(LPPOINT lpPoint) const { ::ScreenToClient(m_hWnd, lpPoint); }
    void ScreenToClient(LPRECT lpRect) const;
    void MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const;
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE)
        { ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint); }
    void MoveWindow(LPCRECT lpRect, BOOL bRepaint = TRUE)
        { MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top, bRepaint); }
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    CWnd* GetDlgItem(int nID) const { return FromHandle(::GetDlgItem(m_hWnd, nID)); }

    // Text and font
    void SetWindowText(LPCSTR lpszString) { ::SetWindowTextA(m_hWnd, lpszString); }
    int GetWindowText(LPSTR lpszStringBuf, int nMaxCount) const { return ::GetWindowTextA(m_hWnd, lpszStringBuf, nMaxCount); }
    void GetWindowText(CString& rString) const;
    int GetWindowTextLength() const { return ::GetWindowTextLengthA(m_hWnd); }
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE)
        { ::SendMessageA(m_hWnd, WM_SETFONT, (WPARAM)(pFont != NULL ? pFont->m_hObject : NULL), bRedraw); }

    // Messages, timers, input
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
        { return ::SendMessageA(m_hWnd, message, wParam, lParam); }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
        { return ::PostMessageA(m_hWnd, message, wParam, lParam); }
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer = NULL)
        { return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer); }
    BOOL KillTimer(UINT_PTR nIDEvent) { return ::KillTimer(m_hWnd, nIDEvent); }
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    static CWnd* PASCAL GetCapture() { return FromHandle(::GetCapture()); }
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    static CWnd* PASCAL GetFocus() { return FromHandle(::GetFocus()); }
    // The visible window under a point in screen coordinates.
    static CWnd* PASCAL WindowFromPoint(POINT point) { return FromHandle(::WindowFromPoint(point)); }
    // The window that should own a modal window of pParent: the parent's
    // top-level window, or without a parent the application's main window
    // (else the active window), then its last active popup. With pWndTop the
    // top-level window behind it is disabled, when enabled and not the owner
    // itself, and returned for the caller to enable again; else null.
    static HWND PASCAL GetSafeOwner_(HWND hParent, HWND* pWndTop);

    // Device contexts of the window
    CDC* GetDC();                 // released by ReleaseDC
    int ReleaseDC(CDC* pDC);

    // Window procedure and default handling
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Default();            // the default handling of the message being dispatched

    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual void PreSubclassWindow();
    virtual void PostNcDestroy();

    // Handlers with default handling, for the maps of derived classes.
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnNcDestroy();
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg UINT OnGetDlgCode();
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CWnd* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CWnd* pScrollBar);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    // F1 or the title bar's question mark: by default the system passes the
    // request on to the parent.
    afx_msg BOOL OnHelpInfo(HELPINFO* pHelpInfo);
    // Non-client messages: the point is in screen coordinates.
    afx_msg UINT OnNcHitTest(CPoint point);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI);
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonUp(UINT nHitTest, CPoint point);
    afx_msg void OnNcMouseMove(UINT nHitTest, CPoint point);

protected:
    // Dispatches through the maps; FALSE when no entry handled the message.
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    // A control's chance to handle what it sent to its parent (reflection).
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    static BOOL PASCAL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = NULL);
    // The first entry of this window's maps for a window message.
    const AFX_MSGMAP_ENTRY* FindWindowEntry(UINT nMsg) const;
    // WM_CTLCOLOR for every WM_CTLCOLOR* message, with its kind; others unchanged.
    static UINT PASCAL MapCtlColor(UINT message, UINT* pnCtlColor);

    WNDPROC m_pfnSuper;   // the procedure behind this object's map

    DECLARE_MESSAGE_MAP()

private:
    CWnd(const CWnd&) = delete;
    void operator=(const CWnd&) = delete;

    friend LRESULT CALLBACK AfxWndProc(HWND, UINT, WPARAM, LPARAM);
    friend LRESULT CALLBACK AfxCbtFilterHook(int, WPARAM, LPARAM);
};

// The window procedure of every window that the layer creates or subclasses.
AFX_EXT_API LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
// The message being dispatched on this thread (for Default and reflection).
AFX_EXT_API const MSG* AFXAPI AfxGetCurrentMessage();
// Binds the next window made on this thread to pWnd when the system creates
// it (dialogs and sheets whose windows the system makes). Unhooking reports
// whether the window was bound.
AFX_EXT_API void AFXAPI AfxHookWindowCreate(CWnd* pWnd);
AFX_EXT_API BOOL AFXAPI AfxUnhookWindowCreate();
