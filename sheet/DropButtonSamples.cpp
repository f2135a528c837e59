// The samples of the three drop buttons: a colour swatch, a line of the
// pen style, an annotation mark, each in a black frame.
#include "sheet/DropButtons.h"
#include "render/AnnotationMark.h"
#include "render/DrawerPen.h"

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
    CDrawerPen pen(m_nLineStyle, 1, RGB(0, 0, 0));
    CSaveDCGuard guard(pDC);
    pDC->SelectObject(&pen);
    pDC->SetBkColor(::GetSysColor(COLOR_BTNFACE));
    pDC->SetBkMode(OPAQUE);
    const int y = (rectSample.top + rectSample.bottom) / 2;
    pDC->MoveTo(rectSample.left + 1, y);
    pDC->LineTo(rectSample.right - 1, y);
}

CAnnotationListBox::CAnnotationListBox() : CDropButton(WM_PICKER_ANNOTATION), m_nAnnotate(0)
{
}

void CAnnotationListBox::DrawSample(CDC* pDC, const CRect& rectSample)
{
    FrameBlack(pDC, rectSample);
    CPen pen(PS_SOLID, 1, RGB(0, 0, 0));
    CBrush brush(RGB(0, 0, 0));
    CFont font;
    font.CreatePointFont(80, "Arial", pDC);
    CSaveDCGuard guard(pDC);
    pDC->SelectObject(&pen);
    pDC->SelectObject(&brush);
    if (font.GetSafeHandle() != NULL)
        pDC->SelectObject(&font);
    pDC->SetBkColor(RGB(0, 0, 0));
    pDC->SetBkMode(OPAQUE);
    const CPoint center = rectSample.CenterPoint();
    DrawAnnotationMark(pDC, center.x, center.y, m_nAnnotate);
}
