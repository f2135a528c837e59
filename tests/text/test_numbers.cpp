// Numbers as text, without a window: the checked number formats, the
// fallback to the widest format, and the rules that decide which numbers
// along an axis are drawn.
#include "TestUtil.h"
#include "render/AxisNumbers.h"
#include "render/NumberFormat.h"
#include <algorithm>
#include <vector>

namespace {

// The tics named by a mask, as "1 3".
std::string Tics(UINT nMask)
{
    std::string str;
    for (int i = 0; i < 32; i++)
        str += (nMask & (1u << i)) ? (str.empty() ? "" : " ") + std::to_string(i) : "";
    return str;
}

// A floating-tic axis as the drop rules see it: tic values and pixels from
// 0 to nCount, and the plain texts of the interior tics, each as wide as
// nWidth. The texts are put in the notation of chDecimal; their values are
// read from the plain text.
struct Axis
{
    std::vector<double> tics;
    std::vector<int> pixels;
    std::vector<const char*> plain;   // tics 1 to nCount - 1
    int nWidth;

    int Count() const { return (int)tics.size() - 1; }
    std::vector<AxisTicNumber> Numbers(char chDecimal = '.') const
    {
        std::vector<AxisTicNumber> numbers(tics.size());
        for (size_t i = 0; i < plain.size(); i++) {
            AxisTicNumber& n = numbers[i + 1];
            n.fRead = (float)atof(plain[i]);
            n.strText = Local(plain[i], chDecimal);
            n.strDrawn = n.strText;
            n.strDrawn.TrimLeft();
            n.nWidth = nWidth;
        }
        return numbers;
    }
    static CString Local(const char* psz, char chDecimal)
    {
        std::string str = psz;
        std::replace(str.begin(), str.end(), '.', chDecimal);
        return str.c_str();
    }
};

} // namespace

// ---------------------------------------------------------------------------
// Number formats
// ---------------------------------------------------------------------------

TEST(NumberFormat, OneConversionOfADoubleWithinBoundsOrNoText)
{
    const struct
    {
        const char* pszFormat;
        double dValue;
        const char* pszText;
    } taken[] = {
        { "%.3E", 12345.678, "1.235E+004" },   { "%5.1f", 3.14159, "  3.1" },
        { "x=%g%%", 0.5, "x=0.5%" },           { "%-+#08.2f", 1.5, "+1.50   " },
        { "%%%e%%", 1.0, "%1.000000e+000%" },  { "%.f", 2.0, "2" },
        { "%lf", 2.5, "2.500000" },   // "l" says nothing for a double
        { "%.32f", 0.5, "0.50000000000000000000000000000000" },
    };
    char sz[NUMFMT_BUFFER];
    for (const auto& c : taken) {
        EXPECT_EQ((int)strlen(c.pszText), FormatNumber(sz, sizeof(sz), c.pszFormat, c.dValue)) << c.pszFormat;
        EXPECT_STREQ(c.pszText, sz) << c.pszFormat;
        EXPECT_EQ(1, IsNumberFormat(c.pszFormat)) << c.pszFormat;
    }
    // Refused, the buffer left empty: conversions of other types, a second
    // conversion, a lone or trailing "%", "*", too wide or too precise, other
    // length modifiers, no conversion at all.
    for (const char* pszFormat : { "%s", "%n", "%d", "%f%f", "%", "%.1f%", "%*f", "%65.1f", "%.33f", "%Lf", "%llf",
                                   "no number" }) {
        memset(sz, 'Z', sizeof(sz));
        EXPECT_EQ(-1, FormatNumber(sz, sizeof(sz), pszFormat, 1.0)) << pszFormat;
        EXPECT_STREQ("", sz) << pszFormat;
        EXPECT_EQ(0, IsNumberFormat(pszFormat)) << pszFormat;
    }
    // The widest field (a row above refuses one more).
    EXPECT_EQ(NUMFMT_MAX_WIDTH, FormatNumber(sz, sizeof(sz), "%64.1f", 1.0));
    EXPECT_EQ(std::string(NUMFMT_MAX_WIDTH - 3, ' ') + "1.0", sz);

    // Text of the code page around the number, a double-byte character whole.
    const CString strText = AnsiOf(L"\u957F 2.5 \u7C73");
    EXPECT_EQ(strText.GetLength(), FormatNumber(sz, sizeof(sz), AnsiOf(L"\u957F %.1f \u7C73"), 2.5));
    EXPECT_STREQ(strText, sz);

    // A text must fit its buffer with the terminator, or the buffer stays
    // empty; its length is told all the same.
    EXPECT_EQ(3, FormatNumber(sz, 4, "%.1f", 2.5));
    EXPECT_STREQ("2.5", sz);
    EXPECT_EQ(3, FormatNumber(sz, 3, "%.1f", 2.5));
    EXPECT_STREQ("", sz);
    EXPECT_EQ(301 + 1 + 32, FormatNumber(sz, sizeof(sz), "%.32f", 1e300));
    EXPECT_STREQ("", sz);
}

