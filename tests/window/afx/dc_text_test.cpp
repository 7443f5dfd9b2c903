// Text beyond ASCII, as the wide calls draw and measure it: by the process's code page, whatever
// character set the font was asked for.
#include <afxwin.h>

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

/// A context to draw in, white at first.
class Canvas {
public:
    static constexpr int kWidth = 300;
    static constexpr int kHeight = 60;

    explicit Canvas(HFONT hFont) {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = kWidth;
        info.bmiHeader.biHeight = kHeight;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        m_dc.CreateCompatibleDC(nullptr);
        m_hBitmap = ::CreateDIBSection(m_dc, &info, DIB_RGB_COLORS,
                                       reinterpret_cast<void**>(&m_pBits), nullptr, 0);
        m_hOldBitmap = ::SelectObject(m_dc, m_hBitmap);
        m_hOldFont = ::SelectObject(m_dc, hFont);
        m_dc.PatBlt(0, 0, kWidth, kHeight, WHITENESS);
    }
    ~Canvas() {
        ::SelectObject(m_dc, m_hOldFont);
        ::SelectObject(m_dc, m_hOldBitmap);
        ::DeleteObject(m_hBitmap);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    CDC& Dc() { return m_dc; }
    std::vector<DWORD> Pixels() const {
        ::GdiFlush();
        return std::vector<DWORD>(m_pBits, m_pBits + kWidth * kHeight);
    }

private:
    CDC m_dc;
    DWORD* m_pBits = nullptr;
    HBITMAP m_hBitmap;
    HGDIOBJ m_hOldBitmap;
    HGDIOBJ m_hOldFont;
};

/// A font whose character set is not the process's.
class CdcText : public testing::Test {
protected:
    void SetUp() override {
        const BYTE chOther = ::GetACP() == 1251 ? GREEK_CHARSET : RUSSIAN_CHARSET;
        ASSERT_TRUE(m_font.CreateFont(-16, 0, 0, 0, FW_NORMAL, 0, 0, 0, chOther, 0, 0,
                                      NONANTIALIASED_QUALITY, 0, "Tahoma"));
        // As bytes of the process's code page.
        m_strText = CString(kWide);
        ASSERT_STREQ(kWide, WideOf(m_strText).c_str()) << "for a code page with these letters";
    }
    static std::wstring WideOf(const CString& str) {
        wchar_t szWide[100] = L"";
        ::MultiByteToWideChar(CP_ACP, 0, str, -1, szWide, 100);
        return szWide;
    }
    HFONT Font() const { return static_cast<HFONT>(m_font.GetSafeHandle()); }

    /// Both ways must give the same picture, and not an empty one.
    void ExpectSame(const char* pszName, const std::function<void(CDC&)>& byFramework,
                    const std::function<void(HDC)>& byWideCalls) {
        Canvas empty(Font());
        Canvas canvas(Font());
        Canvas expected(Font());
        byFramework(canvas.Dc());
        byWideCalls(expected.Dc());
        EXPECT_TRUE(expected.Pixels() == canvas.Pixels()) << pszName;
        EXPECT_FALSE(empty.Pixels() == canvas.Pixels()) << pszName;
    }

