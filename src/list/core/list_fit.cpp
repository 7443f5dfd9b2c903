#include "list/core/list_fit.h"

#include "frame/core/styled_text.h"

#include <algorithm>

namespace qv {

int FitToFields(FittedColumns& columns, std::string_view row) {
    int nCol = 0;
    bool bThere = true;
    std::string_view field;
    for (int nPos = 0; bThere && NextField(row, nPos, field); ++nCol) {
        bThere = columns.SetWidth(nCol, columns.TextWidth(field) + kColumnMargin);
    }
    return nCol;
}

void FitToSample(FittedColumns& columns, std::string_view row, int nReserved) {
    int nFillCol = -1;
    int nCol = 0;
    std::string_view field;
    for (int nPos = 0; NextField(row, nPos, field); ++nCol) {
        if (TakeFillMark(field)) {
            nFillCol = nCol;
        }
        const int nWidth = columns.TextWidth(field) + kColumnMargin;
        if (!columns.SetWidth(nCol, std::max(nWidth, columns.Width(nCol)))) {
            return;
        }
    }
    FillRest(columns, nFillCol, nReserved);
}

void FillRest(FittedColumns& columns, int nFillCol, int nReserved) {
    const int nRest = columns.ClientWidth() - nReserved - columns.DataWidth();
    if (nFillCol != -1 && nRest > 0) {
        columns.SetWidth(nFillCol, columns.Width(nFillCol) + nRest);
    }
}

bool TakeFillMark(std::string_view& field) {
    const bool bFill = field.ends_with('*');
    field.remove_suffix(bFill ? 1 : 0);
    return bFill;
}

}  // namespace qv
