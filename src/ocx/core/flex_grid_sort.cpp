#include "ocx/core/flex_grid_sort.h"

#include <algorithm>
#include <numeric>

namespace qv {

namespace {

struct Key {
    double value = 0;
    std::string strText;  // where it counts

    int Compare(const Key& other, bool bTextsLast) const {
        if (bTextsLast && strText.empty() != other.strText.empty()) {
            return strText.empty() ? -1 : 1;
        }
        if (value != other.value) {
            return value < other.value ? -1 : 1;
        }
        return strText.compare(other.strText);
    }
};

bool IsDescending(FlexGridSort kind) {
    return kind % 2 == 0;
}

Key KeyOf(std::u16string_view text, FlexGridSort kind, const FlexGridTextKey& key) {
    Key made;
    if (kind <= fgoGenericDescending) {
        if (!ParseNumber(text, made.value)) {
            made.strText = key(text, true);
            made.strText += '\1';  // an empty text is a text, too
        }
    } else if (kind <= fgoNumericDescending) {
        made.value = LeadingNumber(text);
    } else {
        made.strText = key(text, kind <= fgoTextNoCaseDescending);
    }
    return made;
}

}  // namespace

bool StableSort(std::vector<int>& rows,
                const std::function<std::optional<int>(int, int)>& compare) {
    std::vector<int> from = rows;
    std::vector<int> to(rows.size());
    const std::size_t nAll = rows.size();
    for (std::size_t nRun = 1; nRun < nAll; nRun *= 2) {
        for (std::size_t nStart = 0; nStart < nAll; nStart += 2 * nRun) {
            std::size_t a = nStart;
            const std::size_t nEndA = std::min(nStart + nRun, nAll);
            std::size_t b = nEndA;
            const std::size_t nEndB = std::min(nStart + 2 * nRun, nAll);
            for (std::size_t n = nStart; n < nEndB; ++n) {
                bool bFirst = b == nEndB;
                if (!bFirst && a < nEndA) {
                    const std::optional<int> nOrder = compare(from[a], from[b]);
                    if (!nOrder.has_value()) {
                        return false;
                    }
                    bFirst = *nOrder <= 0;
                }
                to[n] = bFirst ? from[a++] : from[b++];
            }
        }
        from.swap(to);
    }
    rows.swap(from);
    return true;
}

std::vector<int> SortedRows(const FlexGridModel& model, const FlexGridRange& range,
                            FlexGridSort kind, const FlexGridTextKey& key) {
    std::vector<int> rows(static_cast<std::size_t>(std::max(range.nBottom - range.nTop + 1, 0)));
    std::iota(rows.begin(), rows.end(), range.nTop);
    if (kind < fgoGenericAscending || kind > fgoTextDescending || range.nRight < range.nLeft) {
        return rows;
    }
    const auto nCols = static_cast<std::size_t>(range.nRight - range.nLeft + 1);
    std::vector<Key> keys;
    keys.reserve(rows.size() * nCols);
    for (const int nRow : rows) {
        for (int nCol = range.nLeft; nCol <= range.nRight; ++nCol) {
            keys.push_back(KeyOf(model.Text(nRow, nCol), kind, key));
        }
    }
    const bool bTextsLast = kind <= fgoGenericDescending;
    const int nSign = IsDescending(kind) ? -1 : 1;
    const auto goesFirst = [&](int nRow1, int nRow2) {
        const Key* p1 = &keys[static_cast<std::size_t>(nRow1 - range.nTop) * nCols];
        const Key* p2 = &keys[static_cast<std::size_t>(nRow2 - range.nTop) * nCols];
        for (std::size_t i = 0; i < nCols; ++i) {
            if (const int nOrder = p1[i].Compare(p2[i], bTextsLast); nOrder != 0) {
                return nOrder * nSign < 0;
            }
        }
        return false;
    };
    std::stable_sort(rows.begin(), rows.end(), goesFirst);
    return rows;
}

}  // namespace qv
