// TreeHeadings: headings over the columns of the package tree. They scroll with the columns, and a
// heading that is made wider or narrower takes its column along; a double click on its edge fits
// the column to what stands in it.

#pragma once

#include "pages/package_tree.h"

class TreeHeadings : public CWnd {
public:
    explicit TreeHeadings(PackageTree& tree) : m_tree(tree) {}
    // In the font of pParent.
    BOOL Create(CWnd* pParent, UINT nID);
    // Pixels.
    int Height() const;
    // Puts each heading over its column, as the tree has it now.
    void Fit();
    CHeaderCtrl& Header() { return m_header; }

protected:
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnChanging(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnChanged(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnFitColumn(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    PackageTree& m_tree;
    CHeaderCtrl m_header;
    bool m_bFitting = false;
};
