// A log of entries that stays below a limit: one file, changed in place.
//
// When an entry makes the file longer than the limit, the oldest ones go until at most half the
// limit is left, and at least the newest one. Entries are moved once for each half limit that is
// written then, so that an entry costs the same whatever the limit is. What was cut off, and what
// others wrote, belongs to the entry before; in front of the first entry it goes first.

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace qv {

inline constexpr std::size_t kLogPiece = 16 * 1024;  // bytes

// The bytes of a file. Reading and writing may throw, having done a part.
class LogBytes {
public:
    virtual std::uint64_t Size() = 0;
    // Bytes that lie within the file.
    virtual void Read(std::uint64_t nFrom, std::span<char> bytes) = 0;
    // From within the file or its end on.
    virtual void Write(std::uint64_t nFrom, std::string_view bytes) = 0;
    // Throws nothing: false if it cannot be done.
    virtual bool Cut(std::uint64_t nSize) = 0;

protected:
    ~LogBytes() = default;
};

// entry begins with kEntryMark and ends in a line end. If it cannot be written the file is as it
// was. False if it is there but old ones could not make room. A process that dies while they do
// leaves some of those twice that stay. Needs no memory.
// Reads and moves nPiece bytes at a time: more than kEntryMark has, at most kLogPiece.
bool AppendToLog(LogBytes& file, std::string_view entry, std::uint64_t nLimit,
                 std::size_t nPiece = kLogPiece);

}  // namespace qv
