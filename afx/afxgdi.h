// GDI wrappers: owning GDI objects (pens, brushes, fonts, bitmaps, regions),
// the device context CDC with its window and paint variants, and the scoped
// guards with which every drawer restores what it changed.
//
// Ownership: a CGdiObject owns its handle and deletes it when destroyed;
// Detach hands the handle back to the caller. SelectObject returns the handle
// that was selected before (not a temporary wrapper): drawing code puts it
// back through CSelectGuard or CSaveDCGuard rather than by hand.
#pragma once

#include "afx/afx.h"
#include "afx/afxtypes.h"

class CDC;
class CWnd;

class AFX_EXT_CLASS CGdiObject : public CObject
{
    DECLARE_DYNAMIC(CGdiObject)
public:
    CGdiObject();
    virtual ~CGdiObject();    // deletes the owned handle

    HGDIOBJ m_hObject;

    operator HGDIOBJ() const { return m_hObject; }
    HGDIOBJ GetSafeHandle() const { return m_hObject; }

    BOOL Attach(HGDIOBJ hObject);   // takes ownership
    HGDIOBJ Detach();               // gives ownership back
    BOOL DeleteObject();            // deletes the handle now; FALSE if none
    int GetObject(int nCount, LPVOID lpObject) const;
    BOOL CreateStockObject(int nIndex);  // a stock object is not owned and never deleted

    // Objects created through the layer and not yet deleted or detached, in
    // this process: what the resource tests watch, since GDI object counters
    // of the system are not available everywhere.
    static LONG PASCAL GetLiveCount();
    // A test facility: the object that the (nAfter + 1)-th following Attach
    // would take is refused (its handle deleted, the creation fails), as the
    // system refuses an object it cannot make. -1 refuses nothing.
    static void PASCAL RefuseAfter(LONG nAfter);

protected:
    // Wraps a handle that the system owns (stock objects, system colour
    // brushes): it is never deleted here.
    BOOL AttachShared(HGDIOBJ hObject);

private:
    BOOL m_bStock;
};

class AFX_EXT_CLASS CPen : public CGdiObject
{
    DECLARE_DYNAMIC(CPen)
public:
    CPen();
    CPen(int nPenStyle, int nWidth, COLORREF crColor);
    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor);
    BOOL CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0, const DWORD* lpStyle = NULL);
    BOOL CreatePenIndirect(LPLOGPEN lpLogPen);
    operator HPEN() const { return (HPEN)m_hObject; }
    int GetLogPen(LOGPEN* pLogPen) const { return GetObject(sizeof(LOGPEN), pLogPen); }
};

class AFX_EXT_CLASS CBrush : public CGdiObject
{
    DECLARE_DYNAMIC(CBrush)
public:
    CBrush();
    explicit CBrush(COLORREF crColor);
    CBrush(int nIndex, COLORREF crColor);
    BOOL CreateSolidBrush(COLORREF crColor);
    BOOL CreateHatchBrush(int nIndex, COLORREF crColor);
    BOOL CreateBrushIndirect(const LOGBRUSH* lpLogBrush);
    BOOL CreatePatternBrush(class CBitmap* pBitmap);
    BOOL CreateSysColorBrush(int nIndex);
    operator HBRUSH() const { return (HBRUSH)m_hObject; }
    int GetLogBrush(LOGBRUSH* pLogBrush) const { return GetObject(sizeof(LOGBRUSH), pLogBrush); }
};

class AFX_EXT_CLASS CFont : public CGdiObject
{
    DECLARE_DYNAMIC(CFont)
public:
    CFont();
    BOOL CreateFontIndirect(const LOGFONT* lpLogFont);
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight,
                    BYTE bItalic, BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet,
                    BYTE nOutPrecision, BYTE nClipPrecision, BYTE nQuality,
                    BYTE nPitchAndFamily, LPCSTR lpszFacename);
    // A font of nPointSize tenths of a point for the device of pDC (its
    // attribute context), or for the screen when pDC is null.
    BOOL CreatePointFont(int nPointSize, LPCSTR lpszFaceName, CDC* pDC = NULL);
    // The same from a LOGFONT whose lfHeight holds tenths of a point.
    BOOL CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC = NULL);
    operator HFONT() const { return (HFONT)m_hObject; }
    int GetLogFont(LOGFONT* pLogFont) const { return GetObject(sizeof(LOGFONT), pLogFont); }
};

