// Tests of the GDI wrappers: who owns a handle and when it is deleted, the
// layer's count of live objects, point fonts, the scoped guards that put a
// context back as it was, and the contexts that release or delete themselves.
#include "Surface.h"

namespace {

HGDIOBJ Current(CDC& dc, UINT nType)
{
    return ::GetCurrentObject(dc.m_hDC, nType);
}

bool IsGone(HGDIOBJ h)
{
    return ::GetObjectType(h) == 0;
}

} // namespace

// ---------------------------------------------------------------------------
// Ownership and the live count
// ---------------------------------------------------------------------------

TEST(GdiOwnership, LiveCountFollowsCreationAndDeletion)
{
    const LONG n0 = CGdiObject::GetLiveCount();
    HGDIOBJ hBrush = NULL;
    {
        CPen pen(PS_SOLID, 1, RGB(1, 2, 3));
        CBrush brush(RGB(4, 5, 6));
        CFont font;
        ASSERT_TRUE(font.CreatePointFont(80, "Arial"));
        CRgn rgn;
        ASSERT_TRUE(rgn.CreateRectRgn(0, 0, 5, 5));
        EXPECT_EQ(n0 + 4, CGdiObject::GetLiveCount());

        HGDIOBJ hRgn = rgn.m_hObject;
        EXPECT_TRUE(rgn.DeleteObject());
        EXPECT_EQ(nullptr, rgn.m_hObject);
        EXPECT_TRUE(IsGone(hRgn));
        EXPECT_FALSE(rgn.DeleteObject());   // nothing left
        EXPECT_EQ(n0 + 3, CGdiObject::GetLiveCount());
        hBrush = brush.m_hObject;
    }
    EXPECT_EQ(n0, CGdiObject::GetLiveCount());
    EXPECT_TRUE(IsGone(hBrush));   // an owned handle goes with its wrapper
}

// ---------------------------------------------------------------------------
// Point fonts
// ---------------------------------------------------------------------------

TEST(GdiFont, CreatePointFontInTheLogicalUnitsOfAContext)
{
    // Two logical units to a pixel: twice the pixel height of the point size.
    Dib dib(8, 8);
    CDC& dc = *dib.DC();
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(200, 200);
    dc.SetViewportExt(100, 100);
    CFont scaled;
    ASSERT_TRUE(scaled.CreatePointFont(120, "Arial", &dc));
    LOGFONT lf;
    scaled.GetLogFont(&lf);
    EXPECT_EQ(-2 * (dc.GetDeviceCaps(LOGPIXELSY) * 120 / 720), lf.lfHeight);
    EXPECT_STREQ("Arial", lf.lfFaceName);
}

// ---------------------------------------------------------------------------
// Scoped guards
// ---------------------------------------------------------------------------

TEST(GdiGuards, SelectGuardPutsThePreviousObjectBack)
{
    Dib dib(20, 20);
    CDC& dc = *dib.DC();
    const HGDIOBJ hOriginalPen = Current(dc, OBJ_PEN);
    CPen penA(PS_SOLID, 1, RGB(255, 0, 0));
    CPen penB(PS_DOT, 1, RGB(0, 255, 0));
    {
        CSelectGuard selectA(&dc, &penA);
        {
            CSelectGuard selectB(&dc, &penB);
            EXPECT_EQ(penB.m_hObject, Current(dc, OBJ_PEN));
        }
        EXPECT_EQ(penA.m_hObject, Current(dc, OBJ_PEN));
        // Selecting nothing changes nothing and puts nothing back.
        CPen none;
        CSelectGuard selectNone(&dc, &none);
        EXPECT_EQ(penA.m_hObject, Current(dc, OBJ_PEN));
    }
    EXPECT_EQ(hOriginalPen, Current(dc, OBJ_PEN));

    // An object declared before its guard is deselected, then deleted.
    HGDIOBJ hTemp = NULL;
    {
        CPen temp(PS_SOLID, 3, RGB(1, 1, 1));
        hTemp = temp.m_hObject;
        CSelectGuard select(&dc, &temp);
    }
    EXPECT_EQ(hOriginalPen, Current(dc, OBJ_PEN));
    EXPECT_TRUE(IsGone(hTemp));
}

