// A control's state as bytes: records of properties behind a head with version and length. Numbers,
// strings, fonts and pictures can be in it; other objects are left out.

#pragma once

#include "ocx/com.h"

#include <span>
#include <vector>

namespace ocx {

/// A property that is put again when the state is loaded.
struct Record {
    DISPID id;
    LONG nIndex;  ///< its index argument; kNoIndex: it has none
    Variant value;
};
constexpr LONG kNoIndex = MINLONG;

std::vector<BYTE> ToBytes(std::span<const Record> records);
/// Throws a Refusal, E_FAIL, for anything that is no such state.
std::vector<Record> FromBytes(std::span<const BYTE> bytes);

void WriteState(IStream& stream, std::span<const Record> records);
/// Reads no further than the state goes. Throws for a stream that ends before.
std::vector<Record> ReadState(IStream& stream);

}  // namespace ocx
