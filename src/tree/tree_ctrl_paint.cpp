#include "tree/tree_ctrl.h"

#include "frame/dc_guards.h"
#include "frame/paint_objects.h"
#include "frame/text_out.h"
#include "tree/core/tree_columns.h"
#include "tree/tree_ctrl_core.h"

#include <algorithm>
#include <mbstring.h>

namespace {

constexpr int kLargestButtonCell = 19;
constexpr int kTextInsetX = 2;  // of the text in its cell
constexpr int kTextInsetY = 1;
constexpr UINT kTextFlags = DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;

// Dots fall in one pattern from row to row because every line starts at an even pixel.
int Even(int n) {
    return n & ~1;
}

}  // namespace

bool QVTreeCtrlEx::IsHighlighted(HTREEITEM hItem) {
    return (hItem->nState & TVIS_SELECTED) != 0 &&
           (::GetFocus() == m_hWnd || (GetStyle() & TVS_SHOWSELALWAYS) != 0);
}

COLORREF QVTreeCtrlEx::GetTextColor(HTREEITEM hItem) {
    // Window colour on the highlight, as the rows have always shown it.
    return IsHighlighted(hItem) ? ::GetSysColor(COLOR_WINDOW)
                                : m_aStyles[ParseStyle(hItem->pszText)].crText;
}

COLORREF QVTreeCtrlEx::GetBkColor(HTREEITEM hItem) {
    return IsHighlighted(hItem) ? ::GetSysColor(COLOR_HIGHLIGHT)
                                : m_aStyles[ParseStyle(hItem->pszText)].crBk;
}

// No erasing and no second buffer: each step excludes what it has painted from the clip, and the
// fill at the end of a row meets only what is left. Everything is drawn in row coordinates.
void QVTreeCtrlEx::OnPaint() {
    View().FitIfDue();
    m_pCore->DrawBars();
    CPaintDC dc(this);
    if (!View().Redraw()) {
        return;
    }
    CRect rcClient;
    GetClientRect(&rcClient);
    HTREEITEM hItem = GetNextItem(nullptr, TVGN_FIRSTVISIBLE);
    const int nHeight = hItem != nullptr ? ItemHeight() : 0;
    const qv::BrushLife background(m_brBackground, ::GetSysColor(COLOR_WINDOW));
    const qv::PenLife lines(m_penLines, ::GetSysColor(COLOR_BTNSHADOW));
    {
        const qv::SelectGuard<CFont> font(dc, m_hFont);
        dc.SetWindowOrg(View().HScrollPos(), 0);
        CRect rcRest(rcClient);
        rcRest.OffsetRect(View().HScrollPos(), 0);
        const bool bLines = (GetStyle() & TVS_HASLINES) != 0;
        int y = 0;
        bool bPartial = false;
        while (nHeight > 0 && hItem != nullptr && y < rcClient.bottom) {
            CRect rcItem;
            CalcItemRect(dc, y, hItem, rcItem, FALSE);
            if (bLines) {
                DrawItemSymbols(dc, hItem,
                                CRect(rcClient.left, rcItem.top, rcItem.left, rcItem.bottom));
            }
            if (dc.RectVisible(&rcItem)) {
                DrawItem(dc, hItem, rcItem);
            }
            const CRect rcRow(rcRest.left, rcItem.top, rcRest.right, rcItem.bottom);
            dc.FillRect(&rcRow, &m_brBackground);
            y += nHeight;
            if (bPartial) {
                break;
            }
            bPartial = hItem == Items().Bottom();
            hItem = NextDisplayableItem(hItem);
        }
        if (y < rcClient.bottom) {
            rcRest.top = y;
            dc.FillRect(&rcRest, &m_brBackground);
        }
        dc.SetWindowOrg(0, 0);
    }
}

