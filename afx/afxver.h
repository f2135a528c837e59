// Build switches of the class-library layer: Windows headers, the export
// macros shared by the layer and the graph library, assertions and tracing.
#pragma once

#ifndef STRICT
#define STRICT
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#include <assert.h>

// Classes and functions of ZPXGraph.dll: exported while the library is built,
// imported by hosts and tests that build against the same headers.
#ifdef ZPXGRAPH_BUILD
#define AFX_EXT_CLASS __declspec(dllexport)
#define AFX_EXT_API __declspec(dllexport)
#define AFX_EXT_DATA __declspec(dllexport)
#else
#define AFX_EXT_CLASS __declspec(dllimport)
#define AFX_EXT_API __declspec(dllimport)
#define AFX_EXT_DATA __declspec(dllimport)
#endif

#define AFXAPI
#define AFX_CDECL __cdecl
#define AFX_MSG_CALL

#ifdef NDEBUG
#define ASSERT(f) ((void)0)
#define VERIFY(f) ((void)(f))
#else
#define ASSERT(f) assert(f)
#define VERIFY(f) assert(f)
#endif
#define ASSERT_VALID(p) ASSERT((p) != NULL)

// Debug output: one line through OutputDebugStringA, formatted like printf.
AFX_EXT_API void AFX_CDECL AfxTrace(const char* lpszFormat, ...);
#define TRACE AfxTrace
