// CIntlString: the locale's decimal sign for numbers that were formatted
// with sprintf. Every number shown to the user passes through it, so that
// "1.5" reads "1,5" where the locale writes a comma.
#pragma once

#include "afx/afx.h"

class AFX_EXT_CLASS CIntlString
{
public:
    // Reads the decimal sign, thousands separator and negative sign of the
    // locale. m_lcid 0 stands for the user's default locale, whatever
    // locale the calling thread has.
    CIntlString();
    virtual ~CIntlString();

    // Puts the first byte of the decimal sign in place of every "." of the
    // text; nothing when the locale's sign is "." itself.
    void LocalizeDecimal(CString& str);
    void LocalizeDecimal(char* psz);

    char m_szDecimal[3];    // decimal sign of the locale, zero-terminated
    char m_szThousand[3];   // thousands separator
    char m_szNegative[3];   // negative sign
    LCID m_lcid;            // 0: the user's default locale
};

// Reads one locale text of up to two bytes into a zero-terminated buffer of
// three. A locale of 0 means the user's default locale. Shared with the
// number edits, which build their sets of accepted characters from it.
AFX_EXT_API void AFXAPI ReadLocaleSign(LCID lcid, LCTYPE lcType, char* pszSign);
