#include "list/list_ctrl.h"

#include "frame/dc_guards.h"
#include "frame/out_of_memory.h"
#include "frame/paint_objects.h"
#include "frame/text_out.h"
#include "frame/wnd_port.h"
#include "list/cell_row.h"
#include "list/list_ctrl_core.h"

#include <algorithm>

namespace {

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
    layout.nFirstColWidth = m_bImageFirstCol ? PaintColWidth(0, nullptr) : 0;
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
    m_pCore->bPaintFocus = HasFocus();
    bool bRows = false;
    qv::MemorySuffices([&] { bRows = BeginRows(); });
    {
        const qv::WhileAlive<qv::SelectGuard<CBitmap>> bitmap(watch, m_dcMem,
                                                              bRows ? &m_bmpBack : nullptr);
        const qv::WhileAlive<qv::SelectGuard<CFont>> font(watch, m_dcMem,
                                                          bRows ? FontHandle() : nullptr);
        Default();
    }
    if (watch.ObjectAlive() && m_dcMem.GetSafeHdc() != nullptr) {
        m_dcMem.DeleteDC();
    }
    if (watch && InReportMode() && HasEmptySpace()) {
        qv::MemorySuffices([&] {
            CClientDC dc(this);
            if (GetItemCount() == 0) {
                // The empty space begins at the top, where the headings are.
                ExcludeHeader(dc);
            }
            FillEmptySpace(&dc);
        });
    }
    if (watch.ObjectAlive()) {
        m_pCore->paintWidths.clear();
        m_pCore->bPaintFocus.reset();
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
    for (int nCol = 0; nCol < NumColumns(); ++nCol) {
        m_pCore->paintWidths.push_back(GetColWidth(nCol, nullptr));
    }
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
    m_pCore->bPaintFocus.reset();
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
    const auto highlight =
        qv::RowHighlight(m_bAllowSel && (lpDIS->itemState & ODS_SELECTED) != 0, PaintsFocused(),
                         ShowsSelAlways(), m_bAlwaysHighlightSel);
    const qv::WindowWatch watch(m_alive, m_hWnd);
    m_pCore->crItem = ::GetSysColor(RowColor(highlight));
    const qv::WhileAlive<qv::BrushLife> item(watch, m_brItem, m_pCore->crItem);
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
    if ((lpDIS->itemState & ODS_FOCUS) != 0 && PaintsFocused()) {
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
    m_pCore->rcFilled = rcText;
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
    // Mostly the paint has selected it already, once for all rows.
    const HGDIOBJ hFont = FontHandle();
    const bool bSelected = ::GetCurrentObject(m_dcMem.m_hDC, OBJ_FONT) == hFont;
    const qv::WhileAlive<qv::SelectGuard<CFont>> font(watch, m_dcMem, bSelected ? nullptr : hFont);
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

// The cells of a row, or the one cell of a list without headings.
class QVListCtrlEx::ItemCells : public qv::CellRow {
public:
    ItemCells(QVListCtrlEx& list, UINT nItem, BOOL bSelected, int* pWidths)
        : m_list(list),
          m_watch(list.m_alive, list.m_hWnd),
          m_nItem(static_cast<int>(nItem)),
          m_pWidths(pWidths),
          m_bColorText(list.StylesColorText(bSelected)),
          m_crWindow(::GetSysColor(COLOR_WINDOW)),
          m_nCol(list.m_bSingleColumn ? 0 : list.FirstTextColumn()) {
        bFills = !bSelected;
        nOutset = list.m_bSingleColumn ? 0 : list.Layout().TextInset();
    }

    bool Next(qv::Cell& cell) override {
        cell.bToEnd = m_list.m_bSingleColumn != FALSE;
        if (!(cell.bToEnd ? m_nCol == 0 : FindVisible(cell.nWidth))) {
            return false;
        }
        LPCSTR pszText = m_list.CellText(m_nItem, m_nCol);
        if (!m_watch) {
            return false;
        }
        cell.look = qv::ReadCell(m_list.m_aStyles, pszText, m_list.GetColStyle(m_nCol), m_crWindow);
        if (!m_bColorText) {
            cell.look.crText.reset();
        }
        cell.nAlign = cell.bToEnd ? DT_LEFT : m_list.GetColDrawFormat(m_nCol);
        ++m_nCol;
        return true;
    }

private:
    // A column without width is hidden. The row begins behind the image, which is in column 0.
    bool FindVisible(int& nWidth) {
        for (; m_nCol < m_list.NumColumns(); ++m_nCol) {
            nWidth = m_list.PaintColWidth(m_nCol, m_pWidths);
            if (nWidth != 0) {
                nWidth -= m_nCol == 0 ? m_list.m_nImageWidth : 0;
                return true;
            }
        }
        return false;
    }

    QVListCtrlEx& m_list;
    const qv::WindowWatch<HWND> m_watch;
    const int m_nItem;
    int* const m_pWidths;
    const bool m_bColorText;
    const COLORREF m_crWindow;
    int m_nCol;
};

void QVListCtrlEx::DrawItemText(CDC* pDC, UINT nItem, const CRect& rc, BOOL bSelected,
                                int* pWidths) {
    // On screen the device context is a part of the list.
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const qv::WhileAlive<qv::ColorGuard> colors(watch, *pDC);
    ItemCells cells(*this, nItem, bSelected, pWidths);
    cells.nMargin = PrintMargin(*pDC);
    if (pDC == &m_dcMem) {
        cells.pBrush = &m_brItem;
        cells.crBrush = m_pCore->crItem;
        cells.rcFilled = m_pCore->rcFilled;
    }
    qv::DrawCells(*pDC, rc, cells);
}

// A highlighted row shows no colours of its own.
bool QVListCtrlEx::StylesColorText(BOOL bSelected) const {
    return !bSelected || (!PaintsFocused() && !ShowsSelAlways());
}

// To ask the system costs more than to draw a row: a paint asks once.
bool QVListCtrlEx::PaintsFocused() const {
    return m_pCore->bPaintFocus ? *m_pCore->bPaintFocus : HasFocus();
}

void QVListCtrlEx::OutputFormattedText(CDC* pDC, const CRect& rc, const CString& strText,
                                       BOOL bSelected, UINT nFormat, BOOL bUseColors) {
    qv::CellText look = qv::ReadCell(m_aStyles, LPCSTR(strText), 0, 0);
    if (!bUseColors || !StylesColorText(bSelected)) {
        look.crText.reset();
    }
    qv::DrawCellText(*pDC, rc, look, PrintMargin(*pDC), nFormat);
}

// The width of a column on screen, or in a table. What a paint asks for again and again is read
// once.
int QVListCtrlEx::PaintColWidth(int nCol, int* pWidths) {
    const std::vector<int>& known = m_pCore->paintWidths;
    const bool bKnown = pWidths == nullptr && nCol >= 0 && static_cast<size_t>(nCol) < known.size();
    return bKnown ? known[static_cast<size_t>(nCol)] : GetColWidth(nCol, pWidths);
}

// Behind the last row, where that is in view.
bool QVListCtrlEx::HasEmptySpace() {
    return GetTopIndex() + GetCountPerPage() >= GetItemCount();
}

BOOL QVListCtrlEx::FillEmptySpace(CDC* pDC) {
    if (!HasEmptySpace()) {
        return FALSE;
    }
    const int nTop = GetTopIndex();
    const int nCount = GetItemCount();
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
    for (int nCol = 0; nCol < NumColumns(); ++nCol) {
        const LONG nRight = x + PaintColWidth(nCol, nullptr);
        fill(x, nRight, qv::StyleBackground(m_aStyles, GetColStyle(nCol), crWindow));
        x = nRight;
    }
    fill(x, rcBlank.right, crWindow);
    return TRUE;
}
