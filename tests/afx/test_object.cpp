// Tests of the object model and the module frame: kind-of tests, creation
// by run-time class and by name, the resource chain that string and class
// look-ups walk, and the critical section with its scoped lock.
#include "gtest/gtest.h"
#include "afx/afxwin.h"
#include "afx/afxctrl.h"
#include "graph/Graph.h"

#include <atomic>
#include <chrono>
#include <string>
#include <thread>

namespace {

// Classes of the test program itself: made known after the library's.
class CTestShape : public CObject
{
    DECLARE_DYNCREATE(CTestShape)
public:
    CTestShape() { ++s_nConstructed; }
    static int s_nConstructed;
};
int CTestShape::s_nConstructed = 0;
IMPLEMENT_DYNCREATE(CTestShape, CObject)

class CTestCircle : public CTestShape
{
    DECLARE_DYNCREATE(CTestCircle)
};
IMPLEMENT_DYNCREATE(CTestCircle, CTestShape)

class CTestAbstract : public CObject
{
    DECLARE_DYNAMIC(CTestAbstract)
};
IMPLEMENT_DYNAMIC(CTestAbstract, CObject)

HMODULE LibraryModule()
{
    return ::GetModuleHandleA("ZPXGraph.dll");
}

// The link of the library in the chain, made by InitializeZPXGraph.
CDynLinkLibrary* LibraryLink()
{
    for (CDynLinkLibrary* p = AfxGetFirstDynLinkLibrary(); p != NULL; p = p->m_pNextDLL) {
        if (p->m_hModule == LibraryModule())
            return p;
    }
    return NULL;
}

LPCSTR StringBlock(UINT nID)
{
    return MAKEINTRESOURCEA((nID >> 4) + 1);
}

// The English satellite beside the test program, as a data file.
HMODULE LoadEnglishSatellite()
{
    char szPath[MAX_PATH];
    DWORD n = ::GetModuleFileNameA(NULL, szPath, MAX_PATH);
    if (n == 0 || n >= MAX_PATH)
        return NULL;
    std::string path(szPath);
    path = path.substr(0, path.rfind('\\'));
    path += "\\0409\\{7A3C29E4-5B1D-4F60-9E2A-8C41D0B7F3A5}.dll";
    return ::LoadLibraryExA(path.c_str(), NULL, LOAD_LIBRARY_AS_DATAFILE);
}

} // namespace

// ---------------------------------------------------------------------------
// Run-time classes
// ---------------------------------------------------------------------------

TEST(RuntimeClass, IsKindOfFollowsTheBaseChain)
{
    CTestCircle circle;
    EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CTestCircle)));
    EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CTestShape)));
    EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(circle.IsKindOf(RUNTIME_CLASS(CTestAbstract)));
    CTestShape shape;
    EXPECT_FALSE(shape.IsKindOf(RUNTIME_CLASS(CTestCircle)));
    CTestAbstract other;
    EXPECT_EQ(RUNTIME_CLASS(CTestAbstract), other.GetRuntimeClass());
    EXPECT_FALSE(other.IsKindOf(RUNTIME_CLASS(CTestShape)));

    CPen pen;
    EXPECT_TRUE(pen.IsKindOf(RUNTIME_CLASS(CGdiObject)));
    EXPECT_FALSE(pen.IsKindOf(RUNTIME_CLASS(CBrush)));
    CListBox list;
    EXPECT_TRUE(list.IsKindOf(RUNTIME_CLASS(CWnd)));
    EXPECT_TRUE(list.IsKindOf(RUNTIME_CLASS(CCmdTarget)));
    EXPECT_FALSE(list.IsKindOf(RUNTIME_CLASS(CEdit)));
    CMemoryException* pMem = new CMemoryException;
    EXPECT_TRUE(pMem->IsKindOf(RUNTIME_CLASS(CException)));
    pMem->Delete();

    EXPECT_STREQ("CTestCircle", circle.GetRuntimeClass()->m_lpszClassName);
    EXPECT_EQ((int)sizeof(CTestCircle), RUNTIME_CLASS(CTestCircle)->m_nObjectSize);
}

TEST(RuntimeClass, CreateObject)
{
    int nBefore = CTestShape::s_nConstructed;
    CObject* pObject = RUNTIME_CLASS(CTestCircle)->CreateObject();
    ASSERT_NE(nullptr, pObject);
    EXPECT_EQ(RUNTIME_CLASS(CTestCircle), pObject->GetRuntimeClass());
    EXPECT_EQ(nBefore + 1, CTestShape::s_nConstructed);
    delete pObject;

    // A class without creation by name gives nothing.
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CTestAbstract)->CreateObject());
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CGdiObject)->CreateObject());

    // The library's facade.
    CObject* pGraph = RUNTIME_CLASS(CGraph)->CreateObject();
    ASSERT_NE(nullptr, pGraph);
    EXPECT_TRUE(pGraph->IsKindOf(RUNTIME_CLASS(CGraph)));
    EXPECT_EQ(RUNTIME_CLASS(CGraph), pGraph->GetRuntimeClass());
    delete pGraph;

    CObject* pWnd = RUNTIME_CLASS(CWnd)->CreateObject();
    ASSERT_NE(nullptr, pWnd);
    EXPECT_TRUE(pWnd->IsKindOf(RUNTIME_CLASS(CWnd)));
    delete pWnd;
}

