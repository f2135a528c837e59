// CLineColor: the look of one series (name, colour, line style, mark, width),
// as the colour tables and the line colours page keep it.
#pragma once

#include "afx/afx.h"

class AFX_EXT_CLASS CLineColor : public CObject
{
    DECLARE_SERIAL(CLineColor)
public:
    CLineColor();
    virtual ~CLineColor();
    virtual void Serialize(CArchive& ar);

    CString m_strName;   // series name, or the display name of a rotating entry
    DWORD m_crLine;      // line colour
    int m_nLineStyle;    // pen style, 0 solid to 4 dash-dot-dot, 5 no line
    int m_nAnnotate;     // mark drawn at each point, 0 none
    int m_nLineWidth;    // pen width
};
