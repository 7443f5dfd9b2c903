#include "ocx/core/field_frame.h"

#include <algorithm>

namespace qv {

static Rect Inside(const Rect& rect, int nWidth) {
    const int nMost = std::max(std::min(rect.Width(), rect.Height()) / 2, 0);
    const int n = std::clamp(nWidth, 0, nMost);
    return {rect.left + n, rect.top + n, rect.right - n, rect.bottom - n};
}

FieldFrame::FieldFrame(const Rect& all, const FieldFrameWidths& widths) {
    const int nMost = std::max(std::min(all.Width(), all.Height()) / 2, 0);
    const int nShadow = std::clamp(widths.nShadow, 0, nMost);
    outside = {all.left, all.top, std::max(all.right - nShadow, all.left),
               std::max(all.bottom - nShadow, all.top)};
    frame = Inside(outside, widths.nOutside);
    inside = Inside(frame, widths.nFrame);
    border = Inside(inside, widths.nInside);
    client = Inside(border, widths.nBorder);
}

Rect TextArea(const Rect& client, const FieldMargins& margins) {
    const auto clamp = [](int n, int nMost) { return std::clamp(n, 0, std::max(nMost, 0)); };
    Rect area = client;
    area.left += clamp(margins.nLeft, area.Width());
    area.right -= clamp(margins.nRight, area.Width());
    area.top += clamp(margins.nTop, area.Height());
    area.bottom -= clamp(margins.nBottom, area.Height());
    return area;
}

Rect LineArea(const Rect& client, const FieldMargins& margins, int nLineHeight, Across across) {
    Rect area = TextArea(client, margins);
    if (area.Height() < nLineHeight) {
        area.top = client.top;
        area.bottom = client.bottom;
    }
    const int nFree = std::max(area.Height() - nLineHeight, 0);
    const int nAbove = across == Across::kTop ? 0 : (across == Across::kBottom ? nFree : nFree / 2);
    area.top += nAbove;
    area.bottom = std::min(area.top + nLineHeight, area.bottom);
    return area;
}

}  // namespace qv
