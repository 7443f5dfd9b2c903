// What texts, buttons, panels and bars tell a screen reader.
#include "support/accessible_questions.h"
#include "support/text_window.h"
#include "window/buttons/button_dialog.h"

#include <gtest/gtest.h>
#include <oleacc.h>

namespace {

// --- The text window

class CountingText : public OpenText {
public:
    CString GetAccessibleName(long nPart) override {
        ++m_nAsked;
        return OpenText::GetAccessibleName(nPart);
    }
    long GetAccessiblePart(long nIndex) override {
        ++m_nAsked;
        return OpenText::GetAccessiblePart(nIndex);
    }
    int m_nAsked = 0;
};

class AccessibleTextWnd : public Accessible {
protected:
    AccessibleTextWnd() : w(CSize(120, 200)) {
        w.Resize(120, 4);
        w.text.AddStyle(0, 0xFFFFFF);
        w.text.AddText("first\tof them", 1);
        w.text.AddText("a line that is so long that it takes more rows than there are in it", 0);
        for (const char* psz : {"third", "", "fifth", "last"}) {
            w.text.AddText(psz, 0);
        }
        w.text.CalcLayout();
        PumpPending();
        Watch(w.text);
    }
    CRect Rows(int nFrom, int nTo) {
        CRect rc = w.text.RowRect(nFrom);
        rc.bottom = w.text.RowRect(nTo).bottom;
        return rc;
    }
    std::string PlaceOf(CRect rc) {
        return OnScreen(w.text, rc.TopLeft()) + ' ' + std::to_string(rc.Width()) + ' ' +
               std::to_string(rc.Height());
    }
    TextWindow<CountingText> w;
};

TEST_F(AccessibleTextWnd, SaysItsLinesAndWhatShows) {
    const int nRows = w.text.NumDisplayLines() - 5;  // of the second line
    ASSERT_GT(nRows, 3);
    constexpr char kOff[] = " [read only invisible offscreen focusable]";
    Expect(
        {{"count", "6"},
         {"all 0 3",
          "1: static text \"first, of them\" [read only focusable]\n"
          "2: static text \"a line that is so long that it takes more rows than there are in it\" "
          "[read only focusable]\n3: static text \"third\"" +
              std::string(kOff)},
         {"say 4", std::string("static text") + kOff},
         {"say 7", kInvalid},
         {"go 2 6", "1"},
         {"where 2", PlaceOf(Rows(1, nRows))},
         {"hit " + OnScreen(w.text, w.text.RowRect(3).CenterPoint()), "2"}});
    const std::string strShown = Ask("say 0");
    EXPECT_EQ(strShown.find("text value \"first, of them\na line that is so "), 0u);
    EXPECT_EQ(strShown.find("are in it"), std::string::npos) << "not what is out of view";
    Ask("heard");
    w.text.ScrollTo(nRows + 1, 0);
    Expect({{"heard", "value 0"},
            {"say 0", "text value \"third\n\nfifth\nlast\" [read only focusable]"},
            {"hit " + OnScreen(w.text, w.text.RowRect(1).CenterPoint()), "4"}});
}

TEST_F(AccessibleTextWnd, SelectsWithExpectedKeysAlone) {
    Expect({{"select 3 2", "0x00000001"}, {"select 6 1", kDone}, {"focus", "0"}});
    EXPECT_EQ(::GetFocus(), w.text.m_hWnd);
    EXPECT_EQ(Ask("heard"), "focus 0, value 0");
    EXPECT_GT(w.text.VScrollPos(), 0) << "brought into view";
    w.text.EnableExpectedKeys();
    Ask("heard");
    Expect({{"select 3 2", kDone},
            {"heard", "text-selection 0"},
            {"selection", "3"},
            {"select 5 4", kDone},
            {"selection", "3 4 5"},
            {"select 2 4", kDone},
            {"selection", "2 3"},
            {"say 3", "static text \"third\" [selected read only focusable selectable]"}});
}

TEST_F(AccessibleTextWnd, CostsTheSameWithManyLines) {
    Ask("heard");
    for (int i = 6; i < 100'000; ++i) {
        w.text.AddText("line", 0);
    }
    Expect({{"count", "100000"}, {"where 100000", "nowhere"}});
    w.text.CalcLayout();
    w.text.m_nAsked = 0;
    Expect({{"heard", "reorder 0"},
            {"all 99999 5",
             "100000: static text \"line\" [read only invisible offscreen focusable]"}});
    EXPECT_LT(w.text.m_nAsked, 9);
    w.text.ScrollTo(w.text.NumDisplayLines(), 0);
    Expect({{"where 100000", PlaceOf(w.text.RowRect(3))},
            {"hit " + OnScreen(w.text, w.text.RowRect(3).CenterPoint()), "100000"}});
    w.text.ClearTextData();
    Expect({{"count", "0"}, {"say 1", kInvalid}, {"say 0", "text [read only focusable]"}});
}

// --- Buttons and boxes

TEST_F(Accessible, ABitmapButtonIsCheckedAsByAClick) {
    ButtonDialog<Mortal<QVBitmapButton>> w;
    int nClicks = 0;
    w.dlg.m_told = [&](UINT nCode) { nClicks += nCode == BN_CLICKED; };
    w.button->EnableToolTip("tells more");
    Watch(*w.button);
    Expect(
        {{"say 0", "check button \"Mine\" description \"tells more\" [focusable] action \"Check\""},
         {"count", "0"},
         {"do 0", kDone}});
    EXPECT_TRUE(PumpUntil([&] { return nClicks == 1; }));
    EXPECT_EQ(::GetFocus(), w.button->m_hWnd);
    EXPECT_NE(Ask("heard").find("state 0"), std::string::npos);
    w.dlg.SetDefID(IDC_BUTTON);
    w.button->SetWindowText("");
    Expect(
        {{"heard", "name 0"},
         {"say 0",
          "check button \"tells more\" [focused checked default focusable] action \"Uncheck\""}});
    w.button->SetCheck(2);
    w.button->SetState(TRUE);
    w.button->EnableToolTip("");
    Expect({{"heard", "state 0"},
            {"say 0", "check button [focused pressed mixed default focusable] action \"Check\""}});
    w.button->SetCheckable(FALSE);
    w.button->SetCheck(0);
    w.button->EnableWindow(FALSE);
    Expect({{"do 0", kNoDeed}});
    w.button->EnableWindow(TRUE);
    w.dlg.m_told = [&](UINT nCode) { nCode == BN_CLICKED ? w.button.reset() : void(); };
    Expect({{"do 0", kDone}});
    EXPECT_TRUE(PumpUntil([&] { return w.button == nullptr; }));
    Expect({{"do 0", kGone}, {"say 0", kGone}});
}

// Looks at itself while its menu is open.
class LookingMenu : public QVMenuButton {
public:
    std::string m_strSeen;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_INITMENUPOPUP) {
            PostMessage(WM_APP);
        } else if (message == WM_APP) {
            m_strSeen = GetAccessibleAction(CHILDID_SELF);
            m_strSeen += (GetAccessibleState(CHILDID_SELF) & STATE_SYSTEM_EXPANDED) != 0 ? "d" : "";
            DoAccessibleAction(CHILDID_SELF);
        }
        return QVMenuButton::WindowProc(message, wParam, lParam);
    }
};

