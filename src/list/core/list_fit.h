// How wide the columns of a list become: for a sample row, for a row of headings, for the widest
// row of a single column, and one of them for what is left of the window.
//
// Widths are in pixels; on paper in units of the device context that texts are measured on.

#pragma once

#include <string_view>

namespace qv {

inline constexpr int kNewColumnWidth = 60;
inline constexpr int kColumnMargin = 12;  // a column is its text and this much

// The columns that are fitted: those on screen, or a table of widths on paper.
class FittedColumns {
public:
    virtual ~FittedColumns() = default;

    virtual int TextWidth(std::string_view text) = 0;
    virtual int Width(int nCol) = 0;
    // False if the list is gone: who is told of the new width may take it away.
    virtual bool SetWidth(int nCol, int nWidth) = 0;
    // The sum of all widths.
    virtual int DataWidth() = 0;
    // Of the window, which may get a scroll bar while its columns grow.
    virtual int ClientWidth() = 0;
};

// Sets each column to its field of the row, a style code measured as it stands. Gives the number of
// fields.
int FitToFields(FittedColumns& columns, std::string_view row);

// Widens columns to the fields of a sample row. The last field that ends in '*', which is no text,
// marks the column that fills the window but for nReserved.
void FitToSample(FittedColumns& columns, std::string_view row, int nReserved);

// Widens a column to what the window has left behind all of them, nReserved apart; -1 is no column.
void FillRest(FittedColumns& columns, int nFillCol, int nReserved);

// Takes the '*' off a field of a sample row. True if there was one.
bool TakeFillMark(std::string_view& field);

// --- The single column

// What a row wants when the column is fitted. A row that was just inserted asks for its bare text:
// the next fit widens the column by the margin.
constexpr int SingleRowWidth(int nImageWidth, int nTextWidth) {
    return nImageWidth + nTextWidth + kColumnMargin;
}
constexpr int InsertedRowWidth(int nImageWidth, int nTextWidth) {
    return nImageWidth + nTextWidth;
}
// As wide as the widest row and at least as the window.
constexpr int SingleColumnWidth(int nClientWidth, int nWidestRow) {
    return nClientWidth > nWidestRow ? nClientWidth : nWidestRow;
}

}  // namespace qv
