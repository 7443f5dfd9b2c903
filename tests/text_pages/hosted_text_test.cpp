// Texts on their way to and from ActiveX controls.
#include "page_text.h"
#include "support/fake_control.h"
#include "support/popup.h"

#include <gtest/gtest.h>

namespace {

TEST(HostedText, TextsOfAControlArriveWhole) {
    for (const bool bCaption : {true, false}) {  // without one, it is the window's text
        FakeControlClass cls(CLSID_FakeControl);
        if (bCaption) {
            cls.m_values[DISPID_CAPTION] = COleVariant("");
        }
        CWnd parent;
        CWnd wrapper;
        ASSERT_TRUE(MakePopup(parent));
        ASSERT_TRUE(
            wrapper.CreateControl(CLSID_FakeControl, "", WS_CHILD, CRect(0, 0, 9, 9), &parent, 1));
        for (const auto& [strWide, str] : PageWords()) {
            wrapper.SetWindowText(str.c_str());
            WCHAR szWide[100] = L"";
            ::GetWindowTextW(wrapper.m_hWnd, szWide, 100);
            EXPECT_EQ(strWide, bCaption ? V_BSTR(&cls.m_values[DISPID_CAPTION]) : szWide);
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
}

}  // namespace
