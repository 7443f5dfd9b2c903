// How the process's code page cuts and orders text.

#pragma once

#include "base/multi_byte.h"
#include "common/common_api.h"

namespace qv {

// As _mbsicmp orders it. Made at the first call and kept.
QV_COMMON_API const MultiByte& ProcessText();

}  // namespace qv
