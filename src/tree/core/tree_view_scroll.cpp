#include "tree/core/tree_view.h"

#include "base/no_memory.h"

#include <algorithm>
#include <cstdlib>

namespace qv {

namespace {

constexpr int kHorizontalMargin = 4;  // of the client width is no part of a horizontal page
constexpr int kHorizontalLine = 4;    // pixels a click on an arrow
constexpr int kHorizontalUnit = 2;    // pixels the horizontal bar counts as one
constexpr int kStepwiseScroll = 16;   // rows up to which walking beats asking the index

// The ends of a bar lead nowhere.
ScrollMove TreeMove(unsigned nCode, ScrollSteps steps, int nThumb) {
    const ScrollMove move = MoveOf(nCode, steps, nThumb);
    const bool bEnd = move.kind == ScrollMove::Kind::Top || move.kind == ScrollMove::Kind::Bottom;
    return bEnd ? ScrollMove{} : move;
}

}  // namespace

// --- What is displayable

void TreeView::SetExpanded(HTREEITEM hItem, bool bExpanded) {
    if (((hItem->nState & TVIS_EXPANDED) != 0) == bExpanded) {
        return;
    }
    if (!bExpanded) {
        m_rows.Collapsing(hItem);
        hItem->nState &= ~static_cast<std::uint32_t>(TVIS_EXPANDED);
        return;
    }
    hItem->nState |= TVIS_EXPANDED;
    m_rows.Expanded(hItem);
}

// Widths depend on more than the rows; measures them anew where that has changed.
void TreeView::CheckMetrics() {
    CheckStyles();
    const RowMetrics metrics{m_images, m_bIndentTabs, m_items.StatesAtRoot(), LinesAtRoot()};
    if (metrics == m_metrics) {
        return;
    }
    m_rows.WidthsChanged();
    m_metrics = metrics;
}

// Counts the displayable rows, and sets m_nMaxWidth and m_nVScrollPos.
int TreeView::CountRows() {
    CheckMetrics();
    const SetWhileAlive counting(m_items.Alive(), m_bCounting, true);
    const bool bReplaced = m_steps.ReplacesRowRect();
    const auto right = [this](HTREEITEM h) {
        Rect rect;
        CalcItemRect(nullptr, 0, h, rect, false);
        return rect.right;
    };
    if (m_rows.Ensure()) {
        m_nMaxWidth = bReplaced ? m_steps.WidestRow() : m_rows.MaxRight(right);
        m_nVScrollPos = std::max(0, m_rows.IndexOf(m_items.Top()));
        return m_rows.Count();
    }
    int nRows = 0;
    m_nMaxWidth = bReplaced ? m_steps.WidestRow() : 0;
    m_nVScrollPos = 0;
    for (HTREEITEM h = m_items.Root(); h != nullptr; h = m_items.NextDisplayableItem(h), ++nRows) {
        if (h == m_items.Top()) {
            m_nVScrollPos = nRows;
        }
        if (!bReplaced) {
            m_nMaxWidth = std::max(m_nMaxWidth, right(h));
        }
    }
    return nRows;
}

// The item itself, or the outermost collapsed one among its ancestors.
HTREEITEM TreeView::ShownAncestor(HTREEITEM hItem) const {
    HTREEITEM hShown = hItem;
    for (HTREEITEM h = hItem; h != nullptr; h = h->pParent) {
        if (h != hItem && !(h->nState & TVIS_EXPANDED)) {
            hShown = h;
        }
    }
    return hShown;
}

// --- The refit

void TreeView::CalcBottomItem() {
    if (!m_port.HasWindow()) {
        return;
    }
    if (m_items.Top() == nullptr || ItemHeight() == 0) {
        m_items.SetBottom(nullptr);
        return;
    }
    m_items.SetBottom(m_items.Top());
    for (int nRows = WholeRows(m_scroll.ClientSize().cy, ItemHeight()); nRows > 1; --nRows) {
        const HTREEITEM hNext = m_items.NextDisplayableItem(m_items.Bottom());
        if (hNext == nullptr) {
            break;
        }
        m_items.SetBottom(hNext);
    }
}

void TreeView::CalcTopItem() {
    if (!m_port.HasWindow()) {
        return;
    }
    if (m_items.Bottom() == nullptr || ItemHeight() == 0) {
        m_items.SetTop(m_items.Root());
        return;
    }
    HTREEITEM hTop = m_items.Bottom();
    for (int nRows = WholeRows(m_scroll.ClientSize().cy, ItemHeight()); nRows > 1; --nRows) {
        const HTREEITEM hLast = m_items.LastDisplayableItem(hTop);
        if (hLast == nullptr) {
            break;
        }
        hTop = hLast;
    }
    if (hTop != m_items.Top()) {
        m_items.SetTop(hTop);
        CalcScroll();
    }
}

void TreeView::CalcScroll() {
    try {
        m_scroll.Fit([this] {
            m_bFitDue = false;
            Fit();
        });
    } catch (...) {
        ExpectNoMemory();
        m_bFitDue = true;
    }
}

void TreeView::FitIfDue() {
    if (m_bFitDue && m_bRedraw) {
        CalcScroll();
        CalcBottomItem();
    }
}

// Works from the client area as it would be without bars, since one bar may force the other.
void TreeView::Fit() {
    m_items.SetTop(ShownAncestor(m_items.Top()));
    const int nRows = CountRows();
    // Without rows the height is not asked for: it is measured once, and image lists may come yet.
    const int cyRow = nRows > 0 ? ItemHeight() : 0;
    const BarPlan plan = PlanBars(m_scroll.SizeWithout(m_nHPage != 0, m_nVPage != 0),
                                  m_scroll.BarSizes(), {m_nMaxWidth, nRows, cyRow});
    if (FitVerticalBar(plan, nRows) && FitHorizontalBar(plan) && m_scroll.WasResized()) {
        CalcBottomItem();
    }
}

// False once the window is gone.
bool TreeView::FitVerticalBar(const BarPlan& plan, int nRows) {
    const bool bShown = m_nVPage != 0;
    if (plan.bVert) {
        // At least 1, which also says that the bar is shown, in a window lower than a row.
        m_nVPage = std::max(1, WholeRows(plan.room.cy, ItemHeight()));
        if (!bShown && !m_scroll.ShowBar(SB_VERT, true)) {
            return false;
        }
        m_port.SetScrollRange(SB_VERT, ScrollAxis{m_nVScrollPos, nRows, m_nVPage}.Range());
        return true;
    }
    m_nVPage = 0;
    m_nVScrollPos = 0;
    m_items.SetTop(m_items.Root());
    if (!m_scroll.ShowBar(SB_VERT, false)) {
        return false;
    }
    if (bShown) {
        InvalidateAll();
    }
    return true;
}

bool TreeView::FitHorizontalBar(const BarPlan& plan) {
    const bool bShown = m_nHPage != 0;
    if (plan.bHorz) {
        m_nHPage = std::max(1, plan.room.cx - kHorizontalMargin);  // 1 as above
        if (!bShown && !m_scroll.ShowBar(SB_HORZ, true)) {
            return false;
        }
        m_port.SetScrollRange(SB_HORZ,
                              {0, m_nMaxWidth / kHorizontalUnit, m_nHPage / kHorizontalUnit,
                               m_nHScrollPos / kHorizontalUnit});
        return true;
    }
    const bool bMoves = m_nHScrollPos != 0;
    m_nHPage = 0;
    m_nHScrollPos = 0;
    if (!m_scroll.ShowBar(SB_HORZ, false)) {
        return false;
    }
    if (bShown || bMoves) {
        InvalidateAll();
    }
    return true;
}

// After a change that may leave rows above the view and room below it.
void TreeView::RefitAll() {
    CalcScroll();
    CalcBottomItem();
    CalcTopItem();
}

void TreeView::Resize() {
    if (!m_scroll.NoteResize()) {
        CalcScroll();
        CalcBottomItem();
    }
}

// --- Scrolling

// Moves both ends of the view, no further than the rows go. Gives the rows moved.
int TreeView::ScrollView(int nRows, bool bDown) {
    if (m_items.Top() == nullptr || m_items.Bottom() == nullptr) {
        return 0;
    }
    if (nRows > kStepwiseScroll && m_rows.Ensure()) {
        const int nTop = m_rows.IndexOf(m_items.Top());
        const int nBottom = m_rows.IndexOf(m_items.Bottom());
        if (nTop >= 0 && nBottom >= 0) {
            const int nMoved = std::min(nRows, bDown ? m_rows.Count() - 1 - nBottom : nTop);
            m_items.SetTop(m_rows.At(bDown ? nTop + nMoved : nTop - nMoved));
            m_items.SetBottom(m_rows.At(bDown ? nBottom + nMoved : nBottom - nMoved));
            return nMoved;
        }
    }
    int nMoved = 0;
    for (; nMoved < nRows; ++nMoved) {
        const HTREEITEM hLimit = bDown ? m_items.NextDisplayableItem(m_items.Bottom())
                                       : m_items.LastDisplayableItem(m_items.Top());
        if (hLimit == nullptr) {
            break;
        }
        const HTREEITEM hOther = bDown ? m_items.NextDisplayableItem(m_items.Top())
                                       : m_items.LastDisplayableItem(m_items.Bottom());
        m_items.SetTop(bDown ? hOther : hLimit);
        m_items.SetBottom(bDown ? hLimit : hOther);
    }
    return nMoved;
}

int TreeView::ScrollTreeDown(int nRows) {
    return ScrollView(nRows, true);
}

int TreeView::ScrollTreeUp(int nRows) {
    return ScrollView(nRows, false);
}

int TreeView::MoveRows(ScrollMove move) {
    switch (move.kind) {
        case ScrollMove::Kind::Up:
            return -ScrollTreeUp(move.nRows);
        case ScrollMove::Kind::Down:
            return ScrollTreeDown(move.nRows);
        case ScrollMove::Kind::Thumb: {
            const int nRows = std::max(move.nRows, 0) - m_nVScrollPos;
            return nRows > 0 ? ScrollTreeDown(nRows) : -ScrollTreeUp(-nRows);
        }
        default:
            return 0;
    }
}

void TreeView::VScroll(unsigned nCode, int nPos) {
    ScrollMove move = TreeMove(nCode, {1, m_nVPage - 1}, nPos);
    if (move.kind == ScrollMove::Kind::Thumb) {
        move.nRows = m_scroll.ThumbPosition(SB_VERT, nCode).value_or(nPos);
    }
    if (const int nDelta = MoveRows(move)) {
        if (std::abs(nDelta) < m_nVPage) {
            const int nHeight = ItemHeight();
            m_port.ScrollPixels(0, -nHeight * nDelta, true);
            if (nDelta > 0) {
                // The partial row at the bottom has moved up as well and is now to be whole.
                Rect rcStrip = m_port.ClientRect();
                rcStrip.top += nHeight * (m_nVPage - nDelta);
                m_port.Invalidate(rcStrip, false);
            }
            m_port.Update();
        } else {
            m_port.InvalidateAll();
        }
        m_nVScrollPos += nDelta;
    }
    CalcScroll();
}

void TreeView::HScroll(unsigned nCode, int nPos) {
    const ScrollMove move = TreeMove(nCode, {kHorizontalLine, m_nHPage}, kHorizontalUnit * nPos);
    const ScrollAxis axis{m_nHScrollPos, m_nMaxWidth, m_nHPage};
    const int nTarget = Target(axis, move, ThumbLimit::Followed).value_or(m_nHScrollPos);
    if (const int nStep = m_nHScrollPos - nTarget) {
        m_nHScrollPos = nTarget;
        m_port.ScrollPixels(nStep, 0, true);
        m_port.Update();
    }
    CalcScroll();
}

bool TreeView::StepView(bool bDown) {
    if (ScrollView(1, bDown) == 0) {
        return false;
    }
    m_port.ScrollPixels(0, bDown ? -ItemHeight() : ItemHeight(), false);
    CalcScroll();
    return true;
}

bool TreeView::EnsureVisible(HTREEITEM hItem) {
    if (hItem == nullptr || !TreeItems::IsLive(hItem)) {
        return false;
    }
    bool bExpanded = false;
    for (HTREEITEM h = hItem->pParent; h != nullptr; h = h->pParent) {
        if (!(h->nState & TVIS_EXPANDED)) {
            Expand(h, TVE_EXPAND, false, false);
            bExpanded = true;
        }
    }
    if (bExpanded && m_bRedraw) {
        CalcScroll();
        CalcBottomItem();
    }
    if (hItem == m_items.Top() || hItem == m_items.Bottom() || ItemVisible(hItem)) {
        if (bExpanded) {
            InvalidateAll();
        }
        return true;
    }
    const int nRow = m_rows.Ensure() ? m_rows.IndexOf(hItem) : -1;
    if (nRow >= 0) {
        const int nTop = m_rows.IndexOf(m_items.Top());
        if (nTop < 0 || nRow < nTop) {
            m_items.SetTop(hItem);
            if (m_bRedraw) {
                CalcBottomItem();
            }
        } else {
            m_items.SetBottom(hItem);
            if (m_bRedraw) {
                CalcTopItem();
            }
        }
    }
    if (m_bRedraw) {
        CalcScroll();
        InvalidateAll();
    }
    return nRow >= 0;
}

void TreeView::ShowAtTop(HTREEITEM hItem) {
    m_items.SetTop(hItem);
    CalcBottomItem();
    CalcScroll();
}

bool TreeView::Expand(HTREEITEM hItem, unsigned nCode, bool bInvalidate, bool bCollapseChildren) {
    if (hItem == nullptr || !TreeItems::IsLive(hItem) || nCode < TVE_COLLAPSE ||
        nCode > TVE_TOGGLE) {
        return false;
    }
    const bool bWasExpanded = (hItem->nState & TVIS_EXPANDED) != 0;
    const bool bExpand = nCode == TVE_EXPAND || (nCode == TVE_TOGGLE && !bWasExpanded);
    if (bCollapseChildren && bExpand && !bWasExpanded) {
        for (HTREEITEM h = hItem->pFirstChild; h != nullptr; h = h->pNextSibling) {
            h->nState &= ~static_cast<std::uint32_t>(TVIS_EXPANDED);
        }
    }
    SetExpanded(hItem, bExpand);
    if (nCode != TVE_COLLAPSE) {
        hItem->nState |= TVIS_EXPANDEDONCE;
    }
    if (!bExpand && m_items.CheckForAncestor(m_items.Selected(), hItem)) {
        const TreeItems::Watch watch(m_items, nullptr);
        m_steps.NfySelectItem(hItem);
        if (!watch.ObjectAlive()) {
            return true;
        }
    }
    if (m_bRedraw) {
        RefitAll();
        if (bInvalidate) {
            InvalidateAll();
        }
    }
    return true;
}

bool TreeView::CheckInvariants() const {
    return m_items.CheckInvariants() && m_rows.CheckInvariants();
}

}  // namespace qv
