// The colour well: twenty colours in four columns, and below them a button
// that opens the system's colour dialog for any other colour.
#include "sheet/Wells.h"
#include "afx/afxdlgs.h"
#include "resources/resource.h"

IMPLEMENT_DYNAMIC(CColorWell, CPickerWell)

BEGIN_MESSAGE_MAP(CColorWell, CPickerWell)
    ON_WM_CREATE()
    ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

namespace {

const COLORREF s_crWell[20] = {
    0xFFFFFF, 0x000000, 0xC0C0C0, 0x808080, 0x0000FF, 0x000080, 0x00FFFF, 0x008080, 0x00FF00, 0x008000,
    0xFFFF00, 0x808000, 0xFF0000, 0x800000, 0xFF00FF, 0x800080, 0xC0DCC0, 0xF0CAA6, 0xFFFFFF, 0xC0C0C0,
};

} // namespace

CColorWell::CColorWell() : CPickerWell(20, "Color Well"), m_crChosen(0)
{
    memcpy(m_pColors, s_crWell, sizeof(m_pColors));
}

CRect CColorWell::GetCellRect(int nCell) const
{
    const int left = 4 + 18 * (nCell % 4), top = 4 + 18 * (nCell / 4);
    return CRect(left, top, left + 16, top + 16);
}

int CColorWell::HitTest(CPoint point) const
{
    return (point.y - 3) / 18 * 4 + (point.x - 3) / 18;
}

int CColorWell::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CPickerWell::OnCreate(lpCreateStruct) == -1)
        return -1;
    m_strOther.LoadString(IDS_OTHER_COLOR);
    CRect rectClient;
    GetClientRect(&rectClient);
    m_rectOther.SetRect(4, rectClient.bottom - 22, 74, rectClient.bottom - 4);
    return 0;
}

void CColorWell::DrawCell(CDC* pDC, int nCell, const CRect& rectCell)
{
    CRect rect = rectCell;
    rect.DeflateRect(2, 2);
    CBrush brush(m_pColors[nCell]);
    pDC->FillRect(&rect, &brush);
}

void CColorWell::DrawExtras(CDC* pDC)
{
    CRect rectLine(m_rectGrid.left, m_rectOther.top - 5, m_rectGrid.right, m_rectOther.top - 3);
    pDC->DrawEdge(&rectLine, EDGE_ETCHED, BF_BOTTOM);

    CRect rectButton = m_rectOther;
    pDC->DrawEdge(&rectButton, BDR_RAISEDINNER, BF_LEFT | BF_TOP);
    pDC->DrawEdge(&rectButton, EDGE_RAISED, BF_RIGHT | BF_BOTTOM);

    CSaveDCGuard guard(pDC);
    pDC->SelectStockObject(DEFAULT_GUI_FONT);
    pDC->SetBkMode(TRANSPARENT);
    CRect rectText = m_rectOther;
    rectText.top += 1;
    pDC->DrawText(m_strOther, &rectText, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

void CColorWell::OnLButtonDown(UINT, CPoint point)
{
    BOOL bChosen = FALSE;
    COLORREF crColor = 0;
    if (m_rectOther.PtInRect(point)) {
        // The well steps aside while the dialog is up, and stays alive
        // although it loses the focus.
        m_bInDialog = TRUE;
        ShowWindow(SW_HIDE);
        CColorDialog dlg(0, CC_FULLOPEN, m_pButton);
        if (dlg.DoModal() == IDOK) {
            bChosen = TRUE;
            crColor = dlg.GetColor();
        }
    } else if (m_nHotCell >= 0) {
        bChosen = TRUE;
        crColor = m_pColors[m_nHotCell];
    }
    ChooseAndClose(bChosen, crColor);
}
