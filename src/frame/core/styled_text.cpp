#include "frame/core/styled_text.h"

#include "base/no_memory.h"

namespace qv {

namespace {

int StyleOfCode(char chCode) {
    return static_cast<signed char>(chCode) - kFirstStyleCode;
}

char CodeOfStyle(int nStyle) {
    return static_cast<char>(static_cast<unsigned char>((nStyle & 255) + kFirstStyleCode));
}

}  // namespace

bool HasStyle(const char* pszText) {
    return pszText != nullptr && *pszText == kStyleEscape;
}

FieldPrefix MakeStyleCodes(int nStyle) {
    if (nStyle < 0) {
        return {};
    }
    return {kStyleEscape, CodeOfStyle(nStyle)};
}

bool ChangeStyle(char* pszText, int nStyle) {
    if (pszText[0] != kStyleEscape || pszText[1] == 0) {
        return false;
    }
    pszText[1] = CodeOfStyle(nStyle);
    return true;
}

bool NextField(std::string_view row, int& nPos, std::string_view& field) {
    if (nPos >= static_cast<int>(row.size())) {
        field = {};
        return false;
    }
    const std::string_view rest = row.substr(static_cast<size_t>(nPos));
    // TAB is no second byte in any code page, so a byte search splits no character.
    const size_t nTab = rest.find(kFieldSeparator);
    field = rest.substr(0, nTab);
    nPos += static_cast<int>(nTab == std::string_view::npos ? rest.size() : nTab + 1);
    return true;
}

int StyleTable::Add(COLORREF crText, COLORREF crBk) {
    try {
        m_styles.push_back({crText, crBk});
    } catch (...) {
        ExpectNoMemory();
        return -1;
    }
    return Count() - 1;
}

void StyleTable::Update(int nStyle, COLORREF crText, COLORREF crBk) {
    if (nStyle >= 0 && nStyle < Count()) {
        m_styles[static_cast<size_t>(nStyle)] = {crText, crBk};
    }
}

int StyleTable::ParseStyle(const char* pszText) const {
    if (!HasStyle(pszText)) {
        return 0;
    }
    const int nStyle = StyleOfCode(pszText[1]);
    return nStyle >= 0 && nStyle < Count() ? nStyle : 0;
}

const char* StyleTable::ParseStyleText(const char* pszText) const {
    if (pszText == nullptr || *pszText == 0) {
        return "";
    }
    if (!HasStyle(pszText)) {
        return pszText;
    }
    const int nStyle = StyleOfCode(pszText[1]);
    return nStyle >= 0 && nStyle < Count() ? pszText + 2 : pszText + 1;
}

std::string_view StyleTable::ParseField(std::string_view field, int& nStyle) const {
    nStyle = -1;
    if (field.empty() || field[0] != kStyleEscape) {
        return field;
    }
    const int nCode = field.size() > 1 ? StyleOfCode(field[1]) : -1;
    const bool bValid = nCode >= 0 && nCode < Count();
    nStyle = bValid ? nCode : 0;
    return field.substr(bValid ? 2 : 1);
}

FieldPrefix StyleTable::PrefixFor(char chLast, int nStyle) const {
    if (nStyle < 0) {
        return {};
    }
    const char chCode = CodeOfStyle(nStyle < Count() ? nStyle : 0);
    if (chLast == 0 || chLast == kFieldSeparator) {
        return {kStyleEscape, chCode};
    }
    return {kFieldSeparator, kStyleEscape, chCode};
}

}  // namespace qv
