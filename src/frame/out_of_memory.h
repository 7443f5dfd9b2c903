// Where the heap's refusal ends. The language says it by std::bad_alloc, the framework by a
// CMemoryException; core knows the first alone.

#pragma once

#include <afxwin.h>

#include <new>

namespace qv {

// False if memory ran out on the way; nothing is thrown then. Any other exception goes through.
template <class Action>
bool MemorySuffices(Action action) {
    try {
        action();
        return true;
    } catch (const std::bad_alloc&) {
    } catch (CMemoryException* pException) {
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

}  // namespace qv
