#include "images.h"

#include "QVControls.h"

namespace {

constexpr int kSize = 16;
constexpr COLORREF kTransparent = RGB(255, 0, 255);
constexpr COLORREF kOutline = RGB(96, 80, 48);

void Box(CDC& dc, int x, const CRect& rect, COLORREF crFill, COLORREF crLine) {
    CRect rc(rect);
    rc.OffsetRect(x, 0);
    dc.FillSolidRect(&rc, crLine);
    rc.DeflateRect(1, 1);
    dc.FillSolidRect(&rc, crFill);
}

void DrawFolder(CDC& dc, int x, bool bOpen) {
    Box(dc, x, CRect(1, 3, 7, 7), RGB(240, 208, 112), kOutline);
    Box(dc, x, CRect(1, 5, 15, 14), RGB(248, 224, 144), kOutline);
    if (bOpen) {
        Box(dc, x, CRect(3, 8, 16, 14), RGB(255, 240, 184), kOutline);
    }
}

void DrawPackage(CDC& dc, int x, COLORREF crFill) {
    Box(dc, x, CRect(2, 3, 14, 14), crFill, kOutline);
    dc.FillSolidRect(x + 2, 7, 12, 1, kOutline);
    dc.FillSolidRect(x + 7, 3, 2, 5, RGB(248, 248, 232));
}

// A sheet with lines, a ruler and an arrow stand for version, size and dependency.
void DrawDetail(CDC& dc, int x, int nImage) {
    const COLORREF crInk = RGB(64, 96, 160);
    if (nImage == kImageVersion) {
        Box(dc, x, CRect(4, 2, 13, 14), RGB(255, 255, 255), crInk);
        for (int y = 5; y < 12; y += 2) {
            dc.FillSolidRect(x + 6, y, 5, 1, crInk);
        }
    } else if (nImage == kImageSize) {
        Box(dc, x, CRect(1, 6, 15, 11), RGB(232, 240, 255), crInk);
        for (int n = 3; n < 14; n += 2) {
            dc.FillSolidRect(x + n, 6, 1, 3, crInk);
        }
    } else {
        dc.FillSolidRect(x + 2, 7, 9, 2, crInk);
        for (int n = 0; n < 4; ++n) {
            dc.FillSolidRect(x + 10 + n, 4 + n, 1, 8 - 2 * n, crInk);
        }
    }
}

void DrawImages(CDC& dc, CBitmap& bitmap) {
    const qv::SelectGuard select(dc, &bitmap);
    dc.FillSolidRect(0, 0, kSize * kImageCount, kSize, kTransparent);
    DrawFolder(dc, kImageSection * kSize, false);
    DrawFolder(dc, kImageSectionOpen * kSize, true);
    DrawPackage(dc, kImagePackage * kSize, RGB(208, 168, 112));
    DrawPackage(dc, kImageTrouble * kSize, RGB(224, 96, 80));
    for (int n = kImageVersion; n <= kImageDependency; ++n) {
        DrawDetail(dc, n * kSize, n);
    }
}

}  // namespace

BOOL CreateImages(CImageList& images) {
    images.DeleteImageList();
    CClientDC dcScreen(nullptr);
    CDC dc;
    CBitmap bitmap;
    if (!images.Create(kSize, kSize, ILC_COLOR24 | ILC_MASK, kImageCount, 0) ||
        !dc.CreateCompatibleDC(&dcScreen) ||
        !bitmap.CreateCompatibleBitmap(&dcScreen, kSize * kImageCount, kSize)) {
        return FALSE;
    }
    DrawImages(dc, bitmap);
    return images.Add(&bitmap, kTransparent) >= 0;
}
