// Owning GDI objects: pens, brushes, fonts, bitmaps and regions. Every
// handle made here is counted until it is deleted or detached.
#include "afx/afxgdi.h"
#include "afx/afxmodule.h"
#include <stdlib.h>
#include <string.h>

namespace {
volatile LONG g_nLiveGdiObjects = 0;
volatile LONG g_nRefuseAfter = -1;   // RefuseAfter: objects still taken before one is refused
}

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

CGdiObject::CGdiObject() : m_hObject(NULL), m_bStock(FALSE) {}

CGdiObject::~CGdiObject()
{
    DeleteObject();
}

LONG PASCAL CGdiObject::GetLiveCount()
{
    return g_nLiveGdiObjects;
}

void PASCAL CGdiObject::RefuseAfter(LONG nAfter)
{
    InterlockedExchange(&g_nRefuseAfter, nAfter);
}

BOOL CGdiObject::Attach(HGDIOBJ hObject)
{
    ASSERT(m_hObject == NULL);
    if (hObject == NULL)
        return FALSE;
    if (g_nRefuseAfter >= 0 && InterlockedDecrement(&g_nRefuseAfter) == -1) {
        ::DeleteObject(hObject);
        return FALSE;
    }
    m_hObject = hObject;
    m_bStock = FALSE;
    InterlockedIncrement(&g_nLiveGdiObjects);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach()
{
    HGDIOBJ hObject = m_hObject;
    if (hObject != NULL && !m_bStock)
        InterlockedDecrement(&g_nLiveGdiObjects);
    m_hObject = NULL;
    m_bStock = FALSE;
    return hObject;
}

BOOL CGdiObject::DeleteObject()
{
    if (m_hObject == NULL)
        return FALSE;
    BOOL bStock = m_bStock;
    HGDIOBJ hObject = Detach();
    return bStock ? TRUE : ::DeleteObject(hObject);
}

int CGdiObject::GetObject(int nCount, LPVOID lpObject) const
{
    return ::GetObjectA(m_hObject, nCount, lpObject);
}

BOOL CGdiObject::AttachShared(HGDIOBJ hObject)
{
    ASSERT(m_hObject == NULL);
    m_hObject = hObject;
    m_bStock = TRUE;
    return m_hObject != NULL;
}

BOOL CGdiObject::CreateStockObject(int nIndex)
{
    return AttachShared(::GetStockObject(nIndex));
}

// --- CPen -------------------------------------------------------------------

CPen::CPen() {}

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor)
{
    if (!CreatePen(nPenStyle, nWidth, crColor))
        AfxThrowResourceException();
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, COLORREF crColor)
{
    return Attach(::CreatePen(nPenStyle, nWidth, crColor));
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount, const DWORD* lpStyle)
{
    return Attach(::ExtCreatePen((DWORD)nPenStyle, (DWORD)nWidth, pLogBrush, (DWORD)nStyleCount, lpStyle));
}

BOOL CPen::CreatePenIndirect(LPLOGPEN lpLogPen)
{
    return Attach(::CreatePenIndirect(lpLogPen));
}

// --- CBrush -----------------------------------------------------------------

CBrush::CBrush() {}

CBrush::CBrush(COLORREF crColor)
{
    if (!CreateSolidBrush(crColor))
        AfxThrowResourceException();
}

CBrush::CBrush(int nIndex, COLORREF crColor)
{
    if (!CreateHatchBrush(nIndex, crColor))
        AfxThrowResourceException();
}

BOOL CBrush::CreateSolidBrush(COLORREF crColor)
{
    return Attach(::CreateSolidBrush(crColor));
}

BOOL CBrush::CreateHatchBrush(int nIndex, COLORREF crColor)
{
    return Attach(::CreateHatchBrush(nIndex, crColor));
}

BOOL CBrush::CreateBrushIndirect(const LOGBRUSH* lpLogBrush)
{
    return Attach(::CreateBrushIndirect(lpLogBrush));
}

BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap)
{
    return Attach(::CreatePatternBrush((HBITMAP)pBitmap->m_hObject));
}

BOOL CBrush::CreateSysColorBrush(int nIndex)
{
    return AttachShared(::GetSysColorBrush(nIndex));
}

// --- CFont ------------------------------------------------------------------

CFont::CFont() {}

BOOL CFont::CreateFontIndirect(const LOGFONT* lpLogFont)
{
    return Attach(::CreateFontIndirectA(lpLogFont));
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight,
                       BYTE bItalic, BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet,
                       BYTE nOutPrecision, BYTE nClipPrecision, BYTE nQuality,
                       BYTE nPitchAndFamily, LPCSTR lpszFacename)
{
    return Attach(::CreateFontA(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic,
                                bUnderline, cStrikeOut, nCharSet, nOutPrecision, nClipPrecision,
                                nQuality, nPitchAndFamily, lpszFacename));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCSTR lpszFaceName, CDC* pDC)
{
    LOGFONT logFont;
    memset(&logFont, 0, sizeof(LOGFONT));
    logFont.lfCharSet = DEFAULT_CHARSET;
    logFont.lfHeight = nPointSize;
    lstrcpynA(logFont.lfFaceName, lpszFaceName != NULL ? lpszFaceName : "", LF_FACESIZE);
    return CreatePointFontIndirect(&logFont, pDC);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC)
{
    HDC hDC = pDC != NULL ? pDC->m_hAttribDC : ::GetDC(NULL);

    // Tenths of a point to logical units of the device: 720 per inch.
    LOGFONT logFont = *lpLogFont;
    POINT pt;
    pt.x = 0;
    pt.y = ::GetDeviceCaps(hDC, LOGPIXELSY) * logFont.lfHeight;
    pt.y /= 720;
    ::DPtoLP(hDC, &pt, 1);
    POINT ptOrg = { 0, 0 };
    ::DPtoLP(hDC, &ptOrg, 1);
    logFont.lfHeight = -abs(pt.y - ptOrg.y);

    if (pDC == NULL)
        ::ReleaseDC(NULL, hDC);
    return CreateFontIndirect(&logFont);
}

// --- CBitmap ----------------------------------------------------------------

CBitmap::CBitmap() {}

BOOL CBitmap::LoadBitmap(UINT nIDResource)
{
    HINSTANCE hInst = AfxFindResourceHandle(MAKEINTRESOURCEA(nIDResource), (LPCSTR)RT_BITMAP);
    return Attach(::LoadBitmapA(hInst, MAKEINTRESOURCEA(nIDResource)));
}

BOOL CBitmap::CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits)
{
    return Attach(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight)
{
    return Attach(::CreateCompatibleBitmap(pDC->m_hDC, nWidth, nHeight));
}

// --- CRgn -------------------------------------------------------------------

CRgn::CRgn() {}

BOOL CRgn::CreateRectRgn(int x1, int y1, int x2, int y2)
{
    return Attach(::CreateRectRgn(x1, y1, x2, y2));
}

BOOL CRgn::CreateRectRgnIndirect(LPCRECT lpRect)
{
    return Attach(::CreateRectRgnIndirect(lpRect));
}

BOOL CRgn::CreatePolygonRgn(LPPOINT lpPoints, int nCount, int nMode)
{
    return Attach(::CreatePolygonRgn(lpPoints, nCount, nMode));
}

int CRgn::CombineRgn(CRgn* pRgn1, CRgn* pRgn2, int nCombineMode)
{
    return ::CombineRgn((HRGN)m_hObject, (HRGN)pRgn1->m_hObject,
                        pRgn2 != NULL ? (HRGN)pRgn2->m_hObject : NULL, nCombineMode);
}
