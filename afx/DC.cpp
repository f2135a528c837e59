// Device contexts: CDC over an output and an attribute context, and the
// window, client and paint contexts that release themselves.
#include "afx/afxgdi.h"
#include "afx/afxwnd.h"

IMPLEMENT_DYNCREATE(CDC, CObject)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

CDC::CDC() : m_hDC(NULL), m_hAttribDC(NULL), m_bPrinting(FALSE), m_bOwnDC(FALSE) {}

CDC::~CDC()
{
    if (m_bOwnDC && m_hDC != NULL)
        ::DeleteDC(m_hDC);
}

BOOL CDC::Attach(HDC hDC)
{
    if (hDC == NULL)
        return FALSE;
    m_hDC = hDC;
    m_hAttribDC = hDC;
    m_bOwnDC = FALSE;
    return TRUE;
}

HDC CDC::Detach()
{
    HDC hDC = m_hDC;
    m_hDC = m_hAttribDC = NULL;
    m_bOwnDC = FALSE;
    return hDC;
}

BOOL CDC::CreateCompatibleDC(CDC* pDC)
{
    HDC hDC = ::CreateCompatibleDC(pDC != NULL ? pDC->m_hDC : NULL);
    if (!Attach(hDC))
        return FALSE;
    m_bOwnDC = TRUE;
    return TRUE;
}

BOOL CDC::CreateDC(LPCSTR lpszDriverName, LPCSTR lpszDeviceName, LPCSTR lpszOutput, const void* lpInitData)
{
    HDC hDC = ::CreateDCA(lpszDriverName, lpszDeviceName, lpszOutput, (const DEVMODEA*)lpInitData);
    if (!Attach(hDC))
        return FALSE;
    m_bOwnDC = TRUE;
    return TRUE;
}

BOOL CDC::CreateIC(LPCSTR lpszDriverName, LPCSTR lpszDeviceName, LPCSTR lpszOutput, const void* lpInitData)
{
    HDC hDC = ::CreateICA(lpszDriverName, lpszDeviceName, lpszOutput, (const DEVMODEA*)lpInitData);
    if (!Attach(hDC))
        return FALSE;
    m_bOwnDC = TRUE;
    return TRUE;
}

BOOL CDC::DeleteDC()
{
    if (m_hDC == NULL)
        return FALSE;
    BOOL bOwn = m_bOwnDC;
    HDC hDC = Detach();
    return bOwn ? ::DeleteDC(hDC) : TRUE;
}

int CDC::SaveDC()
{
    int nRet = 0;
    if (m_hAttribDC != NULL)
        nRet = ::SaveDC(m_hAttribDC);
    if (m_hDC != m_hAttribDC && ::SaveDC(m_hDC) != 0)
        nRet = -1;   // the two contexts can only be restored together by -1
    return nRet;
}

BOOL CDC::RestoreDC(int nSavedDC)
{
    BOOL bRet = TRUE;
    if (m_hDC != m_hAttribDC)
        bRet = ::RestoreDC(m_hDC, nSavedDC);
    if (m_hAttribDC != NULL)
        bRet = (bRet && ::RestoreDC(m_hAttribDC, nSavedDC));
    return bRet;
}

int CDC::GetDeviceCaps(int nIndex) const
{
    return ::GetDeviceCaps(m_hAttribDC, nIndex);
}

CWnd* CDC::GetWindow() const
{
    return CWnd::FromHandlePermanent(::WindowFromDC(m_hDC));
}

HGDIOBJ CDC::SelectObject(CGdiObject* pObject)
{
    return SelectObject(pObject != NULL ? pObject->m_hObject : NULL);
}

HGDIOBJ CDC::SelectObject(HGDIOBJ hObject)
{
    if (hObject == NULL)
        return NULL;
    HGDIOBJ hOldObj = NULL;
    if (m_hDC != m_hAttribDC)
        hOldObj = ::SelectObject(m_hDC, hObject);
    if (m_hAttribDC != NULL)
        hOldObj = ::SelectObject(m_hAttribDC, hObject);
    return hOldObj;
}

HGDIOBJ CDC::SelectStockObject(int nIndex)
{
    return SelectObject(::GetStockObject(nIndex));
}

