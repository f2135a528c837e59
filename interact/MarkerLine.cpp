// The marker line's record: its start values, the tip it owns, and the
// sampling it takes from its series.
#include "interact/MarkerLine.h"
#include <math.h>

CMarkerLine::CMarkerLine()
    : m_pNotifyWnd(NULL), m_lStyle(0), m_pfXData(NULL), m_dPos1(0.0), m_nPixel1(0), m_pdPos1(NULL),
      m_dPos2(-1.0), m_nPixel2(-1), m_pdPos2(NULL), m_bActive1(FALSE), m_bActive2(FALSE), m_fMaxX(0.0f),
      m_fMinX(0.0f), m_fStep(0.0f), m_bCoincide(FALSE), m_nAxis(0), m_bContinuous(FALSE), m_lPoints(0),
      m_pValueTip(NULL)
{
}

CMarkerLine::~CMarkerLine()
{
    // A marker removed in the middle of a drag takes its tip along.
    delete m_pValueTip;
}

void CMarkerLine::TakeSamples(float* pfXData, long lPoints)
{
    m_pfXData = pfXData;
    m_lPoints = lPoints;
    m_fMinX = m_fMaxX = m_fStep = 0.0f;
    if (pfXData == NULL || lPoints < 1)
        return;
    const float fFirst = pfXData[0];
    if (lPoints < 2) {
        // One sample: everything snaps to it.
        m_fMinX = m_fMaxX = fFirst;
        return;
    }
    // The ends come from the first and the last sample, the spacing from the
    // first two: the samples are taken as evenly spaced.
    const float fLast = pfXData[lPoints - 1];
    m_fMinX = fFirst < fLast ? fFirst : fLast;
    m_fMaxX = fFirst < fLast ? fLast : fFirst;
    m_fStep = (float)fabs((double)pfXData[1] - (double)fFirst);
}
