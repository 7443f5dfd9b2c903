// Rows of somebody else's data, read once and cut to cells: each may be asked for many times in one
// paint, for its image and for every column.

#pragma once

#include "frame/core/styled_text.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace qv {

// A row string in cells that each end in a NUL, as callers of the platform want them.
class CutRow {
public:
    void Assign(std::string_view row) {
        m_strCells.assign(row);
        m_aStarts.clear();
        std::string_view field;
        for (int nPos = 0; NextField(m_strCells, nPos, field);) {
            const auto nStart = static_cast<std::size_t>(field.data() - m_strCells.data());
            m_aStarts.push_back(nStart);
            if (nStart + field.size() < m_strCells.size()) {
                m_strCells[nStart + field.size()] = '\0';
            }
        }
    }
    // Empty for a column without a field. Valid until the next row.
    const char* Cell(int nCol) const {
        return nCol >= 0 && static_cast<std::size_t>(nCol) < m_aStarts.size()
                   ? m_strCells.data() + m_aStarts[static_cast<std::size_t>(nCol)]
                   : "";
    }

    int nImage = -1;
    unsigned nState = 0;

private:
    std::string m_strCells;
    std::vector<std::size_t> m_aStarts;
};

// A page of such rows by their places; of rows that are as far apart as there is room, the last one
// stays.
class CutRows {
public:
    // For nRows in a row; those that were read are forgotten. May throw std::bad_alloc.
    void Open(std::size_t nRows) {
        m_slots.resize(std::max(m_slots.size(), std::bit_ceil(nRows + 1)));
        Forget();
        m_bOpen = true;
    }
    void Close() {
        Forget();
        m_bOpen = false;
    }
    bool IsOpen() const { return m_bOpen; }
    void Forget() {
        for (Slot& slot : m_slots) {
            slot.nPlace = kNone;
        }
    }
    // Null if it was not read.
    const CutRow* Find(int nPlace) const {
        const Slot& slot = m_slots[SlotOf(nPlace)];
        return slot.nPlace == nPlace ? &slot.row : nullptr;
    }
    // A row to be read, which is found from then on.
    CutRow& Take(int nPlace) {
        Slot& slot = m_slots[SlotOf(nPlace)];
        slot.nPlace = nPlace;
        return slot.row;
    }

private:
    static constexpr int kNone = -1;
    struct Slot {
        int nPlace = kNone;
        CutRow row;
    };
    std::size_t SlotOf(int nPlace) const {
        return static_cast<std::size_t>(nPlace) & (m_slots.size() - 1);
    }

    std::vector<Slot> m_slots;
    bool m_bOpen = false;
};

}  // namespace qv
