// Damaged archives and configuration streams: hostile length prefixes and
// counts end at the end of the stream without large allocations, and
// thousands of seeded mutations either load or end with the archive's or the
// file's exception, after which the graph still paints and a good archive
// restores it.
#include "Archives.h"
#include "Surface.h"
#include "persist/ConfigFile.h"
#include <stdio.h>

namespace {

// Seeded, so that every run feeds the same mutations.
struct Random
{
    unsigned int n;
    unsigned int Next()
    {
        n ^= n << 13;
        n ^= n >> 17;
        n ^= n << 5;
        return n;
    }
    unsigned int Below(size_t nLimit) { return Next() % (unsigned int)nLimit; }
};

SIZE_T PeakCommittedBytes()
{
    PROCESS_MEMORY_COUNTERS counters;
    memset(&counters, 0, sizeof(counters));
    counters.cb = sizeof(counters);
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof(counters));
    return counters.PeakPagefileUsage;
}

// bytes with the one byte at nOffset replaced by pattern.
Bytes Spliced(const Bytes& bytes, size_t nOffset, const Bytes& pattern)
{
    Bytes result(bytes.begin(), bytes.begin() + nOffset);
    result.insert(result.end(), pattern.begin(), pattern.end());
    result.insert(result.end(), bytes.begin() + nOffset + 1, bytes.end());
    return result;
}

const Bytes s_aHostilePrefixes[] = {
    { 0xFE },                                            // 254 bytes
    { 0xFF, 0xFF, 0xFF },                                // a DWORD length from the bytes that follow
    { 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF },        // 0xFFFFFFFF bytes
    { 0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF },   // 0xFFFFFFFF wide characters
};

// One record of the configuration stream, encoded by hand.
void PutRecord(Bytes& bytes, const char* pszName, DWORD cr, DWORD nStyle, DWORD nMark, DWORD nWidth)
{
    bytes.push_back((BYTE)strlen(pszName));
    bytes.insert(bytes.end(), pszName, pszName + strlen(pszName));
    for (DWORD dw : { cr, nStyle, nMark, nWidth })
        bytes.insert(bytes.end(), (BYTE*)&dw, (BYTE*)&dw + 4);
}

} // namespace

TEST(Hostile, LengthPrefixesAndCountsEndAtTheStreamWithoutLargeAllocations)
{
    CGraph graph;
    const Bytes b = Store(graph.m_pGraphPrv);
    const SIZE_T nPeakBefore = PeakCommittedBytes();
    ASSERT_GT(nPeakBefore, 0u);
    for (size_t nOffset : { 0, 17, 23, 80 }) {
        for (const Bytes& prefix : s_aHostilePrefixes)
            EXPECT_EQ(CArchiveException::endOfFile, LoadCause(graph.m_pGraphPrv, Spliced(b, nOffset, prefix)))
                << "prefix at " << nOffset;
    }
    Bytes lines(b);
    PutField<DWORD>(lines, 64, 5000000);
    EXPECT_EQ(CArchiveException::endOfFile, LoadCause(graph.m_pGraphPrv, lines));
    EXPECT_LT(PeakCommittedBytes(), nPeakBefore + 4 * 1024 * 1024);
}

