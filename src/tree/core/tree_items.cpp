#include "tree/core/tree_items.h"

#include "base/no_memory.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <limits>
#include <new>

namespace qv {

namespace {

constexpr size_t kFirstSlab = 16;
constexpr size_t kLargestSlab = 1024;

bool IsPosition(HTREEITEM hInsertAfter) {
    return hInsertAfter == TVI_FIRST || hInsertAfter == TVI_LAST || hInsertAfter == TVI_SORT;
}

// Records in the slab with that index.
size_t SlabRecords(size_t nSlab) {
    return std::min(kFirstSlab << std::min<size_t>(nSlab, 6), kLargestSlab);
}

// Deeper levels than the field can hold stay at its largest value.
std::int16_t LevelBelow(HTREEITEM hParent) {
    if (hParent == nullptr) {
        return 0;
    }
    constexpr std::int16_t kDeepest = std::numeric_limits<std::int16_t>::max();
    return hParent->nLevel < kDeepest ? static_cast<std::int16_t>(hParent->nLevel + 1) : kDeepest;
}

}  // namespace

TreeItems::TreeItems(const MultiByte& text, const StyleTable& styles, TreeSteps& steps)
    : m_text(text), m_aStyles(styles), m_steps(steps) {}

TreeItems::~TreeItems() {
    DeleteAllItems();
}

// --- Allocation

HTREEITEM TreeItems::AllocNewHandle() {
    HTREEITEM hItem = m_pFreeItems;
    if (hItem != nullptr) {
        m_pFreeItems = hItem->pParent;
        hItem->pParent = nullptr;
    } else {
        if (m_pFresh == m_pFreshEnd && !AddSlab()) {
            return nullptr;
        }
        hItem = m_pFresh++;
    }
    hItem->nSerial = ++m_nLastSerial;
    ++m_nLive;
    return hItem;
}

bool TreeItems::AddSlab() {
    const size_t nRecords = SlabRecords(m_aItems.size());
    auto* pItems = new (std::nothrow) _TREEITEM[nRecords]();
    if (pItems == nullptr) {
        return false;
    }
    try {
        m_aItems.push_back({pItems});
    } catch (...) {
        ExpectNoMemory();
        delete[] pItems;
        return false;
    }
    m_pFresh = pItems;
    m_pFreshEnd = pItems + nRecords;
    return true;
}

int TreeItems::NumberOf(HTREEITEM hItem) const {
    const std::less<const _TREEITEM*> before;
    size_t nBefore = 0;
    for (size_t nSlab = 0; nSlab < m_aItems.size(); ++nSlab) {
        const _TREEITEM* const pFirst = m_aItems[nSlab].pItems;
        const size_t nRecords = SlabRecords(nSlab);
        if (!before(hItem, pFirst) && before(hItem, pFirst + nRecords)) {
            return IsLive(hItem)
                       ? static_cast<int>(nBefore + static_cast<size_t>(hItem - pFirst) + 1)
                       : 0;
        }
        nBefore += nRecords;
    }
    return 0;
}

HTREEITEM TreeItems::ItemOf(int nNumber) const {
    if (nNumber <= 0) {
        return nullptr;
    }
    auto nRecord = static_cast<size_t>(nNumber) - 1;
    for (size_t nSlab = 0; nSlab < m_aItems.size(); ++nSlab) {
        const size_t nRecords = SlabRecords(nSlab);
        if (nRecord < nRecords) {
            const HTREEITEM hItem = m_aItems[nSlab].pItems + nRecord;
            return IsLive(hItem) ? hItem : nullptr;
        }
        nRecord -= nRecords;
    }
    return nullptr;
}

void TreeItems::ReturnHandle(HTREEITEM hItem) {
    m_texts.Free(hItem->pszText);
    *hItem = {};
    hItem->pParent = m_pFreeItems;
    m_pFreeItems = hItem;
    --m_nLive;
}

void TreeItems::DeleteAllItems() {
    for (const _QVTREECTLEX_ITEM& slab : m_aItems) {
        delete[] slab.pItems;
    }
    m_aItems.clear();
    m_texts.FreeAll();
    m_pFreeItems = m_pFresh = m_pFreshEnd = nullptr;
    m_hRootItem = m_hLastRootItem = nullptr;
    m_hTopItem = m_hBottomItem = m_hSelectedItem = nullptr;
    m_nLive = 0;
    ++m_nGeneration;
    ++m_nLinkChanges;
}

// --- Navigation

HTREEITEM TreeItems::GetNextItem(HTREEITEM hItem, unsigned nCode) const {
    switch (nCode) {
        case TVGN_CHILD:
            return hItem != nullptr ? hItem->pFirstChild : m_hRootItem;
        case TVGN_FIRSTVISIBLE:
            return m_hTopItem;
        case TVGN_CARET:
            return m_hSelectedItem;
        default:
            break;
    }
    if (hItem == nullptr) {
        return nullptr;
    }
    switch (nCode) {
        case TVGN_ROOT:
            while (hItem->pParent != nullptr) {
                hItem = hItem->pParent;
            }
            return hItem;
        case TVGN_NEXT:
            return hItem->pNextSibling;
        case TVGN_PREVIOUS:
            return hItem->pPrevSibling;
        case TVGN_PARENT:
            return hItem->pParent;
        case TVGN_NEXTVISIBLE:
            return hItem == m_hBottomItem ? nullptr : NextDisplayableItem(hItem);
        case TVGN_PREVIOUSVISIBLE:
            return hItem == m_hTopItem ? nullptr : LastDisplayableItem(hItem);
        default:
            return nullptr;
    }
}

HTREEITEM TreeItems::NextAfterSubtree(HTREEITEM hItem) const {
    for (; hItem != nullptr; hItem = hItem->pParent) {
        if (hItem->pNextSibling != nullptr) {
            return hItem->pNextSibling;
        }
    }
    return nullptr;
}

HTREEITEM TreeItems::WalkNext(HTREEITEM hItem) const {
    if (hItem != nullptr && hItem->pFirstChild != nullptr) {
        return hItem->pFirstChild;
    }
    return NextAfterSubtree(hItem);
}

HTREEITEM TreeItems::WalkPrev(HTREEITEM hItem) const {
    if (hItem == nullptr) {
        return nullptr;
    }
    if (hItem->pPrevSibling == nullptr) {
        return hItem->pParent;
    }
    hItem = hItem->pPrevSibling;
    while (hItem->pLastChild != nullptr) {
        hItem = hItem->pLastChild;
    }
    return hItem;
}

HTREEITEM TreeItems::NextDisplayableItem(HTREEITEM hItem) const {
    if (hItem != nullptr && hItem->pFirstChild != nullptr && (hItem->nState & TVIS_EXPANDED)) {
        return hItem->pFirstChild;
    }
    return NextAfterSubtree(hItem);
}

HTREEITEM TreeItems::LastDisplayableItem(HTREEITEM hItem) const {
    if (hItem == nullptr) {
        return nullptr;
    }
    if (hItem->pPrevSibling == nullptr) {
        return hItem->pParent;
    }
    hItem = hItem->pPrevSibling;
    while (hItem->pLastChild != nullptr && (hItem->nState & TVIS_EXPANDED)) {
        hItem = hItem->pLastChild;
    }
    return hItem;
}

bool TreeItems::CheckForAncestor(HTREEITEM hItem, HTREEITEM hAncestor) const {
    return hItem != nullptr && hAncestor != nullptr && hItem != hAncestor &&
           LeadsToItem(hItem->pParent, hAncestor);
}

// True if hItem is met on the way from hDescendant, included, up to the root.
bool TreeItems::LeadsToItem(HTREEITEM hDescendant, HTREEITEM hItem) const {
    for (; hDescendant != nullptr; hDescendant = hDescendant->pParent) {
        if (hDescendant == hItem) {
            return true;
        }
    }
    return false;
}

HTREEITEM TreeItems::FindItem(HTREEITEM hParent, const char* pszText, int nImage) const {
    if (hParent == TVI_ROOT) {
        hParent = nullptr;
    }
    for (HTREEITEM h = GetNextItem(hParent, TVGN_CHILD); h != nullptr; h = h->pNextSibling) {
        if ((nImage == -1 || nImage == h->nImage) &&
            m_text.CompareNoCase(DisplayText(h), pszText) == 0) {
            return h;
        }
    }
    return nullptr;
}

// --- Insertion

HTREEITEM TreeItems::InsertItem(const char* pszText, int nImage, int nSelectedImage,
                                HTREEITEM hParent, HTREEITEM hInsertAfter) {
    if (hParent != nullptr && hParent != TVI_ROOT && !IsLive(hParent)) {
        return nullptr;
    }
    if (pszText == nullptr) {
        pszText = "";
    }
    // Asked before there is a record for the new item: it may be the very one that was deleted.
    if (hInsertAfter == nullptr || hInsertAfter == TVI_ROOT ||
        (!IsPosition(hInsertAfter) && !IsLive(hInsertAfter))) {
        hInsertAfter = TVI_LAST;
    }
    HTREEITEM hItem = AllocNewHandle();
    if (hItem == nullptr) {
        return nullptr;
    }
    hItem->nImage = nImage;
    hItem->nSelectedImage = nSelectedImage;
    const size_t nBytes = std::strlen(pszText) + 1;
    hItem->pszText = m_texts.Allocate(nBytes);
    if (hItem->pszText == nullptr) {
        ReturnHandle(hItem);
        return nullptr;
    }
    std::memcpy(hItem->pszText, pszText, nBytes);
    const Watch watch(*this, hItem);
    try {
        return PositionInTree(hItem, hParent, hInsertAfter) ? hItem : nullptr;
    } catch (...) {
        ReturnUnplaced(hItem, watch);
        ExpectNoMemory();
        return nullptr;
    }
}

// A comparison has thrown before the new item had a place.
void TreeItems::ReturnUnplaced(HTREEITEM hItem, const Watch& watch) {
    if (watch.ItemAlive()) {
        ReturnHandle(hItem);
    }
}

// The first item of the root level, also while m_hRootItem has been moved away from it.
HTREEITEM TreeItems::RootRunStart() const {
    HTREEITEM hItem = m_hRootItem;
    if (!RootDetached()) {
        return hItem;
    }
    hItem = GetNextItem(hItem, TVGN_ROOT);
    while (hItem->pPrevSibling != nullptr) {
        hItem = hItem->pPrevSibling;
    }
    return hItem;
}

bool TreeItems::PositionInTree(HTREEITEM hItem, HTREEITEM hParent, HTREEITEM hInsertAfter) {
    if (hParent == TVI_ROOT) {
        hParent = nullptr;
    }
    const bool bBehindItem = !IsPosition(hInsertAfter);
    if (bBehindItem) {
        hParent = hInsertAfter->pParent;
    }
    hItem->pParent = hParent;
    hItem->nLevel = LevelBelow(hParent);

    const HTREEITEM hFirst = hParent != nullptr ? hParent->pFirstChild : RootRunStart();
    HTREEITEM hNext = nullptr;
    if (hInsertAfter == TVI_FIRST) {
        hNext = hFirst;
    } else if (hInsertAfter == TVI_SORT) {
        if (!FindSortedPlace(hItem, hFirst, hNext)) {
            return false;
        }
    } else if (bBehindItem) {
        hNext = hInsertAfter->pNextSibling;
    }

    if (hNext != nullptr) {
        LinkBefore(hItem, hNext);
    } else {
        LinkAfter(hItem, hParent != nullptr ? hParent->pLastChild : m_hLastRootItem);
    }
    if (hNext == hFirst) {
        (hParent != nullptr ? hParent->pFirstChild : m_hRootItem) = hItem;
    }
    if (hItem->pNextSibling == m_hTopItem) {
        m_hTopItem = hItem;
    }
    ++m_nLinkChanges;
    return true;
}

// Exactly -1 is less; a CompareItems that gives another negative value says nothing here. One that
// changes the tree's links leaves no place to be found: the item is given back, and false comes
// out.
bool TreeItems::FindSortedPlace(HTREEITEM hItem, HTREEITEM hFirst, HTREEITEM& hNext) {
    const Watch watch(*this, hItem);
    const unsigned nLinkChanges = m_nLinkChanges;
    for (hNext = hFirst; hNext != nullptr; hNext = hNext->pNextSibling) {
        const bool bLess = m_steps.CompareItems(hItem, hNext) == -1;
        if (!watch.ItemAlive()) {
            return false;
        }
        if (nLinkChanges != m_nLinkChanges) {
            ReturnHandle(hItem);
            return false;
        }
        if (bLess) {
            break;
        }
    }
    return true;
}

void TreeItems::LinkBefore(HTREEITEM hItem, HTREEITEM hNext) {
    hItem->pNextSibling = hNext;
    hItem->pPrevSibling = hNext->pPrevSibling;
    if (hNext->pPrevSibling != nullptr) {
        hNext->pPrevSibling->pNextSibling = hItem;
    }
    hNext->pPrevSibling = hItem;
}

// hPrev is the end of the run, null if the run is empty.
void TreeItems::LinkAfter(HTREEITEM hItem, HTREEITEM hPrev) {
    hItem->pPrevSibling = hPrev;
    if (hPrev != nullptr) {
        hPrev->pNextSibling = hItem;
    }
    (hItem->pParent != nullptr ? hItem->pParent->pLastChild : m_hLastRootItem) = hItem;
}

// Takes the item out of its run; its own links stay as they are.
void TreeItems::Unlink(HTREEITEM hItem) {
    if (hItem->pPrevSibling != nullptr) {
        hItem->pPrevSibling->pNextSibling = hItem->pNextSibling;
    } else if (hItem->pParent != nullptr) {
        hItem->pParent->pFirstChild = hItem->pNextSibling;
    }
    if (hItem->pNextSibling != nullptr) {
        hItem->pNextSibling->pPrevSibling = hItem->pPrevSibling;
    } else {
        (hItem->pParent != nullptr ? hItem->pParent->pLastChild : m_hLastRootItem) =
            hItem->pPrevSibling;
    }
    ++m_nLinkChanges;
}

// --- Removal and moving

void TreeItems::DeleteItem(HTREEITEM hItem) {
    if (!IsLive(hItem)) {
        return;
    }
    HTREEITEM hNewRoot = m_hRootItem;
    if (hItem == m_hRootItem) {
        hNewRoot = hItem->pNextSibling;
    }
    if (RootDetached() && (hNewRoot == nullptr || CheckForAncestor(m_hRootItem, hItem))) {
        // The start that was moved away goes with the item: back to where the root level is.
        hNewRoot = RootRunStart();
        if (hNewRoot == hItem) {
            hNewRoot = hItem->pNextSibling;
        }
    }
    Unlink(hItem);
    // Now the rows around the item can be asked for without stepping into its children.
    hItem->nState &= ~static_cast<std::uint32_t>(TVIS_EXPANDED);
    MoveSelectionOutOf(hItem);
    MoveTopOutOf(hItem);
    m_hRootItem = hNewRoot;
    ReleaseDescendants(hItem);
    ReturnHandle(hItem);
}

void TreeItems::MoveSelectionOutOf(HTREEITEM hItem) {
    if (!LeadsToItem(m_hSelectedItem, hItem)) {
        return;
    }
    HTREEITEM hNew = GetNextItem(hItem, TVGN_NEXTVISIBLE);
    if (hNew == nullptr) {
        hNew = GetNextItem(hItem, TVGN_PREVIOUSVISIBLE);
    }
    Select(hNew);
}

// The view must not start or end at a record that is about to go, nor below one.
void TreeItems::MoveTopOutOf(HTREEITEM hItem) {
    if (LeadsToItem(m_hTopItem, hItem)) {
        m_hTopItem = GetNextItem(hItem, TVGN_NEXTVISIBLE);
        if (m_hTopItem == nullptr) {
            m_hTopItem = NextDisplayableItem(hItem);
        }
        if (m_hTopItem == nullptr) {
            m_hTopItem = LastDisplayableItem(hItem);
        }
    }
    if (LeadsToItem(m_hBottomItem, hItem)) {
        m_hBottomItem = nullptr;
    }
}

// Without recursion, so that depth costs no stack.
void TreeItems::ReleaseDescendants(HTREEITEM hItem) {
    HTREEITEM h = hItem->pFirstChild;
    while (h != nullptr && h != hItem) {
        if (h->pFirstChild != nullptr) {
            h = h->pFirstChild;
            continue;
        }
        HTREEITEM hNext = h->pNextSibling;
        if (hNext == nullptr) {
            hNext = h->pParent;
            hNext->pFirstChild = nullptr;
        }
        ReturnHandle(h);
        h = hNext;
    }
}

bool TreeItems::ChangeParent(HTREEITEM hItem, HTREEITEM hNewParent) {
    if (hNewParent == TVI_ROOT) {
        hNewParent = nullptr;
    }
    if (hItem == nullptr || !IsLive(hItem) || (hNewParent != nullptr && !IsLive(hNewParent)) ||
        LeadsToItem(hNewParent, hItem)) {
        return false;
    }
    if (hNewParent == hItem->pParent) {
        return true;
    }
    if (hItem == m_hRootItem && hNewParent == nullptr) {
        m_hRootItem = RootRunStart();
    }
    Unlink(hItem);
    hItem->pParent = hItem->pNextSibling = hItem->pPrevSibling = nullptr;
    PositionInTree(hItem, hNewParent, TVI_LAST);
    return true;
}

// --- Attributes

void TreeItems::Select(HTREEITEM hItem) {
    if (m_hSelectedItem != nullptr) {
        m_hSelectedItem->nState &= ~static_cast<std::uint32_t>(TVIS_SELECTED);
    }
    m_hSelectedItem = hItem;
    if (hItem != nullptr) {
        hItem->nState |= TVIS_SELECTED;
    }
}

bool TreeItems::SetItemText(HTREEITEM hItem, const char* pszText) {
    if (hItem == nullptr || !IsLive(hItem)) {
        return true;
    }
    const size_t nLength = std::strlen(pszText);
    char* pszNew = hItem->pszText;
    if (std::strlen(hItem->pszText) < nLength) {
        pszNew = m_texts.Allocate(nLength + 1);
        if (pszNew == nullptr) {
            return false;
        }
    }
    // The new text may be a part of the old one.
    std::memmove(pszNew, pszText, nLength + 1);
    if (pszNew != hItem->pszText) {
        m_texts.Free(hItem->pszText);
        hItem->pszText = pszNew;
    }
    return true;
}

bool TreeItems::HaveStateImage(HTREEITEM hItem) const {
    return hItem != nullptr && (hItem->pParent != nullptr || m_bStatesAtRoot);
}

unsigned TreeItems::GetItemStateImage(HTREEITEM hItem) const {
    return HaveStateImage(hItem) ? StateImageFromState(hItem->nState) : 0;
}

HTREEITEM TreeItems::GetNextCheckedItem(HTREEITEM hItem, unsigned nState) const {
    constexpr unsigned kAnyMark = 255;
    hItem = hItem != nullptr ? WalkNext(hItem) : m_hRootItem;
    for (; hItem != nullptr; hItem = WalkNext(hItem)) {
        const unsigned nImage = GetItemStateImage(hItem);
        if (nState == kAnyMark ? nImage != 0 : nImage == nState) {
            break;
        }
    }
    return hItem;
}

int TreeItems::ChangeItemStyles(HTREEITEM hItem, int nStyle, bool bUpTheTree, bool bOnlyDefault) {
    int nChanged = 0;
    if (hItem != nullptr && !IsLive(hItem)) {
        return 0;
    }
    for (; hItem != nullptr; hItem = bUpTheTree ? hItem->pParent : nullptr) {
        const int nCurrent = m_aStyles.ParseStyle(hItem->pszText);
        if (nCurrent == nStyle || (bOnlyDefault && nCurrent != 0)) {
            continue;
        }
        if (ChangeStyle(hItem->pszText, nStyle)) {
            hItem->nExtentEpoch = 0;  // a code outside the table shows as a letter
            ++nChanged;
        }
    }
    return nChanged;
}

// --- Invariants

bool TreeItems::CheckInvariants() const {
    size_t nItems = 0;
    const bool bRunsSound = CheckRun(RootRunStart(), m_hLastRootItem, nullptr, nItems);
    bool bViewSound = true;
    for (HTREEITEM h : {m_hRootItem, m_hTopItem, m_hBottomItem, m_hSelectedItem}) {
        bViewSound = bViewSound && (h == nullptr || IsLive(h));
    }
    return bRunsSound && bViewSound && nItems == m_nLive &&
           (m_hSelectedItem == nullptr || (m_hSelectedItem->nState & TVIS_SELECTED));
}

// Walks the run and everything below it, without recursion.
bool TreeItems::CheckRun(HTREEITEM hFirst, HTREEITEM hLast, HTREEITEM hParent,
                         size_t& nItems) const {
    struct Run {
        HTREEITEM hFirst, hLast, hParent;
    };
    std::vector<Run> runs{{hFirst, hLast, hParent}};
    while (!runs.empty()) {
        const Run run = runs.back();
        runs.pop_back();
        HTREEITEM hPrev = nullptr;
        for (HTREEITEM h = run.hFirst; h != nullptr; hPrev = h, h = h->pNextSibling) {
            if (h->pParent != run.hParent || h->pPrevSibling != hPrev || !IsLive(h) ||
                ++nItems > m_nLive) {
                return false;
            }
            if (h->pFirstChild != nullptr || h->pLastChild != nullptr) {
                runs.push_back({h->pFirstChild, h->pLastChild, h});
            }
        }
        if (hPrev != run.hLast) {
            return false;
        }
    }
    return true;
}

// --- Watch

TreeItems::Watch::Watch(const TreeItems& items, HTREEITEM hItem)
    : AliveWatch(items.m_alive),
      m_items(items),
      m_hItem(hItem),
      m_nGeneration(items.m_nGeneration),
      m_nSerial(hItem != nullptr ? hItem->nSerial : 0) {}

bool TreeItems::Watch::ItemAlive() const {
    if (!ObjectAlive()) {
        return false;
    }
    return m_hItem == nullptr ||
           (m_nGeneration == m_items.m_nGeneration && m_hItem->nSerial == m_nSerial);
}

}  // namespace qv
