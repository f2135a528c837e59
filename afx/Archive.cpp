// CArchive: the buffer between the typed operators and the file, and the
// length-prefixed CString. Loading never trusts a length from the stream: a
// text grows with the bytes that really arrive, so a damaged prefix ends in
// endOfFile instead of a request for memory the stream could never fill.
#include "afx/afxarch.h"
#include <limits.h>
#include <string.h>

IMPLEMENT_DYNAMIC(CArchiveException, CException)

// --- CArchiveException ------------------------------------------------------

CArchiveException::CArchiveException(int cause, LPCSTR lpszArchiveName)
    : m_cause(cause), m_strFileName(lpszArchiveName)
{
}

CArchiveException::~CArchiveException() {}

BOOL CArchiveException::GetErrorMessage(LPSTR lpszError, UINT nMaxError, PUINT pnHelpContext)
{
    static const char* const s_apszCause[] = {
        "No error.", "Archive error.", "Tried to write to an archive opened for loading.",
        "Unexpected end of the archive.", "Tried to read from an archive opened for storing.",
        "Invalid index in the archive.", "Unknown class in the archive.", "Unknown schema in the archive.",
    };
    if (pnHelpContext != NULL)
        *pnHelpContext = 0;
    if (lpszError == NULL || nMaxError == 0)
        return FALSE;
    const int nCause = (m_cause >= none && m_cause <= badSchema) ? m_cause : generic;
    lstrcpynA(lpszError, s_apszCause[nCause], (int)nMaxError);
    return TRUE;
}

void AFXAPI AfxThrowArchiveException(int cause, LPCSTR lpszArchiveName)
{
    throw new CArchiveException(cause, lpszArchiveName);
}

// --- CArchive: buffer and raw bytes -----------------------------------------

CArchive::CArchive(CFile* pFile, UINT nMode, int nBufSize, void* lpBuf)
    : m_pFile(pFile), m_nMode(nMode), m_bUserBuf(lpBuf != NULL), m_nBufSize(nBufSize < 128 ? 128 : nBufSize)
{
    if (m_bUserBuf)
        m_nBufSize = nBufSize;
    m_lpBufStart = m_bUserBuf ? (BYTE*)lpBuf : new BYTE[m_nBufSize];
    m_lpBufCur = m_lpBufStart;
    m_lpBufMax = IsLoading() ? m_lpBufStart : m_lpBufStart + m_nBufSize;
}

CArchive::~CArchive()
{
    if (m_pFile != NULL && !(m_nMode & bNoFlushOnDelete)) {
        try {
            Close();
        } catch (CException* e) {
            e->Delete();
        }
    }
    if (!m_bUserBuf)
        delete[] m_lpBufStart;
}

void CArchive::CheckStoring() const
{
    if (!IsStoring())
        AfxThrowArchiveException(CArchiveException::readOnly);
}

void CArchive::CheckLoading() const
{
    if (!IsLoading())
        AfxThrowArchiveException(CArchiveException::writeOnly);
}

void CArchive::WriteBuffer()
{
    if (m_lpBufCur != m_lpBufStart)
        m_pFile->Write(m_lpBufStart, (UINT)(m_lpBufCur - m_lpBufStart));
    m_lpBufCur = m_lpBufStart;
}

void CArchive::FillBuffer(UINT nBytesNeeded)
{
    // Keep the unread bytes, move them to the front, and read behind them.
    const UINT nKept = (UINT)(m_lpBufMax - m_lpBufCur);
    memmove(m_lpBufStart, m_lpBufCur, nKept);
    m_lpBufCur = m_lpBufStart;
    m_lpBufMax = m_lpBufStart + nKept;
    while ((UINT)(m_lpBufMax - m_lpBufCur) < nBytesNeeded) {
        const UINT nRead = m_pFile->Read(m_lpBufMax, (UINT)(m_lpBufStart + m_nBufSize - m_lpBufMax));
        if (nRead == 0)
            AfxThrowArchiveException(CArchiveException::endOfFile);
        m_lpBufMax += nRead;
    }
}

