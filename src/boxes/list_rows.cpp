#include "boxes/list_rows.h"

namespace qv {

int ListRowAt(HWND hList, CPoint pt) {
    const LRESULT lAnswer = ::SendMessage(hList, LB_ITEMFROMPOINT, 0, MAKELPARAM(pt.x, pt.y));
    const int nCount = static_cast<int>(::SendMessage(hList, LB_GETCOUNT, 0, 0));
    if (HIWORD(lAnswer) != 0 || nCount <= 0) {
        return -1;
    }
    // The platform's answer has 16 bits; the row that is meant is in view.
    constexpr int kAnswers = 0x10000;
    const int nTop = static_cast<int>(::SendMessage(hList, LB_GETTOPINDEX, 0, 0));
    int nRow = nTop - nTop % kAnswers + LOWORD(lAnswer);
    nRow += nRow < nTop ? kAnswers : 0;
    return nRow < nCount ? nRow : -1;
}

// The platform adds the heights up from the top row on.
bool ListRowRect(HWND hList, int nRow, CRect& rect) {
    CRect rcClient;
    CRect rcShown;
    ::GetClientRect(hList, &rcClient);
    const int nTop = static_cast<int>(::SendMessage(hList, LB_GETTOPINDEX, 0, 0));
    return nRow >= nTop && nRow - nTop <= rcClient.Height() &&
           ::SendMessage(hList, LB_GETITEMRECT, static_cast<WPARAM>(nRow),
                         reinterpret_cast<LPARAM>(static_cast<RECT*>(&rect))) != LB_ERR &&
           rcShown.IntersectRect(&rect, &rcClient);
}

void GoToListRow(HWND hList, int nRow) {
    CRect rect;
    ::SendMessage(hList, LB_SETCARETINDEX, static_cast<WPARAM>(nRow), FALSE);
    if (!ListRowRect(hList, nRow, rect)) {
        ::SendMessage(hList, LB_SETTOPINDEX, static_cast<WPARAM>(nRow), 0);
    }
}

}  // namespace qv
