// CRectTracker: geometry, hit test, cursor and drawing of the tracker frame,
// and the Track loop that moves the item or drags a handle.
#include "afx/afxext.h"
#include <stddef.h>

namespace {

// Where each handle stands: the corner of the rectangle it starts from,
// whether it is centred along x or y, the shift by one handle size, and the
// handle it becomes when the rectangle is inverted in x or in y.
struct HandleInfo
{
    size_t nOffsetX, nOffsetY;
    int nCenterX, nCenterY;
    int nHandleX, nHandleY;
    int nInvertX, nInvertY;
};

const HandleInfo g_handleInfo[8] = {
    { offsetof(RECT, left), offsetof(RECT, top), 0, 0, 0, 0, 1, 3 },       // top-left
    { offsetof(RECT, right), offsetof(RECT, top), 0, 0, -1, 0, 0, 2 },     // top-right
    { offsetof(RECT, right), offsetof(RECT, bottom), 0, 0, -1, -1, 3, 1 }, // bottom-right
    { offsetof(RECT, left), offsetof(RECT, bottom), 0, 0, 0, -1, 2, 0 },   // bottom-left
    { offsetof(RECT, left), offsetof(RECT, top), 1, 0, 0, 0, 4, 6 },       // top
    { offsetof(RECT, right), offsetof(RECT, top), 0, 1, -1, 0, 7, 5 },     // right
    { offsetof(RECT, left), offsetof(RECT, bottom), 1, 0, 0, -1, 6, 4 },   // bottom
    { offsetof(RECT, left), offsetof(RECT, top), 0, 1, 0, 0, 5, 7 },       // left
};

int RectField(const RECT& rect, size_t nOffset)
{
    return *(const LONG*)((const BYTE*)&rect + nOffset);
}

// The system cursor of each hit code; 9 is the border of a hatched tracker
// outside its rectangle.
LPCSTR CursorOfHit(int nHit)
{
    switch (nHit) {
    case CRectTracker::hitTopLeft:
    case CRectTracker::hitBottomRight: return (LPCSTR)IDC_SIZENWSE;
    case CRectTracker::hitTopRight:
    case CRectTracker::hitBottomLeft: return (LPCSTR)IDC_SIZENESW;
    case CRectTracker::hitTop:
    case CRectTracker::hitBottom: return (LPCSTR)IDC_SIZENS;
    case CRectTracker::hitRight:
    case CRectTracker::hitLeft: return (LPCSTR)IDC_SIZEWE;
    default: return (LPCSTR)IDC_SIZEALL;
    }
}

// The hatch of borders: one diagonal line in four pixels.
const WORD g_awHatch[8] = { 0x11, 0x22, 0x44, 0x88, 0x11, 0x22, 0x44, 0x88 };

// For each field of a RECT (left, top, right, bottom): the field across from
// it and the direction in which it lies, for the minimum size of a drag.
struct RectInfo
{
    size_t nOffsetAcross;
    int nSignAcross;
};

const RectInfo g_rectInfo[4] = {
    { offsetof(RECT, right), +1 },
    { offsetof(RECT, bottom), +1 },
    { offsetof(RECT, left), -1 },
    { offsetof(RECT, top), -1 },
};

// Inverts the frame of thickness size inside rect with brush (PATINVERT: a
// second call takes it away). An empty size inverts nothing.
void InvertFrame(CDC* pDC, const CRect& rect, CSize size, CBrush* pBrush)
{
    if (size.cx <= 0 || size.cy <= 0 || rect.IsRectEmpty())
        return;
    CSelectGuard selectBrush(pDC, pBrush);
    const int cx = rect.Width(), cy = rect.Height();
    pDC->PatBlt(rect.left, rect.top, cx, size.cy, PATINVERT);
    pDC->PatBlt(rect.left, rect.bottom - size.cy, cx, size.cy, PATINVERT);
    pDC->PatBlt(rect.left, rect.top + size.cy, size.cx, cy - 2 * size.cy, PATINVERT);
    pDC->PatBlt(rect.right - size.cx, rect.top + size.cy, size.cx, cy - 2 * size.cy, PATINVERT);
}

} // namespace

