// Standard controls: creation and the reflected drawing messages.
#include "afx/afxctrl.h"

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CListBox, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)

CStatic::CStatic() {}

BOOL CStatic::Create(LPCSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("STATIC", lpszText, dwStyle, rect, pParentWnd, nID);
}

CButton::CButton() {}

BOOL CButton::Create(LPCSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("BUTTON", lpszCaption, dwStyle, rect, pParentWnd, nID);
}

void CButton::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    DrawItem((LPDRAWITEMSTRUCT)lParam);
    if (pResult != NULL)
        *pResult = TRUE;
    return TRUE;
}

CEdit::CEdit() {}

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("EDIT", NULL, dwStyle, rect, pParentWnd, nID);
}

int CEdit::GetLine(int nIndex, LPSTR lpszBuffer, int nMaxLength) const
{
    if (nMaxLength < (int)sizeof(WORD))
        return 0;
    *(LPWORD)lpszBuffer = (WORD)(nMaxLength > 0xFFFF ? 0xFFFF : nMaxLength);
    return (int)::SendMessageA(m_hWnd, EM_GETLINE, (WPARAM)nIndex, (LPARAM)lpszBuffer);
}

CListBox::CListBox() {}

BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("LISTBOX", NULL, dwStyle, rect, pParentWnd, nID);
}

void CListBox::GetText(int nIndex, CString& rString) const
{
    int nLen = GetTextLen(nIndex);
    if (nLen == LB_ERR) {
        rString.Empty();
        return;
    }
    GetText(nIndex, rString.GetBufferSetLength(nLen));
    rString.ReleaseBuffer();
}

void CListBox::DrawItem(LPDRAWITEMSTRUCT) {}
void CListBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

int CListBox::CompareItem(LPCOMPAREITEMSTRUCT)
{
    return 0;
}

void CListBox::DeleteItem(LPDELETEITEMSTRUCT) {}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    switch (message) {
    case WM_DRAWITEM:
        DrawItem((LPDRAWITEMSTRUCT)lParam);
        break;
    case WM_MEASUREITEM:
        MeasureItem((LPMEASUREITEMSTRUCT)lParam);
        break;
    case WM_COMPAREITEM:
        if (pResult != NULL)
            *pResult = CompareItem((LPCOMPAREITEMSTRUCT)lParam);
        return TRUE;
    case WM_DELETEITEM:
        DeleteItem((LPDELETEITEMSTRUCT)lParam);
        break;
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    if (pResult != NULL)
        *pResult = TRUE;
    return TRUE;
}

CComboBox::CComboBox() {}

BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("COMBOBOX", NULL, dwStyle, rect, pParentWnd, nID);
}

void CComboBox::GetLBText(int nIndex, CString& rString) const
{
    int nLen = GetLBTextLen(nIndex);
    if (nLen == CB_ERR) {
        rString.Empty();
        return;
    }
    GetLBText(nIndex, rString.GetBufferSetLength(nLen));
    rString.ReleaseBuffer();
}
