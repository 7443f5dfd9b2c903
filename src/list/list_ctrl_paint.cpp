#include "list/list_ctrl.h"

#include "frame/out_of_memory.h"
#include "frame/core/styled_text.h"
#include "frame/select_object.h"
#include "frame/text_out.h"
#include "frame/wnd_port.h"
#include "list/cell_format.h"

#include <algorithm>

namespace {

constexpr UINT kTextFlags = DT_NOPREFIX | DT_END_ELLIPSIS;
constexpr COLORREF kNoBackground = 0xFFFFFFFF;

int RowColor(qv::Highlight highlight) {
    return highlight == qv::Highlight::Full    ? COLOR_HIGHLIGHT
           : highlight == qv::Highlight::Faded ? COLOR_BTNFACE
                                               : COLOR_WINDOW;
}

}  // namespace

qv::RowLayout QVListCtrlEx::Layout() {
    qv::RowLayout layout;
    layout.nClientWidth = m_nClientWidth;
    layout.nDataWidth = GetDataWidth();
    layout.nFirstColWidth = m_bImageFirstCol ? GetColWidth(0, nullptr) : 0;
    layout.nImageWidth = m_nImageWidth;
    layout.nImageHeight = m_nImageHeight;
    layout.nTextHeight = m_nTextHeight;
    layout.bImageFirstCol = m_bImageFirstCol != FALSE;
    layout.bImageCenterVert = m_bImageCenterVert != FALSE;
    return layout;
}

// The control paints itself and asks for one row after the other; each row is composed in a bitmap
// and reaches the screen in one piece.
void QVListCtrlEx::OnPaint() {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    bool bRows = false;
    qv::MemorySuffices([&] { bRows = BeginRows(); });
    {
        const qv::WhileAlive<qv::SelectGuard<CBitmap>> bitmap(watch, m_dcMem,
                                                              bRows ? &m_bmpBack : nullptr);
        Default();
    }
    if (watch.ObjectAlive() && m_dcMem.GetSafeHdc() != nullptr) {
        m_dcMem.DeleteDC();
    }
    if (watch && InReportMode()) {
        qv::MemorySuffices([&] {
            CClientDC dc(this);
            if (GetItemCount() == 0) {
                // The empty space begins at the top, where the headings are.
                ExcludeHeader(dc);
            }
            FillEmptySpace(&dc);
        });
    }
}

// Makes ready what rows are composed in. False if there are none, or none can be drawn.
bool QVListCtrlEx::BeginRows() {
    CRect rcItem;
    if (!InReportMode() || GetTopIndex() >= GetItemCount() ||
        !GetItemRect(GetTopIndex(), &rcItem, LVIR_BOUNDS)) {
        return false;
    }
    CPaintDC dc(this);
    CRect rcClip;
    dc.GetClipBox(&rcClip);
    // The region is valid from here on; what the control is to find goes from the row's left edge,
    // which the control leaves out, to the window's right edge and holds the last pixel of the row.
    rcClip.left = std::min({rcClip.left, rcItem.left, rcItem.right - 1});
    rcClip.right = m_nClientWidth;
    InvalidateRect(&rcClip, FALSE);
    GrowBackBitmap(dc, Layout().Width(), rcItem.Height());
    return m_dcMem.CreateCompatibleDC(&dc) != FALSE;
}

void QVListCtrlEx::ExcludeHeader(CDC& dc) {
    if (CHeaderCtrl* pHeader = GetHeaderCtrl(); pHeader != nullptr && pHeader->IsWindowVisible()) {
        CRect rc;
        pHeader->GetWindowRect(&rc);
        ScreenToClient(&rc);
        dc.ExcludeClipRect(&rc);
    }
}

// Rows erase themselves.
BOOL QVListCtrlEx::OnEraseBkgnd(CDC* pDC) {
    BOOL bFilled = FALSE;
    qv::MemorySuffices([&] { bFilled = FillEmptySpace(pDC); });
    return bFilled;
}

// A focused row that is not selected has nothing else to tell the control by that it has changed.
void QVListCtrlEx::OnSetFocus(CWnd*) {
    DefaultAndRedrawFocus();
}

void QVListCtrlEx::OnKillFocus(CWnd*) {
    DefaultAndRedrawFocus();
}

void QVListCtrlEx::DefaultAndRedrawFocus() {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    Default();
    if (!watch) {
        return;
    }
    if (const int nFocus = GetNextItem(-1, LVNI_FOCUSED); nFocus != -1) {
        RedrawItems(nFocus, nFocus);
    }
}

