#include "tree/core/tree_columns.h"

#include <algorithm>

namespace qv {

int ColumnsExtent(std::string_view text, const TabStops& tabs, bool bIndentTabs,
                  const StyleTable& styles, TextMeasure& measure) {
    if (tabs.Count() == 0) {
        return measure.Extent(text).cx;
    }
    size_t nTab = text.find(kFieldSeparator);
    if (nTab == std::string_view::npos) {
        return bIndentTabs ? measure.Extent(text).cx : tabs.Value(0);
    }
    // The last field that has a column decides.
    const int nLastColumn = tabs.Count() - 1;
    int nColumn = -1;
    while (nTab != std::string_view::npos && nColumn < nLastColumn) {
        text.remove_prefix(nTab + 1);
        ++nColumn;
        nTab = text.find(kFieldSeparator);
    }
    if (text.empty()) {
        return tabs.Value(nColumn);
    }
    int nStyle;
    const int nField = measure.Extent(styles.ParseField(text.substr(0, nTab), nStyle)).cx;
    const unsigned nFormat = tabs.Format(nColumn);
    if (nColumn == nLastColumn || nFormat == DT_LEFT) {
        return tabs.Value(nColumn) + nField;
    }
    if (nFormat == DT_CENTER && bIndentTabs) {
        // The stop's own position is not part of it; row widths of centred fields rely on that.
        return (tabs.Value(nColumn + 1) - tabs.Value(nColumn)) / 2 + nField / 2;
    }
    return tabs.Value(nColumn + 1);
}

FieldReader::FieldReader(std::string_view text, const Rect& rect, const TabStops& tabs,
                         bool bIndentTabs, const StyleTable& styles)
    : m_text(text), m_rect(rect), m_tabs(tabs), m_bIndentTabs(bIndentTabs), m_styles(styles) {}

bool FieldReader::Next(Field& field) {
    const bool bFirst = m_nColumn == -1;
    if (!bFirst && (m_nColumn >= m_tabs.Count() || m_nPos >= m_text.size())) {
        return false;
    }
    field.rect = m_rect;
    if (!bFirst) {
        field.rect.left = (m_bIndentTabs ? m_rect.left : 0) + m_tabs.Value(m_nColumn);
    }
    if (m_nColumn != m_tabs.Count() - 1) {
        const int nNext = m_tabs.Value(m_nColumn + 1);
        field.rect.right =
            (m_bIndentTabs ? field.rect.left + nNext - m_tabs.Value(m_nColumn) : nNext) -
            kColumnGap;
    }
    const size_t nTab = std::min(m_text.find(kFieldSeparator, m_nPos), m_text.size());
    const std::string_view raw = m_text.substr(m_nPos, nTab - m_nPos);
    field.text = m_styles.ParseField(raw, field.nStyle);
    field.nFormat = m_tabs.Format(m_nColumn);
    m_nPos = nTab + 1;
    ++m_nColumn;
    return true;
}

}  // namespace qv
