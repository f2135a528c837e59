// CCrossHair: the inverted cross that follows the mouse over the plot, with
// its value read-outs.
#pragma once

#include "afx/afxwin.h"

class CGraphPrv;

class AFX_EXT_CLASS CCrossHair
{
public:
    CCrossHair();
    ~CCrossHair();

    // Puts the cross hair up or takes it down, and keeps the mode bits of the graph.
    void Show(CGraphPrv* pGraph, BOOL bShow);
    // Holds the cross hair where it is, or lets it follow the mouse again.
    void Lock(BOOL bLock);
    // Draws the lines and read-outs again, or takes them away for a while
    // (a zoom drag); the mode stays.
    void Display();
    void Hide();
    // Follows the pointer, at a point in client coordinates.
    void Move(int x, int y);
    // Draws the lines again inside a rectangle of a context, and the values
    // as text: for a paint and for the graph's bitmap.
    void Repaint(CDC* pDC, int nLeft, int nTop, int nRight, int nBottom);
    void PrintLabels(CDC* pDC);
    // Follows a new layout of the graph: read-outs and lines are placed anew.
    void Resize();

    CPoint m_ptLast;     // where it was drawn last, in client coordinates
    CGraphPrv* m_pGraph; // the graph it was last shown on
};
