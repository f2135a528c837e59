// The line and mark samples shared by the wells and the drop buttons.
#include "sheet/PickerSamples.h"
#include "render/AnnotationMark.h"
#include "render/DrawerPen.h"

void DrawPenStyleLine(CDC* pDC, int nStyle, int xFrom, int xTo, int y, COLORREF crBack)
{
    CDrawerPen pen(nStyle, 1, RGB(0, 0, 0));
    CSaveDCGuard guard(pDC);
    pDC->SelectObject(&pen);
    pDC->SetBkColor(crBack);
    pDC->SetBkMode(OPAQUE);
    pDC->MoveTo(xFrom, y);
    pDC->LineTo(xTo, y);
}

void DrawBlackAnnotationMark(CDC* pDC, CPoint center, int nMark, COLORREF crBack)
{
    CPen pen(PS_SOLID, 1, RGB(0, 0, 0));
    CBrush brush(RGB(0, 0, 0));
    CFont font;
    font.CreatePointFont(80, "Arial", pDC);
    CSaveDCGuard guard(pDC);
    pDC->SelectObject(&pen);
    pDC->SelectObject(&brush);
    if (font.GetSafeHandle() != NULL)
        pDC->SelectObject(&font);
    pDC->SetBkColor(crBack);
    pDC->SetBkMode(OPAQUE);
    DrawAnnotationMark(pDC, center.x, center.y, nMark);
}
