// The configuration file beside the library, through child processes that
// load a scratch copy of it: when a file appears, what a process without a
// graph leaves alone, how a short or damaged file is taken, and what the
// next unload writes back.
#include "Archives.h"
#include <stdio.h>
#include <fstream>
#include <string>

namespace {

// A temporary folder holding copies of the library and of the host process.
class ScratchLibrary
{
public:
    ScratchLibrary()
    {
        char szTemp[MAX_PATH], szOwn[MAX_PATH];
        ::GetTempPathA(MAX_PATH, szTemp);
        m_strDir = Str("%szpx-config-%lu\\", szTemp, ::GetCurrentProcessId());
        ::CreateDirectoryA(m_strDir.c_str(), NULL);
        ::GetModuleFileNameA(NULL, szOwn, MAX_PATH);
        std::string strOwnDir(szOwn);
        strOwnDir.erase(strOwnDir.rfind('\\') + 1);
        for (const char* pszFile : { "ZPXGraph.dll", "persisthost.exe" })
            EXPECT_TRUE(::CopyFileA((strOwnDir + pszFile).c_str(), Path(pszFile).c_str(), FALSE)) << pszFile;
        // The compiler's runtime libraries, where a build has them beside the library.
        for (const char* pszFile : s_runtime)
            ::CopyFileA((strOwnDir + pszFile).c_str(), Path(pszFile).c_str(), FALSE);
    }
    ~ScratchLibrary()
    {
        for (const char* pszFile : { "ZPXGraph.cfg", "dump.txt", "ZPXGraph.dll", "persisthost.exe" })
            ::DeleteFileA(Path(pszFile).c_str());
        for (const char* pszFile : s_runtime)
            ::DeleteFileA(Path(pszFile).c_str());
        ::RemoveDirectoryA(m_strDir.c_str());
    }

    std::string Path(const char* pszFile) const { return m_strDir + pszFile; }
    static constexpr const char* s_runtime[] = { "libgcc_s_dw2-1.dll", "libstdc++-6.dll", "libwinpthread-1.dll" };
    std::wstring ConfigPathW() const
    {
        const std::string strPath = Path("ZPXGraph.cfg");
        return std::wstring(strPath.begin(), strPath.end());   // the temporary folder's path is plain ASCII here
    }
    bool ConfigExists() const { return ::GetFileAttributesA(Path("ZPXGraph.cfg").c_str()) != INVALID_FILE_ATTRIBUTES; }

    // Runs the host with the arguments and waits for its end.
    void Run(const std::string& strArgs)
    {
        std::string strCommand = "\"" + Path("persisthost.exe") + "\" " + strArgs;
        STARTUPINFOA si;
        memset(&si, 0, sizeof(si));
        si.cb = sizeof(si);
        PROCESS_INFORMATION pi;
        ASSERT_TRUE(::CreateProcessA(NULL, &strCommand[0], NULL, NULL, FALSE, 0, NULL, m_strDir.c_str(), &si, &pi));
        ::WaitForSingleObject(pi.hProcess, INFINITE);
        ::CloseHandle(pi.hThread);
        ::CloseHandle(pi.hProcess);
    }

    // The colour table a process with a graph sees, one entry a line.
    std::vector<std::string> Table()
    {
        Run("graph \"" + Path("dump.txt") + "\"");
        std::vector<std::string> lines;
        std::ifstream in(Path("dump.txt"));
        for (std::string line; std::getline(in, line);)
            lines.push_back(line);
        return lines;
    }

    // The bytes of the "Contents" stream; empty when there is none.
    Bytes Contents()
    {
        IStorage* pStorage = NULL;
        IStream* pStream = NULL;
        Bytes bytes(4096);
        ULONG nRead = 0;
        if (SUCCEEDED(::StgOpenStorage(ConfigPathW().c_str(), NULL, STGM_SHARE_EXCLUSIVE | STGM_READ, NULL, 0, &pStorage))) {
            if (SUCCEEDED(pStorage->OpenStream(L"Contents", NULL, STGM_SHARE_EXCLUSIVE | STGM_READ, 0, &pStream))) {
                pStream->Read(bytes.data(), (ULONG)bytes.size(), &nRead);
                pStream->Release();
            }
            pStorage->Release();
        }
        bytes.resize(nRead);
        return bytes;
    }

    void WriteContents(const Bytes& contents)
    {
        IStorage* pStorage = NULL;
        IStream* pStream = NULL;
        ASSERT_EQ(S_OK, ::StgCreateDocfile(ConfigPathW().c_str(), STGM_CREATE | STGM_SHARE_EXCLUSIVE | STGM_READWRITE, 0,
                                           &pStorage));
        pStorage->CreateStream(L"Contents", STGM_SHARE_EXCLUSIVE | STGM_READWRITE, 0, 0, &pStream);
        pStream->Write(contents.data(), (ULONG)contents.size(), NULL);
        pStream->Release();
        pStorage->Release();
    }

