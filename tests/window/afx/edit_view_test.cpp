// Views that are edits: their commands, the dialogs for finding, archives and paper.
#include "afx/documents/print_output.h"
#include "support/mortal.h"
#include "support/real_input.h"
#include "support/temp_file.h"
#include "support/test_app.h"
#include "virtual_printer/virtual_printer.h"
#include "window/afx/view_host.h"

#include <afxext.h>

#include <dlgs.h>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

class TextView : public Mortal<CEditView> {
    DECLARE_DYNCREATE(TextView)
public:
    using CEditView::OnReplaceAll;
    using CEditView::OnReplaceSel;
    int m_nNotFound = 0;
    std::function<void()> m_onNotFound;
    std::vector<UINT> m_printed;  // the bytes that the pages begin with

    void OnTextNotFound(LPCTSTR) override {
        ++m_nNotFound;
        m_onNotFound ? m_onNotFound() : void();
    }
    BOOL OnPreparePrinting(CPrintInfo* pInfo) override {
        pInfo->m_bDirect = TRUE;
        return CEditView::OnPreparePrinting(pInfo);
    }
    void OnPrint(CDC* pDC, CPrintInfo* pInfo) override {
        m_printed.push_back(m_aPageStart.at(pInfo->m_nCurPage - 1));
        CEditView::OnPrint(pDC, pInfo);
    }
    std::string All() { return static_cast<LPCSTR>(LockBuffer()); }
    std::pair<int, int> Sel() {
        int nStart = 0;
        int nEnd = 0;
        GetEditCtrl().GetSel(nStart, nEnd);
        return {nStart, nEnd};
    }
};
IMPLEMENT_DYNCREATE(TextView, CEditView)

TEST(EditView, FindsReplacesAndCarriesOutTheEditMenu) {
    ViewHost<TextView> view;
    using Sel = std::pair<int, int>;
    EXPECT_FALSE(view.IsEnabled(ID_EDIT_SELECT_ALL));
    view->GetEditCtrl().ReplaceSel("One two one TWO\r\none");
    view->GetEditCtrl().SetSel(0, 0);
    EXPECT_TRUE(view.m_doc.IsModified());
    ASSERT_TRUE(view->FindText("one", TRUE, TRUE));
    EXPECT_EQ(view->Sel(), Sel(8, 11));
    ASSERT_TRUE(view->FindText("one", TRUE, FALSE));
    EXPECT_EQ(view->Sel(), Sel(17, 20));
    EXPECT_FALSE(view->FindText("one", TRUE, FALSE));
    ASSERT_TRUE(view->FindText("ONE", FALSE, FALSE));
    EXPECT_EQ(view->Sel(), Sel(8, 11)) << "backwards";
    view->OnReplaceSel("one", TRUE, TRUE, "1");
    EXPECT_EQ(view->Sel(), Sel(15, 18));
    CString strSelected;
    view->GetSelectedText(strSelected);
    EXPECT_STREQ(strSelected, "one");
    view->OnReplaceAll("two", "twotwo", FALSE);
    EXPECT_STREQ(view->LockBuffer(), "One twotwo 1 twotwo\r\none");
    view->UnlockBuffer();
    view->OnReplaceAll("three", "", FALSE);
    EXPECT_EQ(view->m_nNotFound, 1);
    EXPECT_TRUE(view.IsEnabled(ID_EDIT_UNDO));
    view.Command(ID_EDIT_UNDO);
    EXPECT_STREQ(view->LockBuffer(), "One two 1 TWO\r\none");

    EXPECT_FALSE(view.IsEnabled(ID_EDIT_CUT) && view->Sel().first == view->Sel().second);
    view.Command(ID_EDIT_SELECT_ALL);
    EXPECT_TRUE(view.IsEnabled(ID_EDIT_CUT));
    view.Command(ID_EDIT_CUT);
    EXPECT_EQ(view->GetBufferLength(), 0u);
    EXPECT_TRUE(view.IsEnabled(ID_EDIT_PASTE));
    view.Command(ID_EDIT_PASTE);
    view.Command(ID_EDIT_PASTE);
    EXPECT_EQ(view->GetBufferLength(), 2 * 18u);
}

