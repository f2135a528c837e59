// CFloatingEditWnd: the multi-line edit control of a floating label, a child
// of the graph that lies exactly on the label while it is selected. It holds
// the label's text, offers the label's menu (cut, copy, paste, delete, select
// all, colour, font), remembers the last colour and font chosen as the
// defaults of new labels (in the library's fixed registry key), and tells the
// graph by its private messages when editing ends or the label is to go.
#pragma once

#include "afx/afxwin.h"
#include "afx/afxctrl.h"

class AFX_EXT_CLASS CFloatingEditWnd : public CEdit
{
    DECLARE_DYNCREATE(CFloatingEditWnd)
public:
    CFloatingEditWnd();

    // For the label: its look as the editor keeps it. A null LOGFONT reads
    // or sets only the size.
    void GetFont(LOGFONT* pLogFont, int* pnPointSize);
    void GetColor(COLORREF* pcrColor);
    void SetFont(LOGFONT* pLogFont, int nPointSize);
    void SetColor(COLORREF crColor);

    // The defaults of new labels. LoadDefaultColor: 0 when the key cannot be
    // opened. LoadDefaultFont: 1 also without the key, 0 when the font value
    // cannot be read. The savers: 0 when the key cannot be created.
    int LoadDefaultColor();
    int LoadDefaultFont();
    int SaveDefaultColor();
    int SaveDefaultFont();

    COLORREF m_crColor;   // the label's text colour
    int m_nPointSize;     // its size, tenths of a point
    LOGFONT m_logFont;    // its font
    BOOL m_bInDialog;     // a colour or font dialog of this editor is up

protected:
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
    afx_msg void OnCut();
    afx_msg void OnCopy();
    afx_msg void OnPaste();
    afx_msg void OnSelectAll();
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnDeleteLabel();
    afx_msg void OnChooseColor();
    afx_msg void OnChooseFont();
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    DECLARE_MESSAGE_MAP()

private:
    // After a dialog: a label emptied meanwhile goes now, unless the editor
    // has the focus again (its next loss of focus then decides).
    void DeleteIfLeftEmpty();
};
