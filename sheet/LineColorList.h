// The line list of the pages: an owner-drawn list box of series or table
// entries, each line with a sample of its look (a CLegendData the page
// keeps as item data, owns and frees) and its name; and the tip that shows
// a name in full over its line when the list is too narrow for it.
//
// The page makes the list LBS_OWNERDRAWFIXED | LBS_HASSTRINGS, attaches it
// with SubclassDlgItem and answers WM_MEASUREITEM with 17.
#pragma once

#include "afx/afxctrl.h"

class CLineColorListToolTip;

class AFX_EXT_CLASS CLineColorListBoxEx : public CListBox
{
    DECLARE_DYNAMIC(CLineColorListBoxEx)
public:
    CLineColorListBoxEx();
    virtual ~CLineColorListBoxEx();

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

    CLineColorListToolTip* m_pTip;   // owned; its window is made at the first use
    BOOL m_bTipEnabled;              // tips may show: off after a right click until a left click or the focus

protected:
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()
};

// The tip: a bordered popup over the text of a line, in the selection's
// colours when that line is selected and in the tip colours otherwise.
// While it shows the list holds the capture, so that it sees the mouse
// leave the line.
class AFX_EXT_CLASS CLineColorListToolTip : public CWnd
{
    DECLARE_DYNAMIC(CLineColorListToolTip)
public:
    explicit CLineColorListToolTip(CLineColorListBoxEx* pList);

    // Stores the text, makes the window at the first call, repaints.
    void SetText(LPCSTR lpszText);
    // Shows the tip over rect (screen coordinates, the text part of line
    // nItem) when point (screen) lies in it and the text does not fit;
    // hides it otherwise.
    void ShowFor(CRect rect, CPoint point, int nItem);

    CString m_strText;
    CLineColorListBoxEx* m_pList;
    int m_nItem;   // the line shown, -1 before the first

protected:
    // The list's font, or null for the system font.
    HFONT GetListFont() const;

    afx_msg void OnPaint();
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()
};
