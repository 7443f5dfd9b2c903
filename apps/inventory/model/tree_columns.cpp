#include "model/tree_columns.h"

#include <algorithm>
#include <charconv>

namespace {

constexpr int kScreenDpi = 96;
constexpr int kCentered = 10000;  // what the control adds to a stop
constexpr int kRight = 20000;
constexpr int kFarRight = 3000;  // behind every summary
// Of the column behind each stop.
constexpr int kAlignments[kTreeColumns] = {0, kRight, kCentered, 0, 0};

}  // namespace

std::array<int, kTreeColumns> TreeStops(const TreeWidths& widths, bool bIndented, int nDpi) {
    const auto pixels = [nDpi](int n) { return (n * nDpi + kScreenDpi / 2) / kScreenDpi; };
    std::array<int, kTreeColumns> stops{};
    int nStop = bIndented ? 0 : kTreeLevels;
    for (size_t i = 0; i < stops.size(); ++i) {
        nStop += i < widths.size() ? widths[i] : kFarRight;
        stops[i] = std::min(pixels(nStop), kCentered - 1) + kAlignments[i];
    }
    return stops;
}

std::string TreeWidthsText(const TreeWidths& widths) {
    std::string strText;
    for (const int nWidth : widths) {
        if (!strText.empty()) {
            strText += ' ';
        }
        strText += std::to_string(nWidth);
    }
    return strText;
}

TreeWidths TreeWidthsOf(const std::string& strText) {
    TreeWidths widths{};
    const char* p = strText.data();
    const char* const pEnd = p + strText.size();
    for (int& nWidth : widths) {
        while (p != pEnd && *p == ' ') {
            ++p;
        }
        const auto [pRead, problem] = std::from_chars(p, pEnd, nWidth);
        if (problem != std::errc() || nWidth < kLeastTreeWidth || nWidth > kMostTreeWidth) {
            return kFirstTreeWidths;
        }
        p = pRead;
    }
    return p == pEnd ? widths : kFirstTreeWidths;
}
