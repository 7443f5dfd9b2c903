// The application's printer.
#include "afx/app/app.h"

#include <afxdlgs.h>

BOOL CWinApp::GetPrinterDeviceDefaults(PRINTDLG* pPrintDlg) {
    if (m_hDevNames == nullptr) {
        SelectPrinter(nullptr, nullptr);
    }
    pPrintDlg->hDevMode = m_hDevMode;
    pPrintDlg->hDevNames = m_hDevNames;
    return m_hDevNames != nullptr;
}

void CWinApp::SelectPrinter(HANDLE hDevNames, HANDLE hDevMode, BOOL bFreeOld) {
    // Handles of the same printer may come back.
    if (bFreeOld && m_hDevMode != hDevMode) {
        ::GlobalFree(m_hDevMode);
    }
    if (bFreeOld && m_hDevNames != hDevNames) {
        ::GlobalFree(m_hDevNames);
    }
    if (hDevNames == nullptr && hDevMode == nullptr) {
        CPrintDialog defaults(TRUE);
        defaults.GetDefaults();
        hDevNames = defaults.m_pd.hDevNames;
        hDevMode = defaults.m_pd.hDevMode;
    }
    m_hDevNames = hDevNames;
    m_hDevMode = hDevMode;
}

BOOL CWinApp::CreatePrinterDC(CDC& dc) {
    for (int nTry = 0; nTry < 2; ++nTry) {
        CPrintDialog printer(TRUE);
        if (!GetPrinterDeviceDefaults(&printer.m_pd)) {
            return FALSE;
        }
        if (dc.Attach(printer.CreatePrinterDC())) {
            return TRUE;
        }
        SelectPrinter(nullptr, nullptr);  // the chosen one may have gone
    }
    return FALSE;
}

INT_PTR CWinApp::DoPrintDialog(CPrintDialog* pPD) {
    GetPrinterDeviceDefaults(&pPD->m_pd);
    const INT_PTR nResult = pPD->DoModal();
    // Also a dialog that was cancelled may have put other handles in place of its own.
    m_hDevMode = pPD->m_pd.hDevMode;
    m_hDevNames = pPD->m_pd.hDevNames;
    return nResult;
}

void CWinApp::OnFilePrintSetup() {
    CPrintDialog setup(TRUE);
    DoPrintDialog(&setup);
}
