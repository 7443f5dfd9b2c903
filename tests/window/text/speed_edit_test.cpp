#include "support/monkey.h"
#include "support/mortal.h"
#include "support/real_input.h"
#include "support/text_window.h"
#include "window/refusals.h"

#include <gtest/gtest.h>

namespace {

constexpr UINT kEditId = 82;
const CRect kPlace(20, 20, 200, 44);

class OpenSpeedEdit : public QVSpeedEdit {
public:
    using QVSpeedEdit::FindSpeedText;
    using QVSpeedEdit::SpeedMatch;

    // The text, with the selection in brackets.
    std::string Shown() {
        CString str;
        GetWindowText(str);
        int nStart;
        int nEnd;
        GetSel(nStart, nEnd);
        return std::string(str)
            .insert(static_cast<size_t>(nEnd), "]")
            .insert(static_cast<size_t>(nStart), "[");
    }
    std::string Typed(const char* pszKeys) {
        for (; *pszKeys != 0; ++pszKeys) {
            SendMessage(WM_CHAR, static_cast<BYTE>(*pszKeys), 1);
        }
        return Shown();
    }
};

template <class Edit = OpenSpeedEdit>
class Speed {
public:
    explicit Speed(int bOnly = 0) : parent(CSize(300, 100)), pEdit(new Edit) {
        for (const char* psz : {"alpha", "Beta", "betamax"}) {
            names.Add(psz);
        }
        pEdit->SetSpeedData(&names);
        pEdit->SetSpeedOnly(bOnly);
        pEdit->Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, kPlace, &parent, kEditId);
    }

    CStringArray names;
    FontParent parent;
    std::unique_ptr<Edit> pEdit;
};

TEST(SpeedEdit, CompletesWhatIsTyped) {
    Speed<> w;
    ASSERT_TRUE(BringToFront(w.parent.m_hWnd));
    w.pEdit->SetFocus();
    TypeText("b");
    EXPECT_EQ(w.pEdit->Shown(), "B[eta]");
    TypeText("eta");
    EXPECT_EQ(w.pEdit->Shown(), "Beta[]");
    TypeText("m");
    EXPECT_EQ(w.pEdit->Shown(), "betam[ax]");
    TypeKey(VK_BACK);
    EXPECT_EQ(w.pEdit->Shown(), "betam[]") << "the platform's own";
    w.pEdit->SetSel(2, 2);
    TypeText("x");
    EXPECT_EQ(w.pEdit->Shown(), "bex[]") << "the rest goes";
    EXPECT_EQ(w.parent.CountCommands(EN_CHANGE), 7);
}

TEST(SpeedEdit, OnlyEntriesCanBeTypedWhereThatIsAsked) {
    Speed<> w(1);
    EXPECT_EQ(w.pEdit->Typed("beTa"), "Beta[]");
    EXPECT_EQ(w.pEdit->Typed("x"), "Beta[]");
    EXPECT_EQ(w.pEdit->Typed("M"), "betam[ax]");
    EXPECT_EQ(w.pEdit->Typed("\b"), "Beta[]");
    EXPECT_EQ(w.pEdit->Typed("\b\b"), "Be[ta]");
    EXPECT_EQ(w.pEdit->Typed("\b\b"), "[alpha]");
    w.names.RemoveAll();
    EXPECT_EQ(w.pEdit->Typed("a\b"), "[alpha]") << "nothing to show";
}

TEST(SpeedEdit, IsThePlatformsWithoutEntriesAndWhereItIsReadOnly) {
    Speed<> w;
    w.pEdit->SetReadOnly();
    EXPECT_EQ(w.pEdit->Typed("b"), "[]");
    w.pEdit->SetReadOnly(FALSE);
    w.pEdit->SetSpeedData(nullptr);
    EXPECT_EQ(w.pEdit->Typed("bx"), "bx[]");
    EXPECT_EQ(w.pEdit->FindSpeedText("b"), -1);
    EXPECT_EQ(w.pEdit->SpeedMatch("b", 0), 1);
}

TEST(SpeedEdit, MatchesSortAsTheEntryDoes) {
    Speed<> w;
    const struct {
        const char* pszText;
        int nIndex, nMatch;
    } cases[] = {{"BET", 1, 0}, {"b", 0, -1}, {"a", 1, 1},
                 {"a", 3, 1},   {"a", -1, 1}, {"betas", 1, -1}};
    for (const auto& c : cases) {
        EXPECT_EQ(w.pEdit->SpeedMatch(c.pszText, c.nIndex), c.nMatch) << c.pszText << c.nIndex;
    }
    EXPECT_EQ(w.pEdit->FindSpeedText("BET"), 1);
    EXPECT_EQ(w.pEdit->FindSpeedText(""), -1);
}

TEST(SpeedEdit, MemoryThatIsWantedLeavesNothingBehind) {
    Speed<Watched<OpenSpeedEdit>> w;
    RefuseEach(
        "typed", [&] { ::SendMessage(w.pEdit->m_hWnd, WM_CHAR, 'b', 1); },
        [&] {
            const std::string strShown = w.pEdit->Shown();
            EXPECT_TRUE(strShown == "[]" || strShown == "B[eta]") << strShown;
            w.pEdit->SetWindowText("");
        });
    EXPECT_EQ(w.pEdit->nThrown, 0);
}

// The parent clears the entries or deletes the edit at changes.
class MeddlingParent : public FontParent {
public:
    MeddlingParent() : FontParent(CSize(300, 100)) {}
    std::function<void(UINT nCode)> m_meddle;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        m_meddle(HIWORD(wParam));
        return FontParent::OnCommand(wParam, lParam);
    }
};

TEST(SpeedEditMonkey, SurvivesAParentThatTakesThingsAway) {
    MeddlingParent parent;
    CStringArray names;
    std::unique_ptr<Mortal<OpenSpeedEdit>> pEdit;
    std::mt19937 random = MonkeyRandom(3);
    const LONG nHandles = AfxGetOwnedHandleCount();
    int nMade = 0;
    parent.m_meddle = [&](UINT nCode) {
        if (nCode == EN_CHANGE || nCode == EN_UPDATE) {
            random() % 4 == 0 ? names.RemoveAll() : void();
            random() % 3 == 0 ? pEdit.reset() : void();
        }
    };
    for (int i = 0; i < MonkeySteps() || nMade < 1000; ++i) {
        while (names.GetSize() < 4) {
            names.Add(std::string(1 + random() % 3, static_cast<char>('a' + random() % 3)).c_str());
        }
        if (pEdit == nullptr) {
            ++nMade;
            pEdit = std::make_unique<Mortal<OpenSpeedEdit>>();
            pEdit->SetSpeedData(&names);
            pEdit->SetSpeedOnly(nMade % 2);
            ASSERT_TRUE(pEdit->Create(WS_CHILD | WS_VISIBLE, kPlace, &parent, kEditId));
        }
        pEdit->SendMessage(EM_SETSEL, random() % 5, random() % 5);
        pEdit->SendMessage(WM_CHAR, random() % 6 == 0 ? '\b' : 'a' + random() % 4, 1);
    }
    pEdit.reset();
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
}

}  // namespace