CRectTracker::CRectTracker()
{
    Construct();
}

CRectTracker::CRectTracker(LPCRECT lpSrcRect, UINT nStyle)
{
    Construct();
    m_rect.CopyRect(lpSrcRect);
    m_nStyle = nStyle;
}

CRectTracker::~CRectTracker() {}

void CRectTracker::Construct()
{
    m_rect.SetRectEmpty();
    m_nStyle = 0;
    m_nHandleSize = 4;
    m_sizeMin.cx = m_sizeMin.cy = m_nHandleSize * 2;
    m_bAllowInvert = FALSE;
    m_bErase = FALSE;
    m_bFinalErase = FALSE;
    m_rectLast.SetRectEmpty();
    m_sizeLast.cx = m_sizeLast.cy = 0;
}

void CRectTracker::GetTrueRect(LPRECT lpTrueRect) const
{
    CRect rect = m_rect;
    rect.NormalizeRect();
    int nInflateBy = 0;
    if (m_nStyle & (resizeOutside | hatchedBorder))
        nInflateBy += m_nHandleSize - 1;
    if (m_nStyle & (solidLine | dottedLine))
        ++nInflateBy;
    rect.InflateRect(nInflateBy, nInflateBy);
    *lpTrueRect = rect;
}

UINT CRectTracker::GetHandleMask() const
{
    // Corners always; side handles only where the side is long enough.
    UINT nMask = 0x0F;
    const int nSize = m_nHandleSize * 3;
    if (abs(m_rect.Width()) - nSize > 4)
        nMask |= 0x50;
    if (abs(m_rect.Height()) - nSize > 4)
        nMask |= 0xA0;
    return nMask;
}

int CRectTracker::NormalizeHit(int nHandle) const
{
    if (nHandle == hitMiddle || nHandle == hitNothing)
        return nHandle;
    if (m_rect.Width() < 0)
        nHandle = g_handleInfo[nHandle].nInvertX;
    if (m_rect.Height() < 0)
        nHandle = g_handleInfo[nHandle].nInvertY;
    return nHandle;
}

void CRectTracker::GetHandleRect(int nHandle, CRect* pHandleRect) const
{
    CRect rectT = m_rect;
    rectT.NormalizeRect();
    if (m_nStyle & (solidLine | dottedLine))
        rectT.InflateRect(1, 1);
    // The rectangle was normalised, so the handles are too.
    nHandle = NormalizeHit(nHandle);
    const int nSize = m_nHandleSize;
    if (m_nStyle & resizeOutside)
        rectT.InflateRect(nSize - 1, nSize - 1);
    const HandleInfo& info = g_handleInfo[nHandle];
    const int nWidth = rectT.Width(), nHeight = rectT.Height();
    CRect rect;
    rect.left = RectField(rectT, info.nOffsetX) + nSize * info.nHandleX + info.nCenterX * (nWidth - nSize) / 2;
    rect.top = RectField(rectT, info.nOffsetY) + nSize * info.nHandleY + info.nCenterY * (nHeight - nSize) / 2;
    rect.right = rect.left + nSize;
    rect.bottom = rect.top + nSize;
    *pHandleRect = rect;
}

int CRectTracker::HitTestHandles(CPoint point) const
{
    CRect rect;
    GetTrueRect(&rect);
    if (!rect.PtInRect(point))
        return hitNothing;
    const UINT nMask = GetHandleMask();
    for (int i = 0; i < 8; ++i) {
        if (nMask & (1u << i)) {
            GetHandleRect(i, &rect);
            if (rect.PtInRect(point))
                return i;
        }
    }
    // Between the handles, outside the rectangle: only a hatched border
    // counts as part of the tracker there.
    if ((m_nStyle & hatchedBorder) == 0) {
        CRect rectItem = m_rect;
        rectItem.NormalizeRect();
        if (m_nStyle & (dottedLine | solidLine))
            rectItem.InflateRect(1, 1);
        if (!rectItem.PtInRect(point))
            return hitNothing;
    }
    return hitMiddle;
}

