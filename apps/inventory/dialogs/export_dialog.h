// Asks for the file that a list is exported to and for what stands between the cells.

#pragma once

#include "resource.h"

#include <afxwin.h>

class ExportDialog : public CDialog {
public:
    explicit ExportDialog(CWnd* pParent) : CDialog(IDD_EXPORT, pParent) {}

    CString m_strPath;
    int m_nSeparator = 0;
    char Separator() const { return "\t,;|"[m_nSeparator]; }

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    afx_msg void OnBrowse();
    DECLARE_MESSAGE_MAP()
};
