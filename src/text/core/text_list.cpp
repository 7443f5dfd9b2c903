#include "text/core/text_list.h"

#include "frame/core/styled_text.h"

namespace qv {

std::vector<std::string_view> SplitTextList(std::string_view list) {
    std::vector<std::string_view> entries;
    std::string_view field;
    for (int nPos = 0; NextField(list, nPos, field);) {
        const std::size_t nFirst = field.find_first_not_of(' ');
        const std::size_t nLast = field.find_last_not_of(' ');
        entries.push_back(nFirst == std::string_view::npos
                              ? std::string_view()
                              : field.substr(nFirst, nLast - nFirst + 1));
    }
    return entries;
}

}  // namespace qv
