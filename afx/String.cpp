// CString: a narrow, value-semantic string of the ANSI code page. Searches
// and comparisons go through the multibyte functions of the C run time, so a
// trail byte of a double-byte character never matches on its own.
#include "afx/afx.h"
#include <mbctype.h>
#include <mbstring.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

namespace {
char g_chNil[1] = { '\0' };   // shared text of every empty string; never written

// The next character: two bytes for a lead byte, but never past the end
// when a string ends in a lone lead byte.
const unsigned char* NextChar(const unsigned char* p)
{
    return _ismbblead(*p) && p[1] != '\0' ? p + 2 : p + 1;
}
}

CString::CString() : m_pchData(g_chNil), m_nDataLength(0), m_nAllocLength(0) {}

CString::CString(const CString& stringSrc) : CString()
{
    AssignCopy(stringSrc.m_nDataLength, stringSrc.m_pchData);
}

CString::CString(char ch, int nRepeat) : CString()
{
    if (nRepeat > 0) {
        AllocBuffer(nRepeat);
        memset(m_pchData, ch, nRepeat);
    }
}

CString::CString(LPCSTR lpsz) : CString()
{
    // As in the class library, MAKEINTRESOURCE(nID) loads string nID.
    if (lpsz != NULL && IS_INTRESOURCE(lpsz))
        LoadString(LOWORD((ULONG_PTR)lpsz));
    else if (lpsz != NULL)
        AssignCopy((int)strlen(lpsz), lpsz);
}

CString::CString(LPCSTR lpch, int nLength) : CString()
{
    if (lpch != NULL && nLength > 0)
        AssignCopy(nLength, lpch);
}

CString::CString(const unsigned char* psz) : CString((LPCSTR)psz) {}

CString::~CString()
{
    Release();
}

void CString::Release()
{
    if (m_pchData != g_chNil)
        free(m_pchData);
    m_pchData = g_chNil;
    m_nDataLength = 0;
    m_nAllocLength = 0;
}

void CString::AllocBuffer(int nLen)
{
    if (nLen <= 0) {
        Release();
        return;
    }
    char* p = (char*)malloc((size_t)nLen + 1);
    if (p == NULL)
        AfxThrowMemoryException();
    Release();
    m_pchData = p;
    m_pchData[nLen] = '\0';
    m_nDataLength = nLen;
    m_nAllocLength = nLen;
}

void CString::AssignCopy(int nSrcLen, LPCSTR lpszSrcData)
{
    if (nSrcLen <= 0) {
        Release();
        return;
    }
    if (nSrcLen > m_nAllocLength || m_pchData == g_chNil) {
        // The source may be part of this string: copy before releasing.
        char* p = (char*)malloc((size_t)nSrcLen + 1);
        if (p == NULL)
            AfxThrowMemoryException();
        memcpy(p, lpszSrcData, nSrcLen);
        Release();
        m_pchData = p;
        m_nAllocLength = nSrcLen;
    } else {
        memmove(m_pchData, lpszSrcData, nSrcLen);
    }
    m_nDataLength = nSrcLen;
    m_pchData[nSrcLen] = '\0';
}

void CString::ConcatInPlace(int nSrcLen, LPCSTR lpszSrcData)
{
    if (nSrcLen <= 0)
        return;
    int nNewLen = m_nDataLength + nSrcLen;
    if (nNewLen > m_nAllocLength || m_pchData == g_chNil) {
        char* p = (char*)malloc((size_t)nNewLen + 1);
        if (p == NULL)
            AfxThrowMemoryException();
        memcpy(p, m_pchData, m_nDataLength);
        memcpy(p + m_nDataLength, lpszSrcData, nSrcLen);
        int nOldLen = m_nDataLength;
        Release();
        m_pchData = p;
        m_nAllocLength = nNewLen;
        m_nDataLength = nOldLen;
    } else {
        memmove(m_pchData + m_nDataLength, lpszSrcData, nSrcLen);
    }
    m_nDataLength = nNewLen;
    m_pchData[nNewLen] = '\0';
}

void CString::Empty()
{
    Release();
}

