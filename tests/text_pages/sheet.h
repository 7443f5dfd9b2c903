// A bitmap to draw on, white, with a font of its own.
#pragma once

#include "support/picture.h"

#include <string>

class Sheet : public CDC {
public:
    static constexpr int kWidth = 300;
    static constexpr int kHeight = 120;

    explicit Sheet(int nPoints = 90, BYTE nCharSet = DEFAULT_CHARSET) {
        CreateCompatibleDC(nullptr);
        m_bitmap.CreateBitmap(kWidth, kHeight, 1, 32, nullptr);
        m_hOldBitmap = ::SelectObject(m_hDC, m_bitmap);
        LOGFONT log{};
        log.lfHeight = nPoints;
        log.lfCharSet = nCharSet;
        log.lfQuality = NONANTIALIASED_QUALITY;
        lstrcpy(log.lfFaceName, "Tahoma");
        m_font.CreatePointFontIndirect(&log);
        m_hOldFont = ::SelectObject(m_hDC, m_font);
        ::PatBlt(m_hDC, 0, 0, kWidth, kHeight, WHITENESS);
    }
    ~Sheet() override {
        ::SelectObject(m_hDC, m_hOldFont);
        ::SelectObject(m_hDC, m_hOldBitmap);
    }
    Picture Pixels() const { return Picture::Of(m_hDC, CSize(kWidth, kHeight)); }
    /// What the platform measures, on the attribute context.
    CSize WideExtent(const std::wstring& str) const {
        SIZE size{};
        ::GetTextExtentPoint32W(m_hAttribDC, str.data(), static_cast<int>(str.size()), &size);
        return size;
    }
    int WideWidth(const std::wstring& str) const { return static_cast<int>(WideExtent(str).cx); }
    HFONT Font() const { return static_cast<HFONT>(m_font.GetSafeHandle()); }

private:
    CBitmap m_bitmap;
    HGDIOBJ m_hOldBitmap = nullptr;
    HGDIOBJ m_hOldFont = nullptr;
    CFont m_font;
};
