#include "ocx/flex_grid.h"

#include <algorithm>
#include <array>
#include <cwchar>
#include <vector>

namespace ocx {

namespace {

using Id = FlexGridId;
using Format = qv::FlexGridFormat;

constexpr int kTextMargin = 3;         // left and right of a cell's text
constexpr size_t kLongestText = 8192;  // units of a text that are drawn

enum Lines { kNoLines, kFlatLines, kInsetLines, kRaisedLines };
enum FocusRect { kNoFocusRect, kLightFocusRect, kHeavyFocusRect };

RECT ToRECT(const qv::Rect& rect) {
    return {rect.left, rect.top, rect.right, rect.bottom};
}

/// The size's place in rect, by an alignment.
RECT Aligned(const RECT& rect, SIZE size, short nAlignment) {
    const auto place = [](LONG nStart, LONG nEnd, LONG nSize, int nThird) {
        return nThird == 0 ? nStart : nThird == 1 ? (nStart + nEnd - nSize) / 2 : nEnd - nSize;
    };
    const LONG x = place(rect.left, rect.right, size.cx, nAlignment / 3);
    const LONG y = place(rect.top, rect.bottom, size.cy, nAlignment % 3);
    return {x, y, x + size.cx, y + size.cy};
}

}  // namespace

/// One paint: the looks of that moment, read once, and the fonts that cells ask for.
class FlexGrid::Painter {
public:
    Painter(FlexGrid& grid, HDC hDC);
    void Paint(const RECT& rect);

private:
    struct Look {
        COLORREF crBack;
        COLORREF crText;
        COLORREF crLines;
        LONG nLines;
        LONG nTextStyle;
    };
    struct CellFont {
        std::u16string strName;
        float fSize;
        float fWidth;
        unsigned nFlags;
        Owned<HFONT> font;
    };

    void PaintPart(bool bFixedRows, bool bFixedCols);
    void PaintCell(const qv::FlexGridRange& range, const Look& look);
    void PaintLines(const RECT& rect, const Look& look);
    void PaintText(const RECT& rect, const char16_t* pszText, short nAlignment, LONG nStyle,
                   COLORREF crText);
    void PaintFocus();
    bool IsHighlighted(const qv::FlexGridRange& range) const;
    HFONT FontOf(const Format& format);

