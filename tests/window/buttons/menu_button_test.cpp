#include "support/monkey.h"
#include "support/mortal.h"
#include "support/picture.h"
#include "window/buttons/button_dialog.h"
#include "window/refusals.h"

#include <gtest/gtest.h>

namespace {

const CPoint kIn(20, 8);
using Play = std::function<void(HWND hMenuWnd, HMENU hMenu)>;

// Plays input into its menu as soon as that is up; without any, the menu closes.
template <class Base>
class Played : public Watched<Base> {
public:
    using Base::m_astrItems;
    Play m_play;
    int m_nMenus = 0;
    CRect m_rcMenu;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_INITMENUPOPUP) {
            ++m_nMenus;
            m_hMenu = reinterpret_cast<HMENU>(wParam);
        } else if (message == WM_ENTERIDLE) {
            ::GetWindowRect(reinterpret_cast<HWND>(lParam), &m_rcMenu);
            const Play play = m_play;  // the button may go in it
            play ? play(reinterpret_cast<HWND>(lParam), m_hMenu) : void(::EndMenu());
            return 0;
        }
        return Watched<Base>::WindowProc(message, wParam, lParam);
    }

private:
    HMENU m_hMenu = nullptr;
};

template <class Button>
void AddEntries(Button& button) {
    for (const char* psz : {"&one", "two", "three"}) {
        button.AddString(psz);
    }
}

using Window = ButtonDialog<Played<QVMenuButton>>;

const std::pair<const char*, std::function<void(HWND)>> kOpen[] = {
    {"mouse", [](HWND h) { ClickAt(h, kIn); }},
    {"double click", [](HWND h) { ClickAt(h, kIn, MouseButton::Left, true); }},
    {"Space", [](HWND h) { ::SetFocus(h), TypeKey(VK_SPACE); }},
    {"mnemonic", [](HWND) { TypeKey('M', false, false, true); }},
    {"Enter", [](HWND) { TypeKey(VK_RETURN); }},
};
constexpr size_t kOfAnyParent = 3;  // the others are a dialog's

struct Choice {
    const char* pszName;
    std::vector<UINT> commands;
    Play play;
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
         INPUT inputs[2]{};
         inputs[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
         inputs[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
         ::SendInput(2, inputs, sizeof(INPUT));
     }},
    {"none", {}, [](HWND, HMENU) { SendKeys({VK_ESCAPE}); }},
};

template <class Button>
void ExpectEachChoiceOnce(MainWindow& frame, Button& button, size_t nWays) {
    for (size_t nWay = 0; nWay < nWays; ++nWay) {
        for (const Choice& choice : kChoices) {
            SCOPED_TRACE(std::string(kOpen[nWay].first) + ", " + choice.pszName);
            button.m_nMenus = 0;
            button.m_play = choice.play;
            frame.m_commands.clear();
            kOpen[nWay].second(button.m_hWnd);
            PumpPending();
            EXPECT_EQ(frame.m_commands, choice.commands);
            EXPECT_EQ(button.m_nMenus, 1);
        }
    }
}

