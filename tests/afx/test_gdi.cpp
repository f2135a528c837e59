// Tests of the GDI wrappers: who owns a handle and when it is deleted, the
// layer's count of live objects, point fonts, the scoped guards that put a
// context back as it was, the window contexts that release themselves, and
// drawing into a memory context on a DIB section.
#include "gtest/gtest.h"
#include "afx/afxwin.h"

#include <string.h>

namespace {

// A 32-bit top-down DIB section selected into a memory context.
class CDibSurface
{
public:
    CDibSurface(int cx, int cy) : m_cx(cx), m_cy(cy)
    {
        BITMAPINFO bmi;
        memset(&bmi, 0, sizeof(bmi));
        bmi.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
        bmi.bmiHeader.biWidth = cx;
        bmi.bmiHeader.biHeight = -cy;
        bmi.bmiHeader.biPlanes = 1;
        bmi.bmiHeader.biBitCount = 32;
        bmi.bmiHeader.biCompression = BI_RGB;
        void* pBits = NULL;
        m_bitmap.Attach(::CreateDIBSection(NULL, &bmi, DIB_RGB_COLORS, &pBits, NULL, 0));
        m_pBits = (DWORD*)pBits;
        m_dc.CreateCompatibleDC(NULL);
        m_hOldBitmap = m_dc.SelectObject(&m_bitmap);
    }
    ~CDibSurface() { m_dc.SelectObject(m_hOldBitmap); }

    bool IsValid() const { return m_pBits != NULL && m_dc.m_hDC != NULL && m_hOldBitmap != NULL; }
    // The pixel as a COLORREF (the DIB holds 0x00RRGGBB).
    COLORREF Pixel(int x, int y) const
    {
        ::GdiFlush();
        DWORD v = m_pBits[y * m_cx + x];
        return RGB((v >> 16) & 0xFF, (v >> 8) & 0xFF, v & 0xFF);
    }

    CDC m_dc;
    CBitmap m_bitmap;   // deselected in the destructor, then deleted
    int m_cx;
    int m_cy;

private:
    DWORD* m_pBits = NULL;
    HGDIOBJ m_hOldBitmap = NULL;
};

HGDIOBJ Current(CDC& dc, UINT nType)
{
    return ::GetCurrentObject(dc.m_hDC, nType);
}

} // namespace

// ---------------------------------------------------------------------------
// Ownership and the live count
// ---------------------------------------------------------------------------

TEST(GdiOwnership, LiveCountFollowsCreationAndDeletion)
{
    const LONG n0 = CGdiObject::GetLiveCount();
    {
        CPen pen(PS_SOLID, 1, RGB(1, 2, 3));
        EXPECT_EQ(n0 + 1, CGdiObject::GetLiveCount());
        CBrush brush;
        ASSERT_TRUE(brush.CreateSolidBrush(RGB(4, 5, 6)));
        CFont font;
        ASSERT_TRUE(font.CreatePointFont(80, "Arial"));
        CRgn rgn;
        ASSERT_TRUE(rgn.CreateRectRgn(0, 0, 5, 5));
        CBitmap bitmap;
        ASSERT_TRUE(bitmap.CreateBitmap(4, 4, 1, 32, NULL));
        EXPECT_EQ(n0 + 5, CGdiObject::GetLiveCount());

        HGDIOBJ hRgn = rgn.m_hObject;
        EXPECT_TRUE(rgn.DeleteObject());
        EXPECT_EQ(nullptr, rgn.m_hObject);
        EXPECT_EQ(0u, (UINT)::GetObjectType(hRgn));
        EXPECT_FALSE(rgn.DeleteObject());   // nothing left
        EXPECT_EQ(n0 + 4, CGdiObject::GetLiveCount());

        // A creation that fails adds nothing.
        CBitmap none;
        CBrush pattern;
        EXPECT_FALSE(pattern.CreatePatternBrush(&none));
        EXPECT_EQ(n0 + 4, CGdiObject::GetLiveCount());
    }
    EXPECT_EQ(n0, CGdiObject::GetLiveCount());

    // Many objects made and dropped leave the count where it was.
    for (int i = 0; i < 500; i++) {
        CPen pen(PS_DASH, 1, RGB(i & 0xFF, 0, 0));
        CBrush brush(RGB(0, i & 0xFF, 0));
    }
    EXPECT_EQ(n0, CGdiObject::GetLiveCount());
}

