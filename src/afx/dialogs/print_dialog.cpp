#include "afx/dialogs/printer_names.h"

#include <afxdlgs.h>

IMPLEMENT_DYNAMIC(CPrintDialog, CCommonDialog)

CPrintDialog::CPrintDialog(BOOL bPrintSetupOnly, DWORD dwFlags, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd), m_pd(m_pdActual), m_pdActual() {
    m_pd.lStructSize = sizeof m_pd;
    m_pd.Flags = dwFlags | (bPrintSetupOnly ? PD_PRINTSETUP : PD_RETURNDC);
}

INT_PTR CPrintDialog::DoModal() {
    m_pd.hwndOwner = PreModal();
    const BOOL bChosen = ::PrintDlg(&m_pd);
    PostModal();
    return bChosen ? IDOK : IDCANCEL;
}

BOOL CPrintDialog::GetDefaults() {
    const DWORD dwFlags = m_pd.Flags;
    m_pd.Flags |= PD_RETURNDEFAULT | PD_NOWARNING;
    const BOOL bKnown = ::PrintDlg(&m_pd);
    m_pd.Flags = dwFlags;
    return bKnown;
}

int CPrintDialog::GetCopies() const {
    if (m_pd.Flags & PD_USEDEVMODECOPIES) {
        const AfxLockedGlobal<DEVMODE> mode(m_pd.hDevMode);
        return mode.Get() != nullptr && (mode.Get()->dmFields & DM_COPIES) ? mode.Get()->dmCopies
                                                                           : 1;
    }
    return m_pd.nCopies;
}

BOOL CPrintDialog::PrintAll() const {
    return !PrintRange() && !PrintSelection();
}
BOOL CPrintDialog::PrintRange() const {
    return (m_pd.Flags & PD_PAGENUMS) != 0;
}
BOOL CPrintDialog::PrintSelection() const {
    return (m_pd.Flags & PD_SELECTION) != 0;
}
BOOL CPrintDialog::PrintCollate() const {
    return (m_pd.Flags & PD_COLLATE) != 0;
}
int CPrintDialog::GetFromPage() const {
    return PrintRange() ? m_pd.nFromPage : -1;
}
int CPrintDialog::GetToPage() const {
    return PrintRange() ? m_pd.nToPage : -1;
}

CString CPrintDialog::GetDeviceName() const {
    return AfxNameAt(m_pd.hDevNames, &DEVNAMES::wDeviceOffset);
}
CString CPrintDialog::GetDriverName() const {
    return AfxNameAt(m_pd.hDevNames, &DEVNAMES::wDriverOffset);
}
CString CPrintDialog::GetPortName() const {
    return AfxNameAt(m_pd.hDevNames, &DEVNAMES::wOutputOffset);
}

LPDEVMODE CPrintDialog::GetDevMode() const {
    return m_pd.hDevMode != nullptr ? static_cast<LPDEVMODE>(::GlobalLock(m_pd.hDevMode)) : nullptr;
}

HDC CPrintDialog::CreatePrinterDC() {
    if (m_pd.hDevNames == nullptr) {
        return nullptr;
    }
    const AfxLockedGlobal<DEVMODE> mode(m_pd.hDevMode);
    m_pd.hDC = ::CreateDC(GetDriverName(), GetDeviceName(), GetPortName(), mode.Get());
    return m_pd.hDC;
}
