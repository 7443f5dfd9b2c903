#include "ocx/core/flex_grid_model.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace qv {

namespace {

// The field in front of the next separator; takes both off.
std::u16string_view TakeField(std::u16string_view& text, char16_t separator) {
    const std::size_t nEnd = std::min(text.find(separator), text.size());
    const std::u16string_view field = text.substr(0, nEnd);
    text.remove_prefix(std::min(nEnd + 1, text.size()));
    return field;
}

std::u16string_view WithoutSpaces(std::u16string_view text) {
    const std::size_t nStart = text.find_first_not_of(u' ');
    return nStart == text.npos ? std::u16string_view()
                               : text.substr(nStart, text.find_last_not_of(u' ') - nStart + 1);
}

// How many characters of the text, which has no spaces at its ends, are a number.
std::size_t Number(std::u16string_view text, double& value) {
    std::array<char, 64> chars{};
    const std::size_t nSign = !text.empty() && text[0] == u'+' ? 1 : 0;
    std::size_t n = 0;
    for (; n < chars.size() && nSign + n < text.size() && text[nSign + n] < 128; ++n) {
        chars[n] = static_cast<char>(text[nSign + n]);
    }
    const std::size_t nDigit = n > 0 && nSign == 0 && chars[0] == '-' ? 1 : 0;
    const bool bDigit =
        nDigit < n && ((chars[nDigit] >= '0' && chars[nDigit] <= '9') || chars[nDigit] == '.');
    if (!bDigit) {
        return 0;  // names of what is no number are none
    }
    const auto result = std::from_chars(chars.data(), chars.data() + n, value);
    return result.ec == std::errc() ? nSign + static_cast<std::size_t>(result.ptr - chars.data())
                                    : 0;
}

}  // namespace

bool ParseNumber(std::u16string_view text, double& value) {
    text = WithoutSpaces(text);
    double number = 0;
    if (text.empty() || Number(text, number) != text.size()) {
        return false;
    }
    value = number;
    return true;
}

double LeadingNumber(std::u16string_view text) {
    double number = 0;
    return Number(WithoutSpaces(text), number) > 0 ? number : 0;
}

void FlexGridModel::Reset() {
    SetRows(0);
    SetCols(0);
    m_rows = FlexGridAxis(kDefaultRowHeight);
    m_cols = FlexGridAxis(kDefaultColWidth);
    m_mergeMode = fgmNever;
    SetRows(2);
    SetCols(2);
    m_nFixedRows = 1;
    m_nFixedCols = 1;
}

// --- Counts

FlexGridError FlexGridModel::SetRows(int nRows) {
    if (nRows < 0 || nRows > kMaxRows) {
        return FlexGridError::BadCount;
    }
    m_rows.Reserve(nRows);
    m_cells.ResizeRows(nRows);
    m_rows.Resize(nRows);
    m_nFixedRows = std::min(m_nFixedRows, nRows);
    m_equalRows.clear();
    return FlexGridError::None;
}

FlexGridError FlexGridModel::SetCols(int nCols) {
    if (nCols < 0 || nCols > kMaxCols) {
        return FlexGridError::BadCount;
    }
    if (nCols < Cols()) {
        m_cells.DropColumnsFrom(nCols);
    }
    m_cols.Resize(nCols);
    m_nFixedCols = std::min(m_nFixedCols, nCols);
    m_equalRows.clear();
    return FlexGridError::None;
}

FlexGridError FlexGridModel::SetFixedRows(int nRows) {
    if (nRows < 0 || (nRows > 0 && nRows >= Rows())) {
        return FlexGridError::BadFixed;
    }
    m_nFixedRows = nRows;
    m_equalRows.clear();
    return FlexGridError::None;
}

FlexGridError FlexGridModel::SetFixedCols(int nCols) {
    if (nCols < 0 || (nCols > 0 && nCols >= Cols())) {
        return FlexGridError::BadFixed;
    }
    m_nFixedCols = nCols;
    return FlexGridError::None;
}

// --- Cells

FlexGridError FlexGridModel::SetText(int nRow, int nCol, std::u16string_view text) {
    if (!HasCell(nRow, nCol)) {
        return m_rows.Has(nRow) ? FlexGridError::BadColumn : FlexGridError::BadRow;
    }
    m_cells.SetText(nRow, nCol, text);
    m_equalRows.clear();
    return FlexGridError::None;
}

