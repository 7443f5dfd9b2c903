#include "support/picture.h"

Picture Picture::OfClient(HWND hWnd) {
    ::UpdateWindow(hWnd);
    CRect rc;
    ::GetClientRect(hWnd, rc);
    HDC hDC = ::GetDC(hWnd);
    const Picture picture = Of(hDC, rc.Size());
    ::ReleaseDC(hWnd, hDC);
    return picture;
}

Picture Picture::Fresh(CWnd& wnd) {
    wnd.Invalidate(FALSE);
    return OfClient(wnd.m_hWnd);
}

Picture Picture::Of(HDC hDC, CSize size) {
    Picture picture;
    picture.m_size = size;
    if (size.cx <= 0 || size.cy <= 0) {
        return picture;
    }
    BITMAPINFO info = {};
    // A negative height: the first row is the upper one.
    info.bmiHeader = {sizeof info.bmiHeader, size.cx, -size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    HDC hMemoryDC = ::CreateCompatibleDC(hDC);
    void* pBits = nullptr;
    HBITMAP hBitmap = ::CreateDIBSection(hDC, &info, DIB_RGB_COLORS, &pBits, nullptr, 0);
    HGDIOBJ hOld = ::SelectObject(hMemoryDC, hBitmap);
    ::BitBlt(hMemoryDC, 0, 0, size.cx, size.cy, hDC, 0, 0, SRCCOPY);
    ::GdiFlush();
    const auto* pPixels = static_cast<const DWORD*>(pBits);
    picture.m_pixels.assign(pPixels, pPixels + size.cx * size.cy);
    for (DWORD& dwPixel : picture.m_pixels) {
        dwPixel &= 0x00FFFFFF;  // the fourth byte is nobody's
    }
    ::SelectObject(hMemoryDC, hOld);
    ::DeleteObject(hBitmap);
    ::DeleteDC(hMemoryDC);
    return picture;
}

COLORREF Picture::At(int x, int y) const {
    if (x < 0 || y < 0 || x >= m_size.cx || y >= m_size.cy) {
        return CLR_INVALID;
    }
    const DWORD dwPixel = m_pixels[static_cast<size_t>(y) * m_size.cx + x];
    return RGB((dwPixel >> 16) & 0xFF, (dwPixel >> 8) & 0xFF, dwPixel & 0xFF);
}

int Picture::Count(COLORREF cr) const {
    return Count(cr, CRect(0, 0, m_size.cx, m_size.cy));
}

int Picture::Count(COLORREF cr, const RECT& rect) const {
    int nCount = 0;
    for (int y = rect.top; y < rect.bottom; ++y) {
        for (int x = rect.left; x < rect.right; ++x) {
            nCount += At(x, y) == cr;
        }
    }
    return nCount;
}

bool Picture::operator==(const Picture& other) const {
    return m_size == other.m_size && m_pixels == other.m_pixels;
}
