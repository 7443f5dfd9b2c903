// Files on disk, by lines and in memory.
#include "support/temp_file.h"

#include <afxwin.h>

#include <functional>
#include <gtest/gtest.h>
#include <malloc.h>
#include <map>
#include <memory>
#include <random>
#include <string>

namespace {

/// The cause of the file exception that an operation throws, CFileException::none without one.
int CauseOf(const std::function<void()>& operation) {
    try {
        operation();
    } catch (CFileException* e) {
        const int nCause = e->m_cause;
        e->Delete();
        return nCause;
    }
    return CFileException::none;
}

std::string Rest(CFile& file) {
    char szRead[64] = "";
    return std::string(szRead, file.Read(szRead, sizeof szRead));
}

TEST(File, IsEmptiedOnlyByCreation) {
    const TempFile temp("0123");
    CFile(temp.Path(), CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite).Close();
    CStdioFile(temp.Path(), CFile::modeWrite).Close();
    EXPECT_EQ(temp.Content(), "0123");
    CFile file(temp.Path(), CFile::modeCreate | CFile::modeWrite);
    file.Close();
    EXPECT_EQ(temp.Content(), "");
    EXPECT_EQ(CauseOf([&] { Rest(file); }), CFileException::invalidFile);
}

TEST(File, FailuresNameTheirCause) {
    const TempFile temp("ab");
    const std::string strMissing = std::string(temp.Path()) + "x";
    CFile file;
    CFileException e;
    EXPECT_FALSE(file.Open(strMissing.c_str(), CFile::modeRead, &e));
    EXPECT_EQ(e.m_cause, CFileException::fileNotFound);
    EXPECT_EQ(e.m_lOsError, ERROR_FILE_NOT_FOUND);
    EXPECT_STREQ(e.m_strFileName, strMissing.c_str());
    const auto open = [](const std::string& strPath, UINT nFlags) {
        return CauseOf([&] { CFile(strPath.c_str(), nFlags); });
    };
    EXPECT_EQ(open(strMissing + "\\y", CFile::modeRead), CFileException::badPath);
    CFile reading(temp.Path(), CFile::modeRead | CFile::shareExclusive);
    EXPECT_EQ(open(temp.Path(), CFile::modeRead), CFileException::sharingViolation);
    EXPECT_EQ(CauseOf([&] { reading.Write("x", 1); }), CFileException::accessDenied);
    EXPECT_EQ(CauseOf([&] { CFile::Remove(strMissing.c_str()); }), CFileException::fileNotFound);
}

TEST(File, WhatWasHandedInIsClosedByItsOwner) {
    const TempFile temp("abc\r\ntwo\r\n");
    CFileStatus status;
    ASSERT_TRUE(CFile(temp.Path(), CFile::modeRead).GetStatus(status));
    EXPECT_EQ(status.m_size, 10u);
    EXPECT_FALSE(CFile::GetStatus((temp.Path() + std::string("x")).c_str(), status));
    const HANDLE hFile =
        ::CreateFile(temp.Path(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    { CFile file(hFile); }
    CFile file(hFile);
    EXPECT_EQ(Rest(file), "abc\r\ntwo\r\n");
    file.Close();
    EXPECT_FALSE(::CloseHandle(hFile)) << "but for Close";

    FILE* pStream = std::fopen(temp.Path(), "r+t");
    {
        CStdioFile stream(pStream);
        CString strLine;
        EXPECT_TRUE(stream.ReadString(strLine));
        EXPECT_STREQ(strLine, "abc");
        stream.SetLength(3);
    }
    EXPECT_EQ(std::fclose(pStream), 0);
    EXPECT_EQ(temp.Content(), "abc");
}

std::string Lines(CStdioFile& file) {
    std::string strLines;
    CString strLine;
    while (file.ReadString(strLine)) {
        strLines += std::string(strLine, strLine.GetLength()) + "|";
    }
    EXPECT_TRUE(strLine.IsEmpty());
    return strLines;
}

TEST(StdioFile, LinesEndAtLineFeedsAndAtTheEnd) {
    const struct {
        std::string strContent;
        std::string strText;    // as typeText reads it
        std::string strBinary;  // as typeBinary does
    } cases[] = {
        {"", "", ""},
        {"a", "a|", "a|"},
        {"a\r\n", "a|", "a\r|"},
        {"a\r\n\r\nb", "a||b|", "a\r|\r|b|"},
        {"\n\n", "||", "||"},
        {"a\rb\n", "a\rb|", "a\rb|"},
        {std::string("\0a\0\nb\0", 6), std::string("\0a\0|b\0|", 7), std::string("\0a\0|b\0|", 7)}};
    for (const auto& [strContent, strText, strBinary] : cases) {
        const TempFile temp(strContent);
        CStdioFile text(temp.Path(), CFile::modeRead | CFile::typeText | CFile::shareDenyNone);
        EXPECT_EQ(Lines(text), strText);
        CStdioFile binary(temp.Path(), CFile::modeRead | CFile::typeBinary | CFile::shareDenyNone);
        EXPECT_EQ(Lines(binary), strBinary);
    }
}

TEST(StdioFile, LinesMayEndWhereABufferDoes) {
    for (const size_t nLength : {1022u, 1023u, 1024u, 1025u}) {
        const std::string strLong(nLength, 'x');
        const TempFile temp(strLong + "\r\n" + strLong);
        CStdioFile file(temp.Path(), CFile::modeRead);
        EXPECT_EQ(Lines(file), strLong + "|" + strLong + "|");
    }
}

TEST(StdioFile, LinesLongerThanTheBufferComeInParts) {
    const TempFile temp("abcdef\r\ng");
    CStdioFile file(temp.Path(), CFile::modeRead);
    char szPart[5] = "";
    for (const char* pszPart : {"abcd", "ef\n", "g"}) {
        EXPECT_STREQ(file.ReadString(szPart, sizeof szPart), pszPart);
    }
    EXPECT_EQ(file.ReadString(szPart, sizeof szPart), nullptr);
}

TEST(StdioFile, WritesLinesAndGoesBackToThem) {
    const TempFile temp;
    for (const UINT nType : {CFile::typeText, CFile::typeBinary}) {
        CStdioFile file(temp.Path(), CFile::modeCreate | CFile::modeReadWrite | nType);
        file.WriteString("one\n");
        file.WriteString("two\n");
        file.Write("end", 3);
        EXPECT_EQ(file.GetLength(), nType == CFile::typeText ? 13u : 11u);
        file.SeekToBegin();
        EXPECT_EQ(Lines(file), "one|two|end|");
        file.Seek(-3, CFile::end);
        const ULONGLONG nEnd = file.GetPosition();
        file.Write("x", 1);
        file.SetLength(nEnd + 1);
        EXPECT_EQ(file.SeekToEnd(), nEnd + 1);
        EXPECT_EQ(CauseOf([&] { file.Seek(-99, CFile::current); }), CFileException::badSeek);
        file.Close();
        EXPECT_EQ(temp.Content(), nType == CFile::typeText ? "one\r\ntwo\r\nx" : "one\ntwo\nx");
    }
    CStdioFile reading(temp.Path(), CFile::modeRead);
    EXPECT_NE(CauseOf([&] { reading.WriteString("x"); }), CFileException::none);
    EXPECT_EQ(Lines(reading), "one|two|x|") << "and goes on";
}

/// One of a file's operations, by numbers, and what it gave.
std::string Do(CFile& file, unsigned nKind, UINT nBytes) {
    std::string strResult;
    switch (nKind) {
        case 0:
            file.Write(std::string(nBytes, static_cast<char>('a' + nBytes % 26)).data(), nBytes);
            break;
        case 1:
            strResult = Rest(file);
            break;
        case 2:
            file.Seek(nBytes, CFile::begin);
            break;
        case 3:
            strResult =
                std::to_string(CauseOf([&] { file.Seek(25 - LONGLONG{nBytes}, CFile::current); }));
            break;
        default:
            file.SetLength(nBytes);
            file.SeekToEnd();
            break;
    }
    return strResult + ":" + std::to_string(file.GetPosition()) + "/" +
           std::to_string(file.GetLength());
}

TEST(MemFile, DoesWhatAFileOnDiskDoes) {
    std::mt19937 random(7);
    const TempFile temp;
    CFile disk(temp.Path(), CFile::modeCreate | CFile::modeReadWrite);
    CMemFile memory(16);
    for (int nStep = 0; nStep < 1000; ++nStep) {
        const unsigned nKind = random() % 5;
        const UINT nBytes = random() % 50;
        ASSERT_EQ(Do(memory, nKind, nBytes), Do(disk, nKind, nBytes)) << nStep;
    }
}

TEST(MemFile, AttachedMemoryStaysItsOwners) {
    auto* pBytes = static_cast<BYTE*>(std::malloc(6));
    memcpy(pBytes, "abcdef", 6);
    {
        CMemFile file;
        file.Write("lost", 4);
        file.Attach(pBytes, 6);
        EXPECT_EQ(file.GetLength(), 6u);
        file.Seek(4, CFile::begin);
        file.Write("EF", 2);
        EXPECT_NE(CauseOf([&] { file.Write("g", 1); }), CFileException::none) << "it cannot grow";
    }
    ASSERT_TRUE(::HeapValidate(reinterpret_cast<HANDLE>(_get_heap_handle()), 0, pBytes));

    CMemFile file;
    file.Attach(pBytes, 6, 4);
    EXPECT_EQ(file.GetLength(), 0u) << "memory that may grow is room, not content";
    file.Write("0123456789", 10);
    pBytes = file.Detach();
    EXPECT_EQ(std::string(reinterpret_cast<char*>(pBytes), 10), "0123456789");
    std::free(pBytes);
    EXPECT_EQ(file.GetLength(), 0u);
}

TEST(FileFind, GoesThroughAFolder) {
    char szFolder[MAX_PATH];
    ::GetTempPath(sizeof szFolder, szFolder);
    const CString strFolder = CString(szFolder) + "qv find\\";
    ::CreateDirectory(strFolder, nullptr);
    ::CreateDirectory(strFolder + "inner.d", nullptr);
    CFile(strFolder + "one.txt", CFile::modeCreate | CFile::modeWrite).Write("12345", 5);
    CFile(strFolder + ".hidden", CFile::modeCreate | CFile::modeWrite).Close();
    std::map<std::string, std::string> found;
    CFileFind finder;
    BOOL bMore = finder.FindFile(strFolder + "*");
    EXPECT_EQ(finder.GetFileName(), "") << "there is no current file yet";
    while (bMore) {
        bMore = finder.FindNextFile();
        if (!finder.IsDots()) {
            EXPECT_EQ(finder.GetFilePath(), strFolder + finder.GetFileName());
            found[std::string(finder.GetFileName())] = std::string(finder.GetFileTitle()) +
                                                       (finder.IsDirectory() ? "/" : "") +
                                                       std::to_string(finder.GetLength());
        }
    }
    EXPECT_EQ(found, (std::map<std::string, std::string>{
                         {"inner.d", "inner/0"}, {"one.txt", "one5"}, {".hidden", ".hidden0"}}));
    EXPECT_EQ(finder.GetRoot(), strFolder);
    EXPECT_FALSE(finder.FindNextFile());
    EXPECT_FALSE(finder.FindFile(strFolder + "*.none"));
    finder.Close();
    CFile::Remove(strFolder + "one.txt");
    CFile::Remove(strFolder + ".hidden");
    ::RemoveDirectory(strFolder + "inner.d");
    EXPECT_TRUE(::RemoveDirectory(strFolder)) << "a search is still open";
}

TEST(File, TellsAndTakesItsStatus) {
    const TempFile temp("text");
    CFileStatus status;
    ASSERT_TRUE(CFile::GetStatus(temp.Path(), status));
    const CTime changed(2001, 2, 3, 4, 5, 6);
    for (const BYTE by : {BYTE(CFile::readOnly), BYTE(CFile::normal)}) {  // and off again
        status.m_mtime = by == CFile::readOnly ? changed : CTime(0);
        status.m_attribute = by;
        CFile::SetStatus(temp.Path(), status);
        ASSERT_TRUE(CFile::GetStatus(temp.Path(), status));
        EXPECT_EQ(status.m_attribute & CFile::readOnly, by);
        EXPECT_EQ(status.m_mtime.GetTime(), changed.GetTime());
    }
    EXPECT_THROW(CFile::SetStatus("Q:\\none", status), CFileException*);
}

TEST(File, DuplicatesShareThePosition_AndLocksKeepOthersOut) {
    const TempFile temp("0123456789");
    CFile file(temp.Path(), CFile::modeReadWrite | CFile::shareDenyNone);
    char ch = 0;
    {
        const std::unique_ptr<CFile> pTwin(file.Duplicate());
        pTwin->Seek(4, CFile::begin);
        file.Read(&ch, 1);
        EXPECT_EQ(ch, '4');
    }
    file.Read(&ch, 1);
    EXPECT_EQ(ch, '5') << "the duplicate closed its own handle";
    CFile other(temp.Path(), CFile::modeReadWrite | CFile::shareDenyNone);
    file.LockRange(0, 4);
    EXPECT_THROW(other.LockRange(2, 4), CFileException*);
    file.UnlockRange(0, 4);
    EXPECT_NO_THROW(other.LockRange(2, 4));
    EXPECT_THROW(CMemFile().Duplicate(), CNotSupportedException*);
}

}  // namespace
