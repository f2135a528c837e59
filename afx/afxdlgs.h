// Dialogs of the layer in one include: CDialog with data exchange, property
// sheets, and the system's common dialogs for colours and fonts, as modal dialogs of the
// layer: the CHOOSECOLOR and CHOOSEFONT records are public, set up by the
// constructors and open to the caller before DoModal.
#pragma once

#include "afx/afxwnd.h"
#include "afx/afxdialog.h"
#include "afx/afxprop.h"
#include <commdlg.h>

class AFX_EXT_CLASS CCommonDialog : public CDialog
{
    DECLARE_DYNAMIC(CCommonDialog)
public:
    explicit CCommonDialog(CWnd* pParentWnd);

    // Runs the dialog; IDOK or IDCANCEL.
    virtual int DoModal() = 0;

protected:
    // The window that owns the dialog: the top-level window of the parent
    // (the system's dialogs are owned by top-level windows only), or null.
    HWND PreModal() const;
    // OK and Cancel belong to the system's dialog: OK validates the data of
    // a derived class first, then both go on to the system's handling.
    virtual void OnOK();
    virtual void OnCancel();
};

class AFX_EXT_CLASS CColorDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CColorDialog)
public:
    // dwFlags are CC_ flags; a non-zero clrInit is the colour first shown.
    // The dialog runs with the layer's hook (CC_ENABLEHOOK): its window is
    // bound to this object, so that OnInitDialog and the message map see it,
    // also on a template of the caller's (CC_ENABLETEMPLATE, with
    // m_cc.hInstance and m_cc.lpTemplateName).
    explicit CColorDialog(COLORREF clrInit = 0, DWORD dwFlags = 0, CWnd* pParentWnd = NULL);

    virtual int DoModal();
    COLORREF GetColor() const { return m_cc.rgbResult; }
    void SetCurrentColor(COLORREF clr);
    // The 16 custom colours that every colour dialog of the process shows and keeps.
    static COLORREF* PASCAL GetSavedCustomColors();

    CHOOSECOLORA m_cc;
};

// The hook of the common dialogs: WM_INITDIALOG ends in the object's
// OnInitDialog; every other message has passed the object's map before.
AFX_EXT_API UINT_PTR CALLBACK AfxCommDlgProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);

class AFX_EXT_CLASS CFontDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CFontDialog)
public:
    // With lplfInitial the dialog starts on that font and writes the chosen
    // one back into it. pdcPrinter lists the fonts of a printer as well.
    explicit CFontDialog(LPLOGFONT lplfInitial = NULL, DWORD dwFlags = CF_EFFECTS | CF_SCREENFONTS,
                         CDC* pdcPrinter = NULL, CWnd* pParentWnd = NULL);

    virtual int DoModal();
    // The font chosen (while the dialog is up: the one it shows).
    void GetCurrentFont(LPLOGFONT lplf);
    CString GetFaceName() const { return CString(m_lf.lfFaceName); }
    int GetSize() const { return m_cf.iPointSize; }   // tenths of a point
    COLORREF GetColor() const { return m_cf.rgbColors; }
    int GetWeight() const { return (int)m_lf.lfWeight; }
    BOOL IsItalic() const { return m_lf.lfItalic != 0; }

    CHOOSEFONTA m_cf;
    LOGFONT m_lf;             // the chosen font after OK
    char m_szStyleName[64];   // the style the dialog shows
};
