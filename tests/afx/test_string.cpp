// Tests of CString: value semantics, construction from nothing, joining
// (also with itself), the clamping of Mid/Left/Right, searches and
// comparisons that respect double-byte characters of the ANSI code page,
// formatting, loading through the resource chain, and the buffer calls.
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
    const CString empties[] = { CString(), CString((LPCSTR)NULL), CString((LPCSTR)NULL, 5), CString("abc", 0),
                                CString('x', -3) };
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
    // With and without room to spare: joined in place or in a new block.
    CString s("abc");
    s += s;
    EXPECT_STREQ("abcabc", s);
    CString t("xyz");
    t.GetBuffer(64);
    t.ReleaseBuffer();
    t += t;
    t += (LPCSTR)t + 3;   // a tail of itself
    EXPECT_STREQ("xyzxyzxyz", t);
    CString u("012345");
    u = (LPCSTR)u + 2;   // a part of itself
    EXPECT_STREQ("2345", u);
    CString w("a");
    for (int i = 0; i < 12; i++)
        w += w;
    EXPECT_EQ(std::string(4096, 'a'), Bytes(w));
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

TEST_F(CStringDbcs, FindAndReverseFindSkipTrailBytes)
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

    // "a\<D55C>": the trail byte at the end is not the last backslash.
    EXPECT_EQ(1, (CString("a\\") + kTrailBackslash).ReverseFind('\\'));
    EXPECT_EQ(-1, CString(kTrailBackslash).ReverseFind('\\'));
    EXPECT_EQ(3, CString("a.b.c").ReverseFind('.'));

    CString v = CString(kTrailAt) + kTrailBackslash + "x@";
    EXPECT_EQ(5, v.FindOneOf("\\@"));
    EXPECT_EQ(4, v.FindOneOf("yx"));
    EXPECT_EQ(-1, CString(kTrailBackslash).FindOneOf("\\"));
}

TEST_F(CStringDbcs, SpansTakeWholeCharacters)
{
    // "<D55C>\x": the set "\" stops at the real backslash, not inside the
    // first character.
    CString s = CString(kTrailBackslash) + "\\x";
    EXPECT_EQ(std::string(kTrailBackslash), Bytes(s.SpanExcluding("\\")));
    EXPECT_EQ(std::string(kTrailBackslash) + "\\", Bytes(s.SpanIncluding(CString("\\") + kTrailBackslash)));
    // "<B040>x" against the set { <D55C>, '@' }: its first character is in
    // neither, although both of its bytes are bytes of the set.
    EXPECT_TRUE((CString(kTrailAt) + "x").SpanIncluding(CString(kTrailBackslash) + "@").IsEmpty());
    EXPECT_STREQ("aab", CString("aabc").SpanIncluding("ab"));
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
    // Case is folded for ASCII characters only, never inside a double-byte
    // character: "<81 61>" and "<81 41>" are two different characters.
    EXPECT_EQ(0, CString("AbC").CompareNoCase("aBc"));
    EXPECT_NE(0, CString(kTrailLowerA).CompareNoCase(kTrailUpperA));
}

TEST_F(CStringDbcs, CaseReverseAndTrimKeepCharactersWhole)
{
    CString s = CString("ab") + kTrailLowerA + "c";
    s.MakeUpper();
    EXPECT_EQ(std::string("AB") + kTrailLowerA + "C", Bytes(s));
    CString t = CString("AB") + kTrailUpperA + "C";
    t.MakeLower();
    EXPECT_EQ(std::string("ab") + kTrailUpperA + "c", Bytes(t));

    CString r = CString("a") + kTrailBackslash + "b";
    r.MakeReverse();
    EXPECT_EQ(std::string("b") + kTrailBackslash + "a", Bytes(r));

    CString blanks = CString(" \t\r\n") + kTrailAt + " " + kTrailBackslash + " \t \n";
    blanks.TrimRight();
    blanks.TrimLeft();
    EXPECT_EQ(std::string(kTrailAt) + " " + kTrailBackslash, Bytes(blanks));
    CString only("   \t ");
    only.TrimRight();
    EXPECT_TRUE(only.IsEmpty());
    CString lone("a\xD5");
    lone.TrimRight();
    EXPECT_EQ(2, lone.GetLength());
}

// ---------------------------------------------------------------------------
// Formatting, resources and buffers
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

TEST(CStringBuffer, GetBufferAndReleaseBuffer)
{
    CString s("abc");
    LPSTR p = s.GetBuffer(100);
    EXPECT_STREQ("abc", p);   // the text is kept in the larger buffer
    strcpy(p, "a longer text");
    s.ReleaseBuffer();
    EXPECT_EQ(13, s.GetLength());
    s.GetBuffer(1);   // smaller than the text: the whole text stays
    s.ReleaseBuffer(3);
    EXPECT_STREQ("a l", s);
    // From an empty string the buffer is writable and its own.
    CString f, g;
    memcpy(f.GetBufferSetLength(4), "wxyz", 4);
    f.ReleaseBuffer();
    EXPECT_STREQ("wxyz", f);
    EXPECT_STREQ("", g);
}
