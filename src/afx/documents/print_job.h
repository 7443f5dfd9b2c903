// One run of a view's pages through the printer. Internal to the framework.
#pragma once

#include "afx/dialogs/modal_owner.h"
#include "afx/documents/printing_dialog.h"

#include <optional>

class CView;
struct CPrintInfo;

/// A printer's context that somebody else deletes.
class AfxBorrowedDC : public CDC {
public:
    explicit AfxBorrowedDC(HDC hDC) {
        Attach(hDC);
        m_bPrinting = TRUE;
    }
    ~AfxBorrowedDC() override { Detach(); }
};

/// The context comes with info, which OnPreparePrinting filled. Meanwhile the user sees a dialog
/// that cancels, and the view's frame and the main window take no input; what else is in the queue
/// goes on, so that the view may be destroyed under its job, which ends then.
class AfxPrintJob {
public:
    AfxPrintJob(CView* pView, CPrintInfo& info);
    ~AfxPrintJob();
    AfxPrintJob(const AfxPrintJob&) = delete;
    AfxPrintJob& operator=(const AfxPrintJob&) = delete;

    /// strOutput: a file in place of the printer's port, or empty. What failed is told; what the
    /// view throws leaves this function when the job has been taken back.
    void Run(const CString& strTitle, const CString& strOutput);

private:
    bool Print(const CString& strTitle, const CString& strOutput);
    bool BeginDocument(const CString& strTitle, const CString& strOutput);
    bool PrintPages();
    bool PrintPage(UINT nPage, UINT nLast);
    void Finish(const CString& strOutput);

    bool ViewIsThere() const;
    bool GoOn();
    bool Fail(UINT nIDPrompt);
    static BOOL CALLBACK AbortProc(HDC hDC, int nError);

    CView* const m_pView;
    const HWND m_hWndView;
    CPrintInfo& m_info;
    AfxBorrowedDC m_dc;
    AfxPrintingDialog m_dialog;
    // Enabled again before the dialog is destroyed.
    std::optional<AfxDisabledOwner> m_disabledFrame;
    std::optional<AfxDisabledOwner> m_disabledMain;
    AfxPrintJob* const m_pOuter;
    UINT m_nIDFailure = 0;
    bool m_bBegun = false;     ///< OnBeginPrinting was called, and OnEndPrinting not yet
    bool m_bDocument = false;  ///< begun and not ended
    bool m_bEnded = false;     ///< the program ends

    static AfxPrintJob* s_pCurrent;
};
