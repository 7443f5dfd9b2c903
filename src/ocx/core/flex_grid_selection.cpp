#include "ocx/core/flex_grid_selection.h"

#include "base/platform_names.h"

namespace qv {

namespace {

int Free(const FlexGridAxis& axis, int nFixed, int n) {
    return std::max(std::min(n, axis.Count() - 1), nFixed);
}

// The next line that shows; n itself at the end.
int Next(const FlexGridSpan& span, int n) {
    const int nNext = span.axis.ShownFrom(std::max(n + 1, span.nFixed));
    return nNext < span.axis.Count() ? nNext : n;
}

int Previous(const FlexGridSpan& span, int n) {
    const int nPrevious = span.axis.ShownUpTo(n - 1);
    return nPrevious >= span.nFixed ? nPrevious : std::max(n, span.nFixed);
}

int First(const FlexGridSpan& span, int n) {
    const int nFirst = span.axis.ShownFrom(span.nFixed);
    return nFirst < span.axis.Count() ? nFirst : n;
}

int Last(const FlexGridSpan& span, int n) {
    const int nLast = span.axis.LastShown();
    return nLast >= span.nFixed ? nLast : n;
}

}  // namespace

// Whole rows or columns where the mode selects those.
FlexGridSelection FlexGridSelector::Spread(int nRow, int nCol, int nRowSel, int nColSel) const {
    if (mode == fgsByRow) {
        nCol = model.FixedCols();
        nColSel = model.Cols() - 1;
    } else if (mode == fgsByColumn) {
        nRow = model.FixedRows();
        nRowSel = model.Rows() - 1;
    }
    return {nRow, nCol, nRowSel, nColSel};
}

std::optional<FlexGridSelection> FlexGridSelector::AfterKey(const FlexGridSelection& current,
                                                            FlexGridKey key,
                                                            const FlexGridView& view) const {
    if (!HasFreeCells()) {
        return std::nullopt;
    }
    const FlexGridSpan rows = view.RowSpan();
    const FlexGridSpan cols = view.ColSpan();
    int nRow = key.bShift ? current.nRowSel : current.nRow;
    int nCol = key.bShift ? current.nColSel : current.nCol;
    switch (key.nKey) {
        case VK_UP:
            nRow = key.bControl ? First(rows, nRow) : Previous(rows, nRow);
            break;
        case VK_DOWN:
            nRow = key.bControl ? Last(rows, nRow) : Next(rows, nRow);
            break;
        case VK_LEFT:
            nCol = key.bControl ? First(cols, nCol) : Previous(cols, nCol);
            break;
        case VK_RIGHT:
            nCol = key.bControl ? Last(cols, nCol) : Next(cols, nCol);
            break;
        case VK_PRIOR:
            nRow = rows.PageUp(std::max(nRow, rows.nFixed));
            break;
        case VK_NEXT:
            nRow = rows.PageDown(std::max(nRow, rows.nFixed));
            break;
        case VK_HOME:
            nRow = key.bControl ? First(rows, nRow) : nRow;
            nCol = First(cols, nCol);
            break;
        case VK_END:
            nRow = key.bControl ? Last(rows, nRow) : nRow;
            nCol = Last(cols, nCol);
            break;
        default:
            return std::nullopt;
    }
    return key.bShift ? Spread(current.nRow, current.nCol, nRow, nCol)
                      : Spread(nRow, nCol, nRow, nCol);
}

std::optional<FlexGridSelection> FlexGridSelector::AfterPress(const FlexGridSelection& current,
                                                              int nRow, int nCol, bool bShift,
                                                              FlexGridDrag& drag) const {
    const bool bFixedRow = nRow < model.FixedRows();
    const bool bFixedCol = nCol < model.FixedCols();
    drag = FlexGridDrag::None;
    if (!HasFreeCells() || nRow < 0 || nCol < 0) {
        return std::nullopt;
    }
    if (!bFixedRow && !bFixedCol) {
        drag = FlexGridDrag::Cells;
        return bShift ? Dragged(current, nRow, nCol, drag) : Spread(nRow, nCol, nRow, nCol);
    }
    if (!bBigSelection) {
        return std::nullopt;
    }
    const FlexGridSelection all{model.FixedRows(), model.FixedCols(), model.Rows() - 1,
                                model.Cols() - 1};
    if (bFixedRow && bFixedCol) {
        return all;
    }
    drag = bFixedRow ? FlexGridDrag::Columns : FlexGridDrag::Rows;
    if (bShift) {
        return Dragged(current, nRow, nCol, drag);
    }
    return bFixedRow ? FlexGridSelection{all.nRow, nCol, all.nRowSel, nCol}
                     : FlexGridSelection{nRow, all.nCol, nRow, all.nColSel};
}

FlexGridSelection FlexGridSelector::Dragged(const FlexGridSelection& current, int nRow, int nCol,
                                            FlexGridDrag drag) const {
    nRow = Free(model.RowAxis(), model.FixedRows(), nRow);
    nCol = Free(model.ColAxis(), model.FixedCols(), nCol);
    switch (drag) {
        case FlexGridDrag::Cells:
            return Spread(current.nRow, current.nCol, nRow, nCol);
        case FlexGridDrag::Rows:
            return {current.nRow, model.FixedCols(), nRow, model.Cols() - 1};
        case FlexGridDrag::Columns:
            return {model.FixedRows(), current.nCol, model.Rows() - 1, nCol};
        default:
            return current;
    }
}

FlexGridSelection FlexGridSelector::Fitted(FlexGridSelection selection) const {
    const auto fit = [](int& n, int nCount) { n = std::max(std::min(n, nCount - 1), 0); };
    fit(selection.nRow, model.Rows());
    fit(selection.nRowSel, model.Rows());
    fit(selection.nCol, model.Cols());
    fit(selection.nColSel, model.Cols());
    return selection;
}

}  // namespace qv
