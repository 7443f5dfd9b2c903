#include "afx/documents/print_job.h"

#include "afx/app/last_page.h"
#include "afx/documents/print_ids.h"
#include "afx/documents/view.h"

#include <afxdlgs.h>
#include <afxext.h>

#include <algorithm>

AfxPrintJob* AfxPrintJob::s_pCurrent = nullptr;

AfxPrintJob::AfxPrintJob(CView* pView, CPrintInfo& info)
    : m_pView(pView),
      m_hWndView(pView->m_hWnd),
      m_info(info),
      m_dc(info.m_pPD->m_pd.hDC),
      m_pOuter(s_pCurrent) {
    s_pCurrent = this;
}

AfxPrintJob::~AfxPrintJob() {
    s_pCurrent = m_pOuter;
}

bool AfxPrintJob::ViewIsThere() const {
    return CWnd::FromHandlePermanent(m_hWndView) == m_pView;
}

bool AfxPrintJob::Fail(UINT nIDPrompt) {
    m_nIDFailure = nIDPrompt;
    return false;
}

BOOL CALLBACK AfxPrintJob::AbortProc(HDC, int) {
    return s_pCurrent == nullptr || s_pCurrent->GoOn();
}

/// Handles what is in the queue. False when the job is to end.
bool AfxPrintJob::GoOn() {
    constexpr int kAtOnce = 200;  // a window that never stops painting must not stop the job
    MSG msg;
    for (int i = 0; i < kAtOnce && !m_bEnded && !m_dialog.WasCancelled() &&
                    ::PeekMessage(&msg, nullptr, 0, 0, PM_NOREMOVE);
         ++i) {
        if (!AfxPumpMessage()) {
            AfxPostQuitMessage(static_cast<int>(AfxGetThread()->m_msgCur.wParam));
            m_bEnded = true;
        }
    }
    return !m_bEnded && !m_dialog.WasCancelled() && ViewIsThere();
}

void AfxPrintJob::Run(const CString& strTitle, const CString& strOutput) {
    try {
        if (Print(strTitle, strOutput)) {
            m_bDocument = false;
        }
        Finish(strOutput);
    } catch (...) {
        Finish(strOutput);
        throw;
    }
    if (m_nIDFailure != 0) {
        AfxMessageBox(m_nIDFailure);
    }
}

/// The way back, from wherever the job stands.
void AfxPrintJob::Finish(const CString& strOutput) {
    if (m_bDocument) {
        m_bDocument = false;
        m_dc.AbortDoc();
        if (!strOutput.IsEmpty()) {
            ::DeleteFile(strOutput);
        }
    }
    m_disabledMain.reset();
    m_disabledFrame.reset();
    if (m_bBegun && ViewIsThere()) {
        m_bBegun = false;
        m_pView->OnEndPrinting(&m_dc, &m_info);
    }
    if (m_dialog.m_hWnd != nullptr) {
        m_dialog.DestroyWindow();
    }
}

bool AfxPrintJob::Print(const CString& strTitle, const CString& strOutput) {
    m_bBegun = true;
    m_pView->OnBeginPrinting(&m_dc, &m_info);
    if (!ViewIsThere()) {
        return false;
    }
    if (m_info.GetMinPage() > m_info.GetMaxPage()) {
        return true;  // no pages, no document
    }
    CWnd* pFrame = m_pView->GetTopLevelParent();
    const CPrintDialog& printer = *m_info.m_pPD;
    m_dialog.Create(pFrame, strTitle, printer.GetDeviceName(),
                    strOutput.IsEmpty() ? printer.GetPortName() : strOutput);
    m_disabledFrame.emplace(pFrame->GetSafeHwnd());
    m_disabledMain.emplace(AfxGetMainWnd()->GetSafeHwnd());
    m_dc.SetAbortProc(AbortProc);
    return BeginDocument(strTitle, strOutput) && PrintPages() &&
           (m_dc.EndDoc() > 0 || Fail(QVAFX_IDP_PRINT_STOPPED));
}

bool AfxPrintJob::BeginDocument(const CString& strTitle, const CString& strOutput) {
    DOCINFO doc = {};
    doc.cbSize = sizeof doc;
    doc.lpszDocName = strTitle;
    doc.lpszOutput = strOutput.IsEmpty() ? nullptr : static_cast<LPCTSTR>(strOutput);
    ::SetLastError(NO_ERROR);
    m_bDocument = m_dc.StartDoc(&doc) > 0;
    // The system may have asked for a file.
    const DWORD dwError = ::GetLastError();
    const bool bRefused = dwError == ERROR_CANCELLED || dwError == ERROR_PRINT_CANCELLED;
    return m_bDocument || bRefused || m_dialog.WasCancelled() ? m_bDocument
                                                              : Fail(AFX_IDP_FAILED_TO_START_PRINT);
}

bool AfxPrintJob::PrintPages() {
    // What a view finds out in OnBeginPrinting counts, unless the user chose pages.
    const bool bRange = m_info.m_pPD->PrintRange();
    const UINT nFirst = std::max(bRange ? m_info.GetFromPage() : 0, m_info.GetMinPage());
    const UINT nLast =
        bRange ? std::min(m_info.GetToPage(), m_info.GetMaxPage()) : m_info.GetMaxPage();
    for (UINT nPage = nFirst; nPage <= nLast; ++nPage) {
        m_info.m_nCurPage = nPage;
        m_pView->OnPrepareDC(&m_dc, &m_info);
        if (!ViewIsThere()) {
            return false;
        }
        if (!m_info.m_bContinuePrinting) {
            break;
        }
        if (!PrintPage(nPage, nLast == kAfxUnknownLastPage ? 0 : nLast)) {
            return false;
        }
    }
    return true;
}

bool AfxPrintJob::PrintPage(UINT nPage, UINT nLast) {
    if (m_dialog.m_hWnd != nullptr) {
        m_dialog.ShowPage(nPage, nLast);
    }
    m_info.m_rectDraw.SetRect(0, 0, m_dc.GetDeviceCaps(HORZRES), m_dc.GetDeviceCaps(VERTRES));
    m_dc.DPtoLP(&m_info.m_rectDraw);
    if (m_dc.StartPage() <= 0) {
        return GoOn() && Fail(QVAFX_IDP_PRINT_STOPPED);
    }
    m_pView->OnPrint(&m_dc, &m_info);
    if (!ViewIsThere()) {
        return false;
    }
    if (m_dc.EndPage() <= 0) {
        return GoOn() && Fail(QVAFX_IDP_PRINT_STOPPED);
    }
    return GoOn();
}
