// The rule of a double-byte code page: two ranges of lead bytes, and the letters A to Z folded.

#pragma once

#include "base/multi_byte.h"

inline qv::MultiByte DoubleByte() {
    qv::MultiByte::FoldTable fold{};
    qv::MultiByte::LeadTable lead{};
    for (unsigned i = 0; i < 256; ++i) {
        fold[i] = static_cast<unsigned char>(i >= 'A' && i <= 'Z' ? i + 32 : i);
        lead[i] = (i >= 0x81 && i <= 0x9F) || (i >= 0xE0 && i <= 0xFC);
    }
    return qv::MultiByte::DoubleByte(fold, lead);
}
