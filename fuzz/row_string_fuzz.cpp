// Row strings, columns and multi-byte text of any bytes.

#include "frame/core/spoken_text.h"
#include "fuzz_input.h"
#include "fuzz_text.h"
#include "support/fake_window.h"
#include "tree/core/tree_columns.h"

#include <algorithm>
#include <memory>

namespace {

// On the heap with nothing behind it, so that a read too far shows.
std::unique_ptr<char[]> Exact(const std::string& str) {
    auto psz = std::make_unique<char[]>(str.size() + 1);
    str.copy(psz.get(), str.size());
    return psz;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    FuzzInput input(pData, nSize);
    const qv::MultiByte text = TextOfKind(input.Byte());
    qv::StyleTable styles;
    for (unsigned n = input.Byte() % 40; n > 0; --n) {
        styles.Add(0, 0);
    }
    qv::TabStops tabs;
    int stops[30];
    for (int& nStop : stops) {
        nStop = input.Int() * 4;
    }
    tabs.Use(stops, static_cast<int>(input.Byte() % 32) - 1);
    FixedMeasure measure;
    while (!input.AtEnd()) {
        const std::string str1 = input.Text();
        const std::string str2 = input.Text();
        const auto psz1 = Exact(str1);
        const auto psz2 = Exact(str2);
        FUZZ_CHECK(text.CompareNoCase(psz1.get(), psz2.get()) ==
                   -text.CompareNoCase(psz2.get(), psz1.get()));
        FUZZ_CHECK(text.PrefixBytes(psz1.get(), input.Byte()) <= str1.size());
        const char* pszShown = styles.ParseStyleText(psz1.get());
        // An empty text may be shown by another empty one.
        FUZZ_CHECK(str1.empty() ? *pszShown == '\0'
                                : pszShown >= psz1.get() && pszShown <= psz1.get() + str1.size());
        FUZZ_CHECK(styles.ParseStyle(psz1.get()) <= std::max(0, styles.Count() - 1));
        size_t nFields = 0;
        std::string_view field;
        for (int nPos = 0; qv::NextField({psz1.get(), str1.size()}, nPos, field);) {
            FUZZ_CHECK(++nFields <= str1.size());
        }
        const bool bIndent = input.Byte() % 2 != 0;
        qv::ColumnsExtent({psz1.get(), str1.size()}, tabs, bIndent, styles, measure);
        qv::FieldReader reader({psz1.get(), str1.size()}, {0, 0, 500, 16}, tabs, bIndent, styles);
        int nRead = 0;
        for (qv::Field f; reader.Next(f);) {
            FUZZ_CHECK(++nRead <= tabs.Count() + 1 && f.nStyle < std::max(1, styles.Count()));
        }
        FUZZ_CHECK(nRead >= 1);
        const std::string strSpoken =
            qv::SpokenText({psz1.get(), str1.size()}, styles,
                           {static_cast<int>(input.Byte() % 3), static_cast<int>(input.Byte())},
                           {psz2.get(), str2.size()});
        FUZZ_CHECK(std::ranges::none_of(
            strSpoken, [](char ch) { return static_cast<unsigned char>(ch) < ' '; }));
        FUZZ_CHECK(strSpoken.empty() || (strSpoken.front() != ' ' && strSpoken.back() != ' '));
    }
    return 0;
}