int CRectTracker::HitTest(CPoint point) const
{
    CRect rectTrue;
    GetTrueRect(&rectTrue);
    if (!rectTrue.PtInRect(point))
        return hitNothing;
    if (m_nStyle & (resizeInside | resizeOutside))
        return HitTestHandles(point);
    return hitMiddle;
}

BOOL CRectTracker::SetCursor(CWnd* pWnd, UINT nHitTest) const
{
    if (nHitTest != HTCLIENT || pWnd == NULL)
        return FALSE;
    CPoint point;
    ::GetCursorPos(&point);
    pWnd->ScreenToClient(&point);
    int nHandle = HitTestHandles(point);
    if (nHandle < 0)
        return FALSE;
    nHandle = NormalizeHit(nHandle);
    // On the hatched border outside the item the pointer moves the item.
    if (nHandle == hitMiddle && !m_rect.PtInRect(point) && (m_nStyle & hatchedBorder))
        nHandle = 9;
    ::SetCursor(::LoadCursorA(NULL, CursorOfHit(nHandle)));
    return TRUE;
}

void CRectTracker::Draw(CDC* pDC) const
{
    CSaveDCGuard saveDC(pDC);
    pDC->SetMapMode(MM_TEXT);
    pDC->SetViewportOrg(0, 0);
    pDC->SetWindowOrg(0, 0);
    CRect rect = m_rect;
    rect.NormalizeRect();

    if (m_nStyle & (dottedLine | solidLine)) {
        CPen penDotted;
        if (m_nStyle & dottedLine)
            penDotted.CreatePen(PS_DOT, 0, RGB(0, 0, 0));
        pDC->SelectObject(penDotted.m_hObject != NULL ? penDotted.m_hObject : ::GetStockObject(BLACK_PEN));
        pDC->SelectStockObject(NULL_BRUSH);
        pDC->SetROP2(R2_COPYPEN);
        CRect rectLine = rect;
        rectLine.InflateRect(1, 1);   // the line stands one pixel outside
        pDC->Rectangle(&rectLine);
        pDC->SelectStockObject(BLACK_PEN);
    }

    if (m_nStyle & (hatchInside | hatchedBorder)) {
        CBitmap bitmap;
        CBrush brushHatch;
        if (bitmap.CreateBitmap(8, 8, 1, 1, g_awHatch) && brushHatch.CreatePatternBrush(&bitmap)) {
            CSelectGuard selectBrush(pDC, &brushHatch);
            if (m_nStyle & hatchInside) {
                CSelectGuard selectPen(pDC, ::GetStockObject(NULL_PEN));
                pDC->SetBkMode(TRANSPARENT);
                const int nOldRop = pDC->SetROP2(R2_MASKNOTPEN);
                pDC->Rectangle(rect.left + 1, rect.top + 1, rect.right, rect.bottom);
                pDC->SetROP2(nOldRop);
            }
            if (m_nStyle & hatchedBorder) {
                // The four strips between the rectangle and its true rectangle,
                // in the inverse of the hatch.
                const DWORD dwNotPattern = 0x000F0001;
                pDC->SetBkMode(OPAQUE);
                CRect rectTrue;
                GetTrueRect(&rectTrue);
                pDC->PatBlt(rectTrue.left, rectTrue.top, rectTrue.Width(), rect.top - rectTrue.top, dwNotPattern);
                pDC->PatBlt(rectTrue.left, rect.bottom, rectTrue.Width(), rectTrue.bottom - rect.bottom, dwNotPattern);
                pDC->PatBlt(rectTrue.left, rect.top, rect.left - rectTrue.left, rect.Height(), dwNotPattern);
                pDC->PatBlt(rect.right, rect.top, rectTrue.right - rect.right, rect.Height(), dwNotPattern);
            }
        }
    }

    if (m_nStyle & (resizeInside | resizeOutside)) {
        const UINT nMask = GetHandleMask();
        for (int i = 0; i < 8; ++i) {
            if (nMask & (1u << i)) {
                CRect rectHandle;
                GetHandleRect(i, &rectHandle);
                pDC->FillSolidRect(&rectHandle, RGB(0, 0, 0));
            }
        }
    }
}

// ---------------------------------------------------------------------------
// Track
// ---------------------------------------------------------------------------

