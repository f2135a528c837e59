// CFloatingLabel: construction with its editor, place and size, selection,
// look, and drawing into the picture.
#include "interact/FloatingLabel.h"
#include "interact/FloatingEditWnd.h"
#include "graph/GraphPrv.h"
#include "afx/afxext.h"
#include "resources/messages.h"
#include "resources/resource.h"
#include <string.h>

IMPLEMENT_DYNCREATE(CFloatingLabel, CObject)

namespace {

// The editor's styles: a multi-line edit in which Return starts a new line,
// shown at once for a new label, hidden for one about to be loaded.
const DWORD EDIT_STYLE_HIDDEN = ES_MULTILINE | ES_WANTRETURN;
const DWORD EDIT_STYLE_SHOWN = WS_VISIBLE | ES_MULTILINE | ES_WANTRETURN;

// The number of characters of a line of ANSI text (a double-byte character
// counts once).
int CharacterCount(LPCSTR psz, int nBytes)
{
    int nChars = 0;
    for (int i = 0; i < nBytes; i++, nChars++) {
        if (::IsDBCSLeadByte((BYTE)psz[i]) && i + 1 < nBytes)
            i++;
    }
    return nChars;
}

} // namespace

CFloatingLabel::CFloatingLabel()
    : m_crText(0), m_rect(0, 0, 0, 0), m_dX(0.0), m_dY(0.0), m_pEdit(NULL), m_nPointSize(80), m_nId(0)
{
    memset(&m_logFont, 0, sizeof(m_logFont));
    CString strFace;
    strFace.LoadString(IDS_FONT_FACE);
    if (m_font.CreatePointFont(m_nPointSize, strFace))
        m_font.GetLogFont(&m_logFont);
}

CFloatingLabel::CFloatingLabel(CWnd* pParent, UINT nId)
    : m_crText(0), m_rect(0, 0, 0, 0), m_dX(0.0), m_dY(0.0), m_pEdit(NULL), m_nPointSize(80), m_nId((WORD)nId)
{
    memset(&m_logFont, 0, sizeof(m_logFont));
    MakeEditor();
    if (m_pEdit != NULL) {
        // Without the parent's window (a graph not yet created) the window
        // fails here and CreateEditWindow makes it later.
        m_pEdit->Create(EDIT_STYLE_HIDDEN, m_rect, pParent, nId);
        TakeEditorFont();
    }
}

CFloatingLabel::CFloatingLabel(CGraphPrv* pGraph, UINT nId, int x, int y, double dX, double dY)
    : m_crText(0), m_rect(x, y, 0, 0), m_dX(dX), m_dY(dY), m_pEdit(NULL), m_nPointSize(80), m_nId((WORD)nId)
{
    memset(&m_logFont, 0, sizeof(m_logFont));
    m_strText.LoadString(IDS_LABEL_TEXT);
    MakeEditor();
    if (m_pEdit == NULL)
        return;
    m_pEdit->Create(EDIT_STYLE_SHOWN, m_rect, pGraph, nId);
    TakeEditorFont();
    m_pEdit->GetColor(&m_crText);
    if (m_pEdit->m_hWnd != NULL) {
        m_pEdit->SetWindowText(m_strText);
        m_pEdit->SetSel(0, 65535);   // and EM_SCROLLCARET
    }
    AdjustSize();
    // The font gets its exact size in the graph, size first.
    if (pGraph->m_hWnd != NULL) {
        pGraph->PostMessage(WM_GRAPH_SETLABELPOINTSIZE, nId, (LPARAM)m_nPointSize);
        pGraph->PostMessage(WM_GRAPH_SETLABELFONT, nId, (LPARAM)&m_logFont);
    }
}

CFloatingLabel::~CFloatingLabel()
{
    // Destroying a focused editor makes it report to the graph: it finds
    // this label gone from the map already, and no editor on it.
    CFloatingEditWnd* pEdit = m_pEdit;
    m_pEdit = NULL;
    if (pEdit != NULL) {
        pEdit->DestroyWindow();
        delete pEdit;
    }
}

