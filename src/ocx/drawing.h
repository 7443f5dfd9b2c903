// Drawing without the framework: owners of the drawing system's objects, guards for what is
// selected, colours, plain fills, pictures, and a buffer that keeps paints from flickering.

#pragma once

#include "ocx/com.h"

#include <ocidl.h>
#include <olectl.h>
#include <string_view>
#include <utility>

namespace ocx {

/// Deletes its brush, pen, font, bitmap or region.
template <class Handle>
class Owned {
public:
    Owned() = default;
    explicit Owned(Handle h) : m_h(h) {}
    Owned(Owned&& other) noexcept : m_h(std::exchange(other.m_h, nullptr)) {}
    Owned& operator=(Owned other) noexcept {
        std::swap(m_h, other.m_h);
        return *this;
    }
    ~Owned() {
        if (m_h != nullptr) {
            ::DeleteObject(m_h);
        }
    }
    Handle Get() const { return m_h; }
    explicit operator bool() const { return m_h != nullptr; }
    Handle Detach() { return std::exchange(m_h, nullptr); }

private:
    Handle m_h = nullptr;
};

/// Selects an object and puts the old one back; null selects nothing. Declared behind the owner of
/// what it selects.
class Selected {
public:
    Selected(HDC hDC, HGDIOBJ hObject)
        : m_hDC(hDC), m_hOld(hObject != nullptr ? ::SelectObject(hDC, hObject) : nullptr) {}
    ~Selected() {
        if (m_hOld != nullptr) {
            ::SelectObject(m_hDC, m_hOld);
        }
    }
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;

private:
    HDC m_hDC;
    HGDIOBJ m_hOld;
};

/// Everything about a device context goes back to what it was.
class SavedDC {
public:
    explicit SavedDC(HDC hDC) : m_hDC(hDC), m_nState(::SaveDC(hDC)) {}
    ~SavedDC() { ::RestoreDC(m_hDC, m_nState); }
    SavedDC(const SavedDC&) = delete;
    SavedDC& operator=(const SavedDC&) = delete;

private:
    HDC m_hDC;
    int m_nState;
};

/// The screen's, to measure with.
class ScreenDC {
public:
    ScreenDC() : m_hDC(::GetDC(nullptr)) {}
    ~ScreenDC() { ::ReleaseDC(nullptr, m_hDC); }
    ScreenDC(const ScreenDC&) = delete;
    ScreenDC& operator=(const ScreenDC&) = delete;
    operator HDC() const { return m_hDC; }

private:
    HDC m_hDC;
};

/// A bitmap to draw on; its life's end copies it to the target. Without memory for the bitmap the
/// target itself is drawn on.
class PaintBuffer {
public:
    /// rect in the target's coordinates, which are the buffer's as well.
    PaintBuffer(HDC hTarget, const RECT& rect);
    ~PaintBuffer();
    PaintBuffer(const PaintBuffer&) = delete;
    PaintBuffer& operator=(const PaintBuffer&) = delete;
    operator HDC() const { return m_hDC; }

private:
    HDC m_hTarget;
    RECT m_rect;
    HDC m_hDC;
    HBITMAP m_hBitmap = nullptr;
    HGDIOBJ m_hOld = nullptr;
};

/// System colours (0x800000xx) as they are now.
COLORREF ToColorRef(OLE_COLOR color);

void FillSolid(HDC hDC, const RECT& rect, COLORREF cr);
/// The border of rect, nWidth pixels inside of it: left and top, right and bottom.
void DrawEdges(HDC hDC, const RECT& rect, int nWidth, COLORREF crLeftTop, COLORREF crRightBottom);

/// An object as a picture, null for none; refuses one that is something else.
Ref<IPicture> PictureOf(IUnknown* pObject);
/// Pixels of a picture on the screen; 0 for none.
SIZE PictureSize(IPicture* pPicture);
/// Into rect, stretched if it has another size.
void DrawPicture(HDC hDC, IPicture* pPicture, const RECT& rect);

/// Screen pixels to an inch, never 0.
SIZE PixelsPerInch();
/// Rounded to the nearest; results beyond 32 bits stay at the end of them.
LONG TwipsToPixels(LONG nTwips, LONG nPerInch);
LONG PixelsToTwips(LONG nPixels, LONG nPerInch);
constexpr LONG kTwipsPerInch = 1440;
constexpr LONG kHimetricPerInch = 2540;

}  // namespace ocx