TEST(RuntimeClass, Serializable)
{
    CLineColor color;
    EXPECT_TRUE(color.IsSerializable());
    CGraph* pGraph = new CGraph;
    EXPECT_FALSE(pGraph->IsSerializable());
    delete pGraph;
}

TEST(RuntimeClass, FromNameFindsLibraryAndHostClasses)
{
    // The library's classes are known once InitializeZPXGraph has run.
    ASSERT_NE(nullptr, LibraryLink());
    EXPECT_EQ(RUNTIME_CLASS(CGraph), CRuntimeClass::FromName("CGraph"));
    EXPECT_EQ(RUNTIME_CLASS(CLineColor), CRuntimeClass::FromName("CLineColor"));
    EXPECT_EQ(RUNTIME_CLASS(CWnd), CRuntimeClass::FromName("CWnd"));
    // The test program's own classes.
    EXPECT_EQ(RUNTIME_CLASS(CTestCircle), CRuntimeClass::FromName("CTestCircle"));
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("CNoSuchClass"));
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("cgraph"));   // exact names

    CRuntimeClass* pClass = CRuntimeClass::FromName("CLineColor");
    ASSERT_NE(nullptr, pClass);
    CObject* pObject = pClass->CreateObject();
    ASSERT_NE(nullptr, pObject);
    EXPECT_TRUE(pObject->IsKindOf(RUNTIME_CLASS(CLineColor)));
    delete pObject;
}

// ---------------------------------------------------------------------------
// The resource chain
// ---------------------------------------------------------------------------

TEST(ResourceChain, LibraryStringFoundInLibraryModule)
{
    CDynLinkLibrary* pLink = LibraryLink();
    ASSERT_NE(nullptr, pLink);
    ASSERT_NE(nullptr, pLink->m_hResource);
    // The library itself, or the satellite of the locale when one was found.
    EXPECT_EQ(pLink->m_hResource, AfxFindResourceHandle(StringBlock(14514), (LPCSTR)RT_STRING));
    // The test program has no resources: it is not where strings come from.
    EXPECT_NE(::GetModuleHandleA(NULL), AfxFindResourceHandle(StringBlock(14514), (LPCSTR)RT_STRING));
    // A block of strings that no module has: the first resource handle.
    EXPECT_EQ(AfxGetResourceHandle(), AfxFindResourceHandle(StringBlock(30000), (LPCSTR)RT_STRING));
}

TEST(ResourceChain, NewLinkAtTheHeadTakesPrecedence)
{
    HMODULE hSatellite = LoadEnglishSatellite();
    ASSERT_NE(nullptr, hSatellite) << "the English satellite is built beside the tests";
    CDynLinkLibrary* pLibrary = LibraryLink();
    ASSERT_NE(nullptr, pLibrary);

    AFX_EXTENSION_MODULE state = { TRUE, hSatellite, hSatellite, NULL, NULL };
    CDynLinkLibrary* pLink = new CDynLinkLibrary(state);
    EXPECT_EQ(pLink, AfxGetFirstDynLinkLibrary());
    EXPECT_EQ(hSatellite, AfxFindResourceHandle(StringBlock(14514), (LPCSTR)RT_STRING));
    CString s;
    EXPECT_TRUE(s.LoadString(14514));
    EXPECT_STREQ("Arial", s);
    delete pLink;

    // Gone from the chain: the library's own text again.
    EXPECT_NE(pLink, AfxGetFirstDynLinkLibrary());
    EXPECT_EQ(pLibrary->m_hResource, AfxFindResourceHandle(StringBlock(14514), (LPCSTR)RT_STRING));
    EXPECT_TRUE(s.LoadString(14514));
    EXPECT_STREQ("\xCB\xCE\xCC\xE5", s);

    // A link of a module without the string is passed over.
    AFX_EXTENSION_MODULE empty = { TRUE, ::GetModuleHandleA(NULL), ::GetModuleHandleA(NULL), NULL, NULL };
    CDynLinkLibrary* pEmpty = new CDynLinkLibrary(empty);
    EXPECT_EQ(pEmpty, AfxGetFirstDynLinkLibrary());
    EXPECT_EQ(pLibrary->m_hResource, AfxFindResourceHandle(StringBlock(14514), (LPCSTR)RT_STRING));
    EXPECT_TRUE(s.LoadString(14514));
    EXPECT_STREQ("\xCB\xCE\xCC\xE5", s);
    delete pEmpty;

    ::FreeLibrary(hSatellite);
}

