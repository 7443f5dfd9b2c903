#include "text/core/shown_text.h"

#include <algorithm>

namespace qv {

std::string_view ShownText::Text(int nLine) const {
    return LineText(m_styles, m_lines.Line(nLine));
}

std::size_t ShownText::CharBytes(std::string_view text) const {
    return std::max<std::size_t>(m_measure.CharBytes(text), 1);
}

// Rows are those of the last layout: of lines that are gone there may still be some at the end.
int ShownText::Rows() const {
    int nRows = Wraps() ? m_view.Rows().Count() : m_lines.Count();
    if (nRows == 0 || LineOfRow(nRows - 1) < m_lines.Count()) {
        return nRows;
    }
    int nFirst = 0;
    while (nFirst < nRows) {
        const int nMiddle = nFirst + (nRows - nFirst) / 2;
        LineOfRow(nMiddle) < m_lines.Count() ? nFirst = nMiddle + 1 : nRows = nMiddle;
    }
    return nRows;
}

int ShownText::LineOfRow(int nRow) const {
    return Wraps() ? m_view.Rows()[nRow].nLine : nRow;
}

ShownPiece ShownText::Piece(int nRow) {
    const int nLine = LineOfRow(nRow);
    const int nLength = static_cast<int>(Text(nLine).size());
    if (!Wraps()) {
        return {nLine, std::clamp(m_state.m_nHScrollPos, 0, nLength), nLength};
    }
    if (nLine != m_nCut) {
        m_nCut = -1;
        m_view.CutLine(nLine, m_nWidth);
        m_nCut = nLine;
    }
    const TextPiece piece = m_view.Piece(m_view.Rows()[nRow].nSubLine, nLength);
    const int nFrom = std::clamp(piece.nFrom, 0, nLength);
    return {nLine, nFrom, piece.nTo == -1 ? nLength : std::clamp(piece.nTo, nFrom, nLength)};
}

// A TAB leads to the next stop, behind where it stands.
void ShownText::Widths(std::string_view piece, std::vector<int>& widths) {
    widths.assign(piece.size(), 0);
    int x = 0;
    for (std::size_t n = 0; n < piece.size();) {
        const std::size_t nEnd = std::min(piece.find('\t', n), piece.size());
        if (nEnd > n) {
            m_measure.PrefixWidths(piece.substr(n, nEnd - n), widths.data() + n);
            for (; n < nEnd; ++n) {
                widths[n] += x;
            }
            x = widths[nEnd - 1];
        }
        if (n < piece.size()) {
            x = (x / m_nTabStop + 1) * m_nTabStop;
            widths[n++] = x;
        }
    }
}

}  // namespace qv
