#include "frame/font_measure.h"

#include "common/process_text.h"
#include "frame/dc_guards.h"
#include "frame/text_out.h"
#include "frame/wide_text.h"

namespace qv {

namespace {

// A context of the screen's kind that measures for all controls: to make one for each text would
// cost more than to measure it.
class MeasuringDC : public CDC {
public:
    MeasuringDC() {
        SetOutputDC(Shared());
        SetAttribDC(Shared());
    }
    ~MeasuringDC() override {
        ReleaseAttribDC();
        ReleaseOutputDC();
    }

private:
    static HDC Shared() {
        static const struct Owner {
            Owner() : hDC(::CreateCompatibleDC(nullptr)) {}
            ~Owner() { ::DeleteDC(hDC); }
            const HDC hDC;
        } s_owner;
        return s_owner.hDC;
    }
};

}  // namespace

FontMeasure::FontMeasure() : m_widths(ProcessText()) {}

void FontMeasure::SetFont(HFONT hFont) {
    m_hFont = hFont;
    m_widths.Clear();
    m_adds.reset();
}

Size FontMeasure::Extent(std::string_view text) {
    const int nWidth = Adds() ? m_widths.Width(text, *this) : CharWidths::kByCall;
    if (nWidth != CharWidths::kByCall) {
        return {nWidth, m_nHeight};
    }
    MeasuringDC dc;
    const SelectGuard<CFont> font(dc, m_hFont);
    return DcMeasure(dc).Extent(text);
}

void FontMeasure::PrefixWidths(std::string_view text, int* pWidths) {
    if (!Adds() || !m_widths.PrefixWidths(text, pWidths, *this)) {
        MeasuringDC dc;
        const SelectGuard<CFont> font(dc, m_hFont);
        TextPrefixWidths(dc, text, pWidths);
    }
}

std::size_t FontMeasure::CharBytes(std::string_view text) const {
    return ProcessText().CharBytes(text);
}

// Between two others and beside itself: a character that the font moves closer has no width of its
// own.
int FontMeasure::CharWidth(std::string_view ch) {
    const WideText wide(ch);
    const std::wstring_view units = wide.View();
    MeasuringDC dc;
    const SelectGuard<CFont> font(dc, m_hFont);
    if (units.size() != 1 || !StandsAlone(units.front()) ||
        (!IsAscii(ch) && IsReadByBytes(dc.m_hAttribDC, ch))) {
        return CharWidths::kByCall;
    }
    const auto width = [&](std::initializer_list<wchar_t> text) {
        SIZE size{};
        ::GetTextExtentPoint32W(dc.m_hAttribDC, text.begin(), static_cast<int>(text.size()), &size);
        return static_cast<int>(size.cx);
    };
    const wchar_t c = units.front();
    const int nWidth = width({c});
    return width({L'A', c, c, L'f'}) == width({L'A'}) + 2 * nWidth + width({L'f'})
               ? nWidth
               : CharWidths::kByCall;
}

// Tries pairs that fonts bring closer together or draw as one sign, and a long text: kerning,
// ligatures, overhang and fractional widths each show as a sum that is off.
bool FontMeasure::Adds() {
    if (!m_adds) {
        MeasuringDC dc;
        const SelectGuard<CFont> font(dc, m_hFont);
        DcMeasure measure(dc);
        m_nHeight = measure.Extent(" ").cy;
        char szAll[2 * ('~' - ' ' + 1)];
        constexpr std::string_view kPartners = "AVfT.y";
        char* pEnd = szAll;
        for (char ch = ' '; ch <= '~'; ++ch) {
            *pEnd++ = ch;
            *pEnd++ = kPartners[static_cast<size_t>(ch) % kPartners.size()];
        }
        m_adds = true;
        for (const std::string_view text :
             {std::string_view("AVAWATA"), std::string_view("To. Ty, Yo; P. L'T"),
              std::string_view("fi fl ffi ffl"), std::string_view(szAll, sizeof(szAll))}) {
            m_adds = *m_adds && measure.Extent(text).cx == m_widths.Width(text, *this);
        }
    }
    return *m_adds;
}

}  // namespace qv
