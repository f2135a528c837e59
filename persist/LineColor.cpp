// CLineColor: the record of one series' look.
#include "persist/LineColor.h"

IMPLEMENT_SERIAL(CLineColor, CObject, 0)

// The four numbers have no defaults: whoever builds a record fills them in.
CLineColor::CLineColor() {}

CLineColor::~CLineColor() {}

void CLineColor::Serialize(CArchive& ar)
{
    CObject::Serialize(ar);
}
