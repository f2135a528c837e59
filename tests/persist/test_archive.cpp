// The archive stream of a graph, byte by byte: the fixed offsets of a new
// graph, the string prefixes, round trips, what loading bypasses and what it
// keeps when the stream is cut short or loaded twice, and what a copy stores.
#include "Archives.h"
#include "interact/FloatingLabel.h"
#include "resources/messages.h"
#include <string>

namespace {

const CString FaceSong() { return AnsiOf(L"\u5B8B\u4F53"); }   // the default face of string 14514

} // namespace

TEST(Archive, NewGraphStoresItsFieldsAtTheFixedOffsets)
{
    CGraph graph;
    const Bytes b = Store(graph.m_pGraphPrv);
    const CString strFace = FaceSong();
    ASSERT_EQ(159u + strFace.GetLength(), b.size());
    EXPECT_EQ(std::string("\x0CZPXGRAPH 1.0"), std::string(b.begin(), b.begin() + 13));
    EXPECT_EQ(0x71u, Field<DWORD>(b, 13));
    for (int i = 17; i <= 23; i++)
        EXPECT_EQ(0, b[i]) << "empty string at " << i;
    const DWORD adwExpected[] = { 0xFFFFFF, 1, 0, 1, 0, 0, 0, 1, 1, 1, 0, 0, 80, 0 };   // 24 to 76
    for (int i = 0; i < 14; i++)
        EXPECT_EQ(adwExpected[i], Field<DWORD>(b, 24 + 4 * i)) << "offset " << 24 + 4 * i;
    size_t n = 80;
    EXPECT_EQ(strFace.GetLength(), b[n]);
    EXPECT_EQ(std::string(strFace), std::string(b.begin() + n + 1, b.begin() + n + 1 + b[n]));
    n += 1 + b[n];
    EXPECT_EQ((DWORD)graph.m_pGraphPrv->m_lFontWeight, Field<DWORD>(b, n));
    EXPECT_EQ(0u, Field<DWORD>(b, n + 4));
    EXPECT_EQ(7, Field<WORD>(b, n + 8));
    const double adExpected[] = { 0.0, 10.0, 1.0, 0.0, 1.0, 1.0, 0.0, 0.0 };   // percents, then max before min
    for (int i = 0; i < 8; i++)
        EXPECT_EQ(adExpected[i], Field<double>(b, n + 10 + 8 * i)) << "double " << i;
    EXPECT_EQ(0u, Field<DWORD>(b, n + 74));   // no floating labels
}

TEST(Archive, StringLengthsTakeTheirPrefixesAndWideTextLoads)
{
    struct { int nLength; int nPrefix; } aCases[] = { { 254, 1 }, { 255, 3 }, { 0xFFFD, 3 }, { 0xFFFE, 7 } };
    for (const auto& c : aCases) {
        CGraph graph;
        graph.SetGraphTitle(CString('a', c.nLength));
        const Bytes b = Store(graph.m_pGraphPrv);
        EXPECT_EQ(163u + c.nLength + c.nPrefix - 1, b.size()) << c.nLength;
        EXPECT_EQ(c.nPrefix == 1 ? 254 : 0xFF, b[17]);
        if (c.nPrefix == 3) {
            EXPECT_EQ(c.nLength, Field<WORD>(b, 18));
        }
        if (c.nPrefix == 7) {
            EXPECT_EQ(0xFFFF, Field<WORD>(b, 18));
            EXPECT_EQ((DWORD)c.nLength, Field<DWORD>(b, 20));
        }
        CGraph loaded;
        Load(loaded.m_pGraphPrv, b);
        EXPECT_EQ(c.nLength, loaded.m_pGraphPrv->m_strGraphTitle.GetLength());
    }
    // The title in the wide form: 0xFF, 0xFFFE, two UTF-16 characters.
    CGraph graph;
    Bytes b = Store(graph.m_pGraphPrv);
    const BYTE abWide[] = { 0xFF, 0xFE, 0xFF, 2, 0x3A, 0x00, 0xBF, 0x7E };
    b.erase(b.begin() + 17);
    b.insert(b.begin() + 17, abWide, abWide + sizeof(abWide));
    Load(graph.m_pGraphPrv, b);
    EXPECT_STREQ(AnsiOf(L":\u7EBF"), graph.m_pGraphPrv->m_strGraphTitle);
}

