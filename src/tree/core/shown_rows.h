// The displayable rows of a tree by number. An index of them is made when it is first needed, and
// then follows each change of the tree that it is told of. Without memory there is none, and rows
// are walked.
//
// While the root level's start has been moved below another item, rows follow no order that could
// be kept up: a change drops the index, and it is made anew when it is needed.

#pragma once

#include "tree/core/row_index.h"
#include "tree/core/tree_items.h"

#include <vector>

namespace qv {

struct SiblingPlace {
    int nPlace = 0;
    int nCount = 0;
};

class ShownRows {
public:
    // The items must outlive the rows.
    explicit ShownRows(const TreeItems& items) : m_items(items) {}

    // --- Questions. All but these two want an index.

    // Makes the index if there is none. False if memory does not suffice.
    bool Ensure();
    // True if it is known at once that the item is no row.
    bool KnownHidden(HTREEITEM hItem) const;
    int Count() const { return m_index.Count(); }
    // -1 for null and for an item that is no row.
    int IndexOf(HTREEITEM hItem) const { return m_index.IndexOf(hItem); }
    HTREEITEM At(int nRow) const { return m_index.At(nRow); }
    // Which of its siblings the item is, from 1, and how many these are; 0 for an item that is no
    // row, and while rows follow no order.
    SiblingPlace PlaceOf(HTREEITEM hItem);
    // Largest right edge, at least 0; measure is asked for those that are not known.
    int MaxRight(const RowIndex::Measure& measure) { return m_index.MaxRight(measure); }

    // --- Changes

    // The item alone has found its place.
    void Inserted(HTREEITEM hItem);
    // The item has found its place, with what is below it.
    void BranchInserted(HTREEITEM hItem);
    // The item is about to leave its place, with what is below it.
    void BranchLeaves(HTREEITEM hItem);
    // What is below the item is about to be hidden.
    void Collapsing(HTREEITEM hItem);
    // The item's bit has been set.
    void Expanded(HTREEITEM hItem);
    // The item's children are in another order.
    void Reordered(HTREEITEM hItem);
    void WidthChanged(HTREEITEM hItem);
    void WidthsChanged() { m_index.UnmeasureAll(); }
    // The records of all items have been released, or are about to be.
    void Clear() { m_index.Clear(true); }
    // Forgets the rows, too: the index is made anew when it is needed.
    void Forget();

    bool CheckInvariants() const;

private:
    template <class Step>
    void Change(Step step);
    void Drop();
    void ForgetLeaves();
    bool IsDisplayed(HTREEITEM hItem) const;
    void Collect(HTREEITEM hFirst, HTREEITEM hEnd);
    void Erase(HTREEITEM hItem, bool bItemToo);

    const TreeItems& m_items;
    RowIndex m_index;
    bool m_bValid = false;
    bool m_bDetached = false;  // the index shows the rows of a detached root
    std::vector<HTREEITEM> m_collected;
};

}  // namespace qv
