// The limits page.
#include "sheet/LimitsPage.h"
#include "resources/resource.h"

IMPLEMENT_DYNAMIC(CLimitsPage, CBasePropPage)

CLimitsPage::CLimitsPage()
    : CBasePropPage(IDD_LIMITS_PAGE),
      m_bRadarX(FALSE), m_bRadarY(FALSE),
      m_dXMax(0), m_dXMin(0), m_dYLeftMax(0), m_dYRightMax(0), m_dYRightMin(0), m_dYLeftMin(0),
      m_dRadarXPercent(0), m_dRadarYPercent(0),
      m_bPercentControls(TRUE), m_bAxisControls(TRUE), m_bPageOpened(FALSE),
      m_editXMax(0), m_editXMin(0), m_editYLeftMax(0), m_editYLeftMin(0), m_editYRightMax(0), m_editYRightMin(0),
      m_editRadarXPercent(0), m_editRadarYPercent(0)
{
}

void CLimitsPage::DoDataExchange(CDataExchange* pDX)
{
    CBasePropPage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_RADAR_X, m_checkRadarX);
    DDX_Control(pDX, IDC_RADAR_Y, m_checkRadarY);
    DDX_Control(pDX, IDC_RADAR_GROUP, m_groupRadar);
    DDX_Control(pDX, IDC_RADAR_Y_PERCENT_LABEL, m_labelYPercent);
    DDX_Control(pDX, IDC_RADAR_Y_PERCENT, m_editRadarYPercent);
    DDX_Control(pDX, IDC_RADAR_X_PERCENT_LABEL, m_labelXPercent);
    DDX_Control(pDX, IDC_RADAR_X_PERCENT, m_editRadarXPercent);
    DDX_Control(pDX, IDC_YRIGHT_MIN, m_editYRightMin);
    DDX_Control(pDX, IDC_YRIGHT_MAX, m_editYRightMax);
    DDX_Control(pDX, IDC_YLEFT_MIN, m_editYLeftMin);
    DDX_Control(pDX, IDC_YLEFT_MAX, m_editYLeftMax);
    DDX_Control(pDX, IDC_X_MIN, m_editXMin);
    DDX_Control(pDX, IDC_X_MAX, m_editXMax);
    DDX_Check(pDX, IDC_RADAR_X, m_bRadarX);
    DDX_Check(pDX, IDC_RADAR_Y, m_bRadarY);
    DDX_Text(pDX, IDC_X_MAX, m_dXMax);
    DDX_Text(pDX, IDC_X_MIN, m_dXMin);
    DDX_Text(pDX, IDC_YLEFT_MAX, m_dYLeftMax);
    DDX_Text(pDX, IDC_YRIGHT_MAX, m_dYRightMax);
    DDX_Text(pDX, IDC_YRIGHT_MIN, m_dYRightMin);
    DDX_Text(pDX, IDC_YLEFT_MIN, m_dYLeftMin);
    DDX_Text(pDX, IDC_RADAR_X_PERCENT, m_dRadarXPercent);
    DDV_MinMaxDouble(pDX, m_dRadarXPercent, 0.0, 100.0);
    DDX_Text(pDX, IDC_RADAR_Y_PERCENT, m_dRadarYPercent);
    DDV_MinMaxDouble(pDX, m_dRadarYPercent, 0.0, 100.0);
}

BOOL CLimitsPage::OnInitDialog()
{
    CBasePropPage::OnInitDialog();
    static const CTRL_HELP_ID s_help[] = {
        { IDC_X_MIN_LABEL, IDH_X_MIN }, { IDC_X_MIN, IDH_X_MIN },
        { IDC_X_MAX_LABEL, IDH_X_MAX }, { IDC_X_MAX, IDH_X_MAX },
        { IDC_YLEFT_HEADING, IDH_YLEFT_HEADING },
        { IDC_YLEFT_MIN_LABEL, IDH_YLEFT_MIN }, { IDC_YLEFT_MIN, IDH_YLEFT_MIN },
        { IDC_YLEFT_MAX_LABEL, IDH_YLEFT_MAX }, { IDC_YLEFT_MAX, IDH_YLEFT_MAX },
        { IDC_YRIGHT_HEADING, IDH_YRIGHT_HEADING },
        { IDC_YRIGHT_MIN_LABEL, IDH_YRIGHT_MIN }, { IDC_YRIGHT_MIN, IDH_YRIGHT_MIN },
        { IDC_YRIGHT_MAX_LABEL, IDH_YRIGHT_MAX }, { IDC_YRIGHT_MAX, IDH_YRIGHT_MAX },
        { IDC_RADAR_X, IDH_RADAR_X }, { IDC_RADAR_Y, IDH_RADAR_Y },
        { IDC_RADAR_X_PERCENT_LABEL, IDH_RADAR_X_PERCENT }, { IDC_RADAR_X_PERCENT, IDH_RADAR_X_PERCENT },
        { IDC_RADAR_Y_PERCENT_LABEL, IDH_RADAR_Y_PERCENT }, { IDC_RADAR_Y_PERCENT, IDH_RADAR_Y_PERCENT },
    };
    SetCtrlHelpIds(this, s_help);
    m_bPageOpened = TRUE;

    // Seven significant digits, except the X maximum, which keeps the
    // fifteen of the exchange.
    m_editXMin.SetValue(m_dXMin);
    m_editYLeftMax.SetValue(m_dYLeftMax);
    m_editYLeftMin.SetValue(m_dYLeftMin);
    if (m_graph.RightAxisDisplayed()) {
        m_editYRightMax.SetValue(m_dYRightMax);
        m_editYRightMin.SetValue(m_dYRightMin);
    } else {
        static const int s_right[] = { IDC_YRIGHT_MAX, IDC_YRIGHT_MIN, IDC_YRIGHT_HEADING,
                                       IDC_YRIGHT_MAX_LABEL, IDC_YRIGHT_MIN_LABEL };
        for (int nCtrl : s_right)
            ::EnableWindow(::GetDlgItem(m_hWnd, nCtrl), FALSE);
    }
    if (!m_bPercentControls) {
        m_editRadarXPercent.ShowWindow(SW_HIDE);
        m_labelXPercent.ShowWindow(SW_HIDE);
        m_editRadarYPercent.ShowWindow(SW_HIDE);
        m_labelYPercent.ShowWindow(SW_HIDE);
    }
    if (!m_bAxisControls) {
        m_checkRadarX.ShowWindow(SW_HIDE);
        m_checkRadarY.ShowWindow(SW_HIDE);
        if (!m_bPercentControls)
            m_groupRadar.ShowWindow(SW_HIDE);
    }
    return TRUE;
}
