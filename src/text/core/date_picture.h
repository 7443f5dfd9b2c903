// Changes to a locale's picture of a time or date, as the date edit needs them: years in four
// digits, no seconds, no era. Everything goes by whole characters: a trail byte is no letter, and a
// separator of several bytes goes as one.

#pragma once

#include "base/multi_byte.h"

#include <string>
#include <string_view>

namespace qv {

// Doubles the first ch, unless two stand together anywhere.
void DoubleFormatCharacter(std::string& strFormat, char ch, const MultiByte& text);

// Doubles the first part, unless two stand together anywhere. Of a picture that ends in the part
// all behind the first one goes.
void DoubleFormatString(std::string& strFormat, std::string_view part, const MultiByte& text);

// Takes the first part out, with the character before it, or behind it where nothing is before.
void RemoveFormatString(std::string& strFormat, std::string_view part, const MultiByte& text);

}  // namespace qv