int CDC::SelectClipRgn(CRgn* pRgn)
{
    HRGN hRgn = pRgn != NULL ? (HRGN)pRgn->m_hObject : NULL;
    int nRetVal = ERROR;
    if (m_hDC != m_hAttribDC)
        nRetVal = ::SelectClipRgn(m_hDC, hRgn);
    if (m_hAttribDC != NULL)
        nRetVal = ::SelectClipRgn(m_hAttribDC, hRgn);
    return nRetVal;
}

int CDC::SelectClipRgn(CRgn* pRgn, int nMode)
{
    HRGN hRgn = pRgn != NULL ? (HRGN)pRgn->m_hObject : NULL;
    int nRetVal = ERROR;
    if (m_hDC != m_hAttribDC)
        nRetVal = ::ExtSelectClipRgn(m_hDC, hRgn, nMode);
    if (m_hAttribDC != NULL)
        nRetVal = ::ExtSelectClipRgn(m_hAttribDC, hRgn, nMode);
    return nRetVal;
}

COLORREF CDC::SetTextColor(COLORREF crColor)
{
    COLORREF crRetVal = CLR_INVALID;
    if (m_hDC != m_hAttribDC)
        crRetVal = ::SetTextColor(m_hDC, crColor);
    if (m_hAttribDC != NULL)
        crRetVal = ::SetTextColor(m_hAttribDC, crColor);
    return crRetVal;
}

COLORREF CDC::SetBkColor(COLORREF crColor)
{
    COLORREF crRetVal = CLR_INVALID;
    if (m_hDC != m_hAttribDC)
        crRetVal = ::SetBkColor(m_hDC, crColor);
    if (m_hAttribDC != NULL)
        crRetVal = ::SetBkColor(m_hAttribDC, crColor);
    return crRetVal;
}

int CDC::SetBkMode(int nBkMode)
{
    int nRetVal = 0;
    if (m_hDC != m_hAttribDC)
        nRetVal = ::SetBkMode(m_hDC, nBkMode);
    if (m_hAttribDC != NULL)
        nRetVal = ::SetBkMode(m_hAttribDC, nBkMode);
    return nRetVal;
}

int CDC::SetROP2(int nDrawMode)
{
    int nRetVal = 0;
    if (m_hDC != m_hAttribDC)
        nRetVal = ::SetROP2(m_hDC, nDrawMode);
    if (m_hAttribDC != NULL)
        nRetVal = ::SetROP2(m_hAttribDC, nDrawMode);
    return nRetVal;
}

UINT CDC::SetTextAlign(UINT nFlags)
{
    UINT nRetVal = GDI_ERROR;
    if (m_hDC != m_hAttribDC)
        ::SetTextAlign(m_hDC, nFlags);
    if (m_hAttribDC != NULL)
        nRetVal = ::SetTextAlign(m_hAttribDC, nFlags);
    return nRetVal;
}

int CDC::SetMapMode(int nMapMode)
{
    int nRetVal = 0;
    if (m_hDC != m_hAttribDC)
        nRetVal = ::SetMapMode(m_hDC, nMapMode);
    if (m_hAttribDC != NULL)
        nRetVal = ::SetMapMode(m_hAttribDC, nMapMode);
    return nRetVal;
}

CPoint CDC::GetViewportOrg() const
{
    POINT point;
    ::GetViewportOrgEx(m_hAttribDC, &point);
    return point;
}

CPoint CDC::SetViewportOrg(int x, int y)
{
    POINT point = { 0, 0 };
    if (m_hDC != m_hAttribDC)
        ::SetViewportOrgEx(m_hDC, x, y, &point);
    if (m_hAttribDC != NULL)
        ::SetViewportOrgEx(m_hAttribDC, x, y, &point);
    return point;
}

CSize CDC::GetViewportExt() const
{
    SIZE size;
    ::GetViewportExtEx(m_hAttribDC, &size);
    return size;
}

CSize CDC::SetViewportExt(int cx, int cy)
{
    SIZE size = { 0, 0 };
    if (m_hDC != m_hAttribDC)
        ::SetViewportExtEx(m_hDC, cx, cy, &size);
    if (m_hAttribDC != NULL)
        ::SetViewportExtEx(m_hAttribDC, cx, cy, &size);
    return size;
}

CPoint CDC::GetWindowOrg() const
{
    POINT point;
    ::GetWindowOrgEx(m_hAttribDC, &point);
    return point;
}

