// The locale's decimal sign in numbers (CIntlString), the keystroke filter
// of CFloatEdit, and the locale-aware number edit CIntlEdit.
#include "EditsTestUtil.h"
#include "sheet/IntlString.h"
#include "sheet/FloatEdit.h"
#include "zpx/IntlEdit.h"

namespace {

const CRect rectEdit(10, 10, 200, 34);

} // namespace

// ---------------------------------------------------------------------------
// CIntlString
// ---------------------------------------------------------------------------

TEST(IntlString, PointLocaleLeavesEverythingAlone)
{
    ThreadLocale locale(MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT));
    CIntlString intl;
    EXPECT_EQ(0u, intl.m_lcid);
    EXPECT_STREQ(".", intl.m_szDecimal);
    EXPECT_STREQ(",", intl.m_szThousand);
    EXPECT_STREQ("-", intl.m_szNegative);
    CString str = "-1.5e+003";
    intl.LocalizeDecimal(str);
    EXPECT_STREQ("-1.5e+003", str);
}

TEST(IntlString, CommaLocaleReplacesEveryPoint)
{
    ThreadLocale locale(lcidGerman);
    CIntlString intl;
    EXPECT_STREQ(",", intl.m_szDecimal);
    EXPECT_STREQ(".", intl.m_szThousand);
    EXPECT_STREQ("-", intl.m_szNegative);

    CString str = "1.2.3";
    intl.LocalizeDecimal(str);
    EXPECT_STREQ("1,2,3", str);
    CString strPlain = "12345";
    intl.LocalizeDecimal(strPlain);
    EXPECT_STREQ("12345", strPlain);

    char sz[32] = "-0.25";
    intl.LocalizeDecimal(sz);
    EXPECT_STREQ("-0,25", sz);
    char szNone[8] = "7";
    intl.LocalizeDecimal(szNone);
    EXPECT_STREQ("7", szNone);
}

TEST(IntlString, FollowsTheThreadLocaleAtConstruction)
{
    CIntlString before;
    {
        ThreadLocale locale(lcidGerman);
        CIntlString during;
        EXPECT_STREQ(",", during.m_szDecimal);
    }
    CIntlString after;
    EXPECT_STREQ(before.m_szDecimal, after.m_szDecimal);
}

// ---------------------------------------------------------------------------
// CFloatEdit
// ---------------------------------------------------------------------------

TEST(FloatEdit, ValidCharactersComeFromTheLocale)
{
    ThreadLocale locale(MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT));
    CFloatEdit edit(0);
    EXPECT_STREQ("0123456789.-", edit.m_strValid);
    EXPECT_EQ(12, edit.m_nValid);
    EXPECT_EQ(7, edit.m_nPrecision);
    CFloatEdit german(lcidGerman);
    EXPECT_STREQ("0123456789,-", german.m_strValid);
    EXPECT_EQ(1, german.IsValidChar(","));
    EXPECT_EQ(0, german.IsValidChar("."));
    EXPECT_EQ(0, german.IsValidChar("e"));
}

TEST(FloatEdit, RefusesWhatCannotBePartOfANumber)
{
    ThreadLocale locale(MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT));
    CommandRecorder parent;
    CFloatEdit edit(0);
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, rectEdit, CWnd::FromHandle(parent.m_hWnd), 77));
    parent.m_commands.clear();
    // Characters, not the number: signs and points anywhere are taken.
    Type(edit.m_hWnd, "-1.5.-2");
    EXPECT_EQ("-1.5.-2", TextOf(edit.m_hWnd));
    EXPECT_EQ(0, parent.Count(FEN_BADINPUT));
    // Letters, the exponent, blanks and thousands separators are refused,
    // each with one notification that names the control.
    Type(edit.m_hWnd, "e ,x");
    EXPECT_EQ("-1.5.-2", TextOf(edit.m_hWnd));
    ASSERT_EQ(4, parent.Count(FEN_BADINPUT));
    EXPECT_EQ(77, LOWORD(parent.m_commands[0].wParam));
    EXPECT_EQ((LPARAM)edit.m_hWnd, parent.m_commands[0].lParam);
    // Control characters keep their editing role.
    Type(edit.m_hWnd, "\b\b");
    EXPECT_EQ("-1.5.", TextOf(edit.m_hWnd));
    EXPECT_EQ(4, parent.Count(FEN_BADINPUT));
    // A parent that answers -1 takes the refusal over (no beep); the
    // character is refused all the same.
    parent.m_lAnswer = -1;
    Type(edit.m_hWnd, "y");
    EXPECT_EQ("-1.5.", TextOf(edit.m_hWnd));
    EXPECT_EQ(5, parent.Count(FEN_BADINPUT));
}

TEST(FloatEdit, CommaLocaleTypesOneAndAHalfWithTheComma)
{
    ThreadLocale locale(lcidGerman);
    CommandRecorder parent;
    CFloatEdit edit(0);
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, rectEdit, CWnd::FromHandle(parent.m_hWnd), 78));
    Type(edit.m_hWnd, "1,5");
    EXPECT_EQ("1,5", TextOf(edit.m_hWnd));
    EXPECT_EQ(0, parent.Count(FEN_BADINPUT));
    Type(edit.m_hWnd, ".");
    EXPECT_EQ("1,5", TextOf(edit.m_hWnd));
    EXPECT_EQ(1, parent.Count(FEN_BADINPUT));
}

