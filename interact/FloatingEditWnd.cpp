// The editor of a floating label: its menu and commands, the end of editing
// on the loss of focus, the colour and font dialogs, and the defaults of new
// labels under the library's fixed registry key.
//
// The editor may be deleted by the graph while it handles a message (its
// delete command, an emptied text on losing the focus): every such path
// sends its message to the graph last and touches nothing of the editor
// afterwards.
#include "interact/FloatingEditWnd.h"
#include "afx/afxdlgs.h"
#include "persist/Registry.h"
#include "resources/messages.h"
#include "resources/resource.h"
#include <string.h>

static_assert(sizeof(LOGFONT) == 60, "the stored font is the 60-byte narrow LOGFONT");

IMPLEMENT_DYNCREATE(CFloatingEditWnd, CEdit)

BEGIN_MESSAGE_MAP(CFloatingEditWnd, CEdit)
    ON_WM_CONTEXTMENU()
    ON_COMMAND(ID_GRAPH_LABEL_CUT, OnCut)
    ON_COMMAND(ID_GRAPH_COPY, OnCopy)
    ON_COMMAND(ID_GRAPH_LABEL_PASTE, OnPaste)
    ON_COMMAND(ID_GRAPH_LABEL_SELECT_ALL, OnSelectAll)
    ON_WM_KILLFOCUS()
    ON_COMMAND(ID_GRAPH_LABEL_DELETE, OnDeleteLabel)
    ON_COMMAND(ID_GRAPH_LABEL_COLOR, OnChooseColor)
    ON_COMMAND(ID_GRAPH_LABEL_FONT, OnChooseFont)
    ON_WM_CHAR()
END_MESSAGE_MAP()

namespace {

// The fixed key of the library, opened or created for one operation.
class CFixedKey
{
public:
    CFixedKey() : m_hKey(NULL) {}
    ~CFixedKey()
    {
        if (m_hKey != NULL)
            ::RegCloseKey(m_hKey);
    }
    BOOL Open(REGSAM samDesired)
    {
        return ::RegOpenKeyExA(HKEY_LOCAL_MACHINE, GRAPH_FIXED_KEY, 0, samDesired, &m_hKey) == ERROR_SUCCESS;
    }
    BOOL Create()
    {
        DWORD dwDisposition = 0;
        return ::RegCreateKeyExA(HKEY_LOCAL_MACHINE, GRAPH_FIXED_KEY, 0, NULL, REG_OPTION_NON_VOLATILE,
                                 KEY_ALL_ACCESS, NULL, &m_hKey, &dwDisposition) == ERROR_SUCCESS;
    }
    HKEY m_hKey;

private:
    CFixedKey(const CFixedKey&) = delete;
    void operator=(const CFixedKey&) = delete;
};

const char s_szColorValue[] = "DefaultLabelColor";
const char s_szPointSizeValue[] = "DefaultLabelPointSize";
const char s_szFontValue[] = "DefaultLabelFont";

} // namespace

CFloatingEditWnd::CFloatingEditWnd() : m_crColor(0), m_nPointSize(80), m_bInDialog(FALSE)
{
    // The built-in font: the library's face at 8 points.
    memset(&m_logFont, 0, sizeof(m_logFont));
    CString strFace;
    strFace.LoadString(IDS_FONT_FACE);
    CFont font;
    if (font.CreatePointFont(m_nPointSize, strFace))
        font.GetLogFont(&m_logFont);
}

void CFloatingEditWnd::GetFont(LOGFONT* pLogFont, int* pnPointSize)
{
    if (pLogFont != NULL)
        *pLogFont = m_logFont;
    *pnPointSize = m_nPointSize;
}

void CFloatingEditWnd::GetColor(COLORREF* pcrColor)
{
    *pcrColor = m_crColor;
}

