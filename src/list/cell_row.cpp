#include "list/cell_row.h"

#include "frame/text_out.h"

namespace qv {

namespace {

constexpr UINT kTextFlags = DT_NOPREFIX | DT_END_ELLIPSIS;

bool Contains(const CRect& rcOuter, const CRect& rc) {
    return rc.left >= rcOuter.left && rc.top >= rcOuter.top && rc.right <= rcOuter.right &&
           rc.bottom <= rcOuter.bottom;
}

// A cell without a colour goes on in that of the cell before it, which the device context has.
void FillCell(CDC& dc, CRect rcCell, const CellRow& row, const CellText& look) {
    const COLORREF crBk = look.crBk ? *look.crBk : dc.GetBkColor();
    rcCell.InflateRect(0, row.nOutset);
    if (row.pBrush != nullptr && row.pBrush->m_hObject != nullptr && row.crBrush == crBk) {
        if (!Contains(row.rcFilled, rcCell)) {
            dc.FillRect(&rcCell, row.pBrush);
        }
    } else {
        CBrush brush(crBk);
        dc.FillRect(&rcCell, &brush);
    }
    dc.SetBkColor(crBk);
}

}  // namespace

void DrawCells(CDC& dc, const CRect& rcRow, CellRow& row) {
    CRect rcCell(rcRow);
    for (Cell cell; row.Next(cell); rcCell.left = rcCell.right) {
        rcCell.right = cell.bToEnd ? rcRow.right : rcCell.left + cell.nWidth;
        if (row.bFills) {
            FillCell(dc, rcCell, row, cell.look);
        }
        if (!row.bKeepsIn || rcCell.Width() > 2 * row.nMargin) {
            DrawCellText(dc, rcCell, cell.look, row.nMargin, cell.nAlign);
        }
    }
}

void DrawCellText(CDC& dc, CRect rcCell, const CellText& look, int nMargin, UINT nAlign) {
    rcCell.DeflateRect(nMargin, 0);
    if (look.crText) {
        dc.SetTextColor(*look.crText);
    }
    DrawTextIn(dc, look.text, rcCell, nAlign | kTextFlags);
}

}  // namespace qv
