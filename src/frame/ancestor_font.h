// The font of a control: that of the nearest window that has one, where it was given none.

#pragma once

#include <afxwin.h>

#include <cstdlib>

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

// Gives a window that has no font the nearest one, if there is any.
inline void TakeNearestFont(CWnd& wnd) {
    if (wnd.GetFont() == nullptr) {
        if (CFont* pFont = NearestFont(wnd.GetParent())) {
            wnd.SetFont(pFont, TRUE);
        }
    }
}

// Height of a window's font as it was asked for, in pixels: lfHeight without its sign. 0 for a
// window without font.
inline int AskedFontHeight(const CWnd& wnd) {
    LOGFONT logFont;
    CFont* pFont = wnd.GetFont();
    return pFont != nullptr && pFont->GetLogFont(&logFont) != 0 ? std::abs(logFont.lfHeight) : 0;
}

}  // namespace qv
