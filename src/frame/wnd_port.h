// The seam between core and a real window: what core asks of its window and of the width of text,
// answered by a CWnd and its font.

#pragma once

#include <afxwin.h>

#include <array>

#include "base/text_measure.h"
#include "base/window_port.h"

namespace qv {

inline CRect ToCRect(const Rect& rect) {
    return {rect.left, rect.top, rect.right, rect.bottom};
}
inline Rect ToRect(const RECT& rect) {
    return {static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
            static_cast<int>(rect.bottom)};
}

class WndPort : public WindowPort {
public:
    explicit WndPort(CWnd& wnd) : m_wnd(wnd) {}

    bool HasWindow() const override;
    Rect ClientRect() const override;
    unsigned Style() const override;
    int VerticalBarWidth() const override;
    int HorizontalBarHeight() const override;
    void ShowScrollBar(int nBar, bool bShow) override;
    void SetScrollRange(int nBar, const ScrollRange& range) override;
    bool GetScrollPosition(int nBar, bool bTrack, int& nPos) const override;
    void ScrollPixels(int dx, int dy, bool bErase) override;
    void Invalidate(const Rect& rect, bool bErase) override;
    void InvalidateAll() override;
    void Update() override;

    // Draws the scroll bars that have changed since they were drawn last. To be called when the
    // window paints.
    void DrawBars();

private:
    CWnd& m_wnd;
    bool m_bBarDue[2] = {};  // by SB_HORZ, SB_VERT
};

// Text in a font selected in a device context, measured by the platform.
class DcMeasure : public TextMeasure {
public:
    explicit DcMeasure(CDC& dc) : m_dc(dc) {}
    Size Extent(std::string_view text) override;
    void PrefixWidths(std::string_view text, int* pWidths) override;

private:
    void PrefixWidthsOfUtf8(std::string_view text, int* pWidths);

    CDC& m_dc;
};

// Text in one font of a window. Where the widths of single characters add up to that of the text,
// which is tried out once for each font, a table of widths answers in a small part of the time of
// the platform's call.
class FontMeasure : public TextMeasure {
public:
    explicit FontMeasure(CWnd& wnd) : m_wnd(wnd) {}
    // Null measures in the window's default font. The handle is not owned.
    void SetFont(HFONT hFont);
    Size Extent(std::string_view text) override;
    void PrefixWidths(std::string_view text, int* pWidths) override;

private:
    void MakeTable();
    bool WidthsAddUp(CDC& dc) const;
    int TableWidth(std::string_view text) const;

    static constexpr int kByCall = -1;  // no width that could be added

    CWnd& m_wnd;
    HFONT m_hFont = nullptr;
    bool m_bTableMade = false;
    std::array<int, 256> m_aWidths{};
    int m_nHeight = 0;
};

}  // namespace qv
