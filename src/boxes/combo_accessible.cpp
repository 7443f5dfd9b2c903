#include "boxes/combo_accessible.h"

#include "boxes/combo_item.h"
#include "boxes/combo_keys.h"
#include "boxes/list_rows.h"

#include <algorithm>
#include <oleacc.h>
#include <utility>

namespace {

// Parts of the combo box, numbered as the platform's are.
enum ComboPart { kText = 1, kButton = 2, kList = 3 };

COMBOBOXINFO InfoOf(const CComboBox& combo) {
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    ::GetComboBoxInfo(combo.m_hWnd, &info);
    return info;
}

bool MayChange(UINT nMessage) {
    switch (nMessage) {
        case CB_SETCURSEL:
        case CB_SELECTSTRING:
        case CB_SHOWDROPDOWN:
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
        case WM_CHAR:
        case WM_LBUTTONDOWN:
        case WM_LBUTTONUP:
        case WM_MOUSEWHEEL:
        case WM_COMMAND:  // of its list and its edit
        case WM_KILLFOCUS:
        case WM_CANCELMODE:
            return true;
        default:
            return false;
    }
}

}  // namespace

// --- The list. It is followed without the framework's map of windows: programs may subclass it.

class QVComboAccessible::List : public QVAccessible {
public:
    List(QVComboAccessible& combo, HWND hList) : QVAccessible(m_wnd), m_combo(combo) {
        if (IsFollowed(hList) || Follow(hList)) {
            ::SetProp(hList, kOwner, this);
            m_wnd.m_hWnd = hList;
        }
    }
    // A list that is followed takes wide texts. Some versions of the platform give out a row to a
    // program of others by way of a buffer that is too short for a long one: meanwhile it is let
    // go.
    void PauseForReading() { Unfollow(m_wnd.m_hWnd); }
    void GoOn() {
        if (m_wnd.m_hWnd != nullptr && !IsFollowed(m_wnd.m_hWnd)) {
            Follow(m_wnd.m_hWnd);
        }
    }
    ~List() override { LetGo(); }

    void TellReorder() {
        if (m_wnd.m_hWnd != nullptr) {
            TellAccessibleReorder();
        }
    }
    void TellSelected(int nRow, bool bFocus) const {
        const HWND hList = m_wnd.m_hWnd;
        if (bFocus) {
            TellAccessible(EVENT_OBJECT_FOCUS, nRow + 1);
        }
        if (hList != nullptr) {
            ::NotifyWinEvent(EVENT_OBJECT_SELECTION, hList, OBJID_CLIENT, nRow + 1);
        }
    }

