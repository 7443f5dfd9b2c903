// Images side by side in one bitmap, as the controls take them.

#pragma once

#include <afxcmn.h>

namespace qv {

// Width and height of the list's images; zeros for a list that has none.
inline CSize ImageSize(CImageList& images) {
    IMAGEINFO info;
    return images.GetImageInfo(0, &info) ? CRect(info.rcImage).Size() : CSize(0, 0);
}

// Makes the list from a bitmap resource: images cx wide, crMask transparent. False if there is no
// such bitmap; the list is empty then. size becomes cx and the images' height, zeros without an
// image.
inline bool LoadStrip(CImageList& images, UINT nBitmapID, int cx, COLORREF crMask, CSize& size) {
    images.DeleteImageList();
    size = CSize(0, 0);
    if (cx <= 0 || !images.Create(nBitmapID, cx, 0, crMask)) {
        return false;
    }
    if (const int cy = ImageSize(images).cy; cy != 0) {
        size = CSize(cx, cy);
    }
    return true;
}

}  // namespace qv
