// Placeholder: the floating labels' part of the archive stream. Until the
// labels write and read themselves, a graph stores no labels, and a stream
// that holds any cannot be read past them.
#include "graph/GraphPrv.h"
#include "afx/afxarch.h"

void CGraphPrv::SerializeFloatingLabels(CArchive& ar)
{
    if (ar.IsStoring()) {
        ar << (DWORD)0;
        return;
    }
    DWORD nLabels = 0;
    ar >> nLabels;
    if (nLabels != 0)
        AfxThrowArchiveException(CArchiveException::badIndex);
}
