// The context menu's configuration and the host's own entries: four parallel
// arrays of text, command id, position and target window.
#include "graph/GraphPrv.h"

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
