// Documents that are read and written by archive, and files that stay what they were.
#include "support/temp_file.h"
#include "support/test_app.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace {

class Letter : public CDocument {
public:
    CString m_strText;
    std::function<void()> m_onSerialize = [] {};
    void DeleteContents() override { m_strText.Empty(); }
    void Serialize(CArchive& ar) override {
        if (ar.IsStoring()) {
            ar << m_strText;
        } else {
            ar >> m_strText;
        }
        EXPECT_EQ(ar.m_pDocument, this);
        m_onSerialize();
    }
};

/// Files in the folder of temporary ones, which a failed save must not leave more of.
int FilesAround(LPCTSTR lpszPath) {
    const std::string strPath(lpszPath);
    WIN32_FIND_DATA found;
    const HANDLE h =
        ::FindFirstFile((strPath.substr(0, strPath.rfind('\\')) + "\\*").c_str(), &found);
    int nFiles = 1;
    while (::FindNextFile(h, &found)) {
        ++nFiles;
    }
    ::FindClose(h);
    return nFiles;
}

TEST(DocumentArchive, ReadsWhatItWrote_AndNothingOfADamagedFile) {
    const TempFile file("something longer than what comes into its place");
    Letter letter;
    letter.m_strText = "Dear reader";
    letter.SetModifiedFlag();
    EXPECT_TRUE(letter.OnSaveDocument(file.Path()));
    EXPECT_FALSE(letter.IsModified());
    EXPECT_EQ(file.Content(),
              "\x0b"
              "Dear reader");
    Letter copy;
    EXPECT_TRUE(copy.OnOpenDocument(file.Path()));
    EXPECT_STREQ(copy.m_strText, "Dear reader");
    EXPECT_FALSE(copy.IsModified());

    TheTestApp().Forget();
    const TempFile damaged(
        "\x40"
        "Dear");
    EXPECT_FALSE(copy.OnOpenDocument(damaged.Path()));
    EXPECT_STREQ(copy.m_strText, "");
    EXPECT_EQ(TheTestApp().m_prompts.size(), 1u);
    const TempFile empty;
    EXPECT_TRUE(copy.OnOpenDocument(empty.Path())) << "as the shell makes new ones";
}

TEST(DocumentArchive, LeavesTheOldFileWhereSavingFails) {
    const TempFile file("old");
    const int nFiles = FilesAround(file.Path());
    Letter letter;
    letter.m_strText = CString('x', 10000);
    const std::function<void()> failures[] = {
        [] { AfxThrowFileException(CFileException::diskFull); },
        [] { AfxThrowUserException(); },
        [] { throw std::runtime_error("no"); },
        [&] { letter.m_strText = "short"; },
    };
    for (const auto& failure : failures) {
        letter.m_onSerialize = failure;
        TheTestApp().Forget();
        BOOL bSaved = FALSE;
        bool bThrown = false;
        try {
            bSaved = letter.OnSaveDocument(file.Path());
        } catch (const std::runtime_error&) {
            bThrown = true;
        }
        const bool bLast = &failure == failures + 3;
        EXPECT_EQ(bSaved, bLast);
        EXPECT_EQ(bThrown, &failure == failures + 2);
        EXPECT_EQ(TheTestApp().m_prompts.size(), &failure == failures ? 1u : 0u);
        EXPECT_EQ(file.Content() == "old", !bLast);
        EXPECT_EQ(FilesAround(file.Path()), nFiles);
    }
    ::SetFileAttributes(file.Path(), FILE_ATTRIBUTE_READONLY);
    EXPECT_FALSE(letter.OnSaveDocument(file.Path()));
    ::SetFileAttributes(file.Path(), FILE_ATTRIBUTE_NORMAL);
    {
        const CFile reader(file.Path(), CFile::modeRead | CFile::shareDenyWrite);
        EXPECT_FALSE(letter.OnSaveDocument(file.Path()));
    }
    EXPECT_TRUE(letter.OnSaveDocument(file.Path()));
}

}  // namespace
