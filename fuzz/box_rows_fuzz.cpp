// Rows of list boxes and combo boxes: stored strings, fields between any stops, the order of rows.

#include "boxes/core/box_fields.h"
#include "boxes/core/box_order.h"
#include "boxes/core/box_row.h"
#include "boxes/core/header_tabs.h"
#include "fuzz_input.h"
#include "fuzz_text.h"
#include "support/fake_window.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    FuzzInput input(pData, nSize);
    const qv::MultiByte text = TextOfKind(input.Byte());
    qv::StyleTable styles;
    for (unsigned n = input.Byte() % 40; n > 0; --n) {
        styles.Add(0, 0);
    }
    int tabs[qv::kMaxTabs];
    FixedMeasure measure;
    while (!input.AtEnd()) {
        const std::string str1 = input.Text();
        const std::string str2 = input.Text();
        const auto place =
            input.Byte() % 2 != 0 ? qv::NumberPlace::InFront : qv::NumberPlace::Behind;
        const qv::BoxRow foreign = qv::SplitBoxRow(str1, place);
        const std::string strStored = qv::JoinBoxRow(foreign.nNumber, str1, place);
        const qv::BoxRow row = qv::SplitBoxRow(strStored, place);
        FUZZ_CHECK(row.nNumber == foreign.nNumber && row.text == str1);

        const int nOrder = qv::CompareBoxFields(str1.c_str(), str2.c_str(), styles, text);
        FUZZ_CHECK(nOrder == -qv::CompareBoxFields(str2.c_str(), str1.c_str(), styles, text));
        FUZZ_CHECK(text.Compare(str1, str2) == -text.Compare(str2, str1));
        FUZZ_CHECK((text.Compare(str1, str2) == 0) == (str1 == str2));

        const int nTabs = qv::TabsFromFields(str2, measure, tabs);
        FUZZ_CHECK(nTabs >= 0 && nTabs <= qv::kMaxTabs);
        const std::span<int> used(tabs, static_cast<std::size_t>(nTabs));
        qv::StretchTabs(used, input.Int(), static_cast<int>(input.Byte()), input.Int() * 9);
        for (int& nTab : used) {
            nTab += static_cast<int>(input.Byte() % 3) * 10000;
        }
        const int nCol = input.Int() % 30;
        const int nWidth = input.Int() * 30000;
        FUZZ_CHECK(qv::SetColumnWidth(used, nCol, nWidth) == (nCol >= 0 && nCol < nTabs));
        for (int i = 0; i < nTabs; ++i) {
            FUZZ_CHECK(qv::TabValue(used, i) >= 0);
        }
        qv::BoxFieldReader reader(str1, {input.Int(), 0, input.Int(), 9}, used, DT_CENTER, styles);
        int nFields = 0;
        for (qv::BoxField field; reader.Next(field);) {
            FUZZ_CHECK(++nFields <= nTabs + 1 && field.nStyle < std::max(styles.Count(), 1));
            FUZZ_CHECK(field.text.find('\t') == std::string_view::npos);
        }
    }
    return 0;
}
