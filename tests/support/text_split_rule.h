// Word wrap of a text window step by step, each start of a piece measured by itself.

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
