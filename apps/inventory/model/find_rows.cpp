#include "model/find_rows.h"

namespace {

bool IsOfWord(wchar_t ch) {
    return (ch >= L'0' && ch <= L'9') || (ch >= L'a' && ch <= L'z') || (ch >= L'A' && ch <= L'Z') ||
           ch == L'_' || ch > 0x7F;
}

}  // namespace

std::size_t PlaceOfText(std::wstring_view text, std::wstring_view wanted, bool bWholeWord) {
    for (std::size_t nAt = 0; !wanted.empty(); ++nAt) {
        nAt = text.find(wanted, nAt);
        if (nAt == std::wstring_view::npos) {
            break;
        }
        const std::size_t nEnd = nAt + wanted.size();
        const bool bBefore = nAt > 0 && IsOfWord(text[nAt - 1]) && IsOfWord(wanted.front());
        const bool bBehind = nEnd < text.size() && IsOfWord(text[nEnd]) && IsOfWord(wanted.back());
        if (!bWholeWord || (!bBefore && !bBehind)) {
            return nAt;
        }
    }
    return std::wstring_view::npos;
}
