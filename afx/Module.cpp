// The library chain: module records, the links that CDynLinkLibrary makes,
// and the resource look-ups that walk them (strings, menus, dialogs).
#include "afx/afxmodule.h"
#include <stdio.h>

namespace {

// Process-wide state of the layer. It lives inside the library and is
// touched only on the thread that loads libraries and creates windows.
struct ModuleState {
    CDynLinkLibrary* pFirstDLL = NULL;     // head of the chain
    CRuntimeClass* pPendingClasses = NULL; // classes registered since the last module init
    HINSTANCE hResource = NULL;            // first place to look; the host's module by default
};

ModuleState& State()
{
    static ModuleState state;
    return state;
}

HINSTANCE FindInChain(LPCSTR lpszName, LPCSTR lpszType)
{
    HINSTANCE hInst = AfxGetResourceHandle();
    if (::FindResourceA(hInst, lpszName, lpszType) != NULL)
        return hInst;
    // The links of ordinary libraries first, then those of system libraries,
    // each group from the head of the chain.
    for (int nPass = 0; nPass < 2; nPass++) {
        BOOL bSystem = nPass == 1;
        for (CDynLinkLibrary* pDLL = State().pFirstDLL; pDLL != NULL; pDLL = pDLL->m_pNextDLL) {
            if (!pDLL->m_bSystem == !bSystem && pDLL->m_hResource != NULL &&
                ::FindResourceA(pDLL->m_hResource, lpszName, lpszType) != NULL)
                return pDLL->m_hResource;
        }
    }
    return hInst;
}

} // namespace

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CObject)

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem)
    : m_hModule(state.hModule), m_hResource(state.hResource),
      m_pFirstClass(state.pFirstSharedClass), m_bSystem(bSystem), m_pNextDLL(NULL)
{
    // Extensions go in front of what is already in the chain.
    m_pNextDLL = State().pFirstDLL;
    State().pFirstDLL = this;
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    CDynLinkLibrary** pp = &State().pFirstDLL;
    while (*pp != NULL && *pp != this)
        pp = &(*pp)->m_pNextDLL;
    if (*pp == this)
        *pp = m_pNextDLL;
}

BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule)
{
    if (state.bInitialized)
        return TRUE;
    state.bInitialized = TRUE;
    state.hModule = hModule;
    state.hResource = hModule;
    // The classes constructed so far are this module's.
    state.pFirstSharedClass = State().pPendingClasses;
    State().pPendingClasses = NULL;
    state.pFirstSharedFactory = NULL;
    return TRUE;
}

void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL)
{
    if (!state.bInitialized)
        return;
    CDynLinkLibrary* pDLL = State().pFirstDLL;
    while (pDLL != NULL) {
        CDynLinkLibrary* pNext = pDLL->m_pNextDLL;
        if (pDLL->m_hModule == state.hModule)
            delete pDLL;   // unlinks itself
        pDLL = pNext;
    }
    state.bInitialized = FALSE;
}

CDynLinkLibrary* AFXAPI AfxGetFirstDynLinkLibrary()
{
    return State().pFirstDLL;
}

void AFXAPI AfxRegisterPendingClass(CRuntimeClass* pClass)
{
    // Keep declaration order: append at the end.
    CRuntimeClass** pp = &State().pPendingClasses;
    while (*pp != NULL)
        pp = &(*pp)->m_pNextClass;
    pClass->m_pNextClass = NULL;
    *pp = pClass;
}

CRuntimeClass* AFXAPI AfxGetPendingClasses()
{
    return State().pPendingClasses;
}

HINSTANCE AFXAPI AfxGetResourceHandle()
{
    if (State().hResource == NULL)
        State().hResource = ::GetModuleHandleA(NULL);
    return State().hResource;
}

void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource)
{
    State().hResource = hInstResource;
}

HINSTANCE AFXAPI AfxGetInstanceHandle()
{
    return ::GetModuleHandleA(NULL);
}

HINSTANCE AFXAPI AfxFindResourceHandle(LPCSTR lpszName, LPCSTR lpszType)
{
    return FindInChain(lpszName, lpszType);
}

int AFXAPI AfxLoadString(UINT nID, LPSTR lpszBuf, UINT nMaxBuf)
{
    // Strings lie in blocks of 16: block n holds the ids 16(n-1) to 16n-1.
    HINSTANCE hInst = FindInChain(MAKEINTRESOURCEA((nID >> 4) + 1), (LPCSTR)RT_STRING);
    int nLen = ::LoadStringA(hInst, nID, lpszBuf, (int)nMaxBuf);
    if (nLen == 0 && nMaxBuf > 0)
        lpszBuf[0] = '\0';
    return nLen;
}

void AFX_CDECL AfxTrace(const char* lpszFormat, ...)
{
    char buf[512];
    va_list args;
    va_start(args, lpszFormat);
    _vsnprintf(buf, sizeof(buf) - 1, lpszFormat, args);
    va_end(args);
    buf[sizeof(buf) - 1] = '\0';
    ::OutputDebugStringA(buf);
}
