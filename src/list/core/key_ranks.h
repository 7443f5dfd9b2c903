// Keys of rows, made once for each, and the rank of each among them: equal keys have the same rank,
// and the ranks have no gap. A row's place is a matter of numbers then, in either direction and for
// as many sorts as there are.
//
// Keys are sorted eight bytes at a time, by their digits where there are many: comparing texts in
// pairs would read each of them some twenty times from all over the memory.

#pragma once

#include "frame/core/sort_keys.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace qv {

class KeyRanks {
public:
    explicit KeyRanks(const MultiByte& text) : m_keys(text) {}

    // --- The rows, in any order, with keys of one kind. May throw std::bad_alloc.

    void Reserve(std::size_t nRows) { m_pieces.reserve(nRows); }
    // Without regard to case.
    void AddText(const char* psz);
    void AddNumber(std::uint32_t n) { m_pieces.push_back(n); }
    // In days.
    void AddDate(double date) { m_pieces.push_back(SortKeys::Date(date).nStart); }
    // Of no kind: all such rows are equal.
    void AddUnordered() { m_pieces.push_back(0); }

    std::size_t Count() const { return m_pieces.size(); }

    // The ranks by row, from 0 on. The keys are used up. May throw std::bad_alloc.
    std::vector<std::uint32_t> TakeRanks();

private:
    class Sort;

    std::string_view Folded(std::size_t nRow) const;

    SortKeys m_keys;
    std::vector<std::uint64_t> m_pieces;  // the first eight bytes; later ones while ranks are found
    std::vector<std::size_t> m_texts;     // where each is; empty where keys are no texts
};

}  // namespace qv
