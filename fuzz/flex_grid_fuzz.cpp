// Random sequences of all that a flexible grid's store can be told, beside a plain table of texts
// and heights; where its cells lie, what stands together, and how its rows sort.

#include "fuzz_input.h"
#include "ocx/core/flex_grid_format.h"
#include "ocx/core/flex_grid_selection.h"
#include "ocx/core/flex_grid_sort.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

class FlexGridRun {
public:
    FlexGridRun(const std::uint8_t* pData, std::size_t nSize) : m_input(pData, nSize) {}

    void Run() {
        while (!m_input.AtEnd()) {
            Step();
            FUZZ_CHECK(m_model.CheckInvariants());
            CheckTexts();
        }
    }

private:
    using Row = std::vector<std::u16string>;

    int Below(int nCount) { return static_cast<int>(m_input.Byte()) % nCount; }
    int Any(int nCount) { return Below(nCount + 2) - 1; }  // mostly one that there is
    std::u16string Text() {
        static constexpr char16_t kChars[] = u"aAb12.-\t\r|;<^ ";
        std::u16string strText;
        for (int n = Below(8); n > 0; --n) {
            strText += kChars[Below(std::size(kChars) - 1)];
        }
        return strText;
    }
    int Rows() const { return static_cast<int>(m_rows.size()); }

    void SetCounts(int nRows, int nCols) {
        const bool bRows = m_model.SetRows(nRows) == qv::FlexGridError::None;
        FUZZ_CHECK(bRows == (nRows >= 0));
        const bool bCols = m_model.SetCols(nCols) == qv::FlexGridError::None;
        FUZZ_CHECK(bCols == (nCols >= 0));
        m_rows.resize(static_cast<size_t>(bRows ? nRows : Rows()));
        m_nCols = bCols ? nCols : m_nCols;
        for (Row& row : m_rows) {
            row.resize(static_cast<size_t>(m_nCols));
        }
    }

    void AddItem() {
        const std::u16string strItem = Text();
        const int nRow = Any(Rows());
        if (m_model.AddItem(strItem, nRow) != qv::FlexGridError::None) {
            FUZZ_CHECK(nRow < 0);
            return;
        }
        Row row(static_cast<size_t>(m_nCols));
        size_t nStart = 0;
        for (size_t n = 0; n < row.size() && nStart <= strItem.size(); ++n) {
            const size_t nEnd = std::min(strItem.find(u'\t', nStart), strItem.size());
            row[n] = strItem.substr(nStart, nEnd - nStart);
            nStart = nEnd + 1;
        }
        m_rows.insert(m_rows.begin() + nRow, row);
    }

    template <class Sequence>
    static void Move(Sequence& sequence, int nFrom, int nTo) {
        auto element = sequence[static_cast<size_t>(nFrom)];
        sequence.erase(sequence.begin() + nFrom);
        sequence.insert(sequence.begin() + nTo, element);
    }

    void MoveLine() {
        const bool bRow = Below(2) == 0;
        const int nCount = bRow ? Rows() : m_nCols;
        const int nFrom = Any(nCount);
        const int nTo = Any(nCount);
        const auto error = bRow ? m_model.MoveRow(nFrom, nTo) : m_model.MoveCol(nFrom, nTo);
        if (error != qv::FlexGridError::None) {
            return;
        }
        if (bRow) {
            return Move(m_rows, nFrom, nTo);
        }
        for (Row& row : m_rows) {
            Move(row, nFrom, nTo);
        }
    }

