#include "list/core/key_ranks.h"

#include <algorithm>
#include <array>
#include <bit>
#include <utility>

namespace qv {

namespace {

constexpr std::size_t kPieceBytes = 8;

// A row and the upper bits of what is sorted of its key.
struct Entry {
    std::uint32_t nBits;
    std::uint32_t nRow;
};

constexpr int kEntryBits = 32;
constexpr int kDigitBits = 11;
constexpr int kDigits = 3;  // enough for all bits of an entry
constexpr std::size_t kDigitValues = std::size_t{1} << kDigitBits;

// From here on counting digits is quicker than comparing.
constexpr std::size_t kManyEntries = 3000;

std::size_t Digit(const Entry& entry, int nDigit) {
    return entry.nBits >> (nDigit * kDigitBits) & (kDigitValues - 1);
}

// Sorts nCount entries; pSpare has room for as many.
void SortByDigits(Entry* pEntries, std::size_t nCount, Entry* pSpare) {
    std::array<std::array<std::uint32_t, kDigitValues>, kDigits> places{};
    for (std::size_t i = 0; i < nCount; ++i) {
        for (int n = 0; n < kDigits; ++n) {
            ++places[static_cast<std::size_t>(n)][Digit(pEntries[i], n)];
        }
    }
    Entry* pFrom = pEntries;
    Entry* pTo = pSpare;
    for (int n = 0; n < kDigits; ++n) {
        auto& next = places[static_cast<std::size_t>(n)];
        if (next[Digit(pFrom[0], n)] == nCount) {
            continue;  // the same digit everywhere
        }
        std::uint32_t nPlace = 0;
        for (std::uint32_t& nOfDigit : next) {
            nPlace += std::exchange(nOfDigit, nPlace);
        }
        for (std::size_t i = 0; i < nCount; ++i) {
            pTo[next[Digit(pFrom[i], n)]++] = pFrom[i];
        }
        std::swap(pFrom, pTo);
    }
    if (pFrom != pEntries) {
        std::copy_n(pFrom, nCount, pEntries);
    }
}

}  // namespace

void KeyRanks::AddText(const char* psz) {
    m_texts.resize(m_pieces.size());
    const SortKey key = m_keys.Text(psz);
    m_texts.push_back(key.nKey);
    m_pieces.push_back(key.nStart);
}

std::string_view KeyRanks::Folded(std::size_t nRow) const {
    const std::string_view all = m_keys.Folded();
    const std::size_t nEnd = nRow + 1 < m_texts.size() ? m_texts[nRow + 1] : all.size();
    return all.substr(m_texts[nRow], nEnd - m_texts[nRow] - 1);
}

// Rows whose keys agree so far form a group. What of the keys is looked at next are the pieces: the
// eight bytes behind those that agree, zeros behind a key's end.
class KeyRanks::Sort {
public:
    explicit Sort(KeyRanks& keys) : m_keys(keys), m_first(keys.Count()) {
        m_entries.resize(keys.Count());
        for (std::uint32_t nRow = 0; nRow < m_entries.size(); ++nRow) {
            m_entries[nRow].nRow = nRow;
        }
        m_spare.resize(keys.Count() >= kManyEntries ? keys.Count() : 0);
        if (keys.Count() > 0) {
            m_groups.push_back({0, keys.Count(), kPieceBytes});
        }
        while (!m_groups.empty()) {
            const Group group = m_groups.back();
            m_groups.pop_back();
            SortPieces(group);
        }
    }

    std::vector<std::uint32_t> Ranks() const {
        std::vector<std::uint32_t> ranks(m_entries.size());
        std::uint32_t nRank = UINT32_MAX;
        for (std::size_t i = 0; i < m_entries.size(); ++i) {
            nRank += m_first[i];
            ranks[m_entries[i].nRow] = nRank;
        }
        return ranks;
    }

private:
    struct Group {
        std::size_t nBegin;
        std::size_t nEnd;
        std::size_t nSeen;  // bytes up to the end of the pieces
    };

