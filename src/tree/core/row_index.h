// The displayable rows of a tree in order, with their right edges: tells in a few steps how many
// there are, which is the n-th, where an item stands, and how wide the widest is, while rows come
// and go anywhere.
//
// Rows lie in leaves of at most kLeafRows; a row's record points at its leaf. A list of the leaves
// with count and widest row is short enough to be run through for each question: a million rows
// make some four thousand leaves.
//
// How many rows of a leaf are at its least depth is kept as well: siblings are counted leaf by
// leaf, as whatever lies between two of them lies deeper.
//
// Widths are measured late: a row starts unmeasured, and MaxRight asks for all that are missing.

#pragma once

#include "tree/core/tree_items.h"

#include <functional>
#include <memory>
#include <vector>

namespace qv {

struct RowLeaf {
    static constexpr int kLeafRows = 256;

    struct Row {
        HTREEITEM hItem;
        int nRight;  // pixels; kUnmeasured before it was asked for
    };

    size_t nOrdinal = 0;  // place in the list of leaves
    int nCount = 0;
    Row rows[kLeafRows];
};

class RowIndex {
public:
    static constexpr int kUnmeasured = -1;
    using Measure = std::function<int(HTREEITEM)>;

    RowIndex() = default;
    RowIndex(const RowIndex&) = delete;
    RowIndex& operator=(const RowIndex&) = delete;

    int Count() const { return m_nCount; }
    // -1 for null and for an item that is no row.
    int IndexOf(HTREEITEM hItem) const;
    // Null outside of 0 to Count() - 1.
    HTREEITEM At(int nIndex) const;
    // Largest right edge, at least 0.
    int MaxRight(const Measure& measure);
    // The rows from hFirst to hLast, two siblings in this order, that are siblings of theirs.
    int CountSiblings(HTREEITEM hFirst, HTREEITEM hLast);

    // Puts rows behind that of hAfter, or at the start for null.
    void Insert(HTREEITEM hAfter, HTREEITEM hItem);
    void Insert(HTREEITEM hAfter, const std::vector<HTREEITEM>& items);
    void Erase(int nFirst, int nCount);
    // The row must be measured again; nothing happens to an item that is no row.
    void Unmeasure(HTREEITEM hItem);
    void UnmeasureAll();
    // Forgets all rows. bReleased: their records are gone and are not touched.
    void Clear(bool bReleased);

    bool CheckInvariants() const;

private:
    struct Leaf {
        std::unique_ptr<RowLeaf> pRows;
        int nMaxRight = 0;
        bool bMeasured = true;  // all rows are, and nMaxRight is theirs
        int nLeastDepth = -1;   // ancestors of the outermost rows; -1: not known
        int nAtLeast = 0;       // rows that have as many

        void RowsChanged() {
            bMeasured = false;
            nLeastDepth = -1;
        }
    };
    struct Place {
        size_t nLeaf;
        int nRow;
    };

    Place PlaceOf(HTREEITEM hItem) const;
    Place PlaceAt(int nIndex) const;
    Place PlaceBehind(HTREEITEM hAfter) const;
    Place MakeRoom(Place place);
    static Leaf NewLeaf();
    static void LearnDepths(Leaf& leaf);
    void AddLeaf(size_t nLeaf);
    Place SplitAt(Place place);
    void MergeWithNext(size_t nLeaf);
    void Renumber(size_t nFrom);
    void EraseFromLeaf(Leaf& leaf, int nRow, int nCount);

    std::vector<Leaf> m_leaves;
    int m_nCount = 0;
};

}  // namespace qv
