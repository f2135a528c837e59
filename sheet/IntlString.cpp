// CIntlString: the locale's signs, and the decimal sign put into numbers.
#include "sheet/IntlString.h"
#include <string.h>

void AFXAPI ReadLocaleSign(LCID lcid, LCTYPE lcType, char* pszSign)
{
    // The locale gives at most four bytes and a terminator; two are kept.
    char szBuffer[5];
    memset(szBuffer, 0, sizeof(szBuffer));
    // Locale 0 is the user's default locale, with the user's own choices:
    // a host that sets another locale on its thread does not change how the
    // graph writes and reads numbers.
    const LCID lcidRead = lcid != 0 ? lcid : LOCALE_USER_DEFAULT;
    if (::GetLocaleInfoA(lcidRead, lcType, szBuffer, sizeof(szBuffer)) == 0)
        szBuffer[0] = '\0';
    pszSign[0] = szBuffer[0];
    pszSign[1] = szBuffer[0] != '\0' ? szBuffer[1] : '\0';
    pszSign[2] = '\0';
}

CIntlString::CIntlString() : m_lcid(0)
{
    ReadLocaleSign(m_lcid, LOCALE_SDECIMAL, m_szDecimal);
    ReadLocaleSign(m_lcid, LOCALE_STHOUSAND, m_szThousand);
    ReadLocaleSign(m_lcid, LOCALE_SNEGATIVESIGN, m_szNegative);
    // A locale without a decimal sign keeps the point.
    if (m_szDecimal[0] == '\0')
        strcpy(m_szDecimal, ".");
}

CIntlString::~CIntlString() {}

void CIntlString::LocalizeDecimal(CString& str)
{
    if (m_szDecimal[0] == '.')
        return;
    // A point is never a trail byte of the code pages in use, but the search
    // is multibyte-aware all the same.
    for (int n = str.Find('.'); n >= 0; n = str.Find('.'))
        str.SetAt(n, m_szDecimal[0]);
}

void CIntlString::LocalizeDecimal(char* psz)
{
    if (m_szDecimal[0] == '.' || psz == NULL)
        return;
    for (unsigned char* p = (unsigned char*)psz; *p != '\0';) {
        if (::IsDBCSLeadByte(*p) && p[1] != '\0') {
            p += 2;
            continue;
        }
        if (*p == '.')
            *p = (unsigned char)m_szDecimal[0];
        ++p;
    }
}
