// What the list box tells a screen reader. The platform's own list would say what it keeps: image
// numbers and style codes. Nothing here walks all rows.

#include "boxes/bitmap_list_box.h"

#include "boxes/core/box_row.h"
#include "boxes/list_rows.h"
#include "frame/core/spoken_text.h"
#include "frame/notify.h"
#include "frame/text_out.h"

#include <algorithm>
#include <limits>
#include <oleacc.h>
#include <utility>
#include <vector>

namespace {

constexpr int kRowsToTry =
    200;  // one by one, before the platform is asked for all that are selected

bool MayMoveSelection(UINT nMessage) {
    switch (nMessage) {
        case LB_SETSEL:
        case LB_SELITEMRANGE:
        case LB_SELITEMRANGEEX:
        case LB_SETCURSEL:
        case LB_SELECTSTRING:
        case LB_SETCARETINDEX:
        case WM_KEYDOWN:
        case WM_CHAR:
        case WM_LBUTTONDOWN:
        case WM_LBUTTONUP:
        case WM_MOUSEMOVE:
            return true;
        default:
            return false;
    }
}

bool IsHeld(int nKey) {
    return ::GetKeyState(nKey) < 0;
}

}  // namespace

LRESULT QVBitmapListBox::OnGetObject(WPARAM wParam, LPARAM lParam) {
    return AsksAccessible(lParam) ? AnswerAccessible(wParam, lParam) : Default();
}

long QVBitmapListBox::GetAccessibleCount() {
    return std::max(GetCount(), 0);
}

int QVBitmapListBox::PartRow(long nPart) const {
    return nPart > 0 && nPart <= GetCount() ? static_cast<int>(nPart - 1) : -1;
}

// --- Texts

// As many as are drawn.
int QVBitmapListBox::FieldsShown(std::string_view row) const {
    const int nTabs = std::clamp(m_nTabs, 0, kTableSize);
    return nTabs > 0 || row.find(qv::kStyleEscape) != std::string_view::npos
               ? nTabs + 1
               : std::numeric_limits<int>::max();
}

CString QVBitmapListBox::SpokenRow(int nRow, bool bName) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    CString strTitles;
    if (m_header.m_hWnd != nullptr) {
        ReadTitles(strTitles);  // the parent may be asked for them
    }
    if (!watch) {
        return CString();
    }
    const CString strStored = Stored(nRow);
    const std::string_view row = qv::SplitBoxRow(qv::View(strStored), Place()).text;
    const bool bTitles = !strTitles.IsEmpty();
    qv::SpokenFields fields{0, FieldsShown(row)};
    if (bName && bTitles) {
        fields.nEnd = 1;
    } else if (!bName) {
        fields.nFirst = bTitles ? 1 : fields.nEnd;
    }
    const std::string strSpoken =
        qv::SpokenText(row, m_aStyles, fields, bName ? std::string_view() : qv::View(strTitles));
    return CString(strSpoken.data(), static_cast<int>(strSpoken.size()));
}

CString QVBitmapListBox::GetAccessibleName(long nPart) {
    const int nRow = PartRow(nPart);
    return nRow != -1 ? SpokenRow(nRow, true) : QVAccessible::GetAccessibleName(nPart);
}

CString QVBitmapListBox::GetAccessibleDescription(long nPart) {
    const int nRow = PartRow(nPart);
    return nRow != -1 ? SpokenRow(nRow, false) : CString();
}

CString QVBitmapListBox::GetAccessibleAction(long nPart) {
    return PartRow(nPart) != -1 && (GetStyle() & LBS_NOTIFY) != 0 ? "Double Click" : "";
}

long QVBitmapListBox::GetAccessibleRole(long nPart) {
    return nPart == CHILDID_SELF ? ROLE_SYSTEM_LIST : ROLE_SYSTEM_LISTITEM;
}

// --- States and places

long QVBitmapListBox::GetAccessibleState(long nPart) {
    const int nRow = PartRow(nPart);
    if (nRow == -1) {
        return QVAccessible::GetAccessibleState(nPart);
    }
    CRect rect;
    const DWORD dwStyle = GetStyle();
    long nState = AccessiblePartState(GetSel(nRow) > 0, GetCaretIndex() == nRow,
                                      GetAccessibleRect(nPart, rect) != FALSE);
    if ((dwStyle & LBS_NOSEL) != 0) {
        nState &= ~STATE_SYSTEM_SELECTABLE;
    } else if (HasSeveralSelected()) {
        nState |= STATE_SYSTEM_MULTISELECTABLE;
        nState |= (dwStyle & LBS_EXTENDEDSEL) != 0 ? STATE_SYSTEM_EXTSELECTABLE : 0;
    }
    return nState;
}

