// What is typed into a text field and pasted: keys, the rules that characters are held to, and
// their case.

#include "ocx/text_field.h"

#include <windowsx.h>

#include <utility>

namespace ocx {
namespace {

using Id = TextFieldId;

// NoSpecialKeys
constexpr LONG kNoClipboardKeys = 1;
constexpr LONG kNoUndoKeys = 2;

// Characters that the control key makes of letters
constexpr wchar_t kSelectAll = L'A' - L'@';
constexpr wchar_t kCopy = L'C' - L'@';
constexpr wchar_t kPaste = L'V' - L'@';
constexpr wchar_t kCut = L'X' - L'@';
constexpr wchar_t kUndo = L'Z' - L'@';

/// The clipboard's text, up to a first zero.
std::wstring ClipboardText(HWND hWnd) {
    if (!::OpenClipboard(hWnd)) {
        return {};
    }
    struct Closer {
        ~Closer() { ::CloseClipboard(); }
    } closer;
    const HANDLE hData = ::GetClipboardData(CF_UNICODETEXT);
    const auto* psz = hData != nullptr ? static_cast<const wchar_t*>(::GlobalLock(hData)) : nullptr;
    if (psz == nullptr) {
        return {};
    }
    struct Unlocker {
        HANDLE h;
        ~Unlocker() { ::GlobalUnlock(h); }
    } unlocker{hData};
    return {psz, ::wcsnlen(psz, ::GlobalSize(hData) / sizeof(wchar_t))};
}

}  // namespace

qv::FieldRules TextField::Rules() const {
    return {qv::CharList(Units(Text(Id::CharValidationText))),
            static_cast<std::size_t>(Number(Id::MaxLength)), Flag(Id::MultiLine)};
}

std::wstring TextField::InCase(std::wstring_view text, wchar_t chBefore) const {
    enum { kAsTyped, kUpper, kLower, kWords };
    std::wstring str(text);
    const auto cch = static_cast<DWORD>(str.size());
    switch (Number(Id::AutoCase)) {
        case kUpper:
            ::CharUpperBuffW(str.data(), cch);
            break;
        case kLower:
            ::CharLowerBuffW(str.data(), cch);
            break;
        case kWords:
            for (wchar_t& ch : str) {
                if (!::IsCharAlphaNumericW(chBefore) && chBefore != L'\'') {
                    ::CharUpperBuffW(&ch, 1);
                }
                chBefore = ch;
            }
            break;
        default:
            break;
    }
    return str;
}

std::wstring TextField::Entry(std::wstring_view typed) const {
    const std::wstring str = FieldText();
    const qv::TextRange selected = Selection();
    const wchar_t chBefore = selected.nStart > 0 ? str[selected.nStart - 1] : L'\0';
    std::u16string units = Units(InCase(typed, chBefore));
    if (Flag(Id::MultiLine)) {
        units = qv::WithEditBreaks(units);
    }
    return Wide(Rules().Entry(Units(str), selected, units));
}

bool TextField::IsReadOnly() const {
    return Number(Id::UserEntry) != 0 || Number(Id::ControlType) != 0;
}

bool TextField::IsStatic() const {
    return Number(Id::ControlType) == 2;
}

bool TextField::IsNull() const {
    return FieldText().empty();
}

bool TextField::IsValid() const {
    const std::wstring str = FieldText();
    return str.empty() ? Flag(Id::AllowNull) : Rules().Fits(Units(str));
}

void TextField::Refused() const {
    if (Flag(Id::AutoBeep)) {
        ::MessageBeep(MB_OK);
    }
}

bool TextField::WantsKey(const MSG& msg) {
    if (msg.message != WM_KEYDOWN || IsStatic()) {
        return false;
    }
    switch (msg.wParam) {
        case VK_LEFT:
        case VK_RIGHT:
        case VK_UP:
        case VK_DOWN:
        case VK_HOME:
        case VK_END:
        case VK_PRIOR:
        case VK_NEXT:
        case VK_INSERT:
        case VK_DELETE:
        case VK_BACK:
            return true;
        case VK_RETURN:
            return Flag(Id::MultiLine) && !IsReadOnly();
        case 'A':
        case 'C':
        case 'V':
        case 'X':
        case 'Z':
            return ::GetKeyState(VK_CONTROL) < 0 && ::GetKeyState(VK_MENU) >= 0;
        default:
            return false;
    }
}

bool TextField::OnEditKey(UINT nMessage, WPARAM wParam) {
    const bool bShift = ::GetKeyState(VK_SHIFT) < 0;
    const bool bControl = ::GetKeyState(VK_CONTROL) < 0;
    const LONG nBarred = Number(Id::NoSpecialKeys);
    switch (wParam) {
        case VK_ESCAPE:  // in a dialog a multi-line edit would close its parent
        case VK_TAB:     // and tell it to move on, which is the container's to do
            return !bControl;
        case VK_INSERT:
            if (bShift && !bControl && (nBarred & kNoClipboardKeys) == 0) {
                Paste();
                return true;
            }
            return bShift != bControl && (nBarred & kNoClipboardKeys) != 0;
        case VK_DELETE:
            return bShift && !bControl && (nBarred & kNoClipboardKeys) != 0;
        case VK_BACK:
            return nMessage == WM_SYSKEYDOWN && (nBarred & kNoUndoKeys) != 0;
        default:
            return false;
    }
}

bool TextField::OnEditChar(WPARAM& wParam) {
    const auto ch = static_cast<wchar_t>(wParam);
    const LONG nBarred = Number(Id::NoSpecialKeys);
    switch (ch) {
        case kSelectAll:
            ::SendMessageW(m_hEdit, EM_SETSEL, 0, -1);
            return true;
        case kCopy:
        case kPaste:
        case kCut:
            return (nBarred & kNoClipboardKeys) != 0;
        case kUndo:
            return (nBarred & kNoUndoKeys) != 0;
        default:
            break;
    }
    const bool bBreak = ch == L'\r' || ch == L'\n';
    if (bBreak && !Flag(Id::MultiLine)) {
        return true;  // the edit would beep
    }
    if (IsReadOnly() || (ch < L' ' && ch != L'\t' && !bBreak)) {
        return false;
    }
    if (IS_HIGH_SURROGATE(ch)) {
        m_chHigh = ch;
        return true;
    }
    std::wstring typed(1, ch);
    if (const wchar_t chHigh = std::exchange(m_chHigh, L'\0'); IS_LOW_SURROGATE(ch)) {
        if (chHigh == 0) {
            return true;
        }
        typed.insert(0, 1, chHigh);
    }
    const std::wstring entry = Entry(typed);
    if (entry.empty()) {
        Refused();
        return true;
    }
    if (bBreak) {
        return false;
    }
    if (entry.size() > 1) {
        ::SendMessageW(m_hEdit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(entry.c_str()));
        return true;
    }
    wParam = entry.front();
    return false;
}

void TextField::Paste() {
    if (IsReadOnly()) {
        return;
    }
    const std::wstring text = ClipboardText(m_hEdit);
    const std::wstring entry = Entry(text);
    if (!entry.empty()) {
        ::SendMessageW(m_hEdit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(entry.c_str()));
    } else if (!text.empty()) {
        Refused();
    }
}

}  // namespace ocx
