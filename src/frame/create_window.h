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

// Attaches wnd, which has no window, to the item nID of a dialog. False, and without a window
// still, if there is no such item or no memory.
inline bool AttachToItem(CWnd& wnd, UINT nID, CWnd* pParent) {
    BOOL bAttached = FALSE;
    if (!MemorySuffices(
            [&] { bAttached = pParent != nullptr && wnd.SubclassDlgItem(nID, pParent); }) &&
        wnd.m_hWnd != nullptr) {
        wnd.UnsubclassWindow();
    }
    return bAttached != FALSE;
}

// WM_CREATE of a control: the default handling, then initialize(nID, pParent) as for an item of a
// dialog. The result of the message: -1 if either fails, or memory does.
template <class Default, class Initialize>
int InitializeOnCreate(const CREATESTRUCT& cs, Default handleByDefault, Initialize initialize) {
    int bInitialized = FALSE;
    MemorySuffices([&] {
        if (handleByDefault() != -1) {
            const auto nID = static_cast<UINT>(reinterpret_cast<UINT_PTR>(cs.hMenu));
            bInitialized = initialize(nID, CWnd::FromHandle(cs.hwndParent));
        }
    });
    return bInitialized ? 0 : -1;
}

// A border asked for is a sunken edge.
inline void BorderToClientEdge(CREATESTRUCT& cs) {
    if ((cs.style & WS_BORDER) != 0) {
        cs.style &= ~WS_BORDER;
        cs.dwExStyle |= WS_EX_CLIENTEDGE;
    }
}

}  // namespace qv
