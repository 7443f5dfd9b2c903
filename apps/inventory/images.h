// The tree's images, 16 by 16 pixels, drawn in code.

#pragma once

#include <afxcmn.h>

enum Image {
    kImageSection,
    kImageSectionOpen,
    kImagePackage,
    kImageTrouble,
    kImageVersion,
    kImageSize,
    kImageDependency,
    kImageCount
};

BOOL CreateImages(CImageList& images);
