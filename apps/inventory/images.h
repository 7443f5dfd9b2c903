// The tree's images, 16 by 16 pixels.

#pragma once

#include <afxcmn.h>

// In the order of IDI_FIRST_TREE_IMAGE and on.
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
