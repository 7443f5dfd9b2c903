// Every control that draws itself is in the system's colours of the moment: what was painted in one
// of them is painted in the new one as soon as the change is told.
#include "containers/split_wnd.h"
#include "support/box_window.h"
#include "support/grid_window.h"
#include "support/list_window.h"
#include "support/picture.h"
#include "support/pump.h"
#include "support/text_window.h"
#include "support/tree_window.h"

#include <array>
#include <gtest/gtest.h>
#include <numeric>

namespace {

constexpr int kColors = 31;
using Colors = std::array<COLORREF, kColors>;

Colors ColorsNow() {
    Colors colors;
    for (int i = 0; i < kColors; ++i) {
        colors[static_cast<size_t>(i)] = ::GetSysColor(i);
    }
    return colors;
}

void SetColors(const Colors& colors) {
    std::array<INT, kColors> indices;
    std::iota(indices.begin(), indices.end(), 0);
    ::SetSysColors(kColors, indices.data(), colors.data());
}

// The desktop's colours come back however a test ends.
class KeepColors {
public:
    KeepColors() : m_old(ColorsNow()) {}
    ~KeepColors() { SetColors(m_old); }
    KeepColors(const KeepColors&) = delete;
    KeepColors& operator=(const KeepColors&) = delete;

private:
    const Colors m_old;
};

// Each another colour than the others, and than those of the other set.
Colors Distinct(BYTE nBlue) {
    Colors colors;
    for (size_t i = 0; i < colors.size(); ++i) {
        colors[i] = RGB(40 + 6 * i, 230 - 6 * i, nBlue);
    }
    return colors;
}

struct TreeOf : TreeWindow<> {
    TreeOf() {
        const HTREEITEM hTop = Add("top");
        Add("below", hTop);
        tree.Expand(hTop, TVE_EXPAND, FALSE, FALSE);
        tree.SelectItem(hTop);
    }
    CWnd& Wnd() { return tree; }
};

template <class List>
struct ListOf : ListWindow<List> {
    ListOf() : ListWindow<List>("Name\tSize", false) {
        this->Add("one\t1");
        this->Add("two\t2");
        this->list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    }
    CWnd& Wnd() { return this->list; }
};

template <class Box>
struct BoxOf : BoxWindow<Box> {
    BoxOf() {
        InsertRow(*this->box, 0, -1, "one");
        InsertRow(*this->box, 1, -1, "two");
    }
    CWnd& Wnd() { return *this->box; }
};

struct GridOf : GridWindow<> {
    GridOf() : GridWindow<>(3) { grid.GotoCell(1, kEdit, FALSE); }
    CWnd& Wnd() { return grid; }
};

struct TextOf : TextWindow<> {
    TextOf() { Fill(3); }
    CWnd& Wnd() { return text; }
};

template <class Control>
struct PlainOf {
    PlainOf() {
        const CRect rc(5, 5, 185, 405);
        if constexpr (std::is_base_of_v<QVTextBox, Control>) {
            control.Create(7, rc, &parent);
            control.SetWindowText("a text");
        } else if constexpr (std::is_base_of_v<CButton, Control>) {
            control.Create("Face", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, rc, &parent, 7);
        } else if constexpr (std::is_base_of_v<QVHeaderWnd, Control>) {
            if constexpr (std::is_base_of_v<QVListHeaderWnd, Control>) {
                control.SetListStyle(WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDRAWFIXED);
            }
            CRect rcHeader(rc);
            control.Create(WS_CHILD | WS_VISIBLE, rcHeader, &parent, 7);
            control.SetHeaderText("Caption");
        } else if constexpr (std::is_base_of_v<QVSplitWnd, Control>) {
            CRect rcSplit(rc);
            control.Create(rcSplit, &parent, 7, TRUE);
        } else {
            control.Create(7, rc, &parent);
        }
    }
    CWnd& Wnd() { return control; }

