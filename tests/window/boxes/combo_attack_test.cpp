// Combo boxes whose parent takes rows or all away, without memory, and in any order.
#include "support/combo_window.h"
#include "support/monkey.h"
#include "support/mortal.h"
#include "support/real_input.h"
#include "support/test_app.h"
#include "window/refusals.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

enum class Deed { DeleteRow, Empty, Destroy, Delete };
constexpr Deed kDeeds[] = {Deed::DeleteRow, Deed::Empty, Deed::Destroy, Deed::Delete};

// A parent, or a step of the control itself, that does its deed once.
struct Attack {
    CComboBox* pCombo = nullptr;
    Deed deed{};
    UINT nMessage = 0;     // before the parent handles it; a command by its code; 0: in a step
    UINT nOwnMessage = 0;  // after the control has handled it
    UINT nCode = 0;
    bool bFired = false;

    void Do() {
        bFired = true;
        switch (deed) {
            case Deed::DeleteRow:
                pCombo->DeleteString(1);
                break;
            case Deed::Empty:
                pCombo->ResetContent();
                break;
            case Deed::Destroy:
                pCombo->DestroyWindow();
                break;
            case Deed::Delete:
                delete std::exchange(pCombo, nullptr);
        }
    }
};

class AttackingParent : public FontParent {
public:
    explicit AttackingParent(Attack& attack) : FontParent(CSize(300, 250)), m_attack(attack) {}

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == m_attack.nMessage && !m_attack.bFired &&
            (message != WM_COMMAND || HIWORD(wParam) == m_attack.nCode)) {
            m_attack.Do();
        }
        return FontParent::WindowProc(message, wParam, lParam);
    }

private:
    Attack& m_attack;
};

template <class Base>
class Victim : public Mortal<Base> {
public:
    Attack* pAttack = nullptr;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        Attack* const p = pAttack;
        const LRESULT lResult = Base::WindowProc(message, wParam, lParam);
        if (p != nullptr && message == p->nOwnMessage && !p->bFired) {
            p->Do();
        }
        return lResult;
    }
    void GetDisplayText(int nItem, DWORD_PTR dwItemData, int bEdit, CString& str) override {
        if (pAttack != nullptr && pAttack->nMessage + pAttack->nOwnMessage == 0) {
            pAttack->Do();
        } else {
            Base::GetDisplayText(nItem, dwItemData, bEdit, str);
        }
    }
};

// What brings each of them about.
void Choose(CComboBox& combo) {
    BringToFront(combo.GetParent()->m_hWnd);
    combo.SetFocus();
    for (const WORD nKey : {VK_F4, VK_DOWN, VK_RETURN}) {
        TypeKey(nKey);
    }
}
void Draw(CComboBox& combo) {
    CClientDC dc(nullptr);
    DRAWITEMSTRUCT draw{};
    draw.hDC = dc;
    draw.itemAction = ODA_DRAWENTIRE;
    combo.DrawItem(&draw);
}
void Paint(CComboBox& combo) {
    combo.RedrawWindow();
}
void Replace(CComboBox& combo) {
    if (auto* pBitmaps = dynamic_cast<QVBitmapComboBox*>(&combo)) {
        pBitmaps->SetItemString(1, "x");
    }
}

template <class Combo>
void TakeAway() {
    const struct {
        UINT nMessage, nOwnMessage, nCode;
        void (*act)(CComboBox& combo);
    } kWays[] = {
        {WM_COMMAND, 0, CBN_DROPDOWN, Choose},
        {WM_COMMAND, 0, CBN_SELCHANGE, Choose},
        {WM_COMMAND, 0, CBN_CLOSEUP, Choose},
        {WM_DRAWITEM, 0, 0, Paint},
        {0, 0, 0, Draw},
        {0, CB_INSERTSTRING, 0, Replace},
        {0, CB_DELETESTRING, 0, Replace},
    };
    TheTestApp().Forget();
    for (const auto& way : kWays) {
        for (const Deed deed : kDeeds) {
            SCOPED_TRACE(testing::Message() << &way - kWays << ", " << static_cast<int>(deed));
            Attack attack;
            AttackingParent parent(attack);
            auto* pCombo = new Victim<Combo>;
            attack.pCombo = pCombo;
            pCombo->Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(10, 10, 160, 200),
                           &parent, kComboId);
            SetUpCombo(*pCombo, &parent);
            for (const char* psz : {"a", "b", "c"}) {
                pCombo->SetItemData(InsertRow(*pCombo, 1, -1, psz), 5);
            }
            pCombo->SetCurSel(1);
            pCombo->UpdateWindow();
            attack = {pCombo, deed, way.nMessage, way.nOwnMessage, way.nCode};
            pCombo->pAttack = &attack;
            way.act(*pCombo);
            EXPECT_TRUE(attack.bFired || way.act == Replace);
            delete attack.pCombo;
        }
    }
    EXPECT_TRUE(TheTestApp().m_exceptions.empty());
}

TEST(BitmapComboAttack, TheControlMayBeTakenAway) {
    TakeAway<QVBitmapComboBox>();
}

TEST(ColorComboAttack, TheControlMayBeTakenAway) {
    TakeAway<QVColorComboBox>();
}

// --- Without memory

