// The settings page.
#include "sheet/SettingsPage.h"
#include "graph/GraphDefs.h"
#include "resources/resource.h"

namespace {

// Entries of the grid list and their grid bits.
const int ENTRY_NONE = 0;
const int ENTRY_MAJOR = 1;
const int ENTRY_MAJOR_MINOR = 2;
const DWORD s_gridBits[] = { GRID_NONE, GRID_MAJOR, GRID_MINOR };

} // namespace

IMPLEMENT_DYNAMIC(CSettingsPage, CBasePropPage)

BEGIN_MESSAGE_MAP(CSettingsPage, CBasePropPage)
    ON_BN_CLICKED(IDC_MAJOR_TICS, OnMajorClicked)
    ON_BN_CLICKED(IDC_MINOR_TICS, OnMinorClicked)
END_MESSAGE_MAP()

CSettingsPage::CSettingsPage()
    : CBasePropPage(IDD_SETTINGS_PAGE),
      m_bMinorTics(FALSE), m_bMajorTics(FALSE), m_dwGrid(0), m_bRightAxis(FALSE), m_bPageOpened(FALSE)
{
}

void CSettingsPage::DoDataExchange(CDataExchange* pDX)
{
    CBasePropPage::DoDataExchange(pDX);
    DDX_Check(pDX, IDC_MINOR_TICS, m_bMinorTics);
    DDX_Check(pDX, IDC_MAJOR_TICS, m_bMajorTics);
}

BOOL CSettingsPage::OnInitDialog()
{
    CBasePropPage::OnInitDialog();
    static const CTRL_HELP_ID s_help[] = {
        { IDC_GRID_TYPE_LABEL, IDH_GRID_TYPE },
        { IDC_GRID_TYPE, IDH_GRID_TYPE },
        { IDC_MAJOR_TICS, IDH_MAJOR_TICS },
        { IDC_MINOR_TICS, IDH_MINOR_TICS },
    };
    SetCtrlHelpIds(this, s_help);
    m_bPageOpened = TRUE;

    // The first grid bit set chooses the entry; a word without any of them
    // (only direction bits) selects none.
    for (int nEntry = ENTRY_NONE; nEntry <= ENTRY_MAJOR_MINOR; nEntry++) {
        if (m_dwGrid & s_gridBits[nEntry]) {
            SendDlgItemMessageA(m_hWnd, IDC_GRID_TYPE, CB_SETCURSEL, nEntry, 0);
            break;
        }
    }
    if (!m_bMajorTics)
        ::EnableWindow(::GetDlgItem(m_hWnd, IDC_MINOR_TICS), FALSE);
    if (m_bMajorTics && !m_bMinorTics)
        DropMajorMinorEntry();
    if (m_bRightAxis)
        ::EnableWindow(::GetDlgItem(m_hWnd, IDC_GRID_TYPE), FALSE);
    return TRUE;
}

void CSettingsPage::DropMajorMinorEntry()
{
    HWND hWndList = ::GetDlgItem(m_hWnd, IDC_GRID_TYPE);
    if (::SendMessageA(hWndList, CB_GETCURSEL, 0, 0) == ENTRY_MAJOR_MINOR)
        ::SendMessageA(hWndList, CB_SETCURSEL, ENTRY_MAJOR, 0);
    ::SendMessageA(hWndList, CB_DELETESTRING, ENTRY_MAJOR_MINOR, 0);
}

void CSettingsPage::AddMajorMinorEntry()
{
    CString strEntry;
    strEntry.LoadString(IDS_GRID_MAJOR_MINOR);
    SendDlgItemMessageA(m_hWnd, IDC_GRID_TYPE, CB_ADDSTRING, 0, (LPARAM)(LPCSTR)strEntry);
}

void CSettingsPage::OnMajorClicked()
{
    HWND hWndMinor = ::GetDlgItem(m_hWnd, IDC_MINOR_TICS);
    if (IsDlgButtonChecked(m_hWnd, IDC_MAJOR_TICS)) {
        ::EnableWindow(hWndMinor, TRUE);
        DropMajorMinorEntry();
    } else if (!IsDlgButtonChecked(m_hWnd, IDC_MINOR_TICS)) {
        AddMajorMinorEntry();
        ::EnableWindow(hWndMinor, FALSE);
    } else {
        // Minor tics were on, so the entry is there already.
        CheckDlgButton(m_hWnd, IDC_MINOR_TICS, BST_UNCHECKED);
        ::EnableWindow(hWndMinor, FALSE);
    }
}

void CSettingsPage::OnMinorClicked()
{
    if (IsDlgButtonChecked(m_hWnd, IDC_MINOR_TICS))
        AddMajorMinorEntry();
    else
        DropMajorMinorEntry();
}

void CSettingsPage::OnOK()
{
    // No entry selected keeps the word as it came.
    const int nEntry = (int)SendDlgItemMessageA(m_hWnd, IDC_GRID_TYPE, CB_GETCURSEL, 0, 0);
    if (nEntry >= ENTRY_NONE && nEntry <= ENTRY_MAJOR_MINOR)
        m_dwGrid = s_gridBits[nEntry];
    CBasePropPage::OnOK();
}
