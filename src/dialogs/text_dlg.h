// QVTextDlg: a dialog that shows a text file below a message line, in a window that the user can
// size. Tell it file, message and title before DoModal.
//
// The text keeps its gaps to message and button when the dialog is sized; that is done in pixels,
// from where the items are, so derived classes may have moved them.

#pragma once

#include "text/text_wnd.h"

#include <afxwin.h>

class QV_CONTROLS_API QVTextDlg : public CDialog {
public:
    explicit QVTextDlg(CWnd* pParent = nullptr);
    ~QVTextDlg() override;

    // Without a file, or with one that cannot be read, the text is empty.
    void SetFilePath(const CString& strPath);
    // The line above the text. A string that is not there counts as empty.
    void SetMessage(const CString& strMessage);
    void SetMessage(UINT nStringID);
    // The dialog's caption. Null and a string that is not there count as empty.
    void SetTitle(const char* pszTitle);
    void SetTitle(UINT nStringID);
    // Once the dialog is there: 1 if the file was read to its end.
    int IsTextLoaded() const { return m_bLoaded; }

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    int OnInitDialog() override;

    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* pInfo);
    DECLARE_MESSAGE_MAP()

    CString m_strFilePath;
    CString m_strMessage;
    CString m_strTitle;
    QVTextWnd m_wndText;
    CButton m_btnClose;
    CStatic m_wndMessage;

private:
    void FillItems();

    int m_bLoaded = 0;
};
