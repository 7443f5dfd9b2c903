// The kinds of multi-byte text, chosen by a byte of the input.

#pragma once

#include "base/multi_byte.h"

inline qv::MultiByte TextOfKind(unsigned nKind) {
    if (nKind % 3 == 0) {
        return qv::MultiByte();
    }
    if (nKind % 3 == 1) {
        return qv::MultiByte::Utf8();
    }
    qv::MultiByte::FoldTable fold{};
    qv::MultiByte::LeadTable lead{};
    for (unsigned i = 0; i < 256; ++i) {
        fold[i] = static_cast<unsigned char>(i);
        lead[i] = i > 0x80 && i < 0xA0;
    }
    return qv::MultiByte::DoubleByte(fold, lead);
}
