#include "afx/controls/check_list_box.h"

#include "afx/collections/elements.h"
#include "afx/drawing/select_guard.h"
#include "afx/window/wnd_state.h"

#include <afxcmn.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CCheckListBox, CListBox)
IMPLEMENT_DYNAMIC(CDragListBox, CListBox)

BEGIN_MESSAGE_MAP(CCheckListBox, CListBox)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_KEYDOWN()
    ON_MESSAGE(WM_SETFONT, &CCheckListBox::OnSetFont)
    ON_MESSAGE(LB_ADDSTRING, &CCheckListBox::OnStringAdded)
    ON_MESSAGE(LB_INSERTSTRING, &CCheckListBox::OnStringAdded)
    ON_MESSAGE(LB_DELETESTRING, &CCheckListBox::OnStringDeleted)
    ON_MESSAGE(LB_RESETCONTENT, &CCheckListBox::OnContentReset)
END_MESSAGE_MAP()

namespace {

constexpr int kCheckGap = 2;  // pixels around a check box

int CheckSize() {
    return ::GetSystemMetrics(SM_CXMENUCHECK) - 1;
}

}  // namespace

BOOL CCheckListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    if (!(dwStyle & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE))) {
        dwStyle |= LBS_OWNERDRAWFIXED;
    }
    return CListBox::Create(dwStyle | LBS_HASSTRINGS, rect, pParentWnd, nID);
}

void CCheckListBox::PreSubclassWindow() {
    CListBox::PreSubclassWindow();
    FitItemHeight();
}

// --- Checks

// Rows that came by another way than the messages for single ones have no checks.
CCheckListBox::Row* CCheckListBox::RowAt(int nIndex) const {
    const int nCount = GetCount();
    if (nIndex < 0 || nIndex >= nCount) {
        return nullptr;
    }
    if (m_rows.size() != static_cast<size_t>(nCount)) {
        AfxNeedMemory([&] { m_rows.resize(static_cast<size_t>(nCount)); });
    }
    return &m_rows[static_cast<size_t>(nIndex)];
}

int CCheckListBox::GetCheck(int nIndex) const {
    const Row* pRow = RowAt(nIndex);
    return pRow != nullptr ? pRow->nCheck : 0;
}

void CCheckListBox::SetCheck(int nIndex, int nCheck) {
    const bool bThree = m_nStyle == BS_AUTO3STATE || m_nStyle == BS_3STATE;
    Row* pRow = RowAt(nIndex);
    if (pRow != nullptr && nCheck >= 0 && nCheck <= (bThree ? 2 : 1) && pRow->nCheck != nCheck) {
        pRow->nCheck = nCheck;
        InvalidateRow(nIndex);
    }
}

void CCheckListBox::Enable(int nIndex, BOOL bEnabled) {
    Row* pRow = RowAt(nIndex);
    if (pRow != nullptr && pRow->bEnabled != (bEnabled != FALSE)) {
        pRow->bEnabled = bEnabled != FALSE;
        InvalidateRow(nIndex);
    }
}

BOOL CCheckListBox::IsEnabled(int nIndex) const {
    const Row* pRow = RowAt(nIndex);
    return pRow != nullptr && pRow->bEnabled;
}

void CCheckListBox::InvalidateRow(int nIndex) {
    CRect rcItem;
    if (GetItemRect(nIndex, rcItem) != LB_ERR) {
        InvalidateRect(rcItem, FALSE);
    }
}

LRESULT CCheckListBox::OnStringAdded(WPARAM, LPARAM) {
    RowAt(0);  // the rows of before
    const LRESULT nIndex = Default();
    if (nIndex >= 0 && static_cast<size_t>(nIndex) <= m_rows.size()) {
        AfxNeedMemory([&] { m_rows.insert(m_rows.begin() + nIndex, Row()); });
    }
    return nIndex;
}

LRESULT CCheckListBox::OnStringDeleted(WPARAM wParam, LPARAM) {
    RowAt(0);
    const LRESULT nResult = Default();
    if (nResult != LB_ERR && wParam < m_rows.size()) {
        m_rows.erase(m_rows.begin() + static_cast<ptrdiff_t>(wParam));
    }
    return nResult;
}

LRESULT CCheckListBox::OnContentReset(WPARAM, LPARAM) {
    m_rows.clear();
    return Default();
}

void CCheckListBox::ToggleByUser(int nIndex) {
    const Row* pRow = RowAt(nIndex);
    if (pRow == nullptr || !pRow->bEnabled ||
        (m_nStyle != BS_AUTOCHECKBOX && m_nStyle != BS_AUTO3STATE)) {
        return;
    }
    const int nCheck = (pRow->nCheck + 1) % (m_nStyle == BS_AUTO3STATE ? 3 : 2);
    const bool bMany = (GetStyle() & (LBS_EXTENDEDSEL | LBS_MULTIPLESEL)) != 0;
    if (bMany && GetSel(nIndex) > 0) {
        for (int n = 0; n < GetCount(); ++n) {
            if (GetSel(n) > 0 && IsEnabled(n)) {
                SetCheck(n, nCheck);
            }
        }
    } else {
        SetCheck(nIndex, nCheck);
    }
    // The last: the parent may do away with this list.
    AfxSend(::GetParent(m_hWnd), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), CLBN_CHKCHANGE), m_hWnd);
}

