#include "ocx/class_ids.h"
#include "ocx/com.h"
#include "ocx/tab_strip_members.h"
#include "support/monkey.h"
#include "support/ole_site.h"
#include "support/picture.h"
#include "support/pump.h"
#include "support/real_input.h"

#include <gtest/gtest.h>
#include <olectl.h>
#include <string>

namespace {

using ocx::Ref;
using Id = ocx::TabStripId;

constexpr RECT kPlace = {10, 10, 310, 210};
constexpr DISPID kActivate = 7;
constexpr DISPID kShown = 8;

/// A strip of four tabs, of which the second is disabled, that writes down what it tells.
class TabStripTest : public testing::Test {
protected:
    TabStripTest() {
        QVRegisterControls();
        Make();
    }
    ~TabStripTest() override {
        m_pSite.reset();
        QVRevokeControls();
        EXPECT_EQ(QVOcxObjectCount(), m_nObjects) << "references are left";
    }

    void Make(bool bHidden = false) {
        m_pSite.reset();
        m_pSite = std::make_unique<OleSite>(ocx::kTabStripClass);
        m_pSite->m_bHidden = bHidden;
        m_pSite->Activate(kPlace, OLEIVERB_UIACTIVATE);
        Put(Id::TabCount, 4);
        for (int n = 0; n < 4; ++n) {
            Put(Id::Tab, n);
            m_pSite->Put(Id::TabCaption, (L"Tab &" + std::to_wstring(n)).c_str());
        }
        Put(Id::Tab, 1);
        Put(Id::TabState, 1);
        m_pSite->m_onEvent = [this](DISPID id, DISPPARAMS& params) { OnEvent(id, params); };
    }
    void Put(DISPID id, LONG n) { EXPECT_EQ(m_pSite->Put(id, n), S_OK) << id; }
    LONG Get(DISPID id) { return m_pSite->Number(id); }

    /// Tab, and the tab that is active meanwhile.
    void OnEvent(DISPID id, DISPPARAMS& params) {
        if (id == kActivate || id == kShown) {
            m_log += (id == kActivate ? "7:" : "8:") + std::to_string(*params.rgvarg[1].piVal) +
                     "@" + std::to_string(Get(Id::ActiveTab)) + " ";
            *params.rgvarg[0].piVal = m_bCancel ? 1 : 0;
        } else if (id == DISPID_KEYDOWN) {
            m_log += "key:" + std::to_string(*params.rgvarg[1].piVal) + " ";
            if (m_vkInstead != 0) {
                *params.rgvarg[1].piVal = m_vkInstead;
            }
        }
        if (m_onEvent && id == m_idAct) {
            m_onEvent();
        }
    }

    const long m_nObjects = QVOcxObjectCount();
    std::unique_ptr<OleSite> m_pSite;
    std::string m_log;
    bool m_bCancel = false;
    short m_vkInstead = 0;
    DISPID m_idAct = 0;
    std::function<void()> m_onEvent;
};

TEST_F(TabStripTest, MouseKeysMnemonicsAndCodeSwitchThroughTheSameEvents) {
    const HWND hWnd = m_pSite->Window();
    const auto inPage = CPoint(150, 150);
    // Of the third tab: the first and the disabled one are as long.
    const LONG nLength = 42;
    const struct {
        const char* pszCase;
        LONG nOrientation;
        std::function<void()> deed;
        const char* pszLog;
        LONG nActive;
    } cases[] = {
        {"by code", 0, [&] { Put(Id::ActiveTab, 2); }, "7:2@0 8:2@2 ", 2},
        {"the active one by code", 0, [&] { Put(Id::ActiveTab, 0); }, "", 0},
        {"to the right, past the disabled one", 0, [&] { TypeKey(VK_RIGHT); },
         "key:39 7:2@0 8:2@2 ", 2},
        {"left of the first", 0, [&] { TypeKey(VK_LEFT); }, "key:37 ", 0},
        {"down, lying", 0, [&] { TypeKey(VK_DOWN); }, "key:40 ", 0},
        {"down, at the side", 3, [&] { TypeKey(VK_DOWN); }, "key:40 7:2@0 8:2@2 ", 2},
        {"to the end", 1, [&] { TypeKey(VK_END); }, "key:35 7:3@0 8:3@3 ", 3},
        {"around", 0, [&] { TypeKey(VK_PRIOR, false, true); }, "key:17 key:33 7:3@0 8:3@3 ", 3},
        {"another key instead", 0,
         [&] {
             m_vkInstead = VK_END;
             TypeKey(VK_HOME);
         },
         "key:36 7:3@0 8:3@3 ", 3},
        {"cancelled", 0,
         [&] {
             m_bCancel = true;
             TypeKey(VK_END);
         },
         "key:35 7:3@0 ", 0},
        {"a click", 0, [&] { ClickAt(hWnd, CPoint(2 * nLength + 20, 12)); }, "7:2@0 8:2@2 ", 2},
        {"a click on the disabled one", 0, [&] { ClickAt(hWnd, CPoint(nLength + 20, 12)); }, "", 0},
        {"a click on the page", 0, [&] { ClickAt(hWnd, inPage); }, "", 0},
        {"a mnemonic", 0,
         [&] {
             MSG msg = {};
             msg.wParam = '3';
             Ref<IOleControl>::Of(m_pSite->Object())->OnMnemonic(&msg);
         },
         "7:3@0 8:3@3 ", 3},
        {"fewer tabs", 0,
         [&] {
             Put(Id::ActiveTab, 3);
             m_log.clear();
             Put(Id::TabCount, 3);
         },
         "8:2@2 ", 2},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.pszCase);
        Put(Id::TabCount, 4);
        Put(Id::Orientation, one.nOrientation);
        Put(Id::ActiveTab, 0);
        BringToFront(m_pSite->Frame());
        ::SetFocus(hWnd);
        m_vkInstead = 0;
        m_bCancel = false;
        m_log.clear();
        one.deed();
        EXPECT_EQ(m_log, one.pszLog);
        EXPECT_EQ(Get(Id::ActiveTab), one.nActive);
    }
}

