// Property sheets: captions, tabs, titles of a header and fields mean what the process's code page
// says.
#include "QVControls.h"
#include "page_text.h"
#include "support/picture.h"
#include "support/pump.h"

#include <gtest/gtest.h>

namespace {

/// A page's template in memory: an edit with id 1.
struct Template {
    DLGTEMPLATE head = {WS_CHILD | WS_CAPTION | DS_CONTROL, 0, 1, 0, 0, 160, 60};
    WORD noTexts[3] = {};
    WORD toAlign = 0;
    DLGITEMTEMPLATE edit = {WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, 0, 5, 5, 140, 14, 1};
    WORD editClass[2] = {0xFFFF, 0x0081};
    WORD noMore[2] = {};
};

class WordPage : public QVPropertyPageEx {
public:
    explicit WordPage(const std::string& strWord) : m_strWord(strWord.c_str()) {
        Construct(0u);
        m_psp.dwFlags |= PSP_DLGINDIRECT | PSP_USETITLE;
        m_psp.pResource = &m_template.head;
        m_psp.pszTitle = m_strWord;
        m_strHeaderTitle = m_strHeaderSubTitle = m_strWord;
    }
    CString m_strWord;

protected:
    void DoDataExchange(CDataExchange* pDX) override { DDX_Text(pDX, 1, m_strWord); }

private:
    Template m_template;
};

/// Text of a window or of the first tab, as the wide calls have it.
std::wstring WideText(HWND hWnd) {
    wchar_t szText[200] = L"";
    ::GetWindowTextW(hWnd, szText, 200);
    return szText;
}
std::wstring WideTab(CTabCtrl* pTabs) {
    wchar_t szText[200] = L"";
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = szText;
    item.cchTextMax = 200;
    ::SendMessageW(pTabs->m_hWnd, TCM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return szText;
}

TEST(PropertySheetText, IsOfTheProcessesCodePage) {
    for (const auto& [strWide, str] : PageWords()) {
        WordPage page(str);
        QVPropertySheetEx sheet(str.c_str());
        sheet.AddPage(&page);
        ASSERT_TRUE(sheet.Create());
        EXPECT_EQ(strWide, WideText(sheet.m_hWnd));
        EXPECT_EQ(strWide, WideTab(sheet.GetTabControl()));
        const HWND hEdit = page.GetDlgItem(1)->m_hWnd;
        EXPECT_EQ(strWide, WideText(hEdit));
        ::SetWindowTextW(hEdit, (strWide + strWide).c_str());
        EXPECT_TRUE(page.UpdateData());
        EXPECT_EQ(str + str, std::string(page.m_strWord));
        sheet.SetTitle("other");
        sheet.SetTitle(str.c_str());
        EXPECT_EQ(strWide, WideText(sheet.m_hWnd));
    }
}

TEST(PropertySheetText, OfAWizardsHeaderIsDrawnAsTheWideCallsDrawIt) {
    for (const auto& [strWide, str] : PageWords()) {
        WordPage page(str);
        QVPropertySheetEx wizard("wizard");
        wizard.m_psh.dwFlags |= PSH_WIZARD97 | PSH_HEADER;
        wizard.AddPage(&page);
        ASSERT_TRUE(wizard.Create());
        wizard.SetFinishText(str.c_str());
        EXPECT_EQ(strWide, WideText(wizard.GetDlgItem(ID_WIZFINISH)->m_hWnd));
        PumpPending();
        const auto draw = [&](const wchar_t* pszTitle) {
            for (const UINT nMessage : {PSM_SETHEADERTITLEW, PSM_SETHEADERSUBTITLEW}) {
                wizard.SendMessage(nMessage, 0, reinterpret_cast<LPARAM>(pszTitle));
            }
            wizard.Invalidate();
            return Picture::OfClient(wizard.m_hWnd);
        };
        const Picture own = Picture::OfClient(wizard.m_hWnd);
        EXPECT_TRUE(draw(strWide.c_str()) == own) << str;
        EXPECT_FALSE(draw(L"something else") == own) << str;
    }
}

}  // namespace
