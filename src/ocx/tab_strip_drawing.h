// Numbers of the tab strip's look, in pixels, and a text's way across a tab.

#pragma once

#include "ocx/core/tab_strip_layout.h"
#include "ocx/tab_strip.h"

namespace ocx {

constexpr int kAlongPadding = 6;   // between a tab's ends and what it holds
constexpr int kAcrossPadding = 2;  // at its outer edge and its page, each
constexpr int kPictureGap = 4;
constexpr int kLongestTab = 4000;
constexpr LONG kCentred = 1;  // of the alignments: 0 before, 2 behind

/// A rectangle as text runs through it: u along a line, v from line to line.
class TabStrip::TextFrame {
public:
    enum class Way { Across, Up, Down };
    TextFrame(const RECT& rect, Way way) : m_rect(rect), m_way(way) {}

    int Length() const { return m_way == Way::Across ? Width() : Height(); }
    int Depth() const { return m_way == Way::Across ? Height() : Width(); }
    Way TheWay() const { return m_way; }
    POINT At(int u, int v) const {
        switch (m_way) {
            case Way::Up:
                return {m_rect.left + v, m_rect.bottom - u};
            case Way::Down:
                return {m_rect.right - v, m_rect.top + u};
            default:
                return {m_rect.left + u, m_rect.top + v};
        }
    }
    RECT RectAt(const RECT& place) const {
        const POINT a = At(place.left, place.top);
        const POINT b = At(place.right, place.bottom);
        return {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
    }

private:
    int Width() const { return m_rect.right - m_rect.left; }
    int Height() const { return m_rect.bottom - m_rect.top; }

    RECT m_rect;
    Way m_way;
};

}  // namespace ocx
