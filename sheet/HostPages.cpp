// Host pages of the property sheet: kept in order with the host's
// identifiers, and the configuration of the built-in pages.
#include "graph/GraphPrv.h"

int CGraphPrv::AddPropertyPage(CPropertyPage* pPage, DWORD dwId)
{
    if (pPage == NULL)
        return 0;
    m_aPropPages.Add(pPage);
    m_aPropPageFlags.Add(dwId);
    return GRAPH_OK;
}

int CGraphPrv::RemovePropertyPage(DWORD dwId)
{
    for (int i = 0; i < m_aPropPageFlags.GetSize(); i++) {
        if (m_aPropPageFlags[i] == dwId) {
            m_aPropPages.RemoveAt(i);
            m_aPropPageFlags.RemoveAt(i);
            return GRAPH_OK;
        }
    }
    return 0;
}

int CGraphPrv::SetPropertyPageConfiguration(long lConfig)
{
    m_lPropPageConfig = lConfig;
    return GRAPH_OK;
}
