// The settings page: which grid the graph draws and whether it has major
// and minor tic marks. The entry of a grid on minor tics is on offer only
// while minor tics can exist.
#pragma once

#include "sheet/BasePropSheet.h"
#include "afx/afxctrl.h"

class AFX_EXT_CLASS CSettingsPage : public CBasePropPage
{
    DECLARE_DYNAMIC(CSettingsPage)
public:
    CSettingsPage();

    BOOL m_bMinorTics;    // check box of the minor tics
    BOOL m_bMajorTics;    // check box of the major tics
    DWORD m_dwGrid;       // grid word; after OK the bit of the entry chosen
    BOOL m_bRightAxis;    // a right axis is shown: the grid cannot be changed
    BOOL m_bPageOpened;   // the page was shown at least once

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();
    virtual void OnOK();

    afx_msg void OnMajorClicked();
    afx_msg void OnMinorClicked();
    DECLARE_MESSAGE_MAP()

    // Takes the entry of a grid on minor tics away, falling back to the
    // entry of major tics when it was the one selected.
    void DropMajorMinorEntry();
    void AddMajorMinorEntry();
};
