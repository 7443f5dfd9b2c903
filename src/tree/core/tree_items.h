// The tree's item store: records, links, navigation, insertion, removal, sorting, marks. It knows
// no window and no geometry; tree_view.h adds those. Order it asks its control for.
//
// Ownership: the store owns every record and every text. A handle is a pointer to a record. A
// deleted record is zeroed and kept on a free list, so that a stale handle points at valid memory
// until a later insertion uses it again; memory goes back to the heap only with DeleteAllItems and
// the destructor.
//
// Every record of a sibling run knows its neighbours, and each parent its first and last child, so
// appending, deleting and moving cost the same whatever the length of the run.

#pragma once

#include "base/multi_byte.h"
#include "base/platform_names.h"
#include "base/text_pool.h"
#include "frame/alive.h"
#include "frame/core/styled_text.h"
#include "tree/core/tree_steps.h"

#include <cstdint>
#include <vector>

namespace qv {
struct RowLeaf;
}

// One item, all zeros while it is free but for pParent, the link to the next free record.
struct _TREEITEM {
    _TREEITEM* pParent;
    _TREEITEM* pFirstChild;
    _TREEITEM* pLastChild;
    _TREEITEM* pNextSibling;
    _TREEITEM* pPrevSibling;
    char* pszText;
    std::uintptr_t dwData;
    qv::RowLeaf* pRowLeaf;  // where the row stands in the view's index; null if not displayed
    std::uint32_t nState;   // TVIS_ bits; state image index in bits 12 to 15
    std::uint32_t nSerial;  // differs for each use of a record
    int nImage;
    int nSelectedImage;
    int nExtent;                 // width of the columns in pixels, valid in the epoch below
    std::uint16_t nExtentEpoch;  // 0: not measured
    std::int16_t nLevel;         // 0 at root level
};

// One element of the ownership table: a slab of records.
struct _QVTREECTLEX_ITEM {
    _TREEITEM* pItems;
};

namespace qv {

class TreeItems {
public:
    // All must outlive the store; styles is the table of the control.
    TreeItems(const MultiByte& text, const StyleTable& styles, TreeSteps& steps);
    ~TreeItems();
    TreeItems(const TreeItems&) = delete;
    TreeItems& operator=(const TreeItems&) = delete;

    // Goes with the store: whoever leads out of the tree watches it.
    const AliveToken& Alive() const { return m_alive; }
    // False for a deleted item. Null is none.
    static bool IsLive(HTREEITEM hItem) { return hItem->pszText != nullptr; }

    // --- Navigation. Null gives null unless said otherwise.

    // First item of the root level.
    HTREEITEM Root() const { return m_hRootItem; }
    HTREEITEM LastRoot() const { return m_hLastRootItem; }
    // The root level's start has been moved below another item. Rows are then whatever walking from
    // it gives.
    bool RootDetached() const { return m_hRootItem != nullptr && m_hRootItem->pParent != nullptr; }
    // First and last fully shown row, as the view has set them.
    HTREEITEM Top() const { return m_hTopItem; }
    HTREEITEM Bottom() const { return m_hBottomItem; }
    void SetTop(HTREEITEM hItem) { m_hTopItem = hItem; }
    void SetBottom(HTREEITEM hItem) { m_hBottomItem = hItem; }
    HTREEITEM Selected() const { return m_hSelectedItem; }
    // Moves the selection and its bit; null clears it.
    void Select(HTREEITEM hItem);
    // A TVGN_ code; TVGN_CHILD of null is the first root item, TVGN_ROOT the top ancestor.
    HTREEITEM GetNextItem(HTREEITEM hItem, unsigned nCode) const;
    HTREEITEM GetLastChild(HTREEITEM hItem) const { return hItem ? hItem->pLastChild : nullptr; }
    // Whole tree in pre-order, whatever is expanded.
    HTREEITEM WalkNext(HTREEITEM hItem) const;
    HTREEITEM WalkPrev(HTREEITEM hItem) const;
    // The row below and the row above.
    HTREEITEM NextDisplayableItem(HTREEITEM hItem) const;
    HTREEITEM LastDisplayableItem(HTREEITEM hItem) const;
    // The next item that is not below hItem.
    HTREEITEM NextAfterSubtree(HTREEITEM hItem) const;
    // True for a proper ancestor.
    bool CheckForAncestor(HTREEITEM hItem, HTREEITEM hAncestor) const;
    // First direct child of hParent (root level for null) with that text and image; -1: any image.
    HTREEITEM FindItem(HTREEITEM hParent, const char* pszText, int nImage) const;

    // --- Items

    // The number of an item's record, from 1: what stands for the item outside of the process. It
    // lasts as long as the item does and is then another one's. 0 for what is no item of the tree.
    int NumberOf(HTREEITEM hItem) const;
    // Null for a number that no item has.
    HTREEITEM ItemOf(int nNumber) const;