TEST(NumberFormat, FormatLabelSuitablyKeepsTenCharactersOrElevenBelowZero)
{
    CGraph graph;
    CGraphPrv* p = graph.m_pGraphPrv;
    char sz[NUMFMT_BUFFER];
    const struct
    {
        const char* pszFormat;
        double dValue;
        const char* pszText;
    } cases[] = {
        { "%.4f", -12345.6789, "-12345.6789" },   // 11 characters, negative: stays
        { "%.5f", 12345.6789, "1.235E+004" },     // 11 characters, positive: the widest format
        { "%.4f", 12345.6789, "12345.6789" },     // 10 characters
        { "%.5f", -12345.6789, "-1.235E+004" },   // 12 characters
        { "%.32f", 1e300, "1.000E+300" },         // too long for the buffer: long
        { "%s", 1.0, "" },                        // refused: no text, and no fallback
    };
    for (const auto& c : cases) {
        p->FormatLabelSuitably(sz, c.pszFormat, c.dValue);
        EXPECT_STREQ(c.pszText, sz) << c.pszFormat;
    }
}

// ---------------------------------------------------------------------------
// Middle numbers of floating tics
// ---------------------------------------------------------------------------

TEST(AxisNumbers, XNumbersRepeatedSlidOrTouchingAreDropped)
{
    // The end numbers: the minimum's reaches to pixel 12 with its gap, the
    // maximum's starts at 390.
    const struct
    {
        const char* pszWhat;
        Axis axis;
        const char* pszMin;
        const char* pszMax;
        const char* pszDrawn;
    } cases[] = {
        // Tic 1 reads "0.1", nearer to tic 2 than to its own value; tic 2
        // shows "0.1"; tic 3 reads "0.2", the text of the end.
        { "slid",
          { { 0.0, 0.05, 0.10000051, 0.15000051, 0.2 }, { 0, 100, 200, 300, 400 }, { "0.1", "0.1", "0.2" }, 20 },
          "0.0", "0.2", "2" },
        // Limits so close that all texts read as the ends: no middle number.
        { "close limits",
          { { 1.0, 1.0025, 1.005, 1.0075, 1.01 }, { 0, 100, 200, 300, 400 }, { "1.0", "1.0", "1.0" }, 20 },
          "1.0", "1.0", "" },
        // Tic 2 repeats tic 1, the number last drawn.
        { "last drawn", { { 0.0, 0.9, 1.2, 3.0 }, { 0, 100, 200, 400 }, { "1", "1" }, 20 }, "0", "3", "1" },
        // Wider than the gap between the two end numbers.
        { "too wide", { { 0.0, 0.5, 1.0 }, { 0, 200, 400 }, { "0.5" }, 400 }, "0.0", "1.0", "" },
        // Tic 1 starts on pixel 12, the left end: dropped; one pixel further
        // it stands.
        { "left end", { { 0.0, 0.2, 1.0 }, { 0, 22, 400 }, { "0.2" }, 20 }, "0.0", "1.0", "" },
        { "left end + 1", { { 0.0, 0.2, 1.0 }, { 0, 23, 400 }, { "0.2" }, 20 }, "0.0", "1.0", "1" },
        // Tic 1 ends 2 pixels before the right end: dropped; one pixel
        // further left it stands.
        { "right end", { { 0.0, 0.9, 1.0 }, { 0, 378, 400 }, { "0.9" }, 20 }, "0.0", "1.0", "" },
        { "right end - 1", { { 0.0, 0.9, 1.0 }, { 0, 377, 400 }, { "0.9" }, 20 }, "0.0", "1.0", "1" },
        // Each number against the one last drawn: tic 2 would start on the
        // end of tic 1's number and gap; tic 3 is measured against tic 1.
        { "neighbours", { { 0.0, 0.2, 0.4, 0.6, 1.0 }, { 0, 100, 122, 145, 400 }, { "0.2", "0.4", "0.6" }, 20 },
          "0.0", "1.0", "1 3" },
    };
    for (const auto& c : cases) {
        // In a comma locale the same: texts compare in the locale's
        // notation, values are read from the plain text.
        for (char chDecimal : { '.', ',' }) {
            const std::vector<AxisTicNumber> numbers = c.axis.Numbers(chDecimal);
            const UINT nDrawn = ChooseXTicNumbers(c.axis.Count(), c.axis.tics.data(), c.axis.pixels.data(),
                                                  numbers.data(), Axis::Local(c.pszMin, chDecimal),
                                                  Axis::Local(c.pszMax, chDecimal), 12, 390);
            EXPECT_EQ(c.pszDrawn, Tics(nDrawn)) << c.pszWhat << " " << chDecimal;
        }
    }

    // Leading blanks: compared as formatted, kept as drawn without them. Tic
    // 1 reads " 1" and differs from the end "1" as it stands.
    Axis axis = { { 0.0, 1.0, 1.5, 4.0 }, { 0, 100, 200, 400 }, { " 1", " 2" }, 20 };
    EXPECT_EQ("1 2", Tics(ChooseXTicNumbers(3, axis.tics.data(), axis.pixels.data(), axis.Numbers().data(), "1", "4",
                                            12, 390)));
}

