// Numbers as text, without a window: the checked number formats and the
// fallback to the widest format.
#include "TestUtil.h"
#include "render/NumberFormat.h"

// ---------------------------------------------------------------------------
// Number formats
// ---------------------------------------------------------------------------

TEST(NumberFormat, OneConversionOfADoubleWithinBoundsOrNoText)
{
    const struct
    {
        const char* pszFormat;
        double dValue;
        const char* pszText;   // null: refused
    } cases[] = {
        { "%.3E", 12345.678, "1.235E+004" },
        { "%5.1f", 3.14159, "  3.1" },
        { "x=%g%%", 0.5, "x=0.5%" },
        { "%-+#08.2f", 1.5, "+1.50   " },
        { "%%%e%%", 1.0, "%1.000000e+000%" },
        { "%.f", 2.0, "2" },
        { "%lf", 2.5, "2.500000" },   // "l" says nothing for a double
        { "%G", 1e-10, "1E-010" },
        { "%64.1f", 1.0, "" },   // the widest field: filled in below
        { "%.32f", 0.5, "0.50000000000000000000000000000000" },
        { "%s", 1.0, NULL },
        { "%n", 1.0, NULL },
        { "%d", 1.0, NULL },
        { "%x", 1.0, NULL },
        { "%a", 1.0, NULL },
        { "%f%f", 1.0, NULL },
        { "%f %s", 1.0, NULL },
        { "%", 1.0, NULL },
        { "%.1f%", 1.0, NULL },   // a trailing "%"
        { "%5%", 1.0, NULL },
        { "%*f", 1.0, NULL },
        { "%.*f", 1.0, NULL },
        { "%.500f", 1.0, NULL },
        { "%.33f", 1.0, NULL },
        { "%1000f", 1.0, NULL },
        { "%65.1f", 1.0, NULL },
        { "%99999999999f", 1.0, NULL },
        { "%Lf", 1.0, NULL },
        { "%hf", 1.0, NULL },
        { "%llf", 1.0, NULL },
        { "%I64f", 1.0, NULL },
        { "%.-1f", 1.0, NULL },
        { "%5.2", 1.0, NULL },
        { "no number", 1.0, NULL },
        { "", 1.0, NULL },
    };
    for (const auto& c : cases) {
        char sz[NUMFMT_BUFFER];
        memset(sz, 'Z', sizeof(sz));
        const int n = FormatNumber(sz, sizeof(sz), c.pszFormat, c.dValue);
        std::string strExpected = c.pszText ? c.pszText : "";
        if (strcmp(c.pszFormat, "%64.1f") == 0)
            strExpected = std::string(NUMFMT_MAX_WIDTH - 3, ' ') + "1.0";
        EXPECT_STREQ(strExpected.c_str(), sz) << c.pszFormat;
        EXPECT_EQ(c.pszText ? (int)strExpected.size() : -1, n) << c.pszFormat;
        EXPECT_EQ(c.pszText != NULL, IsNumberFormat(c.pszFormat) != 0) << c.pszFormat;
    }

    // Text of the code page around the number, a double-byte character whole.
    char sz[NUMFMT_BUFFER];
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
        { "%n", -1e300, "" },
    };
    for (const auto& c : cases) {
        p->FormatLabelSuitably(sz, c.pszFormat, c.dValue);
        EXPECT_STREQ(c.pszText, sz) << c.pszFormat;
    }
    p->m_strMaxLenFormat = "%n";
    p->FormatLabelSuitably(sz, "%.5f", 12345.6789);
    EXPECT_STREQ("", sz);
    p->FormatLabelSuitably(sz, "%.4f", 12345.6789);
    EXPECT_STREQ("12345.6789", sz);
}