TEST(GdiOwnership, DestructorDeletesOnlyOwnedHandles)
{
    const LONG n0 = CGdiObject::GetLiveCount();
    HGDIOBJ hBrush = NULL;
    {
        CBrush brush(RGB(9, 9, 9));
        hBrush = brush.m_hObject;
        EXPECT_EQ((DWORD)OBJ_BRUSH, ::GetObjectType(hBrush));
    }
    EXPECT_EQ(0u, (UINT)::GetObjectType(hBrush));

    // Detach gives the handle back: it outlives the wrapper and is no longer counted.
    HGDIOBJ hPen = NULL;
    {
        CPen pen(PS_SOLID, 2, RGB(0, 0, 0));
        EXPECT_EQ(n0 + 1, CGdiObject::GetLiveCount());
        hPen = pen.Detach();
        EXPECT_EQ(nullptr, pen.m_hObject);
        EXPECT_EQ(n0, CGdiObject::GetLiveCount());
    }
    EXPECT_EQ((DWORD)OBJ_PEN, ::GetObjectType(hPen));
    EXPECT_TRUE(::DeleteObject(hPen));

    // Attach takes a handle over: counted, and deleted with the wrapper.
    HBRUSH hAttached = ::CreateSolidBrush(RGB(7, 7, 7));
    {
        CBrush brush;
        EXPECT_TRUE(brush.Attach(hAttached));
        EXPECT_EQ(n0 + 1, CGdiObject::GetLiveCount());
        LOGBRUSH lb;
        EXPECT_EQ((int)sizeof(LOGBRUSH), brush.GetLogBrush(&lb));
        EXPECT_EQ(RGB(7, 7, 7), lb.lbColor);
    }
    EXPECT_EQ(0u, (UINT)::GetObjectType(hAttached));
    EXPECT_EQ(n0, CGdiObject::GetLiveCount());

    CPen empty;
    EXPECT_FALSE(empty.Attach(NULL));
    EXPECT_EQ(n0, CGdiObject::GetLiveCount());
}

TEST(GdiOwnership, StockAndSystemObjectsAreNeverDeleted)
{
    const LONG n0 = CGdiObject::GetLiveCount();
    HGDIOBJ hStockPen = ::GetStockObject(BLACK_PEN);
    HBRUSH hSysBrush = ::GetSysColorBrush(COLOR_BTNFACE);
    {
        CPen stock;
        ASSERT_TRUE(stock.CreateStockObject(BLACK_PEN));
        EXPECT_EQ(hStockPen, stock.m_hObject);
        CBrush sys;
        ASSERT_TRUE(sys.CreateSysColorBrush(COLOR_BTNFACE));
        EXPECT_EQ((HGDIOBJ)hSysBrush, sys.m_hObject);
        EXPECT_EQ(n0, CGdiObject::GetLiveCount());
        EXPECT_TRUE(stock.DeleteObject());
        EXPECT_EQ(nullptr, stock.m_hObject);
        EXPECT_EQ(n0, CGdiObject::GetLiveCount());

        // Detaching a shared object does not change the count either.
        CBrush other;
        ASSERT_TRUE(other.CreateStockObject(WHITE_BRUSH));
        EXPECT_EQ(::GetStockObject(WHITE_BRUSH), other.Detach());
        EXPECT_EQ(n0, CGdiObject::GetLiveCount());
    }
    EXPECT_EQ(n0, CGdiObject::GetLiveCount());
    EXPECT_EQ((DWORD)OBJ_PEN, ::GetObjectType(hStockPen));
    EXPECT_EQ((DWORD)OBJ_BRUSH, ::GetObjectType(hSysBrush));
    EXPECT_EQ(hSysBrush, ::GetSysColorBrush(COLOR_BTNFACE));
}

// ---------------------------------------------------------------------------
// Point fonts
// ---------------------------------------------------------------------------

