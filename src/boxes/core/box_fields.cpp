#include "boxes/core/box_fields.h"

#include "frame/core/tab_stops.h"

#include <algorithm>
#include <limits>

namespace qv {

// Where a stop lies in the row, which may be scrolled far to the left.
int BoxFieldReader::Edge(int nTab) const {
    using Limits = std::numeric_limits<int>;
    const long long nEdge = static_cast<long long>(m_rect.left) + TabValue(m_tabs, nTab);
    return static_cast<int>(std::clamp<long long>(nEdge, Limits::min() / 2, Limits::max() / 2));
}

bool BoxFieldReader::Next(BoxField& field) {
    const int nLast = static_cast<int>(m_tabs.size()) - 1;
    std::string_view text;
    if (m_nTab > nLast || !NextField(m_row, m_nPos, text)) {
        return false;
    }
    field.text = m_styles.ParseField(text, field.nStyle);
    field.nFormat = m_nTab < 0 ? m_nFirstFormat : TabFormat(m_tabs, m_nTab);
    field.rect = {Edge(m_nTab) + kBoxFieldMargin, m_rect.top,
                  (m_nTab < nLast ? Edge(m_nTab + 1) : m_rect.right) - kBoxFieldMargin,
                  m_rect.bottom};
    ++m_nTab;
    return true;
}

}  // namespace qv
