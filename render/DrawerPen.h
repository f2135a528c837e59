// The one way a drawer makes its pen. It never throws: a pen the system
// refuses (a style it does not know, say) stays empty, selecting it changes
// nothing, and the drawer draws with the pen the context already holds. On
// a black-and-white device every colour becomes black.
#pragma once

#include "afx/afxgdi.h"

class CDrawerPen : public CPen
{
public:
    CDrawerPen(int nStyle, int nWidth, COLORREF crColor, BOOL bColorDevice = TRUE)
    {
        CreatePen(nStyle, nWidth, bColorDevice ? crColor : 0);
    }

private:
    CDrawerPen(const CDrawerPen&) = delete;
    void operator=(const CDrawerPen&) = delete;
};
