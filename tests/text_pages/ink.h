// What a text leaves on a window, wherever it stands there.
#pragma once

#include "support/picture.h"
#include "support/recording_parent.h"

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

/// The pixels in which two pictures differ and that are not of the background, from the first to
/// the last row and column of them; the others are CLR_INVALID.
struct Ink {
    CSize size{0, 0};
    std::vector<COLORREF> pixels;

    Ink(const Picture& with, const Picture& without, COLORREF crBk) {
        const auto isInk = [&](int x, int y) {
            return with.At(x, y) != without.At(x, y) && with.At(x, y) != crBk;
        };
        CRect rc(with.Width(), with.Height(), 0, 0);
        for (int y = 0; y < with.Height(); ++y) {
            for (int x = 0; x < with.Width(); ++x) {
                if (isInk(x, y)) {
                    rc = CRect(std::min<LONG>(rc.left, x), std::min<LONG>(rc.top, y),
                               std::max<LONG>(rc.right, x + 1), std::max<LONG>(rc.bottom, y + 1));
                }
            }
        }
        if (rc.Width() <= 0) {
            return;
        }
        size = rc.Size();
        for (int y = rc.top; y < rc.bottom; ++y) {
            for (int x = rc.left; x < rc.right; ++x) {
                pixels.push_back(isInk(x, y) ? with.At(x, y) : CLR_INVALID);
            }
        }
    }
    bool operator==(const Ink& other) const { return size == other.size && pixels == other.pixels; }
    bool IsEmpty() const { return pixels.empty(); }
};

inline std::ostream& operator<<(std::ostream& out, const Ink& ink) {
    out << ink.size.cx << " x " << ink.size.cy << '\n';
    for (size_t i = 0; i < ink.pixels.size(); ++i) {
        out << (ink.pixels[i] != CLR_INVALID ? '#' : '.');
        if ((i + 1) % static_cast<size_t>(ink.size.cx) == 0) {
            out << '\n';
        }
    }
    return out;
}

/// What a wide text leaves as the platform draws it on a window: what every control should leave.
inline Ink WideInk(const std::wstring& strText, HFONT hFont, COLORREF crText, COLORREF crBk) {
    const CSize size(300, 40);
    RecordingParent wnd(size, WS_POPUP);
    CClientDC dc(&wnd);
    const HGDIOBJ hOldFont = ::SelectObject(dc, hFont);
    dc.SetTextColor(crText);
    dc.SetBkColor(crBk);
    const auto show = [&](const std::wstring& strShown) {
        CRect rc(CPoint(0, 0), size);
        dc.FillSolidRect(&rc, crBk);
        rc.DeflateRect(5, 5);
        ::DrawTextW(dc, strShown.data(), static_cast<int>(strShown.size()), &rc,
                    DT_NOPREFIX | DT_SINGLELINE);
        return Picture::Of(dc, size);
    };
    const Ink ink(show(strText), show(L""), crBk);
    ::SelectObject(dc, hOldFont);
    return ink;
}
