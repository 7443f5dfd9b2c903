#include "model/report_settings.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr Margins kDefaultMargins = {23, 23, 23, 23};

// What settings of version 1 called their margins, before each side had its own.
constexpr std::pair<const char*, double> kOldNames[] = {{"narrow", 15}, {"wide", 36}};

}  // namespace

bool ReadMargin(const std::string& strText, double& margin) {
    char* pEnd = nullptr;
    const double value = std::strtod(strText.c_str(), &pEnd);
    const bool bWhole = pEnd != strText.c_str() && *pEnd == '\0';
    if (!bWhole || !(value >= 0 && value <= kWidestMargin)) {
        return false;
    }
    margin = value;
    return true;
}

Margins ReadMargins(const std::string& strText) {
    for (const auto& [pszName, margin] : kOldNames) {
        if (strText == pszName) {
            return {margin, margin, margin, margin};
        }
    }
    Margins margins{};
    std::string_view rest(strText);
    for (double& margin : margins) {
        const size_t nEnd = std::min(rest.find(' '), rest.size());
        if (!ReadMargin(std::string(rest.substr(0, nEnd)), margin)) {
            return kDefaultMargins;
        }
        rest.remove_prefix(std::min(nEnd + 1, rest.size()));
    }
    return margins;
}

std::string MarginText(double margin) {
    char szText[32];
    std::snprintf(szText, sizeof(szText), "%.4g", margin);
    return szText;
}

std::string ReplaceCodes(std::string_view text,
                         const std::vector<std::pair<std::string_view, std::string>>& values) {
    std::string strResult;
    while (!text.empty()) {
        size_t nTaken = 1;
        std::string_view put = text.substr(0, 1);
        for (const auto& [code, strValue] : values) {
            if (text.starts_with(code)) {
                nTaken = code.size();
                put = strValue;
            }
        }
        strResult += put;
        text.remove_prefix(nTaken);
    }
    return strResult;
}
