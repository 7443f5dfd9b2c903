#include "support/picture.h"

Picture Picture::OfClient(HWND hWnd) {
    ::UpdateWindow(hWnd);
    CRect rc;
    ::GetClientRect(hWnd, rc);
    Picture picture;
    picture.m_size = rc.Size();
    if (rc.IsRectEmpty()) {
        return picture;
    }
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = rc.Width();
    info.bmiHeader.biHeight = -rc.Height();  // the first row is the upper one
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;

    HDC hDC = ::GetDC(hWnd);
    HDC hMemoryDC = ::CreateCompatibleDC(hDC);
    void* pBits = nullptr;
    HBITMAP hBitmap = ::CreateDIBSection(hDC, &info, DIB_RGB_COLORS, &pBits, nullptr, 0);
    HGDIOBJ hOld = ::SelectObject(hMemoryDC, hBitmap);
    ::BitBlt(hMemoryDC, 0, 0, rc.Width(), rc.Height(), hDC, 0, 0, SRCCOPY);
    ::GdiFlush();
    const auto* pPixels = static_cast<const DWORD*>(pBits);
    picture.m_pixels.assign(pPixels, pPixels + rc.Width() * rc.Height());
    for (DWORD& dwPixel : picture.m_pixels) {
        dwPixel &= 0x00FFFFFF;  // the fourth byte is nobody's
    }
    ::SelectObject(hMemoryDC, hOld);
    ::DeleteObject(hBitmap);
    ::DeleteDC(hMemoryDC);
    ::ReleaseDC(hWnd, hDC);
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
