// The locale's decimal sign in numbers (CIntlString), the keystroke filter
// of CFloatEdit, and the locale-aware number edit CIntlEdit.
#include "TestUtil.h"
#include "sheet/IntlString.h"
#include "sheet/FloatEdit.h"
#include "zpx/IntlEdit.h"
#include <vector>

namespace {

// A plain parent window that records the WM_COMMAND messages of its
// children and answers them with m_lAnswer.
class CommandRecorder
{
public:
    CommandRecorder()
    {
        WNDCLASSA wc;
        memset(&wc, 0, sizeof(wc));
        wc.lpfnWndProc = Proc;
        wc.hInstance = ::GetModuleHandleA(NULL);
        wc.lpszClassName = "ZPXTestCommandRecorder";
        ::RegisterClassA(&wc);
        m_hWnd = ::CreateWindowExA(0, wc.lpszClassName, "", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 200, NULL,
                                   NULL, wc.hInstance, NULL);
        ::SetWindowLongPtrA(m_hWnd, GWLP_USERDATA, (LONG_PTR)this);
    }
    ~CommandRecorder() { ::DestroyWindow(m_hWnd); }

    CWnd* Wnd() { return CWnd::FromHandle(m_hWnd); }
    // FEN_BADINPUT commands, each as "id hwnd".
    std::vector<std::string> BadInput() const
    {
        std::vector<std::string> v;
        for (const MSG& m : m_commands)
            if (HIWORD(m.wParam) == FEN_BADINPUT)
                v.push_back(Str("%u %p", LOWORD(m.wParam), (void*)m.lParam));
        return v;
    }
    // Commands other than the edit's own change notifications.
    int Others() const
    {
        int n = 0;
        for (const MSG& m : m_commands)
            n += HIWORD(m.wParam) != EN_CHANGE && HIWORD(m.wParam) != EN_UPDATE;
        return n;
    }

    HWND m_hWnd;
    LRESULT m_lAnswer = 0;
    std::vector<MSG> m_commands;

private:
    static LRESULT CALLBACK Proc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
    {
        CommandRecorder* pThis = (CommandRecorder*)::GetWindowLongPtrA(hWnd, GWLP_USERDATA);
        if (nMsg != WM_COMMAND || pThis == NULL)
            return ::DefWindowProcA(hWnd, nMsg, wParam, lParam);
        pThis->m_commands.push_back(MSG{ hWnd, nMsg, wParam, lParam, 0, {} });
        return pThis->m_lAnswer;
    }
};

const CRect rectEdit(10, 10, 200, 34);

} // namespace

TEST(IntlString, LocaleZeroIsTheUsersDefaultWhateverTheThreadsLocale)
{
    char szDecimal[8], szThousand[8];
    ASSERT_GT(::GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, szDecimal, sizeof(szDecimal)), 0);
    ASSERT_GT(::GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, szThousand, sizeof(szThousand)), 0);
    ASSERT_STREQ(".", szDecimal);   // the tests run under zh_CN
    ThreadLocale locale(lcidGerman);
    CIntlString intl;
    EXPECT_EQ(0u, intl.m_lcid);
    EXPECT_STREQ(szDecimal, intl.m_szDecimal);
    EXPECT_STREQ(szThousand, intl.m_szThousand);
    EXPECT_STREQ("-", intl.m_szNegative);
    // A point locale leaves the text alone.
    CString str = "-1.5e+003";
    intl.LocalizeDecimal(str);
    EXPECT_STREQ("-1.5e+003", str);
    // A comma replaces every point, in both forms.
    strcpy(intl.m_szDecimal, ",");
    str = "1.2.3";
    intl.LocalizeDecimal(str);
    EXPECT_STREQ("1,2,3", str);
    char sz[32] = "-0.25";
    intl.LocalizeDecimal(sz);
    EXPECT_STREQ("-0,25", sz);
}

