#include "grid/core/grid_model.h"

#include "frame/core/styled_text.h"

#include <algorithm>
#include <new>
#include <utility>

namespace qv {

namespace {

char s_szEmpty[] = "";

}  // namespace

GridModel::GridModel() : m_aStrings{s_szEmpty} {}

GridModel::~GridModel() = default;

// --- Columns

int GridModel::AddColumn(GridColType nType, int nWidth) {
    m_aColumns.push_back({nWidth, nType, nullptr, 0});
    if (NumColumns() > m_nCellColumns) {
        ReallocateCellData(NumColumns());
    }
    return NumColumns() - 1;
}

// Blocks grow to nNewCols cells. One that finds no memory is given up, and its row reads as empty.
void GridModel::ReallocateCellData(int nNewCols) {
    for (Block& block : m_aCellData) {
        if (block != nullptr) {
            Block larger(new (std::nothrow) _QVGRID_CELL_INFO[static_cast<size_t>(nNewCols)]());
            if (larger != nullptr) {
                std::copy_n(block.get(), m_nCellColumns, larger.get());
            }
            block = std::move(larger);
        }
    }
    m_nCellColumns = nNewCols;
}

bool GridModel::HasButton(GridColType nType) {
    return nType == gctButton || nType == gctEditButton || nType == gctDropList;
}

bool GridModel::UsesEdit(GridCell cell) const {
    const GridColType nType = Type(cell);
    return nType == gctEdit || nType == gctEditButton;
}

GridColType GridModel::Type(GridCell cell) const {
    const auto it = m_types.empty() ? m_types.end() : m_types.find(cell);
    return it != m_types.end() ? it->second : Type(cell.nCol);
}

void GridModel::SetType(GridCell cell, GridColType nType) {
    if (IsCell(cell)) {
        m_types[cell] = nType;
    }
}

// --- Rows

int GridModel::AllocateCellDataIndex() {
    Block block(new (std::nothrow) _QVGRID_CELL_INFO[static_cast<size_t>(m_nCellColumns)]());
    if (block == nullptr) {
        return -1;
    }
    m_aCellData.push_back(std::move(block));
    return static_cast<int>(m_aCellData.size()) - 1;
}

int GridModel::AddRow(std::string_view row, unsigned dwState) {
    const size_t nBlocks = m_aCellData.size();
    const size_t nStrings = m_aStrings.size();
    m_aRows.push_back({dwState, -1, 0});
    const int nRow = NumRows() - 1;
    try {
        m_aRows[nRow].nCellIndex = AllocateCellDataIndex();
        std::string_view field;
        int nPos = 0;
        for (int nCol = 0; nCol < NumColumns() && NextField(row, nPos, field); ++nCol) {
            SetText(nRow, nCol, field);
        }
    } catch (...) {
        m_aRows.pop_back();
        m_aCellData.resize(nBlocks);
        std::for_each(m_aStrings.begin() + static_cast<std::ptrdiff_t>(nStrings), m_aStrings.end(),
                      [this](char* psz) { m_texts.Free(psz); });
        m_aStrings.resize(nStrings);
        throw;
    }
    return nRow;
}

void GridModel::DeleteAllRows() {
    m_aRows.clear();
    m_types.clear();
    for (Block& block : m_aCellData) {
        block.reset();
    }
}

// --- Cells

const _QVGRID_CELL_INFO* GridModel::Cell(int nRow, int nCol) const {
    if (!IsRow(nRow) || !IsColumn(nCol) || nCol >= m_nCellColumns) {
        return nullptr;
    }
    const int nIndex = m_aRows[nRow].nCellIndex;
    return nIndex >= 0 && m_aCellData[nIndex] != nullptr ? &m_aCellData[nIndex][nCol] : nullptr;
}

_QVGRID_CELL_INFO* GridModel::Cell(int nRow, int nCol) {
    return const_cast<_QVGRID_CELL_INFO*>(std::as_const(*this).Cell(nRow, nCol));
}

const char* GridModel::Text(int nRow, int nCol) const {
    const _QVGRID_CELL_INFO* pCell = Cell(nRow, nCol);
    return pCell != nullptr && pCell->nString != 0 ? m_aStrings[pCell->nString] : nullptr;
}

void GridModel::SetText(int nRow, int nCol, std::string_view text) {
    _QVGRID_CELL_INFO* pCell = Cell(nRow, nCol);
    if (pCell == nullptr || (pCell->nString == 0 && text.empty())) {
        return;
    }
    char* pszNew = m_texts.Allocate(text.size() + 1);
    if (pszNew == nullptr) {
        throw std::bad_alloc();
    }
    text.copy(pszNew, text.size());
    pszNew[text.size()] = '\0';
    if (pCell->nString != 0) {
        // Behind the copy: the new text may be a part of the old one.
        m_texts.Free(m_aStrings[pCell->nString]);
        m_aStrings[pCell->nString] = pszNew;
        return;
    }
    try {
        m_aStrings.push_back(pszNew);
    } catch (...) {
        m_texts.Free(pszNew);
        throw;
    }
    pCell->nString = static_cast<int>(m_aStrings.size()) - 1;
}

unsigned GridModel::Style(int nRow, int nCol) const {
    const _QVGRID_CELL_INFO* pCell = Cell(nRow, nCol);
    return pCell != nullptr ? pCell->dwStyle : 0;
}

bool GridModel::ModifyStyle(int nRow, int nCol, unsigned dwAdd, unsigned dwRemove) {
    _QVGRID_CELL_INFO* pCell = Cell(nRow, nCol);
    if (pCell == nullptr) {
        return false;
    }
    const unsigned dwOld = pCell->dwStyle;
    pCell->dwStyle = (dwOld & ~dwRemove) | dwAdd;
    return pCell->dwStyle != dwOld;
}

bool GridModel::CheckInvariants() const {
    if (m_aStrings.empty() || m_aStrings[0] != s_szEmpty || s_szEmpty[0] != '\0' ||
        m_nCellColumns < NumColumns()) {
        return false;
    }
    // No two cells share a text, and no two rows a block.
    std::vector<bool> stringUsed(m_aStrings.size());
    std::vector<bool> blockUsed(m_aCellData.size());
    for (const _QVGRID_ROW_INFO& row : m_aRows) {
        if (row.nCellIndex < 0) {
            continue;
        }
        const auto nBlock = static_cast<size_t>(row.nCellIndex);
        if (nBlock >= m_aCellData.size() || blockUsed[nBlock]) {
            return false;
        }
        blockUsed[nBlock] = true;
        for (int nCol = 0; m_aCellData[nBlock] != nullptr && nCol < m_nCellColumns; ++nCol) {
            const auto nString = static_cast<size_t>(m_aCellData[nBlock][nCol].nString);
            if (nString >= m_aStrings.size() || (nString != 0 && stringUsed[nString])) {
                return false;
            }
            stringUsed[nString] = true;
        }
    }
    return true;
}

}  // namespace qv
