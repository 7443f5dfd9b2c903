// Device contexts draw and measure text by the process's code page, whatever character set the font
// was asked for: as the platform's wide calls do.
#include "page_text.h"
#include "sheet.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

/// A character set that no process here has.
constexpr BYTE kOther = HEBREW_CHARSET;

class ContextText : public testing::Test {
protected:
    /// Both ways must give the same picture, and not an empty one.
    static void ExpectSame(const char* pszName, const std::function<void(CDC&)>& byFramework,
                           const std::function<void(HDC)>& byWideCalls) {
        const Sheet empty(90, kOther);
        Sheet drawn(90, kOther);
        Sheet wanted(90, kOther);
        byFramework(drawn);
        byWideCalls(wanted);
        EXPECT_TRUE(drawn.Pixels() == wanted.Pixels()) << pszName;
        EXPECT_FALSE(empty.Pixels() == drawn.Pixels()) << pszName;
    }
    static int Length(const std::wstring& str) { return static_cast<int>(str.size()); }
};

TEST_F(ContextText, IsDrawnAsTheWideCallsDrawIt) {
    for (const PageWord& word : PageWords()) {
        SCOPED_TRACE(word.str);
        const CString str = ("a\t&" + word.str).c_str();
        const std::wstring strWide = L"a\t&" + word.strWide;
        INT nTab = 50;
        const RECT rc = {5, 5, 100, 50};
        ExpectSame(
            "TextOut", [&](CDC& dc) { dc.TextOut(3, 4, str); },
            [&](HDC hDC) { ::TextOutW(hDC, 3, 4, strWide.c_str(), Length(strWide)); });
        ExpectSame(
            "ExtTextOut", [&](CDC& dc) { dc.ExtTextOut(3, 4, ETO_CLIPPED, &rc, str, nullptr); },
            [&](HDC hDC) {
                ::ExtTextOutW(hDC, 3, 4, ETO_CLIPPED, &rc, strWide.c_str(),
                              static_cast<UINT>(strWide.size()), nullptr);
            });
        ExpectSame(
            "TabbedTextOut",
            [&](CDC& dc) { dc.TabbedTextOut(3, 4, str, str.GetLength(), 1, &nTab, 0); },
            [&](HDC hDC) {
                ::TabbedTextOutW(hDC, 3, 4, strWide.c_str(), Length(strWide), 1, &nTab, 0);
            });
        for (const UINT nFormat : {UINT{DT_LEFT}, UINT{DT_CENTER | DT_SINGLELINE | DT_VCENTER},
                                   UINT{DT_RIGHT | DT_NOPREFIX}}) {
            CRect rcText(rc);
            ExpectSame(
                "DrawText", [&](CDC& dc) { dc.DrawText(str, rcText, nFormat); },
                [&](HDC hDC) { ::DrawTextW(hDC, strWide.c_str(), -1, rcText, nFormat); });
        }
        ExpectSame(
            "DrawState",
            [&](CDC& dc) { dc.DrawState(CPoint(5, 5), CSize(100, 20), str, DSS_NORMAL); },
            [&](HDC hDC) {
                ::DrawStateW(hDC, nullptr, nullptr, reinterpret_cast<LPARAM>(strWide.c_str()), 0, 5,
                             5, 100, 20, DST_PREFIXTEXT | DSS_NORMAL);
            });
    }
}

TEST_F(ContextText, IsMeasuredOnTheContextAskedFor) {
    Sheet output(90, kOther);
    const Sheet attrib(240, kOther);
    for (const PageWord& word : PageWords()) {
        const CString str(word.str.c_str());
        const int nBytes = str.GetLength();
        output.SetAttribDC(attrib);
        EXPECT_EQ(output.GetTextExtent(str), attrib.WideExtent(word.strWide));
        INT nTab = 50;
        EXPECT_EQ(output.GetTabbedTextExtent(str, nBytes, 1, &nTab),
                  CSize(::GetTabbedTextExtentW(attrib, word.strWide.c_str(), Length(word.strWide),
                                               1, &nTab)));
        output.SetAttribDC(output);
        EXPECT_EQ(output.GetOutputTextExtent(str, nBytes), output.WideExtent(word.strWide));
    }
}

