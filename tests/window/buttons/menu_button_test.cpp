#include "QVControls.h"
#include "support/monkey.h"
#include "support/mortal.h"
#include "support/picture.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "support/test_app.h"
#include "window/buttons/button_input.h"
#include "window/buttons/button_test_ids.h"
#include "window/refusals.h"

#include <afxext.h>

#include <gtest/gtest.h>

namespace {

constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW;
constexpr unsigned kFirst = 900;
const CPoint kIn(20, 8);

// Plays input into its menu as soon as that is up; without any, the menu closes.
template <class Base>
class Played : public Base {
public:
    using Base::m_astrItems;
    std::function<void(HWND hMenuWnd, HMENU hMenu)> m_play;
    int m_nMenus = 0;
    int m_nEntries = -1;
    CRect m_rcMenu;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_INITMENUPOPUP) {
            ++m_nMenus;
            m_hMenu = reinterpret_cast<HMENU>(wParam);
            m_nEntries = ::GetMenuItemCount(m_hMenu);
        } else if (message == WM_ENTERIDLE && wParam == MSGF_MENU) {
            const auto hMenuWnd = reinterpret_cast<HWND>(lParam);
            ::GetWindowRect(hMenuWnd, &m_rcMenu);
            if (m_play) {
                m_play(hMenuWnd, m_hMenu);
            } else {
                ::EndMenu();
            }
            return 0;
        }
        return Base::WindowProc(message, wParam, lParam);
    }

private:
    HMENU m_hMenu = nullptr;
};

// The application's main window.
class Main : public CFrameWnd {
public:
    Main() {
        Create(nullptr, "Main", WS_OVERLAPPEDWINDOW, CRect(0, 0, 300, 200));
        ShowWindow(SW_SHOW);
        TheTestApp().m_pMainWnd = this;
    }
    ~Main() override {
        TheTestApp().m_pMainWnd = nullptr;
        DestroyWindow();
    }
    void PostNcDestroy() override {}
    std::vector<UINT> m_commands;
    std::function<void()> m_act = [] {};

protected:
    void OnEntry(UINT nID) {
        m_commands.push_back(nID);
        m_act();
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Main, CFrameWnd)
    ON_COMMAND_RANGE(kFirst, kFirst + 99, &Main::OnEntry)
END_MESSAGE_MAP()

template <class Button>
Button& WithEntries(Button& button) {
    for (const char* psz : {"&one", "two", "three"}) {
        button.AddString(psz);
    }
    return button;
}

// A menu button in a dialog of the main window, with edits.
template <class Button = Played<QVMenuButton>>
struct Dialog {
    Dialog() {
        dlg.Create(IDD_BUTTONS, &frame);
        button.SubclassDlgItem(IDC_MENU, &dlg);
        dlg.ShowWindow(SW_SHOW);
        BringToFront(dlg.m_hWnd);
        edit.SetFocus();
    }
    std::string Text(UINT nID = IDC_EDIT) {
        CString str;
        dlg.GetDlgItemText(static_cast<int>(nID), str);
        return std::string(str);
    }
    // Opens the menu and takes entry nIndex by keys.
    void Choose(int nIndex) {
        button.m_play = [=](HWND, HMENU) {
            SendKeys(std::vector<WORD>(static_cast<size_t>(nIndex) + 1, VK_DOWN));
            SendKeys({VK_RETURN});
        };
        ClickAt(button.m_hWnd, kIn);
        PumpPending();
    }