void QVListCtrlEx::GrowBackBitmap(CDC& dc, int cx, int cy) {
    if (m_nBackHeight >= cy && m_nBackWidth >= cx) {
        return;
    }
    m_nBackWidth = m_nBackHeight = 0;
    m_bmpBack.DeleteObject();
    if (m_bmpBack.CreateCompatibleBitmap(&dc, cx, cy)) {
        m_nBackWidth = cx;
        m_nBackHeight = cy;
    }
}

void QVListCtrlEx::DrawItem(LPDRAWITEMSTRUCT lpDIS) {
    qv::MemorySuffices([&] { DrawRow(lpDIS); });
}

void QVListCtrlEx::DrawRow(LPDRAWITEMSTRUCT lpDIS) {
    CDC* pDC = CDC::FromHandle(lpDIS->hDC);
    const qv::RowLayout layout = Layout();
    CRect rc(lpDIS->rcItem);
    if (CRect rcBounds; GetItemRect(static_cast<int>(lpDIS->itemID), &rcBounds, LVIR_BOUNDS)) {
        // Some versions of the control leave out a margin at the left, which nobody else paints.
        rc.left = std::min(rc.left, rcBounds.left);
    }
    rc.right = std::max(rc.right, rc.left + static_cast<LONG>(layout.Width()));
    if (m_dcMem.GetSafeHdc() == nullptr || !pDC->RectVisible(&rc)) {
        return;
    }
    const auto highlight = qv::RowHighlight(m_bAllowSel && (lpDIS->itemState & ODS_SELECTED) != 0,
                                            HasFocus(), ShowsSelAlways(), m_bAlwaysHighlightSel);
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const qv::WhileAlive<qv::BrushLife> item(watch, m_brItem, ::GetSysColor(RowColor(highlight)));
    const qv::WhileAlive<qv::BrushLife> blank(watch, m_brBlank, ::GetSysColor(COLOR_WINDOW));
    const CRect rcRow(0, 0, rc.Width(), rc.Height());
    if ((lpDIS->itemAction & (ODA_DRAWENTIRE | ODA_SELECT)) != 0) {
        ComposeText(lpDIS->itemID, rcRow, layout, highlight);
        if (watch && m_nImageWidth > 0) {
            DrawItemBitmap(&m_dcMem, lpDIS->itemID, rcRow);
        }
        if (!watch) {
            return;
        }
    }
    if ((lpDIS->itemState & ODS_FOCUS) != 0 && HasFocus()) {
        const CRect rcFocus = qv::ToCRect(layout.Focus(rcRow.Height()));
        m_dcMem.SetTextColor(RGB(0, 0, 0));
        m_dcMem.SetBkColor(RGB(255, 255, 255));
        m_dcMem.DrawFocusRect(&rcFocus);
    }
    pDC->BitBlt(rc.left, rc.top, rc.Width(), rc.Height(), &m_dcMem, 0, 0, SRCCOPY);
}

// The highlight ends where the data end.
void QVListCtrlEx::ComposeText(UINT nItem, const CRect& rcRow, const qv::RowLayout& layout,
                               qv::Highlight highlight) {
    CRect rcText = qv::ToCRect(layout.TextCells(rcRow.Height()));
    m_dcMem.FillRect(&rcText, &m_brItem);
    const CRect rcBlank = qv::ToCRect(layout.Blank(rcRow.Height()));
    if (rcBlank.Width() > 0) {
        m_dcMem.FillRect(&rcBlank, &m_brBlank);
    }
    rcText.DeflateRect(0, layout.TextInset());
    const qv::AliveWatch watch(m_alive);
    const qv::WhileAlive<qv::ColorGuard> colors(watch, m_dcMem);
    // Window colour on the highlight, as the rows have always shown it.
    m_dcMem.SetTextColor(
        ::GetSysColor(highlight == qv::Highlight::Full ? COLOR_WINDOW : COLOR_WINDOWTEXT));
    m_dcMem.SetBkColor(::GetSysColor(RowColor(highlight)));
    const qv::WhileAlive<qv::SelectGuard<CFont>> font(watch, m_dcMem, GetFont());
    // Cells that find no memory stay blank.
    qv::MemorySuffices(
        [&] { DrawItemText(&m_dcMem, nItem, rcText, highlight != qv::Highlight::None, nullptr); });
}

void QVListCtrlEx::DrawItemBitmap(CDC* pDC, UINT nItem, const CRect& rc) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const int nImage = GetImage(static_cast<int>(nItem));
    if (!watch) {
        return;
    }
    const qv::RowLayout layout = Layout();
    // The image's cell is never highlighted.
    const CRect rcCell = qv::ToCRect(layout.ImageCell(qv::ToRect(rc)));
    pDC->FillRect(&rcCell, &m_brBlank);
    const qv::Point pt = layout.ImagePosition(qv::ToRect(rc));
    m_imageList.Draw(pDC, nImage, CPoint(pt.x, pt.y), ILD_NORMAL);
}

