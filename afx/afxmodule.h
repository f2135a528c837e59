// The extension-module frame: the module record of a library, the chain of
// libraries that resource look-ups and class look-ups walk, and the window
// class registration helper.
#pragma once

#include "afx/afx.h"

struct AFX_EXTENSION_MODULE
{
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource;                  // where the module's resources are looked up
    CRuntimeClass* pFirstSharedClass;   // the module's classes, made known by CDynLinkLibrary
    void* pFirstSharedFactory;          // no OLE factories in this layer; kept for the record's shape
};

// One link of the library chain. Constructing one puts the module at the head
// of the chain; AfxTermExtensionModule deletes the links of its module.
class AFX_EXT_CLASS CDynLinkLibrary : public CObject
{
    DECLARE_DYNAMIC(CDynLinkLibrary)
public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    virtual ~CDynLinkLibrary();

    HMODULE m_hModule;
    HMODULE m_hResource;
    CRuntimeClass* m_pFirstClass;
    BOOL m_bSystem;
    CDynLinkLibrary* m_pNextDLL;
};

// Called from the library entry on process attach: records the module and
// takes over the classes that its static initialisers registered.
AFX_EXT_API BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);
// Called on process detach: removes and deletes the module's links.
AFX_EXT_API void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

AFX_EXT_API CDynLinkLibrary* AFXAPI AfxGetFirstDynLinkLibrary();
AFX_EXT_API void AFXAPI AfxRegisterPendingClass(CRuntimeClass* pClass);
// Classes registered after the last module init (those of the host).
AFX_EXT_API CRuntimeClass* AFXAPI AfxGetPendingClasses();

// Registers (once) a window class with the given attributes and returns its
// generated name; the name stays valid for the life of the process.
AFX_EXT_API LPCSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = 0,
                                              HBRUSH hbrBackground = 0, HICON hIcon = 0);