short FlexGridModel::AlignmentOf(int nRow, int nCol) const {
    if (!HasCell(nRow, nCol)) {
        return fgaLeftCenter;
    }
    const FlexGridLine& column = m_cols.Line(nCol);
    short nAlignment = m_cells.Format(nRow, nCol).nAlignment;
    if (nAlignment == fgaUnset && IsFixed(nRow, nCol)) {
        nAlignment = column.nFixedAlignment;
    }
    if (nAlignment == fgaUnset) {
        nAlignment = column.nAlignment;
    }
    if (nAlignment >= fgaLeftTop && nAlignment <= fgaRightBottom) {
        return nAlignment;
    }
    double value = 0;
    return ParseNumber(m_cells.Text(nRow, nCol), value) ? fgaRightCenter : fgaLeftCenter;
}

// --- Rows and columns as a whole

FlexGridError FlexGridModel::AddItem(std::u16string_view item, int nRow) {
    if (nRow < 0 || nRow > Rows()) {
        return FlexGridError::BadRow;
    }
    if (Rows() == kMaxRows) {
        return FlexGridError::BadCount;
    }
    m_rows.Reserve(Rows() + 1);
    m_cells.InsertRow(nRow);
    try {
        for (int nCol = 0; nCol < Cols() && !item.empty(); ++nCol) {
            m_cells.SetText(nRow, nCol, TakeField(item, u'\t'));
        }
    } catch (...) {
        m_cells.RemoveRow(nRow);
        throw;
    }
    m_rows.Insert(nRow);
    m_equalRows.clear();
    return FlexGridError::None;
}

FlexGridError FlexGridModel::RemoveItem(int nRow) {
    if (!m_rows.Has(nRow)) {
        return FlexGridError::BadRow;
    }
    if (nRow < m_nFixedRows) {
        return FlexGridError::BadFixed;
    }
    if (Rows() - m_nFixedRows == 1) {
        return FlexGridError::LastRow;
    }
    m_cells.RemoveRow(nRow);
    m_rows.Remove(nRow);
    m_equalRows.clear();
    return FlexGridError::None;
}

FlexGridError FlexGridModel::MoveRow(int nFrom, int nTo) {
    if (!m_rows.Has(nFrom) || !m_rows.Has(nTo)) {
        return FlexGridError::BadRow;
    }
    m_cells.MoveRow(nFrom, nTo);
    m_rows.Move(nFrom, nTo);
    m_equalRows.clear();
    return FlexGridError::None;
}

FlexGridError FlexGridModel::MoveCol(int nFrom, int nTo) {
    if (!m_cols.Has(nFrom) || !m_cols.Has(nTo)) {
        return FlexGridError::BadColumn;
    }
    m_cells.MoveColumn(nFrom, nTo);
    m_cols.Move(nFrom, nTo);
    m_equalRows.clear();
    return FlexGridError::None;
}

void FlexGridModel::ReorderRows(int nFirst, const std::vector<int>& order) {
    std::vector<int> back(order.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        back[static_cast<std::size_t>(order[i] - nFirst)] = nFirst + static_cast<int>(i);
    }
    m_cells.ReorderRows(nFirst, order);
    try {
        m_rows.Reorder(nFirst, order);
    } catch (...) {
        m_cells.ReorderRows(nFirst, back);
        throw;
    }
    m_equalRows.clear();
}

void FlexGridModel::Clear() {
    m_cells.Clear();
    m_equalRows.clear();
}

std::u16string FlexGridModel::Clip(const FlexGridRange& range) const {
    std::u16string strClip;
    for (int nRow = range.nTop; nRow <= range.nBottom; ++nRow) {
        for (int nCol = range.nLeft; nCol <= range.nRight; ++nCol) {
            if (nCol > range.nLeft) {
                strClip += u'\t';
            }
            strClip += Text(nRow, nCol);
        }
        if (nRow < range.nBottom) {
            strClip += u'\r';
        }
    }
    return strClip;
}

void FlexGridModel::SetClip(const FlexGridRange& range, std::u16string_view text) {
    for (int nRow = range.nTop; nRow <= range.nBottom && !text.empty(); ++nRow) {
        std::u16string_view row = TakeField(text, u'\r');
        if (!text.empty() && text.front() == u'\n') {
            text.remove_prefix(1);  // lines as the clipboard has them
        }
        bool bMore = true;
        for (int nCol = range.nLeft; nCol <= range.nRight && bMore; ++nCol) {
            bMore = row.find(u'\t') != row.npos;
            SetText(nRow, nCol, TakeField(row, u'\t'));
        }
    }
}

// --- Merging

FlexGridError FlexGridModel::SetMergeMode(int nMode) {
    if (nMode < fgmNever || nMode > fgmRestrictBoth) {
        return FlexGridError::BadValue;
    }
    m_mergeMode = static_cast<FlexGridMergeMode>(nMode);
    return FlexGridError::None;
}