TEST(GdiFont, CreatePointFontForTheScreen)
{
    HDC hScreen = ::GetDC(NULL);
    int nDpi = ::GetDeviceCaps(hScreen, LOGPIXELSY);
    ::ReleaseDC(NULL, hScreen);

    CFont font;
    ASSERT_TRUE(font.CreatePointFont(80, "\xCB\xCE\xCC\xE5"));
    LOGFONT lf;
    ASSERT_EQ((int)sizeof(LOGFONT), font.GetLogFont(&lf));
    // Tenths of a point to pixels with integer division: 8 points at 96 dpi
    // are 768/72 = 10.67 pixels, taken as 10.
    EXPECT_EQ(-(nDpi * 80 / 720), lf.lfHeight);
    if (nDpi == 96) {
        EXPECT_EQ(-10, lf.lfHeight);
    }
    EXPECT_EQ(DEFAULT_CHARSET, lf.lfCharSet);
    EXPECT_STREQ("\xCB\xCE\xCC\xE5", lf.lfFaceName);
    EXPECT_EQ(0, lf.lfWidth);
    EXPECT_EQ(0, lf.lfWeight);

    CFont big;
    ASSERT_TRUE(big.CreatePointFont(720, "Arial"));
    big.GetLogFont(&lf);
    EXPECT_EQ(-nDpi, lf.lfHeight);

    // From a LOGFONT whose height is in tenths of a point; the rest is kept.
    LOGFONT in;
    memset(&in, 0, sizeof(in));
    in.lfHeight = 100;
    in.lfWeight = FW_BOLD;
    in.lfItalic = TRUE;
    strcpy(in.lfFaceName, "Arial");
    CFont indirect;
    ASSERT_TRUE(indirect.CreatePointFontIndirect(&in));
    indirect.GetLogFont(&lf);
    EXPECT_EQ(-(nDpi * 100 / 720), lf.lfHeight);
    EXPECT_EQ(FW_BOLD, lf.lfWeight);
    EXPECT_EQ(TRUE, lf.lfItalic);
}

TEST(GdiFont, CreatePointFontInTheUnitsOfAContext)
{
    CDibSurface surface(8, 8);
    ASSERT_TRUE(surface.IsValid());
    CDC& dc = surface.m_dc;
    int nDpi = dc.GetDeviceCaps(LOGPIXELSY);
    ASSERT_GT(nDpi, 0);

    // Two logical units to a pixel.
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(200, 200);
    dc.SetViewportExt(100, 100);
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(120, "Arial", &dc));
    LOGFONT lf;
    font.GetLogFont(&lf);
    EXPECT_EQ(-2 * (nDpi * 120 / 720), lf.lfHeight);
    dc.SetMapMode(MM_TEXT);
}

// ---------------------------------------------------------------------------
// Scoped guards
// ---------------------------------------------------------------------------

TEST(GdiGuards, SelectGuardPutsThePreviousObjectBack)
{
    CDibSurface surface(20, 20);
    ASSERT_TRUE(surface.IsValid());
    CDC& dc = surface.m_dc;
    HGDIOBJ hOriginalPen = Current(dc, OBJ_PEN);
    HGDIOBJ hOriginalBrush = Current(dc, OBJ_BRUSH);

    CPen penA(PS_SOLID, 1, RGB(255, 0, 0));
    CPen penB(PS_DOT, 1, RGB(0, 255, 0));
    {
        CSelectGuard selectA(&dc, &penA);
        EXPECT_EQ(penA.m_hObject, Current(dc, OBJ_PEN));
        {
            CSelectGuard selectB(&dc, &penB);
            CSelectGuard selectBrush(&dc, ::GetStockObject(GRAY_BRUSH));
            EXPECT_EQ(penB.m_hObject, Current(dc, OBJ_PEN));
            EXPECT_EQ(::GetStockObject(GRAY_BRUSH), Current(dc, OBJ_BRUSH));
        }
        EXPECT_EQ(penA.m_hObject, Current(dc, OBJ_PEN));
        EXPECT_EQ(hOriginalBrush, Current(dc, OBJ_BRUSH));

        // Selecting nothing changes nothing and puts nothing back.
        CPen none;
        CSelectGuard selectNone(&dc, &none);
        EXPECT_EQ(penA.m_hObject, Current(dc, OBJ_PEN));
    }
    EXPECT_EQ(hOriginalPen, Current(dc, OBJ_PEN));

    // Object declared before its guard: deselected, then deleted.
    HGDIOBJ hTemp = NULL;
    {
        CPen temp(PS_SOLID, 3, RGB(1, 1, 1));
        hTemp = temp.m_hObject;
        CSelectGuard select(&dc, &temp);
        EXPECT_EQ(hTemp, Current(dc, OBJ_PEN));
    }
    EXPECT_EQ(hOriginalPen, Current(dc, OBJ_PEN));
    EXPECT_EQ(0u, (UINT)::GetObjectType(hTemp));
}