TEST(AxisNumbers, YNumbersRunDownwardAndKeepClearOfTheEnds)
{
    // Plot from 0 to 100 with lines of 10: the end numbers stand at -5 and 95.
    const int L = 10, yTop = -5, yBottom = 95;
    const struct
    {
        const char* pszWhat;
        Axis axis;
        const char* pszMax;
        const char* pszMin;
        const char* pszDrawn;
    } cases[] = {
        // Tried from tic 2 down: tic 2 reads "0.1", which lies on tic 1
        // rather than near 0.14; tic 1 then shows "0.1".
        { "slid to the tic below", { { 0.0, 0.1, 0.14, 0.3 }, { 100, 67, 33, 0 }, { "0.1", "0.1" }, 0 }, "0.3", "0.0",
          "1" },
        // Tic 3 reads "0.2", the top's text; tic 2 shows "0.1"; tic 1 reads
        // "0.1" as well, the text last drawn.
        { "last drawn",
          { { 0.0, 0.05, 0.10000051, 0.15000051, 0.2 }, { 100, 75, 50, 25, 0 }, { "0.1", "0.1", "0.2" }, 0 },
          "0.2", "0.0", "2" },
        // A number's top must lie below yTop + L and above yBottom - L.
        { "near the ends", { { 0.0, 0.1, 0.5, 0.9, 1.0 }, { 100, 90, 50, 10, 0 }, { "0.1", "0.5", "0.9" }, 0 }, "1.0",
          "0.0", "2" },
        { "a pixel further in", { { 0.0, 0.1, 0.9, 1.0 }, { 100, 89, 11, 0 }, { "0.1", "0.9" }, 0 }, "1.0", "0.0",
          "1 2" },
        // Nothing keeps two middle numbers apart from each other.
        { "touching", { { 0.0, 0.4, 0.6, 1.0 }, { 100, 51, 50, 0 }, { "0.4", "0.6" }, 0 }, "1.0", "0.0", "1 2" },
    };
    for (const auto& c : cases) {
        for (char chDecimal : { '.', ',' }) {
            const std::vector<AxisTicNumber> numbers = c.axis.Numbers(chDecimal);
            const UINT nDrawn = ChooseYTicNumbers(c.axis.Count(), c.axis.tics.data(), c.axis.pixels.data(),
                                                  numbers.data(), Axis::Local(c.pszMax, chDecimal),
                                                  Axis::Local(c.pszMin, chDecimal), yTop, yBottom, L);
            EXPECT_EQ(c.pszDrawn, Tics(nDrawn)) << c.pszWhat << " " << chDecimal;
        }
    }

    // Middle numbers at all only on a plot higher than five lines.
    EXPECT_FALSE(AxisYHasMiddleNumbers(5 * L, L));
    EXPECT_TRUE(AxisYHasMiddleNumbers(5 * L + 1, L));
}

// ---------------------------------------------------------------------------
// Fixed tics and tic extensions
// ---------------------------------------------------------------------------

TEST(AxisNumbers, FixedMiddleNumbersAndTicExtensions)
{
    // X: three numbers of the last text's length must fit the plot.
    EXPECT_TRUE(FixedXMiddleNumberShown(4, 7, 3 * 4 * 7));
    EXPECT_FALSE(FixedXMiddleNumberShown(4, 7, 3 * 4 * 7 - 1));
    // Y: only the left axis tests for a text equal to an end.
    EXPECT_FALSE(FixedYMiddleNumberShown(TRUE, "1.0", "1.0", "0.0"));
    EXPECT_FALSE(FixedYMiddleNumberShown(TRUE, "0.0", "1.0", "0.0"));
    EXPECT_TRUE(FixedYMiddleNumberShown(TRUE, "0.5", "1.0", "0.0"));
    EXPECT_TRUE(FixedYMiddleNumberShown(FALSE, "1.0", "1.0", "1.0"));

    // Extensions under X: with a grid and minor tics, every interior tic;
    // tics 1 and count - 1 only under a drawn number.
    const struct
    {
        DWORD dwGrid;
        int nMinor, nCount;
        UINT nNumbers;
        const char* pszTics;
    } cases[] = {
        { GRID_BOTHWAYS, 1, 5, 0, "2 3" },
        { GRID_BOTHWAYS, 1, 5, 1u << 1 | 1u << 4, "1 2 3 4" },
        { GRID_VERTICAL | GRID_MINOR, 4, 5, 1u << 1, "1 2 3" },
        { GRID_BOTHWAYS, 0, 5, 1u << 1, "" },
        { GRID_NONE, 1, 5, 1u << 1, "" },
        { GRID_BOTHWAYS, 1, 2, 0, "" },
        { GRID_BOTHWAYS, 1, 2, 1u << 1, "1" },
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.pszTics, Tics(ChooseXTicExtensions(c.dwGrid, c.nMinor, c.nCount, c.nNumbers)))
            << c.dwGrid << " " << c.nMinor << " " << c.nCount << " " << c.nNumbers;
}