TEST(Fuzz, MutatedArchivesLoadOrRaiseTheirExceptionAndTheGraphStaysUsable)
{
    CGraph rich, lined;
    Dress(rich);
    lined.AddReferenceLine("a", REFLINE_VERTICAL, 0.5);
    lined.AddReferenceLine("b", REFLINE_HORIZONTAL, 0.5);
    CanvasGraph canvas(240, 180);
    CGraphPrv* p = canvas.Prv();
    const Bytes good = Store(p);
    // A stream with one label, its record made by hand at the end.
    Bytes labelled = Store(lined.m_pGraphPrv);
    const size_t nLabelCount = labelled.size() - 4;
    PutField<DWORD>(labelled, nLabelCount, 1);
    const LONG alRect[4] = { 10, 20, 60, 40 };
    labelled.insert(labelled.end(), (const BYTE*)alRect, (const BYTE*)alRect + sizeof(alRect));
    for (double d : { 1.5, 2.5 })
        labelled.insert(labelled.end(), (const BYTE*)&d, (const BYTE*)&d + sizeof(d));
    const BYTE abRest[] = { 0xFF, 0, 0, 0, 2, 'h', 'i', 100, 0, 0, 0, 5, 'A', 'r', 'i', 'a', 'l', 0xBC, 2, 0, 0, 1 };
    labelled.insert(labelled.end(), abRest, abRest + sizeof(abRest));
    const Bytes aBases[] = { good, Store(rich.m_pGraphPrv), Store(lined.m_pGraphPrv), labelled };
    ASSERT_EQ(-1, LoadCause(p, labelled));
    ASSERT_EQ(1, p->m_mapFloatingLabels.GetCount());
    p->RemoveAllFloatingLabels();
    p->RemoveAllReferenceLines();
    Load(p, good);
    canvas.Plot();
    const int nInkBefore = canvas.m_dib.CountAll(WHITE);

    int nLoads = 0, nRaised = 0, nForeign = 0, nNotRestored = 0, nCutLoaded = 0;
    // Loads mutated, paints now and then, restores the good archive; true
    // when the load ended with the archive's or the file's exception.
    auto Try = [&](const Bytes& mutated) {
        nLoads++;
        bool bRaised = true;
        try {
            Load(p, mutated);
            bRaised = false;
        } catch (CArchiveException* e) {
            e->Delete();
        } catch (CFileException* e) {
            e->Delete();
        } catch (...) {
            bRaised = false;
            nForeign++;
        }
        nRaised += bRaised;
        if (nLoads % 50 == 0) {
            canvas.Layout();
            canvas.Plot();
        }
        p->RemoveAllReferenceLines();
        p->RemoveAllFloatingLabels();
        Load(p, good);
        nNotRestored += Store(p) != good;
        return bRaised;
    };
    for (const Bytes& base : aBases)
        for (size_t n = 0; n < base.size(); n++)
            nCutLoaded += !Try(Bytes(base.begin(), base.begin() + n));
    for (size_t nOffset : { 0, 17, 18, 19, 20, 21, 22, 23 })
        for (const Bytes& prefix : s_aHostilePrefixes)
            Try(Spliced(aBases[0], nOffset, prefix));
    Random random = { 20240601 };
    for (int i = 0; i < 200; i++) {
        Bytes mutated(aBases[2]);
        PutField<DWORD>(mutated, 64, 1000000 + random.Below(0x7FFFFFFF));
        Try(mutated);
        mutated = labelled;
        PutField<DWORD>(mutated, nLabelCount, 1000000 + random.Below(0x7FFFFFFF));
        Try(mutated);
    }
    while (nLoads < 10000) {
        Bytes mutated(aBases[random.Below(4)]);
        for (int nFlips = 1 + random.Below(4); nFlips > 0; nFlips--)
            mutated[random.Below(mutated.size())] ^= (BYTE)(1 << random.Below(8));
        if (random.Below(4) == 0)
            mutated.resize(random.Below(mutated.size()));
        Try(mutated);
    }
    printf("archive fuzz: %d loads, %d ended with the archive's or file's exception\n", nLoads, nRaised);
    EXPECT_EQ(0, nForeign);
    EXPECT_EQ(0, nNotRestored);
    EXPECT_EQ(0, nCutLoaded);   // every stream cut short ends with an exception
    canvas.Layout();
    canvas.m_dib.Fill(WHITE);
    canvas.Plot();
    EXPECT_EQ(nInkBefore, canvas.m_dib.CountAll(WHITE));
}

