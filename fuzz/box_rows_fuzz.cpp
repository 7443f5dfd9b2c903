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
    while (!input.AtEnd()) {
        const std::string str1 = input.Text();
        const std::string str2 = input.Text();
        const auto place =
            input.Byte() % 2 != 0 ? qv::NumberPlace::InFront : qv::NumberPlace::Behind;
        const int nNumber = qv::SplitBoxRow(str1, place).nNumber;
        const std::string strStored = qv::JoinBoxRow(nNumber, str1, place);
        const qv::BoxRow row = qv::SplitBoxRow(strStored, place);
        FUZZ_CHECK(row.nNumber == nNumber && row.text == str1);
        FUZZ_CHECK(qv::CompareBoxFields(str1.c_str(), str2.c_str(), styles, text) ==
                   -qv::CompareBoxFields(str2.c_str(), str1.c_str(), styles, text));

        FixedMeasure measure;
        int tabs[qv::kMaxTabs];
        const std::span<int> used(
            tabs, static_cast<std::size_t>(qv::TabsFromFields(str2, measure, tabs)));
        qv::StretchTabs(used, input.Int(), static_cast<int>(input.Byte()), input.Int() * 9);
        for (int& nTab : used) {
            nTab += static_cast<int>(input.Byte() % 3) * 10000;
        }
        qv::SetColumnWidth(used, input.Int() % 30, input.Int() * 30000);
        qv::BoxFieldReader reader(str1, {input.Int(), 0, input.Int(), 9}, used, DT_CENTER, styles);
        std::size_t nFields = 0;
        for (qv::BoxField field; reader.Next(field);) {
            FUZZ_CHECK(++nFields <= used.size() + 1 && field.nStyle < std::max(styles.Count(), 1));
            FUZZ_CHECK(field.text.find('\t') == std::string_view::npos);
        }
    }
    return 0;
}