    CString GetAccessibleName(long nPart) override {
        return nPart == CHILDID_SELF ? m_combo.GetAccessibleName(CHILDID_SELF)
                                     : m_combo.GetAccessibleRow(static_cast<int>(nPart - 1));
    }
    CString GetAccessibleAction(long nPart) override {
        return nPart != CHILDID_SELF ? "Double Click" : "";
    }
    long GetAccessibleRole(long nPart) override {
        return nPart == CHILDID_SELF ? ROLE_SYSTEM_LIST : ROLE_SYSTEM_LISTITEM;
    }
    long GetAccessibleState(long nPart) override {
        if (nPart == CHILDID_SELF) {
            return QVAccessible::GetAccessibleState(nPart);
        }
        CRect rect;
        const bool bSelected = nPart - 1 == Combo().GetCurSel();
        long nState =
            AccessiblePartState(bSelected, false, GetAccessibleRect(nPart, rect) != FALSE);
        if (bSelected && m_combo.HasFocus() && Combo().GetDroppedState()) {
            nState |= STATE_SYSTEM_FOCUSED;
        }
        return nState;
    }
    BOOL GetAccessibleRect(long nPart, CRect& rect) override {
        return nPart != CHILDID_SELF
                   ? qv::ListRowRect(m_wnd.m_hWnd, static_cast<int>(nPart - 1), rect)
                   : QVAccessible::GetAccessibleRect(nPart, rect);
    }
    long GetAccessibleCount() override { return std::max(Combo().GetCount(), 0); }
    long AccessibleHitTest(CPoint pt) override { return qv::ListRowAt(m_wnd.m_hWnd, pt) + 1; }
    long GetNextAccessibleSelected(long nPart) override {
        return nPart == CHILDID_SELF ? Combo().GetCurSel() + 1 : 0;
    }
    // As an arrow key does.
    BOOL SelectAccessible(long nPart, long nFlags) override {
        constexpr long kOne = SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION;
        if (nPart == CHILDID_SELF || (nFlags & ~kOne) != 0 || !Combo().IsWindowEnabled()) {
            return FALSE;
        }
        const qv::WindowWatch watch(m_combo.m_comboAlive, Combo().m_hWnd);
        const int nRow = static_cast<int>(nPart - 1);
        CComboBox& combo = Combo();
        if ((nFlags & SELFLAG_TAKEFOCUS) != 0) {
            combo.SetFocus();
        }
        if (watch && nRow != combo.GetCurSel()) {
            qv::ChooseRow(combo, m_combo.m_comboAlive, nRow);
        }
        return watch && combo.GetCurSel() == nRow;
    }
    BOOL DoAccessibleAction(long nPart) override {
        CComboBox& combo = Combo();
        const qv::WindowWatch watch(m_combo.m_comboAlive, combo.m_hWnd);
        if (nPart == CHILDID_SELF || !combo.IsWindowEnabled()) {
            return FALSE;
        }
        if (SelectAccessible(nPart, SELFLAG_TAKESELECTION) && watch && combo.GetDroppedState()) {
            combo.ShowDropDown(FALSE);
        }
        return TRUE;
    }

private:
    CComboBox& Combo() const { return m_combo.m_combo; }
    // Who follows the list, and the procedure that it has by itself. A list that somebody else has
    // subclassed since keeps ours, without an owner.
    static constexpr const char* kOwner = "QVComboAccessible owner";
    static constexpr const char* kProc = "QVComboAccessible procedure";

    static WNDPROC OwnProc(HWND hList) {
        return reinterpret_cast<WNDPROC>(::GetProp(hList, kProc));
    }
    static bool IsFollowed(HWND hList) { return OwnProc(hList) != nullptr; }
    static bool Follow(HWND hList) {
        const LONG_PTR nProc = ::GetWindowLongPtrW(hList, GWLP_WNDPROC);
        if (!::SetProp(hList, kProc, reinterpret_cast<HANDLE>(nProc))) {
            return false;
        }
        ::SetWindowLongPtrW(hList, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ListProc));
        return true;
    }
    // Not where somebody else has subclassed it since.
    static void Unfollow(HWND hList) {
        if (::GetWindowLongPtrW(hList, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(ListProc)) {
            ::SetWindowLongPtrW(hList, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(OwnProc(hList)));
            ::RemoveProp(hList, kProc);
        }
    }
    void LetGo() {
        const HWND hList = std::exchange(m_wnd.m_hWnd, nullptr);
        if (hList != nullptr && ::GetProp(hList, kOwner) == this) {
            ::RemoveProp(hList, kOwner);
            Unfollow(hList);
        }
    }
    static LRESULT CALLBACK ListProc(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam) {
        const WNDPROC proc = OwnProc(hWnd);
        auto* pList = static_cast<List*>(::GetProp(hWnd, kOwner));
        if (pList != nullptr && nMessage == WM_GETOBJECT && AsksAccessible(lParam)) {
            return pList->AnswerAccessible(wParam, lParam);
        }
        if (nMessage == WM_NCDESTROY) {
            if (pList != nullptr) {
                pList->LetGo();
            }
            ::RemoveProp(hWnd, kProc);
        }
        return ::CallWindowProcW(proc, hWnd, nMessage, wParam, lParam);
    }

    QVComboAccessible& m_combo;
    CWnd m_wnd;  // of the handle alone
};

