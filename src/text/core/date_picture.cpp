#include "text/core/date_picture.h"

namespace qv {

namespace {

constexpr std::size_t kNone = std::string_view::npos;

// Where the part begins first and where the character before that does: kNone and 0 without it.
struct Place {
    std::size_t nAt = kNone;
    std::size_t nBefore = 0;
};

Place Find(std::string_view format, std::string_view part, const MultiByte& text) {
    std::size_t nBefore = 0;
    for (std::size_t n = 0; n < format.size() && !part.empty();) {
        if (format.substr(n, part.size()) == part) {
            return {n, nBefore};
        }
        nBefore = n;
        n += text.CharBytes(format.substr(n));
    }
    return {};
}

// True if a character begins at the last nBytes bytes, and they are the part.
bool EndsIn(std::string_view format, std::string_view part, const MultiByte& text) {
    std::size_t n = 0;
    while (n < format.size() && format.size() - n > part.size()) {
        n += text.CharBytes(format.substr(n));
    }
    return format.substr(n) == part;
}

}  // namespace

void DoubleFormatCharacter(std::string& strFormat, char ch, const MultiByte& text) {
    const std::string strTwice(2, ch);
    if (Find(strFormat, strTwice, text).nAt != kNone) {
        return;
    }
    const Place place = Find(strFormat, std::string_view(&ch, 1), text);
    if (place.nAt != kNone) {
        strFormat.insert(place.nAt, 1, ch);
    }
}

void DoubleFormatString(std::string& strFormat, std::string_view part, const MultiByte& text) {
    const std::string strTwice = std::string(part).append(part);
    const Place place = Find(strFormat, part, text);
    if (place.nAt == kNone || Find(strFormat, strTwice, text).nAt != kNone) {
        return;
    }
    if (place.nAt > 0 && EndsIn(strFormat, part, text)) {
        strFormat.resize(place.nAt + part.size());
    }
    strFormat.insert(place.nAt, part);
}

void RemoveFormatString(std::string& strFormat, std::string_view part, const MultiByte& text) {
    const Place place = Find(strFormat, part, text);
    if (place.nAt == kNone) {
        return;
    }
    std::size_t nEnd = place.nAt + part.size();
    if (place.nAt == 0) {
        nEnd += text.CharBytes(std::string_view(strFormat).substr(nEnd));
    }
    strFormat.erase(place.nBefore, nEnd - place.nBefore);
}

}  // namespace qv
