// A bitmap to draw on, white, with a font of its own.
#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

class Sheet : public CDC {
public:
    static constexpr int kWidth = 300;
    static constexpr int kHeight = 120;

    explicit Sheet(int nPoints = 90, BYTE nCharSet = DEFAULT_CHARSET,
                   const char* pszFace = "Tahoma") {
        CreateCompatibleDC(nullptr);
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, kWidth, -kHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        m_hBitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &m_pBits, nullptr, 0);
        m_hOldBitmap = ::SelectObject(m_hDC, m_hBitmap);
        LOGFONT log{};
        log.lfHeight = nPoints;
        log.lfCharSet = nCharSet;
        log.lfQuality = NONANTIALIASED_QUALITY;
        lstrcpy(log.lfFaceName, pszFace);
        m_font.CreatePointFontIndirect(&log);
        m_hOldFont = ::SelectObject(m_hDC, m_font);
        ::PatBlt(m_hDC, 0, 0, kWidth, kHeight, WHITENESS);
    }
    ~Sheet() override {
        ::SelectObject(m_hDC, m_hOldFont);
        ::SelectObject(m_hDC, m_hOldBitmap);
        ::DeleteObject(m_hBitmap);
    }
    std::vector<DWORD> Pixels() const {
        ::GdiFlush();
        const auto* p = static_cast<const DWORD*>(m_pBits);
        return {p, p + kWidth * kHeight};
    }
    /// What the platform measures, on the attribute context.
    CSize WideExtent(const std::wstring& str) const {
        SIZE size{};
        ::GetTextExtentPoint32W(m_hAttribDC, str.data(), static_cast<int>(str.size()), &size);
        return size;
    }
    int WideWidth(const std::wstring& str) const { return static_cast<int>(WideExtent(str).cx); }
    HFONT Font() const { return static_cast<HFONT>(m_font.GetSafeHandle()); }

private:
    void* m_pBits = nullptr;
    HBITMAP m_hBitmap = nullptr;
    HGDIOBJ m_hOldBitmap = nullptr;
    HGDIOBJ m_hOldFont = nullptr;
    CFont m_font;
};
