// Tests of CString: construction from nothing, copies that stay independent,
// and searches that respect double-byte characters of the ANSI code page.
#include "gtest/gtest.h"
#include "afx/afx.h"

namespace {

// Double-byte characters of code page 936 whose trail byte is an ASCII
// character: "\xD5\x5C" ends in '\\', "\xB0\x40" in '@'.
const char kTrailBackslash[] = "\xD5\x5C";
const char kTrailAt[] = "\xB0\x40";

class CStringDbcs : public ::testing::Test
{
protected:
    void SetUp() override
    {
        // The searches below are only meaningful where these are characters:
        // one UTF-16 unit each, and not the default character.
        ASSERT_EQ(936u, ::GetACP()) << "run with LC_ALL=zh_CN.UTF-8";
        for (const char* psz : { kTrailBackslash, kTrailAt }) {
            WCHAR wsz[4] = {};
            ASSERT_EQ(1, ::MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, psz, 2, wsz, 4));
            ASSERT_NE(L'?', wsz[0]);
        }
    }
};

} // namespace

TEST(CStringValue, NullAndIndependentCopies)
{
    EXPECT_STREQ("", CString((LPCSTR)NULL));
    EXPECT_EQ(0, CString((LPCSTR)NULL).GetLength());
    // A character changed in one string, the way a decimal sign is put in,
    // changes no copy of it.
    CString a("1.5");
    CString b(a);
    CString c;
    c = a;
    a.SetAt(1, ',');
    c = c;
    EXPECT_STREQ("1,5", a);
    EXPECT_STREQ("1.5", b);
    EXPECT_STREQ("1.5", c);
}

TEST_F(CStringDbcs, FindSkipsTrailBytes)
{
    // "<D55C>a\b": the only real backslash is at byte 3.
    CString s = CString(kTrailBackslash) + "a\\b";
    EXPECT_EQ(3, s.Find('\\'));
    EXPECT_EQ(-1, CString(kTrailBackslash).Find('\\'));
    EXPECT_EQ(-1, s.Find((char)0xD5));   // a lead byte alone is no character
    CString t = CString("x") + kTrailAt + "@";
    EXPECT_EQ(3, t.Find("@"));
    EXPECT_EQ(1, t.Find(kTrailAt));
    EXPECT_EQ(-1, CString(kTrailAt).Find("@"));
    EXPECT_EQ(0, t.Find(""));
    // A string that ends in a lone lead byte is searched to its end and no further.
    CString u("a\xD5");
    EXPECT_EQ(-1, u.Find("x"));
    EXPECT_EQ(1, u.Find("\xD5"));
}
