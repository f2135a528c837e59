// The line style well: one column of pen styles 0 to 4, and 5 (no line)
// when the button allows it.
#include "sheet/Wells.h"
#include "sheet/PickerSamples.h"

IMPLEMENT_DYNAMIC(CLineTypeWell, CPickerWell)

CLineTypeWell::CLineTypeWell(BOOL bAllowNone)
    : CPickerWell(bAllowNone ? 6 : 5, "Line Type Well"), m_nRows(bAllowNone ? 6 : 5), m_nChosen(0)
{
}

CRect CLineTypeWell::GetCellRect(int nCell) const
{
    const int top = 4 + 18 * nCell;
    return CRect(4, top, 36, top + 16);
}

int CLineTypeWell::HitTest(CPoint point) const
{
    return (point.y - 3) / 18 + (point.x - 3) / 34;
}

void CLineTypeWell::DrawCell(CDC* pDC, int nCell, const CRect& rectCell)
{
    CRect rect = rectCell;
    rect.DeflateRect(3, 3);
    DrawPenStyleLine(pDC, nCell, rect.left, rect.right, (rect.top + rect.bottom) / 2, ::GetSysColor(COLOR_BTNFACE));
}
