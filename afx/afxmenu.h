// CMenu: a thin object over an HMENU. A menu attached, loaded or created
// through the object is owned and destroyed with it; the sub-menus it hands
// out are borrowed views that live as long as the object and never destroy
// their handle (the parent menu destroys its sub-menus itself).
#pragma once

#include "afx/afxwnd.h"

class AFX_EXT_CLASS CMenu : public CObject
{
    DECLARE_DYNCREATE(CMenu)
public:
    CMenu();
    virtual ~CMenu();    // destroys an owned menu

    HMENU m_hMenu;
    operator HMENU() const { return m_hMenu; }
    HMENU GetSafeHmenu() const { return m_hMenu; }

    BOOL Attach(HMENU hMenu);    // takes ownership
    HMENU Detach();              // gives ownership back
    BOOL DestroyMenu();          // destroys an owned menu now; FALSE if none

    // The menu resource nIDResource, from the first module of the resource
    // chain that has it (a satellite before the library).
    BOOL LoadMenu(UINT nIDResource);
    BOOL CreatePopupMenu();

    // A borrowed view of the sub-menu at nPos, or null when there is none.
    CMenu* GetSubMenu(int nPos) const;
    int GetMenuItemCount() const { return ::GetMenuItemCount(m_hMenu); }
    UINT GetMenuItemID(int nPos) const { return ::GetMenuItemID(m_hMenu, nPos); }
    UINT GetMenuState(UINT nID, UINT nFlags) const { return ::GetMenuState(m_hMenu, nID, nFlags); }
    int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;

    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCSTR lpszNewItem = NULL)
        { return ::AppendMenuA(m_hMenu, nFlags, nIDNewItem, lpszNewItem); }
    // A position past the end appends.
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCSTR lpszNewItem = NULL)
        { return ::InsertMenuA(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem); }
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCSTR lpszNewItem = NULL)
        { return ::ModifyMenuA(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem); }
    BOOL DeleteMenu(UINT nPosition, UINT nFlags) { return ::DeleteMenu(m_hMenu, nPosition, nFlags); }
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable) { return ::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable); }
    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck) { return (UINT)::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck); }

    // Shows a popup menu and tracks it; the chosen command goes to pWnd as
    // WM_COMMAND after the menu has closed.
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = NULL);

private:
    CMenu(const CMenu&) = delete;
    void operator=(const CMenu&) = delete;

    BOOL m_bOwn;                          // the handle is destroyed with the object
    mutable CMenu* m_pFirstSub;           // borrowed views handed out by GetSubMenu
    mutable CMenu* m_pNextSub;
};
