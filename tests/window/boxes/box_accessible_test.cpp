// What list boxes and combo boxes tell a screen reader, asked from another program.
#include "support/accessible_questions.h"
#include "support/box_window.h"

namespace {

constexpr char kItem[] = " [focusable selectable] action \"Double Click\"";
constexpr char kWithCaret[] = " [focused focusable selectable] action \"Double Click\"";
constexpr char kNotDone[] = "0x00000001";

template <class Box>
void AddRows(Box& box, std::initializer_list<const char*> rows) {
    for (const char* psz : rows) {
        InsertRow(box, 1, -1, psz);
    }
}

// --- The list box

class AccessibleListBox : public Accessible {
protected:
    void Make(DWORD dwStyle = 0, bool bHeader = false) {
        w = std::make_unique<BoxWindow<OpenListBox>>(dwStyle, true, bHeader);
        w->box->AddStyle(0, 0xFFFFFF);
        AddRows(*w->box, {"\033bapple\t5 kg\tx", "pear", "plum\t\033b1 kg"});
        w->box->SetFocus();
        PumpPending();
        Watch(*w->box);
    }
    void Key(UINT nKey) { w->box->SendMessage(WM_KEYDOWN, nKey, 0); }

    std::unique_ptr<BoxWindow<OpenListBox>> w;
};

TEST_F(AccessibleListBox, SaysWhatIsShownUnderTheTitlesOfItsHeader) {
    Make();
    Expect({{"say 0", "list [focused focusable]"},
            {"say 1", std::string("list item \"apple\"") + kWithCaret},
            {"say 3", std::string("list item \"plum\"") + kItem},
            {"say 4", kInvalid}});
    CRect rc;
    w->box->GetItemRect(1, &rc);
    Expect({{"hit " + OnScreen(*w->box, rc.CenterPoint()), "2"},
            {"hit " + OnScreen(*w->box, CPoint(5, 140)), "0"}});
    const int stops[] = {60};
    w->box->UseTabs(stops, 1);
    Expect({{"say 1", std::string("list item \"apple, 5 kg\"") + kWithCaret}});
    Make(0, true);
    w->box->AddHeader("Fruit");
    w->box->AddHeader("Size");
    const int more[] = {60, 100};
    w->box->UseTabs(more, 2);
    Expect(
        {{"say 1", std::string("list item \"apple\" description \"Size: 5 kg, x\"") + kWithCaret},
         {"say 2", std::string("list item \"pear\"") + kItem}});
}

TEST_F(AccessibleListBox, TheTextBeforeItIsItsNameWithAHeaderBetween) {
    FontParent parent(CSize(300, 200));
    CStatic label;
    CEdit other;
    OpenListBox list;
    label.Create("&Fruit:", WS_CHILD | WS_VISIBLE, CRect(0, 0, 90, 20), &parent);
    list.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(0, 20, 90, 90), &parent, kBoxId);
    other.Create(WS_CHILD | WS_VISIBLE, CRect(0, 90, 90, 110), &parent, 5);
    list.SetHeader(kBoxHeaderId);
    ASSERT_TRUE(list.Initialize(kBoxId, 0, 0, 0, &parent));
    Watch(list);
    Expect({{"say 0", "list \"Fruit:\" [focusable]"}});
}

TEST_F(AccessibleListBox, OneIsSelectedAsByKeysAndTold) {
    Make();
    w->parent.Forget();
    Ask("heard");
    Expect({{"select 2 3", kDone},
            {"heard", "focus 2, selection 2"},
            {"select 2 2", kDone},
            {"heard", ""},
            {"focus", "2"},
            {"selection", "2"},
            {"select 3 8", kNotDone}});
    EXPECT_EQ(w->parent.CountCommands(LBN_SELCHANGE), 1);
    Key(VK_DOWN);
    Expect({{"heard", "focus 3, selection 3"}, {"do 1", kDone}});
    PumpPending();
    EXPECT_EQ(w->parent.CountCommands(LBN_DBLCLK), 1);
    EXPECT_EQ(w->Selection(), "0(0)");
    Ask("heard");
    w->box->EnableExpectedKeys();
    w->box->SendMessage(WM_CHAR, 'p', 0);
    Expect({{"heard", "focus 2, selection 2"}});
    w->box->SetItemString(2, "new");
    Expect({{"heard", "name 3"}});
    w->box->DeleteString(0);
    AddRows(*w->box, {"a", "b"});
    Expect({{"heard", "reorder 0"}});
}

