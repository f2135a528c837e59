// CLegend: the list of series names beside the graph. The list is sorted by
// name; each entry carries a CLegendData with the series' look.
#include "interact/Legend.h"
#include "graph/GraphDefs.h"

CLegendData::CLegendData()
    : m_crLine(0), m_nLineStyle(0), m_nLineWidth(1), m_nAnnotate(0), m_crBackground(0xFFFFFF)
{
}

BEGIN_MESSAGE_MAP(CLegend, CListBox)
    ON_WM_DESTROY()
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
    const DWORD dwStyle = WS_CHILD | WS_CLIPSIBLINGS | WS_VSCROLL | WS_THICKFRAME | LBS_SORT |
                          LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT;
    return CreateEx(WS_EX_CLIENTEDGE | WS_EX_WINDOWEDGE, "ListBox", "Legend", dwStyle,
                    0, 0, m_nWidth, m_nHeight, pParent->m_hWnd, (HMENU)0, NULL);
}

void CLegend::Show(BOOL bShow)
{
    m_bShown = bShow;
    if (m_hWnd != NULL)
        ShowWindow(bShow ? SW_SHOW : SW_HIDE);
}

void CLegend::Reposition() {}

BOOL CLegend::AddEntry(CString strName, COLORREF crLine, int nLineStyle, int nLineWidth, int nAnnotate, COLORREF crBackground)
{
    CLegendData* pData = new CLegendData;
    pData->m_crLine = crLine;
    pData->m_nLineStyle = nLineStyle;
    pData->m_nLineWidth = nLineWidth;
    pData->m_nAnnotate = nAnnotate;
    pData->m_crBackground = crBackground;
    int nIndex = AddString(strName);
    if (nIndex < 0) {
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
    // drawing it on its own thread.
    CLegendData* pLook = (CLegendData*)GetItemDataPtr(nIndex);
    DeleteString((UINT)nIndex);
    delete pLook;
    return TRUE;
}

BOOL CLegend::UpdateEntry(CString strName, COLORREF crLine, int nLineStyle, int nLineWidth, int nAnnotate, COLORREF crBackground)
{
    int nIndex = FindEntry(strName);
    if (nIndex < 0)
        return FALSE;
    CLegendData* pData = (CLegendData*)GetItemDataPtr(nIndex);
    pData->m_crLine = crLine;
    pData->m_nLineStyle = nLineStyle;
    pData->m_nLineWidth = nLineWidth;
    pData->m_nAnnotate = nAnnotate;
    pData->m_crBackground = crBackground;
    Invalidate();
    return TRUE;
}

void CLegend::FreeEntries()
{
    if (m_hWnd == NULL)
        return;
    for (int i = GetCount() - 1; i >= 0; i--) {
        delete (CLegendData*)GetItemDataPtr(i);
        SetItemDataPtr(i, NULL);
    }
}

void CLegend::OnDestroy()
{
    FreeEntries();
    CListBox::OnDestroy();
}
