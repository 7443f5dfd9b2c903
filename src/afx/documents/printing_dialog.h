// What the user sees of a job while it prints. Internal to the framework.
#pragma once

#include <afxwin.h>

/// Names document, printer and page. Cancel is remembered; the job looks for it.
class AfxPrintingDialog : public CDialog {
public:
    using CDialog::Create;
    BOOL Create(CWnd* pOwner, const CString& strDocument, const CString& strPrinter,
                const CString& strPort);
    /// nLast: 0 if it is not known.
    void ShowPage(UINT nPage, UINT nLast);
    bool WasCancelled() const { return m_bCancelled; }

protected:
    void OnOK() override {}
    void OnCancel() override { m_bCancelled = true; }

private:
    bool m_bCancelled = false;
};