TEST(FloatEdit, DoubleByteCharacterIsRefusedOnceAndDigitsWorkAfterIt)
{
    const CString strWide = AnsiOf(L"\u4E2D");
    if (strWide.GetLength() != 2 || !::IsDBCSLeadByte((BYTE)strWide[0]))
        GTEST_SKIP() << "needs a double-byte code page";
    CommandRecorder parent;
    CFloatEdit edit(0);
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, rectEdit, CWnd::FromHandle(parent.m_hWnd), 79));
    Type(edit.m_hWnd, "1");
    ::SendMessageA(edit.m_hWnd, WM_CHAR, (BYTE)strWide[0], 1);
    EXPECT_EQ(1, edit.m_nCharBytes);   // held back, no notification yet
    EXPECT_EQ(0, parent.Count(FEN_BADINPUT));
    ::SendMessageA(edit.m_hWnd, WM_CHAR, (BYTE)strWide[1], 1);
    EXPECT_EQ(0, edit.m_nCharBytes);
    EXPECT_EQ(1, parent.Count(FEN_BADINPUT));
    Type(edit.m_hWnd, "23");
    EXPECT_EQ("123", TextOf(edit.m_hWnd));
    EXPECT_EQ(1, parent.Count(FEN_BADINPUT));
}

TEST(FloatEdit, SetValueWritesSevenSignificantDigitsInPlainNotation)
{
    ThreadLocale locale(lcidGerman);
    CommandRecorder parent;
    CFloatEdit edit(0);
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, rectEdit, CWnd::FromHandle(parent.m_hWnd), 80));
    edit.SetValue(1.0 / 3.0);
    EXPECT_EQ("0.3333333", TextOf(edit.m_hWnd));
    edit.m_nPrecision = 3;
    edit.SetValue(-12345.678);
    EXPECT_EQ("-1.23e+004", TextOf(edit.m_hWnd));
}

// ---------------------------------------------------------------------------
// CIntlEdit
// ---------------------------------------------------------------------------

TEST(IntlEdit, ShowsAndReadsTheLocalesNotation)
{
    CommandRecorder parent;
    CIntlEdit edit(lcidGerman);
    EXPECT_EQ(lcidGerman, edit.m_lcid);
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, rectEdit, CWnd::FromHandle(parent.m_hWnd), 81));
    edit.SetValue(-1.5);
    EXPECT_EQ("-1,5", TextOf(edit.m_hWnd));
    double d = 0.0;
    EXPECT_TRUE(edit.GetValue(d));
    EXPECT_EQ(-1.5, d);

    struct Case
    {
        const char* pszText;
        bool bNumber;
        double dValue;
    };
    const Case aCases[] = {
        { "2,25", true, 2.25 }, { " 7 ", true, 7.0 }, { "1e3", true, 1000.0 }, { "-0,5e-1", true, -0.05 },
        { "2.25", false, 0.0 }, { "1.000,5", false, 0.0 }, { "", false, 0.0 }, { "1,5x", false, 0.0 },
        { "-", false, 0.0 }, { "1e999", false, 0.0 },
    };
    for (const Case& c : aCases) {
        ::SetWindowTextA(edit.m_hWnd, c.pszText);
        double dValue = 123.0;
        EXPECT_EQ(c.bNumber, edit.GetValue(dValue) != 0) << c.pszText;
        EXPECT_EQ(c.bNumber ? c.dValue : 123.0, dValue) << c.pszText;
    }
    // A text longer than any number is none.
    ::SetWindowTextA(edit.m_hWnd, std::string(300, '1').c_str());
    d = 5.0;
    EXPECT_FALSE(edit.GetValue(d));
    EXPECT_EQ(5.0, d);
}

TEST(IntlEdit, TakesOnlyKeystrokesOfANumber)
{
    CommandRecorder parent;
    CIntlEdit edit(lcidGerman);
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, rectEdit, CWnd::FromHandle(parent.m_hWnd), 82));
    Type(edit.m_hWnd, "-1,5e+2");
    EXPECT_EQ("-1,5e+2", TextOf(edit.m_hWnd));
    Type(edit.m_hWnd, ".x ");
    EXPECT_EQ("-1,5e+2", TextOf(edit.m_hWnd));
    Type(edit.m_hWnd, "\b\b");
    EXPECT_EQ("-1,5e", TextOf(edit.m_hWnd));
    // Nothing goes to the parent: the control beeps and says nothing.
    EXPECT_EQ(0u, parent.m_commands.size() - (size_t)parent.Count(EN_CHANGE) - (size_t)parent.Count(EN_UPDATE));

    const CString strWide = AnsiOf(L"\u4E2D");
    if (strWide.GetLength() == 2 && ::IsDBCSLeadByte((BYTE)strWide[0])) {
        ::SendMessageA(edit.m_hWnd, WM_CHAR, (BYTE)strWide[0], 1);
        ::SendMessageA(edit.m_hWnd, WM_CHAR, (BYTE)strWide[1], 1);
        Type(edit.m_hWnd, "3");
        EXPECT_EQ("-1,5e3", TextOf(edit.m_hWnd));
    }
}