BOOL CRectTracker::Track(CWnd* pWnd, CPoint point, BOOL bAllowInvert, CWnd* pWndClipTo)
{
    const int nHandle = HitTestHandles(point);
    if (nHandle < 0)
        return FALSE;
    m_bAllowInvert = bAllowInvert;
    return TrackHandle(nHandle, pWnd, point, pWndClipTo);
}

void CRectTracker::GetModifyPointers(int nHandle, LONG** ppx, LONG** ppy, int* px, int* py)
{
    // A move drags the top left corner, and the rest follows.
    if (nHandle == hitMiddle)
        nHandle = hitTopLeft;
    *ppx = NULL;
    *ppy = NULL;
    // A handle that stays itself when its axis is inverted (a side's middle)
    // moves nothing along that axis.
    const HandleInfo& info = g_handleInfo[nHandle];
    if (info.nInvertX != nHandle) {
        *ppx = (LONG*)((BYTE*)&m_rect + info.nOffsetX);
        if (px != NULL)
            *px = **ppx;
    } else if (px != NULL) {
        *px = m_rect.left + abs(m_rect.Width()) / 2;
    }
    if (info.nInvertY != nHandle) {
        *ppy = (LONG*)((BYTE*)&m_rect + info.nOffsetY);
        if (py != NULL)
            *py = **ppy;
    } else if (py != NULL) {
        *py = m_rect.top + abs(m_rect.Height()) / 2;
    }
}

void CRectTracker::AdjustRect(int nHandle, LPRECT)
{
    if (nHandle == hitMiddle)
        return;
    LONG* px;
    LONG* py;
    GetModifyPointers(nHandle, &px, &py, NULL, NULL);

    // The dragged side stops m_sizeMin away from the side across from it
    // (on the same side of it, unless the rectangle may turn inside out).
    int nNewWidth = m_rect.Width();
    const int nAbsWidth = m_bAllowInvert ? abs(nNewWidth) : nNewWidth;
    if (px != NULL && nAbsWidth < m_sizeMin.cx) {
        nNewWidth = nAbsWidth != 0 ? nNewWidth / nAbsWidth : 1;
        const RectInfo& info = g_rectInfo[px - (LONG*)&m_rect];
        *px = RectField(m_rect, info.nOffsetAcross) + nNewWidth * m_sizeMin.cx * -info.nSignAcross;
    }
    int nNewHeight = m_rect.Height();
    const int nAbsHeight = m_bAllowInvert ? abs(nNewHeight) : nNewHeight;
    if (py != NULL && nAbsHeight < m_sizeMin.cy) {
        nNewHeight = nAbsHeight != 0 ? nNewHeight / nAbsHeight : 1;
        const RectInfo& info = g_rectInfo[py - (LONG*)&m_rect];
        *py = RectField(m_rect, info.nOffsetAcross) + nNewHeight * m_sizeMin.cy * -info.nSignAcross;
    }
}

void CRectTracker::OnChangedRect(const CRect&) {}

void CRectTracker::DrawTrackerRect(LPCRECT lpRect, CWnd* pWndClipTo, CDC* pDC, CWnd* pWnd)
{
    CRect rect = *lpRect;
    rect.NormalizeRect();
    if (pWndClipTo != NULL) {
        pWnd->ClientToScreen(&rect);
        pWndClipTo->ScreenToClient(&rect);
    }
    // The outline has the thickness of the border the style draws; the
    // final erase draws none.
    CSize size(0, 0);
    if (!m_bFinalErase) {
        if (m_nStyle & hatchedBorder) {
            size.cx = size.cy = m_nHandleSize - 1 > 1 ? m_nHandleSize - 1 : 1;
            rect.InflateRect(size.cx, size.cy);
        } else {
            size.cx = ::GetSystemMetrics(SM_CXBORDER);
            size.cy = ::GetSystemMetrics(SM_CYBORDER);
        }
    }
    if (m_bFinalErase || !m_bErase) {
        // A halftone brush: the outline shows on any background and goes
        // with a second inversion.
        const WORD awHalftone[8] = { 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA };
        CBitmap bitmap;
        CBrush brush;
        if (bitmap.CreateBitmap(8, 8, 1, 1, awHalftone) && brush.CreatePatternBrush(&bitmap)) {
            CSaveDCGuard saveDC(pDC);
            ::SetBrushOrgEx(pDC->m_hDC, 0, 0, NULL);
            InvertFrame(pDC, m_rectLast, m_sizeLast, &brush);
            InvertFrame(pDC, rect, size, &brush);
        }
    }
    m_rectLast = rect;
    m_sizeLast = size;
}

