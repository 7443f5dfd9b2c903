// Asks what to look for.

#pragma once

#include "resource.h"

#include <afxwin.h>

class FindDialog : public CDialog {
public:
    explicit FindDialog(CWnd* pParent) : CDialog(IDD_FIND, pParent) {}

    CString m_strText;

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        CDialog::DoDataExchange(pDX);
        DDX_Text(pDX, IDC_FIND_TEXT, m_strText);
    }
};
