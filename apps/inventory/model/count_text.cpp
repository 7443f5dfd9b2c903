#include "model/count_text.h"

std::string NounText(std::size_t n, std::string_view noun) {
    if (n == 1 || noun.empty()) {
        return std::string(noun);
    }
    const auto ends = [&](std::string_view end) { return noun.ends_with(end); };
    if (ends("y") && !ends("ay") && !ends("ey") && !ends("oy") && !ends("uy")) {
        return std::string(noun.substr(0, noun.size() - 1)) + "ies";
    }
    return std::string(noun) + (ends("s") || ends("x") || ends("ch") || ends("sh") ? "es" : "s");
}

std::string CountText(std::size_t n, std::string_view noun) {
    return std::to_string(n) + " " + NounText(n, noun);
}

std::string GroupedText(std::size_t n) {
    constexpr std::size_t kGroup = 3;
    std::string str = std::to_string(n);
    for (std::size_t nEnd = str.size(); nEnd > kGroup; nEnd -= kGroup) {
        str.insert(nEnd - kGroup, 1, ',');
    }
    return str;
}
