/* Code part of a resource satellite: the library holds only resources and
   is loaded as data, but a module still needs an entry point. */

#include <windows.h>

BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID lpReserved)
{
    (void)hInstance;
    (void)dwReason;
    (void)lpReserved;
    return TRUE;
}
