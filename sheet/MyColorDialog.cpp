// The custom colour dialog: the template hides the system's colour boxes
// out of sight and disables them here; the add button reads the red, green
// and blue fields and sends the colour to the owner.
#include "sheet/MyColorDialog.h"
#include "sheet/ColorPalette.h"
#include "graph/Globals.h"
#include "resources/resource.h"
#include <stdlib.h>

IMPLEMENT_DYNAMIC(CmyColorDialog, CColorDialog)

BEGIN_MESSAGE_MAP(CmyColorDialog, CColorDialog)
    ON_BN_CLICKED(IDC_ADD_CUSTOM_COLOR, OnAddColor)
END_MESSAGE_MAP()

CmyColorDialog::CmyColorDialog(COLORREF clrInit, DWORD dwFlags, CWnd* pOwner)
    : CColorDialog(clrInit, dwFlags, pOwner), m_pOwner(pOwner)
{
    m_cc.Flags = CC_RGBINIT | CC_FULLOPEN | CC_ENABLEHOOK | CC_ENABLETEMPLATE;
    // The template lies with the library's other resources: in its own
    // module, or in the satellite of the user's language.
    HMODULE hResource = g_GraphExtensionModule.hResource != NULL ? g_GraphExtensionModule.hResource
                                                                  : g_hGraphInstance;
    m_cc.hInstance = (HWND)hResource;
    m_cc.lpTemplateName = MAKEINTRESOURCEA(IDD_CUSTOM_COLOR_DIALOG);
}

BOOL CmyColorDialog::OnInitDialog()
{
    CColorDialog::OnInitDialog();
    // The basic colours, the colour field and the custom colours take no clicks.
    static const int s_anDisabled[] = { IDC_COLORDLG_BASIC_BOX, IDC_COLORDLG_FIELD, IDC_COLORDLG_CUSTOM_BOX };
    for (int nID : s_anDisabled) {
        HWND hWndControl = ::GetDlgItem(m_hWnd, nID);
        if (hWndControl != NULL)
            ::EnableWindow(hWndControl, FALSE);
    }
    return TRUE;
}

void CmyColorDialog::OnAddColor()
{
    static const int s_anFields[] = { IDC_COLORDLG_RED, IDC_COLORDLG_GREEN, IDC_COLORDLG_BLUE };
    int anValues[3];
    for (int i = 0; i < 3; i++) {
        char szText[10];
        ::GetDlgItemTextA(m_hWnd, s_anFields[i], szText, sizeof(szText));
        anValues[i] = atoi(szText) & 0xFF;
    }
    if (m_pOwner != NULL && m_pOwner->m_hWnd != NULL)
        m_pOwner->SendMessage(WM_PICKER_ADDCOLOR, 0, (LPARAM)RGB(anValues[0], anValues[1], anValues[2]));
}
