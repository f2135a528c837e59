#include "demo/DemoPage.h"
#include "demo/demo_resource.h"

CDemoPage::CDemoPage() : CPropertyPage(IDD_DEMO_PAGE)
{
}

void CDemoPage::DoDataExchange(CDataExchange* pDX)
{
    CPropertyPage::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_DEMO_TITLE, m_strTitle);
}
