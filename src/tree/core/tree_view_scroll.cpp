#include "tree/core/tree_view.h"

#include <algorithm>
#include <cstdlib>
#include <new>
#include <utility>

namespace qv {

namespace {

constexpr int kHorizontalMargin = 4;  // of the client width is no part of a horizontal page
constexpr int kHorizontalStep = 4;    // pixels a click on an arrow
constexpr int kHorizontalUnit = 2;    // pixels the horizontal bar counts as one
constexpr int kStepwiseScroll = 16;   // rows up to which walking beats asking the index

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
    const RowMetrics metrics{m_images, m_bIndentTabs, m_items.StatesAtRoot(),
                             HasStyleBit(TVS_LINESATROOT)};
    if (metrics == m_metrics) {
        return;
    }
    m_rows.WidthsChanged();
    m_metrics = metrics;
}

// Counts the displayable rows, and sets m_nMaxWidth and m_nVScrollPos.
int TreeView::CountRows() {
    CheckMetrics();
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

int TreeView::RowsThatFit(int nHeight) {
    return ItemHeight() > 0 ? nHeight / ItemHeight() : 0;
}

void TreeView::CalcBottomItem() {
    if (!m_port.HasWindow()) {
        return;
    }
    if (m_items.Top() == nullptr || ItemHeight() == 0) {
        m_items.SetBottom(nullptr);
        return;
    }
    m_items.SetBottom(m_items.Top());
    for (int nRows = RowsThatFit(m_port.ClientRect().Height()); nRows > 1; --nRows) {
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
    for (int nRows = RowsThatFit(m_port.ClientRect().Height()); nRows > 1; --nRows) {
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

// Showing a bar resizes the window, which leads back here: the call that is under way has the whole
// picture and finishes the job.
void TreeView::CalcScroll() {
    if (!m_port.HasWindow() || m_bFitting) {
        return;
    }
    const Fitting fitting(*this);
    m_bFitDue = false;
    try {
        Fit();
    } catch (const std::bad_alloc&) {
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
    const int cyBar = m_port.HorizontalBarHeight();
    const int cxBar = m_port.VerticalBarWidth();
    Rect rcClient = m_port.ClientRect();
    rcClient.bottom += m_nHPage != 0 ? cyBar : 0;
    rcClient.right += m_nVPage != 0 ? cxBar : 0;

    m_items.SetTop(ShownAncestor(m_items.Top()));
    const int nRows = CountRows();
    bool bHorizontal = m_nMaxWidth > rcClient.Width();
    if (bHorizontal) {
        rcClient.bottom -= cyBar;
    }
    // Without rows the height is not asked for: it is measured once, and image lists may come yet.
    const bool bVertical = nRows > 0 && ItemHeight() != 0 && nRows > RowsThatFit(rcClient.Height());
    if (bVertical) {
        rcClient.right -= cxBar;
        if (!bHorizontal && m_nMaxWidth > rcClient.Width()) {
            bHorizontal = true;
            rcClient.bottom -= cyBar;
        }
    }
    FitVerticalBar(rcClient, nRows, bVertical);
    FitHorizontalBar(rcClient, bHorizontal);
    if (std::exchange(m_bResizedWhileFitting, false)) {
        CalcBottomItem();
    }
}

void TreeView::FitVerticalBar(const Rect& rcClient, int nRows, bool bNeeded) {
    const bool bShown = m_nVPage != 0;
    if (bNeeded) {
        // At least 1, which also says that the bar is shown, in a window lower than a row.
        m_nVPage = std::max(1, RowsThatFit(rcClient.Height()));
        if (!bShown) {
            m_port.ShowScrollBar(SB_VERT, true);
        }
        m_port.SetScrollRange(SB_VERT, {0, nRows - 1, m_nVPage, m_nVScrollPos});
        return;
    }
    m_nVPage = 0;
    m_nVScrollPos = 0;
    m_items.SetTop(m_items.Root());
    m_port.ShowScrollBar(SB_VERT, false);
    if (bShown) {
        InvalidateAll();
    }
}

void TreeView::FitHorizontalBar(const Rect& rcClient, bool bNeeded) {
    const bool bShown = m_nHPage != 0;
    if (bNeeded) {
        m_nHPage = rcClient.Width() - kHorizontalMargin;
        if (m_nHPage <= 0) {
            m_nHPage = 1;  // as above
        }
        if (!bShown) {
            m_port.ShowScrollBar(SB_HORZ, true);
        }
        m_port.SetScrollRange(SB_HORZ,
                              {0, m_nMaxWidth / kHorizontalUnit, m_nHPage / kHorizontalUnit,
                               m_nHScrollPos / kHorizontalUnit});
        return;
    }
    const bool bMoves = m_nHScrollPos != 0;
    m_nHPage = 0;
    m_nHScrollPos = 0;
    m_port.ShowScrollBar(SB_HORZ, false);
    if ((bShown || bMoves)) {
        InvalidateAll();
    }
}

// After a change that may leave rows above the view and room below it.
void TreeView::RefitAll() {
    CalcScroll();
    CalcBottomItem();
    CalcTopItem();
}

void TreeView::Resize() {
    if (m_bFitting) {
        m_bResizedWhileFitting = true;
        return;
    }
    CalcScroll();
    CalcBottomItem();
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

void TreeView::VScroll(unsigned nCode, int nPos) {
    int nDelta = 0;
    switch (nCode) {
        case SB_LINEUP:
            nDelta = -ScrollTreeUp(1);
            break;
        case SB_LINEDOWN:
            nDelta = ScrollTreeDown(1);
            break;
        case SB_PAGEUP:
            nDelta = -ScrollTreeUp(m_nVPage - 1);
            break;
        case SB_PAGEDOWN:
            nDelta = ScrollTreeDown(m_nVPage - 1);
            break;
        case SB_THUMBPOSITION:
        case SB_THUMBTRACK: {
            // The message carries 16 bits of the position; the bar knows all of them.
            m_port.GetScrollPosition(SB_VERT, nCode == SB_THUMBTRACK, nPos);
            const int nRows = std::max(nPos, 0) - m_nVScrollPos;
            nDelta = nRows > 0 ? ScrollTreeDown(nRows) : -ScrollTreeUp(-nRows);
            break;
        }
        default:
            break;
    }
    if (nDelta != 0) {
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

// Pixels that the content moves to the right; below 0 it moves left.
int TreeView::HorizontalStep(unsigned nCode, int nPos) const {
    const int nScrolled = m_nHScrollPos;
    const int nLimit = m_nMaxWidth - m_nHPage;
    switch (nCode) {
        case SB_LINELEFT:
            return nScrolled <= 0 ? 0 : nScrolled <= kHorizontalStep ? nScrolled : kHorizontalStep;
        case SB_PAGELEFT:
            return nScrolled <= 0 ? 0 : std::min(nScrolled, m_nHPage);
        case SB_LINERIGHT:
            return nScrolled >= nLimit ? 0 : -std::min(nLimit - nScrolled, kHorizontalStep);
        case SB_PAGERIGHT:
            return nScrolled >= nLimit ? 0 : -std::min(nLimit - nScrolled, m_nHPage);
        case SB_THUMBPOSITION:
        case SB_THUMBTRACK:
            return nScrolled - kHorizontalUnit * nPos;
        default:
            return 0;
    }
}

void TreeView::HScroll(unsigned nCode, int nPos) {
    if (const int nStep = HorizontalStep(nCode, nPos)) {
        m_nHScrollPos -= nStep;
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
