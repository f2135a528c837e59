// FormatNumber: number formats checked before the runtime sees them.
#include "render/NumberFormat.h"
#include "graph/GraphDefs.h"
#include <stdio.h>
#include <string.h>

namespace {

// The flags a conversion may carry, each written once when it is rebuilt.
const char szFlags[] = "-+ #0";
const int nFlags = sizeof(szFlags) - 1;

// One conversion as the runtime gets it: "%", the flags, two numbers of at
// most two digits, a point and the type.
const int nConversionBuffer = 16;

// The widest text of one conversion: "%f" of the largest double has 309
// digits, with a sign, a point and NUMFMT_MAX_PRECISION decimals.
const int nNumberBuffer = 400;

// Reads the digits at p as a number of at most nMax into nValue; p moves
// past them. No digits leave nValue as it was. FALSE when the number is
// larger than nMax.
BOOL ReadBoundedNumber(const char*& p, int nMax, int& nValue)
{
    if (*p < '0' || *p > '9')
        return TRUE;
    int n = 0;
    for (; *p >= '0' && *p <= '9'; ++p) {
        n = n * 10 + (*p - '0');
        if (n > nMax)
            return FALSE;
    }
    nValue = n;
    return TRUE;
}

// Reads the conversion whose "%" stands just before p and writes it again
// into pszConversion. Returns where the format goes on behind it, or NULL
// when it is not a conversion of a double within the bounds.
const char* ReadConversion(const char* p, char* pszConversion)
{
    BOOL abFlag[nFlags] = {};
    for (const char* pFlag; *p != '\0' && (pFlag = strchr(szFlags, *p)) != NULL; ++p)
        abFlag[pFlag - szFlags] = TRUE;
    int nWidth = -1, nPrecision = -1;
    if (!ReadBoundedNumber(p, NUMFMT_MAX_WIDTH, nWidth))
        return NULL;
    if (*p == '.') {
        ++p;
        nPrecision = 0;
        if (!ReadBoundedNumber(p, NUMFMT_MAX_PRECISION, nPrecision))
            return NULL;
    }
    if (*p == 'l')
        ++p;
    if (*p == '\0' || strchr("eEfgG", *p) == NULL)
        return NULL;

    char* q = pszConversion;
    *q++ = '%';
    for (int i = 0; i < nFlags; i++)
        if (abFlag[i])
            *q++ = szFlags[i];
    if (nWidth >= 0)
        q += sprintf(q, "%d", nWidth);
    if (nPrecision >= 0)
        q += sprintf(q, ".%d", nPrecision);
    *q++ = *p;
    *q = '\0';
    return p + 1;
}

// The one conversion of a format, rebuilt into pszConversion, and where it
// stands in the format; FALSE when the format is refused.
BOOL FindConversion(const char* pszFormat, char* pszConversion, const char*& pBegin, const char*& pEnd)
{
    pBegin = pEnd = NULL;
    if (pszFormat == NULL)
        return FALSE;
    for (const char* p = pszFormat; *p != '\0';) {
        if (::IsDBCSLeadByte((BYTE)*p) && p[1] != '\0') {
            p += 2;
            continue;
        }
        if (*p != '%') {
            ++p;
            continue;
        }
        if (p[1] == '%') {
            p += 2;
            continue;
        }
        if (pBegin != NULL)
            return FALSE;   // a second conversion
        pBegin = p;
        p = ReadConversion(p + 1, pszConversion);
        if (p == NULL)
            return FALSE;
        pEnd = p;
    }
    return pBegin != NULL;
}

// Appends the text [p, pEnd) to the output, counting also what does not
// fit. Text of the format has its "%%" written as "%"; a double-byte
// character is copied whole, as FindConversion stepped over it.
void AppendText(const char* p, const char* pEnd, BOOL bFormatText, char* pszBuffer, int nBuffer, int& nLength)
{
    while (p < pEnd) {
        int nBytes = 1;
        if (::IsDBCSLeadByte((BYTE)*p) && p + 1 < pEnd)
            nBytes = 2;
        else if (bFormatText && *p == '%')
            ++p;   // the first of "%%"
        for (; nBytes > 0; nBytes--, p++, nLength++)
            if (nLength < nBuffer)
                pszBuffer[nLength] = *p;
    }
}

} // namespace

int AFXAPI IsNumberFormat(const char* pszFormat)
{
    char szConversion[nConversionBuffer];
    const char *pBegin, *pEnd;
    return FindConversion(pszFormat, szConversion, pBegin, pEnd) ? 1 : 0;
}

int AFXAPI FormatNumber(char* pszBuffer, int nBuffer, const char* pszFormat, double dValue)
{
    if (pszBuffer == NULL || nBuffer <= 0)
        return -1;
    pszBuffer[0] = '\0';
    char szConversion[nConversionBuffer];
    const char *pBegin, *pEnd;
    if (!FindConversion(pszFormat, szConversion, pBegin, pEnd))
        return -1;

    char szNumber[nNumberBuffer];
    const int nNumber = _snprintf(szNumber, sizeof(szNumber) - 1, szConversion, dValue);
    if (nNumber < 0)
        return -1;   // not reached within the bounds
    szNumber[nNumber] = '\0';

    int nLength = 0;
    AppendText(pszFormat, pBegin, TRUE, pszBuffer, nBuffer, nLength);
    AppendText(szNumber, szNumber + nNumber, FALSE, pszBuffer, nBuffer, nLength);
    AppendText(pEnd, pEnd + strlen(pEnd), TRUE, pszBuffer, nBuffer, nLength);
    pszBuffer[nLength < nBuffer ? nLength : 0] = '\0';
    return nLength;
}