TEST(EditView, LaysOutWhatFits) {
    ViewHost<TextView> view;
    view->SetWindowText("first\r\n\r\nabcdefghij klmno\r\nlast");
    CClientDC dc(nullptr);
    TEXTMETRIC tm{};
    dc.GetTextMetrics(&tm);
    const int nLine = tm.tmHeight + tm.tmExternalLeading;
    dc.IntersectClipRect(0, 0, 0, 0);
    CRect rect(0, 10, dc.GetTextExtent("abcdefghi", 9).cx, 10 + 3 * nLine + 1);
    EXPECT_EQ(view->PrintInsideRect(&dc, rect, 0, 99), 9u + 9u) << "two lines and part of one";
    EXPECT_EQ(rect.bottom, 10 + 3 * nLine);
    rect.SetRect(0, 0, 1, 500 * nLine);
    EXPECT_EQ(view->PrintInsideRect(&dc, rect, 0, 99), view->GetBufferLength())
        << "at least a character a line";
}

/// The document is the view's text, alone in its file or among other things.
class TextDoc : public CDocument {
public:
    bool m_bRaw = true;
    void DeleteContents() override {
        if (!m_viewList.IsEmpty()) {
            static_cast<CEditView*>(m_viewList.GetHead())->SetWindowText("");
        }
    }
    void Serialize(CArchive& ar) override {
        auto& view = *static_cast<CEditView*>(m_viewList.GetHead());
        DWORD dwMark = 0x12345678;
        if (m_bRaw) {
            view.SerializeRaw(ar);
        } else if (ar.IsStoring()) {
            ar << dwMark;
            view.Serialize(ar);
            ar << dwMark;
        } else {
            ar >> dwMark;
            view.Serialize(ar);
            ar >> dwMark;
            EXPECT_EQ(dwMark, 0x12345678u) << "what follows the text";
        }
    }
};

TEST(EditView, IsWrittenAndReadAgainWithItsDocument) {
    ViewHost<TextView, TextDoc> view;
    std::string strLong;
    while (strLong.size() < 0x10000 + 10) {  // more than is read at a time
        strLong += std::string(1000, 'x') + std::to_string(strLong.size()) + "\r\n";
    }
    const std::string kTexts[] = {"", "one", "\r\none\ttwo\r\n\r\n", strLong};
    for (const std::string& strText : kTexts) {
        for (const bool bRaw : {true, false}) {
            SCOPED_TRACE(strText.substr(0, 20) + (bRaw ? " raw" : ""));
            const TempFile file;
            view.m_doc.m_bRaw = bRaw;
            view->SetWindowText(strText.c_str());
            ASSERT_TRUE(view.m_doc.OnSaveDocument(file.Path()));
            if (bRaw) {
                EXPECT_TRUE(file.Content() == strText) << file.Content().size();
            }
            view->SetWindowText("before");
            view->GetEditCtrl().SetSel(2, 4);
            ASSERT_TRUE(view.m_doc.OnOpenDocument(file.Path()));
            EXPECT_TRUE(view->All() == strText) << view->GetBufferLength();
            EXPECT_FALSE(view.m_doc.IsModified());
            EXPECT_FALSE(view->GetEditCtrl().CanUndo());
            EXPECT_EQ(view->Sel(), std::pair(0, 0));
        }
    }
    // A file that says more than it has, by four gigabytes.
    const TempFile torn(std::string("\xFF\xFF\xFF\xFF") + "some text");
    CFile file(torn.Path(), CFile::modeRead);
    CArchive ar(&file, CArchive::load);
    view->SetWindowText("before");
    try {
        view->Serialize(ar);
        ADD_FAILURE() << "nothing was said";
    } catch (CArchiveException* e) {
        EXPECT_EQ(e->m_cause, CArchiveException::endOfFile);
        e->Delete();
    }
    EXPECT_EQ(view->All(), "before");
}

/// The dialog for finding that is open, or null.
HWND Finder() {
    HWND hFound = nullptr;
    while ((hFound = ::FindWindowEx(nullptr, hFound, "#32770", nullptr)) != nullptr) {
        if (::GetWindowThreadProcessId(hFound, nullptr) == ::GetCurrentThreadId()) {
            return hFound;
        }
    }
    return nullptr;
}

