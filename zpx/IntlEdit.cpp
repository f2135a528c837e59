// CIntlEdit: number edit in a locale's notation (stand-in for the user
// interface library).
#include "zpx/IntlEdit.h"
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

namespace {

void ReadSign(LCID lcid, LCTYPE lcType, char* pszSign, char chDefault)
{
    char szBuffer[5];
    memset(szBuffer, 0, sizeof(szBuffer));
    if (::GetLocaleInfoA(lcid, lcType, szBuffer, sizeof(szBuffer)) == 0 || szBuffer[0] == '\0') {
        szBuffer[0] = chDefault;
        szBuffer[1] = '\0';
    }
    pszSign[0] = szBuffer[0];
    pszSign[1] = szBuffer[1];
    pszSign[2] = '\0';
}

} // namespace

BEGIN_MESSAGE_MAP(CIntlEdit, CEdit)
    ON_WM_CHAR()
END_MESSAGE_MAP()

CIntlEdit::CIntlEdit(unsigned long lcid) : m_lcid(lcid != 0 ? (LCID)lcid : ::GetThreadLocale()), m_bLeadByte(FALSE)
{
    ReadSign(m_lcid, LOCALE_SDECIMAL, m_szDecimal, '.');
    ReadSign(m_lcid, LOCALE_SNEGATIVESIGN, m_szNegative, '-');
}

CIntlEdit::~CIntlEdit() {}

BOOL CIntlEdit::IsAccepted(unsigned char ch) const
{
    if (ch >= '0' && ch <= '9')
        return TRUE;
    if (ch == '+' || ch == 'e' || ch == 'E')
        return TRUE;
    // Signs of one byte only: a double-byte sign cannot be typed.
    if (m_szDecimal[1] == '\0' && ch == (unsigned char)m_szDecimal[0])
        return TRUE;
    if (m_szNegative[1] == '\0' && ch == (unsigned char)m_szNegative[0])
        return TRUE;
    return FALSE;
}

void CIntlEdit::OnChar(UINT nChar, UINT, UINT)
{
    const unsigned char ch = (unsigned char)(nChar & 0xFF);
    if (m_bLeadByte) {
        // The second byte of a refused double-byte character.
        m_bLeadByte = FALSE;
        return;
    }
    if (nChar < 32) {
        Default();
        return;
    }
    if (::IsDBCSLeadByte(ch)) {
        m_bLeadByte = TRUE;
        ::MessageBeep(MB_OK);
        return;
    }
    if (!IsAccepted(ch)) {
        ::MessageBeep(MB_OK);
        return;
    }
    Default();
}

void CIntlEdit::FormatValue(double dValue, int nPrecision, char* pszBuffer, int nBufferSize) const
{
    if (pszBuffer == NULL || nBufferSize <= 0)
        return;
    if (nPrecision < 1)
        nPrecision = 1;
    if (nPrecision > 17)
        nPrecision = 17;
    char szPlain[64];
    _snprintf(szPlain, sizeof(szPlain) - 1, "%.*g", nPrecision, dValue);
    szPlain[sizeof(szPlain) - 1] = '\0';

    // Plain notation to the locale's: its decimal and negative signs.
    int n = 0;
    for (const char* p = szPlain; *p != '\0'; ++p) {
        const char* pszPart = NULL;
        char szOne[2] = { *p, '\0' };
        if (*p == '.')
            pszPart = m_szDecimal;
        else if (*p == '-')
            pszPart = m_szNegative;
        else
            pszPart = szOne;
        for (const char* q = pszPart; *q != '\0'; ++q) {
            if (n + 1 >= nBufferSize)
                break;
            pszBuffer[n++] = *q;
        }
    }
    pszBuffer[n] = '\0';
}

void CIntlEdit::SetValue(double dValue, int nPrecision)
{
    char szBuffer[96];
    FormatValue(dValue, nPrecision, szBuffer, sizeof(szBuffer));
    SetWindowText(szBuffer);
}

BOOL CIntlEdit::ParseText(const char* pszText, double& dValue) const
{
    if (pszText == NULL)
        return FALSE;
    // The locale's notation to plain notation, then one whole number.
    char szPlain[128];
    const size_t nDecimal = strlen(m_szDecimal);
    const size_t nNegative = strlen(m_szNegative);
    size_t n = 0;
    for (const char* p = pszText; *p != '\0';) {
        if (n + 1 >= sizeof(szPlain))
            return FALSE;   // far longer than any number
        if (strncmp(p, m_szDecimal, nDecimal) == 0) {
            szPlain[n++] = '.';
            p += nDecimal;
        } else if (strncmp(p, m_szNegative, nNegative) == 0) {
            szPlain[n++] = '-';
            p += nNegative;
        } else if (*p == '.' || *p == ',') {
            return FALSE;   // a point or comma that is not this locale's decimal sign
        } else {
            szPlain[n++] = *p++;
        }
    }
    szPlain[n] = '\0';

    char* pszEnd = szPlain;
    double d = strtod(szPlain, &pszEnd);
    if (pszEnd == szPlain || !isfinite(d))
        return FALSE;
    while (*pszEnd == ' ' || *pszEnd == '\t')
        ++pszEnd;
    if (*pszEnd != '\0')
        return FALSE;
    dValue = d;
    return TRUE;
}

BOOL CIntlEdit::GetValue(double& dValue) const
{
    char szText[128];
    int nLength = ::GetWindowTextLengthA(m_hWnd);
    if (nLength <= 0 || nLength >= (int)sizeof(szText))
        return FALSE;
    ::GetWindowTextA(m_hWnd, szText, sizeof(szText));
    return ParseText(szText, dValue);
}