// Empty cells stand alone.
bool FlexGridModel::SameText(int nRow1, int nCol1, int nRow2, int nCol2) const {
    const char16_t* psz1 = m_cells.Text(nRow1, nCol1);
    const char16_t* psz2 = m_cells.Text(nRow2, nCol2);
    return *psz1 != 0 && std::u16string_view(psz1) == psz2;
}

bool FlexGridModel::RowsEqualFromTop(int nRow, int nCol) const {
    const bool bFixed = nRow < m_nFixedRows;
    for (const EqualRows& known : m_equalRows) {
        if (known.nCol == nCol && known.bFixed == bFixed) {
            return nRow < known.nEnd;
        }
    }
    const int nLimit = bFixed ? m_nFixedRows : Rows();
    int nEnd = bFixed ? 0 : m_nFixedRows;
    while (nEnd < nLimit && SameText(nEnd, nCol, nEnd, nCol + 1)) {
        ++nEnd;
    }
    constexpr std::size_t kMostKept = 256;  // more than a window shows
    if (m_equalRows.size() >= kMostKept) {
        m_equalRows.clear();
    }
    m_equalRows.push_back({nCol, bFixed, nEnd});
    return nRow < nEnd;
}

bool FlexGridModel::ColsEqualFromLeft(int nRow, int nCol) const {
    for (int n = nCol < m_nFixedCols ? 0 : m_nFixedCols; n <= nCol; ++n) {
        if (!SameText(nRow, n, nRow + 1, n)) {
            return false;
        }
    }
    return true;
}

bool FlexGridModel::JoinsRight(int nRow, int nCol) const {
    return m_rows.Line(nRow).bMerge && nCol + 1 != m_nFixedCols &&
           SameText(nRow, nCol, nRow, nCol + 1) &&
           ((m_mergeMode != fgmRestrictRows && m_mergeMode != fgmRestrictBoth) ||
            RowsEqualFromTop(nRow, nCol));
}

bool FlexGridModel::JoinsBelow(int nRow, int nCol) const {
    return m_cols.Line(nCol).bMerge && nRow + 1 != m_nFixedRows &&
           SameText(nRow, nCol, nRow + 1, nCol) &&
           ((m_mergeMode != fgmRestrictColumns && m_mergeMode != fgmRestrictBoth) ||
            ColsEqualFromLeft(nRow, nCol));
}

FlexGridRange FlexGridModel::RowRun(int nRow, int nCol, const FlexGridRange& window) const {
    FlexGridRange run{nRow, nCol, nRow, nCol};
    while (run.nLeft > window.nLeft && JoinsRight(nRow, run.nLeft - 1)) {
        --run.nLeft;
    }
    while (run.nRight < window.nRight && JoinsRight(nRow, run.nRight)) {
        ++run.nRight;
    }
    return run;
}

// Whether the columns that stand together in nRow do so in the row above or below as well, and with
// those of nRow.
bool FlexGridModel::RunJoins(const FlexGridRange& run, int nRow, int nOther,
                             const FlexGridRange& window) const {
    for (int nCol = run.nLeft; nCol <= run.nRight; ++nCol) {
        if (!JoinsBelow(std::min(nRow, nOther), nCol)) {
            return false;
        }
    }
    const FlexGridRange other = RowRun(nOther, run.nLeft, window);
    return other.nLeft == run.nLeft && other.nRight == run.nRight;
}

FlexGridRange FlexGridModel::Merged(int nRow, int nCol, const FlexGridRange& window) const {
    if (m_mergeMode == fgmNever || !HasCell(nRow, nCol)) {
        return {nRow, nCol, nRow, nCol};
    }
    FlexGridRange range = RowRun(nRow, nCol, window);
    if (!m_cols.Line(nCol).bMerge) {
        return range;
    }
    const FlexGridRange run = range;
    while (range.nTop > window.nTop && RunJoins(run, range.nTop, range.nTop - 1, window)) {
        --range.nTop;
    }
    while (range.nBottom < window.nBottom &&
           RunJoins(run, range.nBottom, range.nBottom + 1, window)) {
        ++range.nBottom;
    }
    return range;
}

bool FlexGridModel::CheckInvariants() const {
    const auto fixedFits = [](int nFixed, int nCount) { return nFixed >= 0 && nFixed <= nCount; };
    return m_cells.Rows() == Rows() && fixedFits(m_nFixedRows, Rows()) &&
           fixedFits(m_nFixedCols, Cols()) && m_cells.CheckInvariants() &&
           m_rows.CheckInvariants() && m_cols.CheckInvariants();
}

}  // namespace qv
