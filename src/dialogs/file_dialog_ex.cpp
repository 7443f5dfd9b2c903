#include "dialogs/file_dialog_ex.h"

#include "dialogs/ask_parts.h"
#include "dialogs/dialog_ids.h"

#include <utility>

// Defines short names that clash with those of the standard library's headers: after them.
#include <mbstring.h>

namespace {

// False for an id without string: the text stays what it was.
bool Load(CString& strText, UINT nStringID) {
    bool bLoaded = false;
    qv::MemorySuffices([&] {
        CString strNew;
        bLoaded = strNew.LoadString(nStringID) != FALSE;
        if (bLoaded) {
            strText = std::move(strNew);
        }
    });
    return bLoaded;
}

}  // namespace

QVFileDialogEx::QVFileDialogEx(BOOL bOpenFileDialog, LPCSTR pszDefExt, LPCSTR pszFileName,
                               DWORD dwFlags, LPCSTR pszFilter, CWnd* pParent)
    : CFileDialog(bOpenFileDialog, pszDefExt, pszFileName, dwFlags, pszFilter, pParent) {
    if (pszFilter != nullptr || !Load(m_strFilter, QV_IDS_ALL_FILES)) {
        return;
    }
    qv::MemorySuffices([&] {
        const int nLength = m_strFilter.GetLength();
        char* const pszAll = m_strFilter.GetBuffer(nLength + 1);
        pszAll[nLength + 1] = '\0';  // the list ends by an empty text
        for (auto* p = reinterpret_cast<unsigned char*>(pszAll); (p = _mbschr(p, '|')) != nullptr;
             ++p) {
            *p = '\0';
        }
        m_ofn.lpstrFilter = pszAll;
    });
}

void QVFileDialogEx::SetDlgTitle(const CString& strTitle) {
    if (m_bOpenFileDialog && !strTitle.IsEmpty()) {
        m_ofn.lpstrTitle = strTitle;
    }
}

void QVFileDialogEx::SetDlgTitle(UINT nStringID) {
    if (Load(m_strDlgTitle, nStringID)) {
        m_ofn.lpstrTitle = m_strDlgTitle;
    }
}

void QVFileDialogEx::SetOkButtonText(const CString& strText) {
    qv::StoreText(m_strOkButtonText, strText);
}

void QVFileDialogEx::SetOkButtonText(UINT nStringID) {
    Load(m_strOkButtonText, nStringID);
}

void QVFileDialogEx::SetSelectFileDlg() {
    SetDlgTitle(QV_IDS_SELECT_FILE);
    SetOkButtonText(QV_IDS_SELECT);
}

// This window is a child of the dialog that the user sees.
BOOL QVFileDialogEx::OnInitDialog() {
    CWnd* const pDialog = GetParent();
    pDialog->CenterWindow();
    const BOOL bDefaultFocus = CFileDialog::OnInitDialog();
    if (m_bOpenFileDialog && !m_strOkButtonText.IsEmpty()) {
        pDialog->SetDlgItemText(IDOK, m_strOkButtonText);
    }
    return bDefaultFocus;
}
