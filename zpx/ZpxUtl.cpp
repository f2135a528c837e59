// The satellite finder: looks for a resource DLL of a component by locale in
// the folders beside this module.
#include "zpx/ZpxUtl.h"
#include <stdio.h>
#include <string.h>

namespace {

HMODULE ThisModule()
{
    HMODULE hModule = NULL;
    ::GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         (LPCSTR)&ThisModule, &hModule);
    return hModule;
}

HINSTANCE LoadSatellite(const char* pszFolder, const GUID& guid, LCID lcid)
{
    char szPath[MAX_PATH + 64];
    int n = _snprintf(szPath, sizeof(szPath),
                      "%s\\%04X\\{%08lX-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}.dll",
                      pszFolder, (unsigned)LANGIDFROMLCID(lcid), (unsigned long)guid.Data1,
                      guid.Data2, guid.Data3, guid.Data4[0], guid.Data4[1], guid.Data4[2],
                      guid.Data4[3], guid.Data4[4], guid.Data4[5], guid.Data4[6], guid.Data4[7]);
    if (n < 0 || n >= (int)sizeof(szPath))
        return NULL;
    if (::GetFileAttributesA(szPath) == INVALID_FILE_ATTRIBUTES)
        return NULL;
    return ::LoadLibraryExA(szPath, NULL, LOAD_LIBRARY_AS_DATAFILE);
}

} // namespace

HINSTANCE GetResourceHandle(GUID guidComponent, LCID lcid)
{
    char szFolder[MAX_PATH];
    DWORD nLen = ::GetModuleFileNameA(ThisModule(), szFolder, MAX_PATH);
    if (nLen == 0 || nLen >= MAX_PATH)
        return NULL;
    char* pSlash = strrchr(szFolder, '\\');
    if (pSlash == NULL)
        return NULL;
    *pSlash = '\0';

    HINSTANCE hSatellite = LoadSatellite(szFolder, guidComponent, lcid);
    if (hSatellite == NULL) {
        LANGID langDefault = MAKELANGID(PRIMARYLANGID(LANGIDFROMLCID(lcid)), SUBLANG_DEFAULT);
        if (langDefault != LANGIDFROMLCID(lcid))
            hSatellite = LoadSatellite(szFolder, guidComponent, MAKELCID(langDefault, SORT_DEFAULT));
    }
    return hSatellite;
}
