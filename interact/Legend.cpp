// CLegend: the list of series names beside the graph. The list is sorted by
// name; each entry carries a CLegendData with the series' look and shows a
// sample of it. Its own context menu docks it on a side. How it opens,
// collapses and follows the graph's size is in LegendMotion.cpp.
#include "interact/Legend.h"
#include "afx/afxmenu.h"
#include "graph/GraphDefs.h"
#include "render/AnnotationMark.h"
#include "render/DrawerPen.h"
#include "resources/messages.h"
#include "resources/resource.h"
#include "persist/Registry.h"

namespace {

const int LEGEND_ITEM_HEIGHT = 20;   // every entry's height in pixels
const int SAMPLE_LEFT = 5;           // the sample box, in item coordinates
const int SAMPLE_RIGHT = 35;
const int SAMPLE_MARK_X = 20;        // the mark stands in the middle of the box
const int TEXT_LEFT = 40;            // the series name starts here
const DWORD MAX_LEGEND_SIZE = 10000; // pixels; a larger stored size is not taken

} // namespace

CLegendData::CLegendData()
    : m_crLine(0), m_nLineStyle(0), m_nLineWidth(1), m_nAnnotate(0), m_crBackground(0xFFFFFF)
{
}

void CLegendData::Set(COLORREF crLine, int nLineStyle, int nLineWidth, int nAnnotate, COLORREF crBackground)
{
    m_crLine = crLine;
    m_nLineStyle = nLineStyle;
    m_nLineWidth = nLineWidth;
    m_nAnnotate = nAnnotate;
    m_crBackground = crBackground;
}

BEGIN_MESSAGE_MAP(CLegend, CListBox)
    ON_WM_RBUTTONUP()
    ON_WM_SIZE()
    ON_WM_NCHITTEST()
    ON_WM_TIMER()
    ON_WM_DESTROY()
    ON_WM_GETMINMAXINFO()
    ON_WM_LBUTTONUP()
    ON_WM_NCLBUTTONUP()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCMOUSEMOVE()
END_MESSAGE_MAP()

CLegend::CLegend()
    : m_nPosition(LEGEND_RIGHT), m_bAutoHide(TRUE), m_bHidden(FALSE), m_nWidth(100), m_nHeight(50),
      m_bInMenu(FALSE), m_bShown(FALSE), m_bSizing(FALSE)
{
}

CLegend::~CLegend()
{
    FreeEntries();
}

BOOL CLegend::Create(CWnd* pParent, int nPosition)
{
    m_nPosition = nPosition;
    CRect rectClient;
    pParent->GetClientRect(&rectClient);
    const CRect rect = OpenRect(rectClient);
    const DWORD dwStyle = WS_CHILD | WS_CLIPSIBLINGS | WS_VSCROLL | WS_THICKFRAME | LBS_SORT |
                          LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT;
    BOOL bCreated = CreateEx(WS_EX_CLIENTEDGE | WS_EX_WINDOWEDGE, "ListBox", "Legend", dwStyle, rect.left,
                             rect.top, rect.Width(), rect.Height(), pParent->m_hWnd, (HMENU)0, NULL);
    m_rectFull = rect;
    return bCreated;
}

// ---- Settings in the registry ---------------------------------------------------

BOOL CLegend::SaveToRegistry(HKEY hKey)
{
    if (hKey == NULL)
        return TRUE;
    return RegWriteDword(hKey, "Legend", "AutoHide", (DWORD)m_bAutoHide) &&
           RegWriteDword(hKey, "Legend", "Position", (DWORD)m_nPosition) &&
           RegWriteDword(hKey, "Legend", "Height", (DWORD)m_nHeight) &&
           RegWriteDword(hKey, "Legend", "Width", (DWORD)m_nWidth);
}