    Main frame;
    CDialog dlg;
    Button button;
    CWnd& edit = *CWnd::FromHandle(::GetDlgItem(dlg.m_hWnd, IDC_EDIT));
};

// --- The menu

const std::pair<const char*, std::function<void(HWND)>> kOpen[] = {
    {"mouse", [](HWND hWnd) { ClickAt(hWnd, kIn); }},
    {"double click", [](HWND hWnd) { ClickAt(hWnd, kIn, MouseButton::Left, true); }},
    {"Space", [](HWND hWnd) { ::SetFocus(hWnd), TypeKey(VK_SPACE); }},
    {"BM_CLICK", [](HWND hWnd) { ::SendMessage(hWnd, BM_CLICK, 0, 0); }},
    {"mnemonic", [](HWND) { TypeKey('M', false, false, true); }},
    {"Enter", [](HWND) { TypeKey(VK_RETURN); }},
};
constexpr int kOfAnyParent = 4;  // the others are a dialog's

struct Choice {
    const char* pszName;
    std::vector<UINT> commands;
    std::function<void(HWND, HMENU)> play;
};
const Choice kChoices[] = {
    {"keys",
     {kFirst + 1},
     [](HWND, HMENU) {
         SendKeys({VK_DOWN, VK_DOWN, VK_RETURN});
     }},
    {"letter", {kFirst}, [](HWND, HMENU) { SendKeys({'O'}); }},
    {"mouse",
     {kFirst + 2},
     [](HWND hWnd, HMENU hMenu) {
         CRect rc;
         ::GetMenuItemRect(hWnd, hMenu, 2, &rc);
         ::SetCursorPos(rc.CenterPoint().x, rc.CenterPoint().y);
         SendMouse({MOUSEEVENTF_MOVE, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP});
     }},
    {"none", {}, [](HWND, HMENU) { SendKeys({VK_ESCAPE}); }},
};

template <class Button>
void ExpectEachChoiceOnce(Main& frame, Button& button, int nWays) {
    for (int nWay = 0; nWay < nWays; ++nWay) {
        for (const Choice& choice : kChoices) {
            SCOPED_TRACE(std::string(kOpen[nWay].first) + ", " + choice.pszName);
            button.m_nMenus = 0;
            button.m_play = choice.play;
            frame.m_commands.clear();
            kOpen[nWay].second(button.m_hWnd);
            PumpPending();
            EXPECT_EQ(frame.m_commands, choice.commands);
            EXPECT_EQ(button.m_nMenus, 1);
            EXPECT_EQ(button.GetState() & BST_PUSHED, 0u);
        }
    }
}

TEST(MenuButton, AChoiceReachesTheMainWindowOnceAndTheMenuStaysClosed) {
    Dialog<> w;
    WithEntries(w.button);
    w.dlg.SetDefID(IDC_MENU);
    ExpectEachChoiceOnce(w.frame, w.button, std::size(kOpen));
    EXPECT_EQ(w.button.SendMessage(WM_GETDLGCODE), DLGC_BUTTON);
    CRect rc;
    w.button.GetWindowRect(&rc);
    EXPECT_EQ(w.button.m_rcMenu.TopLeft(), CPoint(rc.left, rc.bottom));
    w.button.SetStartCmdID(IDC_MENU - 1);  // its own id among the entries'
    w.Choose(1);
    EXPECT_EQ(w.button.m_nMenus, 2);

    Main frame;
    Played<QVMenuButton> button;
    button.Create("menu", kStyle, CRect(10, 10, 90, 35), &frame, 5);
    ExpectEachChoiceOnce(frame, WithEntries(button), kOfAnyParent);
}

TEST(MenuButton, OnlyItsEntriesAreItsCommands) {
    Dialog<> w;
    EXPECT_EQ(WithEntries(w.button).AddString("four"), 3);
    w.button.SetStartCmdID(920);
    for (const WPARAM wCommand : {WPARAM{919}, WPARAM{924}, WPARAM{MAKEWPARAM(920, 1)}}) {
        w.button.SendMessage(WM_COMMAND, wCommand);
    }
    w.button.SendMessage(WM_COMMAND, 923);
    PumpPending();
    EXPECT_EQ(w.frame.m_commands, (std::vector<UINT>{923}));
    TheTestApp().m_pMainWnd = nullptr;
    w.button.SendMessage(WM_COMMAND, 923);
    PumpPending();
    EXPECT_EQ(w.frame.m_commands.size(), 1u);
}

TEST(MenuButton, AnEmptyMenuComesUpAndADisabledButtonHasNone) {
    Dialog<> w;
    for (const auto& [pszName, open] : kOpen) {
        w.button.m_nMenus = 0;
        w.edit.SetFocus();
        w.dlg.SetDefID(IDC_MENU);
        open(w.button.m_hWnd);
        EXPECT_EQ(w.button.m_nMenus, 1) << pszName;
        EXPECT_EQ(w.button.m_nEntries, 0);
    }
    w.button.EnableWindow(FALSE);
    for (const size_t nWay : {0u, 4u, 5u}) {
        w.edit.SetFocus();
        kOpen[nWay].second(w.button.m_hWnd);
    }
    EXPECT_EQ(w.button.m_nMenus, 1);
}

// --- Windows that go

TEST(MenuButton, MayGoWhileItsMenuIsOpenOrItsCommandIsHandled) {
    using Button = Mortal<Played<QVMenuButton>>;
    for (const bool bDelete : {false, true}) {
        for (const int nWhen : {0, 1, 2}) {
            SCOPED_TRACE(nWhen);
            Main frame;
            auto* pButton = new Button;
            WithEntries(*pButton).Create("menu", kStyle, CRect(10, 10, 90, 35), &frame, 5);
            BringToFront(frame.m_hWnd);
            const HWND hWnd = pButton->m_hWnd;
            const auto go = [&] {
                if (bDelete) {
                    delete std::exchange(pButton, nullptr);
                } else {
                    nWhen == 1 ? frame.DestroyWindow() : pButton->DestroyWindow();
                }
            };
            pButton->m_play = [=, &frame, gone = std::function<void()>(go)](HWND, HMENU) {
                const auto goNow = gone;  // deleting the button deletes this function
                nWhen == 2 ? SendKeys({VK_DOWN, VK_RETURN}) : goNow();
            };
            frame.m_act = go;
            TheTestApp().m_pMainWnd = nWhen == 1 ? nullptr : &frame;
            ClickAt(hWnd, kIn);
            PumpPending();
            EXPECT_FALSE(::IsWindow(hWnd));
            EXPECT_EQ(frame.m_commands.size(), nWhen == 2 ? 1u : 0u);
            delete pButton;
        }
    }
}

// --- Looks

TEST(MenuButton, CaptionAndArrowAreDrawnAndEngravedIfDisabled) {
    Main frame;
    QVMenuButton button;
    button.Create("I", kStyle, CRect(0, 0, 90, 31), &frame, 5);
    CFont font;
    font.CreatePointFont(90, "Tahoma");
    button.SetFont(&font);
    CClientDC dc(&button);
    CFont* const pOld = dc.SelectObject(&font);
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    const int nWidth = dc.GetTextExtent("I", 1).cx + metrics.tmMaxCharWidth + 7;
    dc.SelectObject(pOld);
    const CRect rcBlock(CPoint((90 - nWidth) / 2, (31 - metrics.tmDescent - metrics.tmHeight) / 2),
                        CSize(nWidth, metrics.tmHeight));
    const CRect rcArrow(rcBlock.right - 8, rcBlock.top, rcBlock.right + 1, rcBlock.bottom + 1);
    const CPoint ptTip(rcBlock.right - 4, rcBlock.top + (rcBlock.Height() - 4) / 2 + 3);
    const auto count = [&](const CRect& rc, int nColor) {
        button.Invalidate();
        return Picture::OfClient(button.m_hWnd).Count(::GetSysColor(nColor), rc);
    };
    EXPECT_EQ(count(rcArrow, COLOR_WINDOWTEXT), 7 + 5 + 3 + 1);
    EXPECT_EQ(Picture::OfClient(button.m_hWnd).At(ptTip.x, ptTip.y),
              ::GetSysColor(COLOR_WINDOWTEXT));
    const CRect rcCaption(rcBlock.left, rcBlock.top, rcArrow.left, rcBlock.bottom + 1);
    EXPECT_GT(count(rcCaption, COLOR_WINDOWTEXT), 5);
    button.SetState(TRUE);
    EXPECT_EQ(Picture::OfClient(button.m_hWnd).At(0, 0), ::GetSysColor(COLOR_3DHILIGHT));
    button.SetState(FALSE);
    const Picture without = Picture::OfClient(button.m_hWnd);
    button.SetFocus();
    EXPECT_FALSE(Picture::OfClient(button.m_hWnd).At(3, 3) == without.At(3, 3)) << "dotted";
    EXPECT_EQ(Picture::OfClient(button.m_hWnd).At(2, 2), without.At(2, 2));
    button.EnableWindow(FALSE);
    EXPECT_EQ(count(rcArrow, COLOR_GRAYTEXT), 16);
    EXPECT_EQ(count(rcArrow, COLOR_3DHILIGHT), 7);
    EXPECT_EQ(count(rcArrow, COLOR_WINDOWTEXT), 0);
    EXPECT_GT(count(rcCaption, COLOR_GRAYTEXT), 5);
    EXPECT_GT(count(rcCaption, COLOR_3DHILIGHT), 2);
}

TEST(MenuButton, WithoutMemoryThereIsNoMenuAndAnEntryIsWholeOrNotThere) {
    Dialog<Watched<Played<QVMacroButton>>> w;
    const CString strLong('x', 5000);
    RefuseEach(
        "entry", [&] { w.button.AddMacro(strLong, strLong); },
        [&] {
            const INT_PTR nEntries = w.button.m_astrItems.GetSize();
            for (INT_PTR i = 0; i < nEntries; ++i) {
                EXPECT_EQ(w.button.m_astrItems[i], strLong);
            }
        });
    EXPECT_GT(w.button.m_astrItems.GetSize(), 0);
    EXPECT_GT(RefuseEach(
                  "paint", [&] { w.button.RedrawWindow(); }, [] {}),
              0);
    RefuseEach(
        "menu", [&] { w.button.SendMessage(WM_LBUTTONDOWN); }, [] {});
    EXPECT_EQ(w.button.nThrown, 0);
}

// --- Snippets

// As an edit does whose caret is behind what EM_GETSEL can tell.
class SilentEdit : public CEdit {
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return message == EM_GETSEL ? -1 : CEdit::WindowProc(message, wParam, lParam);
    }
};