    void Sort() {
        const auto kind = static_cast<qv::FlexGridSort>(Below(9));
        const int nTop = Below(Rows() + 1);
        const qv::FlexGridRange range{nTop, 0, Rows() - 1, std::min(m_nCols, 2) - 1};
        const auto key = [](std::u16string_view text, bool bIgnoreCase) {
            std::string strKey;
            for (const char16_t ch : text) {
                strKey += static_cast<char>(bIgnoreCase && ch < u'a' && ch >= u'A' ? ch + 32 : ch);
            }
            return strKey;
        };
        const std::vector<int> order = qv::SortedRows(m_model, range, kind, key);
        std::vector<int> again = order;
        qv::StableSort(again, [&](int, int) { return Below(3) - 1; });
        FUZZ_CHECK(std::is_permutation(order.begin(), order.end(), again.begin(), again.end()));
        for (size_t i = 1; i < order.size() && kind == qv::fgoTextAscending; ++i) {
            const Row& row1 = m_rows[static_cast<size_t>(order[i - 1])];
            const Row& row2 = m_rows[static_cast<size_t>(order[i])];
            FUZZ_CHECK(
                !std::lexicographical_compare(row2.begin(), row2.begin() + (range.nRight + 1),
                                              row1.begin(), row1.begin() + (range.nRight + 1)));
        }
        m_model.ReorderRows(nTop, order);
        const std::vector<Row> old = m_rows;
        for (size_t i = 0; i < order.size(); ++i) {
            m_rows[static_cast<size_t>(nTop) + i] = old[static_cast<size_t>(order[i])];
        }
    }

    // Each cell's range is that of all cells in it, and holds one text.
    void CheckMerged() {
        m_model.SetMergeMode(Below(6));
        for (int n = 0; n < Rows(); ++n) {
            m_model.RowAxis().SetMerge(n, Below(2) != 0);
        }
        for (int n = 0; n < m_nCols; ++n) {
            m_model.ColAxis().SetMerge(n, Below(2) != 0);
        }
        const qv::FlexGridRange window{0, 0, Rows() - 1, m_nCols - 1};
        for (int nRow = 0; nRow < Rows(); ++nRow) {
            for (int nCol = 0; nCol < m_nCols; ++nCol) {
                const qv::FlexGridRange range = m_model.Merged(nRow, nCol, window);
                FUZZ_CHECK(range.Contains(nRow, nCol));
                for (int r = range.nTop; r <= range.nBottom; ++r) {
                    for (int c = range.nLeft; c <= range.nRight; ++c) {
                        FUZZ_CHECK(m_model.Merged(r, c, window) == range);
                        FUZZ_CHECK(m_rows[r][c] == m_rows[nRow][nCol]);
                        FUZZ_CHECK((r < m_model.FixedRows()) == (nRow < m_model.FixedRows()));
                    }
                }
            }
        }
    }

    // What a point hits shows there, and the last page is full.
    void CheckView() {
        m_view.Refit({m_input.Int() + 1000, Below(200)});
        m_view.ScrollTo(Any(Rows()), Any(m_nCols));
        for (const qv::FlexGridSpan& span : {m_view.RowSpan(), m_view.ColSpan()}) {
            for (int nPos = 0; nPos < span.nClient; nPos += 7) {
                const int n = span.Nearest(nPos);
                FUZZ_CHECK(n == -1 || (span.axis.Has(n) && span.axis.Size(n) > 0));
                FUZZ_CHECK(n == -1 || span.Pos(n) > nPos || span.Shows(n));
                const int nEnd = span.EndAt(nPos);
                FUZZ_CHECK(nEnd == -1 ||
                           std::abs(span.Pos(nEnd) + span.axis.Size(nEnd) - nPos) <= 3);
            }
            const int nMax = span.MaxFirst();
            for (const int nCode : {0, 1, 2, 3, 4, 6, 7, 8}) {  // lines, pages, thumb, ends
                const int n = span.After(static_cast<unsigned>(nCode), Below(40) - 5);
                FUZZ_CHECK(n >= span.nFixed && n <= nMax);
                FUZZ_CHECK((nCode != 0 && nCode != 2) || n < span.nFirst || n == span.nFixed);
                FUZZ_CHECK((nCode != 1 && nCode != 3) || n > span.nFirst || n == nMax);
            }
            FUZZ_CHECK(span.nFirst >= span.nFixed && span.nFirst <= nMax);
            const int nBefore = span.axis.ShownUpTo(nMax - 1);
            FUZZ_CHECK(nBefore < span.nFixed ||
                       span.axis.Length() - span.axis.Start(nBefore) > span.Room());
        }
        const qv::FlexGridSelector selector{
            m_model, static_cast<qv::FlexGridSelectionMode>(Below(3)), Below(2) != 0};
        m_selection = selector.Fitted(m_selection);
        const qv::FlexGridKey key{0x21 + static_cast<unsigned>(Below(9)), Below(2) != 0,
                                  Below(2) != 0};
        if (const auto next = selector.AfterKey(m_selection, key, m_view); next.has_value()) {
            FUZZ_CHECK(selector.Fitted(*next) == *next);
            m_selection = *next;
        }
    }

