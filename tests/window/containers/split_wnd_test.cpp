// The split window: its panes, its bar dragged by the mouse, and whoever takes them away meanwhile.
#include "containers/split_wnd.h"

#include "support/monkey.h"
#include "support/mortal.h"
#include "support/picture.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "support/recording_parent.h"

#include <gtest/gtest.h>

namespace {

constexpr UINT kSplitId = 2801;
constexpr UINT kPaneId = 2802;
const CPoint kPlace(10, 20);

class Pane : public Mortal<CWnd> {
    DECLARE_DYNCREATE(Pane)
public:
    Pane() { ++s_nAlive; }
    ~Pane() override { --s_nAlive; }
    static inline int s_nAlive = 0;
    int m_nPaints = 0;
    std::function<void()> m_onSize;

private:
    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override {
        const auto onSize = nMessage == WM_SIZE ? m_onSize : nullptr;
        if (onSize != nullptr) {
            return onSize(), 0;
        }
        if (nMessage == WM_PAINT) {
            ++m_nPaints;
            CClientDC(this).FillSolidRect(0, 0, 999, 999, RGB(9, 99, 199));
        }
        return CWnd::WindowProc(nMessage, wParam, lParam);
    }
};
IMPLEMENT_DYNCREATE(Pane, CWnd)

class Split : public Mortal<QVSplitWnd> {
public:
    using QVSplitWnd::m_bTracking;
    using QVSplitWnd::m_nSplitPos;

    using QVSplitWnd::SplitterWidth;
    CRect Bar() {
        CRect rect;
        CalcSplitRect(rect, -1);
        return rect;
    }
    CRect Place(int nPane) {
        CRect rect;
        CalcPaneRect(nPane, rect);
        return rect;
    }
    bool Fits(int nPane) {
        CRect rect;
        GetPane(nPane)->GetWindowRect(&rect);
        GetParent()->ScreenToClient(&rect);
        return rect == Place(nPane);
    }
    Pane& At(int nPane) { return *static_cast<Pane*>(GetPane(nPane)); }
};

// A split window a thousand pixels long.
struct Shown {
    explicit Shown(int nPanes = 2) {
        CRect rect(kPlace, CSize(1000, 100));
        EXPECT_TRUE(pSplit->Create(rect, &parent, kSplitId, TRUE));
        while (nPanes-- > 0) {
            EXPECT_TRUE(pSplit->AddPane(RUNTIME_CLASS(Pane), kPaneId));
        }
    }
    Picture Look() {
        PumpPending();
        return Picture::OfClient(parent.m_hWnd);
    }
    bool Press() { return PressAt(pSplit->m_hWnd, pSplit->Bar().CenterPoint()); }

    RecordingParent parent{CSize(1030, 140)};
    std::unique_ptr<Split> pSplit = std::make_unique<Split>();
};

// Pixels that are another colour; -1 if there are such outside of rect.
int Differing(const Picture& a, const Picture& b, const CRect& rect = CRect()) {
    int nCount = 0;
    for (int i = 0; i < a.Width() * a.Height(); ++i) {
        const CPoint pt(i % a.Width(), i / a.Width());
        if (a.At(pt.x, pt.y) != b.At(pt.x, pt.y)) {
            if (!rect.PtInRect(pt)) {
                return -1;
            }
            ++nCount;
        }
    }
    return nCount;
}

TEST(SplitWnd, ADragInvertsATrackerAndTheReleaseMovesThePanes) {
    Shown w;
    Split& split = *w.pSplit;
    const Picture before = w.Look();
    const int nEnd = 2 * split.SplitterWidth();
    const int anPaints[] = {split.At(0).m_nPaints, split.At(1).m_nPaints};
    ASSERT_TRUE(w.Press());
    for (const auto& [pt, nPos] : {std::pair{CPoint(501, 9), 501},
                                   {{0, 9}, nEnd},
                                   {{333, -1}, 500},
                                   {{998, 9}, 1000 - nEnd}}) {
        ASSERT_TRUE(MoveTo(split.m_hWnd, pt));
        ASSERT_EQ(split.m_nSplitPos, nPos);
        const CRect rcTracker = split.Bar() + kPlace;
        EXPECT_EQ(Differing(before, w.Look(), rcTracker),
                  rcTracker.Width() * rcTracker.Height() / 2);
    }
    for (int x = 0; x < 1000; ++x) {
        split.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(x, 50));
    }
    for (const int nPane : {0, 1}) {
        EXPECT_EQ(split.At(nPane).m_nPaints, anPaints[nPane]) << nPane;
    }
    ASSERT_TRUE(ReleaseAt(split.m_hWnd, CPoint(333, 50)));
    PumpPending();
    for (const int nPane : {0, 1}) {
        EXPECT_TRUE(split.Fits(nPane));
        EXPECT_LE(split.At(nPane).m_nPaints, anPaints[nPane] + 1) << nPane;
    }
    const Picture after = w.Look();
    w.parent.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    EXPECT_EQ(Differing(after, w.Look()), 0) << "no trace of a tracker";
    split.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(1000, 100));
    EXPECT_EQ(split.m_nSplitPos, 330);
    split.At(1).m_onSize = [&] { w.pSplit.reset(); };
    split.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(900, 100));
    EXPECT_EQ(w.pSplit, nullptr) << "in a size of its pane";
}

