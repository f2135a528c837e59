// The demo host's own page of the graph's property sheet: the graph's title.
// The page only keeps the text; the host applies it when the graph tells it
// that OK was pressed (OnGraphPage with the page's identifier).
#pragma once

#include "afx/afxprop.h"

class CDemoPage : public CPropertyPage
{
public:
    CDemoPage();

    CString m_strTitle;   // the text the page shows, and after OK the new title

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
};
