#include "boxes/core/box_row.h"

#include "frame/core/styled_text.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace qv {

namespace {

int ReadNumber(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
    if (text.starts_with('+') && !text.starts_with("+-")) {
        text.remove_prefix(1);
    }
    int nNumber = 0;
    const auto [pEnd, error] = std::from_chars(text.data(), text.data() + text.size(), nNumber);
    if (error == std::errc::result_out_of_range) {
        using Limits = std::numeric_limits<int>;
        return text.starts_with('-') ? Limits::min() : Limits::max();
    }
    return nNumber;
}

}  // namespace

std::string JoinBoxRow(int nNumber, std::string_view text, NumberPlace place) {
    char aDigits[16];
    const char* pEnd = std::to_chars(std::begin(aDigits), std::end(aDigits), nNumber).ptr;
    const std::string_view number(aDigits, static_cast<std::size_t>(pEnd - aDigits));
    const bool bInFront = place == NumberPlace::InFront;
    std::string strRow;
    strRow.reserve(text.size() + 1 + number.size());
    strRow.append(bInFront ? number : text);
    strRow.push_back(kFieldSeparator);
    strRow.append(bInFront ? text : number);
    return strRow;
}

BoxRow SplitBoxRow(std::string_view stored, NumberPlace place) {
    const bool bInFront = place == NumberPlace::InFront;
    const std::size_t nTab =
        bInFront ? stored.find(kFieldSeparator) : stored.rfind(kFieldSeparator);
    if (nTab == std::string_view::npos) {
        return {0, stored};
    }
    const std::string_view before = stored.substr(0, nTab);
    const std::string_view behind = stored.substr(nTab + 1);
    return {ReadNumber(bInFront ? before : behind), bInFront ? behind : before};
}

}  // namespace qv