void CFloatingEditWnd::SetFont(LOGFONT* pLogFont, int nPointSize)
{
    if (pLogFont != NULL)
        m_logFont = *pLogFont;
    m_nPointSize = nPointSize;
}

void CFloatingEditWnd::SetColor(COLORREF crColor)
{
    m_crColor = crColor;
}

// --- Registry ------------------------------------------------------------------

int CFloatingEditWnd::LoadDefaultColor()
{
    CFixedKey key;
    if (!key.Open(KEY_ALL_ACCESS))
        return 0;
    DWORD dwColor = m_crColor;
    RegReadDword(key.m_hKey, NULL, s_szColorValue, &dwColor, m_crColor);
    m_crColor = dwColor;
    return 1;
}

int CFloatingEditWnd::LoadDefaultFont()
{
    CFixedKey key;
    if (!key.Open(KEY_READ))
        return 1;   // a first run: the built-in font stands
    DWORD dwSize = (DWORD)m_nPointSize;
    RegReadDword(key.m_hKey, NULL, s_szPointSizeValue, &dwSize, (DWORD)m_nPointSize);
    m_nPointSize = (int)dwSize;

    // A font without a face name is what a missing value reads as.
    LOGFONT lf;
    LOGFONT lfNone;
    memset(&lfNone, 0, sizeof(lfNone));
    RegReadBinary(key.m_hKey, NULL, s_szFontValue, &lf, &lfNone, sizeof(LOGFONT));
    if (lf.lfFaceName[0] == '\0')
        return 0;
    m_logFont = lf;
    if (m_hWnd != NULL) {
        // Only a window made before the defaults were read is told; it
        // borrows the font until the label gives it one of its own.
        CFont font;
        if (font.CreateFontIndirect(&m_logFont))
            CWnd::SetFont(&font, TRUE);
    }
    return 1;
}

int CFloatingEditWnd::SaveDefaultColor()
{
    CFixedKey key;
    if (!key.Create())
        return 0;
    return RegWriteDword(key.m_hKey, NULL, s_szColorValue, m_crColor);
}

int CFloatingEditWnd::SaveDefaultFont()
{
    CFixedKey key;
    if (!key.Create())
        return 0;
    RegWriteDword(key.m_hKey, NULL, s_szPointSizeValue, (DWORD)m_nPointSize);
    return RegWriteBinary(key.m_hKey, NULL, s_szFontValue, &m_logFont, sizeof(LOGFONT));
}

// --- Menu and commands ----------------------------------------------------------

void CFloatingEditWnd::OnContextMenu(CWnd*, CPoint point)
{
    CMenu menu;
    if (!menu.LoadMenu(IDR_LABEL_MENU))
        return;
    CMenu* pPopup = menu.GetSubMenu(0);
    if (pPopup == NULL)
        return;

    // The selection counts the control's UTF-16 characters: so does the
    // text's length here (the window's text length counts ANSI bytes).
    CString strText;
    GetWindowText(strText);
    const int nChars = ::MultiByteToWideChar(CP_ACP, 0, strText, strText.GetLength(), NULL, 0);
    const DWORD dwSel = GetSel();
    const int nStart = LOWORD(dwSel), nEnd = HIWORD(dwSel);
    // Select all only when something is left to select.
    const bool bCanSelectAll = nChars >= 1 && nEnd - nStart < nChars;
    pPopup->EnableMenuItem(ID_GRAPH_LABEL_SELECT_ALL, MF_BYCOMMAND | (bCanSelectAll ? MF_ENABLED : MF_GRAYED));
    if (nStart == nEnd) {
        pPopup->EnableMenuItem(ID_GRAPH_LABEL_CUT, MF_BYCOMMAND | MF_GRAYED);
        pPopup->EnableMenuItem(ID_GRAPH_COPY, MF_BYCOMMAND | MF_GRAYED);
    }

    // The pointer may be confined to the graph by the label's tracker.
    ::ClipCursor(NULL);
    pPopup->TrackPopupMenu(TPM_RIGHTBUTTON, point.x, point.y, this);
    menu.DestroyMenu();
}

