// CFile: a thin owner of a Win32 file handle. Every failure of the system
// becomes a CFileException* with the system's error code.
#include "afx/afxfile.h"

IMPLEMENT_DYNAMIC(CFileException, CException)
IMPLEMENT_DYNAMIC(CFile, CObject)

// --- CFileException ---------------------------------------------------------

CFileException::CFileException(int cause, LONG lOsError, LPCSTR lpszFileName)
    : m_cause(cause), m_lOsError(lOsError), m_strFileName(lpszFileName)
{
}

CFileException::~CFileException() {}

BOOL CFileException::GetErrorMessage(LPSTR lpszError, UINT nMaxError, PUINT pnHelpContext)
{
    if (pnHelpContext != NULL)
        *pnHelpContext = 0;
    if (lpszError == NULL || nMaxError == 0)
        return FALSE;
    lpszError[0] = '\0';
    if (m_lOsError == -1)
        return FALSE;
    return ::FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, NULL, (DWORD)m_lOsError, 0,
                            lpszError, nMaxError, NULL) != 0;
}

int PASCAL CFileException::OsErrorToException(LONG lOsError)
{
    switch (lOsError) {
    case NO_ERROR: return none;
    case ERROR_FILE_NOT_FOUND: return fileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME: return badPath;
    case ERROR_TOO_MANY_OPEN_FILES: return tooManyOpenFiles;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT: return accessDenied;
    case ERROR_INVALID_HANDLE: return fileNotFound;
    case ERROR_CURRENT_DIRECTORY: return removeCurrentDir;
    case ERROR_CANNOT_MAKE: return directoryFull;
    case ERROR_NEGATIVE_SEEK:
    case ERROR_SEEK: return badSeek;
    case ERROR_CRC:
    case ERROR_READ_FAULT:
    case ERROR_WRITE_FAULT: return hardIO;
    case ERROR_SHARING_VIOLATION: return sharingViolation;
    case ERROR_LOCK_VIOLATION: return lockViolation;
    case ERROR_HANDLE_DISK_FULL:
    case ERROR_DISK_FULL: return diskFull;
    case ERROR_HANDLE_EOF: return endOfFile;
    default: return generic;
    }
}

void PASCAL CFileException::ThrowOsError(LONG lOsError, LPCSTR lpszFileName)
{
    if (lOsError != NO_ERROR)
        AfxThrowFileException(OsErrorToException(lOsError), lOsError, lpszFileName);
}

void AFXAPI AfxThrowFileException(int cause, LONG lOsError, LPCSTR lpszFileName)
{
    throw new CFileException(cause, lOsError, lpszFileName);
}

// --- CFile ------------------------------------------------------------------

const HANDLE CFile::hFileNull = INVALID_HANDLE_VALUE;

CFile::CFile() : m_hFile(hFileNull), m_bCloseOnDelete(FALSE) {}

CFile::CFile(HANDLE hFile) : m_hFile(hFile), m_bCloseOnDelete(FALSE) {}

CFile::CFile(LPCSTR lpszFileName, UINT nOpenFlags) : CFile()
{
    CFileException e;
    if (!Open(lpszFileName, nOpenFlags, &e))
        AfxThrowFileException(e.m_cause, e.m_lOsError, e.m_strFileName);
}

CFile::~CFile()
{
    if (m_hFile != hFileNull && m_bCloseOnDelete)
        Abort();
}