BOOL QVBitmapListBox::GetAccessibleRect(long nPart, CRect& rect) {
    const int nRow = PartRow(nPart);
    return nRow != -1 ? qv::ListRowRect(m_hWnd, nRow, rect)
                      : QVAccessible::GetAccessibleRect(nPart, rect);
}

long QVBitmapListBox::AccessibleHitTest(CPoint pt) {
    return qv::ListRowAt(m_hWnd, pt) + 1;
}

// --- Focus and selection

long QVBitmapListBox::GetAccessibleFocus() {
    return PartRow(GetCaretIndex() + 1) + 1;
}

long QVBitmapListBox::GetNextAccessibleSelected(long nPart) {
    const int nFrom = nPart > 0 ? PartRow(nPart) + 1 : 0;
    if (!HasSeveralSelected()) {
        const int nRow = GetCurSel();
        return nRow >= nFrom ? nRow + 1 : 0;
    }
    const int nEnd = std::min(nFrom + kRowsToTry, GetCount());
    for (int nRow = nFrom; nRow < nEnd; ++nRow) {
        if (GetSel(nRow) > 0) {
            return nRow + 1;
        }
    }
    const int nSelected = nEnd < GetCount() ? GetSelCount() : 0;
    std::vector<int> rows(static_cast<size_t>(std::max(nSelected, 0)));
    rows.resize(static_cast<size_t>(std::max(GetSelItems(nSelected, rows.data()), 0)));
    const auto next = std::lower_bound(rows.begin(), rows.end(), nEnd);
    return next != rows.end() ? *next + 1 : 0;
}

BOOL QVBitmapListBox::SelectAccessible(long nPart, long nFlags) {
    const int nRow = PartRow(nPart);
    if (nRow == -1) {
        return nPart == CHILDID_SELF && QVAccessible::SelectAccessible(nPart, nFlags);
    }
    constexpr long kSeveral =
        SELFLAG_EXTENDSELECTION | SELFLAG_ADDSELECTION | SELFLAG_REMOVESELECTION;
    const bool bNone = (GetStyle() & LBS_NOSEL) != 0;
    if (!IsWindowEnabled() || ((nFlags & kSeveral) != 0 && (bNone || !HasSeveralSelected())) ||
        ((nFlags & SELFLAG_TAKESELECTION) != 0 && bNone)) {
        return FALSE;
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    if ((nFlags & SELFLAG_TAKEFOCUS) != 0) {
        SetFocus();
    }
    return watch && PartRow(nPart) == nRow && SelectAsUser(nRow, nFlags);
}

// The parent is told where the selection may be another one; false once the list is gone.
bool QVBitmapListBox::SelectAsUser(int nRow, long nFlags) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    if ((GetStyle() & LBS_NOSEL) != 0) {
        qv::GoToListRow(m_hWnd, nRow);
        return static_cast<bool>(watch);
    }
    if (!HasSeveralSelected()) {
        if (GetCurSel() != nRow) {
            SetCurSel(nRow);
            if (watch) {
                TellSelection();
            }
        }
        return static_cast<bool>(watch);
    }
    const bool bTakes = (nFlags & (SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION)) != 0;
    const int nCaret = bTakes ? nRow : GetCaretIndex();
    const int nAnchor = (nFlags & SELFLAG_TAKESELECTION) != 0 ? nRow : GetAnchorIndex();
    if ((nFlags & ~SELFLAG_TAKEFOCUS) != 0) {
        // The platform takes caret and anchor along.
        const qv::SetWhileAlive<bool> stays(m_alive, m_bCaretStays, !bTakes);
        SelectRows(nRow, nFlags);
        if (watch && GetAnchorIndex() != nAnchor) {
            SetAnchorIndex(nAnchor);
        }
        if (watch && GetCaretIndex() != nCaret) {
            SetCaretIndex(nCaret, FALSE);
        }
    } else {
        SetCaretIndex(nCaret, FALSE);
    }
    if (watch && (nFlags & ~SELFLAG_TAKEFOCUS) != 0) {
        TellSelection();
    }
    return static_cast<bool>(watch);
}

// This one alone, or what the flags say of it, or of it and all from the anchor on.
void QVBitmapListBox::SelectRows(int nRow, long nFlags) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const int nAnchor = std::max(GetAnchorIndex(), 0);
    const bool bRemoves = (nFlags & SELFLAG_REMOVESELECTION) != 0;
    if (!bRemoves && (nFlags & SELFLAG_ADDSELECTION) == 0) {
        SetSel(-1, FALSE);
    }
    // A range of one row is always selected by the platform.
    if (watch && ((nFlags & SELFLAG_EXTENDSELECTION) == 0 || nRow == nAnchor)) {
        SetSel(nRow, !bRemoves);
    } else if (watch) {
        SelItemRange(!bRemoves, std::min(nRow, nAnchor), std::max(nRow, nAnchor));
    }
}

