// The decoration records that hang on a series: shaded areas and highlighted
// stretches. They own their brushes; the series owns them.
#include "render/AreaData.h"
#include "render/HighlightRegionData.h"

CAreaData::CAreaData()
    : m_nAreaId(0), m_lStart(0), m_lEnd(0), m_nBaseMode(0), m_pBrush(NULL), m_pMonoBrush(NULL), m_crArea(0)
{
}

CAreaData::~CAreaData()
{
    delete m_pBrush;
    delete m_pMonoBrush;
}

CHighlightRegionData::CHighlightRegionData()
    : m_nRegionId(0), m_lStart(0), m_lEnd(0), m_lPixelStart(0), m_lPixelEnd(0), m_crRegion(0), m_nRegionStyle(0)
{
}

CHighlightRegionData::~CHighlightRegionData() {}
