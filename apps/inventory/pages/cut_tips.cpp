#include "pages/cut_tips.h"

namespace {

constexpr int kCellMargin = 6;  // beside a text, at either side
constexpr INT_PTR kMostColumns = 64;

}  // namespace

CFont* NearestFontOf(CWnd& wnd) {
    for (CWnd* pWnd = &wnd; pWnd != nullptr; pWnd = pWnd->GetParent()) {
        if (const auto hFont = reinterpret_cast<HFONT>(pWnd->SendMessage(WM_GETFONT))) {
            return CFont::FromHandle(hFont);
        }
    }
    return nullptr;
}

bool IsCut(CWnd& wnd, const TipCell& cell) {
    if (cell.strText.IsEmpty()) {
        return false;
    }
    CClientDC dc(&wnd);
    const qv::SelectGuard<CFont> font(dc, NearestFontOf(wnd));
    const int nWidth = dc.GetTextExtent(cell.strText).cx;
    CRect rc;
    wnd.GetClientRect(&rc);
    const CRect& room = cell.rcText;
    const int nFree = room.Width() - nWidth;
    const int nLeft = room.left + (cell.nAlign == DT_RIGHT    ? nFree
                                   : cell.nAlign == DT_CENTER ? nFree / 2
                                                              : 0);
    return nFree < 0 || nLeft < rc.left || nLeft + nWidth > rc.right;
}

bool ListTipCellAt(QVListCtrlEx& list, CPoint pt, int nImageWidth, TipCell& cell) {
    CRect rcHeader(0, 0, 0, 0);
    if (CHeaderCtrl* pHeader = list.GetHeaderCtrl()) {
        pHeader->GetWindowRect(&rcHeader);
        list.ScreenToClient(&rcHeader);
    }
    LVHITTESTINFO hit{};
    hit.pt = pt;
    if (rcHeader.PtInRect(pt) || list.SubItemHitTest(&hit) < 0 || hit.iItem < 0 ||
        !list.GetSubItemRect(hit.iItem, hit.iSubItem, LVIR_BOUNDS, cell.rcText)) {
        return false;
    }
    // The bounds of the first column are those of the row.
    cell.rcText.right = cell.rcText.left + list.GetColWidth(hit.iSubItem, nullptr);
    cell.rcText.DeflateRect(kCellMargin, 0);
    cell.rcText.left += hit.iSubItem == 0 ? nImageWidth : 0;
    const int nFormat = list.GetColFormat(hit.iSubItem);
    cell.nAlign = nFormat == LVCFMT_RIGHT    ? DT_RIGHT
                  : nFormat == LVCFMT_CENTER ? DT_CENTER
                                             : DT_LEFT;
    cell.nId = hit.iItem * kMostColumns + hit.iSubItem;
    const CString strCell = list.GetItemText(hit.iItem, hit.iSubItem);
    cell.strText = list.ParseStyleText(strCell);
    return true;
}
