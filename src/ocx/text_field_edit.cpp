// The edit inside a text field.
//
// The edit is never taken away while it handles a message: what it tells meanwhile is kept until it
// is done, and only then the container hears of it, which may do anything.

#include "ocx/text_field.h"

#include <windowsx.h>

#include <algorithm>
#include <commctrl.h>

namespace ocx {

using Id = TextFieldId;

void TextField::MakeEdit() {
    static constexpr DWORD kAlignments[] = {ES_LEFT, ES_RIGHT, ES_CENTER};
    DWORD dwStyle = WS_CHILD | kAlignments[Number(Id::AlignTextH)];
    if (Flag(Id::MultiLine)) {
        dwStyle |= ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN;
        dwStyle |= Flag(Id::ScrollV) ? WS_VSCROLL : 0;
    } else {
        dwStyle |= ES_AUTOHSCROLL;
    }
    dwStyle |= Flag(Id::HideSelection) ? 0 : ES_NOHIDESEL;
    const HWND hEdit = ::CreateWindowExW(0, WC_EDITW, m_strText.c_str(), dwStyle, 0, 0, 0, 0,
                                         Window(), nullptr, ModuleHandle(), nullptr);
    if (hEdit == nullptr) {
        return;
    }
    if (!::SetWindowSubclass(hEdit, EditProc, 0, reinterpret_cast<DWORD_PTR>(this))) {
        ::DestroyWindow(hEdit);
        return;
    }
    m_hEdit = hEdit;
    ::SendMessageW(hEdit, WM_SETFONT, reinterpret_cast<WPARAM>(Font().Handle()), FALSE);
    SetUpEdit();
    PlaceEdit();
    ::SendMessageW(hEdit, EM_SETSEL, m_selected.nStart, static_cast<LPARAM>(m_selected.End()));
}

void TextField::RemakeEdit() {
    m_bWantsRemake = m_hEdit != nullptr && m_nForwarded > 0;
    if (m_hEdit == nullptr || m_bWantsRemake) {
        return;
    }
    const HWND hOld = m_hEdit;
    const bool bFocus = ::GetFocus() == hOld;
    const auto nLine = ::SendMessageW(hOld, EM_GETFIRSTVISIBLELINE, 0, 0);
    Remember();
    MakeEdit();
    if (m_hEdit == hOld) {
        return;  // there is no memory for another: this one stays, as it is
    }
    ::SendMessageW(m_hEdit, EM_LINESCROLL, 0, nLine);
    if (bFocus) {
        m_bMovingFocus = true;
        ::SetFocus(m_hEdit);
        m_bMovingFocus = false;
    }
    ::DestroyWindow(hOld);
}

void TextField::Remember() {
    m_strText = FieldText();
    m_selected = Selection();
}

void TextField::SetUpEdit() {
    if (m_hEdit == nullptr) {
        return;
    }
    const std::wstring_view password = Text(Id::PasswordChar);
    if (!Flag(Id::MultiLine)) {
        ::SendMessageW(m_hEdit, EM_SETPASSWORDCHAR, password.empty() ? 0 : password.front(), 0);
    }
    ::SendMessageW(m_hEdit, EM_SETREADONLY, IsReadOnly(), 0);
    ::SendMessageW(m_hEdit, EM_SETLIMITTEXT, 0, 0);  // characters are counted here
    ::SendMessageW(m_hEdit, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
    ::EnableWindow(m_hEdit, ::IsWindowEnabled(Window()));
}

void TextField::PlaceEdit() {
    if (m_hEdit == nullptr) {
        return;
    }
    const RECT rc = LinesArea(ClientRect());
    const bool bShown = !IsStatic() && Flag(Id::Redraw);
    ::SetWindowPos(m_hEdit, nullptr, rc.left, rc.top, rc.right - rc.left, rc.bottom - rc.top,
                   SWP_NOZORDER | SWP_NOACTIVATE | (bShown ? SWP_SHOWWINDOW : 0));
    if (IsStatic()) {
        ::ShowWindow(m_hEdit, SW_HIDE);
    }
}

bool TextField::OnMessage(UINT nMessage, WPARAM wParam, LPARAM lParam, LRESULT& lResult) {
    switch (nMessage) {
        case WM_CREATE:
            MakeEdit();
            lResult = m_hEdit != nullptr ? 0 : -1;
            return true;
        case WM_SIZE:
            PlaceEdit();
            return true;
        case WM_ENABLE:
            SetUpEdit();
            return true;
        case WM_SETFOCUS:
            TakeFocus();
            return true;
        case WM_LBUTTONDOWN:
            return ClickBesideEdit(wParam, lParam);
        case WM_GETOBJECT:
            return m_spoken.Answer(wParam, lParam, lResult);
        case WM_CLOSE:  // a multi-line edit sends it for ESC
            return true;
        case WM_SETTEXT:
            SetFieldText(lParam != 0 ? reinterpret_cast<const wchar_t*>(lParam) : L"");
            lResult = TRUE;
            return true;
        case WM_GETTEXTLENGTH:
            lResult = static_cast<LRESULT>(FieldText().size());
            return true;
        case WM_GETTEXT: {
            const std::wstring str = FieldText();
            if (wParam > 0 && lParam != 0) {
                lResult = static_cast<LRESULT>(std::min<WPARAM>(wParam - 1, str.size()));
                auto* psz = reinterpret_cast<wchar_t*>(lParam);
                *std::copy_n(str.begin(), lResult, psz) = L'\0';
            }
            return true;
        }
        case WM_COMMAND:
            m_bEditChanged = m_bEditChanged || (HIWORD(wParam) == EN_CHANGE &&
                                                reinterpret_cast<HWND>(lParam) == m_hEdit);
            return true;
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORSTATIC: {
            const auto hDC = reinterpret_cast<HDC>(wParam);
            ::SetTextColor(hDC, TextColor());
            ::SetBkColor(hDC, BackColor());
            if (!m_brush || std::exchange(m_crBrush, BackColor()) != BackColor()) {
                m_brush = Owned<HBRUSH>(::CreateSolidBrush(BackColor()));
            }
            lResult = reinterpret_cast<LRESULT>(m_brush.Get());
            return m_brush.Get() != nullptr;
        }
        default:
            return false;
    }
}

bool TextField::HasFocus() const {
    return Control::HasFocus() || (m_hEdit != nullptr && ::GetFocus() == m_hEdit);
}

void TextField::TakeFocus() {
    enum { kWhereItWas, kStart, kEnd };
    if (m_hEdit == nullptr || IsStatic()) {
        return;
    }
    if (!Flag(Id::OnFocusNoSelect)) {
        ::SendMessageW(m_hEdit, EM_SETSEL, 0, -1);
    } else if (const LONG nPosition = Number(Id::OnFocusPosition); nPosition != kWhereItWas) {
        Select(nPosition == kEnd ? MAXLONG : 0, 0);
    }
    ::SetFocus(m_hEdit);
}

/// In the margins and above or below a line, a click is one into the edit.
bool TextField::ClickBesideEdit(WPARAM wParam, LPARAM lParam) {
    if (m_hEdit == nullptr || IsStatic()) {
        return false;
    }
    POINT pt = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    ::MapWindowPoints(Window(), m_hEdit, &pt, 1);
    RECT rc;
    ::GetClientRect(m_hEdit, &rc);
    pt.x = std::clamp(pt.x, 0L, std::max(rc.right - 1, 0L));
    pt.y = std::clamp(pt.y, 0L, std::max(rc.bottom - 1, 0L));
    Forward(m_hEdit, WM_LBUTTONDOWN, wParam, MAKELPARAM(pt.x, pt.y));
    return true;
}

LRESULT CALLBACK TextField::EditProc(HWND hEdit, UINT nMessage, WPARAM wParam, LPARAM lParam,
                                     UINT_PTR nId, DWORD_PTR nField) {
    if (nMessage == WM_NCDESTROY) {
        ::RemoveWindowSubclass(hEdit, EditProc, nId);
        return ::DefSubclassProc(hEdit, nMessage, wParam, lParam);
    }
    auto& field = *reinterpret_cast<TextField*>(nField);
    const Hold hold(field);
    LRESULT lResult = 0;
    Guarded([&] {
        lResult = field.OnEditMessage(hEdit, nMessage, wParam, lParam);
        return S_OK;
    });
    return lResult;
}

LRESULT TextField::OnEditMessage(HWND hEdit, UINT nMessage, WPARAM wParam, LPARAM lParam) {
    if (hEdit != m_hEdit) {
        return ::DefSubclassProc(hEdit, nMessage, wParam, lParam);  // on its way out
    }
    switch (nMessage) {
        case WM_DESTROY:
            Remember();
            m_hEdit = nullptr;
            return ::DefSubclassProc(hEdit, nMessage, wParam, lParam);
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            if ((nMessage == WM_KEYDOWN && Tell(nMessage, wParam, lParam)) ||
                OnEditKey(nMessage, wParam)) {
                return 0;
            }
            break;
        case WM_GETDLGCODE:
            // A multi-line edit would keep Tab and Escape to itself.
            return Forward(hEdit, nMessage, wParam, lParam) & ~LRESULT{DLGC_WANTALLKEYS};
        case WM_KEYUP:
        case WM_MOUSEMOVE:
        case WM_LBUTTONDOWN:
        case WM_LBUTTONUP:
        case WM_LBUTTONDBLCLK:
        case WM_RBUTTONDOWN:
        case WM_RBUTTONUP:
        case WM_MBUTTONDOWN:
        case WM_MBUTTONUP:
            if (Tell(nMessage, wParam, lParam)) {
                return 0;
            }
            break;
        case WM_CHAR:
            if (Tell(nMessage, wParam, lParam) || OnEditChar(wParam)) {
                return 0;
            }
            break;
        case WM_GETOBJECT:
            if (LRESULT lResult = 0; m_spoken.Answer(wParam, lParam, lResult)) {
                return lResult;
            }
            break;
        case WM_PASTE:
            Paste();
            return 0;
        case WM_SETFOCUS:
        case WM_KILLFOCUS: {
            const LRESULT lResult = Forward(hEdit, nMessage, wParam, lParam);
            if (!m_bMovingFocus && reinterpret_cast<HWND>(wParam) != Window()) {
                TellFocus(nMessage == WM_SETFOCUS);
            }
            return lResult;
        }
        default:
            break;
    }
    return Forward(hEdit, nMessage, wParam, lParam);
}

/// A stock event. True: nothing is left for the edit, or it is another one now.
bool TextField::Tell(UINT nMessage, WPARAM& wParam, LPARAM lParam) {
    const HWND hEdit = m_hEdit;
    if (nMessage >= WM_MOUSEFIRST && nMessage <= WM_MOUSELAST) {
        POINT pt = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
        ::MapWindowPoints(hEdit, Window(), &pt, 1);
        lParam = MAKELPARAM(pt.x, pt.y);
    }
    return TellStockEvents(nMessage, wParam, lParam) || m_hEdit != hEdit;
}

LRESULT TextField::Forward(HWND hEdit, UINT nMessage, WPARAM wParam, LPARAM lParam) {
    ++m_nForwarded;
    const LRESULT lResult = ::DefSubclassProc(hEdit, nMessage, wParam, lParam);
    if (--m_nForwarded == 0) {
        if (m_bWantsRemake) {
            RemakeEdit();
        }
        if (std::exchange(m_bEditChanged, false) && !m_bSetting) {
            m_bDataChanged = true;
            TellChange();
        }
    }
    return lResult;
}

// --- What a screen reader is told

Spoken TextField::Say(LONG) {
    Spoken spoken;
    if (IsStatic()) {
        spoken.nRole = ROLE_SYSTEM_STATICTEXT;
        spoken.nState = STATE_SYSTEM_READONLY;
        spoken.name = FieldText();
        return spoken;
    }
    spoken.nRole = ROLE_SYSTEM_TEXT;
    spoken.nState = STATE_SYSTEM_FOCUSABLE | (HasFocus() ? STATE_SYSTEM_FOCUSED : 0) |
                    (IsReadOnly() ? STATE_SYSTEM_READONLY : 0);
    if (!Flag(Id::MultiLine) && !Text(Id::PasswordChar).empty()) {
        spoken.nState |= STATE_SYSTEM_PROTECTED;
    } else {
        spoken.value = FieldText();
    }
    return spoken;
}

/// As if typed over all that is there.
bool TextField::PutPart(LONG, std::wstring_view text) {
    if (IsReadOnly() || IsStatic()) {
        return false;
    }
    const qv::TextRange selected = Selection();
    Select(0, MAXLONG);
    const std::wstring strEntry = Entry(text.substr(0, text.find(L'\0')));
    if (strEntry.empty() && !text.empty()) {
        Select(static_cast<LONG>(selected.nStart), static_cast<LONG>(selected.nLength));
        return false;
    }
    if (m_hEdit != nullptr) {
        Forward(m_hEdit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(strEntry.c_str()));
    }
    return true;
}

}  // namespace ocx
