// Helpers of the drawing tests of tics, grid and axis text: a 32-bit DIB
// section to paint into and read back, a windowless graph laid out on it,
// and a recorder of the text calls a drawer makes (through an enhanced
// metafile, whose records keep each string with its reference point).
#pragma once

#include "gtest/gtest.h"
#include "TestHost.h"
#include "TestUtil.h"
#include "graph/Graph.h"
#include "graph/GraphPrv.h"
#include <stdio.h>
#include <string>
#include <vector>

// A memory context on a top-down 32-bit DIB section, filled with one colour.
class DibCanvas
{
public:
    DibCanvas(int nWidth, int nHeight, COLORREF crFill = 0xFFFFFF)
        : m_nWidth(nWidth), m_nHeight(nHeight), m_pBits(NULL), m_hOld(NULL)
    {
        BITMAPINFO bmi;
        memset(&bmi, 0, sizeof(bmi));
        bmi.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
        bmi.bmiHeader.biWidth = nWidth;
        bmi.bmiHeader.biHeight = -nHeight;
        bmi.bmiHeader.biPlanes = 1;
        bmi.bmiHeader.biBitCount = 32;
        bmi.bmiHeader.biCompression = BI_RGB;
        m_hBitmap = ::CreateDIBSection(NULL, &bmi, DIB_RGB_COLORS, (void**)&m_pBits, NULL, 0);
        m_dc.CreateCompatibleDC(NULL);
        m_hOld = ::SelectObject(m_dc.m_hDC, m_hBitmap);
        Fill(crFill);
    }
    ~DibCanvas()
    {
        ::SelectObject(m_dc.m_hDC, m_hOld);
        m_dc.DeleteDC();
        ::DeleteObject(m_hBitmap);
    }

    CDC* DC() { return &m_dc; }

    void Fill(COLORREF cr)
    {
        ::GdiFlush();
        for (int i = 0; i < m_nWidth * m_nHeight; i++)
            m_pBits[i] = ToBgr(cr);
    }

    // The colour at (x, y) as a COLORREF; 0xFFFFFFFF outside the bitmap.
    COLORREF At(int x, int y) const
    {
        if (x < 0 || y < 0 || x >= m_nWidth || y >= m_nHeight)
            return 0xFFFFFFFF;
        ::GdiFlush();
        DWORD dw = m_pBits[y * m_nWidth + x] & 0xFFFFFF;
        return RGB((dw >> 16) & 0xFF, (dw >> 8) & 0xFF, dw & 0xFF);
    }

    // Pixels of colour cr inside [x1, x2) x [y1, y2).
    int Count(int x1, int y1, int x2, int y2, COLORREF cr) const
    {
        int n = 0;
        for (int y = y1; y < y2; y++)
            for (int x = x1; x < x2; x++)
                n += At(x, y) == cr;
        return n;
    }
    // Pixels unlike cr inside [x1, x2) x [y1, y2).
    int CountOther(int x1, int y1, int x2, int y2, COLORREF cr) const
    {
        int n = 0;
        for (int y = y1; y < y2; y++)
            for (int x = x1; x < x2; x++)
                n += At(x, y) != cr;
        return n;
    }

    int m_nWidth, m_nHeight;

private:
    static DWORD ToBgr(COLORREF cr)
    {
        return ((DWORD)GetRValue(cr) << 16) | ((DWORD)GetGValue(cr) << 8) | GetBValue(cr);
    }
    CDC m_dc;
    HBITMAP m_hBitmap;
    DWORD* m_pBits;
    HGDIOBJ m_hOld;
};

// A graph without a window, laid out on a canvas of its size.
class GraphOnCanvas
{
public:
    GraphOnCanvas(int nWidth = 400, int nHeight = 300, DWORD dwStyle = GS_NOWINDOW, COLORREF crFill = 0xFFFFFF)
        : m_host(200, 100), m_canvas(nWidth, nHeight, crFill)
    {
        CRect rect(0, 0, nWidth, nHeight);
        m_graph.CreateGraph(m_host.Wnd(), NULL, rect, dwStyle | GS_NOWINDOW, 1, 63);
        Layout();
    }
    void Layout()
    {
        Prv()->SizeGraph(m_canvas.DC(), 0, 0, m_canvas.m_nWidth, m_canvas.m_nHeight,
                         (Prv()->m_dwStyle & GS_RIGHTAXIS) != 0);
    }

