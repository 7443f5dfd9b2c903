// Files by their paths, with names of the process's code page.
#include "QVControls.h"
#include "text_pages/page_text.h"

#include <gtest/gtest.h>
#include <shlobj.h>

namespace {

class Files : public QVFileSystem {
public:
    CString m_strGuessed;
    LONG ErrorOf(QVPath& path, const char* pszPrefix) {
        try {
            CreateTempFile(path, pszPrefix, "tmp");
        } catch (CFileException* e) {
            return std::unique_ptr<CFileException>(e)->m_lOsError;
        }
        return NO_ERROR;
    }

protected:
    CString MakeTempName() override {
        return m_strGuessed.IsEmpty() ? QVFileSystem::MakeTempName() : m_strGuessed;
    }
};
class Browser : public QVBrowseDlg {
public:
    using QVBrowseDlg::SetPathFromIDList;
};

TEST(PathsOfThePage, NameTheSameFilesEverywhere) {
    for (const PageWord& word : PageWords()) {
        SCOPED_TRACE(word.str);
        Files files;
        QVPath path;
        ASSERT_EQ(files.ErrorOf(path, word.str.c_str()), NO_ERROR);
        EXPECT_EQ(std::string(path.GetName()).substr(0, word.str.size()), word.str);
        ITEMIDLIST* pItem = nullptr;
        const std::wstring strWide = FromPage(std::string(path));
        ::SHParseDisplayName(strWide.c_str(), nullptr, &pItem, 0, nullptr);
        Browser browser;
        browser.SetPathFromIDList(pItem);
        ::CoTaskMemFree(pItem);
        EXPECT_STREQ(browser.GetItemPath(), path);
        files.m_strGuessed = path.GetTitle().Mid(static_cast<int>(word.str.size()));
        QVPath other("as it was");
        EXPECT_EQ(files.ErrorOf(other, word.str.c_str()), ERROR_FILE_EXISTS);
        EXPECT_EQ(files.ErrorOf(other, "..\\qv"), ERROR_INVALID_NAME);
        EXPECT_STREQ(other, "as it was");
        // The same file by more than 260 characters.
        other.Set(path.GetParent());
        other.Append(CString('x', 120) + "\\..\\" + CString('y', 130) + "\\..\\" + path.GetName());
        EXPECT_FALSE(files.Copy(path, other));
        other.Set(other + CString("2"));
        QVStatusLogText(other, 1).Log(nullptr);
        EXPECT_TRUE(files.DeleteFile(other) && files.Copy(path, other));
        EXPECT_TRUE(files.Replace(other, path));
        EXPECT_FALSE(files.Exists(other) || !files.DeleteFile(path) || files.DeleteFile(path));
    }
}

// 260 characters of the system can be three times as many bytes.
TEST(PathsOfThePage, MayHaveMoreThan260Bytes) {
    const CString strWord(LongWord(120).str.c_str());
    const CString strPath("C:\\" + strWord + "\\" + strWord);
    const CString strRoundabout("C:\\" + strWord + "\\.\\" + strWord);
    CFileException error;
    EXPECT_FALSE(CFile().Open(strRoundabout, CFile::modeRead, &error));
    EXPECT_STREQ(error.m_strFileName, strPath);
    for (UINT nRoom = 300; nRoom < 304; ++nRoom) {
        char szMessage[304];
        error.GetErrorMessage(szMessage, nRoom);
        std::string strBack;
        EXPECT_TRUE(ToPage(FromPage(szMessage), strBack) && strBack == szMessage) << "no part";
        EXPECT_TRUE(strBack.ends_with(" path")) << strBack;
    }
    CDocument document;
    CSingleDocTemplate docTemplate(0, nullptr, nullptr, nullptr);
    docTemplate.AddDocument(&document);
    document.SetPathName(strRoundabout, FALSE);
    EXPECT_STREQ(document.GetTitle(), strWord);
    CDocument* pOpen = nullptr;
    EXPECT_EQ(docTemplate.MatchDocType(strPath, pOpen), CDocTemplate::yesAlreadyOpen);
    EXPECT_EQ(docTemplate.MatchDocType(strPath + "\x01", pOpen), CDocTemplate::yesAttemptForeign);
}

}  // namespace
