// The marker line under the mouse: the pointer takes hold of a line when it
// comes within a few pixels of it, a move with the left button down drags
// the held line (snapped to the series' samples on a vertical marker), a
// small tip shows the value meanwhile, and the host hears through its
// variables and the two moved messages.
#include "graph/GraphPrv.h"
#include "interact/MarkerLine.h"
#include "resources/messages.h"
#include "resources/resource.h"
#include "sheet/IntlString.h"
#include <stdio.h>

namespace {

// How far from a line, in pixels either way, the pointer takes hold of it.
const int MARKER_REACH = 5;

// The value tip: a plain static text without wrapping (0x5000000B).
const DWORD VALUE_TIP_STYLE = WS_CHILD | WS_VISIBLE | SS_SIMPLE;

// Tip positions (DisplayMLValue's nMode).
const int TIP_LEFT_AXIS = 0;
const int TIP_RIGHT_AXIS = 1;
const int TIP_UNDER_PLOT = 2;

bool Near(int c, int nPixel)
{
    return nPixel - MARKER_REACH <= c && c <= nPixel + MARKER_REACH;
}

void SetSizingCursor(const CMarkerLine* pLine)
{
    ::SetCursor(::LoadCursorA(NULL, pLine->IsHorizontal() ? (LPCSTR)IDC_SIZENS : (LPCSTR)IDC_SIZEWE));
}

} // namespace

void CGraphPrv::MoveMarkerLine(long nFlags, CPoint point)
{
    // Leaving the plot drops any hold at once.
    if (!m_rectScroll.PtInRect(point)) {
        m_dwState &= ~GST_MARKER_ACTIVE;
        ::ReleaseCapture();
        ::ClipCursor(NULL);
        return;
    }
    CMarkerLine* pLine = m_pMarkerLine;
    if (pLine == NULL)
        return;
    int c = pLine->IsHorizontal() ? point.y : point.x;

    if (!(m_dwState & GST_MARKER_ACTIVE)) {
        // Looking for a hold; near both lines, line 2 has it.
        if (Near(c, pLine->m_nPixel1)) {
            m_dwState |= GST_MARKER_ACTIVE;
            pLine->m_bActive1 = TRUE;
            pLine->m_bActive2 = FALSE;
        }
        if (pLine->IsDouble() && Near(c, pLine->m_nPixel2)) {
            m_dwState |= GST_MARKER_ACTIVE;
            pLine->m_bActive2 = TRUE;
            pLine->m_bActive1 = FALSE;
        }
        if (m_dwState & GST_MARKER_ACTIVE)
            SetSizingCursor(pLine);
        return;
    }

    if (!(nFlags & MK_LBUTTON)) {
        // Held with the button up: the hold lasts while the pointer stays
        // near a line.
        ::ReleaseCapture();
        ::ClipCursor(NULL);
        if (Near(c, pLine->m_nPixel1)) {
            SetSizingCursor(pLine);
            return;
        }
        if (pLine->IsDouble() && Near(c, pLine->m_nPixel2))
            return;
        m_dwState &= ~GST_MARKER_ACTIVE;
        pLine->m_bActive1 = FALSE;
        pLine->m_bActive2 = FALSE;
        return;
    }

    // A step of the drag. The press before the first step asked for a
    // repaint: it is done before this step inverts anything, since a paint
    // in the middle of a step would redraw the lines from a half-changed
    // state (a stroke that is about to be cancelled drawn anew).
    if (pLine->m_pValueTip == NULL)
        UpdateWindow();
    // The pointer stays over the plot meanwhile.
    CRect rectClip = m_rectScroll;
    ClientToScreen(&rectClip);
    ::ClipCursor(&rectClip);

    double v;
    int nMode;
    if (pLine->IsHorizontal()) {
        v = PixelToDataY(c, pLine->m_nAxis);
        nMode = pLine->m_nAxis == 1 ? TIP_RIGHT_AXIS : TIP_LEFT_AXIS;
    } else {
        v = FindNearestPoint(pLine, PixelToDataX(c));
        c = DataToPixelX(v);
        nMode = TIP_UNDER_PLOT;
    }
    const int nOrient = pLine->Orientation();
    InvertMarkerLine(c, m_rectPlot, nOrient);

    // The held line takes the new place. When both lines stood on one
    // pixel, the old stroke stays for the other line.
    const BOOL bFirst = pLine->m_bActive1;
    int& nPixel = bFirst ? pLine->m_nPixel1 : pLine->m_nPixel2;
    if (!pLine->m_bCoincide)
        InvertMarkerLine(nPixel, m_rectPlot, nOrient);
    const BOOL bMoved = nPixel != c;
    nPixel = c;
    (bFirst ? pLine->m_dPos1 : pLine->m_dPos2) = v;
    double* pdHost = bFirst ? pLine->m_pdPos1 : pLine->m_pdPos2;
    if (pdHost != NULL)
        *pdHost = v;
    DisplayMLValue(nMode, c, v);
    if (bMoved && pLine->m_bContinuous && pLine->m_pNotifyWnd != NULL) {
        // The host's handler runs with the pointer free.
        ::ClipCursor(NULL);
        pLine->m_pNotifyWnd->SendMessage(bFirst ? WM_GRAPH_MARKER1MOVED : WM_GRAPH_MARKER2MOVED, 0, 0);
        // The host may have taken the marker away meanwhile.
        if (m_pMarkerLine != pLine)
            return;
        ::ClipCursor(&rectClip);
    }

    if (!pLine->IsDouble())
        return;
    if (pLine->m_nPixel1 > pLine->m_nPixel2) {
        // The lines crossed: line 1 is again the one with the smaller pixel,
        // and the drag goes on with the other index. The host's variables
        // follow at the next step and at the release.
        const int n = pLine->m_nPixel1;
        pLine->m_nPixel1 = pLine->m_nPixel2;
        pLine->m_nPixel2 = n;
        const double d = pLine->m_dPos1;
        pLine->m_dPos1 = pLine->m_dPos2;
        pLine->m_dPos2 = d;
        pLine->m_bActive1 = !pLine->m_bActive1;
        pLine->m_bActive2 = !pLine->m_bActive2;
    }
    if (pLine->m_nPixel1 == pLine->m_nPixel2) {
        // The new stroke fell on the other line and wiped both: one again.
        pLine->m_bCoincide = TRUE;
        InvertMarkerLine(pLine->m_nPixel1, m_rectPlot, nOrient);
    } else {
        pLine->m_bCoincide = FALSE;
    }
}

