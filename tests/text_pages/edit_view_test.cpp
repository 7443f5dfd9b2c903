// Views that are edits, and buttons with texts: places and texts in the process's code page.
#include "page_text.h"

#include <afxcmn.h>
#include <afxext.h>

#include <gtest/gtest.h>

namespace {

class PageEdit : public CEditView {
public:
    using CEditView::OnReplaceAll;
    void OnTextNotFound(LPCTSTR) override {}
};

TEST(TextEditView, FindsWholeCharacters) {
    CFrameWnd frame;
    ASSERT_TRUE(frame.Create(nullptr, ""));
    auto* pView = new PageEdit;
    ASSERT_TRUE(pView->Create(nullptr, "", AFX_WS_DEFAULT_VIEW, CRect(0, 0, 200, 100), &frame, 1));
    for (const PageWord& word : PageWords()) {
        const CString strWord(word.str.c_str());
        pView->SetWindowText("ab" + strWord + "\r\n" + strWord + "c");
        CString strSelected;
        pView->GetEditCtrl().SetSel(0, 0);
        ASSERT_TRUE(pView->FindText(strWord, TRUE, TRUE));
        pView->GetSelectedText(strSelected);
        EXPECT_STREQ(strSelected, strWord);
        ASSERT_TRUE(pView->FindText(strWord, TRUE, TRUE)) << "once more";
        pView->OnReplaceAll(strWord, "x", TRUE);
        EXPECT_STREQ(pView->LockBuffer(), "abx\r\nxc");
        pView->SetWindowText(strWord);
        pView->GetEditCtrl().SetSel(0, 0);
        // The second byte of a character may look like a letter.
        std::string strLast;
        ToPage(word.strWide.substr(word.strWide.size() - 1), strLast);
        EXPECT_EQ(pView->FindText(strWord.Right(1), TRUE, TRUE) != FALSE, strLast.size() == 1);
    }
}

TEST(TextToolBar, ButtonsKeepTheirTexts) {
    CFrameWnd frame;
    ASSERT_TRUE(frame.Create(nullptr, ""));
    CToolBar bar;
    ASSERT_TRUE(bar.Create(&frame) && bar.SetButtons(nullptr, 1));
    for (const PageWord& word : PageWords()) {
        bar.SetButtonText(0, word.str.c_str());
        EXPECT_STREQ(bar.GetButtonText(0), word.str.c_str());
    }
}

}  // namespace
