// The kinds of multi-byte text, chosen by a byte of the input.

#pragma once

#include "support/double_byte.h"

inline qv::MultiByte TextOfKind(unsigned nKind) {
    return nKind % 3 == 0 ? qv::MultiByte() : nKind % 3 == 1 ? qv::MultiByte::Utf8() : DoubleByte();
}
