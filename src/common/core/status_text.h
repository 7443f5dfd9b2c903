// The texts of a status: short for a message box, and as an entry of a log.
//
// An entry begins with a line that begins with kEntryMark. What others wrote, in any code page, is
// indented in all its lines, so that nothing but the beginning of an entry can look like one.

#pragma once

#include "base/multi_byte.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace qv {

inline constexpr std::string_view kEntryMark = "=== ";

// One status of a chain. The texts belong to somebody else.
struct StatusRecord {
    std::uint32_t dwCode = 0;
    bool bSystem = false;  // the code is one of the platform's
    std::string_view severity;
    std::string_view text;
    std::string_view where;
};

// chain: the status, its cause, that one's cause and so on; not empty. name is who reports, or
// empty.

// At most some 2,000 bytes, in lines that end in LF: the status, its next causes and the last one.
// Long texts are cut between characters.
std::string CompactStatus(std::span<const StatusRecord> chain, std::string_view name,
                          const MultiByte& multiByte);

// Everything, in lines that end in strLineEnd; that of the last one included.
std::string StatusEntry(std::span<const StatusRecord> chain, std::string_view name,
                        std::string_view when, std::string_view lineEnd);

}  // namespace qv
