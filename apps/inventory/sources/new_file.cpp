#include "sources/new_file.h"

#include "QVControls.h"
#include "sources/disk_file.h"

NewFile::NewFile(LPCSTR pszPath) : m_strPlace(pszPath), m_strPath(pszPath) {
    if (IsDevice(pszPath)) {
        m_bDone = true;
        return;
    }
    const QVPath folder = QVPath(pszPath).GetParent();
    char szPath[MAX_PATH] = "";
    // An empty file by a new name; where there can be none, writing fails.
    if (::GetTempFileName(folder.IsEmpty() ? "." : static_cast<LPCSTR>(folder), "new", 0, szPath)) {
        m_strPath = szPath;
    } else {
        m_strPath += ".new";
    }
}

NewFile::~NewFile() {
    if (!m_bDone) {
        ::DeleteFile(m_strPath);
    }
}

bool NewFile::PutInPlace() {
    if (!m_bDone) {
        m_bDone = QVFileSystem().Replace(QVPath(m_strPath), QVPath(m_strPlace)) != FALSE;
    }
    return m_bDone;
}
