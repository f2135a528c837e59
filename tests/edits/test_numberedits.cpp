// The locale's decimal sign in numbers (CIntlString), the keystroke filter
// of CFloatEdit, and the locale-aware number edit CIntlEdit.
#include "TestUtil.h"
#include "sheet/IntlString.h"
#include "sheet/FloatEdit.h"
#include "zpx/IntlEdit.h"
#include <vector>

namespace {

// A top-level parent for the edits that records the commands other than
// change notifications, as "code id hwnd", and answers them with m_lAnswer.
class Parent : public CWnd
{
public:
    Parent() { CreateEx(0, AfxRegisterWndClass(0), "", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 200, NULL, NULL); }
    LRESULT WindowProc(UINT nMsg, WPARAM wParam, LPARAM lParam) override
    {
        if (nMsg != WM_COMMAND || HIWORD(wParam) == EN_CHANGE || HIWORD(wParam) == EN_UPDATE)
            return CWnd::WindowProc(nMsg, wParam, lParam);
        m_commands.push_back(Str("%x %u %p", HIWORD(wParam), LOWORD(wParam), (void*)lParam));
        return m_lAnswer;
    }

    std::vector<std::string> m_commands;
    LRESULT m_lAnswer = 0;
};

const CRect rectEdit(10, 10, 200, 34);

} // namespace

TEST(IntlString, LocaleZeroIsTheUsersDefaultWhateverTheThreadsLocale)
{
    // The tests run under zh_CN: a point and a comma, where German has a
    // comma and a point.
    ThreadLocale locale(lcidGerman);
    CIntlString intl;
    EXPECT_EQ("0 . , -", Str("%lu %s %s %s", intl.m_lcid, intl.m_szDecimal, intl.m_szThousand, intl.m_szNegative));
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
    Parent parent;
    CFloatEdit edit(0);
    EXPECT_STREQ("0123456789.-", edit.m_strValid);
    EXPECT_EQ(7, edit.m_nPrecision);
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, rectEdit, &parent, 77));
    // Characters, not the number: signs and points anywhere are taken.
    Type(edit.m_hWnd, "-1.5.-2");
    EXPECT_EQ("-1.5.-2", TextOf(edit.m_hWnd));
    EXPECT_TRUE(parent.m_commands.empty());
    // Letters, the exponent, blanks and thousands separators are refused,
    // each with one notification that names the control.
    Type(edit.m_hWnd, "e ,x");
    EXPECT_EQ("-1.5.-2", TextOf(edit.m_hWnd));
    EXPECT_EQ(std::vector<std::string>(4, Str("%x 77 %p", FEN_BADINPUT, (void*)edit.m_hWnd)), parent.m_commands);
    // Control characters keep their editing role.
    Type(edit.m_hWnd, "\b\b");
    EXPECT_EQ("-1.5.", TextOf(edit.m_hWnd));
    // A parent that answers -1 takes the refusal over (no beep); the
    // character is refused all the same.
    parent.m_lAnswer = -1;
    Type(edit.m_hWnd, "y");
    EXPECT_EQ("-1.5.", TextOf(edit.m_hWnd));
    EXPECT_EQ(5u, parent.m_commands.size());
}

TEST(FloatEdit, CommaLocaleTakesTheCommaAndWritesPlainNotation)
{
    Parent parent;
    CFloatEdit edit(lcidGerman);
    EXPECT_STREQ("0123456789,-", edit.m_strValid);
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, rectEdit, &parent, 78));
    Type(edit.m_hWnd, "1,5.");
    EXPECT_EQ("1,5", TextOf(edit.m_hWnd));
    EXPECT_EQ(1u, parent.m_commands.size());
    // SetValue: seven significant digits (or the precision) in the runtime's notation.
    edit.SetValue(1.0 / 3.0);
    EXPECT_EQ("0.3333333", TextOf(edit.m_hWnd));
    edit.m_nPrecision = 3;
    edit.SetValue(-12345.678);
    EXPECT_EQ("-1.23e+004", TextOf(edit.m_hWnd));
}

TEST(IntlEdit, ShowsAndReadsTheLocalesNotation)
{
    Parent parent;
    CIntlEdit edit(lcidGerman);
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, rectEdit, &parent, 81));
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
    Parent parent;
    CIntlEdit edit(lcidGerman);
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, rectEdit, &parent, 82));
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
    EXPECT_TRUE(parent.m_commands.empty());
}
