// The colour dialog that adds custom colours: the system's colour chooser on
// the library's template 14804, reduced to the colour entry fields, with a
// button that hands the colour set there to an owner window as
// WM_PICKER_ADDCOLOR (wParam 0, lParam the colour) as often as the user
// presses it. Its result as a colour dialog is not used.
#pragma once

#include "afx/afxdlgs.h"

class AFX_EXT_CLASS CmyColorDialog : public CColorDialog
{
    DECLARE_DYNAMIC(CmyColorDialog)
public:
    // pOwner is the dialog's parent and gets the added colours (may be null).
    explicit CmyColorDialog(COLORREF clrInit = 0, DWORD dwFlags = 0, CWnd* pOwner = NULL);

    CWnd* m_pOwner;

protected:
    virtual BOOL OnInitDialog();
    afx_msg void OnAddColor();
    DECLARE_MESSAGE_MAP()
};