TEST(GdiGuards, SaveDCGuardRestoresObjectsModesAndClip)
{
    CDibSurface surface(40, 30);
    ASSERT_TRUE(surface.IsValid());
    CDC& dc = surface.m_dc;

    dc.FillSolidRect(0, 0, 40, 30, RGB(255, 255, 255));
    // A clip of its own before the guard.
    CRgn clip;
    ASSERT_TRUE(clip.CreateRectRgn(0, 0, 20, 20));
    dc.SelectClipRgn(&clip);
    dc.SetTextColor(RGB(10, 20, 30));
    dc.SetBkMode(OPAQUE);
    CRect rcBefore;
    dc.GetClipBox(&rcBefore);
    EXPECT_EQ(CRect(0, 0, 20, 20), rcBefore);
    HGDIOBJ hPenBefore = Current(dc, OBJ_PEN);

    CPen pen(PS_SOLID, 1, RGB(0, 0, 255));
    {
        CSaveDCGuard save(&dc);
        dc.SelectObject(&pen);
        dc.SetTextColor(RGB(1, 2, 3));
        dc.SetBkMode(TRANSPARENT);
        dc.SetROP2(R2_XORPEN);
        dc.IntersectClipRect(5, 5, 10, 10);
        CRect rcInside;
        dc.GetClipBox(&rcInside);
        EXPECT_EQ(CRect(5, 5, 10, 10), rcInside);
        // Drawing respects the narrower clip.
        dc.FillSolidRect(0, 0, 40, 30, RGB(255, 0, 0));
        dc.SetMapMode(MM_LOMETRIC);
    }
    CRect rcAfter;
    dc.GetClipBox(&rcAfter);
    EXPECT_EQ(rcBefore, rcAfter);
    EXPECT_EQ(hPenBefore, Current(dc, OBJ_PEN));
    EXPECT_EQ(RGB(10, 20, 30), dc.GetTextColor());
    EXPECT_EQ(OPAQUE, dc.GetBkMode());
    EXPECT_EQ(R2_COPYPEN, dc.GetROP2());
    EXPECT_EQ(MM_TEXT, dc.GetMapMode());
    EXPECT_EQ(RGB(255, 0, 0), surface.Pixel(5, 5));
    EXPECT_EQ(RGB(255, 0, 0), surface.Pixel(9, 9));
    EXPECT_EQ(RGB(255, 255, 255), surface.Pixel(10, 10));
    EXPECT_EQ(RGB(255, 255, 255), surface.Pixel(4, 4));

    // The clip in force again is the one from before the guard.
    dc.FillSolidRect(0, 0, 40, 30, RGB(0, 255, 0));
    EXPECT_EQ(RGB(0, 255, 0), surface.Pixel(19, 19));
    EXPECT_EQ(RGB(255, 255, 255), surface.Pixel(20, 20));
    dc.SelectClipRgn(NULL);
}

