// Where the dispatch exceptions of automation controls end.

#pragma once

#include "frame/out_of_memory.h"

#include <afxdisp.h>

namespace qv {

// Asks or tells a control. False if it refused, or memory did; what comes behind the refused call
// in action is not done. Any other exception is not the library's and goes on.
template <class Action>
bool ControlAnswers(Action&& action) {
    try {
        return MemorySuffices(action);
    } catch (COleException* pException) {
        pException->Delete();
        return false;
    }
}

}  // namespace qv