BOOL CLegend::LoadFromRegistry(HKEY hKey)
{
    if (hKey == NULL)
        return TRUE;
    // Each value falls back on the present one, and so does a value the
    // legend could not stand on: a side other than the four, a size of 0
    // or beyond any screen.
    DWORD dwAutoHide, dwPosition, dwHeight, dwWidth;
    if (!RegReadDword(hKey, "Legend", "AutoHide", &dwAutoHide, (DWORD)m_bAutoHide) ||
        !RegReadDword(hKey, "Legend", "Position", &dwPosition, (DWORD)m_nPosition) ||
        !RegReadDword(hKey, "Legend", "Height", &dwHeight, (DWORD)m_nHeight) ||
        !RegReadDword(hKey, "Legend", "Width", &dwWidth, (DWORD)m_nWidth))
        return FALSE;
    m_bAutoHide = dwAutoHide != 0;
    if (dwPosition >= LEGEND_TOP && dwPosition <= LEGEND_RIGHT)
        m_nPosition = (int)dwPosition;
    if (dwHeight >= 1 && dwHeight <= MAX_LEGEND_SIZE)
        m_nHeight = (int)dwHeight;
    if (dwWidth >= 1 && dwWidth <= MAX_LEGEND_SIZE)
        m_nWidth = (int)dwWidth;
    Reposition();
    if (m_hWnd != NULL)
        UpdateWindow();
    return TRUE;
}

// ---- Entries -----------------------------------------------------------------

BOOL CLegend::AddEntry(CString strName, COLORREF crLine, int nLineStyle, int nLineWidth, int nAnnotate, COLORREF crBackground)
{
    CLegendData* pData = NULL;
    try {
        pData = new CLegendData;
    } catch (CMemoryException* e) {
        // The series stays without an entry; the host is not told.
        e->Delete();
        return FALSE;
    }
    pData->Set(crLine, nLineStyle, nLineWidth, nAnnotate, crBackground);
    int nIndex = AddString(strName);
    if (nIndex == LB_ERR || nIndex == LB_ERRSPACE) {
        delete pData;
        return FALSE;
    }
    SetItemDataPtr(nIndex, pData);
    return TRUE;
}

int CLegend::FindEntry(const CString& strName) const
{
    // The list's own search ignores case; series names do not.
    CString strText;
    for (int i = 0; i < GetCount(); i++) {
        GetText(i, strText);
        if (strText == strName)
            return i;
    }
    return -1;
}

BOOL CLegend::RemoveEntry(CString strName)
{
    int nIndex = FindEntry(strName);
    if (nIndex < 0)
        return FALSE;
    // The entry leaves the list before its look is freed: the list may be
    // drawing it meanwhile.
    CLegendData* pLook = (CLegendData*)GetItemDataPtr(nIndex);
    int nResult = DeleteString((UINT)nIndex);
    delete pLook;
    return nResult != LB_ERR;
}

BOOL CLegend::UpdateEntry(CString strName, COLORREF crLine, int nLineStyle, int nLineWidth, int nAnnotate, COLORREF crBackground)
{
    // The new look shows at the list's next paint.
    int nIndex = FindEntry(strName);
    if (nIndex < 0)
        return FALSE;
    CLegendData* pData = (CLegendData*)GetItemDataPtr(nIndex);
    pData->Set(crLine, nLineStyle, nLineWidth, nAnnotate, crBackground);
    return TRUE;
}

void CLegend::FreeEntries()
{
    if (m_hWnd == NULL)
        return;
    int nCount = GetCount();
    if (nCount == LB_ERR)
        return;
    for (int i = nCount - 1; i >= 0; i--) {
        delete (CLegendData*)GetItemDataPtr(i);
        SetItemDataPtr(i, NULL);
    }
}

void CLegend::OnDestroy()
{
    FreeEntries();
    CListBox::OnDestroy();
}

// ---- Drawing -----------------------------------------------------------------

void CLegend::MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    lpMeasureItemStruct->itemHeight = LEGEND_ITEM_HEIGHT;
}

