#include "tree/core/tree_view.h"

#include "base/no_memory.h"

#include <algorithm>
#include <utility>

namespace qv {

namespace {

constexpr int kLeastIndent = 19;
constexpr int kTextMargin = 4;  // around the text of a row whose stops count from the text
constexpr int kLeastItemHeight = 5;
constexpr int kFontGap = 2;

}  // namespace

TreeView::TreeView(WindowPort& port, TextMeasure& measure, const MultiByte& text,
                   const StyleTable& styles, TreeSteps& steps)
    : m_port(port),
      m_measure(measure),
      m_aStyles(styles),
      m_steps(steps),
      m_items(text, styles, steps) {}

// --- Items

HTREEITEM TreeView::InsertItem(const char* pszText, int nImage, int nSelectedImage,
                               HTREEITEM hParent, HTREEITEM hInsertAfter) {
    HTREEITEM hItem = m_items.InsertItem(pszText, nImage, nSelectedImage, hParent, hInsertAfter);
    if (hItem == nullptr) {
        return nullptr;
    }
    m_rows.Inserted(hItem);
    Refresh();
    return hItem;
}

bool TreeView::DeleteItem(HTREEITEM hItem) {
    if (hItem == nullptr || hItem == TVI_ROOT) {
        DeleteAllItems();
        return true;
    }
    if (!TreeItems::IsLive(hItem)) {
        return false;
    }
    m_rows.BranchLeaves(hItem);
    m_items.DeleteItem(hItem);
    Refresh();
    return true;
}

bool TreeView::DeleteChildren(HTREEITEM hItem) {
    if (hItem == nullptr) {
        return false;
    }
    const bool bRedraw = std::exchange(m_bRedraw, false);
    bool bDeleted = true;
    while (bDeleted && hItem->pFirstChild != nullptr) {
        bDeleted = DeleteItem(hItem->pFirstChild);
    }
    m_bRedraw = bRedraw;
    Refresh();
    return bDeleted;
}

void TreeView::DeleteAllItems() {
    m_rows.Clear();
    m_items.DeleteAllItems();
    if (m_bRedraw && m_port.HasWindow()) {
        CalcScroll();
        m_port.InvalidateAll();
    }
}

bool TreeView::ChangeParent(HTREEITEM hItem, HTREEITEM hNewParent) {
    if (hItem == nullptr || !TreeItems::IsLive(hItem)) {
        return false;
    }
    if (hNewParent == TVI_ROOT) {
        hNewParent = nullptr;
    }
    const bool bMoves = hNewParent != hItem->pParent;
    if (bMoves) {
        m_rows.BranchLeaves(hItem);
    }
    const bool bMoved = m_items.ChangeParent(hItem, hNewParent);
    if (bMoves) {
        m_rows.BranchInserted(hItem);
    }
    if (bMoved) {
        CalcScroll();
        CalcBottomItem();
        InvalidateAll();
    }
    return bMoved;
}

bool TreeView::SortChildren(HTREEITEM hParent) {
    if (hParent == nullptr || hParent == TVI_ROOT) {
        return false;
    }
    const TreeItems::Watch watch(m_items, hParent);
    if (!m_items.SortChildren(hParent) || !watch.ObjectAlive()) {
        return false;
    }
    m_rows.Reordered(hParent);
    if (m_bRedraw) {
        RefitAll();
    }
    if (m_port.HasWindow()) {
        m_port.InvalidateAll();
    }
    return true;
}

bool TreeView::SetItemText(HTREEITEM hItem, const char* pszText) {
    if (hItem == nullptr || !m_items.SetItemText(hItem, pszText)) {
        return hItem == nullptr;
    }
    hItem->nExtentEpoch = 0;
    m_rows.WidthChanged(hItem);
    if (m_bRedraw) {
        InvalidateItem(hItem, true);
    }
    return true;
}

void TreeView::SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage) {
    if (hItem == nullptr) {
        return;
    }
    hItem->nImage = nImage;
    hItem->nSelectedImage = nSelectedImage;
    if (m_bRedraw) {
        InvalidateItem(hItem, true);
    }
}