CPoint CDC::SetWindowOrg(int x, int y)
{
    POINT point = { 0, 0 };
    if (m_hDC != m_hAttribDC)
        ::SetWindowOrgEx(m_hDC, x, y, &point);
    if (m_hAttribDC != NULL)
        ::SetWindowOrgEx(m_hAttribDC, x, y, &point);
    return point;
}

CSize CDC::GetWindowExt() const
{
    SIZE size;
    ::GetWindowExtEx(m_hAttribDC, &size);
    return size;
}

CSize CDC::SetWindowExt(int cx, int cy)
{
    SIZE size = { 0, 0 };
    if (m_hDC != m_hAttribDC)
        ::SetWindowExtEx(m_hDC, cx, cy, &size);
    if (m_hAttribDC != NULL)
        ::SetWindowExtEx(m_hAttribDC, cx, cy, &size);
    return size;
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2)
{
    int nRetVal = ERROR;
    if (m_hDC != m_hAttribDC)
        nRetVal = ::IntersectClipRect(m_hDC, x1, y1, x2, y2);
    if (m_hAttribDC != NULL)
        nRetVal = ::IntersectClipRect(m_hAttribDC, x1, y1, x2, y2);
    return nRetVal;
}

int CDC::IntersectClipRect(LPCRECT lpRect)
{
    return IntersectClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2)
{
    int nRetVal = ERROR;
    if (m_hDC != m_hAttribDC)
        nRetVal = ::ExcludeClipRect(m_hDC, x1, y1, x2, y2);
    if (m_hAttribDC != NULL)
        nRetVal = ::ExcludeClipRect(m_hAttribDC, x1, y1, x2, y2);
    return nRetVal;
}

CPoint CDC::GetCurrentPosition() const
{
    POINT point;
    ::GetCurrentPositionEx(m_hAttribDC, &point);
    return point;
}

CPoint CDC::MoveTo(int x, int y)
{
    POINT point = { 0, 0 };
    if (m_hDC != m_hAttribDC)
        ::MoveToEx(m_hDC, x, y, &point);
    if (m_hAttribDC != NULL)
        ::MoveToEx(m_hAttribDC, x, y, &point);
    return point;
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr)
{
    COLORREF crOld = ::SetBkColor(m_hDC, clr);
    ::ExtTextOutA(m_hDC, 0, 0, ETO_OPAQUE, lpRect, NULL, 0, NULL);
    ::SetBkColor(m_hDC, crOld);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr)
{
    RECT rect = { x, y, x + cx, y + cy };
    FillSolidRect(&rect, clr);
}

BOOL CDC::BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop)
{
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC != NULL ? pSrcDC->m_hDC : NULL, xSrc, ySrc, dwRop);
}

BOOL CDC::StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                     int nSrcWidth, int nSrcHeight, DWORD dwRop)
{
    return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC != NULL ? pSrcDC->m_hDC : NULL,
                        xSrc, ySrc, nSrcWidth, nSrcHeight, dwRop);
}

CSize CDC::GetTextExtent(LPCSTR lpszString, int nCount) const
{
    SIZE size = { 0, 0 };
    ::GetTextExtentPoint32A(m_hAttribDC, lpszString, nCount, &size);
    return size;
}

CSize CDC::GetOutputTextExtent(LPCSTR lpszString, int nCount) const
{
    SIZE size = { 0, 0 };
    ::GetTextExtentPoint32A(m_hDC, lpszString, nCount, &size);
    return size;
}

// --- contexts of a window ---------------------------------------------------

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(pWnd != NULL ? pWnd->m_hWnd : NULL)
{
    if (!Attach(::GetDC(m_hWnd)))
        AfxThrowResourceException();
}

CClientDC::~CClientDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(pWnd != NULL ? pWnd->m_hWnd : NULL)
{
    if (!Attach(::GetWindowDC(m_hWnd)))
        AfxThrowResourceException();
}

CWindowDC::~CWindowDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}

CPaintDC::CPaintDC(CWnd* pWnd) : m_hWnd(pWnd->m_hWnd)
{
    if (!Attach(::BeginPaint(m_hWnd, &m_ps)))
        AfxThrowResourceException();
}

CPaintDC::~CPaintDC()
{
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}
