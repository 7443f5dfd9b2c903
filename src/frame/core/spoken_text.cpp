#include "frame/core/spoken_text.h"

namespace qv {

namespace {

constexpr std::string_view kPause = ", ";
constexpr std::string_view kOfHeading = ": ";

// Such bytes are no second bytes in any code page.
bool IsSpace(char ch) {
    const auto nByte = static_cast<unsigned char>(ch);
    return nByte <= ' ' || nByte == 0x7F;
}

}  // namespace

std::string SpokenField(std::string_view field, const StyleTable& styles) {
    int nStyle = 0;
    std::string strSpoken;
    bool bSpace = false;
    for (const char ch : styles.ParseField(field, nStyle)) {
        if (IsSpace(ch)) {
            bSpace = !strSpoken.empty();
            continue;
        }
        if (bSpace) {
            strSpoken += ' ';
            bSpace = false;
        }
        strSpoken += ch;
    }
    return strSpoken;
}

std::string JoinSpoken(std::string strFirst, std::string_view second) {
    if (!strFirst.empty() && !second.empty()) {
        strFirst += kPause;
    }
    return strFirst += second;
}

std::string SpokenText(std::string_view row, const StyleTable& styles, SpokenFields fields,
                       std::string_view headings) {
    std::string strAll;
    int nPos = 0;
    int nHeadingPos = 0;
    std::string_view field;
    for (int nColumn = 0; nColumn < fields.nEnd && NextField(row, nPos, field); ++nColumn) {
        std::string_view heading;
        NextField(headings, nHeadingPos, heading);
        if (nColumn < fields.nFirst) {
            continue;
        }
        std::string strField = SpokenField(field, styles);
        if (strField.empty()) {
            continue;
        }
        std::string strHeading = SpokenField(heading, styles);
        if (!strHeading.empty()) {
            strField = std::move(strHeading += kOfHeading) + strField;
        }
        strAll = JoinSpoken(std::move(strAll), strField);
    }
    return strAll;
}

std::string SpokenColumn(std::string_view row, const StyleTable& styles, int nColumn) {
    int nPos = 0;
    std::string_view field;
    while (NextField(row, nPos, field)) {
        if (nColumn-- == 0) {
            return SpokenField(field, styles);
        }
    }
    return {};
}

}  // namespace qv