class AFX_EXT_CLASS CBitmap : public CGdiObject
{
    DECLARE_DYNAMIC(CBitmap)
public:
    CBitmap();
    BOOL LoadBitmap(UINT nIDResource);   // through the resource chain
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits);
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    operator HBITMAP() const { return (HBITMAP)m_hObject; }
    int GetBitmap(BITMAP* pBitMap) const { return GetObject(sizeof(BITMAP), pBitMap); }
};

class AFX_EXT_CLASS CRgn : public CGdiObject
{
    DECLARE_DYNAMIC(CRgn)
public:
    CRgn();
    BOOL CreateRectRgn(int x1, int y1, int x2, int y2);
    BOOL CreateRectRgnIndirect(LPCRECT lpRect);
    BOOL CreatePolygonRgn(LPPOINT lpPoints, int nCount, int nMode);
    int CombineRgn(CRgn* pRgn1, CRgn* pRgn2, int nCombineMode);
    int GetRgnBox(LPRECT lpRect) const { return ::GetRgnBox((HRGN)m_hObject, lpRect); }
    BOOL PtInRegion(int x, int y) const { return ::PtInRegion((HRGN)m_hObject, x, y); }
    operator HRGN() const { return (HRGN)m_hObject; }
};

// ---------------------------------------------------------------------------
// CDC
// ---------------------------------------------------------------------------

class AFX_EXT_CLASS CDC : public CObject
{
    DECLARE_DYNCREATE(CDC)
public:
    CDC();
    virtual ~CDC();     // deletes a context it created, never one it was given

    HDC m_hDC;          // output context
    HDC m_hAttribDC;    // attribute context: metrics and mapping are read here

    operator HDC() const { return m_hDC; }
    HDC GetSafeHdc() const { return m_hDC; }

    BOOL Attach(HDC hDC);     // borrows: the context is not deleted by this object
    HDC Detach();
    BOOL CreateCompatibleDC(CDC* pDC);   // owned: deleted with the object
    BOOL CreateDC(LPCSTR lpszDriverName, LPCSTR lpszDeviceName, LPCSTR lpszOutput, const void* lpInitData);
    BOOL CreateIC(LPCSTR lpszDriverName, LPCSTR lpszDeviceName, LPCSTR lpszOutput, const void* lpInitData);
    BOOL DeleteDC();
    BOOL IsPrinting() const { return m_bPrinting; }
    void SetPrinting(BOOL bPrinting) { m_bPrinting = bPrinting; }
    void SetAttribDC(HDC hDC) { m_hAttribDC = hDC; }

    // State
    int SaveDC();
    BOOL RestoreDC(int nSavedDC);
    int GetDeviceCaps(int nIndex) const;
    CWnd* GetWindow() const;

    // Objects
    HGDIOBJ SelectObject(CGdiObject* pObject);
    HGDIOBJ SelectObject(HGDIOBJ hObject);
    HGDIOBJ SelectStockObject(int nIndex);
    int SelectClipRgn(CRgn* pRgn);
    int SelectClipRgn(CRgn* pRgn, int nMode);

    // Colours and modes
    COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
    COLORREF SetTextColor(COLORREF crColor);
    COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
    COLORREF SetBkColor(COLORREF crColor);
    int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
    int SetBkMode(int nBkMode);
    int GetROP2() const { return ::GetROP2(m_hAttribDC); }
    int SetROP2(int nDrawMode);
    UINT GetTextAlign() const { return ::GetTextAlign(m_hAttribDC); }
    UINT SetTextAlign(UINT nFlags);
    COLORREF GetNearestColor(COLORREF crColor) const { return ::GetNearestColor(m_hAttribDC, crColor); }

