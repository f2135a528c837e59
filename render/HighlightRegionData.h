// CHighlightRegionData: one stretch of a series drawn in a pen of its own.
#pragma once

#include "afx/afxwin.h"

class AFX_EXT_CLASS CHighlightRegionData : public CObject
{
public:
    CHighlightRegionData();
    virtual ~CHighlightRegionData();

    short m_nRegionId;         // the host's identifier, unique within the series
    long m_lStart;             // index of the first point of the stretch
    long m_lEnd;               // index of the last point, not below m_lStart
    long m_lPixelStart;        // m_lStart after point reduction, into the pixel array
    long m_lPixelEnd;          // the same for m_lEnd
    COLORREF m_crRegion;       // pen colour of the stretch
    int m_nRegionStyle;        // pen style of the stretch
};
