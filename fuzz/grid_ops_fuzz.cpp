// Random sequences of all that a grid's store can be told, beside a plain table of texts, and what
// its layout makes of them.

#include "fuzz_input.h"
#include "grid/core/grid_layout.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

class GridRun {
public:
    GridRun(const std::uint8_t* pData, std::size_t nSize) : m_input(pData, nSize) {}

    void Run() {
        while (!m_input.AtEnd()) {
            Step();
            Check();
        }
    }

private:
    struct PlainCell {
        std::optional<std::string> text;
        unsigned dwStyle = 0;
    };

    int Below(int nCount) { return static_cast<int>(m_input.Byte()) % nCount; }
    // Mostly one that there is.
    int Any(int nCount) { return Below(nCount + 2) - 1; }
    int Row() { return Any(m_model.NumRows()); }
    int Col() { return Any(m_model.NumColumns()); }

    PlainCell* Plain(int nRow, int nCol) {
        return nRow >= 0 && nRow < static_cast<int>(m_rows.size()) && nCol >= 0 && nCol < m_nColumns
                   ? &m_rows[static_cast<size_t>(nRow)][static_cast<size_t>(nCol)]
                   : nullptr;
    }

    void SetPlain(int nRow, int nCol, const std::string& strText) {
        if (PlainCell* pCell = Plain(nRow, nCol); pCell != nullptr) {
            if (pCell->text.has_value() || !strText.empty()) {
                m_nStrings += pCell->text.has_value() ? 0 : 1;
                pCell->text = strText;
            }
        }
    }

    void AddColumn() {
        const int nWidth = static_cast<int>(m_input.Byte());
        FUZZ_CHECK(m_model.AddColumn(static_cast<GridColType>(m_input.Byte() % 5), nWidth) ==
                   m_nColumns);
        ++m_nColumns;
        for (auto& row : m_rows) {
            row.emplace_back();
        }
    }

    void AddRow() {
        const std::string strRow = m_input.Text();
        const unsigned dwState = m_input.Byte();
        const int nRow = m_model.AddRow(strRow, dwState);
        FUZZ_CHECK(nRow == static_cast<int>(m_rows.size()));
        FUZZ_CHECK(m_model.RowAt(nRow).dwState == dwState);
        m_rows.emplace_back(static_cast<size_t>(m_nColumns));
        ++m_nBlocks;
        size_t nStart = 0;
        for (int nCol = 0; nCol < m_nColumns && nStart < strRow.size(); ++nCol) {
            const size_t nTab = std::min(strRow.find('\t', nStart), strRow.size());
            SetPlain(nRow, nCol, strRow.substr(nStart, nTab - nStart));
            nStart = nTab + 1;
        }
    }

    void SetText() {
        std::string strText = m_input.Text();
        if (m_input.Byte() % 8 == 0) {
            strText.append(m_input.Byte() * 3, 'x');  // beyond what small blocks hold
        }
        const int nRow = Row();
        const int nCol = Col();
        m_model.SetText(nRow, nCol, strText);
        SetPlain(nRow, nCol, strText);
    }

    void SetPartOfItself() {
        const int nRow = Row();
        const int nCol = Col();
        if (const char* psz = m_model.Text(nRow, nCol); psz != nullptr) {
            const std::string_view text = psz;
            const std::string_view part = text.substr(m_input.Byte() % (text.size() + 1));
            const std::string strPart(part);
            m_model.SetText(nRow, nCol, part);
            SetPlain(nRow, nCol, strPart);
        }
    }

    void ModifyStyle() {
        const int nRow = Row();
        const int nCol = Col();
        const unsigned dwAdd = m_input.Byte();
        const unsigned dwRemove = m_input.Byte();
        const bool bChanged = m_model.ModifyStyle(nRow, nCol, dwAdd, dwRemove);
        PlainCell* pCell = Plain(nRow, nCol);
        const unsigned dwNew = pCell != nullptr ? (pCell->dwStyle & ~dwRemove) | dwAdd : 0;
        FUZZ_CHECK(bChanged == (pCell != nullptr && pCell->dwStyle != dwNew));
        if (pCell != nullptr) {
            pCell->dwStyle = dwNew;
        }
    }

    // What a point hits contains it, and nothing else does.
    void HitTest() {
        const qv::GridLayout layout{m_model,
                                    {0, 0, m_input.Int() + 1000, m_input.Int() + 1000},
                                    Below(32) - 1,
                                    m_model.NumRows() > 0 ? Below(m_model.NumRows()) : -1};
        const qv::Point pt{static_cast<int>(m_input.Byte()) * 3, static_cast<int>(m_input.Byte())};
        const qv::GridHit hit = layout.HitTest(pt);
        const bool bInside = layout.rcClient.Contains(pt);
        FUZZ_CHECK(hit.cell.nRow == -1 || layout.RowRect(hit.cell.nRow).top <= pt.y);
        for (int nRow = 0; nRow < m_model.NumRows(); ++nRow) {
            for (int nCol = 0; nCol < m_nColumns; ++nCol) {
                qv::Rect rc;
                FUZZ_CHECK(layout.CellRect(nRow, nCol, rc));
                if (bInside && rc.Contains(pt)) {
                    FUZZ_CHECK((hit.cell == qv::GridCell{nRow, nCol}));
                    FUZZ_CHECK(nRow >= layout.nTopRow && nRow < layout.EndOfShownRows());
                    FUZZ_CHECK(!hit.bOnButton || m_model.UsesButton(nCol));
                }
            }
        }
        FUZZ_CHECK(!hit.bOnButton || m_model.UsesButton(hit.cell.nCol));
    }

    void Step() {
        switch (m_input.Byte() % 16) {
            case 0:
                return m_nColumns < 12 ? AddColumn() : void();
            case 1:
            case 2:
            case 3:
            case 4:
                return AddRow();
            case 5:
                if (m_input.Byte() % 4 == 0) {
                    m_model.DeleteAllRows();
                    m_rows.clear();
                }
                return;
            case 6:
            case 7:
                return ModifyStyle();
            case 8:
                return SetPartOfItself();
            case 9:
                return HitTest();
            default:
                return SetText();
        }
    }

    void Check() {
        FUZZ_CHECK(m_model.CheckInvariants());
        FUZZ_CHECK(m_model.NumRows() == static_cast<int>(m_rows.size()));
        FUZZ_CHECK(m_model.NumColumns() == m_nColumns);
        FUZZ_CHECK(m_model.CountStrings() == m_nStrings && m_model.CountBlocks() == m_nBlocks);
        for (int nRow = -1; nRow <= m_model.NumRows(); ++nRow) {
            for (int nCol = -1; nCol <= m_nColumns; ++nCol) {
                const PlainCell* pPlain = Plain(nRow, nCol);
                const _QVGRID_CELL_INFO* pCell = m_model.Cell(nRow, nCol);
                const char* pszText = m_model.Text(nRow, nCol);
                FUZZ_CHECK((pCell != nullptr) == (pPlain != nullptr));
                FUZZ_CHECK((pszText != nullptr) == (pPlain != nullptr && pPlain->text.has_value()));
                FUZZ_CHECK(pszText == nullptr || *pPlain->text == pszText);
                FUZZ_CHECK(pCell == nullptr || pCell->dwStyle == pPlain->dwStyle);
            }
        }
    }

    FuzzInput m_input;
    qv::GridModel m_model;
    std::vector<std::vector<PlainCell>> m_rows;
    int m_nColumns = 0;
    size_t m_nStrings = 1;  // the empty text's
    size_t m_nBlocks = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    GridRun(pData, nSize).Run();
    return 0;
}
