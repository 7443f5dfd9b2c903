#include "text/core/display_rows.h"

#include <utility>

namespace qv {

void DisplayRows::Format(const TextLines& lines, const StyleTable& styles, int nWidth,
                         TextSplitter& splitter) {
    if (m_width == nWidth && styles.Count() == m_nStyles && lines.Generation() == m_nGeneration) {
        Append(lines, styles, splitter);
        return;
    }
    DisplayRows rows;
    rows.m_width = nWidth;
    rows.m_nStyles = styles.Count();
    rows.m_nGeneration = lines.Generation();
    rows.Append(lines, styles, splitter);
    std::swap(*this, rows);
}

void DisplayRows::Append(const TextLines& lines, const StyleTable& styles, TextSplitter& splitter) {
    // A call that ran out of memory may have left a part of its last line.
    while (!m_rows.empty() && m_rows.back().nLine == m_nLines) {
        m_rows.pop_back();
    }
    for (; m_nLines < lines.Count(); ++m_nLines) {
        splitter.Split(LineText(styles, lines.Line(m_nLines)), *m_width, m_starts);
        for (int i = 0; i < static_cast<int>(m_starts.size()); ++i) {
            m_rows.push_back({m_nLines, i});
        }
    }
}

}  // namespace qv