TEST(GdiGuards, SaveDCGuardOverTwoContexts)
{
    // Output and attribute contexts that differ: both are saved and both are
    // restored (by -1, the only level that fits both).
    HDC hOut = ::CreateCompatibleDC(NULL);
    HDC hAttr = ::CreateCompatibleDC(NULL);
    ASSERT_NE(nullptr, hOut);
    ASSERT_NE(nullptr, hAttr);
    {
        CDC dc;
        dc.Attach(hOut);
        dc.SetAttribDC(hAttr);
        dc.SetTextColor(RGB(50, 60, 70));
        EXPECT_EQ(RGB(50, 60, 70), ::GetTextColor(hOut));
        EXPECT_EQ(RGB(50, 60, 70), ::GetTextColor(hAttr));
        {
            CSaveDCGuard save(&dc);
            dc.SetTextColor(RGB(1, 1, 1));
            EXPECT_EQ(RGB(1, 1, 1), ::GetTextColor(hOut));
            EXPECT_EQ(RGB(1, 1, 1), ::GetTextColor(hAttr));
        }
        EXPECT_EQ(RGB(50, 60, 70), ::GetTextColor(hOut));
        EXPECT_EQ(RGB(50, 60, 70), ::GetTextColor(hAttr));
        dc.Detach();
    }
    // A borrowed context is not deleted with the object.
    EXPECT_EQ((DWORD)OBJ_MEMDC, ::GetObjectType(hOut));
    ::DeleteDC(hOut);
    ::DeleteDC(hAttr);
}

// ---------------------------------------------------------------------------
// Window contexts
// ---------------------------------------------------------------------------

class GdiWindow : public ::testing::Test
{
protected:
    void SetUp() override
    {
        LPCSTR lpszClass = AfxRegisterWndClass(0, NULL, (HBRUSH)(COLOR_WINDOW + 1));
        ASSERT_TRUE(m_wnd.CreateEx(0, lpszClass, "gdi", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 150, NULL, NULL));
        // A second release of a context that was released reports failure:
        // that is how the tests below see that the wrappers released theirs.
        HDC hDC = ::GetDC(m_wnd.m_hWnd);
        ASSERT_EQ(1, ::ReleaseDC(m_wnd.m_hWnd, hDC));
        ASSERT_EQ(0, ::ReleaseDC(m_wnd.m_hWnd, hDC));
    }
    void TearDown() override { m_wnd.DestroyWindow(); }
    CWnd m_wnd;
};

TEST_F(GdiWindow, ClientAndWindowContextsRelease)
{
    HDC hDC = NULL;
    {
        CClientDC dc(&m_wnd);
        hDC = dc.m_hDC;
        ASSERT_NE(nullptr, hDC);
        EXPECT_EQ(hDC, dc.m_hAttribDC);
        EXPECT_EQ(m_wnd.m_hWnd, ::WindowFromDC(hDC));
        EXPECT_EQ(&m_wnd, dc.GetWindow());
    }
    EXPECT_EQ(0, ::ReleaseDC(m_wnd.m_hWnd, hDC));

    {
        CWindowDC dc(&m_wnd);
        hDC = dc.m_hDC;
        ASSERT_NE(nullptr, hDC);
    }
    EXPECT_EQ(0, ::ReleaseDC(m_wnd.m_hWnd, hDC));

    CDC* pDC = m_wnd.GetDC();
    ASSERT_NE(nullptr, pDC);
    hDC = pDC->m_hDC;
    EXPECT_EQ(1, m_wnd.ReleaseDC(pDC));
    EXPECT_EQ(0, ::ReleaseDC(m_wnd.m_hWnd, hDC));
    EXPECT_EQ(0, m_wnd.ReleaseDC(NULL));
}

TEST_F(GdiWindow, PaintContextValidatesTheWindow)
{
    ::UpdateWindow(m_wnd.m_hWnd);
    CRect rcInvalid(3, 4, 30, 40);
    m_wnd.InvalidateRect(&rcInvalid, FALSE);
    CRect rcUpdate;
    ASSERT_TRUE(m_wnd.GetUpdateRect(&rcUpdate));
    {
        CPaintDC dc(&m_wnd);
        EXPECT_NE(nullptr, dc.m_hDC);
        EXPECT_EQ(dc.m_hDC, dc.m_ps.hdc);
        EXPECT_EQ(rcInvalid, CRect(dc.m_ps.rcPaint));
        CRect rcClip;
        dc.GetClipBox(&rcClip);
        EXPECT_EQ(rcInvalid, rcClip);
    }
    EXPECT_FALSE(m_wnd.GetUpdateRect(&rcUpdate));
}

