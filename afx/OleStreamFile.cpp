// COleStreamFile: the CFile operations on an IStream. A failed stream call
// throws a CFileException* whose m_lOsError is the storage's result code.
#include "afx/afxole.h"

IMPLEMENT_DYNAMIC(COleStreamFile, CFile)

void AFXAPI AfxThrowOleFileException(SCODE sc)
{
    int cause = CFileException::generic;
    switch (sc) {
    case STG_E_FILENOTFOUND: cause = CFileException::fileNotFound; break;
    case STG_E_PATHNOTFOUND: cause = CFileException::badPath; break;
    case STG_E_TOOMANYOPENFILES: cause = CFileException::tooManyOpenFiles; break;
    case STG_E_ACCESSDENIED: cause = CFileException::accessDenied; break;
    case STG_E_INVALIDHANDLE: cause = CFileException::fileNotFound; break;
    case STG_E_SEEKERROR: cause = CFileException::badSeek; break;
    case STG_E_READFAULT:
    case STG_E_WRITEFAULT: cause = CFileException::hardIO; break;
    case STG_E_SHAREVIOLATION: cause = CFileException::sharingViolation; break;
    case STG_E_LOCKVIOLATION: cause = CFileException::lockViolation; break;
    case STG_E_MEDIUMFULL: cause = CFileException::diskFull; break;
    default: break;
    }
    AfxThrowFileException(cause, (LONG)sc);
}

COleStreamFile::COleStreamFile(LPSTREAM lpStream) : m_lpStream(lpStream) {}

COleStreamFile::~COleStreamFile()
{
    Abort();
}

void COleStreamFile::Attach(LPSTREAM lpStream)
{
    ASSERT(m_lpStream == NULL);
    m_lpStream = lpStream;
}

LPSTREAM COleStreamFile::Detach()
{
    LPSTREAM lpStream = m_lpStream;
    m_lpStream = NULL;
    return lpStream;
}

BOOL COleStreamFile::CreateMemoryStream(CFileException* pError)
{
    LPSTREAM lpStream = NULL;
    const SCODE sc = ::CreateStreamOnHGlobal(NULL, TRUE, &lpStream);
    if (FAILED(sc)) {
        if (pError != NULL) {
            pError->m_cause = CFileException::generic;
            pError->m_lOsError = (LONG)sc;
        }
        return FALSE;
    }
    Abort();
    m_lpStream = lpStream;
    return TRUE;
}

DWORD COleStreamFile::GetPosition() const
{
    LARGE_INTEGER liOff;
    liOff.QuadPart = 0;
    ULARGE_INTEGER liPos;
    const SCODE sc = m_lpStream->Seek(liOff, STREAM_SEEK_CUR, &liPos);
    if (FAILED(sc))
        AfxThrowOleFileException(sc);
    return liPos.LowPart;
}

LONG COleStreamFile::Seek(LONG lOff, UINT nFrom)
{
    LARGE_INTEGER liOff;
    liOff.QuadPart = lOff;
    ULARGE_INTEGER liPos;
    // The seek origins of CFile and of IStream have the same values.
    const SCODE sc = m_lpStream->Seek(liOff, nFrom, &liPos);
    if (FAILED(sc))
        AfxThrowOleFileException(sc);
    return (LONG)liPos.LowPart;
}

DWORD COleStreamFile::GetLength() const
{
    STATSTG stat;
    const SCODE sc = m_lpStream->Stat(&stat, STATFLAG_NONAME);
    if (FAILED(sc))
        AfxThrowOleFileException(sc);
    return stat.cbSize.LowPart;
}

void COleStreamFile::SetLength(DWORD dwNewLen)
{
    ULARGE_INTEGER liSize;
    liSize.QuadPart = dwNewLen;
    const SCODE sc = m_lpStream->SetSize(liSize);
    if (FAILED(sc))
        AfxThrowOleFileException(sc);
}

UINT COleStreamFile::Read(void* lpBuf, UINT nCount)
{
    ULONG nRead = 0;
    const SCODE sc = m_lpStream->Read(lpBuf, nCount, &nRead);
    if (FAILED(sc))
        AfxThrowOleFileException(sc);
    return nRead;
}

void COleStreamFile::Write(const void* lpBuf, UINT nCount)
{
    ULONG nWritten = 0;
    const SCODE sc = m_lpStream->Write(lpBuf, nCount, &nWritten);
    if (FAILED(sc))
        AfxThrowOleFileException(sc);
    if (nWritten != nCount)
        AfxThrowFileException(CFileException::diskFull);
}

void COleStreamFile::Flush()
{
    const SCODE sc = m_lpStream->Commit(STGC_DEFAULT);
    if (FAILED(sc))
        AfxThrowOleFileException(sc);
}

void COleStreamFile::Close()
{
    Abort();
}

void COleStreamFile::Abort()
{
    if (m_lpStream != NULL)
        m_lpStream->Release();
    m_lpStream = NULL;
}