void CGraphPrv::DisplayMLValue(int nMode, int nPixel, double dValue)
{
    // The tip belongs to the marker: without one there is nowhere to keep it.
    CMarkerLine* pLine = m_pMarkerLine;
    if (pLine == NULL || m_hWnd == NULL)
        return;

    TEXTMETRIC tm;
    memset(&tm, 0, sizeof(tm));
    {
        CClientDC dc(this);
        CSelectGuard selectFont(&dc, &m_font);
        ::GetTextMetricsA(dc.m_hDC, &tm);
    }
    const int h = tm.tmHeight + tm.tmExternalLeading;
    const int a = tm.tmAveCharWidth;
    int x, y;
    if (nMode == TIP_UNDER_PLOT) {
        x = nPixel - 5 * a;
        y = m_rectPlot.bottom + h / 2 + 1;
    } else {
        x = nMode == TIP_RIGHT_AXIS ? m_rectPlot.right + 2 : 2 * a - 2;
        y = nPixel - h / 2;
    }

    // Not the axis's number format: three decimals, in the locale's sign.
    char szText[64];
    _snprintf(szText, sizeof(szText) - 1, "%8.3f", dValue);
    szText[sizeof(szText) - 1] = '\0';
    CString strText(szText);
    CIntlString intl;
    intl.LocalizeDecimal(strText);

    if (pLine->m_pValueTip != NULL) {
        pLine->m_pValueTip->SetWindowPos(NULL, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        pLine->m_pValueTip->SetWindowText(strText);
        return;
    }

    // The first step of a drag: what waits to be painted is painted first,
    // so that the tip goes up over a finished picture.
    OnPaint();
    if (m_pMarkerLine != pLine)
        return;
    const int nWidth = nMode == TIP_UNDER_PLOT ? 10 * a : m_rectPlot.left - 2 * a + 1;
    CStatic* pTip = NULL;
    try {
        pTip = new CStatic;
    } catch (CException* e) {
        e->Delete();
        return;
    }
    if (!pTip->Create(strText, VALUE_TIP_STYLE, CRect(x, y, x + nWidth, y + h), this, IDC_MARKER_VALUE_TIP)) {
        delete pTip;
        return;
    }
    pTip->SendMessage(WM_SETFONT, (WPARAM)m_font.m_hObject, TRUE);
    pLine->m_pValueTip = pTip;
}

void CGraphPrv::EndDisplayingMLValue()
{
    // Only a drag shows the tip: a press and release without a move ends
    // nothing and tells the host nothing.
    CMarkerLine* pLine = m_pMarkerLine;
    if (pLine == NULL || pLine->m_pValueTip == NULL)
        return;
    delete pLine->m_pValueTip;   // destroys its window
    pLine->m_pValueTip = NULL;
    ::ClipCursor(NULL);

    // The host's variables in the order of the lines, then both messages,
    // whichever line was dragged. The hold stays: the next move decides.
    *pLine->m_pdPos1 = pLine->m_dPos1;
    if (pLine->IsDouble())
        *pLine->m_pdPos2 = pLine->m_dPos2;
    CWnd* pNotifyWnd = pLine->m_pNotifyWnd;
    if (pNotifyWnd == NULL)
        return;
    pNotifyWnd->SendMessage(WM_GRAPH_MARKER1MOVED, 0, 0);
    if (m_pMarkerLine == pLine && pLine->IsDouble())
        pNotifyWnd->SendMessage(WM_GRAPH_MARKER2MOVED, 0, 0);
}
