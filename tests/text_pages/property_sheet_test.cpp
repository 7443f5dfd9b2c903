// Property sheets: captions, tabs, titles of a header and fields mean what the process's code page
// says.
#include "QVControls.h"
#include "page_text.h"
#include "support/picture.h"
#include "support/pump.h"

#include <afxpriv.h>

#include <gtest/gtest.h>

namespace {

/// A page's template: an edit with id 1.
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

std::wstring WideText(HWND hWnd) {
    wchar_t szText[200] = L"";
    ::GetWindowTextW(hWnd, szText, 200);
    return szText;
}

TEST(PropertySheetText, IsOfTheProcessesCodePage) {
    for (const auto& [strWide, str] : PageWords()) {
        WordPage page(str);
        QVPropertySheetEx sheet(str.c_str());
        sheet.AddPage(&page);
        ASSERT_TRUE(sheet.Create());
        EXPECT_EQ(strWide, WideText(sheet.m_hWnd));
        wchar_t szTab[200] = L"";
        TCITEMW item{TCIF_TEXT, 0, 0, szTab, 200, 0, 0};
        sheet.GetTabControl()->SendMessage(TCM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        EXPECT_EQ(strWide, szTab);
        ::SetWindowTextW(page.GetDlgItem(1)->m_hWnd, (strWide + strWide).c_str());
        EXPECT_TRUE(page.UpdateData());
        EXPECT_EQ(str + str, std::string(page.m_strWord));
        CDialogTemplate withFont(page.m_psp.pResource);
        CString strFace;
        WORD nPoints = 0;
        EXPECT_TRUE(withFont.SetFont(str.c_str(), 9) && withFont.GetFont(strFace, nPoints));
        EXPECT_EQ(str, std::string(strFace));
        sheet.SetTitle((str + "2").c_str());
        EXPECT_EQ(strWide + L"2", WideText(sheet.m_hWnd));
    }
}

TEST(PropertySheetText, OfAWizardIsDrawnAsTheWideCallsDrawIt) {
    for (const auto& [strWide, str] : PageWords()) {
        WordPage page(str);
        QVPropertySheetEx wizard("wizard");
        wizard.m_psh.dwFlags |= PSH_WIZARD97 | PSH_HEADER;
        wizard.AddPage(&page);
        ASSERT_TRUE(wizard.Create());
        wizard.SetFinishText(str.c_str());
        EXPECT_EQ(strWide, WideText(wizard.GetDlgItem(ID_WIZFINISH)->m_hWnd));
        PumpPending();
        const Picture own = Picture::OfClient(wizard.m_hWnd);
        for (const wchar_t* pszTitle : {L"something else", strWide.c_str()}) {
            for (const UINT nMessage : {PSM_SETHEADERTITLEW, PSM_SETHEADERSUBTITLEW}) {
                wizard.SendMessage(nMessage, 0, reinterpret_cast<LPARAM>(pszTitle));
            }
            wizard.Invalidate();
            EXPECT_EQ(Picture::OfClient(wizard.m_hWnd) == own, pszTitle == strWide) << str;
        }
    }
}

}  // namespace
