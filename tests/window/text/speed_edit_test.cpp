#include "window/text/edit_window.h"

namespace {

class SpeedEdit : public EditWindow<Mortal<Watched<QVSpeedEdit>>> {
protected:
    SpeedEdit() { Make(); }
    void Make() {
        names.RemoveAll();
        for (const char* psz : {"alpha", "Beta", "betamax"}) {
            names.Add(psz);
        }
        pEdit = std::make_unique<Mortal<Watched<QVSpeedEdit>>>();
        pEdit->SetSpeedData(&names);
        pEdit->Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(9, 9, 99, 32), this, 1);
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

    CStringArray names;
};

TEST_F(SpeedEdit, CompletesWhatIsTyped) {
    ASSERT_TRUE(BringToFront(m_hWnd));
    pEdit->SetFocus();
    const struct {
        bool bOnly;
        int nKey;
        const char* pszShown;
        bool bReadOnly = false, bPlain = false;
    } cases[] = {
        {false, 'B', "B[eta]"},    {false, 'E', "Be[ta]"},    {false, VK_BACK, "Be[]"},
        {true, VK_BACK, "B[eta]"}, {true, 'X', "B[eta]"},     {true, VK_BACK, "[alpha]"},
        {false, 'Z', "z[]"},       {false, 'B', "z[]", true}, {false, 'B', "zb[]", false, true}};
    for (const auto& c : cases) {
        pEdit->SetSpeedOnly(c.bOnly);
        pEdit->SetReadOnly(c.bReadOnly);
        pEdit->SetSpeedData(c.bPlain ? nullptr : &names);
        TypeKey(static_cast<WORD>(c.nKey));
        EXPECT_EQ(Shown(), c.pszShown);
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
    int nTold = 0;
    m_told = [&](WPARAM, LPARAM) {
        ++nTold % 4 == 0 ? names.RemoveAll() : void();
        nTold % 3 == 0 ? pEdit.reset() : void();
    };
    pEdit.reset();
    PlayInAnyOrder(
        pEdit, [&] { Make(); },
        {[&](int n) { pEdit->SetSpeedOnly(n % 2); }, [&](int n) { pEdit->SetSel(n / 12, n / 9); },
         [&](int n) { pEdit->SendMessage(WM_CHAR, "aabbcde\b"[(n + 5) % 8], 1); }});
}

}  // namespace
