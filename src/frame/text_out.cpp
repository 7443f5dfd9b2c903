#include "frame/text_out.h"

#include "common/process_text.h"
#include "frame/wide_text.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace qv {

namespace {

constexpr wchar_t kEllipsis[] = L"...";

CSize WideExtent(HDC hDC, std::wstring_view text) {
    SIZE size{};
    ::GetTextExtentPoint32W(hDC, text.data(), static_cast<int>(text.size()), &size);
    return size;
}

// True where text is measured on another device than it is drawn on.
bool MeasuresElsewhere(const CDC& dc) {
    return dc.m_hAttribDC != nullptr && dc.m_hAttribDC != dc.m_hDC;
}

// Puts the clip region back.
class ClipGuard {
public:
    ClipGuard(HDC hDC, const CRect& rect) : m_hDC(hDC), m_nSaved(::SaveDC(hDC)) {
        ::IntersectClipRect(hDC, rect.left, rect.top, rect.right, rect.bottom);
    }
    ~ClipGuard() { ::RestoreDC(m_hDC, m_nSaved); }
    ClipGuard(const ClipGuard&) = delete;
    ClipGuard& operator=(const ClipGuard&) = delete;

private:
    HDC m_hDC;
    int m_nSaved;
};

// Lines of wide text measured on one device and drawn on another one: each character is placed
// where the measuring device has it.
class ElsewhereMeasured {
public:
    explicit ElsewhereMeasured(CDC& dc) : m_dc(dc) {}

    int Width(std::wstring_view line) const {
        return static_cast<int>(WideExtent(m_dc.m_hAttribDC, line).cx);
    }
    int LineHeight() const {
        TEXTMETRICW metrics{};
        ::GetTextMetricsW(m_dc.m_hAttribDC, &metrics);
        return static_cast<int>(metrics.tmHeight + metrics.tmExternalLeading);
    }
    BOOL DrawLine(int x, int y, std::wstring_view line);
    int Draw(std::wstring_view text, CRect& rect, UINT nFormat);

private:
    static constexpr size_t kPart = 128;  // units drawn by one call

    std::wstring_view TakeLine(std::wstring_view& rest, int nWidth, UINT nFormat) const;
    size_t UnitsThatFit(std::wstring_view line, int nWidth) const;
    void DrawIn(const CRect& rect, int y, std::wstring_view line, UINT nFormat);

