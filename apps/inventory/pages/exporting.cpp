#include "pages/exporting.h"

#include "dialogs/export_dialog.h"
#include "sources/whole_file.h"

bool Exporter::Run(Page& page, LPCSTR pszName, const Write& write) {
    ExportDialog dialog(&page);
    dialog.m_strPath = m_strPath;
    if (m_pSettings != nullptr) {
        dialog.m_nSeparator = m_pSettings->Choice(kSettingSeparator);
        const CString strFolder = m_pSettings->Value(kSettingExportFolder).c_str();
        if (m_strPath.IsEmpty() && !strFolder.IsEmpty()) {
            const CString strName = m_pSettings->Value(kSettingExportName).c_str();
            QVPath path(strFolder);
            path.Append(pszName != nullptr ? pszName : static_cast<LPCSTR>(strName));
            dialog.m_strPath = path.GetPath();
        }
    }
    if (dialog.DoModal() != IDOK) {
        return false;
    }
    Failure pFailure = WriteWholeFile(
        "Writing the list...", kErrorExport, dialog.m_strPath,
        [&](LPCSTR pszPath, Work& work) { return write(pszPath, dialog.Separator(), work); });
    const bool bWritten = pFailure == nullptr;
    if (bWritten) {
        m_strPath = dialog.m_strPath;
    }
    if (WasCancelled(pFailure)) {
        page.Say("Writing the list was cancelled.");
    }
    Tell(std::move(pFailure), &page);
    return bWritten;
}
