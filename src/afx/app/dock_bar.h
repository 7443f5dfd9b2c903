// CDockBar: an edge of a frame where bars are docked. Made by CFrameWnd::EnableDocking, and by the
// small frames in which bars float.
#pragma once

#include "afx/app/control_bar.h"

#include <vector>

/// Bars lie in rows from the frame's edge inwards, each as near to its wished place along the edge
/// as the others leave room.
class QVAFX_API CDockBar : public CControlBar {
    DECLARE_DYNAMIC(CDockBar)

    using Row = std::vector<CControlBar*>;

public:
    explicit CDockBar(BOOL bFloating = FALSE);
    ~CDockBar() override;

    BOOL m_bFloating;

    using CWnd::Create;
    BOOL Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID);

    /// lpRect, in screen coordinates: where the bar shall lie. Null: in a row of its own.
    void DockControlBar(CControlBar* pBar, LPCRECT lpRect = nullptr);
    /// In the last row, or in a new one behind it, nOffset pixels along the edge.
    void DockInLastRow(CControlBar* pBar, bool bNewRow, int nOffset);
    void RemoveControlBar(CControlBar* pBar);
    int GetDockedCount() const;
    int GetDockedVisibleCount() const;
    int RowOf(const CControlBar* pBar) const;  ///< -1: none
    CControlBar* FirstBar() const;
    /// visit(bar, whether it is the first of its row), row by row.
    template <class Visit>
    void ForEachBar(Visit visit) const {
        for (const Row& row : m_rows) {
            for (CControlBar* pBar : row) {
                visit(pBar, pBar == row.front());
            }
        }
    }

    BOOL IsDockBar() const override { return TRUE; }
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    void Take(CControlBar* pBar);
    int RowAt(const CRect& rect) const;
    CSize LayOut(int nLength, bool bMove);

    friend class AfxFloatingFrame;
    std::vector<Row> m_rows;
};
