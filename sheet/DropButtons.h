// The drop buttons of the pages: owner-drawn buttons that look like closed
// combo boxes. Each shows its present value (a colour, a line style or an
// annotation mark) beside a drop arrow, and a click opens the matching well
// under it. A page attaches one to a BS_OWNERDRAW button of its template
// with SubclassDlgItem, shows a value with SetValue and hears a choice as
// WM_PICKER_COLOR, WM_PICKER_LINESTYLE or WM_PICKER_ANNOTATION (wParam the
// control id, lParam the value).
#pragma once

#include "afx/afxctrl.h"
#include "sheet/Wells.h"
#include "sheet/ColorPalette.h"

// What the three share: the frame, the sample area, the arrow, the message
// to the dialog and the well opened on a click.
class AFX_EXT_CLASS CDropButton : public CButton, public CWellOwner
{
    DECLARE_DYNAMIC(CDropButton)
public:
    // Stores the value, repaints at once and tells the dialog.
    virtual void SetValueAndNotify(DWORD dwValue);
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    explicit CDropButton(UINT nNotifyMessage);

    virtual void StoreValue(DWORD dwValue) = 0;
    virtual DWORD GetValue() const = 0;
    // Draws the value into the sample area of an enabled button.
    virtual void DrawSample(CDC* pDC, const CRect& rectSample) = 0;
    // The sample area of a disabled button shrinks as that of an enabled one.
    virtual BOOL DeflateWhenDisabled() const { return FALSE; }
    virtual CPickerWell* MakeWell() const = 0;

    // Stores the value and repaints at once, without a message.
    void ShowValue(DWORD dwValue);

    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    DECLARE_MESSAGE_MAP()

    const UINT m_nNotifyMessage;
};

class AFX_EXT_CLASS CColorListBox : public CDropButton
{
    DECLARE_DYNAMIC(CColorListBox)
public:
    CColorListBox();
    void SetValue(COLORREF crColor) { ShowValue(crColor); }

    COLORREF m_crColor;

protected:
    virtual void StoreValue(DWORD dwValue) { m_crColor = (COLORREF)dwValue; }
    virtual DWORD GetValue() const { return m_crColor; }
    virtual void DrawSample(CDC* pDC, const CRect& rectSample);
    virtual BOOL DeflateWhenDisabled() const { return TRUE; }
    virtual CPickerWell* MakeWell() const { return new CColorWell; }
};

class AFX_EXT_CLASS CLineTypeListBox : public CDropButton
{
    DECLARE_DYNAMIC(CLineTypeListBox)
public:
    CLineTypeListBox();
    void SetValue(int nLineStyle) { ShowValue((DWORD)nLineStyle); }
    // The well offers a sixth row, pen style 5: no line.
    void SetAllowNone(BOOL bAllowNone) { m_bAllowNone = bAllowNone; }

    int m_nLineStyle;
    BOOL m_bAllowNone;

protected:
    virtual void StoreValue(DWORD dwValue) { m_nLineStyle = (int)dwValue; }
    virtual DWORD GetValue() const { return (DWORD)m_nLineStyle; }
    virtual void DrawSample(CDC* pDC, const CRect& rectSample);
    virtual CPickerWell* MakeWell() const { return new CLineTypeWell(m_bAllowNone); }
};

class AFX_EXT_CLASS CAnnotationListBox : public CDropButton
{
    DECLARE_DYNAMIC(CAnnotationListBox)
public:
    CAnnotationListBox();
    void SetValue(int nAnnotate) { ShowValue((DWORD)nAnnotate); }

    int m_nAnnotate;

protected:
    virtual void StoreValue(DWORD dwValue) { m_nAnnotate = (int)dwValue; }
    virtual DWORD GetValue() const { return (DWORD)m_nAnnotate; }
    virtual void DrawSample(CDC* pDC, const CRect& rectSample);
    virtual CPickerWell* MakeWell() const { return new CAnnotationWell; }
};