BOOL QVBitmapListBox::DoAccessibleAction(long nPart) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    if (GetAccessibleAction(nPart).IsEmpty() || !IsWindowEnabled()) {
        return FALSE;
    }
    const long nFlags = (GetStyle() & LBS_NOSEL) != 0 ? SELFLAG_TAKEFOCUS
                                                      : SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION;
    return !SelectAccessible(nPart, nFlags) || !watch || PostAccessible(nPart);
}

void QVBitmapListBox::DoPostedAccessible(long) {
    if (IsWindowEnabled()) {
        qv::CommandParent(*this, m_alive, LBN_DBLCLK);
    }
}

// --- Events

// Before a message: whether the one row that it is about is selected.
bool QVBitmapListBox::SeeMessage(UINT nMessage, LPARAM lParam) {
    if (!MayMoveSelection(nMessage)) {
        return false;
    }
    if (m_told.nCaret == Told::kUnknown) {
        m_told = CaretNow();
    }
    return nMessage == LB_SETSEL && GetSel(static_cast<int>(lParam)) > 0;
}

void QVBitmapListBox::TellChange(UINT nMessage, LPARAM lParam, bool bWasSelected) {
    switch (nMessage) {
        case LB_ADDSTRING:
        case LB_INSERTSTRING:
        case LB_DELETESTRING:
        case LB_RESETCONTENT:
        case LB_ADDFILE:
        case LB_DIR:
            m_told = {};
            TellAccessibleReorder();
            return;
        case WM_SETFOCUS:
            if (const long nPart = GetAccessibleFocus()) {
                TellAccessible(EVENT_OBJECT_FOCUS, nPart);
            }
            return;
        default:
            if (MayMoveSelection(nMessage)) {
                TellSelected(nMessage, static_cast<int>(lParam), bWasSelected);
            }
    }
}

// What keys, the mouse and code have made of the row with the focus, or of the one that the message
// is about.
void QVBitmapListBox::TellSelected(UINT nMessage, int nAbout, bool bWasSelected) {
    const Told before = std::exchange(m_told, CaretNow());
    const Told now = m_told;
    const bool bMoved = now.nCaret != before.nCaret;
    const qv::AliveWatch watch(m_alive);
    if (bMoved && now.nCaret >= 0 && !m_bCaretStays && ::GetFocus() == m_hWnd) {
        TellAccessible(EVENT_OBJECT_FOCUS, now.nCaret + 1);
    }
    if (!watch) {
        return;  // by one who listens
    }
    if (nMessage == LB_SELITEMRANGE || nMessage == LB_SELITEMRANGEEX ||
        (nMessage == LB_SETSEL && nAbout == -1)) {
        TellAccessible(EVENT_OBJECT_SELECTIONWITHIN, CHILDID_SELF);
    } else if (nMessage == LB_SETSEL) {
        if (const bool bIs = GetSel(nAbout) > 0; bIs != bWasSelected) {
            TellAccessible(bIs ? EVENT_OBJECT_SELECTIONADD : EVENT_OBJECT_SELECTIONREMOVE,
                           nAbout + 1);
        }
    } else if (nMessage == LB_SETCARETINDEX && HasSeveralSelected()) {
        return;  // it selects nothing
    } else if (bMoved || now.bSelected != before.bSelected) {
        TellCaretSelected(nMessage, before, bMoved);
    }
}

// Others may have changed with it: with Shift down, or where a plain click leaves this one alone
// selected.
void QVBitmapListBox::TellCaretSelected(UINT nMessage, const Told& before, bool bMoved) {
    const long nPart = m_told.nCaret + 1;
    if (!HasSeveralSelected()) {
        if (m_told.bSelected) {
            TellAccessible(EVENT_OBJECT_SELECTION, nPart);
        } else if (before.bSelected) {
            TellAccessible(EVENT_OBJECT_SELECTIONWITHIN, CHILDID_SELF);
        }
        return;
    }
    const bool bExtended = (GetStyle() & LBS_EXTENDEDSEL) != 0;
    if (bExtended && IsHeld(VK_SHIFT)) {
        TellAccessible(EVENT_OBJECT_SELECTIONWITHIN, CHILDID_SELF);
    } else if (m_told.bSelected) {
        const bool bAlone = bExtended && !IsHeld(VK_CONTROL);
        TellAccessible(bAlone ? EVENT_OBJECT_SELECTION : EVENT_OBJECT_SELECTIONADD, nPart);
    } else if (!bMoved || nMessage == WM_LBUTTONDOWN) {
        TellAccessible(EVENT_OBJECT_SELECTIONREMOVE, nPart);  // a click on it selects it else
    }
}
