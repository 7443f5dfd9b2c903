// The bounds of the controls that show dates. Internal to the framework.
#pragma once

#include "afx/window/wnd_state.h"

/// Writes the bounds that are set; a null pointer is not written to.
inline DWORD AfxGetTimeBounds(HWND hWnd, UINT message, LPSYSTEMTIME pMin, LPSYSTEMTIME pMax) {
    SYSTEMTIME range[2] = {};
    const DWORD dwResult = AfxSend<DWORD>(hWnd, message, 0, range);
    if (pMin != nullptr && (dwResult & GDTR_MIN)) {
        *pMin = range[0];
    }
    if (pMax != nullptr && (dwResult & GDTR_MAX)) {
        *pMax = range[1];
    }
    return dwResult;
}

inline BOOL AfxSetTimeBounds(HWND hWnd, UINT message, const SYSTEMTIME* pMin,
                             const SYSTEMTIME* pMax) {
    SYSTEMTIME range[2] = {pMin != nullptr ? *pMin : SYSTEMTIME{},
                           pMax != nullptr ? *pMax : SYSTEMTIME{}};
    const int nFlags = (pMin != nullptr ? GDTR_MIN : 0) | (pMax != nullptr ? GDTR_MAX : 0);
    return AfxSend<BOOL>(hWnd, message, nFlags, range);
}

/// The same in another type of time.
template <class Ctrl, class Time>
DWORD AfxGetTimeBounds(const Ctrl& ctrl, Time* pMin, Time* pMax) {
    SYSTEMTIME first{};
    SYSTEMTIME last{};
    const DWORD dwResult = ctrl.GetRange(&first, &last);
    if (pMin != nullptr && (dwResult & GDTR_MIN)) {
        *pMin = Time(first);
    }
    if (pMax != nullptr && (dwResult & GDTR_MAX)) {
        *pMax = Time(last);
    }
    return dwResult;
}

template <class Ctrl, class Time>
BOOL AfxSetTimeBounds(Ctrl& ctrl, const Time* pMin, const Time* pMax) {
    SYSTEMTIME first{};
    SYSTEMTIME last{};
    return (pMin == nullptr || pMin->GetAsSystemTime(first)) &&
           (pMax == nullptr || pMax->GetAsSystemTime(last)) &&
           ctrl.SetRange(pMin != nullptr ? &first : nullptr, pMax != nullptr ? &last : nullptr);
}
