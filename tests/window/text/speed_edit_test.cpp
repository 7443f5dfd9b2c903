#include "support/monkey.h"
#include "support/mortal.h"
#include "support/real_input.h"
#include "support/text_window.h"
#include "window/refusals.h"

#include <gtest/gtest.h>

namespace {

using AnEdit = Mortal<Watched<QVSpeedEdit>>;

class SpeedEdit : public testing::Test, protected FontParent {
protected:
    SpeedEdit() : FontParent(CSize(300, 100)) { Make(); }
    void Make() {
        names.RemoveAll();
        for (const char* psz : {"alpha", "Beta", "betamax"}) {
            names.Add(psz);
        }
        pEdit = std::make_unique<AnEdit>();
        pEdit->SetSpeedData(&names);
        pEdit->Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(9, 9, 99, 32), this, 1);
        pEdit->SetFocus();
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        m_meddle();
        return FontParent::OnCommand(wParam, lParam);
    }
    // The text, with the selection in brackets.
    std::string Shown() {
        CString str;
        pEdit->GetWindowText(str);
        int nStart, nEnd;
        pEdit->GetSel(nStart, nEnd);
        str.Insert(nEnd, "]");
        str.Insert(nStart, "[");
        return std::string(str);
    }

    std::function<void()> m_meddle = [] {};
    CStringArray names;
    std::unique_ptr<AnEdit> pEdit;
};

TEST_F(SpeedEdit, CompletesWhatIsTyped) {
    ASSERT_TRUE(BringToFront(m_hWnd));
    const auto type = [](int nKey) { TypeKey(static_cast<WORD>(nKey)); };
    const auto only = [&](int bOnly) { pEdit->SetSpeedOnly(bOnly); };
    const auto readOnly = [&](int bReadOnly) { pEdit->SetReadOnly(bReadOnly); };
    const auto plain = [&](int) { pEdit->SetSpeedData(nullptr); };
    const std::tuple<std::function<void(int)>, int, const char*> cases[] = {
        {type, 'B', "B[eta]"},      {type, 'E', "Be[ta]"},     {type, VK_BACK, "Be[]"},
        {only, 1, "Be[]"},          {type, VK_BACK, "B[eta]"}, {type, 'X', "B[eta]"},
        {type, VK_BACK, "[alpha]"}, {type, 'Z', "[alpha]"},    {only, 0, "[alpha]"},
        {type, 'Z', "z[]"},         {readOnly, 1, "z[]"},      {type, 'B', "z[]"},
        {readOnly, 0, "z[]"},       {plain, 0, "z[]"},         {type, 'B', "zb[]"}};
    for (const auto& [act, n, pszShown] : cases) {
        act(n);
        EXPECT_EQ(Shown(), pszShown);
    }
}

using SpeedEditMonkey = SpeedEdit;

TEST_F(SpeedEditMonkey, SurvivesAParentThatTakesThingsAwayAndTheWantOfMemory) {
    RefuseEach(
        "typed", [&] { ::SendMessage(pEdit->m_hWnd, WM_CHAR, 'b', 1); },
        [&] {
            EXPECT_TRUE(Shown() == "[]" || Shown() == "B[eta]") << Shown();
            EXPECT_EQ(pEdit->nThrown, 0);
            pEdit->SetWindowText("");
        });
    std::mt19937 random = MonkeyRandom(3);
    pEdit.reset();
    const LONG nHandles = AfxGetOwnedHandleCount();
    m_meddle = [&] {
        random() % 4 == 0 ? names.RemoveAll() : void();
        random() % 3 == 0 ? pEdit.reset() : void();
    };
    int nMade = 0;
    for (int i = 0; i < MonkeySteps() || nMade < 1000; ++i) {
        while (pEdit == nullptr) {
            Make();
            ++nMade;
        }
        pEdit->SetSpeedOnly(random() % 2);
        pEdit->SendMessage(EM_SETSEL, random() % 5, random() % 5);
        pEdit->SendMessage(WM_CHAR, random() % 6 == 0 ? '\b' : 'a' + random() % 4, 1);
    }
    pEdit.reset();
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
}

}  // namespace