    // Null if memory runs out, if hParent is no item of the tree, or if a replaced CompareItems
    // changes the tree meanwhile; the item is not in the tree then.
    // A handle as hInsertAfter puts the item directly behind that one; where that one has another
    // parent than hParent, its parent becomes the new item's, so that the links stay sound.
    HTREEITEM InsertItem(const char* pszText, int nImage, int nSelectedImage, HTREEITEM hParent,
                         HTREEITEM hInsertAfter);
    void DeleteItem(HTREEITEM hItem);
    void DeleteAllItems();
    // Puts the item last among the children of another parent. False if that is the item or lies
    // below it; nothing moves if it is the parent already. Moving the first root item below another
    // leaves the root level's start at that item, as callers of old know it. The item's own level
    // is set anew, those of its descendants are not.
    bool ChangeParent(HTREEITEM hItem, HTREEITEM hNewParent);
    // Sorts the direct children by CompareItems. False for null and for an item without children.
    // The order among equal items is the one they had. A CompareItems that is no strict order gives
    // some order. One that adds, moves or deletes items leaves the old order.
    bool SortChildren(HTREEITEM hParent);

    // --- Attributes. Null is allowed everywhere.

    // False if memory ran out; the old text stays then.
    bool SetItemText(HTREEITEM hItem, const char* pszText);
    // Root items have state images too. Off at first.
    bool StatesAtRoot() const { return m_bStatesAtRoot; }
    void ShowStatesAtRoot(bool bShow) { m_bStatesAtRoot = bShow; }
    bool HaveStateImage(HTREEITEM hItem) const;
    unsigned GetItemStateImage(HTREEITEM hItem) const;
    HTREEITEM GetNextCheckedItem(HTREEITEM hItem, unsigned nState) const;
    static unsigned StateImageFromState(unsigned nState) { return nState >> 12 & 15; }
    static unsigned SetStateImage(unsigned nState, unsigned nImage) {
        return (nState & ~0xF000u) | (nImage & 15) << 12;
    }

    // --- Styles

    // Restyles the item and, with bUpTheTree, its ancestors; bOnlyDefault spares those that have a
    // style other than 0. Gives the number of items changed.
    int ChangeItemStyles(HTREEITEM hItem, int nStyle, bool bUpTheTree, bool bOnlyDefault);
    const char* DisplayText(HTREEITEM hItem) const {
        return m_aStyles.ParseStyleText(hItem->pszText);
    }

    // The order that CompareItems has by default: of the texts behind their style codes, without
    // regard to case. Null as first item gives 1, as second -1.
    int CompareTexts(HTREEITEM hItem1, HTREEITEM hItem2) const;

    // True if all links, ends of runs and counts agree.
    bool CheckInvariants() const;

    // Watches the store, and one item of it, over a call that leads out of the library: its
    // receiver may delete the item, empty the tree or destroy it.
    class Watch : public AliveWatch {
    public:
        Watch(const TreeItems& items, HTREEITEM hItem);
        // The item still is the item that it was. A null item is alive with its store.
        bool ItemAlive() const;

    private:
        const TreeItems& m_items;
        HTREEITEM m_hItem;
        unsigned m_nGeneration;
        std::uint32_t m_nSerial;
    };

private:
    HTREEITEM AllocNewHandle();
    void ReturnHandle(HTREEITEM hItem);
    void ReturnUnplaced(HTREEITEM hItem, const Watch& watch);
    bool AddSlab();
    bool PositionInTree(HTREEITEM hItem, HTREEITEM hParent, HTREEITEM hInsertAfter);
    bool FindSortedPlace(HTREEITEM hItem, HTREEITEM hFirst, HTREEITEM& hNext);
    void LinkBefore(HTREEITEM hItem, HTREEITEM hNext);
    void LinkAfter(HTREEITEM hItem, HTREEITEM hPrev);
    void Unlink(HTREEITEM hItem);
    HTREEITEM RootRunStart() const;
    bool LeadsToItem(HTREEITEM hDescendant, HTREEITEM hItem) const;
    void MoveSelectionOutOf(HTREEITEM hItem);
    void MoveTopOutOf(HTREEITEM hItem);
    void ReleaseDescendants(HTREEITEM hItem);
    void SortHandles(std::vector<HTREEITEM>& handles, const Watch& watch);
    bool CheckRun(HTREEITEM hFirst, HTREEITEM hLast, HTREEITEM hParent, size_t& nItems) const;

    const MultiByte& m_text;
    const StyleTable& m_aStyles;
    TreeSteps& m_steps;
    HTREEITEM m_hRootItem = nullptr;
    HTREEITEM m_hTopItem = nullptr;
    HTREEITEM m_hBottomItem = nullptr;
    HTREEITEM m_hSelectedItem = nullptr;
    bool m_bStatesAtRoot = false;
    std::vector<_QVTREECTLEX_ITEM> m_aItems;
    TextPool m_texts;
    HTREEITEM m_pFreeItems = nullptr;
    HTREEITEM m_hLastRootItem = nullptr;
    _TREEITEM* m_pFresh = nullptr;  // records of the last slab that were never used
    _TREEITEM* m_pFreshEnd = nullptr;
    size_t m_nLive = 0;
    std::uint32_t m_nLastSerial = 0;
    unsigned m_nGeneration = 0;  // counts the times that all records were released
    unsigned m_nLinkChanges = 0;
    AliveToken m_alive;
};

}  // namespace qv
