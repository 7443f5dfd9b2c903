#include "frame/core/sort_keys.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

namespace qv {

SortKey SortKeys::Text(const char* psz) {
    SortKey key;
    key.nKey = m_strKeys.size();
    m_text.AppendSortKey(psz, m_strKeys);
    key.nLength = m_strKeys.size() - key.nKey;
    m_strKeys.push_back('\0');  // so that no two keys begin at one place
    key.nStart = Start(std::string_view(m_strKeys).substr(key.nKey, key.nLength));
    return key;
}

std::uint64_t SortKeys::Start(std::string_view bytes) {
    std::uint64_t nStart = 0;
    const std::size_t nBytes = std::min(bytes.size(), sizeof(nStart));
    for (std::size_t i = 0; i < nBytes; ++i) {
        nStart = nStart << 8 | static_cast<unsigned char>(bytes[i]);
    }
    return nBytes == 0 ? 0 : nStart << 8 * (sizeof(nStart) - nBytes);
}

SortKey SortKeys::Date(double date) {
    const double day = std::trunc(date);
    const double time = std::abs(date - day);
    // Positive numbers order as their bits do, negative ones in reverse; both zeros are one.
    constexpr std::uint64_t kSign = std::uint64_t{1} << 63;
    const auto nBits = std::bit_cast<std::uint64_t>(day + time + 0.0);
    return {(nBits & kSign) != 0 ? ~nBits : nBits | kSign};
}

int SortKeys::Compare(const SortKey& key1, const SortKey& key2) const {
    if (key1.nStart != key2.nStart) {
        return key1.nStart < key2.nStart ? -1 : 1;
    }
    const std::size_t nCommon = std::min(key1.nLength, key2.nLength);
    const int nOrder =
        std::memcmp(m_strKeys.data() + key1.nKey, m_strKeys.data() + key2.nKey, nCommon);
    if (nOrder != 0) {
        return nOrder < 0 ? -1 : 1;
    }
    return key1.nLength == key2.nLength ? 0 : key1.nLength < key2.nLength ? -1 : 1;
}

}  // namespace qv
