// What a control does where there is no memory: its operations say so as the framework does, and
// its window procedures keep it to themselves.

#pragma once

#include <afxwin.h>

#include <new>

namespace qv {

// Gives what the action gives. The standard library's exception leaves as CMemoryException.
template <class Action>
auto SayMemoryException(Action action) {
    try {
        return action();
    } catch (const std::bad_alloc&) {
        AfxThrowMemoryException();
    }
}

// Runs an action. False if it ended because it found no memory, or none of the system's objects.
template <class Action>
bool FindsMemory(Action action) {
    try {
        action();
        return true;
    } catch (const std::bad_alloc&) {
    } catch (CMemoryException* pException) {
        pException->Delete();
    } catch (CResourceException* pException) {
        pException->Delete();
    }
    return false;
}

// A platform control whose window procedure ends quietly where there is no memory.
template <class Control>
class QuietWithoutMemory : public Control {
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        LRESULT lResult = 0;
        FindsMemory([&] { lResult = Control::WindowProc(message, wParam, lParam); });
        return lResult;
    }
};

}  // namespace qv
