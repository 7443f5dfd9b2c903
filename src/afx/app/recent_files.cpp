#include "afx/app/recent_files.h"

#include "afx/objects/file_path.h"

#include <afxwin.h>

#include <algorithm>

CRecentFileList::CRecentFileList(UINT nStart, LPCTSTR lpszSection, LPCTSTR lpszEntryFormat,
                                 int nSize, int nMaxDispLen)
    : m_nSize(std::max(nSize, 0)),
      m_arrNames(new CString[static_cast<size_t>(m_nSize)]),
      m_strSectionName(lpszSection),
      m_strEntryFormat(lpszEntryFormat),
      m_nStart(nStart),
      m_nMaxDisplayLength(nMaxDispLen) {}

CRecentFileList::~CRecentFileList() {
    delete[] m_arrNames;
}

void CRecentFileList::Add(LPCTSTR lpszPathName) {
    const CString strPath(AfxWholePath(lpszPathName));
    if (strPath.IsEmpty() || m_nSize == 0) {
        return;
    }
    CString* const pEnd = m_arrNames + m_nSize;
    CString* pAt = std::find_if(m_arrNames, pEnd,
                                [&](const CString& str) { return ::lstrcmpi(str, strPath) == 0; });
    if (pAt == pEnd) {
        --pAt;  // the oldest one goes
    }
    std::rotate(m_arrNames, pAt, pAt + 1);
    m_arrNames[0] = strPath;
}

void CRecentFileList::Remove(int nIndex) {
    if (nIndex < 0 || nIndex >= m_nSize) {
        return;
    }
    m_arrNames[nIndex].Empty();
    std::rotate(m_arrNames + nIndex, m_arrNames + nIndex + 1, m_arrNames + m_nSize);
}

namespace {

/// Where the file's name begins.
int NameAt(const CString& strPath) {
    return strPath.ReverseFind('\\') + 1;
}

/// How much of the path stands before its first folder: "C:\" or "\\server\share\".
int RootLength(const CString& strPath) {
    int nEnd = strPath.Find('\\');
    if (nEnd == 0 && strPath.GetLength() > 1 && strPath[1] == '\\') {
        nEnd = strPath.Find('\\', 2);
        nEnd = nEnd >= 0 ? strPath.Find('\\', nEnd + 1) : -1;
    }
    return nEnd + 1;
}

/// "C:\...\folder\name" with as many folders as there is room for.
CString Abbreviated(const CString& strPath, int nMost, BOOL bAtLeastName) {
    if (strPath.GetLength() <= nMost) {
        return strPath;
    }
    const CString strName(strPath.Mid(NameAt(strPath)));
    const CString strBegin(strPath.Left(RootLength(strPath)) + "...");
    if (strBegin.GetLength() + 1 + strName.GetLength() > nMost) {
        return strName.GetLength() <= nMost || bAtLeastName ? strName : CString();
    }
    int nFrom = RootLength(strPath);
    do {
        nFrom = strPath.Find('\\', nFrom) + 1;  // one folder less
    } while (strBegin.GetLength() + 1 + strPath.GetLength() - nFrom > nMost);
    return strBegin + "\\" + strPath.Mid(nFrom);
}

}  // namespace

BOOL CRecentFileList::GetDisplayName(CString& strName, int nIndex, LPCTSTR lpszCurDir, int nCurDir,
                                     BOOL bAtLeastName) const {
    if (nIndex < 0 || nIndex >= m_nSize || m_arrNames[nIndex].IsEmpty()) {
        return FALSE;
    }
    const CString& strPath = m_arrNames[nIndex];
    if (nCurDir > 0 && NameAt(strPath) == nCurDir &&
        ::lstrcmpi(strPath.Left(nCurDir), CString(lpszCurDir, nCurDir)) == 0) {
        strName = strPath.Mid(nCurDir);
    } else if (m_nMaxDisplayLength != -1) {
        strName = Abbreviated(strPath, m_nMaxDisplayLength, bAtLeastName);
    } else {
        strName = strPath;
    }
    return TRUE;
}

void CRecentFileList::UpdateMenu(CCmdUI* pCmdUI) {
    CMenu* pMenu = pCmdUI->m_pMenu;
    if (m_strOriginal.IsEmpty() && pMenu != nullptr) {
        pMenu->GetMenuString(pCmdUI->m_nID, m_strOriginal, MF_BYCOMMAND);
    }
    if (m_nSize == 0 || m_arrNames[0].IsEmpty()) {
        if (!m_strOriginal.IsEmpty()) {
            pCmdUI->SetText(m_strOriginal);
        }
        pCmdUI->Enable(FALSE);
        return;
    }
    if (pMenu == nullptr) {
        return;
    }
    for (int nFile = 0; nFile < m_nSize; ++nFile) {
        pMenu->DeleteMenu(pCmdUI->m_nID + static_cast<UINT>(nFile), MF_BYCOMMAND);
    }
    CString strCurDir(AfxWholePath("."));
    if (strCurDir.IsEmpty() || strCurDir.ReverseFind('\\') != strCurDir.GetLength() - 1) {
        strCurDir += "\\";
    }
    for (int nFile = 0; nFile < m_nSize; ++nFile) {
        CString strName;
        if (!GetDisplayName(strName, nFile, strCurDir, strCurDir.GetLength())) {
            break;
        }
        strName.Replace("&", "&&");
        // The first nine have their digit underlined, the tenth its zero.
        const int nNumber = static_cast<int>(m_nStart) + nFile + 1;
        CString strItem;
        if (nNumber == 10) {
            strItem = "1&0 ";
        } else {
            strItem.Format(nNumber < 10 ? "&%d " : "%d ", nNumber);
        }
        pMenu->InsertMenu(pCmdUI->m_nIndex++, MF_STRING | MF_BYPOSITION, pCmdUI->m_nID++,
                          strItem + strName);
    }
    // The walk through the menu goes on behind the last item.
    --pCmdUI->m_nIndex;
    pCmdUI->m_nIndexMax = pMenu->GetMenuItemCount();
    pCmdUI->m_bEnableChanged = TRUE;
}

void CRecentFileList::ReadList() {
    for (int nFile = 0; nFile < m_nSize; ++nFile) {
        CString strEntry;
        strEntry.Format(m_strEntryFormat, static_cast<int>(m_nStart) + nFile + 1);
        m_arrNames[nFile] = AfxGetApp()->GetProfileString(m_strSectionName, strEntry);
    }
}

void CRecentFileList::WriteList() {
    CWinApp* pApp = AfxGetApp();
    pApp->WriteProfileString(m_strSectionName, nullptr, nullptr);
    for (int nFile = 0; nFile < m_nSize && !m_arrNames[nFile].IsEmpty(); ++nFile) {
        CString strEntry;
        strEntry.Format(m_strEntryFormat, static_cast<int>(m_nStart) + nFile + 1);
        pApp->WriteProfileString(m_strSectionName, strEntry, m_arrNames[nFile]);
    }
}
