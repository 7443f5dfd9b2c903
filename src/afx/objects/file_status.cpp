// What CFile does beside reading and writing: duplicates, locks, a file's attributes and times.
#include "afx/objects/file.h"

#include <afx.h>

#include <memory>

namespace {

constexpr DWORD Low(ULONGLONG n) {
    return static_cast<DWORD>(n);
}
constexpr DWORD High(ULONGLONG n) {
    return static_cast<DWORD>(n >> 32);
}

/// Null for the time 0.
FILETIME* FileTimeOf(CTime time, FILETIME& ft) {
    constexpr LONGLONG kSecondsTo1970 = 11644473600LL;
    if (time.GetTime() == 0) {
        return nullptr;
    }
    const auto nUnits = static_cast<ULONGLONG>((time.GetTime() + kSecondsTo1970) * 10000000);
    ft = {Low(nUnits), High(nUnits)};
    return &ft;
}

}  // namespace

CFile* CFile::Duplicate() const {
    auto pFile = std::make_unique<CFile>();
    if (!::DuplicateHandle(::GetCurrentProcess(), m_hFile, ::GetCurrentProcess(), &pFile->m_hFile,
                           0, FALSE, DUPLICATE_SAME_ACCESS)) {
        pFile->m_hFile = INVALID_HANDLE_VALUE;
        ThrowLastError();
    }
    pFile->m_bCloseOnDelete = TRUE;
    pFile->m_strFileName = m_strFileName;
    return pFile.release();
}

void CFile::LockRange(ULONGLONG dwPos, ULONGLONG dwCount) {
    if (!::LockFile(m_hFile, Low(dwPos), High(dwPos), Low(dwCount), High(dwCount))) {
        ThrowLastError();
    }
}

void CFile::UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) {
    if (!::UnlockFile(m_hFile, Low(dwPos), High(dwPos), Low(dwCount), High(dwCount))) {
        ThrowLastError();
    }
}

void CFile::SetStatus(LPCTSTR lpszFileName, const CFileStatus& status) {
    const auto check = [lpszFileName](BOOL bDone) {
        if (!bDone) {
            CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), lpszFileName);
        }
    };
    const DWORD dwOld = ::GetFileAttributes(lpszFileName);
    check(dwOld != INVALID_FILE_ATTRIBUTES);
    const DWORD dwNew = status.m_attribute != 0 ? status.m_attribute : FILE_ATTRIBUTE_NORMAL;
    // The times of a file that is read-only cannot be set: that goes first, or comes last.
    if ((dwOld & FILE_ATTRIBUTE_READONLY) != 0 && dwNew != dwOld) {
        check(::SetFileAttributes(lpszFileName, dwNew & ~FILE_ATTRIBUTE_READONLY));
    }
    if (status.m_mtime.GetTime() != 0 || status.m_ctime.GetTime() != 0 ||
        status.m_atime.GetTime() != 0) {
        const HANDLE hFile =
            ::CreateFile(lpszFileName, FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE,
                         nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
        check(hFile != INVALID_HANDLE_VALUE);
        FILETIME created;
        FILETIME accessed;
        FILETIME written;
        const BOOL bDone = ::SetFileTime(hFile, FileTimeOf(status.m_ctime, created),
                                         FileTimeOf(status.m_atime, accessed),
                                         FileTimeOf(status.m_mtime, written));
        const DWORD dwError = ::GetLastError();
        ::CloseHandle(hFile);
        ::SetLastError(dwError);
        check(bDone);
    }
    check(::SetFileAttributes(lpszFileName, dwNew));
}

CFile* CStdioFile::Duplicate() const {
    AfxThrowNotSupportedException();
}
void CStdioFile::LockRange(ULONGLONG, ULONGLONG) {
    AfxThrowNotSupportedException();
}
void CStdioFile::UnlockRange(ULONGLONG, ULONGLONG) {
    AfxThrowNotSupportedException();
}
CFile* CMemFile::Duplicate() const {
    AfxThrowNotSupportedException();
}
void CMemFile::LockRange(ULONGLONG, ULONGLONG) {
    AfxThrowNotSupportedException();
}
void CMemFile::UnlockRange(ULONGLONG, ULONGLONG) {
    AfxThrowNotSupportedException();
}
