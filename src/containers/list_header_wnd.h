// QVListHeaderWnd: a list under a caption. Style, id, images and caption are set before creation;
// afterwards the list is reached by GetListBox.
//
// What the list tells its parent, this window, goes on to this window's own parent under the id of
// SetListID, and the answer comes back. Without an id nothing goes on.

#pragma once

#include "containers/header_wnd.h"
#include "list/list_ctrl.h"

class QV_CONTROLS_API QVListHeaderWnd : public QVHeaderWnd {
    DECLARE_DYNCREATE(QVListHeaderWnd)

public:
    QVListHeaderWnd();
    // The list is an object of pListClass, QVListCtrlEx or derived from it; null: QVListCtrlEx.
    // With another class there is no list, and the window cannot be made.
    explicit QVListHeaderWnd(CRuntimeClass* pListClass);
    ~QVListHeaderWnd() override;

    int Initialize(UINT nID, CWnd* pParent) override;

    // Window style of the list; at first WS_CHILD | WS_VISIBLE | WS_VSCROLL.
    DWORD GetListStyle() const { return m_dwListStyle; }
    void SetListStyle(DWORD dwStyle) { m_dwListStyle = dwStyle; }
    void SetListID(UINT nID) { m_nListID = nID; }
    // Images cx pixels wide from a bitmap resource, crMask being transparent. At first none.
    void SetImageInfo(UINT nBitmap, COLORREF crMask, int cx);

    // Lives as long as this object.
    QVListCtrlEx* GetListBox() { return m_pListCtrl; }

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

    DWORD m_dwListStyle = WS_CHILD | WS_VISIBLE | WS_VSCROLL;
    UINT m_nListID = static_cast<UINT>(-1);
    UINT m_nImageBitmap = static_cast<UINT>(-1);
    int m_cxListImage = 0;  // pixels; 0: no images
    COLORREF m_crImageMask = RGB(255, 255, 255);
    QVListCtrlEx* m_pListCtrl;  // owned; null for a class that is no list

private:
    BOOL MakeList();
};