    FontParent parent{CSize(200, 420)};
    Control control;
};

struct Chooser : PlainOf<QVTextBox> {
    Chooser() { control.SetTextList("one\ttwo"); }
};

template <class Window>
class SystemColors : public testing::Test {};

using Windows =
    testing::Types<TreeOf, ListOf<QVListCtrlEx>, ListOf<QVSortingListCtrl>, BoxOf<OpenListBox>,
                   BoxOf<OpenBitmapCombo>, BoxOf<OpenColorCombo>, GridOf, TextOf,
                   PlainOf<QVCustCtrl>, PlainOf<QVHeaderWnd>, PlainOf<QVListHeaderWnd>,
                   PlainOf<QVTreeHeaderWnd>, PlainOf<QVTextHeaderWnd>, PlainOf<QVTextBox>, Chooser,
                   PlainOf<QVBitmapButton>, PlainOf<QVMenuButton>, PlainOf<QVSplitWnd>>;
TYPED_TEST_SUITE(SystemColors, Windows);

TYPED_TEST(SystemColors, AreThoseOfTheMoment) {
    const KeepColors keep;
    const Colors before = Distinct(50);
    const Colors after = Distinct(150);
    SetColors(before);
    TypeParam window;
    PumpPending();
    CWnd& wnd = window.Wnd();
    CWnd& top = *wnd.GetTopLevelParent();
    const Picture old = Picture::Fresh(wnd);
    const auto indexOf = [](const Colors& colors, COLORREF cr) {
        return std::find(colors.begin(), colors.end(), cr) - colors.begin();
    };
    // What the system's colours of one time drew, those of the other draw at the same places.
    const auto compare = [&](const Picture& then, const Colors& thenColors, const Picture& now,
                             const Colors& nowColors) {
        int nSystem = 0;
        int nOther = 0;
        std::array<int, kColors> wrong{};
        for (int y = 0; y < then.Height(); ++y) {
            for (int x = 0; x < then.Width(); ++x) {
                const auto nThen = static_cast<size_t>(indexOf(thenColors, then.At(x, y)));
                if (nThen == kColors) {
                    ++nOther;  // smoothed text
                    continue;
                }
                ++nSystem;
                wrong[nThen] += now.At(x, y) != nowColors[nThen];
            }
        }
        for (size_t i = 0; i < wrong.size(); ++i) {
            EXPECT_EQ(wrong[i], 0) << "system colour " << i;
        }
        EXPECT_GT(nSystem, 9 * nOther) << "nearly all is in the system's colours";
    };
    SetColors(after);
    top.SendMessage(WM_SYSCOLORCHANGE);
    const Picture changed = Picture::OfClient(wnd.m_hWnd);
    compare(old, before, changed, after);
    SetColors(before);
    top.SendMessage(WM_SYSCOLORCHANGE);
    compare(changed, after, Picture::OfClient(wnd.m_hWnd), before);
}

// A device context begins with white behind its texts.
TEST(SystemColors, AreBehindTheTextsOfAGrid) {
    const KeepColors keep;
    SetColors(Distinct(50));
    GridOf w;
    EXPECT_EQ(Picture::Fresh(w.grid).Count(RGB(255, 255, 255)), 0);
}

// What a program has chosen is its own.
TEST(SystemColors, LeaveAProgramsColours) {
    const KeepColors keep;
    TreeOf tree;
    TextOf text;
    PlainOf<QVTextBox> box;
    constexpr COLORREF kInk = RGB(1, 2, 3);
    constexpr COLORREF kPaper = RGB(250, 251, 252);
    tree.tree.UpdateStyle(0, kInk, kPaper);
    const int nOwn = text.text.AddStyle(kInk, kPaper);
    text.text.SetBkColor(kPaper);
    box.control.SetTextColor(kInk);
    box.control.SetTextBkColor(kPaper);
    SetColors(Distinct(50));
    for (CWnd* pWnd : {&tree.Wnd(), &text.Wnd(), &box.Wnd()}) {
        pWnd->GetTopLevelParent()->SendMessage(WM_SYSCOLORCHANGE);
    }
    EXPECT_EQ(tree.tree.StyleColors(0).crText, kInk);
    EXPECT_EQ(tree.tree.StyleColors(0).crBk, kPaper);
    EXPECT_EQ(text.text.StyleColors(0).crBk, kPaper);
    EXPECT_EQ(text.text.StyleColors(nOwn).crText, kInk);
    const CRect rc(2, 2, 60, 60);
    EXPECT_GT(Picture::OfClient(box.Wnd().m_hWnd).Count(kPaper, rc), 1000);
}

}  // namespace