TEST_F(AccessibleListBox, SeveralAreSelectedOneByOneOrAsARange) {
    Make(LBS_EXTENDEDSEL);
    Ask("heard");
    Expect({{"select 1 3", kDone}, {"select 3 8", kDone}, {"selection", "1 3"}});
    EXPECT_EQ(w->Selection(), "0|2(0)");
    Expect({{"select 1 16", kDone}, {"selection", "3"}, {"select 2 4", kDone}});
    EXPECT_EQ(w->Selection(), "0|1(0)");
    w->box->SetSel(-1, FALSE);
    Ask("heard");
    w->box->SetSel(2);
    Key(VK_UP);
    w->box->SetSel(1, FALSE);
    Expect({{"heard", "focus 3, selection-add 3, focus 2, selection 2, selection-remove 2"}});
    Make(LBS_NOSEL);
    Expect({{"say 1", "list item \"apple\" [focused focusable] action \"Double Click\""},
            {"select 1 2", kNotDone}});
}

TEST_F(AccessibleListBox, CostsTheSameWithManyRows) {
    Make(LBS_EXTENDEDSEL);
    w->box->SetRedraw(FALSE);
    w->box->InitStorage(100'000, 1'000'000);
    for (int i = 3; i < 100'000; ++i) {
        w->box->AddBitmapString(0, "row");
    }
    w->box->SetRedraw(TRUE);
    int nMessages = 0;
    w->box->SetSel(99'999);
    w->box->SetSel(0);
    PumpPending();
    w->box->onHandled = [&](UINT) { ++nMessages; };
    Expect({{"heard", "focus 100000, selection-add 100000, focus 1, selection-add 1, reorder 0"},
            {"count", "100000"},
            {"selection", "1 100000"},
            {"go 0 8", "100000"},
            {"all 99999 5",
             "100000: list item \"row\" [selected invisible offscreen focusable selectable multi "
             "selectable extended selectable] action \"Double Click\""}});
    EXPECT_LT(nMessages, 2000);
    w->box->onHandled = nullptr;
}

// --- Combo boxes

template <class Box>
HWND ListOf(Box& box) {
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    ::GetComboBoxInfo(box.m_hWnd, &info);
    return info.hwndList;
}

TEST_F(Accessible, AComboBoxSaysTheSelectedRowAndItsList) {
    BoxWindow<OpenBitmapCombo> w;
    w.box->AddStyle(0, 0xFFFFFF);
    AddRows(*w.box, {"\033bapple\t5 kg", "pear"});
    w.box->SetCurSel(0);
    w.box->SetFocus();
    PumpPending();
    Watch(*w.box);
    Expect({{"say 0",
             "combo box value \"apple, 5 kg\" [focused collapsed focusable has popup] action "
             "\"Open\""},
            {"count", "3"},
            {"say 1", "static text value \"apple, 5 kg\" []"},
            {"say 2", "push button \"Open\" [] action \"Open\""},
            {"go 0 8", "object"}});
    Ask("heard");
    w.box->SendMessage(WM_KEYDOWN, VK_DOWN, 0);
    Expect({{"heard", "value 0"}, {"do 0", kDone}, {"heard", "state 0"}});
    EXPECT_TRUE(w.box->GetDroppedState());
    ASSERT_EQ(s_pReader->Watch(ListOf(*w.box)), kDone);
    Expect({{"all 0 9",
             "1: list item \"apple, 5 kg\" [focusable selectable] action \"Double Click\"\n"
             "2: list item \"pear\" [selected focused focusable selectable] action \"Double "
             "Click\""},
            {"selection", "2"}});
    Ask("heard");
    w.box->SendMessage(WM_KEYDOWN, VK_UP, 0);
    Expect({{"heard", "focus 1, selection 1"}});
    w.parent.Forget();
    Expect({{"do 2", kDone}});
    EXPECT_EQ(w.Selection() + (w.box->GetDroppedState() ? " open" : ""), "1");
    EXPECT_EQ(w.parent.CountCommands(CBN_SELCHANGE), 1);
    AddRows(*w.box, {"a", "b"});
    Expect({{"heard", "focus 2, selection 2, reorder 0"}, {"count", "4"}});
    w.box.reset();
    Expect({{"count", kGone}});
}

TEST_F(Accessible, AComboBoxWithAnEditSaysWhatIsTyped) {
    BoxWindow<OpenBitmapCombo> w(CBS_DROPDOWN);
    AddRows(*w.box, {"apple", "pear"});
    w.box->SetCurSel(1);
    Watch(*w.box);
    const std::string strRest = " [collapsed focusable has popup] action \"Open\"";
    Expect({{"say 0", "combo box value \"pear\"" + strRest}});
    w.parent.Forget();
    Ask("heard");
    Expect({{"set 0 typed", kDone},
            {"heard", "value 0"},
            {"say 0", "combo box value \"typed\"" + strRest},
            {"set 2 x", kNoDeed}});
    EXPECT_EQ(w.parent.CountCommands(CBN_EDITCHANGE), 1);
}

TEST_F(Accessible, ColoursAreHeardByTheirNames) {
    BoxWindow<OpenColorCombo> w;
    COLORREF aColors[] = {RGB(255, 0, 0), RGB(0, 0, 128), RGB(1, 2, 3)};
    w.box->Initialize(kBoxId, aColors, 3, &w.parent);
    w.box->InsertColorString(0, -1, "stop");
    for (const int nColor : {0, 1, 2, 9}) {
        w.box->InsertColorString(nColor, -1, "");
    }
    Watch(*w.box);
    ASSERT_EQ(s_pReader->Watch(ListOf(*w.box)), kDone);
    for (const auto& [nPart, pszName] :
         {std::pair(1, " \"stop\""), std::pair(2, " \"red\""), std::pair(3, " \"dark blue\""),
          std::pair(4, " \"red 1, green 2, blue 3\""), std::pair(5, "")}) {
        const std::string strSaid = Ask("say " + std::to_string(nPart));
        EXPECT_EQ(strSaid.substr(0, strSaid.find(" [")), std::string("list item") + pszName);
    }
    w.box->SetCurSel(2);
    Watch(*w.box);
    EXPECT_EQ(Ask("say 0").substr(0, 29), "combo box value \"dark blue\" [");
}

// --- Anything in any order

template <class Box>
void PlayBox(DWORD dwStyle) {
    constexpr int kTimes = 100;
    PlayAccessible<Box>(
        [dwStyle](Box& box, CWnd& parent) {
            box.Create(WS_CHILD | WS_VISIBLE | dwStyle, CRect(0, 0, 300, 200), &parent, kBoxId);
            SetUpBox(box, &parent);
            AddRows(box, {"a\tb", "c", "d\te"});
        },
        [](Box& box, int n) {
            if (box.m_hWnd != nullptr) {
                n % 3 != 0  ? void(InsertRow(box, n, n % 4, "f\tg"))
                : n % 5 > 0 ? void(box.DeleteString(static_cast<UINT>(n & 3)))
                            : box.ResetContent();
            }
        },
        kTimes);
}

TEST(AccessibleBoxMonkey, AnswersAnythingAtAnyTime) {
    PlayBox<QVBitmapListBox>(LBS_NOTIFY);
    PlayBox<QVBitmapListBox>(LBS_NOTIFY | LBS_EXTENDEDSEL);
    PlayBox<QVBitmapComboBox>(CBS_DROPDOWNLIST);
    PlayBox<QVColorComboBox>(CBS_DROPDOWN);
}

}  // namespace