QVComboAccessible::QVComboAccessible(CComboBox& combo, const qv::AliveToken& alive)
    : QVAccessible(static_cast<CWnd&>(combo)), m_combo(combo), m_comboAlive(alive) {
    NameByLabelAlone();
}

QVComboAccessible::~QVComboAccessible() = default;

// --- The combo box

DWORD QVComboAccessible::Kind() const {
    return m_combo.GetStyle() & (CBS_SIMPLE | CBS_DROPDOWN | CBS_DROPDOWNLIST);
}

bool QVComboAccessible::HasFocus() const {
    const HWND hFocus = ::GetFocus();
    return hFocus != nullptr && (hFocus == m_combo.m_hWnd || ::IsChild(m_combo.m_hWnd, hFocus));
}

CString QVComboAccessible::GetAccessibleName(long nPart) {
    return nPart == kButton ? GetAccessibleAction(nPart)
                            : QVAccessible::GetAccessibleName(CHILDID_SELF);
}

// What the edit shows of a row is the string that is kept.
CString QVComboAccessible::GetAccessibleValue(long nPart) {
    if (nPart == kButton) {
        return CString();
    }
    const int nRow = m_combo.GetCurSel();
    CString strText;
    if (Kind() != CBS_DROPDOWNLIST) {
        m_combo.GetWindowText(strText);
        if (nRow == CB_ERR || strText != qv::StoredRow(m_combo, nRow)) {
            return strText;
        }
    }
    return nRow != CB_ERR ? GetAccessibleRow(nRow) : strText;
}

CString QVComboAccessible::GetAccessibleAction(long nPart) {
    if (nPart == kText || Kind() == CBS_SIMPLE) {
        return CString();
    }
    return m_combo.GetDroppedState() ? "Close" : "Open";
}

long QVComboAccessible::GetAccessibleRole(long nPart) {
    return nPart == kText     ? ROLE_SYSTEM_STATICTEXT
           : nPart == kButton ? ROLE_SYSTEM_PUSHBUTTON
           : nPart == kList   ? ROLE_SYSTEM_LIST
                              : ROLE_SYSTEM_COMBOBOX;
}

long QVComboAccessible::GetAccessibleState(long nPart) {
    if (nPart != CHILDID_SELF) {
        const bool bNone = nPart == kButton && Kind() == CBS_SIMPLE;
        return AccessibleWindowState() | (bNone ? STATE_SYSTEM_INVISIBLE : 0);
    }
    long nState = QVAccessible::GetAccessibleState(nPart);
    if (Kind() != CBS_SIMPLE) {
        nState |= STATE_SYSTEM_HASPOPUP |
                  (m_combo.GetDroppedState() ? STATE_SYSTEM_EXPANDED : STATE_SYSTEM_COLLAPSED);
    }
    return nState;
}

BOOL QVComboAccessible::GetAccessibleRect(long nPart, CRect& rect) {
    const COMBOBOXINFO info = InfoOf(m_combo);
    if (nPart == kText || nPart == kButton) {
        rect = nPart == kText ? info.rcItem : info.rcButton;
        return !rect.IsRectEmpty();
    }
    return nPart == CHILDID_SELF && QVAccessible::GetAccessibleRect(nPart, rect);
}

long QVComboAccessible::GetAccessibleCount() {
    return kList;
}

HWND QVComboAccessible::GetAccessibleWindow(long nPart) {
    FollowList();
    const COMBOBOXINFO info = InfoOf(m_combo);
    const bool bEdit = info.hwndItem != m_combo.m_hWnd && info.hwndItem != info.hwndList;
    return nPart == kList ? info.hwndList : nPart == kText && bEdit ? info.hwndItem : nullptr;
}

