// CFloatingLabel: a piece of text the user drops on the graph, pinned to a
// data position so that it follows the data when the limits change. While
// selected its editor (CFloatingEditWnd) lies on it, visible, with the
// graph's tracker round it; otherwise the editor is hidden and Draw writes
// the text into the picture. The graph owns its labels (m_mapFloatingLabels)
// and does the rest of the work on them (interact/GraphLabels.cpp).
#pragma once

#include "afx/afxwin.h"

class CFloatingEditWnd;
class CGraphPrv;

class AFX_EXT_CLASS CFloatingLabel : public CObject
{
    DECLARE_DYNCREATE(CFloatingLabel)
public:
    // Dynamic creation: the library's face at 8 points, no editor yet.
    CFloatingLabel();
    // A label about to be read from an archive: an empty rectangle and a
    // hidden editor, a child of pParent with the control id nId.
    CFloatingLabel(CWnd* pParent, UINT nId);
    // A new label with its top left corner at (x, y) in client pixels and
    // at the data position (dX, dY): its editor is shown with the text
    // "文本" selected. The graph gets the label's size and font posted.
    CFloatingLabel(CGraphPrv* pGraph, UINT nId, int x, int y, double dX, double dY);
    // Destroys the editor's window and the editor.
    virtual ~CFloatingLabel();

    virtual void Serialize(CArchive& ar);
    // The text into pDC at m_rect, in the label's colour and font (a font
    // made for the device on a printer or plotter).
    virtual void Draw(CDC* pDC);

    // The editor's window for a label that has none (a label loaded before
    // the graph had a window).
    void CreateEditWindow(CWnd* pParent);
    void GetPosition(CRect* pRect, double* pdX, double* pdY);
    // Stores the place; the editor's window moves there.
    void SetPosition(CRect* pRect, double* pdX, double* pdY);
    // The top left corner to (*pX, *pY), the size after the text.
    void MoveTo(int* pX, int* pY);
    BOOL HitTest(int x, int y);
    // Shows the editor with the focus and all its text selected, or hides it.
    // Hiding the focused editor gives the graph the focus at once, and the
    // graph may delete this label on the way: nothing is touched after it.
    void Select(BOOL bSelect);
    // The look, as the graph's messages set it.
    void SetFont(LOGFONT* pLogFont);
    void SetPointSize(int nPointSize);
    void SetColor(COLORREF crColor);
    // The editor's control id; 0 without its window.
    UINT GetId();
    // The rectangle sized to the text in the label's font.
    void AdjustSize();
    // Width of the line with the most characters, height of all lines, in
    // the font selected into pDC.
    CSize GetTextSize(CDC* pDC);

    COLORREF m_crText;            // text colour
    CRect m_rect;                 // client pixels, also the editor's rectangle
    double m_dX;                  // data position of the top left corner
    double m_dY;                  // on the left Y axis
    CFloatingEditWnd* m_pEdit;    // the editor, owned
    CFont m_font;                 // the label's font
    LOGFONT m_logFont;            // its description
    int m_nPointSize;             // size, tenths of a point
    WORD m_nId;                   // identifier: map key and control id
    CString m_strText;            // the text; the editor's is the master copy while it exists

private:
    // The editor with its defaults read; null when it cannot be allocated.
    void MakeEditor();
    // The text of the editor's window into m_strText, when it exists.
    void TakeText();
    // Takes the editor's font and size, and the font made from them.
    void TakeEditorFont();

    CFloatingLabel(const CFloatingLabel&) = delete;
    void operator=(const CFloatingLabel&) = delete;
};
