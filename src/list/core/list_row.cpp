#include "list/core/list_row.h"

#include <algorithm>

namespace qv {

namespace {

constexpr COLORREF kNoBackground = 0xFFFFFFFF;
constexpr int kImageLeft = 1;
constexpr int kImageTop = 2;
constexpr int kImageCellGap = 2;  // an image's cell is this much wider than the image

}  // namespace

COLORREF StyleBackground(const StyleTable& styles, int nStyle, COLORREF crDefault) {
    if (styles.Count() == 0) {
        return crDefault;
    }
    return styles[nStyle >= 0 && nStyle < styles.Count() ? nStyle : 0].crBk;
}

CellText ReadCell(const StyleTable& styles, std::string_view text, int nColStyle,
                  COLORREF crDefault) {
    CellText cell;
    int nStyle = 0;
    cell.text = styles.ParseField(text, nStyle);
    if (nStyle < 0 || styles.Count() == 0) {
        return cell;
    }
    cell.crText = styles[nStyle].crText;
    if (nStyle != 0) {
        const COLORREF crBk = styles[nStyle].crBk;
        cell.crBk = crBk != kNoBackground ? crBk : StyleBackground(styles, nColStyle, crDefault);
    }
    return cell;
}

Rect RowLayout::TextCells(int nHeight) const {
    return {bImageFirstCol ? nFirstColWidth : nImageWidth, 0, nDataWidth, nHeight};
}

Rect RowLayout::Blank(int nHeight) const {
    return {nDataWidth, 0, std::max(nDataWidth, nClientWidth), nHeight};
}

Rect RowLayout::Focus(int nHeight) const {
    const int nImage = nImageWidth > 0 ? nImageWidth + kImageCellGap : 0;
    return {bImageFirstCol ? nFirstColWidth : nImage, 0, nDataWidth, nHeight};
}

Rect RowLayout::ImageCell(const Rect& rcRow) const {
    const int nWidth = bImageFirstCol ? nFirstColWidth : nImageWidth + kImageCellGap;
    return {rcRow.left, rcRow.top, rcRow.left + nWidth, rcRow.bottom};
}

Point RowLayout::ImagePosition(const Rect& rcRow) const {
    const Rect rcCell = ImageCell(rcRow);
    return {
        bImageFirstCol ? (rcCell.left + rcCell.right - nImageWidth) / 2 : rcRow.left + kImageLeft,
        bImageCenterVert ? rcRow.top + (rcRow.bottom - nImageHeight - rcRow.top) / 2
                         : rcRow.top + kImageTop};
}

}  // namespace qv
