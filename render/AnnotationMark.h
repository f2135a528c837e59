// The annotation marks: the small shapes drawn at a data position, on every
// point of a series, beside a point label, in the legend and in the samples
// of the line lists and the annotation well. One routine draws them all, so
// that a sample looks like the mark on the plot.
#pragma once

#include "afx/afxver.h"

class CDC;

#define MARK_NONE 0          // nothing is drawn
#define MARK_TRIANGLE 1      // triangle, point upward
#define MARK_DIAMOND 2       // diamond
#define MARK_SQUARE 3        // square
#define MARK_SHORTBAR 4      // short vertical bar
#define MARK_LONGBAR 5       // long vertical bar
#define MARK_PLUS 6          // plus
#define MARK_CROSS 7         // diagonal cross
#define MARK_ARROWUP 8       // arrow coming from below, its tip on the point
#define MARK_ARROWDOWN 9     // arrow coming from above, its tip on the point

// Draws mark nMark centred on (x, y). The size follows the font selected in
// the context (a quarter of its height); polygons are filled with the
// selected brush and outlined with the selected pen, neither of which is
// changed here. Any number other than 1 to 9 draws nothing.
AFX_EXT_API void DrawAnnotationMark(CDC* pDC, int x, int y, int nMark);
