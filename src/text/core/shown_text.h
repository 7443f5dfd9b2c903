// The lines and rows of a text window as selecting sees them. For the length of a deed: it refers
// to all that it is made with.

#pragma once

#include "text/core/text_selection.h"
#include "text/core/text_view.h"

namespace qv {

class ShownText : public SelectableText {
public:
    // nWidth: that of a paint, which rows are cut at. nTabStop: pixels from one stop to the next.
    ShownText(const TextViewState& state, TextView& view, const TextLines& lines,
              const StyleTable& styles, TextMeasure& measure, int nWidth, int nTabStop)
        : m_state(state),
          m_view(view),
          m_lines(lines),
          m_styles(styles),
          m_measure(measure),
          m_nWidth(nWidth),
          m_nTabStop(nTabStop > 0 ? nTabStop : 1) {}

    int Lines() const override { return m_lines.Count(); }
    std::string_view Text(int nLine) const override;
    std::size_t CharBytes(std::string_view text) const override;
    int Rows() const override;
    int LineOfRow(int nRow) const override;
    ShownPiece Piece(int nRow) override;
    void Widths(std::string_view piece, std::vector<int>& widths) override;

private:
    bool Wraps() const { return m_state.m_bUseProportionalFont != 0; }

    const TextViewState& m_state;
    TextView& m_view;
    const TextLines& m_lines;
    const StyleTable& m_styles;
    TextMeasure& m_measure;
    int m_nWidth;
    int m_nTabStop;
    int m_nCut = -1;  // the line that the view has cut
};

}  // namespace qv
