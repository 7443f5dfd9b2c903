// The framework's own texts: what is set comes back, and means the same to the wide calls.
#include "page_text.h"
#include "support/popup.h"

#include <afxadv.h>
#include <afxcmn.h>
#include <afxdlgs.h>
#include <afxext.h>
#include <afxpriv.h>

#include <gtest/gtest.h>

namespace {

/// A member of a dialog's, exchanged with its control.
class Field : public CWnd {
public:
    CString m_strValue;

    void DoDataExchange(CDataExchange* pDX) override {
        DDX_Text(pDX, 1, m_strValue);
        DDV_MaxChars(pDX, m_strValue, 2000);
    }
};

/// The words, and long texts round about the room that is tried first, with the characters at odd
/// and even places.
std::vector<PageWord> ShortAndLongTexts() {
    std::vector<PageWord> words = PageWords();
    for (size_t nChars = 25; nChars < 260; nChars += nChars < 140 ? 1 : 30) {
        for (const char* pszBefore : {"", "x"}) {
            const std::string str = pszBefore + LongWord(nChars).str;
            words.push_back({FromPage(str), str});
        }
    }
    return words;
}

TEST(FrameworkText, CaptionsRowsAndFieldsComeBackWhole) {
    Field parent;
    ASSERT_TRUE(MakePopup(parent));
    const CRect rc(0, 0, 100, 20);
    CEdit edit;
    CButton button;
    CStatic label;
    CStatusBar bar;
    CMenu menu;
    ASSERT_TRUE(edit.Create(WS_CHILD | ES_AUTOHSCROLL, rc, &parent, 1));
    ASSERT_TRUE(button.Create("", WS_CHILD, rc, &parent, 2));
    ASSERT_TRUE(label.Create("", WS_CHILD, rc, &parent, 3));
    ASSERT_TRUE(bar.Create(&parent));
    ASSERT_TRUE(menu.CreatePopupMenu());
    const UINT nIndicator = ID_SEPARATOR;
    bar.SetIndicators(&nIndicator, 1);
    wchar_t szWide[1000] = L"";
    CString strBack;
    for (const auto& [strWide, str] : ShortAndLongTexts()) {
        for (CWnd* pWnd : std::initializer_list<CWnd*>{&parent, &edit, &button, &label}) {
            pWnd->SetWindowText(str.c_str());
            EXPECT_EQ(strWide, WideTextOf(pWnd->m_hWnd));
            pWnd->GetWindowText(strBack);
            EXPECT_EQ(str, std::string(strBack));
            EXPECT_GE(pWnd->GetWindowTextLength(), strBack.GetLength());
            char szBack[1000] = "";
            pWnd->GetWindowText(szBack, sizeof szBack);
            EXPECT_EQ(str, szBack);
        }
        menu.InsertMenu(0, MF_BYPOSITION | MF_STRING, 7, str.c_str());
        menu.GetMenuString(0, strBack, MF_BYPOSITION);
        EXPECT_EQ(str, std::string(strBack));
        bar.SetPaneText(0, str.c_str());
        ::SendMessageW(bar.m_hWnd, SB_GETTEXTW, 0, reinterpret_cast<LPARAM>(szWide));
        EXPECT_EQ(strWide, szWide);
        parent.m_strValue = str.c_str();
        ASSERT_TRUE(parent.UpdateData(FALSE));
        EXPECT_EQ(strWide, WideTextOf(edit.m_hWnd));
        parent.m_strValue = "before";
        ASSERT_TRUE(parent.UpdateData(TRUE));
        EXPECT_EQ(str, std::string(parent.m_strValue));
    }
}

/// What a control that takes items as structures has of a text.
template <class Item, class Control>
std::string TextBack(Control& control, UINT nMask, std::string strText) {
    Item item{};
    item.mask = nMask;
    item.pszText = strText.data();
    const int nItem = control.InsertItem(0, &item);
    char szBack[1000] = "";
    item.pszText = szBack;
    item.cchTextMax = sizeof szBack;
    EXPECT_TRUE(control.GetItem(nItem, &item));
    return szBack;
}

TEST(FrameworkText, ItemsComeBackWhole) {
    CWnd parent;
    ASSERT_TRUE(MakePopup(parent));
    const CRect rc(0, 0, 100, 100);
    CListBox box;
    CComboBox combo;
    CListCtrl list;
    CTreeCtrl tree;
    CTabCtrl tab;
    CHeaderCtrl header;
    ASSERT_TRUE(box.Create(WS_CHILD, rc, &parent, 1));
    ASSERT_TRUE(combo.Create(WS_CHILD | CBS_DROPDOWN | CBS_AUTOHSCROLL, rc, &parent, 2));
    ASSERT_TRUE(list.Create(WS_CHILD | LVS_REPORT, rc, &parent, 3));
    ASSERT_TRUE(tree.Create(WS_CHILD, rc, &parent, 4));
    ASSERT_TRUE(tab.Create(WS_CHILD, rc, &parent, 5));
    ASSERT_TRUE(header.Create(WS_CHILD, rc, &parent, 6));
    list.InsertColumn(0, "column", LVCFMT_LEFT, 50);
    CString strBack;
    for (const auto& [strWide, str] : ShortAndLongTexts()) {
        const int nItem = box.AddString(str.c_str());
        box.GetText(nItem, strBack);
        EXPECT_EQ(str, std::string(strBack));
        combo.GetLBText(combo.AddString(str.c_str()), strBack);
        EXPECT_EQ(str, std::string(strBack));
        combo.SetCurSel(combo.FindStringExact(-1, str.c_str()));
        combo.GetWindowText(strBack);
        EXPECT_EQ(str, std::string(strBack));
        EXPECT_EQ(str, std::string(list.GetItemText(list.InsertItem(0, str.c_str()), 0)));
        EXPECT_EQ(str, std::string(tree.GetItemText(tree.InsertItem(str.c_str()))));
        EXPECT_EQ(str, TextBack<TCITEM>(tab, TCIF_TEXT, str));
        EXPECT_EQ(str, TextBack<HDITEM>(header, HDI_TEXT, str));
    }
    box.GetText(9999, strBack);
    EXPECT_STREQ("", strBack);
}

// What a module's string table holds, in UTF-16, comes in the process's code page.
TEST(FrameworkText, StringsFromResources) {
    const HINSTANCE hModule = ::LoadLibrary("comdlg32.dll");
    ASSERT_NE(hModule, nullptr);
    int nFound = 0;
    for (UINT nID = 0; nID < 2000; ++nID) {
        wchar_t szWide[2048] = L"";
        const int nUnits = ::LoadStringW(hModule, nID, szWide, 2048);
        CString str("before");
        EXPECT_EQ(nUnits > 0, str.LoadString(hModule, nID) != FALSE);
        std::string strPage;
        if (ToPage(std::wstring(szWide, static_cast<size_t>(nUnits)), strPage)) {
            EXPECT_EQ(strPage, std::string(str));
            nFound += nUnits > 0;
        }
    }
    EXPECT_GT(nFound, 10);
    ::FreeLibrary(hModule);
}

TEST(FrameworkText, FacesOfDialogTemplates) {
    const struct {
        DLGTEMPLATE dlg = {WS_POPUP, 0, 0, 0, 0, 50, 50};
        WORD empty[4] = {};  // no menu, the usual class, no title
    } memory;
    for (const PageWord& word : PageWords()) {
        CDialogTemplate withFont(&memory.dlg);
        CString strFace;
        WORD nPoints = 0;
        EXPECT_TRUE(withFont.SetFont(word.str.c_str(), 9) && withFont.GetFont(strFace, nPoints));
        EXPECT_EQ(word.str, std::string(strFace));
    }
}

// Character by character, whatever bytes those have.
TEST(FrameworkText, StringsAreCutAtCharacters) {
    for (const PageWord& word : PageWords()) {
        const CString str(word.str.c_str());
        std::wstring strReversed;
        for (size_t i = 0; i < word.strWide.size(); ++i) {
            const bool bPair = word.strWide[i] >= 0xD800 && word.strWide[i] < 0xDC00;
            strReversed.insert(0, word.strWide.substr(i, bPair ? 2 : 1));
            i += bPair;
        }
        EXPECT_EQ(strReversed, FromPage(std::string(CString(str).MakeReverse()))) << word.str;

        const CString strBetween = "." + str + "\\";
        EXPECT_EQ(str.GetLength() + 1, strBetween.Find('\\'));
        EXPECT_EQ(str.GetLength() + 1, strBetween.ReverseFind('\\'));
        EXPECT_EQ(str.GetLength() + 1, strBetween.FindOneOf("\\|"));
        EXPECT_EQ(1, strBetween.Find(str));
        EXPECT_EQ(0, str.Compare(str));
        EXPECT_EQ(0, str.CompareNoCase(CString(str)));

        const CString strTwo = "<" + str + ">";
        int nAt = 0;
        EXPECT_STREQ("<", strTwo.Tokenize(str, nAt));
        EXPECT_STREQ(">", strTwo.Tokenize(str, nAt)) << "behind the whole delimiter";

        // A set of other characters that share bytes with these.
        for (const PageWord& other : PageWords()) {
            const size_t nWide = word.strWide.find_first_of(other.strWide);
            std::string strBefore;
            ToPage(word.strWide.substr(0, nWide), strBefore);
            if (word.strWide.find(L'\xD83D') == std::wstring::npos) {  // one that is no half
                EXPECT_EQ(nWide == std::wstring::npos ? -1 : static_cast<int>(strBefore.size()),
                          str.FindOneOf(other.str.c_str()))
                    << word.str << " / " << other.str;
            }
        }
    }
}

TEST(FrameworkText, LettersChangeTheirCase) {
    for (const PageWord& word : PageWords()) {
        std::wstring strUpper(word.strWide);
        std::wstring strLower(word.strWide);
        ::CharUpperBuffW(strUpper.data(), static_cast<DWORD>(strUpper.size()));
        ::CharLowerBuffW(strLower.data(), static_cast<DWORD>(strLower.size()));
        std::string strPage;
        if (ToPage(strUpper, strPage)) {
            EXPECT_EQ(strPage, std::string(CString(word.str.c_str()).MakeUpper()));
        }
        if (ToPage(strLower, strPage)) {
            EXPECT_EQ(strPage, std::string(CString(word.str.c_str()).MakeLower()));
        }
        CString strFormatted;
        strFormatted.Format("%d %s.", 5, word.str.c_str());
        EXPECT_EQ("5 " + word.str + ".", std::string(strFormatted));
        EXPECT_EQ(word.str, std::string(CString(word.strWide.c_str())));
        BSTR bstr = CString(word.str.c_str()).AllocSysString();
        EXPECT_EQ(word.strWide, bstr);
        ::SysFreeString(bstr);
    }
}

TEST(FrameworkText, FoldersOfChosenFiles) {
    std::vector<PageWord> words = PageWords();
    PageWord backslash{L"\u8868", {}};  // in 932 its second byte is one
    if (ToPage(backslash.strWide, backslash.str)) {
        words.push_back(backslash);
    }
    for (const PageWord& word : words) {
        CFileDialog dlg(TRUE, nullptr, nullptr, OFN_ALLOWMULTISELECT,
                        (word.str + "|*.*||").c_str());
        EXPECT_EQ(word.str, dlg.m_ofn.lpstrFilter);
        const CFileDialog named(FALSE, "txt", ("C:\\" + word.str + ".tar.gz").c_str());
        EXPECT_EQ(word.str + ".tar", std::string(named.GetFileTitle()));
        EXPECT_STREQ("gz", named.GetFileExt());
        const std::string strChosen =
            "C:\\" + word.str + '\0' + word.str + '\0' + "two" + '\0' + '\0';
        std::copy(strChosen.begin(), strChosen.end(), dlg.m_ofn.lpstrFile);
        POSITION pos = dlg.GetStartPosition();
        EXPECT_EQ("C:\\" + word.str + "\\" + word.str, std::string(dlg.GetNextPathName(pos)));
        ASSERT_NE(nullptr, pos);
        EXPECT_EQ("C:\\" + word.str + "\\two", std::string(dlg.GetNextPathName(pos)));
        EXPECT_EQ(nullptr, pos);
    }
}

TEST(FrameworkText, RecentFilesAndChildrenKeepTheirNames) {
    for (const PageWord& word : PageWords()) {
        SCOPED_TRACE(word.str);
        const std::string strFolder = "c:\\" + word.str + "\\" + word.str + "\\";
        CRecentFileList files(0, "", "%d", 1, 12);
        files.Add((strFolder + word.str + ".txt").c_str());
        CString str;
        ASSERT_TRUE(files.GetDisplayName(str, 0, "", 0));
        const std::wstring strShown = FromPage(std::string(str));
        EXPECT_EQ(strShown.substr(strShown.rfind(L'\\') + 1), word.strWide + L".txt");
        files.GetDisplayName(str, 0, strFolder.c_str(), static_cast<int>(strFolder.size()));
        EXPECT_EQ(std::string(str), word.str + ".txt");

        auto* pFrame = new CMDIFrameWnd;
        ASSERT_TRUE(pFrame->Create(nullptr, word.str.c_str()));
        auto* pChild = new CMDIChildWnd;
        ASSERT_TRUE(pChild->Create(nullptr, word.str.c_str(), WS_VISIBLE | WS_OVERLAPPEDWINDOW,
                                   CFrameWnd::rectDefault, pFrame));
        pChild->MDIMaximize();
        EXPECT_EQ(WideTextOf(pFrame->m_hWnd), word.strWide + L" - [" + word.strWide + L"]");
        pFrame->DestroyWindow();
    }
}

}  // namespace