TEST(FloatEdit, RefusesWhatCannotBePartOfANumber)
{
    // Locale 0 is the user's (zh_CN, with a point), not the thread's.
    ThreadLocale locale(lcidGerman);
    CommandRecorder parent;
    CFloatEdit edit(0);
    EXPECT_STREQ("0123456789.-", edit.m_strValid);
    EXPECT_EQ(7, edit.m_nPrecision);
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, rectEdit, parent.Wnd(), 77));
    // Characters, not the number: signs and points anywhere are taken.
    Type(edit.m_hWnd, "-1.5.-2");
    EXPECT_EQ("-1.5.-2", TextOf(edit.m_hWnd));
    EXPECT_TRUE(parent.BadInput().empty());
    // Letters, the exponent, blanks and thousands separators are refused,
    // each with one notification that names the control.
    Type(edit.m_hWnd, "e ,x");
    EXPECT_EQ("-1.5.-2", TextOf(edit.m_hWnd));
    EXPECT_EQ(std::vector<std::string>(4, Str("77 %p", (void*)edit.m_hWnd)), parent.BadInput());
    // Control characters keep their editing role.
    Type(edit.m_hWnd, "\b\b");
    EXPECT_EQ("-1.5.", TextOf(edit.m_hWnd));
    // A parent that answers -1 takes the refusal over (no beep); the
    // character is refused all the same.
    parent.m_lAnswer = -1;
    Type(edit.m_hWnd, "y");
    EXPECT_EQ("-1.5.", TextOf(edit.m_hWnd));
    EXPECT_EQ(5u, parent.BadInput().size());
}

TEST(FloatEdit, CommaLocaleTakesTheCommaAndWritesPlainNotation)
{
    CommandRecorder parent;
    CFloatEdit edit(lcidGerman);
    EXPECT_STREQ("0123456789,-", edit.m_strValid);
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, rectEdit, parent.Wnd(), 78));
    Type(edit.m_hWnd, "1,5.");
    EXPECT_EQ("1,5", TextOf(edit.m_hWnd));
    EXPECT_EQ(1u, parent.BadInput().size());
    // SetValue: seven significant digits (or the precision) in the runtime's notation.
    edit.SetValue(1.0 / 3.0);
    EXPECT_EQ("0.3333333", TextOf(edit.m_hWnd));
    edit.m_nPrecision = 3;
    edit.SetValue(-12345.678);
    EXPECT_EQ("-1.23e+004", TextOf(edit.m_hWnd));
}

TEST(IntlEdit, ShowsAndReadsTheLocalesNotation)
{
    CommandRecorder parent;
    CIntlEdit edit(lcidGerman);
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, rectEdit, parent.Wnd(), 81));
    edit.SetValue(-1.5);
    EXPECT_EQ("-1,5", TextOf(edit.m_hWnd));
    const struct
    {
        std::string str;
        bool bNumber;
        double dValue;
    } cases[] = {
        { "-1,5", true, -1.5 },   { "2,25", true, 2.25 },   { " 7 ", true, 7.0 },  { "1e3", true, 1000.0 },
        { "-0,5e-1", true, -0.05 }, { "2.25", false, 0 },   { "1.000,5", false, 0 }, { "", false, 0 },
        { "1,5x", false, 0 },     { "-", false, 0 },        { "1e999", false, 0 }, { std::string(300, '1'), false, 0 },
    };
    for (const auto& c : cases) {
        ::SetWindowTextA(edit.m_hWnd, c.str.c_str());
        double dValue = 123.0;
        EXPECT_EQ(c.bNumber, edit.GetValue(dValue) != 0) << c.str;
        EXPECT_EQ(c.bNumber ? c.dValue : 123.0, dValue) << c.str;
    }
}

TEST(IntlEdit, TakesOnlyKeystrokesOfANumber)
{
    CommandRecorder parent;
    CIntlEdit edit(lcidGerman);
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, rectEdit, parent.Wnd(), 82));
    Type(edit.m_hWnd, "-1,5e+2.x \b\b");
    EXPECT_EQ("-1,5e", TextOf(edit.m_hWnd));
    // A double-byte character is refused whole.
    const CString strWide = AnsiOf(L"\u4E2D");
    if (strWide.GetLength() == 2 && ::IsDBCSLeadByte((BYTE)strWide[0])) {
        Type(edit.m_hWnd, strWide);
        Type(edit.m_hWnd, "3");
        EXPECT_EQ("-1,5e3", TextOf(edit.m_hWnd));
    }
    // Nothing goes to the parent: the control beeps and says nothing.
    EXPECT_EQ(0, parent.Others());
}
