#include "afx/window/wide_input.h"

#include <utility>

namespace {

constexpr int kMostBytes = 4;  // of a character
constexpr int kMostUnits = 2;
constexpr char kSuperProperty[] = "AfxWideSuper";

/// A character that is being passed to an object byte by byte.
struct TypedChar {
    HWND hWnd;
    int nBytes;
    char bytes[kMostBytes];  // as the handlers leave them
    int nPassed = 0;
    TypedChar* pOuter;
};

thread_local TypedChar* s_pTyped = nullptr;
thread_local WCHAR s_chHigh = 0;  // the first half of a character of two units

/// AfxWndProc as the system calls it for wide callers.
WNDPROC s_pfnConverting = nullptr;

void PassBytes(HWND hWnd, LPCWSTR pUnits, int nUnits, LPARAM lParam) {
    char bytes[kMostBytes];
    TypedChar typed{hWnd, 0, {}, 0, s_pTyped};
    typed.nBytes =
        ::WideCharToMultiByte(CP_ACP, 0, pUnits, nUnits, bytes, kMostBytes, nullptr, nullptr);
    s_pTyped = &typed;
    for (int i = 0; i < typed.nBytes && ::IsWindow(hWnd); ++i) {
        AfxWndProc(hWnd, WM_CHAR, static_cast<BYTE>(bytes[i]), lParam);
    }
    s_pTyped = typed.pOuter;
}

LRESULT CALLBACK WideEntry(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
    constexpr WPARAM kFirstBeyondAscii = 0x80;
    if (nMsg != WM_CHAR || wParam < kFirstBeyondAscii) {
        return ::CallWindowProcW(s_pfnConverting, hWnd, nMsg, wParam, lParam);
    }
    const auto ch = static_cast<WCHAR>(wParam);
    if (IS_HIGH_SURROGATE(ch)) {
        s_chHigh = ch;
    } else if (IS_LOW_SURROGATE(ch)) {
        // A second half alone is no character.
        const WCHAR units[] = {std::exchange(s_chHigh, WCHAR{0}), ch};
        if (units[0] != 0) {
            PassBytes(hWnd, units, kMostUnits, lParam);
        }
    } else {
        PassBytes(hWnd, &ch, 1, lParam);
    }
    return 0;
}

bool IsEdit(HWND hWnd) {
    TCHAR szClass[8] = {};
    ::GetClassName(hWnd, szClass, _countof(szClass));
    return lstrcmpi(szClass, "Edit") == 0;
}

}  // namespace

// The system's controls have another procedure for 8-bit callers, which takes each byte for a
// character.
WNDPROC AfxWideProcedure(HWND hWnd) {
    return IsEdit(hWnd) ? reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(hWnd, GWLP_WNDPROC))
                        : nullptr;
}

void AfxTakeWideInput(HWND hWnd, WNDPROC pfnSuper) {
    if (pfnSuper == nullptr ||
        !::SetPropA(hWnd, kSuperProperty, reinterpret_cast<HANDLE>(pfnSuper))) {
        return;
    }
    // The one procedure in front is AfxWndProc, and so this value is the same for all windows.
    s_pfnConverting = reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(hWnd, GWLP_WNDPROC));
    ::SetWindowLongPtrW(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&WideEntry));
}

void AfxEndWideInput(HWND hWnd) {
    ::RemovePropA(hWnd, kSuperProperty);
}

bool AfxTakesWideInput(HWND hWnd) {
    return ::GetWindowLongPtrW(hWnd, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&WideEntry);
}

bool AfxDefaultTypedByte(HWND hWnd, WPARAM wParam, LPARAM lParam) {
    TypedChar* const pTyped = s_pTyped;
    if (pTyped == nullptr || pTyped->hWnd != hWnd || pTyped->nPassed == pTyped->nBytes) {
        return false;
    }
    pTyped->bytes[pTyped->nPassed++] = static_cast<char>(wParam);
    if (pTyped->nPassed < pTyped->nBytes) {
        return true;
    }
    const auto pfnSuper = reinterpret_cast<WNDPROC>(::GetPropA(hWnd, kSuperProperty));
    WCHAR units[kMostUnits];
    const int nUnits =
        ::MultiByteToWideChar(CP_ACP, 0, pTyped->bytes, pTyped->nBytes, units, kMostUnits);
    for (int i = 0; i < nUnits && pfnSuper != nullptr && ::IsWindow(hWnd); ++i) {
        ::CallWindowProcW(pfnSuper, hWnd, WM_CHAR, units[i], lParam);
    }
    return true;
}

// A character is on the queue before its key's message was done with, so that a look ahead sees it.
BOOL AfxGetMessage(MSG& msg) {
    MSG next;
    if (::PeekMessageW(&next, nullptr, 0, 0, PM_NOREMOVE) && next.message == WM_CHAR &&
        ::IsWindowUnicode(next.hwnd) &&
        ::PeekMessageW(&msg, next.hwnd, WM_CHAR, WM_CHAR, PM_REMOVE)) {
        return TRUE;
    }
    return ::GetMessage(&msg, nullptr, 0, 0) > 0;
}

void AfxDispatchMessage(const MSG& msg) {
    ::IsWindowUnicode(msg.hwnd) ? ::DispatchMessageW(&msg) : ::DispatchMessageA(&msg);
}

// A dialog inside of another one takes part in the keyboard's way through that: the Tab key and the
// letters underlined lead out of it. Not every system looks beyond the window that it is given.
static HWND OutermostDialog(HWND hWndDialog) {
    HWND hWnd = hWndDialog;
    while ((::GetWindowLong(hWnd, GWL_STYLE) & WS_CHILD) != 0 &&
           (::GetWindowLong(hWnd, GWL_EXSTYLE) & WS_EX_CONTROLPARENT) != 0) {
        HWND hWndParent = ::GetParent(hWnd);
        TCHAR szClass[8] = {};
        ::GetClassName(hWndParent, szClass, _countof(szClass));
        const bool bDialog = lstrcmp(szClass, "#32770") == 0;
        if (!bDialog && (::GetWindowLong(hWndParent, GWL_EXSTYLE) & WS_EX_CONTROLPARENT) == 0) {
            break;
        }
        hWnd = hWndParent;
    }
    return hWnd;
}

BOOL AfxIsDialogMessage(HWND hWndDialog, MSG& msg) {
    if (msg.message == WM_SYSCHAR || (msg.message == WM_KEYDOWN && msg.wParam == VK_TAB)) {
        hWndDialog = OutermostDialog(hWndDialog);
    }
    return ::IsWindowUnicode(msg.hwnd) ? ::IsDialogMessageW(hWndDialog, &msg)
                                       : ::IsDialogMessageA(hWndDialog, &msg);
}