BOOL CRectTracker::TrackHandle(int nHandle, CWnd* pWnd, CPoint point, CWnd* pWndClipTo)
{
    if (::GetCapture() != NULL)
        return FALSE;
    const int nWidth = m_rect.Width();
    const int nHeight = m_rect.Height();

    pWnd->SetCapture();
    pWnd->UpdateWindow();
    if (pWndClipTo != NULL)
        pWndClipTo->UpdateWindow();
    const CRect rectSave = m_rect;

    // The dragged fields keep their distance to the pointer.
    LONG* px;
    LONG* py;
    int xDiff, yDiff;
    GetModifyPointers(nHandle, &px, &py, &xDiff, &yDiff);
    xDiff = point.x - xDiff;
    yDiff = point.y - yDiff;

    CWnd* pDrawWnd = pWndClipTo != NULL ? pWndClipTo : pWnd;
    CDC* pDrawDC = pDrawWnd->GetDC();
    m_rectLast.SetRectEmpty();
    m_sizeLast.cx = m_sizeLast.cy = 0;
    BOOL bMoved = FALSE;

    // The modal loop: moves and the release change the rectangle, Escape and
    // a right press cancel, everything else is dispatched as usual.
    for (;;) {
        MSG msg;
        const BOOL bGot = ::GetMessageA(&msg, NULL, 0, 0);
        if (bGot <= 0) {
            if (bGot == 0)
                ::PostQuitMessage((int)msg.wParam);   // the quit belongs to the outer loop
            break;
        }
        if (::GetCapture() != pWnd->m_hWnd)
            break;

        bool bCancel = false;
        switch (msg.message) {
        case WM_LBUTTONUP:
        case WM_MOUSEMOVE: {
            const CRect rectOld = m_rect;
            if (px != NULL)
                *px = (short)LOWORD(msg.lParam) - xDiff;
            if (py != NULL)
                *py = (short)HIWORD(msg.lParam) - yDiff;
            if (nHandle == hitMiddle) {
                m_rect.right = m_rect.left + nWidth;
                m_rect.bottom = m_rect.top + nHeight;
            }
            AdjustRect(nHandle, &m_rect);

            m_bFinalErase = msg.message == WM_LBUTTONUP;
            if (!rectOld.EqualRect(&m_rect) || m_bFinalErase) {
                if (bMoved) {
                    m_bErase = TRUE;
                    DrawTrackerRect(&rectOld, pWndClipTo, pDrawDC, pWnd);
                }
                OnChangedRect(rectOld);
                if (msg.message != WM_LBUTTONUP)
                    bMoved = TRUE;
            }
            if (m_bFinalErase)
                goto ExitLoop;
            if (!rectOld.EqualRect(&m_rect)) {
                m_bErase = FALSE;
                DrawTrackerRect(&m_rect, pWndClipTo, pDrawDC, pWnd);
            }
            break;
        }
        case WM_KEYDOWN:
            bCancel = msg.wParam == VK_ESCAPE;
            break;
        case WM_RBUTTONDOWN:
            bCancel = true;
            break;
        default:
            ::DispatchMessageA(&msg);
            break;
        }
        if (bCancel) {
            if (bMoved) {
                m_bErase = m_bFinalErase = TRUE;
                DrawTrackerRect(&m_rect, pWndClipTo, pDrawDC, pWnd);
            }
            m_rect = rectSave;
            goto ExitLoop;
        }
    }

ExitLoop:
    pDrawWnd->ReleaseDC(pDrawDC);
    ::ReleaseCapture();
    // A release without a move before it leaves the rectangle as it was.
    if (!bMoved)
        m_rect = rectSave;
    m_bFinalErase = FALSE;
    m_bErase = FALSE;
    return !rectSave.EqualRect(&m_rect);
}