UINT CArchive::Read(void* lpBuf, UINT nMax)
{
    CheckLoading();
    BYTE* pDest = (BYTE*)lpBuf;
    UINT nDone = 0;
    while (nDone < nMax) {
        if (m_lpBufCur == m_lpBufMax) {
            m_lpBufCur = m_lpBufMax = m_lpBufStart;
            const UINT nRead = m_pFile->Read(m_lpBufStart, (UINT)m_nBufSize);
            if (nRead == 0)
                break;
            m_lpBufMax += nRead;
        }
        UINT nPart = (UINT)(m_lpBufMax - m_lpBufCur);
        if (nPart > nMax - nDone)
            nPart = nMax - nDone;
        memcpy(pDest + nDone, m_lpBufCur, nPart);
        m_lpBufCur += nPart;
        nDone += nPart;
    }
    return nDone;
}

void CArchive::Write(const void* lpBuf, UINT nMax)
{
    CheckStoring();
    const BYTE* pSrc = (const BYTE*)lpBuf;
    while (nMax > 0) {
        if (m_lpBufCur == m_lpBufMax)
            WriteBuffer();
        UINT nPart = (UINT)(m_lpBufMax - m_lpBufCur);
        if (nPart > nMax)
            nPart = nMax;
        memcpy(m_lpBufCur, pSrc, nPart);
        m_lpBufCur += nPart;
        pSrc += nPart;
        nMax -= nPart;
    }
}

void CArchive::Flush()
{
    if (m_pFile == NULL)
        return;
    if (IsStoring()) {
        WriteBuffer();
    } else {
        if (m_lpBufCur != m_lpBufMax)
            m_pFile->Seek(-(LONG)(m_lpBufMax - m_lpBufCur), CFile::current);
        m_lpBufCur = m_lpBufMax = m_lpBufStart;
    }
}

void CArchive::Close()
{
    Flush();
    m_pFile = NULL;
}

void CArchive::Abort()
{
    m_lpBufCur = m_lpBufStart;
    m_lpBufMax = IsLoading() ? m_lpBufStart : m_lpBufStart + m_nBufSize;
    m_pFile = NULL;
}

// --- CArchive: numbers --------------------------------------------------------

template <class T> CArchive& CArchive::Put(T value)
{
    CheckStoring();
    if ((size_t)(m_lpBufMax - m_lpBufCur) < sizeof(T))
        WriteBuffer();
    memcpy(m_lpBufCur, &value, sizeof(T));   // the machine is little-endian, as the stream is
    m_lpBufCur += sizeof(T);
    return *this;
}

template <class T> CArchive& CArchive::Take(T& value)
{
    CheckLoading();
    if ((size_t)(m_lpBufMax - m_lpBufCur) < sizeof(T))
        FillBuffer(sizeof(T));
    memcpy(&value, m_lpBufCur, sizeof(T));
    m_lpBufCur += sizeof(T);
    return *this;
}

static_assert(sizeof(LONG) == 4 && sizeof(int) == 4 && sizeof(DWORD) == 4, "4-byte integers in the stream");

CArchive& CArchive::operator<<(BYTE by) { return Put(by); }
CArchive& CArchive::operator<<(WORD w) { return Put(w); }
CArchive& CArchive::operator<<(LONG l) { return Put(l); }
CArchive& CArchive::operator<<(DWORD dw) { return Put(dw); }
CArchive& CArchive::operator<<(float f) { return Put(f); }
CArchive& CArchive::operator<<(double d) { return Put(d); }
CArchive& CArchive::operator<<(int i) { return Put(i); }
CArchive& CArchive::operator<<(short w) { return Put(w); }
CArchive& CArchive::operator<<(char ch) { return Put(ch); }
CArchive& CArchive::operator<<(unsigned u) { return Put(u); }