char CString::GetAt(int nIndex) const
{
    ASSERT(nIndex >= 0 && nIndex < m_nDataLength);
    return m_pchData[nIndex];
}

void CString::SetAt(int nIndex, char ch)
{
    ASSERT(nIndex >= 0 && nIndex < m_nDataLength);
    if (nIndex >= 0 && nIndex < m_nDataLength)
        m_pchData[nIndex] = ch;
}

const CString& CString::operator=(const CString& stringSrc)
{
    if (this != &stringSrc)
        AssignCopy(stringSrc.m_nDataLength, stringSrc.m_pchData);
    return *this;
}

const CString& CString::operator=(char ch)
{
    AssignCopy(1, &ch);
    return *this;
}

const CString& CString::operator=(LPCSTR lpsz)
{
    AssignCopy(lpsz != NULL ? (int)strlen(lpsz) : 0, lpsz);
    return *this;
}

const CString& CString::operator=(const unsigned char* psz)
{
    return *this = (LPCSTR)psz;
}

const CString& CString::operator+=(const CString& string)
{
    ConcatInPlace(string.m_nDataLength, string.m_pchData);
    return *this;
}

const CString& CString::operator+=(char ch)
{
    ConcatInPlace(1, &ch);
    return *this;
}

const CString& CString::operator+=(LPCSTR lpsz)
{
    if (lpsz != NULL)
        ConcatInPlace((int)strlen(lpsz), lpsz);
    return *this;
}

CString AFXAPI operator+(const CString& string1, const CString& string2)
{
    CString s(string1);
    s += string2;
    return s;
}

CString AFXAPI operator+(const CString& string, char ch)
{
    CString s(string);
    s += ch;
    return s;
}

CString AFXAPI operator+(char ch, const CString& string)
{
    CString s(ch);
    s += string;
    return s;
}

CString AFXAPI operator+(const CString& string, LPCSTR lpsz)
{
    CString s(string);
    s += lpsz;
    return s;
}

CString AFXAPI operator+(LPCSTR lpsz, const CString& string)
{
    CString s(lpsz);
    s += string;
    return s;
}

int CString::Compare(LPCSTR lpsz) const
{
    return _mbscmp((const unsigned char*)m_pchData, (const unsigned char*)(lpsz ? lpsz : ""));
}

int CString::CompareNoCase(LPCSTR lpsz) const
{
    return _mbsicmp((const unsigned char*)m_pchData, (const unsigned char*)(lpsz ? lpsz : ""));
}

int CString::Collate(LPCSTR lpsz) const
{
    return _mbscoll((const unsigned char*)m_pchData, (const unsigned char*)(lpsz ? lpsz : ""));
}

bool AFXAPI operator==(const CString& s1, const CString& s2) { return s1.Compare(s2) == 0; }
bool AFXAPI operator==(const CString& s1, LPCSTR s2) { return s1.Compare(s2) == 0; }
bool AFXAPI operator==(LPCSTR s1, const CString& s2) { return s2.Compare(s1) == 0; }
bool AFXAPI operator!=(const CString& s1, const CString& s2) { return s1.Compare(s2) != 0; }
bool AFXAPI operator!=(const CString& s1, LPCSTR s2) { return s1.Compare(s2) != 0; }
bool AFXAPI operator!=(LPCSTR s1, const CString& s2) { return s2.Compare(s1) != 0; }
bool AFXAPI operator<(const CString& s1, const CString& s2) { return s1.Compare(s2) < 0; }
bool AFXAPI operator>(const CString& s1, const CString& s2) { return s1.Compare(s2) > 0; }
bool AFXAPI operator<=(const CString& s1, const CString& s2) { return s1.Compare(s2) <= 0; }
bool AFXAPI operator>=(const CString& s1, const CString& s2) { return s1.Compare(s2) >= 0; }

CString CString::Mid(int nFirst, int nCount) const
{
    if (nFirst < 0)
        nFirst = 0;
    if (nCount < 0)
        nCount = 0;
    if (nFirst > m_nDataLength)
        nFirst = m_nDataLength;
    if (nCount > m_nDataLength - nFirst)
        nCount = m_nDataLength - nFirst;
    return CString(m_pchData + nFirst, nCount);
}

