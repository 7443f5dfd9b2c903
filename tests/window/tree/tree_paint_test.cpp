#include "support/monkey.h"
#include "support/mortal.h"
#include "support/picture.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "support/tree_window.h"

#include <afxwin.h>

#include <gtest/gtest.h>
#include <random>
#include <set>

namespace {

const COLORREF kWindow = ::GetSysColor(COLOR_WINDOW);
const COLORREF kHighlight = ::GetSysColor(COLOR_HIGHLIGHT);
const COLORREF kShadow = ::GetSysColor(COLOR_BTNSHADOW);
constexpr COLORREF kGreen = RGB(0, 255, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

TEST(TreePaint, SelectionIsHighlightedWithTheFocusOrAlways) {
    TreeWindow<> w;
    w.tree.AddStyle(kBlue, kGreen);
    HTREEITEM a = w.Add("\033bstyled");
    BringToFront(w.parent.m_hWnd);
    w.tree.SetFocus();
    const CRect rc = w.RectOf(a);
    EXPECT_GT(Picture::Fresh(w.tree).Count(kGreen, rc), rc.Width() * rc.Height() / 2)
        << "its style";
    w.tree.SelectItem(a);
    EXPECT_EQ(Picture::Fresh(w.tree).At(rc.left + 3, rc.top + 2), kHighlight);
    EXPECT_EQ(Picture::OfClient(w.tree.m_hWnd).Count(kGreen), 0);
    ::SetFocus(w.parent.m_hWnd);
    PumpPending();
    EXPECT_EQ(Picture::OfClient(w.tree.m_hWnd).At(rc.left + 3, rc.top + 2), kGreen)
        << "repainted as the focus went";
    w.tree.ModifyStyle(0, TVS_SHOWSELALWAYS);
    EXPECT_EQ(Picture::Fresh(w.tree).At(rc.left + 3, rc.top + 2), kHighlight);
    const auto dots = [&] {
        const CRect rcTop(rc.left, rc.top, rc.right, rc.top + 1);
        return rc.Width() - Picture::OfClient(w.tree.m_hWnd).Count(kHighlight, rcTop);
    };
    EXPECT_EQ(dots(), 0);
    w.tree.SetFocus();
    EXPECT_GT(dots(), 0) << "the dotted frame";
    ::SetFocus(w.parent.m_hWnd);
    EXPECT_EQ(dots(), 0);
}

TEST(TreePaint, FieldsWithoutACodeGoOnInTheColoursBeforeThem) {
    TreeWindow<> w;
    const int stops[] = {60, 120, 180};
    w.tree.UseTabs(stops, 3);
    w.tree.AddStyle(kBlue, kGreen);
    HTREEITEM a = w.Add("one\t\033b##\t##\tlast");
    const CRect rc = w.RectOf(a);
    const Picture shown = Picture::Fresh(w.tree);
    const auto column = [&](int x1, int x2) {
        return CRect(rc.left + x1, rc.top, rc.left + x2, rc.bottom);
    };
    EXPECT_EQ(shown.Count(kBlue, column(0, 60)), 0);
    EXPECT_GT(shown.Count(kBlue, column(60, 116)), 0);
    EXPECT_GT(shown.Count(kBlue, column(120, 176)), 0) << "no code: still blue on green";
    EXPECT_GT(shown.Count(kGreen, column(120, 176)), 0);
}

TEST(TreePaint, LinesAndButtonsNeedTheLineStyle) {
    TreeWindow<> w;
    HTREEITEM a = w.Add("a");
    w.Add("a1", a);
    w.Add("b");
    EXPECT_GT(Picture::Fresh(w.tree).Count(kShadow, CRect(0, 0, 19, 40)), 10);
    const CRect rcButton(0, 0, 19, w.RowHeight());
    const int nPlus = Picture::OfClient(w.tree.m_hWnd).Count(RGB(0, 0, 0), rcButton);
    w.tree.Expand(a, TVE_EXPAND, TRUE, FALSE);
    const int nMinus = Picture::Fresh(w.tree).Count(RGB(0, 0, 0), rcButton);
    EXPECT_GT(nMinus, 0);
    EXPECT_GT(nPlus, nMinus) << "a plus has an upright";
    w.tree.ModifyStyle(TVS_HASLINES, 0);
    EXPECT_EQ(Picture::Fresh(w.tree).Count(kShadow, CRect(0, 0, 19, 60)), 0);
    w.tree.ModifyStyle(TVS_LINESATROOT, TVS_HASLINES);
    EXPECT_EQ(w.RectOf(a, FALSE).left, 0) << "no room left of root items";
}

TEST(TreePaint, StateImageZeroIsAPictureAndAMissingBitmapChangesNone) {
    TreeWindow<> w;
    w.tree.LoadStandardCheckStates();
    HTREEITEM a = w.Add("a");
    HTREEITEM a1 = w.Add("a1", a);
    w.tree.Expand(a, TVE_EXPAND, TRUE, FALSE);
    const CRect rcRow = w.RectOf(a1, FALSE);
    const CRect rcBox(rcRow.left, rcRow.top, rcRow.left + 12, rcRow.bottom);
    const Picture empty = Picture::Fresh(w.tree);
    EXPECT_GT(empty.Count(RGB(128, 128, 128), rcBox), 20) << "the frame of the box";
    EXPECT_EQ(empty.Count(RGB(0, 128, 128), rcBox), 0) << "corners are transparent";
    w.tree.SetCheck(a1, TRUE, FALSE);
    EXPECT_GT(Picture::Fresh(w.tree).Count(RGB(0, 0, 0), rcBox), 8) << "the tick";
    w.tree.SetItemStateImage(a1, 2, FALSE);
    const Picture before = Picture::Fresh(w.tree);
    EXPECT_EQ(before.Count(RGB(192, 192, 192), rcBox), 80) << "grey";
    constexpr UINT kNoBitmap = 4711;
    EXPECT_FALSE(w.tree.LoadTreeStates(kNoBitmap));
    EXPECT_TRUE(Picture::Fresh(w.tree) == before);
}

TEST(TreePaint, ScrollsToTheSamePixelsAsAFullPaintGives) {
    TreeWindow<> w;
    std::mt19937 random(4);
    for (int i = 0; i < 60; ++i) {
        HTREEITEM h =
            w.Add(std::string(5 + random() % 60, 'a' + static_cast<char>(i % 26)).c_str());
        w.Add("child", h);
        if (i % 3 == 0) {
            w.tree.Expand(h, TVE_EXPAND, FALSE, FALSE);
        }
    }
    Picture::Fresh(w.tree);
    for (int i = 0; i < 60; ++i) {
        const bool bVertical = random() % 3 != 0;
        w.tree.SendMessage(bVertical ? WM_VSCROLL : WM_HSCROLL, random() % 4);
        const Picture scrolled = Picture::OfClient(w.tree.m_hWnd);
        ASSERT_TRUE(scrolled == Picture::Fresh(w.tree)) << i;
    }
}

TEST(TreePaint, ScrollBarsShowTheirPlaceOnceAPaintIsDone) {
    TreeWindow<> w;
    for (int i = 0; i < 200; ++i) {
        w.Add("row");
    }
    w.tree.UpdateWindow();
    for (int i = 0; i < 400; ++i) {
        w.Add("row");
    }
    w.tree.UpdateWindow();
    const Picture shown = Picture::OfClient(w.parent.m_hWnd);
    w.tree.SendMessage(WM_NCPAINT, 1);
    EXPECT_TRUE(shown == Picture::OfClient(w.parent.m_hWnd));
}

// --- Replaced steps

class ReplacedTree : public QVTreeCtrlEx {
public:
    int CompareItems(HTREEITEM h1, HTREEITEM h2) override {
        ++m_nAsked;
        return -QVTreeCtrlEx::CompareItems(h1, h2);
    }
    void CalcItemRect(CDC& dc, int nTop, HTREEITEM hItem, CRect& rect, BOOL bTextOnly) override {
        ++m_nAsked;
        QVTreeCtrlEx::CalcItemRect(dc, nTop, hItem, rect, bTextOnly);
        rect.right += m_nWider;
    }
    void DrawItem(CDC& dc, HTREEITEM hItem, const CRect& rect) override {
        ++m_nDrawn;
        QVTreeCtrlEx::DrawItem(dc, hItem, rect);
    }
    COLORREF GetBkColor(HTREEITEM) override { return kGreen; }
    int m_nWider = 0;
    int m_nDrawn = 0;
    int m_nAsked = 0;
};

TEST(TreeSteps, ReplacedOnesAreObeyedEverywhere) {
    TreeWindow<ReplacedTree> w;
    HTREEITEM p = w.Add("p");
    for (const char* psz : {"a", "c", "b"}) {
        w.tree.InsertItem(psz, 0, 0, p, TVI_SORT);
    }
    EXPECT_EQ(w.tree.GetItemText(w.tree.GetChildItem(p)), "c");
    EXPECT_FALSE(w.tree.GetStyle() & WS_HSCROLL);
    w.tree.m_nWider = 1000;
    w.tree.SetRedraw(TRUE);
    EXPECT_TRUE(w.tree.GetStyle() & WS_HSCROLL) << "the scroll bar";
    UINT nFlags;
    EXPECT_EQ(w.tree.HitTest(CPoint(280, 4), &nFlags, nullptr), p);
    EXPECT_EQ(nFlags, TVHT_NOWHERE | TVHT_ONITEMLABEL) << "the hit test";
    Picture::Fresh(w.tree);
    EXPECT_GT(w.tree.m_nDrawn, 0);
    EXPECT_GT(Picture::OfClient(w.tree.m_hWnd).Count(kGreen), 1000);
}

// Says what is not true, so that it shows.
class KeepingTree : public ReplacedTree {
public:
    KeepingTree() { KeepSteps(typeid(KeepingTree)); }
};

class FurtherTree : public KeepingTree {};

template <class Tree>
int StepsAsked() {
    TreeWindow<Tree> w;
    HTREEITEM p = w.Add("p");
    w.Add("b", p);
    w.Add("a", p);
    w.tree.m_nAsked = 0;
    w.tree.SetRedraw(TRUE);
    w.tree.SortChildren(p);
    return w.tree.m_nAsked;
}

TEST(TreeSteps, ADerivedClassIsAskedUnlessItSaysThatItKeepsThem) {
    EXPECT_GE(StepsAsked<ReplacedTree>(), 2);
    EXPECT_EQ(StepsAsked<KeepingTree>(), 0);
    EXPECT_GE(StepsAsked<FurtherTree>(), 2) << "what holds for its base need not hold for it";
}

// --- Everything at once

// A parent may refuse, and take an item, all items, the window or the tree away.
TEST(TreeMonkey, SurvivesAnyOrderOfMessagesAndKeepsNoHandles) {
    FontParent parent(CSize(300, 200));
    const LONG nHandles = AfxGetOwnedHandleCount();
    std::mt19937 random = MonkeyRandom(2026);
    std::unique_ptr<Mortal<QVTreeCtrlEx>> tree;
    std::set<std::pair<UINT, unsigned>> ends;  // what the parent was told of, and what it did
    parent.m_hook = [&](NMHDR* pHdr, LRESULT* pResult) {
        const unsigned nEnd = random() % 80;
        if (nEnd < 4) {
            ends.insert({pHdr->code, nEnd});
            nEnd == 0   ? tree.reset()
            : nEnd == 1 ? void(tree->DestroyWindow())
            : nEnd == 2
                ? void(tree->DeleteAllItems())
                : void(tree->DeleteItem(reinterpret_cast<NM_TREEVIEW*>(pHdr)->itemNew.hItem));
        }
        *pResult = random() % 10 == 0;
        return true;
    };
    const auto make = [&] {
        tree == nullptr ? void(tree = std::make_unique<Mortal<QVTreeCtrlEx>>()) : void();
        EXPECT_EQ(tree->GetRootItem(), nullptr) << "a control may be created again";
        tree->Create(kTreeStyle, CRect(0, 0, 300, 200), &parent, kTreeId);
        tree->LoadStandardCheckStates();
        const int stops[] = {80, 20160, 10220, 300};
        tree->UseTabs(stops, 4);
    };
    constexpr UINT kMessages[] = {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN, WM_KEYDOWN,
                                  WM_CHAR,        WM_VSCROLL,       WM_HSCROLL,     WM_MOUSEWHEEL,
                                  WM_SIZE,        WM_SETREDRAW,     WM_SETFOCUS,    WM_KILLFOCUS,
                                  WM_PAINT,       WM_GETDLGCODE};
    constexpr WPARAM kKeys[] = {VK_UP, VK_DOWN,  VK_LEFT, VK_RIGHT, ' ',         'x',
                                'r',   VK_PRIOR, VK_NEXT, VK_HOME,  VK_MULTIPLY, VK_SUBTRACT};
    constexpr size_t kEnds = 11;  // where that is a matter of luck, it goes on for longer
    for (int i = 0; i < MonkeySteps() || (i < 4 * MonkeySteps() && ends.size() < kEnds); ++i) {
        tree == nullptr || tree->m_hWnd == nullptr ? make() : void();
        if (random() % 4 == 0 || tree->GetRootItem() == nullptr) {
            tree->InsertItem(("row\tfield\t" + std::to_string(i)).c_str(), 0, 1,
                             random() % 2 ? tree->GetSelectedItem() : nullptr, TVI_LAST);
        }
        tree->EnableExpectedKeys(random() % 2);
        const UINT nMessage = kMessages[random() % std::size(kMessages)];
        WPARAM wParam = random() % 10;
        if (nMessage == WM_KEYDOWN || nMessage == WM_CHAR) {
            wParam = kKeys[random() % std::size(kKeys)];
        } else if (nMessage == WM_MOUSEWHEEL) {
            wParam = MAKEWPARAM(0, static_cast<WORD>(40 * (static_cast<int>(random() % 24) - 12)));
        } else if (nMessage == WM_SIZE) {
            tree->MoveWindow(0, 0, static_cast<int>(random() % 300),
                             static_cast<int>(random() % 200));
        }
        ::SendMessage(tree->m_hWnd, nMessage, wParam, MAKELPARAM(random() % 300, random() % 200));
        parent.m_notifications.clear();
    }
    EXPECT_GE(ends.size(), kEnds);
    tree.reset();
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
}

TEST(TreeItem, TextForACallerIsCutAndTerminated) {
    TreeWindow<> w;
    char buffer[] = "zzzzzzz";
    TVITEM item{};
    item.mask = TVIF_TEXT;
    item.hItem = w.Add("abcdef");
    item.pszText = buffer;
    item.cchTextMax = 4;
    EXPECT_TRUE(w.tree.GetItem(&item));
    EXPECT_EQ(std::string(buffer, 6), std::string("abc\0zz", 6));
    EXPECT_FALSE(w.tree.GetItem(nullptr));
}

}  // namespace
