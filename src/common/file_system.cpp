#include "common/file_system.h"

#include "common/wide_path.h"

#include <windows.h>

// For the random generator.
#include <memory>
#include <ntsecapi.h>
#include <string>

namespace {

constexpr int kMostTries = 16;
constexpr int kRandomBytes = 10;
constexpr char kDigits[] = "abcdefghijklmnopqrstuvwxyz234567";  // 5 bits each

std::wstring Wide(const QVPath& path) {
    const CString& strPath = path.GetPath();
    return qv::WidePath({strPath.GetString(), static_cast<std::size_t>(strPath.GetLength())});
}

CString TempFolder() {
    wchar_t szFolder[MAX_PATH + 1];
    const DWORD nFolder = ::GetTempPathW(MAX_PATH + 1, szFolder);
    if (nFolder == 0 || nFolder > MAX_PATH) {
        CFileException::ThrowOsError(nFolder == 0 ? ::GetLastError() : ERROR_BAD_PATHNAME);
    }
    CString strFolder = qv::NarrowPath(szFolder);
    if (strFolder.IsEmpty()) {
        CFileException::ThrowOsError(ERROR_BAD_PATHNAME);
    }
    return strFolder;
}

DWORD Attributes(const QVPath& path) {
    return ::GetFileAttributesW(Wide(path).c_str());
}

bool HasSeparator(const CString& str) {
    return str.FindOneOf("\\/:") >= 0;
}

}  // namespace

QVFileSystem::QVFileSystem() = default;
QVFileSystem::~QVFileSystem() = default;

CString QVFileSystem::MakeTempName() {
    unsigned char random[kRandomBytes];
    CString strName;
    if (!RtlGenRandom(random, sizeof random)) {
        return strName;
    }
    unsigned nBits = 0;
    unsigned nHeld = 0;
    for (const unsigned char byte : random) {
        nBits = nBits << 8 | byte;
        for (nHeld += 8; nHeld >= 5; nHeld -= 5) {
            strName += kDigits[nBits >> (nHeld - 5) & 31];
        }
    }
    return strName;
}

void QVFileSystem::CreateTempFile(QVPath& path, const CString& strPrefix,
                                  const CString& strExtension) {
    if (HasSeparator(strPrefix) || HasSeparator(strExtension)) {
        CFileException::ThrowOsError(ERROR_INVALID_NAME, strPrefix + strExtension);
    }
    const bool bDot = !strExtension.IsEmpty() && strExtension[0] != '.';
    const CString strFolder = TempFolder();
    for (int nTry = 1;; ++nTry) {
        const CString strName = MakeTempName();
        QVPath made(strFolder, path.GetSeparator());
        made.Append(strPrefix + strName + (bDot ? "." : "") + strExtension);
        HANDLE hFile = strName.IsEmpty()
                           ? INVALID_HANDLE_VALUE
                           : ::CreateFileW(Wide(made).c_str(), GENERIC_WRITE, 0, nullptr,
                                           CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (hFile != INVALID_HANDLE_VALUE) {
            ::CloseHandle(hFile);
            path = made;
            return;
        }
        const DWORD dwError = strName.IsEmpty() ? ERROR_GEN_FAILURE : ::GetLastError();
        if ((dwError != ERROR_FILE_EXISTS && dwError != ERROR_ALREADY_EXISTS) ||
            nTry == kMostTries) {
            CFileException::ThrowOsError(static_cast<LONG>(dwError), made);
        }
    }
}

int QVFileSystem::DeleteFile(const QVPath& path) {
    return ::DeleteFileW(Wide(path).c_str()) != FALSE;
}

BOOL QVFileSystem::Exists(const QVPath& path) const {
    return Attributes(path) != INVALID_FILE_ATTRIBUTES;
}

BOOL QVFileSystem::IsFolder(const QVPath& path) const {
    const DWORD dwAttributes = Attributes(path);
    return dwAttributes != INVALID_FILE_ATTRIBUTES && (dwAttributes & FILE_ATTRIBUTE_DIRECTORY);
}

BOOL QVFileSystem::GetSize(const QVPath& path, ULONGLONG& nBytes) const {
    nBytes = 0;
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!::GetFileAttributesExW(Wide(path).c_str(), GetFileExInfoStandard, &data) ||
        (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)) {
        return FALSE;
    }
    nBytes = static_cast<ULONGLONG>(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
    return TRUE;
}

BOOL QVFileSystem::Copy(const QVPath& from, const QVPath& to, BOOL bReplace) {
    return ::CopyFileW(Wide(from).c_str(), Wide(to).c_str(), !bReplace);
}

BOOL QVFileSystem::Replace(const QVPath& from, const QVPath& to) {
    return ::MoveFileExW(Wide(from).c_str(), Wide(to).c_str(),
                         MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
}