long QVComboAccessible::AccessibleHitTest(CPoint pt) {
    CRect rect;
    for (const long nPart : {kButton, kText}) {
        if (GetAccessibleRect(nPart, rect) && rect.PtInRect(pt)) {
            return nPart;
        }
    }
    return CHILDID_SELF;
}

BOOL QVComboAccessible::DoAccessibleAction(long nPart) {
    if (GetAccessibleAction(nPart).IsEmpty() || !m_combo.IsWindowEnabled()) {
        return FALSE;
    }
    const qv::WindowWatch watch(m_comboAlive, m_combo.m_hWnd);
    const BOOL bOpens = !m_combo.GetDroppedState();
    if (!HasFocus()) {
        m_combo.SetFocus();
    }
    if (watch) {
        m_combo.ShowDropDown(bOpens);
    }
    return TRUE;
}

// The edit tells the combo box of it, and that its parent.
BOOL QVComboAccessible::SetAccessibleValue(long nPart, const CString& strValue) {
    const HWND hEdit = GetAccessibleWindow(kText);
    if (nPart != CHILDID_SELF || hEdit == nullptr || !m_combo.IsWindowEnabled()) {
        return FALSE;
    }
    ::SendMessage(hEdit, EM_SETSEL, 0, -1);
    ::SendMessage(hEdit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(LPCSTR(strValue)));
    return TRUE;
}

// --- Events

QVComboAccessible::Told QVComboAccessible::Now() const {
    return {m_combo.GetCurSel(), m_combo.GetDroppedState() != FALSE};
}

// Once somebody asks. Without memory the list says what the platform has it say.
void QVComboAccessible::FollowList() {
    if (!m_bAsked || m_hFollowed == m_combo.m_hWnd) {
        return;
    }
    if (const HWND hList = InfoOf(m_combo).hwndList) {
        m_pList.reset();
        if (qv::MemorySuffices([&] { m_pList = std::make_unique<List>(*this, hList); })) {
            m_hFollowed = m_combo.m_hWnd;
        }
    }
}

void QVComboAccessible::BeginReading() {
    if (m_pList != nullptr) {
        m_pList->PauseForReading();
    }
}

void QVComboAccessible::EndReading() {
    if (m_pList != nullptr) {
        m_pList->GoOn();
    }
}

void QVComboAccessible::SeeMessage(UINT nMessage) {
    if (m_told.nRow == Told::kUnknown && MayChange(nMessage)) {
        m_told = Now();
    }
}

void QVComboAccessible::TellChange(UINT nMessage, WPARAM wParam) {
    switch (nMessage) {
        case CB_ADDSTRING:
        case CB_INSERTSTRING:
        case CB_DELETESTRING:
        case CB_RESETCONTENT:
        case CB_DIR:
            m_told = {};
            FollowList();
            if (m_pList != nullptr) {
                m_pList->TellReorder();
            }
            break;
        case WM_COMMAND:
            if (HIWORD(wParam) == EN_CHANGE) {
                TellAccessible(EVENT_OBJECT_VALUECHANGE, CHILDID_SELF);
                break;
            }
            TellRow();
            break;
        default:
            if (MayChange(nMessage)) {
                TellRow();
            }
    }
}

void QVComboAccessible::TellRow() {
    FollowList();
    const Told before = std::exchange(m_told, Now());
    const Told now = m_told;
    const qv::WindowWatch watch(m_comboAlive, m_combo.m_hWnd);
    if (now.bOpen != before.bOpen) {
        TellAccessible(EVENT_OBJECT_STATECHANGE, CHILDID_SELF);
    }
    if (watch && now.nRow != before.nRow) {
        TellAccessible(EVENT_OBJECT_VALUECHANGE, CHILDID_SELF);
    }
    const bool bNew = now.nRow != before.nRow || !before.bOpen;
    if (watch && m_pList != nullptr && now.bOpen && bNew && now.nRow >= 0) {
        m_pList->TellSelected(now.nRow, HasFocus());
    }
}
