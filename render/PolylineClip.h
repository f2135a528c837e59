// Clipping of series lines: the result flags of CGraphPrv::ClipDrawLine, and
// CPolylineSink, where the clipped polyline walk of the series lines sends
// its device calls. On a screen, printer or bitmap the sink is the device
// context itself (CDCPolylineSink); a test can hand in a sink that records
// the calls, and so watch the very walk the library draws with.
#pragma once

#include "afx/afxwin.h"

// Result flags of CGraphPrv::ClipDrawLine.
#define CLIP_MOVED_FIRST    0x1   // the first point was moved onto the rectangle's edge
#define CLIP_MOVED_SECOND   0x2   // the second point was moved onto the rectangle's edge

class CPolylineSink
{
public:
    // Sets the current position, draws nothing.
    virtual void MoveTo(const POINT& pt) = 0;
    // Draws from the current position through nCount points (0 draws
    // nothing) and leaves the position on the last one.
    virtual BOOL PolylineTo(const POINT* pPoints, int nCount) = 0;
    // Draws from the current position to pt, without its last pixel.
    virtual BOOL LineTo(const POINT& pt) = 0;

protected:
    ~CPolylineSink() {}
};

// The production sink: every call goes straight to the context.
class CDCPolylineSink : public CPolylineSink
{
public:
    explicit CDCPolylineSink(CDC* pDC) : m_pDC(pDC) {}
    virtual void MoveTo(const POINT& pt) { m_pDC->MoveTo(pt); }
    virtual BOOL PolylineTo(const POINT* pPoints, int nCount) { return m_pDC->PolylineTo(pPoints, nCount); }
    virtual BOOL LineTo(const POINT& pt) { return m_pDC->LineTo(pt); }

private:
    CDC* m_pDC;
};
