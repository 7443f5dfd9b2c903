// The about box: what it shows in both forms, with a control of the tests' own as text field.
#include "QVControls.h"
#include "about_test_ids.h"
#include "support/acting_dialog.h"
#include "support/fake_control.h"

#include <gtest/gtest.h>
#include <regex>

namespace {

constexpr CLSID kText = {
    0xCDF3B180, 0xD408, 0x11CE, {0xAE, 0x2C, 0x00, 0x80, 0xC7, 0x86, 0xE3, 0x7D}};
constexpr DISPID kTextMember = 70;
constexpr DISPID kControlType = 68;  // 1: read only

CString ItemText(CWnd& dlg, int nID) {
    CString strText;
    dlg.GetDlgItemText(nID, strText);
    return strText;
}

bool Shown(CWnd& dlg, int nID) {
    // The box itself shows when its loop has nothing else to do.
    return dlg.GetDlgItem(nID) != nullptr && (dlg.GetDlgItem(nID)->GetStyle() & WS_VISIBLE) != 0;
}

class ExtendedBox : public ActingDialog<QVAboutBox> {
public:
    explicit ExtendedBox(UINT nTemplate) : ActingDialog<QVAboutBox>(nTemplate, 0, nullptr) {
        m_bExtended = 1;
        m_strExtra1 = "first";
        m_strExtra2 = "second";
        m_strExtra3 = "third";
    }
};

}  // namespace

TEST(AboutBox, ShowsNameVersionIconAndLegalLine) {
    for (const UINT nIcon : {UINT{0}, UINT{IDI_ABOUT_TEST}, UINT{9999}}) {
        ActingDialog<QVAboutBox> box;
        if (nIcon != 0) {
            box.m_strTitle = "About";
            box.m_strProductName = "Product & Co";
        }
        box.m_nIconID = nIcon;
        box.SetDatabaseInfo("a", nullptr, "c");
        box.m_action = [&] {
            CString strTitle;
            box.GetWindowText(strTitle);
            EXPECT_EQ(strTitle, nIcon != 0 ? "About" : "");
            EXPECT_EQ(ItemText(box, 30109), nIcon != 0 ? "Product & Co" : "");
            EXPECT_TRUE(std::regex_match(ItemText(box, 30111).GetString(),
                                         std::regex("\\d+\\.\\d+\\.\\d+")));
            EXPECT_NE(ItemText(box, 30112).Find("licence"), -1);
            EXPECT_EQ(Shown(box, 30108), nIcon == IDI_ABOUT_TEST);
            EXPECT_EQ(box.GetDlgItem(30122), nullptr);
        };
        EXPECT_EQ(box.DoModal(), box.kStillThere);
        EXPECT_EQ(box.m_strDatabaseName, "c") << "stored";
    }
}

TEST(AboutBox, ShowsTheDatabaseInControls) {
    FakeControlClass text(kText);
    std::vector<std::string> texts;
    text.m_values[kTextMember] = COleVariant();
    text.m_values[kControlType] = COleVariant(0L);
    int nReadOnly = 0;
    text.m_hook = [&](const std::string& strStep) {
        if (strStep == "invoke 70" && text.m_calls.back().wFlags == DISPATCH_PROPERTYPUT) {
            texts.emplace_back(CString(text.m_calls.back().args.at(0).bstrVal));
            return texts.size() == 2 ? E_ACCESSDENIED : S_OK;
        }
        nReadOnly += strStep == "invoke 68" && text.m_calls.back().args.at(0).lVal == 1;
        return S_OK;
    };
    ActingDialog<QVAboutBox> box(TRUE, nullptr);
    box.SetDatabaseInfo("Packages", "/var/lib", "status");
    box.m_action = [&] {
        EXPECT_EQ(text.m_nAlive, 3);
        // Controls are clipped by what stands before them, so nothing may cover one.
        CRect rcField, rcOther;
        const HWND hField = ::GetDlgItem(box.m_hWnd, 30122);
        ::GetWindowRect(hField, &rcField);
        for (HWND h = hField; (h = ::GetWindow(h, GW_HWNDPREV)) != nullptr;) {
            ::GetWindowRect(h, &rcOther);
            EXPECT_FALSE(rcOther.IntersectRect(rcOther, rcField)) << ::GetDlgCtrlID(h);
        }
    };
    EXPECT_EQ(box.DoModal(), box.kStillThere) << "one refused";
    EXPECT_EQ(texts, std::vector<std::string>({"Packages", "/var/lib", "status"}));
    EXPECT_EQ(nReadOnly, 3) << "nobody types into an about box";
    EXPECT_EQ(text.m_nAlive, 0);
}

TEST(AboutBox, WhereTheControlsCannotBeMadeThereIsNoBox) {
    QVAboutBox box(TRUE, nullptr);
    EXPECT_EQ(box.DoModal(), -1);
}

TEST(AboutBox, AnExtendedTemplateShowsMore) {
    for (const char* pszExtra4 : {"", "fourth"}) {
        ExtendedBox box(IDD_ABOUT_EXTENDED);
        box.m_strExtra4 = pszExtra4;
        box.m_action = [&] {
            EXPECT_TRUE(ItemText(box, 30113) == "first" && ItemText(box, 30114) == "second");
            EXPECT_EQ(ItemText(box, 30115), "third");
            EXPECT_EQ(Shown(box, 30110), *pszExtra4 != 0);
        };
        EXPECT_EQ(box.DoModal(), box.kStillThere);
    }
    ExtendedBox box(30008);
    EXPECT_EQ(box.DoModal(), box.kStillThere) << "none of the items is there";
}
