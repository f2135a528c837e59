// The demo host passes one graph's settings to others the two ways a host
// can: an archive in a file, and its own registry key.
#include "demo/Copies.h"
#include "afx/afxarch.h"
#include "afx/afxfile.h"
#include <stdio.h>

int FillFromArchive(CGraph& source, CGraph& target)
{
    char szPath[MAX_PATH];
    ::GetFullPathNameA("graphdemo.archive", MAX_PATH, szPath, NULL);
    try {
        {
            CFile file(szPath, CFile::modeCreate | CFile::modeWrite);
            CArchive ar(&file, CArchive::store);
            source.Serialize(ar);
        }
        CFile file(szPath, CFile::modeRead);
        printf("graphdemo: archive of %lu bytes written to %s\n", (unsigned long)file.GetLength(), szPath);
        CArchive ar(&file, CArchive::load);
        target.Serialize(ar);
    } catch (CException* e) {
        e->Delete();
        printf("graphdemo: the archive could not be written or read\n");
        return 1;
    }
    return 0;
}

int TakeLookThroughRegistry(CGraph& source, CGraph& target)
{
    HKEY hKey = NULL;
    if (::RegCreateKeyExA(HKEY_CURRENT_USER, "Software\\ZPXGraph Demo", 0, NULL, 0, KEY_ALL_ACCESS, NULL, &hKey,
                          NULL) != ERROR_SUCCESS) {
        printf("graphdemo: no registry key of the demo\n");
        return 1;
    }
    const int nSaved = source.SaveToRegistry(hKey);
    const int nLoaded = target.LoadFromRegistry(hKey);
    ::RegCloseKey(hKey);
    printf("graphdemo: settings saved to the registry (%d) and loaded into the third graph (%d)\n", nSaved, nLoaded);
    return nSaved == 1 && nLoaded == 1 ? 0 : 1;
}
