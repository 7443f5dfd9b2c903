// Points, sizes and rectangles of core, in pixels. A rectangle holds its left and top edge and
// leaves out its right and bottom edge, as the platform's does.

#pragma once

namespace qv {

struct Point {
    int x = 0;
    int y = 0;
};

struct Size {
    int cx = 0;
    int cy = 0;
};

struct Rect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    bool Contains(Point pt) const {
        return pt.x >= left && pt.x < right && pt.y >= top && pt.y < bottom;
    }
    friend bool operator==(const Rect&, const Rect&) = default;
};

}  // namespace qv
