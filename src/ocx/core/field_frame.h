// Where the frames of a text field lie, one inside the other, and its text inside of them. Pixels.

#pragma once

#include "base/geometry.h"

namespace qv {

/// Widths from the outside inwards; what is not shown is 0.
struct FieldFrameWidths {
    int nShadow = 0;   ///< at the right and the bottom alone
    int nOutside = 0;  ///< edge
    int nFrame = 0;    ///< plain, between the edges
    int nInside = 0;   ///< edge
    int nBorder = 0;   ///< plain
};

/// Each rectangle is what its part surrounds the next one in; none is ever turned around.
struct FieldFrame {
    FieldFrame(const Rect& all, const FieldFrameWidths& widths);

    Rect outside;  ///< all but the shadow
    Rect frame;
    Rect inside;
    Rect border;
    Rect client;  ///< margins and text
};

enum class Across { kTop, kBottom, kCenter };

struct FieldMargins {
    int nLeft = 0;
    int nTop = 0;
    int nRight = 0;
    int nBottom = 0;
};

/// The client area less the margins, as far as there is room for them.
Rect TextArea(const Rect& client, const FieldMargins& margins);
/// The place of one line in it. Where the text area is too low, the margins above and below are
/// given up; a line higher than that as well begins at the client area's upper edge.
Rect LineArea(const Rect& client, const FieldMargins& margins, int nLineHeight, Across across);

}  // namespace qv
