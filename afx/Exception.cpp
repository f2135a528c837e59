// Exception classes of the layer. Exceptions are thrown as pointers and ended
// by the catcher with Delete(), as the class library does it.
#include "afx/afx.h"
#include <string.h>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CMemoryException, CException)
IMPLEMENT_DYNAMIC(CResourceException, CException)
IMPLEMENT_DYNAMIC(CUserException, CException)

CException::CException(BOOL bAutoDelete) : m_bAutoDelete(bAutoDelete) {}
CException::~CException() {}

void CException::Delete()
{
    if (m_bAutoDelete)
        delete this;
}

BOOL CException::GetErrorMessage(LPSTR lpszError, UINT nMaxError, PUINT pnHelpContext)
{
    if (pnHelpContext != NULL)
        *pnHelpContext = 0;
    if (lpszError != NULL && nMaxError > 0)
        lpszError[0] = '\0';
    return FALSE;
}

CMemoryException::CMemoryException() {}
CMemoryException::~CMemoryException() {}

BOOL CMemoryException::GetErrorMessage(LPSTR lpszError, UINT nMaxError, PUINT pnHelpContext)
{
    if (pnHelpContext != NULL)
        *pnHelpContext = 0;
    if (lpszError == NULL || nMaxError == 0)
        return FALSE;
    lstrcpynA(lpszError, "Out of memory.", (int)nMaxError);
    return TRUE;
}

CResourceException::CResourceException() {}
CUserException::CUserException() {}

void AFXAPI AfxThrowMemoryException()
{
    // Memory is short: throw a static object that Delete() leaves alone.
    static CMemoryException s_memoryException;
    s_memoryException.m_bAutoDelete = FALSE;
    throw &s_memoryException;
}

void AFXAPI AfxThrowResourceException()
{
    throw new CResourceException;
}

void AFXAPI AfxThrowUserException()
{
    throw new CUserException;
}
