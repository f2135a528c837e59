// CFloatEdit: keystroke filter for numbers in the locale's notation.
#include "sheet/FloatEdit.h"
#include "sheet/IntlString.h"
#include <mbctype.h>
#include <mbstring.h>
#include <stdio.h>
#include <string.h>

BEGIN_MESSAGE_MAP(CFloatEdit, CEdit)
    ON_WM_CHAR()
END_MESSAGE_MAP()

CFloatEdit::CFloatEdit(LCID lcid) : m_nCharBytes(0), m_nValid(0), m_lcid(lcid), m_nPrecision(7)
{
    memset(m_szChar, 0, sizeof(m_szChar));
    ReadLocaleSign(m_lcid, LOCALE_SDECIMAL, m_szDecimal);
    ReadLocaleSign(m_lcid, LOCALE_SNEGATIVESIGN, m_szNegative);
    m_strValid = "0123456789";
    m_strValid += m_szDecimal;
    m_strValid += m_szNegative;
    m_nValid = m_strValid.GetLength();
}

CFloatEdit::~CFloatEdit() {}

void CFloatEdit::SetValue(const double& dValue)
{
    char szBuffer[64];
    _snprintf(szBuffer, sizeof(szBuffer) - 1, "%.*g", m_nPrecision, dValue);
    szBuffer[sizeof(szBuffer) - 1] = '\0';
    SetWindowText(szBuffer);
}

int CFloatEdit::IsValidChar(const char* pszChar)
{
    const unsigned char* pChar = (const unsigned char*)pszChar;
    for (const unsigned char* p = (const unsigned char*)(LPCSTR)m_strValid; *p != '\0'; p = _mbsinc(p)) {
        if (_mbsncmp(pChar, p, 1) == 0)
            return 1;
    }
    return 0;
}

void CFloatEdit::OnBadInput()
{
    CWnd* pParent = GetParent();
    LRESULT lResult = 0;
    if (pParent != NULL)
        lResult = pParent->SendMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), FEN_BADINPUT), (LPARAM)m_hWnd);
    if (lResult != -1)
        ::MessageBeep((UINT)-1);
}

void CFloatEdit::OnChar(UINT nChar, UINT, UINT)
{
    // Control characters (backspace and the like) keep their editing role.
    if (nChar < 32) {
        Default();
        return;
    }
    const unsigned char byte = (unsigned char)(nChar & 0xFF);
    // The first byte of a double-byte character waits for its second.
    if (m_nCharBytes == 0 && _ismbblead(byte)) {
        m_szChar[0] = (char)byte;
        m_szChar[1] = '\0';
        m_nCharBytes = 1;
        return;
    }
    m_szChar[m_nCharBytes] = (char)byte;
    m_szChar[m_nCharBytes + 1] = '\0';
    const BOOL bValid = IsValidChar(m_szChar) != 0;
    char szChar[3];
    memcpy(szChar, m_szChar, sizeof(szChar));
    const int nHeld = m_nCharBytes;
    memset(m_szChar, 0, sizeof(m_szChar));
    m_nCharBytes = 0;
    if (!bValid) {
        OnBadInput();
        return;
    }
    // The edit sees the held-back first byte, then this one.
    const MSG* pMsg = AfxGetCurrentMessage();
    LPARAM lParam = pMsg->lParam;
    if (nHeld == 1)
        DefWindowProc(WM_CHAR, (WPARAM)(unsigned char)szChar[0], lParam);
    DefWindowProc(WM_CHAR, (WPARAM)byte, lParam);
}
