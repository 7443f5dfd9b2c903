// Texts typed over each other in a field, under random rules: it never holds what it may not, nor
// half a character.

#include "ocx/core/field_rules.h"

#include "fuzz_input.h"

namespace {

std::u16string Wide(FuzzInput& input) {
    std::u16string text;
    for (unsigned n = input.Byte() % 12; n > 0; --n) {
        static constexpr std::u16string_view kPieces[] = {
            u"a", u"Z", u"-", u"0", u"9", u"\r\n", u"\n", u"\u65e5", u"\U0001F600", u"\U0001F601"};
        text += kPieces[input.Byte() % std::size(kPieces)];
    }
    return text;
}

bool IsWhole(std::u16string_view text) {
    for (std::size_t n = 0; n < text.size(); ++n) {
        const bool bHigh = (text[n] & 0xFC00) == 0xD800;
        if ((text[n] & 0xFC00) == 0xDC00 ||
            (bHigh && (++n >= text.size() || (text[n] & 0xFC00) != 0xDC00))) {
            return false;
        }
    }
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    FuzzInput input(pData, nSize);
    const qv::FieldRules rules{qv::CharList(Wide(input)), input.Byte() % 6, input.Byte() % 2 == 0};
    std::u16string text;
    while (!input.AtEnd()) {
        const qv::TextRange range =
            qv::ClampRange(text, input.Byte() % 12 - 2, input.Byte() % 12 - 2);
        FUZZ_CHECK(range.End() <= text.size());
        text.replace(range.nStart, range.nLength, rules.Entry(text, range, Wide(input)));
        FUZZ_CHECK(rules.Fits(text) && IsWhole(text));
        const std::u16string_view cut = qv::CutToLength(text, input.Byte() % 4);
        FUZZ_CHECK(IsWhole(cut) && rules.Fits(cut));
        const std::u16string broken = qv::WithEditBreaks(text);
        FUZZ_CHECK(qv::WithEditBreaks(broken) == broken);
    }
    return 0;
}
