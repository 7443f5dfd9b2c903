#include "frame/wnd_port.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "base/multi_byte.h"
#include "frame/select_object.h"

namespace qv {

namespace {

// The bytes that are a character of their own in any text of the process's code page, and that no
// script shapes or reorders.
std::string PlainCharacters() {
    std::string strPlain;
    for (int i = ' '; i < 127; ++i) {
        strPlain += static_cast<char>(i);
    }
    switch (::GetACP()) {
        case 1250:
        case 1251:
        case 1252:
        case 1253:
        case 1254:
        case 1257:
            for (int i = 0xA0; i < 256; ++i) {
                strPlain += static_cast<char>(i);
            }
            break;
        default:
            break;
    }
    return strPlain;
}

}  // namespace

bool WndPort::HasWindow() const {
    return m_wnd.m_hWnd != nullptr && ::IsWindow(m_wnd.m_hWnd);
}

Rect WndPort::ClientRect() const {
    CRect rect;
    m_wnd.GetClientRect(&rect);
    return ToRect(rect);
}

unsigned WndPort::Style() const {
    return m_wnd.GetStyle();
}

int WndPort::VerticalBarWidth() const {
    return ::GetSystemMetrics(SM_CXVSCROLL);
}

int WndPort::HorizontalBarHeight() const {
    return ::GetSystemMetrics(SM_CYHSCROLL);
}

void WndPort::ShowScrollBar(int nBar, bool bShow) {
    const unsigned nBit = nBar == SB_VERT ? WS_VSCROLL : WS_HSCROLL;
    if (((Style() & nBit) != 0) != bShow) {
        m_wnd.ShowScrollBar(nBar, bShow);
    }
}

// Drawing a bar costs as much as painting some rows. While a paint is due anyway, the bar waits for
// it, so that ten thousand insertions in a row do not draw it ten thousand times.
void WndPort::SetScrollRange(int nBar, const ScrollRange& range) {
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    const bool bKnown = m_wnd.GetScrollInfo(nBar, &info, SIF_RANGE | SIF_PAGE | SIF_POS) != FALSE;
    const ScrollRange current{info.nMin, info.nMax, static_cast<int>(info.nPage), info.nPos};
    if (bKnown && current == range && !m_bBarDue[nBar]) {
        return;
    }
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMin = range.nMin;
    info.nMax = range.nMax;
    info.nPage = static_cast<UINT>(range.nPage);
    info.nPos = range.nPos;
    m_bBarDue[nBar] = ::GetUpdateRect(m_wnd.m_hWnd, nullptr, FALSE) != FALSE;
    m_wnd.SetScrollInfo(nBar, &info, !m_bBarDue[nBar]);
}

void WndPort::DrawBars() {
    if (m_bBarDue[SB_HORZ] || m_bBarDue[SB_VERT]) {
        m_bBarDue[SB_HORZ] = m_bBarDue[SB_VERT] = false;
        constexpr WPARAM kWholeFrame = 1;
        m_wnd.SendMessage(WM_NCPAINT, kWholeFrame);
    }
}

bool WndPort::GetScrollPosition(int nBar, bool bTrack, int& nPos) const {
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    if (!m_wnd.GetScrollInfo(nBar, &info, SIF_POS | SIF_TRACKPOS)) {
        return false;
    }
    nPos = bTrack ? info.nTrackPos : info.nPos;
    return true;
}

void WndPort::ScrollPixels(int dx, int dy, bool bErase) {
    m_wnd.ScrollWindowEx(dx, dy, nullptr, nullptr, nullptr, nullptr,
                         SW_INVALIDATE | (bErase ? SW_ERASE : 0));
}

void WndPort::Invalidate(const Rect& rect, bool bErase) {
    const CRect rc = ToCRect(rect);
    m_wnd.InvalidateRect(&rc, bErase);
}

void WndPort::InvalidateAll() {
    m_wnd.InvalidateRect(nullptr, FALSE);
}

void WndPort::Update() {
    m_wnd.UpdateWindow();
}

Size DcMeasure::Extent(std::string_view text) {
    SIZE size{};
    ::GetTextExtentPoint32A(m_dc.m_hAttribDC, text.data(), static_cast<int>(text.size()), &size);
    return {static_cast<int>(size.cx), static_cast<int>(size.cy)};
}

void DcMeasure::PrefixWidths(std::string_view text, int* pWidths) {
    if (text.empty()) {
        return;
    }
    const int nBytes = static_cast<int>(text.size());
    SIZE size{};
    if (::GetACP() == CP_UTF8) {
        PrefixWidthsOfUtf8(text, pWidths);
    } else if (!::GetTextExtentExPointA(m_dc.m_hAttribDC, text.data(), nBytes, 0, nullptr, pWidths,
                                        &size)) {
        std::fill_n(pWidths, text.size(), 0);
    }
}

// The platform counts characters there: each byte of one gets the width of all up to its end.
void DcMeasure::PrefixWidthsOfUtf8(std::string_view text, int* pWidths) {
    const int nBytes = static_cast<int>(text.size());
    std::wstring strWide(text.size(), L'\0');
    const int nWide =
        ::MultiByteToWideChar(CP_UTF8, 0, text.data(), nBytes, strWide.data(), nBytes);
    std::vector<int> widths(text.size());
    SIZE size{};
    ::GetTextExtentExPointW(m_dc.m_hAttribDC, strWide.data(), nWide, 0, nullptr, widths.data(),
                            &size);
    const MultiByte utf8 = MultiByte::Utf8();
    int nUnit = -1;
    for (size_t i = 0; i < text.size();) {
        const size_t nChar = utf8.CharBytes(text.substr(i));
        constexpr size_t kTwoUnits = 4;  // bytes of a character outside the basic plane
        nUnit = std::min(nUnit + (nChar == kTwoUnits ? 2 : 1), nWide - 1);
        std::fill_n(pWidths + i, nChar, nUnit >= 0 ? widths[static_cast<size_t>(nUnit)] : 0);
        i += nChar;
    }
}

void FontMeasure::SetFont(HFONT hFont) {
    m_hFont = hFont;
    m_bTableMade = false;
}

Size FontMeasure::Extent(std::string_view text) {
    if (!m_bTableMade) {
        MakeTable();
    }
    const int nWidth = TableWidth(text);
    if (nWidth != kByCall) {
        return {nWidth, m_nHeight};
    }
    CClientDC dc(&m_wnd);
    const SelectGuard<CFont> font(dc, m_hFont);
    return DcMeasure(dc).Extent(text);
}

void FontMeasure::PrefixWidths(std::string_view text, int* pWidths) {
    if (!m_bTableMade) {
        MakeTable();
    }
    int nWidth = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        const int nChar = m_aWidths[static_cast<unsigned char>(text[i])];
        if (nChar == kByCall) {
            CClientDC dc(&m_wnd);
            const SelectGuard<CFont> font(dc, m_hFont);
            DcMeasure(dc).PrefixWidths(text, pWidths);
            return;
        }
        pWidths[i] = nWidth += nChar;
    }
}

