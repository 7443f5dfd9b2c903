// QVFileDialogEx: the platform's dialog for opening and saving files, with a caption and, for
// opening, a text on its OK button:
//
//     QVFileDialogEx dlg(TRUE, "log", nullptr, OFN_FILEMUSTEXIST, nullptr, this);
//     dlg.SetSelectFileDlg();
//     if (dlg.DoModal() == IDOK) {
//         Open(dlg.GetPathName());
//
// Texts are set before DoModal. Without a filter all files are shown.

#pragma once

#include "frame/qv_api.h"

#include <afxdlgs.h>
#include <afxwin.h>

class QV_CONTROLS_API QVFileDialogEx : public CFileDialog {
public:
    /// As the framework's CFileDialog. A null filter: "All Files (*.*)" alone.
    explicit QVFileDialogEx(BOOL bOpenFileDialog, LPCSTR pszDefExt = nullptr,
                            LPCSTR pszFileName = nullptr,
                            DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                            LPCSTR pszFilter = nullptr, CWnd* pParent = nullptr);

    /// The caption of a dialog for opening. The text stays the caller's and has to be there until
    /// DoModal is back. Nothing for an empty text, and for a dialog for saving.
    void SetDlgTitle(const CString& strTitle);
    /// The caption of either. Nothing for an id without string.
    void SetDlgTitle(UINT nStringID);
    /// On the button that opens; a dialog for saving keeps its own.
    void SetOkButtonText(const CString& strText);
    void SetOkButtonText(UINT nStringID);  ///< nothing for an id without string
    /// "Select a File" and "Select".
    void SetSelectFileDlg();

    BOOL OnInitDialog() override;

protected:
    CString m_strOkButtonText;
    CString m_strDlgTitle;
};
