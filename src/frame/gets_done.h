// The border of the library for want of memory.

#pragma once

#include <afxwin.h>

#include <new>
#include <stdexcept>

namespace qv {

// Runs a step. False if it came to no end for want of memory, or of a brush or a device context
// that the system could not give. An exception of any other kind is not the library's and goes on.
template <class Step>
bool GetsDone(Step&& step) {
    try {
        step();
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

}  // namespace qv
