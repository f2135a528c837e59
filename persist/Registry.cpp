// The four registry helpers. Each opens its own handle on the caller's key
// (RegOpenKeyEx with an empty name gives a new handle on the same key) and
// closes only what it opened.
#include "persist/Registry.h"
#include <string.h>

namespace {

// A key handle closed when it goes out of scope.
class CRegKey
{
public:
    CRegKey() : m_hKey(NULL) {}
    ~CRegKey()
    {
        if (m_hKey != NULL)
            ::RegCloseKey(m_hKey);
    }
    HKEY m_hKey;

private:
    CRegKey(const CRegKey&) = delete;
    void operator=(const CRegKey&) = delete;
};

// Queries up to nSize bytes into pOut; FALSE for a missing value or one
// longer than nSize. The type is not looked at.
BOOL Query(HKEY hKey, LPCSTR pszSubkey, LPCSTR pszValue, void* pOut, DWORD nSize)
{
    CRegKey sub;
    if (pszSubkey != NULL) {
        if (::RegOpenKeyExA(hKey, pszSubkey, 0, KEY_READ, &sub.m_hKey) != ERROR_SUCCESS)
            return FALSE;
        hKey = sub.m_hKey;
    }
    DWORD dwType = 0, cb = nSize;
    return ::RegQueryValueExA(hKey, pszValue, NULL, &dwType, (LPBYTE)pOut, &cb) == ERROR_SUCCESS;
}

int Read(HKEY hKey, LPCSTR pszSubkey, LPCSTR pszValue, void* pOut, const void* pDefault, DWORD nSize)
{
    CRegKey own;
    if (hKey == NULL || ::RegOpenKeyExA(hKey, NULL, 0, KEY_READ, &own.m_hKey) != ERROR_SUCCESS)
        return 0;
    // The value is read into a buffer of its own: a failed query may have
    // written part of it, and the caller's default may be the output itself.
    BYTE abValue[256] = { 0 };   // a shorter value reads as its bytes and zeros
    if (nSize <= sizeof(abValue) && Query(own.m_hKey, pszSubkey, pszValue, abValue, nSize))
        memcpy(pOut, abValue, nSize);
    else
        memmove(pOut, pDefault, nSize);
    return 1;
}

int Write(HKEY hKey, LPCSTR pszSubkey, LPCSTR pszValue, DWORD dwType, const void* pData, DWORD nSize)
{
    CRegKey own;
    if (hKey == NULL || ::RegOpenKeyExA(hKey, NULL, 0, KEY_ALL_ACCESS, &own.m_hKey) != ERROR_SUCCESS)
        return 0;
    HKEY hTarget = own.m_hKey;
    CRegKey sub;
    if (pszSubkey != NULL) {
        DWORD dwDisposition = 0;
        if (::RegCreateKeyExA(own.m_hKey, pszSubkey, 0, NULL, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, NULL,
                              &sub.m_hKey, &dwDisposition) != ERROR_SUCCESS)
            return 0;
        hTarget = sub.m_hKey;
    }
    return ::RegSetValueExA(hTarget, pszValue, 0, dwType, (const BYTE*)pData, nSize) == ERROR_SUCCESS ? 1 : 0;
}

} // namespace

int RegReadDword(HKEY hKey, LPCSTR pszSubkey, LPCSTR pszValue, DWORD* pdwOut, DWORD dwDefault)
{
    return Read(hKey, pszSubkey, pszValue, pdwOut, &dwDefault, sizeof(DWORD));
}

int RegWriteDword(HKEY hKey, LPCSTR pszSubkey, LPCSTR pszValue, DWORD dwValue)
{
    return Write(hKey, pszSubkey, pszValue, REG_DWORD, &dwValue, sizeof(DWORD));
}

int RegReadBinary(HKEY hKey, LPCSTR pszSubkey, LPCSTR pszValue, void* pOut, const void* pDefault, DWORD nSize)
{
    return Read(hKey, pszSubkey, pszValue, pOut, pDefault, nSize);
}

int RegWriteBinary(HKEY hKey, LPCSTR pszSubkey, LPCSTR pszValue, const void* pData, DWORD nSize)
{
    return Write(hKey, pszSubkey, pszValue, REG_BINARY, pData, nSize);
}
