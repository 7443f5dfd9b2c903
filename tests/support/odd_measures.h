// Texts measured with widths as odd as a font may give them.

#pragma once

#include "base/text_measure.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

// Widths by byte, many of them zero; with kerning a pair may stand closer or wider, so that a text
// may be narrower than its own start.
class KernedMeasure : public qv::TextMeasure {
public:
    // next() gives any unsigned number.
    template <class Next>
    void Roll(Next next) {
        const unsigned nZeros = 1 + next() % 8;
        for (int& nWidth : m_aWidths) {
            nWidth = next() % nZeros == 0 ? 0 : static_cast<int>(next() % 12);
        }
        m_nKerning = next() % 2 == 0 ? 0 : static_cast<int>(next() % 15);
    }
    qv::Size Extent(std::string_view text) override {
        int nWidth = 0;
        for (std::size_t i = 0; i < text.size(); ++i) {
            nWidth = Grow(nWidth, text, i);
        }
        return {nWidth, 10};
    }
    void PrefixWidths(std::string_view text, int* pWidths) override {
        int nWidth = 0;
        for (std::size_t i = 0; i < text.size(); ++i) {
            pWidths[i] = nWidth = Grow(nWidth, text, i);
        }
    }

private:
    int Grow(int nWidth, std::string_view text, std::size_t i) const {
        nWidth += m_aWidths[static_cast<unsigned char>(text[i])];
        if (m_nKerning > 0 && i > 0) {
            nWidth += (text[i] ^ text[i - 1] ^ text[0]) % (m_nKerning + 1) - m_nKerning / 2;
        }
        return std::max(nWidth, 0);
    }

    int m_aWidths[256] = {};
    int m_nKerning = 0;
};

// Every byte has the same width, but for z, which has none. Counts the bytes measured.
class CountingMeasure : public qv::TextMeasure {
public:
    static constexpr int kCharWidth = 7;
    qv::Size Extent(std::string_view text) override {
        nBytes += text.size();
        const auto nNarrow = std::count(text.begin(), text.end(), 'z');
        return {kCharWidth * static_cast<int>(text.size() - static_cast<std::size_t>(nNarrow)), 10};
    }
    void PrefixWidths(std::string_view text, int* pWidths) override {
        nBytes += text.size();
        int nWidth = 0;
        for (const char ch : text) {
            *pWidths++ = nWidth += ch == 'z' ? 0 : kCharWidth;
        }
    }
    std::size_t nBytes = 0;
};

// Texts that take long where any part of them is measured over and over again.
inline std::vector<std::string> HugeTexts() {
    std::string strWords;
    std::string strLines;
    for (int i = 0; i < 40000; ++i) {
        strWords += "word" + std::string(i % 7, 'x') + ' ';
        strLines += "line\n";
    }
    const std::string strWide(300000, 'a');
    const std::string strNone(300000, 'z');
    const std::string strBlanks(300000, ' ');
    return {strWords, strLines, strWide, strBlanks, strNone + strWide, "a " + strNone + strWide};
}
