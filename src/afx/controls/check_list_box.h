// CCheckListBox, a list box with a check box in each row, and CDragListBox, whose rows the user
// moves.
#pragma once

#include "afx/controls/controls.h"

#include <vector>

#define CLBN_CHKCHANGE 40  // to the parent: the user changed a check

/// The list box is owner-drawn and has strings: Create adds what is missing of these styles, a
/// template says LBS_OWNERDRAWFIXED (or -VARIABLE) and LBS_HASSTRINGS.
class QVAFX_API CCheckListBox : public CListBox {
    DECLARE_DYNAMIC(CCheckListBox)

public:
    CCheckListBox() = default;
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;

    /// BS_CHECKBOX, BS_AUTOCHECKBOX (at first), BS_AUTO3STATE or BS_3STATE. Only the automatic ones
    /// change by click and space bar.
    void SetCheckStyle(UINT nStyle) { m_nStyle = nStyle; }
    UINT GetCheckStyle() const { return m_nStyle; }
    void SetCheck(int nIndex, int nCheck);  ///< 0 off, 1 on, 2 indeterminate
    int GetCheck(int nIndex) const;
    void Enable(int nIndex, BOOL bEnabled = TRUE);
    BOOL IsEnabled(int nIndex) const;
    /// Where the check box stands in a row; both in client coordinates.
    virtual CRect OnGetCheckPosition(CRect rectItem, CRect rectCheckBox);

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override;
    void PreSubclassWindow() override;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg LRESULT OnSetFont(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnStringAdded(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnStringDeleted(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnContentReset(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    struct Row {
        int nCheck = 0;
        bool bEnabled = true;
    };
    Row* RowAt(int nIndex) const;
    CRect CheckRect(const CRect& rcItem);
    void DrawCheck(CDC& dc, const CRect& rcItem, const Row& row);
    int ItemHeight();
    void FitItemHeight();
    void InvalidateRow(int nIndex);
    /// All rows of a multiple selection that nIndex is part of.
    void ToggleByUser(int nIndex);

    UINT m_nStyle = BS_AUTOCHECKBOX;
    mutable std::vector<Row> m_rows;
};

/// A list of one selection, without sorting, whose rows are dragged to other places.
class QVAFX_API CDragListBox : public CListBox {
    DECLARE_DYNAMIC(CDragListBox)

public:
    CDragListBox() = default;

    /// The row at a point of the screen's; -1 for none. bAutoScroll: near the edges, the list
    /// scrolls.
    int ItemFromPt(CPoint pt, BOOL bAutoScroll = TRUE) const;
    virtual void DrawInsert(int nIndex);
    virtual BOOL BeginDrag(CPoint pt);  ///< FALSE: no drag
    virtual void CancelDrag(CPoint pt);
    /// DL_COPYCURSOR, DL_MOVECURSOR or DL_STOPCURSOR.
    virtual UINT Dragging(CPoint pt);
    virtual void Dropped(int nSrcIndex, CPoint pt);

    void PreSubclassWindow() override;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    int m_nLast = -1;
};