void QVTreeCtrlEx::DrawItem(CDC& dc, HTREEITEM hItem, const CRect& rcItem) {
    const qv::ColorGuard colors(dc);
    const COLORREF crBk = GetBkColor(hItem);
    dc.SetBkColor(crBk);
    dc.SetTextColor(GetTextColor(hItem));

    const CString strText(ParseStyleText(hItem->pszText));
    const bool bSelected = (hItem->nState & TVIS_SELECTED) != 0;
    CRect rcText;
    CalcItemRect(dc, rcItem.top, hItem, rcText, TRUE);

    const qv::TreeImages& images = View().Images();
    DrawBranchLine(dc, hItem, rcItem, rcText);
    const int nImageCell = rcText.left - images.cxImage - qv::kImageGap;
    if (m_pImageList != nullptr) {
        DrawImage(dc, *m_pImageList, bSelected ? hItem->nSelectedImage : hItem->nImage,
                  CRect(nImageCell, rcItem.top, rcText.left, rcItem.bottom),
                  CSize(images.cxImage, images.cyImage));
    }
    if (m_pStateImageList != nullptr && HaveStateImage(hItem)) {
        // The index is the image's own, so 0 is a picture as well.
        const int nStateCell = nImageCell - images.cxStateImage - qv::kImageGap;
        DrawImage(dc, *m_pStateImageList, static_cast<int>(StateImageFromState(hItem->nState)),
                  CRect(nStateCell, rcItem.top, nImageCell, rcItem.bottom),
                  CSize(images.cxStateImage, images.cyStateImage));
    }

    CBrush brush(crBk);
    dc.FillRect(&rcText, &brush);
    CRect rcInner(rcText);
    rcInner.DeflateRect(kTextInsetX, kTextInsetY);
    const auto* psz = reinterpret_cast<const unsigned char*>(static_cast<LPCSTR>(strText));
    if ((View().Tabs().Count() != 0 && _mbschr(psz, qv::kFieldSeparator) != nullptr) ||
        _mbschr(psz, qv::kStyleEscape) != nullptr) {
        OutputFormattedText(dc, rcInner, strText, bSelected);
    } else {
        qv::DrawTextIn(dc, qv::View(strText), rcInner, kTextFlags);
    }
    if (bSelected && ::GetFocus() == m_hWnd) {
        dc.DrawFocusRect(&rcText);
    }
    dc.ExcludeClipRect(&rcText);
    dc.FillRect(&rcItem, &m_brBackground);
}

// The line from an open item's image down to its children.
void QVTreeCtrlEx::DrawBranchLine(CDC& dc, HTREEITEM hItem, const CRect& rcItem,
                                  const CRect& rcText) {
    if ((GetStyle() & TVS_HASLINES) == 0 || hItem->pFirstChild == nullptr ||
        (hItem->nState & TVIS_EXPANDED) == 0) {
        return;
    }
    const qv::TreeImages& images = View().Images();
    const int cy = m_pStateImageList != nullptr ? images.cyStateImage : images.cyImage;
    const int nGap = ItemHeight() - cy;
    const CRect rcLine(rcItem.left, Even(rcText.bottom - nGap / 2), rcText.left, rcItem.bottom);
    dc.FillRect(&rcLine, &m_brBackground);
    const int x = rcItem.left + cy / 2;
    DrawDottedLine(dc, x, rcLine.top, x, rcLine.bottom);
    dc.ExcludeClipRect(&rcLine);
}

// Draws an image at the left of its cell, in the middle of the row's height.
void QVTreeCtrlEx::DrawImage(CDC& dc, CImageList& images, int nImage, CRect rcCell, CSize size) {
    dc.FillRect(&rcCell, &m_brBackground);
    rcCell.top += (ItemHeight() - size.cy) / 2;
    rcCell.bottom = rcCell.top + size.cy;
    ::ImageList_Draw(images.GetSafeHandle(), nImage, dc.GetSafeHdc(), rcCell.left, rcCell.top,
                     ILD_NORMAL);
    dc.ExcludeClipRect(&rcCell);
}

void QVTreeCtrlEx::OutputFormattedText(CDC& dc, const CRect& rect, const CString& strText,
                                       BOOL bSelected) {
    const bool bKeepColors = bSelected && ::GetFocus() == m_hWnd;
    qv::FieldReader fields({strText, static_cast<size_t>(strText.GetLength())}, qv::ToRect(rect),
                           View().Tabs(), View().IndentTabs(), m_aStyles);
    qv::Field field;
    while (fields.Next(field)) {
        if (field.nStyle >= 0 && !bKeepColors) {
            // In force for the fields that follow as well: one without a code keeps these colours.
            dc.SetBkColor(m_aStyles[field.nStyle].crBk);
            dc.SetTextColor(m_aStyles[field.nStyle].crText);
        }
        CRect rcField = qv::ToCRect(field.rect);
        qv::DrawTextIn(dc, field.text, rcField, field.nFormat | kTextFlags);
    }
}