CString CString::Mid(int nFirst) const
{
    return Mid(nFirst, m_nDataLength - (nFirst < 0 ? 0 : nFirst));
}

CString CString::Left(int nCount) const
{
    return Mid(0, nCount);
}

CString CString::Right(int nCount) const
{
    if (nCount < 0)
        nCount = 0;
    if (nCount > m_nDataLength)
        nCount = m_nDataLength;
    return CString(m_pchData + m_nDataLength - nCount, nCount);
}

// The length of the leading run of characters that are (bInSet) or are not
// in the set. Walked here by characters: not every run time's _mbsspn and
// _mbscspn honour double-byte characters (Wine's _mbscspn is a strcspn).
static int SpanLength(LPCSTR lpsz, LPCSTR lpszCharSet, bool bInSet)
{
    const unsigned char* pSet = (const unsigned char*)(lpszCharSet != NULL ? lpszCharSet : "");
    const unsigned char* p = (const unsigned char*)lpsz;
    while (*p != '\0') {
        const unsigned char* pNext = NextChar(p);
        size_t nLen = (size_t)(pNext - p);
        bool bFound = false;
        for (const unsigned char* q = pSet; *q != '\0' && !bFound; q = NextChar(q))
            bFound = (size_t)(NextChar(q) - q) == nLen && memcmp(p, q, nLen) == 0;
        if (bFound != bInSet)
            break;
        p = pNext;
    }
    return (int)((const char*)p - lpsz);
}

CString CString::SpanIncluding(LPCSTR lpszCharSet) const
{
    return Left(SpanLength(m_pchData, lpszCharSet, true));
}

CString CString::SpanExcluding(LPCSTR lpszCharSet) const
{
    return Left(SpanLength(m_pchData, lpszCharSet, false));
}

void CString::MakeUpper()
{
    if (m_pchData != g_chNil)
        _mbsupr((unsigned char*)m_pchData);
}

void CString::MakeLower()
{
    if (m_pchData != g_chNil)
        _mbslwr((unsigned char*)m_pchData);
}

void CString::MakeReverse()
{
    if (m_pchData != g_chNil)
        _mbsrev((unsigned char*)m_pchData);
}

void CString::TrimRight()
{
    // Walk forward so that a trail byte is never taken for a blank.
    const unsigned char* p = (const unsigned char*)m_pchData;
    const unsigned char* pLast = NULL;
    while (*p != '\0') {
        if (*p == ' ' || *p == '\t' || *p == '\n' || *p == '\r' || *p == '\v' || *p == '\f') {
            if (pLast == NULL)
                pLast = p;
        } else {
            pLast = NULL;
        }
        p = NextChar(p);
    }
    if (pLast != NULL) {
        int nNewLen = (int)(pLast - (const unsigned char*)m_pchData);
        if (nNewLen == 0)
            Release();
        else {
            m_pchData[nNewLen] = '\0';
            m_nDataLength = nNewLen;
        }
    }
}

void CString::TrimLeft()
{
    const char* p = m_pchData;
    while (*p == ' ' || *p == '\t' || *p == '\n' || *p == '\r' || *p == '\v' || *p == '\f')
        ++p;
    if (p != m_pchData)
        AssignCopy(m_nDataLength - (int)(p - m_pchData), p);
}

int CString::Find(char ch) const
{
    const unsigned char* p = _mbschr((const unsigned char*)m_pchData, (unsigned char)ch);
    return p == NULL ? -1 : (int)((const char*)p - m_pchData);
}

int CString::ReverseFind(char ch) const
{
    const unsigned char* p = _mbsrchr((const unsigned char*)m_pchData, (unsigned char)ch);
    return p == NULL ? -1 : (int)((const char*)p - m_pchData);
}

int CString::FindOneOf(LPCSTR lpszCharSet) const
{
    const unsigned char* p = _mbspbrk((const unsigned char*)m_pchData, (const unsigned char*)lpszCharSet);
    return p == NULL ? -1 : (int)((const char*)p - m_pchData);
}

