// The font of a control that was given none: that of the nearest window that has one.

#pragma once

#include <afxwin.h>

namespace qv {

// Looks at wnd, then at its parents. Null if none has a font. Not owned.
inline CFont* NearestFont(CWnd* pWnd) {
    for (; pWnd != nullptr && pWnd->m_hWnd != nullptr; pWnd = pWnd->GetParent()) {
        if (CFont* pFont = pWnd->GetFont()) {
            return pFont;
        }
    }
    return nullptr;
}

}  // namespace qv
