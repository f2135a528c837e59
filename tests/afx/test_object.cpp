// Tests of the object model and the module frame: kind-of tests, creation
// by name, and the resource chain that string look-ups walk.
#include "gtest/gtest.h"
#include "afx/afxwin.h"
#include "afx/afxctrl.h"
#include "graph/Graph.h"

#include <string>

namespace {

// Classes of the test program itself: made known after the library's.
class CTestShape : public CObject
{
    DECLARE_DYNCREATE(CTestShape)
};
IMPLEMENT_DYNCREATE(CTestShape, CObject)

class CTestCircle : public CTestShape
{
    DECLARE_DYNCREATE(CTestCircle)
};
IMPLEMENT_DYNCREATE(CTestCircle, CTestShape)

class CTestDynamic : public CObject
{
    DECLARE_DYNAMIC(CTestDynamic)
};
IMPLEMENT_DYNAMIC(CTestDynamic, CObject)

const UINT IDS_FACE = 14514;   // the face name of the library's default font

// The link of the library in the chain, made by InitializeZPXGraph.
CDynLinkLibrary* LibraryLink()
{
    for (CDynLinkLibrary* p = AfxGetFirstDynLinkLibrary(); p != NULL; p = p->m_pNextDLL)
        if (p->m_hModule == ::GetModuleHandleA("ZPXGraph.dll"))
            return p;
    return NULL;
}

// The module the chain finds a string in, and the string it loads.
HINSTANCE StringModule(UINT nID)
{
    return AfxFindResourceHandle(MAKEINTRESOURCEA((nID >> 4) + 1), (LPCSTR)RT_STRING);
}

std::string Loaded(UINT nID)
{
    CString s;
    return s.LoadString(nID) ? (LPCSTR)s : "(none)";
}

// The English satellite beside the test program, as a data file.
HMODULE LoadEnglishSatellite()
{
    char szPath[MAX_PATH];
    DWORD n = ::GetModuleFileNameA(NULL, szPath, MAX_PATH);
    std::string path(szPath, n);
    path = path.substr(0, path.rfind('\\')) + "\\0409\\{7A3C29E4-5B1D-4F60-9E2A-8C41D0B7F3A5}.dll";
    return ::LoadLibraryExA(path.c_str(), NULL, LOAD_LIBRARY_AS_DATAFILE);
}

} // namespace

TEST(RuntimeClass, KindOfAndCreationByName)
{
    CTestCircle circle;
    EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CTestShape)));
    EXPECT_FALSE(CTestDynamic().IsKindOf(RUNTIME_CLASS(CTestShape)));
    EXPECT_FALSE(CTestShape().IsKindOf(RUNTIME_CLASS(CTestCircle)));
    // Only classes declared creatable can be created.
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CTestDynamic)->CreateObject());

    // By exact name, the library's classes (known once InitializeZPXGraph
    // has run) and the program's own.
    ASSERT_NE(nullptr, LibraryLink());
    EXPECT_EQ(RUNTIME_CLASS(CGraph), CRuntimeClass::FromName("CGraph"));
    EXPECT_EQ(RUNTIME_CLASS(CTestCircle), CRuntimeClass::FromName("CTestCircle"));
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("cgraph"));
    CObject* pObject = CRuntimeClass::FromName("CLineColor")->CreateObject();
    ASSERT_NE(nullptr, pObject);
    EXPECT_EQ(RUNTIME_CLASS(CLineColor), pObject->GetRuntimeClass());
    delete pObject;
}

// ---------------------------------------------------------------------------
// The resource chain
// ---------------------------------------------------------------------------

TEST(ResourceChain, TheResourceHandleFirstThenTheLinksThatHaveTheString)
{
    HMODULE hSatellite = LoadEnglishSatellite();
    ASSERT_NE(nullptr, hSatellite) << "the English satellite is built beside the tests";
    const HINSTANCE hLibrary = LibraryLink()->m_hResource;

    // A link at the head of a module without the string is passed over.
    AFX_EXTENSION_MODULE empty = { TRUE, ::GetModuleHandleA(NULL), ::GetModuleHandleA(NULL), NULL, NULL };
    CDynLinkLibrary* pLink = new CDynLinkLibrary(empty);
    EXPECT_EQ(pLink, AfxGetFirstDynLinkLibrary());
    EXPECT_EQ(hLibrary, StringModule(IDS_FACE));
    delete pLink;

    // The resource handle is asked before any link.
    const HINSTANCE hOld = AfxGetResourceHandle();
    EXPECT_EQ(::GetModuleHandleA(NULL), hOld);
    AfxSetResourceHandle(hSatellite);
    EXPECT_EQ(hSatellite, StringModule(IDS_FACE));
    EXPECT_EQ("Arial", Loaded(IDS_FACE));
    AfxSetResourceHandle(hOld);
    EXPECT_EQ("\xCB\xCE\xCC\xE5", Loaded(IDS_FACE));
    EXPECT_EQ("(none)", Loaded(14499));   // a string in no module
    ::FreeLibrary(hSatellite);
}