    auto At(std::size_t i) { return m_entries.begin() + static_cast<std::ptrdiff_t>(i); }
    std::uint64_t Piece(const Entry& entry) const { return m_keys.m_pieces[entry.nRow]; }

    // Most pieces that differ do so in the bits at hand.
    bool Agree(const Entry& a, const Entry& b) const {
        return a.nBits == b.nBits && Piece(a) == Piece(b);
    }

    void SortPieces(const Group& group) {
        if (group.nEnd - group.nBegin < kManyEntries) {
            for (auto it = At(group.nBegin); it != At(group.nEnd); ++it) {
                it->nBits = 0;
            }
            std::sort(At(group.nBegin), At(group.nEnd),
                      [this](const Entry& a, const Entry& b) { return Piece(a) < Piece(b); });
        } else {
            SortMany(group);
        }
        for (std::size_t nFirst = group.nBegin, i = nFirst; nFirst < group.nEnd; nFirst = i) {
            m_first[nFirst] = true;
            while (++i < group.nEnd && Agree(m_entries[i], m_entries[nFirst])) {
            }
            if (i - nFirst > 1 && !m_keys.m_texts.empty()) {
                GoOn({nFirst, i, group.nSeen});
            }
        }
    }

    // By the upper bits in which the pieces differ; what agrees in those is sorted by the rest.
    void SortMany(const Group& group) {
        std::uint64_t nDiffer = 0;
        for (auto it = At(group.nBegin); it != At(group.nEnd); ++it) {
            nDiffer |= Piece(*it) ^ Piece(m_entries[group.nBegin]);
        }
        const int nShift = std::max(static_cast<int>(std::bit_width(nDiffer)) - kEntryBits, 0);
        for (auto it = At(group.nBegin); it != At(group.nEnd); ++it) {
            it->nBits = static_cast<std::uint32_t>(Piece(*it) >> nShift);
        }
        SortByDigits(&m_entries[group.nBegin], group.nEnd - group.nBegin, m_spare.data());
        for (std::size_t nFirst = group.nBegin, i = nFirst; nShift > 0 && nFirst < group.nEnd;
             nFirst = i) {
            while (++i < group.nEnd && m_entries[i].nBits == m_entries[nFirst].nBits) {
            }
            std::sort(At(nFirst), At(i),
                      [this](const Entry& a, const Entry& b) { return Piece(a) < Piece(b); });
        }
    }

    // Rows whose pieces agree as well. Keys that have ended stand before the longer ones; they
    // differ in length where a key has a 0 at its end.
    void GoOn(const Group& group) {
        const auto length = [this](const Entry& entry) { return m_keys.Folded(entry.nRow).size(); };
        const auto longer =
            std::partition(At(group.nBegin), At(group.nEnd),
                           [&](const Entry& entry) { return length(entry) <= group.nSeen; });
        const auto nLonger = static_cast<std::size_t>(longer - m_entries.begin());
        std::sort(At(group.nBegin), longer,
                  [&](const Entry& a, const Entry& b) { return length(a) < length(b); });
        for (std::size_t i = group.nBegin + 1; i < nLonger; ++i) {
            m_first[i] = length(m_entries[i - 1]) != length(m_entries[i]);
        }
        for (auto it = longer; it != At(group.nEnd); ++it) {
            m_keys.m_pieces[it->nRow] =
                SortKeys::Start(m_keys.Folded(it->nRow).substr(group.nSeen));
        }
        if (nLonger < group.nEnd) {
            m_groups.push_back({nLonger, group.nEnd, group.nSeen + kPieceBytes});
        }
    }

    KeyRanks& m_keys;
    std::vector<bool> m_first;  // of its rank, by place
    std::vector<Entry> m_entries;
    std::vector<Entry> m_spare;
    std::vector<Group> m_groups;  // still to be sorted
};

std::vector<std::uint32_t> KeyRanks::TakeRanks() {
    return Sort(*this).Ranks();
}

}  // namespace qv
