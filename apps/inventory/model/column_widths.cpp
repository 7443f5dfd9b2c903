#include "model/column_widths.h"

#include <algorithm>

std::vector<int> ShareWidth(const std::vector<ColumnWish>& wishes, int nRoom) {
    std::vector<int> widths;
    int nWished = 0;
    int nToGive = 0;
    int nTaker = -1;
    for (const ColumnWish& wish : wishes) {
        nWished += wish.nWidth;
        if (wish.bMayBeCut) {
            nToGive += std::max(wish.nWidth - wish.nLeast, 0);
            nTaker = static_cast<int>(widths.size());
        }
        widths.push_back(wish.nWidth);
    }
    if (nWished <= nRoom && nTaker >= 0) {
        widths[static_cast<size_t>(nTaker)] += nRoom - nWished;
    }
    if (nWished > nRoom && nToGive > 0) {
        const long long nMissing = std::min(nWished - nRoom, nToGive);
        for (size_t i = 0; i < wishes.size(); ++i) {
            const int nMine = wishes[i].bMayBeCut ? wishes[i].nWidth - wishes[i].nLeast : 0;
            widths[i] -= static_cast<int>(std::max(nMine, 0) * nMissing / nToGive);
        }
    }
    return widths;
}

bool CutsTooMuch(const std::vector<ColumnWish>& wishes, int nRoom) {
    constexpr int kReadablePercent = 75;
    const std::vector<int> widths = ShareWidth(wishes, nRoom);
    long long nSum = 0;
    bool bCut = false;
    for (size_t i = 0; i < wishes.size(); ++i) {
        nSum += widths[i];
        bCut = bCut || widths[i] * 100LL < wishes[i].nWidth * kReadablePercent;
    }
    // Shares are rounded up.
    return bCut || nSum > nRoom + static_cast<long long>(wishes.size());
}
