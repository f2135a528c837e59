// CCrossHair: the inverted cross that follows the mouse over the plot, with
// a read-out window of its value at each axis. CLabelWnd is one read-out.
#pragma once

#include "afx/afxwin.h"

class CGraphPrv;

#define CROSSHAIR_XLABEL_ID      15000   // read-out of X, under the plot
#define CROSSHAIR_YLABEL_ID      15001   // read-out of the left Y axis
#define CROSSHAIR_RIGHTLABEL_ID  15002   // read-out of the right Y axis

class AFX_EXT_CLASS CLabelWnd : public CWnd
{
public:
    CLabelWnd();

    // The axis's number format, and where the text stands: -1 at the left
    // edge, 0 centred, 1 at the right edge (other values are clamped).
    void SetFormat(CString strFormat) { m_strFormat = strFormat; }
    void SetAlign(int nAlign) { m_nAlign = nAlign < -1 ? -1 : (nAlign > 1 ? 1 : nAlign); }

    double m_dValue;        // the value shown
    char m_szText[256];     // the text last painted
    CString m_strFormat;    // the axis's number format
    int m_nAlign;           // -1 left, 0 centred, 1 right

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()
};

class AFX_EXT_CLASS CCrossHair : public CObject
{
public:
    CCrossHair();
    virtual ~CCrossHair();

    // Puts the cross hair up (at the pointer, or halfway when the pointer is
    // off the plot) or takes it down, and keeps the mode bits of the graph.
    void Show(CGraphPrv* pGraph, BOOL bShow);
    // Holds the cross hair where it is, or lets it follow the mouse again;
    // nothing while it is off.
    void Lock(BOOL bLock);
    // Draws the lines and creates the read-outs, or takes both away for a
    // while (a zoom drag); the mode stays.
    void Display();
    void Hide();
    // Follows the pointer, at a point in client coordinates.
    void Move(int x, int y);
    // Draws the lines again inside a rectangle of a context: for a paint and
    // for the graph's bitmap. The read-outs take the values of the moment.
    void Repaint(CDC* pDC, int nLeft, int nTop, int nRight, int nBottom);
    // The read-outs' texts as plain text, for the graph's bitmap.
    void PrintLabels(CDC* pDC);
    // Follows a new layout of the graph: read-outs and lines are placed anew.
    void Resize();

    CGraphPrv* m_pGraph;             // the graph it was last shown on
    CLabelWnd m_wndXLabel;           // read-out of X
    CLabelWnd m_wndYLabel;           // read-out of the left Y axis
    CLabelWnd m_wndRightLabel;       // read-out of the right Y axis
    int m_nX, m_nY;                  // pixel position of the lines, client coordinates
    int m_nLastMouseX, m_nLastMouseY;  // the last point given to Move
    int m_nCharWidth;                // width of a digit in the graph's font
    int m_nLabelHeight;              // line height of the graph's font
    int m_nXLabelWidth, m_nYLabelWidth, m_nRightLabelWidth;  // widest number in the graph's font

private:
    // The two strokes across rect through (x, y), inverted on the window;
    // drawn twice, they are gone. The plot's left and top frame is spared.
    void DrawCross(int x, int y, const CRect& rect);
    // Font sizes on the window: digit width, line height, read-out widths.
    void Metrics();
    void MeasureLabels(CDC* pDC);
    // Creates one read-out window over rect with its format, alignment and value.
    void CreateLabel(CLabelWnd& wnd, UINT nID, const CString& strFormat, int nAlign, const CRect& rect, double dValue);
    // Shows a new value in a read-out that stands.
    static void ShowValue(CLabelWnd& wnd, double dValue);
    // The left and right read-outs beside the horizontal line, with values
    // from the kept transform.
    void MoveYLabels();
};
