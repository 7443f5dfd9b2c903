// What a list does with rows of any bytes: split and join, find a row's place, and order by keys.

#include "frame/core/sort_keys.h"
#include "frame/core/styled_text.h"
#include "fuzz_input.h"
#include "fuzz_text.h"
#include "list/core/cut_rows.h"
#include "list/core/key_ranks.h"
#include "list/core/list_fit.h"
#include "list/core/list_row.h"
#include "list/core/sorted_places.h"

#include <algorithm>

namespace {

using Fields = std::vector<std::string>;

// On the heap at its exact size, so that a read too far shows.
Fields Split(const std::string& strRow) {
    const std::vector<char> row(strRow.begin(), strRow.end());
    Fields fields;
    int nPos = 0;
    qv::CutRow cells;
    cells.Assign(strRow);
    for (std::string_view field; qv::NextField({row.data(), row.size()}, nPos, field);) {
        FUZZ_CHECK(std::string(cells.Cell(static_cast<int>(fields.size()))) ==
                   std::string(field).c_str());
        FUZZ_CHECK(nPos > 0 && static_cast<size_t>(nPos) <= row.size());
        FUZZ_CHECK(field.find(qv::kFieldSeparator) == std::string_view::npos);
        fields.emplace_back(field);
    }
    return fields;
}

void CheckFillMark(const std::string& strField) {
    std::string_view field = strField;
    if (qv::TakeFillMark(field)) {
        FUZZ_CHECK(std::string(field) + '*' == strField);
    } else {
        FUZZ_CHECK(field == strField && !strField.ends_with('*'));
    }
}

// A row split gives what was joined, but for the empty fields at its start and one at its end.
void CheckJoin(FuzzInput& input) {
    Fields cells;
    std::string strRow;
    for (unsigned n = input.Byte() % 8; n > 0; --n) {
        const Fields parts = Split(input.Text());
        cells.push_back(parts.empty() ? "" : parts.back() + (input.Byte() % 4 == 0 ? "*" : ""));
        CheckFillMark(cells.back());
        qv::JoinCell(strRow, cells.back().c_str(), qv::kFieldSeparator);
    }
    const auto first =
        std::find_if(cells.begin(), cells.end(), [](const auto& str) { return !str.empty(); });
    cells.erase(cells.begin(), first);
    if (!cells.empty() && cells.back().empty()) {
        cells.pop_back();
    }
    FUZZ_CHECK(Split(strRow) == cells);
}

std::int32_t AnyNumber(FuzzInput& input) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(input.Int()) * 0x10001u);
}

void CheckPlaces(FuzzInput& input, const qv::MultiByte& text) {
    const bool bNumeric = input.Byte() % 2 != 0;
    const auto nextKey = [&] {
        std::string strKey;
        if (bNumeric) {
            return qv::NumberKey(AnyNumber(input));
        }
        text.AppendSortKey(input.Text().c_str(), strKey);
        return strKey;
    };
    qv::SortedPlaces places;
    std::vector<std::string> rows;
    for (unsigned n = input.Byte() % 32; n > 0; --n) {
        const std::string strKey = nextKey();
        const auto isGreater = [&](const std::string& str) { return str > strKey; };
        const auto nWalk =
            static_cast<size_t>(std::find_if(rows.begin(), rows.end(), isGreater) - rows.begin());
        FUZZ_CHECK(places.Find(strKey) == nWalk);
        // Rows stand in any order: others put them where they like.
        const size_t nPlace = input.Byte() % 2 != 0 ? nWalk : input.Byte() % (rows.size() + 1);
        rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(nPlace), strKey);
        places.Insert(nPlace, strKey);
        FUZZ_CHECK(places.CheckInvariants() && places.Count() == rows.size());
    }
}

void CheckNumberKeys(FuzzInput& input) {
    const std::int32_t n1 = AnyNumber(input);
    const std::int32_t n2 = AnyNumber(input);
    FUZZ_CHECK((qv::NumberKey(n1) < qv::NumberKey(n2)) == (n1 < n2));
}

void CheckSortKeys(FuzzInput& input, const qv::MultiByte& text) {
    qv::SortKeys keys(text);
    qv::KeyRanks ranked(text);
    Fields texts;
    std::vector<qv::SortKey> aKeys;
    for (unsigned n = input.Byte() % 8; n > 0; --n) {
        texts.push_back(input.Text());
        aKeys.push_back(keys.Text(texts.back().c_str()));
        ranked.AddText(texts.back().c_str());
    }
    const std::vector<std::uint32_t> ranks = ranked.TakeRanks();
    for (size_t i = 0; i < texts.size(); ++i) {
        for (size_t k = 0; k < texts.size(); ++k) {
            FUZZ_CHECK(keys.Compare(aKeys[i], aKeys[k]) ==
                       text.CompareNoCase(texts[i].c_str(), texts[k].c_str()));
            FUZZ_CHECK((ranks[i] < ranks[k]) == (keys.Compare(aKeys[i], aKeys[k]) < 0));
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    FuzzInput input(pData, nSize);
    const qv::MultiByte text = TextOfKind(input.Byte());
    while (!input.AtEnd()) {
        switch (input.Byte() % 4) {
            case 0:
                CheckJoin(input);
                break;
            case 1:
                CheckPlaces(input, text);
                break;
            case 2:
                CheckNumberKeys(input);
                break;
            default:
                CheckSortKeys(input, text);
                break;
        }
    }
    return 0;
}
