// The grid's editors: a child window for typing and a popup window for choosing, made at first use
// and used for every cell.

#pragma once

#include "frame/out_of_memory.h"
#include "grid/grid_ctrl.h"

// Leaves the cell by the arrow keys at the ends of its text, and saves as it loses the focus.
inline constexpr UINT kGridEditId = 100;

class QVGridEdit : public qv::QuietWithoutMemory<CEdit> {
public:
    explicit QVGridEdit(QVGridCtrl& grid) : m_grid(grid) {}

protected:
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    DECLARE_MESSAGE_MAP()

private:
    bool LeavesCell(UINT nChar);

    QVGridCtrl& m_grid;
};

// Never has the focus: keys reach the grid, and the pointer is followed by capture.
class QVGridList : public qv::QuietWithoutMemory<CListBox> {
public:
    explicit QVGridList(QVGridCtrl& grid) : m_grid(grid) {}
    ~QVGridList() override { Follow(false); }

    // Whether it moves along with its cell as the windows around the grid move, which the grid is
    // not told of.
    void Follow(bool bFollow);

protected:
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint pt);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint pt);
    afx_msg void OnMouseMove(UINT nFlags, CPoint pt);
    DECLARE_MESSAGE_MAP()

private:
    static LRESULT CALLBACK AfterMessage(int nCode, WPARAM wParam, LPARAM lParam);

    static inline HHOOK s_hHook = nullptr;  // while there is a list that follows
    static inline QVGridList* s_pFollowing = nullptr;

    QVGridCtrl& m_grid;
    QVGridList* m_pNext = nullptr;  // that follows as well
    bool m_bFollows = false;
};

// Watches the grid over a call that leads out of it: the parent may destroy its window or delete
// the control. False from then on; nothing of the grid may be touched. A grid that has no window
// yet is only watched for its life.
class QVGridCtrl::Watch {
public:
    explicit Watch(const QVGridCtrl& grid)
        : m_grid(grid), m_hWnd(grid.m_hWnd), m_pAlive(grid.m_pAlive) {}
    explicit operator bool() const { return *m_pAlive && m_grid.m_hWnd == m_hWnd; }

private:
    const QVGridCtrl& m_grid;
    HWND m_hWnd;
    std::shared_ptr<const bool> m_pAlive;
};
