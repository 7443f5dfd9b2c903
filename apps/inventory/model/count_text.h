// Numbers as they stand in a sentence: "1 package", "12,345 packages".

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// The noun as it stands behind a number: "package", "packages"; "entry", "entries".
std::string NounText(std::size_t n, std::string_view noun);
// Both, as "2 packages".
std::string CountText(std::size_t n, std::string_view noun);
// With commas between the thousands.
std::string GroupedText(std::size_t n);
