// The one page of the legend's own sheet: the auto-hide option, with
// pictures of a graph with its legend docked below or hidden away.
#pragma once

#include "sheet/BasePropSheet.h"
#include "afx/afxgdi.h"

class AFX_EXT_CLASS CLegendOptions : public CBasePropPage
{
    DECLARE_DYNAMIC(CLegendOptions)
public:
    CLegendOptions();

    BOOL m_bAutoHide;     // check box 1015
    CBitmap m_bmpGraph;   // picture in 1017
    CBitmap m_bmpLegend;  // picture in 1020

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();

    afx_msg void OnAutoHideClicked();
    DECLARE_MESSAGE_MAP()

    // Loads a picture into rBitmap and shows it in control nCtrl.
    BOOL ShowPicture(CBitmap& rBitmap, UINT nIDBitmap, int nCtrl);
};
