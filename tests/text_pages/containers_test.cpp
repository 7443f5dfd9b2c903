// Property sheets and tab windows: captions, tabs and fields mean what the process's code page
// says.
#include "QVControls.h"
#include "ocx/qvocx.h"
#include "page_text.h"

#include <gtest/gtest.h>

namespace {

// A page's template: an edit with id 1.
const struct {
    DLGTEMPLATE head = {WS_CHILD | WS_CAPTION | DS_CONTROL, 0, 1, 0, 0, 160, 60};
    WORD noTexts[3] = {};
    DLGITEMTEMPLATE edit = {WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, 0, 5, 5, 140, 14, 1};
    WORD editClass[4] = {0xFFFF, 0x0081};
} kTemplate alignas(4);

class WordPage : public QVPropertyPageEx {
public:
    explicit WordPage(const std::string& strWord) : m_strWord(strWord.c_str()) {
        Construct(0u);
        m_psp.dwFlags |= PSP_DLGINDIRECT | PSP_USETITLE;
        m_psp.pResource = &kTemplate.head;
        m_psp.pszTitle = m_strWord;
        m_strHeaderTitle = m_strHeaderSubTitle = m_strWord;
    }
    CString m_strWord;

private:
    void DoDataExchange(CDataExchange* pDX) override { DDX_Text(pDX, 1, m_strWord); }
};

class TabPage : public QVTabWndPage {
    int Create(CWnd* pParent) override { return CreateIndirect(&kTemplate.head, pParent); }
};

class ViewPage : public QVTabViewPage {
    DECLARE_DYNCREATE(ViewPage)
    int Create(CWnd* pParent) override { return CreateIndirect(&kTemplate.head, pParent); }
};
IMPLEMENT_DYNCREATE(ViewPage, QVTabViewPage)

class TabView : public QVTabView {
    DECLARE_DYNCREATE(TabView)
public:
    static inline CString s_strTitle;
    void AddTabPages() override { AddPage(s_strTitle, RUNTIME_CLASS(ViewPage)); }
    int Width(CDC& dc) { return FindStringTwips(dc, s_strTitle + "\n" + s_strTitle + "i"); }
};
IMPLEMENT_DYNCREATE(TabView, QVTabView)

std::wstring WideTab(CWnd& tabs) {
    wchar_t szTab[200] = L"";
    TCITEMW item{TCIF_TEXT, 0, 0, szTab, 200, 0, 0};
    tabs.SendMessage(TCM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return szTab;
}

TEST(ContainersText, IsOfTheProcessesCodePage) {
    for (const auto& [strWide, str] : PageWords()) {
        WordPage page(str);
        QVPropertySheetEx sheet(str.c_str());
        sheet.AddPage(&page);
        ASSERT_TRUE(sheet.Create());
        EXPECT_EQ(strWide, WideTextOf(sheet.m_hWnd));
        EXPECT_EQ(strWide, WideTab(*sheet.GetTabControl()));
        ::SetWindowTextW(page.GetDlgItem(1)->m_hWnd, (strWide + strWide).c_str());
        EXPECT_TRUE(page.UpdateData());
        EXPECT_EQ(str + str, std::string(page.m_strWord));
        QVTabWnd tabs;
        ASSERT_TRUE(tabs.Create(12, CRect(0, 0, 90, 90), &sheet));
        ASSERT_NE(tabs.AddPage(str.c_str(), new TabPage), nullptr);
        EXPECT_EQ(strWide, WideTab(tabs.GetTabCtrl()));
        EXPECT_EQ(tabs.FindPageWithTitle(str.c_str()), 0);
    }
}

TEST(ContainersText, OfTabViewsIsMeasuredAndShownInTheCodePage) {
    ASSERT_HRESULT_SUCCEEDED(QVRegisterControls());
    for (const auto& [strWide, str] : PageWords()) {
        TabView::s_strTitle = str.c_str();
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(TabView);
        auto* pFrame = new CFrameWnd;
        ASSERT_TRUE(pFrame->Create(nullptr, "", WS_OVERLAPPEDWINDOW, CRect(0, 0, 300, 200), nullptr,
                                   nullptr, 0, &context));
        pFrame->InitialUpdateFrame(nullptr, TRUE);
        auto* pView = static_cast<TabView*>(pFrame->GetActiveView());
        EXPECT_EQ(str, std::string(pView->GetTabCtrl().GetTabCaption()));
        CWindowDC dc(pView);
        const std::wstring strLine = strWide + L"i";
        SIZE size = {};
        ::GetTextExtentPoint32W(dc.m_hDC, strLine.c_str(), static_cast<int>(strLine.size()), &size);
        EXPECT_EQ(pView->Width(dc), size.cx);
        pFrame->DestroyWindow();
    }
    QVRevokeControls();
}

}  // namespace