void QVTreeCtrlEx::DrawItemSymbols(CDC& dc, HTREEITEM hItem, const CRect& rcSymbols) {
    const qv::SelectGuard<CPen> pen(dc, &m_penLines);
    dc.FillRect(&rcSymbols, &m_brBackground);

    // The cell is as wide as the image is high, on purpose: see IndentStep.
    const qv::TreeImages& images = View().Images();
    const int nIndent = View().IndentStep();
    const int nWidth = std::min(
        kLargestButtonCell, m_pStateImageList != nullptr ? images.cyStateImage : images.cyImage);
    const int nShift = (nIndent - nWidth) / 2;
    CRect rcCell(rcSymbols);
    rcCell.left = rcSymbols.right - nIndent;
    rcCell.right = rcCell.left + nWidth;
    if (hItem->nLevel == 0) {
        rcCell.OffsetRect(nShift, 0);
    }
    const DWORD dwStyle = GetStyle();
    if (hItem->pFirstChild != nullptr && (dwStyle & TVS_HASBUTTONS) != 0 &&
        (hItem->pParent != nullptr || (dwStyle & TVS_LINESATROOT) != 0)) {
        DrawItemButton(dc, rcCell, (hItem->nState & TVIS_EXPANDED) != 0);
    }
    DrawTreeLines(dc, hItem, rcCell, nShift, rcSymbols.right);
    dc.ExcludeClipRect(&rcSymbols);
}

// The lines of the item itself and those that its ancestors lead down past it.
void QVTreeCtrlEx::DrawTreeLines(CDC& dc, HTREEITEM hItem, const CRect& rcCell, int nShift,
                                 int nRight) {
    const CPoint ptMiddle = rcCell.CenterPoint();
    int x = ptMiddle.x;
    for (HTREEITEM h = hItem; h != nullptr && x > 0; h = h->pParent) {
        if (h == hItem) {
            if (h->pParent != nullptr || h->pPrevSibling != nullptr) {
                DrawDottedLine(dc, x, Even(rcCell.top), x, ptMiddle.y);
            }
            if (h->pNextSibling != nullptr) {
                DrawDottedLine(dc, x, Even(ptMiddle.y), x, rcCell.bottom);
            }
        } else {
            if (h->nLevel == 0) {
                x += nShift;
            }
            if (h->pNextSibling != nullptr) {
                DrawDottedLine(dc, x, Even(rcCell.top), x, rcCell.bottom);
            }
        }
        x -= View().IndentStep();
    }
    DrawDottedLine(dc, ptMiddle.x, Even(ptMiddle.y), nRight, Even(ptMiddle.y));
}

void QVTreeCtrlEx::DrawItemButton(CDC& dc, const CRect& rect, BOOL bExpanded) {
    constexpr int kSmallest = 5;
    constexpr int kLargest = 9;
    constexpr int kMargin = 4;  // of the row's height; the size is odd, for a middle
    const int nSize = std::clamp((ItemHeight() - kMargin) | 1, kSmallest, kLargest);
    const int nLeft = rect.left + (rect.Width() - nSize) / 2;
    const int nTop = Even(rect.top + (rect.Height() - nSize) / 2 + 1);
    const CRect rcButton(nLeft, nTop, nLeft + nSize, nTop + nSize);
    dc.Rectangle(&rcButton);

    const int nMargin = nSize == kSmallest ? 1 : 2;
    const int nEnd = nSize - nMargin;
    const int nMiddle = nSize / 2;
    const qv::SelectGuard<CPen> pen(dc, ::GetStockObject(BLACK_PEN));
    dc.MoveTo(nLeft + nMargin, nTop + nMiddle);
    dc.LineTo(nLeft + nEnd, nTop + nMiddle);
    if (!bExpanded) {
        dc.MoveTo(nLeft + nMiddle, nTop + nMargin);
        dc.LineTo(nLeft + nMiddle, nTop + nEnd);
    }
    dc.ExcludeClipRect(&rcButton);
}

void QVTreeCtrlEx::DrawDottedLine(CDC& dc, int x1, int y1, int x2, int y2) {
    const COLORREF cr = ::GetSysColor(COLOR_BTNSHADOW);
    if (x1 == x2) {
        for (int y = y1; y < y2; y += 2) {
            dc.SetPixel(x1, y, cr);
        }
    } else if (y1 == y2) {
        for (int x = x1; x < x2; x += 2) {
            dc.SetPixel(x, y1, cr);
        }
    }
}