TEST_F(ContextText, PartsAndWidthsAreCountedInBytes) {
    const Sheet sheet(90, kOther);
    for (const PageWord& word : PageWords()) {
        SCOPED_TRACE(word.str);
        const CString str(word.str.c_str());
        const int nBytes = str.GetLength();
        // For each character the bytes at which it ends and how far it reaches; for each byte how
        // far its character reaches; for each unit a width of 12 for each byte.
        std::vector<int> ends;
        std::vector<int> reach;
        std::vector<int> reachOfBytes;
        std::vector<INT> wideWidths;
        for (size_t nUnits = 1; nUnits <= word.strWide.size(); ++nUnits) {
            const std::wstring strStart = word.strWide.substr(0, nUnits);
            if (strStart.back() >= 0xD800 && strStart.back() < 0xDC00) {
                wideWidths.push_back(0);  // the other half makes it a character
                continue;
            }
            std::string strBytes;
            ToPage(strStart, strBytes);
            const int nBefore = ends.empty() ? 0 : ends.back();
            ends.push_back(static_cast<int>(strBytes.size()));
            reach.push_back(sheet.WideWidth(strStart));
            reachOfBytes.resize(strBytes.size(), reach.back());
            wideWidths.push_back(12 * (ends.back() - nBefore));
        }
        std::vector<int> extents(static_cast<size_t>(nBytes), -1);
        SIZE size = {};
        ASSERT_TRUE(sheet.GetTextExtentExPoint(str, nBytes, 0, nullptr, extents.data(), &size));
        EXPECT_EQ(extents, reachOfBytes);
        EXPECT_EQ(size.cx, reach.back());
        int nFit = -1;
        sheet.GetTextExtentExPoint(str, nBytes, reach[1], &nFit, nullptr, &size);
        EXPECT_EQ(nFit, ends[1]);
        if (wideWidths.size() == ends.size()) {
            std::vector<INT> widths(static_cast<size_t>(nBytes), 12);
            ExpectSame(
                "ExtTextOut with widths",
                [&](CDC& dc) { dc.ExtTextOut(3, 4, 0, nullptr, str, widths.data()); },
                [&](HDC hDC) {
                    ::ExtTextOutW(hDC, 3, 4, 0, nullptr, word.strWide.c_str(),
                                  static_cast<UINT>(word.strWide.size()), wideWidths.data());
                });
        }
    }
}

TEST_F(ContextText, AShortenedTextComesBackInBytes) {
    Sheet sheet(90, kOther);
    const PageWord word = LongWord(8);
    constexpr UINT kShorten = DT_END_ELLIPSIS | DT_MODIFYSTRING | DT_SINGLELINE;
    // Too long, of which the start comes back with dots; and fitting, which stays as it is.
    for (const auto& [nWidth, nFormat] : {std::pair<int, UINT>{40, kShorten},
                                          {280, kShorten},
                                          {280, DT_WORDBREAK | DT_EDITCONTROL}}) {
        std::string strText = word.str + std::string(8, '\0');
        std::wstring strWide = word.strWide + std::wstring(8, L'\0');
        DRAWTEXTPARAMS params{sizeof params, 0, 0, 0, 0};
        DRAWTEXTPARAMS wideParams = params;
        CRect rc(0, 0, nWidth, 30);
        ::DrawTextExW(sheet, strWide.data(), -1, rc, nFormat, &wideParams);
        EXPECT_EQ(strWide.c_str() != word.strWide, nWidth == 40);
        EXPECT_GT(sheet.DrawTextEx(strText.data(), -1, rc, nFormat, &params), 0);
        EXPECT_EQ(FromPage(strText.c_str()), strWide.c_str());
        std::string strDrawn;
        ToPage(word.strWide.substr(0, wideParams.uiLengthDrawn), strDrawn);
        EXPECT_EQ(params.uiLengthDrawn, strDrawn.size());
    }
}

}  // namespace
