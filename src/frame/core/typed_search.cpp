#include "frame/core/typed_search.h"

namespace qv {

namespace {

constexpr std::size_t kMostBytes = 256;  // nobody's row is found by more

}  // namespace

void TypedSearch::Forget() {
    m_strKeyed.clear();
    m_strTyped.clear();
    m_strSearched.clear();
    m_nWhole = 0;
}

TypedSearch::Answer TypedSearch::Type(unsigned char byte, unsigned nTime) {
    constexpr unsigned char kDelete = 0x7F;
    if (nTime - m_nLast > kPause) {
        Forget();
    }
    const bool bBegins = m_strTyped.empty() && m_strKeyed.empty();
    if (byte < ' ' || byte == kDelete || (byte == ' ' && bBegins)) {
        return Answer::NotTyped;
    }
    m_nLast = nTime;
    if (m_strTyped.size() >= kMostBytes) {
        return Answer::Waits;
    }
    m_strKeyed += static_cast<char>(byte);
    const std::string strBytes =
        m_pfnFromKeyboard != nullptr ? m_pfnFromKeyboard(m_strKeyed) : m_strKeyed;
    if (strBytes.empty()) {
        return Answer::Waits;
    }
    m_strKeyed.clear();
    m_strTyped += strBytes;
    if (!IsWhole()) {
        return Answer::Waits;
    }
    const bool bFirst = m_nWhole == 0;
    m_nWhole = m_strTyped.size();
    const bool bRepeats = !bFirst && RepeatsFirst();
    m_strSearched = m_strTyped.substr(0, bRepeats ? m_text.CharBytes(m_strTyped) : m_nWhole);
    m_bBehind = bFirst || bRepeats;
    return Answer::Searches;
}

// Whether what was typed ends in a whole character. One that is not has more to come, which bytes
// such as these would complete.
bool TypedSearch::IsWhole() const {
    std::string strLast = m_strTyped.substr(m_nWhole);
    const std::size_t nBytes = strLast.size();
    if (!m_text.CanLead(static_cast<unsigned char>(strLast[0])) || m_text.CharBytes(strLast) > 1) {
        return true;
    }
    constexpr std::size_t kMostMore = 3;
    strLast.append(kMostMore, '\x80');
    return m_text.CharBytes(strLast) <= nBytes;
}

bool TypedSearch::RepeatsFirst() const {
    const std::size_t nFirst = m_text.CharBytes(m_strTyped);
    for (std::size_t i = nFirst; i < m_strTyped.size(); i += nFirst) {
        if (m_text.CompareNoCase(m_strTyped.c_str(), m_strTyped.c_str() + i, nFirst) != 0) {
            return false;
        }
    }
    return true;
}

}  // namespace qv
