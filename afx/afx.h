// Core of the class-library layer: CObject with run-time classes, CString,
// and the exception classes. Everything else includes this header.
#pragma once

#include "afxver.h"
#include <stddef.h>

class CArchive;
class CObject;
class CString;

// ---------------------------------------------------------------------------
// Run-time class information
// ---------------------------------------------------------------------------

struct AFX_EXT_CLASS CRuntimeClass
{
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema;                         // schema number of a serialisable class, 0xFFFF otherwise
    CObject* (PASCAL* m_pfnCreateObject)(); // null for a class that cannot be created by name
    CRuntimeClass* m_pBaseClass;
    CRuntimeClass* m_pNextClass;            // list of the classes of one module

    CObject* CreateObject();
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;

    // Finds a class by name among the classes of every library in the chain.
    static CRuntimeClass* PASCAL FromName(LPCSTR lpszClassName);
};

// Puts a class into the list of classes of the module being loaded.
struct AFX_EXT_CLASS AFX_CLASSINIT
{
    explicit AFX_CLASSINIT(CRuntimeClass* pNewClass);
};

#define RUNTIME_CLASS(class_name) ((CRuntimeClass*)(&class_name::class##class_name))

#define DECLARE_DYNAMIC(class_name) \
public: \
    static CRuntimeClass class##class_name; \
    virtual CRuntimeClass* GetRuntimeClass() const;

#define DECLARE_DYNCREATE(class_name) \
    DECLARE_DYNAMIC(class_name) \
    static CObject* PASCAL CreateObject();

#define DECLARE_SERIAL(class_name) \
    DECLARE_DYNCREATE(class_name)

#define _IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, pfnNew) \
    CRuntimeClass class_name::class##class_name = { \
        #class_name, (int)sizeof(class_name), wSchema, pfnNew, \
        RUNTIME_CLASS(base_class_name), NULL }; \
    static const AFX_CLASSINIT _init_##class_name(&class_name::class##class_name); \
    CRuntimeClass* class_name::GetRuntimeClass() const \
        { return RUNTIME_CLASS(class_name); }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name) \
    _IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, NULL)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name) \
    CObject* PASCAL class_name::CreateObject() \
        { return new class_name; } \
    _IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, class_name::CreateObject)

#define IMPLEMENT_SERIAL(class_name, base_class_name, wSchema) \
    CObject* PASCAL class_name::CreateObject() \
        { return new class_name; } \
    _IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, class_name::CreateObject)

// ---------------------------------------------------------------------------
// CObject
// ---------------------------------------------------------------------------

class AFX_EXT_CLASS CObject
{
public:
    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject();

    BOOL IsKindOf(const CRuntimeClass* pClass) const;
    BOOL IsSerializable() const;

    virtual void Serialize(CArchive& ar);

    static CRuntimeClass classCObject;

protected:
    CObject();

private:
    CObject(const CObject&) = delete;
    void operator=(const CObject&) = delete;
};

// ---------------------------------------------------------------------------
// Exceptions
// ---------------------------------------------------------------------------

class AFX_EXT_CLASS CException : public CObject
{
    DECLARE_DYNAMIC(CException)
public:
    explicit CException(BOOL bAutoDelete = TRUE);
    virtual ~CException();

    // Ends a caught exception: deletes it when it lives on the heap.
    void Delete();
    virtual BOOL GetErrorMessage(LPSTR lpszError, UINT nMaxError, PUINT pnHelpContext = NULL);

    BOOL m_bAutoDelete;
};

class AFX_EXT_CLASS CMemoryException : public CException
{
    DECLARE_DYNAMIC(CMemoryException)
public:
    CMemoryException();
    virtual ~CMemoryException();
    virtual BOOL GetErrorMessage(LPSTR lpszError, UINT nMaxError, PUINT pnHelpContext = NULL);
};

class AFX_EXT_CLASS CResourceException : public CException
{
    DECLARE_DYNAMIC(CResourceException)
public:
    CResourceException();
};

// What a validation throws after it has told the user: the catcher only ends
// the operation, it shows nothing more.
class AFX_EXT_CLASS CUserException : public CException
{
    DECLARE_DYNAMIC(CUserException)
public:
    CUserException();
};

// Throws a CMemoryException* (allocation failures everywhere in the library).
AFX_EXT_API void AFXAPI AfxThrowMemoryException();
AFX_EXT_API void AFXAPI AfxThrowResourceException();
AFX_EXT_API void AFXAPI AfxThrowUserException();

// Test facility: the (nAfter+1)-th following operator new of the library
// throws CMemoryException, once; a negative nAfter disarms it.
AFX_EXT_API void AFXAPI AfxSetAllocFailure(int nAfter);
// A test facility: the blocks that the library has allocated with new and
// not yet freed.
AFX_EXT_API LONG AFXAPI AfxGetLiveBlockCount();

// ---------------------------------------------------------------------------
// CString: a narrow string of the ANSI code page with value semantics.
// Comparisons and searches are multibyte-aware in the system's code page.
// ---------------------------------------------------------------------------