TEST(MenuButton, AChoiceReachesTheMainWindowOnceAndTheMenuStaysClosed) {
    Window w;
    for (const auto& [pszName, open] : kOpen) {
        w.dlg.SetDefID(IDC_BUTTON);
        open(w.button->m_hWnd);
    }
    EXPECT_EQ(w.button->m_nMenus, static_cast<int>(std::size(kOpen))) << "empty ones";
    AddEntries(*w.button);
    ExpectEachChoiceOnce(w.frame, *w.button, std::size(kOpen));
    EXPECT_EQ(w.button->SendMessage(WM_GETDLGCODE), DLGC_BUTTON);
    CRect rc;
    w.button->GetWindowRect(&rc);
    EXPECT_EQ(w.button->m_rcMenu.TopLeft(), CPoint(rc.left, rc.bottom));
    w.button->m_nMenus = 0;
    w.button->SetStartCmdID(IDC_BUTTON);  // its own id is that of an entry
    for (const WPARAM wCommand : {IDC_BUTTON - 1, IDC_BUTTON, IDC_BUTTON + 2, IDC_BUTTON + 3}) {
        w.button->SendMessage(WM_COMMAND, wCommand);
    }
    w.button->SendMessage(WM_COMMAND, MAKEWPARAM(IDC_BUTTON, 1));
    w.frame.m_commands.clear();
    PumpPending();
    EXPECT_EQ(w.frame.m_commands, (std::vector<UINT>{IDC_BUTTON, IDC_BUTTON + 2}));
    w.button->EnableWindow(FALSE);
    ClickAt(w.button->m_hWnd, kIn);
    TypeKey('M', false, false, true), TypeKey(VK_RETURN);
    EXPECT_EQ(w.button->m_nMenus, 0);

    MainWindow frame;
    Played<QVMenuButton> button;
    button.Create("menu", kButtonStyle, CRect(10, 10, 90, 35), &frame, 5);
    AddEntries(button);
    frame.ShowWindow(SW_SHOW);
    ExpectEachChoiceOnce(frame, button, kOfAnyParent);
}

TEST(MenuButton, MayGoWhileItsMenuIsOpenOrItsCommandIsHandled) {
    for (const bool bInMenu : {true, false}) {
        for (const int nWhatGoes : {0, 1, 2}) {
            SCOPED_TRACE(nWhatGoes);
            ButtonDialog<Mortal<Played<QVMenuButton>>> w;
            AddEntries(*w.button);
            const HWND hWnd = w.button->m_hWnd;
            const auto go = [&] {
                nWhatGoes == 0   ? w.button.reset()
                : nWhatGoes == 1 ? void(w.button->DestroyWindow())
                                 : void(w.dlg.DestroyWindow());
            };
            w.frame.m_act = go;
            w.button->m_play = [&, bInMenu](HWND, HMENU) {
                bInMenu ? go() : SendKeys({VK_DOWN, VK_RETURN});
            };
            ClickAt(hWnd, kIn);
            PumpPending();
            EXPECT_FALSE(::IsWindow(hWnd));
            EXPECT_EQ(w.frame.m_commands.size(), bInMenu ? 0u : 1u);
        }
    }
}

TEST(MenuButton, CaptionAndArrowAreDrawnAndEngravedIfDisabled) {
    Window w;
    LOGFONT log{};
    log.lfHeight = -16;
    log.lfQuality = NONANTIALIASED_QUALITY;
    CFont font;
    font.CreateFontIndirect(&log);
    w.button->SetFont(&font);
    w.button->SetWindowText("M");
    w.button->MoveWindow(5, 30, 90, 31);
    CClientDC dc(w.button.get());
    const qv::SelectGuard<CFont> select(dc, &font);
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    const int nWidth = dc.GetTextExtent("M", 1).cx + metrics.tmMaxCharWidth + 7;
    const CRect rc(CPoint((90 - nWidth) / 2, (31 - metrics.tmDescent - metrics.tmHeight) / 2),
                   CSize(nWidth, metrics.tmHeight));
    const CRect rcArrow(rc.right - 8, rc.top, rc.right + 1, rc.bottom + 1);
    const CRect rcCaption(rc.left, rc.top, rcArrow.left, rc.bottom + 1);
    const auto shown = [&] { return Picture::OfClient(w.button->m_hWnd); };
    const auto count = [&](int nColor, const CRect& rcPart) {
        return shown().Count(::GetSysColor(nColor), rcPart);
    };
    EXPECT_EQ(count(COLOR_WINDOWTEXT, rcArrow), 7 + 5 + 3 + 1);
    const int nInk = count(COLOR_WINDOWTEXT, rcCaption);
    EXPECT_GT(nInk, 10);
    const Picture up = shown();
    w.button->SetState(TRUE);
    EXPECT_TRUE(shown() == up) << "never goes down";
    w.button->SetState(FALSE);
    w.button->SetFocus();
    const int nFace = count(COLOR_BTNFACE, CRect(3, 3, 87, 4));
    EXPECT_TRUE(nFace > 30 && nFace < 60) << "dotted";
    EXPECT_EQ(count(COLOR_BTNFACE, CRect(2, 2, 88, 3)), 86);
    w.button->EnableWindow(FALSE);
    EXPECT_EQ(count(COLOR_GRAYTEXT, rcArrow), 16);
    EXPECT_EQ(count(COLOR_3DHILIGHT, rcArrow), 7);
    EXPECT_EQ(count(COLOR_GRAYTEXT, rcCaption), nInk);
    EXPECT_GT(count(COLOR_3DHILIGHT, rcCaption), 5);
    EXPECT_EQ(count(COLOR_WINDOWTEXT, rcCaption) + count(COLOR_WINDOWTEXT, rcArrow), 0);
}

