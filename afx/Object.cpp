// CObject and run-time class information: class lists per module, creation
// by name, and the kind-of test.
#include "afx/afx.h"
#include "afx/afxmodule.h"
#include <string.h>

CRuntimeClass CObject::classCObject = { "CObject", (int)sizeof(CObject), 0xFFFF, NULL, NULL, NULL };

CObject::CObject() {}
CObject::~CObject() {}

CRuntimeClass* CObject::GetRuntimeClass() const
{
    return RUNTIME_CLASS(CObject);
}

BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const
{
    return GetRuntimeClass()->IsDerivedFrom(pClass);
}

BOOL CObject::IsSerializable() const
{
    return GetRuntimeClass()->m_wSchema != 0xFFFF;
}

void CObject::Serialize(CArchive&) {}

CObject* CRuntimeClass::CreateObject()
{
    if (m_pfnCreateObject == NULL)
        return NULL;
    try {
        return (*m_pfnCreateObject)();
    } catch (CException* e) {
        e->Delete();
        return NULL;
    }
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const
{
    for (const CRuntimeClass* p = this; p != NULL; p = p->m_pBaseClass) {
        if (p == pBaseClass)
            return TRUE;
    }
    return FALSE;
}

CRuntimeClass* PASCAL CRuntimeClass::FromName(LPCSTR lpszClassName)
{
    for (CDynLinkLibrary* pDLL = AfxGetFirstDynLinkLibrary(); pDLL != NULL; pDLL = pDLL->m_pNextDLL) {
        for (CRuntimeClass* pClass = pDLL->m_pFirstClass; pClass != NULL; pClass = pClass->m_pNextClass) {
            if (strcmp(lpszClassName, pClass->m_lpszClassName) == 0)
                return pClass;
        }
    }
    for (CRuntimeClass* pClass = AfxGetPendingClasses(); pClass != NULL; pClass = pClass->m_pNextClass) {
        if (strcmp(lpszClassName, pClass->m_lpszClassName) == 0)
            return pClass;
    }
    return NULL;
}

AFX_CLASSINIT::AFX_CLASSINIT(CRuntimeClass* pNewClass)
{
    AfxRegisterPendingClass(pNewClass);
}