struct Starved {
    explicit Starved(CWnd& parent) {
        bitmaps.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(0, 0, 90, 90), &parent, 1);
        colors.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(0, 90, 90, 180), &parent, 2);
        SetUpCombo(bitmaps, &parent);
        SetUpCombo(colors, &parent);
        for (CComboBox* pCombo : both) {
            pCombo->SetItemData(pCombo->AddString("a row of text that is long\t1"), 7);
            pCombo->SetCurSel(0);
            pCombo->UpdateWindow();
        }
    }
    std::string State() {
        std::string str(strRead);
        for (CComboBox* pCombo : both) {
            for (int i = 0; i < pCombo->GetCount(); ++i) {
                CString strRow;
                pCombo->GetLBText(i, strRow);
                str += std::string(strRow) + ' ' + std::to_string(pCombo->GetItemData(i)) + '\n';
            }
            str += std::to_string(pCombo->GetCurSel()) + '\n';
        }
        return str;
    }
    QVBitmapComboBox bitmaps;
    QVColorComboBox colors;
    CComboBox* const both[2] = {&bitmaps, &colors};
    CString strRead = "as it was";
};

constexpr char kLong[] = "another row of a text that is long";

// False: it says that it could not.
constexpr bool (*kOperations[])(Starved&) = {
    [](Starved& w) { return w.bitmaps.AddBitmapString(1, kLong) >= 0; },
    [](Starved& w) { return w.bitmaps.InsertBitmapString(1, 0, kLong) >= 0; },
    [](Starved& w) { return w.bitmaps.FindBitmapString(1, "a row of text that is long") == 0; },
    [](Starved& w) { return w.bitmaps.GetImage(0) == 1; },
    [](Starved& w) { return w.bitmaps.GetItemString(0, w.strRead) != 0; },
    [](Starved& w) { return w.bitmaps.SetItemString(0, kLong) != 0; },
    [](Starved& w) { return w.bitmaps.CompareToItem(1, "x", 0) != 0; },
    [](Starved& w) { return w.colors.InsertColorString(2, 0, kLong) >= 0; },
    [](Starved& w) { return w.colors.GetColor(0) == 1; },
    [](Starved& w) { return w.bitmaps.RedrawWindow() && w.colors.RedrawWindow(); },
};

TEST(ComboMemory, WhatWasThereStays) {
    RecordingParent parent(CSize(100, 200));
    TheTestApp().Forget();
    for (const auto& operation : kOperations) {
        SCOPED_TRACE(&operation - kOperations);
        auto pCombos = std::make_unique<Starved>(parent);
        const std::string strBefore = pCombos->State();
        std::string strDone;
        bool bDone = false;
        const int nRefused = RefuseEach(
            "", [&] { bDone = false, bDone = operation(*pCombos); },
            [&] {
                strDone = bDone && strDone.empty() ? pCombos->State() : strDone;
                EXPECT_EQ(pCombos->State(), bDone ? strDone : strBefore);
                pCombos = std::make_unique<Starved>(parent);
            });
        EXPECT_TRUE(bDone && nRefused > 0);
    }
    EXPECT_TRUE(TheTestApp().m_exceptions.empty());
}

// --- In any order

template <class Combo>
void PlayMonkey() {
    constexpr const char* kTexts[] = {"", "a", "\033bstyled\ttext", "\t\t9", "\033"};
    std::mt19937 random = MonkeyRandom(9);
    for (const DWORD dwStyle :
         {CBS_DROPDOWNLIST, CBS_SIMPLE, CBS_DROPDOWN, CBS_DROPDOWNLIST | CBS_SORT}) {
        ComboWindow<Combo> w(dwStyle);
        for (int i = 0; i < MonkeySteps() / 4; ++i) {
            const int n = static_cast<int>(random() % 12) - 2;
            const char* psz = kTexts[random() % std::size(kTexts)];
            const std::function<void()> kActs[] = {
                [&] { InsertRow(w.combo, n, n, psz), w.combo.AddString(psz); },
                [&] { w.combo.DeleteString(static_cast<UINT>(n)); },
                [&] { w.combo.SetCurSel(n), w.combo.ShowDropDown(n % 2); },
                [&] { random() % 20 == 0 ? w.combo.ResetContent() : void(); },
                [&] { random() % 20 == 0 ? void(SetUpCombo(w.combo, &w.parent)) : void(); },
                [&] { w.combo.SendMessage(WM_KEYDOWN, VK_DOWN + static_cast<WPARAM>(n % 3)); },
                [&] { w.combo.MoveWindow(0, 0, n * 30, 150); },
                [&] { w.combo.RedrawWindow(); },
            };
            kActs[random() % std::size(kActs)]();
            const int nCount = w.combo.GetCount();
            if constexpr (std::is_same_v<Combo, QVBitmapComboBox>) {
                w.combo.SetItemString(n, psz);
                w.combo.CompareToItem(n, psz, n);
            }
            EXPECT_EQ(w.combo.GetCount(), nCount);
        }
    }
    FontParent parent(CSize(100, 100));
    long nHandles = 0;
    for (int i = 0; i < 1000; ++i) {
        Combo combo;
        combo.Create(WS_CHILD | CBS_DROPDOWNLIST, CRect(0, 0, 90, 90), &parent, kComboId);
        SetUpCombo(combo, &parent);
        Draw(combo);
        nHandles = i == 0 ? AfxGetOwnedHandleCount() : nHandles;
        ASSERT_EQ(AfxGetOwnedHandleCount(), nHandles) << i;
    }
}

TEST(BitmapComboMonkey, SurvivesAnyOrderOfOperations) {
    PlayMonkey<QVBitmapComboBox>();
}

TEST(ColorComboMonkey, SurvivesAnyOrderOfOperations) {
    PlayMonkey<QVColorComboBox>();
}

}  // namespace
