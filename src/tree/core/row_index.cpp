#include "tree/core/row_index.h"

#include <algorithm>

namespace qv {

namespace {

constexpr int kLeafRows = RowLeaf::kLeafRows;

// By the links: the levels of items that were moved need not be true.
int DepthOf(HTREEITEM hItem) {
    int nDepth = 0;
    for (HTREEITEM h = hItem->pParent; h != nullptr; h = h->pParent) {
        ++nDepth;
    }
    return nDepth;
}

}  // namespace

RowIndex::Place RowIndex::PlaceOf(HTREEITEM hItem) const {
    const RowLeaf& leaf = *hItem->pRowLeaf;
    if (leaf.rows[leaf.nCount - 1].hItem == hItem) {  // where rows are appended
        return {leaf.nOrdinal, leaf.nCount - 1};
    }
    const auto* pRow =
        std::find_if(leaf.rows, leaf.rows + leaf.nCount,
                     [hItem](const RowLeaf::Row& row) { return row.hItem == hItem; });
    return {leaf.nOrdinal, static_cast<int>(pRow - leaf.rows)};
}

RowIndex::Place RowIndex::PlaceBehind(HTREEITEM hAfter) const {
    if (hAfter == nullptr) {
        return {0, 0};
    }
    const Place place = PlaceOf(hAfter);
    return {place.nLeaf, place.nRow + 1};
}

RowIndex::Place RowIndex::PlaceAt(int nIndex) const {
    size_t nLeaf = 0;
    while (nLeaf < m_leaves.size() && nIndex >= m_leaves[nLeaf].pRows->nCount) {
        nIndex -= m_leaves[nLeaf++].pRows->nCount;
    }
    return {nLeaf, nIndex};
}

int RowIndex::IndexOf(HTREEITEM hItem) const {
    if (hItem == nullptr || hItem->pRowLeaf == nullptr) {
        return -1;
    }
    const Place place = PlaceOf(hItem);
    int nIndex = place.nRow;
    for (size_t i = 0; i < place.nLeaf; ++i) {
        nIndex += m_leaves[i].pRows->nCount;
    }
    return nIndex;
}

HTREEITEM RowIndex::At(int nIndex) const {
    if (nIndex < 0 || nIndex >= m_nCount) {
        return nullptr;
    }
    const Place place = PlaceAt(nIndex);
    return m_leaves[place.nLeaf].pRows->rows[place.nRow].hItem;
}

int RowIndex::MaxRight(const Measure& measure) {
    int nMaxRight = 0;
    for (Leaf& leaf : m_leaves) {
        if (!leaf.bMeasured) {
            leaf.nMaxRight = 0;
            for (int i = 0; i < leaf.pRows->nCount; ++i) {
                RowLeaf::Row& row = leaf.pRows->rows[i];
                if (row.nRight == kUnmeasured) {
                    row.nRight = std::max(0, measure(row.hItem));
                }
                leaf.nMaxRight = std::max(leaf.nMaxRight, row.nRight);
            }
            leaf.bMeasured = true;
        }
        nMaxRight = std::max(nMaxRight, leaf.nMaxRight);
    }
    return nMaxRight;
}

void RowIndex::LearnDepths(Leaf& leaf) {
    const RowLeaf& rows = *leaf.pRows;
    int nDepth = DepthOf(rows.rows[0].hItem);
    leaf.nLeastDepth = nDepth;
    leaf.nAtLeast = 1;
    for (int i = 1; i < rows.nCount; ++i) {
        // From the row above down to a child, or up to one of its ancestors' level.
        HTREEITEM h = rows.rows[i - 1].hItem;
        ++nDepth;
        for (; h != rows.rows[i].hItem->pParent && h != nullptr; h = h->pParent) {
            --nDepth;
        }
        if (nDepth < leaf.nLeastDepth) {
            leaf.nLeastDepth = nDepth;
            leaf.nAtLeast = 0;
        }
        leaf.nAtLeast += nDepth == leaf.nLeastDepth ? 1 : 0;
    }
}

int RowIndex::CountSiblings(HTREEITEM hFirst, HTREEITEM hLast) {
    const Place first = PlaceOf(hFirst);
    const Place last = PlaceOf(hLast);
    const int nDepth = DepthOf(hFirst);
    int nSiblings = 0;
    for (size_t nLeaf = first.nLeaf; nLeaf <= last.nLeaf; ++nLeaf) {
        Leaf& leaf = m_leaves[nLeaf];
        if (nLeaf != first.nLeaf && nLeaf != last.nLeaf) {
            if (leaf.nLeastDepth < 0) {
                LearnDepths(leaf);
            }
            nSiblings += leaf.nLeastDepth == nDepth ? leaf.nAtLeast : 0;
            continue;
        }
        const int nEnd = nLeaf == last.nLeaf ? last.nRow + 1 : leaf.pRows->nCount;
        for (int i = nLeaf == first.nLeaf ? first.nRow : 0; i < nEnd; ++i) {
            nSiblings += leaf.pRows->rows[i].hItem->pParent == hFirst->pParent ? 1 : 0;
        }
    }
    return nSiblings;
}

RowIndex::Leaf RowIndex::NewLeaf() {
    Leaf leaf;
    leaf.pRows = std::make_unique<RowLeaf>();
    leaf.bMeasured = false;
    return leaf;
}

void RowIndex::Renumber(size_t nFrom) {
    for (; nFrom < m_leaves.size(); ++nFrom) {
        m_leaves[nFrom].pRows->nOrdinal = nFrom;
    }
}

// Starts a new leaf at place, so that rows can be put between; gives the new leaf's start.
RowIndex::Place RowIndex::SplitAt(Place place) {
    if (place.nRow == 0) {
        return place;
    }
    Leaf& leaf = m_leaves[place.nLeaf];
    if (place.nRow == leaf.pRows->nCount) {
        return {place.nLeaf + 1, 0};
    }
    Leaf tail = NewLeaf();
    RowLeaf& from = *leaf.pRows;
    RowLeaf& to = *tail.pRows;
    to.nCount = from.nCount - place.nRow;
    std::copy(from.rows + place.nRow, from.rows + from.nCount, to.rows);
    for (int i = 0; i < to.nCount; ++i) {
        to.rows[i].hItem->pRowLeaf = &to;
    }
    from.nCount = place.nRow;
    leaf.RowsChanged();
    m_leaves.insert(m_leaves.begin() + static_cast<std::ptrdiff_t>(place.nLeaf) + 1,
                    std::move(tail));
    Renumber(place.nLeaf + 1);
    return {place.nLeaf + 1, 0};
}

// Two neighbours that fill little become one. The limit below a full leaf keeps the next insertion
// from splitting them again.
void RowIndex::MergeWithNext(size_t nLeaf) {
    if (nLeaf + 1 >= m_leaves.size()) {
        return;
    }
    Leaf& leaf = m_leaves[nLeaf];
    RowLeaf& to = *leaf.pRows;
    const RowLeaf& from = *m_leaves[nLeaf + 1].pRows;
    if (to.nCount + from.nCount > kLeafRows * 3 / 4) {
        return;
    }
    for (int i = 0; i < from.nCount; ++i) {
        to.rows[to.nCount] = from.rows[i];
        to.rows[to.nCount++].hItem->pRowLeaf = &to;
    }
    leaf.RowsChanged();
    m_leaves.erase(m_leaves.begin() + static_cast<std::ptrdiff_t>(nLeaf) + 1);
    Renumber(nLeaf + 1);
}

void RowIndex::AddLeaf(size_t nLeaf) {
    m_leaves.insert(m_leaves.begin() + static_cast<std::ptrdiff_t>(nLeaf), NewLeaf());
    Renumber(nLeaf);
}

// Gives a place between the same rows in a leaf that can take one more.
RowIndex::Place RowIndex::MakeRoom(Place place) {
    if (m_leaves.empty()) {
        AddLeaf(0);
    }
    const RowLeaf& leaf = *m_leaves[place.nLeaf].pRows;
    if (leaf.nCount < kLeafRows) {
        return place;
    }
    if (place.nRow == leaf.nCount) {
        const size_t nNext = place.nLeaf + 1;
        if (nNext == m_leaves.size() || m_leaves[nNext].pRows->nCount == kLeafRows) {
            AddLeaf(nNext);
        }
        return {nNext, 0};
    }
    const int nHalf = kLeafRows / 2;
    SplitAt({place.nLeaf, nHalf});
    return place.nRow <= nHalf ? place : Place{place.nLeaf + 1, place.nRow - nHalf};
}

void RowIndex::Insert(HTREEITEM hAfter, HTREEITEM hItem) {
    const Place place = MakeRoom(PlaceBehind(hAfter));
    Leaf& leaf = m_leaves[place.nLeaf];
    RowLeaf& rows = *leaf.pRows;
    std::copy_backward(rows.rows + place.nRow, rows.rows + rows.nCount,
                       rows.rows + rows.nCount + 1);
    rows.rows[place.nRow] = {hItem, kUnmeasured};
    ++rows.nCount;
    hItem->pRowLeaf = &rows;
    leaf.RowsChanged();
    ++m_nCount;
}

void RowIndex::Insert(HTREEITEM hAfter, const std::vector<HTREEITEM>& items) {
    // A short run costs less row by row than the leaf that it would be given.
    if (items.size() < kLeafRows / 8) {
        for (HTREEITEM h : items) {
            Insert(hAfter, h);
            hAfter = h;
        }
        return;
    }
    const Place place = m_leaves.empty() ? Place{0, 0} : SplitAt(PlaceBehind(hAfter));
    std::vector<Leaf> added;
    for (size_t nFirst = 0; nFirst < items.size(); nFirst += kLeafRows) {
        Leaf leaf = NewLeaf();
        leaf.pRows->nCount = static_cast<int>(std::min<size_t>(kLeafRows, items.size() - nFirst));
        for (int i = 0; i < leaf.pRows->nCount; ++i) {
            HTREEITEM hItem = items[nFirst + static_cast<size_t>(i)];
            leaf.pRows->rows[i] = {hItem, kUnmeasured};
            hItem->pRowLeaf = leaf.pRows.get();
        }
        added.push_back(std::move(leaf));
    }
    m_leaves.insert(m_leaves.begin() + static_cast<std::ptrdiff_t>(place.nLeaf),
                    std::make_move_iterator(added.begin()), std::make_move_iterator(added.end()));
    Renumber(place.nLeaf);
    m_nCount += static_cast<int>(items.size());
    MergeWithNext(place.nLeaf + added.size() - 1);
    if (place.nLeaf > 0) {
        MergeWithNext(place.nLeaf - 1);
    }
}

void RowIndex::EraseFromLeaf(Leaf& leaf, int nRow, int nCount) {
    RowLeaf& rows = *leaf.pRows;
    for (int i = nRow; i < nRow + nCount; ++i) {
        rows.rows[i].hItem->pRowLeaf = nullptr;
        leaf.bMeasured = leaf.bMeasured && rows.rows[i].nRight < leaf.nMaxRight;
    }
    std::copy(rows.rows + nRow + nCount, rows.rows + rows.nCount, rows.rows + nRow);
    rows.nCount -= nCount;
    leaf.nLeastDepth = -1;
}

void RowIndex::Erase(int nFirst, int nCount) {
    m_nCount -= nCount;
    const Place place = PlaceAt(nFirst);
    size_t nLeaf = place.nLeaf;
    int nRow = place.nRow;
    while (nCount > 0) {
        Leaf& leaf = m_leaves[nLeaf];
        const int nHere = std::min(nCount, leaf.pRows->nCount - nRow);
        EraseFromLeaf(leaf, nRow, nHere);
        nCount -= nHere;
        nRow = 0;
        ++nLeaf;
    }
    const auto isEmpty = [](const Leaf& leaf) { return leaf.pRows->nCount == 0; };
    const auto itFirst = m_leaves.begin() + static_cast<std::ptrdiff_t>(place.nLeaf);
    const auto itEnd = m_leaves.begin() + static_cast<std::ptrdiff_t>(nLeaf);
    const auto itKept = std::remove_if(itFirst, itEnd, isEmpty);
    if (itKept != itEnd) {
        m_leaves.erase(itKept, itEnd);
        Renumber(place.nLeaf);
    }
    MergeWithNext(place.nLeaf);
    if (place.nLeaf > 0) {
        MergeWithNext(place.nLeaf - 1);
    }
}

void RowIndex::Unmeasure(HTREEITEM hItem) {
    if (hItem->pRowLeaf == nullptr) {
        return;
    }
    const Place place = PlaceOf(hItem);
    Leaf& leaf = m_leaves[place.nLeaf];
    leaf.pRows->rows[place.nRow].nRight = kUnmeasured;
    leaf.bMeasured = false;
}

void RowIndex::UnmeasureAll() {
    for (Leaf& leaf : m_leaves) {
        for (int i = 0; i < leaf.pRows->nCount; ++i) {
            leaf.pRows->rows[i].nRight = kUnmeasured;
        }
        leaf.bMeasured = false;
    }
}

void RowIndex::Clear(bool bReleased) {
    if (!bReleased) {
        for (const Leaf& leaf : m_leaves) {
            for (int i = 0; i < leaf.pRows->nCount; ++i) {
                leaf.pRows->rows[i].hItem->pRowLeaf = nullptr;
            }
        }
    }
    m_leaves.clear();
    m_nCount = 0;
}

bool RowIndex::CheckInvariants() const {
    int nCount = 0;
    for (size_t nLeaf = 0; nLeaf < m_leaves.size(); ++nLeaf) {
        const RowLeaf& rows = *m_leaves[nLeaf].pRows;
        if (rows.nOrdinal != nLeaf || rows.nCount <= 0 || rows.nCount > kLeafRows) {
            return false;
        }
        int nMaxRight = 0;
        for (int i = 0; i < rows.nCount; ++i) {
            if (rows.rows[i].hItem->pRowLeaf != &rows) {
                return false;
            }
            nMaxRight = std::max(nMaxRight, rows.rows[i].nRight);
        }
        if (m_leaves[nLeaf].bMeasured && nMaxRight != m_leaves[nLeaf].nMaxRight) {
            return false;
        }
        nCount += rows.nCount;
    }
    return nCount == m_nCount;
}

}  // namespace qv
