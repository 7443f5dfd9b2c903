// Texts on their way to and from ActiveX controls.
#include "page_text.h"
#include "support/fake_control.h"
#include "support/popup.h"

#include <gtest/gtest.h>

namespace {

TEST(HostedText, TextsOfAControlArriveWhole) {
    constexpr CLSID kFake = {
        0x6F2B7A11, 0x41C7, 0x4E0B, {0x9C, 0x55, 0x0A, 0x1D, 0x7E, 0x22, 0x83, 0x01}};
    FakeControlClass cls(kFake);
    cls.m_values[DISPID_CAPTION] = OwnedVariant::Text(L"");
    CWnd parent;
    CWnd wrapper;
    ASSERT_TRUE(MakePopup(parent));
    ASSERT_TRUE(wrapper.CreateControl(kFake, "", WS_CHILD, CRect(0, 0, 9, 9), &parent, 1));
    for (const auto& [strWide, str] : PageWords()) {
        wrapper.SetWindowText(str.c_str());
        EXPECT_EQ(strWide, V_BSTR(&cls.m_values[DISPID_CAPTION]));
        CString strBack;
        wrapper.GetWindowText(strBack);
        EXPECT_EQ(strBack, str.c_str());
        // Where there is no room for all, whole characters come.
        char szShort[4];
        const int nBytes = wrapper.GetWindowText(szShort, sizeof szShort);
        EXPECT_EQ(FromPage(szShort), strWide.substr(0, FromPage(szShort).size()));
        EXPECT_EQ(nBytes, lstrlen(szShort));
    }
}

}  // namespace