TEST_F(TabStripTest, TheClientAreaIsInTwipsBesideTheTabsOfEachSide) {
    const struct {
        LONG nOrientation;
        LONG nLeft, nTop, nWidth, nHeight;
    } cases[] = {
        {0, 2, 24, 296, 174}, {1, 2, 2, 296, 174}, {2, 2, 2, 274, 196}, {3, 24, 2, 274, 196}};
    constexpr LONG nTwips = 15;  // a pixel of 96 to an inch
    for (const auto& one : cases) {
        SCOPED_TRACE(one.nOrientation);
        Put(Id::TabHeight, 20 * nTwips);
        Put(Id::Orientation, one.nOrientation);
        EXPECT_EQ(Get(Id::ClientLeft), one.nLeft * nTwips);
        EXPECT_EQ(Get(Id::ClientTop), one.nTop * nTwips);
        EXPECT_EQ(Get(Id::ClientWidth), one.nWidth * nTwips);
        EXPECT_EQ(Get(Id::ClientHeight), one.nHeight * nTwips);
    }
}

/// Each property that is at work changes the picture, and only then.
TEST_F(TabStripTest, PropertiesOfLooksShow) {
    const struct {
        DISPID id;
        LONG nValue;
        COLORREF cr;  // that shows then; CLR_INVALID: just another picture
    } cases[] = {
        {Id::BackColor, 0x0000FF, 0x0000FF},
        {Id::ForeColor, 0xFF0000, 0xFF0000},
        {Id::GrayAreaColor, 0x00FF00, 0x00FF00},
        {Id::PageColor, 0x00FFFF, 0x00FFFF},
        {Id::ThreeDOuterDark, 0x112233, 0x112233},
        {Id::ThreeDOuterLight, 0x112233, 0x112233},
        {Id::ThreeDInnerDark, 0x112233, 0x112233},
        {Id::ThreeDInnerLight, 0x112233, 0x112233},
        {Id::ThreeDShadowColor, 0x112233, 0x112233},
        {Id::ThreeDHighlightColor, 0x112233, 0x112233},
        {Id::ThreeDOuterWidth, 3, CLR_INVALID},
        {Id::ThreeDOuterWidthActive, 3, CLR_INVALID},
        {Id::ThreeDInnerWidth, 3, CLR_INVALID},
        {Id::ThreeDInnerWidthActive, 3, CLR_INVALID},
        {Id::TabShape, 0, CLR_INVALID},
        {Id::TabHeight, 900, CLR_INVALID},
        {Id::TabMaxWidth, 500, CLR_INVALID},
        {Id::TabsPerRow, 2, CLR_INVALID},
        {Id::BorderStyle, 1, CLR_INVALID},
        {Id::ActiveTabBold, 1, CLR_INVALID},
        {Id::FontItalic, 1, CLR_INVALID},
        {Id::MarginLeft, 300, CLR_INVALID},
        {Id::MarginRight, 300, CLR_INVALID},
        {Id::ActiveTabInflate, 5, CLR_INVALID},
        {Id::ShowFocusRect, 0, CLR_INVALID},
        {Id::DrawFocusRect, 2, CLR_INVALID},
        {Id::Enabled, 0, CLR_INVALID},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.id);
        Make();
        const HWND hWnd = m_pSite->Window();
        ::SetFocus(hWnd);
        Put(Id::ActiveTab, 3);
        const Picture before = Picture::OfClient(hWnd);
        EXPECT_EQ(one.cr == CLR_INVALID ? 0 : before.Count(one.cr), 0);
        Put(one.id, one.nValue);
        const Picture after = Picture::OfClient(hWnd);
        EXPECT_FALSE(after == before);
        EXPECT_TRUE(one.cr == CLR_INVALID || after.Count(one.cr) > 0);
    }
}