class AFX_EXT_CLASS CString
{
public:
    CString();
    CString(const CString& stringSrc);
    CString(char ch, int nRepeat = 1);
    CString(LPCSTR lpsz);          // a null pointer gives an empty string; MAKEINTRESOURCE(nID) loads string nID
    CString(LPCSTR lpch, int nLength);
    CString(const unsigned char* psz);
    ~CString();

    int GetLength() const { return m_nDataLength; }
    BOOL IsEmpty() const { return m_nDataLength == 0; }
    void Empty();

    char GetAt(int nIndex) const;
    char operator[](int nIndex) const { return GetAt(nIndex); }
    void SetAt(int nIndex, char ch);
    operator LPCSTR() const { return m_pchData; }

    const CString& operator=(const CString& stringSrc);
    const CString& operator=(char ch);
    const CString& operator=(LPCSTR lpsz);
    const CString& operator=(const unsigned char* psz);

    const CString& operator+=(const CString& string);
    const CString& operator+=(char ch);
    const CString& operator+=(LPCSTR lpsz);

    friend AFX_EXT_API CString AFXAPI operator+(const CString& string1, const CString& string2);
    friend AFX_EXT_API CString AFXAPI operator+(const CString& string, char ch);
    friend AFX_EXT_API CString AFXAPI operator+(char ch, const CString& string);
    friend AFX_EXT_API CString AFXAPI operator+(const CString& string, LPCSTR lpsz);
    friend AFX_EXT_API CString AFXAPI operator+(LPCSTR lpsz, const CString& string);

    // Multibyte-aware comparison (_mbscmp, _mbsicmp, strcoll).
    int Compare(LPCSTR lpsz) const;
    int CompareNoCase(LPCSTR lpsz) const;
    int Collate(LPCSTR lpsz) const;

    CString Mid(int nFirst, int nCount) const;
    CString Mid(int nFirst) const;
    CString Left(int nCount) const;
    CString Right(int nCount) const;
    CString SpanIncluding(LPCSTR lpszCharSet) const;
    CString SpanExcluding(LPCSTR lpszCharSet) const;

    void MakeUpper();
    void MakeLower();
    void MakeReverse();
    void TrimRight();
    void TrimLeft();

    // Searches are multibyte-aware: a trail byte never matches. -1 if not found.
    int Find(char ch) const;
    int ReverseFind(char ch) const;
    int FindOneOf(LPCSTR lpszCharSet) const;
    int Find(LPCSTR lpszSub) const;

    void AFX_CDECL Format(LPCSTR lpszFormat, ...);
    void FormatV(LPCSTR lpszFormat, va_list argList);

    // Loads a string resource through the resource chain; FALSE if absent.
    BOOL LoadString(UINT nID);

    LPSTR GetBuffer(int nMinBufLength);
    void ReleaseBuffer(int nNewLength = -1);
    LPSTR GetBufferSetLength(int nNewLength);
    void FreeExtra();

    void AnsiToOem();
    void OemToAnsi();

private:
    void AllocBuffer(int nLen);
    void AssignCopy(int nSrcLen, LPCSTR lpszSrcData);
    void ConcatInPlace(int nSrcLen, LPCSTR lpszSrcData);
    void Release();

    LPSTR m_pchData;      // always terminated; points at a shared empty text when empty
    int m_nDataLength;
    int m_nAllocLength;
};

AFX_EXT_API bool AFXAPI operator==(const CString& s1, const CString& s2);
AFX_EXT_API bool AFXAPI operator==(const CString& s1, LPCSTR s2);
AFX_EXT_API bool AFXAPI operator==(LPCSTR s1, const CString& s2);
AFX_EXT_API bool AFXAPI operator!=(const CString& s1, const CString& s2);
AFX_EXT_API bool AFXAPI operator!=(const CString& s1, LPCSTR s2);
AFX_EXT_API bool AFXAPI operator!=(LPCSTR s1, const CString& s2);
AFX_EXT_API bool AFXAPI operator<(const CString& s1, const CString& s2);
AFX_EXT_API bool AFXAPI operator>(const CString& s1, const CString& s2);
AFX_EXT_API bool AFXAPI operator<=(const CString& s1, const CString& s2);
AFX_EXT_API bool AFXAPI operator>=(const CString& s1, const CString& s2);

// ---------------------------------------------------------------------------
// Module and resources
// ---------------------------------------------------------------------------

// The module handle in which resources are looked up first (the host's own).
AFX_EXT_API HINSTANCE AFXAPI AfxGetResourceHandle();
AFX_EXT_API void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource);
AFX_EXT_API HINSTANCE AFXAPI AfxGetInstanceHandle();

// The first module of the resource chain that holds the resource, else the
// first resource handle.
AFX_EXT_API HINSTANCE AFXAPI AfxFindResourceHandle(LPCSTR lpszName, LPCSTR lpszType);

// Loads string nID through the chain into a buffer; the length, 0 if absent.
AFX_EXT_API int AFXAPI AfxLoadString(UINT nID, LPSTR lpszBuf, UINT nMaxBuf = 256);
