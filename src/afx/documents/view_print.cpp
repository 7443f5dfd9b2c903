// How a view prints.
#include "afx/documents/view.h"

#include "afx/documents/print_job.h"
#include "afx/documents/print_output.h"
#include "afx/objects/file_path.h"

#include <afxdlgs.h>
#include <afxext.h>

namespace {

const AfxPrintOutput* s_pOutput = nullptr;

}  // namespace

AfxPrintOutput::AfxPrintOutput(LPCTSTR lpszPath) : m_strPath(lpszPath), m_pOuter(s_pOutput) {
    s_pOutput = this;
}

AfxPrintOutput::~AfxPrintOutput() {
    s_pOutput = m_pOuter;
}

CString AfxPrintOutput::Path() {
    return s_pOutput != nullptr ? s_pOutput->m_strPath : CString();
}

BOOL CView::OnPreparePrinting(CPrintInfo*) {
    return TRUE;
}

void CView::OnBeginPrinting(CDC*, CPrintInfo*) {}

void CView::OnPrint(CDC* pDC, CPrintInfo*) {
    OnDraw(pDC);
}

void CView::OnEndPrinting(CDC*, CPrintInfo*) {}

namespace {

/// The application's printer, without a question.
bool OpenPrinter(CWinApp& app, CPrintInfo& info) {
    PRINTDLG& pd = info.m_pPD->m_pd;
    if (pd.hDC != nullptr) {
        return true;
    }
    CDC dc;
    if (!app.CreatePrinterDC(dc)) {
        return false;
    }
    pd.hDC = dc.Detach();
    return app.GetPrinterDeviceDefaults(&pd) != FALSE;
}

/// A frame beside the main window, whose dialog it is, takes no input meanwhile either.
bool AskForPrinter(CWinApp& app, HWND hWndFrame, CPrintInfo& info) {
    PRINTDLG& pd = info.m_pPD->m_pd;
    const bool bPages = info.GetMinPage() <= info.GetMaxPage();
    if (bPages) {
        pd.nFromPage = pd.nMinPage;
        pd.nToPage = pd.nMaxPage;
    } else {
        pd.Flags |= PD_NOPAGENUMS;
    }
    const bool bBeside = hWndFrame != AfxGetMainWnd()->GetSafeHwnd();
    // The dialog makes a range of its own where the document has none.
    const UINT nMinPage = info.GetMinPage();
    const UINT nMaxPage = info.GetMaxPage();
    INT_PTR nResult = IDCANCEL;
    {
        const AfxDisabledOwner frame(bBeside ? hWndFrame : nullptr);
        nResult = app.DoPrintDialog(info.m_pPD);
    }
    info.SetMinPage(nMinPage);
    info.SetMaxPage(nMaxPage);
    if (bBeside) {
        ::SetActiveWindow(hWndFrame);
    }
    return nResult == IDOK;
}

/// A printer whose port is this one writes files too: the system asks for their names, or, where it
/// does not, makes one of this name.
bool GoesToFile(const CPrintDialog& printer) {
    return (printer.m_pd.Flags & PD_PRINTTOFILE) != 0 ||
           printer.GetPortName().CompareNoCase("FILE:") == 0;
}

/// The file for a job that is to go to one. False if the user has none to give.
bool AskForOutput(CWnd* pParent, const CString& strTitle, CString& strPath) {
    CString strExtension;
    CString strFilter;
    CString strCaption;
    CString strName;
    strExtension.LoadString(AFX_IDS_PRINTDEFAULTEXT);
    strFilter.LoadString(AFX_IDS_PRINTFILTER);
    strCaption.LoadString(AFX_IDS_PRINTCAPTION);
    // A title that makes no file name makes none to begin with.
    if (strTitle.FindOneOf(kAfxNotInFileNames) < 0) {
        AfxFormatString1(strName, AFX_IDS_PRINTDEFAULT, strTitle);
    }
    CFileDialog dlg(FALSE, strExtension, strName, OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, strFilter,
                    pParent);
    dlg.m_ofn.lpstrTitle = strCaption;
    if (dlg.DoModal() != IDOK) {
        return false;
    }
    strPath = dlg.GetPathName();
    return true;
}

}  // namespace

BOOL CView::DoPreparePrinting(CPrintInfo* pInfo) {
    CWinApp* pApp = AfxGetApp();
    if (pInfo->m_bPreview || pInfo->m_bDirect) {
        if (!OpenPrinter(*pApp, *pInfo)) {
            AfxMessageBox(AFX_IDP_FAILED_TO_START_PRINT);
            return FALSE;
        }
        if (pInfo->m_nNumPreviewPages == 0) {
            pInfo->m_nNumPreviewPages = pApp->m_nNumPreviewPages;
        }
        return TRUE;
    }
    if (!AskForPrinter(*pApp, GetTopLevelParent()->GetSafeHwnd(), *pInfo)) {
        return FALSE;
    }
    if (pInfo->m_pPD->GetPrinterDC() == nullptr && !OpenPrinter(*pApp, *pInfo)) {
        AfxMessageBox(AFX_IDP_FAILED_TO_START_PRINT);
        return FALSE;
    }
    return TRUE;
}

void CView::OnFilePrint() {
    CPrintInfo info;
    const MSG* pMsg = GetCurrentMessage();
    info.m_bDirect = pMsg->message == WM_COMMAND && LOWORD(pMsg->wParam) == ID_FILE_PRINT_DIRECT;
    const HWND hWnd = m_hWnd;
    if (!OnPreparePrinting(&info) || FromHandlePermanent(hWnd) != this ||
        info.m_pPD->GetPrinterDC() == nullptr) {
        return;
    }
    CString strTitle;
    if (CDocument* pDocument = GetDocument()) {
        strTitle = pDocument->GetTitle();
    } else if (CFrameWnd* pFrame = GetParentFrame()) {
        pFrame->GetWindowText(strTitle);
    }
    CString strOutput = AfxPrintOutput::Path();
    if (strOutput.IsEmpty() && GoesToFile(*info.m_pPD) &&
        !AskForOutput(this, strTitle, strOutput)) {
        return;
    }
    if (FromHandlePermanent(hWnd) == this) {
        AfxPrintJob(this, info).Run(strTitle, strOutput);
    }
}
