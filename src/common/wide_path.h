// Paths of the process's code page as the platform's wide calls take them.

#pragma once

#include <string>
#include <string_view>

namespace qv {

// However long the path is: one that comes near the platform's usual 260 characters is written out
// whole, so that it looks at no current folder and nothing is cut off.
std::wstring WidePath(std::string_view path);

}  // namespace qv
