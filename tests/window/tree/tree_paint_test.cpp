#include "support/monkey.h"
#include "support/picture.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "support/tree_window.h"

#include <afxwin.h>

#include <gtest/gtest.h>
#include <random>

namespace {

const COLORREF kWindow = ::GetSysColor(COLOR_WINDOW);
const COLORREF kHighlight = ::GetSysColor(COLOR_HIGHLIGHT);
const COLORREF kShadow = ::GetSysColor(COLOR_BTNSHADOW);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

Picture Shown(CWnd& wnd) {
    wnd.Invalidate(FALSE);
    wnd.UpdateWindow();
    return Picture::OfClient(wnd.m_hWnd);
}

TEST(TreePaint, FillsEveryPixelItselfWithoutErasing) {
    TreeWindow<> w;
    w.Add("a row");
    CClientDC(&w.tree).FillSolidRect(0, 0, 300, 200, kRed);
    EXPECT_EQ(Shown(w.tree).Count(kRed), 0);
    EXPECT_EQ(Picture::OfClient(w.tree.m_hWnd).At(290, 190), kWindow);
}

TEST(TreePaint, SelectionIsHighlightedWithTheFocusOrAlways) {
    TreeWindow<> w;
    w.tree.AddStyle(kBlue, kGreen);
    HTREEITEM a = w.Add("\033bstyled");
    BringToFront(w.parent.m_hWnd);
    w.tree.SetFocus();
    const CRect rc = w.RectOf(a);
    EXPECT_GT(Shown(w.tree).Count(kGreen, rc), rc.Width() * rc.Height() / 2) << "its style";
    w.tree.SelectItem(a);
    EXPECT_EQ(Shown(w.tree).At(rc.left + 3, rc.top + 2), kHighlight);
    EXPECT_EQ(Picture::OfClient(w.tree.m_hWnd).Count(kGreen), 0);
    ::SetFocus(w.parent.m_hWnd);
    PumpPending();
    EXPECT_EQ(Picture::OfClient(w.tree.m_hWnd).At(rc.left + 3, rc.top + 2), kGreen)
        << "repainted as the focus went";
    w.tree.ModifyStyle(0, TVS_SHOWSELALWAYS);
    EXPECT_EQ(Shown(w.tree).At(rc.left + 3, rc.top + 2), kHighlight);
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
    const Picture shown = Shown(w.tree);
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
    EXPECT_GT(Shown(w.tree).Count(kShadow, CRect(0, 0, 19, 40)), 10);
    const CRect rcButton(0, 0, 19, w.RowHeight());
    const int nPlus = Picture::OfClient(w.tree.m_hWnd).Count(RGB(0, 0, 0), rcButton);
    w.tree.Expand(a, TVE_EXPAND, TRUE, FALSE);
    const int nMinus = Shown(w.tree).Count(RGB(0, 0, 0), rcButton);
    EXPECT_GT(nMinus, 0);
    EXPECT_GT(nPlus, nMinus) << "a plus has an upright";
    w.tree.ModifyStyle(TVS_HASLINES, 0);
    EXPECT_EQ(Shown(w.tree).Count(kShadow, CRect(0, 0, 19, 60)), 0);
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
    const Picture empty = Shown(w.tree);
    EXPECT_GT(empty.Count(RGB(128, 128, 128), rcBox), 20) << "the frame of the box";
    EXPECT_EQ(empty.Count(RGB(0, 128, 128), rcBox), 0) << "corners are transparent";
    EXPECT_EQ(empty.Count(RGB(0, 0, 0), rcBox), 0);
    w.tree.SetCheck(a1, TRUE, FALSE);
    EXPECT_GT(Shown(w.tree).Count(RGB(0, 0, 0), rcBox), 8) << "the tick";
    w.tree.SetItemStateImage(a1, 2, FALSE);
    const Picture before = Shown(w.tree);
    EXPECT_EQ(before.Count(RGB(192, 192, 192), rcBox), 80) << "grey";
    constexpr UINT kNoBitmap = 4711;
    EXPECT_FALSE(w.tree.LoadTreeStates(kNoBitmap));
    EXPECT_TRUE(Shown(w.tree) == before);
    EXPECT_TRUE(w.tree.LoadTreeStates(30008));
    EXPECT_TRUE(Shown(w.tree) == before);
}

TEST(TreePaint, ListsSetBeforeTheFirstItemDecideTheRowHeight) {
    TreeWindow<> w;
    w.tree.UpdateWindow();
    CImageList images;
    images.Create(16, 40, ILC_COLOR, 1, 1);
    CBitmap bitmap;
    bitmap.CreateBitmap(16, 40, 1, 1, nullptr);
    images.Add(&bitmap, static_cast<CBitmap*>(nullptr));
    w.tree.SetImageList(&images, TVSIL_NORMAL);
    w.Add("a row");
    EXPECT_EQ(w.RowHeight(), 40);
    w.tree.SetImageList(nullptr, TVSIL_NORMAL);
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
    Shown(w.tree);
    for (int i = 0; i < 60; ++i) {
        const bool bVertical = random() % 3 != 0;
        w.tree.SendMessage(bVertical ? WM_VSCROLL : WM_HSCROLL, random() % 4);
        const Picture scrolled = Picture::OfClient(w.tree.m_hWnd);
        ASSERT_TRUE(scrolled == Shown(w.tree)) << i;
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

TEST(TreePaint, LeavesNoHandlesBehind) {
    TreeWindow<> w(kTreeStyle, CSize(120, 60));
    w.tree.LoadStandardCheckStates();
    HTREEITEM a = w.Add("a\tb");
    w.Add("child", a);
    w.tree.Expand(a, TVE_EXPAND, TRUE, FALSE);
    Shown(w.tree);
    const LONG nBefore = AfxGetOwnedHandleCount();
    for (int i = 0; i < 10000; ++i) {
        w.tree.InvalidateRect(nullptr, FALSE);
        w.tree.UpdateWindow();
    }
    EXPECT_EQ(AfxGetOwnedHandleCount(), nBefore);
}

// --- Replaced steps

class ReplacedTree : public QVTreeCtrlEx {
public:
    int CompareItems(HTREEITEM h1, HTREEITEM h2) override {
        return -QVTreeCtrlEx::CompareItems(h1, h2);
    }
    void CalcItemRect(CDC& dc, int nTop, HTREEITEM hItem, CRect& rect, BOOL bTextOnly) override {
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
    Shown(w.tree);
    EXPECT_GT(w.tree.m_nDrawn, 0);
    EXPECT_GT(Picture::OfClient(w.tree.m_hWnd).Count(kGreen), 1000);
}

class CountingTree : public QVTreeCtrlEx {
public:
    int CompareItems(HTREEITEM h1, HTREEITEM h2) override {
        ++m_nAsked;
        return QVTreeCtrlEx::CompareItems(h1, h2);
    }
    void CalcItemRect(CDC& dc, int nTop, HTREEITEM hItem, CRect& rect, BOOL bTextOnly) override {
        ++m_nAsked;
        QVTreeCtrlEx::CalcItemRect(dc, nTop, hItem, rect, bTextOnly);
    }
    int m_nAsked = 0;
};

// Says what is not true, so that it shows.
class KeepingTree : public CountingTree {
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
    EXPECT_EQ(w.tree.GetItemText(w.tree.GetChildItem(p)), "a");
    return w.tree.m_nAsked;
}

TEST(TreeSteps, ADerivedClassIsAskedUnlessItSaysThatItKeepsThem) {
    EXPECT_GE(StepsAsked<CountingTree>(), 2);
    EXPECT_EQ(StepsAsked<KeepingTree>(), 0);
    EXPECT_GE(StepsAsked<FurtherTree>(), 2) << "what holds for its base need not hold for it";
}

TEST(TreeMeasure, TableOfWidthsAgreesWithThePlatform) {
    TreeWindow<> w;
    HTREEITEM a = w.Add("x");
    CClientDC dc(&w.tree);
    CFont* pOwn = CFont::FromHandle(reinterpret_cast<HFONT>(w.parent.SendMessage(WM_GETFONT)));
    for (const char* pszFont : {"Tahoma", "Arial", "Times New Roman", "Courier New", "System"}) {
        CFont font;
        font.CreatePointFont(110, pszFont);
        std::mt19937 random(9);
        for (int i = 0; i < 300; ++i) {
            std::string strText;
            for (unsigned n = random() % 30; n > 0; --n) {
                strText += static_cast<char>(32 + random() % 224);
            }
            w.tree.SetItemText(a, strText.c_str());
            // Another font than the tree's own is measured as it stands in the context.
            for (CFont* pFont : {pOwn, &font}) {
                CFont* pOld = dc.SelectObject(pFont);
                CRect rc;
                w.tree.CalcItemRect(dc, 0, a, rc, TRUE);
                ASSERT_EQ(rc.Width() - 4, dc.GetTextExtent(CString(strText.c_str())).cx) << strText;
                dc.SelectObject(pOld);
            }
        }
    }
}

// --- Everything at once

TEST(TreeMonkey, SurvivesAnyOrderOfMessages) {
    TreeWindow<> w;
    w.tree.LoadStandardCheckStates();
    const int stops[] = {80, 20160, 10220, 300};
    w.tree.UseTabs(stops, 4);
    std::mt19937 random = MonkeyRandom(2026);
    w.parent.m_hook = [&](NMHDR* pHdr, LRESULT* pResult) {
        if (random() % 40 == 0) {
            w.tree.DeleteItem(reinterpret_cast<NM_TREEVIEW*>(pHdr)->itemNew.hItem);
        }
        *pResult = random() % 10 == 0;
        return true;
    };
    const UINT messages[] = {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN, WM_KEYDOWN,
                             WM_CHAR,        WM_VSCROLL,       WM_HSCROLL,     WM_MOUSEWHEEL,
                             WM_SIZE,        WM_SETREDRAW,     WM_SETFOCUS,    WM_KILLFOCUS,
                             WM_PAINT,       WM_GETDLGCODE};
    const WPARAM keys[] = {VK_UP, VK_DOWN, VK_LEFT, VK_RIGHT, ' ', VK_NEXT, 'x'};
    for (int i = 0; i < MonkeySteps(); ++i) {
        if (random() % 4 == 0 || w.tree.GetRootItem() == nullptr) {
            HTREEITEM h = w.tree.GetSelectedItem();
            w.Add(("row\tfield\t" + std::to_string(i)).c_str(), random() % 2 ? h : nullptr);
        }
        const UINT nMessage = messages[random() % std::size(messages)];
        WPARAM wParam = random() % 10;
        if (nMessage == WM_KEYDOWN || nMessage == WM_CHAR) {
            wParam = keys[random() % std::size(keys)];
        } else if (nMessage == WM_MOUSEWHEEL) {
            wParam = MAKEWPARAM(0, static_cast<WORD>(40 * (static_cast<int>(random() % 24) - 12)));
        } else if (nMessage == WM_SETREDRAW) {
            wParam = random() % 3 != 0;
        } else if (nMessage == WM_SIZE) {
            w.tree.MoveWindow(0, 0, static_cast<int>(random() % 300),
                              static_cast<int>(random() % 200));
        }
        w.tree.SendMessage(nMessage, wParam, MAKELPARAM(random() % 300, random() % 200));
        w.parent.m_notifications.clear();
    }
    w.tree.SetRedraw(TRUE);
    w.tree.MoveWindow(0, 0, 300, 200);
    int nItems = 0;
    for (HTREEITEM h = w.tree.GetRootItem(); h != nullptr; h = w.tree.WalkNext(h)) {
        ++nItems;
        if (HTREEITEM hNext = w.tree.WalkNext(h)) {
            ASSERT_EQ(w.tree.WalkPrev(hNext), h);
        }
    }
    EXPECT_GT(nItems, 0);
    EXPECT_EQ(w.tree.GetNextItem(nullptr, TVGN_CARET), w.tree.GetSelectedItem());
}

TEST(TreeItem, TextForACallerIsCutBetweenCharactersAndTerminated) {
    TreeWindow<> w;
    HTREEITEM a = w.Add("abcdef");
    char buffer[8];
    memset(buffer, 'z', sizeof(buffer));
    TVITEM item{};
    item.mask = TVIF_TEXT | TVIF_STATE | TVIF_PARAM;
    item.hItem = a;
    item.pszText = buffer;
    item.cchTextMax = 4;
    item.stateMask = TVIS_EXPANDED;
    EXPECT_TRUE(w.tree.GetItem(&item));
    EXPECT_STREQ(buffer, "abc");
    EXPECT_EQ(buffer[4], 'z');
    EXPECT_EQ(item.stateMask, static_cast<UINT>(TVIS_EXPANDED));
    EXPECT_FALSE(w.tree.GetItem(nullptr));
}

TEST(TreeLife, AControlCanBeCreatedAgain) {
    TreeWindow<> w;
    for (int i = 0; i < 100; ++i) {
        w.Add("row");
    }
    w.tree.SendMessage(WM_VSCROLL, SB_PAGEDOWN);
    w.tree.DestroyWindow();
    EXPECT_EQ(w.tree.GetRootItem(), nullptr);
    EXPECT_TRUE(w.tree.Create(kTreeStyle, CRect(0, 0, 100, 100), &w.parent, 5));
    HTREEITEM a = w.Add("again");
    EXPECT_TRUE(w.tree.ItemVisible(a));
    EXPECT_GT(w.RowHeight(), 10);
    const std::unique_ptr<CObject> pMade(CRuntimeClass::CreateObject("QVTreeCtrlEx"));
    EXPECT_TRUE(pMade != nullptr && pMade->IsKindOf(RUNTIME_CLASS(QVTreeCtrlEx)));
}

}  // namespace