// --- Snippets

struct Macros : ButtonDialog<Played<QVMacroButton>> {
    Macros() { button->AddMacro("name", "%n"); }
    // What nID shows after the entry was chosen.
    std::string Insert(int nID = IDC_EDIT) {
        button->m_play = [](HWND, HMENU) { SendKeys({VK_DOWN, VK_RETURN}); };
        ClickAt(button->m_hWnd, kIn);
        PumpPending();
        return Text(nID);
    }
    std::string InsertByID(UINT nID) {
        button->SetEditCtrlID(nID);
        return Insert(static_cast<int>(nID));
    }
};

TEST(MacroButton, ASnippetTakesThePlaceOfTheSelection) {
    Macros w;
    w.button->AddString("no entry");
    EXPECT_EQ(w.button->m_astrItems.GetSize(), 1);
    w.Edit().SetWindowText("abcd");
    w.Edit().SendMessage(EM_SETSEL, 1, 3);
    EXPECT_EQ(w.Insert(), "a%nd") << "the focus stayed in the edit";
    EXPECT_FALSE(w.Edit().SendMessage(EM_CANUNDO));
    w.button->SetFocus();
    EXPECT_EQ(w.Insert(), "a%nd") << "the focus is on no edit";
    w.Edit().EnableWindow(FALSE);
    EXPECT_EQ(w.InsertByID(IDC_EDIT), "a%n%nd");
    EXPECT_EQ(w.InsertByID(IDC_LINES), "%n") << "read-only";
    EXPECT_EQ(w.InsertByID(IDC_MARK) + w.InsertByID(60000), "") << "no edit, none at all";
    w.button->SetEditCtrlID(IDC_EDIT);
    w.button->OnMenuSelected(1);
    w.Edit().DestroyWindow();
    EXPECT_EQ(w.Insert(), "");
    EXPECT_TRUE(w.frame.m_commands.empty()) << "no command of the program's";
    const CString strLong('x', 5000);
    RefuseEach(
        "entry", [&] { w.button->AddMacro(strLong, strLong); },
        [&] {
            for (INT_PTR i = 1; i < w.button->m_astrItems.GetSize(); ++i) {
                ASSERT_EQ(w.button->m_astrItems[i], strLong);
            }
        });
    w.button->m_play = nullptr;
    RefuseEach(
        "menu", [&] { w.button->SendMessage(WM_LBUTTONDOWN); }, [] {});
    RefuseEach(
        "paint", [&] { w.button->RedrawWindow(); }, [] {});
    EXPECT_EQ(w.button->nThrown, 0);
}

// As an edit does whose caret is behind what EM_GETSEL can tell.
class SilentEdit : public CEdit {
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return message == EM_GETSEL ? -1 : CEdit::WindowProc(message, wParam, lParam);
    }
};

