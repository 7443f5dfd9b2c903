#include "ocx/core/flex_grid_format.h"

#include <algorithm>

namespace qv {

namespace {

std::vector<std::u16string_view> Fields(std::u16string_view text) {
    std::vector<std::u16string_view> fields;
    for (;;) {
        const std::size_t nBar = text.find(u'|');
        fields.push_back(text.substr(0, nBar));
        if (nBar == text.npos) {
            return fields;
        }
        text.remove_prefix(nBar + 1);
    }
}

FlexGridTitles::Column ColumnOf(std::u16string_view field) {
    const short nAlignment = field.starts_with(u'<')   ? fgaLeftCenter
                             : field.starts_with(u'^') ? fgaCenter
                             : field.starts_with(u'>') ? fgaRightCenter
                                                       : fgaUnset;
    return {field.substr(nAlignment == fgaUnset ? 0 : 1), nAlignment};
}

}  // namespace

FlexGridTitles ParseFormatString(std::u16string_view format) {
    FlexGridTitles titles;
    const std::size_t nSemicolon = format.find(u';');
    if (const auto columns = format.substr(0, nSemicolon); !columns.empty()) {
        for (const std::u16string_view field : Fields(columns)) {
            titles.columns.push_back(ColumnOf(field));
        }
    }
    if (nSemicolon != format.npos) {
        titles.rows = Fields(format.substr(nSemicolon + 1));
    }
    return titles;
}

FlexGridError ApplyTitles(FlexGridModel& model, const FlexGridTitles& titles,
                          const std::function<int(std::u16string_view)>& width) {
    const int nOldCols = model.Cols();
    const int nCols = std::max(nOldCols, static_cast<int>(titles.columns.size()));
    const int nRows = std::max(model.Rows(), static_cast<int>(titles.rows.size()));
    if (const FlexGridError error = model.SetCols(nCols); error != FlexGridError::None) {
        return error;
    }
    if (const FlexGridError error = model.SetRows(nRows); error != FlexGridError::None) {
        model.SetCols(nOldCols);
        return error;
    }
    int nWidest = 0;
    for (int nCol = 0; nCol < static_cast<int>(titles.columns.size()); ++nCol) {
        const auto& column = titles.columns[static_cast<std::size_t>(nCol)];
        model.SetText(0, nCol, column.text);
        if (column.nAlignment != fgaUnset) {
            model.ColAxis().SetAlignment(nCol, column.nAlignment);
        }
        if (!column.text.empty()) {
            const int nWidth = width(column.text);
            model.ColAxis().SetSize(nCol, nWidth);
            nWidest = nCol == 0 ? nWidth : nWidest;
        }
    }
    for (int nRow = 0; nRow < static_cast<int>(titles.rows.size()); ++nRow) {
        const std::u16string_view title = titles.rows[static_cast<std::size_t>(nRow)];
        if (!title.empty()) {
            model.SetText(nRow, 0, title);
            nWidest = std::max(nWidest, width(title));
        }
    }
    if (nWidest > 0 && model.Cols() > 0) {
        model.ColAxis().SetSize(0, nWidest);
    }
    return FlexGridError::None;
}

}  // namespace qv
