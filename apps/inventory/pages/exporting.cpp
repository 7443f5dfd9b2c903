#include "pages/exporting.h"

#include "dialogs/export_dialog.h"

namespace {

// Empty: it is written.
CString ProblemOf(LPCSTR pszPath, char chSeparator,
                  const std::function<BOOL(LPCSTR, char)>& write) {
    const CWaitCursor wait;
    CString strProblem;
    try {
        if (!write(pszPath, chSeparator)) {
            strProblem.Format("%s cannot be opened for writing.", pszPath);
        }
    } catch (CFileException* pException) {
        char szReason[256];
        pException->GetErrorMessage(szReason, sizeof(szReason));
        pException->Delete();
        ::DeleteFile(pszPath);
        strProblem.Format("The list could not be written to %s: %s", pszPath, szReason);
    }
    return strProblem;
}

}  // namespace

bool Exporter::Run(CWnd& parent, LPCSTR pszName, const std::function<BOOL(LPCSTR, char)>& write) {
    ExportDialog dialog(&parent);
    dialog.m_strPath = m_strPath;
    if (m_pSettings != nullptr) {
        dialog.m_nSeparator = m_pSettings->Choice(kSettingSeparator);
        const CString strFolder = m_pSettings->Value(kSettingExportFolder).c_str();
        if (m_strPath.IsEmpty() && !strFolder.IsEmpty()) {
            const CString strName = m_pSettings->Value(kSettingExportName).c_str();
            dialog.m_strPath = strFolder + "\\" + (pszName != nullptr ? CString(pszName) : strName);
        }
    }
    if (dialog.DoModal() != IDOK) {
        return false;
    }
    const CString strProblem = ProblemOf(dialog.m_strPath, dialog.Separator(), write);
    if (!strProblem.IsEmpty()) {
        AfxMessageBox(strProblem, MB_ICONEXCLAMATION);
        return false;
    }
    m_strPath = dialog.m_strPath;
    return true;
}
