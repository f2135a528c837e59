// Tests of the object model and the module frame: kind-of tests, creation
// by run-time class and by name, the resource chain that string and class
// look-ups walk, and the critical section with its scoped lock.
#include "gtest/gtest.h"
#include "afx/afxwin.h"
#include "afx/afxctrl.h"
#include "graph/Graph.h"

#include <atomic>
#include <string>
#include <thread>

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

class CTestAbstract : public CObject
{
    DECLARE_DYNAMIC(CTestAbstract)
};
IMPLEMENT_DYNAMIC(CTestAbstract, CObject)

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

TEST(RuntimeClass, KindOfCreationAndNames)
{
    CTestCircle circle;
    EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CTestShape)));
    EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(circle.IsKindOf(RUNTIME_CLASS(CTestAbstract)));
    EXPECT_FALSE(CTestShape().IsKindOf(RUNTIME_CLASS(CTestCircle)));
    EXPECT_EQ(RUNTIME_CLASS(CTestAbstract), CTestAbstract().GetRuntimeClass());
    EXPECT_STREQ("CTestCircle", circle.GetRuntimeClass()->m_lpszClassName);
    EXPECT_EQ((int)sizeof(CTestCircle), RUNTIME_CLASS(CTestCircle)->m_nObjectSize);

    // Creation: only classes declared creatable.
    CObject* pObject = RUNTIME_CLASS(CTestCircle)->CreateObject();
    ASSERT_NE(nullptr, pObject);
    EXPECT_EQ(RUNTIME_CLASS(CTestCircle), pObject->GetRuntimeClass());
    delete pObject;
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CTestAbstract)->CreateObject());
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CGdiObject)->CreateObject());

    // By exact name, the library's classes (known once InitializeZPXGraph
    // has run) and the program's own.
    ASSERT_NE(nullptr, LibraryLink());
    EXPECT_EQ(RUNTIME_CLASS(CGraph), CRuntimeClass::FromName("CGraph"));
    EXPECT_EQ(RUNTIME_CLASS(CWnd), CRuntimeClass::FromName("CWnd"));
    EXPECT_EQ(RUNTIME_CLASS(CTestCircle), CRuntimeClass::FromName("CTestCircle"));
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("cgraph"));
    pObject = CRuntimeClass::FromName("CLineColor")->CreateObject();
    ASSERT_NE(nullptr, pObject);
    EXPECT_TRUE(pObject->IsKindOf(RUNTIME_CLASS(CLineColor)));
    delete pObject;
}

// ---------------------------------------------------------------------------
// The resource chain
// ---------------------------------------------------------------------------

TEST(ResourceChain, LibraryStringsComeFromTheLibraryLink)
{
    CDynLinkLibrary* pLink = LibraryLink();
    ASSERT_NE(nullptr, pLink);
    ASSERT_NE(nullptr, pLink->m_hResource);
    // The library itself, or the satellite of the locale when one was found;
    // never the test program, which has no resources.
    EXPECT_EQ(pLink->m_hResource, StringModule(IDS_FACE));
    EXPECT_NE(::GetModuleHandleA(NULL), StringModule(IDS_FACE));
    // A block of strings that no module has: the first resource handle.
    EXPECT_EQ(AfxGetResourceHandle(), StringModule(30000));
}

TEST(ResourceChain, HeadLinksSystemLinksAndTheResourceHandle)
{
    HMODULE hSatellite = LoadEnglishSatellite();
    ASSERT_NE(nullptr, hSatellite) << "the English satellite is built beside the tests";
    const HINSTANCE hLibrary = LibraryLink()->m_hResource;

    // A new link at the head takes precedence, and is gone when deleted.
    AFX_EXTENSION_MODULE state = { TRUE, hSatellite, hSatellite, NULL, NULL };
    CDynLinkLibrary* pLink = new CDynLinkLibrary(state);
    EXPECT_EQ(pLink, AfxGetFirstDynLinkLibrary());
    EXPECT_EQ(hSatellite, StringModule(IDS_FACE));
    EXPECT_EQ("Arial", Loaded(IDS_FACE));
    delete pLink;
    EXPECT_EQ(hLibrary, StringModule(IDS_FACE));
    EXPECT_EQ("\xCB\xCE\xCC\xE5", Loaded(IDS_FACE));

    // A link of a module without the string is passed over.
    AFX_EXTENSION_MODULE empty = { TRUE, ::GetModuleHandleA(NULL), ::GetModuleHandleA(NULL), NULL, NULL };
    pLink = new CDynLinkLibrary(empty);
    EXPECT_EQ("\xCB\xCE\xCC\xE5", Loaded(IDS_FACE));
    delete pLink;

    // A system link at the head is asked only after the other links...
    pLink = new CDynLinkLibrary(state, TRUE);
    EXPECT_EQ(hLibrary, StringModule(IDS_FACE));
    delete pLink;
    // ...but it is asked: the close-box bitmap only the window manager has.
    HMODULE hUser = ::GetModuleHandleA("user32.dll");
    LPCSTR lpszClose = MAKEINTRESOURCEA(32754);   // OBM_CLOSE
    ASSERT_NE(nullptr, ::FindResourceA(hUser, lpszClose, (LPCSTR)RT_BITMAP));
    EXPECT_EQ(AfxGetResourceHandle(), AfxFindResourceHandle(lpszClose, (LPCSTR)RT_BITMAP));
    AFX_EXTENSION_MODULE user = { TRUE, hUser, hUser, NULL, NULL };
    pLink = new CDynLinkLibrary(user, TRUE);
    EXPECT_EQ(hUser, AfxFindResourceHandle(lpszClose, (LPCSTR)RT_BITMAP));
    delete pLink;

    // The resource handle is asked before any link.
    const HINSTANCE hOld = AfxGetResourceHandle();
    EXPECT_EQ(::GetModuleHandleA(NULL), hOld);
    AfxSetResourceHandle(hSatellite);
    EXPECT_EQ(hSatellite, StringModule(IDS_FACE));
    EXPECT_EQ("Arial", Loaded(IDS_FACE));
    AfxSetResourceHandle(hOld);
    EXPECT_EQ("\xCB\xCE\xCC\xE5", Loaded(IDS_FACE));
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
    std::thread worker([pSection, &nStage]() {
        nStage = 1;
        CSingleLock lock(pSection, TRUE);
        nStage = lock.IsLocked() ? 2 : 3;
    });
    for (int i = 0; i < 1000 && nStage < 1; i++)
        ::Sleep(5);
    ::Sleep(150);
    EXPECT_EQ(1, nStage.load()) << "the second thread got the lock while it was held";
    delete pLock;   // releases
    for (int i = 0; i < 1000 && nStage < 2; i++)
        ::Sleep(5);
    if (nStage != 2) {
        ADD_FAILURE() << "the second thread never got the lock";
        worker.detach();
        return;
    }
    worker.join();
    delete pSection;
}

TEST(CriticalSection, SingleLockStates)
{
    CCriticalSection section;
    {
        CSingleLock lock(&section);
        EXPECT_FALSE(lock.IsLocked());
        EXPECT_TRUE(lock.Lock());
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
