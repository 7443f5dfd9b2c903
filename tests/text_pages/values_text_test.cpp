// Strings, archives, files and dialogs with the characters of the process's code page.
#include "page_text.h"
#include "support/popup.h"

#include <afxcmn.h>
#include <afxdlgs.h>
#include <atlconv.h>

#include <gtest/gtest.h>

namespace {

TEST(ValuesText, GoesToWideTextAndBack) {
    for (const auto& [strWide, str] : PageWords()) {
        EXPECT_EQ(std::wstring(CStringW(str.c_str())), strWide);
        EXPECT_EQ(std::string(CW2A(strWide.c_str())), str);
        CString strText;
        strText.Format("%s|%s", CString(str.c_str()), str.c_str());
        EXPECT_EQ(std::string(strText), str + "|" + str);
        ::SetEnvironmentVariableW(L"QV_TEST_WORD", strWide.c_str());
        EXPECT_TRUE(strText.GetEnvironmentVariable("QV_TEST_WORD"));
        EXPECT_EQ(std::string(strText), str);
    }
}

// The separator may be the second byte of a character.
TEST(ValuesText, ListsAreDividedBetweenCharacters) {
    for (const auto& [strWide, str] : PageWords()) {
        const std::string strList = str + "\\" + str + "\\end";
        for (int nPart = 0; nPart < 3; ++nPart) {
            CString strPart;
            EXPECT_TRUE(AfxExtractSubString(strPart, strList.c_str(), nPart, '\\'));
            EXPECT_EQ(std::string(strPart), nPart < 2 ? str : "end");
        }
    }
}

TEST(ValuesText, ArchivesOfUnicodeProgramsAreRead) {
    for (const auto& [strWide, str] : PageWords()) {
        CMemFile file;
        CArchive storing(&file, CArchive::store);
        storing << BYTE(0xFF) << WORD(0xFFFE) << static_cast<BYTE>(strWide.size());
        storing.Write(strWide.data(), static_cast<UINT>(strWide.size() * sizeof(wchar_t)));
        storing << CString(str.c_str());
        storing.Close();
        file.SeekToBegin();
        CArchive loading(&file, CArchive::load);
        CString strFirst;
        CString strSecond;
        loading >> strFirst >> strSecond;
        EXPECT_EQ(std::string(strFirst), str);
        EXPECT_EQ(std::string(strSecond), str);
    }
}

TEST(ValuesText, TextsThatAreCutEndWithACharacter) {
    CWnd parent;
    ASSERT_TRUE(MakePopup(parent));
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | ES_AUTOHSCROLL, CRect(0, 0, 100, 20), &parent, 1));
    for (const auto& [strWide, str] : PageWords()) {
        ::SetWindowTextW(edit.m_hWnd, strWide.c_str());
        for (int nRoom = 1; nRoom <= static_cast<int>(str.size()) + 1; ++nRoom) {
            std::vector<char> text(static_cast<size_t>(nRoom) + 1, '#');
            CDataExchange dx(&parent, TRUE);
            DDX_Text(&dx, 1, text.data(), nRoom);
            const std::wstring strCut = FromPage(text.data());
            EXPECT_EQ(strWide.substr(0, strCut.size()), strCut) << nRoom;
            EXPECT_EQ(text.back(), '#');
        }
    }
}

TEST(ValuesText, ListsWithChecksAndFoundFilesHaveTheirNames) {
    CWnd parent;
    ASSERT_TRUE(MakePopup(parent));
    CCheckListBox list;
    ASSERT_TRUE(list.Create(WS_CHILD, CRect(0, 0, 100, 100), &parent, 1));
    wchar_t szFolder[MAX_PATH];
    ::GetTempPathW(MAX_PATH, szFolder);
    for (const auto& [strWide, str] : PageWords()) {
        const int nRow = list.AddString(str.c_str());
        CString strRow;
        list.GetText(nRow, strRow);
        EXPECT_EQ(std::string(strRow), str);
        const std::wstring strPath = szFolder + (L"qvfind " + strWide);
        ::CloseHandle(
            ::CreateFileW(strPath.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
        CFileFind finder;
        EXPECT_TRUE(finder.FindFile(CW2A(strPath.c_str())));
        finder.FindNextFile();
        EXPECT_EQ(std::string(finder.GetFileName()), "qvfind " + str);
        EXPECT_EQ(FromPage(std::string(finder.GetFilePath())).substr(2), strPath.substr(2));
        finder.Close();
        ::DeleteFileW(strPath.c_str());
    }
}

}  // namespace