// ---------------------------------------------------------------------------
// Drawing into a memory context
// ---------------------------------------------------------------------------

TEST(GdiMemoryDC, DrawAndReadPixels)
{
    HDC hDC = NULL;
    {
        CDibSurface surface(32, 24);
        ASSERT_TRUE(surface.IsValid());
        CDC& dc = surface.m_dc;
        hDC = dc.m_hDC;

        COLORREF crBk = dc.SetBkColor(RGB(12, 34, 56));
        dc.FillSolidRect(0, 0, 32, 24, RGB(255, 255, 255));
        // FillSolidRect leaves the background colour as it found it.
        EXPECT_EQ(RGB(12, 34, 56), dc.GetBkColor());
        dc.SetBkColor(crBk);
        EXPECT_EQ(RGB(255, 255, 255), surface.Pixel(0, 0));
        EXPECT_EQ(RGB(255, 255, 255), surface.Pixel(31, 23));

        {
            CPen pen(PS_SOLID, 1, RGB(255, 0, 0));
            CSelectGuard select(&dc, &pen);
            dc.MoveTo(2, 5);
            dc.LineTo(12, 5);
            EXPECT_EQ(CPoint(12, 5), dc.GetCurrentPosition());
        }
        for (int x = 2; x < 12; x++)
            EXPECT_EQ(RGB(255, 0, 0), surface.Pixel(x, 5)) << "x=" << x;
        EXPECT_EQ(RGB(255, 255, 255), surface.Pixel(12, 5));   // the end point is not drawn
        EXPECT_EQ(RGB(255, 255, 255), surface.Pixel(1, 5));

        {
            CBrush brush(RGB(0, 128, 0));
            CPen pen(PS_SOLID, 1, RGB(0, 0, 255));
            CSelectGuard selectBrush(&dc, &brush);
            CSelectGuard selectPen(&dc, &pen);
            dc.Rectangle(10, 10, 20, 18);
        }
        EXPECT_EQ(RGB(0, 0, 255), surface.Pixel(10, 10));
        EXPECT_EQ(RGB(0, 0, 255), surface.Pixel(19, 17));
        EXPECT_EQ(RGB(0, 128, 0), surface.Pixel(15, 14));
        EXPECT_EQ(RGB(255, 255, 255), surface.Pixel(20, 18));
        EXPECT_EQ(RGB(0, 128, 0), dc.GetPixel(15, 14));

        CRect rcInvert(0, 20, 4, 24);
        dc.InvertRect(&rcInvert);
        EXPECT_EQ(RGB(0, 0, 0), surface.Pixel(1, 21));
        dc.InvertRect(&rcInvert);
        EXPECT_EQ(RGB(255, 255, 255), surface.Pixel(1, 21));

        // Text in the layer's font lands inside its extent.
        CFont font;
        ASSERT_TRUE(font.CreatePointFont(80, "\xCB\xCE\xCC\xE5", &dc));
        CSelectGuard selectFont(&dc, &font);
        dc.SetTextColor(RGB(0, 0, 0));
        dc.SetBkMode(TRANSPARENT);
        CSize size = dc.GetTextExtent(CString("W"));
        EXPECT_GT(size.cx, 0);
        EXPECT_GT(size.cy, 0);
        dc.FillSolidRect(0, 0, 32, 24, RGB(255, 255, 255));
        dc.TextOut(0, 0, CString("W"));
        int nDark = 0;
        int nOutside = 0;
        for (int y = 0; y < 24; y++) {
            for (int x = 0; x < 32; x++) {
                if (surface.Pixel(x, y) != RGB(255, 255, 255)) {
                    ++nDark;
                    if (x >= size.cx || y >= size.cy)
                        ++nOutside;
                }
            }
        }
        EXPECT_GT(nDark, 0);
        EXPECT_EQ(0, nOutside);
    }
    // The owned memory context is deleted with its object.
    EXPECT_EQ(0u, (UINT)::GetObjectType(hDC));
}