TEST(MacroButton, AnEditThatTellsNoSelectionGetsTheSnippetAtItsCaret) {
    Macros w;
    SilentEdit edit;
    edit.SubclassDlgItem(IDC_EDIT, &w.dlg);
    for (const auto& [nCaret, pszText] : {std::pair(2, "ab%ncd"), {0, "%nabcd"}, {4, "abcd%n"}}) {
        edit.SetWindowText("abcd");
        edit.SetSel(nCaret, nCaret);
        EXPECT_EQ(w.Insert(), pszText);
        const LRESULT lBehind = edit.SendMessage(EM_POSFROMCHAR, static_cast<WPARAM>(nCaret + 2));
        EXPECT_TRUE(lBehind == -1 || CWnd::GetCaretPos() == CPoint(lBehind)) << nCaret;
    }
    CWnd& lines = *w.dlg.GetDlgItem(IDC_LINES);
    std::string strText;
    while (strText.size() < 140000) {
        strText += "0123456789\r\n";
    }
    lines.SetFocus();
    for (const int nCaret : {65535, 131071}) {
        lines.SetWindowText(strText.c_str());
        lines.SendMessage(EM_SETSEL, nCaret, nCaret);
        lines.SendMessage(EM_SCROLLCARET);
        EXPECT_EQ(w.Insert(IDC_LINES).find("%n"), static_cast<size_t>(nCaret));
    }
}

// --- Anything in any order

template <class Button>
class ButtonMonkey : public testing::Test {};
using Buttons = testing::Types<QVBitmapButton, QVToolButton, Played<QVMacroButton>>;
TYPED_TEST_SUITE(ButtonMonkey, Buttons);

TYPED_TEST(ButtonMonkey, SurvivesAnyOrderOfMessages) {
    const LONG nOwned = AfxGetOwnedHandleCount();
    {
        ButtonDialog<TypeParam> w;
        std::mt19937 random = MonkeyRandom(9);
        const auto pick = [&](size_t n) { return static_cast<int>(random() % n); };
        constexpr UINT kMessages[] = {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_MOUSEMOVE,
                                      WM_CANCELMODE,  WM_SETFOCUS,  WM_KILLFOCUS,     BM_CLICK,
                                      WM_KEYDOWN,     WM_KEYUP,     BM_SETCHECK,      BM_SETSTATE,
                                      WM_ENABLE,      WM_COMMAND,   WM_CAPTURECHANGED};
        constexpr WPARAM kParams[] = {0, 1, 2, VK_SPACE, kFirst, kFirst + 1};
        int nTold = 0;
        int nMade = 0;
        bool bMayGo = false;
        const auto make = [&] {
            w.button = std::make_unique<TypeParam>();
            w.button->Create("&x", kButtonStyle, CRect(5, 40, 35, 60), &w.dlg, IDC_BUTTON);
            if constexpr (requires { w.button->SetEditCtrlID(0); }) {
                w.button->AddMacro("x", "y");
                w.button->SetEditCtrlID(IDC_EDIT);
            } else {
                w.button->EnableToolTip("tip");
            }
            ++nMade;
        };
        w.dlg.m_told = [&](UINT nCode) {
            nTold += nCode == BN_CLICKED || nCode == EN_CHANGE;
            bMayGo&& pick(9) == 0 ? w.button.reset() : void();
        };
        w.button.reset();
        for (int i = 0; i < MonkeySteps(); ++i) {
            SCOPED_TRACE(i);
            w.button == nullptr ? make() : void();
            const LPARAM lPoint = MAKELPARAM(pick(40) - 5, pick(30) - 3);
            bMayGo = true;
            w.button->SendMessage(kMessages[pick(std::size(kMessages))],
                                  kParams[pick(std::size(kParams))], lPoint);
            bMayGo = false;
            pick(9) == 0 && w.button != nullptr ? void(w.button->RedrawWindow()) : PumpPending();
        }
        EXPECT_GT(nTold, MonkeySteps() / 200);
        EXPECT_GT(nMade, 1);
        for (int i = 0; i < 1000; ++i) {
            make();
            w.button->RedrawWindow();
        }
    }
    EXPECT_EQ(AfxGetOwnedHandleCount(), nOwned);
}

}  // namespace
