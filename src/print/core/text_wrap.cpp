#include "print/core/text_wrap.h"

#include <algorithm>

namespace qv {

namespace {

constexpr std::size_t kFirstWindow = 128;  // bytes measured at first; the next lines learn from it
constexpr std::size_t kWindowMargin = 16;

std::string_view TrimLeft(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
    return text;
}

class Wrapping {
public:
    Wrapping(unsigned nWidth, TextMeasure& measure, const MultiByte& text)
        : m_nWidth(nWidth), m_measure(measure), m_text(text) {}

    // Bytes of the next line of the rest, which is not empty.
    std::size_t NextLine(std::string_view rest) {
        std::size_t nMeasured = 0;
        std::size_t nEnd = 0;
        std::size_t nBlank = 0;  // 0: none
        while (nEnd < rest.size()) {
            const std::size_t nNext = nEnd + m_text.CharBytes(rest.substr(nEnd));
            if (nNext > nMeasured) {
                nMeasured = MeasureFrom(rest, nNext, std::max(m_nWindow, 2 * nMeasured));
            }
            if (rest[nEnd] == ' ') {
                nBlank = nEnd;
            }
            if (IsTooWide(m_aWidths[nNext - 1])) {
                m_nWindow = nNext + nNext / 8 + kWindowMargin;
                return nBlank > 0 ? nBlank : nEnd > 0 ? nEnd : nNext;
            }
            nEnd = nNext;
        }
        return nEnd;
    }

    bool IsTooWide(int nTextWidth) const { return static_cast<unsigned>(nTextWidth) >= m_nWidth; }

private:
    // Measures the starts of the rest of up to nWanted bytes or a few more, so that the last
    // character is whole. nCharEnd is where a character ends. Gives the number of bytes measured.
    std::size_t MeasureFrom(std::string_view rest, std::size_t nCharEnd, std::size_t nWanted) {
        while (nCharEnd < std::min(nWanted, rest.size())) {
            nCharEnd += m_text.CharBytes(rest.substr(nCharEnd));
        }
        if (m_aWidths.size() < nCharEnd) {
            m_aWidths.resize(nCharEnd);
        }
        m_measure.PrefixWidths(rest.substr(0, nCharEnd), m_aWidths.data());
        return nCharEnd;
    }

    const unsigned m_nWidth;
    TextMeasure& m_measure;
    const MultiByte& m_text;
    std::size_t m_nWindow = kFirstWindow;
    std::vector<int> m_aWidths;
};

}  // namespace

void WrapLine(std::string_view line, unsigned nWidth, TextMeasure& measure, const MultiByte& text,
              std::vector<std::string_view>& lines) {
    Wrapping wrapping(nWidth, measure, text);
    if (line.empty() || !wrapping.IsTooWide(measure.Extent(line).cx)) {
        lines.push_back(line);
        return;
    }
    while (!line.empty()) {
        const std::size_t nBytes = wrapping.NextLine(line);
        lines.push_back(line.substr(0, nBytes));
        line = TrimLeft(line.substr(nBytes));
    }
}

}  // namespace qv