CArchive& CArchive::operator>>(BYTE& by) { return Take(by); }
CArchive& CArchive::operator>>(WORD& w) { return Take(w); }
CArchive& CArchive::operator>>(LONG& l) { return Take(l); }
CArchive& CArchive::operator>>(DWORD& dw) { return Take(dw); }
CArchive& CArchive::operator>>(float& f) { return Take(f); }
CArchive& CArchive::operator>>(double& d) { return Take(d); }
CArchive& CArchive::operator>>(int& i) { return Take(i); }
CArchive& CArchive::operator>>(short& w) { return Take(w); }
CArchive& CArchive::operator>>(char& ch) { return Take(ch); }
CArchive& CArchive::operator>>(unsigned& u) { return Take(u); }

// --- CString ------------------------------------------------------------------

namespace {

// The length from a prefix, in characters; bWide when UTF-16 follows.
ULONGLONG ReadStringLength(CArchive& ar, BOOL& bWide)
{
    bWide = FALSE;
    BYTE bLength;
    WORD wLength;
    ar >> bLength;
    if (bLength < 0xFF)
        return bLength;
    ar >> wLength;
    if (wLength == 0xFFFE) {
        bWide = TRUE;
        ar >> bLength;
        if (bLength < 0xFF)
            return bLength;
        ar >> wLength;
    }
    if (wLength < 0xFFFF)
        return wLength;
    DWORD dwLength;
    ar >> dwLength;
    return dwLength;
}

// nBytes raw bytes into str, which grows at most twice as fast as bytes
// arrive. Longer than a string can hold is a damaged archive.
void ReadStringBytes(CArchive& ar, CString& str, ULONGLONG nBytes)
{
    const ULONGLONG nFirstChunk = 4096;
    ULONGLONG nDone = 0;
    while (nDone < nBytes) {
        ULONGLONG nChunk = nDone > nFirstChunk ? nDone : nFirstChunk;
        if (nChunk > nBytes - nDone)
            nChunk = nBytes - nDone;
        if (nDone + nChunk > (ULONGLONG)INT_MAX - 1)
            AfxThrowArchiveException(CArchiveException::generic);
        char* p = str.GetBuffer((int)(nDone + nChunk));
        const UINT nRead = ar.Read(p + nDone, (UINT)nChunk);
        str.ReleaseBuffer((int)(nDone + nRead));
        if (nRead < nChunk)
            AfxThrowArchiveException(CArchiveException::endOfFile);
        nDone += nChunk;
    }
}

} // namespace

CArchive& AFXAPI operator<<(CArchive& ar, const CString& string)
{
    const DWORD nLength = (DWORD)string.GetLength();
    if (nLength < 0xFF) {
        ar << (BYTE)nLength;
    } else if (nLength < 0xFFFE) {
        ar << (BYTE)0xFF;
        ar << (WORD)nLength;
    } else {
        ar << (BYTE)0xFF;
        ar << (WORD)0xFFFF;
        ar << nLength;
    }
    ar.Write((LPCSTR)string, nLength);
    return ar;
}

CArchive& AFXAPI operator>>(CArchive& ar, CString& string)
{
    BOOL bWide = FALSE;
    const ULONGLONG nLength = ReadStringLength(ar, bWide);
    CString strRead;
    ReadStringBytes(ar, strRead, bWide ? 2 * nLength : nLength);
    if (!bWide) {
        string = strRead;
        return ar;
    }
    // UTF-16 from a writer of wide strings: into the ANSI code page.
    const LPCWSTR pszWide = (LPCWSTR)(LPCSTR)strRead;
    const int nChars = (int)nLength;
    CString strNarrow;
    const int nNarrow = nChars > 0 ? ::WideCharToMultiByte(CP_ACP, 0, pszWide, nChars, NULL, 0, NULL, NULL) : 0;
    if (nNarrow > 0) {
        ::WideCharToMultiByte(CP_ACP, 0, pszWide, nChars, strNarrow.GetBuffer(nNarrow), nNarrow, NULL, NULL);
        strNarrow.ReleaseBuffer(nNarrow);
    }
    string = strNarrow;
    return ar;
}
