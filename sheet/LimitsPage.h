// The limits page: the user types the limits of the X axis and of both Y
// axes, and the settings of automatic scaling. The page works on plain
// members, filled before the sheet opens and applied by the graph after OK.
#pragma once

#include "sheet/BasePropSheet.h"
#include "sheet/FloatEdit.h"
#include "zpx/IntlEdit.h"
#include "graph/GraphPrv.h"

class AFX_EXT_CLASS CLimitsPage : public CBasePropPage
{
    DECLARE_DYNAMIC(CLimitsPage)
public:
    CLimitsPage();

    BOOL m_bRadarX;            // automatic scaling acts on X
    BOOL m_bRadarY;            // automatic scaling acts on both Y axes
    double m_dXMax;
    double m_dXMin;
    double m_dYLeftMax;
    double m_dYRightMax;
    double m_dYRightMin;
    double m_dYLeftMin;
    double m_dRadarXPercent;
    double m_dRadarYPercent;
    BOOL m_bPercentControls;   // the percent fields are shown
    BOOL m_bAxisControls;      // the two axis check boxes are shown
    BOOL m_bPageOpened;        // the page was shown at least once

    CGraphPrv m_graph;         // copy of the graph, asked whether it shows a right axis

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();

    CFloatEdit m_editXMax, m_editXMin, m_editYLeftMax, m_editYLeftMin, m_editYRightMax, m_editYRightMin;
    CIntlEdit m_editRadarXPercent, m_editRadarYPercent;
    CButton m_groupRadar, m_checkRadarX, m_checkRadarY;
    CStatic m_labelXPercent, m_labelYPercent;
};
