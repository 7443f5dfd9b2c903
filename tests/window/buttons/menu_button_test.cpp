#include "support/monkey.h"
#include "window/buttons/button_dialog.h"

#include <gtest/gtest.h>

namespace {

constexpr UINT kFirst = 900;
constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW;

// Plays into its menu as soon as that is up.
template <class Base>
class Played : public Mortal<Watched<Base>> {
public:
    using Base::m_astrItems;
    std::function<void(HWND hMenu)> m_play = [](HWND) { ::EndMenu(); };
    int m_nMenus = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        m_nMenus += message == WM_INITMENUPOPUP;
        if (message != WM_ENTERIDLE) {
            return Watched<Base>::WindowProc(message, wParam, lParam);
        }
        const auto play = m_play;  // the button may go in it
        play(reinterpret_cast<HWND>(lParam));
        return 0;
    }
};

void SendKeys(const std::vector<WORD>& keys) {
    for (const WORD vk : keys) {
        SendKey(vk, false), SendKey(vk, true);
    }
}

TEST(MenuButton, AChoiceReachesTheMainWindowOnceAndTheMenuStaysClosed) {
    ButtonDialog<Played<QVMenuButton>> w;
    w.dlg.SetDefID(IDC_BUTTON);
    ClickAt(w.button->m_hWnd, kIn);
    EXPECT_EQ(w.button->m_nMenus, 1) << "an empty one";
    for (const char* psz : {"&one", "two", "three"}) {
        w.button->AddString(psz);
    }
    CRect rc;
    w.button->GetWindowRect(&rc);
    const struct {
        void (*open)(HWND);
        std::vector<WORD> keys;
        int nChosen;
    } cases[] = {
        {[](HWND h) { ClickAt(h, kIn); }, {VK_DOWN, VK_DOWN, VK_RETURN}, 1},
        {[](HWND h) { ClickAt(h, kIn, MouseButton::Left, true); }, {'O'}, 0},
        {[](HWND h) { ::SetFocus(h), TypeKey(VK_SPACE); }, {VK_UP, VK_RETURN}, 2},
        {[](HWND) { TypeKey('M', false, false, true); }, {VK_ESCAPE}, -1},
        {[](HWND) { TypeKey(VK_RETURN); }, {'O'}, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        w.button->m_nMenus = 0;
        w.frame.m_commands.clear();
        w.button->m_play = [&](HWND hMenu) {
            CRect rcMenu;
            ::GetWindowRect(hMenu, &rcMenu);
            EXPECT_EQ(rcMenu.TopLeft(), CPoint(rc.left, rc.bottom));
            SendKeys(c.keys);
        };
        c.open(w.button->m_hWnd);
        PumpPending();
        EXPECT_EQ(w.button->m_nMenus, 1);
        ASSERT_EQ(w.frame.m_commands.size(), c.nChosen < 0 ? 0u : 1u);
        EXPECT_TRUE(c.nChosen < 0 ||
                    w.frame.m_commands[0].id == kFirst + static_cast<UINT>(c.nChosen));
    }
    EXPECT_EQ(w.button->SendMessage(WM_GETDLGCODE), DLGC_BUTTON);
}

TEST(MenuButton, ItsCommandsAreNoClicksOfItsOwn) {
    ButtonDialog<Played<QVMenuButton>> w;
    w.button->AddString("one");
    w.button->AddString("two");
    w.button->SetStartCmdID(IDC_BUTTON);
    for (const bool bOfFrame : {false, true}) {
        bOfFrame ? void(w.button->SetParent(&w.frame)) : void();
        w.frame.m_commands.clear();
        for (const int n : {-1, 0, 1, 2, 0x10000}) {  // the last one with a code
            w.button->SendMessage(WM_COMMAND, static_cast<WPARAM>(IDC_BUTTON + n));
        }
        PumpPending();
        ASSERT_EQ(w.frame.m_commands.size(), 2u);
        EXPECT_EQ(w.frame.m_commands[1].id, IDC_BUTTON + 1u);
        EXPECT_EQ(w.button->m_nMenus, 0);
        w.button->SetDlgCtrlID(1);
    }
}

// The arrow's place is that of the caption, which the tests of code pages see.
TEST(MenuButton, TheArrowIsDrawnBehindTheCaptionAndEngravedIfDisabled) {
    ButtonDialog<QVMenuButton> w;
    w.button->MoveWindow(5, 30, 90, 31);
    CClientDC dc(w.button.get());
    const qv::SelectGuard<CFont> select(dc, w.button->GetFont());
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    const int nWidth = dc.GetTextExtent("&Mine", 5).cx + metrics.tmMaxCharWidth + 7;
    const int yText = (31 - metrics.tmDescent - metrics.tmHeight) / 2;
    const CRect rcArrow(CPoint((90 - nWidth) / 2 + nWidth - 8, yText + (metrics.tmHeight - 4) / 2),
                        CSize(9, 5));
    const auto count = [&](int nColor, const CRect& rc) {
        return Picture::OfClient(w.button->m_hWnd).Count(::GetSysColor(nColor), rc);
    };
    EXPECT_EQ(count(COLOR_WINDOWTEXT, rcArrow), 7 + 5 + 3 + 1);
    w.button->SetFocus();
    const int nFace = count(COLOR_BTNFACE, CRect(3, 3, 87, 4));
    EXPECT_TRUE(nFace > 30 && nFace < 60) << "dotted";
    w.button->EnableWindow(FALSE);
    EXPECT_EQ(count(COLOR_GRAYTEXT, rcArrow), 16);
    EXPECT_EQ(count(COLOR_3DHILIGHT, rcArrow), 7);
}

class Macros : public Played<QVMacroButton> {
public:
    using QVMacroButton::m_astrMacros;
};

TEST(MacroButton, ASnippetTakesThePlaceOfTheSelectionOrGoesToTheCaret) {
    ButtonDialog<Macros> w;
    w.button->AddMacro("name", "%n");
    w.button->AddString("no entry");
    w.button->m_play = [](HWND) { SendKeys({VK_UP, VK_RETURN}); };
    std::string strLong;
    while (strLong.size() < 131071) {
        strLong += "0123456789\r\n";
    }
    const struct {
        int nID, nTarget, nFocus;
        std::string strText;
        int nStart, nEnd;
        std::string strShown;
    } cases[] = {
        {0, IDC_EDIT, IDC_EDIT, "abcd", 1, 3, "a%nd"},
        {0, IDC_EDIT, IDC_BUTTON, "abcd", 1, 3, "abcd"},
        {IDC_LINES, IDC_LINES, IDC_EDIT, "read-only", 0, 4, "%n-only"},
        {IDC_MARK, IDC_MARK, IDC_EDIT, "no edit", 0, 0, "no edit"},
        {60000, IDC_EDIT, IDC_EDIT, "none at all", 0, 0, "none at all"},
        // EM_GETSEL cannot tell these, and EM_CHARFROMPOS has their low words only.
        {0, IDC_LINES, IDC_LINES, strLong, 65535, 65535, std::string(strLong).insert(65535, "%n")},
        {0, IDC_LINES, IDC_LINES, strLong, 131071, 131071,
         std::string(strLong).insert(131071, "%n")},
    };
    for (const auto& c : cases) {
        CWnd& target = *w.dlg.GetDlgItem(c.nTarget);
        target.SetWindowText(c.strText.c_str());
        w.dlg.GetDlgItem(c.nFocus)->SetFocus();
        target.SendMessage(EM_SETSEL, static_cast<WPARAM>(c.nStart), c.nEnd);
        target.SendMessage(EM_SCROLLCARET);
        w.button->SetEditCtrlID(static_cast<UINT>(c.nID));
        ClickAt(w.button->m_hWnd, kIn);
        CString str;
        target.GetWindowText(str);
        EXPECT_TRUE(c.strShown == LPCSTR(str)) << str.Left(20);
        EXPECT_FALSE(target.SendMessage(EM_CANUNDO));
        const LRESULT lBehind = target.SendMessage(EM_POSFROMCHAR, c.nStart + WPARAM{2});
        EXPECT_TRUE(c.nStart < 65535 || CWnd::GetCaretPos() == CPoint(lBehind));
    }
    w.button->OnMenuSelected(1);  // none
    const CString strEntry("a title and a snippet");
    RefuseEach(
        "entry", [&] { w.button->AddMacro(strEntry, strEntry); },
        [&] { EXPECT_EQ(w.button->m_astrItems.GetSize(), w.button->m_astrMacros.GetSize()); });
}

// --- Whoever is told of a button, or has its menu, takes it away, or the dialog with it

template <class Button>
class ButtonMonkey : public testing::Test {};
using Buttons = testing::Types<Mortal<Watched<QVToolButton>>, Mortal<Watched<QVCheckWnd>>, Macros>;
TYPED_TEST_SUITE(ButtonMonkey, Buttons);

TYPED_TEST(ButtonMonkey, SurvivesAnyOrderOfMessagesAndTheWantOfMemory) {
    ButtonDialog<TypeParam> w;
    HWND hWnd = nullptr;
    int nTold = 0;
    bool bMayGo = false;
    const auto attack = [&] {
        switch (bMayGo ? ++nTold % 6 : 0) {
            case 1:
                return w.button.reset();
            case 3:
                return void(w.button != nullptr && w.button->DestroyWindow());
            case 5:
                return void(w.dlg.DestroyWindow());
        }
    };
    w.dlg.m_told = [&](UINT) { attack(); };
    const auto make = [&] {
        bMayGo = false;
        w.dlg.m_hWnd == nullptr ? void(w.dlg.Create(IDD_BUTTONS, &w.frame)) : void();
        w.button = std::make_unique<TypeParam>();
        w.button->CWnd::Create("BUTTON", "x", kStyle, CRect(5, 40, 35, 60), &w.dlg, IDC_BUTTON);
        if constexpr (requires { w.button->m_play; }) {
            w.button->AddMacro("x", "y");
            w.button->SetEditCtrlID(IDC_EDIT);
            w.button->m_play = [&](HWND) { attack(), ::EndMenu(); };
        }
        hWnd = w.button->m_hWnd;
        bMayGo = true;
    };
    const auto send = [&](UINT nMessage, WPARAM wParam = 0) {
        ::SendMessage(hWnd, nMessage, wParam, MAKELPARAM(5, 8));
    };
    constexpr UINT kOthers[] = {WM_CANCELMODE, WM_SETFOCUS, WM_KILLFOCUS,      BM_SETCHECK,
                                BM_SETSTATE,   WM_ENABLE,   WM_CAPTURECHANGED, WM_LBUTTONDBLCLK};
    PlayInAnyOrder(w.button, make,
                   {[&](int n) { send(kOthers[(n + 5) % 8], n % 3); },
                    [&](int) { send(WM_LBUTTONDOWN), send(WM_LBUTTONUP); },
                    [&](int) { send(WM_KEYDOWN, VK_SPACE), send(WM_KEYUP, VK_SPACE); },
                    [&](int n) { send(WM_COMMAND, kFirst + n % 2), PumpPending(); },
                    [&](int n) { ::MoveWindow(hWnd, 0, 0, n, n / 4, TRUE), PumpPending(); }});
    EXPECT_TRUE(nTold > 100 || typeid(TypeParam) == typeid(Mortal<Watched<QVCheckWnd>>));
    make();
    bMayGo = false;
    RefuseEach(
        "all", [&] { send(WM_LBUTTONDOWN), w.button->RedrawWindow(); },
        [&] { EXPECT_EQ(w.button->nThrown, 0); });
}

}  // namespace
