#include "list/core/sorted_places.h"

#include <algorithm>
#include <utility>

namespace qv {

void SortedPlaces::Clear() {
    m_aKeys.clear();
    m_aGreatest.clear();
}

void SortedPlaces::Append(std::string strKey) {
    Insert(Count(), std::move(strKey));
}

std::size_t SortedPlaces::Find(const std::string& strKey) const {
    const auto it = std::upper_bound(
        m_aGreatest.begin(), m_aGreatest.end(), strKey,
        [this](const std::string& str, std::uint32_t nKey) { return str < m_aKeys[nKey]; });
    return static_cast<std::size_t>(it - m_aGreatest.begin());
}

void SortedPlaces::Insert(std::size_t nPlace, std::string strKey) {
    const auto nNew = static_cast<std::uint32_t>(m_aKeys.size());
    m_aKeys.push_back(std::move(strKey));
    const std::string& str = m_aKeys.back();
    const bool bAbove = nPlace > 0 && m_aKeys[m_aGreatest[nPlace - 1]] >= str;
    m_aGreatest.insert(m_aGreatest.begin() + static_cast<std::ptrdiff_t>(nPlace),
                       bAbove ? m_aGreatest[nPlace - 1] : nNew);
    for (std::size_t i = nPlace + 1; i < Count() && m_aKeys[m_aGreatest[i]] < str; ++i) {
        m_aGreatest[i] = nNew;
    }
}

bool SortedPlaces::CheckInvariants() const {
    return m_aKeys.size() == m_aGreatest.size() &&
           std::is_sorted(
               m_aGreatest.begin(), m_aGreatest.end(),
               [this](std::uint32_t a, std::uint32_t b) { return m_aKeys[a] < m_aKeys[b]; });
}

std::string NumberKey(std::int32_t nValue) {
    const std::uint32_t n = static_cast<std::uint32_t>(nValue) ^ 0x80000000u;
    return {static_cast<char>(n >> 24), static_cast<char>(n >> 16), static_cast<char>(n >> 8),
            static_cast<char>(n)};
}

}  // namespace qv
