// What a list keeps beside the platform's control, and how it reads it.

#pragma once

#include "list/core/kept_places.h"
#include "list/core/list_columns.h"
#include "list/core/row_changes.h"
#include "list/list_ctrl.h"
#include "list/rows_on_demand.h"

#include <optional>
#include <vector>

class QVListCtrlEx::Core {
public:
    // The messages that change what is kept here; true if they change texts, item data, or which
    // rows and columns there are.
    bool SeeMessage(UINT nMessage, WPARAM wParam, LPARAM lParam);

    qv::ListColumns columns;
    qv::RowChanges changes;
    qv::KeptPlaces places;
    std::vector<char> text;        // of the cell read last
    std::vector<int> paintWidths;  // of the columns for the length of one paint; empty: not known
    std::optional<bool> bPaintFocus;  // whether the list has the focus, for the length of one paint
    std::optional<bool> bSortsItself;  // by the window's style; empty: not asked yet
    COLORREF crItem = 0;               // of the brush of the row that is drawn
    CRect rcFilled{0, 0, 0, 0};        // of that row, by that brush
    HWND hTold = nullptr;
    qv::RowsOnDemand* pRows = nullptr;  // null: the control has them
    bool bPrintComplete = true;
    bool bRedraws = true;  // what WM_SETREDRAW said last

private:
    bool SeeItem(const LVITEM* pItem, bool bNew);
    void SeeText(LPCSTR pszText);
};
