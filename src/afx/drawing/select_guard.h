// An object of the drawing system in a context, for a while. Internal to the framework.
#pragma once

#include <windows.h>

/// Puts what was selected back. A null object selects nothing.
class AfxSelectGuard {
public:
    AfxSelectGuard(HDC hDC, HGDIOBJ hObject)
        : m_hDC(hDC), m_hOld(hObject != nullptr ? ::SelectObject(hDC, hObject) : nullptr) {}
    ~AfxSelectGuard() {
        if (m_hOld != nullptr) {
            ::SelectObject(m_hDC, m_hOld);
        }
    }
    AfxSelectGuard(const AfxSelectGuard&) = delete;
    AfxSelectGuard& operator=(const AfxSelectGuard&) = delete;

private:
    HDC m_hDC;
    HGDIOBJ m_hOld;
};