TEST_F(TabStripTest, ContainersThatCloseItInEachEventFindNobodyThere) {
    for (const DISPID id : {kActivate, kShown, DISPID{DISPID_KEYDOWN}, DISPID{DISPID_MOUSEDOWN},
                            DISPID{DISPID_CLICK}}) {
        for (const int nWay : {0, 1, 2, 3}) {
            SCOPED_TRACE(testing::Message() << "event " << id << ", way " << nWay);
            Make();
            m_idAct = id;
            m_onEvent = [&] {
                m_onEvent = nullptr;
                nWay == 0   ? m_pSite->Close()
                : nWay == 1 ? (m_pSite->Close(), m_pSite->LetGo())
                : nWay == 2 ? static_cast<void>(::DestroyWindow(m_pSite->Frame()))
                            : Put(Id::TabCount, 0);
            };
            const HWND hWnd = m_pSite->Window();
            ::SendMessage(hWnd, WM_KEYDOWN, VK_END, 0);
            ::SendMessage(hWnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 12));
            ::SendMessage(hWnd, WM_LBUTTONUP, 0, MAKELPARAM(20, 12));
            EXPECT_FALSE(m_onEvent) << "it was not told";
            m_onEvent = nullptr;
        }
    }
}

TEST_F(TabStripTest, NoTabsAndTenThousand) {
    for (const LONG nCount : {0, 10000}) {
        Put(Id::TabCount, nCount);
        EXPECT_EQ(Get(Id::ActiveTab), nCount == 0 ? -1 : 0);
        for (const short vk : {VK_END, VK_RIGHT, VK_HOME, VK_TAB}) {
            ::SendMessage(m_pSite->Window(), WM_KEYDOWN, vk, 0);
        }
        Picture::OfClient(m_pSite->Window());
    }
    Put(Id::ActiveTab, 9999);
    // The arrows stand at the end of the row; the active tab is scrolled into view before them.
    ::SendMessage(m_pSite->Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(240, 12));
    EXPECT_EQ(Get(Id::ActiveTab), 9999);
}

TEST_F(TabStripTest, AnythingInAnyOrderMonkey) {
    constexpr DISPID kPuts[] = {Id::TabCount,         Id::ActiveTab,   Id::Tab,
                                Id::TabState,         Id::Orientation, Id::TextOrientation,
                                Id::TabsPerRow,       Id::TabHeight,   Id::TabMaxWidth,
                                Id::WordWrap,         Id::TabShape,    Id::MarginLeft,
                                Id::ActiveTabInflate, Id::BorderStyle};
    std::mt19937 random = MonkeyRandom(15);
    for (int i = 0; i < MonkeySteps(); ++i) {
        if (m_pSite->Window() == nullptr || i % 2 == 0) {
            m_idAct = 0;
            Make(i % 8 != 0);
        }
        const HWND hWnd = m_pSite->Window();
        const int n = static_cast<int>(random() % 60) - 5;
        m_idAct = random() % 2 == 0 ? kActivate : kShown;
        m_onEvent = [&] { m_pSite->Put(kPuts[random() % std::size(kPuts)], n / 4); };
        switch (random() % 5) {
            case 0:
                m_pSite->Put(kPuts[random() % std::size(kPuts)], n);
                break;
            case 1:
                m_pSite->Put(Id::TabCaption, std::wstring(n + 5, L'\xD83D').c_str());
                break;
            case 2:
                ::SendMessage(hWnd, WM_LBUTTONDOWN, 0, MAKELPARAM(n * 6, n));
                break;
            case 3:
                ::SendMessage(hWnd, WM_KEYDOWN, VK_PRIOR + random() % 8, 0);
                break;
            default:
                ::MoveWindow(hWnd, 0, 0, n, n * 3, TRUE);
                ::UpdateWindow(hWnd);
                break;
        }
        EXPECT_GE(Get(Id::TabCount), 0);
        EXPECT_LT(Get(Id::ActiveTab), std::max(Get(Id::TabCount), 1L));
    }
}

}  // namespace
