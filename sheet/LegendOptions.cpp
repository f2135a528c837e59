// The legend's options page and the legend's sheet that shows it.
#include "sheet/LegendOptions.h"
#include "interact/Legend.h"
#include "resources/resource.h"

namespace {

// Where the legend picture lies over the graph picture: below the graph's
// plot, as a docked legend would.
const int LEGEND_PICTURE_DX = 2;
const int LEGEND_PICTURE_DY = 129;

} // namespace

IMPLEMENT_DYNAMIC(CLegendOptions, CBasePropPage)

BEGIN_MESSAGE_MAP(CLegendOptions, CBasePropPage)
    ON_BN_CLICKED(IDC_AUTO_HIDE, OnAutoHideClicked)
END_MESSAGE_MAP()

CLegendOptions::CLegendOptions() : CBasePropPage(IDD_LEGEND_OPTIONS), m_bAutoHide(FALSE) {}

void CLegendOptions::DoDataExchange(CDataExchange* pDX)
{
    CBasePropPage::DoDataExchange(pDX);
    DDX_Check(pDX, IDC_AUTO_HIDE, m_bAutoHide);
}

BOOL CLegendOptions::ShowPicture(CBitmap& rBitmap, UINT nIDBitmap, int nCtrl)
{
    // The control shows the new picture before the old one goes.
    CBitmap bmpNew;
    if (!bmpNew.LoadBitmap(nIDBitmap))
        return FALSE;
    SendDlgItemMessageA(m_hWnd, nCtrl, STM_SETIMAGE, IMAGE_BITMAP, (LPARAM)(HBITMAP)bmpNew);
    rBitmap.DeleteObject();
    rBitmap.Attach(bmpNew.Detach());
    return TRUE;
}

BOOL CLegendOptions::OnInitDialog()
{
    CBasePropPage::OnInitDialog();
    static const CTRL_HELP_ID s_help[] = {
        { IDC_AUTO_HIDE, IDH_AUTO_HIDE },
        { IDC_GRAPH_PICTURE, IDH_LEGEND_PICTURES },
        { IDC_LEGEND_PICTURE, IDH_LEGEND_PICTURES },
    };
    SetCtrlHelpIds(this, s_help);

    // Without its pictures the page has nothing to show: the sheet is
    // cancelled.
    if (!ShowPicture(m_bmpGraph, IDB_GRAPH_FULL, IDC_GRAPH_PICTURE) ||
        !ShowPicture(m_bmpLegend, IDB_LEGEND_PANEL, IDC_LEGEND_PICTURE)) {
        ::PostMessageA(::GetParent(m_hWnd), PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
        return TRUE;
    }
    HWND hWndGraph = ::GetDlgItem(m_hWnd, IDC_GRAPH_PICTURE);
    HWND hWndLegend = ::GetDlgItem(m_hWnd, IDC_LEGEND_PICTURE);
    RECT rcGraph;
    ::GetWindowRect(hWndGraph, &rcGraph);
    ::MapWindowPoints(NULL, m_hWnd, (LPPOINT)&rcGraph, 2);
    ::SetWindowPos(hWndLegend, hWndGraph, rcGraph.left + LEGEND_PICTURE_DX, rcGraph.top + LEGEND_PICTURE_DY, 0, 0,
                   SWP_NOSIZE | SWP_NOACTIVATE);
    if (m_bAutoHide)
        ::ShowWindow(hWndLegend, SW_HIDE);
    return TRUE;
}

void CLegendOptions::OnAutoHideClicked()
{
    const BOOL bAutoHide = IsDlgButtonChecked(m_hWnd, IDC_AUTO_HIDE) == BST_CHECKED;
    // Docked, the graph gives the lower part to the legend.
    ShowPicture(m_bmpGraph, bAutoHide ? IDB_GRAPH_FULL : IDB_GRAPH_UPPER, IDC_GRAPH_PICTURE);
    HWND hWndGraph = ::GetDlgItem(m_hWnd, IDC_GRAPH_PICTURE);
    ::UpdateWindow(hWndGraph);
    ::ShowWindow(::GetDlgItem(m_hWnd, IDC_LEGEND_PICTURE), bAutoHide ? SW_HIDE : SW_SHOW);
}

void CLegend::Options()
{
    CBasePropSheet sheet(IDS_LEGEND_PROPERTIES, NULL, 0);
    sheet.m_psh.dwFlags |= PSH_NOAPPLYNOW;
    sheet.m_psh.dwFlags &= ~PSH_HASHELP;
    CLegendOptions page;
    page.m_bAutoHide = m_bAutoHide;
    sheet.AddPage(&page);
    if (sheet.DoModal() != IDOK)
        return;
    m_bAutoHide = page.m_bAutoHide;
    m_bHidden = m_bAutoHide ? TRUE : FALSE;
    UpdateWindow();
}
