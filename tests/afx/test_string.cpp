// Tests of CString: value semantics, construction from nothing, joining
// (also with itself), the clamping of Mid/Left/Right, searches and
// comparisons that respect double-byte characters of the ANSI code page,
// formatting, loading through the resource chain, and the buffer calls.
#include "gtest/gtest.h"
#include "afx/afx.h"

#include <malloc.h>
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

// One character of the ANSI code page: a lead byte and a trail byte that
// convert to exactly one UTF-16 unit, and not to the default character.
bool IsOneDoubleByteChar(const char* psz)
{
    if (!::IsDBCSLeadByte((BYTE)psz[0]) || strlen(psz) != 2)
        return false;
    WCHAR wsz[4] = {};
    int n = ::MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, psz, 2, wsz, 4);
    return n == 1 && wsz[0] != L'?';
}

class CStringDbcs : public ::testing::Test
{
protected:
    void SetUp() override
    {
        // The searches below are only meaningful where these are characters.
        ASSERT_EQ(936u, ::GetACP()) << "run with LC_ALL=zh_CN.UTF-8";
        ASSERT_TRUE(IsOneDoubleByteChar(kTrailBackslash));
        ASSERT_TRUE(IsOneDoubleByteChar(kTrailAt));
        ASSERT_TRUE(IsOneDoubleByteChar(kTrailLowerA));
        ASSERT_TRUE(IsOneDoubleByteChar(kTrailUpperA));
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

TEST(CStringValue, EmptyAndNullConstruction)
{
    CString a;
    CString b((LPCSTR)NULL);
    CString c((LPCSTR)NULL, 5);
    CString d("abc", 0);
    CString e('x', 0);
    CString f('x', -3);
    for (const CString* p : { &a, &b, &c, &d, &e, &f }) {
        EXPECT_TRUE(p->IsEmpty());
        EXPECT_EQ(0, p->GetLength());
        ASSERT_NE(nullptr, (LPCSTR)*p);
        EXPECT_EQ('\0', ((LPCSTR)*p)[0]);
    }
    CString g("abc");
    g = (LPCSTR)NULL;
    EXPECT_TRUE(g.IsEmpty());
    CString h('z', 3);
    EXPECT_STREQ("zzz", h);
    CString i("abcdef", 3);
    EXPECT_STREQ("abc", i);
    EXPECT_EQ(3, i.GetLength());
}

TEST(CStringValue, CopiesAreIndependent)
{
    CString a("hello");
    CString b(a);
    CString c;
    c = a;
    a.SetAt(0, 'J');
    EXPECT_STREQ("Jello", a);
    EXPECT_STREQ("hello", b);
    EXPECT_STREQ("hello", c);
    EXPECT_NE((LPCSTR)a, (LPCSTR)b);

    // Writing through a buffer changes only that string.
    LPSTR p = b.GetBuffer(10);
    strcpy(p, "world");
    b.ReleaseBuffer();
    EXPECT_STREQ("world", b);
    EXPECT_STREQ("hello", c);

    a.Empty();
    EXPECT_STREQ("hello", c);
    c = c;   // self-assignment keeps the text
    EXPECT_STREQ("hello", c);
}

TEST(CStringValue, Concatenation)
{
    CString a("ab");
    CString b = a + "cd";
    EXPECT_STREQ("abcd", b);
    EXPECT_STREQ("xab", 'x' + a);
    EXPECT_STREQ("abx", a + 'x');
    EXPECT_STREQ("--ab", "--" + a);
    EXPECT_STREQ("abab", a + a);
    a += (LPCSTR)NULL;
    EXPECT_STREQ("ab", a);
    a += CString();
    EXPECT_STREQ("ab", a);
    a += 'c';
    EXPECT_STREQ("abc", a);
}

TEST(CStringValue, SelfAppend)
{
    CString s("abc");
    s += s;
    EXPECT_STREQ("abcabc", s);
    EXPECT_EQ(6, s.GetLength());

    // Once more with room to spare, so that the text is joined in place.
    CString t("xyz");
    t.GetBuffer(64);
    t.ReleaseBuffer();
    t += t;
    EXPECT_STREQ("xyzxyz", t);
    t += (LPCSTR)t + 3;   // a tail of itself
    EXPECT_STREQ("xyzxyzxyz", t);

    // Assigning a part of itself.
    CString u("012345");
    u = (LPCSTR)u + 2;
    EXPECT_STREQ("2345", u);
    u = u.Mid(1, 2);
    EXPECT_STREQ("34", u);

    // Doubling many times exercises both the growing and the in-place path.
    CString w("a");
    for (int i = 0; i < 12; i++)
        w += w;
    EXPECT_EQ(4096, w.GetLength());
    EXPECT_EQ(std::string(4096, 'a'), Bytes(w));
}

TEST(CStringValue, MidLeftRightClamp)
{
    const CString s("abcdef");
    EXPECT_STREQ("cd", s.Mid(2, 2));
    EXPECT_STREQ("cdef", s.Mid(2));
    EXPECT_STREQ("cdef", s.Mid(2, 100));
    EXPECT_STREQ("ab", s.Mid(-3, 2));
    EXPECT_STREQ("abcdef", s.Mid(-3));
    EXPECT_STREQ("", s.Mid(6));
    EXPECT_STREQ("", s.Mid(10));
    EXPECT_STREQ("", s.Mid(10, 5));
    EXPECT_STREQ("", s.Mid(2, -1));
    EXPECT_STREQ("abc", s.Left(3));
    EXPECT_STREQ("", s.Left(-1));
    EXPECT_STREQ("abcdef", s.Left(100));
    EXPECT_STREQ("def", s.Right(3));
    EXPECT_STREQ("", s.Right(-5));
    EXPECT_STREQ("abcdef", s.Right(100));
    EXPECT_STREQ("abcdef", s);
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
    EXPECT_EQ(2, s.Find('a'));
    // A lead byte alone is no character of the string.
    EXPECT_EQ(-1, s.Find((char)0xD5));

    CString t = CString("x") + kTrailAt + "@";
    EXPECT_EQ(3, t.Find('@'));
    EXPECT_EQ(3, t.Find("@"));
    EXPECT_EQ(1, t.Find(kTrailAt));
    EXPECT_EQ(-1, CString(kTrailAt).Find("@"));
    EXPECT_EQ(0, t.Find(""));

    // A string that ends in a lone lead byte is searched to its end and no further.
    CString u("a\xD5");
    EXPECT_EQ(-1, u.Find("x"));
    EXPECT_EQ(1, u.Find("\xD5"));
    u.TrimRight();
    EXPECT_EQ(2, u.GetLength());
}

TEST_F(CStringDbcs, ReverseFindSkipsTrailBytes)
{
    // "a\<D55C>": the trail byte at the end is not the last backslash.
    CString s = CString("a\\") + kTrailBackslash;
    EXPECT_EQ(1, s.ReverseFind('\\'));
    EXPECT_EQ(-1, CString(kTrailBackslash).ReverseFind('\\'));
    EXPECT_EQ(-1, s.ReverseFind('z'));
    CString t("a.b.c");
    EXPECT_EQ(3, t.ReverseFind('.'));
}

TEST_F(CStringDbcs, FindOneOfSkipsTrailBytes)
{
    CString s = CString(kTrailAt) + kTrailBackslash + "x@";
    EXPECT_EQ(5, s.FindOneOf("\\@"));
    EXPECT_EQ(4, s.FindOneOf("yx"));
    EXPECT_EQ(-1, s.FindOneOf("qrs"));
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
    CString t = CString(kTrailAt) + "x";
    EXPECT_TRUE(t.SpanIncluding(CString(kTrailBackslash) + "@").IsEmpty());
    EXPECT_STREQ("abc", CString("abc;def").SpanExcluding(";"));
    EXPECT_STREQ("aab", CString("aabc").SpanIncluding("ab"));
}

TEST_F(CStringDbcs, CompareIsByCharacterAndUnsigned)
{
    // A double-byte character sorts above every ASCII character (a signed
    // byte comparison would put it below).
    CString chinese("\xCB\xCE\xCC\xE5");
    EXPECT_GT(chinese.Compare("z"), 0);
    EXPECT_TRUE(CString("z") < chinese);
    EXPECT_TRUE(chinese > CString("z"));
    EXPECT_TRUE(chinese >= CString("\xCB\xCE\xCC\xE5"));
    EXPECT_TRUE(chinese <= CString("\xCB\xCE\xCC\xE5"));
    EXPECT_TRUE(chinese == "\xCB\xCE\xCC\xE5");
    EXPECT_TRUE("\xCB\xCE\xCC\xE5" == chinese);
    EXPECT_FALSE(chinese != "\xCB\xCE\xCC\xE5");
    EXPECT_TRUE(chinese != CString("\xCB\xCE"));
    EXPECT_LT(CString("abc").Compare("abd"), 0);
    EXPECT_EQ(0, CString().Compare(NULL));
    EXPECT_EQ(0, CString().Compare(""));

    // Case is folded for ASCII characters only, never inside a double-byte
    // character: "<81 61>" and "<81 41>" are two different characters.
    EXPECT_EQ(0, CString("AbC").CompareNoCase("aBc"));
    EXPECT_NE(0, CString(kTrailLowerA).CompareNoCase(kTrailUpperA));
    EXPECT_NE(0, CString(kTrailLowerA).Compare(kTrailUpperA));
}

TEST_F(CStringDbcs, CaseMappingLeavesTrailBytes)
{
    CString s = CString("ab") + kTrailLowerA + "c";
    s.MakeUpper();
    EXPECT_EQ(std::string("AB") + kTrailLowerA + "C", Bytes(s));
    CString t = CString("AB") + kTrailUpperA + "C";
    t.MakeLower();
    EXPECT_EQ(std::string("ab") + kTrailUpperA + "c", Bytes(t));
}

TEST_F(CStringDbcs, MakeReverseKeepsCharactersWhole)
{
    CString s = CString("a") + kTrailBackslash + "b";
    s.MakeReverse();
    EXPECT_EQ(std::string("b") + kTrailBackslash + "a", Bytes(s));
}

TEST_F(CStringDbcs, TrimKeepsDoubleByteCharacters)
{
    CString s = CString(" \t\r\n") + kTrailAt + " " + kTrailBackslash + " \t \n";
    s.TrimRight();
    EXPECT_EQ(std::string(" \t\r\n") + kTrailAt + " " + kTrailBackslash, Bytes(s));
    s.TrimLeft();
    EXPECT_EQ(std::string(kTrailAt) + " " + kTrailBackslash, Bytes(s));

    CString blanks("   \t ");
    blanks.TrimRight();
    EXPECT_TRUE(blanks.IsEmpty());
    CString blanks2("  ");
    blanks2.TrimLeft();
    EXPECT_TRUE(blanks2.IsEmpty());
    CString none("x");
    none.TrimLeft();
    none.TrimRight();
    EXPECT_STREQ("x", none);
}

// ---------------------------------------------------------------------------
// Formatting, resources and buffers
// ---------------------------------------------------------------------------

TEST(CStringFormat, LongResults)
{
    std::string big(5000, 'q');
    CString s;
    s.Format("%s-%d-%s", big.c_str(), 42, "end");
    EXPECT_EQ((int)big.size() + 7, s.GetLength());
    EXPECT_EQ(big + "-42-end", Bytes(s));

    // Formatting a string with itself as an argument.
    s = "ab";
    s.Format("%s|%s", (LPCSTR)s, (LPCSTR)s);
    EXPECT_STREQ("ab|ab", s);

    s.Format("%.3f %5d %-3s|", 2.5, 17, "x");
    EXPECT_STREQ("2.500    17 x  |", s);

    s.Format("%s", "");
    EXPECT_TRUE(s.IsEmpty());
}

TEST(CStringResource, LoadStringThroughChain)
{
    ASSERT_EQ(936u, ::GetACP());
    CString s;
    ASSERT_TRUE(s.LoadString(14514));
    // The face name of the library's default font, in code page 936.
    EXPECT_EQ(std::string("\xCB\xCE\xCC\xE5"), Bytes(s));
    EXPECT_EQ(4, s.GetLength());

    CString missing("keep?");
    EXPECT_FALSE(missing.LoadString(14499));   // in no module of the chain
    EXPECT_TRUE(missing.IsEmpty());

    // A string id in place of a pointer loads the string.
    CString byId((LPCSTR)MAKEINTRESOURCEA(14514));
    EXPECT_EQ(std::string("\xCB\xCE\xCC\xE5"), Bytes(byId));
    CString byMissingId((LPCSTR)MAKEINTRESOURCEA(14499));
    EXPECT_TRUE(byMissingId.IsEmpty());

    char buf[8];
    memset(buf, 'x', sizeof(buf));
    EXPECT_EQ(0, AfxLoadString(14499, buf, sizeof(buf)));
    EXPECT_EQ('\0', buf[0]);
    EXPECT_EQ(4, AfxLoadString(14514, buf, sizeof(buf)));
    EXPECT_STREQ("\xCB\xCE\xCC\xE5", buf);
}

TEST(CStringBuffer, GetBufferAndReleaseBuffer)
{
    CString s("abc");
    LPSTR p = s.GetBuffer(100);
    ASSERT_NE(nullptr, p);
    EXPECT_STREQ("abc", p);   // the text is kept in the larger buffer
    strcpy(p, "a longer text");
    s.ReleaseBuffer();
    EXPECT_EQ(13, s.GetLength());
    EXPECT_STREQ("a longer text", s);

    p = s.GetBuffer(0);
    EXPECT_STREQ("a longer text", p);
    s.ReleaseBuffer(3);
    EXPECT_EQ(3, s.GetLength());
    EXPECT_STREQ("a l", s);

    // A buffer smaller than the text keeps the whole text.
    p = s.GetBuffer(1);
    EXPECT_STREQ("a l", p);
    s.ReleaseBuffer();
    EXPECT_STREQ("a l", s);

    CString n("abc");
    n.GetBufferSetLength(-4);   // taken as 0
    n.ReleaseBuffer();
    EXPECT_TRUE(n.IsEmpty());

    CString e;
    p = e.GetBufferSetLength(4);
    memcpy(p, "wxyz", 4);
    e.ReleaseBuffer();
    EXPECT_STREQ("wxyz", e);

    // From an empty string the buffer is writable and its own.
    CString f;
    CString g;
    p = f.GetBuffer(8);
    strcpy(p, "12345678");
    f.ReleaseBuffer();
    EXPECT_STREQ("12345678", f);
    EXPECT_TRUE(g.IsEmpty());
    EXPECT_STREQ("", g);
}

TEST(CStringBuffer, FreeExtraShrinksTheAllocation)
{
    CString s("short");
    s.GetBuffer(4000);
    s.ReleaseBuffer();
    ASSERT_GE(_msize((void*)(LPCSTR)s), (size_t)4001);
    s.FreeExtra();
    EXPECT_STREQ("short", s);
    EXPECT_EQ(5, s.GetLength());
    EXPECT_LT(_msize((void*)(LPCSTR)s), (size_t)64);

    CString e;
    e.FreeExtra();
    EXPECT_TRUE(e.IsEmpty());
}
