// How the process's code page cuts and orders text.

#pragma once

#include "base/multi_byte.h"

namespace qv {

// As _mbsicmp orders it. Made at the first call and kept.
const MultiByte& ProcessText();

}  // namespace qv
