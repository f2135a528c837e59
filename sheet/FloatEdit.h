// CFloatEdit: an edit control that refuses every keystroke that cannot be
// part of a number in the locale's notation: digits, the decimal sign and
// the negative sign. It checks characters, not the number as a whole.
#pragma once

#include "afx/afxwin.h"
#include "afx/afxctrl.h"

// High word of the WM_COMMAND that tells the parent of a refused keystroke.
#define FEN_BADINPUT 0x8000

class AFX_EXT_CLASS CFloatEdit : public CEdit
{
public:
    // lcid 0 stands for the user's default locale, whatever locale the
    // calling thread has.
    explicit CFloatEdit(LCID lcid = 0);
    virtual ~CFloatEdit();

    // Shows the value with m_nPrecision significant digits, in plain
    // notation (the runtime's "." stays).
    void SetValue(const double& dValue);

    // 1 when the (possibly double-byte) character is one of m_strValid.
    virtual int IsValidChar(const char* pszChar);
    // A keystroke was refused: tells the parent (WM_COMMAND with id and
    // FEN_BADINPUT) and beeps unless the parent answers -1.
    virtual void OnBadInput();

    char m_szChar[3];       // the character being typed, bytes of one multibyte character
    int m_nCharBytes;       // bytes of it held back so far, 0 or 1
    char m_szDecimal[3];    // decimal sign of the locale
    char m_szNegative[3];   // negative sign of the locale
    CString m_strValid;     // all accepted characters
    int m_nValid;           // its length
    LCID m_lcid;            // the locale
    int m_nPrecision;       // significant digits of SetValue

protected:
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    DECLARE_MESSAGE_MAP()
};