    static constexpr const wchar_t* kWide = L"a\u00e9\t\u00fc&b\u00f1 \u00d6\u00df";
    static constexpr int kLength = 10;
    CFont m_font;
    CString m_strText;
};

TEST_F(CdcText, IsDrawnAsTheWideCallsDrawIt) {
    const int nBytes = m_strText.GetLength();
    INT tabs[] = {50};
    const RECT rc = {5, 5, 200, 50};
    ExpectSame(
        "TextOut", [&](CDC& dc) { dc.TextOut(3, 4, m_strText); },
        [](HDC hDC) { ::TextOutW(hDC, 3, 4, kWide, kLength); });
    ExpectSame(
        "ExtTextOut", [&](CDC& dc) { dc.ExtTextOut(3, 4, ETO_CLIPPED, &rc, m_strText, nullptr); },
        [&](HDC hDC) { ::ExtTextOutW(hDC, 3, 4, ETO_CLIPPED, &rc, kWide, kLength, nullptr); });
    ExpectSame(
        "TabbedTextOut", [&](CDC& dc) { dc.TabbedTextOut(3, 4, m_strText, nBytes, 1, tabs, 0); },
        [&](HDC hDC) { ::TabbedTextOutW(hDC, 3, 4, kWide, kLength, 1, tabs, 0); });
    for (const UINT nFormat : {0u, static_cast<UINT>(DT_CENTER | DT_SINGLELINE | DT_VCENTER)}) {
        ExpectSame(
            "DrawText",
            [&](CDC& dc) {
                CRect rcText(rc);
                dc.DrawText(m_strText, rcText, nFormat);
            },
            [&](HDC hDC) {
                CRect rcText(rc);
                ::DrawTextW(hDC, kWide, -1, rcText, nFormat);
            });
    }
    ExpectSame(
        "DrawState",
        [&](CDC& dc) { dc.DrawState(CPoint(5, 5), CSize(100, 20), m_strText, DSS_NORMAL); },
        [](HDC hDC) {
            ::DrawStateW(hDC, nullptr, nullptr, reinterpret_cast<LPARAM>(kWide), 0, 5, 5, 100, 20,
                         DST_PREFIXTEXT | DSS_NORMAL);
        });
}

TEST_F(CdcText, IsMeasuredAsTheWideCallsMeasureIt_OnTheContextAskedFor) {
    CFont larger;
    ASSERT_TRUE(
        larger.CreateFont(-32, 0, 0, 0, FW_NORMAL, 0, 0, 0, RUSSIAN_CHARSET, 0, 0, 0, 0, "Tahoma"));
    Canvas output(Font());
    Canvas attrib(static_cast<HFONT>(larger.GetSafeHandle()));
    CDC& dc = output.Dc();
    dc.SetAttribDC(attrib.Dc());
    SIZE size = {};
    ::GetTextExtentPoint32W(attrib.Dc(), kWide, kLength, &size);
    EXPECT_EQ(CSize(size), dc.GetTextExtent(m_strText));
    ::GetTextExtentPoint32W(dc, kWide, kLength, &size);
    EXPECT_EQ(CSize(size), dc.GetOutputTextExtent(m_strText, m_strText.GetLength()));
    INT tabs[] = {50};
    EXPECT_EQ(CSize(::GetTabbedTextExtentW(attrib.Dc(), kWide, kLength, 1, tabs)),
              dc.GetTabbedTextExtent(m_strText, m_strText.GetLength(), 1, tabs));
    dc.SetAttribDC(dc);
}

TEST_F(CdcText, PartsAndWidthsAreCountedInBytes) {
    Canvas canvas(Font());
    CDC& dc = canvas.Dc();
    const int nBytes = m_strText.GetLength();
    // The bytes at which each character ends, and how far it reaches.
    std::vector<int> ends;
    std::vector<int> reach;
    for (int nUnits = 1; nUnits <= kLength; ++nUnits) {
        ends.push_back(CString(std::wstring(kWide, nUnits).c_str()).GetLength());
        SIZE size = {};
        ::GetTextExtentPoint32W(dc, kWide, nUnits, &size);
        reach.push_back(size.cx);
    }
    std::vector<int> expected;
    for (int nByte = 0, nChar = 0; nByte < nBytes; ++nByte) {
        nChar += nByte == ends[static_cast<size_t>(nChar)];
        expected.push_back(reach[static_cast<size_t>(nChar)]);
    }
    std::vector<int> extents(static_cast<size_t>(nBytes), -1);
    SIZE size = {};
    ASSERT_TRUE(dc.GetTextExtentExPoint(m_strText, nBytes, 0, nullptr, extents.data(), &size));
    EXPECT_EQ(expected, extents);
    EXPECT_EQ(reach.back(), size.cx);
    for (size_t nChar = 0; nChar < reach.size(); ++nChar) {
        int nFit = -1;
        dc.GetTextExtentExPoint(m_strText, nBytes, reach[nChar], &nFit, nullptr, &size);
        EXPECT_EQ(ends[nChar], nFit);
    }

    // A width for each byte; the bytes of a character add up.
    std::vector<INT> widths(static_cast<size_t>(nBytes), 12);
    std::vector<INT> wideWidths;
    for (size_t nChar = 0; nChar < ends.size(); ++nChar) {
        wideWidths.push_back(12 * (ends[nChar] - (nChar > 0 ? ends[nChar - 1] : 0)));
    }
    ExpectSame(
        "ExtTextOut with widths",
        [&](CDC& d) { d.ExtTextOut(3, 4, 0, nullptr, m_strText, widths.data()); },
        [&](HDC hDC) { ::ExtTextOutW(hDC, 3, 4, 0, nullptr, kWide, kLength, wideWidths.data()); });

    // Codes of one byte, where the code page has such characters.
    if (CString(L"\u00e9").GetLength() == 1) {
        const UINT nCode = static_cast<BYTE>(CString(L"\u00e9")[0]);
        INT nWidth = 0;
        INT nWideWidth = 0;
        ASSERT_TRUE(dc.GetCharWidth(nCode, nCode, &nWidth));
        ::GetCharWidth32W(dc, 0xE9, 0xE9, &nWideWidth);
        EXPECT_EQ(nWideWidth, nWidth);
    }
}

TEST_F(CdcText, AShortenedTextComesBackInBytes) {
    Canvas canvas(Font());
    const std::wstring strWide = L"\u00e9\u00fc\u00e9\u00fc\u00e9\u00fc\u00e9\u00fc\u00e9\u00fc";
    const CRect rcNarrow(0, 0, 50, 30);
    wchar_t szWide[20] = L"";
    lstrcpyW(szWide, strWide.c_str());
    CRect rc(rcNarrow);
    constexpr UINT kFormat = DT_END_ELLIPSIS | DT_MODIFYSTRING | DT_SINGLELINE;
    ::DrawTextExW(canvas.Dc(), szWide, -1, rc, kFormat, nullptr);
    ASSERT_STRNE(strWide.c_str(), szWide);

    char szText[100] = "";
    lstrcpy(szText, CString(strWide.c_str()));
    rc = rcNarrow;
    EXPECT_GT(canvas.Dc().DrawTextEx(szText, -1, rc, kFormat, nullptr), 0);
    EXPECT_STREQ(CString(szWide), szText);

    // A text that fits stays as it is, and what was drawn of it is counted in bytes.
    for (const UINT nDrawFormat : {UINT{DT_SINGLELINE | DT_MODIFYSTRING | DT_END_ELLIPSIS},
                                   UINT{DT_WORDBREAK | DT_EDITCONTROL}}) {
        lstrcpy(szText, CString(strWide.c_str()));
        lstrcpyW(szWide, strWide.c_str());
        DRAWTEXTPARAMS params = {};
        params.cbSize = sizeof params;
        DRAWTEXTPARAMS wideParams = params;
        rc = CRect(0, 0, 280, 30);
        ::DrawTextExW(canvas.Dc(), szWide, -1, rc, nDrawFormat, &wideParams);
        canvas.Dc().DrawTextEx(szText, -1, rc, nDrawFormat, &params);
        EXPECT_STREQ(CString(strWide.c_str()), szText);
        const std::wstring strDrawn(szWide, wideParams.uiLengthDrawn);
        EXPECT_EQ(static_cast<UINT>(CString(strDrawn.c_str()).GetLength()), params.uiLengthDrawn);
    }
}

// The bytes of a symbol font are its glyphs, of no code page.
TEST_F(CdcText, SymbolsStayWhatTheyAre) {
    CFont symbols;
    ASSERT_TRUE(symbols.CreateFont(-16, 0, 0, 0, FW_NORMAL, 0, 0, 0, SYMBOL_CHARSET, 0, 0,
                                   NONANTIALIASED_QUALITY, 0, "Wingdings"));
    Canvas canvas(static_cast<HFONT>(symbols.GetSafeHandle()));
    Canvas expected(static_cast<HFONT>(symbols.GetSafeHandle()));
    canvas.Dc().TextOut(3, 4, "\xe8\x9f", 2);
    ::TextOutA(expected.Dc(), 3, 4, "\xe8\x9f", 2);
    EXPECT_TRUE(expected.Pixels() == canvas.Pixels());
}

}  // namespace
