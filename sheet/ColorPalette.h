// The colour palette: a permanent grid of colour cells, eight to a row, on a
// page. Its windows come from the global class "ZPXGraphMFCPaletteWindow",
// so that a dialog template can name it: the class's procedure makes the
// object when the window is created, and the object frees itself with it.
#pragma once

#include "afx/afxwin.h"

#define PALETTE_WINDOW_CLASS "ZPXGraphMFCPaletteWindow"
#define PALETTE_MAX_CELLS 48
#define PALETTE_NO_SELECTION (-99)

// Messages of the pickers to their dialog: wParam the control id, lParam the value.
#define WM_PICKER_COLOR (WM_APP + 1000)       // a colour was picked
#define WM_PICKER_LINESTYLE (WM_APP + 1001)   // a pen style was picked
#define WM_PICKER_ANNOTATION (WM_APP + 1002)  // an annotation mark was picked
#define WM_PICKER_ADDCOLOR (WM_APP + 1003)    // a custom colour is added (wParam 0)

class AFX_EXT_CLASS CColorPalette : public CWnd
{
    DECLARE_DYNAMIC(CColorPalette)
public:
    CColorPalette();

    // The colours shown (not owned) and their number, at most 48; no repaint.
    void SetColors(DWORD* pColors, int nCount);
    // Frames the first cell of the colour and makes it the focus cell; 0 if none has it.
    int SelectColor(DWORD crColor);
    int ClearSelection();
    // Writes the colour into the focus cell and moves the focus cell on.
    int AddColor(DWORD crColor);

    BOOL m_bHasFocus;
    int m_nFocusCell;
    int m_nSelected;      // PALETTE_NO_SELECTION for none
    int m_nCells;
    CRect m_pCellRects[PALETTE_MAX_CELLS];   // laid out at paint time
    DWORD* m_pColors;

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg UINT OnGetDlgCode();
    virtual void PostNcDestroy();
    DECLARE_MESSAGE_MAP()

private:
    void LayOutCells();
    void DrawSelectionFrame(int nCell, BOOL bShow);
    void DrawFocusRectangle(int nCell);
    // Makes nCell the focus cell, moving the focus rectangle when it shows.
    void MoveFocusCell(int nCell);
    void NotifyColor(int nCell);
    int CellFromPoint(CPoint point) const;
    BOOL m_bErased;   // the background of the paint under way was erased

    friend LRESULT CALLBACK PaletteWindowProc(HWND, UINT, WPARAM, LPARAM);
};

// The procedure of the palette window class.
LRESULT CALLBACK PaletteWindowProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
