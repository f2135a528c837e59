// Stand-in for the utility library's satellite finder.
//
// A satellite is a resource-only DLL with the same resource numbers as the
// component, in another language. Satellites lie in a folder named by the
// locale (four hexadecimal digits, e.g. "0409") beside the module that holds
// this finder, and are named by the component's GUID in registry form:
//     <folder of ZPXGraph.dll>\0409\{7A3C29E4-5B1D-4F60-9E2A-8C41D0B7F3A5}.dll
// The exact locale is tried first, then the primary language with its default
// sub-language. The handle stays loaded for the life of the process.
#pragma once

#include "afx/afxver.h"

// The module handle of the satellite of the component for the locale, or null.
AFX_EXT_API HINSTANCE GetResourceHandle(GUID guidComponent, LCID lcid);
