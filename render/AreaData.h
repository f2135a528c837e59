// CAreaData: one shaded stretch of a series, with the brushes it is filled with.
#pragma once

#include "afx/afxwin.h"

class AFX_EXT_CLASS CAreaData : public CObject
{
public:
    CAreaData();
    virtual ~CAreaData();      // deletes both brushes

    short m_nAreaId;           // the host's identifier, unique within the series
    long m_lStart;             // index of the first data point of the stretch
    long m_lEnd;               // index of the last data point, never below m_lStart
    int m_nBaseMode;           // how the polygon is closed
    CBrush* m_pBrush;          // owned: the brush for colour devices
    CBrush* m_pMonoBrush;      // owned: the same pattern in black for black-and-white devices
    COLORREF m_crArea;         // colour of the fill and of the outline
};
