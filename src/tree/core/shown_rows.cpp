#include "tree/core/shown_rows.h"

#include "base/no_memory.h"

namespace qv {

bool ShownRows::Ensure() {
    if (m_bValid) {
        return true;
    }
    m_index.Clear(false);
    try {
        m_collected.clear();
        Collect(m_items.Root(), nullptr);
        m_index.Insert(nullptr, m_collected);
    } catch (...) {
        ExpectNoMemory();
        m_index.Clear(false);
        ForgetLeaves();
        return false;
    }
    m_bValid = true;
    m_bDetached = m_items.RootDetached();
    return true;
}

bool ShownRows::KnownHidden(HTREEITEM hItem) const {
    return m_bValid && !m_items.RootDetached() && hItem->pRowLeaf == nullptr;
}

SiblingPlace ShownRows::PlaceOf(HTREEITEM hItem) {
    if (m_bDetached || m_items.RootDetached() || hItem->pRowLeaf == nullptr) {
        return {};
    }
    const HTREEITEM hParent = hItem->pParent;
    const HTREEITEM hFirst = hParent != nullptr ? hParent->pFirstChild : m_items.Root();
    const HTREEITEM hLast = hParent != nullptr ? hParent->pLastChild : m_items.LastRoot();
    return {m_index.CountSiblings(hFirst, hItem), m_index.CountSiblings(hFirst, hLast)};
}

// Applies a change of the tree to the index, if there is one.
template <class Step>
void ShownRows::Change(Step step) {
    if (!m_bValid) {
        return;
    }
    if (m_items.RootDetached() || m_bDetached) {
        Drop();
        return;
    }
    try {
        step();
    } catch (...) {
        ExpectNoMemory();
        Drop();
        ForgetLeaves();
    }
}

void ShownRows::Drop() {
    m_index.Clear(false);
    m_bValid = false;
}

// Rows that were being added may point at leaves that are gone.
void ShownRows::ForgetLeaves() {
    for (HTREEITEM h = m_items.Root(); h != nullptr; h = m_items.NextDisplayableItem(h)) {
        h->pRowLeaf = nullptr;
    }
}

bool ShownRows::IsDisplayed(HTREEITEM hItem) const {
    const HTREEITEM hParent = hItem->pParent;
    return hParent == nullptr ||
           (hParent->pRowLeaf != nullptr && (hParent->nState & TVIS_EXPANDED) != 0);
}

// Appends the rows from hFirst to the one before hEnd to m_collected.
void ShownRows::Collect(HTREEITEM hFirst, HTREEITEM hEnd) {
    for (HTREEITEM h = hFirst; h != hEnd && h != nullptr; h = m_items.NextDisplayableItem(h)) {
        m_collected.push_back(h);
    }
}

// What is displayable below the item, and the item itself with bItemToo.
void ShownRows::Erase(HTREEITEM hItem, bool bItemToo) {
    if (hItem->pRowLeaf == nullptr) {
        return;
    }
    HTREEITEM hLast = hItem;
    while (hLast->pLastChild != nullptr && (hLast->nState & TVIS_EXPANDED)) {
        hLast = hLast->pLastChild;
    }
    const int nItem = m_index.IndexOf(hItem);
    const int nLast = hLast == hItem ? nItem : m_index.IndexOf(hLast);
    const int nFirst = bItemToo ? nItem : nItem + 1;
    m_index.Erase(nFirst, nLast - nFirst + 1);
}

void ShownRows::Inserted(HTREEITEM hItem) {
    Change([&] {
        if (IsDisplayed(hItem)) {
            m_index.Insert(m_items.LastDisplayableItem(hItem), hItem);
        }
    });
}

void ShownRows::BranchInserted(HTREEITEM hItem) {
    Change([&] {
        if (IsDisplayed(hItem)) {
            m_collected.clear();
            Collect(hItem, m_items.NextAfterSubtree(hItem));
            m_index.Insert(m_items.LastDisplayableItem(hItem), m_collected);
        }
    });
}

void ShownRows::BranchLeaves(HTREEITEM hItem) {
    Change([&] { Erase(hItem, true); });
}

void ShownRows::Collapsing(HTREEITEM hItem) {
    Change([&] { Erase(hItem, false); });
}

void ShownRows::Expanded(HTREEITEM hItem) {
    Change([&] {
        if (hItem->pRowLeaf != nullptr && hItem->pFirstChild != nullptr) {
            m_collected.clear();
            Collect(hItem->pFirstChild, m_items.NextAfterSubtree(hItem));
            m_index.Insert(hItem, m_collected);
        }
    });
}

void ShownRows::Reordered(HTREEITEM hItem) {
    Change([&] {
        if (hItem->pRowLeaf != nullptr && (hItem->nState & TVIS_EXPANDED)) {
            Drop();
        }
    });
}

void ShownRows::WidthChanged(HTREEITEM hItem) {
    Change([&] { m_index.Unmeasure(hItem); });
}

void ShownRows::Forget() {
    Clear();
    m_bValid = false;
}

bool ShownRows::CheckInvariants() const {
    if (!m_bValid || m_items.RootDetached()) {
        return true;
    }
    int nRow = 0;
    for (HTREEITEM h = m_items.Root(); h != nullptr; h = m_items.NextDisplayableItem(h), ++nRow) {
        if (IndexOf(h) != nRow || At(nRow) != h) {
            return false;
        }
    }
    return nRow == Count() && m_index.CheckInvariants();
}

}  // namespace qv