TEST_F(Accessible, AMenuButtonOpensAndClosesItsMenu) {
    ButtonDialog<LookingMenu> w;
    w.button->AddString("entry");
    Watch(*w.button);
    constexpr char kClosed[] =
        "menu button \"Mine\" [collapsed focusable has popup] action \"Open\"";
    Expect({{"say 0", kClosed}, {"do 0", kDone}});
    EXPECT_TRUE(PumpUntil([&] { return !w.button->m_strSeen.empty(); }));
    EXPECT_EQ(w.button->m_strSeen, "Closed") << "and then it closes";
    Expect({{"heard", "state 0, state 0"}, {"say 0", kClosed}});
    EXPECT_NE(Ask("beside").find("shortcut \"Alt+M\""), std::string::npos);
}

TEST_F(Accessible, ATextBoxIsATextOrAChooser) {
    FontParent parent(CSize(300, 100));
    CStatic label;
    label.Create("&Fruit:", WS_CHILD, CRect(0, 0, 50, 20), &parent);
    QVTextBox box;
    box.Create(5, CRect(0, 30, 90, 50), &parent);
    Watch(box);
    box.SetWindowText("R&D");
    Expect(
        {{"heard", "name 0"}, {"say 0", "static text \"R&D\" [read only]"}, {"set 0 x", kNoDeed}});
    box.SetTextList("apple\tpear\tplum");
    Ask("heard");
    Expect({{"say 0", "spin box \"Fruit:\" value \"apple\" [focusable]"},
            {"count", "1"},
            {"set 0 PLUM", kDone},
            {"heard", "value 0"},
            {"set 0 nut", kNoDeed},
            {"say 0", "spin box \"Fruit:\" value \"plum\" [focusable]"}});
    EXPECT_EQ(parent.m_commands.size(), 1u) << "as if chosen";
    EXPECT_EQ(Ask("all 0 2").find("object: "), 0u);
}

