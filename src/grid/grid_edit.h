// QVGridEdit: the grid's edit, a child window for typing, made at first use and used for every
// cell. It leaves the cell by the arrow keys at the ends of its text, and what is typed is kept as
// it loses the focus.

#pragma once

#include "frame/accessible.h"
#include "frame/alive.h"
#include "frame/out_of_memory.h"
#include "grid/core/grid_editing.h"

#include <afxwin.h>

inline constexpr UINT kGridEditId = 100;

class QVGridEditHost {
public:
    // Sees the keys before the edit does. True if that was all.
    virtual bool TakesEditKey(UINT nKey) = 0;
    // What a screen reader calls the edit: as the cell.
    virtual CString EditName() = 0;

protected:
    ~QVGridEditHost() = default;
};

class QVGridEdit : public qv::QuietWithoutMemory<CEdit>,
                   public qv::GridEditPort,
                   private QVAccessible {
public:
    QVGridEdit(CWnd& grid, qv::GridEditing& editing, QVGridEditHost& host)
        : QVAccessible(static_cast<CWnd&>(*this)), m_grid(grid), m_editing(editing), m_host(host) {}

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
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    // The platform's edit has no label in the grid.
    CString GetAccessibleName(long nPart) override;
    CString GetAccessibleValue(long nPart) override;
    long GetAccessibleRole(long nPart) override;
    BOOL SetAccessibleValue(long nPart, const CString& strValue) override;

    CWnd& m_grid;
    qv::GridEditing& m_editing;
    QVGridEditHost& m_host;
    bool m_bKeyTaken = false;  // its control character may be about to come
    bool m_bClosing = false;
    qv::AliveToken m_alive;
};
