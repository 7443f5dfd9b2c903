// CHeaderCtrl, the column headings of a report.
#pragma once

#include "afx/drawing/image_list.h"

#include <afxwin.h>

class QVAFX_API CHeaderCtrl : public CWnd {
    DECLARE_DYNAMIC(CHeaderCtrl)

public:
    CHeaderCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetItemCount() const;
    BOOL GetItem(int nPos, HDITEM* pHeaderItem) const;
    BOOL SetItem(int nPos, HDITEM* pHeaderItem);
    CImageList* SetImageList(CImageList* pImageList);
    CImageList* GetImageList() const;
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const;
    BOOL GetOrderArray(LPINT piArray, int iCount = -1);
    BOOL SetOrderArray(int iCount, LPINT piArray);
    int OrderToIndex(int nOrder) const;

    int InsertItem(int nPos, HDITEM* phdi);
    BOOL DeleteItem(int nPos);
    BOOL Layout(HDLAYOUT* pHeaderLayout);
    int HitTest(LPHDHITTESTINFO phdhti);
    CImageList* CreateDragImage(int nIndex);
    int SetHotDivider(CPoint pt);
    int SetHotDivider(int nIndex);

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
