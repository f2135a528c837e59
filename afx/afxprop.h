// Tabbed property sheets over the system's PropertySheet: CPropertyPage, a
// child dialog made by the sheet when it is first shown, and the modal
// CPropertySheet. The PSN_ notifications of the sheet reach the page's
// virtual functions; leaving a page or pressing OK validates its data.
#pragma once

#include "afx/afxdialog.h"
#include "afx/afxtempl.h"
#include <commctrl.h>

class AFX_EXT_CLASS CPropertyPage : public CDialog
{
    DECLARE_DYNAMIC(CPropertyPage)
public:
    // The page's template is found through the resource chain; its caption
    // is the template's unless nIDCaption names a string.
    explicit CPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0);
    virtual ~CPropertyPage();

    // PSN_SETACTIVE: refills the controls from the members, except the
    // first time (OnInitDialog did it). FALSE refuses the page.
    virtual BOOL OnSetActive();
    // PSN_KILLACTIVE, when the page is left or OK is pressed: validates and
    // saves through UpdateData. FALSE keeps the page.
    virtual BOOL OnKillActive();
    // PSN_APPLY, to every page that was opened: OK was pressed.
    virtual void OnOK();
    // PSN_RESET, to every page that was opened: the sheet is cancelled.
    virtual void OnCancel();
    // Marks the page as changed (or not) for the sheet's Apply button.
    void SetModified(BOOL bChanged = TRUE);

    PROPSHEETPAGEA m_psp;   // handed to the sheet as it stands at DoModal

protected:
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);

    CString m_strCaption;
    BOOL m_bFirstSetActive;

    friend class CPropertySheet;
};

class AFX_EXT_CLASS CPropertySheet : public CWnd
{
    DECLARE_DYNAMIC(CPropertySheet)
public:
    CPropertySheet();
    explicit CPropertySheet(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    explicit CPropertySheet(LPCSTR pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    virtual ~CPropertySheet();

    // Pages are the caller's; the sheet shows them in the order of adding.
    void AddPage(CPropertyPage* pPage);
    void RemovePage(CPropertyPage* pPage);
    int GetPageCount() const { return (int)m_pages.GetSize(); }
    CPropertyPage* GetPage(int nPage) const { return m_pages[nPage]; }
    int GetPageIndex(CPropertyPage* pPage) const;
    // While the sheet runs: the page shown, and choosing one.
    CPropertyPage* GetActivePage() const;
    int GetActiveIndex() const;
    BOOL SetActivePage(int nPage);
    void SetTitle(LPCSTR lpszText, UINT nStyle = 0);

    // Runs the sheet modally: IDOK when OK closed it, IDCANCEL when it was
    // cancelled or closed, -1 when it could not be made. The owner (the
    // parent's top-level window, without a parent the main or active window)
    // is disabled while it runs.
    virtual int DoModal();

    // Called for the sheet's WM_INITDIALOG, after the system has built it.
    virtual BOOL OnInitDialog();

    PROPSHEETHEADERA m_psh;   // open to the caller before DoModal (PSH_ flags)

protected:
    void CommonConstruct(CWnd* pParentWnd, UINT iSelectPage);
    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);

    CArray<CPropertyPage*, CPropertyPage*> m_pages;
    CString m_strCaption;
    CWnd* m_pParentWnd;

    DECLARE_MESSAGE_MAP()
};
