// The grid's core with the windows around it.

#pragma once

#include "frame/core/row_scroll.h"
#include "frame/wnd_port.h"
#include "grid/core/grid_deeds.h"
#include "grid/core/grid_editing.h"
#include "grid/grid_ctrl.h"
#include "grid/grid_edit.h"
#include "grid/grid_list.h"

class QVGridCtrl::Core : private qv::GridHostPort, private QVGridEditHost {
public:
    explicit Core(QVGridCtrl& grid)
        : port(grid),
          scroll(port),
          edit(grid, editing, *this),
          list(grid, editing),
          editing(model, grid, *this, edit, list),
          deeds(editing),
          m_grid(grid) {}

    const qv::AliveToken& Alive() const { return editing.Alive(); }
    qv::GridLayout Layout() const override;
    qv::ScrollAxis Axis() const;
    // A text that would be an edit, if it were kept now.
    bool HasTyped() const;
    void ShowRange();

    qv::GridModel model;
    qv::WndPort port;
    qv::RowScroll scroll;
    QVGridEdit edit;
    QVGridList list;
    qv::GridEditing editing;
    qv::GridDeeds deeds;

private:
    const void* Window() const override { return m_grid.m_hWnd; }
    bool MeasureRows() override { return m_grid.MeasureRows(); }
    int PageRows() const override { return static_cast<int>(m_grid.m_si.nPage); }
    void ShowRow(int nRow) override { m_grid.EnsureRowVisible(nRow); }
    void InvalidateAll() override { m_grid.InvalidateAll(); }
    void InvalidateRow(int nRow) override { m_grid.InvalidateRow(nRow, FALSE); }
    void InvalidateCell(qv::GridCell cell) override;
    void EraseCell(qv::GridCell cell) override;
    void InvalidateButton(const qv::Rect& rc) override;
    void Update() override;
    bool HasFocus() const override { return ::GetFocus() == m_grid.m_hWnd; }
    void TakeFocus() override { ::SetFocus(m_grid.m_hWnd); }
    bool HasMouse() const override { return ::GetCapture() == m_grid.m_hWnd; }
    void CaptureMouse() override { ::SetCapture(m_grid.m_hWnd); }
    void ReleaseMouse() override { ::ReleaseCapture(); }
    void TellParent(unsigned nCode) override;
    void HandleByDefault() override { m_grid.Default(); }
    bool SameText(const char* psz1, const char* psz2) const override;
    void NoteEdit(qv::GridCell cell, const std::string& strBefore,
                  const std::string& strAfter) override;
    void CellChanged(qv::GridCell cell, qv::CellChange what) override;
    bool TakesEditKey(UINT nKey) override;
    CString EditName() override;

    QVGridCtrl& m_grid;
};