    // Mapping
    int GetMapMode() const { return ::GetMapMode(m_hAttribDC); }
    int SetMapMode(int nMapMode);
    CPoint GetViewportOrg() const;
    CPoint SetViewportOrg(int x, int y);
    CSize GetViewportExt() const;
    CSize SetViewportExt(int cx, int cy);
    CPoint GetWindowOrg() const;
    CPoint SetWindowOrg(int x, int y);
    CSize GetWindowExt() const;
    CSize SetWindowExt(int cx, int cy);
    void DPtoLP(LPPOINT lpPoints, int nCount = 1) const { ::DPtoLP(m_hAttribDC, lpPoints, nCount); }
    void DPtoLP(LPRECT lpRect) const { ::DPtoLP(m_hAttribDC, (LPPOINT)lpRect, 2); }
    void LPtoDP(LPPOINT lpPoints, int nCount = 1) const { ::LPtoDP(m_hAttribDC, lpPoints, nCount); }
    void LPtoDP(LPRECT lpRect) const { ::LPtoDP(m_hAttribDC, (LPPOINT)lpRect, 2); }

    // Clipping
    int GetClipBox(LPRECT lpRect) const { return ::GetClipBox(m_hDC, lpRect); }
    int IntersectClipRect(int x1, int y1, int x2, int y2);
    int IntersectClipRect(LPCRECT lpRect);
    int ExcludeClipRect(int x1, int y1, int x2, int y2);
    BOOL PtVisible(int x, int y) const { return ::PtVisible(m_hDC, x, y); }
    BOOL RectVisible(LPCRECT lpRect) const { return ::RectVisible(m_hDC, lpRect); }

    // Lines and shapes
    CPoint GetCurrentPosition() const;
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y) { return ::LineTo(m_hDC, x, y); }
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Polyline(const POINT* lpPoints, int nCount) { return ::Polyline(m_hDC, lpPoints, nCount); }
    BOOL PolylineTo(const POINT* lpPoints, int nCount) { return ::PolylineTo(m_hDC, lpPoints, (DWORD)nCount); }
    BOOL Polygon(const POINT* lpPoints, int nCount) { return ::Polygon(m_hDC, lpPoints, nCount); }
    BOOL Rectangle(int x1, int y1, int x2, int y2) { return ::Rectangle(m_hDC, x1, y1, x2, y2); }
    BOOL Rectangle(LPCRECT lpRect) { return Rectangle(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom); }
    BOOL Ellipse(int x1, int y1, int x2, int y2) { return ::Ellipse(m_hDC, x1, y1, x2, y2); }
    void FillRect(LPCRECT lpRect, CBrush* pBrush) { ::FillRect(m_hDC, lpRect, (HBRUSH)pBrush->m_hObject); }
    void FrameRect(LPCRECT lpRect, CBrush* pBrush) { ::FrameRect(m_hDC, lpRect, (HBRUSH)pBrush->m_hObject); }
    void InvertRect(LPCRECT lpRect) { ::InvertRect(m_hDC, lpRect); }
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr);
    void DrawFocusRect(LPCRECT lpRect) { ::DrawFocusRect(m_hDC, lpRect); }
    BOOL DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags) { return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags); }
    BOOL FillRgn(CRgn* pRgn, CBrush* pBrush) { return ::FillRgn(m_hDC, (HRGN)pRgn->m_hObject, (HBRUSH)pBrush->m_hObject); }
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    COLORREF SetPixel(int x, int y, COLORREF crColor) { return ::SetPixel(m_hDC, x, y, crColor); }
    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop) { return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop); }
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop);
    BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                    int nSrcWidth, int nSrcHeight, DWORD dwRop);

    // Text
    BOOL TextOut(int x, int y, LPCSTR lpszString, int nCount) { return ::TextOutA(m_hDC, x, y, lpszString, nCount); }
    BOOL TextOut(int x, int y, const CString& str) { return TextOut(x, y, (LPCSTR)str, str.GetLength()); }
    BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCSTR lpszString, UINT nCount, LPINT lpDxWidths)
        { return ::ExtTextOutA(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths); }
    int DrawText(LPCSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat)
        { return ::DrawTextA(m_hDC, lpszString, nCount, lpRect, nFormat); }
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat)
        { return DrawText((LPCSTR)str, str.GetLength(), lpRect, nFormat); }
    CSize GetTextExtent(LPCSTR lpszString, int nCount) const;   // on the attribute context
    CSize GetTextExtent(const CString& str) const { return GetTextExtent((LPCSTR)str, str.GetLength()); }
    CSize GetOutputTextExtent(LPCSTR lpszString, int nCount) const;   // on the output context
    CSize GetOutputTextExtent(const CString& str) const { return GetOutputTextExtent((LPCSTR)str, str.GetLength()); }
    BOOL GetTextMetrics(LPTEXTMETRIC lpMetrics) const { return ::GetTextMetricsA(m_hAttribDC, lpMetrics); }
    BOOL GetOutputTextMetrics(LPTEXTMETRIC lpMetrics) const { return ::GetTextMetricsA(m_hDC, lpMetrics); }
    int GetTextFace(int nCount, LPSTR lpszFacename) const { return ::GetTextFaceA(m_hAttribDC, nCount, lpszFacename); }
    BOOL GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const
        { return ::GetCharWidthA(m_hAttribDC, nFirstChar, nLastChar, lpBuffer); }

