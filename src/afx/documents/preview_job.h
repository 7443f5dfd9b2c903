// What a preview keeps of the job that it plays. Internal to the framework.
#pragma once

#include "afx/documents/preview_layout.h"
#include "afx/documents/preview_page.h"
#include "afx/documents/preview_view.h"

#include <afxext.h>

/// A print job that never reaches the printer. The context is that of info's dialog, which deletes
/// it.
struct AfxPreviewJob {
    CPrintInfo info;
    AfxPreviewDC dc;
    bool bDrawing = false;  ///< inside the view's OnPrint, which may run a message loop
};

struct CPreviewView::Shown {
    AfxPreviewPage pages[2];
    AfxPreviewLayout layout;

    /// Null if the page does not show.
    AfxPreviewPage* Find(UINT nPage) {
        for (AfxPreviewPage& page : pages) {
            if (page.Number() == nPage) {
                return &page;
            }
        }
        return nullptr;
    }
};
