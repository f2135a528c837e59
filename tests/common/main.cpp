// Entry of every test program: loads the library's resources the way a host
// does, then runs the tests.
#include "gtest/gtest.h"
#include "graph/Graph.h"

namespace {

// Every test program makes graphs, so the library would write its
// configuration file beside itself at unload, for the next program to read.
// The program holds that path open, unshared and deleted on close: the
// library's save finds it taken, and the system removes it at the end.
HANDLE HoldLibraryConfigFile()
{
    char szPath[MAX_PATH];
    const DWORD n = ::GetModuleFileNameA(::GetModuleHandleA("ZPXGraph.dll"), szPath, MAX_PATH);
    char* pszName = strrchr(szPath, '\\');
    if (n == 0 || n >= MAX_PATH || pszName == NULL || (pszName - szPath) + 14 >= MAX_PATH)
        return INVALID_HANDLE_VALUE;
    lstrcpyA(pszName + 1, "ZPXGraph.cfg");
    return ::CreateFileA(szPath, GENERIC_READ | GENERIC_WRITE, 0, NULL, CREATE_ALWAYS,
                         FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, NULL);
}

} // namespace

int main(int argc, char** argv)
{
    HoldLibraryConfigFile();   // closed by the system after the library's unload
    ::testing::InitGoogleTest(&argc, argv);
    InitializeZPXGraph();
    return RUN_ALL_TESTS();
}
