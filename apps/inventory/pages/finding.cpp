#include "pages/finding.h"

#include "model/find_rows.h"
#include "pages/row_fields.h"

#include <algorithm>

namespace {

// The line that was found last, in a text that has not been scrolled since: nothing in it is
// selected that would tell.
struct FoundLine {
    HWND hWnd = nullptr;
    int nTop = 0;
    int nLine = -1;
};
FoundLine s_foundLine;

int LineOfRow(const QVTextWnd& text, int nRow) {
    QVTEXTLINE row{-1, 0};
    text.GetDisplayLine(nRow, row);
    return row.nLine;
}

// The first row of a line.
int RowOfLine(const QVTextWnd& text, int nLine) {
    int nFirst = 0;
    int nEnd = text.NumDisplayLines();
    while (nFirst < nEnd) {
        const int nMiddle = nFirst + (nEnd - nFirst) / 2;
        if (LineOfRow(text, nMiddle) < nLine) {
            nFirst = nMiddle + 1;
        } else {
            nEnd = nMiddle;
        }
    }
    return nFirst;
}

}  // namespace

bool RowHas(const QVStyleTable& styles, const CString& strRow, const TextQuery& query) {
    const std::vector<std::string> fields = FieldsOf(styles, strRow);
    return std::any_of(fields.begin(), fields.end(),
                       [&](const std::string& str) { return query.IsIn(str.c_str()); });
}

FindResult FindInList(QVListCtrlEx& list, const TextQuery& query, bool bDown) {
    const FoundRow found =
        FindRow(list.GetItemCount(), list.GetNextItem(-1, LVNI_FOCUSED), bDown, [&](int nItem) {
            for (int nCol = 0; nCol < list.NumColumns(); ++nCol) {
                const CString strCell = list.GetItemText(nItem, nCol);
                if (query.IsIn(list.ParseStyleText(strCell))) {
                    return true;
                }
            }
            return false;
        });
    if (found.nRow >= 0) {
        constexpr UINT kFront = LVIS_SELECTED | LVIS_FOCUSED;
        list.SetItemState(-1, 0, LVIS_SELECTED);
        list.SetItemState(found.nRow, kFront, kFront);
        list.EnsureVisible(found.nRow, FALSE);
    }
    return {found.nRow >= 0, found.bWrapped, "the list"};
}

FindResult FindInBox(QVBitmapListBox& box, const TextQuery& query, bool bDown) {
    const int nStart = box.GetSelCount() > 0 ? box.GetCaretIndex() : -1;
    const FoundRow found = FindRow(box.GetCount(), nStart, bDown, [&](int nRow) {
        CString strRow;
        return box.GetItemString(nRow, strRow) && RowHas(box, strRow, query);
    });
    if (found.nRow >= 0) {
        box.SetSel(-1, FALSE);
        box.SetSel(found.nRow);
        box.SetCaretIndex(found.nRow, FALSE);
        box.GetParent()->SendMessage(
            WM_COMMAND, MAKEWPARAM(static_cast<UINT>(box.GetDlgCtrlID()), LBN_SELCHANGE),
            reinterpret_cast<LPARAM>(box.m_hWnd));
    }
    return {found.nRow >= 0, found.bWrapped, "the list"};
}

FindResult FindInGrid(QVGridCtrl& grid, const TextQuery& query, bool bDown) {
    const auto cellHas = [&](int nRow, int nCol) {
        CString strCell;
        return grid.GetCellText(nRow, nCol, strCell) && query.IsIn(strCell);
    };
    const FoundRow found = FindRow(grid.NumRows(), grid.CurrentRow(), bDown, [&](int nRow) {
        for (int nCol = 0; nCol < grid.NumColumns(); ++nCol) {
            if (cellHas(nRow, nCol)) {
                return true;
            }
        }
        return false;
    });
    if (found.nRow >= 0) {
        // Beside a name that cannot be gone to stands what can.
        int nGo = -1;
        for (int nCol = 0; nCol < grid.NumColumns(); ++nCol) {
            const bool bEnabled =
                grid.GetColType(nCol) != gctStatic && grid.IsCellEnabled(found.nRow, nCol);
            if (bEnabled && (nGo == -1 || cellHas(found.nRow, nCol))) {
                nGo = nCol;
            }
        }
        if (nGo != -1) {
            grid.GotoCell(found.nRow, nGo, FALSE);
        }
        grid.EnsureRowVisible(found.nRow);
    }
    return {found.nRow >= 0, found.bWrapped, "the grid"};
}

FindResult FindInText(QVTextWnd& text, const TextQuery& query, bool bDown) {
    const bool bOn = s_foundLine.hWnd == text.m_hWnd && s_foundLine.nTop == text.VScrollPos();
    const int nTopLine = LineOfRow(text, text.VScrollPos());
    const int nStart = bOn            ? s_foundLine.nLine
                       : bDown        ? nTopLine - 1
                       : nTopLine > 0 ? nTopLine
                                      : -1;
    const FoundRow found = FindRow(text.NumLines(), nStart, bDown, [&](int nLine) {
        const char* pszLine = text.GetLineText(nLine);
        return pszLine != nullptr && query.IsIn(pszLine);
    });
    if (found.nRow >= 0) {
        constexpr int kRowsAbove = 3;
        text.ScrollTo(RowOfLine(text, found.nRow), kRowsAbove);
        s_foundLine = {text.m_hWnd, text.VScrollPos(), found.nRow};
    }
    return {found.nRow >= 0, found.bWrapped, "the text"};
}

FindResult FindInControl(CWnd& control, const TextQuery& query, bool bDown) {
    if (auto* pList = dynamic_cast<QVListCtrlEx*>(&control)) {
        return FindInList(*pList, query, bDown);
    }
    if (auto* pBox = dynamic_cast<QVBitmapListBox*>(&control)) {
        return FindInBox(*pBox, query, bDown);
    }
    if (auto* pGrid = dynamic_cast<QVGridCtrl*>(&control)) {
        return FindInGrid(*pGrid, query, bDown);
    }
    auto* pText = dynamic_cast<QVTextWnd*>(&control);
    return pText != nullptr ? FindInText(*pText, query, bDown) : FindResult();
}
