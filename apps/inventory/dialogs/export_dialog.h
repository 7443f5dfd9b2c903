// Asks for the file that a list is exported to and for what stands between the cells. The end of
// its name says what kind of file it is, which is told below it.

#pragma once

#include "model/table_writer.h"
#include "resource.h"

#include <afxwin.h>

class ExportDialog : public CDialog {
public:
    explicit ExportDialog(CWnd* pParent) : CDialog(IDD_EXPORT, pParent) {}

    CString m_strPath;
    int m_nSeparator = 0;
    char Separator() const { return "\t,;|"[m_nSeparator]; }
    TableKind Kind() const { return KindOfFile(static_cast<LPCSTR>(m_strPath)); }

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    afx_msg void OnBrowse();
    afx_msg void OnPathChanged();
    DECLARE_MESSAGE_MAP()

private:
    bool MayReplace();

    CString m_strFolder;   // that was offered
    CString m_strBrowsed;  // what the platform's dialog gave, empty until then
};
