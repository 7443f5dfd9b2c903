// Pictures of what stands on the screen, as bitmap files.
#pragma once

#include <windows.h>

#include <vector>

// A part of the screen, copied.
class ScreenPicture {
public:
    // rect: pixels of the screen. Empty if the screen gives none.
    explicit ScreenPicture(const RECT& rect);

    // False if the file cannot be written, or there is no picture.
    bool Save(const char* pszFile) const;
    bool operator==(const ScreenPicture& other) const { return m_bits == other.m_bits; }

private:
    BITMAPINFOHEADER m_info = {};
    std::vector<BYTE> m_bits;  // rows from the bottom, three bytes a pixel
};
