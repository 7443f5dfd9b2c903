#include "text/core/text_split.h"

#include <algorithm>

namespace qv {

namespace {

constexpr size_t kLeastWindow = 64;
constexpr size_t kLongestChar = 4;  // bytes
constexpr char kLineFeed = '\n';

}  // namespace

bool TextSplitter::Fits(std::string_view text, int nWidth) {
    return text.empty() || m_measure.Extent(text).cx <= nWidth;
}

// The first byte from nFrom up to nEnd, without it, with which the piece from nStart on is wider
// than nWidth; nEnd if there is none.
size_t TextSplitter::FirstBeyond(std::string_view text, size_t nStart, size_t nFrom, size_t nEnd,
                                 int nWidth) {
    size_t i = nFrom;
    size_t nWindow = m_nWindow;
    while (i < nEnd) {
        const size_t nMeasured = std::min(nEnd - nStart, nWindow);
        if (m_widths.size() < nMeasured) {
            m_widths.resize(nMeasured);
        }
        m_measure.PrefixWidths(text.substr(nStart, nMeasured), m_widths.data());
        // The window may end in the middle of a character, which has its width in the next one.
        const size_t nKnown =
            nStart + nMeasured == nEnd ? nMeasured : nMeasured - (kLongestChar - 1);
        for (; i < nStart + nKnown; ++i) {
            if (m_widths[i - nStart] > nWidth) {
                // Room for a piece somewhat longer the next time.
                m_nWindow = std::max(kLeastWindow, (i - nStart) * 5 / 4 + 8);
                return i;
            }
        }
        nWindow *= 2;
    }
    return nEnd;
}

void TextSplitter::Split(std::string_view text, int nWidth, std::vector<int>& starts) {
    starts.assign(1, 0);
    if (Fits(text, nWidth)) {
        return;
    }
    const size_t nLength = text.size();
    size_t nStart = 0;
    size_t i = 0;
    size_t nLineEnd = std::min(text.find(kLineFeed), nLength);
    while (i < nLength) {
        i = FirstBeyond(text, nStart, i, nLineEnd, nWidth);
        if (i == nLineEnd) {
            if (i == nLength) {
                break;
            }
            nStart = ++i;  // behind the line feed
            starts.push_back(static_cast<int>(i));
            nLineEnd = std::min(text.find(kLineFeed, i), nLength);
            continue;
        }
        if (text[i] == ' ') {
            i = std::min(text.find_first_not_of(' ', i), nLength);
        } else {
            size_t j = i;
            while (j > nStart + 1 && text[j - 1] != ' ') {
                --j;
            }
            // A blank at the piece's first byte is no place to break.
            if (j > nStart + 1) {
                i = j;
            }
        }
        starts.push_back(static_cast<int>(i));
        nStart = i;
        if (i < nLength) {
            i += m_measure.CharBytes(text.substr(i));  // is taken whatever its width
        }
        if (nStart < nLength && text[nStart] == kLineFeed) {
            // So is a line feed that blanks led to: the line ends at the next one.
            nLineEnd = std::min(text.find(kLineFeed, i), nLength);
        }
    }
}

}  // namespace qv