using Macros = Dialog<Played<QVMacroButton>>;

TEST(MacroButton, ASnippetTakesThePlaceOfTheSelection) {
    Macros w;
    w.button.AddString("no entry");
    w.button.AddMacro("name", "%n");
    w.button.AddMacro("date", "%d");
    ASSERT_EQ(w.button.m_astrItems.GetSize(), 2);
    w.edit.SetWindowText("abcd");
    w.edit.SendMessage(EM_SETSEL, 1, 3);
    w.Choose(1);
    EXPECT_EQ(w.Text(), "a%dd") << "the focus stayed in the edit";
    EXPECT_FALSE(w.edit.SendMessage(EM_CANUNDO));
    w.button.SetFocus();
    w.Choose(0);
    EXPECT_EQ(w.Text(), "a%dd") << "the focus is on no edit";
    w.button.SetEditCtrlID(IDC_EDIT);
    w.Choose(0);
    EXPECT_EQ(w.Text(), "a%d%nd");
    w.edit.EnableWindow(FALSE);
    w.Choose(0);
    EXPECT_EQ(w.Text(), "a%d%n%nd");
    w.button.SetEditCtrlID(IDC_LINES);
    w.Choose(0);
    EXPECT_EQ(w.Text(IDC_LINES), "%n") << "read-only";
    w.button.SetEditCtrlID(IDC_CHOICES);
    w.Choose(0);
    EXPECT_EQ(w.dlg.SendDlgItemMessage(IDC_CHOICES, LB_GETCOUNT), 0);
    w.button.SetEditCtrlID(60000);
    w.Choose(0);
    w.button.SetEditCtrlID(IDC_EDIT);
    w.button.OnMenuSelected(2);
    w.edit.DestroyWindow();
    w.Choose(0);
    EXPECT_TRUE(w.frame.m_commands.empty()) << "no command of the program's";
}