// --- What the user does

void CCheckListBox::OnLButtonDown(UINT, CPoint point) {
    BOOL bOutside = TRUE;
    const int nIndex = static_cast<int>(ItemFromPoint(point, bOutside));
    CRect rcItem;
    if (!bOutside && GetItemRect(nIndex, rcItem) != LB_ERR && CheckRect(rcItem).PtInRect(point)) {
        const HWND hWnd = m_hWnd;
        SetFocus();
        if (CWnd::FromHandlePermanent(hWnd) != this) {
            return;  // somebody who was told of the focus did away with the list
        }
        if ((GetStyle() & (LBS_EXTENDEDSEL | LBS_MULTIPLESEL)) == 0) {
            SetCurSel(nIndex);
        } else if (GetSel(nIndex) <= 0) {
            SetSel(-1, FALSE);
            SetSel(nIndex, TRUE);
        }
        ToggleByUser(nIndex);
        return;
    }
    Default();
}

void CCheckListBox::OnLButtonDblClk(UINT nFlags, CPoint point) {
    OnLButtonDown(nFlags, point);
}

void CCheckListBox::OnKeyDown(UINT nChar, UINT, UINT) {
    if (nChar != VK_SPACE) {
        Default();
        return;
    }
    ToggleByUser(GetCaretIndex());
}

// --- Looks

int CCheckListBox::ItemHeight() {
    const HDC hDC = ::GetDC(m_hWnd);
    TEXTMETRIC metric = {};
    {
        const AfxSelectGuard select(hDC, AfxSend<HGDIOBJ>(m_hWnd, WM_GETFONT));
        ::GetTextMetrics(hDC, &metric);
    }
    ::ReleaseDC(m_hWnd, hDC);
    return std::max(static_cast<int>(metric.tmHeight), CheckSize() + kCheckGap);
}

void CCheckListBox::FitItemHeight() {
    if ((GetStyle() & LBS_OWNERDRAWFIXED) != 0) {
        SetItemHeight(0, static_cast<UINT>(ItemHeight()));
    }
}

LRESULT CCheckListBox::OnSetFont(WPARAM, LPARAM) {
    Default();
    FitItemHeight();
    return 0;
}

void CCheckListBox::MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) {
    lpMeasureItemStruct->itemHeight = static_cast<UINT>(ItemHeight());
}

CRect CCheckListBox::OnGetCheckPosition(CRect, CRect rectCheckBox) {
    return rectCheckBox;
}

CRect CCheckListBox::CheckRect(const CRect& rcItem) {
    const int nSize = CheckSize();
    const CPoint ptCheck(rcItem.left + kCheckGap,
                         rcItem.top + std::max((rcItem.Height() - nSize) / 2, 0));
    return OnGetCheckPosition(rcItem, CRect(ptCheck, CSize(nSize, nSize)));
}

void CCheckListBox::DrawCheck(CDC& dc, const CRect& rcItem, const Row& row) {
    CRect rcCheck = CheckRect(rcItem);
    const UINT nState = (row.nCheck == 2   ? DFCS_BUTTON3STATE | DFCS_CHECKED
                         : row.nCheck == 1 ? DFCS_BUTTONCHECK | DFCS_CHECKED
                                           : DFCS_BUTTONCHECK) |
                        (row.bEnabled && IsWindowEnabled() ? 0 : DFCS_INACTIVE);
    ::DrawFrameControl(dc.m_hDC, rcCheck, DFC_BUTTON, nState);
}

BOOL CCheckListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    auto* pDraw = reinterpret_cast<LPDRAWITEMSTRUCT>(lParam);
    if (message != WM_DRAWITEM || static_cast<int>(pDraw->itemID) < 0) {
        return CListBox::OnChildNotify(message, wParam, lParam, pResult);
    }
    // The check box first; a derived class draws what is left.
    const Row* pRow = RowAt(static_cast<int>(pDraw->itemID));
    DRAWITEMSTRUCT rest = *pDraw;
    if (pRow != nullptr) {
        const CRect rcItem(pDraw->rcItem);
        CRect rcCheck = CheckRect(rcItem);
        CRect rcBand(rcItem.left, rcItem.top, std::min(rcCheck.right + kCheckGap, rcItem.right),
                     rcItem.bottom);
        ::FillRect(pDraw->hDC, rcBand, ::GetSysColorBrush(COLOR_WINDOW));
        DrawCheck(*CDC::FromHandle(pDraw->hDC), rcItem, *pRow);
        rest.rcItem.left = rcBand.right;
        if (!pRow->bEnabled) {
            rest.itemState |= ODS_DISABLED | ODS_GRAYED;
        }
    }
    DrawItem(&rest);
    *pResult = TRUE;
    return TRUE;
}

