// Texts to the clipboard and back, in the process's code page on this side.

#pragma once

#include <afxwin.h>

#include <string>
#include <string_view>

namespace qv {

// In place of what is there. False if the text is not on the clipboard now.
bool CopyText(CWnd& wnd, std::string_view text);

// False, and strText as it was, if there is no text. Line ends are as they came. May throw
// std::bad_alloc.
bool PasteText(CWnd& wnd, std::string& strText);

}  // namespace qv
