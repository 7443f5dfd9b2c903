// QVVirtualListCtrl: a sorting report list over the application's own data. It keeps no rows: it is
// told how many there are, and asks for those that it shows, prints, exports or sorts.
//
// Create or Initialize, AddHeader, SetRowSource (or GetRow replaced in a derived class),
// SetRowCount; RowsChanged and SetRowCount whenever the data are others than before.
//
// The application counts rows of its data, from 0; the platform's control counts items, from the
// top of the list. A sort moves no data: the list keeps which row stands at which item. DataRow and
// ItemOfRow lead from one to the other, and so does the item data of an item, which is its row.
// Selection and focus stay with the rows.
//
// Each row that is in view is asked for once in a paint. Whoever is asked may change the number of
// rows, or take the list away. What it throws goes no further: the row is blank then, and an
// operation that needs it ends as without memory.
//
// The control has LVS_OWNERDATA, which cannot be given later: in a dialog's template say so.
// InsertItem, SetItemText, DeleteItem and their sisters fail, of the platform's control and of
// QVListCtrlEx alike. DeleteAllItems is SetRowCount(0), SetItemCount is SetRowCount.

#pragma once

#include "list/sorting_list_ctrl.h"

#include <memory>

// A row of the application's data as the list shows it.
struct QVLISTROW {
    CString strText;  // in the row format: TAB between the fields, style codes in front of them
    int nImage = -1;  // -1: none
    UINT nState = 0;  // state image, overlay and LVIS_CUT, for who asks the control for them
};

// Where rows come from, for who does not derive a class. It is the application's, and stays until
// the list has another one or none.
class QVRowSource {
public:
    virtual ~QVRowSource() = default;

    virtual void GetRow(int nRow, QVLISTROW& row) = 0;
    // A quicker way to one cell for a sort, which asks for every row. FALSE: by GetRow.
    virtual BOOL GetSortText(int /*nRow*/, int /*nCol*/, CString& /*strText*/) { return FALSE; }
    // These rows are asked for next, from top to bottom: a source that fetches them from somewhere
    // can do so at once.
    virtual void PrepareRows(const int* /*pRows*/, int /*nRows*/) {}
};

class QV_CONTROLS_API QVVirtualListCtrl : public QVSortingListCtrl {
    DECLARE_DYNCREATE(QVVirtualListCtrl)

public:
    QVVirtualListCtrl();
    ~QVVirtualListCtrl() override;

    // 0 also for a control without LVS_OWNERDATA.
    BOOL Initialize(UINT nID, UINT nBitmapID, COLORREF crMask, int cx, CWnd* pParent) override;
    using QVSortingListCtrl::Initialize;

    // --- Rows

    void SetRowSource(QVRowSource* pSource);
    QVRowSource* GetRowSource() const { return m_pSource; }
    // Up to 100,000,000. Selection and top row stay. In a sorted list new rows stand behind all
    // others until the next sort. 0 without memory.
    BOOL SetRowCount(int nRows);
    // The data changed: rows are asked for again, and by the next sort all of them.
    void RowsChanged();
    // -1 for an item, or a row, that there is none.
    int DataRow(int nItem) const;
    int ItemOfRow(int nRow) const;

    // --- Order

    // As a click on a heading does, but in this direction. Rows that are equal stay in turn. A
    // further sort by the same column asks for no row, until SetRowCount or RowsChanged. 0 without
    // memory, or if the rows changed meanwhile; nothing has moved then.
    BOOL SortByColumn(int nCol, BOOL bAscending);
    // As the data stand.
    void RestoreOrder();

protected:
    // --- Steps that a derived class may replace. By themselves they ask the source.

    virtual void GetRow(int nRow, QVLISTROW& row);
    // The text of a cell, with its style code, as it is to be compared.
    virtual void GetSortText(int nRow, int nCol, CString& strText);
    virtual void PrepareRows(const int* pRows, int nRows);

    void SortOnHeader(int nCol) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

    afx_msg void OnPaint();
    afx_msg void OnDestroy();
    afx_msg void OnGetDispInfoA(NMHDR* pHdr, LRESULT* pResult);
    afx_msg void OnGetDispInfoW(NMHDR* pHdr, LRESULT* pResult);
    afx_msg BOOL OnCacheHint(NMHDR* pHdr, LRESULT* pResult);
    afx_msg void OnFindByKeyA(NMHDR* pHdr, LRESULT* pResult);
    afx_msg void OnFindByKeyW(NMHDR* pHdr, LRESULT* pResult);
    afx_msg LRESULT OnFindItemA(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnFindItemW(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetListItem(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetItemCount(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDeleteAllItems(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetItem(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnInsertItem(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnRefuse(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    QVRowSource* m_pSource = nullptr;

private:
    class Rows;
    class Marks;

    template <class Move>
    void MoveRows(Move move);
    void KeepOnTop(int nItem);
    LRESULT PassItemCount(int nRows, LPARAM lFlags);
    void PaintNothing();
    template <class Item>
    void Answer(Item& item);
    template <class Info>
    int Find(const Info* pInfo, int nFirst);

    std::unique_ptr<Rows> m_pRows;
};