int CString::Find(LPCSTR lpszSub) const
{
    // A match may start only at the start of a character. Walked here by
    // characters: not every run time's _mbsstr honours double-byte
    // characters (Wine's is a plain strstr).
    if (lpszSub == NULL)
        return -1;
    size_t nSub = strlen(lpszSub);
    for (const unsigned char* p = (const unsigned char*)m_pchData;; p = NextChar(p)) {
        if (strncmp((const char*)p, lpszSub, nSub) == 0)
            return (int)((const char*)p - m_pchData);
        if (*p == '\0')
            return -1;
    }
}

void AFX_CDECL CString::Format(LPCSTR lpszFormat, ...)
{
    va_list args;
    va_start(args, lpszFormat);
    FormatV(lpszFormat, args);
    va_end(args);
}

void CString::FormatV(LPCSTR lpszFormat, va_list argList)
{
    va_list args;
    va_copy(args, argList);
    int nLen = _vscprintf(lpszFormat, args);
    va_end(args);
    if (nLen <= 0) {
        Release();
        return;
    }
    char* p = (char*)malloc((size_t)nLen + 1);
    if (p == NULL)
        AfxThrowMemoryException();
    va_copy(args, argList);
    _vsnprintf(p, (size_t)nLen + 1, lpszFormat, args);
    va_end(args);
    p[nLen] = '\0';
    Release();
    m_pchData = p;
    m_nDataLength = nLen;
    m_nAllocLength = nLen;
}

BOOL CString::LoadString(UINT nID)
{
    // Try a buffer of 256 and grow while the text fills it.
    for (UINT nSize = 256;; nSize *= 2) {
        LPSTR p = GetBuffer((int)nSize);
        int nLen = AfxLoadString(nID, p, nSize);
        if ((UINT)nLen < nSize - 1 || nSize >= 65536) {
            ReleaseBuffer(nLen);
            return nLen > 0;
        }
    }
}

LPSTR CString::GetBuffer(int nMinBufLength)
{
    if (nMinBufLength < 0)
        nMinBufLength = 0;
    if (nMinBufLength > m_nAllocLength || m_pchData == g_chNil) {
        int nAlloc = nMinBufLength > m_nDataLength ? nMinBufLength : m_nDataLength;
        char* p = (char*)malloc((size_t)nAlloc + 1);
        if (p == NULL)
            AfxThrowMemoryException();
        memcpy(p, m_pchData, m_nDataLength + 1);
        int nOldLen = m_nDataLength;
        Release();
        m_pchData = p;
        m_nDataLength = nOldLen;
        m_nAllocLength = nAlloc;
    }
    return m_pchData;
}

void CString::ReleaseBuffer(int nNewLength)
{
    if (m_pchData == g_chNil)
        return;
    if (nNewLength < 0)
        nNewLength = (int)strnlen(m_pchData, (size_t)m_nAllocLength);
    if (nNewLength > m_nAllocLength)
        nNewLength = m_nAllocLength;
    m_nDataLength = nNewLength;
    m_pchData[nNewLength] = '\0';
}

LPSTR CString::GetBufferSetLength(int nNewLength)
{
    if (nNewLength < 0)
        nNewLength = 0;
    GetBuffer(nNewLength);
    if (m_pchData != g_chNil) {
        m_nDataLength = nNewLength;
        m_pchData[nNewLength] = '\0';
    }
    return m_pchData;
}

void CString::FreeExtra()
{
    if (m_nDataLength != m_nAllocLength && m_pchData != g_chNil) {
        CString copy(m_pchData, m_nDataLength);
        *this = copy;
        // operator= reuses the buffer: make a fresh one of the exact size.
        char* p = (char*)malloc((size_t)m_nDataLength + 1);
        if (p == NULL)
            return;
        memcpy(p, m_pchData, m_nDataLength + 1);
        int nLen = m_nDataLength;
        Release();
        m_pchData = p;
        m_nDataLength = m_nAllocLength = nLen;
    }
}

void CString::AnsiToOem()
{
    if (m_pchData != g_chNil)
        ::CharToOemA(m_pchData, m_pchData);
}

void CString::OemToAnsi()
{
    if (m_pchData != g_chNil)
        ::OemToCharA(m_pchData, m_pchData);
}
