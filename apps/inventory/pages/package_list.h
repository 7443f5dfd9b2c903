// PackageList: the packages as a report that sorts itself: name, version, size, date of
// installation, section, state and summary.

#pragma once

#include "QVControls.h"
#include "model/inventory.h"

#include <map>
#include <string>
#include <vector>

class PackageList : public QVSortingListCtrl {
    DECLARE_DYNCREATE(PackageList)

public:
    // Styles and columns; call once the window exists.
    void SetUp(CFont* pFont);
    // Fills the list anew, in the order of the last sort; what was selected is selected again if it
    // is still there. The inventory must outlive what is shown of it.
    void Show(const Inventory& inventory);

    // Of the texts of each kind of package.
    void UseColors(COLORREF crInstalled, COLORREF crRequired, COLORREF crTrouble);
    // Images beside the names, or in a column of their own.
    void UseImageColumn(bool bOwn);
    bool HasImageColumn() const { return m_bImageColumn; }

    const Package* PackageOf(int nItem);
    bool FindNext(const CString& strText);
    struct Selected {
        int nPackages = 0;
        long nSizeKiB = 0;
    };
    Selected CountSelected();
    int SummaryColumn() const { return NumColumns() - 1; }
    void SortBy(int nCol) { SortOnHeader(nCol); }

private:
    void MakeColumns();
    void Fill();
    CString Row(const Package& package) const;
    DWORD_PTR IdOf(const std::string& strName);

    const Inventory* m_pInventory = nullptr;
    bool m_bImageColumn = false;
    int m_nTrouble = 0;  // styles
    int m_nRequired = 0;
    int m_nDetail = 0;
    // Item data are numbers that a package keeps when the inventory is read again.
    std::map<std::string, DWORD_PTR> m_ids;
    std::vector<const Package*> m_packages;  // by number
};
