// QVTreeHeaderWnd: a tree under a caption. Style, id and caption are set before creation;
// afterwards the tree is reached by GetTreeCtrl.
//
// The tree's notifications go on to this window's own parent under the id of SetTreeID, and the
// answer comes back. Without an id nothing goes on, and commands never do.

#pragma once

#include "containers/header_wnd.h"
#include "tree/tree_ctrl.h"

class QV_CONTROLS_API QVTreeHeaderWnd : public QVHeaderWnd {
    DECLARE_DYNCREATE(QVTreeHeaderWnd)

public:
    QVTreeHeaderWnd();
    ~QVTreeHeaderWnd() override;

    int Initialize(UINT nID, CWnd* pParent) override;

    // Window style of the tree; at first a visible child with lines, also at the root, and
    // buttons, whose selection shows without the focus.
    DWORD GetTreeStyle() const { return m_dwTreeStyle; }
    void SetTreeStyle(DWORD dwStyle) { m_dwTreeStyle = dwStyle; }
    void SetTreeID(UINT nID) { m_nTreeID = nID; }

    QVTreeCtrlEx& GetTreeCtrl() { return m_wndTree; }

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

    DWORD m_dwTreeStyle = WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT |
                          TVS_DISABLEDRAGDROP | TVS_SHOWSELALWAYS;
    UINT m_nTreeID = static_cast<UINT>(-1);
    QVTreeCtrlEx m_wndTree;

private:
    BOOL MakeTree();
};