void CCheckListBox::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) {
    CDC* pDC = CDC::FromHandle(lpDrawItemStruct->hDC);
    const CRect rcItem(lpDrawItemStruct->rcItem);
    const UINT nState = lpDrawItemStruct->itemState;
    if (lpDrawItemStruct->itemAction & (ODA_DRAWENTIRE | ODA_SELECT)) {
        const bool bSelected = (nState & ODS_SELECTED) != 0;
        const bool bDisabled = (nState & ODS_DISABLED) != 0 || !IsWindowEnabled();
        const int nText = bDisabled   ? COLOR_GRAYTEXT
                          : bSelected ? COLOR_HIGHLIGHTTEXT
                                      : COLOR_WINDOWTEXT;
        const int nBack = bSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW;
        const COLORREF crText = pDC->SetTextColor(::GetSysColor(nText));
        const COLORREF crBack = pDC->SetBkColor(::GetSysColor(nBack));
        CString strText;
        GetText(static_cast<int>(lpDrawItemStruct->itemID), strText);
        TEXTMETRIC metric = {};
        pDC->GetTextMetrics(&metric);
        const int y =
            rcItem.top + std::max((rcItem.Height() - static_cast<int>(metric.tmHeight)) / 2, 0);
        pDC->ExtTextOut(rcItem.left, y, ETO_OPAQUE | ETO_CLIPPED, rcItem, strText, nullptr);
        pDC->SetTextColor(crText);
        pDC->SetBkColor(crBack);
    }
    if ((lpDrawItemStruct->itemAction & ODA_FOCUS) || (nState & ODS_FOCUS)) {
        pDC->DrawFocusRect(rcItem);
    }
}

// --- CDragListBox

static UINT DragMessage() {
    static const UINT s_nMessage = ::RegisterWindowMessage(DRAGLISTMSGSTRING);
    return s_nMessage;
}

void CDragListBox::PreSubclassWindow() {
    CListBox::PreSubclassWindow();
    ::MakeDragList(m_hWnd);
}

BOOL CDragListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message != DragMessage()) {
        return CListBox::OnChildNotify(message, wParam, lParam, pResult);
    }
    const auto& info = *reinterpret_cast<const DRAGLISTINFO*>(lParam);
    const CPoint pt(info.ptCursor);
    switch (info.uNotification) {
        case DL_BEGINDRAG:
            *pResult = BeginDrag(pt);
            return TRUE;
        case DL_CANCELDRAG:
            CancelDrag(pt);
            return TRUE;
        case DL_DRAGGING:
            *pResult = static_cast<LRESULT>(Dragging(pt));
            return TRUE;
        case DL_DROPPED:
            Dropped(GetCurSel(), pt);
            return TRUE;
        default:
            return FALSE;
    }
}

int CDragListBox::ItemFromPt(CPoint pt, BOOL bAutoScroll) const {
    return ::LBItemFromPt(m_hWnd, pt, bAutoScroll);
}

void CDragListBox::DrawInsert(int nIndex) {
    if (m_nLast != nIndex) {
        m_nLast = nIndex;
        ::DrawInsert(::GetParent(m_hWnd), m_hWnd, nIndex);
    }
}

BOOL CDragListBox::BeginDrag(CPoint pt) {
    m_nLast = -1;
    DrawInsert(ItemFromPt(pt));
    return TRUE;
}

void CDragListBox::CancelDrag(CPoint) {
    DrawInsert(-1);
}

UINT CDragListBox::Dragging(CPoint pt) {
    const int nIndex = ItemFromPt(pt, FALSE);
    DrawInsert(nIndex);
    ItemFromPt(pt);
    return nIndex == LB_ERR ? DL_STOPCURSOR : DL_MOVECURSOR;
}

void CDragListBox::Dropped(int nSrcIndex, CPoint pt) {
    DrawInsert(-1);
    int nTo = ItemFromPt(pt);
    if (nSrcIndex == LB_ERR || nTo == LB_ERR || nSrcIndex == nTo || nSrcIndex + 1 == nTo) {
        return;
    }
    CString strText;
    GetText(nSrcIndex, strText);
    const DWORD_PTR dwData = GetItemData(nSrcIndex);
    DeleteString(static_cast<UINT>(nSrcIndex));
    if (nSrcIndex < nTo) {
        --nTo;
    }
    nTo = InsertString(nTo, strText);
    SetItemData(nTo, dwData);
    SetCurSel(nTo);
}
