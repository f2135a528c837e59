// Standard controls as thin objects over their windows: CStatic, CButton,
// CEdit, CListBox and CComboBox. Owner-drawn list boxes handle their own drawing
// messages through reflection (DrawItem, MeasureItem, CompareItem, DeleteItem).
#pragma once

#include "afx/afxwnd.h"

class AFX_EXT_CLASS CStatic : public CWnd
{
    DECLARE_DYNAMIC(CStatic)
public:
    CStatic();
    virtual BOOL Create(LPCSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID = 0xffff);
    // A picture control (SS_BITMAP): the bitmap stays the caller's; the one
    // shown before is returned.
    HBITMAP SetBitmap(HBITMAP hBitmap)
        { return (HBITMAP)::SendMessageA(m_hWnd, STM_SETIMAGE, IMAGE_BITMAP, (LPARAM)hBitmap); }
    HBITMAP GetBitmap() const { return (HBITMAP)::SendMessageA(m_hWnd, STM_GETIMAGE, IMAGE_BITMAP, 0); }
};

class AFX_EXT_CLASS CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)
public:
    CButton();
    virtual BOOL Create(LPCSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    int GetCheck() const { return (int)::SendMessageA(m_hWnd, BM_GETCHECK, 0, 0); }
    void SetCheck(int nCheck) { ::SendMessageA(m_hWnd, BM_SETCHECK, (WPARAM)nCheck, 0); }
    UINT GetState() const { return (UINT)::SendMessageA(m_hWnd, BM_GETSTATE, 0, 0); }
    void SetState(BOOL bHighlight) { ::SendMessageA(m_hWnd, BM_SETSTATE, (WPARAM)bHighlight, 0); }
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
};

class AFX_EXT_CLASS CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)
public:
    CEdit();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE)
        { ::SendMessageA(m_hWnd, EM_SETSEL, (WPARAM)nStartChar, (LPARAM)nEndChar); if (!bNoScroll) ::SendMessageA(m_hWnd, EM_SCROLLCARET, 0, 0); }
    DWORD GetSel() const { return (DWORD)::SendMessageA(m_hWnd, EM_GETSEL, 0, 0); }
    void ReplaceSel(LPCSTR lpszNewText, BOOL bCanUndo = FALSE)
        { ::SendMessageA(m_hWnd, EM_REPLACESEL, (WPARAM)bCanUndo, (LPARAM)lpszNewText); }
    void LimitText(int nChars = 0) { ::SendMessageA(m_hWnd, EM_LIMITTEXT, (WPARAM)nChars, 0); }
    // Copies line nIndex into a buffer whose first WORD holds its size; the
    // text is not terminated when it fills the buffer.
    int GetLine(int nIndex, LPSTR lpszBuffer, int nMaxLength) const;
    int GetLineCount() const { return (int)::SendMessageA(m_hWnd, EM_GETLINECOUNT, 0, 0); }
    BOOL GetModify() const { return (BOOL)::SendMessageA(m_hWnd, EM_GETMODIFY, 0, 0); }
    void SetModify(BOOL bModified = TRUE) { ::SendMessageA(m_hWnd, EM_SETMODIFY, (WPARAM)bModified, 0); }
    void Clear() { ::SendMessageA(m_hWnd, WM_CLEAR, 0, 0); }
    void Copy() { ::SendMessageA(m_hWnd, WM_COPY, 0, 0); }
    void Cut() { ::SendMessageA(m_hWnd, WM_CUT, 0, 0); }
    void Paste() { ::SendMessageA(m_hWnd, WM_PASTE, 0, 0); }
};

