// The parts of a control one by one: all of them, or the selected ones. Nothing is counted or kept
// of the others, however many there are.

#pragma once

#include "frame/accessible.h"

#include <oleauto.h>

namespace qv {

class AccessibleObject;

// Where an enumeration stands: among all parts, or among the selected ones.
struct PartCursor {
    bool bSelected = false;
    long nIndex = 0;  // of the next part, for all
    long nLast = 0;   // the part given last, for the selected

    // 0 at the end.
    long Next(QVAccessible& parts);
};

// An enumeration of its own, which keeps the object; null without memory.
IEnumVARIANT* MakePartEnum(AccessibleObject& object, const PartCursor& cursor);

}  // namespace qv