void CFloatingEditWnd::OnCut()
{
    SendMessage(WM_CUT);
}

void CFloatingEditWnd::OnCopy()
{
    SendMessage(WM_COPY);
}

void CFloatingEditWnd::OnPaste()
{
    SendMessage(WM_PASTE);
}

void CFloatingEditWnd::OnSelectAll()
{
    SetSel(0, 65535);   // and EM_SCROLLCARET
}

void CFloatingEditWnd::OnDeleteLabel()
{
    // The graph deletes the label and this editor with it.
    ::SendMessageA(::GetParent(m_hWnd), WM_GRAPH_DELETELABEL, (WPARAM)GetDlgCtrlID(), 0);
}

void CFloatingEditWnd::OnChar(UINT nChar, UINT, UINT)
{
    // Escape ends the editing and keeps the text: the graph takes the focus.
    if (nChar == VK_ESCAPE) {
        ::SetFocus(::GetParent(m_hWnd));
        return;
    }
    Default();
}

void CFloatingEditWnd::OnKillFocus(CWnd*)
{
    Default();
    // The label takes its size from the text here, and only here. An empty
    // label goes, except while a dialog of this editor is up: the dialog
    // decides when it returns.
    const HWND hParent = ::GetParent(m_hWnd);
    const WPARAM nId = (WPARAM)GetDlgCtrlID();
    if (GetWindowTextLength() == 0 && !m_bInDialog)
        ::SendMessageA(hParent, WM_GRAPH_DELETELABEL, nId, 0);
    else
        ::SendMessageA(hParent, WM_GRAPH_FINISHEDEDITINGLABEL, nId, !m_bInDialog);
}

// --- Dialogs ----------------------------------------------------------------------

void CFloatingEditWnd::OnChooseColor()
{
    CWnd* pGraph = GetParent();
    const WPARAM nId = (WPARAM)GetDlgCtrlID();
    CColorDialog dlg(m_crColor, CC_FULLOPEN, pGraph);
    m_bInDialog = TRUE;
    if (dlg.DoModal() == IDOK) {
        m_crColor = dlg.GetColor();
        pGraph->PostMessage(WM_GRAPH_SETLABELCOLOR, nId, (LPARAM)m_crColor);
        SaveDefaultColor();
    }
    m_bInDialog = FALSE;
    DeleteIfLeftEmpty();
}

void CFloatingEditWnd::OnChooseFont()
{
    CWnd* pGraph = GetParent();
    const WPARAM nId = (WPARAM)GetDlgCtrlID();
    CFontDialog dlg(&m_logFont, CF_EFFECTS | CF_SCREENFONTS, NULL, pGraph);
    dlg.m_cf.rgbColors = m_crColor;
    m_bInDialog = TRUE;
    if (dlg.DoModal() == IDOK) {
        // The size goes first: the graph builds the font from it.
        dlg.GetCurrentFont(&m_logFont);
        m_nPointSize = dlg.GetSize();
        pGraph->PostMessage(WM_GRAPH_SETLABELPOINTSIZE, nId, (LPARAM)m_nPointSize);
        pGraph->PostMessage(WM_GRAPH_SETLABELFONT, nId, (LPARAM)&m_logFont);
        SaveDefaultFont();
        // The font dialog's colour becomes the label's too.
        m_crColor = dlg.GetColor();
        pGraph->PostMessage(WM_GRAPH_SETLABELCOLOR, nId, (LPARAM)m_crColor);
        SaveDefaultColor();
    }
    m_bInDialog = FALSE;
    DeleteIfLeftEmpty();
}

void CFloatingEditWnd::DeleteIfLeftEmpty()
{
    if (GetWindowTextLength() == 0 && ::GetFocus() != m_hWnd)
        OnDeleteLabel();
}
