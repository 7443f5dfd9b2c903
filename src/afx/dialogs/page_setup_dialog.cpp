#include "afx/dialogs/page_setup_dialog.h"

#include "afx/dialogs/printer_names.h"
#include "afx/window/wnd_state.h"

#include <afxdlgs.h>

IMPLEMENT_DYNAMIC(CPageSetupDialog, CCommonDialog)

CPageSetupDialog::CPageSetupDialog(DWORD dwFlags, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd), m_psd() {
    m_psd.lStructSize = sizeof m_psd;
    m_psd.Flags = dwFlags | PSD_ENABLEPAGESETUPHOOK | PSD_ENABLEPAGEPAINTHOOK;
    m_psd.lpfnPageSetupHook = &CPageSetupDialog::SystemDialogHook;
    m_psd.lpfnPagePaintHook = &CPageSetupDialog::PaintHook;
}

INT_PTR CPageSetupDialog::DoModal() {
    m_psd.hwndOwner = PreModal();
    return RunSystemDialog(m_psd.hwndOwner, [](CCommonDialog* pDlg) {
        return ::PageSetupDlg(&static_cast<CPageSetupDialog*>(pDlg)->m_psd);
    });
}

UINT_PTR CALLBACK CPageSetupDialog::PaintHook(HWND hWnd, UINT message, WPARAM wParam,
                                              LPARAM lParam) {
    // The sample page may be a window inside the dialog.
    CPageSetupDialog* pDlg = nullptr;
    for (HWND hWndUp = hWnd; hWndUp != nullptr && pDlg == nullptr; hWndUp = ::GetParent(hWndUp)) {
        pDlg = dynamic_cast<CPageSetupDialog*>(CWnd::FromHandlePermanent(hWndUp));
    }
    if (pDlg == nullptr) {
        return 0;
    }
    try {
        if (message == WM_PSD_PAGESETUPDLG) {
            return pDlg->PreDrawPage(LOWORD(wParam), HIWORD(wParam),
                                     reinterpret_cast<LPPAGESETUPDLG>(lParam));
        }
        if (message > WM_PSD_PAGESETUPDLG && message <= WM_PSD_YAFULLPAGERECT) {
            return pDlg->OnDrawPage(CDC::FromHandle(reinterpret_cast<HDC>(wParam)), message,
                                    reinterpret_cast<LPRECT>(lParam));
        }
    } catch (...) {
        AfxProcessCurrentException(hWnd, message, wParam, lParam);
    }
    return 0;
}

UINT CPageSetupDialog::PreDrawPage(WORD, WORD, LPPAGESETUPDLG) {
    return 0;
}

UINT CPageSetupDialog::OnDrawPage(CDC*, UINT, LPRECT) {
    return 0;
}

void CPageSetupDialog::GetMargins(LPRECT lpRectMargins, LPRECT lpRectMinMargins) const {
    if (lpRectMargins != nullptr) {
        *lpRectMargins = m_psd.rtMargin;
    }
    if (lpRectMinMargins != nullptr) {
        *lpRectMinMargins = m_psd.rtMinMargin;
    }
}

CString CPageSetupDialog::GetDeviceName() const {
    return AfxNameAt(m_psd.hDevNames, &DEVNAMES::wDeviceOffset);
}
CString CPageSetupDialog::GetDriverName() const {
    return AfxNameAt(m_psd.hDevNames, &DEVNAMES::wDriverOffset);
}
CString CPageSetupDialog::GetPortName() const {
    return AfxNameAt(m_psd.hDevNames, &DEVNAMES::wOutputOffset);
}

LPDEVMODE CPageSetupDialog::GetDevMode() const {
    return m_psd.hDevMode != nullptr ? static_cast<LPDEVMODE>(::GlobalLock(m_psd.hDevMode))
                                     : nullptr;
}

HDC CPageSetupDialog::CreatePrinterDC() {
    const AfxLockedGlobal<DEVMODE> mode(m_psd.hDevMode);
    return m_psd.hDevNames != nullptr
               ? ::CreateDC(GetDriverName(), GetDeviceName(), GetPortName(), mode.Get())
               : nullptr;
}