TEST(Fuzz, MutatedConfigurationStreamsAreTakenRecordByRecordOrLeaveDefaults)
{
    Bytes base;
    std::vector<size_t> aRecordEnds;
    for (int i = 0; i < 16; i++) {
        PutRecord(base, Str("line %d", i).c_str(), 0x10101 * i, i % 6, i % 10, 1 + i % 5);
        aRecordEnds.push_back(base.size());
    }
    ILockBytes* pBytes = NULL;
    IStorage* pStorage = NULL;
    ASSERT_EQ(S_OK, ::CreateILockBytesOnHGlobal(NULL, TRUE, &pBytes));
    ASSERT_EQ(S_OK, ::StgCreateDocfileOnILockBytes(pBytes, STGM_CREATE | STGM_SHARE_EXCLUSIVE | STGM_READWRITE, 0,
                                                   &pStorage));
    CLineColor aTable[16];
    // Reads the stream over a table of defaults: the count of entries taken.
    auto Read = [&](const Bytes& contents, HRESULT& hr) {
        IStream* pStream = NULL;
        pStorage->CreateStream(L"Contents", STGM_CREATE | STGM_SHARE_EXCLUSIVE | STGM_READWRITE, 0, 0, &pStream);
        pStream->Write(contents.data(), (ULONG)contents.size(), NULL);
        pStream->Release();
        for (CLineColor& entry : aTable) {
            entry.m_strName = "default";
            entry.m_crLine = 0xABCDEF;
            entry.m_nLineStyle = entry.m_nAnnotate = 0;
            entry.m_nLineWidth = 1;
        }
        hr = ReadGraphConfig(pStorage, aTable);
        int nTaken = 0;
        for (const CLineColor& entry : aTable) {
            nTaken += entry.m_strName != "default";
            EXPECT_TRUE(entry.m_nLineStyle >= 0 && entry.m_nLineStyle <= 5 && entry.m_nAnnotate >= 0 &&
                        entry.m_nAnnotate <= 9 && entry.m_nLineWidth >= 1 && entry.m_nLineWidth <= 5 &&
                        entry.m_crLine <= 0xFFFFFF);
        }
        return nTaken;
    };
    HRESULT hr;
    EXPECT_EQ(16, Read(base, hr));
    EXPECT_EQ(S_OK, hr);
    EXPECT_STREQ("line 15", aTable[15].m_strName);
    EXPECT_EQ(0xF0F0Fu, aTable[15].m_crLine);
    EXPECT_EQ(1, aTable[15].m_nLineWidth);
    EXPECT_EQ(5, aTable[14].m_nLineWidth);

    int nReads = 1, nFailed = 0;
    for (size_t n = 0; n < base.size(); n++, nReads++) {
        const int nWhole = (int)(std::upper_bound(aRecordEnds.begin(), aRecordEnds.end(), n) - aRecordEnds.begin());
        EXPECT_EQ(nWhole, Read(Bytes(base.begin(), base.begin() + n), hr)) << "cut at " << n;
        EXPECT_EQ(E_FAIL, hr);
        nFailed++;
    }
    Random random = { 77 };
    for (; nReads < 10000; nReads++) {
        Bytes mutated(base);
        for (int nFlips = 1 + random.Below(4); nFlips > 0; nFlips--)
            mutated[random.Below(mutated.size())] ^= (BYTE)(1 << random.Below(8));
        if (random.Below(8) == 0)
            mutated = Spliced(mutated, aRecordEnds[random.Below(15)], s_aHostilePrefixes[random.Below(4)]);
        Read(mutated, hr);
        EXPECT_TRUE(hr == S_OK || hr == E_FAIL);
        nFailed += hr == E_FAIL;
    }
    printf("configuration fuzz: %d reads, %d rejected\n", nReads, nFailed);
    pStorage->Release();
    pBytes->Release();
}

TEST(Leaks, ThousandsOfArchiveRoundTripsReturnMemoryAndGdiObjects)
{
    CGraph source, target;
    Dress(source);
    const Bytes b = Store(source.m_pGraphPrv);
    const Bytes cut(b.begin(), b.begin() + b.size() / 2);
    auto RoundTrip = [&]() {
        Load(target.m_pGraphPrv, b);
        Store(target.m_pGraphPrv);
        LoadCause(target.m_pGraphPrv, cut);
    };
    for (int i = 0; i < 50; i++)
        RoundTrip();
    const LONG nGdiBefore = CGdiObject::GetLiveCount();
    const SIZE_T nBytesBefore = CommittedBytes();
    for (int i = 0; i < 3000; i++)
        RoundTrip();
    EXPECT_EQ(nGdiBefore, CGdiObject::GetLiveCount());
    EXPECT_LT(CommittedBytes(), nBytesBefore + 1024 * 1024);   // 350 bytes a trip would show
}
