// The appearance page: font, text colour, background, and colour and pen
// style of grid and frame, shown at once in a preview. The preview is a
// private copy of the graph; the graph takes the results after OK.
#pragma once

#include "sheet/BasePropSheet.h"
#include "sheet/DropButtons.h"
#include "graph/GraphPrv.h"
#include "afx/afxgdi.h"

class AFX_EXT_CLASS CAppearancePage : public CBasePropPage
{
    DECLARE_DYNAMIC(CAppearancePage)
public:
    CAppearancePage();

    CGraphPrv m_graph;                 // the preview, drawn through a given context only
    BOOL m_bPageOpened;                // the page was shown at least once
    CRect m_rectPreview;               // place of the preview in the page
    CColorListBox m_wellColor;         // colour of the item
    CColorListBox m_wellTextColor;     // colour of the text
    CLineTypeListBox m_wellLineType;   // pen style of the grid
    int m_nItem;                       // item being edited: 0 text, 1 background, 2 grid
    CFont m_fontBold;                  // font of the bold button
    CFont m_fontItalic;                // font of the italic button

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();

    afx_msg void OnPaint();
    afx_msg void OnFamilyChanged();
    afx_msg void OnSizeChanged();
    afx_msg void OnItemChanged();
    afx_msg void OnBold();
    afx_msg void OnItalic();
    afx_msg LRESULT OnColorPicked(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnLineStylePicked(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    struct PreviewFont;
    PreviewFont GetPreviewFont();
    void SetPreviewFont(const PreviewFont& font);
    // Enables the controls of the item colour (bColorGroup) or of the text.
    void ApplyEnableRule(BOOL bColorGroup);
    void FillFontControls();
    void FillSizes();
    void RepaintPreview();
    // Gives a button the font of its own with one change.
    void SetButtonFont(int nCtrl, CFont& font, BOOL bBold);
};
