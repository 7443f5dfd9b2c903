#include "dialogs/core/lazy_branches.h"

namespace qv {

namespace {

constexpr char kSeparator = '\\';

}  // namespace

class LazyBranches::Taker : public BranchTaker {
public:
    Taker(LazyBranches& branches, HTREEITEM hItem)
        : m_branches(branches),
          m_watch(branches.m_alive),
          m_nTree(branches.m_nTrees),
          m_hItem(hItem) {}

    bool IsThere() const { return m_watch && m_nTree == m_branches.m_nTrees; }
    bool GivenUp() const { return m_bGivenUp; }

    bool Take(const char* pszName, int nImage) override {
        if (m_bGivenUp || !IsThere()) {
            return false;
        }
        BranchTree& tree = m_branches.m_tree;
        if (const HTREEITEM hNew = tree.Append(m_hItem, pszName, nImage)) {
            tree.Append(hNew, kPlaceholder, -1);
        }
        const bool bGivenUp = m_branches.m_source.GivenUp();
        m_bGivenUp = bGivenUp;
        return !bGivenUp && IsThere();
    }

private:
    LazyBranches& m_branches;
    const AliveWatch m_watch;
    const unsigned m_nTree;
    const HTREEITEM m_hItem;
    bool m_bGivenUp = false;
};

void LazyBranches::SetRoot(HTREEITEM hRoot) {
    m_hRoot = hRoot;
    ++m_nTrees;
}

bool LazyBranches::IsReset(HTREEITEM hItem) const {
    const HTREEITEM hChild = hItem != nullptr ? m_tree.FirstChild(hItem) : nullptr;
    return hChild != nullptr && m_tree.Text(hChild) == kPlaceholder;
}

void LazyBranches::Reset(HTREEITEM hItem) {
    if (hItem != nullptr) {
        m_tree.Close(hItem);
        m_tree.DeleteChildren(hItem);
        m_tree.Append(hItem, kPlaceholder, -1);
    }
}

LazyBranches::Reading LazyBranches::Read(HTREEITEM hItem, const std::string& strPath) {
    if (m_bReading || !IsReset(hItem)) {
        return Reading::Unneeded;
    }
    const SetWhileAlive<bool> reading(m_alive, m_bReading, true);
    Taker taker(*this, hItem);
    m_tree.DeleteChildren(hItem);
    try {
        if (hItem == m_hRoot) {
            m_source.ListShares(strPath, taker);
        } else {
            m_source.ListFolders(strPath, taker);
        }
    } catch (...) {
        if (taker.IsThere()) {
            Reset(hItem);
        }
        throw;
    }
    if (!taker.IsThere()) {
        return Reading::Gone;
    }
    if (taker.GivenUp()) {
        Reset(hItem);
        return Reading::GivenUp;
    }
    m_tree.SortChildren(hItem);
    return Reading::Whole;
}

std::string LazyBranches::PathOf(HTREEITEM hItem) const {
    std::vector<std::string> names;
    for (; hItem != nullptr; hItem = m_tree.Parent(hItem)) {
        names.push_back(m_tree.Text(hItem));
    }
    std::string strPath;
    strPath += kSeparator;
    for (auto name = names.rbegin(); name != names.rend(); ++name) {
        strPath += kSeparator;
        strPath += *name;
    }
    return strPath;
}

void LazyBranches::OpenIfRead(HTREEITEM hItem) {
    if (m_tree.FirstChild(hItem) != nullptr && !IsReset(hItem)) {
        m_tree.Open(hItem);
    }
}

bool LazyBranches::MayToggle(HTREEITEM hItem) {
    if (m_bReading) {
        return false;
    }
    const bool bUnread = IsReset(hItem);
    if (bUnread && Read(hItem, PathOf(hItem)) != Reading::Whole) {
        return false;
    }
    if (hItem != m_hRoot) {
        return m_tree.FirstChild(hItem) != nullptr;
    }
    if (bUnread) {
        OpenIfRead(hItem);
    }
    return false;
}

HTREEITEM LazyBranches::Follow(const std::vector<std::string>& names) {
    HTREEITEM hItem = m_hRoot;
    std::string strPath(2, kSeparator);
    strPath += names.empty() ? std::string() : names.front();
    for (size_t i = 1; i < names.size() && hItem != nullptr; ++i) {
        if (Read(hItem, strPath) == Reading::Gone) {
            return nullptr;
        }
        const HTREEITEM hNext = m_tree.FindChild(hItem, names[i]);
        if (hNext == nullptr) {
            for (; hItem != nullptr; hItem = m_tree.Parent(hItem)) {
                OpenIfRead(hItem);
            }
            return nullptr;
        }
        hItem = hNext;
        strPath += kSeparator;
        strPath += names[i];
    }
    return hItem;
}

}  // namespace qv
