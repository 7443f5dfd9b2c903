#include "afx/documents/printing_dialog.h"

#include "afx/documents/print_ids.h"

BOOL AfxPrintingDialog::Create(CWnd* pOwner, const CString& strDocument, const CString& strPrinter,
                               const CString& strPort) {
    if (!Create(AFX_IDD_PRINTDLG, pOwner)) {
        return FALSE;
    }
    SetWindowText(AfxGetAppName());
    SetDlgItemText(AFX_IDC_PRINT_DOCNAME, strDocument);
    SetDlgItemText(AFX_IDC_PRINT_PRINTERNAME, strPrinter);
    CString strOnPort;
    AfxFormatString1(strOnPort, AFX_IDS_PRINTONPORT, strPort);
    SetDlgItemText(AFX_IDC_PRINT_PORTNAME, strOnPort);
    ShowWindow(SW_SHOW);
    UpdateWindow();
    return TRUE;
}

void AfxPrintingDialog::ShowPage(UINT nPage, UINT nLast) {
    CString strPage;
    CString strLast;
    strPage.Format("%u", nPage);
    strLast.Format("%u", nLast);
    CString strShown;
    AfxFormatString2(strShown, nLast != 0 ? QVAFX_IDS_PRINTPAGEOF : AFX_IDS_PRINTPAGENUM, strPage,
                     strLast);
    SetDlgItemText(AFX_IDC_PRINT_PAGENUM, strShown);
}
