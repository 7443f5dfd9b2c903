// Message box and prompt, by keys alone.
#include "QVControls.h"
#include "support/acting_dialog.h"
#include "support/monkey.h"
#include "support/popup.h"
#include "support/real_input.h"

namespace {

INT_PTR Type(auto& dlg, const std::vector<WORD>& keys) {
    dlg.m_action = [&] {
        BringToFront(dlg.m_hWnd);
        std::for_each(keys.begin(), keys.end(), [](WORD vk) { TypeKey(vk); });
    };
    return dlg.DoModal();
}

TEST(MsgBox, AnswersByKeys_AndTellsTheCheckWithAnAnswerOnly) {
    CWnd owner;
    MakePopup(owner, WS_VISIBLE);
    ActingDialog<QVMsgBox> box(&owner);
    box.SetCheckString("Again");
    const std::pair<std::vector<WORD>, int> cases[] = {
        {{VK_TAB, VK_TAB, VK_SPACE, VK_RETURN}, IDYES},
        {{VK_TAB, VK_RETURN}, IDNO},
        {{VK_TAB, VK_TAB, VK_SPACE, VK_ESCAPE}, IDCANCEL}};
    for (const auto& [keys, nAnswer] : cases) {
        EXPECT_EQ(Type(box, keys), nAnswer);
        EXPECT_EQ(box.CheckState(), 1);
        EXPECT_TRUE(owner.IsWindowEnabled() && ::GetFocus() == owner.m_hWnd);
    }
}

TEST(MsgBox, ShowsAnIconOfTheSystemOrTheApplication_AndNoCheckBoxWithoutText) {
    for (const LPCSTR pszIcon : std::initializer_list<LPCSTR>{IDI_ERROR, "NAMED", "nobody's"}) {
        ActingDialog<QVMsgBox> box;
        box.SetIconID(pszIcon);
        box.SetCheckState(7);
        box.m_action = [&] {
            const auto hIcon = reinterpret_cast<HICON>(box.SendDlgItemMessage(30105, STM_GETICON));
            EXPECT_EQ(hIcon, pszIcon == IDI_ERROR ? ::LoadIcon(nullptr, pszIcon)
                                                  : AfxGetApp()->LoadIcon(pszIcon));
            EXPECT_FALSE(box.GetDlgItem(30107)->IsWindowVisible());
        };
        box.DoModal();
        EXPECT_EQ(box.CheckState(), 7);
    }
}

TEST(MsgPrompt, TakesWhatIsTyped_AndNothingEmptyUnlessAllowed) {
    constexpr int kNone = ActingDialog<QVMsgPromptDlg>::kStillThere;
    const std::tuple<BOOL, int, const char*, std::vector<WORD>, int, const char*> cases[] = {
        {FALSE, -1, "", {VK_RETURN}, kNone, ""},
        {FALSE, -1, "old", {VK_BACK, VK_RETURN}, kNone, "old"},
        {TRUE, -1, "old", {VK_BACK, VK_RETURN}, IDOK, ""},
        {FALSE, 3, "", {'A', 'B', 'C', 'D', VK_RETURN}, IDOK, "abc"},
        {FALSE, 0, "old", {'A', 'B', 'C', 'D', VK_RETURN}, IDOK, "abcd"},
        {FALSE, -1, "old", {'N', VK_ESCAPE}, IDCANCEL, "old"}};
    for (const auto& [bEmpty, nMost, pszBefore, keys, nResult, pszValue] : cases) {
        ActingDialog<QVMsgPromptDlg> prompt;
        prompt.SetAllowZeroLen(bEmpty);
        prompt.SetDataLen(nMost);
        prompt.SetValue(pszBefore);
        EXPECT_EQ(Type(prompt, keys), nResult);
        EXPECT_EQ(prompt.GetValue(), pszValue);
    }
}

TEST(AskDialogsMonkey, LeaveNoHandleBehind) {
    const LONG nHandles = AfxGetOwnedHandleCount();
    std::mt19937 random = MonkeyRandom(3);
    const auto play = [&](auto&& dlg) {
        dlg.m_action = [&] {
            for (const int nID : {30103, 30104, 30107, 1, 2, 6, 7}) {
                random() % 4 ? 0 : dlg.SendMessage(WM_COMMAND, MAKEWPARAM(nID, random() % 4 << 8));
            }
        };
        dlg.SetCheckString(random() % 2 ? "check" : "");
        dlg.DoModal();
    };
    for (int i = 0; i < MonkeySteps() / 2; ++i) {
        play(ActingDialog<QVMsgBox>());
        play(ActingDialog<QVMsgPromptDlg>());
    }
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
}

}  // namespace
