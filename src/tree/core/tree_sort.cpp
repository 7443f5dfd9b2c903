#include "base/no_memory.h"
#include "frame/core/sort_keys.h"
#include "tree/core/tree_items.h"

#include <algorithm>

namespace qv {

namespace {

// Sorts any sequence by any comparison, also by one that is no order at all: it never reads outside
// of the sequence. Equal elements keep their order.
template <class Less>
void MergeSort(std::vector<HTREEITEM>& handles, Less less) {
    const size_t nCount = handles.size();
    std::vector<HTREEITEM> other(nCount);
    for (size_t nRun = 1; nRun < nCount; nRun *= 2) {
        for (size_t nStart = 0; nStart < nCount; nStart += 2 * nRun) {
            const size_t nMiddle = std::min(nStart + nRun, nCount);
            const size_t nEnd = std::min(nStart + 2 * nRun, nCount);
            size_t nLeft = nStart;
            size_t nRight = nMiddle;
            for (size_t i = nStart; i < nEnd; ++i) {
                const bool bRight =
                    nLeft == nMiddle || (nRight < nEnd && less(handles[nRight], handles[nLeft]));
                other[i] = bRight ? handles[nRight++] : handles[nLeft++];
            }
        }
        handles.swap(other);
    }
}

struct KeyedItem {
    SortKey key;
    HTREEITEM hItem;
};

}  // namespace

int TreeItems::CompareTexts(HTREEITEM hItem1, HTREEITEM hItem2) const {
    if (hItem1 == nullptr) {
        return 1;
    }
    if (hItem2 == nullptr) {
        return -1;
    }
    return m_text.CompareNoCase(DisplayText(hItem1), DisplayText(hItem2));
}

bool TreeItems::SortChildren(HTREEITEM hParent) {
    if (hParent == nullptr || hParent == TVI_ROOT || hParent->pFirstChild == nullptr) {
        return false;
    }
    const Watch watch(*this, hParent);
    const unsigned nLinkChanges = m_nLinkChanges;
    std::vector<HTREEITEM> handles;
    try {
        for (HTREEITEM h = hParent->pFirstChild; h != nullptr; h = h->pNextSibling) {
            handles.push_back(h);
        }
        SortHandles(handles, watch);
    } catch (...) {
        ExpectNoMemory();
        return false;
    }
    if (!watch.ObjectAlive() || nLinkChanges != m_nLinkChanges) {
        return false;
    }
    HTREEITEM hPrev = nullptr;
    for (HTREEITEM h : handles) {
        h->pPrevSibling = hPrev;
        (hPrev != nullptr ? hPrev->pNextSibling : hParent->pFirstChild) = h;
        hPrev = h;
    }
    hPrev->pNextSibling = nullptr;
    hParent->pLastChild = hPrev;
    return true;
}

void TreeItems::SortHandles(std::vector<HTREEITEM>& handles, const Watch& watch) {
    if (m_steps.ReplacesCompareItems()) {
        // It may change the tree or even destroy it; the items are not asked for any more then.
        const unsigned nLinkChanges = m_nLinkChanges;
        MergeSort(handles, [&](HTREEITEM h1, HTREEITEM h2) {
            return watch.ObjectAlive() && nLinkChanges == m_nLinkChanges &&
                   m_steps.CompareItems(h1, h2) < 0;
        });
        return;
    }
    // The texts do not change meanwhile, so each is folded once. Keys are made in the old order,
    // which so decides among equal ones.
    SortKeys keys(m_text);
    std::vector<KeyedItem> keyed;
    keyed.reserve(handles.size());
    for (HTREEITEM h : handles) {
        keyed.push_back({keys.Text(DisplayText(h)), h});
    }
    std::sort(keyed.begin(), keyed.end(), [&keys](const KeyedItem& a, const KeyedItem& b) {
        const int nOrder = keys.Compare(a.key, b.key);
        return nOrder != 0 ? nOrder < 0 : a.key.nKey < b.key.nKey;
    });
    std::transform(keyed.begin(), keyed.end(), handles.begin(),
                   [](const KeyedItem& item) { return item.hItem; });
}

}  // namespace qv
