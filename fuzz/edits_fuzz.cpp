// Pictures of dates, lists of a text box, and beginnings of texts, of any bytes.

#include "fuzz_input.h"
#include "fuzz_text.h"
#include "text/core/date_picture.h"
#include "text/core/text_list.h"
#include "text/core/type_ahead.h"

#include <algorithm>

namespace {

// Where characters begin, and the end.
std::vector<std::size_t> Starts(const std::string& str, const qv::MultiByte& text) {
    std::vector<std::size_t> starts{0};
    while (starts.back() < str.size()) {
        starts.push_back(starts.back() +
                         text.CharBytes(std::string_view(str).substr(starts.back())));
    }
    return starts;
}

bool Shows(const std::string& str, const std::string& strPart, const qv::MultiByte& text) {
    const auto starts = Starts(str, text);
    return std::any_of(starts.begin(), starts.end(), [&](std::size_t n) {
        return n < str.size() && str.compare(n, strPart.size(), strPart) == 0;
    });
}

void CheckPictures(const std::string& strFormat, const std::string& strPart,
                   const qv::MultiByte& text) {
    const bool bThere = !strPart.empty() && Shows(strFormat, strPart, text);
    std::string str = strFormat;
    qv::RemoveFormatString(str, strPart, text);
    FUZZ_CHECK(bThere ? str.size() <= strFormat.size() - strPart.size() : str == strFormat);
    FUZZ_CHECK(!bThere || strFormat.size() - str.size() <= strPart.size() + 4);
    str = strFormat;
    qv::DoubleFormatString(str, strPart, text);
    FUZZ_CHECK(bThere ? Shows(str, strPart + strPart, text) : str == strFormat);
    str = strFormat;
    qv::DoubleFormatCharacter(str, 'a', text);
    FUZZ_CHECK(Shows(strFormat, "a", text) ? Shows(str, "aa", text) : str == strFormat);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    FuzzInput input(pData, nSize);
    const qv::MultiByte text = TextOfKind(input.Byte());
    while (!input.AtEnd()) {
        const std::string strFormat = input.Text();
        // A part ends where a character does, as every text that a program writes.
        CheckPictures(strFormat, std::string(input.Byte() % 4, 'a'), text);

        const auto entries = qv::SplitTextList(strFormat);
        FUZZ_CHECK(entries.size() <= strFormat.size());
        std::vector<std::string> names(entries.begin(), entries.end());
        const auto before = [&](const std::string& str1, const std::string& str2) {
            return text.CompareNoCase(str1.c_str(), str2.c_str()) < 0;
        };
        if (input.Byte() % 4 != 0) {
            std::sort(names.begin(), names.end(), before);
        }
        const std::string strTyped = input.Text() + "a";
        const auto match = [&](int n) {
            return text.CompareNoCase(names[static_cast<std::size_t>(n)].c_str(), strTyped.c_str(),
                                      strTyped.size());
        };
        const int nFound = qv::FindTyped(static_cast<int>(names.size()), match);
        FUZZ_CHECK(nFound == -1 || match(nFound) == 0);
        if (std::is_sorted(names.begin(), names.end(), before)) {
            int nFirst = -1;
            for (int n = static_cast<int>(names.size()) - 1; n >= 0; --n) {
                nFirst = match(n) == 0 ? n : nFirst;
            }
            FUZZ_CHECK(nFound == nFirst);
        }
    }
    return 0;
}