int FontMeasure::TableWidth(std::string_view text) const {
    int nWidth = 0;
    for (const char ch : text) {
        const int nChar = m_aWidths[static_cast<unsigned char>(ch)];
        if (nChar == kByCall) {
            return kByCall;
        }
        nWidth += nChar;
    }
    return nWidth;
}

void FontMeasure::MakeTable() {
    m_bTableMade = true;
    m_aWidths.fill(kByCall);
    CClientDC dc(&m_wnd);
    const SelectGuard<CFont> font(dc, m_hFont);
    DcMeasure measure(dc);
    m_nHeight = measure.Extent(" ").cy;

    // Control characters may be drawn in other ways than measured: such texts go to the platform.
    for (const char ch : PlainCharacters()) {
        m_aWidths[static_cast<unsigned char>(ch)] = measure.Extent({&ch, 1}).cx;
    }
    if (!WidthsAddUp(dc)) {
        m_aWidths.fill(kByCall);
    }
}

// Tries pairs that fonts bring closer together or draw as one sign, and a long text: kerning,
// ligatures, overhang and fractional widths each show as a sum that is off.
bool FontMeasure::WidthsAddUp(CDC& dc) const {
    constexpr std::string_view kPartners = "AVfT.y";
    std::string strAll;
    for (const char ch : PlainCharacters()) {
        strAll += ch;
        strAll += kPartners[static_cast<unsigned char>(ch) % kPartners.size()];
    }
    DcMeasure measure(dc);
    for (const std::string_view text :
         {std::string_view("AVAWATA"), std::string_view("To. Ty, Yo; P. L'T"),
          std::string_view("fi fl ffi ffl"), std::string_view(strAll), std::string_view()}) {
        if (measure.Extent(text).cx != TableWidth(text)) {
            return false;
        }
    }
    return true;
}

}  // namespace qv
