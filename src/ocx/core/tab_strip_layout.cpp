#include "ocx/core/tab_strip_layout.h"

#include <algorithm>

namespace qv {

TabStripLayout::TabStripLayout(const TabStripMeasures& measures, std::vector<int> lengths,
                               int nActive, int nFirst)
    : m_measures(measures), m_places(lengths.size()), m_nActive(nActive), m_nFirst(nFirst) {
    if (measures.nPerRow > 0) {
        PlaceInRows(lengths);
    } else {
        PlaceInOneRow(lengths);
    }
}

int TabStripLayout::Along() const {
    const bool bLying = m_measures.side == TabSide::Top || m_measures.side == TabSide::Bottom;
    return bLying ? m_measures.client.Width() : m_measures.client.Height();
}

int TabStripLayout::Across() const {
    const bool bLying = m_measures.side == TabSide::Top || m_measures.side == TabSide::Bottom;
    return bLying ? m_measures.client.Height() : m_measures.client.Width();
}

/// What rows and inflation take of the other direction.
int TabStripLayout::Band() const {
    if (m_nRows == 0) {
        return 0;
    }
    const long long nBand =
        static_cast<long long>(m_nRows) * m_measures.nThickness + m_measures.nInflation;
    return static_cast<int>(std::clamp<long long>(nBand, 0, std::max(Across(), 0)));
}

/// What tabs may take of their side.
int TabStripLayout::Room() const {
    return std::max(Along() - 2 * m_measures.nInflation - (m_bArrows ? 2 * m_measures.nArrow : 0),
                    0);
}

void TabStripLayout::PlaceInOneRow(const std::vector<int>& lengths) {
    int nOffset = 0;
    for (size_t n = 0; n < lengths.size(); ++n) {
        if (lengths[n] < 0) {
            m_places[n] = {0, nOffset, -1};
            continue;
        }
        const int nMax = m_measures.nMaxLength;
        const int nLength = nMax > 0 ? std::min(lengths[n], nMax) : lengths[n];
        m_places[n] = {0, nOffset, nLength};
        nOffset += nLength;
        m_nRows = 1;
    }
    m_bArrows = nOffset > Room();
    // No farther than to where the last tab shows.
    int nLast = static_cast<int>(m_places.size()) - 1;
    while (nLast > 0 && m_bArrows && nOffset - m_places[nLast - 1].nOffset <= Room()) {
        --nLast;
    }
    m_nFirst = m_bArrows ? std::clamp(m_nFirst, 0, std::max(nLast, 0)) : 0;
}

void TabStripLayout::PlaceInRows(const std::vector<int>& lengths) {
    const int nPerRow = m_measures.nPerRow;
    m_nFirst = 0;
    int nShown = 0;
    int nActiveRow = 0;
    for (size_t n = 0; n < lengths.size(); ++n) {
        if (lengths[n] < 0) {
            continue;
        }
        const auto share = [&](int nPart) {
            return static_cast<int>(static_cast<long long>(Room()) * nPart / nPerRow);
        };
        const int nPart = nShown % nPerRow;
        const int nMax = m_measures.nMaxLength;
        const int nLength = share(nPart + 1) - share(nPart);
        const bool bShort = nMax > 0 && nMax < nLength;
        m_places[n] = {nShown / nPerRow, bShort ? nPart * nMax : share(nPart),
                       bShort ? nMax : nLength};
        if (static_cast<int>(n) == m_nActive) {
            nActiveRow = m_places[n].nRow;
        }
        ++nShown;
    }
    m_nRows = (nShown + nPerRow - 1) / nPerRow;
    // Rows go round until the active one is next to the page.
    for (Place& place : m_places) {
        place.nRow = (place.nRow - nActiveRow + m_nRows) % std::max(m_nRows, 1);
    }
}

/// nFrom and nTo along the side, nOut and nIn across it from the outer edge.
Rect TabStripLayout::ToClient(int nFrom, int nOut, int nTo, int nIn) const {
    const Rect& rc = m_measures.client;
    switch (m_measures.side) {
        case TabSide::Bottom:
            return {rc.left + nFrom, rc.bottom - nIn, rc.left + nTo, rc.bottom - nOut};
        case TabSide::Left:
            return {rc.left + nOut, rc.top + nFrom, rc.left + nIn, rc.top + nTo};
        case TabSide::Right:
            return {rc.right - nIn, rc.top + nFrom, rc.right - nOut, rc.top + nTo};
        default:
            return {rc.left + nFrom, rc.top + nOut, rc.left + nTo, rc.top + nIn};
    }
}

Rect TabStripLayout::RectOf(int nTab, bool bCut) const {
    if (nTab < 0 || nTab >= static_cast<int>(m_places.size()) || m_places[nTab].nLength < 0 ||
        nTab < m_nFirst) {
        return {};
    }
    const Place& place = m_places[nTab];
    const int nInflation = m_measures.nInflation;
    const int nStart = m_places[m_nFirst].nOffset;
    int nFrom = place.nOffset - nStart;
    int nTo = nFrom + place.nLength;
    if (bCut) {
        nTo = std::min(nTo, Room());
    }
    if (nFrom >= Room() && place.nLength > 0) {
        return {};
    }
    nFrom += nInflation;
    nTo += nInflation;
    int nIn = Band() - place.nRow * m_measures.nThickness;
    int nOut = nIn - m_measures.nThickness;
    if (nTab == m_nActive) {
        nFrom -= nInflation;
        nTo += nInflation;
        nOut -= nInflation;
    }
    return ToClient(nFrom, std::max(nOut, 0), nTo, std::max(nIn, 0));
}

Rect TabStripLayout::PageRect() const {
    return ToClient(0, Band(), Along(), Across());
}

Rect TabStripLayout::PageInside() const {
    Rect rc = PageRect();
    const int nX = std::min(m_measures.nPageEdge, std::max(rc.Width(), 0) / 2);
    const int nY = std::min(m_measures.nPageEdge, std::max(rc.Height(), 0) / 2);
    return {rc.left + nX, rc.top + nY, rc.right - nX, rc.bottom - nY};
}

Rect TabStripLayout::ArrowRect(bool bForward) const {
    if (!m_bArrows) {
        return {};
    }
    const int nFrom = Along() - (bForward ? 1 : 2) * m_measures.nArrow;
    const int nOut = std::max(Band() - std::min(m_measures.nArrow, m_measures.nThickness), 0);
    return ToClient(std::max(nFrom, 0), nOut, std::max(nFrom + m_measures.nArrow, 0), Band());
}

bool TabStripLayout::CanScroll(bool bForward) const {
    if (!m_bArrows) {
        return false;
    }
    if (!bForward) {
        return m_nFirst > 0;
    }
    const Place& last = m_places.back();
    return last.nOffset + std::max(last.nLength, 0) - m_places[m_nFirst].nOffset > Room() &&
           m_nFirst < static_cast<int>(m_places.size()) - 1;
}

TabStripLayout::Hit TabStripLayout::HitTest(Point pt) const {
    if (ArrowRect(false).Contains(pt)) {
        return {Part::Back, -1};
    }
    if (ArrowRect(true).Contains(pt)) {
        return {Part::Forward, -1};
    }
    // The active one lies over its neighbours.
    if (TabRect(m_nActive).Contains(pt)) {
        return {Part::Tab, m_nActive};
    }
    for (int n = m_nFirst; n < static_cast<int>(m_places.size()); ++n) {
        if (TabRect(n).Contains(pt)) {
            return {Part::Tab, n};
        }
    }
    return {PageRect().Contains(pt) ? Part::Page : Part::None, -1};
}

int TabStripLayout::FirstToShow(int nTab) const {
    if (!m_bArrows || nTab < 0 || nTab >= static_cast<int>(m_places.size()) || nTab <= m_nFirst) {
        return m_bArrows && nTab >= 0 ? std::min(nTab, m_nFirst) : m_nFirst;
    }
    const int nEnd = m_places[nTab].nOffset + std::max(m_places[nTab].nLength, 0);
    int nFirst = m_nFirst;
    while (nFirst < nTab && nEnd - m_places[nFirst].nOffset > Room()) {
        ++nFirst;
    }
    return nFirst;
}

}  // namespace qv