BOOL CFile::Open(LPCSTR lpszFileName, UINT nOpenFlags, CFileException* pError)
{
    m_bCloseOnDelete = FALSE;
    m_hFile = hFileNull;
    m_strFileName = lpszFileName;

    DWORD dwAccess = GENERIC_READ;
    switch (nOpenFlags & 3) {
    case modeWrite: dwAccess = GENERIC_WRITE; break;
    case modeReadWrite: dwAccess = GENERIC_READ | GENERIC_WRITE; break;
    default: break;
    }
    DWORD dwShare = 0;
    switch (nOpenFlags & 0x70) {
    case shareDenyWrite: dwShare = FILE_SHARE_READ; break;
    case shareDenyRead: dwShare = FILE_SHARE_WRITE; break;
    case shareDenyNone: dwShare = FILE_SHARE_READ | FILE_SHARE_WRITE; break;
    default: break;   // compatibility and exclusive both share nothing
    }
    SECURITY_ATTRIBUTES sa = { sizeof(sa), NULL, (nOpenFlags & modeNoInherit) == 0 };
    DWORD dwCreate = OPEN_EXISTING;
    if (nOpenFlags & modeCreate)
        dwCreate = (nOpenFlags & modeNoTruncate) ? OPEN_ALWAYS : CREATE_ALWAYS;

    HANDLE hFile = ::CreateFileA(lpszFileName, dwAccess, dwShare, &sa, dwCreate, FILE_ATTRIBUTE_NORMAL, NULL);
    if (hFile == INVALID_HANDLE_VALUE) {
        if (pError != NULL) {
            pError->m_lOsError = (LONG)::GetLastError();
            pError->m_cause = CFileException::OsErrorToException(pError->m_lOsError);
            pError->m_strFileName = lpszFileName;
        }
        return FALSE;
    }
    m_hFile = hFile;
    m_bCloseOnDelete = TRUE;
    return TRUE;
}

DWORD CFile::GetPosition() const
{
    const DWORD dwPos = ::SetFilePointer(m_hFile, 0, NULL, FILE_CURRENT);
    if (dwPos == INVALID_SET_FILE_POINTER)
        CFileException::ThrowOsError((LONG)::GetLastError(), m_strFileName);
    return dwPos;
}

LONG CFile::Seek(LONG lOff, UINT nFrom)
{
    const DWORD dwPos = ::SetFilePointer(m_hFile, lOff, NULL, (DWORD)nFrom);
    if (dwPos == INVALID_SET_FILE_POINTER)
        CFileException::ThrowOsError((LONG)::GetLastError(), m_strFileName);
    return (LONG)dwPos;
}

DWORD CFile::GetLength() const
{
    const DWORD dwLen = ::GetFileSize(m_hFile, NULL);
    if (dwLen == INVALID_FILE_SIZE)
        CFileException::ThrowOsError((LONG)::GetLastError(), m_strFileName);
    return dwLen;
}

void CFile::SetLength(DWORD dwNewLen)
{
    Seek((LONG)dwNewLen, begin);
    if (!::SetEndOfFile(m_hFile))
        CFileException::ThrowOsError((LONG)::GetLastError(), m_strFileName);
}

UINT CFile::Read(void* lpBuf, UINT nCount)
{
    if (nCount == 0)
        return 0;
    DWORD dwRead = 0;
    if (!::ReadFile(m_hFile, lpBuf, nCount, &dwRead, NULL))
        CFileException::ThrowOsError((LONG)::GetLastError(), m_strFileName);
    return dwRead;
}

void CFile::Write(const void* lpBuf, UINT nCount)
{
    if (nCount == 0)
        return;
    DWORD dwWritten = 0;
    if (!::WriteFile(m_hFile, lpBuf, nCount, &dwWritten, NULL))
        CFileException::ThrowOsError((LONG)::GetLastError(), m_strFileName);
    if (dwWritten != nCount)
        AfxThrowFileException(CFileException::diskFull, -1, m_strFileName);
}

void CFile::Flush()
{
    if (m_hFile != hFileNull && !::FlushFileBuffers(m_hFile))
        CFileException::ThrowOsError((LONG)::GetLastError(), m_strFileName);
}

void CFile::Close()
{
    BOOL bError = FALSE;
    if (m_hFile != hFileNull)
        bError = !::CloseHandle(m_hFile);
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
    if (bError)
        CFileException::ThrowOsError((LONG)::GetLastError());
}

void CFile::Abort()
{
    if (m_hFile != hFileNull)
        ::CloseHandle(m_hFile);
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
}
