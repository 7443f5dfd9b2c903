#include "afx/objects/mirror_file.h"

#include "afx/objects/file_path.h"

#include <afx.h>

IMPLEMENT_DYNAMIC(CMirrorFile, CFile)

CMirrorFile::CMirrorFile() = default;

CMirrorFile::~CMirrorFile() {
    if (!m_strMirrorName.IsEmpty()) {
        CMirrorFile::Abort();
    }
}

BOOL CMirrorFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError) {
    m_strMirrorName.Empty();
    if ((nOpenFlags & modeCreate) == 0) {
        return CFile::Open(lpszFileName, nOpenFlags, pError);
    }
    const CString strPath(AfxWholePath(lpszFileName));
    const DWORD dwAttributes = ::GetFileAttributes(strPath);
    if (dwAttributes != INVALID_FILE_ATTRIBUTES) {
        if ((dwAttributes & FILE_ATTRIBUTE_READONLY) != 0) {
            if (pError != nullptr) {
                pError->m_cause = CFileException::accessDenied;
                pError->m_lOsError = ERROR_ACCESS_DENIED;
                pError->m_strFileName = strPath;
            }
            return FALSE;
        }
        CFile old;  // somebody may be reading it
        if (!old.Open(strPath, modeReadWrite | shareExclusive, pError)) {
            return FALSE;
        }
        old.Close();
    }
    TCHAR szMirror[MAX_PATH] = {};
    const CString strFolder(strPath.Left(strPath.ReverseFind('\\') + 1));
    if (::GetTempFileName(strFolder, "qv", 0, szMirror) == 0) {
        return CFile::Open(strPath, nOpenFlags, pError);  // a folder that takes no new files
    }
    if (!CFile::Open(szMirror, nOpenFlags, pError)) {
        ::DeleteFile(szMirror);
        return FALSE;
    }
    m_strMirrorName = szMirror;
    m_strFileName = strPath;
    return TRUE;
}

void CMirrorFile::Close() {
    const CString strPath(m_strFileName);  // which closing forgets
    CFile::Close();
    if (m_strMirrorName.IsEmpty()) {
        return;
    }
    const CString strMirror(m_strMirrorName);
    m_strMirrorName.Empty();
    // The first way keeps the old file's attributes and rights; it needs an old file.
    if (!::ReplaceFile(strPath, strMirror, nullptr, 0, nullptr, nullptr) &&
        !::MoveFileEx(strMirror, strPath, MOVEFILE_REPLACE_EXISTING)) {
        const auto lOsError = static_cast<LONG>(::GetLastError());
        ::DeleteFile(strMirror);
        CFileException::ThrowOsError(lOsError, strPath);
    }
}

void CMirrorFile::Abort() {
    CFile::Abort();
    if (!m_strMirrorName.IsEmpty()) {
        ::DeleteFile(m_strMirrorName);
        m_strMirrorName.Empty();
    }
}
