// CLegend: the list box child of the graph window that names each series with
// a sample of its look. CLegendData is the look of one entry.
#pragma once

#include "afx/afxctrl.h"

class AFX_EXT_CLASS CLegendData : public CObject
{
public:
    CLegendData();
    void Set(COLORREF crLine, int nLineStyle, int nLineWidth, int nAnnotate, COLORREF crBackground);
    COLORREF m_crLine;        // the series' line colour
    int m_nLineStyle;         // its pen style
    int m_nLineWidth;         // its pen width
    int m_nAnnotate;          // its annotation mark, 0 for none
    COLORREF m_crBackground;  // the graph's background when the entry was made
};

class AFX_EXT_CLASS CLegend : public CListBox
{
public:
    CLegend();
    virtual ~CLegend();

    // Creates the (hidden) list window on a side: LEGEND_TOP, LEGEND_BOTTOM,
    // LEGEND_LEFT or LEGEND_RIGHT, over the open rectangle of that side.
    BOOL Create(CWnd* pParent, int nPosition);
    // On: the window opens at its side (and slides away at once when it
    // hides itself). Off: the window goes.
    void Show(BOOL bShow);
    BOOL IsShown() const { return m_bShown; }
    BOOL GetAutoHide() const { return m_bAutoHide; }
    int GetPosition() const { return m_nPosition; }

    BOOL AddEntry(CString strName, COLORREF crLine, int nLineStyle, int nLineWidth, int nAnnotate, COLORREF crBackground);
    BOOL RemoveEntry(CString strName);
    BOOL UpdateEntry(CString strName, COLORREF crLine, int nLineStyle, int nLineWidth, int nAnnotate, COLORREF crBackground);
    // Follows the parent's size: the open rectangle of the side anew, and the
    // window there (or at its sliver while collapsed).
    void Reposition();
    // Side, sizes and auto-hide under the subkey "Legend" of a host's key;
    // 1 for a null key, 0 when a value cannot be written or read.
    BOOL SaveToRegistry(HKEY hKey);
    BOOL LoadFromRegistry(HKEY hKey);

    // Collapses to the sliver at the side (auto-hide only) and opens again.
    void HideAway();
    void Unhide();

    int m_nPosition;     // side of the graph
    CRect m_rectFull;    // the open rectangle, in the graph's client coordinates
    BOOL m_bAutoHide;    // collapses to a sliver when the pointer leaves
    BOOL m_bHidden;      // collapsed now
    int m_nWidth;        // open width on the left and right sides
    int m_nHeight;       // open height on the top and bottom sides
    BOOL m_bInMenu;      // its context menu is up
    BOOL m_bShown;       // the host or the user has the legend on
    BOOL m_bSizing;      // a frame drag is under way

    // Index of the entry of a series, -1 if none; names compare exactly.
    int FindEntry(const CString& strName) const;

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);

protected:
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg UINT OnNcHitTest(CPoint point);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnDestroy();
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnNcLButtonUp(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcMouseMove(UINT nHitTest, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    // The strip of rect along the present side, nThickness pixels across.
    CRect StripAtSide(CRect rect, int nThickness) const;
    // The side is the top or the bottom: the legend spans the width.
    BOOL IsAcross() const;
    // The open rectangle of the present side in the parent's client
    // rectangle (by default the present one), and the sliver of rect, nExtra
    // pixels more than the frame.
    CRect OpenRect(const CRect& rectClient) const;
    CRect OpenRect() const;
    CRect SliverOf(const CRect& rect, int nExtra) const;
    // The window's rectangle in the parent's client coordinates.
    CRect RectInParent() const;
    // Moves the window to rcTarget over a fixed time.
    void Slide(const CRect& rcTarget);
    // The legend's own property sheet, with its one page (sheet/LegendOptions.cpp).
    void Options();
    void FreeEntries();
};
