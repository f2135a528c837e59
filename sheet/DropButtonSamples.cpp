// The samples of the three drop buttons: a colour swatch, a line of the
// pen style, an annotation mark, each in a black frame.
#include "sheet/DropButtons.h"
#include "sheet/PickerSamples.h"

IMPLEMENT_DYNAMIC(CColorListBox, CDropButton)
IMPLEMENT_DYNAMIC(CLineTypeListBox, CDropButton)
IMPLEMENT_DYNAMIC(CAnnotationListBox, CDropButton)

namespace {

void FrameBlack(CDC* pDC, const CRect& rect)
{
    CBrush brushBlack(RGB(0, 0, 0));
    pDC->FrameRect(&rect, &brushBlack);
}

} // namespace

CColorListBox::CColorListBox() : CDropButton(WM_PICKER_COLOR), m_crColor(0)
{
}

void CColorListBox::DrawSample(CDC* pDC, const CRect& rectSample)
{
    FrameBlack(pDC, rectSample);
    CRect rect = rectSample;
    rect.DeflateRect(1, 1);
    CBrush brush(m_crColor);
    pDC->FillRect(&rect, &brush);
}

CLineTypeListBox::CLineTypeListBox() : CDropButton(WM_PICKER_LINESTYLE), m_nLineStyle(0), m_bAllowNone(FALSE)
{
}

void CLineTypeListBox::DrawSample(CDC* pDC, const CRect& rectSample)
{
    FrameBlack(pDC, rectSample);
    const int y = (rectSample.top + rectSample.bottom) / 2;
    DrawPenStyleLine(pDC, m_nLineStyle, rectSample.left + 1, rectSample.right - 1, y, ::GetSysColor(COLOR_BTNFACE));
}

CAnnotationListBox::CAnnotationListBox() : CDropButton(WM_PICKER_ANNOTATION), m_nAnnotate(0)
{
}

void CAnnotationListBox::DrawSample(CDC* pDC, const CRect& rectSample)
{
    FrameBlack(pDC, rectSample);
    DrawBlackAnnotationMark(pDC, rectSample.CenterPoint(), m_nAnnotate, RGB(0, 0, 0));
}
