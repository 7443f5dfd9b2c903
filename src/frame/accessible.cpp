#include "frame/accessible.h"

#include "common/process_text.h"
#include "frame/accessible_object.h"

#include <oleacc.h>
#include <utility>

namespace {

// A question that the control posts to itself: tell now that parts came or went. No identifier of
// the platform's, whose own are negative or 0.
constexpr LONG kTellReorder = 0x51563137;
// Likewise: do what was put off. It does nothing else, as anybody may post it.
constexpr LONG kDoPosted = 0x51563138;

// The text of a window, however long.
CString TextOf(HWND hWnd) {
    CString strText;
    const int nLength = ::GetWindowTextLength(hWnd);
    if (nLength > 0) {
        ::GetWindowText(hWnd, strText.GetBuffer(nLength), nLength + 1);
        strText.ReleaseBuffer();
    }
    return strText;
}

// The window that labels another: the static text just before it among its siblings.
HWND LabelOf(HWND hWnd) {
    const HWND hBefore = ::GetWindow(hWnd, GW_HWNDPREV);
    char szClass[8]{};
    if ((::GetWindowLong(hWnd, GWL_STYLE) & WS_CHILD) == 0 || hBefore == nullptr ||
        ::GetClassName(hBefore, szClass, sizeof(szClass)) == 0 ||
        ::lstrcmpi(szClass, "static") != 0) {
        return nullptr;
    }
    return hBefore;
}

// Takes the marks of a label away; gives the character that has one, else nothing.
CString StripMarks(CString& strText) {
    CString strPlain;
    CString strMarked;
    const char* psz = strText;
    const qv::MultiByte& text = qv::ProcessText();
    while (*psz != 0) {
        const bool bMark = *psz == '&' && psz[1] != 0;
        psz += bMark ? 1 : 0;
        const int nBytes = static_cast<int>(text.CharBytes(psz));
        if (bMark && *psz != '&') {
            strMarked = CString(psz, nBytes);
        }
        strPlain += CString(psz, nBytes);
        psz += nBytes;
    }
    strText = strPlain;
    return strMarked;
}

}  // namespace

QVAccessible::~QVAccessible() {
    if (m_pObject != nullptr) {
        m_pObject->Disconnect();
        m_pObject->Release();
    }
}

// --- What is said of a part

CString QVAccessible::LabelText() const {
    CString strText;
    if (!m_bNameByLabelAlone) {
        strText = TextOf(m_wnd.m_hWnd);
    }
    if (strText.IsEmpty()) {
        const HWND hWnd = m_wnd.m_hWnd;
        const bool bKept = m_hLabel != nullptr && ::GetParent(m_hLabel) == ::GetParent(hWnd);
        if (const HWND hLabel = bKept ? m_hLabel : LabelOf(hWnd)) {
            strText = TextOf(hLabel);
        }
    }
    return strText;
}

void QVAccessible::KeepAccessibleLabel() {
    m_hLabel = LabelOf(m_wnd.m_hWnd);
}

CString QVAccessible::GetAccessibleName(long nPart) {
    return nPart == CHILDID_SELF ? WithoutMarks(LabelText()) : CString();
}

CString QVAccessible::WithoutMarks(const CString& strText) {
    CString strPlain(strText);
    StripMarks(strPlain);
    return strPlain;
}

CString QVAccessible::GetAccessibleValue(long) {
    return CString();
}

CString QVAccessible::GetAccessibleDescription(long) {
    return CString();
}

CString QVAccessible::GetAccessibleShortcut(long nPart) {
    CString strKey;
    if (nPart == CHILDID_SELF) {
        CString strText = LabelText();
        strKey = StripMarks(strText);
        if (!strKey.IsEmpty()) {
            strKey = "Alt+" + strKey;
        }
    }
    return strKey;
}

CString QVAccessible::GetAccessibleAction(long) {
    return CString();
}

