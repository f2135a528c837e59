// The annotation well: the marks 0 to 7 in two columns, drawn by the same
// routine as the marks on the plot.
#include "sheet/Wells.h"
#include "render/AnnotationMark.h"

IMPLEMENT_DYNAMIC(CAnnotationWell, CPickerWell)

CAnnotationWell::CAnnotationWell() : CPickerWell(8, "Annotation Type Well"), m_nChosen(0)
{
}

CRect CAnnotationWell::GetCellRect(int nCell) const
{
    const int left = 4 + 24 * (nCell % 2), top = 4 + 18 * (nCell / 2);
    return CRect(left, top, left + 22, top + 16);
}

int CAnnotationWell::HitTest(CPoint point) const
{
    return (point.y - 3) / 18 * 2 + (point.x - 3) / 24;
}

void CAnnotationWell::DrawCell(CDC* pDC, int nCell, const CRect& rectCell)
{
    CRect rect = rectCell;
    rect.DeflateRect(3, 3);
    CPen pen(PS_SOLID, 1, RGB(0, 0, 0));
    CBrush brush(RGB(0, 0, 0));
    CFont font;
    font.CreatePointFont(80, "Arial", pDC);
    CSaveDCGuard guard(pDC);
    pDC->SelectObject(&pen);
    pDC->SelectObject(&brush);
    if (font.GetSafeHandle() != NULL)
        pDC->SelectObject(&font);
    pDC->SetBkColor(::GetSysColor(COLOR_BTNFACE));
    pDC->SetBkMode(OPAQUE);
    const CPoint center = rect.CenterPoint();
    DrawAnnotationMark(pDC, center.x, center.y, nCell);
}
