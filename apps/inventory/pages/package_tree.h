// PackageTree: the inventory as a tree: one row for all of it, below it sections, packages and what
// is to be said of each package. The rows of a package are made when its branch is opened first.

#pragma once

#include "QVControls.h"
#include "images.h"
#include "model/inventory.h"
#include "model/tree_columns.h"
#include "pages/cut_tips.h"
#include "pages/finding.h"

#include <functional>
#include <set>
#include <string>

class PackageTree : public CutTips<QVTreeCtrlEx> {
public:
    // Columns, styles, images and check marks; call once the window exists.
    void SetUp();
    // Fills the tree anew. What was open, ticked and selected is so again if it is still there, and
    // the tree is scrolled to where it was. The inventory must outlive what is shown of it.
    void Show(const Inventory& inventory);

    // The package of an item at the package level, null for others.
    const Package* PackageOf(HTREEITEM hItem);
    // The section that an item is, or lies in; empty for the row above all of them.
    std::string SectionOf(HTREEITEM hItem);
    bool IsSectionOrRoot(HTREEITEM hItem);
    // Selects a section, or all of them for an empty name, and tells nobody. What is selected
    // already within it stays.
    void ShowSection(const std::string& strSection);
    // Makes the rows below a package, if that is still to be done.
    void Fill(HTREEITEM hPackage);
    // All branches of sections open or closed.
    void ExpandSections(UINT nCode);

    void UseIndentedColumns(bool bIndented);
    bool IndentedColumns() const { return m_bIndented; }

    struct Column {
        LPCSTR pszHeading;
        int nHeadingFormat;  // HDF_
    };
    static const Column kColumns[kTreeColumns];
    const TreeWidths& Widths() const { return m_widths; }
    void UseWidths(const TreeWidths& widths);
    // Of all columns but the last, in pixels. The first heading stands over what is before the text
    // of a package as well.
    int HeadingWidth(int nCol);
    int LeastHeadingWidth(int nCol);
    void SetHeadingWidth(int nCol, int nWidth);
    // As wide as the widest text in it, of all packages. All columns for -1.
    void FitColumn(int nCol);
    // Of what shows, in row coordinates: the first pixel, and the end of the widest row.
    int LeftEdge() const { return GetHScrollPos(); }
    int RightEdge() const { return GetMaxWidth(); }
    // Called when one of these edges has moved.
    std::function<void()> m_onEdges;

    // In the rows of open branches.
    FindResult Find(const TextQuery& query, bool bDown);

    struct Marked {
        int nPackages = 0;
        long nSizeKiB = 0;
    };
    // What is ticked, also in branches that are closed.
    Marked CountMarked();

protected:
    bool TipCellAt(CPoint pt, TipCell& cell) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnSysColorChange();
    DECLARE_MESSAGE_MAP()

private:
    void UseColors();
    // What a refilled tree gets back, by the keys of its items.
    struct Kept {
        std::set<std::string> open;
        std::set<std::string> ticked;
        std::string strSelected;
        std::string strTop;
        int nLeft = 0;  // of the horizontal bar
    };
    Kept Keep();
    void Restore(const Kept& kept);
    // What tells an item from all others, before a refill and behind it.
    std::string KeyOf(HTREEITEM hItem);
    // 0 for the row above all; -1 for no item.
    int LevelOf(HTREEITEM hItem);
    HTREEITEM AddPackage(HTREEITEM hSection, const Package& package);
    void AddDetail(HTREEITEM hPackage, const char* pszWhat, const std::string& strValue,
                   int nImage);

    int Dpi();
    int TextLeft();
    void UseStops();

    CImageList m_images;
    TreeWidths m_widths = kFirstTreeWidths;
    int m_nLeftEdge = 0;  // that m_onEdges knows of
    int m_nRightEdge = 0;
    bool m_bIndented = true;
    int m_nTrouble = 0;  // styles
    int m_nRequired = 0;
    int m_nDetail = 0;
};
