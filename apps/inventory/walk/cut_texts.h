// Texts of labels and buttons that their controls have no room for.

#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

// Of the controls that show in a window, at any depth.
std::vector<std::string> CutTexts(CWnd& wnd);