TEST(GdiGuards, SaveDCGuardRestoresObjectsModesAndClip)
{
    Dib dib(40, 30, WHITE);
    CDC& dc = *dib.DC();
    CRgn clip;
    ASSERT_TRUE(clip.CreateRectRgn(0, 0, 20, 20));
    dc.SelectClipRgn(&clip);
    dc.SetBkMode(OPAQUE);
    const HGDIOBJ hPenBefore = Current(dc, OBJ_PEN);
    CPen pen(PS_SOLID, 1, RGB(0, 0, 255));
    {
        CSaveDCGuard save(&dc);
        dc.SelectObject(&pen);
        dc.SetBkMode(TRANSPARENT);
        dc.IntersectClipRect(5, 5, 10, 10);
        dc.FillSolidRect(0, 0, 40, 30, RGB(255, 0, 0));   // within the narrower clip
    }
    EXPECT_EQ(hPenBefore, Current(dc, OBJ_PEN));
    EXPECT_EQ(OPAQUE, dc.GetBkMode());
    EXPECT_EQ(25, dib.CountAll(RGB(255, 0, 0)));
    EXPECT_EQ(RGB(255, 0, 0), dib.At(9, 9));
    // The clip in force again is the one from before the guard.
    dc.FillSolidRect(0, 0, 40, 30, RGB(0, 255, 0));
    EXPECT_EQ(400, dib.CountAll(RGB(0, 255, 0)));
    dc.SelectClipRgn(NULL);
}

TEST(GdiOwnership, OnlyAnOwnedContextIsDeleted)
{
    HDC hBorrowed = ::CreateCompatibleDC(NULL);
    {
        CDC dc;
        dc.Attach(hBorrowed);
        dc.Detach();
    }
    EXPECT_EQ((DWORD)OBJ_MEMDC, ::GetObjectType(hBorrowed));
    ::DeleteDC(hBorrowed);
    HDC hOwned = NULL;
    {
        CDC dc;
        dc.CreateCompatibleDC(NULL);
        hOwned = dc.m_hDC;
    }
    EXPECT_TRUE(IsGone(hOwned));
}

// ---------------------------------------------------------------------------
// Window contexts
// ---------------------------------------------------------------------------

TEST(GdiWindow, WindowContextsRelease)
{
    CWnd wnd;
    LPCSTR lpszClass = AfxRegisterWndClass(0, NULL, (HBRUSH)(COLOR_WINDOW + 1));
    ASSERT_TRUE(wnd.CreateEx(0, lpszClass, "gdi", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 150, NULL, NULL));
    // A second release of a context reports failure: that is how the
    // wrappers are seen to have released theirs.
    HDC hDC = ::GetDC(wnd.m_hWnd);
    ASSERT_EQ(1, ::ReleaseDC(wnd.m_hWnd, hDC));
    ASSERT_EQ(0, ::ReleaseDC(wnd.m_hWnd, hDC));
    {
        CClientDC dc(&wnd);
        hDC = dc.m_hDC;
        EXPECT_EQ(wnd.m_hWnd, ::WindowFromDC(hDC));
    }
    EXPECT_EQ(0, ::ReleaseDC(wnd.m_hWnd, hDC));
    CDC* pDC = wnd.GetDC();
    hDC = pDC->m_hDC;
    EXPECT_EQ(1, wnd.ReleaseDC(pDC));
    EXPECT_EQ(0, ::ReleaseDC(wnd.m_hWnd, hDC));
    EXPECT_EQ(0, wnd.ReleaseDC(NULL));
}
