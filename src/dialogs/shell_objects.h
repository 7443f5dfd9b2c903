// Owners of what the platform's shell hands out. Internal to the dialogs.

#pragma once

#include <windows.h>

#include <memory>
#include <objbase.h>
#include <objidl.h>
#include <shtypes.h>

namespace qv {

struct ShellReleaser {
    void operator()(IUnknown* pObject) const { pObject->Release(); }
};
template <class Interface>
using ShellOwned = std::unique_ptr<Interface, ShellReleaser>;

struct ShellItemFreer {
    IMalloc* pMalloc;
    void operator()(ITEMIDLIST* pItem) const { pMalloc->Free(pItem); }
};
using ShellItem = std::unique_ptr<ITEMIDLIST, ShellItemFreer>;

// COM in this thread for as long as it lives. Where the thread has it already it stays as it is,
// whichever way it was initialised.
class ComScope {
public:
    ComScope() : m_hr(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~ComScope() {
        if (SUCCEEDED(m_hr)) {
            ::CoUninitialize();
        }
    }
    ComScope(const ComScope&) = delete;
    ComScope& operator=(const ComScope&) = delete;

private:
    const HRESULT m_hr;
};

}  // namespace qv
