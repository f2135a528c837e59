// Files of the class-library layer: CFile over a Win32 file handle and the
// CFileException its failures raise. Errors are thrown as CFileException*,
// which the catcher ends with Delete().
#pragma once

#include "afx/afx.h"

class AFX_EXT_CLASS CFileException : public CException
{
    DECLARE_DYNAMIC(CFileException)
public:
    enum {
        none,
        generic,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    CFileException(int cause = CFileException::none, LONG lOsError = -1, LPCSTR lpszFileName = NULL);
    virtual ~CFileException();
    virtual BOOL GetErrorMessage(LPSTR lpszError, UINT nMaxError, PUINT pnHelpContext = NULL);

    // The cause of a system error code (GetLastError).
    static int PASCAL OsErrorToException(LONG lOsError);
    static void PASCAL ThrowOsError(LONG lOsError, LPCSTR lpszFileName = NULL);

    int m_cause;
    LONG m_lOsError;
    CString m_strFileName;
};

AFX_EXT_API void AFXAPI AfxThrowFileException(int cause, LONG lOsError = -1, LPCSTR lpszFileName = NULL);

class AFX_EXT_CLASS CFile : public CObject
{
    DECLARE_DYNAMIC(CFile)
public:
    enum OpenFlags {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareCompat = 0x0000,
        shareExclusive = 0x0010,
        shareDenyWrite = 0x0020,
        shareDenyRead = 0x0030,
        shareDenyNone = 0x0040,
        modeNoInherit = 0x0080,
        modeCreate = 0x1000,
        modeNoTruncate = 0x2000,
        typeText = 0x4000,
        typeBinary = 0x8000
    };
    enum SeekPosition { begin = 0x0, current = 0x1, end = 0x2 };

    static const HANDLE hFileNull;

    CFile();
    explicit CFile(HANDLE hFile);                    // wraps an open handle, which stays the caller's
    CFile(LPCSTR lpszFileName, UINT nOpenFlags);     // throws CFileException* when the open fails
    virtual ~CFile();                                // closes a file it opened, ignoring errors

    // FALSE on failure, with the cause in *pError when given.
    virtual BOOL Open(LPCSTR lpszFileName, UINT nOpenFlags, CFileException* pError = NULL);

    virtual DWORD GetPosition() const;
    virtual LONG Seek(LONG lOff, UINT nFrom);
    void SeekToBegin() { Seek(0, begin); }
    DWORD SeekToEnd() { return (DWORD)Seek(0, end); }
    virtual DWORD GetLength() const;
    virtual void SetLength(DWORD dwNewLen);

    // Read gives the number of bytes read, fewer at the end of the file.
    virtual UINT Read(void* lpBuf, UINT nCount);
    virtual void Write(const void* lpBuf, UINT nCount);
    virtual void Flush();
    virtual void Close();
    virtual void Abort();   // closes without reporting errors

    CString GetFilePath() const { return m_strFileName; }

    HANDLE m_hFile;

protected:
    BOOL m_bCloseOnDelete;
    CString m_strFileName;
};