// --- Check window, panel of steps, bars

TEST_F(Accessible, ACheckWindowSaysItsStateAndTakesNoDeed) {
    FontParent parent(CSize(300, 100));
    CStatic label;
    label.Create("&Ready", WS_CHILD, CRect(0, 0, 50, 20), &parent);
    QVCheckWnd check;
    check.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(60, 0, 80, 20), &parent, 7);
    Watch(check);
    Expect({{"say 0", "check button \"Ready\" [read only]"}});
    for (const int nChecked : {1, 2, 0}) {
        check.SetIsChecked(nChecked);
    }
    check.SetIsChecked(1);
    Expect({{"heard", "state 0, state 0, state 0"},
            {"say 0", "check button \"Ready\" [checked read only]"},
            {"do 0", kNoDeed}});
}

class Panel : public QVWizardStepWnd {
public:
    using QVWizardStepWnd::m_dwStepID;
    using QVWizardStepWnd::m_nStepIndex;
};

TEST_F(Accessible, ThePanelOfStepsIsAListOfThem) {
    FontParent parent(CSize(300, 100));
    QVWizardStepData data;
    for (const char* psz : {"Who && what", "&Where", "When", "Done"}) {
        data.AddStep(static_cast<unsigned>(data.NumSteps()), psz);
    }
    data.UpdateState(0, WizStepVisited);
    Panel panel;
    panel.ModifyDefStyle(WS_TABSTOP, 0);
    panel.Create(9, CRect(10, 0, 210, 100), &parent);
    panel.m_dwStepID = 1;
    panel.m_nStepIndex = 1;
    panel.RedrawWindow();
    Watch(panel);
    panel.RedrawWindow();
    Expect({{"heard", ""},
            {"say 0", "list [read only]"},
            {"all 0 9",
             "1: list item \"Who & what\" description \"1 of 4\" [read only traversed]\n"
             "2: list item \"Where\" description \"2 of 4\" [selected read only traversed]\n"
             "3: list item \"When\" description \"3 of 4\" [read only]\n"
             "4: list item \"Done\" description \"4 of 4\" [read only invisible offscreen]"},
            {"say 5", kInvalid},
            {"selection", "2"},
            {"go 2 5", "3"},
            {"where 2", OnScreen(panel, CPoint(24, 40)) + " 168 16"},
            {"hit " + OnScreen(panel, CPoint(30, 45)), "2"},
            {"hit " + OnScreen(panel, CPoint(30, 60)), "0"},
            {"do 2", kNoDeed}});
    panel.m_nStepIndex = 2;
    panel.RedrawWindow();
    panel.RedrawWindow();
    Expect({{"heard", "state 3"}});
    const QVWizardStepData inner;
    Expect({{"count", "0"}, {"say 2", kInvalid}});
}

class Bar : public QVSplitWnd {
public:
    using QVSplitWnd::CalcSplitRect;
    using QVSplitWnd::m_nSplitPos;
};

