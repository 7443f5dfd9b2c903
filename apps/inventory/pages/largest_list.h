// LargestList: the packages that take most room, in a list box with headings: by size, by name, or
// by state and name.

#pragma once

#include "QVControls.h"
#include "model/inventory.h"
#include "model/package_ids.h"

#include <vector>

class LargestList : public QVBitmapListBox {
public:
    enum class Order { Size, Name, State };

    // Headings and styles; call once the window exists.
    void SetUp();
    // Shows the largest packages; what was selected is selected again if it is still there. The
    // inventory must outlive what is shown of it.
    void Show(const Inventory& inventory);
    const Package* PackageOf(int nRow);
    Order SortOrder() const { return m_order; }
    void SortBy(Order order);

protected:
    int CalcTabs(CDC* pDC, int* pTabs) override;
    void SortOnHeader(int nColumn) override;
    afx_msg void OnSysColorChange();
    DECLARE_MESSAGE_MAP()

private:
    void UseColors();
    void Fill();
    void Insert(const Package& package);
    CString Row(const Package& package) const;

    Order m_order = Order::Size;
    int m_nTrouble = 0;  // styles
    int m_nRequired = 0;
    PackageIds m_ids;                        // item data
    std::vector<const Package*> m_packages;  // the largest, by size
};
