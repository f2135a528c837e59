// CMarkerLine: one movable line, or a pair of lines, over the plot with
// which a host lets the user pick a value or a range. A vertical marker
// belongs to a series and snaps to its X samples; a horizontal one belongs to
// the left or the right Y axis and moves freely. The graph owns it and does
// all the work on it (interact/GraphMarker.cpp, interact/MarkerDrag.cpp);
// this record keeps the lines, the host's variables and the series' sampling.
#pragma once

#include "afx/afxwin.h"
#include "afx/afxctrl.h"
#include "graph/GraphDefs.h"

class AFX_EXT_CLASS CMarkerLine : public CObject
{
public:
    CMarkerLine();
    virtual ~CMarkerLine();   // destroys a value tip still shown

    // Takes the sampling of a series' X array: the pointer, the count, the
    // ends and the spacing of the first two samples.
    void TakeSamples(float* pfXData, long lPoints);

    BOOL IsDouble() const { return (m_lStyle & ML_DOUBLE) != 0; }
    BOOL IsHorizontal() const { return (m_lStyle & ML_HORIZONTAL) != 0; }
    // The orientation InvertMarkerLine takes: 2 horizontal, 1 vertical.
    int Orientation() const { return IsHorizontal() ? 2 : 1; }

    CString m_strSeries;     // series of a vertical marker; empty for a horizontal one
    CWnd* m_pNotifyWnd;      // the host's window for the moved messages, not owned
    long m_lStyle;           // ML_ bits
    float* m_pfXData;        // the series' X array, not owned
    double m_dPos1;          // data position of line 1
    int m_nPixel1;           // its pixel: x of a vertical, y of a horizontal line
    double* m_pdPos1;        // the host's variable for line 1
    double m_dPos2;          // data position of line 2; -1.0 with a single line
    int m_nPixel2;           // its pixel; -1 with a single line
    double* m_pdPos2;        // the host's variable for line 2, with two lines only
    BOOL m_bActive1;         // line 1 has the pointer's hold
    BOOL m_bActive2;         // line 2 has it
    float m_fMaxX;           // larger of the first and the last X sample
    float m_fMinX;           // smaller of the two
    float m_fStep;           // distance of the first two samples
    BOOL m_bCoincide;        // both lines stand on one pixel and show as one
    int m_nAxis;             // 0 left Y, 1 right Y, 2 X
    BOOL m_bContinuous;      // the host hears every step of a drag, not only its end
    long m_lPoints;          // samples of the series
    // The value tip shown during a drag, owned. Known by this pointer and not
    // by its child id, which the cross hair's X read-out shares.
    CStatic* m_pValueTip;

private:
    CMarkerLine(const CMarkerLine&) = delete;
    void operator=(const CMarkerLine&) = delete;
};