    CDC& m_dc;
};

BOOL ElsewhereMeasured::DrawLine(int x, int y, std::wstring_view line) {
    BOOL bDrawn = TRUE;
    while (!line.empty()) {
        size_t nPart = std::min(line.size(), kPart);
        if (nPart < line.size() && IS_HIGH_SURROGATE(line[nPart - 1])) {
            --nPart;
        }
        int widths[kPart] = {};
        SIZE size{};
        ::GetTextExtentExPointW(m_dc.m_hAttribDC, line.data(), static_cast<int>(nPart), 0, nullptr,
                                widths, &size);
        for (size_t i = nPart - 1; i > 0; --i) {
            widths[i] -= widths[i - 1];  // from one character to the next
        }
        bDrawn &= ::ExtTextOutW(m_dc.m_hDC, x, y, 0, nullptr, line.data(), static_cast<UINT>(nPart),
                                widths);
        x += static_cast<int>(size.cx);
        line.remove_prefix(nPart);
    }
    return bDrawn;
}

size_t ElsewhereMeasured::UnitsThatFit(std::wstring_view line, int nWidth) const {
    int nFit = 0;
    SIZE size{};
    if (nWidth <= 0 ||
        !::GetTextExtentExPointW(m_dc.m_hAttribDC, line.data(), static_cast<int>(line.size()),
                                 nWidth, &nFit, nullptr, &size)) {
        return 0;
    }
    if (nFit > 0 && IS_HIGH_SURROGATE(line[static_cast<size_t>(nFit) - 1])) {
        --nFit;
    }
    return static_cast<size_t>(nFit);
}

// The next line and its line feed, or as much of it as fits where lines are broken.
std::wstring_view ElsewhereMeasured::TakeLine(std::wstring_view& rest, int nWidth,
                                              UINT nFormat) const {
    if ((nFormat & DT_SINGLELINE) != 0) {
        return std::exchange(rest, {});
    }
    const size_t nFeed = rest.find(L'\n');
    std::wstring_view line = rest.substr(0, nFeed);
    size_t nTaken = nFeed == std::wstring_view::npos ? rest.size() : nFeed + 1;
    if ((nFormat & DT_WORDBREAK) != 0 && Width(line) > nWidth) {
        size_t nFit = std::max<size_t>(UnitsThatFit(line, nWidth), 1);
        if (nFit < line.size()) {
            const size_t nBlank = line.rfind(L' ', nFit);
            nFit = nBlank != std::wstring_view::npos && nBlank > 0 ? nBlank : nFit;
            nTaken = std::min(line.find_first_not_of(L' ', nFit), line.size());
            line = line.substr(0, nFit);
        }
    }
    rest.remove_prefix(nTaken);
    if (line.ends_with(L'\r')) {
        line.remove_suffix(1);
    }
    return line;
}

// One line, aligned; what does not fit ends in dots if that is asked for.
void ElsewhereMeasured::DrawIn(const CRect& rect, int y, std::wstring_view line, UINT nFormat) {
    int nWidth = Width(line);
    int nDots = 0;
    if ((nFormat & DT_END_ELLIPSIS) != 0 && nWidth > rect.Width()) {
        nDots = Width(kEllipsis);
        line = line.substr(0, std::max<size_t>(UnitsThatFit(line, rect.Width() - nDots), 1));
        nWidth = Width(line);
    }
    int x = static_cast<int>(rect.left);
    if ((nFormat & DT_CENTER) != 0) {
        x += (rect.Width() - nWidth - nDots) / 2;
    } else if ((nFormat & DT_RIGHT) != 0) {
        x += rect.Width() - nWidth - nDots;
    }
    DrawLine(x, y, line);
    if (nDots > 0) {
        DrawLine(x + nWidth, y, kEllipsis);
    }
}

int ElsewhereMeasured::Draw(std::wstring_view text, CRect& rect, UINT nFormat) {
    const int nHeight = LineHeight();
    int y = static_cast<int>(rect.top);
    if ((nFormat & DT_SINGLELINE) != 0 && (nFormat & DT_VCENTER) != 0) {
        y += (rect.Height() - nHeight) / 2;
    } else if ((nFormat & DT_SINGLELINE) != 0 && (nFormat & DT_BOTTOM) != 0) {
        y = static_cast<int>(rect.bottom) - nHeight;
    }
    const int nTop = y;
    const bool bMeasureOnly = (nFormat & DT_CALCRECT) != 0;
    std::optional<ClipGuard> clip;
    if (!bMeasureOnly && (nFormat & DT_NOCLIP) == 0) {
        clip.emplace(m_dc.m_hDC, rect);
    }
    int nWidest = 0;
    for (std::wstring_view rest = text; !rest.empty(); y += nHeight) {
        const std::wstring_view line = TakeLine(rest, rect.Width(), nFormat);
        if (bMeasureOnly) {
            nWidest = std::max(nWidest, Width(line));
        } else {
            DrawIn(rect, y, line, nFormat);
        }
    }
    if (bMeasureOnly) {
        rect.right = rect.left + nWidest;
        rect.bottom = rect.top + (y - nTop);
    }
    return y - nTop;
}

}  // namespace

bool IsReadByBytes(HDC hDC, std::string_view text) {
    return IsAscii(text) || ::GetTextCharset(hDC) == SYMBOL_CHARSET;
}

CSize TextExtent(const CDC& dc, std::string_view text) {
    if (IsReadByBytes(dc.m_hAttribDC, text)) {
        return dc.GetTextExtent(text.data(), static_cast<int>(text.size()));
    }
    return WideExtent(dc.m_hAttribDC, WideText(text).View());
}

void TextPrefixWidths(const CDC& dc, std::string_view text, int* pWidths) {
    SIZE size{};
    if (IsReadByBytes(dc.m_hAttribDC, text)) {
        if (!::GetTextExtentExPointA(dc.m_hAttribDC, text.data(), static_cast<int>(text.size()), 0,
                                     nullptr, pWidths, &size)) {
            std::fill_n(pWidths, text.size(), 0);
        }
        return;
    }
    const WideText wide(text);
    if (!::GetTextExtentExPointW(dc.m_hAttribDC, wide.Data(), wide.Length(), 0, nullptr, pWidths,
                                 &size)) {
        std::fill_n(pWidths, text.size(), 0);
        return;
    }
    wide.UnitsToBytes(pWidths);
}

