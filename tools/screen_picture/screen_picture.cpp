#include "screen_picture/screen_picture.h"

#include <cstdio>
#include <memory>

ScreenPicture::ScreenPicture(const RECT& rect) {
    const LONG nWidth = rect.right - rect.left;
    const LONG nHeight = rect.bottom - rect.top;
    if (nWidth <= 0 || nHeight <= 0) {
        return;
    }
    const HDC hScreen = ::GetDC(nullptr);
    const HDC hDC = ::CreateCompatibleDC(hScreen);
    const HBITMAP hBitmap = ::CreateCompatibleBitmap(hScreen, nWidth, nHeight);
    const HGDIOBJ hOld = ::SelectObject(hDC, hBitmap);
    ::BitBlt(hDC, 0, 0, nWidth, nHeight, hScreen, rect.left, rect.top, SRCCOPY);
    ::SelectObject(hDC, hOld);

    m_info.biSize = sizeof(m_info);
    m_info.biWidth = nWidth;
    m_info.biHeight = nHeight;
    m_info.biPlanes = 1;
    m_info.biBitCount = 24;
    m_bits.resize((static_cast<size_t>(nWidth) * 3 + 3) / 4 * 4 * static_cast<size_t>(nHeight));
    if (::GetDIBits(hDC, hBitmap, 0, static_cast<UINT>(nHeight), m_bits.data(),
                    reinterpret_cast<BITMAPINFO*>(&m_info), DIB_RGB_COLORS) == 0) {
        m_bits.clear();
    }
    ::DeleteObject(hBitmap);
    ::DeleteDC(hDC);
    ::ReleaseDC(nullptr, hScreen);
}

bool ScreenPicture::Save(const char* pszFile) const {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pFile(std::fopen(pszFile, "wb"),
                                                                &std::fclose);
    if (m_bits.empty() || pFile == nullptr) {
        return false;
    }
    BITMAPFILEHEADER header{};
    header.bfType = 0x4D42;  // "BM"
    header.bfOffBits = sizeof(header) + sizeof(m_info);
    header.bfSize = header.bfOffBits + static_cast<DWORD>(m_bits.size());
    return std::fwrite(&header, sizeof(header), 1, pFile.get()) == 1 &&
           std::fwrite(&m_info, sizeof(m_info), 1, pFile.get()) == 1 &&
           std::fwrite(m_bits.data(), 1, m_bits.size(), pFile.get()) == m_bits.size() &&
           std::fflush(pFile.get()) == 0;
}
