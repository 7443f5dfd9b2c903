// Sheets of the library and of the framework, with pages of either: tabs and wizards by buttons and
// keys, vetoes, values, fonts.
#include "QVControls.h"
#include "window/containers/sheet_window.h"

#include <afxcmn.h>

namespace {

template <class SheetClass, class PageClass>
struct Family {
    using Sheet = SheetClass;
    using Page = PageClass;
};

template <class F>
class PropertySheet : public testing::Test, public ThreePages<typename F::Sheet, typename F::Page> {
};
using Families =
    testing::Types<Family<QVPropertySheet, QVPropertyPage>,
                   Family<QVPropertySheetEx, QVPropertyPageEx>,
                   Family<CPropertySheet, CPropertyPage>, Family<CPropertySheetEx, CPropertyPageEx>,
                   Family<QVPropertySheetEx, CPropertyPage>, Family<CPropertySheet, QVPropertyPage>>;
TYPED_TEST_SUITE(PropertySheet, Families);

TYPED_TEST(PropertySheet, ButtonsEndItAsTheyAreLabelled_UnlessAPageRefuses) {
    const auto run = [&](int nID) {
        return this->Run([&, nID] { this->Press(nID); });
    };
    EXPECT_EQ(run(IDOK), IDOK);
    EXPECT_EQ(this->Take(), "b:kill b:apply b:ok");
    EXPECT_EQ(run(IDCANCEL), IDCANCEL);
    EXPECT_EQ(this->Take(), "b:query b:reset b:cancel");
    EXPECT_EQ(this->Run([&] { this->sheet.SendMessage(WM_SYSCOMMAND, SC_CLOSE); }), IDCANCEL);
    this->Take();
    EXPECT_EQ(this->Run([&] { TypeKey(VK_ESCAPE); }), IDCANCEL);
    EXPECT_EQ(this->Run([&] { TypeKey(VK_RETURN); }), IDOK);
    EXPECT_EQ(this->Run([&] {
        this->sheet.PressButton(PSBTN_OK);
        PumpPending();
    }), IDOK);

    struct Veto {
        const char* pszQuestion;
        int nID;
    };
    for (const Veto& veto : {Veto{"kill", IDOK}, Veto{"apply", IDOK}, Veto{"query", IDCANCEL}}) {
        this->b.m_refused = {veto.pszQuestion};
        EXPECT_EQ(run(veto.nID), this->sheet.kStillThere) << veto.pszQuestion;
        EXPECT_EQ(this->sheet.m_hWnd, nullptr);
        EXPECT_TRUE(this->owner.IsWindowEnabled());
    }
}

}  // namespace
