// The order in which a virtual list shows the application's rows, and those that it has asked for.

#pragma once

#include "list/column_keys.h"
#include "list/core/cut_rows.h"
#include "list/core/row_permutation.h"
#include "list/rows_on_demand.h"
#include "list/virtual_list_ctrl.h"

#include <optional>

class QVVirtualListCtrl::Rows : public qv::RowsOnDemand {
public:
    explicit Rows(QVVirtualListCtrl& list) : m_list(list) {}

    LPCSTR Cell(int nItem, int nCol) override;
    int Image(int nItem) override;
    int ItemOf(DWORD_PTR dwData) override;

    // Asks for an item's row, unless this paint has done so. Null once the list is gone; outside of
    // a paint std::bad_alloc where the row cannot be had.
    const qv::CutRow* Read(int nItem);
    // The cell of a column; the image's has none.
    LPCSTR CellOf(const qv::CutRow& row, int nCol) const;
    // What the list asks of others. False if they threw.
    template <class Step>
    bool Ask(Step step);

    // Around each paint, which shows nRows at most.
    void BeginPaint(int nRows);
    void EndPaint();

    const qv::RowPermutation& Order() const { return m_order; }
    int RowAt(int nItem) const;
    size_t SetCount(size_t nRows, size_t nAbove);
    void Reset();
    // The data are others.
    void Forget();
    // Those of a column; false if the list is gone or the rows have changed meanwhile.
    bool FindRanks(int nCol);
    void Arrange(bool bAscending);

    // From item nFirst on, by the visible text of the first cell or by item data; -1 if there is
    // none.
    int Find(UINT nFlags, const std::string& strText, LPARAM lData, int nFirst);

private:
    bool Matches(const qv::CutRow& row, const std::string& strText, bool bStart) const;

    QVVirtualListCtrl& m_list;
    qv::RowPermutation m_order;
    qv::CutRows m_page;
    int m_nPaints = 0;
    qv::CutRow m_single;   // that was read outside of a paint
    int m_nSingle = -1;    // its item
    int m_nSingleCol = 0;  // whose text was asked for last
    int m_nVersion = 0;    // of rows and order
    int m_nAsked = 0;      // within each other
    std::optional<qv::ColumnRead> m_read;
    std::vector<std::uint32_t> m_ranks;  // of what was read
};

template <class Step>
bool QVVirtualListCtrl::Rows::Ask(Step step) {
    constexpr int kDeepest = 20;  // who asks the list for what he is asked
    if (m_nAsked >= kDeepest) {
        return false;
    }
    const qv::SetWhileAlive<int> asked(m_list.m_alive, m_nAsked, m_nAsked + 1);
    try {
        step();
        return true;
    } catch (CException* pException) {
        pException->Delete();
    } catch (...) {
    }
    return false;
}
