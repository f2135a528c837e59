// The context menu of the plot: which standard entries it keeps, the
// host's own entries (four parallel arrays of text, command id, position and
// target window), the menu itself, and the commands it sends back.
#include "graph/GraphPrv.h"
#include "resources/resource.h"

int CGraphPrv::EnableMenu(int bEnable)
{
    m_bMenuEnabled = bEnable;
    return GRAPH_OK;
}

int CGraphPrv::SetMenuConfiguration(long lConfig)
{
    m_lMenuConfig = lConfig;
    return GRAPH_OK;
}

int CGraphPrv::AddMenuItem(CString& strText, DWORD dwId, int nPosition, CWnd* pWnd)
{
    m_aMenuText.Add(strText);
    m_aMenuIds.Add(dwId);
    m_aMenuFlags.Add(nPosition);
    m_aMenuWnds.Add(pWnd);
    return GRAPH_OK;
}

int CGraphPrv::RemoveMenuItem(DWORD dwId)
{
    for (int i = 0; i < m_aMenuIds.GetSize(); i++) {
        if (m_aMenuIds[i] == dwId) {
            m_aMenuText.RemoveAt(i);
            m_aMenuIds.RemoveAt(i);
            m_aMenuFlags.RemoveAt(i);
            m_aMenuWnds.RemoveAt(i);
            return GRAPH_OK;
        }
    }
    return 0;
}

int CGraphPrv::RemoveAllMenuItems()
{
    m_aMenuText.RemoveAll();
    m_aMenuIds.RemoveAll();
    m_aMenuFlags.RemoveAll();
    m_aMenuWnds.RemoveAll();
    return GRAPH_OK;
}

int CGraphPrv::DisplayMenu(POINT* pPoint)
{
    if (pPoint == NULL)
        return GRAPH_OK;
    CMenu menu;
    if (!menu.LoadMenu(IDR_GRAPH_MENU))
        return GRAPH_OK;
    CMenu* pPopup = menu.GetSubMenu(0);
    if (pPopup == NULL)
        return GRAPH_OK;

    if (!(m_lMenuConfig & GM_COPY))
        pPopup->DeleteMenu(ID_GRAPH_COPY, MF_BYCOMMAND);
    if (m_lMenuConfig & GM_CROSSHAIR) {
        // The cross hair's entries follow its state; the lock entry names
        // what it will do.
        const BOOL bOn = (m_dwState & GST_CROSSHAIR) != 0;
        const BOOL bLocked = bOn && (m_dwState & GST_CROSSHAIR_LOCKED) != 0;
        CString strLock;
        strLock.LoadString(bLocked ? IDS_UNLOCK : IDS_LOCK);
        pPopup->CheckMenuItem(ID_GRAPH_CROSSHAIR_SHOW, MF_BYCOMMAND | (bOn ? MF_CHECKED : MF_UNCHECKED));
        pPopup->ModifyMenu(ID_GRAPH_CROSSHAIR_LOCK, MF_BYCOMMAND | MF_STRING, ID_GRAPH_CROSSHAIR_LOCK, strLock);
        pPopup->EnableMenuItem(ID_GRAPH_CROSSHAIR_LOCK, MF_BYCOMMAND | (bOn ? MF_ENABLED : MF_GRAYED));
    } else {
        // The sub-menu has no command of its own: it is found as the first
        // entry that opens a sub-menu, and taken out when it is the cross hair's.
        CString strCrossHair;
        strCrossHair.LoadString(IDS_CROSSHAIR_MENU);
        for (int i = 0; i < pPopup->GetMenuItemCount(); i++) {
            if (pPopup->GetSubMenu(i) == NULL)
                continue;
            CString strCaption;
            pPopup->GetMenuString(i, strCaption, MF_BYPOSITION);
            if (strCaption == strCrossHair)
                pPopup->DeleteMenu(i, MF_BYPOSITION);
            break;
        }
    }
    if (!(m_lMenuConfig & GM_LABEL))
        pPopup->DeleteMenu(ID_GRAPH_ADD_LABEL, MF_BYCOMMAND);
    if (m_lMenuConfig & GM_LEGEND) {
        if (IsLegendVisible())
            pPopup->CheckMenuItem(ID_GRAPH_LEGEND, MF_BYCOMMAND | MF_CHECKED);
    } else {
        pPopup->DeleteMenu(ID_GRAPH_LEGEND, MF_BYCOMMAND);
    }
    if (!(m_lMenuConfig & GM_RADAR))
        pPopup->DeleteMenu(ID_GRAPH_RADAR, MF_BYCOMMAND);

    // The host's entries, in the order of adding, each at its position in
    // the menu as it stands by then; a position past the end appends.
    for (int i = 0; i < m_aMenuIds.GetSize(); i++)
        pPopup->InsertMenu((UINT)m_aMenuFlags[i], MF_BYPOSITION | MF_STRING, m_aMenuIds[i], m_aMenuText[i]);

    // Modal until the menu closes; the chosen command comes back posted.
    pPopup->TrackPopupMenu(TPM_RIGHTBUTTON, pPoint->x, pPoint->y, this);
    return GRAPH_OK;
}

BOOL CGraphPrv::OnCommand(WPARAM wParam, LPARAM lParam)
{
    // A control's notification (a label's editor, a limit editor) carries
    // its window: it is no menu choice, whatever its id.
    if (lParam != 0)
        return CWnd::OnCommand(wParam, lParam);
    const UINT nId = LOWORD(wParam);
    switch (nId) {
    case ID_GRAPH_PROPERTIES: {
        CString strCaption;
        Properties(strCaption);
        break;
    }
    case ID_GRAPH_CROSSHAIR_SHOW:
        DisplayCrossHair();
        break;
    case ID_GRAPH_CROSSHAIR_LOCK:
        LockCrossHair();
        break;
    case ID_GRAPH_COPY:
        // The host hears of the copy whatever became of it.
        CopyToClipboard();
        NotifyApplication((int)GN_COPY);
        break;
    case ID_GRAPH_RADAR:
        Radar(m_wRadarType);
        NotifyApplication((int)GN_RADAR);
        Replot();
        break;
    case ID_GRAPH_ADD_LABEL:
        AddFloatingLabel(m_ptContextMenu);
        break;
    case ID_GRAPH_LEGEND:
        ShowLegend();
        break;
    default:
        // Every host entry of this id, in order: to its window, or without
        // one to the sink.
        for (int i = 0; i < m_aMenuIds.GetSize(); i++) {
            if (m_aMenuIds[i] != nId)
                continue;
            if (m_aMenuWnds[i] != NULL)
                m_aMenuWnds[i]->SendMessage(WM_COMMAND, wParam, lParam);
            else
                NotifyApplication((UINT)wParam, (long)lParam);
        }
        break;
    }
    return CWnd::OnCommand(wParam, lParam);
}
