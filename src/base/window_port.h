// What core asks of the window that it lays out. A control hands in an adapter over itself, a test
// hands in a recorder. All coordinates are client pixels.

#pragma once

#include "base/geometry.h"

namespace qv {

// One scroll bar as the platform keeps it, in whatever unit the control counts.
struct ScrollRange {
    int nMin = 0;
    int nMax = 0;
    int nPage = 0;
    int nPos = 0;
    friend bool operator==(const ScrollRange&, const ScrollRange&) = default;
};

class WindowPort {
public:
    virtual ~WindowPort() = default;

    // False before creation and after destruction; no other member is called then.
    virtual bool HasWindow() const = 0;
    virtual Rect ClientRect() const = 0;
    virtual unsigned Style() const = 0;

    // Width of a vertical and height of a horizontal scroll bar, in pixels.
    virtual int VerticalBarWidth() const = 0;
    virtual int HorizontalBarHeight() const = 0;
    // nBar is SB_HORZ or SB_VERT. Showing a bar may resize the client area before the call returns.
    virtual void ShowScrollBar(int nBar, bool bShow) = 0;
    virtual void SetScrollRange(int nBar, const ScrollRange& range) = 0;
    // The position with all its 32 bits: the dragged one for bTrack. False if it cannot be had.
    virtual bool GetScrollPosition(int nBar, bool bTrack, int& nPos) const = 0;

    // Moves the window's pixels and marks what is uncovered, with or without erasing it.
    virtual void ScrollPixels(int dx, int dy, bool bErase) = 0;
    virtual void Invalidate(const Rect& rect, bool bErase) = 0;
    virtual void InvalidateAll() = 0;  // without erasing
    virtual void Update() = 0;
};

}  // namespace qv