long QVAccessible::GetAccessibleRole(long nPart) {
    return nPart == CHILDID_SELF ? ROLE_SYSTEM_CLIENT : ROLE_SYSTEM_LISTITEM;
}

long QVAccessible::AccessibleWindowState() const {
    long nState = 0;
    if (!::IsWindowEnabled(m_wnd.m_hWnd)) {
        nState |= STATE_SYSTEM_UNAVAILABLE;
    }
    if (!::IsWindowVisible(m_wnd.m_hWnd)) {
        nState |= STATE_SYSTEM_INVISIBLE;
    }
    return nState;
}

long QVAccessible::GetAccessibleState(long nPart) {
    long nState = AccessibleWindowState();
    if ((nState & STATE_SYSTEM_UNAVAILABLE) == 0 && nPart == CHILDID_SELF) {
        nState |= STATE_SYSTEM_FOCUSABLE;
        if (::GetFocus() == m_wnd.m_hWnd) {
            nState |= STATE_SYSTEM_FOCUSED;
        }
    }
    return nState;
}

long QVAccessible::AccessiblePartState(bool bSelected, bool bFocused, bool bOnScreen) const {
    long nState = AccessibleWindowState();
    if ((nState & STATE_SYSTEM_UNAVAILABLE) == 0) {
        nState |= STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_FOCUSABLE;
    }
    if (bSelected) {
        nState |= STATE_SYSTEM_SELECTED;
    }
    if (bFocused && ::GetFocus() == m_wnd.m_hWnd) {
        nState |= STATE_SYSTEM_FOCUSED;
    }
    if (!bOnScreen) {
        nState |= STATE_SYSTEM_OFFSCREEN | STATE_SYSTEM_INVISIBLE;
    }
    return nState;
}

BOOL QVAccessible::GetAccessibleRect(long nPart, CRect& rect) {
    if (nPart != CHILDID_SELF) {
        return FALSE;
    }
    return ::GetClientRect(m_wnd.m_hWnd, &rect);
}

// --- Which parts there are

BOOL QVAccessible::IsAccessiblePart(long nPart) {
    return GetAccessibleIndex(nPart) >= 0;
}

long QVAccessible::GetAccessibleCount() {
    return 0;
}

long QVAccessible::GetAccessiblePart(long nIndex) {
    return nIndex >= 0 && nIndex < GetAccessibleCount() ? nIndex + 1 : 0;
}

long QVAccessible::GetAccessibleIndex(long nPart) {
    return nPart > 0 && nPart <= GetAccessibleCount() ? nPart - 1 : -1;
}

HWND QVAccessible::GetAccessibleWindow(long) {
    return nullptr;
}

long QVAccessible::AccessibleHitTest(CPoint) {
    return 0;
}

long QVAccessible::NavigateAccessible(long nPart, long nDirection) {
    if (nDirection == NAVDIR_FIRSTCHILD || nDirection == NAVDIR_LASTCHILD) {
        const long nCount = nPart == CHILDID_SELF ? GetAccessibleCount() : 0;
        return nCount > 0 ? GetAccessiblePart(nDirection == NAVDIR_FIRSTCHILD ? 0 : nCount - 1) : 0;
    }
    const long nIndex = nPart != CHILDID_SELF ? GetAccessibleIndex(nPart) : -1;
    if (nIndex < 0) {
        return 0;
    }
    switch (nDirection) {
        case NAVDIR_UP:
        case NAVDIR_PREVIOUS:
            return nIndex > 0 ? GetAccessiblePart(nIndex - 1) : 0;
        case NAVDIR_DOWN:
        case NAVDIR_NEXT:
            return nIndex + 1 < GetAccessibleCount() ? GetAccessiblePart(nIndex + 1) : 0;
        default:
            return 0;
    }
}

// --- Focus and selection

long QVAccessible::GetAccessibleFocus() {
    return GetNextAccessibleSelected(0);
}

