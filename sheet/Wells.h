// The wells: small popup grids that open under a drop button, track the
// cell under the mouse, hand the choice to the button and close as soon as
// they lose the focus. A well is made with new, opened with OpenUnder, and
// frees itself when its window goes.
#pragma once

#include "afx/afxwin.h"

// What a well hands its choice to: the drop button that opened it, which
// stores the value and tells its dialog.
class AFX_EXT_CLASS CWellOwner
{
public:
    virtual void SetValueAndNotify(DWORD dwValue) = 0;
protected:
    ~CWellOwner() {}
};

// What the three wells share: the popup window, the hot cell and its frame,
// the choice on a click, and the close on a lost focus.
class AFX_EXT_CLASS CPickerWell : public CWnd
{
    DECLARE_DYNAMIC(CPickerWell)
public:
    // Opens the well at the left and bottom edge of pButton, which becomes
    // its parent; the choice goes to pOwner (may be null). On failure the
    // object is gone as well.
    BOOL OpenUnder(CWnd* pButton, CWellOwner* pOwner);

    int m_nHotCell;      // cell under the mouse, -1 for none yet
    CRect m_rectGrid;    // where the mouse is tracked

protected:
    CPickerWell(int nCells, LPCSTR lpszTitle);

    // The size of the popup, its cells, and what it tracks.
    virtual CSize GetWellSize() const = 0;
    virtual CRect GetCellRect(int nCell) const = 0;
    virtual int HitTest(CPoint point) const = 0;   // cell under a point of the grid
    virtual int GetBottomMargin() const { return 6; }
    // Draws the content of a cell inside its sunken edge.
    virtual void DrawCell(CDC* pDC, int nCell, const CRect& rectCell) = 0;
    // Draws what stands below the grid.
    virtual void DrawExtras(CDC*) {}
    // The value of a cell, and where the well keeps the one chosen.
    virtual DWORD GetCellValue(int nCell) const = 0;
    virtual void StoreChoice(DWORD dwValue) = 0;

    // Hands a choice to the owner and closes the well; the object is gone after.
    void ChooseAndClose(BOOL bChosen, DWORD dwValue);
    void DrawHotFrame(int nCell, BOOL bShow);

    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual void PostNcDestroy();
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnPaint();
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    DECLARE_MESSAGE_MAP()

    CWnd* m_pButton;
    CWellOwner* m_pOwner;
    const int m_nCells;
    CString m_strTitle;
    BOOL m_bClosing;     // the window is being destroyed
    BOOL m_bInDialog;    // a dialog of the well is open: a lost focus does not close it
};

class AFX_EXT_CLASS CColorWell : public CPickerWell
{
    DECLARE_DYNAMIC(CColorWell)
public:
    CColorWell();

    COLORREF m_pColors[20];
    COLORREF m_crChosen;
    CString m_strOther;   // text of the button that opens the colour dialog
    CRect m_rectOther;

protected:
    virtual CSize GetWellSize() const { return CSize(78, 120); }
    virtual CRect GetCellRect(int nCell) const;
    virtual int HitTest(CPoint point) const;
    virtual int GetBottomMargin() const { return 26; }
    virtual void DrawCell(CDC* pDC, int nCell, const CRect& rectCell);
    virtual void DrawExtras(CDC* pDC);
    virtual DWORD GetCellValue(int nCell) const { return m_pColors[nCell]; }
    virtual void StoreChoice(DWORD dwValue) { m_crChosen = dwValue; }

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    DECLARE_MESSAGE_MAP()
};

class AFX_EXT_CLASS CLineTypeWell : public CPickerWell
{
    DECLARE_DYNAMIC(CLineTypeWell)
public:
    // bAllowNone adds the sixth row, pen style 5: no line.
    explicit CLineTypeWell(BOOL bAllowNone = FALSE);

    int m_nRows;
    int m_nChosen;

protected:
    virtual CSize GetWellSize() const { return CSize(40, 18 * m_nRows + 6); }
    virtual CRect GetCellRect(int nCell) const;
    virtual int HitTest(CPoint point) const;
    virtual void DrawCell(CDC* pDC, int nCell, const CRect& rectCell);
    virtual DWORD GetCellValue(int nCell) const { return (DWORD)nCell; }
    virtual void StoreChoice(DWORD dwValue) { m_nChosen = (int)dwValue; }
};

class AFX_EXT_CLASS CAnnotationWell : public CPickerWell
{
    DECLARE_DYNAMIC(CAnnotationWell)
public:
    CAnnotationWell();

    int m_nChosen;

protected:
    virtual CSize GetWellSize() const { return CSize(54, 78); }
    virtual CRect GetCellRect(int nCell) const;
    virtual int HitTest(CPoint point) const;
    virtual void DrawCell(CDC* pDC, int nCell, const CRect& rectCell);
    virtual DWORD GetCellValue(int nCell) const { return (DWORD)nCell; }
    virtual void StoreChoice(DWORD dwValue) { m_nChosen = (int)dwValue; }
};