void TreeView::SetItemState(HTREEITEM hItem, unsigned nState, unsigned nMask) {
    if (hItem == nullptr) {
        return;
    }
    if (nMask & TVIS_EXPANDED) {
        SetExpanded(hItem, (nState & TVIS_EXPANDED) != 0);
    }
    hItem->nState = (hItem->nState & ~nMask) | (nState & nMask);
}

void TreeView::SetItemStateImage(HTREEITEM hItem, unsigned nImage, bool bChildren) {
    if (!m_items.HaveStateImage(hItem)) {
        return;
    }
    // In the order of the tree, without recursion.
    HTREEITEM hEnd = bChildren ? m_items.NextAfterSubtree(hItem) : m_items.WalkNext(hItem);
    for (HTREEITEM h = hItem; h != hEnd; h = m_items.WalkNext(h)) {
        h->nState = TreeItems::SetStateImage(h->nState, nImage);
        if (m_bRedraw) {
            InvalidateItem(h, false);
        }
    }
}

int TreeView::ChangeItemStyles(HTREEITEM hItem, int nStyle, bool bUpTheTree, bool bOnlyDefault) {
    const int nChanged = m_items.ChangeItemStyles(hItem, nStyle, bUpTheTree, bOnlyDefault);
    for (HTREEITEM h = hItem; nChanged > 0 && h != nullptr; h = h->pParent) {
        m_rows.WidthChanged(h);
    }
    if (nChanged > 0) {
        InvalidateAll();
    }
    return nChanged;
}

// --- Columns

void TreeView::UseTabs(const int* pTabs, int nCount) {
    m_tabs.Use(pTabs, nCount);
    ForgetExtents();
    InvalidateAll();
}

void TreeView::ClearTabs() {
    UseTabs(nullptr, 0);
}

void TreeView::SetTabValue(int nTab, int nValue) {
    m_tabs.SetValue(nTab, nValue);
    ForgetExtents();
}

void TreeView::SetTabFormat(int nTab, unsigned nFormat) {
    m_tabs.SetFormat(nTab, nFormat);
    ForgetExtents();
}

void TreeView::SetIndentTabs(bool bIndentTabs) {
    m_bIndentTabs = bIndentTabs;
    ForgetExtents();
}

// --- Row height and rectangles

int TreeView::ItemHeight() {
    if (m_nItemHeight == 0) {
        try {
            CalcItemHeight();
        } catch (...) {
            ExpectNoMemory();
            m_bFitDue = true;  // no height yet; it is measured the next time
        }
    }
    return m_nItemHeight;
}

void TreeView::CalcItemHeight() {
    m_steps.ReadImageSizes(m_images);
    const int nFont = m_steps.FontHeight();
    int nHeight = nFont > 0 ? nFont + kFontGap : 0;
    nHeight = std::max({nHeight, m_images.cyImage, m_images.cyStateImage});
    if (nHeight > 0) {
        // Even, so that the dots of the lines go on in phase from row to row.
        m_nItemHeight = ((std::max(nHeight, kLeastItemHeight) + 1) | 1) - 1;
    }
}

int TreeView::IndentStep() const {
    return std::max(kLeastIndent, m_images.cyImage);
}

// The window is asked once for all rows of a refit.
bool TreeView::LinesAtRoot() const {
    return m_bCounting ? m_metrics.bLinesAtRoot
                       : m_port.HasWindow() && (m_port.Style() & TVS_LINESATROOT) != 0;
}

void TreeView::ForgetExtents() {
    m_rows.WidthsChanged();
    if (++m_nExtentEpoch == 0) {
        m_nExtentEpoch = 1;
        for (HTREEITEM h = m_items.GetNextItem(m_items.Root(), TVGN_ROOT); h != nullptr;
             h = m_items.WalkNext(h)) {
            h->nExtentEpoch = 0;
        }
    }
}

// A code that no style belongs to shows as a letter, until there is one.
void TreeView::CheckStyles() {
    if (m_nExtentStyles != m_aStyles.Count()) {
        m_nExtentStyles = m_aStyles.Count();
        ForgetExtents();
    }
}

