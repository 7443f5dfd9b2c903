// A tree of shared folders whose branches are read when they are opened: which branch is read, what
// stands in for one that is not, what becomes of a reading that was given up, and the UNC path that
// an item stands for.
//
// An unread branch has one child, the placeholder, so that it shows a button. The machine is the
// root: it is read at the start, stays open, and is asked for its shares; every other item is a
// folder. What was read whole is not read again, also if there was nothing in it.
//
// Whoever lists folders may let anybody run: each call that reads says whether the branches are
// still there. Readings do not nest.

#pragma once

#include "base/platform_names.h"
#include "frame/alive.h"

#include <string>
#include <string_view>
#include <vector>

namespace qv {

// The control that shows the branches. Texts are rows of its items.
class BranchTree {
public:
    virtual ~BranchTree() = default;
    virtual std::string Text(HTREEITEM hItem) = 0;
    virtual HTREEITEM Parent(HTREEITEM hItem) = 0;
    virtual HTREEITEM FirstChild(HTREEITEM hItem) = 0;
    // The first child of that text, whatever its case; null if there is none.
    virtual HTREEITEM FindChild(HTREEITEM hItem, const std::string& strText) = 0;
    // At the end; null without memory.
    virtual HTREEITEM Append(HTREEITEM hItem, const char* pszText, int nImage) = 0;
    virtual void DeleteChildren(HTREEITEM hItem) = 0;
    // Equal ones keep their order.
    virtual void SortChildren(HTREEITEM hItem) = 0;
    virtual void Open(HTREEITEM hItem) = 0;
    virtual void Close(HTREEITEM hItem) = 0;
};

class BranchTaker {
public:
    // False: no more of them.
    virtual bool Take(const char* pszName, int nImage) = 0;

protected:
    ~BranchTaker() = default;
};

// Where the folders come from.
class BranchSource {
public:
    virtual ~BranchSource() = default;
    virtual void ListShares(const std::string& strMachine, BranchTaker& taker) = 0;
    virtual void ListFolders(const std::string& strPath, BranchTaker& taker) = 0;
    // Asked between two folders: the user has had enough of this reading.
    virtual bool GivenUp() = 0;
};

class LazyBranches {
public:
    static constexpr const char* kPlaceholder = "<>";

    LazyBranches(BranchTree& tree, BranchSource& source) : m_tree(tree), m_source(source) {}

    // The machine's item; null while there is no tree. The items before are gone.
    void SetRoot(HTREEITEM hRoot);

    bool IsReset(HTREEITEM hItem) const;
    // Closed, with nothing but the placeholder below it.
    void Reset(HTREEITEM hItem);

    enum class Reading {
        Unneeded,  // nothing was asked: the branch is no unread one, or another is being read
        Whole,
        GivenUp,  // the placeholder is back
        Gone      // with the tree or all of this object; nothing may be touched
    };
    // In the order of the tree. An exception of the source's goes on, after the placeholder is
    // back.
    Reading Read(HTREEITEM hItem, const std::string& strPath);

    // What the item stands for: "\\machine\share\folder".
    std::string PathOf(HTREEITEM hItem) const;

    // An item is to be opened or closed by the user: reads it, if that is still to be done. True if
    // it may go on. The machine itself stays as it is; where its reading was given up it is read
    // now, and opened.
    bool MayToggle(HTREEITEM hItem);

    // From the root down, by names of which the first is the machine's, and reads what is on the
    // way. The last one's item; null where one was not found, and what leads to that place is open
    // then, or if the tree is gone.
    HTREEITEM Follow(const std::vector<std::string>& names);

private:
    class Taker;

    void OpenIfRead(HTREEITEM hItem);

    BranchTree& m_tree;
    BranchSource& m_source;
    HTREEITEM m_hRoot = nullptr;
    unsigned m_nTrees = 0;  // that were there so far
    bool m_bReading = false;
    AliveToken m_alive;
};

}  // namespace qv
