// The configuration file beside the library that keeps the rotating line
// colours between runs. Every failure is silent: a file that cannot be read
// leaves the defaults, one that cannot be written is not written.
#include "persist/ConfigFile.h"
#include "graph/Globals.h"
#include "afx/afxarch.h"
#include "afx/afxole.h"
#include "graph/GraphDefs.h"
#include "render/AnnotationMark.h"
#include <stdio.h>
#include <stdlib.h>

namespace {

const char s_szConfigFileName[] = "ZPXGraph.cfg";
const WCHAR s_wszContents[] = L"Contents";
const int s_nMaxLineWidth = 5;   // the widest line the line colours page accepts

// The values the line colours page can give an entry.
BOOL IsSoundEntry(const CLineColor& entry)
{
    return entry.m_nLineStyle >= PS_SOLID && entry.m_nLineStyle <= LINESTYLE_NONE && entry.m_nAnnotate >= MARK_NONE &&
           entry.m_nAnnotate <= MARK_ARROWDOWN && entry.m_nLineWidth >= 1 && entry.m_nLineWidth <= s_nMaxLineWidth &&
           (entry.m_crLine & 0xFF000000) == 0;
}

// The configuration file's path as a wide string, for the storage calls.
BOOL GetGraphConfigPathW(LPWSTR pwszPath)
{
    char szPath[MAX_PATH];
    if (!GetGraphConfigPath(szPath))
        return FALSE;
    return ::MultiByteToWideChar(CP_ACP, 0, szPath, -1, pwszPath, MAX_PATH) != 0;
}

} // namespace

BOOL GetGraphConfigPath(LPSTR pszPath)
{
    char szModule[MAX_PATH];
    const DWORD nLength = ::GetModuleFileNameA(g_hGraphInstance, szModule, MAX_PATH);
    if (nLength == 0 || nLength >= MAX_PATH)
        return FALSE;
    char szDrive[_MAX_DRIVE], szDir[_MAX_DIR], szName[_MAX_FNAME], szExt[_MAX_EXT];
    _splitpath(szModule, szDrive, szDir, szName, szExt);
    const int n = _snprintf(pszPath, MAX_PATH, "%s%s%s", szDrive, szDir, s_szConfigFileName);
    return n > 0 && n < MAX_PATH;
}

namespace {

// Runs body on an archive in nMode over the stream, which it releases;
// E_FAIL when the archive or the file gave up.
template <class Body> HRESULT OverStream(IStream* pStream, UINT nMode, Body body)
{
    COleStreamFile file;
    file.Attach(pStream);
    HRESULT hr = S_OK;
    try {
        CArchive ar(&file, nMode, 4096);
        body(ar);
        ar.Close();
    } catch (CException* e) {
        e->Delete();
        hr = E_FAIL;
    }
    file.Detach();
    file.Close();
    pStream->Release();
    return hr;
}

} // namespace

HRESULT AFXAPI ReadGraphConfig(IStorage* pStorage, CLineColor* pTable)
{
    IStream* pStream = NULL;
    HRESULT hr = pStorage->OpenStream(s_wszContents, NULL, STGM_SHARE_EXCLUSIVE | STGM_READ, 0, &pStream);
    if (FAILED(hr))
        return hr;
    return OverStream(pStream, CArchive::load, [pTable](CArchive& ar) {
        // Each record is read aside and taken only when whole and sound, so
        // a damaged one keeps its default instead of half of the file's.
        for (int i = 0; i < DEFAULT_LINE_COLORS; i++) {
            CLineColor entry;
            entry.Serialize(ar);
            if (!IsSoundEntry(entry))
                AfxThrowArchiveException(CArchiveException::generic);
            pTable[i].m_strName = entry.m_strName;
            pTable[i].m_crLine = entry.m_crLine;
            pTable[i].m_nLineStyle = entry.m_nLineStyle;
            pTable[i].m_nAnnotate = entry.m_nAnnotate;
            pTable[i].m_nLineWidth = entry.m_nLineWidth;
        }
    });
}

HRESULT AFXAPI WriteGraphConfig(IStorage* pStorage, CLineColor* pTable)
{
    IStream* pStream = NULL;
    HRESULT hr = pStorage->CreateStream(s_wszContents, STGM_SHARE_EXCLUSIVE | STGM_READWRITE, 0, 0, &pStream);
    if (FAILED(hr))
        return hr;
    return OverStream(pStream, CArchive::store, [pTable](CArchive& ar) {
        for (int i = 0; i < DEFAULT_LINE_COLORS; i++)
            pTable[i].Serialize(ar);
    });
}

BOOL LoadGraphConfig()
{
    WCHAR wszPath[MAX_PATH];
    if (g_pDefaultLineColors == NULL || !GetGraphConfigPathW(wszPath))
        return FALSE;
    IStorage* pStorage = NULL;
    if (FAILED(::StgOpenStorage(wszPath, NULL, STGM_SHARE_EXCLUSIVE | STGM_READ, NULL, 0, &pStorage)))
        return FALSE;
    const HRESULT hr = ReadGraphConfig(pStorage, g_pDefaultLineColors);
    pStorage->Release();
    return SUCCEEDED(hr);
}

BOOL SaveGraphConfig()
{
    // A process that never made a graph leaves the file as it found it.
    if (!g_bGraphCreated)
        return TRUE;
    WCHAR wszPath[MAX_PATH];
    if (g_pDefaultLineColors == NULL || !GetGraphConfigPathW(wszPath))
        return FALSE;
    IStorage* pStorage = NULL;
    if (FAILED(::StgCreateDocfile(wszPath, STGM_CREATE | STGM_SHARE_EXCLUSIVE | STGM_READWRITE, 0, &pStorage)))
        return FALSE;
    const HRESULT hr = WriteGraphConfig(pStorage, g_pDefaultLineColors);
    pStorage->Release();
    return SUCCEEDED(hr);
}