void CLegend::DrawItem(LPDRAWITEMSTRUCT lpDIS)
{
    // The list shows neither a selection nor the focus.
    if (lpDIS->itemAction & (ODA_SELECT | ODA_FOCUS))
        return;
    if (lpDIS->itemID == (UINT)-1 || lpDIS->itemData == 0)
        return;

    CDC dc;   // borrows the list's context
    dc.Attach(lpDIS->hDC);
    CDC* pDC = &dc;
    CSaveDCGuard saved(pDC);
    const CRect r(lpDIS->rcItem);
    CBrush brushWindow;
    brushWindow.CreateSolidBrush(::GetSysColor(COLOR_WINDOW));
    CSelectGuard selectBrush(pDC, &brushWindow);

    CString strName;
    GetText((int)lpDIS->itemID, strName);
    pDC->PatBlt(r.left, r.top, r.Width(), r.Height(), PATCOPY);
    pDC->SelectStockObject(DEFAULT_GUI_FONT);

    if (lpDIS->itemData != (ULONG_PTR)-1) {
        const CLegendData* pLook = (const CLegendData*)lpDIS->itemData;
        CRect rectBox(SAMPLE_LEFT, r.top + 2, SAMPLE_RIGHT, r.bottom - 2);
        CBrush brushFrame;
        brushFrame.CreateSolidBrush(0);
        pDC->FrameRect(&rectBox, &brushFrame);
        rectBox.DeflateRect(1, 1);
        pDC->FillSolidRect(&rectBox, pLook->m_crBackground);

        const int m = (rectBox.top + rectBox.bottom) / 2;
        pDC->SetBkMode(OPAQUE);
        {
            CDrawerPen pen(pLook->m_nLineStyle, pLook->m_nLineWidth, pLook->m_crLine);
            CSelectGuard selectPen(pDC, &pen);
            pDC->MoveTo(SAMPLE_LEFT + 1, m);
            pDC->LineTo(SAMPLE_RIGHT - 1, m);
        }
        if (pLook->m_nAnnotate != 0) {
            CDrawerPen penMark(PS_SOLID, 1, pLook->m_crLine);
            CBrush brushMark;
            brushMark.CreateSolidBrush(pLook->m_crLine);
            CSelectGuard selectPen(pDC, &penMark);
            CSelectGuard selectMarkBrush(pDC, &brushMark);
            DrawAnnotationMark(pDC, SAMPLE_MARK_X, m, pLook->m_nAnnotate);
        }
    }

    pDC->SetBkColor(::GetSysColor(COLOR_WINDOW));
    pDC->SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
    TEXTMETRIC tm;
    pDC->GetTextMetrics(&tm);
    pDC->TextOut(r.left + TEXT_LEFT, r.top + (r.Height() - tm.tmHeight) / 2, strName);
}

// ---- Menu and commands -------------------------------------------------------

void CLegend::OnRButtonUp(UINT, CPoint point)
{
    CMenu menu;
    if (!menu.LoadMenu(IDR_LEGEND_MENU))
        return;
    CMenu* pPopup = menu.GetSubMenu(0);
    if (pPopup == NULL)
        return;
    ClientToScreen(&point);

    // The present side carries a radio check.
    MENUITEMINFOA info;
    ::ZeroMemory(&info, sizeof(info));
    info.cbSize = sizeof(info);
    info.fMask = MIIM_TYPE | MIIM_STATE;
    char szText[64];
    info.dwTypeData = szText;
    info.cch = sizeof(szText);
    const UINT nSideCommand = ID_GRAPH_LEGEND_TOP + (UINT)(m_nPosition - LEGEND_TOP);
    if (::GetMenuItemInfoA(pPopup->GetSafeHmenu(), nSideCommand, FALSE, &info)) {
        info.fType |= MFT_RADIOCHECK;
        info.fState |= MFS_CHECKED;
        ::SetMenuItemInfoA(pPopup->GetSafeHmenu(), nSideCommand, FALSE, &info);
    }

    // While the menu is up the legend stays open, wherever the pointer goes.
    m_bInMenu = TRUE;
    pPopup->TrackPopupMenu(TPM_RIGHTBUTTON, point.x, point.y, this);
    m_bInMenu = FALSE;
}

BOOL CLegend::OnCommand(WPARAM wParam, LPARAM lParam)
{
    switch (LOWORD(wParam)) {
    case ID_GRAPH_LEGEND_TOP: m_nPosition = LEGEND_TOP; break;
    case ID_GRAPH_LEGEND_BOTTOM: m_nPosition = LEGEND_BOTTOM; break;
    case ID_GRAPH_LEGEND_LEFT: m_nPosition = LEGEND_LEFT; break;
    case ID_GRAPH_LEGEND_RIGHT: m_nPosition = LEGEND_RIGHT; break;
    case ID_GRAPH_LEGEND_PROPERTIES: Options(); break;
    }
    // Every command, the present side too, lays the legend and the graph out.
    Reposition();
    if (IsWindowVisible())
        ::SendMessageA(::GetParent(m_hWnd), WM_GRAPH_LEGENDPOSCHANGE, 0, 0);
    return CListBox::OnCommand(wParam, lParam);
}
