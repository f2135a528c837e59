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
    // Follows a new layout of the graph: read-outs and lines are placed anew.
    void Resize();

    CPoint m_ptLast;     // where it was drawn last, in client coordinates
};
