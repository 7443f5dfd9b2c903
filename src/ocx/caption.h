// The caption of a tab: its text without the marks of a mnemonic, in lines.

#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace ocx {

/// "&Name" shows as "Name" and is reached by N; "&&" shows as "&". Line feeds stay, or show as
/// blanks.
struct Caption {
    explicit Caption(std::wstring_view marked, bool bKeepsFeeds = true);

    std::wstring text;
    size_t nMnemonic = std::wstring::npos;  ///< place in text
};

struct CaptionLine {
    size_t nStart;
    size_t nLength;
    int nWidth;  ///< pixels
};

/// In the context's font. bWrap: lines end at line feeds and where the next word would pass nWidth
/// (0: it may be any); a word that is too wide is broken between characters. Else it is one line.
std::vector<CaptionLine> CaptionLines(HDC hDC, std::wstring_view text, bool bWrap, int nWidth);

/// What of text fits in nWidth, with an ellipsis if that is not all.
std::wstring FitText(HDC hDC, std::wstring_view text, int nWidth);

}  // namespace ocx
