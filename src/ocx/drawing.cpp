#include "ocx/drawing.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace ocx {

PaintBuffer::PaintBuffer(HDC hTarget, const RECT& rect)
    : m_hTarget(hTarget), m_rect(rect), m_hDC(::CreateCompatibleDC(hTarget)) {
    const int cx = std::max(rect.right - rect.left, 1L);
    const int cy = std::max(rect.bottom - rect.top, 1L);
    m_hBitmap = m_hDC != nullptr ? ::CreateCompatibleBitmap(hTarget, cx, cy) : nullptr;
    if (m_hBitmap == nullptr) {
        if (m_hDC != nullptr) {
            ::DeleteDC(m_hDC);
        }
        m_hDC = hTarget;
        return;
    }
    m_hOld = ::SelectObject(m_hDC, m_hBitmap);
    ::SetViewportOrgEx(m_hDC, -rect.left, -rect.top, nullptr);
}

PaintBuffer::~PaintBuffer() {
    if (m_hBitmap == nullptr) {
        return;
    }
    ::SetViewportOrgEx(m_hDC, 0, 0, nullptr);
    ::BitBlt(m_hTarget, m_rect.left, m_rect.top, m_rect.right - m_rect.left,
             m_rect.bottom - m_rect.top, m_hDC, 0, 0, SRCCOPY);
    ::SelectObject(m_hDC, m_hOld);
    ::DeleteDC(m_hDC);
    ::DeleteObject(m_hBitmap);
}

COLORREF ToColorRef(OLE_COLOR color) {
    constexpr OLE_COLOR kSystem = 0x80000000;
    return (color & kSystem) != 0 ? ::GetSysColor(color & 0xFF) : color & 0xFFFFFF;
}

void FillSolid(HDC hDC, const RECT& rect, COLORREF cr) {
    const COLORREF crOld = ::SetBkColor(hDC, cr);
    ::ExtTextOutW(hDC, 0, 0, ETO_OPAQUE, &rect, nullptr, 0, nullptr);
    ::SetBkColor(hDC, crOld);
}

void DrawEdges(HDC hDC, const RECT& rect, int nWidth, COLORREF crLeftTop, COLORREF crRightBottom) {
    RECT rc = rect;
    for (int n = 0; n < nWidth && rc.left < rc.right && rc.top < rc.bottom; ++n) {
        FillSolid(hDC, {rc.left, rc.top, rc.right - 1, rc.top + 1}, crLeftTop);
        FillSolid(hDC, {rc.left, rc.top, rc.left + 1, rc.bottom - 1}, crLeftTop);
        FillSolid(hDC, {rc.left, rc.bottom - 1, rc.right, rc.bottom}, crRightBottom);
        FillSolid(hDC, {rc.right - 1, rc.top, rc.right, rc.bottom}, crRightBottom);
        ::InflateRect(&rc, -1, -1);
    }
}

Ref<IPicture> PictureOf(IUnknown* pObject) {
    auto picture = Ref<IPicture>::Of(pObject);
    if (pObject != nullptr && !picture) {
        throw Refusal{kInvalidValue, L"The object is no picture.", 0};
    }
    return picture;
}

SIZE PictureSize(IPicture* pPicture) {
    OLE_XSIZE_HIMETRIC cx = 0;
    OLE_YSIZE_HIMETRIC cy = 0;
    if (pPicture == nullptr || FAILED(pPicture->get_Width(&cx)) ||
        FAILED(pPicture->get_Height(&cy))) {
        return {};
    }
    const SIZE dpi = PixelsPerInch();
    return {::MulDiv(cx, dpi.cx, kHimetricPerInch), ::MulDiv(cy, dpi.cy, kHimetricPerInch)};
}

void DrawPicture(HDC hDC, IPicture* pPicture, const RECT& rect) {
    OLE_XSIZE_HIMETRIC cx = 0;
    OLE_YSIZE_HIMETRIC cy = 0;
    if (pPicture == nullptr || FAILED(pPicture->get_Width(&cx)) ||
        FAILED(pPicture->get_Height(&cy))) {
        return;
    }
    // Pictures count from the bottom.
    pPicture->Render(hDC, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, 0,
                     cy, cx, -cy, &rect);
}

SIZE PixelsPerInch() {
    // The same for as long as the process runs, and asked for at each tab and cell.
    static const SIZE dpi = [] {
        const ScreenDC dc;
        return SIZE{std::max(::GetDeviceCaps(dc, LOGPIXELSX), 1),
                    std::max(::GetDeviceCaps(dc, LOGPIXELSY), 1)};
    }();
    return dpi;
}

static LONG Scaled(LONG n, LONG nBy, LONG nThrough) {
    const std::int64_t nProduct = static_cast<std::int64_t>(n) * nBy;
    const std::int64_t nRounded = (nProduct + (n < 0 ? -nThrough : nThrough) / 2) / nThrough;
    return static_cast<LONG>(std::clamp<std::int64_t>(nRounded, std::numeric_limits<LONG>::min(),
                                                      std::numeric_limits<LONG>::max()));
}

LONG TwipsToPixels(LONG nTwips, LONG nPerInch) {
    return Scaled(nTwips, nPerInch, kTwipsPerInch);
}

LONG PixelsToTwips(LONG nPixels, LONG nPerInch) {
    return Scaled(nPixels, kTwipsPerInch, nPerInch);
}

}  // namespace ocx