void CFloatingLabel::MakeEditor()
{
    try {
        m_pEdit = new CFloatingEditWnd;
    } catch (CMemoryException* e) {
        e->Delete();
        m_pEdit = NULL;
        return;
    }
    m_pEdit->LoadDefaultColor();
    m_pEdit->LoadDefaultFont();
}

void CFloatingLabel::TakeEditorFont()
{
    m_pEdit->GetFont(&m_logFont, &m_nPointSize);
    m_font.DeleteObject();
    if (m_font.CreateFontIndirect(&m_logFont) && m_pEdit->m_hWnd != NULL)
        m_pEdit->CWnd::SetFont(&m_font, TRUE);
}

void CFloatingLabel::CreateEditWindow(CWnd* pParent)
{
    if (m_pEdit == NULL)
        MakeEditor();
    if (m_pEdit == NULL || m_pEdit->m_hWnd != NULL)
        return;
    if (!m_pEdit->Create(EDIT_STYLE_HIDDEN, m_rect, pParent, m_nId))
        return;
    m_pEdit->CWnd::SetFont(&m_font, TRUE);
    m_pEdit->SetFont(&m_logFont, m_nPointSize);
    m_pEdit->SetColor(m_crText);
    m_pEdit->SetWindowText(m_strText);
}

void CFloatingLabel::TakeText()
{
    if (m_pEdit != NULL && m_pEdit->m_hWnd != NULL)
        m_pEdit->GetWindowText(m_strText);
}

// --- Place and size ------------------------------------------------------------

void CFloatingLabel::GetPosition(CRect* pRect, double* pdX, double* pdY)
{
    *pRect = m_rect;
    *pdX = m_dX;
    *pdY = m_dY;
}

void CFloatingLabel::SetPosition(CRect* pRect, double* pdX, double* pdY)
{
    m_rect = *pRect;
    m_dX = *pdX;
    m_dY = *pdY;
    if (m_pEdit != NULL && m_pEdit->m_hWnd != NULL)
        m_pEdit->MoveWindow(&m_rect, TRUE);
}

void CFloatingLabel::MoveTo(int* pX, int* pY)
{
    // The size goes with the corner; AdjustSize takes it from the text
    // where the editor's window exists.
    m_rect.OffsetRect(*pX - m_rect.left, *pY - m_rect.top);
    AdjustSize();
}

BOOL CFloatingLabel::HitTest(int x, int y)
{
    return m_rect.PtInRect(CPoint(x, y));
}

UINT CFloatingLabel::GetId()
{
    return m_pEdit != NULL && m_pEdit->m_hWnd != NULL ? (UINT)m_pEdit->GetDlgCtrlID() : 0;
}

CSize CFloatingLabel::GetTextSize(CDC* pDC)
{
    TakeText();
    // Lines end at each line feed; a carriage return before it stays part
    // of its line. The longest line is the one with the most characters,
    // the first of equals; it need not be the widest in pixels.
    LPCSTR psz = m_strText;
    const int nLength = m_strText.GetLength();
    int nLines = 0, nMostChars = 0, nLongestStart = 0, nLongestBytes = 0;
    int nStart = 0;
    for (;;) {
        int nEnd = nStart;
        while (nEnd < nLength && psz[nEnd] != '\n')
            nEnd++;
        nLines++;
        const int nChars = CharacterCount(psz + nStart, nEnd - nStart);
        if (nChars > nMostChars) {
            nMostChars = nChars;
            nLongestStart = nStart;
            nLongestBytes = nEnd - nStart;
        }
        if (nEnd >= nLength)
            break;
        nStart = nEnd + 1;
    }
    TEXTMETRIC tm;
    memset(&tm, 0, sizeof(tm));
    pDC->GetTextMetrics(&tm);
    CSize size(0, tm.tmHeight * nLines);
    if (nMostChars > 0)
        size.cx = pDC->GetTextExtent(psz + nLongestStart, nLongestBytes).cx;
    return size;
}

