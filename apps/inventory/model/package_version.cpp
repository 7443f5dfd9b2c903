#include "model/package_version.h"

namespace {

struct Version {
    std::string_view epoch;
    std::string_view upstream;
    std::string_view revision;
};

Version Split(std::string_view text) {
    Version version;
    if (const size_t nColon = text.find(':'); nColon != std::string_view::npos) {
        version.epoch = text.substr(0, nColon);
        text.remove_prefix(nColon + 1);
    }
    const size_t nHyphen = text.rfind('-');
    version.upstream = text.substr(0, nHyphen);
    if (nHyphen != std::string_view::npos) {
        version.revision = text.substr(nHyphen + 1);
    }
    return version;
}

bool IsDigit(char ch) {
    return ch >= '0' && ch <= '9';
}

// A tilde stands before the end of a part, letters before all else.
int Weight(char ch) {
    constexpr int kBehindLetters = 256;
    const bool bLetter = (ch >= 'a' && ch <= 'z') || (ch >= 'A' && ch <= 'Z');
    return ch == '~' ? -1 : static_cast<unsigned char>(ch) + (bLetter ? 0 : kBehindLetters);
}

// The weight of the first character as far as that is no digit, which is taken off.
int TakeWeight(std::string_view& text) {
    if (text.empty() || IsDigit(text[0])) {
        return 0;
    }
    const int nWeight = Weight(text[0]);
    text.remove_prefix(1);
    return nWeight;
}

// Without leading zeros: the longer number is the larger one.
std::string_view TakeNumber(std::string_view& text) {
    size_t nEnd = 0;
    while (nEnd < text.size() && IsDigit(text[nEnd])) {
        ++nEnd;
    }
    std::string_view number = text.substr(0, nEnd);
    text.remove_prefix(nEnd);
    while (!number.empty() && number[0] == '0') {
        number.remove_prefix(1);
    }
    return number;
}

// What is no number and numbers in turn.
std::weak_ordering ComparePart(std::string_view a, std::string_view b) {
    while (!a.empty() || !b.empty()) {
        while ((!a.empty() && !IsDigit(a[0])) || (!b.empty() && !IsDigit(b[0]))) {
            const int nA = TakeWeight(a);
            const int nB = TakeWeight(b);
            if (nA != nB) {
                return nA <=> nB;
            }
        }
        const std::string_view numberA = TakeNumber(a);
        const std::string_view numberB = TakeNumber(b);
        if (numberA.size() != numberB.size()) {
            return numberA.size() <=> numberB.size();
        }
        if (numberA != numberB) {
            return numberA <=> numberB;
        }
    }
    return std::weak_ordering::equivalent;
}

}  // namespace

std::weak_ordering CompareVersions(std::string_view a, std::string_view b) {
    const Version versionA = Split(a);
    const Version versionB = Split(b);
    std::weak_ordering order = ComparePart(versionA.epoch, versionB.epoch);
    if (order == 0) {
        order = ComparePart(versionA.upstream, versionB.upstream);
    }
    return order != 0 ? order : ComparePart(versionA.revision, versionB.revision);
}
