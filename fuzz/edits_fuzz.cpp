// Pictures of dates, lists of a text box, and beginnings of texts, of any bytes.

#include "fuzz_input.h"
#include "fuzz_text.h"
#include "text/core/date_picture.h"
#include "text/core/text_list.h"
#include "text/core/type_ahead.h"

#include <algorithm>

namespace {

// True if the part begins where a character does.
bool Shows(const std::string& str, const std::string& strPart, const qv::MultiByte& text) {
    std::size_t n = 0;
    while (n < str.size() && str.compare(n, strPart.size(), strPart) != 0) {
        n += text.CharBytes(std::string_view(str).substr(n));
    }
    return n < str.size();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    FuzzInput input(pData, nSize);
    const qv::MultiByte text = TextOfKind(input.Byte());
    while (!input.AtEnd()) {
        const std::string strFormat = input.Text();
        const std::string strPart(1 + input.Byte() % 3, 'a');
        const bool bThere = Shows(strFormat, strPart, text);
        std::string str = strFormat;
        qv::RemoveFormatString(str, strPart, text);
        const std::size_t nGone = strFormat.size() - str.size();
        FUZZ_CHECK(bThere ? nGone >= strPart.size() && nGone <= strPart.size() + 4 : nGone == 0);
        str = strFormat;
        qv::DoubleFormatString(str, strPart, text);
        FUZZ_CHECK(bThere ? Shows(str, strPart + strPart, text) : str == strFormat);

        const auto entries = qv::SplitTextList(strFormat);
        std::vector<std::string> names(entries.begin(), entries.end());
        const auto before = [&](const std::string& str1, const std::string& str2) {
            return text.CompareNoCase(str1.c_str(), str2.c_str()) < 0;
        };
        if (input.Byte() % 4 != 0) {
            std::sort(names.begin(), names.end(), before);
        }
        const std::string strTyped = input.Text() + "a";
        const auto order = [&](const std::string& strName) {
            return text.CompareNoCase(strName.c_str(), strTyped.c_str(), strTyped.size());
        };
        const int nFound = qv::FindTyped(static_cast<int>(names.size()), [&](int n) {
            return order(names[static_cast<std::size_t>(n)]);
        });
        const auto first = std::find_if(names.begin(), names.end(),
                                        [&](const auto& strName) { return order(strName) == 0; });
        const int nFirst = first != names.end() ? static_cast<int>(first - names.begin()) : -1;
        FUZZ_CHECK(nFound == nFirst || !std::is_sorted(names.begin(), names.end(), before));
        FUZZ_CHECK(nFound == -1 || order(names[static_cast<std::size_t>(nFound)]) == 0);
    }
    return 0;
}