void CFloatingLabel::AdjustSize()
{
    if (m_pEdit == NULL || m_pEdit->m_hWnd == NULL)
        return;
    // Room for the tracker's border on both sides and a little more.
    const CRectTracker tracker(CRect(0, 0, 10, 10), CRectTracker::hatchedBorder | CRectTracker::resizeOutside);
    const int h = tracker.m_nHandleSize;
    CSize size;
    {
        CClientDC dc(m_pEdit);
        CSelectGuard selectFont(&dc, m_font.m_hObject != NULL ? (HGDIOBJ)m_font.m_hObject
                                                              : ::GetStockObject(SYSTEM_FONT));
        size = GetTextSize(&dc);
    }
    m_rect.right = m_rect.left + 2 * h + 8 + size.cx;
    m_rect.bottom = m_rect.top + size.cy;
    m_pEdit->MoveWindow(&m_rect, TRUE);
}

// --- Selection and look ----------------------------------------------------------

void CFloatingLabel::Select(BOOL bSelect)
{
    if (m_pEdit == NULL || m_pEdit->m_hWnd == NULL)
        return;
    if (!bSelect) {
        // The last thing done here: the focus may move to the graph, which
        // may delete this label before ShowWindow returns.
        ::ShowWindow(m_pEdit->m_hWnd, SW_HIDE);
        return;
    }
    m_pEdit->ShowWindow(SW_SHOW);
    m_pEdit->SetFocus();
    m_pEdit->SetSel(0, 65535);   // and EM_SCROLLCARET
}

void CFloatingLabel::SetFont(LOGFONT* pLogFont)
{
    // The size that came before the font sets its height.
    memmove(&m_logFont, pLogFont, sizeof(LOGFONT));
    m_logFont.lfHeight = m_nPointSize;
    // The editor keeps the look it shows (and stores) in step, whoever sent it.
    if (m_pEdit != NULL)
        m_pEdit->SetFont(&m_logFont, m_nPointSize);
    m_font.DeleteObject();
    if (m_pEdit == NULL || m_pEdit->m_hWnd == NULL) {
        m_font.CreatePointFontIndirect(&m_logFont, NULL);
        return;
    }
    {
        CClientDC dc(m_pEdit);
        m_font.CreatePointFontIndirect(&m_logFont, &dc);
    }
    m_pEdit->CWnd::SetFont(&m_font, TRUE);
    AdjustSize();
}

void CFloatingLabel::SetPointSize(int nPointSize)
{
    m_nPointSize = nPointSize;
    if (m_pEdit != NULL)
        m_pEdit->SetFont(NULL, nPointSize);
}

void CFloatingLabel::SetColor(COLORREF crColor)
{
    m_crText = crColor;
    if (m_pEdit != NULL)
        m_pEdit->SetColor(crColor);
}

// --- Drawing ---------------------------------------------------------------------

void CFloatingLabel::Draw(CDC* pDC)
{
    TakeText();
    // The label's font is a screen font: a printer or plotter gets one made
    // for it at the label's point size.
    CFont fontDevice;
    const int nTechnology = pDC->GetDeviceCaps(TECHNOLOGY);
    if (nTechnology == DT_PLOTTER || nTechnology == DT_RASPRINTER) {
        LOGFONT lf = m_logFont;
        lf.lfHeight = m_nPointSize;
        fontDevice.CreatePointFontIndirect(&lf, pDC);
    }
    CSaveDCGuard saveDC(pDC);
    if (fontDevice.m_hObject != NULL)
        pDC->SelectObject(&fontDevice);
    else if (m_font.m_hObject != NULL)
        pDC->SelectObject(&m_font);
    pDC->SetTextColor(m_crText);
    pDC->SetBkMode(TRANSPARENT);

    const CSize size = GetTextSize(pDC);
    CRect rectText(m_rect.left, m_rect.top, m_rect.left + size.cx + 8, m_rect.top + size.cy);
    pDC->DrawText(m_strText, &rectText, DT_WORDBREAK);
}
