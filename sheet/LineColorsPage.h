// The line colours page: colour, line style, mark and width of the series,
// of the colour table, or of both, by the graph's colour mode. The page
// edits records of its own in its lists; only OK writes them through.
#pragma once

#include "sheet/BasePropSheet.h"
#include "sheet/DropButtons.h"
#include "sheet/LineColorList.h"
#include "afx/afxtempl.h"

class CPlotData;
class CLineColor;
class CColorPalette;
class CLegendData;

typedef CTypedPtrMap<CMapStringToOb, CString, CPlotData*> CPlotDataMap;

class AFX_EXT_CLASS CLineColorsPage : public CBasePropPage
{
    DECLARE_DYNAMIC(CLineColorsPage)
public:
    CLineColorsPage();

    CLineColorListBoxEx m_listData;       // the series, sorted by name
    CLineColorListBoxEx m_listDefaults;   // the colour table, in its order
    int m_nListShown;                     // 1 the series list, 2 the table list
    int m_nMode;                          // the graph's colour mode
    CPlotDataMap* m_pPlotMap;             // the graph's series
    COLORREF m_crBackground;              // the graph's background, for the samples
    CLineColor* m_pColors;                // the graph's colour table
    int m_nColors;
    CLineTypeListBox m_wellLineType;      // with the sixth entry: no line
    CAnnotationListBox m_wellAnnotate;
    BOOL m_bPageOpened;                   // the page was shown at least once
    DWORD m_dwStyle;                      // the graph's style word
    int m_nWidth;                         // exchange variable of the width

protected:
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();
    virtual void OnOK();

    afx_msg void OnSwitchLists();
    afx_msg void OnDefineCustomColors();
    afx_msg void OnSelChange();
    afx_msg LRESULT OnColorPicked(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnLineStylePicked(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnAnnotationPicked(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnAddCustomColor(WPARAM wParam, LPARAM lParam);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

    CLineColorListBoxEx& ShownList() { return m_nListShown == 2 ? m_listDefaults : m_listData; }
    // The record of the line selected in the list on show, or null.
    CLegendData* SelectedRecord();
    CColorPalette* Palette(int nCtrl) const;
    void FillSeriesList();
    void FillTableList();
    void ShowSelection();
    // The list on show and the texts of the switch button and the heading.
    void ShowList(int nList);
    void EnableLineStyle(int nWidth);
    void WriteSeries();
    void WriteTable();
    void WriteTableAndSeriesMatching();
    void FreeRecords(CListBox& list);

    BOOL m_bWritingWidth;   // the page writes the width itself: no handler
};
