// Where the heap's refusal ends. The language says it by std::bad_alloc, the framework by a
// CMemoryException, or by a CResourceException where the system has no brush or device context to
// give; core knows the first alone.

#pragma once

#include <afxwin.h>

#include <new>
#include <stdexcept>

namespace qv {

// False if memory or the system's objects ran out on the way; nothing is thrown then. Any other
// exception is not the library's and goes on.
template <class Action>
bool MemorySuffices(Action&& action) {
    try {
        action();
        return true;
    } catch (const std::bad_alloc&) {
    } catch (const std::length_error&) {
    } catch (CMemoryException* pException) {
        pException->Delete();
    } catch (CResourceException* pException) {
        pException->Delete();
    }
    return false;
}

// For steps that core takes in the control: what core sees is std::bad_alloc.
template <class Action>
auto AsBadAlloc(Action action) {
    try {
        return action();
    } catch (CMemoryException* pException) {
        pException->Delete();
    }
    throw std::bad_alloc();
}

// For what has no other way to say it: what callers see is the framework's exception.
template <class Action>
auto AsMemoryException(Action action) {
    try {
        return action();
    } catch (const std::bad_alloc&) {
    }
    AfxThrowMemoryException();
}

// For a window procedure, out of which nothing may go: the result of handle, or what says that the
// message was not done. A paint that failed is not asked for again at once. The object that hWnd
// belongs to may be gone afterwards.
template <class Handle>
LRESULT HandleQuietly(HWND hWnd, UINT message, Handle handle) {
    LRESULT lResult = 0;
    if (MemorySuffices([&] { lResult = handle(); })) {
        return lResult;
    }
    if (message == WM_PAINT) {
        ::ValidateRect(hWnd, nullptr);
    }
    return message == WM_CREATE ? -1 : 0;
}

// A platform control whose window procedure ends quietly where there is no memory.
template <class Control>
class QuietWithoutMemory : public Control {
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return HandleQuietly(this->m_hWnd, message,
                             [&] { return Control::WindowProc(message, wParam, lParam); });
    }
};

}  // namespace qv