TEST(MacroButton, AnEditThatTellsNoSelectionGetsTheSnippetAtItsCaret) {
    Macros w;
    SilentEdit edit;
    edit.SubclassDlgItem(IDC_EDIT, &w.dlg);
    w.button.AddMacro("name", "%n");
    for (const auto& [nCaret, pszText] : {std::pair(2, "ab%ncd"), {0, "%nabcd"}, {4, "abcd%n"}}) {
        edit.SetWindowText("abcd");
        edit.SetSel(nCaret, nCaret);
        w.Choose(0);
        EXPECT_EQ(w.Text(), pszText);
        const LRESULT lBehind = edit.SendMessage(EM_POSFROMCHAR, static_cast<WPARAM>(nCaret + 2));
        EXPECT_TRUE(lBehind == -1 || CWnd::GetCaretPos() == CPoint(lBehind)) << nCaret;
    }
    edit.SetWindowText("");
    w.Choose(0);
    EXPECT_EQ(w.Text(), "%n");
}

TEST(MacroButton, ACaretBeyond16BitsIsFound) {
    Macros w;
    w.button.AddMacro("name", "%n");
    CEdit edit;
    edit.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(0, 60, 99, 80), &w.dlg, 9);
    edit.SetLimitText(200000);
    for (const int nCaret : {65535, 131071}) {
        CString strText('x', 140000);
        edit.SetWindowText(strText);
        edit.SetFocus();
        edit.SetSel(nCaret, nCaret);
        ASSERT_EQ(static_cast<LONG>(edit.SendMessage(EM_GETSEL)), -1) << "which tells nothing";
        w.Choose(0);
        CString strNew;
        edit.GetWindowText(strNew);
        EXPECT_EQ(strNew.Find("%n"), nCaret);
    }
}

