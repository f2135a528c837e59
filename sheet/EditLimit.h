// CEditLimit: the small edit box that opens over an axis limit printed at
// the end of an axis, and sets that limit when it loses the focus. Return
// closes it by giving the focus back to the graph; Escape closes it and
// leaves the limit alone.
//
// The box owns itself: it is made with new, created as a child of the graph
// with one of the control ids IDC_LIMIT_EDIT_X_MIN .. IDC_LIMIT_EDIT_YRIGHT_MIN
// (the order of m_rectLimit), and it deletes itself when it closes, or when
// its window goes with the graph's. Nothing may touch it after it closed.
#pragma once

#include "afx/afxwin.h"
#include "afx/afxctrl.h"

class CGraphPrv;

class AFX_EXT_CLASS CEditLimit : public CEdit
{
public:
    explicit CEditLimit(CGraphPrv* pGraph);
    virtual ~CEditLimit();

    CGraphPrv* m_pGraph;    // the graph whose limit is edited
    CRect m_rectStart;      // the window at its creation, in the graph's client coordinates

    // Bytes of the box's line that are read; a longer text is not a number.
    enum { nLineBuffer = 128 };

    // Reads the text as a plain number ("." as the decimal sign, blanks after
    // it allowed; blanks only are 0) into dValue; FALSE when it is no usable
    // value.
    static BOOL ParseLimitText(const char* pszText, int nLength, double& dValue);

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    virtual void PostNcDestroy();

    // Widens the box to its text, by the growth rule of its control id.
    void FitToText();
    // Sets the limit of this box from its text, if the text is a number.
    void ApplyText();

    DECLARE_MESSAGE_MAP()
};
