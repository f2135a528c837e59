// What the wells show in their cells and the drop buttons in their samples:
// a black line of a pen style, and a black annotation mark.
#pragma once

#include "afx/afxwin.h"

// A black line of pen style nStyle, width 1, from xFrom to xTo at y, its
// gaps in crBack.
void DrawPenStyleLine(CDC* pDC, int nStyle, int xFrom, int xTo, int y, COLORREF crBack);
// Annotation mark nMark at center in black, with the 8-point "Arial" of its
// letters, on an opaque background crBack.
void DrawBlackAnnotationMark(CDC* pDC, CPoint center, int nMark, COLORREF crBack);