int DrawTextIn(CDC& dc, std::string_view text, CRect& rect, UINT nFormat) {
    if (IsReadByBytes(dc.m_hDC, text)) {
        return dc.DrawText(text.data(), static_cast<int>(text.size()), &rect, nFormat);
    }
    const WideText wide(text);
    return MeasuresElsewhere(dc)
               ? ElsewhereMeasured(dc).Draw(wide.View(), rect, nFormat)
               : ::DrawTextW(dc.m_hDC, wide.Data(), wide.Length(), &rect, nFormat);
}

BOOL DrawTextAt(CDC& dc, int x, int y, std::string_view text) {
    if (IsReadByBytes(dc.m_hDC, text)) {
        return dc.TextOut(x, y, text.data(), static_cast<int>(text.size()));
    }
    const WideText wide(text);
    return MeasuresElsewhere(dc) ? ElsewhereMeasured(dc).DrawLine(x, y, wide.View())
                                 : ::TextOutW(dc.m_hDC, x, y, wide.Data(), wide.Length());
}

CSize DrawTabbedText(CDC& dc, int x, int y, std::string_view text, int nTabStop, int nOrigin) {
    if (IsReadByBytes(dc.m_hDC, text)) {
        return dc.TabbedTextOut(x, y, text.data(), static_cast<int>(text.size()), 1, &nTabStop,
                                nOrigin);
    }
    const WideText wide(text);
    if (!MeasuresElsewhere(dc)) {
        return CSize(static_cast<DWORD>(
            ::TabbedTextOutW(dc.m_hDC, x, y, wide.Data(), wide.Length(), 1, &nTabStop, nOrigin)));
    }
    ElsewhereMeasured elsewhere(dc);
    const int nStep = std::max(nTabStop, 1);
    int nRight = x;
    for (std::wstring_view rest = wide.View();;) {
        const size_t nTab = rest.find(L'\t');
        const std::wstring_view part = rest.substr(0, nTab);
        elsewhere.DrawLine(nRight, y, part);
        nRight += elsewhere.Width(part);
        if (nTab == std::wstring_view::npos) {
            break;
        }
        nRight = nOrigin + ((nRight - nOrigin) / nStep + 1) * nStep;
        rest.remove_prefix(nTab + 1);
    }
    return CSize(nRight - x, elsewhere.LineHeight());
}

// --- Clipboard

namespace {

// The wide form of a text that ends at its terminator; null without memory.
HGLOBAL WideCopy(HGLOBAL hText) {
    const auto* pszText = static_cast<const char*>(::GlobalLock(hText));
    if (pszText == nullptr) {
        return nullptr;
    }
    const int nUnits = ::MultiByteToWideChar(CP_ACP, 0, pszText, -1, nullptr, 0);
    HGLOBAL hWide =
        ::GlobalAlloc(GMEM_MOVEABLE | GMEM_DDESHARE, static_cast<size_t>(nUnits) * sizeof(wchar_t));
    if (auto* pWide = static_cast<wchar_t*>(hWide != nullptr ? ::GlobalLock(hWide) : nullptr)) {
        ::MultiByteToWideChar(CP_ACP, 0, pszText, -1, pWide, nUnits);
        ::GlobalUnlock(hWide);
    }
    ::GlobalUnlock(hText);
    return hWide;
}

// The clipboard owns what it takes.
bool Give(UINT nFormat, HGLOBAL hText) {
    const bool bTaken = hText != nullptr && ::SetClipboardData(nFormat, hText) != nullptr;
    if (!bTaken) {
        ::GlobalFree(hText);
    }
    return bTaken;
}

}  // namespace

bool GiveToClipboard(CWnd& wnd, HGLOBAL hText) {
    const HGLOBAL hWide = WideCopy(hText);
    if (!wnd.OpenClipboard()) {
        ::GlobalFree(hWide);
        ::GlobalFree(hText);
        return false;
    }
    ::EmptyClipboard();
    Give(CF_UNICODETEXT, hWide);
    const bool bTaken = Give(CF_TEXT, hText);
    ::CloseClipboard();
    return bTaken;
}

// --- Measures for core

Size DcMeasure::Extent(std::string_view text) {
    const CSize size = TextExtent(m_dc, text);
    return {static_cast<int>(size.cx), static_cast<int>(size.cy)};
}

void DcMeasure::PrefixWidths(std::string_view text, int* pWidths) {
    TextPrefixWidths(m_dc, text, pWidths);
}

std::size_t DcMeasure::CharBytes(std::string_view text) const {
    return ProcessText().CharBytes(text);
}

}  // namespace qv
