// A window for core, without one: remembers what it was told, and resizes its client area with its
// scroll bars as the platform does.

#pragma once

#include "base/platform_names.h"
#include "base/text_measure.h"
#include "base/window_port.h"

#include <functional>
#include <new>
#include <string_view>
#include <vector>

class FakeWindow : public qv::WindowPort {
public:
    static constexpr int kBar = 17;

    FakeWindow(int cx, int cy) : size{cx, cy} {}

    bool HasWindow() const override { return bExists; }
    qv::Rect ClientRect() const override {
        return {0, 0, size.cx - (bShown[SB_VERT] ? kBar : 0),
                size.cy - (bShown[SB_HORZ] ? kBar : 0)};
    }
    unsigned Style() const override {
        return nStyle | (bShown[SB_HORZ] ? WS_HSCROLL : 0u) | (bShown[SB_VERT] ? WS_VSCROLL : 0u);
    }
    int VerticalBarWidth() const override { return kBar; }
    int HorizontalBarHeight() const override { return kBar; }
    void ShowScrollBar(int nBar, bool bShow) override {
        if (bShown[nBar] != bShow) {
            bShown[nBar] = bShow;
            if (onResize) {
                onResize();
            }
        }
    }
    void SetScrollRange(int nBar, const qv::ScrollRange& range) override { ranges[nBar] = range; }
    bool GetScrollPosition(int, bool bTrack, int& nPos) const override {
        if (bPositionKnown) {
            nPos = bTrack ? nTrackPos : nThumbPos;
        }
        return bPositionKnown;
    }
    void ScrollPixels(int dx, int dy, bool) override { scrolls.push_back({dx, dy}); }
    void Invalidate(const qv::Rect& rect, bool) override { invalid.push_back(rect); }
    void InvalidateAll() override { ++nAllInvalid; }
    void Update() override { ++nUpdates; }

    bool bExists = true;
    qv::Size size;        // with both bars hidden
    unsigned nStyle = 0;  // but for the bits of bars
    bool bShown[2] = {};
    qv::ScrollRange ranges[2];
    bool bPositionKnown = false;
    int nTrackPos = 0;
    int nThumbPos = 0;
    std::vector<qv::Point> scrolls;
    std::vector<qv::Rect> invalid;
    int nAllInvalid = 0;
    int nUpdates = 0;
    std::function<void()> onResize;
};

// Every byte has the same width.
class FixedMeasure : public qv::TextMeasure {
public:
    static constexpr int kCharWidth = 7;
    qv::Size Extent(std::string_view text) override {
        ++nCalls;
        if (bOutOfMemory) {
            throw std::bad_alloc();
        }
        return {static_cast<int>(text.size()) * kCharWidth, 13};
    }
    int nCalls = 0;
    bool bOutOfMemory = false;
};