long QVAccessible::GetNextAccessibleSelected(long) {
    return 0;
}

BOOL QVAccessible::SelectAccessible(long nPart, long nFlags) {
    if (nPart != CHILDID_SELF || nFlags != SELFLAG_TAKEFOCUS) {
        return FALSE;
    }
    ::SetFocus(m_wnd.m_hWnd);
    return TRUE;
}

BOOL QVAccessible::DoAccessibleAction(long) {
    return FALSE;
}

BOOL QVAccessible::SetAccessibleValue(long, const CString&) {
    return FALSE;
}

BOOL QVAccessible::PostAccessible(long nPart) {
    if (!::PostMessage(m_wnd.m_hWnd, WM_GETOBJECT, 0, kDoPosted)) {
        return FALSE;
    }
    m_nPosted = nPart;
    return TRUE;
}

void QVAccessible::DoPostedAccessible(long) {}

// --- The question and the events

bool QVAccessible::AsksAccessible(LPARAM lParam) {
    const LONG nObject = static_cast<LONG>(lParam);
    return nObject == static_cast<LONG>(OBJID_CLIENT) || nObject == kTellReorder ||
           nObject == kDoPosted;
}

LRESULT QVAccessible::AnswerAccessible(WPARAM wParam, LPARAM lParam) {
    if (static_cast<LONG>(lParam) == kTellReorder) {
        if (m_hReorderDue == m_wnd.m_hWnd) {
            m_hReorderDue = nullptr;
            TellAccessible(EVENT_OBJECT_REORDER, CHILDID_SELF);
        }
        return 0;
    }
    if (static_cast<LONG>(lParam) == kDoPosted) {
        const long nPart = std::exchange(m_nPosted, 0);
        if (nPart != 0 && IsAccessiblePart(nPart)) {
            DoPostedAccessible(nPart);
        }
        return 0;
    }
    if (m_pObject != nullptr && m_pObject->Window() != m_wnd.m_hWnd) {
        // Of a window that the control had before.
        m_pObject->Disconnect();
        m_pObject->Release();
        m_pObject = nullptr;
    }
    if (m_pObject == nullptr) {
        m_pObject = qv::AccessibleObject::Make(*this, m_wnd);
    }
    return m_pObject != nullptr ? m_pObject->Answer(wParam) : 0;
}

void QVAccessible::TellAccessible(DWORD nEvent, long nPart) const {
    // Who is about to hear that parts came reads their texts then.
    const bool bText = nEvent == EVENT_OBJECT_NAMECHANGE || nEvent == EVENT_OBJECT_VALUECHANGE ||
                       nEvent == EVENT_OBJECT_DESCRIPTIONCHANGE;
    if (m_wnd.m_hWnd != nullptr && !(bText && m_hReorderDue == m_wnd.m_hWnd)) {
        ::NotifyWinEvent(nEvent, m_wnd.m_hWnd, OBJID_CLIENT, nPart);
    }
}

void QVAccessible::TellAccessibleSelected(long nPart) const {
    const HWND hWnd = m_wnd.m_hWnd;
    if (hWnd == nullptr) {
        return;
    }
    // By the handle alone: who listens inside the process may take the control away.
    if (::GetFocus() == hWnd) {
        ::NotifyWinEvent(EVENT_OBJECT_FOCUS, hWnd, OBJID_CLIENT, nPart);
    }
    if (nPart != CHILDID_SELF) {
        ::NotifyWinEvent(EVENT_OBJECT_SELECTION, hWnd, OBJID_CLIENT, nPart);
    }
}

void QVAccessible::TellAccessibleReorder() {
    const HWND hWnd = m_wnd.m_hWnd;
    if (m_hReorderDue != hWnd && ::IsWinEventHookInstalled(EVENT_OBJECT_REORDER) &&
        ::PostMessage(hWnd, WM_GETOBJECT, 0, kTellReorder)) {
        m_hReorderDue = hWnd;
    }
}
