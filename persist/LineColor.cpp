// CLineColor: the record of one series' look.
#include "persist/LineColor.h"
#include "afx/afxarch.h"

IMPLEMENT_SERIAL(CLineColor, CObject, 0)

// The four numbers have no defaults: whoever builds a record fills them in.
CLineColor::CLineColor() {}

CLineColor::~CLineColor() {}

// One record of the configuration file: the name, then four 32-bit numbers.
void CLineColor::Serialize(CArchive& ar)
{
    if (ar.IsStoring())
        ar << m_strName << m_crLine << m_nLineStyle << m_nAnnotate << m_nLineWidth;
    else
        ar >> m_strName >> m_crLine >> m_nLineStyle >> m_nAnnotate >> m_nLineWidth;
}
