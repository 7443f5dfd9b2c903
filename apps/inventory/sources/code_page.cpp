#include "sources/code_page.h"

#include <algorithm>

namespace {

void Convert(std::string& str, UINT nFrom, UINT nTo) {
    if (nFrom == nTo || std::all_of(str.begin(), str.end(),
                                    [](char ch) { return static_cast<signed char>(ch) >= 0; })) {
        return;
    }
    const int nBytes = static_cast<int>(str.size());
    std::wstring strWide(str.size(), L'\0');
    const int nWide = ::MultiByteToWideChar(nFrom, 0, str.data(), nBytes, strWide.data(), nBytes);
    std::string strOut(static_cast<size_t>(nWide) * 4, '\0');
    const int nOut = ::WideCharToMultiByte(nTo, 0, strWide.data(), nWide, strOut.data(),
                                           static_cast<int>(strOut.size()), nullptr, nullptr);
    strOut.resize(static_cast<size_t>(nOut));
    str = strOut;
}

}  // namespace

std::string InProcessCodePage(std::string text) {
    Convert(text, CP_UTF8, ::GetACP());
    return text;
}

std::string InUtf8(std::string text) {
    Convert(text, ::GetACP(), CP_UTF8);
    return text;
}

void ToProcessCodePage(std::vector<Package>& packages) {
    if (::GetACP() == CP_UTF8) {
        return;
    }
    for (Package& package : packages) {
        for (std::string* pText : {&package.strName, &package.strSection, &package.strVersion,
                                   &package.strState, &package.strSummary}) {
            Convert(*pText, CP_UTF8, ::GetACP());
        }
        for (std::vector<std::string>* pNames : {&package.dependencies, &package.provides}) {
            for (std::string& strName : *pNames) {
                Convert(strName, CP_UTF8, ::GetACP());
            }
        }
    }
}