TEST(SplitWnd, WhateverEndsADragTakesTheTrackerAwayAndTheBarBack) {
    const std::function<void(Split&)> ends[] = {
        [](Split& split) { split.SendMessage(WM_CANCELMODE); },
        [](Split& split) { split.At(0).SetCapture(); },
        [](Split& split) {
            const RecordingParent other(CSize(30, 30), WS_POPUP);
            EXPECT_TRUE(BringToFront(other.m_hWnd));
            split.SendMessage(WM_LBUTTONUP);
        },
        [](Split& split) { ReleaseAt(split.m_hWnd, CPoint(300, -15)); },
        [](Split& split) { split.ShowWindow(SW_HIDE), split.ShowWindow(SW_SHOW); },
        [](Split& split) { split.MoveWindow(kPlace.x, kPlace.y, 1000, 100); },
        [](Split& split) { split.SwapPane(1, split.GetPane(1)); },
    };
    for (const auto& end : ends) {
        SCOPED_TRACE(&end - ends);
        Shown w;
        const Picture before = w.Look();
        ASSERT_TRUE(w.Press() && MoveTo(w.pSplit->m_hWnd, CPoint(300, 50)));
        EXPECT_NE(Differing(before, w.Look()), 0);
        end(*w.pSplit);
        EXPECT_FALSE(w.pSplit->m_bTracking || CWnd::GetCapture() == w.pSplit.get());
        ReleaseAt(w.parent.m_hWnd, CPoint(1020, 5));
        EXPECT_EQ(w.pSplit->m_nSplitPos, 500);
        EXPECT_EQ(Differing(before, w.Look()), 0);
    }
}

// A tree of split windows, whose leaves are panes.
void Nest(Split& split, int nDepth, std::vector<Split*>& splits) {
    splits.push_back(&split);
    CRect rect(0, 0, 9, 9);
    while (nDepth == 0 && split.AddPane(RUNTIME_CLASS(Pane), kPaneId)) {
    }
    for (int i = 0; nDepth > 0 && i < 2; ++i) {
        auto* pInner = new Split;
        pInner->Create(rect, split.GetParent(), kSplitId, nDepth % 2);
        EXPECT_TRUE(split.AddPane(pInner) && !pInner->AddPane(&split));
        Nest(*pInner, nDepth - 1, splits);
    }
}

TEST(SplitWnd, NestedOnesFollowBelowTheirPanesWithOnePaintASize) {
    Shown w(0);
    std::vector<Split*> splits;
    Nest(*w.pSplit, 2, splits);
    std::map<HWND, int> order;
    for (HWND h = ::GetTopWindow(w.parent); h != nullptr; h = ::GetWindow(h, GW_HWNDNEXT)) {
        order[h] = static_cast<int>(order.size());
    }
    for (int i = 0; i <= 500; ++i) {
        w.pSplit->MoveWindow(i % 7, 20, 1000 - i, 100 + i % 20);
        w.pSplit->MoveWindow(10, 20, 1000 - i, 100 + i % 20);
        PumpPending();
        for (Split* pSplit : splits) {
            for (const int nPane : {0, 1}) {
                ASSERT_TRUE(pSplit->Fits(nPane)) << i;
                ASSERT_LT(order[pSplit->GetPane(nPane)->m_hWnd], order[pSplit->m_hWnd]);
                auto* pLeaf = DYNAMIC_DOWNCAST(Pane, pSplit->GetPane(nPane));
                ASSERT_TRUE(pLeaf == nullptr || std::exchange(pLeaf->m_nPaints, 0) <= 1) << i;
            }
        }
    }
}

