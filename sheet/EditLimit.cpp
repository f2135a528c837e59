// CEditLimit: the inline editor of an axis limit.
#include "sheet/EditLimit.h"
#include "graph/GraphPrv.h"
#include "resources/resource.h"
#include <math.h>
#include <stdlib.h>
#include <string.h>

namespace {

// The largest float: a limit beyond it cannot be drawn.
const double dLargestFloat = 3.4028234663852886e38;

} // namespace

BEGIN_MESSAGE_MAP(CEditLimit, CEdit)
    ON_WM_CREATE()
    ON_WM_CHAR()
    ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

CEditLimit::CEditLimit(CGraphPrv* pGraph) : m_pGraph(pGraph) {}

CEditLimit::~CEditLimit() {}

void CEditLimit::PostNcDestroy()
{
    // The window went without the box closing itself (its graph was
    // destroyed): the object goes with it.
    delete this;
}

int CEditLimit::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    int nResult = CEdit::OnCreate(lpCreateStruct);
    if (nResult != -1) {
        GetWindowRect(&m_rectStart);
        m_pGraph->ScreenToClient(&m_rectStart);
    }
    return nResult;
}

void CEditLimit::OnChar(UINT nChar, UINT, UINT)
{
    Default();
    if (nChar == VK_RETURN) {
        // Losing the focus closes the box; this object is gone afterwards.
        CGraphPrv* pGraph = m_pGraph;
        pGraph->SetFocus();
        return;
    }
    if (nChar == VK_ESCAPE) {
        m_pGraph->Replot();
        delete this;
        return;
    }
    FitToText();
}

void CEditLimit::OnKillFocus(CWnd* pNewWnd)
{
    CEdit::OnKillFocus(pNewWnd);
    ApplyText();
    CGraphPrv* pGraph = m_pGraph;
    pGraph->Replot();
    pGraph->NotifyApplication((int)GN_LIMITS);
    delete this;
}

void CEditLimit::FitToText()
{
    TEXTMETRIC tm;
    {
        CClientDC dc(this);
        dc.GetTextMetrics(&tm);
    }
    char szLine[nLineBuffer + 1];
    int nLength = GetLine(0, szLine, nLineBuffer);
    if (nLength < 0)
        nLength = 0;
    const int nWanted = (nLength + 2) * tm.tmAveCharWidth;

    CRect rect;
    GetWindowRect(&rect);
    m_pGraph->ScreenToClient(&rect);
    const int d = rect.Width() - nWanted;
    switch (GetDlgCtrlID()) {
    case IDC_LIMIT_EDIT_X_MIN:
    case IDC_LIMIT_EDIT_X_MAX:
        rect.left += d / 2;
        rect.right -= d / 2;
        break;
    case IDC_LIMIT_EDIT_YLEFT_MAX:
    case IDC_LIMIT_EDIT_YLEFT_MIN:
        rect.left += d;
        break;
    default:
        break;
    }
    // The box never gets narrower than it was made.
    if (rect.Width() < m_rectStart.Width())
        rect = m_rectStart;
    MoveWindow(&rect, TRUE);
}

BOOL CEditLimit::ParseLimitText(const char* pszText, int nLength, double& dValue)
{
    // A text that fills the whole buffer may go on beyond it: not a number.
    if (nLength <= 0 || nLength >= nLineBuffer)
        return FALSE;
    char szText[nLineBuffer + 1];
    memcpy(szText, pszText, (size_t)nLength);
    szText[nLength] = '\0';

    // A text of blanks only reads as 0: strtod finds no number and gives 0
    // with the end at the start, and nothing but blanks follows.
    char* pszEnd = szText;
    double d = strtod(szText, &pszEnd);
    if (d > dLargestFloat || !isfinite(d))
        return FALSE;
    while (*pszEnd == ' ')
        ++pszEnd;
    if (*pszEnd != '\0')
        return FALSE;
    dValue = d;
    return TRUE;
}

void CEditLimit::ApplyText()
{
    char szLine[nLineBuffer + 1];
    int nLength = GetLine(0, szLine, nLineBuffer);
    double dValue = 0.0;
    if (!ParseLimitText(szLine, nLength, dValue))
        return;

    const int nID = GetDlgCtrlID();
    const BOOL bX = nID == IDC_LIMIT_EDIT_X_MIN || nID == IDC_LIMIT_EDIT_X_MAX;
    const int nAxis = (nID == IDC_LIMIT_EDIT_YRIGHT_MAX || nID == IDC_LIMIT_EDIT_YRIGHT_MIN) ? 1 : 0;
    // The limit at the minimum field of the axis is the one edited.
    const BOOL bMinField = nID == IDC_LIMIT_EDIT_X_MIN || nID == IDC_LIMIT_EDIT_YLEFT_MIN ||
                           nID == IDC_LIMIT_EDIT_YRIGHT_MIN;
    const BOOL bOrder = (m_pGraph->m_dwStyle & (bX ? GS_XLIMITORDER : GS_YLIMITORDER)) != 0;

    double dMin = 0.0, dMax = 0.0;
    if (bX)
        m_pGraph->GetXAxisLimits(&dMin, &dMax);
    else
        m_pGraph->GetYAxisLimits(&dMin, &dMax, nAxis);
    if (bMinField)
        dMin = dValue;
    else
        dMax = dValue;
    // With the order bit the smaller value goes first.
    if (bOrder && dMin > dMax) {
        double dTemp = dMin;
        dMin = dMax;
        dMax = dTemp;
    }
    if (bX)
        m_pGraph->SetXAxisLimits(dMin, dMax);
    else
        m_pGraph->SetYAxisLimits(dMin, dMax, nAxis);
}
