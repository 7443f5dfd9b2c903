#include "app_tool_bar.h"

#include "resource.h"

#include <iterator>

namespace {

// In the order of the pictures.
constexpr UINT kButtons[] = {ID_OPEN_DATABASE,  ID_RELOAD,           ID_SEPARATOR, ID_LIST_EXPORT,
                             ID_PACKAGES_PRINT, ID_PACKAGES_PREVIEW, ID_SEPARATOR, ID_FIND,
                             ID_SEPARATOR,      ID_REPORT_NEW,       ID_COMPARE,   ID_SAVE_SNAPSHOT,
                             ID_SEPARATOR,      ID_PREFERENCES};
const CSize kAroundPicture(8, 8);

struct Strip {
    int nSize;  // pixels
    UINT nBitmap;
};
constexpr Strip kStrips[] = {{16, IDB_TOOLBAR_16}, {24, IDB_TOOLBAR_24}, {32, IDB_TOOLBAR_32}};

// The largest that is not larger than 16 pixels at 96 dpi are on this screen.
const Strip& StripOf(int nDpi) {
    const Strip* pStrip = &kStrips[0];
    for (const Strip& strip : kStrips) {
        if (strip.nSize <= ::MulDiv(kStrips[0].nSize, nDpi, 96)) {
            pStrip = &strip;
        }
    }
    return *pStrip;
}

}  // namespace

BOOL AppToolBar::Make(CFrameWnd& frame) {
    const Strip& strip = StripOf(CClientDC(&frame).GetDeviceCaps(LOGPIXELSX));
    const CSize size(strip.nSize, strip.nSize);
    if (!CreateEx(&frame, TBSTYLE_FLAT,
                  WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_TOOLTIPS | CBRS_FLYBY) ||
        !SetButtons(kButtons, static_cast<int>(std::size(kButtons)))) {
        return FALSE;
    }
    SetSizes(size + kAroundPicture, size);
    return LoadBitmap(strip.nBitmap);
}
