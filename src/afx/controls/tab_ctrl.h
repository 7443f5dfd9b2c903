// CTabCtrl, the row of tabs.
#pragma once

#include "afx/drawing/image_list.h"

#include <afxwin.h>

class CToolTipCtrl;

class QVAFX_API CTabCtrl : public CWnd {
    DECLARE_DYNAMIC(CTabCtrl)

public:
    CTabCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* pImageList);
    int GetItemCount() const;
    BOOL GetItem(int nItem, TCITEM* pTabCtrlItem) const;
    BOOL SetItem(int nItem, TCITEM* pTabCtrlItem);
    BOOL SetItemExtra(int nBytes);
    BOOL GetItemRect(int nItem, LPRECT lpRect) const;
    int GetCurSel() const;
    int SetCurSel(int nItem);
    void SetCurFocus(int nItem);
    int GetCurFocus() const;
    CSize SetItemSize(CSize size);
    void SetPadding(CSize size);
    int GetRowCount() const;
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pWndTip);
    int SetMinTabWidth(int cx);
    DWORD GetExtendedStyle();
    DWORD SetExtendedStyle(DWORD dwNewStyle, DWORD dwExMask = 0);
    DWORD GetItemState(int nItem, DWORD dwMask) const;
    BOOL SetItemState(int nItem, DWORD dwMask, DWORD dwState);

    LONG InsertItem(int nItem, TCITEM* pTabCtrlItem);
    LONG InsertItem(int nItem, LPCTSTR lpszItem);
    LONG InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    LONG InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam);
    BOOL DeleteItem(int nItem);
    BOOL DeleteAllItems();
    /// bLarger: from the display rectangle to the window's, else the other way.
    void AdjustRect(BOOL bLarger, LPRECT lpRect);
    void RemoveImage(int nImage);
    int HitTest(TCHITTESTINFO* pHitTestInfo) const;
    void DeselectAll(BOOL fExcludeFocus);
    BOOL HighlightItem(int idItem, BOOL fHighlight = TRUE);

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
