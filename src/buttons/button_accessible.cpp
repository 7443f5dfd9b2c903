#include "buttons/button_accessible.h"

#include <oleacc.h>

namespace qv {

namespace {

// Others than dialogs may use the message that asks for it as they like.
bool IsDialog(HWND hWnd) {
    constexpr int kRoom = 8;
    char szClass[kRoom] = {};
    return ::GetClassName(hWnd, szClass, kRoom) != 0 && ::lstrcmp(szClass, "#32770") == 0;
}

bool IsDefaultButton(HWND hButton) {
    const HWND hParent = ::GetParent(hButton);
    if (!IsDialog(hParent)) {
        return false;
    }
    const auto dwDefault = static_cast<DWORD>(::SendMessage(hParent, DM_GETDEFID, 0, 0));
    return HIWORD(dwDefault) == DC_HASDEFID && LOWORD(dwDefault) == LOWORD(::GetDlgCtrlID(hButton));
}

}  // namespace

long ButtonState(CButton& button) {
    return ((button.GetState() & BST_PUSHED) != 0 ? STATE_SYSTEM_PRESSED : 0) |
           (IsDefaultButton(button.m_hWnd) ? STATE_SYSTEM_DEFAULT : 0);
}

BOOL PressButton(CButton& button) {
    return button.IsWindowEnabled() && button.PostMessage(BM_CLICK);
}

}  // namespace qv
