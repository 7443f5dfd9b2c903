#include "ocx/core/flex_grid_cells.h"

#include "ocx/core/flex_grid_order.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace qv {

const FlexGridFormat FlexGridFormat::kPlain{};

void FlexGridCells::Free(Row& row, int nFrom) {
    for (int i = nFrom; i < row.nCells; ++i) {
        Cell& cell = row.pCells[static_cast<std::size_t>(i)];
        m_texts.Free(reinterpret_cast<char*>(std::exchange(cell.pText, nullptr)));
        cell.pFormat.reset();
    }
}

void FlexGridCells::FreeRows(int nFrom) {
    for (int i = nFrom; i < Rows(); ++i) {
        Free(m_rows[static_cast<std::size_t>(i)], 0);
    }
}

void FlexGridCells::ResizeRows(int nRows) {
    FreeRows(nRows);
    m_rows.resize(static_cast<std::size_t>(nRows));
}

void FlexGridCells::InsertRow(int nRow) {
    m_rows.insert(m_rows.begin() + nRow, Row());
}

void FlexGridCells::RemoveRow(int nRow) {
    Free(m_rows[static_cast<std::size_t>(nRow)], 0);
    m_rows.erase(m_rows.begin() + nRow);
}

void FlexGridCells::MoveRow(int nFrom, int nTo) {
    MoveElement(m_rows.begin(), nFrom, nTo);
}

void FlexGridCells::ReorderRows(int nFirst, const std::vector<int>& order) {
    ReorderElements(m_rows, nFirst, order);
}

void FlexGridCells::DropColumnsFrom(int nCol) {
    for (Row& row : m_rows) {
        Free(row, nCol);
    }
    m_nWidest = std::min(m_nWidest, nCol);
}

void FlexGridCells::MoveColumn(int nFrom, int nTo) {
    const int nNeeded = std::max(nFrom, nTo) + 1;
    for (Row& row : m_rows) {
        if (row.nCells > std::min(nFrom, nTo)) {
            GrowTo(row, nNeeded);
        }
    }
    for (Row& row : m_rows) {
        if (row.nCells >= nNeeded) {
            MoveElement(row.pCells.get(), nFrom, nTo);
        }
    }
}

const FlexGridCells::Cell* FlexGridCells::Find(int nRow, int nCol) const {
    const Row& row = m_rows[static_cast<std::size_t>(nRow)];
    return nCol < row.nCells ? &row.pCells[static_cast<std::size_t>(nCol)] : nullptr;
}

void FlexGridCells::GrowTo(Row& row, int nCells) {
    if (nCells <= row.nCells) {
        return;
    }
    auto pCells = std::make_unique<Cell[]>(static_cast<std::size_t>(nCells));
    std::move(row.pCells.get(), row.pCells.get() + row.nCells, pCells.get());
    row.pCells = std::move(pCells);
    row.nCells = nCells;
}

FlexGridCells::Cell& FlexGridCells::CellToSet(int nRow, int nCol) {
    Row& row = m_rows[static_cast<std::size_t>(nRow)];
    if (nCol >= row.nCells) {
        m_nWidest = std::max(m_nWidest, nCol + 1);
        // Rows are of one width mostly; a single far cell does not make all others wide.
        GrowTo(row, std::min(m_nWidest, 2 * (nCol + 8)));
    }
    return row.pCells[static_cast<std::size_t>(nCol)];
}

const char16_t* FlexGridCells::Text(int nRow, int nCol) const {
    const Cell* pCell = Find(nRow, nCol);
    return pCell != nullptr && pCell->pText != nullptr ? pCell->pText : u"";
}

void FlexGridCells::SetText(int nRow, int nCol, std::u16string_view text) {
    text = text.substr(0, text.find(u'\0'));
    if (text.empty() && Find(nRow, nCol) == nullptr) {
        return;
    }
    Cell& cell = CellToSet(nRow, nCol);
    char16_t* pText = nullptr;
    if (!text.empty()) {
        const std::size_t nBytes = text.size() * sizeof(char16_t);
        char* const p = m_texts.Allocate(nBytes + sizeof(char16_t));
        if (p == nullptr) {
            throw std::bad_alloc();
        }
        // The pool's texts lie behind a tag of two bytes.
        pText = reinterpret_cast<char16_t*>(p);
        std::memcpy(pText, text.data(), nBytes);
        pText[text.size()] = u'\0';
    }
    m_texts.Free(reinterpret_cast<char*>(std::exchange(cell.pText, pText)));
}

const FlexGridFormat& FlexGridCells::Format(int nRow, int nCol) const {
    const Cell* pCell = Find(nRow, nCol);
    return pCell != nullptr && pCell->pFormat != nullptr ? *pCell->pFormat : FlexGridFormat::kPlain;
}

FlexGridFormat& FlexGridCells::FormatToSet(int nRow, int nCol) {
    Cell& cell = CellToSet(nRow, nCol);
    if (cell.pFormat == nullptr) {
        cell.pFormat = std::make_unique<FlexGridFormat>();
    }
    return *cell.pFormat;
}

void FlexGridCells::Clear() {
    for (Row& row : m_rows) {
        row.pCells.reset();
        row.nCells = 0;
    }
    m_texts.FreeAll();
    m_nWidest = 0;
}

bool FlexGridCells::CheckInvariants() const {
    return std::all_of(m_rows.begin(), m_rows.end(), [](const Row& row) {
        return (row.pCells != nullptr || row.nCells == 0) &&
               std::all_of(row.pCells.get(), row.pCells.get() + row.nCells,
                           [](const Cell& cell) { return cell.pText == nullptr || *cell.pText; });
    });
}

}  // namespace qv
