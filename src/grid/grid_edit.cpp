#include "grid/grid_edit.h"

#include "frame/rectangles.h"
#include "grid/core/grid_keys.h"

#include <oleacc.h>
#include <utility>

BEGIN_MESSAGE_MAP(QVGridEdit, CEdit)
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_MESSAGE(WM_GETOBJECT, &QVGridEdit::OnGetObject)
END_MESSAGE_MAP()

// --- What core asks of it

bool QVGridEdit::Up() const {
    return !m_bClosing && m_hWnd != nullptr && (GetStyle() & WS_VISIBLE) != 0;
}

void QVGridEdit::MakeHidden() {
    if (m_hWnd != nullptr) {
        ShowWindow(SW_HIDE);
        return;
    }
    qv::AsBadAlloc([this] {
        if (!Create(WS_CHILD | ES_WANTRETURN | ES_AUTOHSCROLL, CRect(0, 0, 0, 0), &m_grid,
                    kGridEditId)) {
            AfxThrowMemoryException();
        }
    });
    SendMessage(WM_SETFONT, static_cast<WPARAM>(m_grid.SendMessage(WM_GETFONT)), FALSE);
}

std::string QVGridEdit::Text() const {
    return qv::AsBadAlloc([this] {
        CString str;
        GetWindowText(str);
        return std::string(str, static_cast<size_t>(str.GetLength()));
    });
}

void QVGridEdit::SetText(const char* psz) {
    SetWindowText(psz);
}

void QVGridEdit::SelectAll() {
    SendMessage(EM_SETSEL, 0, -1);
    SendMessage(EM_SCROLLCARET);
}

void QVGridEdit::PutCaretAtEnd() {
    const int nLength = GetWindowTextLength();
    SendMessage(EM_SETSEL, static_cast<WPARAM>(nLength), nLength);
    SendMessage(EM_SCROLLCARET);
}

void QVGridEdit::Place(const qv::Rect& rc) {
    const CRect rcEdit = qv::ToCRect(rc);
    MoveWindow(&rcEdit, TRUE);
}

void QVGridEdit::Show() {
    ShowWindow(SW_SHOW);
}

void QVGridEdit::Hide() {
    ShowWindow(SW_HIDE);
}

void QVGridEdit::Close() {
    m_bClosing = true;  // it loses the focus
    DestroyWindow();
    m_bClosing = false;
}

// --- Messages

// A dialog that comes to the front again gives the focus back to the window that had it, hidden
// meanwhile or not.
void QVGridEdit::OnSetFocus(CWnd*) {
    if (Up()) {
        Default();
    } else {
        ::SetFocus(m_grid.m_hWnd);  // opens it again
    }
}

void QVGridEdit::OnKillFocus(CWnd*) {
    const MSG msg = *GetCurrentMessage();
    const qv::WindowWatch watch(m_alive, m_hWnd);
    m_editing.SaveEdit();
    if (watch) {
        DefWindowProc(msg.message, msg.wParam, msg.lParam);
    }
}

void QVGridEdit::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const bool bTaken = m_host.TakesEditKey(nChar);
    if (!watch) {
        return;
    }
    m_bKeyTaken = bTaken;
    if (bTaken) {
        return;
    }
    int nStart;
    int nEnd;
    GetSel(nStart, nEnd);
    // In the units of the selection, which the bytes of the text are not everywhere.
    if (qv::LeavesEdit(nChar, nStart, nEnd, LineLength(0))) {
        m_grid.SendMessage(WM_KEYDOWN, nChar, MAKELPARAM(nRepCnt, nFlags));
    } else {
        Default();
    }
}

void QVGridEdit::OnChar(UINT nChar, UINT, UINT) {
    const bool bOfKey = std::exchange(m_bKeyTaken, false) && nChar < ' ';
    if (!bOfKey) {
        Default();
    }
}

// --- What a screen reader hears

LRESULT QVGridEdit::OnGetObject(WPARAM wParam, LPARAM lParam) {
    return AsksAccessible(lParam) ? AnswerAccessible(wParam, lParam) : Default();
}

CString QVGridEdit::GetAccessibleName(long) {
    return m_host.EditName();
}

CString QVGridEdit::GetAccessibleValue(long) {
    CString str;
    GetWindowText(str);
    return str;
}

long QVGridEdit::GetAccessibleRole(long) {
    return ROLE_SYSTEM_TEXT;
}

// Kept, like what is typed, as the edit is left.
BOOL QVGridEdit::SetAccessibleValue(long, const CString& strValue) {
    if (!IsWindowEnabled() || !Up()) {
        return FALSE;
    }
    SetWindowText(strValue);
    return TRUE;
}
