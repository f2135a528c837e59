// Dialog data exchange: values between members and controls, the parsing of
// numbers typed by the user, and the range checks with their messages.
#include "afx/afxdialog.h"
#include "afx/afxapp.h"
#include "resources/resource.h"
#include <float.h>
#include <limits.h>
#include <stdio.h>
#include <stdlib.h>
#include <errno.h>

namespace {

bool IsBlank(char ch)
{
    return ch == ' ' || ch == '\t';
}

// A whole number with blanks around it and nothing else.
bool ParseInt(LPCSTR lpsz, int& nValue)
{
    while (IsBlank(*lpsz))
        lpsz++;
    char* pEnd = NULL;
    errno = 0;
    long lValue = strtol(lpsz, &pEnd, 10);
    if (pEnd == lpsz || errno == ERANGE || lValue < INT_MIN || lValue > INT_MAX)
        return false;
    while (IsBlank(*pEnd))
        pEnd++;
    if (*pEnd != '\0')
        return false;
    nValue = (int)lValue;
    return true;
}

// A number in C notation with blanks around it and nothing else.
bool ParseDouble(LPCSTR lpsz, double& dValue)
{
    while (IsBlank(*lpsz))
        lpsz++;
    char* pEnd = NULL;
    double d = strtod(lpsz, &pEnd);
    if (pEnd == lpsz)
        return false;
    while (IsBlank(*pEnd))
        pEnd++;
    if (*pEnd != '\0')
        return false;
    dValue = d;
    return true;
}

// Sets a control's text only when it differs, so that it does not flicker.
void SetWindowTextIfChanged(HWND hWnd, LPCSTR lpszNew)
{
    CString strOld;
    CWnd::FromHandle(hWnd)->GetWindowText(strOld);
    if (strOld != lpszNew)
        ::SetWindowTextA(hWnd, lpszNew);
}

CString WindowText(HWND hWnd)
{
    CString str;
    CWnd::FromHandle(hWnd)->GetWindowText(str);
    return str;
}

// Tells the user that the field needs a value in a range, then fails.
void FailRange(CDataExchange* pDX, UINT nIDPrompt, LPCSTR lpszMin, LPCSTR lpszMax)
{
    CString strPrompt;
    AfxFormatString2(strPrompt, nIDPrompt, lpszMin, lpszMax);
    AfxMessageBox(strPrompt, MB_ICONEXCLAMATION, nIDPrompt);
    pDX->Fail();
}

} // namespace

CDataExchange::CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
    : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd),
      m_hWndLastControl(NULL), m_bEditLastControl(FALSE)
{
}

HWND CDataExchange::PrepareCtrl(int nIDC)
{
    HWND hWndCtrl = ::GetDlgItem(m_pDlgWnd->m_hWnd, nIDC);
    ASSERT(hWndCtrl != NULL);
    m_hWndLastControl = hWndCtrl;
    m_bEditLastControl = FALSE;
    return hWndCtrl;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC)
{
    HWND hWndCtrl = PrepareCtrl(nIDC);
    m_bEditLastControl = TRUE;
    return hWndCtrl;
}

void CDataExchange::Fail()
{
    if (!m_bSaveAndValidate) {
        TRACE("CDataExchange::Fail while filling the controls\n");
    } else if (m_hWndLastControl != NULL) {
        ::SetFocus(m_hWndLastControl);
        if (m_bEditLastControl)
            ::SendMessageA(m_hWndLastControl, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}

void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl)
{
    if (rControl.m_hWnd != NULL)
        return;
    HWND hWndCtrl = pDX->PrepareCtrl(nIDC);
    if (hWndCtrl == NULL || !rControl.SubclassWindow(hWndCtrl)) {
        TRACE("DDX_Control: control %d cannot be bound\n", nIDC);
        AfxThrowResourceException();
    }
}

void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value)
{
    HWND hWndCtrl = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = (int)::SendMessageA(hWndCtrl, BM_GETCHECK, 0, 0);
    else
        ::SendMessageA(hWndCtrl, BM_SETCHECK, (WPARAM)value, 0);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value)
{
    HWND hWndCtrl = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = WindowText(hWndCtrl);
    else
        SetWindowTextIfChanged(hWndCtrl, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value)
{
    HWND hWndCtrl = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        if (!ParseInt(WindowText(hWndCtrl), value)) {
            AfxMessageBox(AFX_IDP_PARSE_INT, MB_ICONEXCLAMATION);
            pDX->Fail();
        }
    } else {
        char szText[32];
        _snprintf(szText, sizeof(szText) - 1, "%d", value);
        szText[sizeof(szText) - 1] = '\0';
        SetWindowTextIfChanged(hWndCtrl, szText);
    }
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value)
{
    HWND hWndCtrl = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        if (!ParseDouble(WindowText(hWndCtrl), value)) {
            AfxMessageBox(AFX_IDP_PARSE_REAL, MB_ICONEXCLAMATION);
            pDX->Fail();
        }
    } else {
        char szText[64];
        _snprintf(szText, sizeof(szText) - 1, "%.*g", DBL_DIG, value);
        szText[sizeof(szText) - 1] = '\0';
        SetWindowTextIfChanged(hWndCtrl, szText);
    }
}

void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal)
{
    ASSERT(minVal <= maxVal);
    if (!pDX->m_bSaveAndValidate || (value >= minVal && value <= maxVal))
        return;
    char szMin[32], szMax[32];
    _snprintf(szMin, sizeof(szMin) - 1, "%d", minVal);
    _snprintf(szMax, sizeof(szMax) - 1, "%d", maxVal);
    szMin[sizeof(szMin) - 1] = szMax[sizeof(szMax) - 1] = '\0';
    FailRange(pDX, AFX_IDP_PARSE_INT_RANGE, szMin, szMax);
}

void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, double const& value, double minVal, double maxVal)
{
    ASSERT(minVal <= maxVal);
    if (!pDX->m_bSaveAndValidate || (value >= minVal && value <= maxVal))
        return;
    char szMin[64], szMax[64];
    _snprintf(szMin, sizeof(szMin) - 1, "%.*g", DBL_DIG, minVal);
    _snprintf(szMax, sizeof(szMax) - 1, "%.*g", DBL_DIG, maxVal);
    szMin[sizeof(szMin) - 1] = szMax[sizeof(szMax) - 1] = '\0';
    FailRange(pDX, AFX_IDP_PARSE_REAL_RANGE, szMin, szMax);
}
