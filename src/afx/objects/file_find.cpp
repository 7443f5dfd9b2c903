#include "afx/objects/file_find.h"

#include "afx/objects/file_path.h"

#include <afx.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CFileFind, CObject)

namespace {

/// Up to and with the last separator.
CString FolderOf(const CString& strPath) {
    const int nEnd =
        std::max({strPath.ReverseFind('\\'), strPath.ReverseFind('/'), strPath.ReverseFind(':')});
    return strPath.Left(nEnd + 1);
}

BOOL Give(const WIN32_FIND_DATA* pData, FILETIME WIN32_FIND_DATA::*pTime, FILETIME* pTimeStamp) {
    if (pData == nullptr || pTimeStamp == nullptr) {
        return FALSE;
    }
    *pTimeStamp = pData->*pTime;
    return TRUE;
}

BOOL Give(const WIN32_FIND_DATA* pData, FILETIME WIN32_FIND_DATA::*pTime, CTime& refTime) {
    if (pData == nullptr) {
        return FALSE;
    }
    refTime = CTime(pData->*pTime);
    return TRUE;
}

}  // namespace

CFileFind::~CFileFind() {
    CFileFind::CloseContext();
}

void CFileFind::Close() {
    m_bCurrent = m_bNext = false;
    CloseContext();
}

void CFileFind::CloseContext() {
    if (m_hContext != nullptr) {
        ::FindClose(m_hContext);
        m_hContext = nullptr;
    }
}

BOOL CFileFind::FindFile(LPCTSTR pstrName, DWORD) {
    Close();
    const CString strPattern(pstrName != nullptr ? pstrName : "*.*");
    const HANDLE hContext = ::FindFirstFile(strPattern, &m_next);
    if (hContext == INVALID_HANDLE_VALUE) {
        return FALSE;
    }
    m_hContext = hContext;
    m_bNext = true;
    m_strRoot = FolderOf(strPattern);
    m_strFolder = AfxWholePath(m_strRoot.IsEmpty() ? LPCTSTR(".") : LPCTSTR(m_strRoot));
    if (m_strFolder.IsEmpty() || FolderOf(m_strFolder).GetLength() != m_strFolder.GetLength()) {
        m_strFolder += '\\';
    }
    return TRUE;
}

BOOL CFileFind::FindNextFile() {
    if (!m_bNext) {
        return FALSE;
    }
    m_current = m_next;
    m_bCurrent = true;
    m_bNext = ::FindNextFile(m_hContext, &m_next) != FALSE;
    return m_bNext;
}

ULONGLONG CFileFind::GetLength() const {
    return Current() != nullptr
               ? static_cast<ULONGLONG>(m_current.nFileSizeHigh) << 32 | m_current.nFileSizeLow
               : 0;
}

CString CFileFind::GetFileName() const {
    return Current() != nullptr ? m_current.cFileName : "";
}

CString CFileFind::GetFilePath() const {
    return Current() != nullptr ? m_strFolder + m_current.cFileName : CString();
}

CString CFileFind::GetFileTitle() const {
    const CString strName = GetFileName();
    const int nDot = strName.ReverseFind('.');
    return nDot > 0 && !IsDots() ? strName.Left(nDot) : strName;
}

CString CFileFind::GetFileURL() const {
    return "file://" + GetFilePath();
}

CString CFileFind::GetRoot() const {
    return m_strRoot;
}

BOOL CFileFind::GetCreationTime(FILETIME* pTimeStamp) const {
    return Give(Current(), &WIN32_FIND_DATA::ftCreationTime, pTimeStamp);
}
BOOL CFileFind::GetCreationTime(CTime& refTime) const {
    return Give(Current(), &WIN32_FIND_DATA::ftCreationTime, refTime);
}
BOOL CFileFind::GetLastAccessTime(FILETIME* pTimeStamp) const {
    return Give(Current(), &WIN32_FIND_DATA::ftLastAccessTime, pTimeStamp);
}
BOOL CFileFind::GetLastAccessTime(CTime& refTime) const {
    return Give(Current(), &WIN32_FIND_DATA::ftLastAccessTime, refTime);
}
BOOL CFileFind::GetLastWriteTime(FILETIME* pTimeStamp) const {
    return Give(Current(), &WIN32_FIND_DATA::ftLastWriteTime, pTimeStamp);
}
BOOL CFileFind::GetLastWriteTime(CTime& refTime) const {
    return Give(Current(), &WIN32_FIND_DATA::ftLastWriteTime, refTime);
}

BOOL CFileFind::MatchesMask(DWORD dwMask) const {
    return Current() != nullptr && (m_current.dwFileAttributes & dwMask) != 0;
}

BOOL CFileFind::IsDots() const {
    return IsDirectory() &&
           (lstrcmp(m_current.cFileName, ".") == 0 || lstrcmp(m_current.cFileName, "..") == 0);
}
