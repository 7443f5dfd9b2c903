// QVGridList: the grid's list of choices, a popup window under a cell, made at first use and used
// for every cell. It never has the focus: keys reach the grid, and the pointer is followed by
// capture.

#pragma once

#include "frame/alive.h"
#include "frame/out_of_memory.h"
#include "grid/core/grid_editing.h"

#include <afxwin.h>

class QVGridList : public qv::QuietWithoutMemory<CListBox>, public qv::GridListPort {
public:
    QVGridList(CWnd& grid, qv::GridEditing& editing) : m_grid(grid), m_editing(editing) {}
    ~QVGridList() override { Follow(false); }

    // How many lines show at most; 0 is no limit.
    void SetMaxLines(int nLines) { m_nMaxLines = nLines; }

    bool Made() const override { return m_hWnd != nullptr; }
    bool Up() const override { return m_hWnd != nullptr && (GetStyle() & WS_VISIBLE) != 0; }
    void Fill(const CStringArray& choices) override;
    int CountLines() const override { return GetCount(); }
    int SelectedLine() const override { return GetCurSel(); }
    void SelectLine(int nLine) override { SetCurSel(nLine); }
    int FindLine(const char* psz) const override { return FindStringExact(-1, psz); }
    std::string LineText(int nLine) const override;
    void Place(const qv::Rect& rcCell) override;
    void Show() override;
    void Hide() override;
    // With the grid's window.
    void Close();

protected:
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint pt);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint pt);
    afx_msg void OnMouseMove(UINT nFlags, CPoint pt);
    DECLARE_MESSAGE_MAP()

private:
    static LRESULT CALLBACK AfterMessage(int nCode, WPARAM wParam, LPARAM lParam);

    void Make();
    void Follow(bool bFollow);

    static inline HHOOK s_hHook = nullptr;  // while there is a list that follows
    static inline QVGridList* s_pFollowing = nullptr;

    CWnd& m_grid;
    qv::GridEditing& m_editing;
    int m_nMaxLines = 0;
    QVGridList* m_pNext = nullptr;  // that follows as well
    bool m_bFollows = false;
    qv::AliveToken m_alive;
};
