// QVGridEdit: the grid's edit, a child window for typing, made at first use and used for every
// cell. It leaves the cell by the arrow keys at the ends of its text, and what is typed is kept as
// it loses the focus.

#pragma once

#include "frame/alive.h"
#include "frame/out_of_memory.h"
#include "grid/core/grid_editing.h"

#include <afxwin.h>

inline constexpr UINT kGridEditId = 100;

// Who sees the keys before the edit does.
class QVGridEditKeys {
public:
    // True if that was all.
    virtual bool TakesEditKey(UINT nKey) = 0;

protected:
    ~QVGridEditKeys() = default;
};

class QVGridEdit : public qv::QuietWithoutMemory<CEdit>, public qv::GridEditPort {
public:
    QVGridEdit(CWnd& grid, qv::GridEditing& editing, QVGridEditKeys& keys)
        : m_grid(grid), m_editing(editing), m_keys(keys) {}

    bool Made() const override { return m_hWnd != nullptr; }
    // By its own style: what it holds is not lost because a window around the grid is hidden.
    bool Up() const override;
    void MakeHidden() override;
    std::string Text() const override;
    void SetText(const char* psz) override;
    void SelectAll() override;
    void PutCaretAtEnd() override;
    void Place(const qv::Rect& rc) override;
    void Show() override;
    void Hide() override;
    bool HasFocus() const override { return ::GetFocus() == m_hWnd; }
    void TakeFocus() override { ::SetFocus(m_hWnd); }
    // With the grid's window. What it holds is not kept by this.
    void Close();

protected:
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    DECLARE_MESSAGE_MAP()

private:
    CWnd& m_grid;
    qv::GridEditing& m_editing;
    QVGridEditKeys& m_keys;
    bool m_bKeyTaken = false;  // its control character may be about to come
    bool m_bClosing = false;
    qv::AliveToken m_alive;
};
