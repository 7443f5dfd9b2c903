// The strip of images that lists and boxes of packages share, IDB_PACKAGES, and how strips are
// drawn.

#pragma once

#include "model/inventory.h"

#include <afxwin.h>

constexpr int kStripImageWidth = 16;
constexpr COLORREF kStripMask = RGB(255, 0, 255);

enum PackageImage { kPlainPackage, kPackageInTrouble, kRequiredPackage };

inline PackageImage StripImage(bool bUnusual, bool bRequired) {
    return bUnusual ? kPackageInTrouble : bRequired ? kRequiredPackage : kPlainPackage;
}
inline PackageImage StripImage(const Package& package) {
    return StripImage(package.bUnusual, package.bRequired);
}
