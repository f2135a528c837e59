// CRefLineData: a named straight line across the plot at a fixed value,
// vertical at an X value or horizontal at a left Y value.
#pragma once

#include "afx/afx.h"


class AFX_EXT_CLASS CRefLineData : public CObject
{
    DECLARE_SERIAL(CRefLineData)
public:
    CRefLineData();
    virtual ~CRefLineData();
    virtual void Serialize(CArchive& ar);

    DWORD m_dwFlags;      // REFLINE_VERTICAL; other bits are kept and have no effect
    float m_fPosition;    // the data value, narrowed from the host's double
};