TEST(Archive, StoreLoadStoreThroughAFileGivesTheSameBytes)
{
    CGraph source;
    Dress(source);
    const Bytes b = Store(source.m_pGraphPrv);

    char szPath[MAX_PATH];
    ::GetTempPathA(MAX_PATH, szPath);
    lstrcatA(szPath, "zpx-archive-test.bin");
    {
        CFile file(szPath, CFile::modeCreate | CFile::modeWrite);
        CArchive ar(&file, CArchive::store);
        source.Serialize(ar);
    }
    CGraph loaded;
    {
        CFile file(szPath, CFile::modeRead);
        EXPECT_EQ(b.size(), file.GetLength());
        CArchive ar(&file, CArchive::load);
        loaded.Serialize(ar);
    }
    ::DeleteFileA(szPath);
    EXPECT_EQ(b, Store(loaded.m_pGraphPrv));

    CGraphPrv* p = loaded.m_pGraphPrv;
    EXPECT_STREQ(AnsiOf(L"\u6807\u9898 title"), p->m_strGraphTitle);
    ASSERT_EQ(3, p->m_mapRefLines.GetCount());
    EXPECT_EQ(3u, RefLine(p, "L3")->m_dwFlags);
    EXPECT_EQ(BitsOf(0.1f), BitsOf(RefLine(p, "L3")->m_fPosition));
    EXPECT_EQ(-3.5f, RefLine(p, "L2")->m_fPosition);
    LOGFONT lf;
    int nSize;
    DWORD crText;
    loaded.GetLogFont(&lf, &nSize, &crText);
    EXPECT_STREQ("Arial", lf.lfFaceName);
    EXPECT_EQ(-120, lf.lfHeight);
    EXPECT_EQ(FW_BOLD, lf.lfWeight);
    EXPECT_EQ(1, lf.lfItalic);
    EXPECT_EQ(120, nSize);
    EXPECT_EQ(RGB(1, 2, 3), crText);
    LOGFONT lfMade;
    p->m_font.GetObject(sizeof(lfMade), &lfMade);
    EXPECT_STREQ("Arial", lfMade.lfFaceName);
}

TEST(Archive, LoadedLimitsBypassTheSettersAndTheFormatsApplyAfterwards)
{
    CGraph source;
    source.SetXAxisNumFmt("%.1f");
    source.m_pGraphPrv->m_dXMax = 0.01;   // narrower than the format's resolution 0.1
    source.m_pGraphPrv->m_dXMin = 0.0;
    const Bytes b = Store(source.m_pGraphPrv);

    CGraph loaded;
    loaded.SetXAxisNumFmt("%.1f");
    CGraphPrv* p = loaded.m_pGraphPrv;
    const double dTicBefore = p->m_dXTicValue[1];
    Load(p, b);
    EXPECT_EQ(0.01, p->m_dXMax);
    EXPECT_EQ(0.0, p->m_dXMin);
    EXPECT_EQ(0.1f, p->m_fXResolution);
    EXPECT_EQ(1.0f, p->m_fYResolution[0]);   // an empty format has no point: 1.0
    EXPECT_NE(dTicBefore, p->m_dXTicValue[1]);
    EXPECT_LE(p->m_dXTicValue[1], 0.01);   // the tics follow the loaded limits
}

TEST(Archive, ForeignSignatureLoadsAndASecondLoadLeavesTheLines)
{
    CGraph source;
    Dress(source);
    const Bytes b = Store(source.m_pGraphPrv);
    Bytes foreign(b);
    const std::string strOther("\x05OTHER");
    foreign.erase(foreign.begin(), foreign.begin() + 13);
    foreign.insert(foreign.begin(), strOther.begin(), strOther.end());

    CGraph loaded;
    CGraphPrv* p = loaded.m_pGraphPrv;
    loaded.AddReferenceLine("own", REFLINE_VERTICAL, 9.0);
    loaded.AddReferenceLine("L1", REFLINE_HORIZONTAL, 9.0);
    Load(p, foreign);
    Load(p, b);
    EXPECT_EQ(4, p->m_mapRefLines.GetCount());
    EXPECT_EQ(9.0f, RefLine(p, "own")->m_fPosition);
    EXPECT_EQ(0.25f, RefLine(p, "L1")->m_fPosition);
    EXPECT_EQ((DWORD)REFLINE_VERTICAL, RefLine(p, "L1")->m_dwFlags);
    loaded.RemoveReferenceLine("own");
    EXPECT_EQ(b, Store(p));
}

TEST(Archive, StreamCutShortRaisesEndOfFileAndKeepsWhatWasRead)
{
    CGraph source;
    source.SetGraphTitle("T");
    source.SetXAxisNumFmt("%.3f");
    source.AddReferenceLine("A", REFLINE_HORIZONTAL, 2.0);
    source.AddReferenceLine("B", REFLINE_HORIZONTAL, 2.0);
    source.m_pGraphPrv->m_dwStyle = 0x12345;
    Bytes b = Store(source.m_pGraphPrv);
    // Up to the count (at 69 with one title byte and a format of four), one
    // whole line of 10 bytes and the name of the second.
    b.resize(73 + 10 + 2);

    CGraph loaded;
    CGraphPrv* p = loaded.m_pGraphPrv;
    EXPECT_EQ(CArchiveException::endOfFile, LoadCause(p, b));
    EXPECT_EQ(0x12345u, p->m_dwStyle);
    EXPECT_STREQ("T", p->m_strGraphTitle);
    EXPECT_STREQ("%.3f", p->m_strXAxisNumFmt);
    EXPECT_EQ(0.0f, p->m_fXResolution);   // the closing steps did not run
    EXPECT_EQ(2, p->m_mapRefLines.GetCount());   // the second line was made, its fields not read
    EXPECT_EQ((DWORD)REFLINE_VERTICAL, RefLine(p, b[74] == 'A' ? "B" : "A")->m_dwFlags);
}