    std::string FileBytes() const
    {
        std::ifstream in(Path("ZPXGraph.cfg"), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }

private:
    std::string m_strDir;
};

// A record as the file holds it: the name with its one-byte prefix, then
// colour, line style, mark and width.
Bytes Record(const std::string& strName, DWORD cr, DWORD nStyle, DWORD nMark, DWORD nWidth)
{
    Bytes bytes(strName.begin(), strName.end());
    bytes.insert(bytes.begin(), (BYTE)strName.size());
    for (DWORD dw : { cr, nStyle, nMark, nWidth })
        bytes.insert(bytes.end(), (BYTE*)&dw, (BYTE*)&dw + 4);
    return bytes;
}

std::string DefaultLine(int nEntry, const char* pszColour)
{
    return std::string(AnsiOf(L"\u7EBF ")) + std::to_string(nEntry) + "|" + pszColour + "|0|0|1";
}

} // namespace

TEST(ConfigFile, AppearsOnlyWhenAProcessThatMadeAGraphUnloads)
{
    ScratchLibrary scratch;
    scratch.Run("none");
    EXPECT_FALSE(scratch.ConfigExists());

    const std::vector<std::string> table = scratch.Table();
    ASSERT_EQ(16u, table.size());
    EXPECT_EQ(DefaultLine(1, "000000"), table[0]);
    EXPECT_EQ(DefaultLine(16, "00CCFF"), table[15]);
    const Bytes contents = scratch.Contents();
    const Bytes first = Record((LPCSTR)AnsiOf(L"\u7EBF 1"), 0, 0, 0, 1);
    ASSERT_GT(contents.size(), first.size());
    EXPECT_EQ(first, Bytes(contents.begin(), contents.begin() + first.size()));
}

TEST(ConfigFile, FifteenRecordsReplaceTheirEntriesAndTheNextUnloadWritesSixteen)
{
    ScratchLibrary scratch;
    Bytes contents;
    for (int i = 1; i <= 15; i++) {
        const Bytes record = Record(Str("c%d", i), 0x10000 * i + 0x100 * i + i, i % 6, i % 10, 1 + i % 5);
        contents.insert(contents.end(), record.begin(), record.end());
    }
    scratch.WriteContents(contents);
    const std::string strFile = scratch.FileBytes();
    scratch.Run("none");
    EXPECT_EQ(strFile, scratch.FileBytes());

    const std::vector<std::string> table = scratch.Table();
    ASSERT_EQ(16u, table.size());
    EXPECT_EQ("c1|010101|1|1|2", table[0]);
    EXPECT_EQ("c2|020202|2|2|3", table[1]);
    EXPECT_EQ("c15|0F0F0F|3|5|1", table[14]);
    EXPECT_EQ(DefaultLine(16, "00CCFF"), table[15]);
    Bytes expected(contents);
    const Bytes last = Record((LPCSTR)AnsiOf(L"\u7EBF 16"), 0x00CCFF, 0, 0, 1);
    expected.insert(expected.end(), last.begin(), last.end());
    EXPECT_EQ(expected, scratch.Contents());
}

TEST(ConfigFile, DamagedFilesLeaveDefaultsFromTheDamageOn)
{
    ScratchLibrary scratch;
    std::ofstream(scratch.Path("ZPXGraph.cfg")) << "not a compound file";
    std::vector<std::string> table = scratch.Table();
    ASSERT_EQ(16u, table.size());
    EXPECT_EQ(DefaultLine(1, "000000"), table[0]);
    EXPECT_FALSE(scratch.Contents().empty());   // replaced by a sound file

    // Record 3 with a width no page can give; record 4 would be sound.
    Bytes contents = Record("a", 0xFF, 1, 2, 3);
    for (const Bytes& record : { Record("b", 0xFF, 1, 2, 3), Record("c", 0xFF, 1, 2, 9), Record("d", 0xFF, 1, 2, 3) })
        contents.insert(contents.end(), record.begin(), record.end());
    scratch.WriteContents(contents);
    table = scratch.Table();
    ASSERT_EQ(16u, table.size());
    EXPECT_EQ("b|0000FF|1|2|3", table[1]);
    EXPECT_EQ(DefaultLine(3, "FF0000"), table[2]);
    EXPECT_EQ(DefaultLine(4, "00FF00"), table[3]);
}