protected:
    BOOL m_bPrinting;
    BOOL m_bOwnDC;     // m_hDC was created here and is deleted here

private:
    CDC(const CDC&) = delete;
    void operator=(const CDC&) = delete;
};

// The context of a window's client area, from GetDC to ReleaseDC.
class AFX_EXT_CLASS CClientDC : public CDC
{
    DECLARE_DYNAMIC(CClientDC)
public:
    explicit CClientDC(CWnd* pWnd);   // null: the screen
    virtual ~CClientDC();
protected:
    HWND m_hWnd;
};

// The context of the whole window, from GetWindowDC to ReleaseDC.
class AFX_EXT_CLASS CWindowDC : public CDC
{
    DECLARE_DYNAMIC(CWindowDC)
public:
    explicit CWindowDC(CWnd* pWnd);
    virtual ~CWindowDC();
protected:
    HWND m_hWnd;
};

// The paint context of WM_PAINT, from BeginPaint to EndPaint.
class AFX_EXT_CLASS CPaintDC : public CDC
{
    DECLARE_DYNAMIC(CPaintDC)
public:
    explicit CPaintDC(CWnd* pWnd);
    virtual ~CPaintDC();

    PAINTSTRUCT m_ps;
protected:
    HWND m_hWnd;
};

// ---------------------------------------------------------------------------
// Scoped guards for drawing code
// ---------------------------------------------------------------------------

// Selects an object into a context and selects the previous one back when
// the guard goes. Declare the object before the guard, so that the object is
// deselected before it is deleted. Not for regions: selecting one sets the
// clip and has no previous handle; use CSaveDCGuard around SelectClipRgn.
class CSelectGuard
{
public:
    CSelectGuard(CDC* pDC, CGdiObject* pObject) : m_pDC(pDC), m_hOld(pDC->SelectObject(pObject)) {}
    CSelectGuard(CDC* pDC, HGDIOBJ hObject) : m_pDC(pDC), m_hOld(pDC->SelectObject(hObject)) {}
    ~CSelectGuard() { if (m_hOld != NULL) m_pDC->SelectObject(m_hOld); }
private:
    CSelectGuard(const CSelectGuard&) = delete;
    void operator=(const CSelectGuard&) = delete;
    CDC* m_pDC;
    HGDIOBJ m_hOld;
};

// Saves the whole state of a context (objects, colours, modes, clip region,
// mapping) and restores it when the guard goes.
class CSaveDCGuard
{
public:
    explicit CSaveDCGuard(CDC* pDC) : m_pDC(pDC), m_nSaved(pDC->SaveDC()) {}
    ~CSaveDCGuard() { if (m_nSaved != 0) m_pDC->RestoreDC(m_nSaved); }
private:
    CSaveDCGuard(const CSaveDCGuard&) = delete;
    void operator=(const CSaveDCGuard&) = delete;
    CDC* m_pDC;
    int m_nSaved;
};
