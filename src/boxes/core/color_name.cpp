#include "boxes/core/color_name.h"

#include <algorithm>

namespace qv {

namespace {

struct Named {
    COLORREF cr;  // 0x00bbggrr
    const char* psz;
};

constexpr Named kNames[] = {
    {0x000000, "black"},       {0x000080, "dark red"},  {0x008000, "dark green"},
    {0x008080, "dark yellow"}, {0x800000, "dark blue"}, {0x800080, "dark magenta"},
    {0x808000, "dark cyan"},   {0x808080, "grey"},      {0xC0C0C0, "light grey"},
    {0x0000FF, "red"},         {0x00FF00, "green"},     {0x00FFFF, "yellow"},
    {0xFF0000, "blue"},        {0xFF00FF, "magenta"},   {0xFFFF00, "cyan"},
    {0xFFFFFF, "white"},
};

std::string Part(const char* pszName, COLORREF cr, int nShift) {
    return std::string(pszName) + std::to_string(cr >> nShift & 0xFF);
}

}  // namespace

std::string ColorName(COLORREF cr) {
    cr &= 0xFFFFFF;
    const auto* pNamed = std::find_if(std::begin(kNames), std::end(kNames),
                                      [cr](const Named& named) { return named.cr == cr; });
    return pNamed != std::end(kNames)
               ? pNamed->psz
               : Part("red ", cr, 0) + Part(", green ", cr, 8) + Part(", blue ", cr, 16);
}

}  // namespace qv
