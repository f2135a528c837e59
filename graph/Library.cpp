// The library entry: process attach builds the process-wide tables, detach
// saves and frees them; InitializeZPXGraph joins the resource chain with the
// satellite of the thread's locale, if one is installed.
#include "graph/Graph.h"
#include "graph/Globals.h"
#include "persist/ConfigFile.h"
#include "zpx/ZpxUtl.h"

AFX_EXTENSION_MODULE g_GraphExtensionModule = { FALSE, NULL, NULL, NULL, NULL };
HINSTANCE g_hGraphInstance = NULL;
BOOL g_bGraphCreated = FALSE;

namespace {

// Names this component to the satellite finder, and nothing else.
const GUID s_guidZPXGraph = { 0x7A3C29E4, 0x5B1D, 0x4F60, { 0x9E, 0x2A, 0x8C, 0x41, 0xD0, 0xB7, 0xF3, 0xA5 } };

void ProcessAttach(HINSTANCE hInstance)
{
    AfxInitExtensionModule(g_GraphExtensionModule, hInstance);
    g_hGraphInstance = hInstance;
    g_bGraphCreated = FALSE;

    // Each step runs only if the ones before it succeeded; the library loads
    // all the same.
    if (!RegisterPaletteWindowClass())
        return;
    if (!BuildDefaultLineColors())
        return;
    LoadGraphConfig();   // a file that cannot be read leaves the defaults
    if (!BuildBaseColors())
        return;
    BuildCustomColors();
}

void ProcessDetach()
{
    SaveGraphConfig();   // only if a graph was made in this process
    FreeColorTables();
    UnregisterPaletteWindowClass();
    AfxTermExtensionModule(g_GraphExtensionModule);
}

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID)
{
    if (dwReason == DLL_PROCESS_ATTACH)
        ProcessAttach(hInstance);
    else if (dwReason == DLL_PROCESS_DETACH)
        ProcessDetach();
    return TRUE;
}

void InitializeZPXGraph()
{
    HINSTANCE hSatellite = GetResourceHandle(s_guidZPXGraph, ::GetThreadLocale());
    if (hSatellite != NULL)
        g_GraphExtensionModule.hResource = hSatellite;
    // The link lives until the library is unloaded (AfxTermExtensionModule).
    new CDynLinkLibrary(g_GraphExtensionModule);
}
