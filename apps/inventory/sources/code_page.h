// The package database is written in UTF-8; the controls show text in the process's code page.

#pragma once

#include "model/inventory.h"

#include <afxwin.h>

#include <string>
#include <vector>

// Characters that the code page has not become question marks.
std::string InProcessCodePage(std::string text);
std::string InUtf8(std::string text);
void ToProcessCodePage(std::vector<Package>& packages);
