// Stand-in for the user-interface library's locale-aware number edit.
//
// CIntlEdit is an edit control for one number written in a locale's
// notation: its decimal sign and negative sign. It behaves as a plain edit
// control towards text exchange (WM_GETTEXT, WM_SETTEXT), and adds:
//
//   - keystrokes: digits, the locale's decimal sign, its negative sign, "+"
//     and the exponent letters "e" and "E" are taken, together with control
//     characters (backspace, cut and paste keys). Anything else, a
//     double-byte character included, is refused with a beep and changes
//     nothing. The text as a whole is not checked while typing.
//   - SetValue shows a number in the locale's notation.
//   - GetValue reads the text back: blanks around the number are allowed;
//     a text that is not one whole number (empty, a stray character, a
//     thousands separator, a value outside the double range) gives FALSE and
//     leaves the value untouched. The control shows no message of its own.
#pragma once

#include "afx/afxwin.h"
#include "afx/afxctrl.h"

class AFX_EXT_CLASS CIntlEdit : public CEdit
{
public:
    // lcid 0 stands for the calling thread's locale at construction.
    explicit CIntlEdit(unsigned long lcid);
    virtual ~CIntlEdit();

    // Shows dValue with nPrecision significant digits in the locale's notation.
    void SetValue(double dValue, int nPrecision = 7);
    // Reads the text as a number of the locale; FALSE when it is none.
    BOOL GetValue(double& dValue) const;

    // The same rules on a text, without a window.
    BOOL ParseText(const char* pszText, double& dValue) const;
    void FormatValue(double dValue, int nPrecision, char* pszBuffer, int nBufferSize) const;

    LCID m_lcid;            // the locale of the notation
    char m_szDecimal[3];    // its decimal sign
    char m_szNegative[3];   // its negative sign

protected:
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    BOOL IsAccepted(unsigned char ch) const;

    BOOL m_bLeadByte;       // the first byte of a double-byte character was refused

    DECLARE_MESSAGE_MAP()
};