    void Step() {
        switch (Below(14)) {
            case 0:
                return SetCounts(Any(30), Any(8));
            case 1:
                m_model.SetFixedRows(Any(Rows()));
                m_model.SetFixedCols(Any(m_nCols));
                return;
            case 2:
            case 3:
                return AddItem();
            case 4:
                if (const int nRow = Any(Rows());
                    m_model.RemoveItem(nRow) == qv::FlexGridError::None) {
                    m_rows.erase(m_rows.begin() + nRow);
                }
                return;
            case 5:
                return MoveLine();
            case 6:
                return Sort();
            case 7:
                return CheckMerged();
            case 8:
                return CheckView();
            case 9:
                if (const int nRow = Any(Rows()); m_model.RowAxis().Has(nRow)) {
                    m_model.RowAxis().SetSize(nRow, Below(40) - 2);
                    m_model.RowAxis().SetLeastSize(Below(9));
                }
                return;
            case 10: {
                const std::u16string strFormat = Text() + Text();
                const auto titles = qv::ParseFormatString(strFormat);
                qv::ApplyTitles(m_model, titles, [](auto text) { return text.size() * 7; });
                SetCounts(m_model.Rows(), m_model.Cols());
                return ReadBack();
            }
            case 11:
                m_model.SetClip({Below(5), Below(5), Below(9), Below(9)}, Text());
                return ReadBack();
            default:
                const int nRow = Any(Rows());
                const int nCol = Any(m_nCols);
                const std::u16string strText = kWords[Below(std::size(kWords))];
                if (m_model.SetText(nRow, nCol, strText) == qv::FlexGridError::None) {
                    m_rows[static_cast<size_t>(nRow)][static_cast<size_t>(nCol)] = strText;
                    m_model.FormatToSet(nRow, nCol).strFont = strText;
                }
        }
    }

    // For what has rules of its own, held by tests.
    void ReadBack() {
        for (int nRow = 0; nRow < Rows(); ++nRow) {
            for (int nCol = 0; nCol < m_nCols; ++nCol) {
                m_rows[static_cast<size_t>(nRow)][static_cast<size_t>(nCol)] =
                    m_model.Text(nRow, nCol);
            }
        }
    }

    void CheckTexts() {
        FUZZ_CHECK(m_model.Rows() == Rows() && m_model.Cols() == m_nCols);
        for (int nRow = -1; nRow <= Rows(); ++nRow) {
            for (int nCol = -1; nCol <= m_nCols; ++nCol) {
                FUZZ_CHECK(m_model.Text(nRow, nCol) ==
                           (m_model.HasCell(nRow, nCol) ? m_rows[nRow][nCol] : u""));
            }
        }
    }

    static constexpr const char16_t* kWords[] = {u"", u"a", u"b", u"12", u" 7.5 ", u"B longer one"};

    FuzzInput m_input;
    qv::FlexGridModel m_model;
    qv::FlexGridView m_view{m_model};
    qv::FlexGridSelection m_selection;
    std::vector<Row> m_rows{2, Row(2)};
    int m_nCols = 2;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    FlexGridRun(pData, nSize).Run();
    return 0;
}
