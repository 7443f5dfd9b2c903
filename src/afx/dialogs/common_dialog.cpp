// What the system's common dialogs share: their modal run, and the hook by which an object becomes
// the dialog's.
#include "afx/window/wnd_state.h"

#include <afxdlgs.h>

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)

CCommonDialog::CCommonDialog(CWnd* pParentWnd) {
    m_pParentWnd = pParentWnd;
}

void CCommonDialog::OnOK() {
    if (UpdateData(TRUE)) {
        Default();
    }
}

void CCommonDialog::OnCancel() {
    Default();
}

INT_PTR CCommonDialog::RunSystemDialog(HWND hWndOwner, BOOL (*pfnShow)(CCommonDialog*)) {
    const HWND hWndFocus = ::GetFocus();
    const BOOL bEnabled = ::IsWindowEnabled(hWndOwner);
    AfxWndState& state = AfxGetWndState();
    CWnd* const pOuter = state.pHookInit;
    state.pHookInit = this;
    const BOOL bChosen = pfnShow(this);
    state.pHookInit = pOuter;
    // The system enables the owner always, or never where the program is about to end. A dialog
    // that ends for that reason has chosen nothing, whatever the system says.
    if (::IsWindow(hWndOwner)) {
        ::EnableWindow(hWndOwner, bEnabled);
    }
    if (::IsWindow(hWndFocus)) {
        ::SetFocus(hWndFocus);
    }
    PostModal();
    MSG msg;
    const BOOL bEnds = ::PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_NOREMOVE);
    return bChosen && !bEnds ? IDOK : IDCANCEL;
}

UINT_PTR CALLBACK CCommonDialog::SystemDialogHook(HWND hWnd, UINT message, WPARAM wParam,
                                                  LPARAM lParam) {
    if (message != WM_INITDIALOG) {
        return 0;
    }
    // The system's code lies between here and whoever opened the dialog; no exception may cross it.
    try {
        auto* pDlg = static_cast<CCommonDialog*>(AfxGetWndState().pHookInit);
        AfxGetWndState().pHookInit = nullptr;
        return pDlg != nullptr && pDlg->SubclassWindow(hWnd) && pDlg->OnInitDialog();
    } catch (...) {
        AfxProcessCurrentException(hWnd, message, wParam, lParam);
        // A child that the system made for the hook's sake is not the dialog itself.
        const HWND hWndDialog =
            (::GetWindowLong(hWnd, GWL_STYLE) & WS_CHILD) != 0 ? ::GetParent(hWnd) : hWnd;
        ::PostMessage(hWndDialog, WM_COMMAND, IDCANCEL, 0);
        return 0;
    }
}