int TreeView::TextExtent(HTREEITEM hItem, TextMeasure* pOther) {
    CheckStyles();
    if (pOther == nullptr && hItem->nExtentEpoch == m_nExtentEpoch) {
        return hItem->nExtent;
    }
    const int nExtent = ColumnsExtent(m_items.DisplayText(hItem), m_tabs, m_bIndentTabs, m_aStyles,
                                      pOther != nullptr ? *pOther : m_measure);
    if (pOther == nullptr) {
        hItem->nExtent = nExtent;
        hItem->nExtentEpoch = m_nExtentEpoch;
    }
    return nExtent;
}

void TreeView::CalcItemRect(TextMeasure* pOther, int nTop, HTREEITEM hItem, Rect& rect,
                            bool bTextOnly) {
    const int nHeight = ItemHeight();  // first, as it finds the font
    const int nIndent = IndentStep();
    // With stops that count from the text, what stands before it pushes the right edge on. With
    // absolute stops the edge stays, and the text gets what is left.
    int nText = TextExtent(hItem, pOther);
    rect = {hItem->nLevel * nIndent, nTop, nText, nTop + nHeight};
    if (m_bIndentTabs) {
        rect.right = rect.left + nText + kTextMargin;
    } else {
        nText -= rect.left;
    }
    const auto makeRoom = [&](int nWidth) {
        if (m_bIndentTabs) {
            rect.right += nWidth;
        } else {
            nText -= nWidth;
        }
    };
    if (m_images.bNormal) {
        makeRoom(m_images.cxImage + kImageGap);
    }
    if (m_images.bState && m_items.HaveStateImage(hItem)) {
        makeRoom(m_images.cxStateImage + kImageGap);
    }
    if (LinesAtRoot()) {
        rect.left += nIndent;
        makeRoom(nIndent);
    }
    if (bTextOnly) {
        rect.left = rect.right - nText - (m_bIndentTabs ? kTextMargin : 0);
    }
}

Rect TreeView::RowRect(int nTop, HTREEITEM hItem, bool bTextOnly) {
    if (m_steps.ReplacesRowRect()) {
        return m_steps.RowRect(nTop, hItem, bTextOnly);
    }
    Rect rect;
    CalcItemRect(nullptr, nTop, hItem, rect, bTextOnly);
    return rect;
}

bool TreeView::GetItemRect(HTREEITEM hItem, Rect& rect, bool bTextOnly) {
    try {
        return FindRect(hItem, rect, bTextOnly);
    } catch (...) {
        ExpectNoMemory();
        return false;
    }
}

bool TreeView::FindRect(HTREEITEM hItem, Rect& rect, bool bTextOnly) {
    if (hItem == nullptr || !m_port.HasWindow() || ItemHeight() == 0) {
        return false;
    }
    if (m_rows.KnownHidden(hItem)) {
        return false;
    }
    int nRow = 0;
    HTREEITEM h = m_items.Top();
    for (; h != nullptr && h != hItem; ++nRow) {
        if (h == m_items.Bottom()) {
            // The only other row on screen is the partial one.
            if (m_items.NextDisplayableItem(h) != hItem) {
                return false;
            }
        }
        h = m_items.NextDisplayableItem(h);
    }
    if (h == nullptr) {
        return false;
    }
    rect = RowRect(nRow * ItemHeight(), hItem, bTextOnly);
    return true;
}

bool TreeView::GetRowRect(HTREEITEM hItem, Rect& rect) {
    const int nRow = m_port.HasWindow() ? RowOf(hItem) : -1;
    if (nRow < 0 || ItemHeight() == 0) {
        return false;
    }
    try {
        rect = RowRect((nRow - RowOf(m_items.Top())) * ItemHeight(), hItem, false);
        return true;
    } catch (...) {
        ExpectNoMemory();
        return false;
    }
}

