// The tree's expected keys: ends and pages, branches by the number pad, type-ahead.

#include "tree/tree_ctrl.h"

#include "frame/core/typed_search.h"
#include "frame/edit_command.h"
#include "tree/tree_ctrl_core.h"

#include <algorithm>
#include <climits>
#include <utility>

bool QVTreeCtrlEx::TakeExpectedKey(UINT nKey) {
    m_chOfKey = nKey == VK_ADD ? '+' : nKey == VK_SUBTRACT ? '-' : nKey == VK_MULTIPLY ? '*' : '\0';
    const bool bWalks = nKey == VK_HOME || nKey == VK_END || nKey == VK_PRIOR || nKey == VK_NEXT;
    const qv::HeldKeys held;
    if ((m_chOfKey == '\0' && !bWalks) || held.bControl || held.bMenu) {
        m_chOfKey = '\0';
        return false;
    }
    Typed().Forget();
    const HTREEITEM hSelected = GetSelectedItem();
    if (hSelected == nullptr) {
        if (Items().Top() != nullptr) {
            NfySelectItem(Items().Top());
        }
    } else if (bWalks) {
        SelectAndShow(KeyTarget(nKey, hSelected));
    } else if (hSelected->pFirstChild == nullptr) {
        // There is no branch.
    } else if (nKey == VK_MULTIPLY) {
        ExpandBranch(hSelected);
    } else if (ItemExpanded(hSelected) != (nKey == VK_ADD)) {
        nKey == VK_ADD ? ExpandByKey(hSelected) : CollapseByKey(hSelected);
    }
    return true;
}

HTREEITEM QVTreeCtrlEx::KeyTarget(UINT nKey, HTREEITEM hFrom) {
    const bool bDown = nKey == VK_END || nKey == VK_NEXT;
    const bool bPage = nKey == VK_PRIOR || nKey == VK_NEXT;
    if (nKey == VK_HOME) {
        return GetRootItem();
    }
    // The row at the edge of the view stays in view; a tree that shows whole is one page.
    int nRows = bPage && View().VPage() > 0 ? std::max(View().VPage() - 1, 1) : INT_MAX;
    HTREEITEM hTarget = hFrom;
    for (HTREEITEM h = hFrom; h != nullptr && nRows-- >= 0;) {
        hTarget = h;
        h = bDown ? NextDisplayableItem(h) : LastDisplayableItem(h);
    }
    return hTarget;
}

void QVTreeCtrlEx::SelectAndShow(HTREEITEM hItem) {
    const Guard guard(*this, hItem);
    if (hItem != GetSelectedItem()) {
        NfySelectItem(hItem);
    }
    if (guard) {
        EnsureVisible(hItem);
    }
}

// The item and, in the order of the tree, everything below it. Where the parent refuses, what lies
// below stays as it was. A parent that fills branches as they open may never come to an end: the
// Escape key ends it.
void QVTreeCtrlEx::ExpandBranch(HTREEITEM hItem) {
    const CWaitCursor wait;
    const Guard guard(*this, hItem);
    for (HTREEITEM h = hItem; h != nullptr && ::GetAsyncKeyState(VK_ESCAPE) >= 0;) {
        const Guard guardItem(*this, h);
        if (h->pFirstChild != nullptr && !ItemExpanded(h)) {
            ExpandByKey(h, true);
        }
        if (!guard || !guardItem || (h != hItem && !CheckForAncestor(h, hItem))) {
            break;
        }
        if (h->pFirstChild != nullptr && ItemExpanded(h)) {
            h = h->pFirstChild;
            continue;
        }
        while (h != hItem && h->pNextSibling == nullptr) {
            h = h->pParent;
        }
        h = h == hItem ? nullptr : h->pNextSibling;
    }
    if (guard) {
        InvalidateAll();
    }
}

// The character that a key of the number pad leaves behind is not typed to find a row.
bool QVTreeCtrlEx::TakeTypedChar(UINT nChar) {
    if (std::exchange(m_chOfKey, '\0') == nChar) {
        return true;
    }
    const auto answer =
        Typed().Type(static_cast<unsigned char>(nChar), static_cast<unsigned>(::GetMessageTime()));
    if (answer == qv::TypedSearch::Answer::Searches) {
        if (const HTREEITEM hFound = FindTyped()) {
            SelectAndShow(hFound);
        }
    }
    return answer != qv::TypedSearch::Answer::NotTyped;
}

// Among the rows, from the selection on and around.
HTREEITEM QVTreeCtrlEx::FindTyped() {
    const qv::TypedSearch& typed = Typed();
    const HTREEITEM hSelected = GetSelectedItem();
    const HTREEITEM hStart =
        hSelected == nullptr || !typed.BeginsBehind() ? hSelected : NextDisplayableItem(hSelected);
    bool bAround = false;
    for (HTREEITEM h = hStart;; h = NextDisplayableItem(h)) {
        if (h == nullptr) {
            h = bAround ? nullptr : GetRootItem();
            bAround = true;
        } else if (bAround && h == hStart) {
            return nullptr;
        }
        if (h == nullptr || typed.Fits(Items().DisplayText(h))) {
            return h;
        }
    }
}
