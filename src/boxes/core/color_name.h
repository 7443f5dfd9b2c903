// What a colour is called where it can only be heard.

#pragma once

#include "frame/records.h"

#include <string>

namespace qv {

// "dark blue", of the sixteen colours that everybody knows; else its parts: "red 255, green 128,
// blue 0".
std::string ColorName(COLORREF cr);

}  // namespace qv