// --- Anything in any order

TEST(MenuButtonMonkey, SurvivesAnyOrderOfMessages) {
    const LONG nOwned = AfxGetOwnedHandleCount();
    {
        Macros w;
        Played<QVMacroButton>& button = w.button;
        std::mt19937 random = MonkeyRandom(3);
        const auto pick = [&](int n) {
            return static_cast<int>(random() % static_cast<unsigned>(n));
        };
        button.m_play = [&](HWND, HMENU) {
            pick(3) == 0 ? button.ShowMenu() : void();
            pick(9) == 0 ? button.DestroyWindow() : pick(2) == 0 ? button.EnableWindow(FALSE) : 0;
            pick(2) != 0 ? SendKeys({VK_DOWN, VK_RETURN}) : void(::EndMenu());
            SendKeys({VK_ESCAPE});
        };
        constexpr UINT kMessages[] = {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, BM_CLICK,
                                      WM_CANCELMODE,  WM_SETFOCUS,  WM_KILLFOCUS};
        const std::function<void()> aDeeds[] = {
            [&] { button.SendMessage(kMessages[pick(std::size(kMessages))]); },
            [&] { button.SendMessage(pick(2) != 0 ? WM_KEYDOWN : WM_KEYUP, VK_SPACE, 1); },
            [&] { button.SendMessage(WM_COMMAND, static_cast<WPARAM>(kFirst + pick(9))); },
            [&] { button.EnableWindow(TRUE), pick(9) == 0 ? button.AddMacro("x", "y") : void(); },
            [&] { button.SetEditCtrlID(pick(2) != 0 ? IDC_EDIT : 0); },
            [&] { pick(2) != 0 ? w.edit.SetFocus() : button.SetFocus(); },
            [&] { button.SetStartCmdID(kFirst + static_cast<unsigned>(pick(5))); },
            [&] { button.RedrawWindow(); },
        };
        for (int i = 0; i < MonkeySteps() / 4; ++i) {
            SCOPED_TRACE(i);
            if (button.m_hWnd == nullptr) {
                button.Create("&m", kStyle, CRect(10, 10, 90, 35), &w.dlg, IDC_MENU);
            }
            aDeeds[pick(std::size(aDeeds))]();
            PumpPending();
        }
        EXPECT_GT(button.m_nMenus, MonkeySteps() / 100);
        EXPECT_NE(w.Text(), "");
    }
    Main frame;
    for (int i = 0; i < 1000; ++i) {
        Played<QVMacroButton> button;
        ASSERT_TRUE(button.Create("m", kStyle, CRect(10, 10, 90, 35), &frame, 5));
        button.RedrawWindow();
        i % 50 == 0 ? button.ShowMenu() : void();
    }
    EXPECT_EQ(AfxGetOwnedHandleCount(), nOwned);
}

}  // namespace