// A style that is none counts as the default one.
COLORREF QVListCtrlEx::StyleBackground(int nStyle) const {
    if (m_aStyles.Count() == 0) {
        return ::GetSysColor(COLOR_WINDOW);  // there was no memory for it
    }
    return m_aStyles[nStyle >= 0 && nStyle < m_aStyles.Count() ? nStyle : 0].crBk;
}

// A cell without a style goes on in the background of the cell before it, which the device context
// still has. Style 0 has no background of its own either.
void QVListCtrlEx::FillCell(CDC& dc, const CRect& rc, const CString& strText, int nCol) {
    const int nStyle = ParseStyle(strText);
    COLORREF crBk = dc.GetBkColor();
    if (nStyle != 0) {
        crBk = StyleBackground(nStyle);
        if (crBk == kNoBackground) {
            crBk = StyleBackground(GetColStyle(nCol));
        }
    }
    CBrush brush(crBk);
    dc.FillRect(&rc, &brush);
    dc.SetBkColor(crBk);
}

void QVListCtrlEx::DrawItemText(CDC* pDC, UINT nItem, const CRect& rc, BOOL bSelected,
                                int* pWidths) {
    // On screen the device context is a part of the list.
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const qv::WhileAlive<qv::ColorGuard> colors(watch, *pDC);
    if (m_bSingleColumn) {
        const CString strText(CellText(static_cast<int>(nItem), 0));
        if (!watch) {
            return;
        }
        if (!bSelected) {
            FillCell(*pDC, rc, strText, 0);
        }
        OutputFormattedText(pDC, rc, strText, bSelected, DT_LEFT, TRUE);
        return;
    }
    const int nInset = Layout().TextInset();
    CRect rcCol(rc);
    for (int nCol = FirstTextColumn(); nCol < m_columns.Count(); ++nCol) {
        const int nWidth = GetColWidth(nCol, pWidths);
        if (nWidth == 0) {
            continue;  // that is how a column is hidden
        }
        rcCol.right = rcCol.left + nWidth;
        if (nCol == 0) {
            rcCol.right -= m_nImageWidth;  // the rectangle begins behind the image
        }
        const CString strText(CellText(static_cast<int>(nItem), nCol));
        if (!watch) {
            return;
        }
        if (!bSelected) {
            CRect rcFill(rcCol);
            rcFill.InflateRect(0, nInset);
            FillCell(*pDC, rcFill, strText, nCol);
        }
        OutputFormattedText(pDC, rcCol, strText, bSelected, GetColDrawFormat(nCol), TRUE);
        rcCol.left = rcCol.right;
    }
}

void QVListCtrlEx::OutputFormattedText(CDC* pDC, const CRect& rc, const CString& strText,
                                       BOOL bSelected, UINT nFormat, BOOL bUseColors) {
    CRect rcText(rc);
    rcText.DeflateRect(qv::kCellMargin * (pDC->IsPrinting() ? m_nPrintScale : 1), 0);
    if (HasStyle(strText) && bUseColors && m_aStyles.Count() > 0 &&
        (!bSelected || (!HasFocus() && !ShowsSelAlways()))) {
        pDC->SetTextColor(m_aStyles[ParseStyle(strText)].crText);
    }
    qv::DrawTextIn(*pDC, ParseStyleText(strText), rcText, nFormat | kTextFlags);
}

BOOL QVListCtrlEx::FillEmptySpace(CDC* pDC) {
    const int nTop = GetTopIndex();
    const int nCount = GetItemCount();
    if (nTop + GetCountPerPage() < nCount) {
        return FALSE;
    }
    CRect rcBlank;
    GetClientRect(&rcBlank);
    CRect rcItem;
    if (nCount > 0 && GetItemRect(nTop, &rcItem, LVIR_BOUNDS)) {
        rcBlank.top = rcItem.top + rcItem.Height() * (nCount - nTop);
    }
    const COLORREF crWindow = ::GetSysColor(COLOR_WINDOW);
    const auto fill = [&](LONG nLeft, LONG nRight, COLORREF cr) {
        const CRect rc(nLeft, rcBlank.top, nRight, rcBlank.bottom);
        if (!rc.IsRectEmpty()) {
            CBrush brush(cr);
            pDC->FillRect(&rc, &brush);
        }
    };
    LONG x = -GetScrollPos(SB_HORZ);
    for (int nCol = 0; nCol < m_columns.Count(); ++nCol) {
        const LONG nRight = x + GetColWidth(nCol, nullptr);
        fill(x, nRight, StyleBackground(GetColStyle(nCol)));
        x = nRight;
    }
    fill(x, rcBlank.right, crWindow);
    return TRUE;
}