TEST(EditView, IsSearchedByTheUser) {
    ViewHost<TextView> view;
    using Sel = std::pair<int, int>;
    const auto press = [](int nID) { ::SendMessage(Finder(), WM_COMMAND, WPARAM(nID), 0); };
    view->SetWindowText("two one\r\none two ONE");
    ASSERT_TRUE(BringToFront(*view));
    view.Command(ID_EDIT_FIND);
    ASSERT_NE(Finder(), nullptr);
    view.Command(ID_EDIT_FIND);
    TypeText("one");
    TypeKey(VK_RETURN);
    EXPECT_EQ(view->Sel(), Sel(4, 7));
    TypeKey(VK_ESCAPE);
    EXPECT_EQ(Finder(), nullptr) << "one at a time";
    EXPECT_TRUE(view.IsEnabled(ID_EDIT_REPEAT));
    view.Command(ID_EDIT_REPEAT);
    EXPECT_EQ(view->Sel(), Sel(9, 12));

    view.Command(ID_EDIT_REPLACE);
    char szFind[20] = "";
    ::GetDlgItemText(Finder(), edt1, szFind, 20);
    EXPECT_STREQ(szFind, "one") << "what is selected";
    ::SetDlgItemText(Finder(), edt2, "1");
    press(psh1);
    EXPECT_EQ(view->All(), "two one\r\n1 two ONE");
    EXPECT_EQ(view->Sel(), Sel(15, 18)) << "the next one";
    ::CheckDlgButton(Finder(), chx2, BST_CHECKED);
    press(psh2);
    EXPECT_EQ(view->All(), "two 1\r\n1 two ONE") << "as it is written";
    press(psh2);
    EXPECT_EQ(view->m_nNotFound, 1);
    view.Command(ID_EDIT_FIND);
    EXPECT_EQ(::GetDlgItem(Finder(), psh1), nullptr) << "the other one's place";
    view->m_onNotFound = [&] { view.Frame()->DestroyWindow(); };
    ::SetDlgItemText(Finder(), edt1, "nowhere");
    press(IDOK);
    EXPECT_EQ(view.Frame(), nullptr);
    EXPECT_EQ(Finder(), nullptr) << "it goes with its view";
    EXPECT_TRUE(TheTestApp().m_exceptions.empty());
}

TEST(EditView, PrintsEachLineOnce) {
    std::string strError;
    ASSERT_TRUE(EnsureVirtualPrinter(strError)) << strError;
    const auto pages = [](const TempFile& file) {
        const std::string strPaper = file.Content();
        int nPages = 0;
        for (size_t n = 0; (n = strPaper.find("%%Page:", n)) != std::string::npos; ++n) {
            ++nPages;
        }
        return nPages;
    };
    ViewHost<TextView> view;
    for (const int nLines : {0, 1, 300}) {
        SCOPED_TRACE(nLines);
        std::string strText;
        for (int n = 0; n < nLines; ++n) {
            strText += "line " + std::to_string(n) + "\r\n";
        }
        view->SetWindowText(strText.c_str());
        view->m_printed.clear();
        const TempFile file;
        const AfxPrintOutput output(file.Path());
        view.Command(ID_FILE_PRINT_DIRECT);
        EXPECT_EQ(pages(file), static_cast<int>(view->m_printed.size()));
        EXPECT_EQ(view->m_printed.size(), nLines == 300 ? view->m_printed.size() : 1u);
        ASSERT_FALSE(view->m_printed.empty());
        EXPECT_EQ(view->m_printed.front(), 0u);
        if (nLines == 300) {
            ASSERT_GT(view->m_printed.size(), 2u);
            const UINT nPage = view->m_printed[1];
            EXPECT_EQ(strText.substr(nPage - 2, 7), "\r\nline ");
            EXPECT_LT(strText.size() - view->m_printed.back(), nPage + 10) << "no more than fits";
            EXPECT_LT(view->m_printed.back(), strText.size());
        }
    }
}

}  // namespace
