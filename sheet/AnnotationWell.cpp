// The annotation well: the marks 0 to 7 in two columns, drawn by the same
// routine as the marks on the plot.
#include "sheet/Wells.h"
#include "sheet/PickerSamples.h"

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
    DrawBlackAnnotationMark(pDC, rect.CenterPoint(), nCell, ::GetSysColor(COLOR_BTNFACE));
}
