// A row as it is drawn.

#include "boxes/bitmap_list_box.h"

#include "boxes/core/box_fields.h"
#include "boxes/core/box_heights.h"
#include "boxes/core/box_row.h"
#include "frame/dc_guards.h"
#include "frame/out_of_memory.h"
#include "frame/rectangles.h"
#include "frame/text_out.h"

#include <algorithm>

namespace {

constexpr UINT kTextFlags = DT_NOPREFIX | DT_END_ELLIPSIS;
constexpr int kImageMargin = 1;
constexpr COLORREF kNoBackground = static_cast<COLORREF>(-1);
// The image's cell is wider than the image and drawn behind the text: it covers the first pixels
// of the text's area, which begins where the image ends.
constexpr int kCellOverlap = 2;

// Right of nStrip pixels. A strip wider than the row leaves nothing.
CRect RightOf(const CRect& rcRow, int nStrip) {
    CRect rc(rcRow);
    rc.left = std::min(rc.left + std::max(nStrip, 0), rc.right);
    return rc;
}

void Fill(CDC& dc, const CRect& rc, COLORREF cr) {
    CBrush brush(cr);
    dc.FillRect(&rc, &brush);
}

}  // namespace

void QVBitmapListBox::MeasureItem(MEASUREITEMSTRUCT* pMeasure) {
    if (m_nItemHeight == 0) {
        qv::MemorySuffices([&] { CalcItemHeight(); });
    }
    if (m_nItemHeight != 0) {
        pMeasure->itemHeight = static_cast<UINT>(m_nItemHeight);
    }
}

void QVBitmapListBox::DrawItem(DRAWITEMSTRUCT* pDraw) {
    qv::MemorySuffices([&] { DrawRow(*pDraw); });
}

void QVBitmapListBox::DrawRow(const DRAWITEMSTRUCT& draw) {
    CDC& dc = *CDC::FromHandle(draw.hDC);
    const qv::WindowWatch watch(m_alive, m_hWnd);
    if ((draw.itemAction & (ODA_DRAWENTIRE | ODA_SELECT)) != 0) {
        DrawTextArea(dc, draw);
        if (watch && m_nBitmapWidth > 0) {
            DrawImageCell(dc, draw);
        }
    }
    if (watch && (draw.itemAction & ODA_FOCUS) != 0) {
        const CRect rc =
            RightOf(draw.rcItem, m_nBitmapWidth > 0 ? m_nBitmapWidth + kCellOverlap : 0);
        dc.DrawFocusRect(&rc);
    }
}

// A selected row has the context's background as its text, on the highlight.
void QVBitmapListBox::DrawTextArea(CDC& dc, const DRAWITEMSTRUCT& draw) {
    const bool bSelected = (draw.itemState & ODS_SELECTED) != 0;
    const COLORREF crRow = bSelected ? ::GetSysColor(COLOR_HIGHLIGHT) : dc.GetBkColor();
    const COLORREF crText = bSelected ? dc.GetBkColor() : dc.GetTextColor();
    CRect rc = RightOf(draw.rcItem, m_nBitmapWidth);
    Fill(dc, rc, crRow);
    rc.top += qv::BoxHeights{m_nFontHeight, m_nBitmapHeight}.TextOffset();
    const qv::ColorGuard colors(dc);
    dc.SetTextColor(crText);
    dc.SetBkColor(crRow);
    // A text that finds no memory is left out; the image is drawn all the same.
    qv::MemorySuffices([&] { DrawItemText(&dc, draw.itemID, rc, bSelected, m_anTabs); });
}

void QVBitmapListBox::DrawImageCell(CDC& dc, const DRAWITEMSTRUCT& draw) {
    const CRect rcItem(draw.rcItem);
    CRect rcCell(rcItem);
    rcCell.right = m_nBitmapWidth + kCellOverlap;
    Fill(dc, rcCell, dc.GetBkColor());
    const int y = qv::BoxHeights{m_nFontHeight, m_nBitmapHeight}.ImageOffset() + kImageMargin;
    m_imageList.Draw(&dc, GetImage(static_cast<int>(draw.itemID)),
                     CPoint(rcItem.left + kImageMargin, rcItem.top + y), ILD_NORMAL);
}

void QVBitmapListBox::DrawItemText(CDC* pDC, UINT nItem, const CRect& rc, int bSelected,
                                   int* pTabs) {
    const CString strStored = Stored(static_cast<int>(nItem));
    const std::string_view row = qv::SplitBoxRow(qv::View(strStored), Place()).text;
    if (m_nTabs == 0 && row.find(qv::kStyleEscape) == std::string_view::npos) {
        qv::DrawTextAt(*pDC, rc.left + qv::kBoxFieldMargin, rc.top, row);
    } else {
        DrawFields(*pDC, rc, row, bSelected, pTabs, TRUE);
    }
}

void QVBitmapListBox::OutputFormattedText(CDC* pDC, const CRect& rc, const CString& strRow,
                                          int bSelected, int* pTabs, int bUseColors) {
    DrawFields(*pDC, rc, qv::View(strRow), bSelected, pTabs, bUseColors);
}

void QVBitmapListBox::DrawFields(CDC& dc, const CRect& rc, std::string_view row, int bSelected,
                                 const int* pTabs, int bUseColors) {
    const auto nTabs = static_cast<size_t>(std::clamp(m_nTabs, 0, kTableSize));
    qv::BoxFieldReader fields(row, qv::ToRect(rc), {pTabs != nullptr ? pTabs : m_anTabs, nTabs},
                              m_nFirstFieldFormat, m_aStyles);
    for (qv::BoxField field; fields.Next(field);) {
        if (field.nStyle >= 0 && !bSelected && bUseColors) {
            const QVSTYLE style = StyleColors(field.nStyle);
            if (style.crBk != kNoBackground) {
                dc.SetBkColor(style.crBk);
            }
            dc.SetTextColor(style.crText);
        }
        CRect rcField = qv::ToCRect(field.rect);
        qv::DrawTextIn(dc, field.text, rcField, field.nFormat | kTextFlags);
    }
}

void QVBitmapListBox::OnSysColorChange() {
    CListBox::OnSysColorChange();
    FollowSystemColors();
    Invalidate(FALSE);
}