TEST(ResourceChain, SystemLinksComeAfterOtherLinks)
{
    HMODULE hSatellite = LoadEnglishSatellite();
    ASSERT_NE(nullptr, hSatellite);
    CDynLinkLibrary* pLibrary = LibraryLink();
    ASSERT_NE(nullptr, pLibrary);

    // A system link at the head is asked only after the other links.
    AFX_EXTENSION_MODULE state = { TRUE, hSatellite, hSatellite, NULL, NULL };
    CDynLinkLibrary* pSystem = new CDynLinkLibrary(state, TRUE);
    EXPECT_EQ(pSystem, AfxGetFirstDynLinkLibrary());
    EXPECT_EQ(pLibrary->m_hResource, AfxFindResourceHandle(StringBlock(14514), (LPCSTR)RT_STRING));
    delete pSystem;
    ::FreeLibrary(hSatellite);

    // But it is asked: a resource that only a system module has is found
    // there (the close-box bitmap of the window manager's module).
    HMODULE hUser = ::GetModuleHandleA("user32.dll");
    LPCSTR lpszClose = MAKEINTRESOURCEA(32754);   // OBM_CLOSE
    ASSERT_NE(nullptr, ::FindResourceA(hUser, lpszClose, (LPCSTR)RT_BITMAP));
    ASSERT_EQ(nullptr, ::FindResourceA(pLibrary->m_hResource, lpszClose, (LPCSTR)RT_BITMAP));
    EXPECT_EQ(AfxGetResourceHandle(), AfxFindResourceHandle(lpszClose, (LPCSTR)RT_BITMAP));
    AFX_EXTENSION_MODULE user = { TRUE, hUser, hUser, NULL, NULL };
    pSystem = new CDynLinkLibrary(user, TRUE);
    EXPECT_EQ(hUser, AfxFindResourceHandle(lpszClose, (LPCSTR)RT_BITMAP));
    delete pSystem;
    EXPECT_EQ(AfxGetResourceHandle(), AfxFindResourceHandle(lpszClose, (LPCSTR)RT_BITMAP));
}

TEST(ResourceChain, ResourceHandleIsAskedFirst)
{
    HMODULE hSatellite = LoadEnglishSatellite();
    ASSERT_NE(nullptr, hSatellite);
    HINSTANCE hOld = AfxGetResourceHandle();
    EXPECT_EQ(::GetModuleHandleA(NULL), hOld);
    AfxSetResourceHandle(hSatellite);
    EXPECT_EQ(hSatellite, AfxFindResourceHandle(StringBlock(14514), (LPCSTR)RT_STRING));
    CString s;
    EXPECT_TRUE(s.LoadString(14514));
    EXPECT_STREQ("Arial", s);
    AfxSetResourceHandle(hOld);
    EXPECT_TRUE(s.LoadString(14514));
    EXPECT_STREQ("\xCB\xCE\xCC\xE5", s);
    ::FreeLibrary(hSatellite);
}

// ---------------------------------------------------------------------------
// Critical section and scoped lock
// ---------------------------------------------------------------------------

TEST(CriticalSection, HeldLockBlocksAnotherThread)
{
    // Leaked on a failure, so that a thread stuck in it never sees it go.
    CCriticalSection* pSection = new CCriticalSection;
    std::atomic<int> nStage(0);

    CSingleLock* pLock = new CSingleLock(pSection, TRUE);
    ASSERT_TRUE(pLock->IsLocked());

    std::thread worker([pSection, &nStage]() {
        nStage = 1;
        CSingleLock lock(pSection, TRUE);
        nStage = lock.IsLocked() ? 2 : 3;
        lock.Unlock();
        nStage = lock.IsLocked() ? 5 : 4;
    });

    auto waitFor = [&nStage](int nAtLeast, int nMs) {
        for (int i = 0; i < nMs / 5 && nStage < nAtLeast; i++)
            ::Sleep(5);
        return nStage >= nAtLeast;
    };
    ASSERT_TRUE(waitFor(1, 5000));
    ::Sleep(150);
    EXPECT_EQ(1, nStage.load()) << "the second thread got the lock while it was held";

    delete pLock;   // releases
    bool bDone = waitFor(4, 5000);
    EXPECT_TRUE(bDone) << "the second thread never got the lock";
    if (!bDone) {
        worker.detach();
        return;
    }
    worker.join();
    EXPECT_EQ(4, nStage.load());

    // Free again: this thread takes it at once.
    EXPECT_TRUE(::TryEnterCriticalSection(&pSection->m_sect));
    ::LeaveCriticalSection(&pSection->m_sect);
    delete pSection;
}

TEST(CriticalSection, SingleLockStates)
{
    CCriticalSection section;
    {
        CSingleLock lock(&section);
        EXPECT_FALSE(lock.IsLocked());
        EXPECT_TRUE(lock.Lock());
        EXPECT_TRUE(lock.IsLocked());
        EXPECT_TRUE(lock.Lock());   // held already: no second entry
        EXPECT_TRUE(lock.Unlock());
        EXPECT_FALSE(lock.IsLocked());
        EXPECT_TRUE(lock.Unlock());
        lock.Lock();
    }
    // The destructor released it: another thread can take it.
    std::atomic<bool> bGot(false);
    std::thread t([&section, &bGot]() {
        if (::TryEnterCriticalSection(&section.m_sect)) {
            bGot = true;
            ::LeaveCriticalSection(&section.m_sect);
        }
    });
    t.join();
    EXPECT_TRUE(bGot.load());
}
