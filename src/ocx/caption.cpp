#include "ocx/caption.h"

#include <algorithm>

namespace ocx {

static constexpr size_t kMostCharacters = 2000;  // that are looked at; more show on no screen

static bool IsInPair(std::wstring_view text, size_t n) {
    return n > 0 && n < text.size() && IS_LOW_SURROGATE(text[n]) && IS_HIGH_SURROGATE(text[n - 1]);
}

static int Width(HDC hDC, std::wstring_view text) {
    SIZE size = {};
    ::GetTextExtentPoint32W(hDC, text.data(), static_cast<int>(text.size()), &size);
    return size.cx;
}

/// How many characters fit, none of them half.
static size_t FittingCount(HDC hDC, std::wstring_view text, int nWidth) {
    int nFit = 0;
    SIZE size = {};
    ::GetTextExtentExPointW(hDC, text.data(), static_cast<int>(text.size()), std::max(nWidth, 0),
                            &nFit, nullptr, &size);
    const auto nCount = static_cast<size_t>(std::max(nFit, 0));
    return IsInPair(text, nCount) ? nCount - 1 : nCount;
}

Caption::Caption(std::wstring_view marked, bool bKeepsFeeds) {
    marked =
        marked.substr(0, IsInPair(marked, kMostCharacters) ? kMostCharacters - 1 : kMostCharacters);
    for (size_t n = 0; n < marked.size(); ++n) {
        if (marked[n] == L'&') {
            if (++n == marked.size()) {
                break;
            }
            if (marked[n] != L'&') {
                nMnemonic = text.size();
            }
        }
        if (marked[n] != L'\r') {
            text += marked[n] == L'\n' && !bKeepsFeeds ? L' ' : marked[n];
        }
    }
}

std::vector<CaptionLine> CaptionLines(HDC hDC, std::wstring_view text, bool bWrap, int nWidth) {
    std::vector<CaptionLine> lines;
    for (size_t nStart = 0; nStart <= text.size();) {
        const size_t nFeed = bWrap ? std::min(text.find(L'\n', nStart), text.size()) : text.size();
        std::wstring_view rest = text.substr(nStart, nFeed - nStart);
        if (const int nAll = Width(hDC, rest); !bWrap || nWidth <= 0 || nAll <= nWidth) {
            lines.push_back({nStart, rest.size(), nAll});
            nStart = nFeed + 1;
            continue;
        }
        size_t nCount = FittingCount(hDC, rest, nWidth);
        if (const size_t nBlank = rest.substr(0, nCount + 1).rfind(L' ');
            nBlank != std::wstring::npos && nBlank > 0) {
            nCount = nBlank;
        } else if (nCount == 0) {
            nCount = IsInPair(rest, 1) ? 2 : 1;
        }
        lines.push_back({nStart, nCount, Width(hDC, rest.substr(0, nCount))});
        nStart += nCount;
        if (nStart < nFeed && text[nStart] == L' ') {
            ++nStart;
        } else if (nStart == nFeed) {
            ++nStart;
        }
    }
    return lines;
}

std::wstring FitText(HDC hDC, std::wstring_view text, int nWidth) {
    constexpr std::wstring_view kEllipsis = L"...";
    if (Width(hDC, text) <= nWidth) {
        return std::wstring(text);
    }
    const size_t nCount = FittingCount(hDC, text, nWidth - Width(hDC, kEllipsis));
    return std::wstring(text.substr(0, nCount)).append(kEllipsis);
}

}  // namespace ocx
