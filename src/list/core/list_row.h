// A list's row: its cells, and where its parts are drawn.
//
// A row is composed in a bitmap of its own, so rectangles are in pixels from the row's top left.

#pragma once

#include "base/geometry.h"
#include "frame/core/styled_text.h"

#include <optional>
#include <string>
#include <string_view>

namespace qv {

// The look of a row by its selection.
enum class Highlight { None, Full, Faded };

// bAlways: SetAlwaysHighlightSel; bShowSel: the window style LVS_SHOWSELALWAYS.
constexpr Highlight RowHighlight(bool bSelected, bool bFocus, bool bShowSel, bool bAlways) {
    if (!bSelected || (!bFocus && !bShowSel)) {
        return Highlight::None;
    }
    return bFocus || bAlways ? Highlight::Full : Highlight::Faded;
}

// What a cell shows: its text without the style's code, and the colours that its style sets. Where
// it sets none, those of the cell before it go on.
struct CellText {
    std::string_view text;
    std::optional<COLORREF> crText;
    std::optional<COLORREF> crBk;
};

// Style 0 has no background of its own; one with a background of -1 takes that of its column's
// style.
CellText ReadCell(const StyleTable& styles, std::string_view text, int nColStyle,
                  COLORREF crDefault);

// Of a style in the table, else of the default one; crDefault where there was no memory for any.
COLORREF StyleBackground(const StyleTable& styles, int nStyle, COLORREF crDefault);

struct RowLayout {
    int nClientWidth = 0;
    int nDataWidth = 0;      // sum of the column widths
    int nFirstColWidth = 0;  // used with bImageFirstCol
    int nImageWidth = 0;     // 0: the list has no images
    int nImageHeight = 0;
    int nTextHeight = 0;
    bool bImageFirstCol = false;    // column 0 is the image's alone
    bool bImageCenterVert = false;  // else the image stands kImageTop below the row's top

    // As wide as the data, and at least as the window.
    int Width() const { return nClientWidth > nDataWidth ? nClientWidth : nDataWidth; }
    // By how much text is set in above and below in a row that is taller than it for its image.
    int TextInset() const {
        return nImageHeight > nTextHeight ? (nImageHeight - nTextHeight) / 2 : 0;
    }
    // Where the cells with text stand, the row's whole height.
    Rect TextCells(int nHeight) const;
    // From the end of the data to that of the window; empty if the data reach it.
    Rect Blank(int nHeight) const;
    // Around the data, without the image.
    Rect Focus(int nHeight) const;
    Rect ImageCell(const Rect& rcRow) const;
    Point ImagePosition(const Rect& rcRow) const;
};

}  // namespace qv
