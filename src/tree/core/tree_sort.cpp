#include <algorithm>
#include <cstring>
#include <new>
#include <string>

#include "tree/core/tree_items.h"

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

// One item with the start of its key, which decides most comparisons without a further read.
struct KeyedItem {
    std::uint64_t nStart;
    size_t nKey;
    size_t nLength;
    HTREEITEM hItem;
};

std::uint64_t KeyStart(const std::string& strKeys, size_t nKey) {
    std::uint64_t nStart = 0;
    for (size_t i = 0; i < 8; ++i) {
        const size_t n = nKey + i;
        nStart = nStart << 8 | (n < strKeys.size() ? static_cast<unsigned char>(strKeys[n]) : 0);
    }
    return nStart;
}

}  // namespace

int TreeItems::CompareItems(HTREEITEM hItem1, HTREEITEM hItem2) {
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
        SortHandles(handles);
    } catch (const std::bad_alloc&) {
        return false;
    }
    if (!watch.TreeAlive() || nLinkChanges != m_nLinkChanges) {
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

void TreeItems::SortHandles(std::vector<HTREEITEM>& handles) {
    if (ReplacesCompareItems()) {
        MergeSort(handles, [this](HTREEITEM h1, HTREEITEM h2) { return CompareItems(h1, h2) < 0; });
        return;
    }
    // The texts do not change meanwhile, so each is folded once.
    std::string strKeys;
    std::vector<KeyedItem> keyed;
    keyed.reserve(handles.size());
    for (HTREEITEM h : handles) {
        const size_t nKey = strKeys.size();
        m_text.AppendSortKey(DisplayText(h), strKeys);
        keyed.push_back({0, nKey, strKeys.size() - nKey, h});
        strKeys.append(8, '\0');  // the start of a short key ends in zeros
    }
    for (KeyedItem& item : keyed) {
        item.nStart = KeyStart(strKeys, item.nKey);
    }
    std::sort(keyed.begin(), keyed.end(), [&strKeys](const KeyedItem& a, const KeyedItem& b) {
        if (a.nStart != b.nStart) {
            return a.nStart < b.nStart;
        }
        const int nOrder =
            std::memcmp(&strKeys[a.nKey], &strKeys[b.nKey], std::min(a.nLength, b.nLength));
        if (nOrder != 0) {
            return nOrder < 0;
        }
        return a.nLength != b.nLength ? a.nLength < b.nLength : a.nKey < b.nKey;
    });
    std::transform(keyed.begin(), keyed.end(), handles.begin(),
                   [](const KeyedItem& item) { return item.hItem; });
}

}  // namespace qv
