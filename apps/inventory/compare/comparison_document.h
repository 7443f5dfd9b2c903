// ComparisonDocument: what is different between a status file and what the application showed when
// it was opened. Pages keep pointers to the packages: UpdateAllViews tells when they go.

#pragma once

#include "errors.h"
#include "model/comparison.h"

#include <afxwin.h>

#include <memory>

class ComparisonDocument : public CDocument {
    DECLARE_DYNCREATE(ComparisonDocument)

public:
    const Inventory& Before() const { return *m_pBefore; }
    const Inventory& Now() const { return *m_pNow; }
    const Comparison& Differences() const { return m_comparison; }
    // Name and day of what the application shows, as of the file: "status, 2026-11-21 20:12".
    const CString& NameNow() const { return m_strNow; }
    const CString& NameBefore() const { return m_strBefore; }

protected:
    // Reads the file under the wait dialog. FALSE if it cannot be read, which is said, or the user
    // cancels: the document is what it was.
    BOOL OnOpenDocument(LPCTSTR lpszPathName) override;
    afx_msg void OnAgain();
    DECLARE_MESSAGE_MAP()

private:
    CFrameWnd* ShownFrame() const;

    std::shared_ptr<const Inventory> m_pBefore = std::make_shared<Inventory>();
    std::shared_ptr<const Inventory> m_pNow = m_pBefore;
    Comparison m_comparison;
    CString m_strBefore;
    CString m_strNow;
};
