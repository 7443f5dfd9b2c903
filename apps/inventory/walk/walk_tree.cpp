#include "walk/walk.h"

#include "resource.h"

#include <algorithm>

namespace {

constexpr int kOnText = 4;      // pixels into the text
constexpr int kOnButton = -10;  // left of the row
constexpr int kOnCheck = 6;     // into the row, where the state image is

}  // namespace

// A point of the row on the screen: so far from the text's left edge (kOnText) or the row's.
CPoint Walk::PointOf(HTREEITEM hItem, int nOffset) {
    CRect rect;
    Tree().GetItemRect(hItem, &rect, nOffset == kOnText);
    CPoint pt(rect.left + nOffset - Tree().GetScrollPos(SB_HORZ) * 2, rect.CenterPoint().y);
    Tree().ClientToScreen(&pt);
    return pt;
}

bool Walk::SectionsTree() {
    return Expect("the page comes up with sections",
                  [this] {
                      return Tree().GetRootItem() != nullptr && Tree().GetFocus() == &Tree();
                  }) &&
           Station("tree-1-sections");
}

bool Walk::OpenBranch() {
    const HTREEITEM hSection = Tree().GetNextSiblingItem(Tree().GetChildItem(Tree().GetRootItem()));
    Click(PointOf(hSection, kOnButton));
    if (!Expect("a click on the button opens a section",
                [&] { return Tree().ItemExpanded(hSection) != FALSE; })) {
        return false;
    }
    const HTREEITEM hPackage = Tree().GetChildItem(hSection);
    Click(PointOf(hPackage, kOnText));
    Press(VK_RIGHT);
    return Expect("the right arrow opens a package",
                  [&] { return Tree().ItemExpanded(hPackage) != FALSE; }) &&
           Station("tree-2-open");
}

bool Walk::SectionNarrows() {
    const HTREEITEM hPackage = Tree().GetSelectedItem();
    const HTREEITEM hSection = Tree().GetParentItem(hPackage);
    const std::string strSection = Tree().SectionOf(hSection);
    const auto nAll = List().GetItemCount();
    Click(PointOf(hSection, kOnText));
    if (!Expect("a section chosen in the tree is chosen in the bar and leaves its packages alone",
                [&] {
                    return m_frame.Packages().Bar().Filter().strSection == strSection &&
                           List().GetItemCount() < nAll && List().GetItemCount() > 0 &&
                           List().PackageOf(0)->strSection == strSection;
                })) {
        return false;
    }
    Press(VK_DOWN);
    const Package* pPackage = Tree().PackageOf(hPackage);
    return Expect("a package chosen in the tree comes to the front of the list, with its details",
                  [&] {
                      return List().PackageOf(List().GetSelectedItem()) == pPackage &&
                             Details().Shows() == pPackage->strName;
                  }) &&
           Station("tree-2b-section");
}

bool Walk::Marks() {
    const HTREEITEM hSection = Tree().GetParentItem(Tree().GetSelectedItem());
    Click(PointOf(hSection, kOnCheck));
    if (!Expect("a click on the box ticks the section", [&] {
            return Tree().GetCheck(hSection) && Tree().CountMarked().nPackages > 0 &&
                   m_frame.StatusText(1) == m_frame.Packages().MarkedText();
        })) {
        return false;
    }
    const int nMarked = Tree().CountMarked().nPackages;
    Press(VK_DOWN);
    Press(VK_SPACE);
    return Expect("the space bar unticks one package",
                  [&] { return Tree().CountMarked().nPackages == nMarked - 1; }) &&
           Station("tree-3-checked");
}

bool Walk::AbsoluteColumns() {
    m_frame.PostMessage(WM_COMMAND, ID_TREE_EXPAND_ALL);
    m_frame.PostMessage(WM_COMMAND, ID_VIEW_ABSOLUTE);
    if (!Expect("the columns become absolute", [this] { return !Tree().IndentedColumns(); })) {
        return false;
    }
    const int nTop = Tree().GetScrollPos(SB_VERT);
    SendMouse(PointOf(Tree().GetNextItem(nullptr, TVGN_FIRSTVISIBLE), kOnText), {MOUSEEVENTF_WHEEL},
              static_cast<DWORD>(-5 * WHEEL_DELTA));
    return Expect("the wheel scrolls", [&] { return Tree().GetScrollPos(SB_VERT) > nTop; }) &&
           Station("tree-4-absolute-columns");
}

bool Walk::Find() {
    return AskFor("BASE", "tree-5-find") &&
           Expect("a row of an open branch is found and shown", [this] {
               const HTREEITEM hItem = Tree().GetSelectedItem();
               CString strRow = Tree().GetItemText(hItem);
               return strRow.MakeLower().Find("base") >= 0 && Tree().ItemVisible(hItem) &&
                      CWnd::GetFocus() == &Tree();
           });
}

bool Walk::Vetoes() {
    m_frame.PostMessage(WM_COMMAND, ID_VETO_CHECK);
    HTREEITEM hRequired = Tree().GetRootItem();
    while (hRequired != nullptr &&
           (Tree().PackageOf(hRequired) == nullptr || !Tree().PackageOf(hRequired)->bRequired)) {
        hRequired = Tree().WalkNext(hRequired);
    }
    if (hRequired == nullptr) {
        return true;  // an inventory without required packages has nothing to refuse
    }
    Tree().EnsureVisible(hRequired);
    Tree().SetCheck(hRequired, TRUE, FALSE);
    Click(PointOf(hRequired, kOnCheck));
    return Expect("unticking a required package is refused",
                  [&] {
                      return Tree().GetCheck(hRequired) &&
                             m_frame.StatusText(0).Find("stays ticked") >= 0;
                  }) &&
           Station("tree-6-veto");
}

bool Walk::AllPackages() {
    const HTREEITEM hRoot = Tree().GetRootItem();
    Tree().EnsureVisible(hRoot);
    Click(PointOf(hRoot, kOnText));
    return Expect("the tree's first row shows all packages",
                  [this] { return m_frame.Packages().Bar().Filter().IsOpen(); });
}
