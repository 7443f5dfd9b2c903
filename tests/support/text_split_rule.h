// Word wrap of a text window step by step, each start of a piece measured by itself, and widths as
// odd as a font may give them.

#pragma once

#include "base/text_measure.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

inline std::vector<int> SplitByRule(std::string_view text, int nWidth, qv::TextMeasure& measure) {
    std::vector<int> starts{0};
    if (text.empty() || measure.Extent(text).cx <= nWidth) {
        return starts;
    }
    const int nLength = static_cast<int>(text.size());
    const auto byteAt = [&](int i) {
        return i < nLength ? text[static_cast<std::size_t>(i)] : '\0';
    };
    std::string strPiece;
    int nStart = 0;
    for (int i = 0; i < nLength;) {
        if (byteAt(i) == '\n') {
            starts.push_back(nStart = ++i);
            strPiece.clear();
            continue;
        }
        strPiece += byteAt(i);
        if (measure.Extent(strPiece).cx > nWidth) {
            if (byteAt(i) == ' ') {
                while (byteAt(i) == ' ') {
                    ++i;
                }
            } else {
                int j = i - 1;
                while (j > nStart && byteAt(j) != ' ') {
                    --j;
                }
                if (j != nStart) {
                    i = j + 1;
                }
            }
            starts.push_back(nStart = i);
            strPiece.assign(1, byteAt(i));
        }
        ++i;
    }
    return starts;
}

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
