// Drawing surfaces of the tests: a memory context on a 32-bit top-down DIB
// section whose pixels are read back, a windowless graph laid out on one,
// and the plot-only graph of the pipeline tests.
#pragma once

#include "TestUtil.h"
#include "render/HighlightRegionData.h"
#include <algorithm>
#include <climits>
#include <vector>

// Colours no drawer would make up by itself.
const COLORREF WHITE = RGB(255, 255, 255);
const COLORREF BLACK = RGB(0, 0, 0);
const COLORREF BLUE = RGB(0, 0, 255);
const COLORREF MAGENTA = RGB(255, 0, 255);
const COLORREF CANVAS = RGB(0, 128, 0);   // what the context shows before a paint
const COLORREF BACKGROUND = RGB(255, 255, 200);
const COLORREF FRAME = RGB(200, 0, 0);

// A memory context of the layer (which deletes it) on a DIB section.
class Dib
{
public:
    Dib(int nWidth, int nHeight, COLORREF crFill = WHITE) : m_nWidth(nWidth), m_nHeight(nHeight), m_pBits(NULL)
    {
        BITMAPINFO bmi;
        memset(&bmi, 0, sizeof(bmi));   // BI_RGB
        bmi.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
        bmi.bmiHeader.biWidth = nWidth;
        bmi.bmiHeader.biHeight = -nHeight;
        bmi.bmiHeader.biPlanes = 1;
        bmi.bmiHeader.biBitCount = 32;
        m_hBitmap = ::CreateDIBSection(NULL, &bmi, DIB_RGB_COLORS, (void**)&m_pBits, NULL, 0);
        m_dc.CreateCompatibleDC(NULL);
        m_hOld = ::SelectObject(m_dc.m_hDC, m_hBitmap);
        Fill(crFill);
    }
    ~Dib()
    {
        ::SelectObject(m_dc.m_hDC, m_hOld);
        ::DeleteObject(m_hBitmap);
    }

    CDC* DC() { return &m_dc; }

    void Fill(COLORREF cr)
    {
        ::GdiFlush();
        const DWORD dw = ((DWORD)GetRValue(cr) << 16) | ((DWORD)GetGValue(cr) << 8) | GetBValue(cr);
        for (int i = 0; i < m_nWidth * m_nHeight; i++)
            m_pBits[i] = dw;
    }

    // The colour at (x, y); 0xFFFFFFFF outside the bitmap.
    COLORREF At(int x, int y) const
    {
        if (x < 0 || y < 0 || x >= m_nWidth || y >= m_nHeight)
            return 0xFFFFFFFF;
        ::GdiFlush();
        const DWORD dw = m_pBits[y * m_nWidth + x];
        return RGB((dw >> 16) & 0xFF, (dw >> 8) & 0xFF, dw & 0xFF);
    }

    // Pixels of colour cr (or, with bOther, of any other) in [x1, x2) x [y1, y2).
    int Count(int x1, int y1, int x2, int y2, COLORREF cr, bool bOther = false) const
    {
        int n = 0;
        for (int y = y1; y < y2; y++)
            for (int x = x1; x < x2; x++)
                n += (At(x, y) == cr) != bOther;
        return n;
    }
    int CountAll(COLORREF cr) const { return Count(0, 0, m_nWidth, m_nHeight, cr); }

    // Pixels unlike cr in the whole bitmap outside the inclusive rectangle r.
    int CountOtherOutside(const CRect& r, COLORREF cr) const
    {
        int n = 0;
        for (int y = 0; y < m_nHeight; y++)
            for (int x = 0; x < m_nWidth; x++)
                n += (x < r.left || x > r.right || y < r.top || y > r.bottom) && At(x, y) != cr;
        return n;
    }

    // Inclusive box of the pixels whose colour passes test, in the inclusive
    // rectangle r cut to the bitmap (by default the whole bitmap); the empty
    // (INT_MAX, INT_MAX, INT_MIN, INT_MIN) when none does.
    template <class Test> CRect Box(Test test, const CRect& r = CRect(0, 0, INT_MAX, INT_MAX)) const
    {
        CRect box(INT_MAX, INT_MAX, INT_MIN, INT_MIN);
        for (int y = std::max(0, (int)r.top); y <= std::min(m_nHeight - 1, (int)r.bottom); y++)
            for (int x = std::max(0, (int)r.left); x <= std::min(m_nWidth - 1, (int)r.right); x++)
                if (test(At(x, y)))
                    box.SetRect(std::min((int)box.left, x), std::min((int)box.top, y), std::max((int)box.right, x),
                                std::max((int)box.bottom, y));
        return box;
    }

    const int m_nWidth, m_nHeight;

private:
    CDC m_dc;
    HBITMAP m_hBitmap;
    DWORD* m_pBits;
    HGDIOBJ m_hOld;
};