HTREEITEM TreeView::HitTest(Point pt, unsigned* pFlags, Rect* pRect) {
    unsigned nUnused;
    unsigned& nFlags = pFlags != nullptr ? *pFlags : nUnused;
    nFlags = 0;
    if (!m_port.HasWindow()) {
        return nullptr;
    }
    const Rect rcClient = m_port.ClientRect();
    if (!rcClient.Contains(pt)) {
        nFlags = pt.x < rcClient.left     ? TVHT_TOLEFT
                 : pt.x >= rcClient.right ? TVHT_TORIGHT
                 : pt.y < rcClient.top    ? TVHT_ABOVE
                                          : TVHT_BELOW;
        return nullptr;
    }
    nFlags = TVHT_NOWHERE;
    const int nHeight = m_items.Top() != nullptr ? ItemHeight() : 0;
    if (nHeight == 0) {
        return nullptr;
    }
    const int nRow = (pt.y - rcClient.top) / nHeight;
    HTREEITEM hItem = m_items.Top();
    for (int i = 0; i < nRow && hItem != nullptr; ++i) {
        hItem = m_items.NextDisplayableItem(hItem);
    }
    if (hItem == nullptr) {
        return nullptr;
    }
    Rect rect;
    try {
        rect = RowRect(nRow * nHeight, hItem, false);
    } catch (...) {
        ExpectNoMemory();
        return nullptr;
    }
    if (pRect != nullptr) {
        *pRect = rect;
    }
    const int x = pt.x + m_nHScrollPos;
    if (x < rect.left) {
        const bool bButton = hItem->pFirstChild != nullptr && x >= rect.left - IndentStep();
        nFlags = bButton ? TVHT_ONITEMBUTTON : TVHT_ONITEMINDENT;
    } else if (x >= rect.right) {
        nFlags = TVHT_ONITEMRIGHT;
    } else if (rect.Contains({x, pt.y})) {
        const bool bState = m_images.cxStateImage > 0 && m_items.HaveStateImage(hItem);
        const int cxState = bState ? m_images.cxStateImage + kImageGap : 0;
        const int cxImage = m_images.cxImage > 0 ? m_images.cxImage + kImageGap : 0;
        const int nOffset = x - rect.left;
        nFlags |= nOffset < cxState             ? TVHT_ONITEMSTATEICON
                  : nOffset < cxState + cxImage ? TVHT_ONITEMICON
                                                : TVHT_ONITEMLABEL;
    }
    return hItem;
}

bool TreeView::ItemVisible(HTREEITEM hItem) const {
    if (hItem == nullptr) {
        return false;
    }
    for (HTREEITEM h = m_items.Top(); h != nullptr; h = m_items.NextDisplayableItem(h)) {
        if (h == hItem) {
            return true;
        }
        if (h == m_items.Bottom()) {
            break;
        }
    }
    return false;
}

// --- Selection

bool TreeView::SelectItem(HTREEITEM hItem) {
    const HTREEITEM hOld = m_items.Selected();
    if (hItem == hOld) {
        return false;
    }
    m_items.Select(hItem);
    if (m_bRedraw) {
        InvalidateItem(hItem, false);
        InvalidateItem(hOld, false);
        if (m_port.HasWindow()) {
            m_port.Update();
        }
    }
    return true;
}

void TreeView::InvalidateItem(HTREEITEM hItem, bool bErase) {
    try {
        Rect rect;
        if (FindRect(hItem, rect, false)) {
            rect.left -= m_nHScrollPos;
            rect.right = std::max(rect.right - m_nHScrollPos, m_port.ClientRect().right);
            m_port.Invalidate(rect, bErase);
        }
    } catch (...) {
        ExpectNoMemory();
        m_port.InvalidateAll();  // it is not known where the row ends
    }
}

void TreeView::SetRedraw(bool bRedraw) {
    m_bRedraw = bRedraw;
    if (m_bRedraw && m_port.HasWindow()) {
        RefitAll();
        m_port.InvalidateAll();
    }
}

// Of the window, while redraw is on.
void TreeView::InvalidateAll() {
    if (m_bRedraw && m_port.HasWindow()) {
        m_port.InvalidateAll();
    }
}

// After a change of rows, while redraw is on.
void TreeView::Refresh() {
    if (m_bRedraw) {
        CalcScroll();
        CalcBottomItem();
        InvalidateAll();
    }
}

void TreeView::Reset() {
    m_rows.Forget();
    m_items.DeleteAllItems();
    m_nItemHeight = 0;
    m_nHScrollPos = m_nVScrollPos = m_nVPage = m_nHPage = 0;
    ForgetExtents();
}

}  // namespace qv