    CGraphPrv* Prv() { return m_graph.m_pGraphPrv; }
    CDC* DC() { return m_canvas.DC(); }

    // Metrics of the graph's font in the canvas context.
    TEXTMETRIC Metrics()
    {
        TEXTMETRIC tm;
        HGDIOBJ hOld = ::SelectObject(DC()->m_hDC, Prv()->m_font.m_hObject);
        ::GetTextMetricsA(DC()->m_hDC, &tm);
        ::SelectObject(DC()->m_hDC, hOld);
        return tm;
    }
    // Width of a text in the graph's font.
    int TextWidth(const char* psz)
    {
        SIZE size;
        HGDIOBJ hOld = ::SelectObject(DC()->m_hDC, Prv()->m_font.m_hObject);
        ::GetTextExtentPoint32A(DC()->m_hDC, psz, (int)strlen(psz), &size);
        ::SelectObject(DC()->m_hDC, hOld);
        return size.cx;
    }

    TestHost m_host;
    DibCanvas m_canvas;
    CGraph m_graph;
};

// One text call as a metafile keeps it: the reference point and the text in
// the ANSI code page.
struct TextCall
{
    int x, y;
    std::string text;
};

// Records what a drawer writes on a metafile context. The metafile refers
// to the screen, so metrics and fonts are those of a screen context.
template <class Fn>
std::vector<TextCall> RecordText(Fn draw)
{
    std::vector<TextCall> calls;
    HDC hMeta = ::CreateEnhMetaFileA(NULL, NULL, NULL, NULL);
    {
        CDC dc;
        dc.Attach(hMeta);
        draw(&dc);
        dc.Detach();
    }
    HENHMETAFILE hEmf = ::CloseEnhMetaFile(hMeta);
    struct Sink
    {
        static int CALLBACK Proc(HDC, HANDLETABLE*, const ENHMETARECORD* pRecord, int, LPARAM lParam)
        {
            std::vector<TextCall>* pCalls = (std::vector<TextCall>*)lParam;
            if (pRecord->iType == EMR_EXTTEXTOUTW || pRecord->iType == EMR_EXTTEXTOUTA) {
                const EMREXTTEXTOUTW* p = (const EMREXTTEXTOUTW*)pRecord;
                TextCall call;
                call.x = p->emrtext.ptlReference.x;
                call.y = p->emrtext.ptlReference.y;
                const BYTE* pText = (const BYTE*)pRecord + p->emrtext.offString;
                if (pRecord->iType == EMR_EXTTEXTOUTW) {
                    char sz[512];
                    int n = ::WideCharToMultiByte(CP_ACP, 0, (LPCWSTR)pText, (int)p->emrtext.nChars, sz,
                                                  sizeof(sz) - 1, NULL, NULL);
                    call.text.assign(sz, n > 0 ? n : 0);
                } else {
                    call.text.assign((const char*)pText, p->emrtext.nChars);
                }
                pCalls->push_back(call);
            }
            return 1;
        }
    };
    ::EnumEnhMetaFile(NULL, hEmf, Sink::Proc, &calls, NULL);
    ::DeleteEnhMetaFile(hEmf);
    return calls;
}

// The first call with the text, or null.
inline const TextCall* FindCall(const std::vector<TextCall>& calls, const char* psz)
{
    for (size_t i = 0; i < calls.size(); i++)
        if (calls[i].text == psz)
            return &calls[i];
    return NULL;
}

// Calls with the text.
inline int CountText(const std::vector<TextCall>& calls, const char* psz)
{
    int n = 0;
    for (size_t i = 0; i < calls.size(); i++)
        n += calls[i].text == psz;
    return n;
}

// A number formatted as the library's runtime formats it.
inline std::string Fmt(const char* pszFormat, double d)
{
    char sz[256];
    _snprintf(sz, sizeof(sz) - 1, pszFormat, d);
    sz[sizeof(sz) - 1] = '\0';
    return sz;
}