TEST(Archive, CopyStoresTheFaceNameItKeptAndNoMinorTics)
{
    CGraph source;
    Dress(source);
    source.SetTicMarkType(1, 1, NULL);
    ASSERT_EQ(1, source.m_pGraphPrv->m_nMinorTics);
    CGraph copy;
    copy = source;
    const Bytes b = Store(copy.m_pGraphPrv);
    EXPECT_EQ(0x75u, Field<DWORD>(b, 13));
    // After the seven texts, ten numbers, the count and three lines: minor
    // tics, size, colour, face.
    size_t n = 17;
    for (int i = 0; i < 7; i++)
        n += 1 + b[n];
    n += 11 * 4;
    for (int i = 0; i < 3; i++)
        n += 1 + b[n] + 8;
    EXPECT_EQ(0u, Field<DWORD>(b, n));
    EXPECT_EQ(120u, Field<DWORD>(b, n + 4));
    const CString strFace = FaceSong();
    EXPECT_EQ(strFace.GetLength(), b[n + 12]);
    EXPECT_EQ(std::string(strFace), std::string(b.begin() + n + 13, b.begin() + n + 13 + b[n + 12]));
}

TEST(Archive, LabelsAreStoredAsSeenAndEachLoadAddsThem)
{
    // A label being typed into: the text on the screen is what is stored.
    GraphInHost source;
    source.Show();
    CGraphPrv* ps = source.Prv();
    CPoint pt = ps->m_rectPlot.CenterPoint();
    ::ClientToScreen(ps->m_hWnd, &pt);
    ASSERT_EQ(GRAPH_OK, source.m_graph.AddFloatingLabel(pt));
    TestHost::Pump();
    CFloatingLabel* pLabel = NULL;
    ASSERT_TRUE(ps->m_mapFloatingLabels.Lookup(2002, pLabel));
    ::SetWindowTextA(::GetDlgItem(ps->m_hWnd, 2002), "typed");
    // A look set by the graph's messages, as the label's dialogs send them.
    LOGFONT lf;
    memset(&lf, 0, sizeof(lf));
    lstrcpyA(lf.lfFaceName, "Arial");
    lf.lfWeight = FW_BOLD;
    lf.lfItalic = TRUE;
    ::SendMessageA(ps->m_hWnd, WM_GRAPH_SETLABELCOLOR, 2002, RGB(160, 0, 0));
    ::SendMessageA(ps->m_hWnd, WM_GRAPH_SETLABELPOINTSIZE, 2002, 140);
    ::SendMessageA(ps->m_hWnd, WM_GRAPH_SETLABELFONT, 2002, (LPARAM)&lf);
    const CRect rect = pLabel->m_rect;
    const Bytes b = Store(ps);

    // The record at the end, field by field: the rectangle's four numbers,
    // the data position, the colour, the text, size, face, weight, italic.
    const Bytes tail = { 5, 't', 'y', 'p', 'e', 'd', 140, 0, 0, 0, 5, 'A', 'r', 'i', 'a', 'l', 0xBC, 2, 0, 0, 1 };
    const size_t nRecord = 16 + 8 + 8 + 4 + tail.size();
    ASSERT_GT(b.size(), nRecord + 4);
    const size_t n = b.size() - nRecord;
    EXPECT_EQ(1u, Field<DWORD>(b, n - 4));
    EXPECT_EQ(rect, CRect(Field<LONG>(b, n), Field<LONG>(b, n + 4), Field<LONG>(b, n + 8), Field<LONG>(b, n + 12)));
    EXPECT_EQ(pLabel->m_dX, Field<double>(b, n + 16));
    EXPECT_EQ(RGB(160, 0, 0), Field<DWORD>(b, n + 32));
    EXPECT_EQ(tail, Bytes(b.begin() + n + 36, b.end()));

    // Loaded twice into another graph: two labels, 2002 and 2003, each as
    // stored; storing after the first load gives the same bytes.
    GraphInHost loaded;
    loaded.Show();
    CGraphPrv* pl = loaded.Prv();
    Load(pl, b);
    EXPECT_EQ(b, Store(pl));
    Load(pl, b);
    ASSERT_EQ(2, pl->m_mapFloatingLabels.GetCount());
    for (WORD wId : { 2002, 2003 }) {
        CFloatingLabel* pLoaded = NULL;
        ASSERT_TRUE(pl->m_mapFloatingLabels.Lookup(wId, pLoaded)) << wId;
        EXPECT_EQ(rect, pLoaded->m_rect);
        EXPECT_EQ("typed", TextOf(::GetDlgItem(pl->m_hWnd, wId)));
    }
}
