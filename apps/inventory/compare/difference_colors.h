// What a difference looks like, on screen and on paper: entries of a style table, in their order.

#pragma once

#include "QVControls.h"
#include "model/comparison.h"
#include "row_colors.h"

enum DifferenceStyle {
    kPlainStyle,
    kBetterStyle,
    kWorseStyle,
    kMoreStyle,
    kLessStyle,
    kOtherStyle
};
constexpr int kDifferenceStyles = kOtherStyle + 1;

inline constexpr QVSTYLE kDifferenceColors[kDifferenceStyles] = {
    {RGB(0, 0, 0), RGB(255, 255, 255)},    {RGB(0, 96, 0), RGB(224, 246, 224)},
    {RGB(160, 0, 0), RGB(255, 228, 224)},  {RGB(144, 72, 0), RGB(255, 255, 255)},
    {RGB(0, 64, 144), RGB(255, 255, 255)}, {RGB(96, 0, 128), RGB(255, 255, 255)}};

// Behind the default style, which is entry 0 of any table: for paper.
inline void AddDifferenceStyles(QVStyleTable& table) {
    for (int nStyle = kBetterStyle; nStyle < kDifferenceStyles; ++nStyle) {
        table.AddStyle(kDifferenceColors[nStyle].crText, kDifferenceColors[nStyle].crBk);
    }
}

// The same for a screen, also once more when the system's colours have changed.
inline void ShowDifferenceStyles(QVStyleTable& table) {
    for (int nStyle = kBetterStyle; nStyle < kDifferenceStyles; ++nStyle) {
        int nThere = nStyle < table.NumStyles() ? nStyle : 0;
        ShowStyle(table, nThere, kDifferenceColors[nStyle]);
    }
}

inline DifferenceStyle VersionStyle(const Difference& difference) {
    return (difference.nChanges & kVersionUp) != 0     ? kBetterStyle
           : (difference.nChanges & kVersionDown) != 0 ? kWorseStyle
                                                       : kPlainStyle;
}

inline DifferenceStyle SizeStyle(const Difference& difference) {
    const long long nGrowth = difference.Growth();
    return nGrowth > 0 ? kMoreStyle : nGrowth < 0 ? kLessStyle : kPlainStyle;
}

inline DifferenceStyle ChangeStyle(const Difference& difference) {
    return (difference.nChanges & (kStateChanged | kSectionChanged)) != 0 ? kOtherStyle
                                                                          : kPlainStyle;
}