TEST(SplitWnd, DeletesItsPanesButForThoseOfOthers) {
    for (const BOOL bAutoDelete : {TRUE, FALSE}) {
        Pane::s_nAlive = 0;
        Shown w;
        Pane other;
        other.Create(nullptr, "", WS_CHILD, CRect(), &w.parent, 9);
        auto* pOld = &w.pSplit->At(0);
        EXPECT_FALSE(w.pSplit->AddPane(RUNTIME_CLASS(Pane), 3)) << "a third";
        w.pSplit->SwapPane(0, &other);
        EXPECT_TRUE(w.pSplit->Fits(0) && other.IsWindowVisible() && !pOld->IsWindowVisible());
        w.pSplit->SwapPane(0, pOld);
        delete w.pSplit->GetPane(1);
        w.pSplit->SwapPane(7, pOld);
        EXPECT_TRUE(pOld->IsWindowVisible()) << "it is in the other slot";
        w.pSplit->SetAutoDeletePanes(bAutoDelete);
        w.parent.DestroyWindow();
        w.pSplit.reset();
        EXPECT_EQ(Pane::s_nAlive, bAutoDelete ? 1 : 2);
    }
}

TEST(SplitWnd, AnItemFollowsItsRatioAndTakesClicksOnItsBarAlone) {
    RecordingParent parent;
    for (const UINT nID : {kSplitId, kPaneId}) {
        CStatic item;
        item.Create("", WS_CHILD | WS_VISIBLE, CRect(0, 0, 40, 80), &parent, nID);
        item.UnsubclassWindow();
    }
    Split split;
    EXPECT_FALSE(split.Initialize(99, &parent, 1) || split.Initialize(kSplitId, nullptr, 1));
    ASSERT_TRUE(split.Initialize(kSplitId, &parent, FALSE));
    EXPECT_TRUE(split.AddPane(parent.GetDlgItem(kPaneId)));
    CWnd::DeleteTempMap();
    split.SetSplitRatio(25);
    EXPECT_EQ(split.m_nSplitPos, 40);
    split.MoveWindow(0, 0, 200, 100);
    split.SendMessage(WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(20, 20));
    EXPECT_EQ(split.m_nSplitPos, 25);
    EXPECT_TRUE(split.Fits(0));
    const auto hit = [&](CPoint pt) {
        split.ClientToScreen(&pt);
        return ::WindowFromPoint(pt);
    };
    EXPECT_EQ(hit(split.Bar().TopLeft()), split.m_hWnd);
    EXPECT_EQ(hit(split.Place(1).TopLeft()), parent.m_hWnd);
    MoveTo(split.m_hWnd, split.Bar().TopLeft());
    split.SendMessage(WM_SETCURSOR);
    EXPECT_EQ(::GetCursor(), AfxGetApp()->LoadCursor(AFX_IDC_VSPLITBAR));
    EXPECT_EQ(Picture::OfClient(parent).Count(::GetSysColor(COLOR_BTNFACE), split.Place(1)),
              200 * split.Place(1).Height());
    split.ShowWindow(SW_HIDE);
    split.MoveWindow(0, 0, 90, 90);
    EXPECT_FALSE(split.IsWindowVisible());
}

TEST(SplitWnd, LivesThroughAnythingMonkey) {
    Shown w(0);
    auto& pSplit = w.pSplit;
    const auto make = [&] {
        CRect rect(0, 0, 300, 90);
        pSplit = std::make_unique<Split>();
        pSplit->Create(rect, &w.parent, kSplitId, Pane::s_nAlive % 2);
    };
    std::vector<std::function<void(int)>> deeds = {
        [&](int n) { pSplit->AddPane(RUNTIME_CLASS(Pane), kPaneId + n % 2); },
        [&](int n) { pSplit->AddPane(w.parent.GetDlgItem(kSplitId + n % 3)); },
        [&](int n) { pSplit->SwapPane(n, n % 9 == 0 ? nullptr : pSplit->GetPane(n % 2)); },
        [&](int n) { pSplit->SetSplitRatio(n); },
        [&](int n) { pSplit->MoveWindow(n, n, n * 6, n); },
        [&](int n) { pSplit->ShowWindow(n % 3 ? SW_SHOW : SW_HIDE); },
        [&](int n) { delete (pSplit->m_hWnd != nullptr ? pSplit->GetPane(n % 2) : nullptr); },
        [&](int n) { n % 4 == 0 ? pSplit->DestroyWindow() : FALSE; },
        [&](int) { PumpPending(); }};
    for (const UINT nMessage : {WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_LBUTTONUP, WM_SIZE}) {
        deeds.push_back([&pSplit, nMessage](int n) {
            pSplit->SendMessage(nMessage, 0, MAKELPARAM(n % 2 ? n * 6 : pSplit->m_nSplitPos, n));
        });
    }
    PlayInAnyOrder(pSplit, make, deeds);
}

}  // namespace
