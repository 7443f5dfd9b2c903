// QVSortingListCtrl: a report list that sorts itself when a heading is clicked.
//
// Each heading is added with the type of its column. A click sorts by that column, ascending; a
// second click on it descending. A list that was never sorted counts as sorted by column 0, so the
// first click there gives the descending order.

#pragma once

#include "list/list_ctrl.h"

#include <memory>

// How a column's texts are compared.
enum QVLISTCTRL_DATATYPE {
    lcdtString = 0,  // without regard to case; a style code counts, but for column 0
    lcdtDate = 1,    // by the user's locale; what is no date stands at 1 January 1970
    lcdtNumber = 2,  // as unsigned 32-bit numbers: negative ones stand behind all others
};

class QV_CONTROLS_API QVSortingListCtrl : public QVListCtrlEx {
    DECLARE_DYNCREATE(QVSortingListCtrl)

public:
    QVSortingListCtrl();
    ~QVSortingListCtrl() override;

    // Headings, all of one type.
    void AddHeader(LPCSTR pszHeaders, QVLISTCTRL_DATATYPE nType);
    void AddHeader(UINT nStringID, QVLISTCTRL_DATATYPE nType);
    // Both do nothing and give -1, so that no column comes into being without a type.
    int InsertColumn(int nCol, const LVCOLUMN* pColumn);
    int InsertColumn(int nCol, LPCSTR pszHeading, int nFormat, int nWidth, int nSubItem);
    QVLISTCTRL_DATATYPE ColumnSortType(int nCol) const;
    // Sorts anew by the column and in the direction of the last sort.
    void ReSort();
    // An arrow in the heading of the last sort's column that points up where the rows ascend. Off
    // at first; there is none before the first sort. Version 6 of the platform's controls draws it.
    void ShowSortArrow(BOOL bShow = TRUE);
    BOOL ShowsSortArrow() const { return m_bSortArrow; }

protected:
    // Sorts, and turns the direction if nCol is the column of the last sort. The parent is told
    // nothing of it, and item data stay the caller's, whoever asks for them meanwhile. Without
    // memory the rows stay as they are, and so does the direction.
    void SortOnHeader(int nCol) override;
    int HeaderColumnCount(LPCSTR pszHeaders) const;
    static int CALLBACK SortFunc(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort);

    afx_msg LRESULT OnGetListItem(WPARAM wParam, LPARAM lParam);
    // For a class that orders its rows itself: they are in the order of m_nSortCol and
    // m_bAscending from now on, or in none. The heading is told so.
    void SetSorted(bool bSorted);

    afx_msg LRESULT OnSetColumn(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    int m_nSortCol = 0;
    BOOL m_bAscending = TRUE;
    CWordArray m_aColTypes;      // a column beyond its end is lcdtString
    bool m_bSortFailed = false;  // of the last SortOnHeader

private:
    struct Kept;
    class Sort;

    Sort* m_pSort = nullptr;              // lives for one sort
    std::shared_ptr<const Kept> m_pKept;  // of the last sort
    BOOL m_bSortArrow = FALSE;
    bool m_bSorted = false;

    void PlaceArrow();
};
