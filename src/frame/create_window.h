// How a control makes its window: whole, or not at all.

#pragma once

#include "frame/out_of_memory.h"

#include <afxwin.h>

namespace qv {

// create makes the window of wnd and says whether it did. Without memory, or where it did not,
// there is no window afterwards.
template <class Create>
BOOL CreateWhole(CWnd& wnd, Create create) {
    BOOL bCreated = FALSE;
    MemorySuffices([&] { bCreated = create(); });
    if (!bCreated && wnd.m_hWnd != nullptr) {
        if (::IsWindow(wnd.m_hWnd)) {
            wnd.DestroyWindow();
        } else {
            wnd.Detach();  // bound to a window that was refused afterwards
        }
    }
    return bCreated;
}

}  // namespace qv
