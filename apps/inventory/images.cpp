#include "images.h"

#include "resource.h"

#include <memory>
#include <type_traits>

namespace {

// As the other strips, and no taller than rows whose check marks have one size: the line from an
// open item to its children begins below the mark, and would cut the foot of a taller image.
constexpr int kSize = 16;

struct IconLife {
    void operator()(HICON hIcon) const { ::DestroyIcon(hIcon); }
};
using Icon = std::unique_ptr<std::remove_pointer_t<HICON>, IconLife>;

}  // namespace

BOOL CreateImages(CImageList& images) {
    images.DeleteImageList();
    if (!images.Create(kSize, kSize, ILC_COLOR32 | ILC_MASK, kImageCount, 0)) {
        return FALSE;
    }
    for (int n = 0; n < kImageCount; ++n) {
        const Icon pIcon(static_cast<HICON>(
            ::LoadImage(AfxGetResourceHandle(), MAKEINTRESOURCE(IDI_FIRST_TREE_IMAGE + n),
                        IMAGE_ICON, kSize, kSize, LR_DEFAULTCOLOR)));
        if (pIcon == nullptr || images.Add(pIcon.get()) < 0) {
            return FALSE;
        }
    }
    return TRUE;
}
