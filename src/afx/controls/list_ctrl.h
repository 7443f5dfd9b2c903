// CListCtrl, the list view.
#pragma once

#include "afx/controls/header_ctrl.h"
#include "afx/drawing/image_list.h"

#include <afxwin.h>

class CToolTipCtrl;

class QVAFX_API CListCtrl : public CWnd {
    DECLARE_DYNAMIC(CListCtrl)

public:
    CListCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::CreateEx;
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    // Attributes of the control
    COLORREF GetBkColor() const;
    BOOL SetBkColor(COLORREF cr);
    COLORREF GetTextColor() const;
    BOOL SetTextColor(COLORREF cr);
    COLORREF GetTextBkColor() const;
    BOOL SetTextBkColor(COLORREF cr);
    CImageList* GetImageList(int nImageList) const;
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);
    UINT GetCallbackMask() const;
    BOOL SetCallbackMask(UINT nMask);
    DWORD GetExtendedStyle();
    DWORD SetExtendedStyle(DWORD dwNewStyle);
    CHeaderCtrl* GetHeaderCtrl();
    CEdit* GetEditControl() const;
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* pWndTip);
    CSize SetIconSpacing(int cx, int cy);
    CSize SetIconSpacing(CSize size);
    HCURSOR GetHotCursor();
    HCURSOR SetHotCursor(HCURSOR hc);
    int GetHotItem();
    int SetHotItem(int iIndex);
    CSize GetItemSpacing(BOOL bSmall) const;
    CSize ApproximateViewRect(CSize sz = CSize(-1, -1), int iCount = -1) const;
    int GetStringWidth(LPCTSTR lpsz) const;

    // Items
    int GetItemCount() const;
    void SetItemCount(int nItems);
    BOOL SetItemCountEx(int iCount, DWORD dwFlags = LVSICF_NOINVALIDATEALL);
    BOOL GetItem(LVITEM* pItem) const;
    BOOL SetItem(const LVITEM* pItem);
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                 UINT nStateMask, LPARAM lParam);
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                 UINT nStateMask, LPARAM lParam, int nIndent);
    int GetNextItem(int nItem, int nFlags) const;
    POSITION GetFirstSelectedItemPosition() const;
    int GetNextSelectedItem(POSITION& pos) const;
    int GetSelectionMark();
    int SetSelectionMark(int iIndex);
    UINT GetSelectedCount() const;
    UINT GetItemState(int nItem, UINT nMask) const;
    BOOL SetItemState(int nItem, LVITEM* pItem);
    BOOL SetItemState(int nItem, UINT nState, UINT nMask);
    BOOL GetCheck(int nItem) const;
    BOOL SetCheck(int nItem, BOOL fCheck = TRUE);
    DWORD_PTR GetItemData(int nItem) const;
    BOOL SetItemData(int nItem, DWORD_PTR dwData);
    CString GetItemText(int nItem, int nSubItem) const;
    /// Copies at most nLen bytes with the terminator; gives the number copied.
    int GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const;
    BOOL SetItemText(int nItem, int nSubItem, LPCTSTR lpszText);
    BOOL GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const;
    BOOL GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref);
    BOOL GetItemPosition(int nItem, LPPOINT lpPoint) const;
    BOOL SetItemPosition(int nItem, POINT pt);
    BOOL GetOrigin(LPPOINT lpPoint) const;
    BOOL GetViewRect(LPRECT lpRect) const;
    int GetTopIndex() const;
    int GetCountPerPage() const;

    int InsertItem(const LVITEM* pItem);
    int InsertItem(int nItem, LPCTSTR lpszItem);
    int InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    int InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask,
                   int nImage, LPARAM lParam);
    BOOL DeleteItem(int nItem);
    BOOL DeleteAllItems();
    int FindItem(LVFINDINFO* pFindInfo, int nStart = -1) const;
    /// A comparison that throws is told to the application; the result is FALSE then, the order
    /// any.
    BOOL SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData);
    int HitTest(LVHITTESTINFO* pHitTestInfo) const;
    int HitTest(CPoint pt, UINT* pFlags = nullptr) const;
    int SubItemHitTest(LPLVHITTESTINFO pInfo);
    BOOL EnsureVisible(int nItem, BOOL bPartialOK);
    BOOL Scroll(CSize size);
    BOOL RedrawItems(int nFirst, int nLast);
    BOOL Arrange(UINT nCode);
    CEdit* EditLabel(int nItem);
    BOOL Update(int nItem);
    /// The caller deletes the list.
    CImageList* CreateDragImage(int nItem, LPPOINT lpPoint);

    // Columns
    BOOL GetColumn(int nCol, LVCOLUMN* pColumn) const;
    BOOL SetColumn(int nCol, const LVCOLUMN* pColumn);
    int InsertColumn(int nCol, const LVCOLUMN* pColumn);
    int InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat = LVCFMT_LEFT,
                     int nWidth = -1, int nSubItem = -1);
    BOOL DeleteColumn(int nCol);
    int GetColumnWidth(int nCol) const;
    BOOL SetColumnWidth(int nCol, int cx);
    BOOL GetColumnOrderArray(LPINT piArray, int iCount = -1);
    BOOL SetColumnOrderArray(int iCount, LPINT piArray);

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