TEST_F(Accessible, ASplitBarMovesByValueAndKeys) {
    FontParent parent(CSize(400, 100));
    CStatic pane;
    pane.Create("no &label", WS_CHILD | WS_VISIBLE, CRect(0, 0, 9, 9), &parent);
    Bar bar;
    bar.SetAutoDeletePanes(FALSE);
    CRect rc(0, 0, 400, 100);
    bar.Create(rc, &parent, 3, TRUE);
    bar.AddPane(&pane);
    Watch(bar);
    bar.CalcSplitRect(rc, -1);
    Expect({{"say 0", "separator value \"50\" []"},
            {"hit " + OnScreen(bar, rc.CenterPoint()), "0"},
            {"hit " + OnScreen(bar, CPoint(9, 9)), "none"},
            {"set 0 25", kDone},
            {"say 0", "separator value \"25\" []"},
            {"heard", "value 0"},
            {"set 0 101", kNoDeed},
            {"set 0 x", kNoDeed}});
    pane.GetWindowRect(&rc);
    EXPECT_EQ(rc.Width(), 98) << "the pane went along";
    BringToFront(parent.m_hWnd);
    bar.SetFocus();
    TypeKey(VK_RIGHT);
    EXPECT_EQ(bar.m_nSplitPos, 100) << "keys are nobody's at first";
    const Picture before = Picture::OfClient(bar.m_hWnd);
    bar.EnableExpectedKeys();
    parent.SetFocus();
    EXPECT_EQ(Picture::OfClient(bar.m_hWnd), before);
    bar.SetFocus();
    EXPECT_NE(Picture::OfClient(bar.m_hWnd), before) << "the focus shows";
    bar.SetWindowText("&Divider");
    EXPECT_EQ(bar.SendMessage(WM_GETDLGCODE), DLGC_WANTARROWS);
    Ask("heard");
    TypeKey(VK_RIGHT);
    TypeKey(VK_SPACE);
    Expect({{"heard", "value 0"},
            {"say 0", "separator \"Divider\" value \"28\" [focused focusable]"},
            {"focus", "0"}});
    EXPECT_EQ(bar.m_nSplitPos, 110);
    bar.DestroyWindow();
    Expect({{"set 0 9", kGone}});
}

TEST_F(Accessible, ACaptionedWindowIsAGroupOfWhatIsInIt) {
    FontParent parent(CSize(300, 100));
    QVTextHeaderWnd w;
    CRect rc(0, 0, 200, 90);
    w.SetHeaderText("R&D");
    w.Create(WS_CHILD | WS_VISIBLE, rc, &parent, 4);
    Watch(w);
    Expect({{"say 0", "grouping \"R&D\" []"}, {"count", "1"}});
    EXPECT_EQ(Ask("all 0 1").find("object: "), 0u);
    w.SetHeaderText("other");
    Expect({{"heard", "name 0"}, {"say 0", "grouping \"other\" []"}});
    Watch(w.GetTextWnd());
    Expect({{"say 0", "text \"other\" [read only focusable]"}});
}

// --- Anything in any order

TEST(AccessibleTextMonkey, AnswersAnythingAtAnyTime) {
    PlayAccessible<QVTextWnd>([](QVTextWnd& text, CWnd& parent) {
        CRect rc(0, 0, 300, 200);
        text.Create(rc, &parent, kTextId, 0);
        text.EnableExpectedKeys();
        for (const char* psz : {"a\tb", "", "c d"}) {
            text.AddText(psz, 0);
        }
        text.CalcLayout();
    });
}

TEST(AccessibleCheckMonkey, AnswersAnythingAtAnyTime) {
    PlayAccessible<QVCheckWnd>([](QVCheckWnd& check, CWnd& parent) {
        check.Create(nullptr, "", WS_CHILD, CRect(0, 0, 20, 20), &parent, 7);
        check.SetIsChecked(1);
    });
}

TEST(AccessibleStepMonkey, AnswersAnythingAtAnyTime) {
    QVWizardStepData data;
    PlayAccessible<QVWizardStepWnd>([&](QVWizardStepWnd& panel, CWnd& parent) {
        if (data.NumSteps() < 4) {
            data.AddStep(static_cast<unsigned>(data.NumSteps() % 2), "Step");
        }
        panel.Create(9, CRect(0, 0, 200, 100), &parent);
    });
}

}  // namespace
