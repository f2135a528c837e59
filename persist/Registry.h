// Registry access of the library: four helpers that read and write one
// value under a key the caller owns (or a subkey of it), through a second
// handle of their own, so that the caller's key is never closed here.
#pragma once

#include "afx/afxver.h"
#include <windows.h>

// The library's own key under HKEY_LOCAL_MACHINE: custom colours and the
// defaults of new floating labels, shared by every graph on the machine.
#define GRAPH_FIXED_KEY "SOFTWARE\\Torvanik\\Graph"

// Reads a DWORD (4 bytes, whatever the value's type says) into *pdwOut;
// any failure after the second handle was opened leaves dwDefault there.
// 0 when the key cannot be opened for reading (*pdwOut untouched), else 1.
AFX_EXT_API int RegReadDword(HKEY hKey, LPCSTR pszSubkey, LPCSTR pszValue, DWORD* pdwOut, DWORD dwDefault);
// Writes a REG_DWORD, creating the subkey when needed. 1 when the value is set.
AFX_EXT_API int RegWriteDword(HKEY hKey, LPCSTR pszSubkey, LPCSTR pszValue, DWORD dwValue);
// As RegReadDword for nSize bytes: a value missing or longer than nSize
// leaves the nSize bytes of pDefault in pOut.
AFX_EXT_API int RegReadBinary(HKEY hKey, LPCSTR pszSubkey, LPCSTR pszValue, void* pOut, const void* pDefault,
                              DWORD nSize);
// Writes a REG_BINARY of nSize bytes. 1 when the value is set.
AFX_EXT_API int RegWriteBinary(HKEY hKey, LPCSTR pszSubkey, LPCSTR pszValue, const void* pData, DWORD nSize);
