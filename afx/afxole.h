// COleStreamFile: a CFile over an IStream of structured storage, so that an
// archive can be written into a stream of a compound file or of memory.
#pragma once

#include "afx/afxfile.h"
#include <objidl.h>

class AFX_EXT_CLASS COleStreamFile : public CFile
{
    DECLARE_DYNAMIC(COleStreamFile)
public:
    // The stream, if given, is attached as by Attach.
    explicit COleStreamFile(LPSTREAM lpStream = NULL);
    virtual ~COleStreamFile();   // releases an attached stream

    // Takes over the caller's reference; Detach hands it back unreleased.
    void Attach(LPSTREAM lpStream);
    LPSTREAM Detach();
    IStream* GetStream() const { return m_lpStream; }

    // A new, empty stream in memory (on a global memory block).
    BOOL CreateMemoryStream(CFileException* pError = NULL);

    virtual DWORD GetPosition() const;
    virtual LONG Seek(LONG lOff, UINT nFrom);
    virtual DWORD GetLength() const;
    virtual void SetLength(DWORD dwNewLen);
    virtual UINT Read(void* lpBuf, UINT nCount);
    virtual void Write(const void* lpBuf, UINT nCount);
    virtual void Flush();
    virtual void Close();   // releases the stream
    virtual void Abort();

    LPSTREAM m_lpStream;
};

// Throws the CFileException* of a failed storage call.
AFX_EXT_API void AFXAPI AfxThrowOleFileException(SCODE sc);