// A graph without a window, laid out on a Dib of its size.
class CanvasGraph
{
public:
    CanvasGraph(int nWidth = 400, int nHeight = 300, DWORD dwStyle = 0, COLORREF crFill = WHITE)
        : m_host(200, 100), m_dib(nWidth, nHeight, crFill)
    {
        CRect rect(0, 0, nWidth, nHeight);
        m_graph.CreateGraph(m_host.Wnd(), NULL, rect, dwStyle | GS_NOWINDOW, 1, 63);
        Layout();
    }
    ~CanvasGraph() { m_graph.RemoveAllPlotData(); }

    void Layout()
    {
        Prv()->SizeGraph(DC(), 0, 0, m_dib.m_nWidth, m_dib.m_nHeight, (Prv()->m_dwStyle & GS_RIGHTAXIS) != 0);
    }
    CGraphPrv* Prv() { return m_graph.m_pGraphPrv; }
    CDC* DC() { return m_dib.DC(); }

    // Metrics of the graph's font in the context.
    TEXTMETRIC Metrics()
    {
        TEXTMETRIC tm;
        CSelectGuard select(DC(), &Prv()->m_font);
        ::GetTextMetricsA(DC()->m_hDC, &tm);
        return tm;
    }
    int TextWidth(const char* psz)
    {
        CSelectGuard select(DC(), &Prv()->m_font);
        return DC()->GetTextExtent(CString(psz)).cx;
    }

    // Paints the whole graph on a context without a clip region of its own.
    int Plot(int bPointsOnly = 0)
    {
        DC()->SelectClipRgn(NULL);
        return m_graph.Plot(DC(), bPointsOnly);
    }

    CPlotData* Series(LPCSTR pszName) { return FindSeries(Prv(), pszName); }

    // Adds a series of float points kept in this object.
    CPlotData* Add(LPCSTR pszName, const std::vector<float>& x, const std::vector<float>& y, COLORREF cr,
                   int nStyle = PS_SOLID, DWORD dwAxis = PLOT_YLEFT)
    {
        m_aX.push_back(x);
        m_aY.push_back(y);
        m_graph.AddPlotData(pszName, dwAxis, m_aX.back().data(), m_aY.back().data(), (long)x.size(), cr, nStyle, 0);
        return FindSeries(Prv(), pszName);
    }

    // A highlight region on series indices [lStart, lEnd], owned by the series.
    static CHighlightRegionData* AddRegion(CPlotData* pData, long lStart, long lEnd, COLORREF cr, int nStyle)
    {
        CHighlightRegionData* pRegion = new CHighlightRegionData;
        pRegion->m_lStart = lStart;
        pRegion->m_lEnd = lEnd;
        pRegion->m_crRegion = cr;
        pRegion->m_nRegionStyle = nStyle;
        pData->m_listHighlights.AddTail(pRegion);
        return pRegion;
    }

    TestHost m_host;
    Dib m_dib;
    CGraph m_graph;
    std::vector<std::vector<float>> m_aX, m_aY;   // a vector of vectors moves no data
};

// No grid, no numbers, no titles: nothing drawn outside the plot but what a
// test adds. Background and frame in colours of their own; X limits 0 to 1,
// left Y 0 to 10, right Y 100 to 200.
class PlotFixture : public CanvasGraph
{
public:
    PlotFixture(int nWidth = 400, int nHeight = 300) : CanvasGraph(nWidth, nHeight, 0, CANVAS)
    {
        m_graph.SetBackgroundColor(BACKGROUND);
        m_graph.SetGridAttributes(GRID_NONE, FRAME, PS_SOLID);
        m_graph.SetXAxisLimits(0.0, 1.0);
        m_graph.SetYAxisLimits(0.0, 10.0, 0);
        m_graph.SetYAxisLimits(100.0, 200.0, 1);
        m_graph.GetPlotRect(m_rectPlot);
    }

    // The pixel of a point of the left (or right) axis.
    CPoint Px(double x, double y, int nAxis = 0)
    {
        return CPoint(m_graph.DataToPixelX(x), m_graph.DataToPixelY(y, nAxis));
    }
    COLORREF AtData(double x, double y, int nAxis = 0)
    {
        const CPoint pt = Px(x, y, nAxis);
        return m_dib.At(pt.x, pt.y);
    }
    // The context scaled: logical 400 x 300 on the whole device (800 x 600
    // makes each logical unit two device pixels), the graph laid out on it.
    // Gives the plot rectangle in logical units.
    CRect ScaleToLogical400x300()
    {
        CDC* pDC = DC();
        pDC->SetMapMode(MM_ANISOTROPIC);
        pDC->SetWindowExt(400, 300);
        pDC->SetViewportExt(m_dib.m_nWidth, m_dib.m_nHeight);
        m_graph.SizeGraph(pDC, 0, 0, 400, 300, FALSE);
        CRect rect;
        m_graph.GetPlotRect(rect);
        return rect;
    }

    CRect m_rectPlot;
};
