// Texts that leave the program and come back: files, the clipboard, paper.
#include "drawn_text.h"
#include "page_text.h"
#include "support/list_window.h"
#include "support/text_window.h"

#include <afxext.h>

#include <algorithm>
#include <gtest/gtest.h>

namespace {

TEST(TextFiles, ExportAndLoadGiveEveryLineBack) {
    const std::vector<PageWord> words = PageWords();
    char szFolder[MAX_PATH] = "";
    ::GetTempPath(MAX_PATH, szFolder);
    for (const PageWord& word : words) {
        TextWindow<> w;
        for (const PageWord& line : words) {
            w.text.AddText((line.str + "\t" + word.str).c_str(), 0);
        }
        const std::string strFile = szFolder + word.str + ".txt";
        ASSERT_EQ(w.text.ExportData(strFile.c_str()), 1) << strFile;
        TextWindow<> other;
        ASSERT_EQ(other.text.LoadFile(strFile.c_str(), 0), 1);
        ASSERT_EQ(other.text.NumLines(), static_cast<int>(words.size()));
        for (int i = 0; i < other.text.NumLines(); ++i) {
            EXPECT_EQ(other.text.Text(i), words[static_cast<size_t>(i)].str + "\t" + word.str);
        }
        ListWindow<> list("one\ttwo");
        list.Add((word.str + "\t" + word.str).c_str());
        ASSERT_TRUE(list.list.ExportData(strFile.c_str(), ';'));
        ASSERT_EQ(other.text.LoadFile(strFile.c_str(), 0), 1);
        EXPECT_EQ(other.text.Text(0), word.str + ";" + word.str);
        EXPECT_TRUE(::DeleteFileW(FromPage(strFile).c_str())) << "under its name: " << strFile;
    }
}

template <class Char>
std::basic_string<Char> FromClipboard(UINT nFormat) {
    std::basic_string<Char> str;
    if (::OpenClipboard(nullptr)) {
        const HANDLE hText = ::GetClipboardData(nFormat);
        if (const void* pText = hText != nullptr ? ::GlobalLock(hText) : nullptr) {
            str = static_cast<const Char*>(pText);
            ::GlobalUnlock(hText);
        }
        ::CloseClipboard();
    }
    return str;
}

TEST(TextFiles, ClipboardHasTheTextWideAndInTheCodePage) {
    TextWindow<> w;
    std::string strAll;
    std::wstring strAllWide;
    for (const PageWord& word : PageWords()) {
        w.text.AddText(word.str.c_str(), 0);
        strAll += word.str + "\r\n";
        strAllWide += word.strWide + L"\r\n";
    }
    ASSERT_EQ(w.text.CopyToClipboard(), 1);
    EXPECT_EQ(FromClipboard<wchar_t>(CF_UNICODETEXT), strAllWide + L"\r\n");
    EXPECT_EQ(FromClipboard<char>(CF_TEXT), strAll + "\r\n");
}

// --- Paper

TEST(TextFiles, PrintedPagesHoldTheWords) {
    ListWindow<> w("one\ttwo");
    w.list.SetColWidth(0, 100, nullptr);
    w.list.SetColWidth(1, 100, nullptr);
    CFont font;
    font.CreatePointFont(80, "Tahoma");
    for (const PageWord& word : PageWords()) {
        w.list.DeleteAllItems();
        w.Add(("row\t" + word.str).c_str());
        CStringArray rows;
        rows.Add(("string row\t" + word.str).c_str());
        CDC dc;
        dc.Attach(::CreateEnhMetaFile(nullptr, nullptr, nullptr, nullptr));
        {
            QVPrintEngine engine(&dc, &font, &font, &font);
            engine.AddSectionHeader(word.str.c_str());
            engine.AddGroupHeader(word.str.c_str());
            engine.AddText(CString(word.str.c_str()), &dc, nullptr);
            engine.AddList(&w.list, &dc);
            engine.AddStringList(&rows, &w.list, &dc);
            engine.AddLabeledDataList(&dc).AddData(word.str.c_str(), word.str.c_str(),
                                                   QVPeDataLabeledListItem::Left);
            const CRect rc(0, 0, 1000, 1000);
            ASSERT_EQ(engine.Paginate(rc), 1u);
            engine.PrintPage(&dc, rc, 1);
        }
        const std::vector<DrawnText> texts = TakeTexts(::CloseEnhMetaFile(dc.Detach()));
        const auto nFound = std::count_if(texts.begin(), texts.end(), [&](const DrawnText& text) {
            return text.str == word.strWide;
        });
        EXPECT_EQ(nFound, 7) << "section, group, text, two rows, label and data: " << word.str;
    }
}

// Names that the code page cannot spell are others that lead to the same folders.
TEST(MachineFolders, LeadToEveryFolderByTheNameGiven) {
    class Taker : public QVFolderTaker {
    public:
        BOOL TakeFolder(LPCSTR pszName, int nImage) override {
            const std::wstring strName = FromPage(pszName);
            m_nSpelt +=
                std::find(std::begin(kWords), std::end(kWords), strName) != std::end(kWords);
            return nImage >= 0 && ::RemoveDirectoryW((m_strPlace + L"\\" + strName).c_str());
        }
        std::wstring m_strPlace;
        size_t m_nSpelt = 0;
    };
    wchar_t szTemp[MAX_PATH];
    ::GetTempPathW(MAX_PATH, szTemp);
    QVFileFolders files;
    for (QVMachineFolders* pFolders : {&QVMachineFolders::Network(), (QVMachineFolders*)&files}) {
        Taker taker;
        taker.m_strPlace = std::wstring(szTemp) + L"qv folders";
        ASSERT_TRUE(::CreateDirectoryW(taker.m_strPlace.c_str(), nullptr));
        for (const wchar_t* pszWord : kWords) {
            ::CreateDirectoryW((taker.m_strPlace + L"\\" + pszWord).c_str(), nullptr);
        }
        pFolders->ListSubfolders(CString(taker.m_strPlace.c_str()), taker);
        EXPECT_EQ(taker.m_nSpelt, PageWords().size());
        EXPECT_TRUE(::RemoveDirectoryW(taker.m_strPlace.c_str())) << "all were found";
    }
}

}  // namespace