    FlexGrid& m_grid;
    const qv::FlexGridModel& m_model;
    const qv::FlexGridView& m_view;
    const HDC m_hDC;
    std::array<Look, 2> m_looks;  // of cells, and of fixed ones
    COLORREF m_crBackSel;
    COLORREF m_crTextSel;
    bool m_bHighlights;
    bool m_bWraps;
    int m_nLineWidth;
    LOGFONTW m_font = {};
    std::vector<CellFont> m_fonts;
};

FlexGrid::Painter::Painter(FlexGrid& grid, HDC hDC)
    : m_grid(grid),
      m_model(grid.m_model),
      m_view(grid.m_view),
      m_hDC(hDC),
      m_looks{Look{grid.Color(Id::BackColor), grid.Color(Id::ForeColor), grid.Color(Id::GridColor),
                   grid.Number(Id::GridLines), grid.Number(Id::TextStyle)},
              Look{grid.Color(Id::BackColorFixed), grid.Color(Id::ForeColorFixed),
                   grid.Color(Id::GridColorFixed), grid.Number(Id::GridLinesFixed),
                   grid.Number(Id::TextStyleFixed)}},
      m_crBackSel(grid.Color(Id::BackColorSel)),
      m_crTextSel(grid.Color(Id::ForeColorSel)),
      m_bHighlights(grid.Number(Id::HighLight) == 1 ||
                    (grid.Number(Id::HighLight) == 2 && grid.HasFocus())),
      m_bWraps(grid.Flag(Id::WordWrap)),
      m_nLineWidth(static_cast<int>(grid.Number(Id::GridLineWidth))) {
    ::GetObjectW(grid.Font().Handle(), sizeof m_font, &m_font);
    if (const Member* pWidth = grid.Members().Find(Id::FontWidth)) {
        const double fPoints = grid.Store().Real(*pWidth, 0);
        m_font.lfWidth =
            ::MulDiv(static_cast<int>(fPoints * 20), PixelsPerInch().cx, kTwipsPerInch);
    }
}

void FlexGrid::Painter::Paint(const RECT& rect) {
    FillSolid(m_hDC, rect, m_grid.Color(Id::BackColorBkg));
    ::SetBkMode(m_hDC, TRANSPARENT);
    for (const bool bFixedRows : {false, true}) {
        for (const bool bFixedCols : {false, true}) {
            const SavedDC saved(m_hDC);
            PaintPart(bFixedRows, bFixedCols);
        }
    }
    PaintFocus();
}

void FlexGrid::Painter::PaintPart(bool bFixedRows, bool bFixedCols) {
    const qv::FlexGridRange window = m_view.Window(bFixedRows, bFixedCols);
    if (window.nTop > window.nBottom || window.nLeft > window.nRight) {
        return;
    }
    const RECT part = ToRECT(m_view.RangeRect(window));
    ::IntersectClipRect(m_hDC, part.left, part.top, part.right, part.bottom);
    const qv::FlexGridAxis& rows = m_model.RowAxis();
    const qv::FlexGridAxis& cols = m_model.ColAxis();
    const Look& look = m_looks[bFixedRows || bFixedCols ? 1 : 0];
    for (int nRow = rows.ShownFrom(window.nTop); nRow <= window.nBottom;
         nRow = rows.ShownFrom(nRow + 1)) {
        for (int nCol = cols.ShownFrom(window.nLeft); nCol <= window.nRight;
             nCol = cols.ShownFrom(nCol + 1)) {
            const qv::FlexGridRange range = m_model.Merged(nRow, nCol, window);
            if (rows.ShownFrom(range.nTop) == nRow && cols.ShownFrom(range.nLeft) == nCol) {
                PaintCell(range, look);
            }
        }
    }
}

bool FlexGrid::Painter::IsHighlighted(const qv::FlexGridRange& range) const {
    const qv::FlexGridSelection& selection = m_grid.m_selection;
    const qv::FlexGridRange selected = selection.Range();
    return m_bHighlights && !m_model.IsFixed(range.nTop, range.nLeft) &&
           !range.Contains(selection.nRow, selection.nCol) && range.nTop <= selected.nBottom &&
           range.nBottom >= selected.nTop && range.nLeft <= selected.nRight &&
           range.nRight >= selected.nLeft;
}

void FlexGrid::Painter::PaintCell(const qv::FlexGridRange& range, const Look& look) {
    const qv::Point origin = m_view.OriginOf(range);
    const Format& format = m_model.Format(origin.y, origin.x);
    const bool bHighlighted = IsHighlighted(range);
    COLORREF crBack = look.crBack;
    COLORREF crText = look.crText;
    if (bHighlighted) {
        crBack = m_crBackSel;
        crText = m_crTextSel;
    } else {
        crBack = format.crBack != 0 ? ToColorRef(format.crBack) : crBack;
        crText = format.crText != 0 ? ToColorRef(format.crText) : crText;
    }
    RECT rect = ToRECT(m_view.RangeRect(range));
    FillSolid(m_hDC, rect, crBack);
    PaintLines(rect, look);
    if (look.nLines != kNoLines) {
        rect.right -= m_nLineWidth;
        rect.bottom -= m_nLineWidth;
    }
    if (rect.right <= rect.left || rect.bottom <= rect.top) {
        return;
    }
    const bool bPicture = format.pPicture != nullptr;
    const char16_t* pszText = m_model.Text(range.nTop, range.nLeft);
    if (!bPicture && *pszText == 0) {
        return;
    }
    const SavedDC saved(m_hDC);
    ::IntersectClipRect(m_hDC, rect.left, rect.top, rect.right, rect.bottom);
    if (bPicture) {
        auto* const pPicture = static_cast<IPicture*>(format.pPicture.get());
        DrawPicture(m_hDC, pPicture,
                    Aligned(rect, PictureSize(pPicture), format.nPictureAlignment));
    }
    if (*pszText != 0) {
        const Selected select(m_hDC, FontOf(format));
        PaintText(rect, pszText, m_model.AlignmentOf(origin.y, origin.x),
                  format.nTextStyle >= 0 ? format.nTextStyle : look.nTextStyle, crText);
    }
}

/// At the right and the bottom; inset and raised ones have a bright side, too.
void FlexGrid::Painter::PaintLines(const RECT& rect, const Look& look) {
    if (look.nLines == kNoLines) {
        return;
    }
    const int n = m_nLineWidth;
    if (look.nLines == kFlatLines) {
        FillSolid(m_hDC, {rect.right - n, rect.top, rect.right, rect.bottom}, look.crLines);
        FillSolid(m_hDC, {rect.left, rect.bottom - n, rect.right, rect.bottom}, look.crLines);
        return;
    }
    const COLORREF crBright = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF crDark = ::GetSysColor(COLOR_BTNSHADOW);
    const bool bInset = look.nLines == kInsetLines;  // the lines are; cells stand out then
    DrawEdges(m_hDC, rect, n, bInset ? crBright : crDark, bInset ? crDark : crBright);
}

void FlexGrid::Painter::PaintText(const RECT& rect, const char16_t* pszText, short nAlignment,
                                  LONG nStyle, COLORREF crText) {
    std::wstring_view text = FromCore(pszText);
    if (text.size() > kLongestText) {
        text = text.substr(0, kLongestText - (IS_HIGH_SURROGATE(text[kLongestText - 1]) ? 1 : 0));
    }
    const int nLength = static_cast<int>(text.size());
    constexpr UINT kHorizontal[] = {DT_LEFT, DT_CENTER, DT_RIGHT};
    RECT area = {rect.left + kTextMargin, rect.top, rect.right - kTextMargin + 1, rect.bottom};
    UINT nFormat = DT_NOPREFIX | DT_EXPANDTABS | DT_NOCLIP | kHorizontal[nAlignment / 3] |
                   (m_bWraps ? DT_WORDBREAK : 0);
    SIZE size = {area.right - area.left, 0};
    RECT measured = {0, 0, std::max(size.cx, 1L), 0};
    ::DrawTextW(m_hDC, text.data(), nLength, &measured, nFormat | DT_CALCRECT);
    size.cy = measured.bottom;
    // Of what does not fit, the beginning is to be read.
    const bool bFits = size.cy <= area.bottom - area.top;
    area = Aligned(area, size, bFits ? nAlignment : static_cast<short>(nAlignment / 3 * 3));
    if (measured.right > size.cx) {
        nFormat &= ~static_cast<UINT>(DT_CENTER | DT_RIGHT);
    }
    const auto draw = [&](COLORREF cr, int nOffset) {
        ::SetTextColor(m_hDC, cr);
        RECT shifted = area;
        ::OffsetRect(&shifted, nOffset, nOffset);
        ::DrawTextW(m_hDC, text.data(), nLength, &shifted, nFormat);
    };
    constexpr LONG kRaised = 1;
    constexpr LONG kInset = 2;
    constexpr LONG kRaisedLight = 3;
    if (nStyle != 0) {
        const bool bRaised = nStyle == kRaised || nStyle == kRaisedLight;
        draw(::GetSysColor(COLOR_BTNHIGHLIGHT), bRaised ? -1 : 1);
        if (nStyle <= kInset) {
            draw(::GetSysColor(COLOR_BTNSHADOW), bRaised ? 1 : -1);
        }
    }
    draw(crText, 0);
}

HFONT FlexGrid::Painter::FontOf(const Format& format) {
    const unsigned nFlags = format.nFontFlags | format.nFontAsked << 8;
    for (const CellFont& known : m_fonts) {
        if (known.nFlags == nFlags && known.fSize == format.fontSize &&
            known.fWidth == format.fontWidth && known.strName == format.strFont) {
            return known.font.Get();
        }
    }
    LOGFONTW font = m_font;
    const SIZE dpi = PixelsPerInch();
    const auto pixels = [](float fPoints, LONG nPerInch) {
        return ::MulDiv(static_cast<int>(fPoints * 20), nPerInch, kTwipsPerInch);
    };
    if (!format.strFont.empty()) {
        std::fill(std::begin(font.lfFaceName), std::end(font.lfFaceName), L'\0');
        FromCore(format.strFont).copy(font.lfFaceName, LF_FACESIZE - 1);
    }
    if (format.fontSize > 0) {
        font.lfHeight = -std::max(pixels(format.fontSize, dpi.cy), 1);
    }
    if (format.fontWidth > 0) {
        font.lfWidth = pixels(format.fontWidth, dpi.cx);
    }
    const auto put = [&](Format::FontFlag flag, auto& field, int nOn, int nOff) {
        if ((format.nFontAsked & flag) != 0) {
            field = static_cast<std::remove_reference_t<decltype(field)>>(
                (format.nFontFlags & flag) != 0 ? nOn : nOff);
        }
    };
    put(Format::Bold, font.lfWeight, FW_BOLD, FW_NORMAL);
    put(Format::Italic, font.lfItalic, TRUE, FALSE);
    put(Format::Underline, font.lfUnderline, TRUE, FALSE);
    put(Format::StrikeThrough, font.lfStrikeOut, TRUE, FALSE);
    m_fonts.push_back({format.strFont, format.fontSize, format.fontWidth, nFlags,
                       Owned<HFONT>(::CreateFontIndirectW(&font))});
    return m_fonts.back().font.Get();
}

void FlexGrid::Painter::PaintFocus() {
    const LONG nKind = m_grid.Number(Id::FocusRect);
    const qv::FlexGridSelection& selection = m_grid.m_selection;
    const int nRow = selection.nRow;
    const int nCol = selection.nCol;
    if (nKind == kNoFocusRect || !m_grid.HasFocus() || !m_view.RowSpan().Shows(nRow) ||
        !m_view.ColSpan().Shows(nCol)) {
        return;
    }
    const SavedDC saved(m_hDC);
    const RECT part = ToRECT(
        m_view.RangeRect(m_view.Window(nRow < m_model.FixedRows(), nCol < m_model.FixedCols())));
    ::IntersectClipRect(m_hDC, part.left, part.top, part.right, part.bottom);
    RECT rect = ToRECT(m_view.RangeRect(m_view.MergedAt(nRow, nCol)));
    rect.right -= m_nLineWidth;
    rect.bottom -= m_nLineWidth;
    ::SetTextColor(m_hDC, 0);
    ::SetBkColor(m_hDC, RGB(255, 255, 255));
    ::DrawFocusRect(m_hDC, &rect);
    if (nKind == kHeavyFocusRect) {
        ::InflateRect(&rect, -1, -1);
        ::DrawFocusRect(m_hDC, &rect);
    }
}

void FlexGrid::DrawControl(HDC hDC, const RECT& rect) {
    EnsureLayout();
    const SavedDC saved(hDC);
    ::IntersectClipRect(hDC, rect.left, rect.top, rect.right, rect.bottom);
    ::OffsetViewportOrgEx(hDC, rect.left, rect.top, nullptr);
    Painter(*this, hDC).Paint({0, 0, rect.right - rect.left, rect.bottom - rect.top});
}

/// What shows, as a bitmap.
void FlexGrid::GivePicture(VARIANT* pResult) {
    const RECT rect = ClientRect();
    const bool bMono = Flag(Id::PictureType);
    const ScreenDC screen;
    const HDC hDC = ::CreateCompatibleDC(screen);
    Owned<HBITMAP> bitmap(
        bMono ? ::CreateBitmap(std::max(rect.right, 1L), std::max(rect.bottom, 1L), 1, 1, nullptr)
              : ::CreateCompatibleBitmap(screen, std::max(rect.right, 1L),
                                         std::max(rect.bottom, 1L)));
    const HRESULT hr = Guarded([&] {
        if (hDC == nullptr || !bitmap) {
            return E_OUTOFMEMORY;
        }
        const Selected selected(hDC, bitmap.Get());
        DrawControl(hDC, rect);
        return S_OK;
    });
    ::DeleteDC(hDC);
    Check(hr);
    PICTDESC description = {};
    description.cbSizeofstruct = sizeof description;
    description.picType = PICTYPE_BITMAP;
    description.bmp.hbitmap = bitmap.Get();
    Ref<IPicture> picture;
    Check(::OleCreatePictureIndirect(&description, IID_IPicture, TRUE,
                                     reinterpret_cast<void**>(picture.Out())));
    bitmap.Detach();
    GiveObject(pResult, picture.Get());
}

}  // namespace ocx
