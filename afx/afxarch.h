// CArchive: a buffered binary stream over a CFile, storing or loading, with
// the insertion and extraction operators of the class library. Numbers are
// written little-endian without padding; a CString goes with the class
// library's length prefix. A short read of a number or a string throws
// CArchiveException* with endOfFile; Read itself reports a short count.
#pragma once

#include "afx/afxfile.h"

class AFX_EXT_CLASS CArchiveException : public CException
{
    DECLARE_DYNAMIC(CArchiveException)
public:
    enum { none, generic, readOnly, endOfFile, writeOnly, badIndex, badClass, badSchema };

    CArchiveException(int cause = CArchiveException::none, LPCSTR lpszArchiveName = NULL);
    virtual ~CArchiveException();
    virtual BOOL GetErrorMessage(LPSTR lpszError, UINT nMaxError, PUINT pnHelpContext = NULL);

    int m_cause;
    CString m_strFileName;
};

AFX_EXT_API void AFXAPI AfxThrowArchiveException(int cause, LPCSTR lpszArchiveName = NULL);

class AFX_EXT_CLASS CArchive
{
public:
    enum Mode { store = 0, load = 1, bNoFlushOnDelete = 2, bNoByteSwap = 4 };

    // The file stays the caller's. A buffer of the caller's (lpBuf) is used
    // as it is; otherwise one of nBufSize bytes (at least 128) is made here.
    CArchive(CFile* pFile, UINT nMode, int nBufSize = 4096, void* lpBuf = NULL);
    // Closes the archive unless it was closed, aborted, or made with
    // bNoFlushOnDelete; errors of that last write are dropped.
    ~CArchive();

    BOOL IsLoading() const { return (m_nMode & load) != 0; }
    BOOL IsStoring() const { return (m_nMode & load) == 0; }
    BOOL IsBufferEmpty() const { return m_lpBufCur == m_lpBufMax; }
    CFile* GetFile() const { return m_pFile; }

    // Up to nMax bytes; fewer only at the end of the file.
    UINT Read(void* lpBuf, UINT nMax);
    void Write(const void* lpBuf, UINT nMax);
    // Storing: writes the buffer to the file. Loading: gives the bytes read
    // ahead back to the file by seeking over them.
    void Flush();
    void Close();   // Flush, then detach from the file
    void Abort();   // detach from the file, dropping what is buffered

    CArchive& operator<<(BYTE by);
    CArchive& operator<<(WORD w);
    CArchive& operator<<(LONG l);
    CArchive& operator<<(DWORD dw);
    CArchive& operator<<(float f);
    CArchive& operator<<(double d);
    CArchive& operator<<(int i);
    CArchive& operator<<(short w);
    CArchive& operator<<(char ch);
    CArchive& operator<<(unsigned u);

    CArchive& operator>>(BYTE& by);
    CArchive& operator>>(WORD& w);
    CArchive& operator>>(LONG& l);
    CArchive& operator>>(DWORD& dw);
    CArchive& operator>>(float& f);
    CArchive& operator>>(double& d);
    CArchive& operator>>(int& i);
    CArchive& operator>>(short& w);
    CArchive& operator>>(char& ch);
    CArchive& operator>>(unsigned& u);

    CFile* m_pFile;

private:
    CArchive(const CArchive&) = delete;
    void operator=(const CArchive&) = delete;

    template <class T> CArchive& Put(T value);
    template <class T> CArchive& Take(T& value);
    void CheckStoring() const;
    void CheckLoading() const;
    // Storing: the buffer's bytes to the file.
    void WriteBuffer();
    // Loading: at least nBytesNeeded bytes in the buffer, else endOfFile.
    void FillBuffer(UINT nBytesNeeded);

    UINT m_nMode;
    BOOL m_bUserBuf;
    int m_nBufSize;
    BYTE* m_lpBufStart;
    BYTE* m_lpBufCur;   // next byte to read or to write
    BYTE* m_lpBufMax;   // loading: end of the bytes read; storing: end of the buffer
};

// A narrow string with its length prefix: one byte below 255, 0xFF and a
// WORD below 0xFFFE, else 0xFF, 0xFFFF and a DWORD. Loading also accepts the
// wide form (0xFF, 0xFFFE, then a prefix counting UTF-16 characters), which
// it converts to the ANSI code page.
AFX_EXT_API CArchive& AFXAPI operator<<(CArchive& ar, const CString& string);
AFX_EXT_API CArchive& AFXAPI operator>>(CArchive& ar, CString& string);
