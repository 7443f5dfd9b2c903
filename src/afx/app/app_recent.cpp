// Settings that the framework itself keeps for an application: recent files, preview.
#include "afx/app/recent_files.h"

#include <afxwin.h>

#include <algorithm>

namespace {

constexpr char kRecentSection[] = "Recent File List";
constexpr char kRecentEntry[] = "File%d";
constexpr char kSettings[] = "Settings";
constexpr char kPreviewPages[] = "PreviewPages";

}  // namespace

void CWinApp::LoadStdProfileSettings(UINT nMaxMRU) {
    if (nMaxMRU > 0 && m_pRecentFileList == nullptr) {
        const int nFiles = static_cast<int>(std::min<UINT>(nMaxMRU, _AFX_MRU_MAX_COUNT));
        m_pRecentFileList = AfxNeedMemory(
            [=] { return new CRecentFileList(0, kRecentSection, kRecentEntry, nFiles); });
        m_pRecentFileList->ReadList();
    }
    m_nNumPreviewPages = GetProfileInt(kSettings, kPreviewPages, 0);
}

void CWinApp::SaveStdProfileSettings() {
    if (m_pRecentFileList != nullptr) {
        m_pRecentFileList->WriteList();
    }
    if (m_nNumPreviewPages != 0) {
        WriteProfileInt(kSettings, kPreviewPages, static_cast<int>(m_nNumPreviewPages));
    }
}

void CWinApp::AddToRecentFileList(LPCTSTR lpszPathName) {
    if (m_pRecentFileList != nullptr) {
        m_pRecentFileList->Add(lpszPathName);
    }
}

void CWinApp::OnUpdateRecentFileMenu(CCmdUI* pCmdUI) {
    if (m_pRecentFileList != nullptr) {
        m_pRecentFileList->UpdateMenu(pCmdUI);
    } else {
        pCmdUI->Enable(FALSE);
    }
}

BOOL CWinApp::OnOpenRecentFile(UINT nID) {
    const int nFile = static_cast<int>(nID - ID_FILE_MRU_FILE1);
    if (m_pRecentFileList == nullptr || nFile >= m_pRecentFileList->GetSize()) {
        return FALSE;
    }
    const CString strPath((*m_pRecentFileList)[nFile]);
    if (!strPath.IsEmpty() && OpenDocumentFile(strPath) == nullptr) {
        m_pRecentFileList->Remove(nFile);
    }
    return TRUE;
}
