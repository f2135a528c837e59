// CMenu: owned and borrowed menus, loading from the resource chain.
#include "afx/afxmenu.h"

IMPLEMENT_DYNCREATE(CMenu, CObject)

CMenu::CMenu() : m_hMenu(NULL), m_bOwn(FALSE), m_pFirstSub(NULL), m_pNextSub(NULL) {}

CMenu::~CMenu()
{
    DestroyMenu();
    while (m_pFirstSub != NULL) {
        CMenu* pNext = m_pFirstSub->m_pNextSub;
        delete m_pFirstSub;   // borrowed: its handle is left alone
        m_pFirstSub = pNext;
    }
}

BOOL CMenu::Attach(HMENU hMenu)
{
    ASSERT(m_hMenu == NULL);
    if (m_hMenu != NULL || hMenu == NULL)
        return FALSE;
    m_hMenu = hMenu;
    m_bOwn = TRUE;
    return TRUE;
}

HMENU CMenu::Detach()
{
    HMENU hMenu = m_hMenu;
    m_hMenu = NULL;
    m_bOwn = FALSE;
    return hMenu;
}

BOOL CMenu::DestroyMenu()
{
    if (m_hMenu == NULL)
        return FALSE;
    const BOOL bOwn = m_bOwn;
    HMENU hMenu = Detach();
    return bOwn ? ::DestroyMenu(hMenu) : TRUE;
}

BOOL CMenu::LoadMenu(UINT nIDResource)
{
    HINSTANCE hInst = AfxFindResourceHandle(MAKEINTRESOURCEA(nIDResource), (LPCSTR)RT_MENU);
    return Attach(::LoadMenuA(hInst, MAKEINTRESOURCEA(nIDResource)));
}

BOOL CMenu::CreatePopupMenu()
{
    return Attach(::CreatePopupMenu());
}

CMenu* CMenu::GetSubMenu(int nPos) const
{
    HMENU hSub = ::GetSubMenu(m_hMenu, nPos);
    if (hSub == NULL)
        return NULL;
    for (CMenu* p = m_pFirstSub; p != NULL; p = p->m_pNextSub) {
        if (p->m_hMenu == hSub)
            return p;
    }
    CMenu* pSub = new CMenu;
    pSub->m_hMenu = hSub;       // borrowed
    pSub->m_pNextSub = m_pFirstSub;
    m_pFirstSub = pSub;
    return pSub;
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const
{
    char szText[256];
    const int n = ::GetMenuStringA(m_hMenu, nIDItem, szText, sizeof(szText), nFlags);
    rString = n > 0 ? szText : "";
    return n;
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect)
{
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, pWnd != NULL ? pWnd->m_hWnd : NULL, lpRect);
}
