// Process-wide data of the library: the module record, the module handle,
// the colour tables and the flag that gates saving the configuration file.
// Built at process attach, freed at detach, used on the host's UI thread.
#pragma once

#include "afx/afxwin.h"
#include "persist/LineColor.h"

extern AFX_EXTENSION_MODULE g_GraphExtensionModule;  // the library's module record
extern HINSTANCE g_hGraphInstance;                   // the library's own module handle
extern BOOL g_bGraphCreated;                         // a graph was constructed in this process

extern CLineColor* g_pDefaultLineColors;   // 16 rotating entries, kept in the configuration file
extern COLORREF* g_pBaseColors;            // 48 colours of the palette
extern COLORREF* g_pOwnCustomColors;       // the library's own 16 custom colours
extern COLORREF* g_pCustomColors;          // the custom colours in force: own or the host's

#define DEFAULT_LINE_COLORS 16
#define BASE_COLORS 48
#define CUSTOM_COLORS 16

// Steps of loading and unloading, each FALSE on failure.
BOOL BuildDefaultLineColors();
BOOL BuildBaseColors();
BOOL BuildCustomColors();
void FreeColorTables();
BOOL RegisterPaletteWindowClass();
void UnregisterPaletteWindowClass();
