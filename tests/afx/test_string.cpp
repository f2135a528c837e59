// Tests of CString: value semantics, construction from nothing, joining
// (also with itself), the clamping of Mid/Left/Right, searches and
// comparisons that respect double-byte characters of the ANSI code page,
// formatting, and loading through the resource chain.
#include "gtest/gtest.h"
#include "afx/afx.h"

#include <string.h>
#include <string>

namespace {

// Double-byte characters of code page 936 whose trail byte is an ASCII
// character: "\xD5\x5C" ends in '\\', "\xB0\x40" in '@', "\x81\x61" in 'a',
// "\x81\x41" in 'A'.
const char kTrailBackslash[] = "\xD5\x5C";
const char kTrailAt[] = "\xB0\x40";
const char kTrailLowerA[] = "\x81\x61";
const char kTrailUpperA[] = "\x81\x41";

class CStringDbcs : public ::testing::Test
{
protected:
    void SetUp() override
    {
        // The searches below are only meaningful where these are characters:
        // one UTF-16 unit each, and not the default character.
        ASSERT_EQ(936u, ::GetACP()) << "run with LC_ALL=zh_CN.UTF-8";
        for (const char* psz : { kTrailBackslash, kTrailAt, kTrailLowerA, kTrailUpperA }) {
            WCHAR wsz[4] = {};
            ASSERT_EQ(1, ::MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, psz, 2, wsz, 4));
            ASSERT_NE(L'?', wsz[0]);
        }
    }
};

std::string Bytes(const CString& s)
{
    return std::string((LPCSTR)s, (size_t)s.GetLength());
}

} // namespace

// ---------------------------------------------------------------------------
// Construction and value semantics
// ---------------------------------------------------------------------------

TEST(CStringValue, EmptyNullAndIndependentCopies)
{
    const CString empties[] = { CString(), CString((LPCSTR)NULL), CString("abc", 0) };
    for (const CString& s : empties) {
        EXPECT_EQ(0, s.GetLength());
        ASSERT_NE(nullptr, (LPCSTR)s);
        EXPECT_EQ('\0', ((LPCSTR)s)[0]);
    }
    EXPECT_STREQ("zzz", CString('z', 3));
    EXPECT_EQ(3, CString("abcdef", 3).GetLength());

    CString a("hello");
    CString b(a);
    CString c;
    c = a;
    a.SetAt(0, 'J');
    strcpy(b.GetBuffer(10), "world");   // writing through a buffer changes only that string
    b.ReleaseBuffer();
    c = c;
    EXPECT_EQ("Jello world hello", Bytes(a + ' ' + b + " " + c));
    a = (LPCSTR)NULL;
    EXPECT_TRUE(a.IsEmpty());
}

TEST(CStringValue, JoiningAlsoWithItself)
{
    CString a("ab");
    EXPECT_STREQ("xab", 'x' + a);
    EXPECT_STREQ("--ab", "--" + a);
    a += (LPCSTR)NULL;
    a += CString();
    EXPECT_STREQ("ab", a);
    // Itself, or a tail of itself, as the argument.
    CString s("abc");
    s += s;
    EXPECT_STREQ("abcabc", s);
    s += (LPCSTR)s + 3;   // a tail of itself
    EXPECT_STREQ("abcabcabc", s);
    CString u("012345");
    u = (LPCSTR)u + 2;   // a part of itself
    EXPECT_STREQ("2345", u);
}

TEST(CStringValue, MidLeftRightClamp)
{
    const CString s("abcdef");
    EXPECT_STREQ("cd", s.Mid(2, 2));
    EXPECT_STREQ("cdef", s.Mid(2, 100));
    EXPECT_STREQ("ab", s.Mid(-3, 2));
    EXPECT_STREQ("", s.Mid(10, 5));
    EXPECT_STREQ("", s.Mid(2, -1));
    EXPECT_STREQ("", s.Left(-1));
    EXPECT_STREQ("abcdef", s.Right(100));
}

// ---------------------------------------------------------------------------
// Double-byte aware searches and comparisons (code page 936)
// ---------------------------------------------------------------------------

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

TEST_F(CStringDbcs, CompareIsByCharacterAndUnsigned)
{
    // A double-byte character sorts above every ASCII character (a signed
    // byte comparison would put it below).
    CString chinese("\xCB\xCE\xCC\xE5");
    EXPECT_GT(chinese.Compare("z"), 0);
    EXPECT_TRUE(CString("z") < chinese);
    EXPECT_TRUE(chinese >= CString("\xCB\xCE\xCC\xE5"));
    EXPECT_TRUE("\xCB\xCE\xCC\xE5" == chinese);
    EXPECT_TRUE(chinese != CString("\xCB\xCE"));
    EXPECT_EQ(0, CString().Compare(NULL));
}

// ---------------------------------------------------------------------------
// Formatting and resources
// ---------------------------------------------------------------------------

TEST(CStringFormat, LongResultsAndItselfAsArgument)
{
    const std::string big(5000, 'q');
    CString s;
    s.Format("%s-%d-%s", big.c_str(), 42, "end");
    EXPECT_EQ(big + "-42-end", Bytes(s));
    s = "ab";
    s.Format("%s|%s", (LPCSTR)s, (LPCSTR)s);
    EXPECT_STREQ("ab|ab", s);
    s.Format("%.3f %5d %-3s|", 2.5, 17, "x");
    EXPECT_STREQ("2.500    17 x  |", s);
}

TEST(CStringResource, LoadStringThroughTheChain)
{
    ASSERT_EQ(936u, ::GetACP());
    CString s;
    ASSERT_TRUE(s.LoadString(14514));
    EXPECT_EQ(std::string("\xCB\xCE\xCC\xE5"), Bytes(s));   // the face name of the default font
    CString missing("keep?");
    EXPECT_FALSE(missing.LoadString(14499));   // in no module of the chain
    EXPECT_TRUE(missing.IsEmpty());
    // A string id in place of a pointer loads the string.
    EXPECT_EQ(std::string("\xCB\xCE\xCC\xE5"), Bytes(CString((LPCSTR)MAKEINTRESOURCEA(14514))));
    EXPECT_TRUE(CString((LPCSTR)MAKEINTRESOURCEA(14499)).IsEmpty());
    char buf[8];
    memset(buf, 'x', sizeof(buf));
    EXPECT_EQ(0, AfxLoadString(14499, buf, sizeof(buf)));
    EXPECT_EQ('\0', buf[0]);
    EXPECT_EQ(4, AfxLoadString(14514, buf, sizeof(buf)));
}
