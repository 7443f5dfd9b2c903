// Paths of the process's code page, and as the platform's wide calls take them.

#pragma once

#include "common/common_api.h"

#include <afxwin.h>

#include <string>
#include <string_view>

namespace qv {

// However long the path is: one that comes near the platform's usual 260 characters is written out
// whole, so that it looks at no current folder and nothing is cut off.
std::wstring WidePath(std::string_view path);

// The way back: the platform's short name where the code page lacks a character, which leads there
// as well; empty if there is none.
QV_COMMON_API CString NarrowPath(const wchar_t* pszPath);

}  // namespace qv