class AFX_EXT_CLASS CListBox : public CWnd
{
    DECLARE_DYNAMIC(CListBox)
public:
    CListBox();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCount() const { return (int)::SendMessageA(m_hWnd, LB_GETCOUNT, 0, 0); }
    int GetCurSel() const { return (int)::SendMessageA(m_hWnd, LB_GETCURSEL, 0, 0); }
    int SetCurSel(int nSelect) { return (int)::SendMessageA(m_hWnd, LB_SETCURSEL, (WPARAM)nSelect, 0); }
    int GetSel(int nIndex) const { return (int)::SendMessageA(m_hWnd, LB_GETSEL, (WPARAM)nIndex, 0); }
    int SetSel(int nIndex, BOOL bSelect = TRUE) { return (int)::SendMessageA(m_hWnd, LB_SETSEL, (WPARAM)bSelect, (LPARAM)nIndex); }
    int GetTopIndex() const { return (int)::SendMessageA(m_hWnd, LB_GETTOPINDEX, 0, 0); }
    DWORD_PTR GetItemData(int nIndex) const { return (DWORD_PTR)::SendMessageA(m_hWnd, LB_GETITEMDATA, (WPARAM)nIndex, 0); }
    void* GetItemDataPtr(int nIndex) const { return (void*)GetItemData(nIndex); }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) { return (int)::SendMessageA(m_hWnd, LB_SETITEMDATA, (WPARAM)nIndex, (LPARAM)dwItemData); }
    int SetItemDataPtr(int nIndex, void* pData) { return SetItemData(nIndex, (DWORD_PTR)pData); }
    int GetItemRect(int nIndex, LPRECT lpRect) const { return (int)::SendMessageA(m_hWnd, LB_GETITEMRECT, (WPARAM)nIndex, (LPARAM)lpRect); }
    int GetItemHeight(int nIndex) const { return (int)::SendMessageA(m_hWnd, LB_GETITEMHEIGHT, (WPARAM)nIndex, 0); }
    int SetItemHeight(int nIndex, UINT cyItemHeight) { return (int)::SendMessageA(m_hWnd, LB_SETITEMHEIGHT, (WPARAM)nIndex, MAKELONG(cyItemHeight, 0)); }
    int GetText(int nIndex, LPSTR lpszBuffer) const { return (int)::SendMessageA(m_hWnd, LB_GETTEXT, (WPARAM)nIndex, (LPARAM)lpszBuffer); }
    void GetText(int nIndex, CString& rString) const;
    int GetTextLen(int nIndex) const { return (int)::SendMessageA(m_hWnd, LB_GETTEXTLEN, (WPARAM)nIndex, 0); }
    int AddString(LPCSTR lpszItem) { return (int)::SendMessageA(m_hWnd, LB_ADDSTRING, 0, (LPARAM)lpszItem); }
    int InsertString(int nIndex, LPCSTR lpszItem) { return (int)::SendMessageA(m_hWnd, LB_INSERTSTRING, (WPARAM)nIndex, (LPARAM)lpszItem); }
    int DeleteString(UINT nIndex) { return (int)::SendMessageA(m_hWnd, LB_DELETESTRING, (WPARAM)nIndex, 0); }
    void ResetContent() { ::SendMessageA(m_hWnd, LB_RESETCONTENT, 0, 0); }
    int FindString(int nStartAfter, LPCSTR lpszItem) const { return (int)::SendMessageA(m_hWnd, LB_FINDSTRING, (WPARAM)nStartAfter, (LPARAM)lpszItem); }
    int FindStringExact(int nIndexStart, LPCSTR lpszFind) const { return (int)::SendMessageA(m_hWnd, LB_FINDSTRINGEXACT, (WPARAM)nIndexStart, (LPARAM)lpszFind); }

    // Owner-drawn lists: called when the parent reflects the drawing messages.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);

protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
};

class AFX_EXT_CLASS CComboBox : public CWnd
{
    DECLARE_DYNAMIC(CComboBox)
public:
    CComboBox();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCount() const { return (int)::SendMessageA(m_hWnd, CB_GETCOUNT, 0, 0); }
    int GetCurSel() const { return (int)::SendMessageA(m_hWnd, CB_GETCURSEL, 0, 0); }
    int SetCurSel(int nSelect) { return (int)::SendMessageA(m_hWnd, CB_SETCURSEL, (WPARAM)nSelect, 0); }
    DWORD_PTR GetItemData(int nIndex) const { return (DWORD_PTR)::SendMessageA(m_hWnd, CB_GETITEMDATA, (WPARAM)nIndex, 0); }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) { return (int)::SendMessageA(m_hWnd, CB_SETITEMDATA, (WPARAM)nIndex, (LPARAM)dwItemData); }
    int GetLBText(int nIndex, LPSTR lpszText) const { return (int)::SendMessageA(m_hWnd, CB_GETLBTEXT, (WPARAM)nIndex, (LPARAM)lpszText); }
    void GetLBText(int nIndex, CString& rString) const;
    int GetLBTextLen(int nIndex) const { return (int)::SendMessageA(m_hWnd, CB_GETLBTEXTLEN, (WPARAM)nIndex, 0); }
    int AddString(LPCSTR lpszString) { return (int)::SendMessageA(m_hWnd, CB_ADDSTRING, 0, (LPARAM)lpszString); }
    int InsertString(int nIndex, LPCSTR lpszString) { return (int)::SendMessageA(m_hWnd, CB_INSERTSTRING, (WPARAM)nIndex, (LPARAM)lpszString); }
    int DeleteString(UINT nIndex) { return (int)::SendMessageA(m_hWnd, CB_DELETESTRING, (WPARAM)nIndex, 0); }
    void ResetContent() { ::SendMessageA(m_hWnd, CB_RESETCONTENT, 0, 0); }
    int FindString(int nStartAfter, LPCSTR lpszString) const { return (int)::SendMessageA(m_hWnd, CB_FINDSTRING, (WPARAM)nStartAfter, (LPARAM)lpszString); }
    int FindStringExact(int nIndexStart, LPCSTR lpszFind) const { return (int)::SendMessageA(m_hWnd, CB_FINDSTRINGEXACT, (WPARAM)nIndexStart, (LPARAM)lpszFind); }
    int SelectString(int nStartAfter, LPCSTR lpszString) { return (int)::SendMessageA(m_hWnd, CB_SELECTSTRING, (WPARAM)nStartAfter, (LPARAM)lpszString); }
    BOOL GetDroppedState() const { return (BOOL)::SendMessageA(m_hWnd, CB_GETDROPPEDSTATE, 0, 0); }
    void ShowDropDown(BOOL bShowIt = TRUE) { ::SendMessageA(m_hWnd, CB_SHOWDROPDOWN, (WPARAM)bShowIt, 0); }
};
