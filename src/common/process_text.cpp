#include "common/process_text.h"

#include <windows.h>

// Defines short names that clash with those of the standard library's headers: after them.
#include <mbctype.h>
#include <mbstring.h>

namespace qv {

namespace {

MultiByte::FoldTable PlatformFold() {
    MultiByte::FoldTable fold;
    for (unsigned i = 0; i < fold.size(); ++i) {
        fold[i] = static_cast<unsigned char>(_mbctolower(i));
    }
    return fold;
}

MultiByte::LeadTable PlatformLeadBytes(const CPINFO& info) {
    MultiByte::LeadTable lead{};
    for (const BYTE* pRange = info.LeadByte; pRange[0] != 0 && pRange[1] != 0; pRange += 2) {
        for (unsigned i = pRange[0]; i <= pRange[1]; ++i) {
            lead[i] = true;
        }
    }
    return lead;
}

MultiByte MakeProcessText() {
    if (::GetACP() == CP_UTF8) {
        return MultiByte::Utf8();
    }
    CPINFO info{};
    ::GetCPInfo(CP_ACP, &info);
    return info.MaxCharSize > 1 ? MultiByte::DoubleByte(
                                      PlatformFold(), PlatformLeadBytes(info),
                                      [](std::uint32_t c) { return std::uint32_t{_mbctolower(c)}; })
                                : MultiByte::SingleByte(PlatformFold());
}

}  // namespace

const MultiByte& ProcessText() {
    static const MultiByte s_text = MakeProcessText();
    return s_text;
}

}  // namespace qv
