// What the system's printer dialogs give in global memory. Internal to the framework.
#pragma once

#include "afx/values/string.h"

/// A global block, locked while this lives. Empty for a null handle.
template <class T>
class AfxLockedGlobal {
public:
    explicit AfxLockedGlobal(HGLOBAL hGlobal)
        : m_hGlobal(hGlobal),
          m_pData(hGlobal != nullptr ? static_cast<T*>(::GlobalLock(hGlobal)) : nullptr) {}
    ~AfxLockedGlobal() {
        if (m_pData != nullptr) {
            ::GlobalUnlock(m_hGlobal);
        }
    }
    AfxLockedGlobal(const AfxLockedGlobal&) = delete;
    AfxLockedGlobal& operator=(const AfxLockedGlobal&) = delete;
    T* Get() const { return m_pData; }

private:
    HGLOBAL m_hGlobal;
    T* m_pData;
};

/// One of the names, which the structure gives as distances from its start.
inline CString AfxNameAt(HGLOBAL hDevNames, WORD DEVNAMES::*pOffset) {
    const AfxLockedGlobal<DEVNAMES> names(hDevNames);
    if (names.Get() == nullptr) {
        return CString();
    }
    return CString(reinterpret_cast<LPCSTR>(names.Get()) + names.Get()->*pOffset);
}
